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
	Values.Empty();
	Uses.Empty();
	FreeIds.Empty();
	ElementTriangles.Empty();
	bMirrorsMesh = true;
	NumMirrored = 0;
}

template <typename RealType, int ElementSize>
int TDynamicMeshOverlay<RealType, ElementSize>::AppendUse(FValue Value)
{
	if (FreeIds.Num() == 0)
	{
		Uses.Add(FUse());
		return Values.Add(Value);
	}
	const int ElementID = FreeIds.Pop();
	Values[ElementID] = Value;
	Uses[ElementID] = FUse();
	return ElementID;
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::SetElement(int ElementID, const RealType* Value)
{
	checkf(IsElement(ElementID), TEXT("no element %d"), ElementID);
	FValue& Element = Values[ElementID];
	for (int Index = 0; Index < ElementSize; ++Index)
	{
		Element.Numbers[Index] = Value[Index];
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::GetElement(int ElementID, RealType* Data) const
{
	checkf(IsElement(ElementID), TEXT("no element %d"), ElementID);
	const FValue& Element = Values[ElementID];
	for (int Index = 0; Index < ElementSize; ++Index)
	{
		Data[Index] = Element.Numbers[Index];
	}
}

template <typename RealType, int ElementSize>
int TDynamicMeshOverlay<RealType, ElementSize>::GetParentVertex(int ElementID) const
{
	if (!bMirrorsMesh)
	{
		return Uses[ElementID].ParentVertex;
	}
	Values[ElementID]; // the same fault as above
	if (!ParentMesh->IsVertex(ElementID))
	{
		return IndexConstants::InvalidID;
	}
	// Of the vertex's triangles, those count that have elements; a few at most have none yet.
	int NumUses = NumMirrored > 0 ? ParentMesh->GetVtxTriangleCount(ElementID) : 0;
	for (int TriangleID = NumMirrored; NumUses > 0 && TriangleID < ParentMesh->MaxTriangleID(); ++TriangleID)
	{
		NumUses -= ParentMesh->IsTriangle(TriangleID) && ParentMesh->GetTriangle(TriangleID).Contains(ElementID);
	}
	return NumUses > 0 ? ElementID : IndexConstants::InvalidID;
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::InitializeNewTriangle(int TriangleID)
{
	if (bMirrorsMesh && TriangleID >= 0 && TriangleID < NumMirrored)
	{
		StopMirroring();
	}
	if (TriangleID >= 0 && TriangleID < ElementTriangles.Num())
	{
		ElementTriangles[TriangleID] = FIndex3i::Invalid();
	}
}

/** Gives every element its use count and every triangle its own three elements. */
template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::StopMirroring()
{
	for (int ElementID = 0; ElementID < Values.Num(); ++ElementID)
	{
		Uses.Add(FUse());
	}
	for (int TriangleID = 0; TriangleID < NumMirrored; ++TriangleID)
	{
		const FIndex3i Elements = ParentMesh->GetTriangle(TriangleID);
		ElementTriangles.Add(Elements);
		for (const int ElementID : {Elements.A, Elements.B, Elements.C})
		{
			FUse& Use = Uses[ElementID];
			Use.ParentVertex = ElementID;
			++Use.Num;
		}
	}
	bMirrorsMesh = false;
	NumMirrored = 0;
}

/** The use record of a live element; null when the id is none. */
template <typename RealType, int ElementSize>
auto TDynamicMeshOverlay<RealType, ElementSize>::FindUse(int ElementID) -> FUse*
{
	if (static_cast<uint32>(ElementID) >= static_cast<uint32>(Uses.Num()))
	{
		return nullptr;
	}
	FUse& Use = Uses.At(ElementID);
	return Use.Num >= 0 ? &Use : nullptr;
}

template <typename RealType, int ElementSize>
EMeshResult TDynamicMeshOverlay<RealType, ElementSize>::SetAnyTriangle(
	int TriangleID, const FIndex3i& TriElements, bool bAllowElementFreeing)
{
	if (!ParentMesh->IsTriangle(TriangleID))
	{
		return EMeshResult::Failed_NotATriangle;
	}
	// Even a triangle that is refused has no turn any more.
	if (bMirrorsMesh)
	{
		StopMirroring();
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
	FUse* const Corners[3] = {FindUse(TriElements.A), FindUse(TriElements.B), FindUse(TriElements.C)};
	const FIndex3i Old = GetTriangle(TriangleID);
	const FIndex3i Vertices = ParentMesh->GetTriangle(TriangleID);
	Corners[0]->ParentVertex = Vertices.A;
	Corners[1]->ParentVertex = Vertices.B;
	Corners[2]->ParentVertex = Vertices.C;
	for (FUse* const Corner : Corners)
	{
		++Corner->Num;
	}
	while (TriangleID >= ElementTriangles.Num())
	{
		ElementTriangles.Add(FIndex3i::Invalid());
	}
	ElementTriangles[TriangleID] = TriElements;
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
	if (Old.A == IndexConstants::InvalidID)
	{
		return;
	}
	if (bMirrorsMesh)
	{
		StopMirroring();
	}
	ElementTriangles[TriangleID] = FIndex3i::Invalid();
	ReleaseElements(Old, bAllowElementFreeing);
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::FreeElement(int ElementID)
{
	Uses[ElementID] = FUse{IndexConstants::InvalidID, -1};
	FreeIds.Add(ElementID);
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::ReleaseElements(const FIndex3i& TriElements, bool bAllowElementFreeing)
{
	for (int Corner = 0; Corner < 3; ++Corner)
	{
		const int ElementID = TriElements[Corner];
		if (--Uses[ElementID].Num == 0 && bAllowElementFreeing)
		{
			FreeElement(ElementID);
		}
	}
}

template <typename RealType, int ElementSize>
void TDynamicMeshOverlay<RealType, ElementSize>::FreeUnusedElements()
{
	if (bMirrorsMesh)
	{
		StopMirroring();
	}
	for (int ElementID = 0; ElementID < MaxElementID(); ++ElementID)
	{
		if (Uses[ElementID].Num == 0)
		{
			FreeElement(ElementID);
		}
	}
}

template class TDynamicMeshOverlay<float, 2>;
template class TDynamicMeshOverlay<float, 3>;
template class TDynamicMeshOverlay<float, 4>;

} // namespace UE::Geometry
