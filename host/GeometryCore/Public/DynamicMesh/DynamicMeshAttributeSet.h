// SPDX-License-Identifier: MIT
/** Attributes of a mesh that may change along seams. */
#pragma once

#include "Containers/IndirectArray.h"
#include "DynamicMesh/DynamicMeshOverlay.h"
#include "DynamicMesh/DynamicMeshTriangleAttribute.h"
#include "Templates/UniquePtr.h"

namespace UE::Geometry
{

/** Material slot of each triangle. */
class FDynamicMeshMaterialAttribute : public TDynamicMeshScalarTriangleAttribute<int32>
{
public:
	using TDynamicMeshScalarTriangleAttribute<int32>::TDynamicMeshScalarTriangleAttribute;
};

/**
 * The attributes of one mesh, which owns it and keeps it in step with its triangles. A new set has one UV layer and one
 * normal layer, and no colours, tangents or material ids.
 */
class GEOMETRYCORE_API FDynamicMeshAttributeSet
{
public:
	explicit FDynamicMeshAttributeSet(const FDynamicMesh3* InParentMesh);
	/** A copy for another mesh. */
	FDynamicMeshAttributeSet(const FDynamicMeshAttributeSet& Other, const FDynamicMesh3* InParentMesh);
	virtual ~FDynamicMeshAttributeSet();
	UE_NONCOPYABLE(FDynamicMeshAttributeSet);

	virtual int NumUVLayers() const { return UVLayers.Num(); }
	/** New layers are empty; layers past Num are dropped. */
	virtual void SetNumUVLayers(int Num);
	/** Null when there is no such layer. */
	FDynamicMeshUVOverlay* GetUVLayer(int Index) { return UVLayers.IsValidIndex(Index) ? &UVLayers[Index] : nullptr; }
	const FDynamicMeshUVOverlay* GetUVLayer(int Index) const
	{
		return UVLayers.IsValidIndex(Index) ? &UVLayers[Index] : nullptr;
	}
	FDynamicMeshUVOverlay* PrimaryUV() { return GetUVLayer(0); }
	const FDynamicMeshUVOverlay* PrimaryUV() const { return GetUVLayer(0); }

	virtual int NumNormalLayers() const { return NormalLayers.Num(); }
	/** 0, 1 (normals) or 3 (tangents and bitangents too) layers. New ones are empty; layers past Num are dropped. */
	virtual void SetNumNormalLayers(int Num);
	/** Null when there is no such layer. */
	FDynamicMeshNormalOverlay* GetNormalLayer(int Index)
	{
		return NormalLayers.IsValidIndex(Index) ? &NormalLayers[Index] : nullptr;
	}
	const FDynamicMeshNormalOverlay* GetNormalLayer(int Index) const
	{
		return NormalLayers.IsValidIndex(Index) ? &NormalLayers[Index] : nullptr;
	}
	FDynamicMeshNormalOverlay* PrimaryNormals() { return GetNormalLayer(0); }
	const FDynamicMeshNormalOverlay* PrimaryNormals() const { return GetNormalLayer(0); }
	FDynamicMeshNormalOverlay* PrimaryTangents() { return GetNormalLayer(1); }
	const FDynamicMeshNormalOverlay* PrimaryTangents() const { return GetNormalLayer(1); }
	FDynamicMeshNormalOverlay* PrimaryBiTangents() { return GetNormalLayer(2); }
	const FDynamicMeshNormalOverlay* PrimaryBiTangents() const { return GetNormalLayer(2); }
	/** Makes normal layers 1 (tangents) and 2 (bitangents) where they are missing. */
	void EnableTangents() { SetNumNormalLayers(3); }
	void DisableTangents();
	bool HasTangentSpace() const { return NumNormalLayers() == 3; }

	bool HasPrimaryColors() const { return ColorLayer.IsValid(); }
	FDynamicMeshColorOverlay* PrimaryColors() { return ColorLayer.Get(); }
	const FDynamicMeshColorOverlay* PrimaryColors() const { return ColorLayer.Get(); }
	/** Makes an empty colour layer where there is none. */
	void EnablePrimaryColors();
	void DisablePrimaryColors();

	bool HasMaterialID() const { return MaterialIDAttrib.IsValid(); }
	/** Gives each triangle the material id 0; nothing happens when there are ids already. */
	void EnableMaterialID();
	void DisableMaterialID();
	/** Null without material ids. */
	FDynamicMeshMaterialAttribute* GetMaterialID() { return MaterialIDAttrib.Get(); }
	const FDynamicMeshMaterialAttribute* GetMaterialID() const { return MaterialIDAttrib.Get(); }

	/** The mesh calls it when the triangle goes. */
	void OnRemoveTriangle(int TriangleID);
	/** The mesh calls it when it was moved to another place. */
	void Reparent(const FDynamicMesh3* NewParent);
	const FDynamicMesh3* GetParentMesh() const { return ParentMesh; }

private:
	/** Not owned; it owns this. */
	const FDynamicMesh3* ParentMesh;
	TIndirectArray<FDynamicMeshUVOverlay> UVLayers;
	TIndirectArray<FDynamicMeshNormalOverlay> NormalLayers;
	TUniquePtr<FDynamicMeshColorOverlay> ColorLayer;
	TUniquePtr<FDynamicMeshMaterialAttribute> MaterialIDAttrib;
};

} // namespace UE::Geometry
