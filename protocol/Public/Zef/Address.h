// SPDX-License-Identifier: MIT
/** From a channel name to the local endpoint that only the user may open. */
#pragma once

#include "Zef/Result.h"

#include <string>

namespace Zef
{

/** Environment variable that names a ZeroMQ endpoint to use in place of the channel's own; for tests and tunnels. */
inline constexpr const char* EndpointVariable = "ZEF_TANDEM_ENDPOINT";

/** Where a channel is served. */
struct FAddress
{
	/** As ZeroMQ takes it: "ipc:///run/user/1000/zef-tandem/Tandem.sock". */
	std::string Endpoint;
	/** Path of the socket file; empty for an endpoint that has none. */
	std::string SocketFile;
	/** Folder of the socket file that this library makes and keeps closed to others; empty when it is not ours to make.
	 */
	std::string Folder;
};

/**
 * Address of a channel: $ZEF_TANDEM_ENDPOINT when that is set, otherwise "<runtime folder>/zef-tandem/<channel>.sock"
 * with the runtime folder $XDG_RUNTIME_DIR, or "/tmp/zef-tandem-<user id>/<channel>.sock" where there is none.
 * Characters of the name other than letters, digits, '.', '-' and '_' are written as '%' and two hexadecimal digits.
 * Touches no file.
 *
 * @return AddressRefused for an empty name, a path too long for a socket, and an endpoint that is not local:
 * "ipc://..." and "tcp://127.0.0.1:port" (or [::1]) are
 */
TResult<FAddress> AddressOfChannel(const std::string& ChannelName);

/** Address of an endpoint in ZeroMQ's notation, under the same rule of being local. */
TResult<FAddress> AddressOfEndpoint(const std::string& Endpoint);

/**
 * Makes the folder of the socket with mode 0700, or checks that the one which is there is a real folder, belongs to
 * this user and is closed to everybody else.
 * @return a fault with code None when all is well
 */
FLinkFault PrepareFolder(const FAddress& Address);

} // namespace Zef
