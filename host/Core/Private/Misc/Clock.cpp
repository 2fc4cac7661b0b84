// SPDX-License-Identifier: MIT
/** The stepped clock. */

#include "Host/Clock.h"
#include "Misc/AssertionMacros.h"

namespace Host
{

namespace
{
double SecondsPassed = 0.0;
}

double AppTime()
{
	return SecondsPassed;
}

void AdvanceTime(double Seconds)
{
	check(Seconds >= 0.0);
	if (Seconds >= 0.0)
	{
		SecondsPassed += Seconds;
	}
}

} // namespace Host
