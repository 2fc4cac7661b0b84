// SPDX-License-Identifier: MIT
/** The model's windows and menus on the screen. */
#pragma once

#include "Host/Windows.h"
#include "WidgetView.h"

#include <QEventLoop>

#include <map>

class QMenu;

namespace Host
{

class FDialogWindows;
class FStatusLine;
class FToasts;

/** One window: the content of its model; unless it is modal, a status line and toasts as well. */
class FWindowFrame : public QWidget
{
public:
	/** @param Parent  the window that it belongs to; null for none */
	FWindowFrame(FViewWorld& InWorld, const TSharedRef<SWindow>& InModel, QWidget* Parent, bool bModal);
	~FWindowFrame() override;

	/** Adds the status line and the toasts. */
	void MakeMain();
	void Follow();
	/** It changes by itself from frame to frame. */
	bool IsMoving() const;
	TSharedPtr<SWindow> Model() const { return WeakModel.Pin(); }
	/** Ends the window without asking the model. */
	void CloseForGood();
	/** Runs until CloseForGood. */
	void RunModal();

protected:
	void closeEvent(QCloseEvent* Event) override;
	void keyPressEvent(QKeyEvent* Event) override;
	void keyReleaseEvent(QKeyEvent* Event) override;
	void resizeEvent(QResizeEvent* Event) override;
	void moveEvent(QMoveEvent* Event) override;
	void changeEvent(QEvent* Event) override;

private:
	void FollowMenuBar(const TSharedRef<SWindow>& Current);
	void TellPlace();
	bool SendKey(QKeyEvent& Event, bool bDown);

	FViewWorld& World;
	TWeakPtr<SWindow> WeakModel;
	std::unique_ptr<FWidgetView> Content;
	/** The main menu of the editor in front; null when it has none. */
	std::unique_ptr<FWidgetView> MenuBar;
	FStatusLine* Status = nullptr;
	FToasts* Toasts = nullptr;
	QEventLoop ModalLoop;
	QString Title;
	bool bClosing = false;
};

/** The window system of the desktop. */
class FWindowFrames : public IWindowSystem
{
public:
	/** Becomes the window system until its end. */
	FWindowFrames(FViewWorld& InWorld, FDialogWindows& InDialogs);
	virtual ~FWindowFrames() override;

	virtual void Show(const TSharedRef<SWindow>& Window) override;
	virtual void Hide(const TSharedRef<SWindow>& Window) override;
	virtual void RunModal(const TSharedRef<SWindow>& Window) override;
	virtual void Destroy(const TSharedRef<SWindow>& Window) override;
	virtual void BringToFront(const TSharedRef<SWindow>& Window) override;
	virtual void OpenMenu(const TSharedRef<IMenu>& Menu, const TOptional<FVector2D>& Position) override;
	virtual void CloseMenu(const TSharedRef<IMenu>& Menu) override;

	/** Once a frame. */
	void Follow();
	/** A window changes by itself from frame to frame. */
	bool IsMoving() const;
	/** The frame of a window; null when it is not on the screen. */
	FWindowFrame* FrameOf(const TSharedPtr<SWindow>& Window) const;
	/** A modal window of the model waits. */
	bool IsModal() const { return ModalDepth > 0; }

private:
	FWindowFrame& Take(const TSharedRef<SWindow>& Window, bool bModal);

	FViewWorld& World;
	FDialogWindows& Dialogs;
	IWindowSystem* const Former;
	std::map<const SWindow*, QPointer<FWindowFrame>> Frames;
	std::map<const IMenu*, QPointer<QMenu>> Menus;
	int ModalDepth = 0;
};

} // namespace Host
