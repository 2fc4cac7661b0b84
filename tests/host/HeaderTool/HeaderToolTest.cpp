// SPDX-License-Identifier: MIT
/** Runs the header tool as the build does. What it writes is proved by the reflected types that other tests compile. */
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>

namespace
{

namespace fs = std::filesystem;

struct FResult
{
	int ExitCode;
	/** What the tool printed on both channels. */
	std::string Output;
};

class HeaderTool : public testing::Test
{
protected:
	HeaderTool()
	{
		std::string Pattern = (fs::temp_directory_path() / "header-tool-XXXXXX").string();
		Folder = mkdtemp(Pattern.data());
	}

	virtual ~HeaderTool() override { fs::remove_all(Folder); }

	void Write(const std::string& Name, const std::string& Text) const { std::ofstream(Folder / Name) << Text; }

	std::string Read(const std::string& Name) const
	{
		std::ostringstream Text;
		Text << std::ifstream(Folder / Name).rdbuf();
		return Text.str();
	}

	FResult Run(const std::string& Arguments) const
	{
		const std::string Command = "cd '" + Folder.string() + "' && '" ZEF_HEADER_TOOL "' " + Arguments + " 2>&1";
		FILE* const Pipe = popen(Command.c_str(), "r");
		FResult Result{-1, {}};
		char Buffer[512];
		while (const size_t Count = fread(Buffer, 1, sizeof(Buffer), Pipe))
		{
			Result.Output.append(Buffer, Count);
		}
		Result.ExitCode = WEXITSTATUS(pclose(Pipe));
		return Result;
	}

	/** Reads one header of which `Body` stands behind the usual includes, which end in line 3. */
	FResult RunOn(const std::string& Body) const
	{
		Write("Lamp.h", "#pragma once\n#include \"UObject/Object.h\"\n#include \"Lamp.generated.h\"\n" + Body);
		return Run("--module Lamps --package /Script/Lamps --out out Lamp.h");
	}

	/** What an error in `Line` of Lamp.h looks like. */
	std::string ErrorAt(int Line, const std::string& Message) const
	{
		return fs::canonical(Folder / "Lamp.h").string() + ":" + std::to_string(Line) + ": error: " + Message + "\n";
	}

	fs::path Folder;
};

const char* const Lamp = "UCLASS()\nclass ULamp : public UObject\n{\n\tGENERATED_BODY()\n};\n";

TEST_F(HeaderTool, WritesAHeaderAndASource)
{
	const FResult Result = RunOn(Lamp);

	EXPECT_EQ(Result.Output, "");
	EXPECT_EQ(Result.ExitCode, 0);
	EXPECT_NE(Read("out/Lamp.generated.h").find("_7_GENERATED_BODY"), std::string::npos);
	EXPECT_NE(Read("out/Lamps.gen.cpp").find("UClass* ULamp::StaticClass()"), std::string::npos);
	EXPECT_NE(Read("out/Lamps.gen.cpp").find("\"/Script/Lamps\""), std::string::npos);
}

TEST_F(HeaderTool, LeavesOutputsAloneThatDidNotChange)
{
	RunOn(Lamp);
	const fs::file_time_type Past = fs::file_time_type::clock::now() - std::chrono::hours(1);
	fs::last_write_time(Folder / "out/Lamp.generated.h", Past);
	fs::last_write_time(Folder / "out/Lamps.gen.cpp", Past);

	RunOn(std::string(Lamp) + "// A comment at the end changes nothing.\n");
	EXPECT_EQ(fs::last_write_time(Folder / "out/Lamp.generated.h"), Past);
	EXPECT_EQ(fs::last_write_time(Folder / "out/Lamps.gen.cpp"), Past);

	RunOn("\n" + std::string(Lamp));
	EXPECT_NE(fs::last_write_time(Folder / "out/Lamp.generated.h"), Past);
	EXPECT_EQ(fs::last_write_time(Folder / "out/Lamps.gen.cpp"), Past);
}

TEST_F(HeaderTool, IgnoresHeadersWithoutReflectedTypes)
{
	Write("Plain.h", "#pragma once\nstruct FPlain { const char* Text = \"{\"; };\n");

	const FResult Result = Run("--module Lamps --out out Plain.h");

	EXPECT_EQ(Result.ExitCode, 0);
	EXPECT_FALSE(fs::exists(Folder / "out/Plain.generated.h"));
	EXPECT_TRUE(fs::exists(Folder / "out/Lamps.gen.cpp"));
}

TEST_F(HeaderTool, ReadsDeclarationsOfEveryShape)
{
	const FResult Result = RunOn(R"header(
#if WITH_EDITOR
#define SOMETHING(...) \
	UCLASS(Unknown)
#else
UCLASS(Unknown)
#endif
#if 0
UPROPERTY()
#endif
// UCLASS(Unknown)
const char* Text = "UCLASS(Unknown)";
UENUM(BlueprintType)
enum class EShade : uint8 { Paper UMETA(DisplayName = "Pa\"per"), Glass = (1 << 2), };
USTRUCT()
struct LAMPS_API FBulb : public FThread<int, TPair<int, int>>
{
	GENERATED_BODY()
	UPROPERTY() float Watts = TPair<int, float>(1, 2.f).Value;
};
/** A lamp. */
UCLASS(Transient, MinimalAPI, hidecategories = (Object, Mesh), meta = (DisplayName = "The " "Lamp"))
class [[nodiscard]] LAMPS_API ULamp final : public UObject, public ISwitch
{
	GENERATED_BODY()
public:
	explicit ULamp(const FObjectInitializer& ObjectInitializer) : Super(ObjectInitializer), Count{0} {}
	virtual ~ULamp() {}
	void Use() { if (Count) { Count = 1; } }
	UPROPERTY(EditAnywhere, Category = "A|B", meta = (ClampMin = -1.5, EditCondition = "bOn"))
	TMap<FName, TArray<class ULamp*>> Lamps = {{NAME_None, {}}};
	UPROPERTY() uint8 bOn : 1 = 0;
	UPROPERTY() FBulb Bulbs[4];
	UPROPERTY() const ULamp* Next{nullptr};
	UPROPERTY(Transient) mutable TEnumAsByte<ELight::Type> Light = ELight::Off;
	UPROPERTY() UE_DEPRECATED(5.3, "use Lamps") int32 Old;
	UFUNCTION(BlueprintCallable) void Call(int32 Argument = (1, 2));
#if WITH_EDITORONLY_DATA
	UPROPERTY() int32 Edited = 1; // A trailing comment.
#endif
	int32 Count;
};
)header");

	EXPECT_EQ(Result.Output, "");
	EXPECT_EQ(Result.ExitCode, 0);
	const std::string Source = Read("out/Lamps.gen.cpp");
	for (const char* Piece : {
			 "Builder.Value(\"Paper\", static_cast<int64>(EShade::Paper), {{\"DisplayName\", \"Pa\\\"per\"}});",
			 "Builder.Value(\"Glass\", static_cast<int64>(EShade::Glass), {});",
			 "Builder.Property<decltype(FBulb::Watts)>(\"Watts\", offsetof(FBulb, Watts), CPF_None, {});",
			 "{{\"DisplayName\", \"The Lamp\"}, {\"ToolTip\", \"A lamp.\"}, {\"hidecategories\", \"Object Mesh\"}}",
			 "CPF_Edit, {{\"Category\", \"A|B\"}, {\"ClampMin\", \"-1.5\"}, {\"EditCondition\", \"bOn\"}}",
			 "Builder.Bit(\"bOn\"",
			 "offsetof(ULamp, Lamps)",
			 "offsetof(ULamp, Bulbs)",
			 "offsetof(ULamp, Next)",
			 "offsetof(ULamp, Light), CPF_Transient",
			 "offsetof(ULamp, Old)",
			 "offsetof(ULamp, Edited)",
			 "Type(ObjectInitializer)",
			 "&UObject::StaticClass",
		 })
	{
		EXPECT_NE(Source.find(Piece), std::string::npos) << Piece;
	}
	EXPECT_EQ(Source.find("Count"), std::string::npos);
	EXPECT_EQ(Source.find("Call"), std::string::npos);
}

struct FRefusal
{
	const char* Name;
	const char* Body;
	int Line;
	const char* Message;
};

void PrintTo(const FRefusal& Refusal, std::ostream* Out)
{
	*Out << Refusal.Name;
}

class HeaderToolRefusal : public HeaderTool, public testing::WithParamInterface<FRefusal>
{
};

TEST_P(HeaderToolRefusal, NamesThePlaceAndWritesNothing)
{
	const FResult Result = RunOn(GetParam().Body);

	EXPECT_EQ(Result.Output, ErrorAt(GetParam().Line, GetParam().Message));
	EXPECT_EQ(Result.ExitCode, 1);
	EXPECT_FALSE(fs::exists(Folder / "out"));
}

// The body begins in line 4.
const FRefusal Refusals[] = {
	{"MissingBody", "UCLASS()\nclass ULamp : public UObject\n{\n};\n", 5, "ULamp has no GENERATED_BODY()"},
	{"SecondBody", "UCLASS()\nclass ULamp : public UObject\n{\n\tGENERATED_BODY()\n\tGENERATED_BODY()\n};\n", 8,
		"ULamp has a second GENERATED_BODY()"},
	{"UnknownClassSpecifier", "UCLASS(Transiet)\nclass ULamp : public UObject { GENERATED_BODY() };\n", 4,
		"unknown class specifier 'Transiet'"},
	{"UnknownPropertySpecifier",
		"UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY(EditEverywhere)\nint32 X; };\n", 6,
		"unknown property specifier 'EditEverywhere'"},
	{"SpecifiersNotClosed", "UCLASS(Transient\nclass ULamp : public UObject { GENERATED_BODY() };\n", 5,
		"expected ',' or ')' after the specifier 'Transient'"},
	{"CategoryWithoutValue",
		"UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY(EditAnywhere, Category)\nint32 X; };\n",
		6, "'Category' has no value"},
	{"NoSuper", "UCLASS()\nclass ULamp { GENERATED_BODY() };\n", 5,
		"ULamp must derive from UObject or a class derived from it"},
	{"WrongPrefix", "UCLASS()\nclass FLamp : public UObject { GENERATED_BODY() };\n", 5,
		"the name of the class FLamp must begin with U, or with A for an actor"},
	{"WrongStructPrefix", "USTRUCT()\nstruct ULamp { GENERATED_BODY() };\n", 5,
		"the name of the struct ULamp must begin with F"},
	{"StructInsteadOfClass", "UCLASS()\nstruct ULamp : public UObject { GENERATED_BODY() };\n", 5,
		"expected 'class' after UCLASS"},
	{"ForwardDeclaration", "UCLASS()\nclass ULamp;\n", 5, "UCLASS before a forward declaration"},
	{"PropertyOutside", "UPROPERTY()\nint32 X;\n", 4, "UPROPERTY outside of a UCLASS or USTRUCT"},
	{"PropertyBeforeFunction",
		"UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY()\nint32 Count() const; };\n", 7,
		"UPROPERTY before a function; a data member is needed"},
	{"PropertyWithoutName", "UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY()\nint32; };\n", 6,
		"UPROPERTY must be followed by the type and the name of a member"},
	{"PropertyWithoutSemicolon",
		"UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY()\nint32 X\n};\n", 6,
		"the member after UPROPERTY has no ';'"},
	{"TwoMembers", "UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY()\nint32 X, Y; };\n", 7,
		"UPROPERTY before more than one member; give each its own"},
	{"StaticMember", "UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY()\nstatic int32 X; };\n", 7,
		"UPROPERTY before 'static'; a data member is needed"},
	{"PlainPointer", "UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY()\nFBulb* Bulb; };\n", 7,
		"the property Bulb points to 'FBulb', which is no UObject class"},
	{"Reference", "UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\nUPROPERTY()\nint32& X; };\n", 7,
		"the property X is a reference"},
	{"UndecidedCondition",
		"UCLASS()\nclass ULamp : public UObject { GENERATED_BODY()\n#if PLATFORM_LINUX\nUPROPERTY()\nint32 "
		"X;\n#endif\n};\n",
		7, "UPROPERTY inside an #if: only WITH_EDITOR and WITH_EDITORONLY_DATA are allowed around it"},
	{"BodyNotClosed", "UCLASS()\nclass ULamp : public UObject\n{\n\tGENERATED_BODY()\n", 6,
		"the body of ULamp is never closed"},
	{"CommentNotClosed", "UCLASS()\n/* class ULamp\n", 5, "this comment has no end"},
	{"TextNotClosed", "UCLASS(meta = (A = \"b))\nclass ULamp\n", 4, "this text has no closing quote"},
	{"IfNotClosed", "#if WITH_EDITOR\nUCLASS()\nclass ULamp : public UObject { GENERATED_BODY() };\n", 4,
		"this #if has no #endif"},
	{"EnumWithoutValues", "UENUM()\nenum class EShade : uint8;\n", 5, "the enum EShade has no values"},
	{"IncludeBehindTheGeneratedOne",
		"#include \"Bulb.h\"\nUCLASS()\nclass ULamp : public UObject { GENERATED_BODY() };\n", 4,
		"\"Lamp.generated.h\" must be the last include"},
};
INSTANTIATE_TEST_SUITE_P(Headers, HeaderToolRefusal, testing::ValuesIn(Refusals),
	[](const testing::TestParamInfo<FRefusal>& Info) { return Info.param.Name; });

TEST_F(HeaderTool, RefusesAMissingOrMisnamedInclude)
{
	Write("Lamp.h", Lamp);
	EXPECT_EQ(Run("--module Lamps --out out Lamp.h").Output,
		ErrorAt(2, "ULamp is reflected, so the header must include \"Lamp.generated.h\" last"));

	Write("Lamp.h", "#include \"Bulb.generated.h\"\n" + std::string(Lamp));
	EXPECT_EQ(Run("--module Lamps --out out Lamp.h").Output,
		ErrorAt(1, "this header must include \"Lamp.generated.h\" instead of \"Bulb.generated.h\""));
}

TEST_F(HeaderTool, ReportsEveryBadHeader)
{
	Write("A.h", "UCLASS(Bad)\n");
	Write("B.h", "UCLASS(Worse)\n");

	const FResult Result = Run("--module Lamps --out out A.h B.h Missing.h");

	EXPECT_EQ(Result.ExitCode, 1);
	EXPECT_NE(Result.Output.find("A.h:1: error: unknown class specifier 'Bad'"), std::string::npos);
	EXPECT_NE(Result.Output.find("B.h:1: error: unknown class specifier 'Worse'"), std::string::npos);
	EXPECT_NE(Result.Output.find("Missing.h:1: error: cannot be read"), std::string::npos);
}

TEST_F(HeaderTool, RefusesTwoHeadersOfOneName)
{
	fs::create_directory(Folder / "Other");
	Write("Other/Lamp.h", "#include \"Lamp.generated.h\"\n");
	Write("Lamp.h", "#include \"Lamp.generated.h\"\n");

	const FResult Result = Run("--module Lamps --out out Lamp.h Other/Lamp.h");

	EXPECT_EQ(Result.ExitCode, 1);
	EXPECT_NE(Result.Output.find("Other/Lamp.h:1: error: a reflected header of the same name is part of the module"),
		std::string::npos);
}

TEST_F(HeaderTool, ExplainsItsOptions)
{
	EXPECT_EQ(Run("--help").ExitCode, 0);
	EXPECT_EQ(Run("--help").Output.find("usage: zef-header-tool"), 0u);
	EXPECT_EQ(Run("").ExitCode, 1);
	EXPECT_NE(Run("--out").Output.find("--out needs a value"), std::string::npos);
	EXPECT_NE(Run("--moduel X").Output.find("unknown option --moduel"), std::string::npos);
}

} // namespace
