// SPDX-License-Identifier: MIT
#include "Components/DynamicMeshComponent.h"

#include "Materials/MaterialInterface.h"
#include "UDynamicMesh.h"

using UE::Geometry::FDynamicMesh3;

void UBaseDynamicMeshComponent::SetMesh(FDynamicMesh3&&) {}

void UBaseDynamicMeshComponent::ProcessMesh(TFunctionRef<void(const FDynamicMesh3&)>) const {}

UMaterialInterface* UBaseDynamicMeshComponent::GetMaterial(int32 ElementIndex) const
{
	return BaseMaterials.IsValidIndex(ElementIndex) ? BaseMaterials[ElementIndex].Get() : nullptr;
}

void UBaseDynamicMeshComponent::SetMaterial(int32 ElementIndex, UMaterialInterface* Material)
{
	if (ElementIndex < 0)
	{
		return;
	}
	if (ElementIndex >= BaseMaterials.Num())
	{
		BaseMaterials.SetNum(ElementIndex + 1);
	}
	if (BaseMaterials[ElementIndex] != Material)
	{
		BaseMaterials[ElementIndex] = Material;
		MarkRenderStateDirty();
	}
}

UDynamicMeshComponent::UDynamicMeshComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, MeshObject(ObjectInitializer.CreateDefaultSubobject<UDynamicMesh>(this, TEXT("DynamicMesh")))
{
}

FDynamicMesh3* UDynamicMeshComponent::GetMesh()
{
	return MeshObject->GetMeshPtr();
}

const FDynamicMesh3* UDynamicMeshComponent::GetMesh() const
{
	return &MeshObject->GetMeshRef();
}

void UDynamicMeshComponent::SetMesh(FDynamicMesh3&& MoveMesh)
{
	MeshObject->SetMesh(MoveTemp(MoveMesh));
	NotifyMeshUpdated();
}

void UDynamicMeshComponent::ProcessMesh(TFunctionRef<void(const FDynamicMesh3&)> ProcessFunc) const
{
	MeshObject->ProcessMesh(ProcessFunc);
}

void UDynamicMeshComponent::NotifyMeshUpdated()
{
	LocalBounds = FBox(ForceInit);
	const FDynamicMesh3& Mesh = MeshObject->GetMeshRef();
	for (const int Vertex : Mesh.VertexIndicesItr())
	{
		LocalBounds += Mesh.GetVertex(Vertex);
	}
	UpdateBounds();
	MarkRenderStateDirty();
}

FBoxSphereBounds UDynamicMeshComponent::CalcBounds(const FTransform& LocalToWorld) const
{
	return LocalBounds.IsValid ? FBoxSphereBounds(LocalBounds).TransformBy(LocalToWorld)
							   : Super::CalcBounds(LocalToWorld);
}
