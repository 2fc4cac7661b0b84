// SPDX-License-Identifier: MIT
#include "Editor.h"

#include "Components/PrimitiveComponent.h"
#include "EditorSubsystem.h"
#include "EditorUndoClient.h"
#include "EditorViewportClient.h"
#include "EditorViewportCommands.h"
#include "Engine/World.h"
#include "Host/ChangeRecorder.h"
#include "Host/EditorState.h"
#include "Host/SelectionQuery.h"
#include "MeshHitTester.h"
#include "ViewportDrawing.h"
#include "Templates/Casts.h"
#include "TickableEditorObject.h"
#include "TimerManager.h"
#include "Transactions.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

UEditorEngine* GEditor = nullptr;

namespace Host
{
static bool RecordChange(UObject& Object);
}

namespace
{
bool IsSelectedInEditor(const UPrimitiveComponent& Component)
{
	return GEditor && Host::SelectedComponents().Contains(&Component);
}

/** The scene draws a selected component with a line around it. */
void ShowSelection(UActorComponent* Component)
{
	if (UPrimitiveComponent* const Primitive = Cast<UPrimitiveComponent>(Component))
	{
		Primitive->PushSelectionToProxy();
	}
}
} // namespace

UEditorEngine::UEditorEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UEditorEngine::InitEditor()
{
	TimerManager = MakeShared<FTimerManager>();
	Transactions = MakeShared<Host::FTransactions>();
	Host::SetChangeRecorder(&Host::RecordChange);
	FEditorViewportCommands::Register();
	static Host::FMeshHitTester HitTester;
	Host::SetDefaultHitTester(&HitTester);
	Host::SetSelectionQuery(&IsSelectedInEditor);
	EditorWorld = UWorld::CreateWorld(EWorldType::Editor, true, FName(TEXT("Untitled")));
	EditorWorldContext.WorldType = EWorldType::Editor;
	EditorWorldContext.SetCurrentWorld(EditorWorld);
}

void UEditorEngine::PreExit()
{
	bExiting = true;
	Host::SetChangeRecorder(nullptr);
	Transactions.Reset();
	Host::SetSelectionQuery(nullptr);
	Host::SetDefaultHitTester(nullptr);
	FEditorViewportCommands::Unregister();
	Subsystems.Empty();
	SelectedComponents.Empty();
	if (EditorWorld)
	{
		EditorWorldContext.SetCurrentWorld(nullptr);
		EditorWorld->DestroyWorld(true);
		EditorWorld = nullptr;
	}
	TimerManager.Reset();
}

void UEditorEngine::Tick(float DeltaSeconds, bool)
{
	GetTimerManager()->Tick(DeltaSeconds);
	FTickableEditorObject::TickObjects(DeltaSeconds);
	// What a client does in its tick may close viewports, this one's too, or open others.
	const TArray<FEditorViewportClient*> Clients = AllViewportClients;
	for (FEditorViewportClient* const Client : Clients)
	{
		if (AllViewportClients.Contains(Client))
		{
			Client->Tick(DeltaSeconds);
		}
	}
	for (FEditorViewportClient* const Client : Clients)
	{
		if (AllViewportClients.Contains(Client) && Host::IsToBeDrawn(*Client))
		{
			Client->Viewport->Draw();
		}
	}
}

TSharedRef<FTimerManager> UEditorEngine::GetTimerManager()
{
	return TimerManager.ToSharedRef();
}

FWorldContext& UEditorEngine::GetEditorWorldContext(bool)
{
	return EditorWorldContext;
}

void UEditorEngine::SetPreviewPlatform(const FPreviewPlatformInfo& NewPreviewPlatform, bool)
{
	const ERHIFeatureLevel::Type Former = PreviewPlatform.GetEffectivePreviewFeatureLevel();
	PreviewPlatform = NewPreviewPlatform;
	const ERHIFeatureLevel::Type Level = PreviewPlatform.GetEffectivePreviewFeatureLevel();
	if (Level == Former)
	{
		return;
	}
	DefaultWorldFeatureLevel = Level;
	if (EditorWorld)
	{
		EditorWorld->ChangeFeatureLevel(Level);
	}
	PreviewFeatureLevelChanged.Broadcast(Level);
}

void UEditorEngine::RegisterForUndo(FEditorUndoClient* UndoClient)
{
	UndoClients.AddUnique(UndoClient);
}

void UEditorEngine::UnregisterForUndo(FEditorUndoClient* UndoClient)
{
	UndoClients.Remove(UndoClient);
}

void UEditorEngine::SelectNone(bool bNoteSelectionChange, bool, bool)
{
	const TArray<UActorComponent*> Former = Host::SelectedComponents();
	SelectedComponents.Empty();
	for (UActorComponent* const Component : Former)
	{
		ShowSelection(Component);
	}
	if (bNoteSelectionChange)
	{
		++SelectionNotes;
	}
}

void UEditorEngine::SelectComponent(UActorComponent* Component, bool bInSelected, bool bNotify, bool)
{
	const TWeakObjectPtr<UActorComponent> Weak(Component);
	if (!Component || SelectedComponents.Contains(Weak) == bInSelected)
	{
		return;
	}
	if (bInSelected)
	{
		SelectedComponents.Add(Weak);
	}
	else
	{
		SelectedComponents.Remove(Weak);
	}
	ShowSelection(Component);
	if (bNotify)
	{
		++SelectionNotes;
	}
}

UObject* UEditorEngine::GetEditorSubsystemBase(UClass* SubsystemClass)
{
	for (const TObjectPtr<UEditorSubsystem>& Subsystem : Subsystems)
	{
		if (Subsystem->GetClass() == SubsystemClass)
		{
			return Subsystem;
		}
	}
	if (bExiting)
	{
		return nullptr;
	}
	UEditorSubsystem* const Subsystem = NewObject<UEditorSubsystem>(this, SubsystemClass, NAME_None, RF_Transient);
	Subsystems.Add(Subsystem);
	return Subsystem;
}

void UEditorEngine::AddViewportClients(FEditorViewportClient* ViewportClient)
{
	AllViewportClients.AddUnique(ViewportClient);
}

void UEditorEngine::RemoveViewportClients(FEditorViewportClient* ViewportClient)
{
	AllViewportClients.Remove(ViewportClient);
}

namespace Host
{
/** Lets the functions of the host look into the editor without its header saying more than the engine's does. */
struct FEditorAccess
{
	static const UEditorEngine& Editor()
	{
		check(GEditor);
		return *GEditor;
	}
	static TArray<UActorComponent*> Selected()
	{
		TArray<UActorComponent*> Result;
		for (const TWeakObjectPtr<UActorComponent>& Weak : Editor().SelectedComponents)
		{
			if (UActorComponent* const Component = Weak.Get())
			{
				Result.Add(Component);
			}
		}
		return Result;
	}
	static Host::FTransactions* Transactions() { return GEditor ? GEditor->Transactions.Get() : nullptr; }
	static int32 SelectionNotes() { return Editor().SelectionNotes; }
	static int32 UndoClients() { return Editor().UndoClients.Num(); }
};

TArray<UActorComponent*> SelectedComponents()
{
	return FEditorAccess::Selected();
}

int32 SelectionNoteCount()
{
	return FEditorAccess::SelectionNotes();
}

int32 UndoClientCount()
{
	return FEditorAccess::UndoClients();
}

static bool RecordChange(UObject& Object)
{
	FTransactions* const Transactions = FEditorAccess::Transactions();
	return Transactions && Transactions->Record(Object);
}

bool CanUndo()
{
	FTransactions* const Transactions = FEditorAccess::Transactions();
	return Transactions && Transactions->CanUndo();
}

bool CanRedo()
{
	FTransactions* const Transactions = FEditorAccess::Transactions();
	return Transactions && Transactions->CanRedo();
}

FText UndoText()
{
	const FTransactions* const Transactions = FEditorAccess::Transactions();
	return CanUndo() ? FText::Format(NSLOCTEXT("EditorTransactions", "UndoTransaction", "Undo {0}"),
						   Transactions->GetTitles()[Transactions->GetPosition() - 1])
					 : NSLOCTEXT("EditorTransactions", "Undo", "Undo");
}

FText RedoText()
{
	const FTransactions* const Transactions = FEditorAccess::Transactions();
	return CanRedo() ? FText::Format(NSLOCTEXT("EditorTransactions", "RedoTransaction", "Redo {0}"),
						   Transactions->GetTitles()[Transactions->GetPosition()])
					 : NSLOCTEXT("EditorTransactions", "Redo", "Redo");
}

TArray<FText> TransactionTitles()
{
	const FTransactions* const Transactions = FEditorAccess::Transactions();
	return Transactions ? Transactions->GetTitles() : TArray<FText>();
}
} // namespace Host
