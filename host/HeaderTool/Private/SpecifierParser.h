// SPDX-License-Identifier: MIT
/** Reads the bracketed lists behind the reflection macros. */
#pragma once

#include "Declarations.h"
#include "TokenStream.h"

namespace HeaderTool
{

enum class ESpecifierTarget
{
	Class,
	Struct,
	Enum,
	Property,
	/** UMETA of an enumerator: only metadata, written without meta=(). */
	EnumValue
};

/**
 * Reads "(A, B = x, meta = (C, D = \"y\"))" from the opening bracket on.
 *
 * Specifiers that name a behaviour become flags, Category and meta become metadata, and those that only concern
 * scripting or the network are accepted without effect.
 *
 * @throws FParseError for a specifier that the target does not have
 */
FSpecifiers ParseSpecifiers(FTokenStream& Stream, ESpecifierTarget Target);

} // namespace HeaderTool
