// SPDX-License-Identifier: MIT
#pragma once

// One child with a size of its own.

#include "Misc/Optional.h"
#include "Widgets/SCompoundWidget.h"

/** Size of a box along one axis, slate units; unset follows the child. */
using FOptionalSize = TOptional<float>;

class SBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(0.0f))
	{
	}
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
	SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }
	TSharedRef<SWidget> GetContent() const { return ChildSlot.GetWidget(); }
	FOptionalSize GetWidthOverride() const { return WidthOverride.Get(); }
	FOptionalSize GetHeightOverride() const { return HeightOverride.Get(); }

private:
	TAttribute<FOptionalSize> WidthOverride;
	TAttribute<FOptionalSize> HeightOverride;
};
