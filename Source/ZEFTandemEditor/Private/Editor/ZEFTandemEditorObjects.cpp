// SPDX-License-Identifier: MIT
// What stands in the preview: arrival, removal, selection and numbers.
#include "Editor/ZEFTandemEditor.h"

#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Editor.h"
#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"
#include "Editor/ZEFPreviewScene.h"
#include "Engine/SkeletalMesh.h"
#include "EditorViewportTabContent.h"
#include "GameFramework/Actor.h"
#include "IDetailsView.h"
#include "Rendering/SkeletalMeshLODRenderData.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "UnrealClient.h"
#include "Utils/ZEFTandemEditorUtils.h"

namespace
{

constexpr int32 InvalidObjectType = 255;
constexpr double FocusMargin = 50.0; // cm, on every side

void Redraw(const TSharedPtr<SZEFTandemEditorViewport>& Viewport)
{
	const TSharedPtr<FEditorViewportClient> ViewportClient = Viewport->GetViewportClient();
	if (ViewportClient->Viewport != nullptr)
	{
		ViewportClient->Viewport->Invalidate();
	}
}

} // namespace

TArray<UPrimitiveComponent*> FZEFTandemEditor::GetObjectComponents(int32 ObjectType) const
{
	const TArray<UPrimitiveComponent*>* const Components = ObjectComponents.Find(ObjectType);
	return Components != nullptr ? *Components : TArray<UPrimitiveComponent*>();
}

TSharedPtr<SZEFTandemEditorViewport> FZEFTandemEditor::GetViewport() const
{
	if (!ViewportTabContent.IsValid())
	{
		return nullptr;
	}
	return StaticCastSharedPtr<SZEFTandemEditorViewport>(ViewportTabContent->GetFirstViewport());
}

UPrimitiveComponent* FZEFTandemEditor::AddObject(int32 ObjectType, const FZEFSurfaceMesh& Mesh)
{
	const TSharedPtr<SZEFTandemEditorViewport> Viewport = GetViewport();
	if (!Viewport.IsValid())
	{
		return nullptr;
	}
	UPrimitiveComponent* Component = nullptr;
	if (!Mesh.Joints.IsEmpty())
	{
		const TSharedPtr<FZEFSkeletalMeshData> Data = MakeShared<FZEFSkeletalMeshData>();
		Data->Name = TEXT("SkeletalMesh");
		ZEFEditorUtils::ZEFSurfaceMeshToSkeletalMeshData(Mesh, Data->Name, Data.Get());
		Component = Viewport->AddSkeletalMeshComponent(Data->SkeletalMesh);
	}
	else
	{
		const TSharedPtr<FZEFDynamicMeshData> Data = MakeShared<FZEFDynamicMeshData>();
		Data->Name = TEXT("DynamicMesh");
		ZEFEditorUtils::ZEFSurfaceMeshToDynamicMeshData(Mesh, Data->Name, Data.Get());
		TArray<UMaterialInterface*> Materials;
		Materials.Reserve(Data->Materials.Num());
		for (const FZEFMaterialData& Material : Data->Materials)
		{
			Materials.Add(Material.Material);
		}
		Component = Viewport->AddDynamicMeshComponent(Data->DynamicMesh.Get(), Materials);
	}
	ObjectComponents.FindOrAdd(ObjectType).Add(Component);
	UpdateObjectStats(ObjectType, Component);
	return Component;
}

void FZEFTandemEditor::RemoveObject(int32 ObjectType, UPrimitiveComponent* Component)
{
	const TSharedPtr<SZEFTandemEditorViewport> Viewport = GetViewport();
	if (!Viewport.IsValid() || Component == nullptr)
	{
		return;
	}
	AActor* const Actor = Component->GetOwner();
	PreviewScene->RemoveComponent(Component);
	Actor->Destroy(false, true);
	Redraw(Viewport);
	ObjectComponents.FindChecked(ObjectType).Remove(Component);
	UpdateObjectStats(ObjectType, nullptr);
	TandemTree->Refresh();
}

void FZEFTandemEditor::RemoveObjectsOfType(int32 ObjectType)
{
	if (const TArray<UPrimitiveComponent*>* const Present = ObjectComponents.Find(ObjectType))
	{
		const TArray<UPrimitiveComponent*> Components = *Present;
		for (UPrimitiveComponent* const Component : Components)
		{
			RemoveObject(ObjectType, Component);
		}
	}
}

void FZEFTandemEditor::SetSelectedObjects(const TArray<UPrimitiveComponent*>& Objects, bool bUpdateViewport)
{
	GEditor->SelectNone(true, true, true);
	SelectedObjects = TArray<UPrimitiveComponent*>(Objects);
	TArray<UObject*> Listed;
	Listed.Reserve(SelectedObjects.Num());
	for (UPrimitiveComponent* const Object : SelectedObjects)
	{
		if (Object == nullptr)
		{
			continue;
		}
		GEditor->SelectComponent(Object, true, true, false);
		Listed.Add(Object);
	}
	DetailsView->SetObjects(Listed, false, false);
	if (bUpdateViewport)
	{
		if (const TSharedPtr<SZEFTandemEditorViewport> Viewport = GetViewport())
		{
			Redraw(Viewport);
		}
		TandemTree->SelectItemsBy(
			[this](const IZEFTandemTreeItem& Item)
			{
				UPrimitiveComponent* const Component = Item.GetPreviewSceneComponent();
				return Component != nullptr && SelectedObjects.Contains(Component);
			});
	}
}

FIntVector FZEFTandemEditor::GetObjectStats(int32 ObjectType)
{
	if (!ObjectComponents.Contains(ObjectType))
	{
		return FIntVector(0, 0, 0);
	}
	const FObjectStats& Stats = ObjectStats.FindOrAdd(ObjectType);
	return FIntVector(Stats.Count, Stats.Triangles, Stats.Vertices);
}

void FZEFTandemEditor::UpdateObjectStats(int32 InObjectType, const UPrimitiveComponent* /*Component*/)
{
	if (InObjectType == InvalidObjectType)
	{
		UE_LOG(LogTemp, Log, TEXT("UpdateObjectStats::InObjectType is Invalid"));
		return;
	}
	const TArray<UPrimitiveComponent*>* const Components = ObjectComponents.Find(InObjectType);
	if (Components == nullptr)
	{
		return;
	}
	FObjectStats& Stats = ObjectStats.FindOrAdd(InObjectType);
	Stats = FObjectStats();
	for (UPrimitiveComponent* const Component : *Components)
	{
		++Stats.Count;
		if (Component->GetClass() == USkeletalMeshComponent::StaticClass())
		{
			const USkeletalMesh* const Mesh = static_cast<USkeletalMeshComponent*>(Component)->GetSkeletalMeshAsset();
			const FSkeletalMeshLODRenderData& LOD = Mesh->GetResourceForRendering()->LODRenderData[0];
			for (const FSkelMeshRenderSection& Section : LOD.RenderSections)
			{
				Stats.Triangles += Section.NumTriangles;
			}
			Stats.Vertices += LOD.GetNumVertices();
		}
		else if (Component->GetClass() == UDynamicMeshComponent::StaticClass())
		{
			const UE::Geometry::FDynamicMesh3* const Mesh = static_cast<UDynamicMeshComponent*>(Component)->GetMesh();
			Stats.Triangles += Mesh->TriangleCount();
			Stats.Vertices += Mesh->VertexCount();
		}
	}
}

void FZEFTandemEditor::FocusCamera()
{
	if (!ViewportTabContent.IsValid())
	{
		return;
	}
	FBox Box(ForceInit);
	for (const TSharedPtr<IZEFTandemTreeItem>& Item : TandemTree->GetSelectedItems())
	{
		const UPrimitiveComponent* const Component = Item->GetPreviewSceneComponent();
		if (Component == nullptr)
		{
			continue;
		}
		Box += FBox::BuildAABB(Component->Bounds.Origin, Component->Bounds.BoxExtent);
	}
	Box = Box.ExpandBy(FocusMargin);

	FViewportTabContent::ViewportActionFunction Focus = [&Box](FName, TSharedPtr<IEditorViewportLayoutEntity> Entity)
	{
		const TSharedPtr<FEditorViewportClient> ViewportClient = Entity->AsAssetEditorViewport()->GetViewportClient();
		ViewportClient->FocusViewportOnBox(Box, false);
		ViewportClient->Invalidate();
	};
	ViewportTabContent->PerformActionOnViewports(Focus);
}
