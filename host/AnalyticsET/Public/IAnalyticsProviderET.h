// SPDX-License-Identifier: MIT
// The kind of provider that the engine has.
#pragma once

#include "Interfaces/IAnalyticsProvider.h"

class IAnalyticsProviderET : public IAnalyticsProvider
{
};
