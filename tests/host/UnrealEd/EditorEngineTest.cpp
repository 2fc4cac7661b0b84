// SPDX-License-Identifier: MIT
#include "Components/SceneComponent.h"
#include "Editor.h"
#include "EditorReimportHandler.h"
#include "EngineFixture.h"
#include "Engine/World.h"
#include "Host/EditorState.h"
#include "Subsystems/ImportSubsystem.h"
#include "TickableEditorObject.h"
#include "UObject/Package.h"

#include <functional>

using EditorEngine = FEngineFixture;

namespace
{
class FUndoClient : public FEditorUndoClient
{
public:
	FUndoClient() { GEditor->RegisterForUndo(this); }
	~FUndoClient() override { GEditor->UnregisterForUndo(this); }

	void PostUndo(bool bSuccess) override { Calls += bSuccess ? "undo " : "no undo "; }
	void PostRedo(bool bSuccess) override { Calls += bSuccess ? "redo " : "no redo "; }

	std::string Calls;
};

class FTickable : public FTickableEditorObject
{
public:
	void Tick(float DeltaTime) override
	{
		Time += DeltaTime;
		if (OnTick)
		{
			OnTick();
		}
	}
	bool IsTickable() const override { return bTickable; }
	TStatId GetStatId() const override { return TStatId(); }

	float Time = 0.0f;
	bool bTickable = true;
	std::function<void()> OnTick;
};

void Transact(const TCHAR* Name)
{
	GEditor->BeginTransaction(FText::FromString(Name));
	GEditor->EndTransaction();
}
} // namespace

TEST_F(EditorEngine, TellsUndoClientsOfWhatWasUndone)
{
	FUndoClient Client;
	EXPECT_EQ(Host::UndoClientCount(), 1);
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_EQ(Client.Calls, "");

	Transact(TEXT("A"));
	Transact(TEXT("B"));
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(Client.Calls, "undo undo redo ");
}

TEST_F(EditorEngine, ANewTransactionEndsWhatCouldBeRedone)
{
	Transact(TEXT("A"));
	GEditor->UndoTransaction();
	Transact(TEXT("B"));
	EXPECT_FALSE(GEditor->RedoTransaction());
	EXPECT_TRUE(GEditor->UndoTransaction(false));
	EXPECT_FALSE(GEditor->RedoTransaction());
}

TEST_F(EditorEngine, TransactionsWithinAnotherAreOneStep)
{
	GEditor->BeginTransaction(FText::FromString(TEXT("Outer")));
	Transact(TEXT("Inner"));
	EXPECT_FALSE(GEditor->UndoTransaction());
	GEditor->EndTransaction();
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_FALSE(GEditor->UndoTransaction());
}

TEST_F(EditorEngine, KeepsASelectionOfComponents)
{
	USceneComponent* const A = NewObject<USceneComponent>();
	USceneComponent* const B = NewObject<USceneComponent>();
	GEditor->SelectComponent(A, true, true);
	GEditor->SelectComponent(B, true, true);
	GEditor->SelectComponent(A, true, true);
	EXPECT_EQ(Host::SelectedComponents(), TArray<UActorComponent*>({A, B}));
	EXPECT_EQ(Host::SelectionNoteCount(), 2);

	GEditor->SelectComponent(A, false, false);
	EXPECT_EQ(Host::SelectedComponents(), TArray<UActorComponent*>({B}));
	EXPECT_EQ(Host::SelectionNoteCount(), 2);
	GEditor->SelectNone(true, true, true);
	EXPECT_EQ(Host::SelectedComponents().Num(), 0);
	EXPECT_EQ(Host::SelectionNoteCount(), 3);
}

TEST_F(EditorEngine, SelectionKeepsNothingAlive)
{
	GEditor->SelectComponent(NewObject<USceneComponent>(), true, true);
	CollectAll();
	EXPECT_EQ(Host::SelectedComponents().Num(), 0);
}

TEST_F(EditorEngine, PreviewsAtSM5UnlessAPreviewLevelIsActive)
{
	EXPECT_EQ(GEditor->PreviewPlatform.GetEffectivePreviewFeatureLevel(), ERHIFeatureLevel::SM5);
	TDelegateRecorder<ERHIFeatureLevel::Type> Changes;
	const FDelegateHandle Handle = GEditor->OnPreviewFeatureLevelChanged().AddLambda(Changes.Functor());

	GEditor->SetPreviewPlatform(FPreviewPlatformInfo(ERHIFeatureLevel::ES3_1, true), false);
	EXPECT_EQ(GEditor->PreviewPlatform.GetEffectivePreviewFeatureLevel(), ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(GEditor->GetEditorWorldContext().World()->GetFeatureLevel(), ERHIFeatureLevel::ES3_1);
	GEditor->SetPreviewPlatform(FPreviewPlatformInfo(ERHIFeatureLevel::ES3_1, true), false);
	GEditor->SetPreviewPlatform(FPreviewPlatformInfo(ERHIFeatureLevel::ES3_1, false), false);
	ASSERT_EQ(Changes.Num(), 2);
	EXPECT_EQ(std::get<0>(Changes.All()[0]), ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(std::get<0>(Changes.All()[1]), ERHIFeatureLevel::SM5);
	GEditor->OnPreviewFeatureLevelChanged().Remove(Handle);
}

TEST_F(EditorEngine, HasOneSubsystemOfEachClass)
{
	UImportSubsystem* const Import = GEditor->GetEditorSubsystem<UImportSubsystem>();
	ASSERT_NE(Import, nullptr);
	CollectAll();
	EXPECT_EQ(GEditor->GetEditorSubsystem<UImportSubsystem>(), Import);
	Import->OnAssetPostImport.RemoveAll(this);
}

TEST_F(EditorEngine, TellsOfReimports)
{
	TDelegateRecorder<UObject*, bool> Calls;
	const FDelegateHandle Handle = FReimportManager::Instance()->OnPostReimport().AddLambda(Calls.Functor());
	EXPECT_EQ(FReimportManager::Instance()->OnPostReimport().RemoveAll(this), 0);
	EXPECT_TRUE(FReimportManager::Instance()->OnPostReimport().Remove(Handle));
	EXPECT_EQ(Calls.Num(), 0);
}

TEST_F(EditorEngine, TicksEditorObjectsThatMayTick)
{
	FTickable First;
	FTickable Second;
	Second.bTickable = false;
	Tick(0.25);
	EXPECT_EQ(First.Time, 0.25f);
	EXPECT_EQ(Second.Time, 0.0f);
}

TEST_F(EditorEngine, EditorObjectsMayComeAndGoWhileTheyTick)
{
	FTickable First;
	std::unique_ptr<FTickable> Second = std::make_unique<FTickable>();
	std::unique_ptr<FTickable> Late;
	First.OnTick = [&]
	{
		Second.reset();
		if (!Late)
		{
			Late = std::make_unique<FTickable>();
		}
	};
	Tick(0.25);
	ASSERT_TRUE(Late);
	EXPECT_EQ(Late->Time, 0.0f);
	Tick(0.25);
	EXPECT_EQ(Late->Time, 0.25f);
}
