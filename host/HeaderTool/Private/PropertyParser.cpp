// SPDX-License-Identifier: MIT
#include "PropertyParser.h"

#include "SpecifierParser.h"

namespace HeaderTool
{
namespace
{

/** The tokens in front of the initialiser, bit width or array bounds, and what stopped there. */
struct FDeclarator
{
	std::vector<FToken> Tokens;
	std::string Stop;
};

FDeclarator ReadDeclarator(FTokenStream& Stream, int Line)
{
	FDeclarator Result;
	int Angles = 0;
	while (true)
	{
		const FToken& Token = Stream.Peek();
		if (Stream.AtEnd() || Token.Is("}"))
		{
			Stream.Fail(Line, "the member after UPROPERTY has no ';'");
		}
		const bool bOuter = Angles == 0;
		if (bOuter && Token.Is("("))
		{
			// alignas(16) and UE_DEPRECATED(5.1, "...") may stand in front of the type.
			if (Result.Tokens.size() == 1)
			{
				Result.Tokens.clear();
				Stream.SkipBalanced();
				continue;
			}
			Stream.Fail(Token.Line, "UPROPERTY before a function; a data member is needed");
		}
		if (bOuter &&
			(Token.Is(";") || Token.Is("=") || Token.Is("{") || Token.Is("[") || Token.Is(":") || Token.Is(",")))
		{
			if (Token.Is("[") && Result.Tokens.empty())
			{
				Stream.SkipBalanced();
				continue;
			}
			Result.Stop = Token.Text;
			return Result;
		}
		Angles += Token.Is("<") ? 1 : Token.Is(">") ? -1 : 0;
		Result.Tokens.push_back(Stream.Next());
	}
}

/** Goes on to behind the ';' and fails when a second member is declared on the way. */
void SkipToSemicolon(FTokenStream& Stream, const FPropertyDecl& Property)
{
	int Angles = 0;
	bool bInitializer = false;
	while (!Stream.Accept(";"))
	{
		if (Stream.AtEnd())
		{
			Stream.Fail(Property.Line, "the declaration of " + Property.Name + " has no ';'");
		}
		if (Stream.Peek().Is("{") || Stream.Peek().Is("(") || Stream.Peek().Is("["))
		{
			Stream.SkipBalanced();
			continue;
		}
		const FToken& Token = Stream.Next();
		bInitializer |= Token.Is("=");
		Angles += bInitializer && Token.Is("<") ? 1 : bInitializer && Token.Is(">") ? -1 : 0;
		if (Token.Is(",") && Angles <= 0)
		{
			Stream.Fail(Token.Line, "UPROPERTY before more than one member; give each its own");
		}
	}
}

/** Garbage collection reads every reflected pointer as an object. */
void CheckPointee(FTokenStream& Stream, const std::vector<FToken>& Type, const std::string& Name)
{
	for (size_t At = 1; At < Type.size(); ++At)
	{
		if (Type[At].Is("&"))
		{
			Stream.Fail(Type[At].Line, "the property " + Name + " is a reference");
		}
		if (!Type[At].Is("*"))
		{
			continue;
		}
		size_t Pointee = At - 1;
		while (Pointee > 0 && Type[Pointee].Is("const"))
		{
			--Pointee;
		}
		const char Prefix = Type[Pointee].Text.empty() ? ' ' : Type[Pointee].Text[0];
		if (Prefix != 'U' && Prefix != 'A')
		{
			Stream.Fail(Type[At].Line,
				"the property " + Name + " points to '" + Type[Pointee].Text + "', which is no UObject class");
		}
	}
}

} // namespace

FPropertyDecl ParseProperty(FTokenStream& Stream, const FToken& Macro)
{
	FPropertyDecl Property;
	Property.Specifiers = ParseSpecifiers(Stream, ESpecifierTarget::Property);
	AddToolTip(Macro, Property.Specifiers);
	FDeclarator Declarator = ReadDeclarator(Stream, Macro.Line);
	if (Declarator.Tokens.size() < 2 || !Declarator.Tokens.back().IsIdentifier())
	{
		Stream.Fail(Macro.Line, "UPROPERTY must be followed by the type and the name of a member");
	}
	const FToken Name = Declarator.Tokens.back();
	Declarator.Tokens.pop_back();
	Property.Name = Name.Text;
	Property.Line = Name.Line;
	Property.bBitfield = Declarator.Stop == ":";
	for (const FToken& Token : Declarator.Tokens)
	{
		if (Token.Text == "static" || Token.Text == "typedef" || Token.Text == "using")
		{
			Stream.Fail(Token.Line, "UPROPERTY before '" + Token.Text + "'; a data member is needed");
		}
	}
	CheckPointee(Stream, Declarator.Tokens, Property.Name);
	SkipToSemicolon(Stream, Property);
	return Property;
}

void AddToolTip(const FToken& Macro, FSpecifiers& Specifiers)
{
	if (!Macro.Comment.empty())
	{
		Specifiers.Metadata.try_emplace("ToolTip", Macro.Comment);
	}
}

} // namespace HeaderTool
