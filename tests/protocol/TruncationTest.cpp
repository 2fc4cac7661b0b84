// SPDX-License-Identifier: MIT
#include "ItemDecoding.h"
#include "SampleRecords.h"

#include <gtest/gtest.h>

namespace
{
using namespace LinkTest;
using Zef::EDecode;
using Zef::EFault;
using Zef::EObjectType;
using Zef::EReceiver;

const Zef::FObjectTypeInfo AvatarJoints{EObjectType::Avatar, Zef::EAnimationKind::JointAnimation};

/** One item of each kind, with the receiver that takes it. */
std::vector<std::pair<EReceiver, Zef::FEncodedItem>> AllItems()
{
	const EReceiver Editor = EReceiver::Editor;
	const EReceiver Application = EReceiver::GarmentApplication;
	std::vector<std::pair<EReceiver, Zef::FEncodedItem>> Items;
	Items.emplace_back(Application, Zef::EncodeEnable(true));
	Items.emplace_back(Application, Zef::EncodeUpdateRequest({true, true}));
	Items.emplace_back(Application, Zef::EncodeAnimationRequest(AvatarJoints, {true, true}));
	Items.emplace_back(Application, Zef::EncodeAvailabilityRequest());
	Items.emplace_back(Application, Zef::EncodeJointAnimationRequest(AvatarJoints, SampleAnimation()));
	Items.emplace_back(Editor, Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()));
	Items.emplace_back(Editor, Zef::EncodeJointAnimation(EObjectType::Avatar, SampleAnimation()));
	Items.emplace_back(Editor, Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
	Items.emplace_back(Editor, Zef::EncodeSequenceFrame(0, SampleFrame(0, 0)));
	Items.emplace_back(Editor, Zef::EncodeSequenceEnd(1));
	Items.emplace_back(Editor, Zef::EncodeAvailability({true, true, true, true, true}));
	Items.emplace_back(Editor, Zef::EncodeFault(Zef::MakeFault(EFault::PeerFailed, "/Path", "Message"), 1));
	return Items;
}

TEST(Truncation, EveryPrefixOfEveryHeaderIsRefusedOrSafe)
{
	for (const auto& [Receiver, Item] : AllItems())
	{
		for (std::size_t Length = 0; Length < Item.Header.size(); ++Length)
		{
			FDecoding End(Receiver);
			const Zef::FBytes Part(Item.Header.begin(), Item.Header.begin() + static_cast<std::ptrdiff_t>(Length));
			const EDecode Result = End.Feed(Part, {});
			EXPECT_EQ(Result, EDecode::Refused) << ToString(Item.Item) << " cut at " << Length;
			EXPECT_EQ(End.Decoder.Fault().Code, EFault::BadTable) << ToString(Item.Item) << " cut at " << Length;
		}
	}
}

TEST(Truncation, EveryFlippedBitOfAHeaderIsDecodedOrRefusedButNeverFollowed)
{
	for (const auto& [Receiver, Item] : AllItems())
	{
		const Zef::FBytes Payload = PayloadOf(Item);
		for (std::size_t Bit = 0; Bit < Item.Header.size() * 8; ++Bit)
		{
			FDecoding End(Receiver);
			Zef::FBytes Header = Item.Header;
			Header[Bit / 8] ^= static_cast<std::uint8_t>(1 << (Bit % 8));
			const EDecode Result = End.Feed(Header, Payload);
			EXPECT_NE(Result, EDecode::Ignored);
			if (Result == EDecode::Refused)
			{
				EXPECT_NE(End.Decoder.Fault().Code, EFault::None) << ToString(Item.Item) << " bit " << Bit;
			}
		}
	}
}

TEST(Truncation, ArraysCutOffAnywhereLeaveTheItemOpen)
{
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
	const Zef::FBytes Payload = PayloadOf(Item);
	for (std::size_t Length = 0; Length < Payload.size(); ++Length)
	{
		FDecoding Editor(EReceiver::Editor);
		const Zef::FBytes Part(Payload.begin(), Payload.begin() + static_cast<std::ptrdiff_t>(Length));
		EXPECT_EQ(Editor.Feed(Item.Header, Part), EDecode::More) << Length;
		EXPECT_TRUE(Editor.Decoder.IsItemOpen());
	}
}

TEST(Truncation, TheNextItemTellsThatTheOneBeforeWasCutOff)
{
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
	Zef::FBytes Payload = PayloadOf(Item);
	Payload.resize(100);
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Item.Header, Payload), EDecode::More);

	EXPECT_EQ(Editor.Feed(Zef::EncodeAvailability({})), EDecode::Complete);
	std::uint64_t CutOff = 0;
	const Zef::FLinkFault Fault = Editor.Decoder.TakeTruncation(CutOff);
	EXPECT_EQ(Fault.Code, EFault::Truncated);
	EXPECT_EQ(CutOff, 1u);
	EXPECT_EQ(Fault.Message,
		std::to_string(Item.PayloadBytes) + " bytes of this SurfaceMesh were expected; the next item came after 100.");
	EXPECT_FALSE(Editor.Decoder.TakeTruncation(CutOff));
}

TEST(Truncation, AnItemMayBeAbandoned)
{
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Item.Header, {}), EDecode::More);
	EXPECT_EQ(Editor.Decoder.Abandon(EFault::Stalled, "Nothing came.").Code, EFault::Stalled);
	EXPECT_FALSE(Editor.Decoder.IsItemOpen());
	EXPECT_FALSE(Editor.Decoder.Abandon(EFault::Stalled, "Nothing came."));
	EXPECT_EQ(Editor.Feed(Item), EDecode::Complete);
}

TEST(Truncation, PiecesOfARefusedItemAreIgnoredAndTheNextItemIsTaken)
{
	auto Mesh = std::make_shared<Zef::FSurfaceMesh>(*SampleMesh());
	Mesh->Surfaces[0].Positions[0].X = std::numeric_limits<float>::quiet_NaN();
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, Mesh);
	const Zef::FBytes Payload = PayloadOf(Item);
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Item), EDecode::Refused);
	EXPECT_EQ(Editor.Decoder.Piece(1, 64, Zef::FByteView(Payload).subspan(64)), EDecode::Ignored);
	EXPECT_EQ(Editor.Feed(Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh())), EDecode::Complete);
}

TEST(Truncation, AfterABadFrameTheRestOfTheSequenceIsIgnored)
{
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh())), EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(0, 0))), EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceFrame(2, SampleFrame(0, 1))), EDecode::Refused);
	EXPECT_EQ(Editor.Feed(Zef::EncodeSequenceFrame(3, SampleFrame(0, 2))), EDecode::Ignored);
	EXPECT_EQ(Editor.Feed(Zef::EncodeSequenceEnd(4)), EDecode::Ignored);

	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh())), EDecode::More);
	EXPECT_EQ(Editor.Feed(Zef::EncodeSequenceEnd(0)), EDecode::Complete);
}

TEST(Truncation, AHeaderThatCannotBeReadInsideASequenceDropsIt)
{
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh())), EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::FBytes(40, 0xff), {}), EDecode::Refused);
	EXPECT_EQ(Editor.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(0, 0))), EDecode::Ignored);
	EXPECT_EQ(Editor.Feed(Zef::EncodeSequenceEnd(1)), EDecode::Ignored);
}
} // namespace
