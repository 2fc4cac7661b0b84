// SPDX-License-Identifier: MIT
#include "TokenStream.h"

#include "Diagnostics.h"

namespace HeaderTool
{

FTokenStream::FTokenStream(const std::string& InFile, const std::vector<FToken>& InTokens)
	: File(InFile)
	, Tokens(InTokens)
{
}

const FToken& FTokenStream::Peek(size_t Offset) const
{
	const size_t Last = Tokens.size() - 1;
	return Tokens[At + Offset < Last ? At + Offset : Last];
}

const FToken& FTokenStream::Next()
{
	const FToken& Token = Peek();
	if (!AtEnd())
	{
		++At;
	}
	return Token;
}

bool FTokenStream::AtEnd() const
{
	return Peek().Kind == ETokenKind::End;
}

bool FTokenStream::Accept(const char* Symbol)
{
	if (!Peek().Is(Symbol))
	{
		return false;
	}
	Next();
	return true;
}

const FToken& FTokenStream::Expect(const char* Symbol, const std::string& Context)
{
	if (!Peek().Is(Symbol))
	{
		Fail(Peek().Line, "expected '" + std::string(Symbol) + "' " + Context);
	}
	return Next();
}

const FToken& FTokenStream::ExpectIdentifier(const std::string& Context)
{
	if (!Peek().IsIdentifier())
	{
		Fail(Peek().Line, "expected a name " + Context);
	}
	return Next();
}

void FTokenStream::SkipBalanced()
{
	const FToken& Open = Next();
	int Depth = 1;
	while (Depth > 0)
	{
		if (AtEnd())
		{
			Fail(Open.Line, "the '" + Open.Text + "' here is never closed");
		}
		const FToken& Token = Next();
		if (Token.Is("(") || Token.Is("{") || Token.Is("["))
		{
			++Depth;
		}
		else if (Token.Is(")") || Token.Is("}") || Token.Is("]"))
		{
			--Depth;
		}
	}
}

void FTokenStream::Fail(int Line, const std::string& Message) const
{
	throw FParseError(File, Line, Message);
}

} // namespace HeaderTool
