// SPDX-License-Identifier: MIT
#include "Shaders.h"

namespace Host::Shaders
{

const char* const Noise = R"glsl(
vec3 hash3(vec3 cell)
{
	cell = fract(cell * vec3(0.1031, 0.1030, 0.0973));
	cell += dot(cell, cell.yxz + 33.33);
	return fract((cell.xxy + cell.yxx) * cell.zyx);
}

float valueNoise(vec3 at)
{
	vec3 cell = floor(at);
	vec3 f = fract(at);
	f = f * f * (3.0 - 2.0 * f);
	float n000 = hash3(cell).x;
	float n100 = hash3(cell + vec3(1.0, 0.0, 0.0)).x;
	float n010 = hash3(cell + vec3(0.0, 1.0, 0.0)).x;
	float n110 = hash3(cell + vec3(1.0, 1.0, 0.0)).x;
	float n001 = hash3(cell + vec3(0.0, 0.0, 1.0)).x;
	float n101 = hash3(cell + vec3(1.0, 0.0, 1.0)).x;
	float n011 = hash3(cell + vec3(0.0, 1.0, 1.0)).x;
	float n111 = hash3(cell + vec3(1.0, 1.0, 1.0)).x;
	return mix(mix(mix(n000, n100, f.x), mix(n010, n110, f.x), f.y), mix(mix(n001, n101, f.x), mix(n011, n111, f.x), f.y),
		f.z);
}
)glsl";

// Detail that a kind of surface has of itself, finer than any map: stitches, grain and strands. Each fades out where a
// pixel covers more than it can show.
const char* const SurfaceDetail = R"glsl(
const int PatternKnit = 1;
const int PatternGrain = 2;
const int PatternFibres = 3;

// Centimetres on the cloth, along the threads.
vec2 clothAt()
{
	return uCmPerUV > 0.0 ? vUV * uCmPerUV : vec2(vLocal.x + vLocal.y, -vLocal.z);
}

vec2 clothSpan(Frame frame)
{
	vec2 dx = uCmPerUV > 0.0 ? frame.uvDx * uCmPerUV : vec2(frame.localDx.x + frame.localDx.y, frame.localDx.z);
	vec2 dy = uCmPerUV > 0.0 ? frame.uvDy * uCmPerUV : vec2(frame.localDy.x + frame.localDy.y, frame.localDy.z);
	return max(abs(dx), abs(dy));
}

// Height of plain knitting: columns of V-shaped stitches, each leg a round strand.
float stitchHeight(vec2 at)
{
	float column = fract(at.x);
	float leg = abs(column - 0.5) * 2.0;
	float row = fract(at.y + 0.75 * leg);
	float strand = 1.0 - (2.0 * leg - 1.0) * (2.0 * leg - 1.0);
	float bulge = sqrt(max(strand, 0.0));
	float along = 0.35 + 0.65 * sin(Pi * row);
	return bulge * along;
}

void addKnit(inout Frame frame, inout Surface surface)
{
	vec2 stitch = uPattern.y * vec2(1.0, 0.82);
	vec2 at = clothAt() / stitch;
	vec2 span = clothSpan(frame) / stitch;
	float depth = uPattern.z;
	float seen = depth * (1.0 - smoothstep(0.1, 0.36, max(span.x, span.y)));
	// Taken over the width of the pixel, differences and mean are the pattern's without what is too fine to be seen.
	vec2 reach = max(vec2(0.04), 0.5 * span);
	float left = stitchHeight(at - vec2(reach.x, 0.0));
	float right = stitchHeight(at + vec2(reach.x, 0.0));
	float above = stitchHeight(at - vec2(0.0, reach.y));
	float below = stitchHeight(at + vec2(0.0, reach.y));
	float height = 0.25 * (left + right + above + below);
	float slopeX = (right - left) / (2.0 * reach.x);
	float slopeY = (below - above) / (2.0 * reach.y);
	vec2 slope = clamp(vec2(slopeX, slopeY), -2.5, 2.5) * 0.42 * seen;
	frame.normal = normalize(frame.normal - frame.tangent * slope.x - frame.bitangent * slope.y);
	// Far away the stitches only darken the cloth, by as much as they do in the mean.
	surface.cavity *= mix(mix(1.0, 0.82, depth), 0.35 + 0.75 * smoothstep(0.0, 0.75, height), seen);
}

void addGrain(inout Frame frame, inout Surface surface)
{
	float perCm = 1.0 / uPattern.y;
	vec3 at = vLocal * perCm;
	float span = perCm * max(length(frame.localDx), length(frame.localDy));
	float seen = uPattern.z * (1.0 - smoothstep(0.4, 1.2, span));
	if (seen <= 0.0)
	{
		return;
	}
	// Rounded plates between creases, from the distances to the two nearest of scattered points.
	vec3 cell = floor(at);
	float first = 9.0;
	float second = 9.0;
	vec3 nearest = vec3(0.0);
	for (int z = -1; z <= 1; ++z)
	{
		for (int y = -1; y <= 1; ++y)
		{
			for (int x = -1; x <= 1; ++x)
			{
				vec3 corner = cell + vec3(x, y, z);
				vec3 offset = corner + 0.15 + 0.7 * hash3(corner) - at;
				float distance = dot(offset, offset);
				if (distance < first)
				{
					second = first;
					first = distance;
					nearest = offset;
				}
				else
				{
					second = min(second, distance);
				}
			}
		}
	}
	float edge = sqrt(second) - sqrt(first);
	vec3 outward = -nearest - frame.smoothed * dot(-nearest, frame.smoothed);
	frame.normal = normalize(frame.normal + outward * seen * 0.55 * (1.0 - smoothstep(0.05, 0.5, edge)));
	surface.cavity *= mix(1.0, 0.62 + 0.38 * smoothstep(0.0, 0.22, edge), seen);
	surface.roughness = clamp(surface.roughness + 0.12 * seen * (1.0 - smoothstep(0.0, 0.3, edge)), 0.0, 1.0);
}

void addFibres(inout Frame frame, inout Surface surface)
{
	float depth = uPattern.z;
	vec2 at = clothAt();
	vec2 span = clothSpan(frame);
	// Strands lie along V, waving a little; two sizes of tuft.
	vec2 fineScale = vec2(1.0, 0.1) / uPattern.y;
	vec2 tuftScale = vec2(0.17, 0.045) / uPattern.y;
	float wave = valueNoise(vec3(at * 0.35, 3.0)) - 0.5;
	vec2 strand = vec2(at.x + 0.9 * wave, at.y);
	float fine = valueNoise(vec3(strand * fineScale, 0.5));
	float tuft = valueNoise(vec3(strand * tuftScale, 9.5));
	float fineSeen = depth * (1.0 - smoothstep(0.4, 1.3, span.x * fineScale.x));
	float tuftSeen = depth * (1.0 - smoothstep(0.4, 1.3, span.x * tuftScale.x));
	float slope = (valueNoise(vec3(strand * fineScale + vec2(0.35, 0.0), 0.5)) - fine) * 1.5;
	float tuftSlope = (valueNoise(vec3(strand * tuftScale + vec2(0.3, 0.0), 9.5)) - tuft) * 2.2;
	frame.normal = normalize(frame.normal - frame.tangent * (slope * fineSeen + tuftSlope * tuftSeen)
		+ frame.bitangent * 0.25 * depth);
	float shade = mix(0.5, 0.35 + 0.5 * fine + 0.35 * tuft, max(fineSeen, tuftSeen) * 0.9);
	surface.cavity *= mix(1.0, 0.55 + 0.75 * shade, depth);
	surface.baseColor *= mix(vec3(1.0), vec3(0.82, 0.80, 0.78) + 0.4 * tuft, tuftSeen * 0.6);
}

void addDetail(inout Frame frame, inout Surface surface)
{
	int kind = int(uPattern.x + 0.5);
	if (uPattern.z <= 0.0)
	{
		return;
	}
	if (kind == PatternKnit)
	{
		addKnit(frame, surface);
	}
	else if (kind == PatternGrain)
	{
		addGrain(frame, surface);
	}
	else if (kind == PatternFibres)
	{
		addFibres(frame, surface);
	}
}
)glsl";

} // namespace Host::Shaders
