// SPDX-License-Identifier: MIT
#include "Misc/ConfigCacheIni.h"
#include "Host/ConfigDirs.h"
#include "fixtures/CorePrinting.h"
#include "fixtures/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace
{

/** A project on disk with the folders Engine, Config and Saved/Config. */
class ConfigCache : public testing::Test
{
protected:
	ConfigCache()
	{
		for (const char* const Name : {"Engine", "Config"})
		{
			std::filesystem::create_directory(Folder / Name);
		}
		Reload();
	}
	~ConfigCache() override { Host::SetConfigDirs(FString(), FString(), FString()); }

	/** Forgets what is in memory, as a new start of the program does. */
	void Reload()
	{
		Host::SetConfigDirs(Wide(Folder / "Engine"), Wide(Folder / "Config"), Wide(Folder / "Saved/Config"));
	}

	static FString Wide(const std::string& Text) { return FString(UTF8_TO_TCHAR(Text.c_str())); }

	void Write(const std::string& Name, const std::string& Text) const
	{
		std::filesystem::create_directories(std::filesystem::path(Folder / Name).parent_path());
		std::ofstream(Folder / Name, std::ios::binary) << Text;
	}

	std::string Read(const std::string& Name) const
	{
		std::ifstream Stream(Folder / Name, std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
	}

	static FString StringOf(const TCHAR* Section, const TCHAR* Key)
	{
		FString Value(TEXT("untouched"));
		GConfig->GetString(Section, Key, Value, GEngineIni);
		return Value;
	}

	static TArray<FString> ArrayOf(const TCHAR* Section, const TCHAR* Key)
	{
		TArray<FString> Values;
		GConfig->GetArray(Section, Key, Values, GEngineIni);
		return Values;
	}

	FTemporaryFolder Folder;
};

} // namespace

TEST_F(ConfigCache, FileNamesLieInTheSavedFolder)
{
	EXPECT_TEXT_EQ(GEngineIni, Wide(Folder / "Saved/Config/Engine.ini"));
	EXPECT_TEXT_EQ(GEditorPerProjectIni, Wide(Folder / "Saved/Config/EditorPerProjectUserSettings.ini"));
}

TEST_F(ConfigCache, GettersLeaveTheValueAloneWhenItIsAbsent)
{
	Write("Config/DefaultEngine.ini", "[Section]\nKey=1\n");
	bool bFlag = true;
	int32 Number = 7;
	float Single = 0.5f;
	FString Text(TEXT("before"));

	EXPECT_FALSE(GConfig->GetBool(TEXT("Section"), TEXT("Missing"), bFlag, GEngineIni));
	EXPECT_FALSE(GConfig->GetInt(TEXT("Missing"), TEXT("Key"), Number, GEngineIni));
	EXPECT_FALSE(GConfig->GetFloat(TEXT("Section"), TEXT("Key"), Single, GEditorIni));
	EXPECT_FALSE(GConfig->GetString(TEXT("Section"), TEXT("Missing"), Text, GEngineIni));
	EXPECT_TRUE(bFlag);
	EXPECT_EQ(Number, 7);
	EXPECT_EQ(Single, 0.5f);
	EXPECT_TEXT_EQ(Text, "before");
}

TEST_F(ConfigCache, BooleansAreReadFromWordsAndNumbersInAnyCase)
{
	const struct
	{
		const char* Text;
		bool bExpected;
	} Rows[] = {{"True", true}, {"true", true}, {"YES", true}, {"on", true}, {"1", true}, {"2", true}, {"-1", true},
		{"False", false}, {"no", false}, {"Off", false}, {"0", false}, {"", false}, {"truth", false}};
	for (const auto& Row : Rows)
	{
		Write("Config/DefaultEngine.ini", std::string("[S]\nKey=") + Row.Text + "\n");
		Reload();
		bool bValue = !Row.bExpected;
		EXPECT_TRUE(GConfig->GetBool(TEXT("S"), TEXT("Key"), bValue, GEngineIni)) << Row.Text;
		EXPECT_EQ(bValue, Row.bExpected) << Row.Text;
	}
}

TEST_F(ConfigCache, NumbersAreReadAsFarAsTheyGo)
{
	Write("Config/DefaultEngine.ini", "[S]\nA=-12\nB=2.5x\nC=word\n");
	int32 A = 0, C = 9;
	float B = 0.0f;
	double D = 0.0;

	EXPECT_TRUE(GConfig->GetInt(TEXT("S"), TEXT("A"), A, GEngineIni));
	EXPECT_TRUE(GConfig->GetFloat(TEXT("S"), TEXT("B"), B, GEngineIni));
	EXPECT_TRUE(GConfig->GetInt(TEXT("S"), TEXT("C"), C, GEngineIni));
	EXPECT_TRUE(GConfig->GetDouble(TEXT("S"), TEXT("B"), D, GEngineIni));
	EXPECT_EQ(A, -12);
	EXPECT_EQ(B, 2.5f);
	EXPECT_EQ(C, 0);
	EXPECT_EQ(D, 2.5);
}

TEST_F(ConfigCache, LaterLayersCoverEarlierOnes)
{
	Write("Engine/BaseEngine.ini", "[S]\nOnlyBase=b\nBoth=b\nAll=b\n");
	Write("Config/DefaultEngine.ini", "[S]\nBoth=d\nAll=d\n");
	Write("Saved/Config/Engine.ini", "[S]\nAll=s\n");

	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("OnlyBase")), "b");
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Both")), "d");
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("All")), "s");
}

TEST_F(ConfigCache, SectionsAndKeysIgnoreCaseAndSpaces)
{
	Write("Config/DefaultEngine.ini", " [/Script/Engine.RendererSettings] \n  r.OIT.SortedPixels = True \n");
	bool bValue = false;

	EXPECT_TRUE(
		GConfig->GetBool(TEXT("/script/engine.renderersettings"), TEXT("R.oit.sortedpixels"), bValue, GEngineIni));
	EXPECT_TRUE(bValue);
	EXPECT_TRUE(GConfig->DoesSectionExist(TEXT("/SCRIPT/Engine.RendererSettings"), GEngineIni));
	EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("Other"), GEngineIni));
}

TEST_F(ConfigCache, CommentsAreNoEntries)
{
	Write("Config/DefaultEngine.ini", "; Key=0\n[S]\n;Key=1\nKey=2 ; not a comment\n");

	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Key")), "2 ; not a comment");
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT(";Key")), "untouched");
}

TEST_F(ConfigCache, ArraysGrowShrinkAndStartAnew)
{
	Write("Engine/BaseEngine.ini", "[S]\n+A=1\n+A=2\n+B=1\nC=1\nC=2\n+D=1\n");
	Write("Config/DefaultEngine.ini", "[S]\n+A=2\n+A=3\n.A=1\n-B=1\nC=3\nC=4\n!D=ClearArray\n+D=9\n");

	EXPECT_EQ(ArrayOf(TEXT("S"), TEXT("A")), (TArray<FString>{TEXT("1"), TEXT("2"), TEXT("3"), TEXT("1")}));
	EXPECT_EQ(ArrayOf(TEXT("S"), TEXT("B")), TArray<FString>());
	EXPECT_EQ(ArrayOf(TEXT("S"), TEXT("C")), (TArray<FString>{TEXT("3"), TEXT("4")}));
	EXPECT_EQ(ArrayOf(TEXT("S"), TEXT("D")), (TArray<FString>{TEXT("9")}));
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("C")), "4");
}

TEST_F(ConfigCache, SetValuesAreReadBackBeforeAndAfterTheyAreWritten)
{
	GConfig->SetBool(TEXT("S"), TEXT("Flag"), true, GEngineIni);
	GConfig->SetInt(TEXT("S"), TEXT("Number"), -3, GEngineIni);
	GConfig->SetString(TEXT("S"), TEXT("Text"), TEXT("caf\u00e9"), GEngineIni);
	EXPECT_TEXT_EQ(StringOf(TEXT("s"), TEXT("number")), "-3");

	GConfig->Flush(false, GEngineIni);
	Reload();

	EXPECT_EQ(Read("Saved/Config/Engine.ini"), "[S]\nFlag=True\nNumber=-3\nText=caf\u00e9\n");
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Text")), TEXT("caf\u00e9"));
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Flag")), "True");
}

TEST_F(ConfigCache, SettingWritesTheSavedFileOnly)
{
	Write("Config/DefaultEngine.ini", "[S]\nKey=default\n");

	GConfig->SetString(TEXT("S"), TEXT("Key"), TEXT("mine"), GEngineIni);
	GConfig->Flush(false);

	EXPECT_EQ(Read("Config/DefaultEngine.ini"), "[S]\nKey=default\n");
	EXPECT_EQ(Read("Saved/Config/Engine.ini"), "[S]\nKey=mine\n");
}

TEST_F(ConfigCache, SettingWhatIsThereAlreadyWritesNothing)
{
	Write("Config/DefaultEngine.ini", "[S]\nKey=default\n");

	GConfig->SetString(TEXT("S"), TEXT("Key"), TEXT("default"), GEngineIni);
	GConfig->Flush(false);

	EXPECT_FALSE(std::filesystem::exists(Folder / "Saved"));
}

TEST_F(ConfigCache, WritingKeepsCommentsOrderAndForeignLines)
{
	Write("Saved/Config/Engine.ini", "; made by hand\r\n\r\n[First]\r\nA=1\r\n+List=x\r\n; about B\r\nB=2\r\n\r\n; the "
									 "second\r\n[Second]\r\nC=3\r\n");

	GConfig->SetString(TEXT("First"), TEXT("B"), TEXT("20"), GEngineIni);
	GConfig->SetString(TEXT("First"), TEXT("New"), TEXT("n"), GEngineIni);
	GConfig->SetString(TEXT("Third"), TEXT("D"), TEXT("4"), GEngineIni);
	GConfig->Flush(false);

	EXPECT_EQ(Read("Saved/Config/Engine.ini"),
		"; made by hand\r\n\r\n[First]\r\nA=1\r\n+List=x\r\n; about B\r\nB=20\r\nNew=n\r\n\r\n; the "
		"second\r\n[Second]\r\nC=3\r\n\r\n[Third]\r\nD=4\r\n");
}

TEST_F(ConfigCache, AwkwardTextsSurvive)
{
	const FString Texts[] = {TEXT(" spaces "), TEXT("two\nlines"), TEXT("\"quoted\""), TEXT("C:\\Temp\\x"),
		TEXT("a=b;c"), TEXT(""), TEXT("[not a section]")};
	for (const FString& Text : Texts)
	{
		GConfig->SetString(TEXT("S"), TEXT("Key"), *Text, GEngineIni);
		GConfig->Flush(true);
		EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Key")), Text);
	}
}

TEST_F(ConfigCache, ArraysAreWrittenWholeAndCanBeEmptied)
{
	Write("Config/DefaultEngine.ini", "[S]\n+List=x\n+List=y\n");

	GConfig->SetArray(TEXT("S"), TEXT("List"), {TEXT("a"), TEXT("b"), TEXT("a")}, GEngineIni);
	GConfig->Flush(true);
	EXPECT_EQ(ArrayOf(TEXT("S"), TEXT("List")), (TArray<FString>{TEXT("a"), TEXT("b"), TEXT("a")}));

	GConfig->SetArray(TEXT("S"), TEXT("List"), TArray<FString>(), GEngineIni);
	GConfig->Flush(true);
	EXPECT_EQ(ArrayOf(TEXT("S"), TEXT("List")), TArray<FString>());
	EXPECT_EQ(Read("Saved/Config/Engine.ini"), "[S]\n!List=ClearArray\n");
}

TEST_F(ConfigCache, RemovingAKeyUncoversTheLayerBelow)
{
	Write("Config/DefaultEngine.ini", "[S]\nKey=default\n");
	GConfig->SetString(TEXT("S"), TEXT("Key"), TEXT("mine"), GEngineIni);

	EXPECT_TRUE(GConfig->RemoveKey(TEXT("S"), TEXT("Key"), GEngineIni));
	EXPECT_FALSE(GConfig->RemoveKey(TEXT("S"), TEXT("Key"), GEngineIni));
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Key")), "default");
}

TEST_F(ConfigCache, EmptyingASectionTakesItOutOfTheSavedFile)
{
	Write("Saved/Config/Engine.ini", "[A]\nX=1\n[B]\nY=2\n[a]\nZ=3\n");

	EXPECT_TRUE(GConfig->EmptySection(TEXT("A"), GEngineIni));
	GConfig->Flush(false);

	EXPECT_EQ(Read("Saved/Config/Engine.ini"), "[B]\nY=2\n");
}

TEST_F(ConfigCache, AnyOtherFileStandsAlone)
{
	Write("Config/DefaultGame.ini", "[S]\nKey=1\n");
	const FString Default = Wide(Folder / "Config/DefaultGame.ini");

	GConfig->SetString(TEXT("S"), TEXT("Key"), TEXT("2"), Default);
	GConfig->Flush(false, Default);

	EXPECT_EQ(Read("Config/DefaultGame.ini"), "[S]\nKey=2\n");
}

TEST_F(ConfigCache, FlushOfOneFileLeavesTheOthersUnwritten)
{
	GConfig->SetBool(TEXT("S"), TEXT("A"), true, GEngineIni);
	GConfig->SetBool(TEXT("S"), TEXT("B"), true, GEditorIni);

	GConfig->Flush(false, GEditorIni);

	EXPECT_FALSE(std::filesystem::exists(Folder / "Saved/Config/Engine.ini"));
	EXPECT_EQ(Read("Saved/Config/Editor.ini"), "[S]\nB=True\n");
}

TEST_F(ConfigCache, AFailedWriteKeepsTheOldFileAndTheChange)
{
	Write("Saved/Config/Engine.ini", "[S]\nKey=old\n");
	// A folder of the name stands where the new text would be written.
	std::filesystem::create_directory(Folder / "Saved/Config/Engine.ini.tmp");
	GConfig->SetString(TEXT("S"), TEXT("Key"), TEXT("new"), GEngineIni);

	GConfig->Flush(true);
	EXPECT_EQ(Read("Saved/Config/Engine.ini"), "[S]\nKey=old\n");
	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Key")), "new");

	std::filesystem::remove(Folder / "Saved/Config/Engine.ini.tmp");
	GConfig->Flush(true);
	EXPECT_EQ(Read("Saved/Config/Engine.ini"), "[S]\nKey=new\n");
}

TEST_F(ConfigCache, NothingIsLeftBesideAWrittenFile)
{
	GConfig->SetBool(TEXT("S"), TEXT("A"), true, GEngineIni);
	GConfig->Flush(false);

	int32 NumFiles = 0;
	for ([[maybe_unused]] const auto& Entry : std::filesystem::directory_iterator(Folder / "Saved/Config"))
	{
		++NumFiles;
	}
	EXPECT_EQ(NumFiles, 1);
}

TEST_F(ConfigCache, FilesOfUTF16AreRead)
{
	Write("Config/DefaultEngine.ini", std::string("\xFF\xFE[\0S\0]\0\n\0K\0e\0y\0=\0\xE9\0\x3D\xD8\x00\xDE\n\0", 26));

	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Key")), TEXT("\u00e9\U0001F600"));
}

TEST_F(ConfigCache, AByteOrderMarkIsNoPartOfTheFirstLine)
{
	Write("Config/DefaultEngine.ini", "\xEF\xBB\xBF[S]\nKey=1");

	EXPECT_TEXT_EQ(StringOf(TEXT("S"), TEXT("Key")), "1");
}

TEST_F(ConfigCache, WithoutFoldersValuesStayInMemory)
{
	Host::SetConfigDirs(FString(), FString(), FString());

	GConfig->SetBool(TEXT("S"), TEXT("Flag"), true, GEngineIni);
	GConfig->Flush(true);

	bool bValue = false;
	EXPECT_TRUE(GEngineIni.IsEmpty());
	EXPECT_TRUE(GConfig->GetBool(TEXT("S"), TEXT("Flag"), bValue, GEngineIni));
	EXPECT_TRUE(bValue);
}
