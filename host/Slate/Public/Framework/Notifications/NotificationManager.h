// SPDX-License-Identifier: MIT
#pragma once

// Toasts and the one-line progress of the status bar.

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

/** Names one running progress. The id cannot be read from outside; two handles can be compared. */
struct FProgressNotificationHandle
{
	/** Invalid. */
	FProgressNotificationHandle() = default;

	bool IsValid() const { return Id != INDEX_NONE; }
	void Reset() { Id = INDEX_NONE; }

	bool operator==(const FProgressNotificationHandle& Other) const { return Id == Other.Id; }
	bool operator!=(const FProgressNotificationHandle& Other) const { return Id != Other.Id; }

private:
	friend class FSlateNotificationManager;
	explicit FProgressNotificationHandle(int32 InId)
		: Id(InId)
	{
	}

	int32 Id = INDEX_NONE;
};

/** Shows the progress that the manager keeps, in a status bar for instance. Called on the game thread. */
class IProgressNotificationHandler
{
public:
	virtual ~IProgressNotificationHandler() = default;

	virtual void StartProgressNotification(
		FProgressNotificationHandle Handle, FText DisplayText, int32 TotalWorkToDo) = 0;
	/** The values are those to show: numbers are absolute, the text is the current one. */
	virtual void UpdateProgressNotification(FProgressNotificationHandle InHandle, int32 TotalWorkDone,
		int32 UpdatedTotalWorkToDo, FText UpdatedDisplayText) = 0;
	/** Also called when the work is done. */
	virtual void CancelProgressNotification(FProgressNotificationHandle Handle) = 0;
};

class FSlateNotificationManager
{
public:
	static FSlateNotificationManager& Get();

	/** Shows a notification. One that fires and forgets goes by itself, on the host's clock. */
	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	/**
	 * Starts a progress, whether or not anyone shows it.
	 *
	 * @param TotalWorkToDo  steps in all
	 */
	FProgressNotificationHandle StartProgressNotification(FText DisplayText, int32 TotalWorkToDo);

	/**
	 * Moves a progress on. Nothing happens for a handle that is not running. A progress whose work done reaches its
	 * total ends.
	 *
	 * @param TotalWorkDone        steps done in all, not since the last call
	 * @param UpdatedTotalWorkToDo new total, 0 to keep it
	 * @param UpdatedDisplayText   new text, empty to keep it
	 */
	void UpdateProgressNotification(FProgressNotificationHandle InHandle, int32 TotalWorkDone,
		int32 UpdatedTotalWorkToDo = 0, FText UpdatedDisplayText = FText::GetEmpty());

	/** Ends a progress. Nothing happens for a handle that is not running. */
	void CancelProgressNotification(FProgressNotificationHandle InHandle);

	/** Not owned; null for none. A progress that runs already is not told to a new handler. */
	void SetProgressNotificationHandler(IProgressNotificationHandler* NewHandler);

	/** Drops the notifications whose time is over. */
	void Tick();

private:
	friend struct FNotificationManagerAccess;

	struct FProgress
	{
		FProgressNotificationHandle Handle;
		FText DisplayText;
		int32 TotalWork = 0;
		int32 WorkDone = 0;
	};

	FSlateNotificationManager() = default;
	FProgress* FindProgress(const FProgressNotificationHandle& Handle);
	void EndProgress(const FProgressNotificationHandle& Handle);

	TArray<TSharedRef<SNotificationItem>> Items;
	TArray<FProgress> Progresses;
	IProgressNotificationHandler* Handler = nullptr;
	int32 NextProgressId = 0;
};
