// SPDX-License-Identifier: MIT
/** Who is at the other end of a local connection. */
#pragma once

#include "Zef/Fault.h"

#include <cstdint>
#include <optional>

namespace Zef
{

/**
 * User of the process at the other end of a connection: the kernel's word for a local socket, and for a loopback port
 * on Linux the owner of the other end's socket in the kernel's table.
 * @return nothing when the system does not tell: another system, another machine, a connection that is gone
 */
std::optional<std::uint32_t> UserOfPeer(int Descriptor);

/** UserRefused when the other end is known to be another user's; code None otherwise. */
FLinkFault CheckPeerUser(int Descriptor);

/** Names a connection beyond the life of its descriptor; 0 when it is none. */
std::uint64_t ConnectionMark(int Descriptor);

/** Ends both directions of a connection that ZeroMQ holds; nothing when the descriptor is another one's by now. */
void CutConnection(int Descriptor, std::uint64_t Mark);

} // namespace Zef
