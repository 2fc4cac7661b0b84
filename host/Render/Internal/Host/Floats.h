// SPDX-License-Identifier: MIT
#pragma once

/** Plain tuples of 32-bit floats, packed as the graphics device reads them. */
namespace Host
{

struct FFloat2
{
	float X = 0.0f, Y = 0.0f;
};

struct FFloat3
{
	float X = 0.0f, Y = 0.0f, Z = 0.0f;
};

struct FFloat4
{
	float X = 0.0f, Y = 0.0f, Z = 0.0f, W = 0.0f;
};

static_assert(sizeof(FFloat2) == 8 && sizeof(FFloat3) == 12 && sizeof(FFloat4) == 16);

} // namespace Host
