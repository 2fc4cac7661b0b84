// SPDX-License-Identifier: MIT
#include "Files/Build/BuildMaterials.h"

#include <map>

#include "Files/Build/Names.h"

namespace Zef::Peer
{

namespace
{

constexpr int Intensity = 0, AlphaMode = 0, Value = 1, RoughnessMapUsed = 3;

/** One channel of an image in red, green and blue alike. */
FTexture GreyOf(const FTexture& Image, int Channel)
{
	FTexture Grey = Image;
	const std::size_t Bytes = Image.Format == 0 ? 1 : 2;
	const std::size_t Pixel = 4 * Bytes, From = static_cast<std::size_t>(Channel) * Bytes;
	for (std::size_t At = 0; At + Pixel <= Grey.Pixels.size(); At += Pixel)
	{
		for (std::size_t B = 0; B < Bytes; ++B)
		{
			const std::uint8_t Byte = Image.Pixels[At + From + B];
			Grey.Pixels[At + B] = Grey.Pixels[At + Bytes + B] = Grey.Pixels[At + 2 * Bytes + B] = Byte;
			Grey.Pixels[At + 3 * Bytes + B] = 0xff;
		}
	}
	return Grey;
}

class FMaterialBuilder
{
public:
	FMaterialBuilder(const FModel& InModel, FSurfaceMesh& InMesh)
		: Model(InModel)
		, Mesh(InMesh)
	{
	}

	FMaterial Build(const FModelMaterial& From, int Key)
	{
		FMaterial Made;
		Made.Id = Key;
		Made.Name = CleanName(From.Name);
		if (Made.Name.empty())
		{
			Made.Name = "Material";
		}
		Made.MaterialKind = MaterialKindOf(From);

		FMaterialExpression Color = Mapped(From.ColorMap);
		Color.Vectors = {{0, From.Color}};
		Made.Expressions.emplace_back(MaterialChannel::BaseColor, Color);
		FMaterialExpression Normal = Mapped(From.NormalMap);
		if (Normal.TextureId >= 0)
		{
			Normal.Scalars = {{Intensity, From.NormalScale}};
			Made.Expressions.emplace_back(MaterialChannel::Normal, Normal);
		}
		FMaterialExpression Roughness = Mapped(From.RoughnessMap);
		Roughness.Scalars = {{Intensity, From.Roughness}, {Value, From.Roughness}};
		if (Roughness.TextureId >= 0)
		{
			Roughness.Scalars.emplace_back(RoughnessMapUsed, 1.0f);
		}
		Made.Expressions.emplace_back(MaterialChannel::Roughness, Roughness);
		FMaterialExpression Metallic = Mapped(From.MetallicMap);
		Metallic.Scalars = {{Intensity, From.Metallic}, {Value, From.Metallic}};
		Made.Expressions.emplace_back(MaterialChannel::Metallic, Metallic);
		FMaterialExpression Specular;
		Specular.Scalars = {{Intensity, 0.0f}, {Value, 0.5f}};
		Made.Expressions.emplace_back(MaterialChannel::Specular, Specular);
		if (From.Alpha != EModelAlpha::Opaque)
		{
			const bool bOwnMap = From.OpacityMap.Image >= 0;
			FMaterialExpression Opacity = Mapped(bOwnMap ? From.OpacityMap : From.ColorMap);
			const bool bAlpha = !bOwnMap || From.OpacityMap.Image == From.ColorMap.Image;
			Opacity.Scalars = {{AlphaMode, bAlpha ? 1.0f : 0.0f}, {Value, From.Color.W}};
			Made.Expressions.emplace_back(MaterialChannel::Opacity, Opacity);
			Made.bUseTransparency = true;
		}
		return Made;
	}

private:
	FMaterialExpression Mapped(const FModelMap& Map)
	{
		FMaterialExpression Expression;
		Expression.UVTransform = Map.UVTransform;
		if (Map.Image < 0 || static_cast<std::size_t>(Map.Image) >= Model.Images.size() ||
			Model.Images[static_cast<std::size_t>(Map.Image)].Format < 0)
		{
			return Expression;
		}
		const auto [At, bNew] =
			KeyOf.emplace(std::pair{Map.Image, Map.Channel}, static_cast<int>(Mesh.Textures.size()));
		if (bNew)
		{
			const FTexture& Image = Model.Images[static_cast<std::size_t>(Map.Image)];
			Mesh.Textures.emplace_back(At->second, Map.Channel < 0 ? Image : GreyOf(Image, Map.Channel));
		}
		Expression.TextureId = At->second;
		return Expression;
	}

	const FModel& Model;
	FSurfaceMesh& Mesh;
	std::map<std::pair<int, int>, int> KeyOf;
};

} // namespace

int MaterialKindOf(const FModelMaterial& Material)
{
	constexpr int Matte = 0, Metal = 2, Leather = 4, Silk = 5, Velvet = 6, Glass = 7, Fur = 8, Skin = 12, Knit = 14;
	const std::string Name = FoldName(Material.Name);
	for (const auto& [Word, Kind] : {std::pair{"skin", Skin}, std::pair{"silk", Silk}, std::pair{"leather", Leather},
			 std::pair{"velvet", Velvet}, std::pair{"fur", Fur}, std::pair{"glass", Glass}, std::pair{"knit", Knit}})
	{
		if (Name.find(Word) != std::string::npos)
		{
			return Kind;
		}
	}
	return Material.Metallic > 0.5f && Material.MetallicMap.Image < 0 ? Metal : Matte;
}

void BuildMaterials(FModel& Model, FSurfaceMesh& Mesh)
{
	FMaterialBuilder Builder(Model, Mesh);
	std::map<int, int> KeyOf;
	for (FSurface& Surface : Mesh.Surfaces)
	{
		for (FSection& Section : Surface.Sections)
		{
			const bool bKnown =
				Section.MaterialIndex >= 0 && static_cast<std::size_t>(Section.MaterialIndex) < Model.Materials.size();
			const int Number = bKnown ? Section.MaterialIndex : -1;
			const auto [At, bNew] = KeyOf.emplace(Number, static_cast<int>(Mesh.Materials.size()));
			if (bNew)
			{
				FModelMaterial Default;
				Default.Name = "Default";
				const FModelMaterial& From = bKnown ? Model.Materials[static_cast<std::size_t>(Number)] : Default;
				Mesh.Materials.emplace_back(At->second, Builder.Build(From, At->second));
			}
			Section.MaterialIndex = At->second;
		}
	}
}

} // namespace Zef::Peer
