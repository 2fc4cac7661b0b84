// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemTree/SZEFTandemTree.h"

#include "Components/PrimitiveComponent.h"
#include "Editor/IZEFTandemEditor.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "ZefTandemCore.h"

namespace
{

class FZEFTandemTreeItem : public IZEFTandemTreeItem
{
public:
	FZEFTandemTreeItem(int32 InObjectType, UPrimitiveComponent* InComponent)
		: ObjectType(InObjectType)
		, Component(InComponent)
	{
	}

	virtual int32 GetObjectType() const override { return ObjectType; }
	virtual UPrimitiveComponent* GetPreviewSceneComponent() const override { return Component.Get(); }

private:
	int32 ObjectType;
	TWeakObjectPtr<UPrimitiveComponent> Component;
};

constexpr ZefTandemCore::TandemObjectType ListedTypes[] = {ZefTandemCore::TandemObjectType::Garment,
	ZefTandemCore::TandemObjectType::Avatar, ZefTandemCore::TandemObjectType::Outfit,
	ZefTandemCore::TandemObjectType::Prop};

} // namespace

void SZEFTandemTree::Construct(const FArguments& /*InArgs*/, const TWeakPtr<IZEFTandemEditor>& InEditor)
{
	EditorPtr = InEditor;
	Refresh();
}

void SZEFTandemTree::Refresh()
{
	const TSharedPtr<IZEFTandemEditor> Editor = EditorPtr.Pin();
	if (!Editor.IsValid())
	{
		return;
	}
	TArray<UPrimitiveComponent*> Selected;
	for (const TSharedPtr<IZEFTandemTreeItem>& Item : SelectedItems)
	{
		Selected.Add(Item->GetPreviewSceneComponent());
	}
	Items.Reset();
	SelectedItems.Reset();
	for (const ZefTandemCore::TandemObjectType Type : ListedTypes)
	{
		const int32 ObjectType = static_cast<int32>(Type);
		for (UPrimitiveComponent* const Component : Editor->GetObjectComponents(ObjectType))
		{
			const TSharedPtr<IZEFTandemTreeItem> Item = MakeShared<FZEFTandemTreeItem>(ObjectType, Component);
			Items.Add(Item);
			if (Selected.Contains(Component))
			{
				SelectedItems.Add(Item);
			}
		}
	}
}

void SZEFTandemTree::DeselectAll()
{
	SelectedItems.Reset();
}

void SZEFTandemTree::SelectItemsBy(TFunctionRef<bool(const IZEFTandemTreeItem&)> Predicate)
{
	SelectedItems =
		Items.FilterByPredicate([&Predicate](const TSharedPtr<IZEFTandemTreeItem>& Item) { return Predicate(*Item); });
}
