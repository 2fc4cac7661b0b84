// SPDX-License-Identifier: MIT
/** Walks over the tokens of a header, with errors that name the place. */
#pragma once

#include "Lexer.h"

namespace HeaderTool
{

class FTokenStream
{
public:
	/** Both arguments must outlive the stream. */
	FTokenStream(const std::string& InFile, const std::vector<FToken>& InTokens);

	const FToken& Peek(size_t Offset = 0) const;
	/** Returns the current token and goes on; stays on the end. */
	const FToken& Next();
	bool AtEnd() const;

	/** Goes on over `Symbol` when it stands here. */
	bool Accept(const char* Symbol);
	/** Goes on over `Symbol`, or fails with "expected ... after `Context`". */
	const FToken& Expect(const char* Symbol, const std::string& Context);
	const FToken& ExpectIdentifier(const std::string& Context);

	/** From an opening bracket to behind the one that closes it, whatever stands between. */
	void SkipBalanced();

	[[noreturn]] void Fail(int Line, const std::string& Message) const;

private:
	const std::string& File;
	const std::vector<FToken>& Tokens;
	size_t At = 0;
};

} // namespace HeaderTool
