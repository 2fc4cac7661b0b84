// SPDX-License-Identifier: MIT
#pragma once

// One child with a brush behind it.

#include "Styling/SlateBrush.h"
#include "Widgets/SCompoundWidget.h"

class SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
		, _BorderImage(nullptr)
	{
	}
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual void SetContent(TSharedRef<SWidget> InContent) { ChildSlot[InContent]; }
	TSharedRef<SWidget> GetContent() const { return ChildSlot.GetWidget(); }
	const FSlateBrush* GetBorderImage() const { return BorderImage.Get(); }
	void SetBorderImage(TAttribute<const FSlateBrush*> InBorderImage) { BorderImage = InBorderImage; }

private:
	TAttribute<const FSlateBrush*> BorderImage = nullptr;
};
