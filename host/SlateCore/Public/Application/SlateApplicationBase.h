// SPDX-License-Identifier: MIT
#pragma once

// What widgets ask of the application.

#include "CoreMinimal.h"

class FSlateRenderer;
class SWidget;
class SWindow;

namespace Host
{
void WindowWasActivated(const TSharedRef<SWindow>& Window);
}

class FSlateApplicationBase : public TSharedFromThis<FSlateApplicationBase>
{
public:
	virtual ~FSlateApplicationBase();

	static bool IsInitialized() { return CurrentBaseApplication.IsValid(); }
	/** A failed check when there is none. */
	static FSlateApplicationBase& Get();

	/** Never null. */
	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const = 0;
	/** Empty while the widget stands in no window. */
	virtual TSharedPtr<SWindow> FindWidgetWindow(TSharedRef<const SWidget> InWidget) const = 0;
	/** Destroys a window and those that it owns. */
	virtual void RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy) = 0;
	/** The window that keys go to; empty when there is none. */
	virtual TSharedPtr<SWindow> GetActiveTopLevelWindow() const = 0;

protected:
	friend void Host::WindowWasActivated(const TSharedRef<SWindow>& Window);
	virtual void OnWindowActivated(const TSharedRef<SWindow>& Window) = 0;

	FSlateApplicationBase();

	static TSharedPtr<FSlateApplicationBase> CurrentBaseApplication;
	TSharedPtr<FSlateRenderer> Renderer;
};
