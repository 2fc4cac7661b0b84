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
	Elements = TRecordPool<FElement>();
	ElementTriangles.Empty();
}

template <typename RealType, int ElementSize>
int TDynamicMeshOverlay<RealType, ElementSize>::AppendElement(const RealType* Value)
{
	FElement Element;
	for (int Index = 0; Index < ElementSize; ++Index)
	{
		Element.Value[Index] = Value[Index];
	}
	return Elements.Add(Element);
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::SetElement(int ElementID, const RealType* Value)
{
	checkf(IsElement(ElementID), TEXT("no element %d"), ElementID);
	for (int Index = 0; Index < ElementSize; ++Index)
	{
		Elements[ElementID].Value[Index] = Value[Index];
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::GetElement(int ElementID, RealType* Data) const
{
	checkf(IsElement(ElementID), TEXT("no element %d"), ElementID);
	for (int Index = 0; Index < ElementSize; ++Index)
	{
		Data[Index] = Elements[ElementID].Value[Index];
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::InitializeNewTriangle(int TriangleID)
{
	if (TriangleID >= 0 && TriangleID < ElementTriangles.Num())
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
	FElement* const Corners[3] = {
		Elements.Find(TriElements.A), Elements.Find(TriElements.B), Elements.Find(TriElements.C)};
	if (Corners[0] == nullptr || Corners[1] == nullptr || Corners[2] == nullptr)
	{
		return EMeshResult::Failed_NotAVertex;
	}
	if (TriElements.A == TriElements.B || TriElements.B == TriElements.C || TriElements.C == TriElements.A)
	{
		return EMeshResult::Failed_InvalidNeighbourhood;
	}

	// The new uses come first, so that an element that stays is not freed in between.
	const FIndex3i Old = GetTriangle(TriangleID);
	const FIndex3i Vertices = ParentMesh->GetTriangle(TriangleID);
	Corners[0]->ParentVertex = Vertices.A;
	Corners[1]->ParentVertex = Vertices.B;
	Corners[2]->ParentVertex = Vertices.C;
	for (FElement* const Corner : Corners)
	{
		++Corner->NumUses;
	}
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
		if (--Elements[ElementID].NumUses == 0 && bAllowElementFreeing)
		{
			Elements.Free(ElementID);
		}
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::FreeUnusedElements()
{
	for (int ElementID = 0; ElementID < MaxElementID(); ++ElementID)
	{
		if (Elements[ElementID].NumUses == 0)
		{
			Elements.Free(ElementID);
		}
	}
}

template class TDynamicMeshOverlay<float, 2>;
template class TDynamicMeshOverlay<float, 3>;
template class TDynamicMeshOverlay<float, 4>;

} // namespace UE::Geometry
