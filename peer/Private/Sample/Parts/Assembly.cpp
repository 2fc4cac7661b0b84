// SPDX-License-Identifier: MIT
#include "Sample/Parts/Assembly.h"

#include <algorithm>

namespace Zef::Peer
{

namespace
{

constexpr int Intensity = 0, AlphaMode = 0, Value = 1, RoughnessMapUsed = 3, ColorSlot = 0;

} // namespace

FLook::FLook(const std::string& Name, int Kind)
{
	Material.Name = Name;
	Material.MaterialKind = Kind;
	Color(1, 1, 1);
	Roughness(0.6f);
	Metallic(0);
	Specular(0.5f);
}

FMaterialExpression& FLook::Channel(int Key)
{
	for (auto& [Existing, Expression] : Material.Expressions)
	{
		if (Existing == Key)
		{
			return Expression;
		}
	}
	return Material.Expressions.emplace_back(Key, FMaterialExpression()).second;
}

void FLook::SetScalar(FMaterialExpression& Expression, int Slot, float Number)
{
	for (auto& [Existing, Held] : Expression.Scalars)
	{
		if (Existing == Slot)
		{
			Held = Number;
			return;
		}
	}
	Expression.Scalars.emplace_back(Slot, Number);
	std::sort(Expression.Scalars.begin(), Expression.Scalars.end());
}

FLook& FLook::Color(float Red, float Green, float Blue)
{
	Channel(MaterialChannel::BaseColor).Vectors = {{ColorSlot, {Red, Green, Blue, 1}}};
	return *this;
}

FLook& FLook::ColorMap(int Texture)
{
	Channel(MaterialChannel::BaseColor).TextureId = Texture;
	return *this;
}

FLook& FLook::NormalMap(int Texture, float Strength)
{
	Channel(MaterialChannel::Normal).TextureId = Texture;
	SetScalar(Channel(MaterialChannel::Normal), Intensity, Strength);
	return *this;
}

FLook& FLook::Roughness(float Number)
{
	FMaterialExpression& Expression = Channel(MaterialChannel::Roughness);
	SetScalar(Expression, Intensity, 0);
	SetScalar(Expression, Value, Number);
	return *this;
}

FLook& FLook::RoughnessMap(int Texture, float Strength)
{
	FMaterialExpression& Expression = Channel(MaterialChannel::Roughness);
	Expression.TextureId = Texture;
	SetScalar(Expression, Intensity, Strength);
	SetScalar(Expression, RoughnessMapUsed, 1);
	return *this;
}

FLook& FLook::Metallic(float Number)
{
	SetScalar(Channel(MaterialChannel::Metallic), Intensity, 0);
	SetScalar(Channel(MaterialChannel::Metallic), Value, Number);
	return *this;
}

FLook& FLook::MetallicMap(int Texture, float Strength)
{
	Channel(MaterialChannel::Metallic).TextureId = Texture;
	SetScalar(Channel(MaterialChannel::Metallic), Intensity, Strength);
	return *this;
}

FLook& FLook::Specular(float Number)
{
	SetScalar(Channel(MaterialChannel::Specular), Intensity, 0);
	SetScalar(Channel(MaterialChannel::Specular), Value, Number);
	return *this;
}

FLook& FLook::SpecularMap(int Texture, float Strength)
{
	Channel(MaterialChannel::Specular).TextureId = Texture;
	SetScalar(Channel(MaterialChannel::Specular), Intensity, Strength);
	return *this;
}

FLook& FLook::Opacity(float Number)
{
	SetScalar(Channel(MaterialChannel::Opacity), AlphaMode, 0);
	SetScalar(Channel(MaterialChannel::Opacity), Value, Number);
	return *this;
}

FLook& FLook::OpacityMap(int Texture, bool bAlpha)
{
	Channel(MaterialChannel::Opacity).TextureId = Texture;
	SetScalar(Channel(MaterialChannel::Opacity), AlphaMode, bAlpha ? 1.0f : 0.0f);
	return *this;
}

FLook& FLook::Transparent()
{
	Material.bUseTransparency = true;
	return *this;
}

FLook& FLook::Substance(const std::string& AssetPath, const std::string& GraphName)
{
	Material.bSubstance = true;
	Material.SubstanceAssetPath = AssetPath;
	Material.SubstanceGraphName = GraphName;
	return *this;
}

FLook& FLook::Place(float UAmount, float VAmount, float Degrees, float UOffset, float VOffset)
{
	Placement.Rotation = AxisAngle({0, 0, 1}, Degrees);
	Placement.Translation = {UOffset, VOffset, 0};
	Placement.Scale = {UAmount, VAmount, 1};
	return *this;
}

FMaterial FLook::Make(int Id) const
{
	FMaterial Made = Material;
	Made.Id = Id;
	Made.UVTransform = Placement;
	std::sort(Made.Expressions.begin(), Made.Expressions.end(),
		[](const auto& A, const auto& B) { return A.first < B.first; });
	for (auto& [Key, Expression] : Made.Expressions)
	{
		Expression.UVTransform = Placement;
	}
	return Made;
}

FAssembly::FAssembly(int FirstKey)
	: NextTexture(FirstKey)
	, NextMaterial(FirstKey)
{
}

int FAssembly::AddTexture(FTexture Texture)
{
	Result.Textures.emplace_back(NextTexture, std::move(Texture));
	return NextTexture++;
}

int FAssembly::AddMaterial(const FLook& Look)
{
	Result.Materials.emplace_back(NextMaterial, Look.Make(NextMaterial));
	return NextMaterial++;
}

void FAssembly::AddSurface(const std::string& Name, std::vector<FPiece> Pieces, int SurfaceMode)
{
	FSurface Surface;
	Surface.Name = Name;
	Surface.SurfaceMode = SurfaceMode;
	Surface.VertexOffset = VertexCount;
	for (FPiece& Piece : Pieces)
	{
		FTriangleMesh& Mesh = Piece.Mesh;
		if (Mesh.Tangents.empty())
		{
			ComputeTangents(Mesh);
		}
		const auto Base = static_cast<std::int32_t>(Surface.Positions.size());
		Surface.Positions.insert(Surface.Positions.end(), Mesh.Positions.begin(), Mesh.Positions.end());
		Surface.Normals.insert(Surface.Normals.end(), Mesh.Normals.begin(), Mesh.Normals.end());
		Surface.Tangents.insert(Surface.Tangents.end(), Mesh.Tangents.begin(), Mesh.Tangents.end());
		Surface.UVs.insert(Surface.UVs.end(), Mesh.UVs.begin(), Mesh.UVs.end());
		FSection Section;
		Section.MaterialIndex = Piece.Material;
		Section.Indices.reserve(Mesh.Triangles.size());
		for (const std::uint32_t Index : Mesh.Triangles)
		{
			Section.Indices.push_back(Base + static_cast<std::int32_t>(Index));
		}
		Surface.Sections.push_back(std::move(Section));
		if (Piece.Weights.VertexCount() > 0)
		{
			FSkinWeights All{std::move(Result.VertexInfluences)};
			if (All.Packed.FirstWeight.empty())
			{
				All.Packed.FirstWeight.push_back(0);
			}
			All.Append(Piece.Weights);
			Result.VertexInfluences = std::move(All.Packed);
		}
	}
	VertexCount += static_cast<int>(Surface.Positions.size());
	Result.Surfaces.push_back(std::move(Surface));
}

} // namespace Zef::Peer
