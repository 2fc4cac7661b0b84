// SPDX-License-Identifier: MIT
/** The one error that the header tool knows: a place in a header and what is wrong there. */
#pragma once

#include <stdexcept>
#include <string>

namespace HeaderTool
{

/** Printed as `file:line: error: message`, which editors and build tools turn into a link. */
class FParseError : public std::runtime_error
{
public:
	FParseError(const std::string& File, int Line, const std::string& Message)
		: std::runtime_error(File + ":" + std::to_string(Line) + ": error: " + Message)
	{
	}
};

} // namespace HeaderTool
