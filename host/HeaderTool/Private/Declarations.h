// SPDX-License-Identifier: MIT
/** What the parser found in a header: the reflected types, by name and specifier. */
#pragma once

#include <map>
#include <string>
#include <vector>

namespace HeaderTool
{

/** The list behind UCLASS, USTRUCT, UENUM or UPROPERTY. */
struct FSpecifiers
{
	/** Flags of the engine in source form, such as "CPF_Edit". */
	std::vector<std::string> Flags;
	/** Category, meta=(...) and the tool tip that the comment gives. */
	std::map<std::string, std::string> Metadata;
};

struct FPropertyDecl
{
	std::string Name;
	int Line = 0;
	FSpecifiers Specifiers;
	bool bBitfield = false;
};

/** How a class can be constructed, which decides what the construct function calls. */
enum class EConstructor
{
	None,
	/** `UFoo()` */
	Default,
	/** `UFoo(const FObjectInitializer&)` */
	Initializer
};

/** A class or a struct. */
struct FTypeDecl
{
	/** C++ name with its prefix. */
	std::string Name;
	/** First base, empty when there is none. */
	std::string Super;
	int Line = 0;
	/** Line of GENERATED_BODY, which names the macro that it expands to. */
	int BodyLine = 0;
	/** GENERATED_UCLASS_BODY, which declares the constructor and leaves the access public. */
	bool bLegacyBody = false;
	EConstructor Constructor = EConstructor::None;
	FSpecifiers Specifiers;
	std::vector<FPropertyDecl> Properties;
};

struct FEnumValue
{
	std::string Name;
	std::map<std::string, std::string> Metadata;
};

struct FEnumDecl
{
	/** Name that the engine gives it; of `namespace EFoo { enum Type` it is EFoo. */
	std::string Name;
	/** C++ type, such as EFoo or EFoo::Type. */
	std::string CppType;
	/** What stands before a value, such as "EFoo::" or "" for an unscoped enum of the file. */
	std::string ValueScope;
	int Line = 0;
	FSpecifiers Specifiers;
	std::vector<FEnumValue> Values;
};

struct FHeader
{
	/** Path as given on the command line. */
	std::string Path;
	/** File name without folder and extension. */
	std::string BaseName;
	std::vector<FTypeDecl> Classes;
	std::vector<FTypeDecl> Structs;
	std::vector<FEnumDecl> Enums;
	/** Includes `<BaseName>.generated.h`. */
	bool bReflected = false;
};

/** "UFoo" and "AFoo" give "Foo", "FFoo" too. */
inline std::string WithoutPrefix(const std::string& CppName)
{
	return CppName.substr(1);
}

} // namespace HeaderTool
