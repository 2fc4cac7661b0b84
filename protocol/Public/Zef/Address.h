// SPDX-License-Identifier: MIT
/** From a channel name to the local endpoint that only the user may open. */
#pragma once

#include "Zef/LinkReason.h"
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
	/** On another machine, or open to others: not to be used without keys. */
	bool bRemote = false;
};

/** Whether an address that is not local may be used. */
enum class ERemote : std::uint8_t
{
	Refused,
	/** Both ends have keys. */
	WithKeys
};

/**
 * Address of a channel: $ZEF_TANDEM_ENDPOINT when that is set, otherwise "<runtime folder>/zef-tandem/<channel>.sock"
 * with the runtime folder $XDG_RUNTIME_DIR, or "/tmp/zef-tandem-<user id>/<channel>.sock" where there is none; on
 * Windows the port file "%LOCALAPPDATA%/zef-tandem/<channel>.port". Characters of the name other than letters, digits,
 * '-' and '_' are written as '%' and two hexadecimal digits. Touches no file.
 *
 * @return AddressRefused for an empty name, a path too long for a socket, and what AddressOfEndpoint refuses
 */
TResult<FAddress> AddressOfChannel(const std::string& ChannelName, ERemote Remote = ERemote::Refused);

/**
 * Address of an endpoint: "ipc://PATH", "tcp://127.0.0.1:PORT", "tcp://[::1]:PORT" or "portfile:PATH"; with keys also
 * "tcp://HOST:PORT".
 * @return AddressRefused for any other
 */
TResult<FAddress> AddressOfEndpoint(const std::string& Endpoint, ERemote Remote = ERemote::Refused);

/** Folder of all channels' socket files: "$XDG_RUNTIME_DIR/zef-tandem", or "/tmp/zef-tandem-<user id>". */
std::string LinkFolder();

/** What $ZEF_TANDEM_ENDPOINT says; empty when it says nothing. */
std::string EndpointOfEnvironment();

/** Machine and port of a tcp endpoint; both empty for any other. */
struct FHostAndPort
{
	std::string Host;
	std::string Port;
};
FHostAndPort HostAndPortOf(const std::string& Endpoint);

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
 * Checks what an editor is about to connect to: the folder as CheckFolder does, and that the socket file belongs to
 * this user. A file that does not exist passes.
 * @return Well when it may be used; FolderUnsafe, SocketUnsafe or ForeignUser otherwise
 */
FLinkReason CheckBeforeConnecting(const FAddress& Address);

/**
 * Checks that the folder is a real one, belongs to this user and is closed to everybody else. A folder that does not
 * exist passes: nobody serves there.
 */
FLinkFault CheckFolder(const FAddress& Address);

} // namespace Zef
