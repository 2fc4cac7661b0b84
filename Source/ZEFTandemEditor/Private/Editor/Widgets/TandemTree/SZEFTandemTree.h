// SPDX-License-Identifier: MIT
/** The received objects as a flat list with a selection, in the order of their types and of arrival. */
#pragma once

#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

class IZEFTandemEditor;

class SZEFTandemTree : public IZEFTandemTree
{
public:
	SLATE_BEGIN_ARGS(SZEFTandemTree) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TWeakPtr<IZEFTandemEditor>& InEditor);

	virtual void Refresh() override;
	virtual void DeselectAll() override;
	virtual TArray<TSharedPtr<IZEFTandemTreeItem>> GetSelectedItems() const override { return SelectedItems; }
	virtual void SelectItemsBy(TFunctionRef<bool(const IZEFTandemTreeItem&)> Predicate) override;

private:
	TWeakPtr<IZEFTandemEditor> EditorPtr;
	TArray<TSharedPtr<IZEFTandemTreeItem>> Items;
	TArray<TSharedPtr<IZEFTandemTreeItem>> SelectedItems;
};
