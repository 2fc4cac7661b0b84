// SPDX-License-Identifier: MIT
// What may happen to a connection at any moment. Each time the editor is told once that the link is gone, and the next
// update works.
#include "RawPeer.h"
#include "RawZmtp.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using namespace LinkTest;
using Zef::EFault;
using Zef::EFrame;
using Zef::EObjectType;

/** Everything that an application says in an update, stage by stage, as the bytes of the connection. */
struct FStage
{
	const char* Name;
	Zef::FBytes Bytes;
};

std::vector<FStage> Stages()
{
	const auto Message = [](EFrame Frame, const Zef::FBytes& Body, std::uint64_t Item = 0, std::uint64_t Offset = 0) {
		return FZmtpEnd::Message({Prefix(Frame, Item, Offset), Body});
	};
	const Zef::FEncodedItem Avatar = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
	const Zef::FEncodedItem Garment = Zef::EncodeSurfaceMesh(EObjectType::Garment, SampleMesh());
	const Zef::FBytes Arrays = PayloadOf(Avatar);
	const Zef::FBytes First(Arrays.begin(), Arrays.begin() + 300);
	const Zef::FBytes Second(Arrays.begin() + 300, Arrays.end());
	const std::uint64_t Bytes = Avatar.Header.size() + Avatar.PayloadBytes;
	const auto Begin = Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh());
	const auto Frame = Zef::EncodeSequenceFrame(0, SampleFrame(1, 0));
	return {
		{"TheGreetingOfZeroMQ", FZmtpEnd::Opening("ROUTER")},
		{"Welcome", Message(EFrame::Welcome, Zef::EncodeWelcome({2, "raw application", 16 << 20, 4 << 20}))},
		{"TheAnnouncement",
			Message(EFrame::Item,
				Zef::EncodeUpdateAnnouncement({{{EObjectType::Avatar, Bytes}, {EObjectType::Garment, Bytes}}}).Header,
				1)},
		{"TheFirstHeader", Message(EFrame::Item, Avatar.Header, 2)},
		{"TheFirstPiece", Message(EFrame::Piece, First, 2, 0)},
		{"TheLastPiece", Message(EFrame::Piece, Second, 2, 300)},
		{"TheSecondHeader", Message(EFrame::Item, Garment.Header, 3)},
		{"TheSecondObject", Message(EFrame::Piece, Arrays, 3, 0)},
		{"TheHeaderOfASequence", Message(EFrame::Item, Begin.Header, 4)},
		{"TheMeshOfASequence", Message(EFrame::Piece, PayloadOf(Begin), 4, 0)},
		{"TheHeaderOfAFrame", Message(EFrame::Item, Frame.Header, 5)},
		{"TheArraysOfAFrame", Message(EFrame::Piece, PayloadOf(Frame), 5, 0)},
	};
}

struct FDeath
{
	std::size_t Stage;
	bool bInTheMiddle;
};

/** Serves one update from a good application, and checks that it comes. */
void ExpectTheNextUpdateWorks(const FTestFolder& Folder, FEditor& Editor)
{
	Editor.Meshes.clear();
	FApplication Next(Folder.Socket());
	ASSERT_TRUE(Next.Server) << ToString(Next.OpenFault);
	Next.OnUpdate = [&](Zef::FClientId Client) {
		Next.Server->SendUpdate(Client, {{EObjectType::Garment, SampleMesh()}});
	};
	ASSERT_TRUE(Until(&Editor, &Next, [&] { return Editor.Client->IsConnected(); }));
	EXPECT_TRUE(Editor.Client->SendUpdate({}));
	ASSERT_TRUE(Until(&Editor, &Next, [&] { return Editor.Meshes.size() == 1; }));
	EXPECT_TRUE(Editor.Meshes[0] == *SampleMesh());
	EXPECT_TRUE(Editor.Connections.back());
	EXPECT_EQ(std::ranges::count(Editor.Connections, false), 1);
}

class Death : public testing::TestWithParam<FDeath>
{
};

TEST_P(Death, OfTheApplicationIsToldOnceAndTheNextUpdateWorks)
{
	const FTestFolder Folder;
	const std::vector<FStage> All = Stages();
	auto Listener = std::make_unique<FZmtpListener>(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Client->SendUpdate({}); // held until it is known whether somebody answers
	FZmtpEnd Application = Listener->Accept();
	// Nobody serves after the death until the next application does.
	Listener.reset();
	for (std::size_t Stage = 0; Stage <= GetParam().Stage; ++Stage)
	{
		const Zef::FBytes& Bytes = All[Stage].Bytes;
		const bool bHalf = Stage == GetParam().Stage && GetParam().bInTheMiddle;
		ASSERT_TRUE(Application.Write(bHalf ? Zef::FBytes(Bytes.begin(), Bytes.begin() + Bytes.size() / 2) : Bytes));
		if (Stage == 0 && !bHalf)
		{
			// Nothing is said before both ends have opened.
			ASSERT_EQ(Application.Read(64).size(), 64u);
			ASSERT_EQ(Application.Receive().size(), 2u) << "Hello";
		}
	}
	Application.Close();
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return std::ranges::count(Editor.Connections, false) > 0; }));

	// What had come whole stays; what had not leaves no trace.
	const std::size_t Whole = GetParam().bInTheMiddle ? GetParam().Stage : GetParam().Stage + 1;
	EXPECT_EQ(Editor.Meshes.size(), Whole > 7 ? 2u : Whole > 5 ? 1u : 0u);
	EXPECT_TRUE(Editor.Frames.empty());
	ExpectTheNextUpdateWorks(Folder, Editor);
}

std::vector<FDeath> Deaths()
{
	std::vector<FDeath> All;
	for (std::size_t Stage = 0; Stage < Stages().size(); ++Stage)
	{
		All.push_back({Stage, true});
		All.push_back({Stage, false});
	}
	return All;
}

INSTANTIATE_TEST_SUITE_P(At, Death, testing::ValuesIn(Deaths()),
	[](const testing::TestParamInfo<FDeath>& Info)
	{ return std::string(Info.param.bInTheMiddle ? "Inside" : "After") + Stages()[Info.param.Stage].Name; });

TEST(Survival, OfAnApplicationThatIsKilledWhileItSendsManyWindows)
{
	const FTestFolder Folder;
	const pid_t Child = fork();
	if (Child == 0)
	{
		FApplication Application(Folder.Socket());
		Application.OnUpdate = [&](Zef::FClientId Client)
		{
			const auto Mesh = StripMesh(1'500'000);
			Application.Server->SendUpdate(Client, {{EObjectType::Garment, Mesh}});
			const std::uint64_t All = Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh).PayloadBytes;
			while (Application.Server->QueuedBytes(Client) == 0 || Application.Server->QueuedBytes(Client) == All)
			{
				// Waits for the first piece to be out.
			}
			kill(getpid(), SIGKILL);
		};
		while (true)
		{
			Application.Poll(std::chrono::milliseconds(100));
		}
	}
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Client->IsConnected(); }));
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	waitpid(Child, nullptr, 0);
	EXPECT_TRUE(Editor.Meshes.empty());
	EXPECT_EQ(Editor.Client->Progress().AnnouncedObjects, 0u);
	EXPECT_NE(Editor.Reasons[1].find("without a word"), std::string::npos) << Editor.Reasons[1];
	ExpectTheNextUpdateWorks(Folder, Editor);
}

TEST(Survival, OfAnApplicationThatIsStoppedAndNoticedByItsHeartbeat)
{
	const FTestFolder Folder;
	const pid_t Child = fork();
	if (Child == 0)
	{
		FApplication Application(Folder.Socket());
		while (true)
		{
			Application.Poll(std::chrono::milliseconds(100));
		}
	}
	Zef::FClientOptions Options = QuickClient();
	Options.Heartbeat = std::chrono::milliseconds(20);
	auto Editor = std::make_unique<FEditor>(Folder.Socket(), Options);
	ASSERT_TRUE(Until(Editor.get(), nullptr, [&] { return Editor->Client->IsConnected(); }));
	kill(Child, SIGSTOP);
	Editor->Client->SendUpdate({});
	ASSERT_TRUE(Until(Editor.get(), nullptr, [&] { return Editor->Connections.size() == 2; }));
	EXPECT_EQ(Editor->Connections, (std::vector<bool>{true, false}));
	kill(Child, SIGKILL);
	waitpid(Child, nullptr, 0);
	ExpectTheNextUpdateWorks(Folder, *Editor);
}

TEST(Survival, OfAnApplicationThatStopsInTheMiddleOfAMessage)
{
	const FTestFolder Folder;
	auto Listener = std::make_unique<FZmtpListener>(Folder.Socket());
	Zef::FClientOptions Options = QuickClient();
	Options.StallTime = std::chrono::milliseconds(30);
	Options.Heartbeat = std::chrono::milliseconds(50);
	FEditor Editor(Folder.Socket(), Options);
	FZmtpEnd Application = Listener->Accept();
	Listener.reset();
	const std::vector<FStage> All = Stages();
	ASSERT_TRUE(Application.Write(All[0].Bytes));
	ASSERT_EQ(Application.Read(64).size(), 64u);
	ASSERT_EQ(Application.Receive().size(), 2u);
	for (std::size_t Stage = 1; Stage < 4; ++Stage)
	{
		ASSERT_TRUE(Application.Write(All[Stage].Bytes));
	}
	const Zef::FBytes& Piece = All[4].Bytes;
	ASSERT_TRUE(Application.Write(Zef::FBytes(Piece.begin(), Piece.begin() + 100)));
	// First the object is given up, then, as no heartbeat is answered, the connection.
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Code, EFault::Stalled);
	EXPECT_EQ(Editor.Client->Progress().ReceivedObjects, 1u);
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	EXPECT_EQ(Editor.Faults.size(), 1u);
	ExpectTheNextUpdateWorks(Folder, Editor);
}

TEST(Survival, OfAnApplicationThatNeverAnswersTheGreeting)
{
	const FTestFolder Folder;
	auto Listener = std::make_unique<FZmtpListener>(Folder.Socket());
	Zef::FClientOptions Options = QuickClient();
	Options.Heartbeat = std::chrono::milliseconds(50);
	FEditor Editor(Folder.Socket(), Options);
	Editor.Client->SendUpdate({});
	FZmtpEnd Application = Listener->Accept();
	Listener.reset();
	// Not even ZeroMQ's own greeting.
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Connections.empty(); }));
	EXPECT_EQ(Editor.Connections, std::vector<bool>{false});
	Application.Close();
	ExpectTheNextUpdateWorks(Folder, Editor);
}

TEST(Survival, OfShortWritesAndReads)
{
	const FTestFolder Folder;
	const FZmtpListener Listener(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	FZmtpEnd Application = Listener.Accept();
	const std::vector<FStage> All = Stages();
	ASSERT_TRUE(Application.Write(All[0].Bytes, 1));
	ASSERT_EQ(Application.Read(64).size(), 64u);
	ASSERT_EQ(Application.Receive().size(), 2u);
	for (std::size_t Stage = 1; Stage < 8; ++Stage)
	{
		// One byte, three, seven at a time.
		ASSERT_TRUE(Application.Write(All[Stage].Bytes, Stage % 3 == 0 ? 1 : Stage % 3 == 1 ? 3 : 7));
	}
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Meshes.size() == 2; }));
	EXPECT_TRUE(Editor.Meshes[0] == *SampleMesh());
	EXPECT_TRUE(Editor.Meshes[1] == *SampleMesh());
	EXPECT_TRUE(Editor.Faults.empty());
	EXPECT_EQ(Editor.Connections, std::vector<bool>{true});
}

TEST(Survival, OfAnEditorThatReadsSlowlyThroughASmallBuffer)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	const auto Mesh = StripMesh(20'000);
	Application.OnUpdate = [&](Zef::FClientId Client)
	{ Application.Server->SendSurfaceMesh(Client, EObjectType::Garment, Mesh); };
	FZmtpEnd Editor = ConnectTo(Folder.Socket());
	const int Small = 4096;
	setsockopt(Editor.Descriptor(), SOL_SOCKET, SO_RCVBUF, &Small, sizeof(Small));
	ASSERT_TRUE(Editor.Open("DEALER"));
	Editor.Write(FZmtpEnd::Message({Prefix(EFrame::Hello), Zef::EncodeHello({1, 1, "slow", 16 << 20, 1 << 20})}), 1);
	ASSERT_EQ(Editor.Receive().size(), 2u);
	Editor.Write(FZmtpEnd::Message({Prefix(EFrame::Item, 1), Zef::EncodeUpdateRequest({}).Header}), 1);
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return Application.Updates.size() == 1; }));
	const Zef::FBytes Expected = PayloadOf(Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh));
	Zef::FBytes Payload;
	while (Payload.size() < Expected.size())
	{
		const std::vector<Zef::FBytes> Parts = Editor.Receive();
		ASSERT_FALSE(Parts.empty());
		Zef::FLinkFault Fault;
		if (Zef::DecodePrefix(Parts[0], Fault)->Frame == EFrame::Piece)
		{
			Payload.insert(Payload.end(), Parts[1].begin(), Parts[1].end());
		}
	}
	EXPECT_TRUE(Payload == Expected);
}

TEST(Survival, OfAnApplicationThatFloods)
{
	const FTestFolder Folder;
	auto Application = std::make_unique<FRawApplication>(Folder.Socket());
	Zef::FClientOptions Options = QuickClient();
	Options.Limits.MaxFaultsPerSecond = 5;
	FEditor Editor(Folder.Socket(), Options);
	Application->Welcome();
	for (int Count = 0; Count < 5000; ++Count)
	{
		Application->Send({Zef::FBytes(24, 'x'), {}});
	}
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	Application.reset();
	EXPECT_EQ(Editor.Faults.back().Code, EFault::RateExceeded);
	EXPECT_LE(Editor.Faults.size(), 60u);
	EXPECT_EQ(Editor.Client->Status().Reason.Kind, Zef::ELinkReason::PeerMisbehaved);
	ExpectTheNextUpdateWorks(Folder, Editor);
}

TEST(Survival, OfAnApplicationThatOverrunsTheWindow)
{
	const FTestFolder Folder;
	auto Application = std::make_unique<FRawApplication>(Folder.Socket());
	Zef::FClientOptions Options = QuickClient();
	Options.Limits.WindowBytes = 4096;
	// What waits for the program is more than this soon, and then no credit is given.
	Options.Limits.MaxItemBytes = 4000;
	FEditor Editor(Folder.Socket(), Options);
	Application->Welcome();
	for (std::uint64_t Number = 1; Number <= 500; ++Number)
	{
		Application->SendItem(Zef::EncodeAvailability({}), Number);
	}
	// Nothing is polled before the connection is gone: polling gives credit.
	Application->ReceiveFrame(EFrame::Hello);
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	Application.reset();
	EXPECT_EQ(Editor.Connections, (std::vector<bool>{true, false}));
	ASSERT_FALSE(Editor.Faults.empty()) << Editor.Reasons[1];
	EXPECT_EQ(Editor.Faults.back().Code, EFault::WindowOverrun);
	ExpectTheNextUpdateWorks(Folder, Editor);
}
} // namespace
