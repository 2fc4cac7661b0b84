// SPDX-License-Identifier: MIT
/** Files that hold secrets: of this user and for no other. */
#pragma once

#include "Zef/Result.h"

#include <string>

namespace Zef
{

/**
 * Writes a new file that only this user may read and write.
 * @return a fault of that code when the file is there already or cannot be written; no half of it is left behind
 */
FLinkFault WriteOwnFile(const std::string& Path, const std::string& Text, EFault Code);

/**
 * Reads a small file.
 * @return a fault of that code when it cannot be read, is no regular file of this user, is open to group or others, or
 * is longer than 4 KiB
 */
TResult<std::string> ReadOwnFile(const std::string& Path, EFault Code);

/** What the system says about the last error. */
std::string LastError();

} // namespace Zef
