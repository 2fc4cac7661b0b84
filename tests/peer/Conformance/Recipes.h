// SPDX-License-Identifier: MIT
/** How the files of the conformance set were made. The files never change; ZEF_WRITE_CONFORMANCE=1 adds missing ones.
 */
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace ConformanceTest
{

struct FRecipe
{
	/** "hostile/IndexRange". */
	std::string Name;
	/** The text of the file. */
	std::string Text;
};

/** How the parameter of a test reads in its output. */
inline void PrintTo(const FRecipe& Recipe, std::ostream* Out)
{
	*Out << Recipe.Name;
}

/** The cases that an end has to refuse, one at least for each fault of the table. */
std::vector<FRecipe> HostileRecipes();

/** The cases that an end has to take. */
std::vector<FRecipe> ValidRecipes();

} // namespace ConformanceTest
