// SPDX-License-Identifier: MIT
#include "OpenAddress.h"

namespace Zef
{

TResult<FOpenAddress> OpenAddress(const std::string& ChannelName, const std::optional<std::string>& Endpoint,
	const std::string& KeyFile, ELinkEnd End)
{
	const std::string Keys = KeyFileOr(KeyFile);
	const ERemote Remote = Keys.empty() ? ERemote::Refused : ERemote::WithKeys;
	TResult<FAddress> Address = Endpoint ? AddressOfEndpoint(*Endpoint, Remote) : AddressOfChannel(ChannelName, Remote);
	if (!Address)
	{
		return Address.Fault();
	}
	FOpenAddress Open{std::move(*Address), std::nullopt};
	// A socket file is its user's own already.
	if (!Keys.empty() && (!Open.Address.PortFile.empty() || Open.Address.Endpoint.starts_with("tcp://")))
	{
		TResult<FLinkKeys> Loaded = LoadKeys(Keys, End);
		if (!Loaded)
		{
			return Loaded.Fault();
		}
		Open.Keys = std::move(*Loaded);
	}
	return Open;
}

} // namespace Zef
