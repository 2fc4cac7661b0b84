// SPDX-License-Identifier: MIT
/** What an endpoint needs to know before it opens: where, and with which keys. */
#pragma once

#include "Zef/Address.h"
#include "Zef/Keys.h"

#include <optional>

namespace Zef
{

struct FOpenAddress
{
	FAddress Address;
	/** Set for tcp and port file addresses when a key file is named. */
	std::optional<FLinkKeys> Keys;
};

/**
 * Address of a channel, or of an endpoint in its place, with the keys of that end.
 * @param KeyFile  empty for what the environment names
 * @return AddressRefused, or KeysRefused when the named keys may not be used
 */
TResult<FOpenAddress> OpenAddress(const std::string& ChannelName, const std::optional<std::string>& Endpoint,
	const std::string& KeyFile, ELinkEnd End);

} // namespace Zef
