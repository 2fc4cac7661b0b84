// SPDX-License-Identifier: MIT
/** The one progress notification of the process, and plain notifications. */
#pragma once

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Templates/SharedPointer.h"

class SWindow;

/** What the progress notification shows. At most one exists; it is gone while nothing is in progress. */
struct FZEFTandemProgress
{
	FProgressNotificationHandle Handle; // invalid when stopped
	FTimerHandle TimerHandle;			// shows the state again every half second
	FText DisplayText;
	int32 TotalWork = 0; // steps in all; 0 when stopped
	int32 WorkDone = 0;

	void Start(int32 InTotalWork);
	void Stop();

	/** Hands the present state to the notification manager. */
	void Push() const;

private:
	void OnTimer();
};

/** Replaces any running progress by a new one of `TotalWork` steps; with `bShowToast` the text also shows for 3
 * seconds. */
void CreateProgress(int32 TotalWork, const FText& Text, bool bShowToast);

/** Changes what is shown; an empty text and -1 keep the present values. Does nothing while nothing is in progress. */
void UpdateProgress(const FText& Text, int32 WorkDone, int32 TotalWork);

/** Ends the progress, if there is one. */
void DestroyProgress();

/** Steps done, -1 while nothing is in progress. */
int32 GetCurrentProgress();

/** Shows a plain notification for `Duration` seconds, in the editor's frame when that is open. */
void CreateNotification(const FText& Text, float Duration);

/** The window that the editor instance stands in; empty when none is open. */
TWeakPtr<SWindow>& GetZEFTandemParentFrame();
