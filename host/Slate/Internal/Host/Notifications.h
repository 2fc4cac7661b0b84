// SPDX-License-Identifier: MIT
#pragma once

// What notifications and progresses stand, for programs that show them and tests that watch them.

#include "Framework/Notifications/NotificationManager.h"

namespace Host
{
struct FStandingNotification
{
	FText Text;
	/** Empty for the root window. */
	TSharedPtr<SWindow> ForWindow;
	/** When it goes, on the application's clock; negative when it stays until told. */
	double EndTime;
	TSharedPtr<SNotificationItem> Item;
	TArray<FNotificationButtonInfo> Buttons;
	/** Of the completion state, or its own; null for none. Not owned. */
	const FSlateBrush* Image;
	/** 0 to 1, while it fades in and out. */
	float Opacity;
	/** Something turns while it is pending. */
	bool bThrobber;
};

struct FProgressState
{
	FText Text;
	int32 WorkDone;
	int32 TotalWork;
};

/** Told of everything that happens, at once, on the game thread. */
class INotificationObserver
{
public:
	virtual ~INotificationObserver() = default;

	virtual void OnNotification(const FNotificationInfo& Info) = 0;
	virtual void OnProgressStarted(const FProgressState& State) = 0;
	/** The state after the update. */
	virtual void OnProgressUpdated(const FProgressState& State) = 0;
	/** Somebody asked for the end of a progress, which may have ended by itself before. */
	virtual void OnProgressCancelled() = 0;
};

/** Not owned, null for none; gives back the former one. */
INotificationObserver* SetNotificationObserver(INotificationObserver* NewObserver);

/** The notifications whose time is not over, the oldest first. */
TArray<FStandingNotification> StandingNotifications();
/** The progresses that run, the oldest first. */
TArray<FProgressState> RunningProgresses();
/** Drops all notifications and progresses, and the handler; tells nobody. */
void ResetNotifications();
} // namespace Host
