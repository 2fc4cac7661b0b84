// SPDX-License-Identifier: MIT
/** Elements and triangles of an overlay. */

#include "DynamicMesh/DynamicMeshOverlay.h"

namespace UE::Geometry
{

template <typename RealType, int ElementSize>
TDynamicMeshOverlay<RealType, ElementSize>::TDynamicMeshOverlay(
	const TDynamicMeshOverlay& Other, const FDynamicMesh3* InParentMesh)
	: TDynamicMeshOverlay(Other)
{
	ParentMesh = InParentMesh;
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::ClearElements()
{
	ElementRefCounts = FRefCountVector();
	Elements.Empty();
	ParentVertices.Empty();
	ElementTriangles.Empty();
}

template <typename RealType, int ElementSize>
int TDynamicMeshOverlay<RealType, ElementSize>::AppendElement(const RealType* Value)
{
	const int ElementID = ElementRefCounts.Allocate();
	if (ElementID == ParentVertices.Num())
	{
		Elements.Append(Value, ElementSize);
		ParentVertices.Add(IndexConstants::InvalidID);
	}
	else
	{
		SetElement(ElementID, Value);
		ParentVertices[ElementID] = IndexConstants::InvalidID;
	}
	return ElementID;
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::SetElement(int ElementID, const RealType* Value)
{
	checkf(IsElement(ElementID), TEXT("no element %d"), ElementID);
	for (int Index = 0; Index < ElementSize; ++Index)
	{
		Elements[ElementID * ElementSize + Index] = Value[Index];
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::GetElement(int ElementID, RealType* Data) const
{
	checkf(IsElement(ElementID), TEXT("no element %d"), ElementID);
	for (int Index = 0; Index < ElementSize; ++Index)
	{
		Data[Index] = Elements[ElementID * ElementSize + Index];
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::InitializeNewTriangle(int TriangleID)
{
	if (ElementTriangles.IsValidIndex(TriangleID))
	{
		ElementTriangles[TriangleID] = FIndex3i::Invalid();
	}
}

template <typename RealType, int ElementSize>
EMeshResult TDynamicMeshOverlay<RealType, ElementSize>::SetTriangle(
	int TriangleID, const FIndex3i& TriElements, bool bAllowElementFreeing)
{
	if (!ParentMesh->IsTriangle(TriangleID))
	{
		return EMeshResult::Failed_NotATriangle;
	}
	if (!IsElement(TriElements.A) || !IsElement(TriElements.B) || !IsElement(TriElements.C))
	{
		return EMeshResult::Failed_NotAVertex;
	}
	if (TriElements.A == TriElements.B || TriElements.B == TriElements.C || TriElements.C == TriElements.A)
	{
		return EMeshResult::Failed_InvalidNeighbourhood;
	}

	// The new uses come first, so that an element that stays is not freed in between.
	const FIndex3i Old = GetTriangle(TriangleID);
	ElementRefCounts.Increment(TriElements.A);
	ElementRefCounts.Increment(TriElements.B);
	ElementRefCounts.Increment(TriElements.C);
	if (TriangleID == ElementTriangles.Num())
	{
		ElementTriangles.Add(TriElements);
	}
	else
	{
		while (TriangleID >= ElementTriangles.Num())
		{
			ElementTriangles.Add(FIndex3i::Invalid());
		}
		ElementTriangles[TriangleID] = TriElements;
	}
	if (Old.A != IndexConstants::InvalidID)
	{
		ReleaseElements(Old, bAllowElementFreeing);
	}

	const FIndex3i Corners = ParentMesh->GetTriangle(TriangleID);
	int32* const Parents = ParentVertices.GetData();
	Parents[TriElements.A] = Corners.A;
	Parents[TriElements.B] = Corners.B;
	Parents[TriElements.C] = Corners.C;
	return EMeshResult::Ok;
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::UnsetTriangle(int TriangleID, bool bAllowElementFreeing)
{
	const FIndex3i Old = GetTriangle(TriangleID);
	if (Old.A != IndexConstants::InvalidID)
	{
		ElementTriangles[TriangleID] = FIndex3i::Invalid();
		ReleaseElements(Old, bAllowElementFreeing);
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::ReleaseElements(const FIndex3i& TriElements, bool bAllowElementFreeing)
{
	for (int Corner = 0; Corner < 3; ++Corner)
	{
		const int ElementID = TriElements[Corner];
		ElementRefCounts.Decrement(ElementID);
		if (bAllowElementFreeing && ElementRefCounts.GetRefCount(ElementID) == 1)
		{
			FreeElement(ElementID);
		}
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::FreeElement(int ElementID)
{
	ElementRefCounts.Decrement(ElementID);
	ParentVertices[ElementID] = IndexConstants::InvalidID;
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::FreeUnusedElements()
{
	for (int ElementID = 0; ElementID < MaxElementID(); ++ElementID)
	{
		if (ElementRefCounts.GetRefCount(ElementID) == 1)
		{
			FreeElement(ElementID);
		}
	}
}

template class TDynamicMeshOverlay<float, 2>;
template class TDynamicMeshOverlay<float, 3>;
template class TDynamicMeshOverlay<float, 4>;

} // namespace UE::Geometry
