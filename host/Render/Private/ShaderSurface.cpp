// SPDX-License-Identifier: MIT
#include "Shaders.h"

namespace Host::Shaders
{

const char* const SurfaceVertex = R"glsl(//VTK::System::Dec
in vec4 vertexMC;
in vec3 normalLocal;
in vec4 tangentLocal;
in vec2 uvLocal;

uniform mat4 uModel;
uniform mat3 uNormalMatrix;
uniform mat4 uViewProjection;

out vec3 vLocal;
out vec3 vPosition;
out vec3 vNormal;
out vec4 vTangent;
out vec2 vUV;

void main()
{
	vec4 position = uModel * vec4(vertexMC.xyz, 1.0);
	vLocal = vertexMC.xyz;
	vPosition = position.xyz;
	vNormal = uNormalMatrix * normalLocal;
	vTangent = vec4(mat3(uModel) * tangentLocal.xyz, tangentLocal.w);
	vUV = uvLocal;
	gl_Position = uViewProjection * position;
}
)glsl";

const char* const SurfaceDeclarations = R"glsl(
in vec3 vLocal;
in vec3 vPosition;
in vec3 vNormal;
in vec4 vTangent;
in vec2 vUV;

const int ChannelBaseColor = 0;
const int ChannelNormal = 1;
const int ChannelRoughness = 2;
const int ChannelMetallic = 3;
const int ChannelSpecular = 4;
const int ChannelOpacity = 5;

const int BlendOpaque = 0;
const int BlendMasked = 1;
const int BlendTranslucent = 2;

uniform int uForLamp;         // 1 while the lamp's depths are drawn
uniform int uWhole;           // 1 while clear surfaces count as solid ones
uniform int uBlend;
uniform int uTwoSided;
uniform int uOpacityFromAlpha;
uniform int uBaseColorSRGB;
uniform float uClipValue;
uniform vec4 uBaseColor;
uniform vec4 uScalars;        // roughness, metallic, specular, opacity
uniform vec4 uMapMatrix[6];   // u' = x u + y v + offset.x, v' = z u + w v + offset.y
uniform vec4 uMapOffset[6];   // offset, intensity, 1 with a map
uniform sampler2D uBaseColorMap;
uniform sampler2D uNormalMap;
uniform sampler2D uRoughnessMap;
uniform sampler2D uMetallicMap;
uniform sampler2D uSpecularMap;
uniform sampler2D uOpacityMap;
uniform vec4 uSheen;          // colour, roughness
uniform int uSheenTinted;
uniform vec4 uCoat;           // clearcoat, its roughness, anisotropy, its direction in turns
uniform vec4 uFilm;           // iridescence, thickness in nanometres, index of refraction, emission
uniform vec4 uSubsurface;     // colour, strength
uniform vec4 uGlitter;        // share of cells, their size in cm, brightness, lean
uniform vec4 uPattern;        // kind, size of a repetition in cm, depth
uniform vec2 uClear;          // transmission, index of refraction
uniform float uCmPerUV;       // mean length of one unit of the texture coordinates; 0 without coordinates

struct Frame
{
	vec3 position;
	vec3 view;     // to the eye
	vec3 face;     // normal of the flat triangle, towards the eye
	vec3 smoothed; // interpolated normal, towards the eye
	vec3 normal;   // with everything that bends it
	vec3 tangent;
	vec3 bitangent;
	vec2 uvDx, uvDy;
	vec3 localDx, localDy;
};

struct Surface
{
	vec3 baseColor;
	float roughness;
	float metallic;
	float specular;
	float opacity;
	float cavity;   // light that reaches the bottom of fine detail
};

vec4 mapAt(sampler2D map, int channel, Frame frame)
{
	vec4 m = uMapMatrix[channel];
	vec2 at = vec2(dot(m.xy, vUV), dot(m.zw, vUV)) + uMapOffset[channel].xy;
	vec2 dx = vec2(dot(m.xy, frame.uvDx), dot(m.zw, frame.uvDx));
	vec2 dy = vec2(dot(m.xy, frame.uvDy), dot(m.zw, frame.uvDy));
	return textureGrad(map, at, dx, dy);
}

bool hasMap(int channel)
{
	return uMapOffset[channel].w > 0.5;
}

float dataAt(sampler2D map, int channel, float plain, Frame frame)
{
	if (!hasMap(channel))
	{
		return clamp(plain, 0.0, 1.0);
	}
	return clamp(mapAt(map, channel, frame).r * uMapOffset[channel].z, 0.0, 1.0);
}

float opacityAt(Frame frame)
{
	float opacity = uScalars.w;
	if (hasMap(ChannelOpacity))
	{
		vec4 texel = mapAt(uOpacityMap, ChannelOpacity, frame);
		opacity *= uOpacityFromAlpha == 1 ? texel.a : dot(texel.rgb, vec3(0.2126, 0.7152, 0.0722));
	}
	return clamp(opacity, 0.0, 1.0);
}
)glsl";

namespace
{

const char* const Head = R"glsl(//VTK::System::Dec
//VTK::DepthPeeling::Dec
//VTK::Output::Dec
)glsl";

const char* const FrameHere = R"glsl(
Frame frameHere()
{
	Frame frame;
	frame.position = vPosition;
	frame.view = normalize(uEye - vPosition);
	frame.uvDx = dFdx(vUV);
	frame.uvDy = dFdy(vUV);
	frame.localDx = dFdx(vLocal);
	frame.localDy = dFdy(vLocal);
	vec3 dx = dFdx(vPosition);
	vec3 dy = dFdy(vPosition);
	vec3 face = cross(dx, dy);
	float faceSize = length(face);
	face = faceSize > 1e-12 ? face / faceSize : frame.view;
	face = dot(face, frame.view) < 0.0 ? -face : face;
	float normalSize = length(vNormal);
	vec3 normal = normalSize > 1e-6 ? vNormal / normalSize : face;
	frame.face = face;
	frame.smoothed = dot(normal, face) < 0.0 ? -normal : normal;

	vec3 tangent = vTangent.xyz;
	tangent -= frame.smoothed * dot(frame.smoothed, tangent);
	float handed = vTangent.w < 0.0 ? -1.0 : 1.0;
	vec3 bitangent = cross(normal, tangent) * handed;
	if (dot(tangent, tangent) < 1e-8)
	{
		// No tangent came with the mesh: along growing U, and V, of the triangle itself.
		float area = frame.uvDx.x * frame.uvDy.y - frame.uvDx.y * frame.uvDy.x;
		float flip = area < 0.0 ? -1.0 : 1.0;
		tangent = (dx * frame.uvDy.y - dy * frame.uvDx.y) * flip;
		bitangent = (dy * frame.uvDx.x - dx * frame.uvDy.x) * flip;
		tangent -= frame.smoothed * dot(frame.smoothed, tangent);
		if (dot(tangent, tangent) < 1e-16)
		{
			vec3 helper = abs(frame.smoothed.z) < 0.9 ? vec3(0.0, 0.0, 1.0) : vec3(1.0, 0.0, 0.0);
			tangent = cross(helper, frame.smoothed);
			bitangent = cross(frame.smoothed, tangent);
		}
	}
	frame.tangent = normalize(tangent);
	bitangent -= frame.smoothed * dot(frame.smoothed, bitangent) + frame.tangent * dot(frame.tangent, bitangent);
	frame.bitangent = dot(bitangent, bitangent) > 1e-16 ? normalize(bitangent) : cross(frame.smoothed, frame.tangent);
	frame.normal = frame.smoothed;
	return frame;
}

// Where a surface is cut out, drawn from behind though one-sided, or too clear, there is none.
bool isAbsent(Frame frame, bool away, float opacity)
{
	return (uTwoSided == 0 && away && uForLamp == 0) || (uBlend == BlendMasked && opacity < uClipValue);
}
)glsl";

const char* const DepthMain = R"glsl(
void main()
{
	Frame frame = frameHere();
	float opacity = uBlend == BlendOpaque ? 1.0 : opacityAt(frame);
	if (isAbsent(frame, dot(vNormal, frame.face) < 0.0, opacity))
	{
		discard;
	}
	// What lets light through throws a thinner shadow: only so many points of it.
	if (uBlend == BlendTranslucent && uWhole == 0 && pixelNoise(gl_FragCoord.xy) > opacity)
	{
		discard;
	}
	gl_FragData[0] = vec4(1.0);
}
)glsl";

const char* const Main = R"glsl(
void main()
{
	//VTK::UniformFlow::Impl
	Frame frame = frameHere();
	bool away = dot(vNormal, frame.face) < 0.0;
	//VTK::Depth::Impl
	//VTK::DepthPeeling::PreColor
	Surface surface;
	surface.opacity = uBlend == BlendOpaque ? 1.0 : opacityAt(frame);
	if (isAbsent(frame, away, surface.opacity))
	{
		discard;
	}
	surface.opacity = uBlend == BlendTranslucent ? surface.opacity : 1.0;

	surface.baseColor = uBaseColor.rgb;
	if (hasMap(ChannelBaseColor))
	{
		vec3 texel = mapAt(uBaseColorMap, ChannelBaseColor, frame).rgb;
		texel = uBaseColorSRGB == 1 ? decoded(texel) : texel;
		surface.baseColor *= texel * uMapOffset[ChannelBaseColor].z;
	}
	surface.roughness = dataAt(uRoughnessMap, ChannelRoughness, uScalars.x, frame);
	surface.metallic = dataAt(uMetallicMap, ChannelMetallic, uScalars.y, frame);
	surface.specular = dataAt(uSpecularMap, ChannelSpecular, uScalars.z, frame);
	surface.cavity = 1.0;
	if (hasMap(ChannelNormal))
	{
		// Stored as numbers, whatever the texture's flag says. Green points down the picture, as V does.
		vec2 slope = mapAt(uNormalMap, ChannelNormal, frame).xy * 2.0 - 1.0;
		float depth = sqrt(max(1.0 - dot(slope, slope), 0.0));
		slope *= uMapOffset[ChannelNormal].z;
		float side = away ? -1.0 : 1.0;
		frame.normal = normalize(frame.tangent * slope.x * side + frame.bitangent * slope.y * side
			+ frame.smoothed * max(depth, 0.05));
	}
	addDetail(frame, surface);
	// A bent normal may not turn away from the eye: there is nothing to be seen behind the surface.
	float facing = dot(frame.normal, frame.view);
	frame.normal = normalize(frame.normal + frame.view * max(0.04 - facing, 0.0));

	vec4 shaded = shade(frame, surface);
	gl_FragData[0] = vec4(encoded(toneMapped(shaded.rgb)), shaded.a);
	//VTK::DepthPeeling::Impl
}
)glsl";

} // namespace

std::string SurfaceFragment()
{
	return std::string(Head) + FrameDeclarations + ToneCurve + PixelNoise + ShadowLookup + SurfaceDeclarations + Noise +
		   SurfaceDetail + Lighting + FrameHere + Main;
}

std::string SurfaceDepthFragment()
{
	return std::string(Head) + FrameDeclarations + PixelNoise + SurfaceDeclarations + FrameHere + DepthMain;
}

} // namespace Host::Shaders
