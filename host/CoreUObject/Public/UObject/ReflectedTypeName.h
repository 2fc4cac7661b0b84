// SPDX-License-Identifier: MIT
/** A text that is the same for the same type in every library, also where the type is only declared. */
#pragma once

namespace Host
{

/** Differs between types; holds the C++ name, but is no clean name. */
template <typename T>
const char* TypeName()
{
	return __PRETTY_FUNCTION__;
}

} // namespace Host
