// SPDX-License-Identifier: MIT
/** The list of received objects as the editor instance sees it. */
#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Widgets/SCompoundWidget.h"

class UPrimitiveComponent;

/** One received object. */
class IZEFTandemTreeItem
{
public:
	virtual ~IZEFTandemTreeItem() = default;
	virtual int32 GetObjectType() const = 0;
	virtual UPrimitiveComponent* GetPreviewSceneComponent() const = 0;
};

class IZEFTandemTree : public SCompoundWidget
{
public:
	/** Rebuilds the list from what the preview holds; rows whose object is gone leave the selection. */
	virtual void Refresh() = 0;

	virtual void DeselectAll() = 0;

	virtual TArray<TSharedPtr<IZEFTandemTreeItem>> GetSelectedItems() const = 0;

	/** Selects the rows for which `Predicate` answers true, and no others. */
	virtual void SelectItemsBy(TFunctionRef<bool(const IZEFTandemTreeItem&)> Predicate) = 0;
};
