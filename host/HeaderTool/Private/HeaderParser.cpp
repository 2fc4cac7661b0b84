// SPDX-License-Identifier: MIT
#include "HeaderParser.h"

#include "Diagnostics.h"
#include "PropertyParser.h"
#include "SpecifierParser.h"

#include <filesystem>

namespace HeaderTool
{
namespace
{

class FHeaderParser
{
public:
	FHeaderParser(FHeader& InHeader, const FLexedHeader& InLexed)
		: Header(InHeader)
		, Lexed(InLexed)
		, Stream(InHeader.Path, InLexed.Tokens)
	{
	}

	void Run()
	{
		while (!Stream.AtEnd())
		{
			const FToken& Token = Stream.Next();
			if (!Token.IsIdentifier() || !Stream.Peek().Is("("))
			{
				continue;
			}
			if (Token.Text == "UCLASS" || Token.Text == "USTRUCT")
			{
				RequireUnconditional(Token);
				ParseType(Token, Token.Text == "UCLASS");
			}
			else if (Token.Text == "UENUM")
			{
				RequireUnconditional(Token);
				ParseEnum(Token);
			}
			else if (Token.Text == "UPROPERTY" || Token.Text == "GENERATED_BODY")
			{
				Stream.Fail(Token.Line, Token.Text + " outside of a UCLASS or USTRUCT");
			}
		}
		CheckIncludes();
	}

private:
	void RequireUnconditional(const FToken& Token) const
	{
		if (Token.bConditional)
		{
			Stream.Fail(Token.Line,
				Token.Text + " inside an #if: only WITH_EDITOR and WITH_EDITORONLY_DATA are allowed around it");
		}
	}

	void CheckIncludes()
	{
		const std::string Expected = Header.BaseName + ".generated.h";
		const FInclude* Generated = nullptr;
		for (const FInclude& Include : Lexed.Includes)
		{
			if (Generated)
			{
				throw FParseError(Header.Path, Include.Line, "\"" + Expected + "\" must be the last include");
			}
			if (std::filesystem::path(Include.Path).filename() == Expected)
			{
				Generated = &Include;
			}
			else if (Include.Path.ends_with(".generated.h"))
			{
				throw FParseError(Header.Path, Include.Line,
					"this header must include \"" + Expected + "\" instead of \"" + Include.Path + "\"");
			}
		}
		Header.bReflected = Generated != nullptr;
		const FTypeDecl* First =
			!Header.Classes.empty() ? &Header.Classes[0] : (!Header.Structs.empty() ? &Header.Structs[0] : nullptr);
		if (First && !Generated)
		{
			throw FParseError(Header.Path, First->Line,
				First->Name + " is reflected, so the header must include \"" + Expected + "\" last");
		}
		if (!Header.Enums.empty() && !Generated)
		{
			throw FParseError(Header.Path, Header.Enums[0].Line,
				Header.Enums[0].Name + " is reflected, so the header must include \"" + Expected + "\" last");
		}
	}

	/** Attributes, alignas(...) and API macros between the keyword and the name; the last name wins. */
	FToken ParseTypeName(const std::string& Macro)
	{
		FToken Name;
		while (!Stream.Peek().Is("{") && !Stream.Peek().Is(":"))
		{
			if (Stream.Peek().Is("[") || Stream.Peek().Is("("))
			{
				Stream.SkipBalanced();
			}
			else if (Stream.Peek().Is(";"))
			{
				Stream.Fail(Stream.Peek().Line, Macro + " before a forward declaration");
			}
			else
			{
				const FToken& Token = Stream.ExpectIdentifier("of the type after " + Macro);
				if (Token.Text != "final" && Token.Text != "alignas")
				{
					Name = Token;
				}
			}
		}
		if (Name.Text.empty())
		{
			Stream.Fail(Stream.Peek().Line, "expected the name of the type after " + Macro);
		}
		return Name;
	}

	/** Name of the first base; the others are interfaces and only skipped. */
	std::string ParseBases()
	{
		std::string Super;
		bool bFirst = true;
		while (!Stream.Peek().Is("{"))
		{
			if (Stream.AtEnd())
			{
				Stream.Fail(Stream.Peek().Line, "the class has no body");
			}
			const FToken& Token = Stream.Next();
			if (Token.Is(","))
			{
				bFirst = false;
			}
			else if (Token.Is("<"))
			{
				SkipTemplateArguments();
			}
			else if (bFirst && (Token.IsIdentifier() || Token.Is("::")))
			{
				const bool bKeyword = Token.Text == "public" || Token.Text == "protected" || Token.Text == "private" ||
									  Token.Text == "virtual";
				Super += bKeyword ? std::string() : Token.Text;
			}
		}
		return Super;
	}

	void SkipTemplateArguments()
	{
		for (int Depth = 1; Depth > 0 && !Stream.AtEnd();)
		{
			const FToken& Token = Stream.Next();
			Depth += Token.Is("<") ? 1 : Token.Is(">") ? -1 : 0;
		}
	}

	void ParseType(const FToken& Macro, bool bClass)
	{
		FTypeDecl Type;
		Type.Specifiers = ParseSpecifiers(Stream, bClass ? ESpecifierTarget::Class : ESpecifierTarget::Struct);
		AddToolTip(Macro, Type.Specifiers);
		const FToken& Keyword = Stream.ExpectIdentifier("after " + Macro.Text);
		if (Keyword.Text != (bClass ? "class" : "struct"))
		{
			Stream.Fail(
				Keyword.Line, "expected '" + std::string(bClass ? "class" : "struct") + "' after " + Macro.Text);
		}
		const FToken Name = ParseTypeName(Macro.Text);
		Type.Name = Name.Text;
		Type.Line = Name.Line;
		CheckPrefix(Type, bClass);
		if (Stream.Accept(":"))
		{
			Type.Super = ParseBases();
		}
		if (bClass && Type.Super.empty())
		{
			Stream.Fail(Type.Line, Type.Name + " must derive from UObject or a class derived from it");
		}
		ParseBody(Type, bClass);
		(bClass ? Header.Classes : Header.Structs).push_back(std::move(Type));
	}

	void CheckPrefix(const FTypeDecl& Type, bool bClass) const
	{
		const char Prefix = Type.Name[0];
		if (bClass && Prefix != 'U' && Prefix != 'A')
		{
			Stream.Fail(Type.Line, "the name of the class " + Type.Name + " must begin with U, or with A for an actor");
		}
		if (!bClass && Prefix != 'F')
		{
			Stream.Fail(Type.Line, "the name of the struct " + Type.Name + " must begin with F");
		}
	}

	void ParseBody(FTypeDecl& Type, bool bClass)
	{
		const FToken& Open = Stream.Expect("{", "at the start of " + Type.Name);
		while (!Stream.Accept("}"))
		{
			if (Stream.AtEnd())
			{
				Stream.Fail(Open.Line, "the body of " + Type.Name + " is never closed");
			}
			if (Stream.Peek().Is("{") || Stream.Peek().Is("(") || Stream.Peek().Is("["))
			{
				Stream.SkipBalanced();
				continue;
			}
			const FToken& Token = Stream.Next();
			if (Token.Is("~"))
			{
				// The name of a destructor must not be taken for a constructor.
				Stream.Next();
			}
			else if (Token.IsIdentifier() && Stream.Peek().Is("("))
			{
				ParseMember(Type, bClass, Token);
			}
		}
		if (Type.BodyLine == 0)
		{
			Stream.Fail(Type.Line, Type.Name + " has no GENERATED_BODY()");
		}
	}

	/** `Token` is a name in front of an opening bracket, at the outer level of the body of `Type`. */
	void ParseMember(FTypeDecl& Type, bool bClass, const FToken& Token)
	{
		if (Token.Text == "GENERATED_BODY" || Token.Text == "GENERATED_UCLASS_BODY" ||
			Token.Text == "GENERATED_USTRUCT_BODY")
		{
			if (Type.BodyLine != 0)
			{
				Stream.Fail(Token.Line, Type.Name + " has a second " + Token.Text + "()");
			}
			Type.BodyLine = Token.Line;
			if (Token.Text == "GENERATED_UCLASS_BODY")
			{
				Type.bLegacyBody = true;
				Type.Constructor = EConstructor::Initializer;
			}
			Stream.SkipBalanced();
		}
		else if (Token.Text == "UPROPERTY")
		{
			RequireUnconditional(Token);
			Type.Properties.push_back(ParseProperty(Stream, Token));
		}
		else if (bClass && Token.Text == Type.Name && Type.Constructor != EConstructor::Initializer)
		{
			NoteConstructor(Type);
		}
	}

	void NoteConstructor(FTypeDecl& Type)
	{
		if (Stream.Peek(1).Is(")") || (Stream.Peek(1).Is("void") && Stream.Peek(2).Is(")")))
		{
			Type.Constructor = EConstructor::Default;
		}
		for (size_t Offset = 1; Offset < 3; ++Offset)
		{
			if (Stream.Peek(Offset).Is("FObjectInitializer"))
			{
				Type.Constructor = EConstructor::Initializer;
			}
		}
	}

	void ParseEnum(const FToken& Macro)
	{
		FEnumDecl Enum;
		Enum.Specifiers = ParseSpecifiers(Stream, ESpecifierTarget::Enum);
		AddToolTip(Macro, Enum.Specifiers);
		const bool bNamespaced = Stream.Accept("namespace");
		if (bNamespaced)
		{
			Enum.Name = Stream.ExpectIdentifier("of the namespace").Text;
			Stream.Expect("{", "after the namespace " + Enum.Name);
		}
		Stream.Expect("enum", "after UENUM()");
		const bool bScoped = Stream.Accept("class") || Stream.Accept("struct");
		const FToken Name = ParseTypeName("UENUM");
		Enum.Line = Name.Line;
		Enum.CppType = bNamespaced ? Enum.Name + "::" + Name.Text : Name.Text;
		Enum.Name = bNamespaced ? Enum.Name : Name.Text;
		Enum.ValueScope = bNamespaced ? Enum.Name + "::" : (bScoped ? Name.Text + "::" : std::string());
		while (!Stream.Peek().Is("{"))
		{
			if (Stream.AtEnd() || Stream.Peek().Is(";"))
			{
				Stream.Fail(Enum.Line, "the enum " + Enum.Name + " has no values");
			}
			Stream.Next();
		}
		ParseEnumValues(Enum);
		if (bNamespaced)
		{
			Stream.Accept(";");
			Stream.Expect("}", "after the enum in the namespace " + Enum.Name);
		}
		Header.Enums.push_back(std::move(Enum));
	}

	void ParseEnumValues(FEnumDecl& Enum)
	{
		Stream.Expect("{", "before the values of " + Enum.Name);
		while (!Stream.Accept("}"))
		{
			FEnumValue Value;
			const FToken& Name = Stream.ExpectIdentifier("as value of " + Enum.Name);
			Value.Name = Name.Text;
			while (!Stream.Peek().Is(",") && !Stream.Peek().Is("}"))
			{
				if (Stream.AtEnd())
				{
					Stream.Fail(Enum.Line, "the values of " + Enum.Name + " are never closed");
				}
				if (Stream.Accept("UMETA"))
				{
					Value.Metadata = ParseSpecifiers(Stream, ESpecifierTarget::EnumValue).Metadata;
				}
				else if (Stream.Peek().Is("("))
				{
					Stream.SkipBalanced();
				}
				else
				{
					Stream.Next();
				}
			}
			Stream.Accept(",");
			Enum.Values.push_back(std::move(Value));
		}
	}

	FHeader& Header;
	const FLexedHeader& Lexed;
	FTokenStream Stream;
};

} // namespace

FHeader ParseHeader(const std::string& Path, const std::string& Text)
{
	FHeader Header;
	Header.Path = Path;
	Header.BaseName = std::filesystem::path(Path).stem().string();
	const FLexedHeader Lexed = Lex(Path, Text);
	FHeaderParser(Header, Lexed).Run();
	return Header;
}

} // namespace HeaderTool
