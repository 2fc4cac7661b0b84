// SPDX-License-Identifier: MIT
// The engine's provider of analytics, when there is one.
#pragma once

#include "CoreMinimal.h"

class IAnalyticsProviderET;

class FEngineAnalytics
{
public:
	/** False unless somebody attached a provider: the host records nothing by itself. */
	static bool IsAvailable();
	/** A failed check when none is available. */
	static IAnalyticsProviderET& GetProvider();
};
