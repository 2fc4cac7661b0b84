// SPDX-License-Identifier: MIT
#include "Host/SceneCapture.h"

#include "CaptureMaterial.h"
#include "CaptureMesh.h"

#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Engine/World.h"
#include "Host/Scene.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "Templates/Casts.h"

namespace Host
{
namespace
{

FFloat3 ToFloats(const FVector& V)
{
	return {float(V.X), float(V.Y), float(V.Z)};
}

FPlacement PlacementOf(const FTransform& Transform)
{
	FPlacement Placement;
	Placement.AxisX = ToFloats(Transform.TransformVector(FVector(1.0, 0.0, 0.0)));
	Placement.AxisY = ToFloats(Transform.TransformVector(FVector(0.0, 1.0, 0.0)));
	Placement.AxisZ = ToFloats(Transform.TransformVector(FVector(0.0, 0.0, 1.0)));
	Placement.Origin = ToFloats(Transform.GetLocation());
	return Placement;
}

} // namespace

struct FSceneCapture::FTextures
{
	FTextureSnapshots Snapshots;
};

FSceneCapture::FSceneCapture()
	: Textures(std::make_unique<FTextures>())
{
}

FSceneCapture::~FSceneCapture() = default;

std::shared_ptr<const FMeshSnapshot> FSceneCapture::MeshOf(const UPrimitiveComponent& Component, uint64_t Revision)
{
	FMeshEntry& Entry = Meshes[&Component];
	if (Entry.Mesh && Entry.Revision == Revision)
	{
		return Entry.Mesh;
	}
	Entry = FMeshEntry();
	Entry.Revision = Revision;
	if (const auto* Dynamic = Cast<const UDynamicMeshComponent>(&Component))
	{
		Dynamic->ProcessMesh([&Entry](const UE::Geometry::FDynamicMesh3& Mesh)
			{ Entry.Mesh = std::make_shared<FMeshSnapshot>(SnapshotOf(Mesh)); });
	}
	else if (const auto* Skinned = Cast<const USkinnedMeshComponent>(&Component))
	{
		const FSkeletalMeshRenderData* RenderData = Skinned->GetSkeletalMeshRenderData();
		if (RenderData && RenderData->LODRenderData.Num() > 0)
		{
			Entry.Mesh = std::make_shared<FMeshSnapshot>(SnapshotOf(RenderData->LODRenderData[0]));
		}
	}
	return Entry.Mesh;
}

FSceneSnapshot FSceneCapture::Capture(const UWorld& World)
{
	FSceneSnapshot Snapshot;
	std::map<const UPrimitiveComponent*, FMeshEntry> Seen;
	const FScene* Scene = FScene::Of(&World);
	const int32 Count = Scene ? Scene->GetPrimitives().Num() : 0;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		const FScene::FPrimitive& Primitive = Scene->GetPrimitives()[Index];
		const UPrimitiveComponent& Component = *Primitive.Component;
		FObjectSnapshot Object;
		Object.Mesh = MeshOf(Component, Primitive.Revision);
		Seen[&Component] = Meshes[&Component];
		if (!Object.Mesh || !Component.IsVisible())
		{
			continue;
		}
		Object.bSelected = Component.ShouldRenderSelected();
		Object.Placement = PlacementOf(Component.GetComponentTransform());
		for (int32 Slot = 0; Slot < Component.GetNumMaterials(); ++Slot)
		{
			const UMaterialInterface* Material = Component.GetMaterial(Slot);
			Object.Materials.push_back(Material ? SnapshotOf(*Material, Textures->Snapshots) : nullptr);
		}
		Snapshot.Objects.push_back(std::move(Object));
	}
	Meshes.swap(Seen);
	Textures->Snapshots.DropUnused();
	return Snapshot;
}

} // namespace Host
