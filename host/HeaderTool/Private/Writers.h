// SPDX-License-Identifier: MIT
/** The two kinds of files that the header tool writes, as text. */
#pragma once

#include "Declarations.h"

namespace HeaderTool
{

struct FModule
{
	/** Such as "Engine". */
	std::string Name;
	/** Package of the types, such as "/Script/Engine". */
	std::string Package;
	/** The reflected headers only. */
	std::vector<FHeader> Headers;
};

/** Text of `<BaseName>.generated.h`: the macros that GENERATED_BODY expands to, by file and line. */
std::string WriteGeneratedHeader(const FModule& Module, const FHeader& Header);

/** Text of `<Module>.gen.cpp`: registration of all types of the module and the members that the macros declare. */
std::string WriteGeneratedSource(const FModule& Module);

} // namespace HeaderTool
