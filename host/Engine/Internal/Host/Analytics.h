// SPDX-License-Identifier: MIT
// Attaching a provider of analytics.
#pragma once

class IAnalyticsProviderET;

namespace Host
{
/** Not owned, null for none; gives back the former one. */
IAnalyticsProviderET* SetAnalyticsProvider(IAnalyticsProviderET* NewProvider);
} // namespace Host
