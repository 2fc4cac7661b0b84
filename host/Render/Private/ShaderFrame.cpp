// SPDX-License-Identifier: MIT
#include "Shaders.h"

namespace Host::Shaders
{

// What one picture has in common for all that is drawn in it.
const char* const FrameDeclarations = R"glsl(
const float Pi = 3.14159265;
const int LightCount = 4;

uniform vec3 uEye;
uniform vec3 uLightTowards[LightCount];
uniform vec3 uLightColor[LightCount];
uniform float uLightSize[LightCount];
uniform vec3 uSky;
uniform vec3 uGround;
uniform float uExposure;
uniform mat4 uShadowMatrix;
uniform sampler2D uShadowMap;
uniform float uShadowExtent;  // half width of the shadow map, cm
uniform float uShadowTexel;   // width of one texel, cm; 0 without shadows
uniform sampler2D uOcclusion;
uniform vec2 uPixelSize;      // of the picture being drawn, in parts of its width and height
uniform float uHasOcclusion;
uniform float uGlow;          // 1 when alpha tells what shines by itself
)glsl";

// Keeps colours up to 0.8 as they are and rolls brighter ones off towards white, as the "PBR neutral" tone mapper of
// the Khronos group does, with a shorter toe; a fabric's colour is what its maker chose, so the curve may not shift it.
const char* const ToneCurve = R"glsl(
vec3 toneMapped(vec3 color)
{
	const float toe = 0.015;
	const float start = 0.8 - toe;
	const float desaturation = 0.18;
	color *= uExposure;
	float low = min(color.r, min(color.g, color.b));
	color -= low < 2.0 * toe ? low - low * low / (4.0 * toe) : toe;
	float peak = max(color.r, max(color.g, color.b));
	if (peak < start)
	{
		return color;
	}
	float room = 1.0 - start;
	float rolled = 1.0 - room * room / (peak + room - start);
	color *= rolled / peak;
	float toWhite = 1.0 - 1.0 / (desaturation * (peak - rolled) + 1.0);
	return mix(color, vec3(rolled), toWhite);
}

vec3 encoded(vec3 linear)
{
	linear = clamp(linear, 0.0, 1.0);
	return mix(1.055 * pow(linear, vec3(1.0 / 2.4)) - 0.055, linear * 12.92, vec3(lessThanEqual(linear, vec3(0.0031308))));
}

vec3 decoded(vec3 srgb)
{
	return mix(pow((srgb + 0.055) / 1.055, vec3(2.4)), srgb / 12.92, vec3(lessThanEqual(srgb, vec3(0.04045))));
}
)glsl";

const char* const PixelNoise = R"glsl(
// Interleaved gradient noise: even over small neighbourhoods, the same at every run.
float pixelNoise(vec2 pixel)
{
	return fract(52.9829189 * fract(dot(pixel, vec2(0.06711056, 0.00583715))));
}
)glsl";

// Shadow of the first light. The penumbra widens with the distance to what throws it, as under a large lamp: first the
// mean depth of the throwers is sought, then a disk of that width is sampled.
const char* const ShadowLookup = R"glsl(
float shadowOf(vec3 position, vec3 normal, float rotation)
{
	if (uShadowTexel <= 0.0)
	{
		return 1.0;
	}
	vec3 lifted = position + normal * (1.6 * uShadowTexel);
	vec3 at = (uShadowMatrix * vec4(lifted, 1.0)).xyz * 0.5 + 0.5;
	if (any(lessThan(at, vec3(0.0))) || any(greaterThan(at.xy, vec2(1.0))))
	{
		return 1.0;
	}
	float depthPerCm = 0.5 / uShadowExtent;
	// The floor goes on behind what the map holds; where the map holds nothing its depth is 1 and throws no shadow.
	float limit = min(at.z - 0.8 * uShadowTexel * depthPerCm, 0.99999);
	float search = min(6.0, 0.06 * uShadowExtent) * depthPerCm;
	float throwers = 0.0;
	float throwerDepth = 0.0;
	float angle = rotation * 2.0 * Pi;
	const int searchCount = 8;
	for (int i = 0; i < searchCount; ++i)
	{
		float radius = sqrt((float(i) + 0.5) / float(searchCount));
		float turn = angle + float(i) * 2.39996323;
		float depth = textureLod(uShadowMap, at.xy + radius * search * vec2(cos(turn), sin(turn)), 0.0).r;
		if (depth < limit)
		{
			throwers += 1.0;
			throwerDepth += depth;
		}
	}
	if (throwers < 0.5)
	{
		return 1.0;
	}
	float distance = (at.z - throwerDepth / throwers) / depthPerCm;
	float width = clamp(distance * uLightSize[0] * 0.6, 1.2 * uShadowTexel, min(14.0, 0.12 * uShadowExtent)) * depthPerCm;
	float lit = 0.0;
	const int count = 16;
	for (int i = 0; i < count; ++i)
	{
		float radius = sqrt((float(i) + 0.5) / float(count));
		float turn = angle + float(i) * 2.39996323;
		float depth = textureLod(uShadowMap, at.xy + radius * width * vec2(cos(turn), sin(turn)), 0.0).r;
		lit += depth < limit ? 0.0 : 1.0;
	}
	return lit / float(count);
}
)glsl";

} // namespace Host::Shaders
