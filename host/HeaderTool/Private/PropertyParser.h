// SPDX-License-Identifier: MIT
/** Reads one UPROPERTY with the member that it stands before. */
#pragma once

#include "Declarations.h"
#include "TokenStream.h"

namespace HeaderTool
{

/**
 * Reads from the bracket behind UPROPERTY to behind the semicolon of the member.
 *
 * @param Macro  the UPROPERTY token; its comment becomes the tool tip
 * @throws FParseError when what follows is no single data member of a type that can be reflected
 */
FPropertyDecl ParseProperty(FTokenStream& Stream, const FToken& Macro);

/** Makes the comment before a reflection macro the metadata ToolTip, unless one was given. */
void AddToolTip(const FToken& Macro, FSpecifiers& Specifiers);

} // namespace HeaderTool
