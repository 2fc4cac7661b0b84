// SPDX-License-Identifier: MIT
// The set as another team plays it: by the program, against ends of which it knows only the address.
#include "EndsUnderTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <array>
#include <cstdio>

namespace
{
using namespace ConformanceTest;
using testing::HasSubstr;
using testing::Not;

struct FOutcome
{
	int Status = -1;
	std::string Output;
};

FOutcome Play(const std::string& Arguments)
{
	FOutcome Outcome;
	const std::string Line = std::string("\"") + ZEF_PEER_PROGRAM + "\" conformance " + Arguments + " 2>&1";
	FILE* const Pipe = popen(Line.c_str(), "r");
	std::array<char, 4096> Piece;
	while (const std::size_t Count = std::fread(Piece.data(), 1, Piece.size(), Pipe))
	{
		Outcome.Output.append(Piece.data(), Count);
	}
	const int Status = pclose(Pipe);
	Outcome.Status = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	return Outcome;
}

std::string SetOption()
{
	return std::string(" --set ") + ZEF_SOURCE_DIR + "/tests/protocol";
}
} // namespace

TEST(ConformanceProgram, FindsNoFaultInTheLibrarysApplication)
{
	const LinkTest::FTestFolder Folder;
	FApplicationUnderTest Application({}, Folder.Socket());

	const FOutcome Outcome = Play("application --exact-words --endpoint " + Folder.Socket() + SetOption());
	Application.Finish(false);

	EXPECT_EQ(Outcome.Status, 0) << Outcome.Output;
	EXPECT_THAT(Outcome.Output, HasSubstr("ok    hostile/BadHello "));
	EXPECT_THAT(Outcome.Output, HasSubstr("skip  hostile/TooManyClients"));
	EXPECT_THAT(Outcome.Output, HasSubstr("needs an end with MaxClients = 1"));
	EXPECT_THAT(Outcome.Output, HasSubstr(" ok, 0 failed, "));
	EXPECT_THAT(Outcome.Output, Not(HasSubstr("FAIL")));
}

TEST(ConformanceProgram, FindsNoFaultInTheLibrarysEditor)
{
	const LinkTest::FTestFolder Folder;
	FEditorUnderTest Editor({}, Folder.Socket());

	const FOutcome Outcome = Play("editor --exact-words --endpoint " + Folder.Socket() + SetOption());
	Editor.Finish(false);

	EXPECT_EQ(Outcome.Status, 0) << Outcome.Output;
	EXPECT_THAT(Outcome.Output, HasSubstr("ok    hostile/IndexRange "));
	EXPECT_THAT(Outcome.Output, HasSubstr("ok    valid/v1-SurfaceMesh "));
	EXPECT_THAT(Outcome.Output, Not(HasSubstr("FAIL")));
}

TEST(ConformanceProgram, PlaysACaseThatNeedsAnOptionWhenTheEndHasIt)
{
	const LinkTest::FTestFolder Folder;
	Zef::Peer::FConformanceCase Case;
	Case.Needs = {{"MaxClients", 1}};
	FApplicationUnderTest Application(Case, Folder.Socket());

	const FOutcome Outcome =
		Play("application --only TooManyClients --with MaxClients=1 --endpoint " + Folder.Socket() + SetOption());
	Application.Finish(false);

	EXPECT_EQ(Outcome.Status, 0) << Outcome.Output;
	EXPECT_THAT(Outcome.Output, HasSubstr("1 ok, 0 failed, 0 skipped"));
}

TEST(ConformanceProgram, SaysWhatAnEndDidInPlaceOfWhatWasExpected)
{
	// An editor that takes ten bytes refuses what has to be taken.
	const LinkTest::FTestFolder Folder;
	Zef::Peer::FConformanceCase Case;
	Case.Needs = {{"MaxItemBytes", 10}};
	FEditorUnderTest Editor(Case, Folder.Socket());

	const FOutcome Outcome = Play("editor --only Cloth --endpoint " + Folder.Socket() + SetOption());
	Editor.Finish(false);

	EXPECT_EQ(Outcome.Status, 1);
	EXPECT_THAT(Outcome.Output, HasSubstr("FAIL  valid/Cloth"));
	EXPECT_THAT(Outcome.Output, HasSubstr("everything to be taken expected; it reported OverBudget (304)"));
	EXPECT_THAT(Outcome.Output, HasSubstr("0 ok, 1 failed, 0 skipped"));
}

TEST(ConformanceProgram, FailsTheCasesWhenNobodyAnswers)
{
	const LinkTest::FTestFolder Folder;
	const FOutcome Outcome =
		Play("application --patience 0.1 --only IndexRange --endpoint " + Folder.Socket() + SetOption());

	EXPECT_EQ(Outcome.Status, 1);
	EXPECT_THAT(Outcome.Output, HasSubstr("the application did not answer the greeting"));
}

TEST(ConformanceProgram, ListsWhatTheCasesAre)
{
	const FOutcome Outcome = Play("editor --list" + SetOption());

	EXPECT_EQ(Outcome.Status, 0);
	EXPECT_THAT(
		Outcome.Output, HasSubstr("A triangle names vertex 5 of five. Expects fault IndexRange (405) of item 1 at "
								  "\"/Surfaces/0/Sections/0/Indices/2\"."));
}

TEST(ConformanceProgram, TellsOfAFileThatItCannotRead)
{
	const LinkTest::FTestFolder Folder;
	std::filesystem::create_directories(Folder.Path + "/hostile");
	std::filesystem::create_directories(Folder.Path + "/valid");
	std::FILE* const File = std::fopen((Folder.Path + "/valid/Odd.zef").c_str(), "w");
	std::fputs("# An odd one.\nto editor\nexpect miracles\n", File);
	std::fclose(File);

	const FOutcome Outcome = Play("editor --list --set " + Folder.Path);

	EXPECT_EQ(Outcome.Status, 2);
	EXPECT_THAT(Outcome.Output, HasSubstr("valid/Odd.zef, line 3: what is expected is one of taken, fault"));
}
