// SPDX-License-Identifier: MIT
/** What a garment application does with files around binding an address. */
#pragma once

#include "Zef/Address.h"

#include <string>

namespace Zef
{

/**
 * Holds an address for one garment application: a lock beside the socket file tells a living one from a file that a
 * dead one left. Frees the address, and removes the socket or port file, when it goes.
 */
class FServedAddress
{
public:
	explicit FServedAddress(FAddress InAddress);
	~FServedAddress();

	FServedAddress(const FServedAddress&) = delete;
	FServedAddress& operator=(const FServedAddress&) = delete;

	/** Before binding: folder, lock, removal of a stale file. @return AddressRefused or AddressTaken, or code None */
	FLinkFault Take();

	/** Endpoint to bind; known after Take. */
	std::string Endpoint() const;

	/** After binding: closes the socket file to others, or writes the port file. */
	FLinkFault Publish(const std::string& BoundEndpoint);

private:
	/** A socket file of this process alone, in the folder of the channels. */
	FLinkFault TakeAnyName();

	FAddress Address;
	int Lock = -1;
	bool bPublished = false;
};

} // namespace Zef
