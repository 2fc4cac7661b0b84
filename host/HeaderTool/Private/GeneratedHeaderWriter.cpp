// SPDX-License-Identifier: MIT
#include "Writers.h"

namespace HeaderTool
{
namespace
{

std::string FileIdOf(const FModule& Module, const FHeader& Header)
{
	return "FID_" + Module.Name + "_" + Header.BaseName + "_h";
}

/** Joins the lines of a macro with continuations. */
std::string Define(const std::string& Name, const std::vector<std::string>& Lines)
{
	std::string Result = "#define " + Name;
	for (const std::string& Line : Lines)
	{
		Result += " \\\n\t" + Line;
	}
	return Result + "\n";
}

/**
 * Defines what stands for the constructor of a class that declares none. It hands the initializer on, unless the super
 * class only has `USuper()`; whether it does is known to the preprocessor, since the super class may be of any module.
 */
std::string WriteConstructorMacro(const FTypeDecl& Class, const std::string& Macro)
{
	const std::string Marker = "ZEF_ONLY_DEFAULT_CONSTRUCTOR_";
	std::string Result;
	switch (Class.Constructor)
	{
		case EConstructor::Default:
			Result += "#define " + Marker + Class.Name + "\n#define " + Macro + "\n";
			break;
		case EConstructor::Initializer:
			Result +=
				Class.bLegacyBody
					? Define(Macro,
						  {Class.Name + "(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());"})
					: "#define " + Macro + "\n";
			break;
		case EConstructor::None:
			Result += "#ifdef " + Marker + Class.Super + "\n";
			Result += "#define " + Marker + Class.Name + "\n";
			Result += Define(Macro, {Class.Name + "() {}"});
			Result += "#else\n";
			Result +=
				Define(Macro, {Class.Name + "(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get())",
								  "\t: Super(ObjectInitializer)", "{", "}"});
			Result += "#endif\n";
			break;
	}
	return Result;
}

std::string WriteClassMacros(const FTypeDecl& Class, const std::string& FileId)
{
	const std::string Prefix = FileId + "_" + std::to_string(Class.BodyLine) + "_";
	std::string Result = WriteConstructorMacro(Class, Prefix + "CONSTRUCTOR");
	std::vector<std::string> Lines = {
		"public:",
		"\tusing Super = " + Class.Super + ";",
		"\tusing ThisClass = " + Class.Name + ";",
		"\tstatic UClass* StaticClass();",
		"\t" + Class.Name + "(const " + Class.Name + "&) = delete;",
		"\t" + Class.Name + "& operator=(const " + Class.Name + "&) = delete;",
		"\t" + Prefix + "CONSTRUCTOR",
		"private:",
		"\tstatic void ConstructAt(const FObjectInitializer& ObjectInitializer);",
		"\tstatic void DescribeClass(Host::FTypeBuilder& Builder);",
	};
	if (Class.bLegacyBody)
	{
		Lines.push_back("public:");
		return Result + Define(Prefix + "GENERATED_UCLASS_BODY", Lines);
	}
	return Result + Define(Prefix + "GENERATED_BODY", Lines);
}

std::string WriteStructMacros(const FTypeDecl& Struct, const std::string& FileId)
{
	std::vector<std::string> Lines;
	if (!Struct.Super.empty())
	{
		Lines.push_back("using Super = " + Struct.Super + ";");
	}
	Lines.push_back("using ThisStruct = " + Struct.Name + ";");
	Lines.push_back("static UScriptStruct* StaticStruct();");
	Lines.push_back("static void DescribeStruct(Host::FTypeBuilder& Builder);");
	return Define(FileId + "_" + std::to_string(Struct.BodyLine) + "_GENERATED_BODY", Lines);
}

} // namespace

std::string WriteGeneratedHeader(const FModule& Module, const FHeader& Header)
{
	const std::string FileId = FileIdOf(Module, Header);
	const std::string Guard = "ZEF_" + Module.Name + "_" + Header.BaseName + "_generated_h";
	std::string Text = "// Written by zef-header-tool from " + Header.BaseName + ".h.\n";
	Text += "#ifdef " + Guard + "\n#error \"" + Header.BaseName + ".h lacks #pragma once\"\n#endif\n";
	Text += "#define " + Guard + "\n\n#include \"UObject/ObjectMacros.h\"\n\n";
	for (const FTypeDecl& Class : Header.Classes)
	{
		Text += "class " + Class.Name + ";\n" + WriteClassMacros(Class, FileId) + "\n";
	}
	for (const FTypeDecl& Struct : Header.Structs)
	{
		Text += WriteStructMacros(Struct, FileId) + "\n";
	}
	Text += "#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID " + FileId + "\n";
	return Text;
}

} // namespace HeaderTool
