// SPDX-License-Identifier: MIT
/** What the figures were taken on. */
#pragma once

#include <string>

namespace Bench
{

/** Processor, cores, memory, system, compiler, libraries and present load, as lines of Markdown. */
std::string DescribeMachine();

} // namespace Bench
