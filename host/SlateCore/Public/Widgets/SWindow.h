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

/** Where a new window goes. */
enum class EAutoCenter : uint8
{
	/** Where it was told to. */
	None,
	PrimaryWorkArea,
	/** The screen with the pointer. */
	PreferredWorkArea,
};

class SWindow;
DECLARE_DELEGATE_OneParam(FOnWindowClosed, const TSharedRef<SWindow>&);
DECLARE_DELEGATE_OneParam(FRequestDestroyWindowOverride, const TSharedRef<SWindow>&);

namespace Host
{
struct FWindowAccess;
}

/**
 * A frame with a title and one content widget. It is on the screen from FSlateApplication::AddWindow until it is
 * destroyed, and is not added again. Positions and sizes are in slate units.
 */
class SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow)
		: _ScreenPosition(FVector2D(0.0, 0.0))
		, _ClientSize(FVector2D(0.0, 0.0))
		, _SizingRule(ESizingRule::UserSized)
		, _AutoCenter(EAutoCenter::PreferredWorkArea)
		, _IsTopmostWindow(false)
		, _SupportsMaximize(true)
		, _SupportsMinimize(true)
		, _HasCloseButton(true)
		, _IsInitiallyMaximized(false)
	{
	}
	SLATE_ATTRIBUTE(FText, Title)
	/** Counts when AutoCenter is None. */
	SLATE_ARGUMENT(FVector2D, ScreenPosition)
	/** Size of the inside; zero for a size that fits the content. */
	SLATE_ARGUMENT(FVector2D, ClientSize)
	SLATE_ARGUMENT(ESizingRule, SizingRule)
	SLATE_ARGUMENT(EAutoCenter, AutoCenter)
	SLATE_ARGUMENT(bool, IsTopmostWindow)
	SLATE_ARGUMENT(bool, SupportsMaximize)
	SLATE_ARGUMENT(bool, SupportsMinimize)
	SLATE_ARGUMENT(bool, HasCloseButton)
	SLATE_ARGUMENT(bool, IsInitiallyMaximized)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	FText GetTitle() const { return Title.Get(); }
	void SetTitle(const FText& InTitle) { Title = InTitle; }
	TSharedRef<const SWidget> GetContent() const;
	void SetContent(TSharedRef<SWidget> InContent);

	FVector2D GetPositionInScreen() const { return ScreenPosition; }
	/** Size of the inside. */
	FVector2D GetClientSizeInScreen() const { return ClientSize; }
	void MoveWindowTo(FVector2D NewPosition);
	/** @param NewClientSize  of the inside */
	void Resize(FVector2D NewClientSize);
	ESizingRule GetSizingRule() const { return SizingRule; }
	void SetSizingRule(ESizingRule InSizingRule) { SizingRule = InSizingRule; }
	bool IsAutosized() const { return SizingRule == ESizingRule::Autosized; }
	bool IsWindowMaximized() const { return bMaximized; }
	void Maximize() { bMaximized = true; }
	void Restore() { bMaximized = false; }

	bool IsTopmostWindow() const { return bTopmost; }
	bool HasCloseBox() const { return bHasCloseButton; }
	bool HasMaximizeBox() const { return bSupportsMaximize; }
	bool HasMinimizeBox() const { return bSupportsMinimize; }

	/** On the screen: added, not hidden and not destroyed. */
	bool IsVisible() const { return bShown; }
	void ShowWindow();
	void HideWindow();
	void BringToFront(bool bForce = false);
	/** The window that keys go to. */
	bool IsActive() const;

	/** The window that this one belongs to and goes with; empty for none. */
	TSharedPtr<SWindow> GetParentWindow() const { return ParentWindow.Pin(); }
	const TArray<TSharedRef<SWindow>>& GetChildWindows() const { return ChildWindows; }

	/** Called once, when the window is destroyed. */
	void SetOnWindowClosed(const FOnWindowClosed& InDelegate) { OnWindowClosed = InDelegate; }
	/** Called in place of destroying the window; unbound to have it destroyed again. */
	void SetRequestDestroyWindowOverride(const FRequestDestroyWindowOverride& InDelegate)
	{
		RequestDestroyWindowOverride = InDelegate;
	}
	/** Closes the window; nothing happens when it is closed already. */
	void RequestDestroyWindow();

private:
	friend struct Host::FWindowAccess;

	TAttribute<FText> Title;
	FVector2D ScreenPosition = FVector2D(0.0, 0.0);
	FVector2D ClientSize = FVector2D(0.0, 0.0);
	ESizingRule SizingRule = ESizingRule::UserSized;
	EAutoCenter AutoCenter = EAutoCenter::PreferredWorkArea;
	FOnWindowClosed OnWindowClosed;
	FRequestDestroyWindowOverride RequestDestroyWindowOverride;
	TWeakPtr<SWindow> ParentWindow;
	TArray<TSharedRef<SWindow>> ChildWindows;
	/** Where the focus was when the window was last in front. */
	TWeakPtr<SWidget> FocusedWidget;
	bool bTopmost = false;
	bool bSupportsMaximize = true;
	bool bSupportsMinimize = true;
	bool bHasCloseButton = true;
	bool bMaximized = false;
	bool bAdded = false;
	bool bShown = false;
	bool bOpen = true;
};
