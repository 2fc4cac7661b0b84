// SPDX-License-Identifier: MIT
// One named value of an analytics event.
#pragma once

#include "CoreMinimal.h"

struct FAnalyticsEventAttribute
{
	FAnalyticsEventAttribute(const FString& InName, const FString& InValue)
		: Name(InName)
		, Value(InValue)
	{
	}

	const FString& GetName() const { return Name; }
	const FString& GetValue() const { return Value; }

private:
	FString Name;
	FString Value;
};
