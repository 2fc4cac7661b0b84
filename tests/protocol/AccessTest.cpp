// SPDX-License-Identifier: MIT
// Who may connect, how many, and how often they may ask.
#include "OtherUser.h"
#include "RawPeer.h"
#include "RawZmtp.h"

#include <fstream>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using namespace LinkTest;
using Zef::EFault;
using Zef::EFrame;

TEST(Access, AnEditorOfAnotherUserIsCutOffBeforeItIsHeard)
{
	if (!CanBecomeAnotherUser())
	{
		GTEST_SKIP() << "only root, and not under ThreadSanitizer, can act as another user";
	}
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	// As if somebody had opened folder and socket.
	chmod(Folder.Path.c_str(), 0755);
	chmod((Folder.Path + "/test.sock").c_str(), 0666);
	const int Status = AsAnotherUser(
		[&]
		{
			FZmtpEnd Editor = ConnectTo(Folder.Socket());
			const Zef::FBytes Hello = Zef::EncodeHello({1, 2, "stranger", 16 << 20, 4 << 20});
			if (!Editor.Open("DEALER"))
			{
				return 0;
			}
			Editor.Write(FZmtpEnd::Message({Prefix(EFrame::Hello), Hello}));
			// Greeting and handshake may have come; no Welcome does.
			Zef::FBytes All = Editor.Read(1 << 20);
			const std::string Text(All.begin(), All.end());
			return Text.find("garment application") == std::string::npos ? 0 : 1;
		});
	EXPECT_EQ(Status, 0);
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return !Application.Faults.empty(); }));
	EXPECT_EQ(Application.Faults[0].Code, EFault::UserRefused);
	EXPECT_NE(Application.Faults[0].Message.find("belongs to user 65534"), std::string::npos);
	EXPECT_EQ(Application.Connected, 0);

	FEditor Own(Folder.Socket(), QuickClient());
	EXPECT_TRUE(Until(&Own, &Application, [&] { return Application.Connected == 1; }));
}

TEST(Access, AnApplicationOfAnotherUserHearsNoHello)
{
	if (!CanBecomeAnotherUser())
	{
		GTEST_SKIP() << "only root, and not under ThreadSanitizer, can act as another user";
	}
	const FTestFolder Folder;
	chmod(Folder.Path.c_str(), 0777);
	FOtherUser Application(
		[&]
		{
			const FZmtpListener Listener(Folder.Socket());
			FZmtpEnd Editor = Listener.Accept();
			Editor.Open("ROUTER");
			return Editor.Receive().empty() ? 0 : 1;
		});
	ASSERT_TRUE(Application.WaitForFile(Folder.Path + "/test.sock"));
	// The file seems to be the user's own; the process behind it is not.
	ASSERT_EQ(lchown((Folder.Path + "/test.sock").c_str(), geteuid(), getegid()), 0);
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Faults.empty() && !Editor.Connections.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Code, EFault::UserRefused);
	EXPECT_EQ(Editor.Connections, std::vector<bool>{false});
	EXPECT_EQ(Editor.Client->Status().Reason.Kind, Zef::ELinkReason::ForeignUser);
	EXPECT_EQ(Application.Wait(), 0);
}

TEST(Access, ASocketFileOfAnotherUserIsNotConnectedTo)
{
	if (!CanBecomeAnotherUser())
	{
		GTEST_SKIP() << "only root, and not under ThreadSanitizer, can act as another user";
	}
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	ASSERT_EQ(lchown((Folder.Path + "/test.sock").c_str(), 65534, 65534), 0);
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Faults.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Code, EFault::UserRefused);
	EXPECT_NE(Editor.Faults[0].Message.find("test.sock"), std::string::npos);
	EXPECT_EQ(Application.Connected, 0);
}

TEST(Access, SomethingElseInPlaceOfTheSocketIsNotConnectedTo)
{
	const FTestFolder Folder;
	std::ofstream(Folder.Path + "/test.sock") << "a file";
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Code, EFault::AddressRefused);
	EXPECT_NE(Editor.Faults[0].Message.find("is no socket"), std::string::npos);
	EXPECT_EQ(Editor.Client->Status().Reason.Kind, Zef::ELinkReason::SocketUnsafe);
}

TEST(Access, AnotherUserOnALoopbackPortIsCutOff)
{
	if (!CanBecomeAnotherUser())
	{
		GTEST_SKIP() << "only root, and not under ThreadSanitizer, can act as another user";
	}
	FApplication Application("tcp://127.0.0.1:*");
	const std::string Endpoint = Application.Server->Endpoint();
	FOtherUser Stranger(
		[&]
		{
			FRawEditor Editor(Endpoint);
			Editor.SetPatience(std::chrono::milliseconds(500));
			Editor.Greet();
			return Editor.Answer.empty() ? 0 : 1;
		});
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return !Application.Faults.empty(); }));
	EXPECT_EQ(Application.Faults[0].Code, EFault::UserRefused);
	EXPECT_EQ(Stranger.Wait(), 0);
	EXPECT_EQ(Application.Connected, 0);
}

TEST(Access, ConnectionsBeyondTheLimitAreCut)
{
	const FTestFolder Folder;
	Zef::FServerOptions Options;
	Options.Limits.MaxConnections = 3;
	FApplication Application(Folder.Socket(), Options);
	std::vector<FZmtpEnd> Silent;
	for (int Index = 0; Index < 3; ++Index)
	{
		Silent.push_back(ConnectTo(Folder.Socket()));
		ASSERT_TRUE(Silent.back().Open("DEALER"));
	}
	FZmtpEnd TooMany = ConnectTo(Folder.Socket());
	EXPECT_TRUE(TooMany.IsEndedByOther());
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return !Application.Faults.empty(); }));
	EXPECT_EQ(Application.Faults[0].Code, EFault::TooManyClients);

	Silent.clear();
	FEditor Editor(Folder.Socket(), QuickClient());
	EXPECT_TRUE(Until(&Editor, &Application, [&] { return Application.Connected == 1; }));
}

TEST(Access, AConnectionThatNeverGreetsIsCut)
{
	const FTestFolder Folder;
	Zef::FServerOptions Options;
	Options.GreetingTime = std::chrono::milliseconds(50);
	FApplication Application(Folder.Socket(), Options);
	FZmtpEnd Silent = ConnectTo(Folder.Socket());
	ASSERT_TRUE(Silent.Open("DEALER"));
	EXPECT_TRUE(Silent.IsEndedByOther());

	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Application.Connected == 1; }));
	// One that has greeted stays.
	FZmtpEnd Next = ConnectTo(Folder.Socket());
	ASSERT_TRUE(Next.Open("DEALER"));
	EXPECT_TRUE(Next.IsEndedByOther());
	EXPECT_TRUE(Editor.Client->IsConnected());
}

TEST(Access, ARefusedConnectionIsClosedAndNotListenedTo)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	FZmtpEnd Editor = ConnectTo(Folder.Socket());
	ASSERT_TRUE(Editor.Open("DEALER"));
	Editor.Write(FZmtpEnd::Message({Prefix(EFrame::Item, 1), Zef::EncodeEnable(true).Header}));
	const std::vector<Zef::FBytes> Answer = Editor.Receive();
	ASSERT_EQ(Answer.size(), 2u);
	EXPECT_EQ(Zef::DecodeRefused(Answer[1])->Code, EFault::NotGreeted);
	EXPECT_TRUE(Editor.IsEndedByOther());
	Application.Poll();
	EXPECT_EQ(Application.Faults.size(), 1u);
}

TEST(Access, RequestsThatComeTooFastEndTheConnectionAndNoOther)
{
	const FTestFolder Folder;
	Zef::FServerOptions Options;
	Options.Limits.MaxRequestsPerSecond = 10;
	FApplication Application(Folder.Socket(), Options);
	FEditor Calm(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Calm, &Application, [&] { return Application.Connected == 1; }));
	FRawEditor Flood(Folder.Socket());
	Flood.Greet();
	for (std::uint64_t Item = 1; Item <= 1000; ++Item)
	{
		Flood.SendItem(Zef::EncodeEnable(true), Item);
	}
	const std::vector<Zef::FBytes> Refused = Flood.ReceiveFrame(EFrame::Refused);
	ASSERT_EQ(Refused.size(), 2u);
	EXPECT_EQ(Zef::DecodeRefused(Refused[1])->Code, EFault::RateExceeded);
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return Application.Gone == 1; }));
	EXPECT_GE(Application.Enables.size(), 40u);
	EXPECT_LT(Application.Enables.size(), 1000u);

	Calm.Client->SendAvailability();
	EXPECT_TRUE(Until(&Calm, &Application, [&] { return Calm.Availabilities.size() == 1; }));
	EXPECT_EQ(Calm.Connections, std::vector<bool>{true});
}

TEST(Access, RefusedMessagesInFloodsEndTheConnection)
{
	const FTestFolder Folder;
	Zef::FServerOptions Options;
	Options.Limits.MaxFaultsPerSecond = 5;
	FApplication Application(Folder.Socket(), Options);
	FRawEditor Flood(Folder.Socket());
	Flood.Greet();
	for (int Count = 0; Count < 500; ++Count)
	{
		Flood.Send({Zef::FBytes(24, 'x'), {}});
	}
	ASSERT_EQ(Flood.ReceiveFrame(EFrame::Refused).size(), 2u);
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return Application.Gone == 1; }));
	EXPECT_EQ(Application.Faults.back().Code, EFault::RateExceeded);
	EXPECT_LE(Application.Faults.size(), 40u);
}

TEST(Access, CreditsThatSayNothingNewInFloodsEndTheConnection)
{
	const FTestFolder Folder;
	Zef::FServerOptions Options;
	Options.Limits.MaxFaultsPerSecond = 5;
	FApplication Application(Folder.Socket(), Options);
	FRawEditor Flood(Folder.Socket());
	Flood.Greet();
	for (int Count = 0; Count < 500; ++Count)
	{
		Flood.Send({Prefix(EFrame::Credit, 0, 0)});
	}
	const std::vector<Zef::FBytes> Refused = Flood.ReceiveFrame(EFrame::Refused);
	ASSERT_EQ(Refused.size(), 2u);
	EXPECT_EQ(Zef::DecodeRefused(Refused[1])->Code, EFault::RateExceeded);
}

TEST(Access, AnyFreeNameLiesInTheFolderOfTheChannelsAndLeavesNothing)
{
	const FTestFolder Folder;
	setenv("XDG_RUNTIME_DIR", Folder.Path.c_str(), 1);
	const std::filesystem::path Links = Folder.Path + "/zef-tandem";
	{
		FApplication First("ipc://*");
		FApplication Second("ipc://*");
		ASSERT_TRUE(First.Server && Second.Server) << ToString(Second.OpenFault);
		EXPECT_NE(First.Server->Endpoint(), Second.Server->Endpoint());
		EXPECT_EQ(First.Server->Endpoint().find("ipc://" + Links.string() + "/free-"), 0u) << First.Server->Endpoint();
		struct stat Status
		{
		};
		ASSERT_EQ(stat(Links.c_str(), &Status), 0);
		EXPECT_EQ(Status.st_mode & 0777, 0700u);
		FEditor Editor(First.Server->Endpoint(), QuickClient());
		EXPECT_TRUE(Until(&Editor, &First, [&] { return First.Connected == 1; }));
	}
	EXPECT_TRUE(std::filesystem::is_empty(Links));

	// What a killed process left goes with the next one that asks for a name.
	const pid_t Child = fork();
	if (Child == 0)
	{
		FApplication Killed("ipc://*");
		kill(getpid(), SIGKILL);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	ASSERT_FALSE(std::filesystem::is_empty(Links));
	{
		FApplication Next("ipc://*");
	}
	EXPECT_TRUE(std::filesystem::is_empty(Links));
	unsetenv("XDG_RUNTIME_DIR");
}
} // namespace
