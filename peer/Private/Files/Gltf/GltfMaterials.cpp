// SPDX-License-Identifier: MIT
#include "Files/Gltf/GltfLibrary.h"

#include "Files/Gltf/GltfParts.h"

namespace Zef::Peer
{

namespace
{

float NumberAt(const tinygltf::Value& Object, const char* Key, std::size_t Index, float Otherwise)
{
	const tinygltf::Value& Found = Object.Get(Key);
	if (!Found.IsArray() || Found.ArrayLen() <= Index || !Found.Get(static_cast<int>(Index)).IsNumber())
	{
		return Otherwise;
	}
	return static_cast<float>(Found.Get(static_cast<int>(Index)).GetNumberAsDouble());
}

/** The extension turns clockwise where the records turn from U towards V. */
FTransform PlacementOf(const tinygltf::ExtensionMap& Extensions)
{
	FTransform Placement;
	const auto Found = Extensions.find("KHR_texture_transform");
	if (Found == Extensions.end() || !Found->second.IsObject())
	{
		return Placement;
	}
	const tinygltf::Value& Object = Found->second;
	Placement.Translation = {NumberAt(Object, "offset", 0, 0), NumberAt(Object, "offset", 1, 0), 0};
	Placement.Scale = {NumberAt(Object, "scale", 0, 1), NumberAt(Object, "scale", 1, 1), 1};
	if (Object.Has("rotation") && Object.Get("rotation").IsNumber())
	{
		const auto Radians = static_cast<float>(Object.Get("rotation").GetNumberAsDouble());
		Placement.Rotation = AxisAngle({0, 0, 1}, -Radians / DegreesToRadians);
	}
	return Placement;
}

template <class TInfo>
FModelMap MapOf(const tinygltf::Model& File, const TInfo& Info, int Channel)
{
	FModelMap Map;
	if (Info.index >= 0 && static_cast<std::size_t>(Info.index) < File.textures.size())
	{
		Map.Image = File.textures[static_cast<std::size_t>(Info.index)].source;
		Map.Channel = Channel;
		Map.UVTransform = PlacementOf(Info.extensions);
	}
	return Map;
}

} // namespace

void ReadGltfMaterials(const tinygltf::Model& File, FModel& Model)
{
	constexpr int Green = 1, Blue = 2, All = -1;
	for (const tinygltf::Material& Material : File.materials)
	{
		FModelMaterial& Made = Model.Materials.emplace_back();
		const tinygltf::PbrMetallicRoughness& Pbr = Material.pbrMetallicRoughness;
		Made.Name = Material.name;
		if (Pbr.baseColorFactor.size() == 4)
		{
			Made.Color = {static_cast<float>(Pbr.baseColorFactor[0]), static_cast<float>(Pbr.baseColorFactor[1]),
				static_cast<float>(Pbr.baseColorFactor[2]), static_cast<float>(Pbr.baseColorFactor[3])};
		}
		Made.NormalScale = static_cast<float>(Material.normalTexture.scale);
		Made.Roughness = static_cast<float>(Pbr.roughnessFactor);
		Made.Metallic = static_cast<float>(Pbr.metallicFactor);
		Made.Alpha = Material.alphaMode == "BLEND"	? EModelAlpha::Blend
					 : Material.alphaMode == "MASK" ? EModelAlpha::Mask
													: EModelAlpha::Opaque;
		Made.ColorMap = MapOf(File, Pbr.baseColorTexture, All);
		Made.NormalMap = MapOf(File, Material.normalTexture, All);
		Made.RoughnessMap = MapOf(File, Pbr.metallicRoughnessTexture, Green);
		Made.MetallicMap = MapOf(File, Pbr.metallicRoughnessTexture, Blue);
		if (Pbr.baseColorTexture.texCoord != Pbr.metallicRoughnessTexture.texCoord && Made.ColorMap.Image >= 0 &&
			Made.RoughnessMap.Image >= 0)
		{
			Model.Warnings.push_back("material \"" + Made.Name +
									 "\" places its maps with several sets of texture coordinates; that of the colour "
									 "map serves for all.");
		}
	}
}

} // namespace Zef::Peer
