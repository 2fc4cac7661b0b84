// SPDX-License-Identifier: MIT
/** How often something may happen: so many times a second for long, four times as many at once. */
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace Zef
{

class FRateLimit
{
public:
	using FClock = std::chrono::steady_clock;

	explicit FRateLimit(std::uint32_t InPerSecond)
		: PerSecond(InPerSecond)
		, Left(4.0 * InPerSecond)
	{
	}

	/** It happens now. False when that is too often; then it does not count. */
	bool Take(FClock::time_point Now)
	{
		const double Elapsed = std::chrono::duration<double>(Now - Last).count();
		Left = std::min(4.0 * PerSecond, Left + std::max(0.0, Elapsed) * PerSecond);
		Last = Now;
		if (Left < 1)
		{
			return false;
		}
		Left -= 1;
		return true;
	}

private:
	double PerSecond;
	double Left;
	FClock::time_point Last;
};

} // namespace Zef
