// SPDX-License-Identifier: MIT
/** Changes one thing of a record, as a faulty or hostile sender would: mostly so that the rest still fits it. */
#pragma once

#include "Support/UncheckedRecord.h"

#include <random>

namespace Fuzz
{

using FRandom = std::minstd_rand;

/** One change to one record. */
void Mutate(FUncheckedRecord& Record, FRandom& Random);

/** Makes offsets, counts, indices and keys fit again, so that the record may pass the checker. */
void Repair(FUncheckedRecord& Record, FRandom& Random);

} // namespace Fuzz
