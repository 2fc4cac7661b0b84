// SPDX-License-Identifier: MIT

#include "Framework/Application/SlateApplication.h"
#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"
#include "Widgets/SNullWidget.h"

namespace Host
{
namespace
{
/** Whether a separator or a heading has something to stand for. */
bool IsDividerNeeded(const SMultiBoxItem& Divider, const TArray<TSharedRef<SMultiBoxItem>>& Items)
{
	const bool bSeparator = Divider.GetKind() == EMultiBoxItem::Separator;
	bool bBefore = false;
	bool bPassed = false;
	for (const TSharedRef<SMultiBoxItem>& Item : Items)
	{
		if (&*Item == &Divider)
		{
			if (bSeparator && !bBefore)
			{
				return false;
			}
			bPassed = true;
			continue;
		}
		const bool bIsSeparator = Item->GetKind() == EMultiBoxItem::Separator;
		const bool bIsHeading = Item->GetKind() == EMultiBoxItem::Heading;
		if (bPassed && (bIsSeparator || (bIsHeading && !bSeparator)))
		{
			return false;
		}
		if (!bIsSeparator && !bIsHeading && Item->IsItemVisible())
		{
			if (bPassed)
			{
				return true;
			}
			bBefore = true;
		}
	}
	return false;
}
} // namespace

TSharedRef<SWidget> FMultiBoxItemBlock::ConstructWidget(const TSharedRef<SMultiBoxWidget>& Owner) const
{
	return SNew(SMultiBoxItem, StaticCastSharedRef<const FMultiBoxItemBlock>(AsShared()), Owner);
}

void SMultiBoxItem::Construct(const FArguments& InArgs, const TSharedRef<const FMultiBoxItemBlock>& InBlock,
	const TSharedRef<SMultiBoxWidget>& InOwner)
{
	Block = InBlock;
	Owner = InOwner;
	Path = InArgs._Path;
	SetEnabled(TAttribute<bool>::CreateSP(this, &SMultiBoxItem::IsItemEnabled));
	SetVisibility(TAttribute<EVisibility>::CreateSP(this, &SMultiBoxItem::GetItemVisibility));
	SetToolTipText(TAttribute<FText>::CreateSP(this, &SMultiBoxItem::GetToolTip));
	if (Block->Info.Content.IsValid())
	{
		ChildSlot[Block->Info.Content.ToSharedRef()];
	}
}

EVisibility SMultiBoxItem::GetItemVisibility() const
{
	return IsItemVisible() ? EVisibility::Visible : EVisibility::Collapsed;
}

FName SMultiBoxItem::GetItemName() const
{
	if (!Block->GetExtensionHook().IsNone())
	{
		return Block->GetExtensionHook();
	}
	return Block->GetAction().IsValid() ? Block->GetAction()->GetCommandName() : Block->Info.HighlightName;
}

FText SMultiBoxItem::GetLabel() const
{
	FText Label = Block->Info.Label.Get();
	if (!Block->Info.Label.IsSet() && Block->GetAction().IsValid())
	{
		Label = Block->GetAction()->GetLabel();
	}
	return Path.IsEmpty() ? Label : FText::FromString(Path + Label.ToString());
}

FText SMultiBoxItem::GetToolTip() const
{
	FText ToolTip = Block->Info.ToolTip.Get();
	if (!Block->Info.ToolTip.IsSet() && Block->GetAction().IsValid())
	{
		ToolTip = Block->GetAction()->GetDescription();
	}
	const FText Chord = GetChordText();
	if (Chord.IsEmpty())
	{
		return ToolTip;
	}
	return FText::Format(NSLOCTEXT("MultiBox", "ToolTipWithKeys", "{0} ({1})"), ToolTip, Chord);
}

FText SMultiBoxItem::GetChordText() const
{
	return Block->GetAction().IsValid() ? Block->GetAction()->GetInputText() : FText::GetEmpty();
}

const FSlateBrush* SMultiBoxItem::GetIcon() const
{
	const FSlateIcon Icon = Block->Info.Icon.Get();
	if (Icon.IsSet())
	{
		return Icon.GetIcon();
	}
	return Block->GetAction().IsValid() ? Block->GetAction()->GetIcon().GetIcon() : nullptr;
}

bool SMultiBoxItem::IsLabelShown() const
{
	return !GetLabel().IsEmpty() && Block->Info.LabelVisibility.Get(EVisibility::Visible).IsVisible();
}

EUserInterfaceActionType SMultiBoxItem::GetActionType() const
{
	return Block->GetAction().IsValid() ? Block->GetAction()->GetUserInterfaceType() : Block->Info.ActionType;
}

bool SMultiBoxItem::IsCheckable() const
{
	const EUserInterfaceActionType Type = GetActionType();
	return Type == EUserInterfaceActionType::ToggleButton || Type == EUserInterfaceActionType::RadioButton ||
		   Type == EUserInterfaceActionType::Check;
}

ECheckBoxState SMultiBoxItem::GetCheckState() const
{
	if (!Block->GetAction().IsValid())
	{
		return Block->GetDirectActions().GetCheckState();
	}
	return Block->GetActionList().IsValid() ? Block->GetActionList()->GetCheckState(Block->GetAction().ToSharedRef())
											: ECheckBoxState::Undetermined;
}

bool SMultiBoxItem::IsItemEnabled() const
{
	if (!Block->GetAction().IsValid())
	{
		return Block->GetDirectActions().CanExecute();
	}
	return Block->GetActionList().IsValid() &&
		   Block->GetActionList()->CanExecuteAction(Block->GetAction().ToSharedRef());
}

bool SMultiBoxItem::IsItemVisible() const
{
	if (GetKind() == EMultiBoxItem::Separator || GetKind() == EMultiBoxItem::Heading)
	{
		const TSharedPtr<SMultiBoxWidget> Box = Owner.Pin();
		return Box.IsValid() && IsDividerNeeded(*this, GetMultiBoxItems(Box.ToSharedRef()));
	}
	if (!Block->GetAction().IsValid())
	{
		return Block->GetDirectActions().IsVisible();
	}
	return !Block->GetActionList().IsValid() ||
		   Block->GetActionList()->GetVisibility(Block->GetAction().ToSharedRef()).IsVisible();
}

FName SMultiBoxItem::GetStyleName() const
{
	if (!Block->Info.StyleOverride.IsNone())
	{
		return Block->Info.StyleOverride;
	}
	const TSharedPtr<SMultiBoxWidget> Box = Owner.Pin();
	return Box.IsValid() ? Box->GetMultiBox()->GetStyleName() : FName();
}

bool SMultiBoxItem::Press()
{
	// The action may rebuild the box and with it this piece, and a menu closes before its entry acts.
	const TSharedRef<SWidget> KeepAlive = AsShared();
	const TSharedRef<const FMultiBoxItemBlock> Pressed = Block.ToSharedRef();
	if (!IsItemEnabled() || !IsItemVisible())
	{
		return false;
	}
	CloseMenu();
	if (!Pressed->GetAction().IsValid())
	{
		return Pressed->GetDirectActions().Execute();
	}
	return Pressed->GetActionList()->ExecuteAction(Pressed->GetAction().ToSharedRef());
}

void SMultiBoxItem::CloseMenu()
{
	const TSharedPtr<SMultiBoxWidget> Box = Owner.Pin();
	if (!FSlateApplication::IsInitialized() || !Box.IsValid() || Box->GetMultiBox()->GetType() != EMultiBoxType::Menu ||
		!Box->GetMultiBox()->ShouldCloseWindowAfterMenuSelection())
	{
		return;
	}
	if (Block->Info.bCloseSelfOnly)
	{
		FSlateApplication::Get().DismissMenuByWidget(Box.ToSharedRef());
	}
	else
	{
		FSlateApplication::Get().DismissAllMenus();
	}
}

TSharedRef<SWidget> SMultiBoxItem::OpenMenu() const
{
	const FMultiBoxItemInfo& Info = Block->Info;
	if (Info.MakeMenu.IsBound())
	{
		return Info.MakeMenu.Execute();
	}
	if (!Info.FillMenu.IsBound())
	{
		return SNullWidget::NullWidget;
	}
	const TSharedPtr<SMultiBoxWidget> Box = Owner.Pin();
	const ISlateStyle* const Style = Box.IsValid() ? Box->GetMultiBox()->GetStyleSet() : &FCoreStyle::Get();
	FMenuBuilder Builder(
		Info.bMenuClosesWindow, Block->GetActionList(), Info.Extender, Info.bCloseSelfOnly, Style, true);
	Info.FillMenu.Execute(Builder);
	return Builder.MakeWidget();
}

TArray<TSharedRef<SMultiBoxItem>> GetMultiBoxItems(const TSharedRef<SWidget>& Root)
{
	static const FName ItemType(TEXT("SMultiBoxItem"));
	TArray<TSharedRef<SMultiBoxItem>> Items;
	ForEachWidget(Root,
		[&](const TSharedRef<SWidget>& Widget)
		{
			if (Widget->GetType() == ItemType)
			{
				Items.Add(StaticCastSharedRef<SMultiBoxItem>(Widget));
			}
		});
	return Items;
}

TSharedPtr<SMultiBoxItem> FindMultiBoxItem(const TSharedRef<SWidget>& Root, const FText& Label)
{
	for (const TSharedRef<SMultiBoxItem>& Item : GetMultiBoxItems(Root))
	{
		if (Item->GetLabel().EqualTo(Label) && Item->IsItemVisible())
		{
			return Item;
		}
	}
	return nullptr;
}

TSharedPtr<SMultiBoxItem> FindMultiBoxItemByName(const TSharedRef<SWidget>& Root, FName Name)
{
	for (const TSharedRef<SMultiBoxItem>& Item : GetMultiBoxItems(Root))
	{
		if (Item->GetItemName() == Name)
		{
			return Item;
		}
	}
	return nullptr;
}

TArray<FString> DescribeMultiBox(const TSharedRef<SWidget>& Root)
{
	TArray<FString> Lines;
	for (const TSharedRef<SMultiBoxItem>& Item : GetMultiBoxItems(Root))
	{
		if (!Item->IsItemVisible())
		{
			continue;
		}
		FString Line = Item->GetLabel().ToString();
		switch (Item->GetKind())
		{
			case EMultiBoxItem::Separator:
				Line = TEXT("---");
				break;
			case EMultiBoxItem::Heading:
				Line = FString(TEXT("# ")) + Line;
				break;
			case EMultiBoxItem::Widget:
				Line = FString(TEXT("<")) + Item->GetChildren()->GetChildAt(0)->GetTypeAsString() + TEXT(">");
				break;
			case EMultiBoxItem::SubMenu:
				Line += TEXT(" >");
				break;
			case EMultiBoxItem::ComboButton:
				Line += TEXT(" v");
				break;
			case EMultiBoxItem::Button:
				break;
		}
		if (Item->IsCheckable())
		{
			const bool bChecked = Item->GetCheckState() == ECheckBoxState::Checked;
			Line = FString(bChecked ? TEXT("[x] ") : TEXT("[ ] ")) + Line;
		}
		Lines.Add(Item->IsItemEnabled() ? Line : TEXT("(") + Line + TEXT(")"));
	}
	return Lines;
}
} // namespace Host
