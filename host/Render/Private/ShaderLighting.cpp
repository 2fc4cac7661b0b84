// SPDX-License-Identifier: MIT
#include "Shaders.h"

namespace Host::Shaders
{

// Sources of the formulas: microfacet model with the GGX distribution and Smith's visibility as in Walter et al. 2007
// and Heitz 2014; sheen after Estevez and Kulla 2017 (the "Charlie" distribution) with Neubelt's visibility; the fit of
// the directional albedo after Karis 2014; widening of lamps after Karis 2013.
const char* const Lighting = R"glsl(
float squared(float x)
{
	return x * x;
}

vec3 schlick(vec3 f0, float cosine)
{
	float k = pow(clamp(1.0 - cosine, 0.0, 1.0), 5.0);
	return f0 + (max(vec3(1.0), f0) - f0) * k;
}

float ggx(float nDotH, float tDotH, float bDotH, float alongT, float alongB)
{
	float a = alongT * alongB;
	vec3 v = vec3(alongB * tDotH, alongT * bDotH, a * nDotH);
	float w = a / max(dot(v, v), 1e-8);
	return a * w * w / Pi;
}

float smithVisibility(float nDotV, float nDotL, float alpha)
{
	float a2 = alpha * alpha;
	float v = nDotL * sqrt(nDotV * nDotV * (1.0 - a2) + a2);
	float l = nDotV * sqrt(nDotL * nDotL * (1.0 - a2) + a2);
	return 0.5 / max(v + l, 1e-5);
}

float charlie(float nDotH, float roughness)
{
	float inverse = 1.0 / max(roughness, 0.07);
	float sine = sqrt(max(1.0 - nDotH * nDotH, 0.0078125));
	return (2.0 + inverse) * pow(sine, inverse) / (2.0 * Pi);
}

// Share of light from all sides that the sheen returns: little head on, much at the rim.
float sheenAlbedo(float nDotV, float roughness)
{
	float rim = pow(1.0 - nDotV, mix(4.5, 1.6, roughness));
	return mix(0.02, 0.10, roughness) + mix(1.5, 0.75, roughness) * rim;
}

vec2 environmentAlbedo(float roughness, float nDotV)
{
	vec4 r = roughness * vec4(-1.0, -0.0275, -0.572, 0.022) + vec4(1.0, 0.0425, 1.04, -0.04);
	float a = min(r.x * r.x, exp2(-9.28 * nDotV)) * r.x + r.y;
	return vec2(-1.04, 1.04) * a + r.zw;
}

// Light on a matte surface from all around: sky above, floor below.
vec3 ambientAt(vec3 normal)
{
	float up = normal.z * 0.5 + 0.5;
	vec3 level = mix(uSky, uGround, 0.5) * 1.02;
	return up > 0.5 ? mix(level, uSky, squared(up * 2.0 - 1.0) * 0.5 + (up * 2.0 - 1.0) * 0.5)
		: mix(uGround, level, up * 2.0);
}

// What a mirror of that roughness shows: the room, and the lamps as soft rectangles.
vec3 environmentAt(vec3 direction, float roughness)
{
	float soft = mix(0.12, 1.0, roughness);
	vec3 room = mix(uGround * 1.1, uSky * 1.35, smoothstep(-soft, soft, direction.z));
	// A darker band at eye level gives smooth bodies their contours.
	room *= 1.0 - 0.45 * (1.0 - roughness) * exp(-squared((direction.z - 0.02) / 0.22));
	vec3 lamps = vec3(0.0);
	float share = 1.0 - smoothstep(0.2, 0.55, roughness);
	if (share > 0.0)
	{
		float edge = 0.04 + 0.55 * roughness;
		for (int i = 0; i < LightCount; ++i)
		{
			vec3 towards = uLightTowards[i];
			float facing = dot(direction, towards);
			vec3 across = normalize(cross(vec3(0.0, 0.0, 1.0), towards) + vec3(1e-5, 0.0, 0.0));
			vec3 upright = cross(towards, across);
			vec2 at = abs(vec2(dot(direction, across), dot(direction, upright))) / max(facing, 1e-3);
			vec2 size = uLightSize[i] * vec2(0.85, 1.25);
			vec2 inside = 1.0 - smoothstep(size - edge * size, size + edge, at);
			lamps += uLightColor[i] * inside.x * inside.y * step(0.0, facing) * 1.15;
		}
	}
	return room + lamps * share;
}

// Share of each colour that the two faces of the film send back in step; one colour after the other is reinforced as the
// light falls in flatter.
vec3 thinFilm(float cosine)
{
	float inside = sqrt(1.0 - (1.0 - cosine * cosine) / squared(max(uFilm.z, 1.0)));
	vec3 phase = 2.0 * uFilm.z * inside * uFilm.y / vec3(650.0, 545.0, 440.0);
	return 0.5 + 0.5 * cos(2.0 * Pi * phase + Pi);
}

// Flashes of small mirrors that lean at random, for light from `towards`.
vec3 glitterOf(Frame frame, vec3 towards)
{
	vec3 flashes = vec3(0.0);
	float footprint = max(length(frame.localDx), length(frame.localDy));
	for (int layer = 0; layer < 2; ++layer)
	{
		float size = uGlitter.y * (layer == 0 ? 1.0 : 2.6);
		// Steps of two keep the mirrors in place while the view moves little.
		size *= exp2(max(ceil(log2(footprint * 1.6 / size)), 0.0));
		vec3 cell = floor(vLocal / size);
		vec3 random = hash3(cell + float(layer) * 37.0);
		vec3 other = hash3(cell + 11.0);
		vec3 tilt = normalize(frame.smoothed + 1.5 * uGlitter.w * (random * 2.0 - 1.0));
		float aligned = max(dot(tilt, normalize(towards + frame.view)), 0.0) * step(1.0 - uGlitter.x, other.x);
		flashes += (0.55 + 0.9 * other) * smoothstep(0.955, 0.998, aligned) * (layer == 0 ? 2.2 : 3.2);
	}
	return flashes * uGlitter.z;
}

vec4 shade(Frame frame, Surface surface)
{
	vec3 N = frame.normal;
	vec3 V = frame.view;
	float nDotV = max(dot(N, V), 1e-3);
	float roughness = clamp(surface.roughness, 0.0, 1.0);
	float alpha = max(roughness * roughness, 0.0025);
	float transmission = uClear.x;
	float irised = uFilm.x;
	float scatter = uSubsurface.w;
	vec3 diffuseColor = surface.baseColor * (1.0 - surface.metallic) * (1.0 - transmission) * (1.0 - 0.55 * irised);
	vec3 f0 = mix(vec3(0.08 * surface.specular), surface.baseColor, surface.metallic);
	// Threads that lie side by side mirror together, as silk's do.
	f0 = mix(f0 * (1.0 + 3.0 * abs(uCoat.z)), f0, surface.metallic);
	if (irised > 0.0)
	{
		vec3 film = thinFilm(nDotV);
		f0 = mix(f0, film * mix(vec3(0.75), surface.baseColor, 0.35), irised * 0.85);
		diffuseColor *= mix(vec3(1.0), 0.45 + film, irised * 0.6);
	}
	float sheen = max(uSheen.r, max(uSheen.g, uSheen.b));
	// Fibres that stand up catch light even in dark cloth: the tint is as much the hue as the colour.
	float peak = max(surface.baseColor.r, max(surface.baseColor.g, surface.baseColor.b));
	vec3 tint = mix(surface.baseColor, surface.baseColor / max(peak, 0.02) * sqrt(peak), 0.5);
	vec3 sheenColor = uSheen.rgb * (uSheenTinted == 1 ? tint : vec3(1.0)) * (1.0 - surface.metallic);
	// And they swallow what falls in between: a pile is dark where it is looked into.
	float pile = min(sheen, 1.0);
	float sheenShare = (1.0 - 0.4 * min(pile * sheenAlbedo(nDotV, uSheen.w), 1.0)) * (1.0 - 0.5 * pile * pile * nDotV * nDotV);
	float chalk = min(pile * 1.5, 0.7);

	// Tangents follow the bent normal; the roughness differs along and across them.
	vec3 T = normalize(frame.tangent - N * dot(N, frame.tangent));
	vec3 B = cross(N, T);
	float turn = uCoat.w * 2.0 * Pi;
	T = T * cos(turn) + B * sin(turn);
	B = cross(N, T);
	float anisotropy = uCoat.z;

	float noise = pixelNoise(gl_FragCoord.xy);
	float shadow = shadowOf(frame.position, frame.smoothed, noise);
	float open = uHasOcclusion > 0.5 && uBlend != BlendTranslucent
		? texture(uOcclusion, gl_FragCoord.xy * uPixelSize).r : 1.0;
	float cavity = surface.cavity;

	vec3 diffuse = vec3(0.0);
	vec3 specular = vec3(0.0);
	for (int i = 0; i < LightCount; ++i)
	{
		vec3 L = uLightTowards[i];
		float lit = i == 0 ? shadow : mix(0.5, 1.0, open);
		vec3 light = uLightColor[i] * lit;
		if (max(light.r, max(light.g, light.b)) <= 0.0)
		{
			continue;
		}
		float raw = dot(N, L);
		float wrap = 0.3 * uLightSize[i];  // a large lamp reaches past the edge of the lit half
		float nDotL = clamp((raw + wrap) / (1.0 + wrap), 0.0, 1.0);
		vec3 H = normalize(L + V);
		float nDotH = clamp(dot(N, H), 0.0, 1.0);
		float vDotH = clamp(dot(V, H), 0.0, 1.0);

		// A chalky surface returns light towards its source and so looks flatter.
		float flat_ = mix(nDotL, pow(nDotL, 0.62) * 0.86, chalk);
		vec3 body = vec3(flat_);
		if (scatter > 0.0)
		{
			vec3 reach = uSubsurface.rgb * 0.4;
			vec3 soft = clamp((vec3(raw) + reach) / (1.0 + reach), 0.0, 1.0);
			body = mix(body, soft * soft * 1.05, scatter);
		}
		vec3 through = scatter * uSubsurface.rgb * clamp(-raw, 0.0, 1.0) * 0.4;
		diffuse += light * (body + through) / Pi;

		if (raw > -wrap)
		{
			// The lamp's size blurs the highlight and, by the same factor, dims it.
			float wide = clamp(alpha + uLightSize[i] * 0.35, 0.0, 1.0);
			float dim = squared(alpha / wide);
			dim = mix(dim, 1.0, smoothstep(0.0, 0.5, alpha));
			float alongT = max(wide * (1.0 + anisotropy * 0.85), 0.01);
			float alongB = max(wide * (1.0 - anisotropy * 0.85), 0.01);
			float share = smoothstep(0.2, 0.55, roughness);  // smoother than that, the lamp itself is mirrored
			share = max(share, abs(anisotropy) * 0.8);
			float lobe = ggx(nDotH, dot(T, H), dot(B, H), alongT, alongB) * smithVisibility(nDotV, max(nDotL, 1e-3), wide);
			specular += light * nDotL * schlick(f0, vDotH) * lobe * dim * share;
			if (sheen > 0.0)
			{
				float fibres = charlie(nDotH, uSheen.w) / (4.0 * (nDotL + nDotV - nDotL * nDotV) + 1e-4);
				specular += light * nDotL * sheenColor * fibres;
			}
			if (uGlitter.x > 0.0)
			{
				specular += light * glitterOf(frame, L) * smoothstep(-0.1, 0.3, raw)
					* mix(vec3(1.0), surface.baseColor + 0.25, 0.5);
			}
		}
	}

	vec3 around = ambientAt(N);
	vec3 skyLight = around;
	if (scatter > 0.0)
	{
		skyLight = mix(around, ambientAt(normalize(mix(N, V, 0.4))) * mix(vec3(1.0), uSubsurface.rgb, 0.08), scatter);
	}
	// Between bright walls light bounces on: dark corners of bright things are less dark and take on their colour.
	vec3 openColor = vec3(open);
	openColor = max(openColor, openColor * (1.0 + (1.0 - openColor) * (0.2 + 0.8 * surface.baseColor)));
	diffuse += skyLight * openColor;
	diffuse *= diffuseColor * cavity * sheenShare;

	float glossOpen = clamp(pow(nDotV + open, exp2(-16.0 * roughness - 1.0)) - 1.0 + open, 0.0, 1.0);
	float horizon = clamp(1.0 + dot(reflect(-V, N), frame.smoothed), 0.0, 1.0);
	glossOpen *= horizon * horizon * mix(0.6, 1.0, shadow);
	vec3 bent = normalize(mix(N, normalize(cross(anisotropy >= 0.0 ? B : T, cross(V, anisotropy >= 0.0 ? B : T))),
		abs(anisotropy) * 0.45 * clamp(5.0 * roughness, 0.0, 1.0)) + 1e-5);
	vec2 albedo = environmentAlbedo(roughness, nDotV);
	vec3 mirrored = environmentAt(reflect(-V, bent), roughness);
	vec3 gloss = mirrored * (f0 * albedo.x + vec3(albedo.y) * clamp(f0 * 25.0, 0.0, 1.0)) * glossOpen;
	specular += gloss * cavity;
	specular += around * open * sheenColor * sheenAlbedo(nDotV, uSheen.w) * cavity;
	if (uGlitter.x > 0.0)
	{
		specular += 0.35 * glitterOf(frame, reflect(-V, frame.smoothed));
	}

	vec3 color = diffuse;
	if (transmission > 0.0)
	{
		// A cut body: light enters, is bent a little differently for each colour and is thrown back by far facets.
		vec3 inside = vec3(0.0);
		vec3 facet = normalize(N + 0.5 * sin(N.yzx * 7.0 + vec3(0.0, 2.0, 4.0)) * cos(N.zxy * 5.0));
		for (int i = 0; i < 3; ++i)
		{
			vec3 in_ = refract(-V, N, 1.0 / max(uClear.y + 0.04 * float(i - 1), 1.0));
			vec3 back = reflect(in_, facet);
			float seen = dot(environmentAt(in_, roughness), vec3(0.34)) * 0.75
				+ dot(environmentAt(normalize(back), roughness), vec3(0.34)) * 0.55;
			inside[i] = seen;
		}
		color += transmission * inside * mix(vec3(1.0), surface.baseColor, 0.9) * mix(0.55, 1.0, open)
			* (1.0 - surface.metallic);
	}

	if (uCoat.x > 0.0)
	{
		float coatAlpha = max(squared(uCoat.y), 0.0025);
		float nDotVc = max(dot(frame.smoothed, V), 1e-3);
		vec3 coatNormal = normalize(mix(frame.smoothed, N, 0.5));
		float f = uCoat.x * schlick(vec3(0.04), nDotVc).r;
		color *= 1.0 - f;
		specular *= 1.0 - f;
		specular += f * environmentAt(reflect(-V, coatNormal), uCoat.y) * mix(0.4, 1.0, shadow) * open;
		for (int i = 0; i < LightCount; ++i)
		{
			vec3 H = normalize(uLightTowards[i] + V);
			float wide = clamp(coatAlpha + uLightSize[i] * 0.35, 0.0, 1.0);
			float nDotL = max(dot(coatNormal, uLightTowards[i]), 0.0);
			float lobe = ggx(clamp(dot(coatNormal, H), 0.0, 1.0), 0.0, 0.0, wide, wide)
				* smithVisibility(nDotVc, max(nDotL, 1e-3), wide) * squared(coatAlpha / wide);
			specular += uLightColor[i] * (i == 0 ? shadow : 1.0) * nDotL * uCoat.x * 0.04 * min(lobe, 8.0)
				* smoothstep(0.2, 0.55, uCoat.y);
		}
	}

	if (uFilm.w > 0.0)
	{
		color = color * 0.3 + surface.baseColor * uFilm.w * mix(0.35, 1.0, nDotV * nDotV);
	}

	// A highlight lies on the surface whether or not the body lets light through: it raises the opacity by its share.
	float body = surface.opacity * (1.0 - 0.55 * transmission);
	float bright = clamp(max(specular.r, max(specular.g, specular.b)), 0.0, 1.0);
	float alphaOut = uBlend == BlendTranslucent ? 1.0 - (1.0 - body) * (1.0 - bright * smoothstep(0.0, 0.05, surface.opacity))
		: 1.0 - 0.5 * uGlow * clamp(uFilm.w * 0.6, 0.0, 1.0);
	vec3 colorOut = uBlend == BlendTranslucent ? (color * body + specular) / max(alphaOut, 1e-3) : color + specular;
	return vec4(colorOut, alphaOut);
}
)glsl";

} // namespace Host::Shaders
