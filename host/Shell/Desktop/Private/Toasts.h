// SPDX-License-Identifier: MIT
/** Notifications in the lower right corner of a window. */
#pragma once

#include <QWidget>

#include <vector>

class SWindow;

namespace Host
{

class FToast;
class FViewWorld;

/** Shows the notifications that stand and the progresses that run, one below the other, over the window's content. */
class FToasts : public QWidget
{
public:
	/** @param Window  its own, and what it covers */
	FToasts(FViewWorld& InWorld, QWidget* Window);

	/**
	 * Takes over what the model holds now. Once a frame.
	 *
	 * @param Model  that of the window; notifications for another window are left out
	 */
	void Follow(const SWindow& Model);
	/** Moves to the corner of the window. @param BottomMargin  what to leave free below */
	void Settle(int BottomMargin);
	/** A notification fades in or out. */
	bool IsFading() const { return bFading; }

private:
	FViewWorld& World;
	std::vector<FToast*> Toasts; // of this widget, from top to bottom
	bool bFading = false;
};

} // namespace Host
