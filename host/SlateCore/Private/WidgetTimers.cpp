// SPDX-License-Identifier: MIT

#include "Host/WidgetTimers.h"

#include "Host/Clock.h"

namespace Host
{
namespace
{
struct FCall
{
	FWidgetCall Id;
	double DueTime;
	TWeakPtr<SWidget> Widget;
	TFunction<void()> Function;
};

TArray<FCall> Calls;
FWidgetCall LastCall = 0;
} // namespace

FWidgetCall CallLater(const TSharedRef<SWidget>& Widget, double Seconds, TFunction<void()> Function)
{
	Calls.Add(FCall{++LastCall, AppTime() + Seconds, Widget, MoveTemp(Function)});
	return LastCall;
}

void CancelCall(FWidgetCall Call)
{
	Calls.RemoveAll([Call](const FCall& Each) { return Each.Id == Call; });
}

void RunDueCalls()
{
	const double Now = AppTime();
	const FWidgetCall Newest = LastCall;
	// One at a time, looked for anew: each may add and cancel others.
	for (;;)
	{
		const int32 Index =
			Calls.IndexOfByPredicate([&](const FCall& Each) { return Each.Id <= Newest && Each.DueTime <= Now; });
		if (Index == INDEX_NONE)
		{
			return;
		}
		const FCall Call = MoveTemp(Calls[Index]);
		Calls.RemoveAt(Index);
		if (const TSharedPtr<SWidget> Widget = Call.Widget.Pin())
		{
			Call.Function();
		}
	}
}
} // namespace Host
