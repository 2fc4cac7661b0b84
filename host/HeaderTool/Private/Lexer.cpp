// SPDX-License-Identifier: MIT
#include "Lexer.h"

#include "Diagnostics.h"

#include <cctype>

namespace HeaderTool
{
namespace
{

bool IsNameStart(char C)
{
	return std::isalpha(static_cast<unsigned char>(C)) || C == '_';
}

bool IsNamePart(char C)
{
	return std::isalnum(static_cast<unsigned char>(C)) || C == '_';
}

std::string Trim(const std::string& Text)
{
	const size_t First = Text.find_first_not_of(" \t\r\n");
	if (First == std::string::npos)
	{
		return {};
	}
	return Text.substr(First, Text.find_last_not_of(" \t\r\n") - First + 1);
}

/** Lines of a comment without their leading stars, joined by newlines. */
std::string StripCommentMarks(const std::string& Body)
{
	std::string Result;
	size_t At = 0;
	while (At <= Body.size())
	{
		size_t End = Body.find('\n', At);
		if (End == std::string::npos)
		{
			End = Body.size();
		}
		std::string Line = Trim(Body.substr(At, End - At));
		const size_t FirstText = Line.find_first_not_of("*/");
		Line = FirstText == std::string::npos ? std::string() : Trim(Line.substr(FirstText));
		if (!Line.empty())
		{
			Result += Result.empty() ? Line : "\n" + Line;
		}
		At = End + 1;
	}
	return Result;
}

enum class EBranch
{
	Compiled,
	Skipped,
	Unknown
};

EBranch Opposite(EBranch Branch)
{
	switch (Branch)
	{
		case EBranch::Compiled:
			return EBranch::Skipped;
		case EBranch::Skipped:
			return EBranch::Compiled;
		default:
			return EBranch::Unknown;
	}
}

/** Conditions whose value the build fixes; everything else is Unknown. */
EBranch Decide(std::string Condition)
{
	Condition = Trim(Condition);
	if (!Condition.empty() && Condition[0] == '!')
	{
		return Opposite(Decide(Condition.substr(1)));
	}
	if (Condition == "1" || Condition == "WITH_EDITOR" || Condition == "WITH_EDITORONLY_DATA")
	{
		return EBranch::Compiled;
	}
	return Condition == "0" ? EBranch::Skipped : EBranch::Unknown;
}

class FLexer
{
public:
	FLexer(const std::string& InFile, const std::string& InText)
		: File(InFile)
		, Text(InText)
	{
	}

	FLexedHeader Run()
	{
		while (At < Text.size())
		{
			Step();
		}
		if (!Branches.empty())
		{
			throw FParseError(File, Branches.back().Line, "this #if has no #endif");
		}
		Emit(ETokenKind::End, "", Line);
		return std::move(Result);
	}

private:
	struct FOpenBranch
	{
		EBranch State;
		int Line;
	};

	char Peek(size_t Offset = 0) const { return At + Offset < Text.size() ? Text[At + Offset] : '\0'; }

	void Advance()
	{
		if (Text[At] == '\n')
		{
			++Line;
			bLineStart = true;
		}
		++At;
	}

	void Step()
	{
		const char C = Peek();
		if (C == '\n' || std::isspace(static_cast<unsigned char>(C)))
		{
			Advance();
		}
		else if (C == '\\' && (Peek(1) == '\n' || Peek(1) == '\r'))
		{
			Advance();
		}
		else if (C == '/' && (Peek(1) == '/' || Peek(1) == '*'))
		{
			ReadComment();
		}
		else if (C == '#' && bLineStart)
		{
			ReadDirective();
		}
		else
		{
			bLineStart = false;
			ReadToken();
		}
	}

	void ReadComment()
	{
		const int Start = Line;
		const bool bLineComment = Peek(1) == '/';
		const size_t End = Text.find(bLineComment ? "\n" : "*/", At + 2);
		if (End == std::string::npos && !bLineComment)
		{
			throw FParseError(File, Start, "this comment has no end");
		}
		const size_t BodyEnd = End == std::string::npos ? Text.size() : End;
		// A comment behind code on its own line describes that code, not what follows.
		const bool bDescribesNext = bLineStart;
		const std::string Body = StripCommentMarks(Text.substr(At + 2, BodyEnd - At - 2));
		const size_t Stop = bLineComment ? BodyEnd : BodyEnd + 2;
		const bool bWasLineStart = bLineStart;
		while (At < Stop)
		{
			Advance();
		}
		bLineStart = bWasLineStart;
		if (bDescribesNext && !Body.empty())
		{
			// Line comments of one block belong together, a second block comment replaces the first.
			Comment = bLineComment && !Comment.empty() && CommentEnd == Start - 1 ? Comment + "\n" + Body : Body;
			CommentEnd = Line;
		}
	}

	void ReadDirective()
	{
		const int Start = Line;
		std::string Directive;
		Advance();
		while (At < Text.size() && Peek() != '\n')
		{
			if (Peek() == '\\' && Peek(1) == '\n')
			{
				Advance();
				Advance();
				Directive += ' ';
				continue;
			}
			if (Peek() == '/' && (Peek(1) == '/' || Peek(1) == '*'))
			{
				break;
			}
			Directive += Peek();
			Advance();
		}
		bLineStart = false;
		Comment.clear();
		Directive = Trim(Directive);
		size_t NameEnd = 0;
		while (NameEnd < Directive.size() && IsNamePart(Directive[NameEnd]))
		{
			++NameEnd;
		}
		Apply(Directive.substr(0, NameEnd), Trim(Directive.substr(NameEnd)), Start);
	}

	void Apply(const std::string& Name, const std::string& Argument, int Start)
	{
		if (Name == "if")
		{
			Branches.push_back({Decide(Argument), Start});
		}
		else if (Name == "ifdef")
		{
			Branches.push_back({EBranch::Unknown, Start});
		}
		else if (Name == "ifndef")
		{
			// Include guards are the ordinary use.
			Branches.push_back({EBranch::Compiled, Start});
		}
		else if (Name == "else" || Name == "elif" || Name == "endif")
		{
			if (Branches.empty())
			{
				throw FParseError(File, Start, "#" + Name + " without #if");
			}
			if (Name == "endif")
			{
				Branches.pop_back();
			}
			else
			{
				FOpenBranch& Branch = Branches.back();
				Branch.State =
					Name == "else" || Branch.State != EBranch::Skipped ? Opposite(Branch.State) : Decide(Argument);
			}
		}
		else if (Name == "include" && Argument.size() > 2 && !IsSkipped())
		{
			const size_t Close = Argument.find(Argument[0] == '<' ? '>' : '"', 1);
			Result.Includes.push_back({Argument.substr(1, Close == std::string::npos ? Close : Close - 1), Start});
		}
	}

	bool IsSkipped() const
	{
		for (const FOpenBranch& Branch : Branches)
		{
			if (Branch.State == EBranch::Skipped)
			{
				return true;
			}
		}
		return false;
	}

	bool IsConditional() const
	{
		for (const FOpenBranch& Branch : Branches)
		{
			if (Branch.State == EBranch::Unknown)
			{
				return true;
			}
		}
		return false;
	}

	void Emit(ETokenKind Kind, std::string TokenText, int TokenLine)
	{
		if (!IsSkipped() || Kind == ETokenKind::End)
		{
			Result.Tokens.push_back({Kind, std::move(TokenText), TokenLine, std::move(Comment), IsConditional()});
		}
		Comment.clear();
	}

	void ReadToken()
	{
		const int Start = Line;
		const char C = Peek();
		if (IsNameStart(C))
		{
			std::string Name;
			while (IsNamePart(Peek()))
			{
				Name += Peek();
				Advance();
			}
			if (Peek() == '"' && Name.back() == 'R' && Name.size() <= 3)
			{
				ReadRawString(Start);
				return;
			}
			const bool bPrefix = Name == "u" || Name == "U" || Name == "L" || Name == "u8";
			if (bPrefix && (Peek() == '"' || Peek() == '\''))
			{
				ReadQuoted(Start);
				return;
			}
			Emit(ETokenKind::Identifier, Name, Start);
		}
		else if (std::isdigit(static_cast<unsigned char>(C)))
		{
			std::string Number;
			while (IsNamePart(Peek()) || Peek() == '.' || (Peek() == '\'' && IsNamePart(Peek(1))))
			{
				Number += Peek();
				Advance();
			}
			Emit(ETokenKind::Number, Number, Start);
		}
		else if (C == '"' || C == '\'')
		{
			ReadQuoted(Start);
		}
		else if (C == ':' && Peek(1) == ':')
		{
			Advance();
			Advance();
			Emit(ETokenKind::Symbol, "::", Start);
		}
		else
		{
			Advance();
			Emit(ETokenKind::Symbol, std::string(1, C), Start);
		}
	}

	void ReadQuoted(int Start)
	{
		const char Quote = Peek();
		std::string Contents;
		Advance();
		while (Peek() != Quote)
		{
			if (At >= Text.size() || Peek() == '\n')
			{
				throw FParseError(File, Start, "this text has no closing quote");
			}
			if (Peek() == '\\')
			{
				Advance();
				Contents += Peek() == 'n' ? '\n' : Peek() == 't' ? '\t' : Peek();
			}
			else
			{
				Contents += Peek();
			}
			Advance();
		}
		Advance();
		Emit(Quote == '"' ? ETokenKind::String : ETokenKind::Character, Contents, Start);
	}

	void ReadRawString(int Start)
	{
		const size_t Open = Text.find('(', At);
		const std::string Close =
			Open == std::string::npos ? std::string() : ")" + Text.substr(At + 1, Open - At - 1) + "\"";
		const size_t End = Close.empty() ? std::string::npos : Text.find(Close, Open);
		if (End == std::string::npos)
		{
			throw FParseError(File, Start, "this raw text has no end");
		}
		const std::string Contents = Text.substr(Open + 1, End - Open - 1);
		while (At < End + Close.size())
		{
			Advance();
		}
		bLineStart = false;
		Emit(ETokenKind::String, Contents, Start);
	}

	const std::string& File;
	const std::string& Text;
	FLexedHeader Result;
	std::vector<FOpenBranch> Branches;
	std::string Comment;
	size_t At = 0;
	int Line = 1;
	int CommentEnd = 0;
	bool bLineStart = true;
};

} // namespace

FLexedHeader Lex(const std::string& File, const std::string& Text)
{
	return FLexer(File, Text).Run();
}

} // namespace HeaderTool
