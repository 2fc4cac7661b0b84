// SPDX-License-Identifier: MIT
#include "Describe.h"

#include <algorithm>

#include <fmt/format.h>

using namespace Zef;
using namespace Zef::Peer;

namespace
{

const char* KindName(std::int32_t Kind)
{
	static constexpr const char* Names[] = {"Matte", "Shiny", "Metal", "Plastic", "Leather", "Silk", "Velvet",
		"GlassGem", "Fur", "Light", "Glitter", "GlassGem", "Skin", "Iridescence", "KnitWear"};
	return Kind >= 0 && Kind < static_cast<std::int32_t>(std::size(Names)) ? Names[Kind] : "none";
}

void PrintSurface(const FSurface& Surface)
{
	std::size_t Triangles = 0;
	std::string Materials;
	for (const FSection& Section : Surface.Sections)
	{
		Triangles += Section.Indices.size() / 3;
		Materials += fmt::format("{}{}", Materials.empty() ? "" : ",", Section.MaterialIndex);
	}
	fmt::print("    {:<24} {:>8} vertices {:>8} triangles   materials {}{}\n", Surface.Name, Surface.Positions.size(),
		Triangles, Materials, Surface.SurfaceMode == 1 ? "   translucent" : "");
}

void PrintInfluences(const FInfluences& Influences)
{
	std::uint32_t Most = 0;
	for (std::size_t V = 0; V < Influences.VertexCount(); ++V)
	{
		Most = std::max(Most, Influences.FirstWeight[V + 1] - Influences.FirstWeight[V]);
	}
	fmt::print("    at most {} influences on a vertex\n", Most);
}

void PrintTexture(std::int32_t Key, const FTexture& Texture)
{
	if (Texture.Format < 0)
	{
		fmt::print("    texture {:>3}  no image\n", Key);
		return;
	}
	fmt::print(
		"    texture {:>3}  {} x {}, {} bits\n", Key, Texture.Width, Texture.Height, Texture.Format == 0 ? 8 : 16);
}

} // namespace

void PrintObject(const FProjectObject& Object)
{
	const FSurfaceMesh& Mesh = Object.Mesh;
	const FObjectCounts Counts = CountObject(Mesh);
	fmt::print("{} -- {}\n", ObjectTypeName(Object.Type), Object.Source);
	fmt::print("  {} surfaces, {} vertices, {} triangles\n", Mesh.Surfaces.size(), Counts.Vertices, Counts.Triangles);
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		PrintSurface(Surface);
	}
	fmt::print("  {} joints\n", Mesh.Joints.size());
	if (Mesh.VertexInfluences.VertexCount() > 0)
	{
		PrintInfluences(Mesh.VertexInfluences);
	}
	fmt::print("  {} materials\n", Mesh.Materials.size());
	for (const auto& [Key, Material] : Mesh.Materials)
	{
		fmt::print("    {:>3}  {:<24} {:<12}{}{}\n", Key, Material.Name, KindName(Material.MaterialKind),
			Material.bUseTransparency ? "  transparency" : "", Material.bSubstance ? "  substance" : "");
	}
	fmt::print(
		"  {} textures, {:.1f} MiB\n", Mesh.Textures.size(), static_cast<double>(Counts.TextureBytes) / (1 << 20));
	for (const auto& [Key, Texture] : Mesh.Textures)
	{
		PrintTexture(Key, Texture);
	}
	fmt::print("  joint animation: {} frames; vertex animation: {}\n", Object.JointSequence.Frames.size(),
		Object.HasMeshSequence() ? "yes" : "no");
}
