// SPDX-License-Identifier: MIT
/** Layers of a mesh's attribute set. */

#include "DynamicMesh/DynamicMeshAttributeSet.h"

namespace UE::Geometry
{

namespace
{
template <typename LayerType>
void SetNumLayers(TIndirectArray<LayerType>& Layers, int Num, const FDynamicMesh3* ParentMesh)
{
	while (Layers.Num() > Num)
	{
		Layers.RemoveAt(Layers.Num() - 1);
	}
	while (Layers.Num() < Num)
	{
		Layers.Add(new LayerType(ParentMesh));
	}
}

template <typename LayerType>
void CopyLayers(TIndirectArray<LayerType>& To, const TIndirectArray<LayerType>& From, const FDynamicMesh3* ParentMesh)
{
	for (int Index = 0; Index < From.Num(); ++Index)
	{
		To.Add(new LayerType(From[Index], ParentMesh));
	}
}
} // namespace

FDynamicMeshAttributeSet::FDynamicMeshAttributeSet(const FDynamicMesh3* InParentMesh)
	: ParentMesh(InParentMesh)
{
	SetNumLayers(UVLayers, 1, ParentMesh);
	SetNumLayers(NormalLayers, 1, ParentMesh);
}

FDynamicMeshAttributeSet::FDynamicMeshAttributeSet(
	const FDynamicMeshAttributeSet& Other, const FDynamicMesh3* InParentMesh)
	: ParentMesh(InParentMesh)
{
	CopyLayers(UVLayers, Other.UVLayers, ParentMesh);
	CopyLayers(NormalLayers, Other.NormalLayers, ParentMesh);
	if (Other.ColorLayer.IsValid())
	{
		ColorLayer = MakeUnique<FDynamicMeshColorOverlay>(*Other.ColorLayer, ParentMesh);
	}
	if (Other.MaterialIDAttrib.IsValid())
	{
		MaterialIDAttrib = MakeUnique<FDynamicMeshMaterialAttribute>(*Other.MaterialIDAttrib, ParentMesh);
	}
}

FDynamicMeshAttributeSet::~FDynamicMeshAttributeSet() = default;

void FDynamicMeshAttributeSet::SetNumUVLayers(int Num)
{
	check(Num >= 0);
	SetNumLayers(UVLayers, Num, ParentMesh);
}

void FDynamicMeshAttributeSet::SetNumNormalLayers(int Num)
{
	check(Num == 0 || Num == 1 || Num == 3);
	SetNumLayers(NormalLayers, Num, ParentMesh);
}

void FDynamicMeshAttributeSet::DisableTangents()
{
	if (NumNormalLayers() > 1)
	{
		SetNumNormalLayers(1);
	}
}

void FDynamicMeshAttributeSet::EnablePrimaryColors()
{
	if (!HasPrimaryColors())
	{
		ColorLayer = MakeUnique<FDynamicMeshColorOverlay>(ParentMesh);
	}
}

void FDynamicMeshAttributeSet::DisablePrimaryColors()
{
	ColorLayer.Reset();
}

void FDynamicMeshAttributeSet::EnableMaterialID()
{
	if (!HasMaterialID())
	{
		MaterialIDAttrib = MakeUnique<FDynamicMeshMaterialAttribute>(ParentMesh);
		MaterialIDAttrib->Initialize();
	}
}

void FDynamicMeshAttributeSet::DisableMaterialID()
{
	MaterialIDAttrib.Reset();
}

void FDynamicMeshAttributeSet::OnRemoveTriangle(int TriangleID)
{
	for (FDynamicMeshUVOverlay& Layer : UVLayers)
	{
		Layer.OnRemoveTriangle(TriangleID);
	}
	for (FDynamicMeshNormalOverlay& Layer : NormalLayers)
	{
		Layer.OnRemoveTriangle(TriangleID);
	}
	if (ColorLayer.IsValid())
	{
		ColorLayer->OnRemoveTriangle(TriangleID);
	}
	if (MaterialIDAttrib.IsValid())
	{
		MaterialIDAttrib->OnRemoveTriangle(TriangleID);
	}
}

void FDynamicMeshAttributeSet::Reparent(const FDynamicMesh3* NewParent)
{
	ParentMesh = NewParent;
	for (FDynamicMeshUVOverlay& Layer : UVLayers)
	{
		Layer.Reparent(NewParent);
	}
	for (FDynamicMeshNormalOverlay& Layer : NormalLayers)
	{
		Layer.Reparent(NewParent);
	}
	if (ColorLayer.IsValid())
	{
		ColorLayer->Reparent(NewParent);
	}
	if (MaterialIDAttrib.IsValid())
	{
		MaterialIDAttrib->Reparent(NewParent);
	}
}

} // namespace UE::Geometry
