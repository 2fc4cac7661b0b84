// SPDX-License-Identifier: MIT
/** Turns the text of a header into tokens and notes its includes. */
#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{

enum class ETokenKind
{
	Identifier,
	Number,
	/** Text holds the contents, with the escapes resolved. */
	String,
	Character,
	/** One character, or "::". */
	Symbol,
	End
};

struct FToken
{
	ETokenKind Kind = ETokenKind::End;
	std::string Text;
	int Line = 0;
	/** Text of the comments directly before this token, without their marks; empty when there is none. */
	std::string Comment;
	/** Stands inside an #if whose condition the tool cannot decide. */
	bool bConditional = false;

	bool Is(const char* Symbol) const { return Kind != ETokenKind::String && Text == Symbol; }
	bool IsIdentifier() const { return Kind == ETokenKind::Identifier; }
};

struct FInclude
{
	/** As written between the quotes or angle brackets. */
	std::string Path;
	int Line = 0;
};

struct FLexedHeader
{
	/** Ends with one token of kind End. */
	std::vector<FToken> Tokens;
	std::vector<FInclude> Includes;
};

/**
 * Reads a whole header. Preprocessor lines yield no tokens; code in a branch that is never compiled (`#if 0`, the
 * other branch of WITH_EDITOR and WITH_EDITORONLY_DATA) yields none either.
 *
 * @param File  name for messages
 * @throws FParseError for an unterminated comment, string or #if
 */
FLexedHeader Lex(const std::string& File, const std::string& Text);

} // namespace HeaderTool
