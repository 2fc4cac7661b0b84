// SPDX-License-Identifier: MIT
/** Calls after a time. */
#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Engine/TimerHandle.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

using FTimerDelegate = TDelegate<void()>;

/**
 * Calls delegates when their time has come. Time passes only in Tick(); what is due is called in the order of its time,
 * and a timer that is set by such a call is not due before the next tick. Setting and clearing timers, also the one
 * that is being called, is allowed at any moment. A timer whose delegate's object is gone ends silently. Game thread
 * only.
 */
class ENGINE_API FTimerManager
{
public:
	FTimerManager();
	virtual ~FTimerManager();
	UE_NONCOPYABLE(FTimerManager);

	/** Lets time pass, 0 seconds or more, and calls what is due: a looping timer once for each period that passed. */
	virtual void Tick(float DeltaTime);

	/**
	 * Sets a timer.
	 *
	 * @param InOutHandle    becomes the timer's handle; a timer that it named is cleared
	 * @param InDelegate     is called
	 * @param InRate         seconds until the first call and between calls; at 0 or less nothing but the clearing
	 * happens
	 * @param InbLoop        whether it is called again and again
	 * @param InFirstDelay   seconds until the first call; InRate when negative
	 */
	void SetTimer(FTimerHandle& InOutHandle, FTimerDelegate const& InDelegate, float InRate, bool InbLoop,
		float InFirstDelay = -1.f)
	{
		InternalSetTimer(InOutHandle, FTimerDelegate(InDelegate), InRate, InbLoop, InFirstDelay);
	}
	void SetTimer(FTimerHandle& InOutHandle, TFunction<void(void)>&& Callback, float InRate, bool InbLoop,
		float InFirstDelay = -1.f)
	{
		InternalSetTimer(InOutHandle, FTimerDelegate::CreateLambda(MoveTemp(Callback)), InRate, InbLoop, InFirstDelay);
	}
	/** Calls a method of an engine object for as long as the object lives. */
	template <class UserClass>
	void SetTimer(FTimerHandle& InOutHandle, UserClass* InObj,
		typename FTimerDelegate::TMethodPtr<UserClass> InTimerMethod, float InRate, bool InbLoop = false,
		float InFirstDelay = -1.f)
	{
		InternalSetTimer(
			InOutHandle, FTimerDelegate::CreateUObject(InObj, InTimerMethod), InRate, InbLoop, InFirstDelay);
	}

	/** Calls once on the next tick, however short it is. */
	FTimerHandle SetTimerForNextTick(FTimerDelegate const& InDelegate);
	FTimerHandle SetTimerForNextTick(TFunction<void(void)>&& Callback)
	{
		return SetTimerForNextTick(FTimerDelegate::CreateLambda(MoveTemp(Callback)));
	}

	/** Ends a timer and invalidates the handle. */
	void ClearTimer(FTimerHandle& InHandle);
	/** Keeps a timer from running until it is unpaused; the rest of its time stays. */
	void PauseTimer(FTimerHandle InHandle);
	void UnPauseTimer(FTimerHandle InHandle);

	/** Whether the timer is set: it has not run out and was not cleared. True within its own call. */
	bool TimerExists(FTimerHandle InHandle) const { return Find(InHandle) != nullptr; }
	/** Whether the timer is set and not paused. */
	bool IsTimerActive(FTimerHandle InHandle) const;
	bool IsTimerPaused(FTimerHandle InHandle) const;
	/** Seconds between calls; -1 for no timer. */
	float GetTimerRate(FTimerHandle InHandle) const;
	/** Seconds since the last call or the setting; -1 for no timer. */
	float GetTimerElapsed(FTimerHandle InHandle) const;
	/** Seconds until the next call; -1 for no timer. */
	float GetTimerRemaining(FTimerHandle InHandle) const;

private:
	/** One timer that is set. */
	struct FTimerData
	{
		FTimerHandle Handle;
		FTimerDelegate Delegate;
		double Rate = 0.0;
		bool bLoop = false;
		bool bPaused = false;
		/** When it is due; while paused, the seconds that are left. */
		double Due = 0.0;
		/** Length of the period that ends at Due. */
		double Period = 0.0;
		/** The tick in which it was set; it is not due in that one. */
		uint64 SetInTick = 0;
	};

	void InternalSetTimer(
		FTimerHandle& InOutHandle, FTimerDelegate&& InDelegate, float InRate, bool InbLoop, float InFirstDelay);
	FTimerHandle Add(FTimerDelegate&& InDelegate, double Rate, bool bLoop, double FirstDelay);
	FTimerData* Find(FTimerHandle InHandle);
	const FTimerData* Find(FTimerHandle InHandle) const;
	FTimerData* FindNextDue();
	void Remove(FTimerHandle InHandle);

	/** In the order of setting. */
	TArray<FTimerData> Timers;
	/** Seconds that have passed. */
	double Now = 0.0;
	uint64 LastHandle = 0;
	uint64 NumTicks = 0;
	bool bTicking = false;
};
