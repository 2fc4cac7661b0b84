// SPDX-License-Identifier: MIT
#include "Utils/ZEFMeshMaterials.h"

#include "Engine/Texture2D.h"
#include "UObject/Package.h"
#include "Utils/ZEFTandemEditorUtils.h"

namespace ZEFEditorUtils
{

namespace
{

constexpr int32 NormalChannel = 1;
constexpr int32 TranslucentSurfaceMode = 1;
constexpr EObjectFlags AssetFlags = static_cast<EObjectFlags>(RF_Public | RF_Standalone);

/** Ids of the textures that some material uses as its normal map. */
TArray<int32> FindNormalMaps(const FZEFSurfaceMesh& SurfaceMesh)
{
	TArray<int32> NormalMaps;
	for (const TPair<int32, FZEFMaterial>& Material : SurfaceMesh.Materials)
	{
		const FZEFMaterialExpression* const Normal = Material.Value.Expressions.Find(NormalChannel);
		if (Normal != nullptr && SurfaceMesh.Textures.Contains(Normal->TextureId))
		{
			NormalMaps.Add(Normal->TextureId);
		}
	}
	return NormalMaps;
}

/** Keys of the materials that some translucent surface uses. */
TSet<int32> FindTranslucentMaterials(const FZEFSurfaceMesh& SurfaceMesh)
{
	TSet<int32> Keys;
	for (const FZEFSurface& Surface : SurfaceMesh.Surfaces)
	{
		if (Surface.SurfaceMode == TranslucentSurfaceMode)
		{
			for (const FZEFSection& Section : Surface.Sections)
			{
				Keys.Add(Section.MaterialIndex);
			}
		}
	}
	return Keys;
}

UTexture2D* CreateMeshTexture(const FString& Name, int32 Id, const FZEFTexture& Texture, bool bNormalMap)
{
	if (Texture.Format == -1 || Texture.Width == 0 || Texture.Height == 0)
	{
		return nullptr;
	}
	return CreateTextureFromData(GetTransientPackage(), TEXT("T_") + Name + TEXT("_") + FString::FromInt(Id),
		AssetFlags, bNormalMap ? 1 : 0, Texture, true);
}

} // namespace

void PrepareMaterialsAndTextures(const FZEFSurfaceMesh& SurfaceMesh, const FString& Name, EUVTransformCopy UVTransforms,
	TMap<int32, UTexture2D*>& Textures, TArray<FZEFMaterialData>& Materials)
{
	const TArray<int32> NormalMaps = FindNormalMaps(SurfaceMesh);
	for (const TPair<int32, FZEFTexture>& Texture : SurfaceMesh.Textures)
	{
		Textures.Add(
			Texture.Key, CreateMeshTexture(Name, Texture.Key, Texture.Value, NormalMaps.Contains(Texture.Key)));
	}

	const TSet<int32> Translucent = FindTranslucentMaterials(SurfaceMesh);
	Materials.Reserve(Materials.Num() + SurfaceMesh.Materials.Num());
	for (const TPair<int32, FZEFMaterial>& Material : SurfaceMesh.Materials)
	{
		UMaterialInterface* Built = nullptr;
		CreateMaterialInstance(GetTransientPackage(), Name, AssetFlags, Textures, Material.Value, Built,
			Translucent.Contains(Material.Key));

		FZEFMaterialData& Data = Materials.AddDefaulted_GetRef();
		Data.Material = Built;
		Data.bSubstance = Material.Value.bSubstance;
		Data.SubstanceAssetPath = Material.Value.SubstanceAssetPath;
		Data.SubstanceGraphName = Material.Value.SubstanceGraphName;
		if (UVTransforms == EUVTransformCopy::Copy)
		{
			Data.UVTransform = Material.Value.UVTransform;
		}
	}
}

TArray<int32> GetMaterialSlotKeys(const FZEFSurfaceMesh& SurfaceMesh)
{
	TArray<int32> Keys;
	SurfaceMesh.Materials.GenerateKeyArray(Keys);
	return Keys;
}

} // namespace ZEFEditorUtils
