// SPDX-License-Identifier: MIT
#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Editor.h"
#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Engine/SkeletalMesh.h"
#include "GameFramework/Actor.h"
#include "Materials/MaterialInterface.h"
#include "Modules/ModuleManager.h"
#include "Source/Editor/OpenEditorFixture.h"
#include "Source/SampleMeshes.h"
#include "Templates/Casts.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

using namespace SampleMeshes;
using ZefTandemCore::TandemObjectType;

namespace
{

class PreviewObjects : public FOpenEditorFixture
{
};

constexpr int32 Garment = 2;
constexpr int32 Avatar = 4;

} // namespace

TEST_F(PreviewObjects, JointsDecideTheClassWhateverTheType)
{
	EXPECT_EQ(Editor->AddObject(Garment, MakeSkinned())->GetClass(), USkeletalMeshComponent::StaticClass());
	EXPECT_EQ(Editor->AddObject(Avatar, MakeRigid())->GetClass(), UDynamicMeshComponent::StaticClass());
}

TEST_F(PreviewObjects, ARigidObjectStandsAsAnActorOfItsOwnWithItsMaterials)
{
	UDynamicMeshComponent* const Component = Cast<UDynamicMeshComponent>(Editor->AddObject(Garment, MakeRigid()));

	ASSERT_NE(Component, nullptr);
	EXPECT_EQ(Component->GetName(), FString(TEXT("DynamicMesh")));
	EXPECT_EQ(Component->GetMesh()->TriangleCount(), 1);
	EXPECT_EQ(Component->GetNumMaterials(), 1);
	EXPECT_EQ(Component->GetMaterial(0)->GetName(), FString(TEXT("MI_Cotton_Matte_1")));
	EXPECT_EQ(Component->GetOwner()->GetRootComponent(), Component);
	EXPECT_TRUE(Component->IsRegistered());
	EXPECT_TRUE(Component->HasAnyFlags(RF_Transient));
	EXPECT_EQ(Component->Bounds.Origin.X, 1.0);
	EXPECT_EQ(Component->Bounds.BoxExtent.X, 1.0);
}

TEST_F(PreviewObjects, ASkinnedObjectShowsItsSkeletalMesh)
{
	USkeletalMeshComponent* const Component = Cast<USkeletalMeshComponent>(Editor->AddObject(Avatar, MakeSkinned()));

	ASSERT_NE(Component, nullptr);
	EXPECT_EQ(Component->GetName(), FString(TEXT("SkeletalMesh")));
	EXPECT_EQ(Component->GetSkeletalMeshAsset()->GetName(), FString(TEXT("SkeletalMesh")));
	EXPECT_EQ(Component->GetOwner()->GetRootComponent(), Component);
	EXPECT_TRUE(Component->IsRegistered());
}

TEST_F(PreviewObjects, AnArrivalReplacesEveryObjectOfItsTypeAndNoOther)
{
	Editor->AddObject(Garment, MakeRigid());
	Editor->AddObject(Garment, MakeRigid());
	UPrimitiveComponent* const AvatarComponent = Editor->AddObject(Avatar, MakeSkinned());
	const TWeakObjectPtr<UPrimitiveComponent> Old = Editor->GetObjectComponents(Garment)[0];

	Arrive(TandemObjectType::Garment, MakeRigid());

	EXPECT_EQ(Editor->GetObjectComponents(Garment).Num(), 1);
	EXPECT_FALSE(Old.IsValid());
	EXPECT_EQ(Editor->GetObjectComponents(Avatar), TArray<UPrimitiveComponent*>({AvatarComponent}));
}

TEST_F(PreviewObjects, RemovingTheLastLeavesZeroNumbersAndTheEntryServesAgain)
{
	UPrimitiveComponent* const Component = Editor->AddObject(Garment, MakeRigid());
	EXPECT_EQ(Editor->GetObjectStats(Garment), FIntVector(1, 1, 3));

	Editor->RemoveObject(Garment, Component);

	EXPECT_EQ(Editor->GetObjectComponents(Garment).Num(), 0);
	EXPECT_EQ(Editor->GetObjectStats(Garment), FIntVector(0, 0, 0));
	EXPECT_FALSE(IsValid(Component));
	Editor->AddObject(Garment, MakeRigid());
	EXPECT_EQ(Editor->GetObjectStats(Garment), FIntVector(1, 1, 3));
}

TEST_F(PreviewObjects, NumbersOfSkinnedObjectsComeFromTheirRenderData)
{
	Editor->AddObject(Avatar, MakeSkinned());

	EXPECT_EQ(Editor->GetObjectStats(Avatar), FIntVector(1, 1, 3));
	EXPECT_EQ(Editor->GetObjectStats(8), FIntVector(0, 0, 0));
}

TEST_F(PreviewObjects, ATypeThatNeverArrivedIsEmpty)
{
	EXPECT_EQ(Editor->GetObjectComponents(16).Num(), 0);
}

TEST_F(PreviewObjects, SelectionReachesTheTree)
{
	UPrimitiveComponent* const Component = Editor->AddObject(Garment, MakeRigid());
	Editor->GetTandemTree()->Refresh();
	Editor->SetSelectedObjects({Component}, true);

	ASSERT_EQ(Editor->GetTandemTree()->GetSelectedItems().Num(), 1);
	EXPECT_EQ(Editor->GetTandemTree()->GetSelectedItems()[0]->GetPreviewSceneComponent(), Component);
	EXPECT_EQ(Editor->GetSelectedObjects(), TArray<UPrimitiveComponent*>({Component}));
}

TEST_F(PreviewObjects, AnArrivalClearsTheRowSelection)
{
	Arrive(TandemObjectType::Avatar, MakeSkinned());
	Select({Editor->GetObjectComponents(Avatar)[0]});
	Arrive(TandemObjectType::Garment, MakeRigid());

	EXPECT_EQ(Editor->GetTandemTree()->GetSelectedItems().Num(), 0);
}

TEST_F(PreviewObjects, ARemovedObjectStaysSelectedUntilTheNextChangeAndHarmsNothing)
{
	UPrimitiveComponent* const First = Editor->AddObject(Garment, MakeRigid());
	UPrimitiveComponent* const Second = Editor->AddObject(Avatar, MakeSkinned());
	Editor->GetTandemTree()->Refresh();
	Editor->SetSelectedObjects({First, Second}, true);
	Editor->RemoveObject(Garment, First);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS, true);

	EXPECT_EQ(Editor->GetSelectedObjects().Num(), 2);
	ASSERT_EQ(Editor->GetTandemTree()->GetSelectedItems().Num(), 1);
	EXPECT_EQ(Editor->GetTandemTree()->GetSelectedItems()[0]->GetPreviewSceneComponent(), Second);
	Editor->SetSelectedObjects({Second}, true);
	EXPECT_EQ(Editor->GetSelectedObjects(), TArray<UPrimitiveComponent*>({Second}));
}

TEST_F(PreviewObjects, ClosingWithARemovedObjectSelectedIsSafe)
{
	UPrimitiveComponent* const Component = Editor->AddObject(Garment, MakeRigid());
	Editor->SetSelectedObjects({Component}, true);
	Editor->RemoveObject(Garment, Component);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS, true);

	Close();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS, true);
	Tick(0.1);
	EXPECT_TRUE(Dialogs().Messages().empty());
}

TEST_F(PreviewObjects, OneEditorIsOpenAtATimeAndClosingLetsTheNextStartAfresh)
{
	FZEFTandemEditorModule& Module = FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	EXPECT_EQ(Module.CreateEditor().Get(), Editor.Get());
	Arrive(TandemObjectType::Garment, MakeRigid());

	Close();
	EXPECT_FALSE(Module.IsEditorOpen());
	const TSharedPtr<IZEFTandemEditor> Next = Module.CreateEditor();
	EXPECT_TRUE(Module.IsEditorOpen());
	EXPECT_EQ(Next->GetObjectComponents(Garment).Num(), 0);
}
