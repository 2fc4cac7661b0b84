// SPDX-License-Identifier: MIT

#include "Framework/Notifications/NotificationManager.h"

#include "Host/Clock.h"
#include "Host/Notifications.h"
#include "Styling/AppStyle.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
Host::INotificationObserver* Observer = nullptr;
} // namespace

void SNotificationItem::Construct(const FArguments&, const FNotificationInfo& InInfo)
{
	Info = InInfo;
	StartTime = Host::AppTime();
	ChildSlot[SNew(STextBlock).Text(Info.Text)];
}

void SNotificationItem::ExpireAndFadeout()
{
	EndTime = Host::AppTime() + Info.ExpireDuration + Info.FadeOutDuration;
}

void SNotificationItem::Fadeout()
{
	EndTime = Host::AppTime() + Info.FadeOutDuration;
}

FSlateNotificationManager& FSlateNotificationManager::Get()
{
	static FSlateNotificationManager Instance;
	return Instance;
}

TSharedPtr<SNotificationItem> FSlateNotificationManager::AddNotification(const FNotificationInfo& Info)
{
	Tick();
	const TSharedRef<SNotificationItem> Item = SNew(SNotificationItem, Info);
	if (Info.bFireAndForget)
	{
		Item->ExpireAndFadeout();
	}
	Items.Add(Item);
	if (Observer)
	{
		Observer->OnNotification(Info);
	}
	return Item;
}

FProgressNotificationHandle FSlateNotificationManager::StartProgressNotification(FText DisplayText, int32 TotalWorkToDo)
{
	FProgress Progress;
	Progress.Handle = FProgressNotificationHandle(NextProgressId++);
	Progress.DisplayText = DisplayText;
	Progress.TotalWork = TotalWorkToDo;
	Progresses.Add(Progress);
	if (Handler)
	{
		Handler->StartProgressNotification(Progress.Handle, DisplayText, TotalWorkToDo);
	}
	if (Observer)
	{
		Observer->OnProgressStarted({DisplayText, 0, TotalWorkToDo});
	}
	return Progress.Handle;
}

void FSlateNotificationManager::UpdateProgressNotification(
	FProgressNotificationHandle InHandle, int32 TotalWorkDone, int32 UpdatedTotalWorkToDo, FText UpdatedDisplayText)
{
	FProgress* Progress = FindProgress(InHandle);
	if (!Progress)
	{
		return;
	}
	Progress->WorkDone = TotalWorkDone;
	if (UpdatedTotalWorkToDo != 0)
	{
		Progress->TotalWork = UpdatedTotalWorkToDo;
	}
	if (!UpdatedDisplayText.IsEmpty())
	{
		Progress->DisplayText = UpdatedDisplayText;
	}
	const FProgress Current = *Progress; // a handler may start or end progresses
	if (Handler)
	{
		Handler->UpdateProgressNotification(InHandle, Current.WorkDone, Current.TotalWork, Current.DisplayText);
	}
	if (Observer)
	{
		Observer->OnProgressUpdated({Current.DisplayText, Current.WorkDone, Current.TotalWork});
	}
	if (Current.WorkDone >= Current.TotalWork)
	{
		EndProgress(InHandle);
	}
}

void FSlateNotificationManager::CancelProgressNotification(FProgressNotificationHandle InHandle)
{
	if (Observer && InHandle.IsValid())
	{
		Observer->OnProgressCancelled();
	}
	EndProgress(InHandle);
}

void FSlateNotificationManager::SetProgressNotificationHandler(IProgressNotificationHandler* NewHandler)
{
	Handler = NewHandler;
}

void FSlateNotificationManager::Tick()
{
	const double Now = Host::AppTime();
	Items.RemoveAll(
		[Now](const TSharedRef<SNotificationItem>& Item) { return Item->EndTime >= 0.0 && Item->EndTime <= Now; });
}

FSlateNotificationManager::FProgress* FSlateNotificationManager::FindProgress(const FProgressNotificationHandle& Handle)
{
	return Progresses.FindByPredicate([&](const FProgress& Progress) { return Progress.Handle == Handle; });
}

void FSlateNotificationManager::EndProgress(const FProgressNotificationHandle& Handle)
{
	if (!FindProgress(Handle))
	{
		return;
	}
	Progresses.RemoveAll([&](const FProgress& Other) { return Other.Handle == Handle; });
	if (Handler)
	{
		Handler->CancelProgressNotification(Handle);
	}
}

/** Lets the functions of the host look into the manager without the engine's header saying more than the engine's does.
 */
struct FNotificationManagerAccess
{
	static TArray<Host::FStandingNotification> Standing()
	{
		FSlateNotificationManager& Manager = FSlateNotificationManager::Get();
		Manager.Tick();
		TArray<Host::FStandingNotification> Result;
		for (const TSharedRef<SNotificationItem>& Item : Manager.Items)
		{
			Result.Add({Item->GetText(), Item->Info.ForWindow, Item->EndTime, Item, Item->Info.ButtonDetails,
				ImageOf(*Item), OpacityOf(*Item),
				Item->Info.bUseThrobber && Item->CompletionState == SNotificationItem::CS_Pending});
		}
		return Result;
	}

	static const FSlateBrush* ImageOf(const SNotificationItem& Item)
	{
		const bool bDecided =
			Item.CompletionState == SNotificationItem::CS_Success || Item.CompletionState == SNotificationItem::CS_Fail;
		if (Item.Info.bUseSuccessFailIcons && bDecided)
		{
			return FAppStyle::GetBrush(Item.CompletionState == SNotificationItem::CS_Success
										   ? TEXT("NotificationList.SuccessImage")
										   : TEXT("NotificationList.FailImage"));
		}
		return Item.Info.Image;
	}

	static float OpacityOf(const SNotificationItem& Item)
	{
		const auto Part = [](double Seconds, float Duration)
		{ return Duration > 0.0f ? FMath::Clamp(static_cast<float>(Seconds / Duration), 0.0f, 1.0f) : 1.0f; };
		const double Now = Host::AppTime();
		const float In = Part(Now - Item.StartTime, Item.Info.FadeInDuration);
		return Item.EndTime < 0.0 ? In : FMath::Min(In, Part(Item.EndTime - Now, Item.Info.FadeOutDuration));
	}

	static TArray<Host::FProgressState> Progresses()
	{
		TArray<Host::FProgressState> Result;
		for (const FSlateNotificationManager::FProgress& Progress : FSlateNotificationManager::Get().Progresses)
		{
			Result.Add({Progress.DisplayText, Progress.WorkDone, Progress.TotalWork});
		}
		return Result;
	}

	static void Reset()
	{
		FSlateNotificationManager& Manager = FSlateNotificationManager::Get();
		Manager.Items.Empty();
		Manager.Progresses.Empty();
		Manager.Handler = nullptr;
	}
};

namespace Host
{
INotificationObserver* SetNotificationObserver(INotificationObserver* NewObserver)
{
	INotificationObserver* Former = Observer;
	Observer = NewObserver;
	return Former;
}

TArray<FStandingNotification> StandingNotifications()
{
	return FNotificationManagerAccess::Standing();
}

TArray<FProgressState> RunningProgresses()
{
	return FNotificationManagerAccess::Progresses();
}

void ResetNotifications()
{
	FNotificationManagerAccess::Reset();
}
} // namespace Host
