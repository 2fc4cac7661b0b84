// SPDX-License-Identifier: MIT
#include "Engine/Texture2D.h"
#include "Materials/MaterialInterface.h"
#include "Support/Engine.h"
#include "Support/Require.h"
#include "Utils/ZEFMeshMaterials.h"

namespace
{
void Convert(const FZEFSurfaceMesh& SurfaceMesh)
{
	TMap<int32, UTexture2D*> Textures;
	TArray<FZEFMaterialData> Materials;
	ZEFEditorUtils::PrepareMaterialsAndTextures(
		SurfaceMesh, TEXT("Mesh"), ZEFEditorUtils::EUVTransformCopy::Copy, Textures, Materials);

	REQUIRE(Textures.Num() == SurfaceMesh.Textures.Num());
	for (const TPair<int32, FZEFTexture>& Texture : SurfaceMesh.Textures)
	{
		const bool bImage = Texture.Value.Format != -1 && Texture.Value.Width != 0 && Texture.Value.Height != 0;
		const UTexture2D* const Built = Textures.FindChecked(Texture.Key);
		REQUIRE((Built != nullptr) == bImage);
		REQUIRE(!bImage ||
				(Built->Source.GetSizeX() == Texture.Value.Width && Built->Source.GetSizeY() == Texture.Value.Height));
	}
	REQUIRE(Materials.Num() == SurfaceMesh.Materials.Num());
	int32 Slot = 0;
	for (const TPair<int32, FZEFMaterial>& Material : SurfaceMesh.Materials)
	{
		REQUIRE(Materials[Slot].Material != nullptr);
		REQUIRE(Materials[Slot].bSubstance == Material.Value.bSubstance);
		++Slot;
	}
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Bytes, std::size_t Size)
{
	Fuzz::ConvertRecords(Bytes, Size, &Convert);
	return 0;
}
