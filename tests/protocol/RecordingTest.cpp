// SPDX-License-Identifier: MIT
#include "RawPeer.h"
#include "Zef/Recording.h"
#include "Zef/RecordSession.h"

#include <csignal>
#include <fstream>
#include <sstream>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>

namespace
{
using namespace LinkTest;
using Zef::EFault;
using Zef::EFrame;
using Zef::EItem;
using Zef::EObjectType;

std::string BytesOf(const std::string& Path)
{
	std::stringstream Text;
	Text << std::ifstream(Path, std::ios::binary).rdbuf();
	return Text.str();
}

/** An application that sends two objects, and an editor that records. */
class Recording : public testing::Test
{
protected:
	Recording()
	{
		Application.OnUpdate = [this](Zef::FClientId Client)
		{
			Application.Server->SendUpdate(
				Client, {{EObjectType::Avatar, SampleMesh()}, {EObjectType::Garment, StripMesh(40'000)}});
		};
	}

	Zef::FClientOptions Options() const
	{
		Zef::FClientOptions Options = QuickClient();
		Options.RecordFile = File;
		return Options;
	}

	/** Records flags and an update, and gives the recording. */
	void Record()
	{
		const std::string Before = BytesOf(File);
		FEditor Editor(Folder.Socket(), Options());
		ASSERT_TRUE(Editor.Client) << ToString(Editor.OpenFault);
		Editor.Client->SendAvailability();
		ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Availabilities.size() == 1; }));
		Editor.Client->SendUpdate({true, false});
		ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 2; }));
		EXPECT_EQ(BytesOf(File), Before) << "it is put in place when it is whole";
		const Zef::FLinkFault Fault = Editor.Client->FinishRecording();
		EXPECT_FALSE(Fault) << ToString(Fault);
	}

	FTestFolder Folder;
	const std::string File = Folder.Path + "/case.ztlr";
	FApplication Application{Folder.Socket()};
};

TEST_F(Recording, KeepsEveryMessageOfTheApplicationUnderItsRequest)
{
	Record();
	struct stat Status
	{
	};
	ASSERT_EQ(stat(File.c_str(), &Status), 0);
	EXPECT_EQ(Status.st_mode & 0777, 0600u);
	EXPECT_FALSE(std::filesystem::exists(File + ".part"));

	const auto Read = Zef::ReadRecording(File);
	ASSERT_TRUE(Read) << ToString(Read.Fault());
	EXPECT_EQ(Read->ProtocolVersion, 2);
	EXPECT_EQ(Read->Program, "garment application");
	ASSERT_EQ(Read->Requests.size(), 2u);
	EXPECT_EQ(Read->Requests[0].Item, EItem::RequestAvailability);
	ASSERT_EQ(Read->Requests[0].Messages.size(), 1u);
	EXPECT_EQ(Read->Requests[1].Item, EItem::RequestUpdate);
	EXPECT_TRUE((Read->Requests[1].Options == Zef::FPackingOptions{true, false}));
	// The announcement, then for each object its header and its pieces, as the application has them.
	std::vector<Zef::FBytes> Expected;
	const Zef::FEncodedItem First = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
	const Zef::FEncodedItem Second = Zef::EncodeSurfaceMesh(EObjectType::Garment, StripMesh(40'000));
	for (const Zef::FEncodedItem* Item : {&First, &Second})
	{
		Expected.push_back(Item->Header);
		for (const Zef::FChunk& Chunk : Item->Chunks)
		{
			Expected.emplace_back(Chunk.Data, Chunk.Data + Chunk.Size);
		}
	}
	const auto& Messages = Read->Requests[1].Messages;
	ASSERT_EQ(Messages.size(), Expected.size() + 1);
	for (std::size_t Index = 0; Index < Expected.size(); ++Index)
	{
		ASSERT_EQ(Messages[Index + 1].Parts.size(), 2u);
		EXPECT_TRUE(std::ranges::equal(Messages[Index + 1].Parts[1], Expected[Index])) << Index;
	}
}

TEST_F(Recording, KeepsWhatCannotBeUnderstood)
{
	Application.Server.reset();
	FRawApplication Raw(Folder.Socket());
	FEditor Editor(Folder.Socket(), Options());
	Raw.Welcome({2, "raw application", 16 << 20, 4 << 20});
	Editor.Client->SendUpdate({});
	Raw.ReceiveFrame(EFrame::Item);
	Raw.Send({Zef::FBytes{1, 2, 3}, Zef::FBytes{4}});
	Raw.Send({Prefix(EFrame::Item, 1), Zef::FBytes(40, 0xff)});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Faults.size() == 2; }));
	EXPECT_FALSE(Editor.Client->FinishRecording());

	const auto Read = Zef::ReadRecording(File);
	ASSERT_TRUE(Read) << ToString(Read.Fault());
	ASSERT_EQ(Read->Requests.size(), 1u);
	ASSERT_EQ(Read->Requests[0].Messages.size(), 2u);
	EXPECT_TRUE(std::ranges::equal(Read->Requests[0].Messages[0].Parts[0], Zef::FBytes{1, 2, 3}));
	EXPECT_TRUE(std::ranges::equal(Read->Requests[0].Messages[1].Parts[1], Zef::FBytes(40, 0xff)));
}

TEST_F(Recording, OfALossKeepsWhatCameBeforeAndSaysSo)
{
	Application.Server.reset();
	auto Raw = std::make_unique<FRawApplication>(Folder.Socket());
	FEditor Editor(Folder.Socket(), Options());
	Raw->Welcome({2, "raw application", 16 << 20, 4 << 20});
	Editor.Client->SendUpdate({});
	Raw->ReceiveFrame(EFrame::Item);
	Raw->Send({Prefix(EFrame::Item, 1), Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()).Header});
	Raw->ReceiveFrame(EFrame::Credit);
	Raw.reset();
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	EXPECT_FALSE(Editor.Client->FinishRecording());
	const auto Read = Zef::ReadRecording(File);
	ASSERT_TRUE(Read) << ToString(Read.Fault());
	ASSERT_EQ(Read->Requests.size(), 1u);
	EXPECT_EQ(Read->Requests[0].Messages.size(), 1u);
	EXPECT_TRUE(Read->Requests[0].bLost);
	EXPECT_FALSE(Read->Requests[0].LostReason.empty());
}

TEST_F(Recording, CutOffAnywhereIsRefusedWithThePlace)
{
	Record();
	const std::string Whole = BytesOf(File);
	const std::string Part = Folder.Path + "/part.ztlr";
	// Every length of the first records, then some of the long ones.
	for (std::size_t Length = 0; Length < Whole.size(); Length += Length < 600 ? 1 : 40'009)
	{
		std::ofstream(Part, std::ios::binary | std::ios::trunc) << Whole.substr(0, Length);
		const auto Read = Zef::ReadRecording(Part);
		ASSERT_FALSE(Read) << Length;
		EXPECT_EQ(Read.Fault().Code, EFault::BadRecording);
		const char* const Expected = Length < 16 ? "no recording" : "cut off";
		EXPECT_NE(Read.Fault().Message.find(Expected), std::string::npos) << Length << ": " << Read.Fault().Message;
	}
	std::ofstream(Part, std::ios::binary | std::ios::trunc) << Whole.substr(0, Whole.size() - 1);
	EXPECT_NE(Zef::ReadRecording(Part).Fault().Message.find("cut off"), std::string::npos);
}

TEST_F(Recording, ChangedAnywhereIsRefused)
{
	Record();
	const std::string Whole = BytesOf(File);
	const std::string Changed = Folder.Path + "/changed.ztlr";
	for (std::size_t Place = 0; Place < Whole.size(); Place += Place < 300 ? 1 : 70'001)
	{
		// Four bytes of the file's head are kept free.
		if (Place >= 12 && Place < 16)
		{
			continue;
		}
		std::string Bytes = Whole;
		Bytes[Place] ^= 0x20;
		std::ofstream(Changed, std::ios::binary | std::ios::trunc) << Bytes;
		EXPECT_EQ(Zef::ReadRecording(Changed).Fault().Code, EFault::BadRecording) << Place;
	}
	std::ofstream(Changed, std::ios::binary | std::ios::trunc) << Whole << "x";
	EXPECT_NE(Zef::ReadRecording(Changed).Fault().Message.find("follows its end"), std::string::npos);
	std::string Later = Whole;
	Later[8] = 9;
	std::ofstream(Changed, std::ios::binary | std::ios::trunc) << Later;
	EXPECT_NE(Zef::ReadRecording(Changed).Fault().Message.find("layout 9"), std::string::npos);
}

TEST_F(Recording, OfSomethingElseIsRefusedWithAReason)
{
	const auto Reason = [](const std::string& Path) { return Zef::ReadRecording(Path).Fault().Message; };
	std::ofstream(File) << "<html>";
	EXPECT_NE(Reason(File).find("is no recording of the link"), std::string::npos);
	EXPECT_NE(Reason(Folder.Path).find("is no file"), std::string::npos);
	EXPECT_NE(Reason("/nowhere/x").find("is not there"), std::string::npos);
	{
		// Nobody sends anything.
		FEditor Editor(Folder.Socket("nobody"), Options());
	}
	EXPECT_NE(Reason(File).find("holds nothing"), std::string::npos);
}

/** Writing fails beyond so many bytes, as on a full disk. */
class FFullDisk
{
public:
	explicit FFullDisk(rlim_t Bytes)
	{
		signal(SIGXFSZ, SIG_IGN);
		getrlimit(RLIMIT_FSIZE, &Former);
		const rlimit Small{Bytes, Former.rlim_max};
		setrlimit(RLIMIT_FSIZE, &Small);
	}
	~FFullDisk() { setrlimit(RLIMIT_FSIZE, &Former); }
	FFullDisk(const FFullDisk&) = delete;
	FFullDisk& operator=(const FFullDisk&) = delete;

private:
	rlimit Former{};
};

TEST_F(Recording, OnAFullDiskEndsWithOneFaultAndTheLinkGoesOn)
{
	for (const rlim_t Bytes : {rlim_t(0), rlim_t(100), rlim_t(5'000), rlim_t(500'000)})
	{
		const FFullDisk Disk(Bytes);
		FEditor Editor(Folder.Socket(), Options());
		ASSERT_TRUE(Editor.Client);
		for (std::size_t Update = 1; Update <= 2; ++Update)
		{
			Editor.Client->SendUpdate({});
			ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 2 * Update; }));
		}
		ASSERT_EQ(Editor.Faults.size(), 1u) << Bytes;
		EXPECT_EQ(Editor.Faults[0].Code, EFault::RecordingStopped);
		EXPECT_NE(Editor.Faults[0].Message.find("File too large"), std::string::npos) << Editor.Faults[0].Message;
		EXPECT_EQ(Editor.Connections, std::vector<bool>{true});
		EXPECT_EQ(Editor.Client->FinishRecording().Code, EFault::RecordingStopped);
		EXPECT_FALSE(std::filesystem::exists(File));
		EXPECT_FALSE(std::filesystem::exists(File + ".part"));
	}
}

TEST_F(Recording, LeavesAnEarlierFileAloneUntilItIsWhole)
{
	std::ofstream(File) << "earlier";
	{
		const FFullDisk Disk(1'000);
		FEditor Editor(Folder.Socket(), Options());
		Editor.Client->SendUpdate({});
		ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 2; }));
	}
	EXPECT_EQ(BytesOf(File), "earlier");
	Record();
	EXPECT_TRUE(Zef::ReadRecording(File));
}

/** Serves while something blocks. */
class FServing
{
public:
	explicit FServing(FApplication& Application)
		: Thread(
			  [this, &Application]
			  {
				  while (!bOver)
				  {
					  Application.Poll(std::chrono::milliseconds(5));
				  }
			  })
	{
	}
	~FServing()
	{
		bOver = true;
		Thread.join();
	}
	FServing(const FServing&) = delete;
	FServing& operator=(const FServing&) = delete;

private:
	std::atomic<bool> bOver{false};
	std::thread Thread;
};

TEST_F(Recording, SessionAsksForFlagsUpdateAndAnimations)
{
	Application.OnAnimation = [this](Zef::FClientId Client, const Zef::FObjectTypeInfo& Info)
	{
		if (Info.AnimationKind == Zef::EAnimationKind::JointAnimation)
		{
			Application.Server->SendJointAnimation(Client, Info.ObjectType, SampleAnimation());
			return;
		}
		Application.Server->SendMeshSequence(Client, Info.ObjectType, SampleMesh(),
			[](std::uint32_t Index) { return Index == 2 ? nullptr : SampleFrame(1, Index); });
	};
	Zef::FRecordSessionOptions Session;
	Session.Endpoint = Folder.Socket();
	Session.File = File;
	Session.bAnimations = true;
	std::uint64_t Seen = 0;
	Zef::TResult<Zef::FRecordSummary> Summary = Zef::FLinkFault();
	{
		const FServing Serving(Application);
		Summary = Zef::RecordSession(Session, [&](const Zef::FUpdateProgress& Now) { Seen = Now.ReceivedBytes; });
	}
	ASSERT_TRUE(Summary) << ToString(Summary.Fault());
	EXPECT_EQ(Summary->Objects, 2u);
	EXPECT_EQ(Summary->Animations, 3u);
	EXPECT_EQ(Summary->ProtocolVersion, 2);
	EXPECT_FALSE(Summary->CutShort) << Summary->CutShort.What;
	EXPECT_GT(Seen, 0u);
	const auto Read = Zef::ReadRecording(File);
	ASSERT_TRUE(Read);
	std::vector<std::pair<EItem, std::size_t>> Requests;
	for (const Zef::FRecordedRequest& Request : Read->Requests)
	{
		Requests.emplace_back(Request.Item, Request.Messages.empty() ? 0 : 1);
	}
	EXPECT_EQ(std::ranges::count(Requests, std::pair(EItem::RequestUpdate, std::size_t(1))), 1);
	EXPECT_EQ(std::ranges::count(Requests, std::pair(EItem::RequestAnimation, std::size_t(1))), 3);
}

TEST_F(Recording, SessionWithNobodySaysWhyAndWritesNothing)
{
	Zef::FRecordSessionOptions Session;
	Session.Endpoint = Folder.Socket("nobody");
	Session.File = File;
	Session.Timeout = std::chrono::milliseconds(50);
	const auto Summary = Zef::RecordSession(Session);
	ASSERT_FALSE(Summary);
	EXPECT_NE(Summary.Fault().Message.find("zef-peer serve"), std::string::npos) << Summary.Fault().Message;
}
} // namespace
