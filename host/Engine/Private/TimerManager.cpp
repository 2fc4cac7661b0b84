// SPDX-License-Identifier: MIT
/** Setting, clearing and calling of timers. */

#include "TimerManager.h"
#include "Templates/UnrealTemplate.h"

FTimerManager::FTimerManager() = default;

FTimerManager::~FTimerManager() = default;

const FTimerManager::FTimerData* FTimerManager::Find(FTimerHandle InHandle) const
{
	return InHandle.IsValid()
			   ? Timers.FindByPredicate([InHandle](const FTimerData& Timer) { return Timer.Handle == InHandle; })
			   : nullptr;
}

FTimerManager::FTimerData* FTimerManager::Find(FTimerHandle InHandle)
{
	return const_cast<FTimerData*>(static_cast<const FTimerManager*>(this)->Find(InHandle));
}

void FTimerManager::Remove(FTimerHandle InHandle)
{
	Timers.RemoveAll([InHandle](const FTimerData& Timer) { return Timer.Handle == InHandle; });
}

FTimerHandle FTimerManager::Add(FTimerDelegate&& InDelegate, double Rate, bool bLoop, double FirstDelay)
{
	FTimerData Timer;
	Timer.Handle.Handle = ++LastHandle;
	Timer.Delegate = MoveTemp(InDelegate);
	Timer.Rate = Rate;
	Timer.bLoop = bLoop;
	Timer.Due = Now + FirstDelay;
	Timer.Period = FirstDelay;
	Timer.SetInTick = bTicking ? NumTicks : 0;
	const FTimerHandle Handle = Timer.Handle;
	Timers.Add(MoveTemp(Timer));
	return Handle;
}

void FTimerManager::InternalSetTimer(
	FTimerHandle& InOutHandle, FTimerDelegate&& InDelegate, float InRate, bool InbLoop, float InFirstDelay)
{
	ClearTimer(InOutHandle);
	if (InRate > 0.0f)
	{
		const double Rate = InRate;
		InOutHandle = Add(MoveTemp(InDelegate), Rate, InbLoop, InFirstDelay >= 0.0f ? double(InFirstDelay) : Rate);
	}
}

FTimerHandle FTimerManager::SetTimerForNextTick(FTimerDelegate const& InDelegate)
{
	return Add(FTimerDelegate(InDelegate), 0.0, false, 0.0);
}

void FTimerManager::ClearTimer(FTimerHandle& InHandle)
{
	if (InHandle.IsValid())
	{
		// The handle may lie in an object that goes with the delegate.
		const FTimerHandle Cleared = InHandle;
		InHandle.Invalidate();
		Remove(Cleared);
	}
}

void FTimerManager::PauseTimer(FTimerHandle InHandle)
{
	FTimerData* const Timer = Find(InHandle);
	if (Timer != nullptr && !Timer->bPaused)
	{
		Timer->bPaused = true;
		Timer->Due -= Now;
	}
}

void FTimerManager::UnPauseTimer(FTimerHandle InHandle)
{
	FTimerData* const Timer = Find(InHandle);
	if (Timer != nullptr && Timer->bPaused)
	{
		Timer->bPaused = false;
		Timer->Due += Now;
	}
}

bool FTimerManager::IsTimerActive(FTimerHandle InHandle) const
{
	const FTimerData* const Timer = Find(InHandle);
	return Timer != nullptr && !Timer->bPaused;
}

bool FTimerManager::IsTimerPaused(FTimerHandle InHandle) const
{
	const FTimerData* const Timer = Find(InHandle);
	return Timer != nullptr && Timer->bPaused;
}

float FTimerManager::GetTimerRate(FTimerHandle InHandle) const
{
	const FTimerData* const Timer = Find(InHandle);
	return Timer != nullptr ? static_cast<float>(Timer->Rate) : -1.0f;
}

float FTimerManager::GetTimerRemaining(FTimerHandle InHandle) const
{
	const FTimerData* const Timer = Find(InHandle);
	return Timer != nullptr ? static_cast<float>(Timer->bPaused ? Timer->Due : Timer->Due - Now) : -1.0f;
}

float FTimerManager::GetTimerElapsed(FTimerHandle InHandle) const
{
	const FTimerData* const Timer = Find(InHandle);
	return Timer != nullptr ? static_cast<float>(Timer->Period) - GetTimerRemaining(InHandle) : -1.0f;
}

FTimerManager::FTimerData* FTimerManager::FindNextDue()
{
	FTimerData* Next = nullptr;
	for (FTimerData& Timer : Timers)
	{
		if (!Timer.bPaused && Timer.SetInTick != NumTicks && Timer.Due <= Now &&
			(Next == nullptr || Timer.Due < Next->Due))
		{
			Next = &Timer;
		}
	}
	return Next;
}

void FTimerManager::Tick(float DeltaTime)
{
	checkf(DeltaTime >= 0.0f && !bTicking, TEXT("a tick of %f seconds"), double(DeltaTime));
	TGuardValue<bool> Guard(bTicking, true);
	++NumTicks;
	Now += DeltaTime;
	while (const FTimerData* const Due = FindNextDue())
	{
		// The call may set and clear timers, so that only copies outlive it.
		const FTimerHandle Handle = Due->Handle;
		const FTimerDelegate Delegate = Due->Delegate;
		const bool bCalled = Delegate.ExecuteIfBound();
		FTimerData* const Timer = Find(Handle);
		if (Timer == nullptr)
		{
			continue;
		}
		if (!bCalled || !Timer->bLoop)
		{
			Remove(Handle);
			continue;
		}
		Timer->Due += Timer->Rate;
		Timer->Period = Timer->Rate;
	}
}
