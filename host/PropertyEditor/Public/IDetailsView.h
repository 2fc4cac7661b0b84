// SPDX-License-Identifier: MIT
// A view of the properties of objects.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Widgets/SCompoundWidget.h"

class UObject;

/** Refers to its objects weakly: one that dies leaves the view. */
class IDetailsView : public SCompoundWidget
{
public:
	/**
	 * Shows these objects in place of the former.
	 *
	 * @param bForceRefresh  builds the rows anew even when the objects are the same
	 * @param bOverrideLock  also when the view is locked
	 */
	virtual void SetObjects(
		const TArray<UObject*>& InObjects, bool bForceRefresh = false, bool bOverrideLock = false) = 0;
	virtual void SetObjects(
		const TArray<TWeakObjectPtr<UObject>>& InObjects, bool bForceRefresh = false, bool bOverrideLock = false) = 0;
	/** Null shows nothing. */
	virtual void SetObject(UObject* InObject, bool bForceRefresh = false) = 0;
	virtual void ForceRefresh() = 0;

	/** Those that are alive. */
	virtual const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const = 0;
	virtual bool IsLocked() const = 0;
};
