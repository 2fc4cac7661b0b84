// SPDX-License-Identifier: MIT
// Whoever records how the editor is used.
#pragma once

#include "AnalyticsEventAttribute.h"

class IAnalyticsProvider
{
public:
	virtual ~IAnalyticsProvider() = default;

	virtual void RecordEvent(const FString& EventName, const TArray<FAnalyticsEventAttribute>& Attributes) = 0;
	/** An event of one attribute. */
	void RecordEvent(const FString& EventName, const FString& ParamName, const FString& ParamValue)
	{
		RecordEvent(EventName, TArray<FAnalyticsEventAttribute>({FAnalyticsEventAttribute(ParamName, ParamValue)}));
	}
};
