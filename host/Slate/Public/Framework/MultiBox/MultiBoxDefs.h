// SPDX-License-Identifier: MIT
#pragma once

// The kinds of menus and tool bars, and of what stands in them.

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"

class FMenuBuilder;

/** Fills a menu at the moment that it opens. */
DECLARE_DELEGATE_OneParam(FNewMenuDelegate, FMenuBuilder&);

enum class EMultiBoxType : uint8
{
	MenuBar,
	Menu,
	ToolBar,
	VerticalToolBar,
	SlimHorizontalToolBar,
	UniformToolBar,
	ButtonRow,
	SlimHorizontalUniformToolBar,
};

enum class EMultiBlockType : uint8
{
	None = 0,
	ButtonRow,
	EditableText,
	Heading,
	MenuEntry,
	Separator,
	ToolBarButton,
	ToolBarComboButton,
	Widget,
};

/** Whether a user may rearrange a tool bar, and under which name the arrangement is known. */
class FMultiBoxCustomization
{
public:
	/** Fixed. */
	static const FMultiBoxCustomization None;
	static FMultiBoxCustomization AllowCustomization(FName InCustomizationName)
	{
		return FMultiBoxCustomization(InCustomizationName);
	}

	explicit FMultiBoxCustomization(FName InCustomizationName)
		: CustomizationName(InCustomizationName)
	{
	}

	FName GetCustomizationName() const { return CustomizationName; }

private:
	FName CustomizationName;
};
