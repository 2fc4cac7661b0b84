// SPDX-License-Identifier: MIT
/** Names of the three axes. */
#pragma once

namespace EAxis
{
enum Type
{
	None,
	X,
	Y,
	Z
};
}
