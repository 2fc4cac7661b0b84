// SPDX-License-Identifier: MIT
/** Plays cases of the conformance set against an end of the link that anybody may have written. */
#pragma once

#include "Zef/Peer/ConformanceCase.h"

#include <chrono>
#include <functional>
#include <string>

namespace Zef::Peer
{

enum class EOutcome
{
	Passed,
	Failed,
	/** The case needs something of the end under test that it was not said to have. */
	Skipped
};

struct FCaseOutcome
{
	EOutcome Outcome = EOutcome::Passed;
	/** What came in place of what was expected, or why the case was skipped. */
	std::string Detail;
};

struct FPlayOptions
{
	/** The end under test. */
	EReceiver Under = EReceiver::GarmentApplication;
	/** Where the application under test is bound, or where the player binds for the editor under test. */
	std::string Endpoint;
	/** For each answer, and for the editor's coming back. */
	std::chrono::milliseconds Patience = std::chrono::seconds(15);
	/** Messages must read as the case has them, too: for this library's own ends. */
	bool bExactWords = false;
	/** True when the end under test has this option: a case that needs it is then played. None: no option is there. */
	std::function<bool(const std::string& Name, std::uint64_t Value)> HasOption;
};

/** Plays one case on a connection of its own. */
FCaseOutcome PlayCase(const FConformanceCase& Case, const FPlayOptions& Options);

} // namespace Zef::Peer
