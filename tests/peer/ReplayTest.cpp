// SPDX-License-Identifier: MIT
#include <algorithm>
#include <atomic>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Zef/Peer/Replay.h"
#include "Zef/RecordSession.h"
#include "protocol/LinkFixture.h"

using namespace Zef;
using namespace Zef::Peer;
using LinkTest::FApplication;
using LinkTest::FEditor;
using LinkTest::FTestFolder;
using LinkTest::QuickClient;

namespace
{

/** Runs something that waits for editors on a thread of its own. */
class FBeside
{
public:
	explicit FBeside(std::function<void()> Turn)
		: Thread(
			  [this, Turn = std::move(Turn)]
			  {
				  while (!bOver)
				  {
					  Turn();
				  }
			  })
	{
	}
	~FBeside()
	{
		bOver = true;
		Thread.join();
	}
	FBeside(const FBeside&) = delete;
	FBeside& operator=(const FBeside&) = delete;

private:
	std::atomic<bool> bOver{false};
	std::thread Thread;
};

class ReplayTest : public testing::Test
{
protected:
	/** Records what an application sends: two objects and all animations. */
	void Record(const std::string& Endpoint, const std::string& File)
	{
		FRecordSessionOptions Session;
		Session.Endpoint = Endpoint;
		Session.File = File;
		Session.bAnimations = true;
		const auto Summary = RecordSession(Session);
		ASSERT_TRUE(Summary) << ToString(Summary.Fault());
		EXPECT_FALSE(Summary->CutShort) << Summary->CutShort.What;
		EXPECT_TRUE(Summary->Faults.empty());
	}

	void RecordSample(FVersionRange Versions = {})
	{
		FServerOptions Options;
		Options.Versions = Versions;
		FApplication Application(Folder.Socket(), Options);
		Application.OnUpdate = [&](FClientId Client)
		{
			Application.Server->SendUpdate(Client,
				{{EObjectType::Avatar, LinkTest::SampleMesh()}, {EObjectType::Garment, LinkTest::StripMesh(60'000)}});
		};
		Application.OnAnimation = [&](FClientId Client, const FObjectTypeInfo& Info)
		{
			if (Info.AnimationKind == EAnimationKind::JointAnimation)
			{
				Application.Server->SendJointAnimation(Client, Info.ObjectType, LinkTest::SampleAnimation());
				return;
			}
			Application.Server->SendMeshSequence(Client, Info.ObjectType, LinkTest::SampleMesh(),
				[](std::uint32_t Index) { return Index == 3 ? nullptr : LinkTest::SampleFrame(1, Index); });
		};
		const FBeside Serving([&] { Application.Poll(std::chrono::milliseconds(5)); });
		Record(Folder.Socket(), First);
	}

	std::unique_ptr<FReplay> Open(const std::string& File)
	{
		auto Recording = ReadRecording(File);
		EXPECT_TRUE(Recording) << ToString(Recording.Fault());
		FReplaySettings Settings;
		Settings.Endpoint = Folder.Socket("replay");
		Settings.Log = [this](const std::string& Line) { Lines.push_back(Line); };
		auto Opened = FReplay::Open(std::move(*Recording), std::move(Settings));
		EXPECT_TRUE(Opened) << ToString(Opened.Fault());
		return std::move(*Opened);
	}

	bool Until(FReplay& Replay, FEditor& Editor, const std::function<bool()>& Done)
	{
		const auto End = std::chrono::steady_clock::now() + LinkTest::Patience;
		while (!Done() && std::chrono::steady_clock::now() < End)
		{
			Replay.Serve(std::chrono::milliseconds(1));
			Editor.Poll(std::chrono::milliseconds(1));
		}
		return Done();
	}

	FTestFolder Folder;
	const std::string First = Folder.Path + "/first.ztlr";
	const std::string Second = Folder.Path + "/second.ztlr";
	std::vector<std::string> Lines;
};

TEST_F(ReplayTest, ServesTheSameBytesAgain)
{
	RecordSample();
	{
		const std::unique_ptr<FReplay> Replay = Open(First);
		const FBeside Serving([&] { Replay->Serve(std::chrono::milliseconds(5)); });
		Record(Replay->Endpoint(), Second);
	}
	const auto One = ReadRecording(First);
	const auto Two = ReadRecording(Second);
	ASSERT_TRUE(One && Two);
	EXPECT_EQ(Two->Program, One->Program + " (recorded)");
	EXPECT_EQ(Two->ProtocolVersion, One->ProtocolVersion);
	ASSERT_EQ(Two->Requests.size(), One->Requests.size());
	for (std::size_t Index = 0; Index < One->Requests.size(); ++Index)
	{
		const FRecordedRequest& Before = One->Requests[Index];
		const FRecordedRequest& After = Two->Requests[Index];
		EXPECT_TRUE(std::ranges::equal(Before.Header, After.Header)) << Index;
		ASSERT_EQ(Before.Messages.size(), After.Messages.size()) << Index;
		for (std::size_t Message = 0; Message < Before.Messages.size(); ++Message)
		{
			EXPECT_TRUE(std::ranges::equal(Before.Messages[Message].Parts, After.Messages[Message].Parts,
				[](FByteView Left, FByteView Right) { return std::ranges::equal(Left, Right); }))
				<< Index << ", message " << Message;
		}
	}
}

TEST_F(ReplayTest, AnswersARequestAsOftenAsItIsMade)
{
	RecordSample();
	const std::unique_ptr<FReplay> Replay = Open(First);
	FEditor Editor(Replay->Endpoint(), QuickClient());
	for (std::size_t Update = 1; Update <= 3; ++Update)
	{
		Editor.Client->SendUpdate({});
		ASSERT_TRUE(Until(*Replay, Editor, [&] { return Editor.Meshes.size() == 2 * Update; }));
	}
	EXPECT_TRUE(Editor.Meshes[4] == *LinkTest::SampleMesh());
	EXPECT_TRUE(Editor.Meshes[5] == *LinkTest::StripMesh(60'000));
	EXPECT_EQ(Editor.Announcements.size(), 3u);
	Editor.Client->SendAnimation({EObjectType::Avatar, EAnimationKind::JointAnimation}, {});
	ASSERT_TRUE(Until(*Replay, Editor, [&] { return Editor.Animations.size() == 1; }));
	EXPECT_TRUE(Editor.Animations[0] == *LinkTest::SampleAnimation());
	EXPECT_TRUE(Editor.Faults.empty());
}

TEST_F(ReplayTest, SaysWhatWasNotRecorded)
{
	FApplication Application(Folder.Socket());
	Application.OnUpdate = [&](FClientId Client) {
		Application.Server->SendUpdate(Client, {{EObjectType::Garment, LinkTest::SampleMesh()}});
	};
	{
		FClientOptions Options = QuickClient();
		Options.RecordFile = First;
		FEditor Editor(Folder.Socket(), Options);
		Editor.Client->SendUpdate({});
		ASSERT_TRUE(LinkTest::Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 1; }));
	}
	const std::unique_ptr<FReplay> Replay = Open(First);
	FEditor Editor(Replay->Endpoint(), QuickClient());
	Editor.Client->SendAnimation({EObjectType::Avatar, EAnimationKind::JointAnimation}, {});
	ASSERT_TRUE(Until(*Replay, Editor, [&] { return !Editor.FaultsOfPeer.empty(); }));
	EXPECT_EQ(Editor.FaultsOfPeer[0].Code, EFault::PeerFailed);
	EXPECT_EQ(Editor.FaultsOfPeer[0].Message,
		"The recording holds no answer to a request for the joint animation of the avatar.");
}

TEST_F(ReplayTest, SpeaksTheVersionThatWasRecordedAndNoOther)
{
	RecordSample({1, 1});
	const std::unique_ptr<FReplay> Replay = Open(First);
	FEditor Editor(Replay->Endpoint(), QuickClient());
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(*Replay, Editor, [&] { return Editor.Meshes.size() == 2; }));
	EXPECT_EQ(Editor.Client->Status().Version, 1);
	EXPECT_TRUE(Editor.Announcements.empty());

	FClientOptions Newer = QuickClient();
	Newer.Versions = {2, 2};
	FEditor Other(Replay->Endpoint(), Newer);
	ASSERT_TRUE(Until(*Replay, Other, [&] { return !Other.Faults.empty(); }));
	EXPECT_EQ(Other.Faults[0].Code, EFault::VersionUnknown);
}

TEST_F(ReplayTest, BringsAnApplicationsFailureToWhoeverLooksIntoIt)
{
	{
		FApplication Application(Folder.Socket());
		auto Bad = LinkTest::SampleMesh();
		Bad->Surfaces[0].Positions[1].X = std::numeric_limits<float>::infinity();
		Application.OnUpdate = [&](FClientId Client)
		{ Application.Server->SendSurfaceMesh(Client, EObjectType::Avatar, Bad); };
		FClientOptions Options = QuickClient();
		Options.RecordFile = First;
		FEditor User(Folder.Socket(), Options);
		User.Client->SendUpdate({});
		ASSERT_TRUE(LinkTest::Until(&User, &Application, [&] { return User.Faults.size() == 1; }));
	}
	const std::unique_ptr<FReplay> Replay = Open(First);
	FEditor Developer(Replay->Endpoint(), QuickClient());
	Developer.Client->SendUpdate({});
	ASSERT_TRUE(Until(*Replay, Developer, [&] { return Developer.Faults.size() == 1; }));
	EXPECT_EQ(Developer.Faults[0].Code, EFault::NotFinite);
	EXPECT_EQ(Developer.Faults[0].Path, "/Surfaces/0/Positions/1/X");
}

} // namespace
