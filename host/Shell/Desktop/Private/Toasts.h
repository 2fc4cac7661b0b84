// SPDX-License-Identifier: MIT
/** Notifications in the lower right corner of a window. */
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

namespace Host
{

/** Shows the notifications that stand and the progresses that run, one below the other, over the window's content. */
class FToasts : public QWidget
{
public:
	/** @param Window  its own, and what it covers */
	explicit FToasts(QWidget* Window);

	/** Takes over what the model holds now. Once a frame. */
	void Follow();
	/** Moves to the corner of the window. @param BottomMargin  what to leave free below */
	void Settle(int BottomMargin);

private:
	struct FShown
	{
		QString Text;
		int Done = -1;
		int Total = -1; // -1: no progress

		bool operator==(const FShown&) const = default;
	};

	void Rebuild(const std::vector<FShown>& Wanted);

	std::vector<FShown> Shown;
	int LastBottomMargin = 0;
};

} // namespace Host
