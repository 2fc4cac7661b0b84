// SPDX-License-Identifier: MIT
#pragma once

// Windows and menus on a screen: what the application asks of a desktop, and what the desktop tells it.

#include "Templates/Function.h"
#include "Widgets/SWindow.h"

class IMenu;

namespace Host
{
/**
 * Puts windows on a screen. Called on the game thread. Titles, sizes that the program changed and everything inside a
 * window are read from the widgets at each frame, so there is no call for them.
 */
class IWindowSystem
{
public:
	virtual ~IWindowSystem() = default;

	/** The window was added, or is shown again. Its parent window, if it has one, is there. */
	virtual void Show(const TSharedRef<SWindow>& Window) = 0;
	virtual void Hide(const TSharedRef<SWindow>& Window) = 0;
	/** The window is there; returns when it is destroyed. Other windows take no input meanwhile. */
	virtual void RunModal(const TSharedRef<SWindow>& Window) = 0;
	/** The window is closed and must go; it is not told again. */
	virtual void Destroy(const TSharedRef<SWindow>& Window) = 0;
	virtual void BringToFront(const TSharedRef<SWindow>& Window) = 0;

	/** @param Position  slate units on the desktop; empty for beside the menu's parent widget */
	virtual void OpenMenu(const TSharedRef<IMenu>& Menu, const TOptional<FVector2D>& Position) = 0;
	virtual void CloseMenu(const TSharedRef<IMenu>& Menu) = 0;
};

/** Not owned; null for none, which is how a program without a screen runs. @return the former one */
IWindowSystem* SetWindowSystem(IWindowSystem* System);
/** Never null: without a screen the one that does nothing but RunModal, see AnswerNextModalWindow. */
IWindowSystem& GetWindowSystem();

/**
 * Answers the next modal window in place of a user, when there is no screen: the function operates the window's
 * widgets. Several answers queue up. A window that is not answered, or still open after its answer, is closed with a
 * line in the log.
 */
void AnswerNextModalWindow(TFunction<void(const TSharedRef<SWindow>&)> Answer);
/** Answers that no window asked for yet. */
int32 NumModalAnswersLeft();
void ForgetModalAnswers();

// What the desktop tells.

/** The user moved or resized the window, in slate units; sizes are those of the inside. */
void WindowWasMoved(SWindow& Window, const FVector2D& Position, const FVector2D& Size, bool bMaximized);
/** The window came to the front: keys go to the widget in it that had the focus last. */
void WindowWasActivated(const TSharedRef<SWindow>& Window);
/** The user asked to close the window by its frame. Nothing happens when it has no close button. */
void CloseWindowByUser(const TSharedRef<SWindow>& Window);

/** What only the window's owner and the screen know. */
struct FWindowAccess
{
	static EAutoCenter GetAutoCenter(const SWindow& Window) { return Window.AutoCenter; }
	/** Not destroyed. */
	static bool IsOpen(const SWindow& Window) { return Window.bOpen; }
	static bool IsAdded(const SWindow& Window) { return Window.bAdded; }
	static void MarkAdded(SWindow& Window) { Window.bAdded = true; }
	static void SetShown(SWindow& Window, bool bShown) { Window.bShown = bShown; }
	static void SetParent(const TSharedRef<SWindow>& Window, const TSharedPtr<SWindow>& Parent);
	static void SetRect(SWindow& Window, const FVector2D& Position, const FVector2D& Size, bool bMaximized)
	{
		Window.ScreenPosition = Position;
		Window.ClientSize = Size;
		Window.bMaximized = bMaximized;
		Window.AutoCenter = EAutoCenter::None;
	}
	static TWeakPtr<SWidget>& FocusedWidget(SWindow& Window) { return Window.FocusedWidget; }
	/** Marks it destroyed and calls its delegate; false when it was already. */
	static bool NotifyClosed(const TSharedRef<SWindow>& Window);
};
} // namespace Host
