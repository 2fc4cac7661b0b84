// SPDX-License-Identifier: MIT
/** Values at the corners of triangles, shared where the surface is continuous. */
#pragma once

#include "DynamicMesh/DynamicMesh3.h"
#include "GeometryTypes.h"
#include "IndexTypes.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Util/BlockArray.h"
#include "Util/RecordPool.h"

namespace UE::Geometry
{

/**
 * Elements of ElementSize numbers, and for each triangle of the mesh the three elements at its corners, or none.
 * A vertex at a seam has several elements. Element ids are given out like the mesh's ids: ascending, freed ones first.
 *
 * As long as there is no seam, that is as long as every triangle is given in its turn the elements that have the ids of
 * its vertices, the overlay keeps the values alone and reads the mesh's own triangles; it becomes as large and as slow
 * as its name says with the first triangle that differs.
 */
template <typename RealType, int ElementSize>
class GEOMETRYCORE_API TDynamicMeshOverlay
{
public:
	explicit TDynamicMeshOverlay(const FDynamicMesh3* InParentMesh)
		: ParentMesh(InParentMesh)
	{
	}
	/** InParentMesh must have the triangles of the other's mesh. */
	TDynamicMeshOverlay(const TDynamicMeshOverlay& Other, const FDynamicMesh3* InParentMesh);

	int ElementCount() const { return Values.Num() - FreeIds.Num(); }
	/** One past the highest element id ever used. */
	int MaxElementID() const { return Values.Num(); }
	bool IsElement(int ElementID) const
	{
		return static_cast<uint32>(ElementID) < static_cast<uint32>(Values.Num()) &&
			   (bMirrorsMesh || Uses.At(ElementID).Num >= 0);
	}
	/** Live element ids in ascending order, for range-based loops. */
	auto ElementIndicesItr() const
	{
		return TLiveIds<TDynamicMeshOverlay, &TDynamicMeshOverlay::IsElement>(this, MaxElementID());
	}

	/** Drops all elements and unsets all triangles. */
	void ClearElements();

	/** Id of a new element, Value is [ElementSize]. It belongs to no vertex until a triangle uses it. */
	int AppendElement(const RealType* Value)
	{
		FValue Copy;
		for (int Index = 0; Index < ElementSize; ++Index)
		{
			Copy.Numbers[Index] = Value[Index];
		}
		return AppendValue(Copy);
	}
	void SetElement(int ElementID, const RealType* Value);
	void GetElement(int ElementID, RealType* Data) const;
	/** Mesh vertex of an element, InvalidID while no triangle has used it. */
	int GetParentVertex(int ElementID) const;

	/** Makes the triangle one that has no elements, as a new one is. */
	void InitializeNewTriangle(int TriangleID);

	/**
	 * Gives a triangle its three elements, whose parent becomes the mesh vertex of the same corner.
	 *
	 * @param TriElements           ids of three different elements, in the order of the triangle's vertices
	 * @param bAllowElementFreeing  whether elements that only this triangle used and no longer uses are freed
	 * @return Ok; or, with nothing changed, Failed_NotATriangle, Failed_NotAVertex (an id is no element) or
	 *         Failed_InvalidNeighbourhood (an id is named twice)
	 */
	FORCEINLINE EMeshResult SetTriangle(int TriangleID, const FIndex3i& TriElements, bool bAllowElementFreeing = true)
	{
		if (bMirrorsMesh && TriangleID == NumMirrored && IsMirrorOf(TriangleID, TriElements))
		{
			++NumMirrored;
			return EMeshResult::Ok;
		}
		return SetAnyTriangle(TriangleID, TriElements, bAllowElementFreeing);
	}
	/** Takes a triangle's elements away. Nothing happens when it has none. */
	void UnsetTriangle(int TriangleID, bool bAllowElementFreeing = true);
	bool IsSetTriangle(int TriangleID) const { return GetTriangle(TriangleID).A != IndexConstants::InvalidID; }
	/** Element ids at the corners, (-1, -1, -1) when unset. */
	FIndex3i GetTriangle(int TriangleID) const
	{
		if (bMirrorsMesh)
		{
			return TriangleID >= 0 && TriangleID < NumMirrored ? ParentMesh->GetTriangle(TriangleID)
															   : FIndex3i::Invalid();
		}
		return TriangleID >= 0 && TriangleID < ElementTriangles.Num() ? ElementTriangles.At(TriangleID)
																	  : FIndex3i::Invalid();
	}
	/** Frees all elements that no triangle uses. */
	void FreeUnusedElements();

	/** The mesh calls it when the triangle goes, while it is still there. */
	void OnRemoveTriangle(int TriangleID) { UnsetTriangle(TriangleID, true); }
	/** The mesh calls it when it was moved to another place. */
	void Reparent(const FDynamicMesh3* NewParent) { ParentMesh = NewParent; }
	const FDynamicMesh3* GetParentMesh() const { return ParentMesh; }

protected:
	struct FValue
	{
		RealType Numbers[ElementSize];
	};

	/** The numbers go from registers to their place: on their way through memory they would be waited for. */
	FORCEINLINE int AppendValue(const FValue& Value) { return bMirrorsMesh ? Values.Add(Value) : AppendUse(Value); }

private:
	/** Who uses an element. */
	struct FUse
	{
		int32 ParentVertex = IndexConstants::InvalidID;
		/** Triangle corners; -1 for a free id. */
		int32 Num = 0;
	};

	/** Whether these are elements with the ids of the triangle's vertices. */
	FORCEINLINE bool IsMirrorOf(int TriangleID, const FIndex3i& TriElements) const
	{
		const int NumValues = Values.Num();
		return ParentMesh->IsTriangle(TriangleID) && ParentMesh->GetTriangle(TriangleID) == TriElements &&
			   TriElements.A < NumValues && TriElements.B < NumValues && TriElements.C < NumValues;
	}
	FUse* FindUse(int ElementID);
	int AppendUse(FValue Value);
	EMeshResult SetAnyTriangle(int TriangleID, const FIndex3i& TriElements, bool bAllowElementFreeing);
	void StopMirroring();
	void FreeElement(int ElementID);
	void ReleaseElements(const FIndex3i& TriElements, bool bAllowElementFreeing);

	/** Not owned; it owns this. */
	const FDynamicMesh3* ParentMesh;
	/** [MaxElementID()] */
	TBlockArray<FValue> Values;
	/** Whether all elements are live, the triangles below NumMirrored have the elements of their vertices' ids, and the
	 * others none. */
	bool bMirrorsMesh = true;
	int NumMirrored = 0;

	// In use when the overlay does not mirror the mesh

	/** [MaxElementID()] */
	TBlockArray<FUse> Uses;
	TArray<int32> FreeIds;
	/** At most [MaxTriangleID()]; a triangle past its end is unset, so that appending triangles costs nothing here. */
	TBlockArray<FIndex3i> ElementTriangles;
};

/** An overlay whose elements are vectors. */
template <typename RealType, int ElementSize, typename VectorType>
class TDynamicMeshVectorOverlay : public TDynamicMeshOverlay<RealType, ElementSize>
{
	using BaseType = TDynamicMeshOverlay<RealType, ElementSize>;

public:
	using BaseType::AppendElement;
	using BaseType::BaseType;
	using BaseType::GetElement;
	using BaseType::SetElement;

	FORCEINLINE int AppendElement(const VectorType& Value)
	{
		if constexpr (ElementSize == 2)
		{
			return BaseType::AppendValue({{Value.X, Value.Y}});
		}
		else if constexpr (ElementSize == 3)
		{
			return BaseType::AppendValue({{Value.X, Value.Y, Value.Z}});
		}
		else
		{
			return BaseType::AppendElement(&Value.X);
		}
	}
	void SetElement(int ElementID, const VectorType& Value) { BaseType::SetElement(ElementID, &Value.X); }
	void GetElement(int ElementID, VectorType& Value) const { BaseType::GetElement(ElementID, &Value.X); }
	VectorType GetElement(int ElementID) const
	{
		VectorType Value;
		BaseType::GetElement(ElementID, &Value.X);
		return Value;
	}
	/** Values at the corners of a triangle, which must be set. */
	void GetTriElements(int TriangleID, VectorType& A, VectorType& B, VectorType& C) const
	{
		const FIndex3i Ids = BaseType::GetTriangle(TriangleID);
		GetElement(Ids.A, A);
		GetElement(Ids.B, B);
		GetElement(Ids.C, C);
	}
};

extern template class TDynamicMeshOverlay<float, 2>;
extern template class TDynamicMeshOverlay<float, 3>;
extern template class TDynamicMeshOverlay<float, 4>;

using FDynamicMeshUVOverlay = TDynamicMeshVectorOverlay<float, 2, FVector2f>;
using FDynamicMeshNormalOverlay = TDynamicMeshVectorOverlay<float, 3, FVector3f>;
using FDynamicMeshColorOverlay = TDynamicMeshVectorOverlay<float, 4, FVector4f>;

} // namespace UE::Geometry
