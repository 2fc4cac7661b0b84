// SPDX-License-Identifier: MIT
/** Finds the reflected types of one header. */
#pragma once

#include "Declarations.h"

namespace HeaderTool
{

/**
 * Reads the text of the header at `Path`.
 *
 * A header without reflection macros and without a `.generated.h` gives an empty result.
 *
 * @throws FParseError with file and line when a reflected declaration cannot be understood, lacks GENERATED_BODY, or
 *         when the include of the generated header is missing, misnamed or not the last one
 */
FHeader ParseHeader(const std::string& Path, const std::string& Text);

} // namespace HeaderTool
