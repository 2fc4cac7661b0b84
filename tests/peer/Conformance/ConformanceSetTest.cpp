// SPDX-License-Identifier: MIT
#include "EndsUnderTest.h"
#include "Recipes.h"
#include "Zef/Peer/ConformancePlayer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>

namespace
{
using namespace ConformanceTest;
using namespace Zef::Peer;
using LinkTest::FTestFolder;
using Zef::EFault;
using Zef::EReceiver;

const std::filesystem::path SetFolder = std::filesystem::path(ZEF_SOURCE_DIR) / "tests/protocol";

std::string CaseName(const std::string& Name)
{
	std::string Letters = Name;
	std::replace_if(
		Letters.begin(), Letters.end(), [](unsigned char Letter) { return !std::isalnum(Letter); }, '_');
	return Letters;
}

class ConformanceRecipe : public testing::TestWithParam<FRecipe>
{
};

TEST_P(ConformanceRecipe, GivesTheFileThatIsKept)
{
	const std::filesystem::path File = SetFolder / (GetParam().Name + ".zef");
	if (!std::filesystem::exists(File) && std::getenv("ZEF_WRITE_CONFORMANCE") != nullptr)
	{
		std::filesystem::create_directories(File.parent_path());
		std::ofstream(File) << GetParam().Text;
	}
	std::ifstream Stream(File);
	ASSERT_TRUE(Stream) << File;
	std::stringstream Kept;
	Kept << Stream.rdbuf();
	EXPECT_EQ(GetParam().Text, Kept.str());
}

std::string RecipeName(const testing::TestParamInfo<FRecipe>& Info)
{
	return CaseName(Info.param.Name);
}

INSTANTIATE_TEST_SUITE_P(Hostile, ConformanceRecipe, testing::ValuesIn(HostileRecipes()), RecipeName);
INSTANTIATE_TEST_SUITE_P(Valid, ConformanceRecipe, testing::ValuesIn(ValidRecipes()), RecipeName);

/** The cases that are played, or one without a name where the set cannot be read. */
std::vector<FConformanceCase> Cases()
{
	auto Set = ReadConformanceSet(SetFolder);
	return Set ? std::move(*Set) : std::vector<FConformanceCase>(1);
}

class ConformanceCase : public testing::TestWithParam<FConformanceCase>
{
protected:
	static FPlayOptions Options(const std::string& Endpoint)
	{
		FPlayOptions Options;
		Options.Under = GetParam().To;
		Options.Endpoint = Endpoint;
		Options.Patience = LinkTest::Patience;
		Options.bExactWords = true;
		Options.HasOption = [](const std::string&, std::uint64_t) { return true; };
		return Options;
	}

	/** The program at the end under test hears the same as the other end. */
	static void ExpectHeard(const FHeard& Heard)
	{
		const FConformanceCase& Case = GetParam();
		const std::vector<Zef::FLinkFault>& Faults = Case.Expected == EExpected::Told ? Heard.OfTheOtherEnd : Heard.Own;
		const auto IsExpected = [&Case](const Zef::FLinkFault& Fault)
		{
			return Fault.Code == Case.Fault.Code && Fault.Path == Case.Fault.Path &&
				   (Case.Fault.Message.empty() || Fault.Message == Case.Fault.Message);
		};
		// The end of the application is told as the reason why there is no link.
		const bool bToldAsFault = Case.Fault.Code != EFault::Closing;
		if (Case.Expected != EExpected::Taken && bToldAsFault)
		{
			EXPECT_EQ(std::count_if(Faults.begin(), Faults.end(), IsExpected), 1);
		}
		if (Case.Expected == EExpected::Fault)
		{
			for (const Zef::FLinkFault& Fault : Faults)
			{
				EXPECT_NE(Fault.Message.find("expected"), std::string::npos) << ToString(Fault);
				EXPECT_EQ(Fault.Severity, Zef::FaultInfo(Fault.Code).Severity);
			}
		}
	}

	void PlayOpening(const FTestFolder& Folder)
	{
		const FConformanceCase& Case = GetParam();
		const bool bTaken = Case.Subject == "taken";
		std::optional<LinkTest::FApplication> First;
		if (bTaken)
		{
			First.emplace(Folder.Socket());
		}
		const std::string Endpoint = bTaken ? Folder.Socket() : Case.Subject;
		const Zef::FLinkFault Fault =
			Case.To == EReceiver::GarmentApplication
				? Zef::FServerEndpoint::OpenEndpoint(Endpoint).Fault()
				: Zef::FClientEndpoint::OpenEndpoint(Endpoint, std::make_shared<Zef::FRecordFactory>()).Fault();
		EXPECT_EQ(Fault.Code, Case.Fault.Code) << ToString(Fault);
	}
};

TEST_P(ConformanceCase, IsAnsweredAsTheFileSays)
{
	const FConformanceCase& Case = GetParam();
	const FTestFolder Folder;
	if (Case.Expected == EExpected::Program)
	{
		EXPECT_FALSE(Case.Subject.empty());
		return;
	}
	if (Case.Expected == EExpected::Opening)
	{
		PlayOpening(Folder);
		return;
	}
	const bool bFault = Case.Expected == EExpected::Fault ||
						(Case.Expected == EExpected::Refused && Case.Fault.Code != EFault::Closing);
	if (Case.To == EReceiver::Editor)
	{
		FEditorUnderTest Editor(Case, Folder.Socket());
		const FCaseOutcome Outcome = PlayCase(Case, Options(Folder.Socket()));
		EXPECT_EQ(Outcome.Outcome, EOutcome::Passed) << Outcome.Detail;
		ExpectHeard(Editor.Finish(bFault));
		return;
	}
	FApplicationUnderTest Application(Case, Folder.Socket());
	const FCaseOutcome Outcome = PlayCase(Case, Options(Folder.Socket()));
	EXPECT_EQ(Outcome.Outcome, EOutcome::Passed) << Outcome.Detail;
	if (Case.Fault.Code == EFault::PeerLost)
	{
		EXPECT_EQ(Application.SendToTheLost().Code, EFault::PeerLost);
		return;
	}
	ExpectHeard(Application.Finish(bFault));
}

INSTANTIATE_TEST_SUITE_P(OfTheSet, ConformanceCase, testing::ValuesIn(Cases()),
	[](const testing::TestParamInfo<FConformanceCase>& Info)
	{ return Info.param.Name.empty() ? std::string("Unreadable") : CaseName(Info.param.Name); });

TEST(ConformanceSet, CanBeRead)
{
	const auto Set = ReadConformanceSet(SetFolder);
	ASSERT_TRUE(Set) << Set.Fault().Message;
	for (const FConformanceCase& Case : *Set)
	{
		EXPECT_FALSE(Case.About.empty()) << Case.Name;
	}
}

TEST(ConformanceSet, HasAHostileFileNamedAfterEachFault)
{
	const auto Set = ReadConformanceSet(SetFolder);
	ASSERT_TRUE(Set) << Set.Fault().Message;
	std::set<std::string> Names;
	for (const FConformanceCase& Case : *Set)
	{
		if (Case.Name.starts_with("hostile/"))
		{
			const std::string Name = Case.Name.substr(8, Case.Name.find('-') - 8);
			Names.insert(Name);
			EXPECT_EQ(Name, Zef::FaultInfo(Case.Fault.Code).Name) << Case.Name;
		}
	}
	for (const Zef::FFaultInfo& Info : Zef::FaultTable())
	{
		EXPECT_TRUE(Names.contains(Info.Name)) << Info.Name << " has no file; add a recipe";
	}
}

TEST(ConformanceSet, PlaysEveryGoldenFile)
{
	std::string Played;
	for (const FRecipe& Recipe : ValidRecipes())
	{
		Played += Recipe.Text;
	}
	for (const auto& File : std::filesystem::recursive_directory_iterator(SetFolder / "golden"))
	{
		if (File.path().extension() == ".hex")
		{
			const std::string Name = File.path().parent_path().filename().string() + "/" + File.path().stem().string();
			EXPECT_NE(Played.find("golden " + Name + "\n"), std::string::npos)
				<< Name << " is in no case; add a recipe";
		}
	}
}
} // namespace
