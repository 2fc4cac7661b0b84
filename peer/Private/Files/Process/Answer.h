// SPDX-License-Identifier: MIT
/** What a reader process answers, and its bytes on the pipe. Both ends are the same program. */
#pragma once

#include <string>

#include "Files/Build/Build.h"

namespace Zef::Peer
{

struct FReaderAnswer
{
	/** Empty when Object holds something. */
	std::string Error;
	FReadObject Object;
};

std::string PackAnswer(const FReaderAnswer& Answer);

/** @return false when the bytes are no complete answer, down to the last one */
bool UnpackAnswer(const std::string& Bytes, FReaderAnswer& Answer);

} // namespace Zef::Peer
