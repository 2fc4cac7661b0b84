// SPDX-License-Identifier: MIT
/** The desktop with a garment application in a process of its own, and a user's hands. */
#pragma once

#include "Host/Desktop.h"
#include "TemporaryFolder.h"
#include "e2e/Program.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

class FZEFTandemEditor;
class QAbstractButton;
class QDialog;

class FDesktopFixture : public ::testing::Test
{
protected:
	void SetUp() override;
	void TearDown() override;

	/** Starts zef-peer on the endpoint of this test. */
	void StartPeer();
	/** Opens the desktop on the project of this test, which stays between two calls. */
	void OpenDesktop();
	void CloseDesktop();
	/** Opens the tandem editor as a user does. */
	void OpenEditor();
	/** An update from the click to the last object, with the warning confirmed. */
	void Update();

	/** Runs the event loop until the condition holds. False when that takes too long. */
	bool Until(const std::function<bool()>& Done);
	/** Runs the event loop until the view's picture is one of the finest kind and nothing moves. */
	bool UntilStill();

	QWidget* Window() const { return Running->MainWindow(); }
	/** The first visible widget of that accessible name in any window; null when there is none. */
	QWidget* Named(const QString& Name) const;
	/** Clicks the button of that accessible name or text, wherever it is. */
	void Click(const QString& Name);
	/** The 3D view. */
	QWidget* View() const { return Named("Viewport"); }
	/** Gives it the keyboard, and its window too where no window manager does. */
	void FocusView();
	/** Does something to the dialog that opens next, as soon as it stands. */
	void WithNextDialog(std::function<void(QDialog&)> Act);
	static QAbstractButton* ButtonOf(QWidget& Parent, const QString& Text);
	/** What the window with the view shows, written below the build folder for people to look at. */
	void SavePicture(const QString& Name);

	/** The open instance; empty when none is open. */
	TSharedPtr<FZEFTandemEditor> Editor() const;
	int NumObjects(int ObjectType) const;

	std::string Endpoint() const { return "ipc://" + Folder / "t.sock"; }

	FTemporaryFolder Folder;
	std::unique_ptr<FProgram> Peer;
	std::unique_ptr<Host::FDesktop> Running;
};
