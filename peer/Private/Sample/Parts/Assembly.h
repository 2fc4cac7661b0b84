// SPDX-License-Identifier: MIT
/** Puts meshes, materials and textures together to one object. */
#pragma once

#include <string>
#include <vector>

#include "Mesh/TriangleMesh.h"
#include "Sample/Rig/Weights.h"

namespace Zef::Peer
{

/** Describes one material; every call returns the description again. Colours are linear. */
class FLook
{
public:
	FLook(const std::string& Name, int Kind);

	FLook& Color(float Red, float Green, float Blue);
	FLook& ColorMap(int Texture);
	FLook& NormalMap(int Texture, float Intensity);
	FLook& Roughness(float Value);
	FLook& RoughnessMap(int Texture, float Intensity);
	FLook& Metallic(float Value);
	FLook& MetallicMap(int Texture, float Intensity);
	FLook& Specular(float Value);
	FLook& SpecularMap(int Texture, float Intensity);
	FLook& Opacity(float Value);
	/** From the map's alpha, or with bAlpha false from its colour. */
	FLook& OpacityMap(int Texture, bool bAlpha);
	/** Blends or cuts out by the opacity, as the editor decides. */
	FLook& Transparent();
	/** A material of a Substance asset; its channels only stand by. */
	FLook& Substance(const std::string& AssetPath, const std::string& GraphName);
	/** Placement of all maps: how often they repeat, turned by degrees, shifted. */
	FLook& Place(float UAmount, float VAmount, float Degrees = 0, float UOffset = 0, float VOffset = 0);

	/** The record, with the given id; channels in ascending order. */
	FMaterial Make(int Id) const;

private:
	FMaterialExpression& Channel(int Key);
	static void SetScalar(FMaterialExpression& Expression, int Slot, float Value);

	FMaterial Material;
	FTransform Placement;
};

/** One piece of a surface, with its material. */
struct FPiece
{
	FTriangleMesh Mesh;
	int Material = 0;
	FSkinWeights Weights; // empty on objects without a skeleton
};

class FAssembly
{
public:
	/** Keys of the textures and materials start here, so that those of two objects differ. */
	explicit FAssembly(int FirstKey);

	int AddTexture(FTexture Texture);
	int AddMaterial(const FLook& Look);

	/** All pieces become one surface, each a section; tangents are computed where a piece has none. */
	void AddSurface(const std::string& Name, std::vector<FPiece> Pieces, int SurfaceMode = 0);

	FSurfaceMesh Take() { return std::move(Result); }

private:
	FSurfaceMesh Result;
	int NextTexture, NextMaterial;
	int VertexCount = 0;
};

} // namespace Zef::Peer
