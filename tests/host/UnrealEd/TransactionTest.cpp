// SPDX-License-Identifier: MIT
#include "Components/DirectionalLightComponent.h"
#include "Components/SceneComponent.h"
#include "Editor.h"
#include "EditorUndoClient.h"
#include "EngineFixture.h"
#include "Engine/World.h"
#include "Host/EditorState.h"
#include "Materials/Material.h"
#include "Materials/MaterialInstanceConstant.h"
#include "PreviewScene.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"

namespace
{
FText Text(const TCHAR* String)
{
	return FText::FromString(String);
}

class Transactions : public FEngineFixture
{
protected:
	static USceneComponent* MakeComponent(EObjectFlags Flags = RF_Transactional)
	{
		return NewObject<USceneComponent>(GetTransientPackage(), NAME_None, Flags);
	}
	/** What an editor does to an object. */
	static void Move(USceneComponent* Component, double X, const TCHAR* Title = TEXT("Move"))
	{
		const FScopedTransaction Transaction(Text(Title));
		Component->Modify();
		Component->SetRelativeLocation(FVector(X, 0.0, 0.0));
	}
	static double XOf(const USceneComponent* Component) { return Component->GetRelativeLocation().X; }
};
} // namespace

TEST_F(Transactions, UndoAndRedoSetTheValuesAgain)
{
	USceneComponent* const Component = MakeComponent();
	Move(Component, 1.0);
	Move(Component, 2.0);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(XOf(Component), 1.0);
	EXPECT_EQ(Component->GetComponentLocation().X, 1.0);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(XOf(Component), 0.0);
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(XOf(Component), 2.0);
	EXPECT_FALSE(GEditor->RedoTransaction());
}

TEST_F(Transactions, KeepAllPropertiesOfTheObject)
{
	UDirectionalLightComponent* const Light =
		NewObject<UDirectionalLightComponent>(GetTransientPackage(), NAME_None, RF_Transactional);
	{
		const FScopedTransaction Transaction(Text(TEXT("Dim")));
		Light->Modify();
		Light->SetIntensity(0.5f);
		Light->SetLightColor(FLinearColor(1.0f, 0.0f, 0.0f));
		Light->SetMobility(EComponentMobility::Static);
		Light->SetVisibility(false);
	}
	GEditor->UndoTransaction();
	EXPECT_EQ(Light->Intensity, 3.14159265f);
	EXPECT_EQ(Light->LightColor, FColor(255, 255, 255));
	EXPECT_EQ(Light->Mobility, EComponentMobility::Movable);
	EXPECT_TRUE(Light->IsVisible());
	GEditor->RedoTransaction();
	EXPECT_EQ(Light->Intensity, 0.5f);
	EXPECT_EQ(Light->LightColor, FColor(255, 0, 0));
	EXPECT_FALSE(Light->IsVisible());
}

TEST_F(Transactions, KeepOnlyWhatIsTransactional)
{
	USceneComponent* const Component = MakeComponent(RF_NoFlags);
	Move(Component, 1.0);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(XOf(Component), 1.0);
}

TEST_F(Transactions, ModifyTellsWhetherTheObjectIsKept)
{
	USceneComponent* const Component = MakeComponent();
	EXPECT_FALSE(Component->Modify());
	EXPECT_FALSE(GEditor->IsTransactionActive());
	const FScopedTransaction Transaction(Text(TEXT("Nothing")));
	EXPECT_TRUE(GEditor->IsTransactionActive());
	EXPECT_TRUE(Component->Modify());
	EXPECT_FALSE(MakeComponent(RF_NoFlags)->Modify());
}

TEST_F(Transactions, SeveralObjectsAreOneStep)
{
	USceneComponent* const A = MakeComponent();
	USceneComponent* const B = MakeComponent();
	{
		const FScopedTransaction Outer(Text(TEXT("Both")));
		Move(A, 1.0, TEXT("Inner"));
		Move(B, 2.0, TEXT("Inner"));
		Move(A, 3.0, TEXT("Inner"));
	}
	EXPECT_EQ(Host::UndoText().ToString(), FString(TEXT("Undo Both")));
	GEditor->UndoTransaction();
	EXPECT_EQ(XOf(A), 0.0);
	EXPECT_EQ(XOf(B), 0.0);
	GEditor->RedoTransaction();
	EXPECT_EQ(XOf(A), 3.0);
	EXPECT_EQ(XOf(B), 2.0);
}

TEST_F(Transactions, ACancelledOneNeverWas)
{
	USceneComponent* const Component = MakeComponent();
	Move(Component, 1.0);
	{
		FScopedTransaction Transaction(Text(TEXT("Drag")));
		Component->Modify();
		Component->SetRelativeLocation(FVector(9.0, 0.0, 0.0));
		EXPECT_TRUE(Transaction.IsOutstanding());
		Transaction.Cancel();
		EXPECT_FALSE(Transaction.IsOutstanding());
	}
	EXPECT_EQ(XOf(Component), 1.0);
	EXPECT_FALSE(GEditor->IsTransactionActive());
	EXPECT_EQ(Host::TransactionTitles().Num(), 1);
}

TEST_F(Transactions, OneThatIsNotWantedOpensNothing)
{
	const FScopedTransaction Transaction(Text(TEXT("Nothing")), false);
	EXPECT_FALSE(Transaction.IsOutstanding());
	EXPECT_FALSE(GEditor->IsTransactionActive());
}

TEST_F(Transactions, TellWhatUndoAndRedoWouldDo)
{
	EXPECT_EQ(Host::UndoText().ToString(), FString(TEXT("Undo")));
	EXPECT_FALSE(Host::CanUndo());
	USceneComponent* const Component = MakeComponent();
	Move(Component, 1.0, TEXT("First"));
	Move(Component, 2.0, TEXT("Second"));
	GEditor->UndoTransaction();
	EXPECT_EQ(Host::UndoText().ToString(), FString(TEXT("Undo First")));
	EXPECT_EQ(Host::RedoText().ToString(), FString(TEXT("Redo Second")));
	EXPECT_TRUE(Host::CanRedo());
	Move(Component, 3.0, TEXT("Third"));
	EXPECT_EQ(Host::RedoText().ToString(), FString(TEXT("Redo")));
	ASSERT_EQ(Host::TransactionTitles().Num(), 2);
	EXPECT_EQ(Host::TransactionTitles()[1].ToString(), FString(TEXT("Third")));
	GEditor->ResetTransaction(Text(TEXT("a test")));
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_EQ(XOf(Component), 3.0);
}

TEST_F(Transactions, AreRefusedToUndoWhileOneIsOpen)
{
	USceneComponent* const Component = MakeComponent();
	Move(Component, 1.0);
	GEditor->BeginTransaction(Text(TEXT("Open")));
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_FALSE(GEditor->RedoTransaction());
	GEditor->EndTransaction();
	EXPECT_EQ(GEditor->EndTransaction(), INDEX_NONE);
}

TEST_F(Transactions, DoNotKeepTheirObjectsAlive)
{
	const TWeakObjectPtr<USceneComponent> Component = MakeComponent();
	Move(Component.Get(), 1.0);
	CollectAll();
	EXPECT_FALSE(Component.IsValid());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_TRUE(GEditor->RedoTransaction());
}

TEST_F(Transactions, KeepAliveWhatTheValuesOfALivingObjectReferTo)
{
	UMaterialInstanceConstant* const Instance =
		NewObject<UMaterialInstanceConstant>(GetTransientPackage(), NAME_None, RF_Transactional);
	Instance->AddToRoot();
	const TWeakObjectPtr<UMaterial> Former = NewObject<UMaterial>();
	Instance->Parent = Former.Get();
	{
		const FScopedTransaction Transaction(Text(TEXT("Reparent")));
		Instance->Modify();
		Instance->Parent = nullptr;
	}
	CollectAll();
	ASSERT_TRUE(Former.IsValid());
	GEditor->UndoTransaction();
	EXPECT_EQ(Instance->Parent, Former.Get());
	Instance->RemoveFromRoot();
}

TEST_F(Transactions, ForgetTheOldestOfTooMany)
{
	USceneComponent* const Component = MakeComponent();
	for (int32 Step = 1; Step <= 300; ++Step)
	{
		Move(Component, Step);
	}
	int32 Undone = 0;
	while (GEditor->UndoTransaction())
	{
		++Undone;
	}
	EXPECT_EQ(Undone, 256);
	EXPECT_EQ(XOf(Component), 44.0);
}

TEST_F(Transactions, ObjectsSeeUndoAsAnEdit)
{
	USceneComponent* const Component = MakeComponent();
	Move(Component, 1.0);
	std::vector<const UObject*> Edited;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&](UObject* Object, FPropertyChangedEvent&) { Edited.push_back(Object); });
	GEditor->UndoTransaction();
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
	EXPECT_EQ(Edited, std::vector<const UObject*>{Component});
	EXPECT_EQ(Host::TransactionTitles().Num(), 1);
}
