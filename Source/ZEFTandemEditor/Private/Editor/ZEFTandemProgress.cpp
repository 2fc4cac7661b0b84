// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemProgress.h"

#include "Editor.h"
#include "Templates/UniquePtr.h"
#include "TimerManager.h"
#include "Widgets/Notifications/SNotificationList.h"
#include "Widgets/SWindow.h"

namespace
{

constexpr float PushInterval = 0.5f;  // seconds
constexpr float ToastDuration = 3.0f; // seconds

TUniquePtr<FZEFTandemProgress>& GetProgress()
{
	static TUniquePtr<FZEFTandemProgress> Progress;
	return Progress;
}

} // namespace

void FZEFTandemProgress::Start(int32 InTotalWork)
{
	WorkDone = 0;
	TotalWork = InTotalWork;
	Handle = FSlateNotificationManager::Get().StartProgressNotification(DisplayText, TotalWork);
	GEditor->GetTimerManager()->SetTimer(
		TimerHandle, FTimerDelegate::CreateRaw(this, &FZEFTandemProgress::OnTimer), PushInterval, true);
}

void FZEFTandemProgress::Stop()
{
	if (TimerHandle.IsValid())
	{
		GEditor->GetTimerManager()->ClearTimer(TimerHandle);
	}
	FSlateNotificationManager::Get().CancelProgressNotification(Handle);
	Handle.Reset();
	TotalWork = 0;
}

void FZEFTandemProgress::Push() const
{
	FSlateNotificationManager::Get().UpdateProgressNotification(Handle, WorkDone, TotalWork, DisplayText);
}

void FZEFTandemProgress::OnTimer()
{
	if (!Handle.IsValid())
	{
		return;
	}
	if (TotalWork == WorkDone)
	{
		Stop();
		return;
	}
	Push();
}

void CreateProgress(int32 TotalWork, const FText& Text, bool bShowToast)
{
	DestroyProgress();
	GetProgress() = MakeUnique<FZEFTandemProgress>();
	GetProgress()->DisplayText = Text;
	GetProgress()->Start(TotalWork);
	if (bShowToast)
	{
		CreateNotification(Text, ToastDuration);
	}
}

void UpdateProgress(const FText& Text, int32 WorkDone, int32 TotalWork)
{
	FZEFTandemProgress* const Progress = GetProgress().Get();
	if (Progress == nullptr)
	{
		return;
	}
	if (!Text.IsEmpty())
	{
		Progress->DisplayText = Text;
	}
	if (WorkDone != -1)
	{
		Progress->WorkDone = WorkDone;
	}
	if (TotalWork != -1)
	{
		Progress->TotalWork = TotalWork;
	}
	Progress->Push();
}

void DestroyProgress()
{
	if (GetProgress().IsValid())
	{
		GetProgress()->Stop();
		GetProgress().Reset();
	}
}

int32 GetCurrentProgress()
{
	return GetProgress().IsValid() ? GetProgress()->WorkDone : -1;
}

void CreateNotification(const FText& Text, float Duration)
{
	FNotificationInfo Info(Text);
	Info.ExpireDuration = Duration;
	if (const TSharedPtr<SWindow> Frame = GetZEFTandemParentFrame().Pin())
	{
		Info.ForWindow = Frame;
	}
	FSlateNotificationManager::Get().AddNotification(Info);
}

TWeakPtr<SWindow>& GetZEFTandemParentFrame()
{
	static TWeakPtr<SWindow> Frame;
	return Frame;
}
