// SPDX-License-Identifier: MIT
// The bytes of each version, one file for each message. They never change; a new version adds a folder, which holds all
// of its messages. ZEF_WRITE_GOLDEN=1 writes the files that are missing.
#include "GoldenFiles.h"
#include "ItemDecoding.h"
#include "SampleRecords.h"
#include "Zef/Wire.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

namespace
{
using namespace LinkTest;
using Zef::EFrame;
using Zef::EObjectType;

Zef::FBytes PrefixBytes(const Zef::FPrefix& Prefix)
{
	const auto Bytes = Zef::EncodePrefix(Prefix);
	return {Bytes.begin(), Bytes.end()};
}

/** The messages of an item: the header's, and those of its pieces. */
std::vector<Zef::FBytes> MessagesOf(const Zef::FEncodedItem& Item)
{
	std::vector<Zef::FBytes> Parts{PrefixBytes({EFrame::Item, 1, 0}), Item.Header};
	std::uint64_t Offset = 0;
	for (const Zef::FChunk& Chunk : Item.Chunks)
	{
		Parts.push_back(PrefixBytes({EFrame::Piece, 1, Offset}));
		Parts.emplace_back(Chunk.Data, Chunk.Data + Chunk.Size);
		Offset += Chunk.Size;
	}
	return Parts;
}

struct FGoldenCase
{
	const char* Name;
	/** The parts of its messages in that version. */
	std::function<std::vector<Zef::FBytes>(std::uint16_t)> Parts;
	std::uint16_t FirstVersion = 1;
};

struct FVersionedCase
{
	FGoldenCase Case;
	std::uint16_t Version;
};

class Golden : public testing::TestWithParam<FVersionedCase>
{
};

TEST_P(Golden, BytesAreThoseOfTheFile)
{
	const auto& [Case, Version] = GetParam();
	const std::filesystem::path File = GoldenFile(Version, Case.Name);
	const std::string Actual = Hexadecimal(Case.Parts(Version));
	if (!std::filesystem::exists(File) && std::getenv("ZEF_WRITE_GOLDEN") != nullptr)
	{
		std::filesystem::create_directories(File.parent_path());
		std::ofstream(File) << Actual;
	}
	std::ifstream Stream(File);
	ASSERT_TRUE(Stream) << File;
	std::stringstream Expected;
	Expected << Stream.rdbuf();
	EXPECT_EQ(Actual, Expected.str());
}

/** A greeting read from its bytes and written again. */
Zef::FBytes Rewritten(EFrame Frame, const Zef::FBytes& Body)
{
	switch (Frame)
	{
		case EFrame::Hello:
			return Zef::EncodeHello(Zef::DecodeHello(Body).value());
		case EFrame::Welcome:
			return Zef::EncodeWelcome(Zef::DecodeWelcome(Body).value());
		case EFrame::Refused:
			return Zef::EncodeRefused(Zef::DecodeRefused(Body).value());
		default:
			return {};
	}
}

/** What was decoded, as an item again. */
Zef::FEncodedItem Rewritten(Zef::FDecodedItem& Item)
{
	const auto Mesh = [&] { return std::make_shared<Zef::FSurfaceMesh>(RecordOf(Item).SurfaceMesh); };
	const auto Animation = [&]
	{
		return std::make_shared<Zef::FJointAnimation>(
			Zef::FJointAnimation{RecordOf(Item).SurfaceMesh, RecordOf(Item).Sequence});
	};
	switch (Item.Item)
	{
		case Zef::EItem::Enable:
			return Zef::EncodeEnable(Item.bEnabled);
		case Zef::EItem::RequestUpdate:
			return Zef::EncodeUpdateRequest(Item.Options);
		case Zef::EItem::RequestAnimation:
			return Zef::EncodeAnimationRequest(Item.Info, Item.Options);
		case Zef::EItem::RequestAvailability:
			return Zef::EncodeAvailabilityRequest();
		case Zef::EItem::SendJointAnimation:
			return Zef::EncodeJointAnimationRequest(Item.Info, Animation());
		case Zef::EItem::SurfaceMesh:
			return Zef::EncodeSurfaceMesh(Item.ObjectType, Mesh());
		case Zef::EItem::JointAnimation:
			return Zef::EncodeJointAnimation(Item.ObjectType, Animation());
		case Zef::EItem::Availability:
			return Zef::EncodeAvailability(Item.Availability);
		case Zef::EItem::UpdateAnnouncement:
			return Zef::EncodeUpdateAnnouncement(Item.Announcement);
		case Zef::EItem::Fault:
			return Zef::EncodeFault(Item.Fault, Item.FaultItem);
		default:
			return {};
	}
}

TEST_P(Golden, BytesAreReadAndWrittenAgainAsTheyWere)
{
	const auto& [Case, Version] = GetParam();
	const std::vector<Zef::FBytes> Parts = ReadGolden(Version, Case.Name);
	ASSERT_FALSE(Parts.empty());
	Zef::FLinkFault Fault;
	const auto Prefix = Zef::DecodePrefix(Parts[0], Fault);
	ASSERT_TRUE(Prefix) << ToString(Fault);
	if (Prefix->Frame == EFrame::Credit)
	{
		EXPECT_EQ(PrefixBytes(*Prefix), Parts[0]);
		return;
	}
	if (Prefix->Frame != EFrame::Item)
	{
		EXPECT_EQ(Rewritten(Prefix->Frame, Parts[1]), Parts[1]);
		return;
	}
	const std::string Name = Case.Name;
	const bool bRequest = Name == "Enable" || Name.starts_with("Request") || Name.starts_with("Send");
	FDecoding Decoding(bRequest ? Zef::EReceiver::GarmentApplication : Zef::EReceiver::Editor);
	// The parts of a mesh sequence are read one after the other; each file holds one of them.
	if (Name == "SequenceFrame" || Name == "SequenceEnd")
	{
		ASSERT_EQ(Decoding.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh())), Zef::EDecode::More);
		ASSERT_EQ(Decoding.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(1, 0))), Zef::EDecode::More);
	}
	if (Name == "SequenceEnd")
	{
		ASSERT_EQ(Decoding.Feed(Zef::EncodeSequenceFrame(1, SampleFrame(2, 0.5))), Zef::EDecode::More);
	}
	const Zef::FBytes Payload = Parts.size() > 3 ? Parts[3] : Zef::FBytes();
	const Zef::EDecode Result = Decoding.Feed(Parts[1], Payload);
	if (Name == "SequenceBegin" || Name == "SequenceFrame")
	{
		EXPECT_EQ(Result, Zef::EDecode::More) << ToString(Decoding.Decoder.Fault());
		return;
	}
	if (Version == 1 && Name == "SendJointAnimation")
	{
		// The kept bytes count indices in the surface, as a reply does.
		EXPECT_EQ(Decoding.Decoder.Fault().Code, Zef::EFault::IndexRange);
		return;
	}
	ASSERT_EQ(Result, Zef::EDecode::Complete) << ToString(Decoding.Decoder.Fault());
	Zef::FDecodedItem Item = Decoding.Decoder.Take();
	if (Name == "SequenceEnd")
	{
		EXPECT_EQ(RecordOf(Item).Frames.size(), 2u);
		return;
	}
	const Zef::FEncodedItem Again = Rewritten(Item);
	EXPECT_EQ(Again.Header, Parts[1]);
	EXPECT_EQ(PayloadOf(Again), Payload);
}

/** SampleAnimation with indices that count in the whole model, as an editor sends them. */
std::shared_ptr<Zef::FJointAnimation> AnimationOfTheModel()
{
	std::shared_ptr<Zef::FJointAnimation> Animation = SampleAnimation();
	for (Zef::FSurface& Surface : Animation->Mesh.Surfaces)
	{
		for (Zef::FSection& Section : Surface.Sections)
		{
			for (std::int32_t& Index : Section.Indices)
			{
				Index += Surface.VertexOffset;
			}
		}
	}
	return Animation;
}

const Zef::FObjectTypeInfo AvatarJoints{EObjectType::Avatar, Zef::EAnimationKind::JointAnimation};

const FGoldenCase Cases[] = {
	{"Hello",
		[](std::uint16_t Version)
		{
			return std::vector<Zef::FBytes>{
				PrefixBytes({EFrame::Hello, 0, 0}), Zef::EncodeHello({1, Version, "editor", 16 << 20, 4 << 20})};
		}},
	{"Welcome",
		[](std::uint16_t Version)
		{
			return std::vector<Zef::FBytes>{
				PrefixBytes({EFrame::Welcome, 0, 0}), Zef::EncodeWelcome({Version, "application", 16 << 20, 4 << 20})};
		}},
	{"Refused",
		[](std::uint16_t Version)
		{
			return std::vector<Zef::FBytes>{PrefixBytes({EFrame::Refused, 0, 0}),
				Zef::EncodeRefused({Zef::EFault::VersionUnknown, "Update the editor.", 1, Version})};
		}},
	{"Credit",
		[](std::uint16_t) {
			return std::vector<Zef::FBytes>{PrefixBytes({EFrame::Credit, 0, 1234567})};
		}},
	{"Enable", [](std::uint16_t) { return MessagesOf(Zef::EncodeEnable(true)); }},
	{"RequestUpdate",
		[](std::uint16_t) {
			return MessagesOf(Zef::EncodeUpdateRequest({true, true}));
		}},
	{"RequestAnimation",
		[](std::uint16_t) {
			return MessagesOf(Zef::EncodeAnimationRequest(AvatarJoints, {false, true}));
		}},
	{"RequestAvailability", [](std::uint16_t) { return MessagesOf(Zef::EncodeAvailabilityRequest()); }},
	{"SendJointAnimation",
		[](std::uint16_t Version)
		{
			return MessagesOf(Zef::EncodeJointAnimationRequest(
				AvatarJoints, Version == 1 ? SampleAnimation() : AnimationOfTheModel()));
		}},
	{"SurfaceMesh",
		[](std::uint16_t) { return MessagesOf(Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh())); }},
	{"JointAnimation",
		[](std::uint16_t) { return MessagesOf(Zef::EncodeJointAnimation(EObjectType::Avatar, SampleAnimation())); }},
	{"SequenceBegin",
		[](std::uint16_t) { return MessagesOf(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh())); }},
	{"SequenceFrame", [](std::uint16_t) { return MessagesOf(Zef::EncodeSequenceFrame(1, SampleFrame(2, 0.5))); }},
	{"SequenceEnd", [](std::uint16_t) { return MessagesOf(Zef::EncodeSequenceEnd(2)); }},
	{"Availability",
		[](std::uint16_t) {
			return MessagesOf(Zef::EncodeAvailability({false, true, false, true, true}));
		}},
	{"Fault",
		[](std::uint16_t)
		{
			return MessagesOf(Zef::EncodeFault(
				Zef::MakeFault(Zef::EFault::IndexRange, "/Surfaces/0/Sections/0/Indices/2", "Too large."), 3));
		}},
	{"Closing",
		[](std::uint16_t Version)
		{
			return std::vector<Zef::FBytes>{PrefixBytes({EFrame::Refused, 0, 0}),
				Zef::EncodeRefused({Zef::EFault::Closing, "The garment application was closed.", 1, Version})};
		},
		2},
	{"UpdateAnnouncement",
		[](std::uint16_t)
		{
			return MessagesOf(
				Zef::EncodeUpdateAnnouncement({{{EObjectType::Garment, 123456789012}, {EObjectType::Avatar, 4096}}}));
		},
		2},
};

std::vector<FVersionedCase> AllCases()
{
	std::vector<FVersionedCase> All;
	for (std::uint16_t Version = Zef::MinProtocolVersion; Version <= Zef::MaxProtocolVersion; ++Version)
	{
		for (const FGoldenCase& Case : Cases)
		{
			if (Version >= Case.FirstVersion)
			{
				All.push_back({Case, Version});
			}
		}
	}
	return All;
}

INSTANTIATE_TEST_SUITE_P(Of, Golden, testing::ValuesIn(AllCases()),
	[](const testing::TestParamInfo<FVersionedCase>& Info)
	{ return "Version" + std::to_string(Info.param.Version) + Info.param.Case.Name; });

TEST(GoldenFolder, HoldsNoFileThatNoCaseNames)
{
	for (std::uint16_t Version = Zef::MinProtocolVersion; Version <= Zef::MaxProtocolVersion; ++Version)
	{
		for (const auto& Entry : std::filesystem::directory_iterator(GoldenFile(Version, "Hello").parent_path()))
		{
			const std::string Name = Entry.path().stem().string();
			const bool bNamed = std::ranges::any_of(
				Cases, [&](const FGoldenCase& Case) { return Case.Name == Name && Case.FirstVersion <= Version; });
			EXPECT_TRUE(bNamed) << Entry.path();
		}
	}
}
} // namespace
