// SPDX-License-Identifier: MIT
/**
 * Conversions from received records to engine objects.
 *
 * Every function runs on the game thread, reads its records only, and raises no message: an invalid pointer makes it a
 * no-op, a refused triangle is dropped, a bad material falls back. Values keep the units and axes of the records.
 */
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "ZEFTandemRecords.h"

class UMaterialInstance;
class UMaterialInterface;
class UObject;
class UTexture2D;

namespace ZEFEditorUtils
{

/**
 * Builds the dynamic mesh of an object without joints, with its textures and materials, in the transient package.
 *
 * Element ids of every overlay equal the vertex ids as long as all surfaces have UVs. The material id of a triangle is
 * the position of its section's key in `SurfaceMesh.Materials`, -1 for a key that is not there.
 *
 * @param SurfaceMesh  each surface's VertexOffset must equal the count of the vertices before it
 * @param Name         prefix of the texture names; stored into OutData->Name
 * @param OutData      null makes the call a no-op
 */
void ZEFSurfaceMeshToDynamicMeshData(
	const FZEFSurfaceMesh& SurfaceMesh, const FString& Name, FZEFDynamicMeshData* OutData);

/**
 * Builds the skeletal mesh (one level of detail) and the skeleton of an object with joints, with its textures and
 * materials, in the transient package.
 *
 * @param Name     name of the skeletal mesh; the skeleton takes it with "_Skeleton" behind it
 * @param OutData  receives mesh, skeleton, textures; materials are appended
 * @return false for a null OutData, true otherwise
 */
bool ZEFSurfaceMeshToSkeletalMeshData(
	const FZEFSurfaceMesh& SurfaceMesh, const FString& Name, FZEFSkeletalMeshData* OutData);

/**
 * Makes a texture of a record's pixels.
 *
 * @param CompressionKind  0 plain, 1 normal map
 * @param Texture          Pixels is [Width * Height * (Format == 0 ? 4 : 8)]; an unknown Format is an assertion and
 *                         leaves a texture without a valid source
 */
UTexture2D* CreateTextureFromData(UObject* Outer, const FString& Name, EObjectFlags Flags, uint8 CompressionKind,
	const FZEFTexture& Texture, bool bSRGB);

/**
 * Makes the material of a record: an instance of the master of its kind, a Substance material, or a copy of the
 * engine's default material when the Substance road is closed.
 *
 * @param Name               prefix of a Substance material's name
 * @param Flags              not used; the instance becomes standalone at its end
 * @param Textures           what CreateTextureFromData built, by texture id; null values stand for empty images
 * @param bForceTranslucent  blend whatever the record says
 */
void CreateMaterialInstance(UObject* Outer, const FString& Name, EObjectFlags Flags,
	const TMap<int32, UTexture2D*>& Textures, const FZEFMaterial& Material, UMaterialInterface*& OutMaterial,
	bool bForceTranslucent);

/** Stores whether the Substance plug-in is known to the plug-in manager, and whether its module is loaded. */
void UpdateSubstanceStatus(bool bPluginFound, bool bModuleLoaded);

/**
 * Has the companion module build a Substance material; false at once, with no module loaded, while either flag of
 * UpdateSubstanceStatus is off.
 */
bool CreateSubstanceMaterial(FString AssetPath, FString GraphName, UE::Math::TTransform<float> UVTransform,
	FString PackagePath, FString Name, TWeakObjectPtr<UMaterialInstance>& OutMaterial);

} // namespace ZEFEditorUtils
