// SPDX-License-Identifier: MIT
#include "Host/MaterialLook.h"

#include <array>
#include <utility>

namespace Host
{
namespace
{

FMaterialLook Matte()
{
	FMaterialLook Look;
	Look.Sheen = 0.25f;
	Look.SheenRoughness = 0.7f;
	Look.DiffuseRoughness = 0.8f;
	Look.SpecularScale = 0.35f;
	Look.Translucency = 0.10f;
	return Look;
}

FMaterialLook Shiny()
{
	FMaterialLook Look;
	Look.Clearcoat = 0.8f;
	Look.ClearcoatRoughness = 0.12f;
	Look.Anisotropy = 0.25f;
	Look.SpecularScale = 1.6f;
	return Look;
}

FMaterialLook Metal()
{
	FMaterialLook Look;
	Look.Anisotropy = 0.45f;
	Look.MetallicFloor = 0.65f;
	return Look;
}

FMaterialLook Plastic()
{
	FMaterialLook Look;
	Look.Clearcoat = 0.55f;
	Look.ClearcoatRoughness = 0.25f;
	Look.Subsurface = 0.12f;
	Look.SubsurfaceColor = {0.9f, 0.9f, 0.9f};
	return Look;
}

FMaterialLook Leather()
{
	FMaterialLook Look;
	Look.Grain = 1.0f;
	Look.Clearcoat = 0.25f;
	Look.ClearcoatRoughness = 0.4f;
	Look.SpecularScale = 1.2f;
	return Look;
}

FMaterialLook Silk()
{
	FMaterialLook Look;
	Look.Anisotropy = 0.75f;
	Look.Sheen = 0.45f;
	Look.SheenRoughness = 0.3f;
	Look.SheenTint = 0.75f;
	Look.SpecularScale = 2.2f;
	Look.Translucency = 0.15f;
	return Look;
}

FMaterialLook Velvet()
{
	FMaterialLook Look;
	Look.Sheen = 1.0f;
	Look.SheenRoughness = 0.38f;
	Look.SheenTint = 0.7f;
	Look.DiffuseRoughness = 0.5f;
	Look.SpecularScale = 0.1f;
	return Look;
}

FMaterialLook GlassGem()
{
	FMaterialLook Look;
	Look.Transmission = 1.0f;
	Look.Clearcoat = 0.6f;
	Look.ClearcoatRoughness = 0.03f;
	return Look;
}

FMaterialLook Fur()
{
	FMaterialLook Look;
	Look.Fur = 1.0f;
	Look.Sheen = 0.8f;
	Look.SheenRoughness = 0.55f;
	Look.SheenTint = 0.6f;
	Look.DiffuseRoughness = 0.5f;
	Look.SpecularScale = 0.4f;
	Look.Subsurface = 0.15f;
	Look.SubsurfaceColor = {1.0f, 0.85f, 0.7f};
	return Look;
}

FMaterialLook Light()
{
	FMaterialLook Look;
	Look.Emissive = 2.2f;
	return Look;
}

FMaterialLook Glitter()
{
	FMaterialLook Look;
	Look.Glitter = 1.0f;
	Look.Sheen = 0.15f;
	return Look;
}

FMaterialLook Skin()
{
	FMaterialLook Look;
	Look.Subsurface = 0.7f;
	Look.SubsurfaceColor = {1.0f, 0.32f, 0.18f};
	Look.Sheen = 0.12f;
	Look.SheenRoughness = 0.4f;
	Look.Clearcoat = 0.08f;
	Look.ClearcoatRoughness = 0.35f;
	return Look;
}

FMaterialLook Iridescence()
{
	FMaterialLook Look;
	Look.Iridescence = 1.0f;
	Look.Anisotropy = 0.3f;
	Look.Clearcoat = 0.3f;
	Look.ClearcoatRoughness = 0.15f;
	return Look;
}

FMaterialLook KnitWear()
{
	FMaterialLook Look;
	Look.Knit = 1.0f;
	Look.Sheen = 0.5f;
	Look.SheenRoughness = 0.6f;
	Look.DiffuseRoughness = 0.6f;
	Look.SpecularScale = 0.3f;
	return Look;
}

using FEntry = std::pair<std::string_view, FMaterialLook (*)()>;

constexpr std::array<FEntry, 14> Looks{FEntry{"Matte", Matte}, {"Shiny", Shiny}, {"Metal", Metal}, {"Plastic", Plastic},
	{"Leather", Leather}, {"Silk", Silk}, {"Velvet", Velvet}, {"GlassGem", GlassGem}, {"Fur", Fur}, {"Light", Light},
	{"Glitter", Glitter}, {"Skin", Skin}, {"Iridescence", Iridescence}, {"KnitWear", KnitWear}};

} // namespace

FMaterialLook LookOf(std::string_view Label)
{
	for (const FEntry& Entry : Looks)
	{
		if (Entry.first == Label)
		{
			return Entry.second();
		}
	}
	return FMaterialLook();
}

} // namespace Host
