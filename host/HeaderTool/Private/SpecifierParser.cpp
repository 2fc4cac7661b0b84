// SPDX-License-Identifier: MIT
#include "SpecifierParser.h"

#include <cctype>

namespace HeaderTool
{
namespace
{

/** Specifier in lower case -> flags; an empty list is accepted without effect. */
using FSpecifierTable = std::map<std::string, std::vector<std::string>>;

const FSpecifierTable& ClassSpecifiers()
{
	static const FSpecifierTable Table = {
		{"abstract", {"CLASS_Abstract"}},
		{"transient", {"CLASS_Transient"}},
		{"editinlinenew", {"CLASS_EditInlineNew"}},
		{"defaulttoinstanced", {"CLASS_DefaultToInstanced"}},
		{"hidedropdown", {"CLASS_HideDropDown"}},
		{"deprecated", {"CLASS_Deprecated"}},
		{"config", {"CLASS_Config"}},
		{"defaultconfig", {"CLASS_Config"}},
		{"collapsecategories", {"CLASS_CollapseCategories"}},
		{"minimalapi", {}},
		{"nontransient", {}},
		{"noteditinlinenew", {}},
		{"dontcollapsecategories", {}},
		{"blueprintable", {}},
		{"notblueprintable", {}},
		{"blueprinttype", {}},
		{"notblueprinttype", {}},
		{"classgroup", {}},
		{"placeable", {}},
		{"notplaceable", {}},
		{"within", {}},
		{"const", {}},
		{"customconstructor", {}},
		{"advancedclassdisplay", {}},
		{"hidecategories", {}},
		{"showcategories", {}},
		{"autoexpandcategories", {}},
		{"autocollapsecategories", {}},
		{"hidefunctions", {}},
		{"showfunctions", {}},
		{"experimental", {}},
	};
	return Table;
}

const FSpecifierTable& StructSpecifiers()
{
	static const FSpecifierTable Table = {
		{"blueprinttype", {}}, {"notblueprinttype", {}}, {"atomic", {}}, {"immutable", {}}};
	return Table;
}

const FSpecifierTable& EnumSpecifiers()
{
	static const FSpecifierTable Table = {{"blueprinttype", {}}, {"notblueprinttype", {}}, {"flags", {}}};
	return Table;
}

const FSpecifierTable& PropertySpecifiers()
{
	static const FSpecifierTable Table = {
		{"editanywhere", {"CPF_Edit"}},
		{"editinstanceonly", {"CPF_Edit", "CPF_DisableEditOnTemplate"}},
		{"editdefaultsonly", {"CPF_Edit", "CPF_DisableEditOnInstance"}},
		{"visibleanywhere", {"CPF_Edit", "CPF_EditConst"}},
		{"visibleinstanceonly", {"CPF_Edit", "CPF_EditConst", "CPF_DisableEditOnTemplate"}},
		{"visibledefaultsonly", {"CPF_Edit", "CPF_EditConst", "CPF_DisableEditOnInstance"}},
		{"transient", {"CPF_Transient"}},
		{"duplicatetransient", {"CPF_DuplicateTransient"}},
		{"nonpieduplicatetransient", {"CPF_NonPIEDuplicateTransient"}},
		{"textexporttransient", {"CPF_TextExportTransient"}},
		{"instanced", {"CPF_InstancedReference", "CPF_ExportObject"}},
		{"export", {"CPF_ExportObject"}},
		{"editfixedsize", {"CPF_EditFixedSize"}},
		{"advanceddisplay", {"CPF_AdvancedDisplay"}},
		{"simpledisplay", {"CPF_SimpleDisplay"}},
		{"noclear", {"CPF_NoClear"}},
		{"config", {"CPF_Config"}},
		{"globalconfig", {"CPF_Config", "CPF_GlobalConfig"}},
		{"blueprintreadonly", {"CPF_BlueprintVisible", "CPF_BlueprintReadOnly"}},
		{"blueprintreadwrite", {"CPF_BlueprintVisible"}},
		{"skipserialization", {"CPF_SkipSerialization"}},
		{"interp", {}},
		{"blueprintgetter", {}},
		{"blueprintsetter", {}},
		{"blueprintassignable", {}},
		{"blueprintcallable", {}},
		{"assetregistrysearchable", {}},
		{"savegame", {}},
		{"replicated", {}},
		{"replicatedusing", {}},
		{"notreplicated", {}},
		{"nontransactional", {}},
		{"getter", {}},
		{"setter", {}},
	};
	return Table;
}

const char* NameOf(ESpecifierTarget Target)
{
	switch (Target)
	{
		case ESpecifierTarget::Class:
			return "class";
		case ESpecifierTarget::Struct:
			return "struct";
		case ESpecifierTarget::Property:
			return "property";
		default:
			return "enum";
	}
}

const FSpecifierTable& TableOf(ESpecifierTarget Target)
{
	switch (Target)
	{
		case ESpecifierTarget::Class:
			return ClassSpecifiers();
		case ESpecifierTarget::Struct:
			return StructSpecifiers();
		case ESpecifierTarget::Property:
			return PropertySpecifiers();
		default:
			return EnumSpecifiers();
	}
}

std::string ToLower(std::string Text)
{
	for (char& C : Text)
	{
		C = static_cast<char>(std::tolower(static_cast<unsigned char>(C)));
	}
	return Text;
}

/** One value up to the next "," or ")" of this level; texts side by side are joined, "(A, B)" becomes "A B". */
std::string ParseValue(FTokenStream& Stream, const std::string& Key)
{
	std::string Value;
	if (Stream.Peek().Is("("))
	{
		Stream.Next();
		while (!Stream.Peek().Is(")"))
		{
			if (Stream.AtEnd())
			{
				Stream.Fail(Stream.Peek().Line, "the list of '" + Key + "' is never closed");
			}
			const FToken& Token = Stream.Next();
			if (!Token.Is(","))
			{
				Value += Value.empty() ? Token.Text : " " + Token.Text;
			}
		}
		Stream.Next();
		return Value;
	}
	const int Line = Stream.Peek().Line;
	bool bAny = false;
	while (!Stream.Peek().Is(",") && !Stream.Peek().Is(")"))
	{
		if (Stream.AtEnd())
		{
			break;
		}
		Value += Stream.Next().Text;
		bAny = true;
	}
	if (!bAny)
	{
		Stream.Fail(Line, "'" + Key + "' has no value after '='");
	}
	return Value;
}

void ParseMetadata(FTokenStream& Stream, std::map<std::string, std::string>& Metadata)
{
	Stream.Expect("(", "before the metadata");
	while (!Stream.Accept(")"))
	{
		const std::string Key = Stream.ExpectIdentifier("as key of the metadata").Text;
		Metadata[Key] = Stream.Accept("=") ? ParseValue(Stream, Key) : std::string();
		if (!Stream.Peek().Is(")"))
		{
			Stream.Expect(",", "or ')' after the metadata '" + Key + "'");
		}
	}
}

void ApplySpecifier(FTokenStream& Stream, ESpecifierTarget Target, const FToken& Name, FSpecifiers& Result)
{
	const std::string Key = ToLower(Name.Text);
	const bool bHasValue = Stream.Accept("=");
	if (Key == "meta")
	{
		if (!bHasValue)
		{
			Stream.Fail(Name.Line, "'meta' needs a list: meta = (Key = \"Value\")");
		}
		ParseMetadata(Stream, Result.Metadata);
		return;
	}
	const std::string Value = bHasValue ? ParseValue(Stream, Name.Text) : std::string();
	if (Key == "category" || Key == "displayname")
	{
		if (!bHasValue)
		{
			Stream.Fail(Name.Line, "'" + Name.Text + "' has no value");
		}
		Result.Metadata[Key == "category" ? "Category" : "DisplayName"] = Value;
		return;
	}
	const auto Known = TableOf(Target).find(Key);
	if (Known == TableOf(Target).end())
	{
		Stream.Fail(Name.Line, "unknown " + std::string(NameOf(Target)) + " specifier '" + Name.Text + "'");
	}
	Result.Flags.insert(Result.Flags.end(), Known->second.begin(), Known->second.end());
	if (Key == "hidecategories" || Key == "showcategories" || Key == "autoexpandcategories")
	{
		Result.Metadata[Name.Text] = Value;
	}
}

} // namespace

FSpecifiers ParseSpecifiers(FTokenStream& Stream, ESpecifierTarget Target)
{
	FSpecifiers Result;
	if (Target == ESpecifierTarget::EnumValue)
	{
		ParseMetadata(Stream, Result.Metadata);
		return Result;
	}
	Stream.Expect("(", "after the reflection macro");
	while (!Stream.Accept(")"))
	{
		const FToken& Name = Stream.ExpectIdentifier("as " + std::string(NameOf(Target)) + " specifier");
		ApplySpecifier(Stream, Target, Name, Result);
		if (!Stream.Peek().Is(")"))
		{
			Stream.Expect(",", "or ')' after the specifier '" + Name.Text + "'");
		}
	}
	return Result;
}

} // namespace HeaderTool
