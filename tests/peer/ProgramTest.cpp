// SPDX-License-Identifier: MIT
#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using testing::HasSubstr;

namespace
{

struct FOutcome
{
	int Status = -1;
	std::string Output; // both streams
};

FOutcome RunPeer(const std::string& Arguments)
{
	FOutcome Outcome;
	const std::string Line = std::string("\"") + ZEF_PEER_PROGRAM + "\" " + Arguments + " 2>&1";
	FILE* Pipe = popen(Line.c_str(), "r");
	std::array<char, 4096> Piece;
	while (const std::size_t Count = std::fread(Piece.data(), 1, Piece.size(), Pipe))
	{
		Outcome.Output.append(Piece.data(), Count);
	}
	const int Status = pclose(Pipe);
	Outcome.Status = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	return Outcome;
}

} // namespace

TEST(PeerProgram, TellsAllItsCommandsAndOptions)
{
	const FOutcome Help = RunPeer("--help-all");

	EXPECT_EQ(Help.Status, 0);
	for (const char* Name : {"serve", "check", "info", "replay", "keys", "--keys", "--garment", "--avatar", "--outfit",
			 "--prop", "--sample", "--channel", "--endpoint", "--save-dir", "--ready-file", "--exit-after", "--once",
			 "--quiet", "--as", "conformance", "--set", "--only", "--with", "--patience", "--exact-words", "--list",
			 "faults", "--markdown"})
	{
		EXPECT_THAT(Help.Output, HasSubstr(Name));
	}
}

TEST(PeerProgram, RefusesToRunWithoutACommand)
{
	const FOutcome Outcome = RunPeer("");

	EXPECT_NE(Outcome.Status, 0);
	EXPECT_THAT(Outcome.Output, HasSubstr("subcommand"));
}

TEST(PeerProgram, SaysWhatTheSampleHolds)
{
	const FOutcome Info = RunPeer("info");

	EXPECT_EQ(Info.Status, 0);
	for (const char* Text : {"project \"sample\"", "Dress/Bodice Front", "Capelet/Panel", "translucent", "72 joints",
			 "16 bits", "joint animation: 60 frames", "substance"})
	{
		EXPECT_THAT(Info.Output, HasSubstr(Text));
	}
}

TEST(PeerProgram, NamesTheFileThatItCannotServe)
{
	const FOutcome Outcome = RunPeer("serve --garment /nowhere/shirt.glb");

	EXPECT_NE(Outcome.Status, 0);
	EXPECT_THAT(Outcome.Output, HasSubstr("/nowhere/shirt.glb"));
}

TEST(PeerProgram, SaysWhyAFileIsNoRecording)
{
	const FOutcome Outcome = RunPeer("replay /nowhere/case.ztlr");

	EXPECT_EQ(Outcome.Status, 1);
	EXPECT_THAT(Outcome.Output, HasSubstr("BadRecording"));
	EXPECT_THAT(Outcome.Output, HasSubstr("/nowhere/case.ztlr"));
}

TEST(PeerProgram, MakesAPairOfKeysOnceAndServesOthersWithThemAlone)
{
	const std::string Name = testing::TempDir() + "zef-peer-keys-" + std::to_string(getpid());
	const FOutcome Made = RunPeer("keys " + Name);
	EXPECT_EQ(Made.Status, 0);
	EXPECT_THAT(Made.Output, HasSubstr(Name + ".editor.keys"));
	const FOutcome Again = RunPeer("keys " + Name);
	EXPECT_EQ(Again.Status, 1);
	EXPECT_THAT(Again.Output, HasSubstr("there already"));

	const FOutcome Wrong = RunPeer("serve --endpoint tcp://0.0.0.0:* --keys " + Name + ".editor.keys");
	EXPECT_EQ(Wrong.Status, 1);
	EXPECT_THAT(Wrong.Output, HasSubstr("needs the file of the application"));
	std::remove((Name + ".application.keys").c_str());
	std::remove((Name + ".editor.keys").c_str());
}

TEST(PeerProgram, RefusesAnEndpointThatIsNotLocal)
{
	const FOutcome Outcome = RunPeer("serve --endpoint tcp://0.0.0.0:5999");

	EXPECT_EQ(Outcome.Status, 1);
	EXPECT_THAT(Outcome.Output, HasSubstr("AddressRefused"));
}

namespace
{

/** A serving peer whose output comes through a pipe. */
class FServingPeer
{
public:
	explicit FServingPeer(const std::string& ReadyFile)
	{
		int Ends[2];
		EXPECT_EQ(pipe(Ends), 0);
		Process = fork();
		if (Process == 0)
		{
			dup2(Ends[1], STDOUT_FILENO);
			close(Ends[0]);
			close(Ends[1]);
			execl(ZEF_PEER_PROGRAM, ZEF_PEER_PROGRAM, "serve", "--endpoint", "tcp://127.0.0.1:*", "--ready-file",
				ReadyFile.c_str(), nullptr);
			_exit(127);
		}
		close(Ends[1]);
		Output = fdopen(Ends[0], "r");
	}
	~FServingPeer() { std::fclose(Output); }
	FServingPeer(const FServingPeer&) = delete;
	FServingPeer& operator=(const FServingPeer&) = delete;

	/** The next line, empty at the end. */
	std::string ReadLine()
	{
		std::array<char, 512> Line{};
		return std::fgets(Line.data(), static_cast<int>(Line.size()), Output) ? Line.data() : "";
	}

	/** Exit status after a signal, -1 when it did not exit by itself. */
	int End(int Signal)
	{
		kill(Process, Signal);
		int Status = 0;
		waitpid(Process, &Status, 0);
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	}

private:
	pid_t Process = -1;
	FILE* Output = nullptr;
};

} // namespace

TEST(PeerProgram, EndsCleanlyWhenItIsInterrupted)
{
	for (const int Signal : {SIGINT, SIGTERM})
	{
		const std::string ReadyFile = testing::TempDir() + "zef-peer-ready-" + std::to_string(getpid());
		FServingPeer Peer(ReadyFile);

		EXPECT_THAT(Peer.ReadLine(), HasSubstr("serving project \"sample\", 4 objects, on tcp://127.0.0.1:"));
		EXPECT_EQ(Peer.End(Signal), 0) << "signal " << Signal;
		EXPECT_THAT(Peer.ReadLine(), HasSubstr("bye"));

		std::remove(ReadyFile.c_str());
	}
}

TEST(PeerProgram, WritesTheEndpointIntoTheReadyFileBeforeItServes)
{
	const std::string ReadyFile = testing::TempDir() + "zef-peer-endpoint-" + std::to_string(getpid());
	FServingPeer Peer(ReadyFile);
	const std::string Serving = Peer.ReadLine();
	EXPECT_EQ(Peer.End(SIGTERM), 0);

	std::ifstream File(ReadyFile);
	std::string Endpoint;
	std::getline(File, Endpoint);
	EXPECT_THAT(Endpoint, testing::StartsWith("tcp://127.0.0.1:"));
	EXPECT_THAT(Serving, HasSubstr(Endpoint));

	std::remove(ReadyFile.c_str());
}
