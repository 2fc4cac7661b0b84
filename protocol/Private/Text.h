// SPDX-License-Identifier: MIT
/** Checks of text and the writing of paths in fault reports. */
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Zef
{

/** Offset of the first byte that is not part of valid UTF-8, or is a NUL; npos when there is none. */
std::size_t FindBadUtf8(std::string_view Text);

/** Upper-case ASCII letters become lower-case; names that differ only so are one name in the editor. */
std::string FoldCase(std::string_view Text);

/**
 * Text of the other end for people to read: at most so many bytes, cut between characters, control characters and bytes
 * that are not UTF-8 as "?".
 */
std::string OneLine(std::string_view Text, std::size_t MaxBytes);

/** Appends "/Name/Index" to a path. */
std::string At(std::string_view Path, std::string_view Name, std::uint64_t Index);
/** Appends "/Name". */
std::string At(std::string_view Path, std::string_view Name);

} // namespace Zef
