// SPDX-License-Identifier: MIT
/** The clock of the host. */
#pragma once

namespace Host
{

/** Seconds since the start, as far as they were advanced; the wall clock has no part in it. */
double AppTime();

/** Lets time pass. @param Seconds  0 or more; anything else is a fault and changes nothing */
void AdvanceTime(double Seconds);

} // namespace Host
