// SPDX-License-Identifier: MIT
/** The editor instance as its tree, its viewport and its dialogs see it. */
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"
#include "Editor/ZEFEditorToolkit.h"

struct FZEFSurfaceMesh;
class FTabManager;
class SZEFTandemEditorViewport;
class UPrimitiveComponent;

class IZEFTandemEditor : public FZEFEditorToolkit
{
public:
	DECLARE_MULTICAST_DELEGATE(FOnSelectedObjectsChanged);
	DECLARE_MULTICAST_DELEGATE(FOnEditorClosed);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnTabsChanged, const TSharedPtr<FTabManager>&);

	/** Components of a type, in order of arrival; empty for a type that never arrived. */
	virtual TArray<UPrimitiveComponent*> GetObjectComponents(int32 ObjectType) const = 0;

	/** The preview viewport; empty while its tab content is not made. */
	virtual TSharedPtr<SZEFTandemEditorViewport> GetViewport() const = 0;

	/** Count of objects, triangles and vertices of a type; all zero for a type that never arrived. */
	virtual FIntVector GetObjectStats(int32 ObjectType) = 0;

	/** Builds the mesh and puts it into the preview; null, with nothing built, while there is no viewport. */
	virtual UPrimitiveComponent* AddObject(int32 ObjectType, const FZEFSurfaceMesh& Mesh) = 0;

	/** Takes an object out of the preview; does nothing for null or while there is no viewport. */
	virtual void RemoveObject(int32 ObjectType, UPrimitiveComponent* Component) = 0;

	/** Frames the objects selected in the tree in every viewport. */
	virtual void FocusCamera() = 0;

	virtual void ReservedSlot() {}

	virtual TArray<UPrimitiveComponent*> GetSelectedObjects() const = 0;

	/** Replaces the selection, null entries are passed over; with `bUpdateViewport` the viewport is redrawn and the
	 * tree's rows follow. */
	virtual void SetSelectedObjects(const TArray<UPrimitiveComponent*>& Objects, bool bUpdateViewport) = 0;

	virtual FOnSelectedObjectsChanged& OnSelectedObjectsChanged() { return SelectedObjectsChangedEvent; }
	virtual FOnEditorClosed& OnEditorClosed() { return EditorClosedEvent; }
	virtual FOnTabsChanged& OnRegisterTabs() { return RegisterTabsEvent; }
	virtual FOnTabsChanged& OnUnregisterTabs() { return UnregisterTabsEvent; }

private:
	FOnSelectedObjectsChanged SelectedObjectsChangedEvent;
	FOnEditorClosed EditorClosedEvent;
	FOnTabsChanged RegisterTabsEvent;
	FOnTabsChanged UnregisterTabsEvent;
};
