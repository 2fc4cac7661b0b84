// SPDX-License-Identifier: MIT
/** Looks at everything that stands between an editor and its garment application, and says what is right and what not.
 */
#pragma once

#include "Zef/LinkReason.h"
#include "Zef/LinkWatch.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace Zef
{

enum class EFindingState : std::uint8_t
{
	Right,
	Wrong,
	/** Cannot be looked at, because of what is wrong before it. */
	Skipped
};

/** One thing that was looked at. */
struct FFinding
{
	/** endpoint, keys, folder, socket, port, peer or version. */
	std::string Subject;
	EFindingState State = EFindingState::Right;
	/** What is right; empty otherwise. */
	std::string Text;
	/** Wrong: what is the case, and with it what to do. The same as in the log of a link that is lost. */
	FLinkReason Reason;
};

/** One line: "ok", "WRONG" or "--", the subject, then what is right, or what is wrong and what to do. */
std::string ToString(const FFinding& Finding);

struct FDiagnosisOptions
{
	std::string Channel = "Tandem";
	/** In place of the channel's own address; empty for what the environment names, or the channel's. */
	std::string Endpoint;
	/** Empty for what the environment names. */
	std::string KeyFile;
	/** How long the garment application may take to answer. */
	std::chrono::milliseconds Timeout{6000};
};

struct FDiagnosis
{
	/** In the order in which a connection is made. */
	std::vector<FFinding> Findings;
	/** How the link stood in the end: program and version when it came up. */
	FLinkStatus Link;

	/** The first thing that is wrong; Well when the link works. */
	FLinkReason Reason() const;
};

/**
 * Looks at address, keys, folder, socket file or remote port, then connects as an editor, greets, and goes again. Takes
 * up to Timeout; not for a thread that draws, where FClientEndpoint::Status and LinkStatuses tell the reason of the
 * link that is open. Changes nothing.
 */
FDiagnosis Diagnose(const FDiagnosisOptions& Options = {});

} // namespace Zef
