// SPDX-License-Identifier: MIT
// Ends of different age against each other. The older ones speak the stored bytes.
#include "GoldenFiles.h"
#include "ItemDecoding.h"
#include "RawPeer.h"
#include "RawZmtp.h"

namespace
{
using namespace LinkTest;
using Zef::EFault;
using Zef::EFrame;
using Zef::EObjectType;

Zef::FVersionRange Only(std::uint16_t Version)
{
	return {Version, Version};
}

Zef::EItem KindOf(const Zef::FBytes& Header)
{
	FDecoding Editor(Zef::EReceiver::Editor);
	Editor.Decoder.Header(1, Header);
	return Editor.Decoder.CurrentItem();
}

/** Sends an update of two objects, as an application does today. */
void SendTwoObjects(FApplication& Application, Zef::FClientId Client)
{
	std::vector<Zef::FLinkFault> Faults;
	EXPECT_TRUE(Application.Server->SendUpdate(
		Client, {{EObjectType::Avatar, SampleMesh()}, {EObjectType::Garment, StripMesh(1000)}}, &Faults));
	EXPECT_EQ(Faults.size(), 2u);
}

TEST(Versions, AnOldEditorIsServedWithWhatItKnows)
{
	const FTestFolder Folder;
	auto Application = std::make_unique<FApplication>(Folder.Socket());
	Application->OnUpdate = [&](Zef::FClientId Client) { SendTwoObjects(*Application, Client); };
	FRawEditor Editor(Folder.Socket());
	Editor.SendAll(ReadGolden(1, "Hello"));
	const std::vector<Zef::FBytes> Welcome = Editor.Receive();
	ASSERT_EQ(Welcome.size(), 2u);
	EXPECT_EQ(Zef::DecodeWelcome(Welcome[1])->Version, 1);
	Editor.SendAll(ReadGolden(1, "RequestUpdate"));
	ASSERT_TRUE(Until(nullptr, Application.get(), [&] { return Application->Updates.size() == 1; }));
	EXPECT_TRUE((Application->Updates[0] == Zef::FPackingOptions{true, true}));

	const std::vector<Zef::FBytes> First = Editor.ReceiveFrame(EFrame::Item);
	ASSERT_EQ(First.size(), 2u);
	EXPECT_EQ(First[1], ReadGolden(1, "SurfaceMesh")[1]);
	const std::vector<Zef::FBytes> Piece = Editor.ReceiveFrame(EFrame::Piece);
	EXPECT_EQ(Piece[1], ReadGolden(1, "SurfaceMesh")[3]);
	EXPECT_EQ(KindOf(Editor.ReceiveFrame(EFrame::Item)[1]), Zef::EItem::SurfaceMesh);
}

TEST(Versions, AnOldEditorHearsNoReasonWhenTheApplicationEnds)
{
	const FTestFolder Folder;
	for (const auto& [Version, Expected] : {std::pair(1, 0), std::pair(2, 1)})
	{
		auto Application = std::make_unique<FApplication>(Folder.Socket());
		FZmtpEnd Editor = ConnectTo(Folder.Socket());
		ASSERT_TRUE(Editor.Open("DEALER"));
		const std::vector<Zef::FBytes> Hello = ReadGolden(Version, "Hello");
		Editor.Write(FZmtpEnd::Message({Hello[0], Hello[1]}));
		ASSERT_EQ(Editor.Receive().size(), 2u);
		Application.reset();
		int Reasons = 0;
		for (std::vector<Zef::FBytes> Parts = Editor.Receive(); !Parts.empty(); Parts = Editor.Receive())
		{
			Reasons += Parts == ReadGolden(2, "Closing") ? 1 : 0;
		}
		EXPECT_EQ(Reasons, Expected) << "version " << Version;
	}
}

TEST(Versions, AnOldApplicationServesTheEditorOfToday)
{
	const FTestFolder Folder;
	FRawApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Client->SendUpdate({});
	const std::vector<Zef::FBytes> Hello = Application.ReceiveFrame(EFrame::Hello);
	EXPECT_EQ(Zef::DecodeHello(Hello[1])->MinVersion, 1);
	EXPECT_EQ(Zef::DecodeHello(Hello[1])->MaxVersion, 2);
	Application.SendAll(ReadGolden(1, "Welcome"));
	EXPECT_EQ(Application.ReceiveFrame(EFrame::Item).size(), 2u);
	for (const char* Name : {"SurfaceMesh", "JointAnimation", "Availability", "Fault"})
	{
		Application.SendAll(ReadGolden(1, Name));
	}
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.FaultsOfPeer.empty(); }));

	ASSERT_EQ(Editor.Meshes.size(), 1u);
	EXPECT_TRUE(Editor.Meshes[0] == *SampleMesh());
	ASSERT_EQ(Editor.Animations.size(), 1u);
	EXPECT_TRUE(Editor.Animations[0] == *SampleAnimation());
	EXPECT_EQ(Editor.Availabilities.size(), 1u);
	EXPECT_EQ(Editor.FaultsOfPeer[0].Path, "/Surfaces/0/Sections/0/Indices/2");
	EXPECT_TRUE(Editor.Faults.empty());
	EXPECT_EQ(Editor.Client->Status().Version, 1);
	EXPECT_EQ(Editor.Client->Progress().AnnouncedObjects, 0u);
}

TEST(Versions, TheApplicationOfTodayAnnouncesAnUpdateAndTheEditorKnowsHowFarItIs)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	Application.OnUpdate = [&](Zef::FClientId Client) { SendTwoObjects(Application, Client); };
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 2; }));

	const auto BytesOf = [](EObjectType Type, std::shared_ptr<const Zef::FSurfaceMesh> Mesh)
	{
		const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(Type, std::move(Mesh));
		return Item.Header.size() + Item.PayloadBytes;
	};
	const std::uint64_t Avatar = BytesOf(EObjectType::Avatar, SampleMesh());
	const std::uint64_t Garment = BytesOf(EObjectType::Garment, StripMesh(1000));
	ASSERT_EQ(Editor.Announcements.size(), 1u);
	EXPECT_TRUE((Editor.Announcements[0] ==
				 Zef::FUpdateAnnouncement{{{EObjectType::Avatar, Avatar}, {EObjectType::Garment, Garment}}}));
	const Zef::FUpdateProgress Progress = Editor.Client->Progress();
	EXPECT_EQ(Progress.AnnouncedBytes, Avatar + Garment);
	EXPECT_EQ(Progress.ReceivedBytes, Avatar + Garment);
	EXPECT_EQ(Progress.ReceivedObjects, 2u);
	EXPECT_FALSE(Progress.IsUnderWay());
	EXPECT_EQ(Editor.Client->Status().Version, 2);
}

TEST(Versions, ProgressCountsWhatHasComeAndSkipsWhatWasRefused)
{
	const FTestFolder Folder;
	FRawApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	Application.Welcome({2, "raw application", 16 << 20, 4 << 20});
	auto Bad = SampleMesh();
	Bad->Surfaces[0].Positions[0].X = std::numeric_limits<float>::infinity();
	const Zef::FEncodedItem First = Zef::EncodeSurfaceMesh(EObjectType::Avatar, Bad);
	const Zef::FEncodedItem Second = Zef::EncodeSurfaceMesh(EObjectType::Garment, SampleMesh());
	const std::uint64_t Bytes = Second.Header.size() + Second.PayloadBytes;
	Application.SendItem(
		Zef::EncodeUpdateAnnouncement({{{EObjectType::Avatar, Bytes}, {EObjectType::Garment, Bytes}}}), 1);
	Application.SendItem(First, 2);
	Application.Send({Prefix(EFrame::Item, 3), Second.Header});
	const Zef::FBytes Payload = PayloadOf(Second);
	Application.Send({Prefix(EFrame::Piece, 3, 0), Zef::FBytes(Payload.begin(), Payload.begin() + 100)});
	ASSERT_TRUE(Until(&Editor, nullptr,
		[&] { return Editor.Client->Progress().ReceivedBytes == Bytes + Second.Header.size() + 100; }));
	EXPECT_EQ(Editor.Client->Progress().ReceivedObjects, 1u);
	EXPECT_TRUE(Editor.Client->Progress().IsUnderWay());

	Application.Send({Prefix(EFrame::Piece, 3, 100), Zef::FBytes(Payload.begin() + 100, Payload.end())});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Meshes.size() == 1; }));
	EXPECT_EQ(Editor.Client->Progress().ReceivedBytes, 2 * Bytes);
	EXPECT_FALSE(Editor.Client->Progress().IsUnderWay());
	EXPECT_EQ(Editor.Faults.size(), 1u);
}

TEST(Versions, AnAnnouncementOnAConnectionOfVersionOneIsRefused)
{
	const FTestFolder Folder;
	FRawApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	Application.Welcome({1, "raw application", 16 << 20, 4 << 20});
	Application.SendAll(ReadGolden(2, "UpdateAnnouncement"));
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Code, EFault::UnknownItem);
	EXPECT_NE(Editor.Faults[0].Message.find("version 2"), std::string::npos) << Editor.Faults[0].Message;
	EXPECT_TRUE(Editor.Announcements.empty());
	EXPECT_EQ(Editor.Connections, std::vector<bool>{true});
}

TEST(Versions, EndsThatShareNoneSayWhatEachSpeaks)
{
	const FTestFolder Folder;
	Zef::FServerOptions Old;
	Old.Versions = Only(1);
	FApplication Application(Folder.Socket(), Old);
	Zef::FClientOptions New = QuickClient();
	New.Versions = Only(2);
	FEditor Editor(Folder.Socket(), New);
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Faults.empty() && !Editor.Connections.empty(); }));

	EXPECT_EQ(Editor.Faults[0].Code, EFault::VersionUnknown);
	EXPECT_EQ(Editor.Faults[0].Message,
		"The garment application speaks protocol version 1, the editor 2; update the older of the two.");
	EXPECT_EQ(Editor.Connections, std::vector<bool>{false});
	EXPECT_EQ(Editor.Client->Status().Reason.Kind, Zef::ELinkReason::VersionUnknown);
	EXPECT_NE(Editor.Reasons[0].find("Update the older"), std::string::npos) << Editor.Reasons[0];
}

TEST(Versions, AnApplicationThatChoosesAnUnknownOneIsTurnedAwayWithBoth)
{
	const FTestFolder Folder;
	FRawApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	Application.Welcome({7, "from the future", 16 << 20, 4 << 20});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Message,
		"The garment application chose protocol version 7, the editor speaks 1 to 2; update the older of the two.");
}

TEST(Versions, OldEndsOfThisLibraryTalkAsBefore)
{
	const FTestFolder Folder;
	Zef::FServerOptions OldServer;
	OldServer.Versions = Only(1);
	FApplication Application(Folder.Socket(), OldServer);
	Application.OnUpdate = [&](Zef::FClientId Client) { SendTwoObjects(Application, Client); };
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 2; }));
	EXPECT_TRUE(Editor.Announcements.empty());
	Application.Server.reset();
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	EXPECT_EQ(Editor.Connections, (std::vector<bool>{true, false}));
	EXPECT_NE(Editor.Reasons[1].find("closed the connection"), std::string::npos) << Editor.Reasons[1];
	EXPECT_TRUE(Editor.Faults.empty());
}

TEST(Versions, AnApplicationOfTodaySaysThatItIsClosedAndOneThatIsKilledDoesNot)
{
	const FTestFolder Folder;
	auto Application = std::make_unique<FApplication>(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, Application.get(), [&] { return Editor.Client->IsConnected(); }));
	Application.reset();
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	EXPECT_EQ(Editor.Reasons[1].find("The garment application was closed."), 0u) << Editor.Reasons[1];
	EXPECT_TRUE(Editor.Faults.empty());

	auto Raw = std::make_unique<FRawApplication>(Folder.Socket());
	Raw->Welcome({2, "raw application", 16 << 20, 4 << 20});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Client->IsConnected(); }));
	Raw.reset();
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 4; }));
	EXPECT_NE(Editor.Reasons[3].find("without a word"), std::string::npos) << Editor.Reasons[3];
}

TEST(Versions, AnUpdateLeavesOutWhatNoEditorWouldTakeAndSendsTheRest)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Application.Connected == 1; }));
	std::vector<Zef::FLinkFault> Faults;
	EXPECT_FALSE(Application.Server->SendUpdate(Application.LastClient,
		{{EObjectType::Invalid, SampleMesh()}, {EObjectType::Avatar, SampleMesh()}, {EObjectType::Avatar, SampleMesh()},
			{EObjectType::Garment, nullptr}},
		&Faults));
	ASSERT_EQ(Faults.size(), 4u);
	EXPECT_EQ(Faults[0].Code, EFault::ObjectType);
	EXPECT_EQ(Faults[1].Code, EFault::None);
	EXPECT_EQ(Faults[2].Code, EFault::KeyTwice);
	EXPECT_EQ(Faults[3].Code, EFault::MissingField);
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 1; }));
	ASSERT_EQ(Editor.Announcements.size(), 1u);
	EXPECT_EQ(Editor.Announcements[0].Objects.size(), 1u);

	EXPECT_FALSE(Application.Server->SendUpdate(99, {{EObjectType::Avatar, SampleMesh()}}, &Faults));
	EXPECT_EQ(Faults[0].Code, EFault::PeerLost);
}
} // namespace
