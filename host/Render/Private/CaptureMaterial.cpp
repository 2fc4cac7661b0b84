// SPDX-License-Identifier: MIT
#include "CaptureMaterial.h"

#include "Engine/Texture2D.h"
#include "Host/MaterialEvaluation.h"
#include "Materials/MaterialInterface.h"

#include <cstring>

namespace Host
{
namespace
{

FFloat3 ToFloats(const FLinearColor& Color)
{
	return {Color.R, Color.G, Color.B};
}

EBlend ToBlend(EBlendMode Mode)
{
	switch (Mode)
	{
		case BLEND_Opaque:
			return EBlend::Opaque;
		case BLEND_Masked:
			return EBlend::Masked;
		default:
			return EBlend::Translucent;
	}
}

ESurfacePattern ToPattern(EMaterialPattern Pattern)
{
	switch (Pattern)
	{
		case EMaterialPattern::Knit:
			return ESurfacePattern::Knit;
		case EMaterialPattern::Grain:
			return ESurfacePattern::Grain;
		case EMaterialPattern::Fibres:
			return ESurfacePattern::Fibres;
		case EMaterialPattern::None:
			break;
	}
	return ESurfacePattern::None;
}

FSurfaceLook ToLook(const FMaterialLook& From)
{
	FSurfaceLook Look;
	Look.SheenColor = ToFloats(From.Sheen.Color);
	Look.SheenRoughness = From.Sheen.Roughness;
	Look.bSheenTinted = From.Sheen.bTinted;
	Look.Clearcoat = From.Clearcoat.Amount;
	Look.ClearcoatRoughness = From.Clearcoat.Roughness;
	Look.Anisotropy = From.Anisotropy.Amount;
	Look.AnisotropyAngle = From.Anisotropy.Angle;
	Look.Iridescence = From.Iridescence.Amount;
	Look.FilmThickness = From.Iridescence.Thickness;
	Look.FilmIndex = From.Iridescence.IndexOfRefraction;
	Look.Subsurface = From.Subsurface.Amount;
	Look.SubsurfaceColor = ToFloats(From.Subsurface.Color);
	Look.Emission = From.Emission.Amount;
	Look.Transmission = From.Transmission.Amount;
	Look.TransmissionIndex = From.Transmission.IndexOfRefraction;
	Look.GlitterDensity = From.Glitter.Density;
	Look.GlitterScale = From.Glitter.Scale;
	Look.GlitterIntensity = From.Glitter.Intensity;
	Look.GlitterSpread = From.Glitter.Spread;
	Look.Pattern = ToPattern(From.Relief.Pattern);
	Look.PatternScale = From.Relief.Scale;
	Look.PatternDepth = From.Relief.Depth;
	return Look;
}

} // namespace

std::shared_ptr<const FTextureSnapshot> FTextureSnapshots::Find(const UTexture& Texture)
{
	const ETextureSourceFormat Format = Texture.Source.GetFormat();
	if (!Texture.Source.IsValid() || (Format != TSF_BGRA8 && Format != TSF_RGBA16))
	{
		return nullptr;
	}
	const FGuid& Id = Texture.Source.GetId();
	const uint32 Words[5] = {Id.A, Id.B, Id.C, Id.D, Texture.SRGB};
	const std::string Key(reinterpret_cast<const char*>(Words), sizeof Words);
	std::shared_ptr<const FTextureSnapshot>& Snapshot = Known[Key];
	if (!Snapshot)
	{
		// A copy of the source shares the block of pixels and keeps it when the texture goes.
		auto Source = std::make_shared<FTextureSource>(Texture.Source);
		auto Made = std::make_shared<FTextureSnapshot>();
		Made->Width = Source->GetSizeX();
		Made->Height = Source->GetSizeY();
		Made->Layout = Format == TSF_RGBA16 ? ETextureLayout::Rgba16 : ETextureLayout::Bgra8;
		Made->bSRGB = Texture.SRGB;
		Made->Pixels = std::shared_ptr<const uint8_t>(Source, Source->LockMipReadOnly(0));
		Snapshot = Made;
	}
	return Snapshot;
}

void FTextureSnapshots::DropUnused()
{
	for (auto It = Known.begin(); It != Known.end();)
	{
		It = It->second.use_count() == 1 ? Known.erase(It) : std::next(It);
	}
}

std::shared_ptr<const FMaterialSnapshot> SnapshotOf(const UMaterialInterface& Material, FTextureSnapshots& Textures)
{
	const FEvaluatedMaterial From = EvaluateMaterial(&Material);
	auto Snapshot = std::make_shared<FMaterialSnapshot>();
	Snapshot->BaseColor = {From.BaseColor.R, From.BaseColor.G, From.BaseColor.B, From.BaseColor.A};
	Snapshot->Roughness = From.Roughness;
	Snapshot->Metallic = From.Metallic;
	Snapshot->Specular = From.Specular;
	Snapshot->Opacity = From.Opacity;
	Snapshot->bOpacityFromAlpha = From.bOpacityAlphaMode;
	Snapshot->Blend = ToBlend(From.BlendMode);
	Snapshot->ClipValue = From.OpacityMaskClipValue;
	Snapshot->bTwoSided = From.bTwoSided;
	Snapshot->Look = ToLook(From.Look);
	constexpr std::pair<EMaterialChannel, ESurfaceChannel> Channels[] = {
		{EMaterialChannel::BaseColor, ESurfaceChannel::BaseColor}, {EMaterialChannel::Normal, ESurfaceChannel::Normal},
		{EMaterialChannel::Roughness, ESurfaceChannel::Roughness},
		{EMaterialChannel::Metallic, ESurfaceChannel::Metallic},
		{EMaterialChannel::Specular, ESurfaceChannel::Specular}, {EMaterialChannel::Opacity, ESurfaceChannel::Opacity}};
	for (const auto& [FromChannel, ToChannel] : Channels)
	{
		const FEvaluatedMap& Map = From.GetMap(FromChannel);
		if (!Map.IsUsed())
		{
			continue;
		}
		FChannelMap& To = Snapshot->Map(ToChannel);
		To.Texture = Textures.Find(*Map.Texture);
		To.AngleTurns = Map.Angle;
		To.UAmount = Map.UAmount;
		To.VAmount = Map.VAmount;
		To.UOffset = Map.UOffset;
		To.VOffset = Map.VOffset;
		To.Intensity = Map.Intensity;
	}
	return Snapshot;
}

} // namespace Host
