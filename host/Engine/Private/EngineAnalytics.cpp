// SPDX-License-Identifier: MIT
#include "EngineAnalytics.h"

#include "Host/Analytics.h"
#include "IAnalyticsProviderET.h"

namespace
{
IAnalyticsProviderET* Provider = nullptr;
}

IAnalyticsProviderET* Host::SetAnalyticsProvider(IAnalyticsProviderET* NewProvider)
{
	IAnalyticsProviderET* const Former = Provider;
	Provider = NewProvider;
	return Former;
}

bool FEngineAnalytics::IsAvailable()
{
	return Provider != nullptr;
}

IAnalyticsProviderET& FEngineAnalytics::GetProvider()
{
	checkf(IsAvailable(), TEXT("There is no provider of analytics; ask FEngineAnalytics::IsAvailable first"));
	return *Provider;
}
