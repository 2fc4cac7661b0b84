// SPDX-License-Identifier: MIT
#include "Host/MaterialFile.h"

#include "JsonReader.h"
#include "MaterialLookFile.h"
#include "Materials/Material.h"

#include <cstring>
#include <fstream>
#include <limits>
#include <set>
#include <sstream>
#include <vector>

namespace Host
{
namespace
{
constexpr int FormatVersion = 1;
constexpr float LargestFloat = std::numeric_limits<float>::max();

struct FNamedValue
{
	const char* Name;
	int Value;
};

constexpr FNamedValue BlendModes[] = {{"Opaque", BLEND_Opaque}, {"Masked", BLEND_Masked},
	{"Translucent", BLEND_Translucent}, {"Additive", BLEND_Additive}, {"Modulate", BLEND_Modulate},
	{"AlphaComposite", BLEND_AlphaComposite}, {"AlphaHoldout", BLEND_AlphaHoldout}};

constexpr FNamedValue Domains[] = {{"Surface", MD_Surface}, {"DeferredDecal", MD_DeferredDecal},
	{"LightFunction", MD_LightFunction}, {"Volume", MD_Volume}, {"PostProcess", MD_PostProcess}, {"UI", MD_UI}};

/** The value of the name that stands under a key; the first one when the key is absent. */
template <size_t Num>
int ReadName(const FJsonReader& Reader, const char* Key, const FNamedValue (&Values)[Num])
{
	std::string Name = Values[0].Name;
	Reader.Read(Key, Name);
	std::string Known;
	for (const FNamedValue& Value : Values)
	{
		if (Name == Value.Name)
		{
			return Value.Value;
		}
		Known += (Known.empty() ? "" : ", ") + std::string(Value.Name);
	}
	Reader.GetFault().Report(Reader.PathOf(Key), "\"" + Name + "\" is none of " + Known);
	return Values[0].Value;
}

FName ToName(const std::string& Text)
{
	return FName(UTF8_TO_TCHAR(Text.c_str()));
}

/** Appends a parameter for each key of a list; `ReadValue` reads one default. */
template <typename ParameterType, typename ReadValueType>
void ReadParameters(const FJsonReader& Reader, TArray<ParameterType>& OutParameters, ReadValueType&& ReadValue)
{
	for (const auto& Member : Reader.GetNode().items())
	{
		ParameterType Parameter;
		Parameter.Name = ToName(Member.key());
		Parameter.Default = {};
		ReadValue(Member.key().c_str(), Parameter.Default);
		const bool bTwice = OutParameters.ContainsByPredicate(
			[&Parameter](const ParameterType& Other) { return Other.Name == Parameter.Name; });
		if (bTwice || Parameter.Name.IsNone())
		{
			Reader.GetFault().Report(Reader.PathOf(Member.key()), "a parameter needs a name that no other has");
		}
		OutParameters.Add(Parameter);
	}
}

void ReadParameterLists(const FJsonReader& Reader, FMaterialDeclaration& OutDeclaration)
{
	Reader.AllowOnly({"vectors", "scalars", "textures", "switches"});
	const FJsonReader Vectors = Reader.Child("vectors");
	ReadParameters(Vectors, OutDeclaration.Vectors,
		[&Vectors](const char* Key, FLinearColor& Value) { Vectors.Read(Key, Value); });
	const FJsonReader Scalars = Reader.Child("scalars");
	ReadParameters(Scalars, OutDeclaration.Scalars,
		[&Scalars](const char* Key, float& Value) { Scalars.Read(Key, Value, -LargestFloat, LargestFloat); });
	const FJsonReader Textures = Reader.Child("textures");
	ReadParameters(Textures, OutDeclaration.Textures,
		[&Textures](const char* Key, TObjectPtr<UTexture>&)
		{
			if (!Textures.GetNode()[Key].is_null())
			{
				Textures.GetFault().Report(Textures.PathOf(Key), "the default of a texture must be null");
			}
		});
	const FJsonReader Switches = Reader.Child("switches");
	ReadParameters(
		Switches, OutDeclaration.Switches, [&Switches](const char* Key, bool& Value) { Switches.Read(Key, Value); });
}

void ReadMaterial(const FJsonReader& Reader, FMaterialFile& OutFile)
{
	Reader.AllowOnly(
		{"type", "version", "domain", "blendMode", "twoSided", "opacityMaskClipValue", "parameters", "look"});
	Reader.Require("type");
	Reader.Require("version");
	Reader.Require("parameters");
	std::string Type = "Material";
	Reader.Read("type", Type);
	if (Type != "Material")
	{
		Reader.GetFault().Report("/type", "\"" + Type + "\" is not \"Material\"");
	}
	float Version = FormatVersion;
	Reader.Read("version", Version, FormatVersion, FormatVersion);
	OutFile.Domain = EMaterialDomain(ReadName(Reader, "domain", Domains));
	OutFile.BlendMode = EBlendMode(ReadName(Reader, "blendMode", BlendModes));
	Reader.Read("twoSided", OutFile.bTwoSided);
	Reader.Read("opacityMaskClipValue", OutFile.OpacityMaskClipValue, 0.0f, 1.0f);
	ReadParameterLists(Reader.Child("parameters"), OutFile.Declaration);
	ReadMaterialLook(Reader.Child("look"), OutFile.Declaration.Look);
}

/** Parses JSON whose objects name no key twice. */
FJson ParseStrict(const char* Text, SIZE_T Length, FJsonFault& Fault)
{
	std::vector<std::set<std::string>> Keys;
	const auto Watch = [&](int, FJson::parse_event_t Event, FJson& Parsed)
	{
		if (Event == FJson::parse_event_t::object_start)
		{
			Keys.emplace_back();
		}
		else if (Event == FJson::parse_event_t::object_end)
		{
			Keys.pop_back();
		}
		else if (Event == FJson::parse_event_t::key && !Keys.back().insert(Parsed.get<std::string>()).second)
		{
			Fault.Report("", "the key \"" + Parsed.get<std::string>() + "\" stands twice in one object");
		}
		return true;
	};
	try
	{
		return FJson::parse(Text, Text + Length, Watch);
	}
	catch (const FJson::exception& Exception)
	{
		// The library's text starts with its own name and number in brackets.
		const char* What = std::strstr(Exception.what(), "] ");
		Fault.Report("", What ? What + 2 : Exception.what());
		return FJson::object();
	}
}
} // namespace

void FMaterialFile::Apply(UMaterial& Material) const
{
	Material.MaterialDomain = Domain;
	Material.BlendMode = BlendMode;
	Material.TwoSided = bTwoSided;
	Material.OpacityMaskClipValue = OpacityMaskClipValue;
	EditMaterialDeclaration(Material) = Declaration;
}

bool ParseMaterialFile(
	const char* Text, SIZE_T Length, const FString& FileName, FMaterialFile& OutFile, FString& OutError)
{
	FJsonFault Fault;
	FMaterialFile File;
	const FJson Root = ParseStrict(Text, Length, Fault);
	if (!Fault)
	{
		ReadMaterial(FJsonReader(Root, "", Fault), File);
	}
	if (Fault)
	{
		OutError =
			FString::Printf(TEXT("%s is no material. At %s."), *FileName, UTF8_TO_TCHAR(Fault.GetText().c_str()));
		return false;
	}
	OutError.Empty();
	OutFile = File;
	return true;
}

bool ReadMaterialFile(const FString& Path, FMaterialFile& OutFile, FString& OutError)
{
	std::ifstream Stream(TCHAR_TO_UTF8(*Path), std::ios::binary);
	std::ostringstream Text;
	if (Stream)
	{
		Text << Stream.rdbuf();
	}
	if (!Stream || Text.str().empty())
	{
		OutError = FString::Printf(TEXT("%s cannot be read or is empty."), *Path);
		return false;
	}
	const std::string Content = Text.str();
	return ParseMaterialFile(Content.data(), Content.size(), Path, OutFile, OutError);
}
} // namespace Host
