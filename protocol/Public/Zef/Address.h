// SPDX-License-Identifier: MIT
/** From a channel name to the local endpoint that only the user may open. */
#pragma once

#include "Zef/Result.h"

#include <string>

namespace Zef
{

/** Environment variable that names a ZeroMQ endpoint to use in place of the channel's own; for tests and tunnels. */
inline constexpr const char* EndpointVariable = "ZEF_TANDEM_ENDPOINT";

/** Where a channel is served. Exactly one of Endpoint and PortFile is set. */
struct FAddress
{
	/** As ZeroMQ takes it: "ipc:///run/user/1000/zef-tandem/Tandem.sock". */
	std::string Endpoint;
	/** File into which the garment application writes the loopback endpoint that it was given. */
	std::string PortFile;
	/** Path of the socket file; empty for an endpoint that has none. */
	std::string SocketFile;
	/** Folder of the file that this library makes and keeps closed to others; empty when it is not ours to make. */
	std::string Folder;
};

/**
 * Address of a channel: $ZEF_TANDEM_ENDPOINT when that is set, otherwise "<runtime folder>/zef-tandem/<channel>.sock"
 * with the runtime folder $XDG_RUNTIME_DIR, or "/tmp/zef-tandem-<user id>/<channel>.sock" where there is none; on
 * Windows the port file "%LOCALAPPDATA%/zef-tandem/<channel>.port". Characters of the name other than letters, digits,
 * '-' and '_' are written as '%' and two hexadecimal digits. Touches no file.
 *
 * @return AddressRefused for an empty name, a path too long for a socket, and what AddressOfEndpoint refuses
 */
TResult<FAddress> AddressOfChannel(const std::string& ChannelName);

/**
 * Address of an endpoint: "ipc://PATH", "tcp://127.0.0.1:PORT", "tcp://[::1]:PORT" or "portfile:PATH".
 * @return AddressRefused for any other: a remote end would need keys, which this version does not read
 */
TResult<FAddress> AddressOfEndpoint(const std::string& Endpoint);

/**
 * Endpoint to connect to: the address's own, or what its port file says at the moment.
 * @return empty when there is no port file, or it holds no loopback endpoint
 */
std::string ResolveEndpoint(const FAddress& Address);

/**
 * Makes the address's folder with mode 0700, or checks the one that is there as CheckFolder does.
 * @return code None when all is well
 */
FLinkFault PrepareFolder(const FAddress& Address);

/**
 * Checks that the folder is a real one, belongs to this user and is closed to everybody else. A folder that does not
 * exist passes: nobody serves there.
 */
FLinkFault CheckFolder(const FAddress& Address);

} // namespace Zef
