// SPDX-License-Identifier: MIT
/** Text of one ini file. */
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Host
{

/** Whether two texts of UTF-8 are equal but for the case of ASCII letters: the rule for sections and keys. */
bool EqualsIgnoringCase(std::string_view A, std::string_view B);

/** Without white space at both ends. */
std::string_view Trim(std::string_view Text);

/**
 * The lines of an ini file, in UTF-8, edited in place: whatever an edit does not concern (comments, order, blank lines,
 * entries with a prefix, line ends) stays as it was.
 *
 * A section is a line "[Name]"; an entry is "Key=Value" with one of the prefixes
 * `+` (one more value, unless it is there), `.` (one more value), `-` (not this value), `!` (no value) or none
 * (this value; the first of a key replaces what other files gave, further ones are more values).
 */
class FIniFile
{
public:
	/** One entry of a section. */
	struct FEntry
	{
		/** '+', '.', '-', '!', or 0. */
		char Prefix;
		std::string_view Key;
		/** Without quotation marks and escapes. */
		std::string Value;
	};

	/** Takes over the contents of a file: UTF-8 with or without a mark, or UTF-16 with one. */
	void Parse(std::string_view Bytes);
	/** The contents as UTF-8, with the line ends of the source. */
	std::string Write() const;

	/** All entries of all sections of this name, in order. */
	std::vector<FEntry> Entries(std::string_view Section) const;
	bool HasSection(std::string_view Section) const;

	/** Makes `Values`, which must not be empty, the values of a key, whatever lower files say. */
	void SetValues(std::string_view Section, std::string_view Key, const std::vector<std::string>& Values);
	/** Makes a key have no value, whatever lower files say. */
	void ClearValues(std::string_view Section, std::string_view Key);
	/** Removes all entries of a key. @return whether there were any */
	bool RemoveKey(std::string_view Section, std::string_view Key);
	/** Removes all sections of this name with everything in them. @return whether there were any */
	bool RemoveSection(std::string_view Section);

private:
	/** Position of the line before which new entries of a section go; makes the section when it is missing. */
	std::size_t EndOfSection(std::string_view Section);
	/** Removes the entries of a key and puts the lines where the first of them was, or at the section's end. */
	void ReplaceEntries(std::string_view Section, std::string_view Key, const std::vector<std::string>& NewLines);

	std::vector<std::string> Lines;
	bool bCarriageReturns = false;
};

} // namespace Host
