// SPDX-License-Identifier: MIT
/** Whether a port of a machine can be reached at all. */
#pragma once

#include "Zef/LinkReason.h"

#include <chrono>
#include <string>

namespace Zef
{

/**
 * Looks the name up and tries to connect.
 * @return Well, or NameUnknown, PortClosed (the machine answers) or Unreachable (nothing answers, as behind a firewall)
 */
FLinkReason TryToReach(const std::string& Host, const std::string& Port, std::chrono::milliseconds MaxWait);

} // namespace Zef
