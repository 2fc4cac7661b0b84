// SPDX-License-Identifier: MIT
/** Where the client endpoints tell how they stand. */
#pragma once

#include "Zef/LinkWatch.h"

namespace Zef
{

/** One endpoint's line among LinkStatuses for as long as the object lives. */
class FWatchedLink
{
public:
	FWatchedLink(const std::string& Name, const std::string& Address);
	~FWatchedLink();
	FWatchedLink(const FWatchedLink&) = delete;
	FWatchedLink& operator=(const FWatchedLink&) = delete;

	/** From any thread. */
	void Note(ELinkState State, const std::string& Program, const FLinkReason& Reason, std::uint16_t Version);
	/** Tells no listener: it comes with every piece. */
	void NoteProgress(const FUpdateProgress& Progress);
	FLinkStatus Status() const;
	/** Something waits for Poll. From any thread. */
	void NoteArrival();

private:
	const std::uint64_t Number;
};

} // namespace Zef
