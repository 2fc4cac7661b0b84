// SPDX-License-Identifier: MIT
#pragma once

// Base of all widgets: state, attributes and events, with no drawing.

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Children.h"
#include "Layout/Geometry.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Types/ISlateMetaData.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

namespace Host
{
struct FWidgetAccess;
}

/**
 * One node of the retained tree. Made with SNew or SAssignNew only: a widget is shared before Construct runs.
 * Attributes are asked each time that they are read, so a bound one follows its source.
 */
class SWidget : public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget();

	SWidget(const SWidget&) = delete;
	SWidget& operator=(const SWidget&) = delete;

	/** Never null. */
	virtual FChildren* GetChildren() = 0;
	/** The widget whose slot holds this one; empty at the top and for the null widget. */
	TSharedPtr<SWidget> GetParentWidget() const { return Parent.Pin(); }

	/** Class name as written in SNew. */
	FName GetType() const { return Type; }
	FString GetTypeAsString() const { return Type.ToString(); }
	FName GetTag() const { return Tag; }

	/** False by default; only a widget that answers true gets the keyboard focus. */
	virtual bool SupportsKeyboardFocus() const { return false; }
	bool HasKeyboardFocus() const;
	bool HasFocusedDescendants() const;
	// Keys go to the widget with the focus first, and from there to its parents until one handles them. Disabled
	// widgets are left out.
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent);
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent);
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent);

	void SetVisibility(TAttribute<EVisibility> InVisibility) { Visibility = InVisibility; }
	EVisibility GetVisibility() const { return Visibility.Get(); }
	void SetEnabled(const TAttribute<bool>& InEnabledState) { EnabledState = InEnabledState; }
	/** The widget's own state; the parents may still be disabled. */
	bool IsEnabled() const { return EnabledState.Get(); }
	void SetToolTipText(const TAttribute<FText>& InToolTipText) { ToolTipText = InToolTipText; }
	FText GetToolTipText() const { return ToolTipText.Get(); }
	void SetTag(FName InTag) { Tag = InTag; }

	/** Asks for a new layout or a new picture; counted by whoever draws the tree. */
	void Invalidate(EInvalidateWidgetReason InvalidateReason);

	void AddMetadata(const TSharedRef<ISlateMetaData>& AddMe) { MetaData.Add(AddMe); }
	/** The first data of that type; empty when there is none. */
	template <typename MetaDataType>
	TSharedPtr<MetaDataType> GetMetaData() const
	{
		for (const TSharedRef<ISlateMetaData>& Data : MetaData)
		{
			if (Data->IsOfType<MetaDataType>())
			{
				return StaticCastSharedRef<MetaDataType>(Data);
			}
		}
		return nullptr;
	}

	/** Takes over the arguments that every widget has. Called by SNew before Construct. */
	void SWidgetConstruct(const FSlateBaseNamedArgs& Args);

protected:
	SWidget() = default;

private:
	friend class FSlotBase;
	friend struct Host::FWidgetAccess;
	template <typename WidgetType, typename RequiredArgsType>
	friend class TSlateDecl;

	FName Type;
	FName Tag;
	TWeakPtr<SWidget> Parent;
	TAttribute<EVisibility> Visibility = EVisibility::Visible;
	TAttribute<bool> EnabledState = true;
	TAttribute<FText> ToolTipText;
	TArray<TSharedRef<ISlateMetaData>> MetaData;
	/** Rises when a child comes or goes. */
	uint32 StructureVersion = 0;
};
