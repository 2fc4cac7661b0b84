// SPDX-License-Identifier: MIT

#include "Host/WidgetDriver.h"

#include "Framework/Application/SlateApplication.h"
#include "Host/Menus.h"
#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace Host
{
namespace
{
/** The widget's own words, without those of its children. */
FText OwnText(const SWidget& Widget)
{
	if (const auto* const Text = dynamic_cast<const STextBlock*>(&Widget))
	{
		return Text->GetText();
	}
	if (const auto* const Box = dynamic_cast<const SEditableTextBox*>(&Widget))
	{
		return Box->GetText();
	}
	if (const auto* const Tab = dynamic_cast<const SDockTab*>(&Widget))
	{
		return Tab->GetTabLabel();
	}
	if (const auto* const Item = dynamic_cast<const SMultiBoxItem*>(&Widget))
	{
		return Item->GetLabel();
	}
	if (const auto* const Window = dynamic_cast<const SWindow*>(&Widget))
	{
		return Window->GetTitle();
	}
	return FText();
}

bool HasTag(const SWidget& Widget, FName Tag)
{
	const TSharedPtr<FTagMetaData> Data = Widget.GetMetaData<FTagMetaData>();
	return Widget.GetTag() == Tag || (Data.IsValid() && Data->Tag == Tag);
}

void Collect(const TSharedRef<SWidget>& Widget, const FWidgetQuery& Query, TArray<TSharedRef<SWidget>>& OutFound)
{
	// Of a tab in the background the label is seen, its content is not.
	const bool bHidden = Query.bVisibleOnly && !Widget->GetVisibility().IsVisible();
	if (bHidden && !dynamic_cast<SDockTab*>(&Widget.Get()))
	{
		return;
	}
	const bool bMatches = (Query.Type.IsNone() || Widget->GetType() == Query.Type) &&
						  (Query.Tag.IsNone() || HasTag(*Widget, Query.Tag)) &&
						  (!Query.Text.IsSet() || TextOf(Widget).Equals(Query.Text.GetValue()));
	if (bMatches)
	{
		OutFound.Add(Widget);
	}
	const FChildren& Children = *Widget->GetChildren();
	for (int32 Index = 0; Index < Children.Num() && !bHidden; ++Index)
	{
		Collect(Children.GetChildAt(Index), Query, OutFound);
	}
}
} // namespace

FWidgetQuery FWidgetQuery::ByType(FName InType)
{
	FWidgetQuery Query;
	Query.Type = InType;
	return Query;
}

FWidgetQuery FWidgetQuery::ByTag(FName InTag)
{
	FWidgetQuery Query;
	Query.Tag = InTag;
	return Query;
}

FWidgetQuery FWidgetQuery::ByText(const FString& InText)
{
	FWidgetQuery Query;
	Query.Text = InText;
	return Query;
}

FString FWidgetQuery::ToString() const
{
	FString Result = Type.IsNone() ? FString(TEXT("widget")) : Type.ToString();
	if (!Tag.IsNone())
	{
		Result += FString::Printf(TEXT(" tagged '%s'"), *Tag.ToString());
	}
	if (Text.IsSet())
	{
		Result += FString::Printf(TEXT(" '%s'"), *Text.GetValue());
	}
	return Result;
}

FString TextOf(const TSharedRef<SWidget>& Widget)
{
	FString Words = OwnText(*Widget).ToString();
	if (!Words.IsEmpty() || dynamic_cast<SDockTab*>(&Widget.Get()) || dynamic_cast<SWindow*>(&Widget.Get()))
	{
		return Words;
	}
	const FChildren& Children = *Widget->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FString Part = TextOf(Children.GetChildAt(Index));
		if (!Part.IsEmpty())
		{
			Words += (Words.IsEmpty() ? FString() : FString(TEXT(" "))) + Part;
		}
	}
	return Words;
}

TArray<TSharedRef<SWidget>> FindWidgets(const TSharedRef<SWidget>& Root, const FWidgetQuery& Query)
{
	TArray<TSharedRef<SWidget>> Found;
	Collect(Root, Query, Found);
	return Found;
}

TSharedPtr<SWidget> FindWidget(const TSharedRef<SWidget>& Root, const FWidgetQuery& Query)
{
	const TArray<TSharedRef<SWidget>> Found = FindWidgets(Root, Query);
	return Found.Num() > 0 ? TSharedPtr<SWidget>(Found[0]) : nullptr;
}

TSharedPtr<SWidget> FindWidgetAnywhere(const FWidgetQuery& Query)
{
	if (!FSlateApplication::IsInitialized())
	{
		return nullptr;
	}
	TArray<TSharedRef<SWidget>> Roots;
	for (const TSharedRef<IMenu>& Menu : OpenMenus())
	{
		if (const TSharedPtr<SWidget> Content = Menu->GetContent())
		{
			Roots.Insert(Content.ToSharedRef(), 0);
		}
	}
	const FSlateApplication& Application = FSlateApplication::Get();
	TArray<TSharedRef<SWindow>> Windows;
	if (const TSharedPtr<SWindow> Active = Application.GetActiveTopLevelWindow())
	{
		Windows.Add(Active.ToSharedRef());
	}
	Windows.Append(Application.GetTopLevelWindows());
	for (int32 Index = 0; Index < Windows.Num(); ++Index)
	{
		Roots.Add(Windows[Index]);
		Windows.Append(TArray<TSharedRef<SWindow>>(Windows[Index]->GetChildWindows()));
	}
	for (const TSharedRef<SWidget>& Root : Roots)
	{
		if (const TSharedPtr<SWidget> Found = FindWidget(Root, Query))
		{
			return Found;
		}
	}
	return nullptr;
}
} // namespace Host
