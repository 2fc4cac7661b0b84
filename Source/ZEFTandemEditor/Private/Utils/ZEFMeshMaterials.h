// SPDX-License-Identifier: MIT
/** Textures and materials of a whole received object. */
#pragma once

#include "CoreMinimal.h"
#include "ZEFTandemRecords.h"

class UTexture2D;

namespace ZEFEditorUtils
{

/** Whether the built material data carries the record's UV placement. */
enum class EUVTransformCopy : uint8
{
	Leave,
	Copy,
};

/**
 * Builds the textures and then the materials of an object in the transient package, in the order of the record's maps.
 *
 * @param Textures   receives one entry for each record, null for one without an image
 * @param Materials  one entry appended for each record
 */
void PrepareMaterialsAndTextures(const FZEFSurfaceMesh& SurfaceMesh, const FString& Name, EUVTransformCopy UVTransforms,
	TMap<int32, UTexture2D*>& Textures, TArray<FZEFMaterialData>& Materials);

/** Keys of the object's materials in map order: the position of a key is its material slot. */
TArray<int32> GetMaterialSlotKeys(const FZEFSurfaceMesh& SurfaceMesh);

} // namespace ZEFEditorUtils
