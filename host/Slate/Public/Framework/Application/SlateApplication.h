// SPDX-License-Identifier: MIT
#pragma once

// The application: windows, menus, the keyboard focus and time.

#include "Application/SlateApplicationBase.h"
#include "Framework/Application/IMenu.h"
#include "Input/Events.h"
#include "Types/ISlateMetaData.h"
#include "Widgets/SWindow.h"

namespace Host
{
struct FApplicationAccess;
}

/** One at a time, between Create and Shutdown. Game thread. */
class FSlateApplication : public FSlateApplicationBase
{
public:
	/** A failed check when there is one. */
	static TSharedRef<FSlateApplication> Create();
	/** Destroys all windows. */
	static void Shutdown();
	static bool IsInitialized() { return CurrentApplication.IsValid(); }
	/** A failed check when there is none. */
	static FSlateApplication& Get();
	~FSlateApplication() override;

	/** One frame: what widgets put off is done, and layouts that changed are saved. */
	void Tick();

	/** Puts a window on the screen, in front. A window is added once. */
	TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately = true);
	/** A window that belongs to another one and is destroyed with it. */
	TSharedRef<SWindow> AddWindowAsNativeChild(
		TSharedRef<SWindow> InSlateWindow, TSharedRef<SWindow> InParentWindow, const bool bShowImmediately = true);
	/** Returns when the window is closed. Other windows get no keys meanwhile. Menus close before. */
	void AddModalWindow(TSharedRef<SWindow> InSlateWindow, const TSharedPtr<const SWidget> InParentWidget,
		bool bSlowTaskWindow = false);
	/** The innermost one; empty when there is none. */
	TSharedPtr<SWindow> GetActiveModalWindow() const;
	TSharedPtr<SWindow> GetActiveTopLevelWindow() const override;
	/** Those without a parent window, the oldest first. */
	const TArray<TSharedRef<SWindow>>& GetTopLevelWindows() const { return TopLevelWindows; }
	TSharedPtr<SWindow> FindWidgetWindow(TSharedRef<const SWidget> InWidget) const override;
	void RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy) override;

	/**
	 * Gives the focus to the widget, or to the nearest one above it that takes it. Its window becomes the active one.
	 *
	 * @return false, with the focus where it was, when none takes it or the widget is disabled
	 */
	bool SetKeyboardFocus(
		const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	void ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	TSharedPtr<SWidget> GetKeyboardFocusedWidget() const override;

	// Each goes to the widget with the focus, or to the active window when there is none, and up from there. True when
	// a widget handled it.
	bool ProcessKeyDownEvent(const FKeyEvent& InKeyEvent);
	bool ProcessKeyUpEvent(const FKeyEvent& InKeyEvent);
	bool ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent);
	/** As they were at the last input. */
	FModifierKeysState GetModifierKeys() const { return ModifierKeys; }

	bool AnyMenusVisible() const { return MenuStack.Num() > 0; }
	void DismissAllMenus();
	/** Closes the menu that the widget stands in, and those that hang on it. */
	void DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu);

protected:
	void OnWindowActivated(const TSharedRef<SWindow>& Window) override;

private:
	friend struct Host::FApplicationAccess;

	FSlateApplication() = default;

	/** The widgets that a key goes to, in order. */
	TArray<TSharedRef<SWidget>> KeyPath() const;
	template <typename EventType>
	bool RouteKey(const EventType& Event, FReply (SWidget::*Handler)(const FGeometry&, const EventType&));
	void LeaveWindow(const TSharedRef<SWindow>& Window);
	void MoveFocus(const TSharedPtr<SWidget>& Widget, EFocusCause Cause);

	static TSharedPtr<FSlateApplication> CurrentApplication;

	TArray<TSharedRef<SWindow>> TopLevelWindows;
	TArray<TSharedRef<SWindow>> ModalWindows;
	TWeakPtr<SWindow> ActiveWindow;
	TWeakPtr<SWidget> FocusedWidget;
	FModifierKeysState ModifierKeys;
	TArray<TSharedRef<IMenu>> MenuStack;
};
