// SPDX-License-Identifier: MIT
/** The pieces of the garments: which mesh, which material, and what moves it. */
#pragma once

#include <string>
#include <vector>

#include "Sample/Garment/Drape.h"
#include "Sample/Garment/GarmentTextures.h"

namespace Zef::Peer
{

enum class EMover
{
	Skin,
	Skirt,
	Capelet
};

struct FGarmentPiece
{
	std::string Surface;
	int Material = 0;
	EMover Mover = EMover::Skin;
	/** In the standing pose; texture coordinates and triangles never change. */
	FTriangleMesh Mesh;
	/** What moves with the skin: the same mesh in the symmetric pose, and its weights. */
	FTriangleMesh Symmetric;
	FSkinWeights Weights;
	/** What hangs: the part of the cloth. */
	FClothPatch Patch;
};

/** Everything, in the order of the record's surfaces and sections; pieces of one surface stand together. */
class FGarmentPieces
{
public:
	/** Sews the pieces and lets the hanging ones come to rest on the standing figure. */
	FGarmentPieces(const FFigure& Figure, const FGarmentMaterials& Materials);

	const std::vector<FGarmentPiece>& All() const { return Pieces; }

	/** Hanging cloths as they came to rest. */
	const FHangingCloth& Skirt() const { return SkirtCloth; }
	const FHangingCloth& Capelet() const { return CapeletCloth; }

private:
	void AddSkin(const FFigure& Figure, const std::string& Surface, int Material, FTriangleMesh Mesh);
	void AddHanging(const std::string& Surface, int Material, EMover Mover, const FClothPatch& Patch);
	void AddBand(const std::string& Surface, int Material, EMover Mover, const FClothPatch& Patch, float Repeats);
	void AddSkirt(const FGarmentMaterials& Materials);
	void AddCapelet(const FFigure& Figure, const FGarmentMaterials& Materials);

	FHangingCloth SkirtCloth, CapeletCloth;
	std::vector<FGarmentPiece> Pieces;
};

} // namespace Zef::Peer
