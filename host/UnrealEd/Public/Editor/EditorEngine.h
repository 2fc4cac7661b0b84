// SPDX-License-Identifier: MIT
// The editor's engine object.
#pragma once

#include "Delegates/DelegateCombinations.h"
#include "Engine/Engine.h"
#include "RHIFeatureLevel.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "EditorEngine.generated.h"

class FEditorUndoClient;
class FEditorViewportClient;
class FTimerManager;
class UActorComponent;
class UEditorSubsystem;

namespace Host
{
struct FEditorAccess;
class FTransactions;
} // namespace Host

/** The feature level that previews are shown at. */
struct FPreviewPlatformInfo
{
	ERHIFeatureLevel::Type PreviewFeatureLevel = ERHIFeatureLevel::SM5;
	bool bPreviewFeatureLevelActive = false;

	FPreviewPlatformInfo() = default;
	explicit FPreviewPlatformInfo(ERHIFeatureLevel::Type InFeatureLevel, bool bInPreviewFeatureLevelActive = false)
		: PreviewFeatureLevel(InFeatureLevel)
		, bPreviewFeatureLevelActive(bInPreviewFeatureLevelActive)
	{
	}

	/** The preview's level while it is active, else the highest that the host shows. */
	ERHIFeatureLevel::Type GetEffectivePreviewFeatureLevel() const
	{
		return bPreviewFeatureLevelActive ? PreviewFeatureLevel : ERHIFeatureLevel::SM5;
	}
};

DECLARE_MULTICAST_DELEGATE_OneParam(FPreviewFeatureLevelChanged, ERHIFeatureLevel::Type);

/**
 * One editor: its world, timers, undo history and selection, and the subsystems beside it.
 *
 * A transaction keeps the properties of the objects that call UObject::Modify while it is open; undo and redo set them
 * again and tell the undo clients.
 */
UCLASS()
class UEditorEngine : public UEngine
{
	GENERATED_BODY()

public:
	UEditorEngine(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FPreviewPlatformInfo PreviewPlatform;
	ERHIFeatureLevel::Type DefaultWorldFeatureLevel = ERHIFeatureLevel::SM5;

	/** Makes the editor's world and the timers. */
	void InitEditor();
	/** Ends the editor's world. */
	void PreExit();

	/** Moves timers, editor objects and viewports on, and draws the viewports that are out of date. */
	virtual void Tick(float DeltaSeconds, bool bIdleMode);

	TSharedRef<FTimerManager> GetTimerManager();
	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

	/** Changes the preview's level, that of the editor's world, and tells the subscribers. */
	void SetPreviewPlatform(const FPreviewPlatformInfo& NewPreviewPlatform, bool bSaveSettings);
	FPreviewFeatureLevelChanged& OnPreviewFeatureLevelChanged() { return PreviewFeatureLevelChanged; }

	/** Not owned. Registering twice counts once. */
	void RegisterForUndo(FEditorUndoClient* UndoClient);
	void UnregisterForUndo(FEditorUndoClient* UndoClient);
	/** Opens a transaction; those within the outermost one are parts of it. Returns its index in the history. */
	virtual int32 BeginTransaction(const FText& Description);
	/** Closes the innermost open transaction; what was undone cannot be redone any more. INDEX_NONE when none is open.
	 */
	virtual int32 EndTransaction();
	/** Brings back what the open transaction of that index has changed, and forgets it with all within it. */
	virtual void CancelTransaction(int32 Index);
	virtual bool IsTransactionActive() const;
	/** Forgets all transactions; Reason goes to the log. */
	virtual void ResetTransaction(const FText& Reason);
	/** Steps back in the history; false, and no client told of success, when there is nothing to undo. */
	bool UndoTransaction(bool bCanRedo = true);
	bool RedoTransaction();

	/** Empties the selection. */
	virtual void SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors = true);
	/** Adds the component to the selection or takes it out; nothing happens when it is so already. */
	virtual void SelectComponent(
		UActorComponent* Component, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden = false);

	/** The subsystem of that class; made when first asked for, null while the editor goes down. */
	template <class TSubsystemClass>
	TSubsystemClass* GetEditorSubsystem()
	{
		return static_cast<TSubsystemClass*>(GetEditorSubsystemBase(TSubsystemClass::StaticClass()));
	}

	void AddViewportClients(FEditorViewportClient* ViewportClient);
	void RemoveViewportClients(FEditorViewportClient* ViewportClient);
	const TArray<FEditorViewportClient*>& GetAllViewportClients() const { return AllViewportClients; }

private:
	friend struct Host::FEditorAccess;

	UObject* GetEditorSubsystemBase(UClass* SubsystemClass);

	UPROPERTY()
	TObjectPtr<UWorld> EditorWorld;
	UPROPERTY()
	TArray<TObjectPtr<UEditorSubsystem>> Subsystems;

	FWorldContext EditorWorldContext;
	TSharedPtr<FTimerManager> TimerManager;
	TArray<FEditorUndoClient*> UndoClients;
	TSharedPtr<Host::FTransactions> Transactions; // empty outside of InitEditor and PreExit
	TArray<TWeakObjectPtr<UActorComponent>> SelectedComponents;
	int32 SelectionNotes = 0;
	TArray<FEditorViewportClient*> AllViewportClients; // not owned
	FPreviewFeatureLevelChanged PreviewFeatureLevelChanged;
	bool bExiting = false;
};
