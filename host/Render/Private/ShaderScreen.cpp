// SPDX-License-Identifier: MIT
#include "Shaders.h"

namespace Host::Shaders
{
namespace
{

const char* const BackdropHead = R"glsl(//VTK::System::Dec
//VTK::Output::Dec
in vec2 texCoord;

uniform mat4 uViewProjection;
uniform vec3 uForward;
uniform vec3 uRight;  // scaled to the edge of the picture at distance 1
uniform vec3 uUp;
uniform vec3 uBackdropTop;
uniform vec3 uBackdropBottom;
uniform vec3 uFloorPoint;
uniform vec3 uFloorColor;
uniform float uFloorRadius;
uniform int uFloor;
uniform float uGridSpacing;  // 0 without a grid
uniform float uGridHalfSize;
uniform int uDepthOnly;
)glsl";

// A studio's backdrop: the lit floor fades with the distance into a vertical gradient, so that no horizon shows.
const char* const BackdropMain = R"glsl(
float gridLine(vec2 at, vec2 width)
{
	vec2 near = abs(fract(at - 0.5) - 0.5);
	vec2 line = 1.0 - smoothstep(vec2(0.0), width * 1.5, near);
	return max(line.x, line.y) * clamp(1.0 - 2.0 * max(width.x, width.y), 0.0, 1.0);
}

void main()
{
	vec2 screen = texCoord * 2.0 - 1.0;
	vec3 ray = uForward + uRight * screen.x + uUp * screen.y;
	float below = uEye.z - uFloorPoint.z;
	float along = ray.z < -1e-5 ? -below / ray.z : -1.0;
	bool onFloor = uFloor == 1 && below > 0.0 && along > 0.0;
	vec3 at = uEye + ray * along;
	float away = length(at.xy - uFloorPoint.xy) / uFloorRadius;
	vec4 clip = uViewProjection * vec4(at, 1.0);
	onFloor = onFloor && away < 1.0 && clip.z < clip.w;
	gl_FragDepth = onFloor ? clamp(clip.z / clip.w * 0.5 + 0.5, 0.0, 1.0) : 1.0;
	gl_FragData[0] = vec4(0.0, 0.0, 0.0, 1.0);
	if (uDepthOnly == 1)
	{
		return;
	}

	vec2 fromCenter = screen * vec2(0.85, 0.7);
	vec3 backdrop = mix(uBackdropBottom, uBackdropTop, smoothstep(-0.75, 1.05, screen.y));
	backdrop *= 1.0 - 0.22 * smoothstep(0.3, 1.3, length(fromCenter));
	float noise = pixelNoise(gl_FragCoord.xy);
	vec3 color = backdrop;
	if (onFloor)
	{
		vec3 normal = vec3(0.0, 0.0, 1.0);
		float shadow = shadowOf(at, normal, noise);
		float open = uHasOcclusion > 0.5 ? texture(uOcclusion, gl_FragCoord.xy * uPixelSize).r : 1.0;
		vec3 key = uLightColor[0] * max(uLightTowards[0].z, 0.0);
		vec3 others = uSky;
		for (int i = 1; i < LightCount; ++i)
		{
			others += 0.4 * uLightColor[i] * max(uLightTowards[i].z, 0.0) / Pi;
		}
		// The floor has the backdrop's own colour, darkened by what stands on it. The lamps behind are narrow: little of
		// their light comes down to it.
		vec3 full = key / Pi + others;
		vec3 lit = (key * shadow / Pi + others * open) / max(full, vec3(1e-3));
		vec3 ground = mix(uFloorColor, backdrop, 0.55) * mix(vec3(1.0), lit, 0.9);
		if (uGridSpacing > 0.0)
		{
			vec2 cell = at.xy / uGridSpacing;
			vec2 width = fwidth(cell);
			float line = 0.12 * gridLine(cell, width);
			line = max(line, 0.24 * gridLine(cell / 8.0, width / 8.0));
			vec2 axis = 1.0 - smoothstep(vec2(0.0), width * 2.0, abs(cell));
			line = max(line, 0.45 * max(axis.x, axis.y));
			float inside = step(max(abs(at.x), abs(at.y)), uGridHalfSize + uGridSpacing * 0.05);
			ground *= 1.0 - line * inside;
		}
		float fade = smoothstep(0.25, 0.95, away);
		color = mix(ground, backdrop * mix(vec3(1.0), lit, 1.0 - fade), fade);
	}
	// Half a step of noise keeps the long gradient free of bands.
	gl_FragData[0] = vec4(encoded(toneMapped(color)) + (noise - 0.5) / 255.0, 1.0);
}
)glsl";

} // namespace

std::string BackdropFragment()
{
	return std::string(BackdropHead) + FrameDeclarations + ToneCurve + PixelNoise + ShadowLookup + BackdropMain;
}

const char* const OcclusionFragment = R"glsl(//VTK::System::Dec
//VTK::Output::Dec
in vec2 texCoord;

uniform sampler2D uDepth;
uniform vec2 uTexel;       // size of a pixel, in parts of the picture
uniform vec2 uTangent;     // tangents of half the view's angles
uniform vec2 uNearFar;
uniform float uReach;      // cm

float depthAt(vec2 at)
{
	float z = textureLod(uDepth, at, 0.0).r * 2.0 - 1.0;
	return 2.0 * uNearFar.x * uNearFar.y / (uNearFar.y + uNearFar.x - z * (uNearFar.y - uNearFar.x));
}

vec3 pointAt(vec2 at)
{
	float depth = depthAt(at);
	return vec3((at * 2.0 - 1.0) * uTangent * depth, depth);
}

void main()
{
	float raw = textureLod(uDepth, texCoord, 0.0).r;
	if (raw >= 1.0)
	{
		gl_FragData[0] = vec4(1.0, 1.0, 1.0, 1.0);
		return;
	}
	vec3 here = pointAt(texCoord);
	// The nearer neighbour on each axis belongs to the same surface.
	vec3 left = here - pointAt(texCoord - vec2(uTexel.x, 0.0));
	vec3 right = pointAt(texCoord + vec2(uTexel.x, 0.0)) - here;
	vec3 down = here - pointAt(texCoord - vec2(0.0, uTexel.y));
	vec3 up = pointAt(texCoord + vec2(0.0, uTexel.y)) - here;
	vec3 alongX = abs(left.z) < abs(right.z) ? left : right;
	vec3 alongY = abs(down.z) < abs(up.z) ? down : up;
	vec3 normal = normalize(cross(alongX, alongY));
	normal = dot(normal, here) > 0.0 ? -normal : normal;

	vec2 pixel = floor(texCoord / uTexel);
	float rotation = fract(0.25 * mod(pixel.x, 4.0) + 0.0625 * mod(pixel.y, 4.0)) * 6.2831853;
	float start = fract(0.618034 * (mod(pixel.x, 4.0) * 4.0 + mod(pixel.y, 4.0)));
	vec2 reach = vec2(uReach) / (uTangent * here.z) * 0.5;
	reach *= min(1.0, 0.2 / max(reach.x, reach.y));
	float sum = 0.0;
	const int count = 14;
	for (int i = 0; i < count; ++i)
	{
		float part = (float(i) + start) / float(count);
		float turn = rotation + float(i) * 2.39996323;
		vec2 at = texCoord + vec2(cos(turn), sin(turn)) * reach * (part * part + 0.02);
		vec3 toward = pointAt(at) - here;
		float distance = length(toward);
		float rise = dot(toward, normal) / max(distance, 1e-4);
		float near = clamp(1.0 - distance / uReach, 0.0, 1.0);
		sum += max(rise - 0.06, 0.0) * near;
	}
	float open = clamp(1.0 - 3.2 * sum / float(count), 0.0, 1.0);
	gl_FragData[0] = vec4(open, open, open, 1.0);
}
)glsl";

// The noise repeats every four pixels: a box of that width removes it; other depths are left out to keep edges.
const char* const OcclusionBlurFragment = R"glsl(//VTK::System::Dec
//VTK::Output::Dec
in vec2 texCoord;

uniform sampler2D uDepth;
uniform sampler2D uNoisy;
uniform vec2 uTexel;
uniform vec2 uNearFar;
uniform float uReach;

float depthAt(vec2 at)
{
	float z = textureLod(uDepth, at, 0.0).r * 2.0 - 1.0;
	return 2.0 * uNearFar.x * uNearFar.y / (uNearFar.y + uNearFar.x - z * (uNearFar.y - uNearFar.x));
}

void main()
{
	float here = depthAt(texCoord);
	float sum = 0.0;
	float weight = 0.0;
	for (int y = -2; y < 2; ++y)
	{
		for (int x = -2; x < 2; ++x)
		{
			vec2 at = texCoord + (vec2(x, y) + 0.5) * uTexel;
			float part = max(1.0 - abs(depthAt(at) - here) / (0.25 * uReach), 0.001);
			sum += part * textureLod(uNoisy, at, 0.0).r;
			weight += part;
		}
	}
	float open = sum / weight;
	gl_FragData[0] = vec4(open, open, open, 1.0);
}
)glsl";

const char* const OutlineFragment = R"glsl(//VTK::System::Dec
//VTK::Output::Dec
in vec2 texCoord;

uniform sampler2D uDepth;
uniform vec2 uStep;   // the line's thickness, in parts of the picture
uniform vec3 uColor;  // as it is shown

void main()
{
	// 1.0 is what nothing covers.
	bool inside = textureLod(uDepth, texCoord, 0.0).r < 1.0;
	float covered = 0.0;
	const int Directions = 16;
	for (int i = 0; i < Directions; ++i)
	{
		float angle = 6.2831853 * float(i) / float(Directions);
		covered += textureLod(uDepth, texCoord + vec2(cos(angle), sin(angle)) * uStep, 0.0).r < 1.0 ? 1.0 : 0.0;
	}
	float line = inside ? 0.0 : smoothstep(0.0, 3.0, covered);
	gl_FragData[0] = vec4(uColor, line);
}
)glsl";

} // namespace Host::Shaders
