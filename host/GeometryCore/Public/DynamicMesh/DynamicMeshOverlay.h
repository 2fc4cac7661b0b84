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
 */
template <typename RealType, int ElementSize>
class GEOMETRYCORE_API TDynamicMeshOverlay
{
public:
	explicit TDynamicMeshOverlay(const FDynamicMesh3* InParentMesh)
		: ParentMesh(InParentMesh)
	{
	}
	TDynamicMeshOverlay(const TDynamicMeshOverlay& Other, const FDynamicMesh3* InParentMesh);

	int ElementCount() const { return Elements.Num(); }
	/** One past the highest element id ever used. */
	int MaxElementID() const { return Elements.MaxID(); }
	bool IsElement(int ElementID) const { return Elements.IsLive(ElementID); }
	/** Live element ids in ascending order, for range-based loops. */
	auto ElementIndicesItr() const { return Elements.Ids(); }

	/** Drops all elements and unsets all triangles. */
	void ClearElements();

	/** Id of a new element, Value is [ElementSize]. It belongs to no vertex until a triangle uses it. */
	int AppendElement(const RealType* Value);
	void SetElement(int ElementID, const RealType* Value);
	void GetElement(int ElementID, RealType* Data) const;
	/** Mesh vertex of an element, InvalidID while no triangle has used it. */
	int GetParentVertex(int ElementID) const { return Elements[ElementID].ParentVertex; }

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
	EMeshResult SetTriangle(int TriangleID, const FIndex3i& TriElements, bool bAllowElementFreeing = true);
	/** Takes a triangle's elements away. Nothing happens when it has none. */
	void UnsetTriangle(int TriangleID, bool bAllowElementFreeing = true);
	bool IsSetTriangle(int TriangleID) const { return GetTriangle(TriangleID).A != IndexConstants::InvalidID; }
	/** Element ids at the corners, (-1, -1, -1) when unset. */
	FIndex3i GetTriangle(int TriangleID) const
	{
		return TriangleID >= 0 && TriangleID < ElementTriangles.Num() ? ElementTriangles.At(TriangleID)
																	  : FIndex3i::Invalid();
	}
	/** Frees all elements that no triangle uses. */
	void FreeUnusedElements();

	/** The mesh calls it when the triangle goes. */
	void OnRemoveTriangle(int TriangleID) { UnsetTriangle(TriangleID, true); }
	/** The mesh calls it when it was moved to another place. */
	void Reparent(const FDynamicMesh3* NewParent) { ParentMesh = NewParent; }
	const FDynamicMesh3* GetParentMesh() const { return ParentMesh; }

private:
	struct FElement
	{
		RealType Value[ElementSize];
		int32 ParentVertex = IndexConstants::InvalidID;
		/** Triangle corners that use the element; -1 for a free id. */
		int32 NumUses = 0;

		bool IsLive() const { return NumUses >= 0; }
		void MakeFree()
		{
			NumUses = -1;
			ParentVertex = IndexConstants::InvalidID;
		}
	};

	void ReleaseElements(const FIndex3i& TriElements, bool bAllowElementFreeing);

	/** Not owned; it owns this. */
	const FDynamicMesh3* ParentMesh;
	TRecordPool<FElement> Elements;
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

	int AppendElement(const VectorType& Value) { return BaseType::AppendElement(&Value.X); }
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
