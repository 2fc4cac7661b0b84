// SPDX-License-Identifier: MIT
/** Where the endpoints note what they received. */
#pragma once

#include "Zef/Statistics.h"

namespace Zef
{

/** Adds a report to those of a channel and gives it its number. */
void NoteReceived(const std::string& ChannelName, FReceiveReport& InOutReport);

} // namespace Zef
