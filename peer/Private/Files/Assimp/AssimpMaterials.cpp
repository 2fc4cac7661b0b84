// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include <assimp/material.h>
#include <assimp/scene.h>

#include "Files/Assimp/AssimpParts.h"
#include "Files/Model/Readers.h"

namespace Zef::Peer
{

namespace
{

class FImageLoader
{
public:
	FImageLoader(const aiScene& InScene, const std::filesystem::path& File, FModel& InModel)
		: Scene(InScene)
		, Folder(File.parent_path())
		, Model(InModel)
	{
	}

	/** The map of a material, the first of the kinds that it has. */
	FModelMap Map(const aiMaterial& Material, std::initializer_list<aiTextureType> Kinds)
	{
		FModelMap Made;
		for (const aiTextureType Kind : Kinds)
		{
			aiString Name;
			if (Material.GetTexture(Kind, 0, &Name) == aiReturn_SUCCESS && Name.length > 0)
			{
				Made.Image = Image(Name.C_Str());
				aiUVTransform Placement;
				if (Material.Get(AI_MATKEY_UVTRANSFORM(Kind, 0), Placement) == aiReturn_SUCCESS)
				{
					Made.UVTransform.Translation = {Placement.mTranslation.x, Placement.mTranslation.y, 0};
					Made.UVTransform.Scale = {Placement.mScaling.x, Placement.mScaling.y, 1};
					Made.UVTransform.Rotation = AxisAngle({0, 0, 1}, -Placement.mRotation / DegreesToRadians);
				}
				return Made;
			}
		}
		return Made;
	}

private:
	int Image(const std::string& Name)
	{
		const auto [At, bNew] = Known.emplace(Name, static_cast<int>(Model.Images.size()));
		if (bNew)
		{
			FTexture& Texture = Model.Images.emplace_back();
			const std::string Reason = Read(Name, Texture);
			if (!Reason.empty())
			{
				Model.Warnings.push_back("the image " + Name + " is left out: " + Reason);
			}
		}
		return At->second;
	}

	std::string Read(const std::string& Name, FTexture& Texture) const
	{
		if (const aiTexture* Embedded = Scene.GetEmbeddedTexture(Name.c_str()))
		{
			return ReadEmbedded(*Embedded, Texture);
		}
		std::string Portable = Name;
		std::replace(Portable.begin(), Portable.end(), '\\', '/');
		const std::filesystem::path Named = Portable;
		// The path as stated mostly is one of the machine that wrote the file.
		for (const std::filesystem::path& Path : {Folder / Named, Folder / Named.filename(),
				 Folder / "textures" / Named.filename(), Folder / "Textures" / Named.filename()})
		{
			std::error_code Ignored;
			if (std::filesystem::is_regular_file(Path, Ignored))
			{
				std::ifstream Stream(Path, std::ios::binary);
				const std::string Bytes((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
				return DecodeImage(reinterpret_cast<const unsigned char*>(Bytes.data()), Bytes.size(), Texture);
			}
		}
		return "there is no such file.";
	}

	static std::string ReadEmbedded(const aiTexture& Embedded, FTexture& Texture)
	{
		if (Embedded.mHeight == 0)
		{
			return DecodeImage(reinterpret_cast<const unsigned char*>(Embedded.pcData), Embedded.mWidth, Texture);
		}
		Texture.Format = 0;
		Texture.Width = static_cast<std::int32_t>(Embedded.mWidth);
		Texture.Height = static_cast<std::int32_t>(Embedded.mHeight);
		for (std::size_t P = 0; P < std::size_t(Embedded.mWidth) * Embedded.mHeight; ++P)
		{
			const aiTexel& Texel = Embedded.pcData[P];
			Texture.Pixels.insert(Texture.Pixels.end(), {Texel.r, Texel.g, Texel.b, Texel.a});
		}
		return {};
	}

	const aiScene& Scene;
	std::filesystem::path Folder;
	FModel& Model;
	std::map<std::string, int> Known;
};

/** Roughness that shows a highlight as wide as a Phong exponent does; after Walter et al., "Microfacet Models" (2007).
 */
float RoughnessOfShininess(float Exponent)
{
	return std::pow(2.0f / (std::max(Exponent, 0.0f) + 2.0f), 0.25f);
}

} // namespace

void ReadAssimpMaterials(const aiScene& Scene, const std::filesystem::path& File, FModel& Model)
{
	FImageLoader Images(Scene, File, Model);
	for (unsigned M = 0; M < Scene.mNumMaterials; ++M)
	{
		const aiMaterial& Material = *Scene.mMaterials[M];
		FModelMaterial& Made = Model.Materials.emplace_back();
		Made.Name = Material.GetName().C_Str();
		aiColor4D Color(1, 1, 1, 1);
		if (Material.Get(AI_MATKEY_BASE_COLOR, Color) != aiReturn_SUCCESS)
		{
			Material.Get(AI_MATKEY_COLOR_DIFFUSE, Color);
		}
		float Opacity = 1;
		Material.Get(AI_MATKEY_OPACITY, Opacity);
		// Some writers state an opacity of 0 and mean none at all.
		Opacity = Opacity > 0 && Opacity < 1 ? Opacity : 1;
		Made.Color = {Color.r, Color.g, Color.b, Opacity};
		Made.Roughness = 0.8f;
		float Shininess = 0;
		if (Material.Get(AI_MATKEY_ROUGHNESS_FACTOR, Made.Roughness) != aiReturn_SUCCESS &&
			Material.Get(AI_MATKEY_SHININESS, Shininess) == aiReturn_SUCCESS && Shininess > 0)
		{
			Made.Roughness = RoughnessOfShininess(Shininess);
		}
		Material.Get(AI_MATKEY_METALLIC_FACTOR, Made.Metallic);
		Made.ColorMap = Images.Map(Material, {aiTextureType_BASE_COLOR, aiTextureType_DIFFUSE});
		Made.NormalMap = Images.Map(Material, {aiTextureType_NORMALS, aiTextureType_NORMAL_CAMERA});
		Made.RoughnessMap = Images.Map(Material, {aiTextureType_DIFFUSE_ROUGHNESS});
		Made.RoughnessMap.Channel = 0;
		Made.MetallicMap = Images.Map(Material, {aiTextureType_METALNESS});
		Made.MetallicMap.Channel = 0;
		Made.OpacityMap = Images.Map(Material, {aiTextureType_OPACITY});
		Made.Roughness = Made.RoughnessMap.Image >= 0 ? 1 : Made.Roughness;
		Made.Metallic = Made.MetallicMap.Image >= 0 ? 1 : Made.Metallic;
		Made.Alpha = Opacity < 1 || Made.OpacityMap.Image >= 0 ? EModelAlpha::Blend : EModelAlpha::Opaque;
	}
}

} // namespace Zef::Peer
