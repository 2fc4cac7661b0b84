// SPDX-License-Identifier: MIT
#pragma once

// A top-level frame.

#include "Widgets/SCompoundWidget.h"

enum class ESizingRule : uint8
{
	FixedSize,
	Autosized,
	UserSized,
};

class SWindow;
DECLARE_DELEGATE_OneParam(FOnWindowClosed, const TSharedRef<SWindow>&);

/** A frame with a title and one content widget. It opens when it is made and stays until it is destroyed. */
class SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow)
		: _ClientSize(FVector2D(0.0, 0.0))
		, _SizingRule(ESizingRule::UserSized)
		, _SupportsMaximize(true)
		, _SupportsMinimize(true)
		, _HasCloseButton(true)
	{
	}
	SLATE_ATTRIBUTE(FText, Title)
	/** Slate units. */
	SLATE_ARGUMENT(FVector2D, ClientSize)
	SLATE_ARGUMENT(ESizingRule, SizingRule)
	SLATE_ARGUMENT(bool, SupportsMaximize)
	SLATE_ARGUMENT(bool, SupportsMinimize)
	SLATE_ARGUMENT(bool, HasCloseButton)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	FText GetTitle() const { return Title.Get(); }
	void SetTitle(const FText& InTitle) { Title = InTitle; }
	TSharedRef<const SWidget> GetContent() const;
	void SetContent(TSharedRef<SWidget> InContent);
	FVector2D GetClientSizeInScreen() const { return ClientSize; }
	ESizingRule GetSizingRule() const { return SizingRule; }
	void SetSizingRule(ESizingRule InSizingRule) { SizingRule = InSizingRule; }

	/** Called once, when the window is destroyed. */
	void SetOnWindowClosed(const FOnWindowClosed& InDelegate) { OnWindowClosed = InDelegate; }
	/** Closes the window; nothing happens when it is closed already. */
	void RequestDestroyWindow();

private:
	TAttribute<FText> Title;
	FVector2D ClientSize = FVector2D(0.0, 0.0);
	ESizingRule SizingRule = ESizingRule::UserSized;
	FOnWindowClosed OnWindowClosed;
	bool bOpen = true;
};
