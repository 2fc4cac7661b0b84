// SPDX-License-Identifier: MIT
#include "Writers.h"

namespace HeaderTool
{
namespace
{

/** A C++ literal of `Text`, which is UTF-8. */
std::string Quote(const std::string& Text)
{
	std::string Result = "\"";
	for (const char C : Text)
	{
		switch (C)
		{
			case '"':
				Result += "\\\"";
				break;
			case '\\':
				Result += "\\\\";
				break;
			case '\n':
				Result += "\\n";
				break;
			case '\t':
				Result += "\\t";
				break;
			default:
				Result += C;
		}
	}
	return Result + "\"";
}

std::string WriteFlags(const std::vector<std::string>& Flags, const char* None)
{
	if (Flags.empty())
	{
		return None;
	}
	std::string Result;
	for (const std::string& Flag : Flags)
	{
		Result += (Result.empty() ? "" : " | ") + Flag;
	}
	return Result;
}

std::string WriteMetadata(const std::map<std::string, std::string>& Metadata)
{
	std::string Result = "{";
	for (const auto& [Key, Value] : Metadata)
	{
		Result += (Result.size() == 1 ? "{" : ", {") + Quote(Key) + ", " + Quote(Value) + "}";
	}
	return Result + "}";
}

std::string WriteProperties(const FTypeDecl& Type)
{
	std::string Text;
	for (const FPropertyDecl& Property : Type.Properties)
	{
		const std::string Tail = ", " + WriteFlags(Property.Specifiers.Flags, "CPF_None") + ", " +
								 WriteMetadata(Property.Specifiers.Metadata) + ");\n";
		if (Property.bBitfield)
		{
			Text += "\tBuilder.Bit(" + Quote(Property.Name) +
					",\n\t\t[](const void* Container) { return static_cast<const " + Type.Name + "*>(Container)->" +
					Property.Name + " != 0; },\n\t\t[](void* Container, bool bValue) { static_cast<" + Type.Name +
					"*>(Container)->" + Property.Name + " = bValue; }" + Tail;
		}
		else
		{
			Text += "\tBuilder.Property<decltype(" + Type.Name + "::" + Property.Name + ")>(" + Quote(Property.Name) +
					", offsetof(" + Type.Name + ", " + Property.Name + ")" + Tail;
		}
	}
	return Text;
}

std::string WriteTypeMetadata(const FSpecifiers& Specifiers)
{
	return Specifiers.Metadata.empty() ? std::string()
									   : "\tBuilder.Metadata(" + WriteMetadata(Specifiers.Metadata) + ");\n";
}

std::string WriteConstruct(const FTypeDecl& Class)
{
	const std::string WithInitializer = "::new (ObjectInitializer.GetObj()) Type(ObjectInitializer);";
	const std::string Plain = "::new (ObjectInitializer.GetObj()) Type();";
	std::string Body;
	switch (Class.Constructor)
	{
		case EConstructor::Default:
			Body = "\t\t\t" + Plain + "\n";
			break;
		case EConstructor::Initializer:
			Body = "\t\t\t" + WithInitializer + "\n";
			break;
		case EConstructor::None:
			Body = "#ifdef ZEF_ONLY_DEFAULT_CONSTRUCTOR_" + Class.Name + "\n\t\t\t" + Plain + "\n#else\n\t\t\t" +
				   WithInitializer + "\n#endif\n";
			break;
	}
	// The lambda is a template so that an abstract class, which nothing can construct, is no error.
	return "void " + Class.Name +
		   "::ConstructAt([[maybe_unused]] const FObjectInitializer& ObjectInitializer)\n{\n"
		   "\t[&]<class Type>()\n\t{\n\t\tif constexpr (!std::is_abstract_v<Type>)\n\t\t{\n" +
		   Body + "\t\t}\n\t}.template operator()<" + Class.Name + ">();\n}\n\n";
}

std::string WriteClass(const FModule& Module, const FTypeDecl& Class)
{
	std::string Text = WriteConstruct(Class);
	Text += "void " + Class.Name + "::DescribeClass(Host::FTypeBuilder& Builder)\n{\n";
	Text += "\tBuilder.References(&" + Class.Name + "::AddReferencedObjects);\n";
	Text += WriteTypeMetadata(Class.Specifiers) + WriteProperties(Class) + "}\n\n";
	Text += "UClass* " + Class.Name + "::StaticClass()\n{\n\tstatic Host::FClassRegistration Registration = {" +
			Quote(Class.Name) + ", " + Quote(Module.Package) + ", sizeof(" + Class.Name + "), alignof(" + Class.Name +
			"),\n\t\t" + WriteFlags(Class.Specifiers.Flags, "CLASS_None") + ", &" + Class.Super +
			"::StaticClass, std::is_abstract_v<" + Class.Name + "> ? nullptr : &" + Class.Name + "::ConstructAt, &" +
			Class.Name + "::DescribeClass};\n\treturn Host::GetClass(Registration);\n}\n\n";
	Text += "static Host::FTypeAtStart AtStart_" + Class.Name + "(Host::TypeName<" + Class.Name + ">(), &" +
			Class.Name + "::StaticClass);\n\n";
	return Text;
}

std::string WriteStruct(const FModule& Module, const FTypeDecl& Struct)
{
	std::string Text = "void " + Struct.Name + "::DescribeStruct([[maybe_unused]] Host::FTypeBuilder& Builder)\n{\n";
	Text += WriteTypeMetadata(Struct.Specifiers) + WriteProperties(Struct) + "}\n\n";
	const std::string Super =
		Struct.Super.empty() ? std::string("nullptr") : "Host::StructGetter<" + Struct.Super + ">()";
	Text +=
		"UScriptStruct* " + Struct.Name + "::StaticStruct()\n{\n\tstatic Host::FStructRegistration Registration = {" +
		Quote(WithoutPrefix(Struct.Name)) + ", " + Quote(Module.Package) + ", Host::StructOps<" + Struct.Name +
		">(), " + Super + ", &" + Struct.Name + "::DescribeStruct};\n\treturn Host::GetStruct(Registration);\n}\n\n";
	Text += "static Host::FTypeAtStart AtStart_" + Struct.Name + "(Host::TypeName<" + Struct.Name + ">(), &" +
			Struct.Name + "::StaticStruct);\n\n";
	return Text;
}

std::string WriteEnum(const FModule& Module, const FEnumDecl& Enum)
{
	std::string Text = "static void DescribeEnum_" + Enum.Name + "(Host::FEnumBuilder& Builder)\n{\n";
	Text += WriteTypeMetadata(Enum.Specifiers);
	for (const FEnumValue& Value : Enum.Values)
	{
		Text += "\tBuilder.Value(" + Quote(Value.Name) + ", static_cast<int64>(" + Enum.ValueScope + Value.Name +
				"), " + WriteMetadata(Value.Metadata) + ");\n";
	}
	Text += "}\n\n";
	Text += "static UEnum* GetEnum_" + Enum.Name + "()\n{\n\tstatic Host::FEnumRegistration Registration = {" +
			Quote(Enum.Name) + ", " + Quote(Module.Package) + ", &DescribeEnum_" + Enum.Name +
			"};\n\treturn Host::GetEnum(Registration);\n}\n\n";
	Text += "static Host::FTypeAtStart AtStart_" + Enum.Name + "(Host::TypeName<" + Enum.CppType + ">(), &GetEnum_" +
			Enum.Name + ");\n\n";
	return Text;
}

} // namespace

std::string WriteGeneratedSource(const FModule& Module)
{
	std::string Text =
		"// Written by zef-header-tool. Registers the reflected types of the module " + Module.Name + ".\n";
	Text += "#include \"UObject/GeneratedCppIncludes.h\"\n\n";
	for (const FHeader& Header : Module.Headers)
	{
		Text += "#include \"" + Header.Path + "\"\n";
	}
	Text += "\n#include <cstddef>\n#include <new>\n#include <type_traits>\n\n";
	Text += "// Reflected classes have virtual functions; their offsets are fixed all the same.\n";
	Text += "#pragma GCC diagnostic ignored \"-Winvalid-offsetof\"\n\n";
	for (const FHeader& Header : Module.Headers)
	{
		for (const FEnumDecl& Enum : Header.Enums)
		{
			Text += WriteEnum(Module, Enum);
		}
		for (const FTypeDecl& Struct : Header.Structs)
		{
			Text += WriteStruct(Module, Struct);
		}
		for (const FTypeDecl& Class : Header.Classes)
		{
			Text += WriteClass(Module, Class);
		}
	}
	return Text;
}

} // namespace HeaderTool
