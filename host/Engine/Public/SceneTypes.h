// SPDX-License-Identifier: MIT
// Quality levels of materials.
#pragma once

/** How much of a material is computed. */
namespace EMaterialQualityLevel
{
enum Type : int
{
	Low = 0,
	High = 1,
	Medium = 2,
	Epic = 3,
	/** As an argument: the level in use. */
	Num = 4
};
} // namespace EMaterialQualityLevel
