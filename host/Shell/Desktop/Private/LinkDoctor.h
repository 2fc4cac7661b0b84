// SPDX-License-Identifier: MIT
/** Looks for the reason why nobody answers, beside the thread that draws. */
#pragma once

#include "Zef/LinkReason.h"

#include <QElapsedTimer>

#include <future>
#include <memory>
#include <string>

namespace Host
{

/** Asked once a frame while there is no link; looks at most every few seconds. Used on one thread. */
class FLinkDoctor
{
public:
	/** The one of all status lines, which lives as long as any of them holds it. */
	static std::shared_ptr<FLinkDoctor> Shared();

	FLinkDoctor() = default;
	/** Waits for a look that is under way. */
	~FLinkDoctor() = default;
	FLinkDoctor(const FLinkDoctor&) = delete;
	FLinkDoctor& operator=(const FLinkDoctor&) = delete;

	/**
	 * What was found last at the address; Well before the first look is over, and when nothing was wrong.
	 *
	 * @param Address  a ZeroMQ endpoint, or the path of a channel's port file
	 */
	Zef::FLinkReason Ask(const std::string& Address, const std::string& Channel);

private:
	std::string LastAddress;
	QElapsedTimer SinceLook;
	Zef::FLinkReason Found;
	std::future<Zef::FLinkReason> Look; // its end waits for the thread
};

} // namespace Host
