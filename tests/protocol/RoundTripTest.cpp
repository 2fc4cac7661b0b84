// SPDX-License-Identifier: MIT
#include "ItemDecoding.h"
#include "SampleRecords.h"

#include <gtest/gtest.h>

namespace
{
using namespace LinkTest;
using Zef::EDecode;
using Zef::EItem;
using Zef::EObjectType;
using Zef::EReceiver;

TEST(RoundTrip, SurfaceMeshKeepsEveryField)
{
	FDecoding Editor(EReceiver::Editor);
	const auto Mesh = SampleMesh();

	ASSERT_EQ(Editor.Feed(Zef::EncodeSurfaceMesh(EObjectType::Avatar, Mesh)), EDecode::Complete)
		<< ToString(Editor.Decoder.Fault());
	Zef::FDecodedItem Item = Editor.Decoder.Take();

	EXPECT_EQ(Item.Item, EItem::SurfaceMesh);
	EXPECT_EQ(Item.ObjectType, EObjectType::Avatar);
	EXPECT_TRUE(RecordOf(Item).SurfaceMesh == *Mesh);
}

TEST(RoundTrip, MapsKeepTheirOrder)
{
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh())), EDecode::Complete);
	Zef::FDecodedItem Item = Editor.Decoder.Take();

	const Zef::FSurfaceMesh& Mesh = RecordOf(Item).SurfaceMesh;
	EXPECT_EQ(Mesh.Materials[0].first, 9);
	EXPECT_EQ(Mesh.Materials[1].first, 7);
	EXPECT_EQ(Mesh.Textures[0].first, 100);
	EXPECT_EQ(Mesh.Materials[1].second.Expressions[0].first, Zef::MaterialChannel::Roughness);
}

TEST(RoundTrip, PiecesMayBeCutAnywhere)
{
	const auto Mesh = SampleMesh();
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh);
	for (const std::size_t PieceBytes : {1, 2, 3, 5, 7, 11, 64, 255})
	{
		FDecoding Editor(EReceiver::Editor);
		ASSERT_EQ(Editor.Feed(Item, PieceBytes), EDecode::Complete) << PieceBytes;
		Zef::FDecodedItem Decoded = Editor.Decoder.Take();
		EXPECT_TRUE(RecordOf(Decoded).SurfaceMesh == *Mesh) << PieceBytes;
	}
}

TEST(RoundTrip, AnEmptyMeshIsComplete)
{
	FDecoding Editor(EReceiver::Editor);
	const auto Mesh = std::make_shared<Zef::FSurfaceMesh>();

	ASSERT_EQ(Editor.Feed(Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh)), EDecode::Complete);
	Zef::FDecodedItem Item = Editor.Decoder.Take();

	EXPECT_TRUE(RecordOf(Item).SurfaceMesh == *Mesh);
}

TEST(RoundTrip, JointAnimationKeepsFramesThatMoveDifferentJoints)
{
	FDecoding Editor(EReceiver::Editor);
	const auto Animation = SampleAnimation();

	ASSERT_EQ(Editor.Feed(Zef::EncodeJointAnimation(EObjectType::Avatar, Animation)), EDecode::Complete)
		<< ToString(Editor.Decoder.Fault());
	Zef::FDecodedItem Item = Editor.Decoder.Take();

	EXPECT_EQ(Item.Item, EItem::JointAnimation);
	EXPECT_TRUE(RecordOf(Item).SurfaceMesh == Animation->Mesh);
	EXPECT_TRUE(RecordOf(Item).Sequence == Animation->Sequence);
}

TEST(RoundTrip, AJointAnimationWithoutFramesSaysThatThereIsNone)
{
	FDecoding Editor(EReceiver::Editor);
	const auto Animation = std::make_shared<Zef::FJointAnimation>();

	ASSERT_EQ(Editor.Feed(Zef::EncodeJointAnimation(EObjectType::Avatar, Animation)), EDecode::Complete);
	Zef::FDecodedItem Item = Editor.Decoder.Take();

	EXPECT_TRUE(RecordOf(Item).Sequence.Frames.empty());
}

TEST(RoundTrip, MeshSequenceIsOneItemOfManyFrames)
{
	FDecoding Editor(EReceiver::Editor);
	const auto Mesh = SampleMesh();

	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, Mesh)), EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(1, 0.0))), EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceFrame(1, SampleFrame(2, 0.5))), EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceEnd(2)), EDecode::Complete) << ToString(Editor.Decoder.Fault());
	Zef::FDecodedItem Item = Editor.Decoder.Take();

	EXPECT_EQ(Item.Item, EItem::SequenceBegin);
	EXPECT_EQ(Item.ObjectType, EObjectType::Garment);
	EXPECT_TRUE(RecordOf(Item).SurfaceMesh == *Mesh);
	ASSERT_EQ(RecordOf(Item).Frames.size(), 2u);
	EXPECT_TRUE(RecordOf(Item).Frames[0] == *SampleFrame(1, 0.0));
	EXPECT_TRUE(RecordOf(Item).Frames[1] == *SampleFrame(2, 0.5));
}

TEST(RoundTrip, OtherItemsMayComeBetweenTheFramesOfASequence)
{
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh())), EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::EncodeAvailability({})), EDecode::Complete);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSurfaceMesh(EObjectType::Prop, SampleMesh())), EDecode::Complete);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(1, 0.0))), EDecode::More);
	EXPECT_EQ(Editor.Feed(Zef::EncodeSequenceEnd(1)), EDecode::Complete) << ToString(Editor.Decoder.Fault());
}

TEST(RoundTrip, ASequenceWithoutFramesSaysThatThereIsNone)
{
	FDecoding Editor(EReceiver::Editor);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, std::make_shared<Zef::FSurfaceMesh>())),
		EDecode::More);
	ASSERT_EQ(Editor.Feed(Zef::EncodeSequenceEnd(0)), EDecode::Complete);
	Zef::FDecodedItem Item = Editor.Decoder.Take();
	EXPECT_TRUE(RecordOf(Item).Frames.empty());
}

TEST(RoundTrip, AvailabilityKeepsEachFlag)
{
	for (int Flag = 0; Flag < 5; ++Flag)
	{
		FDecoding Editor(EReceiver::Editor);
		const Zef::FAvailability Sent{Flag == 0, Flag == 1, Flag == 2, Flag == 3, Flag == 4};
		ASSERT_EQ(Editor.Feed(Zef::EncodeAvailability(Sent)), EDecode::Complete);
		EXPECT_TRUE(Editor.Decoder.Take().Availability == Sent) << Flag;
	}
}

TEST(RoundTrip, RequestsKeepTheirArguments)
{
	FDecoding Application(EReceiver::GarmentApplication);

	ASSERT_EQ(Application.Feed(Zef::EncodeEnable(true)), EDecode::Complete);
	EXPECT_TRUE(Application.Decoder.Take().bEnabled);
	ASSERT_EQ(Application.Feed(Zef::EncodeEnable(false)), EDecode::Complete);
	EXPECT_FALSE(Application.Decoder.Take().bEnabled);

	ASSERT_EQ(Application.Feed(Zef::EncodeUpdateRequest({true, false})), EDecode::Complete);
	EXPECT_TRUE((Application.Decoder.Take().Options == Zef::FPackingOptions{true, false}));

	ASSERT_EQ(Application.Feed(Zef::EncodeAnimationRequest(
				  {EObjectType::Avatar, Zef::EAnimationKind::JointAnimation}, {false, true})),
		EDecode::Complete);
	const Zef::FDecodedItem Animation = Application.Decoder.Take();
	EXPECT_EQ(Animation.Item, EItem::RequestAnimation);
	EXPECT_TRUE((Animation.Options == Zef::FPackingOptions{false, true}));
	EXPECT_EQ(Animation.Info.ObjectType, EObjectType::Avatar);
	EXPECT_EQ(Animation.Info.AnimationKind, Zef::EAnimationKind::JointAnimation);

	ASSERT_EQ(Application.Feed(Zef::EncodeAvailabilityRequest()), EDecode::Complete);
	EXPECT_EQ(Application.Decoder.Take().Item, EItem::RequestAvailability);
}

TEST(RoundTrip, TheEditorsJointAnimationCountsIndicesInTheWholeModel)
{
	auto Animation = std::make_shared<Zef::FJointAnimation>(*SampleAnimation());
	Animation->Mesh.Surfaces[1].VertexOffset = 10; // seven vertices of clothing were left out before it
	for (std::int32_t& Index : Animation->Mesh.Surfaces[1].Sections[0].Indices)
	{
		Index += 10;
	}
	FDecoding Application(EReceiver::GarmentApplication);

	ASSERT_EQ(Application.Feed(Zef::EncodeJointAnimationRequest(
				  {EObjectType::Avatar, Zef::EAnimationKind::JointAnimation}, Animation)),
		EDecode::Complete)
		<< ToString(Application.Decoder.Fault());
	Zef::FDecodedItem Item = Application.Decoder.Take();

	EXPECT_EQ(Item.Item, EItem::SendJointAnimation);
	EXPECT_TRUE(RecordOf(Item).SurfaceMesh == Animation->Mesh);
	EXPECT_TRUE(RecordOf(Item).Sequence == Animation->Sequence);
}

TEST(RoundTrip, AFaultKeepsItsPlaceAndItsItem)
{
	FDecoding Editor(EReceiver::Editor);
	const Zef::FLinkFault Fault{Zef::EFault::IndexRange, Zef::EFaultSeverity::Error, "/Surfaces/0", "Too large."};
	ASSERT_EQ(Editor.Feed(Zef::EncodeFault(Fault, 42)), EDecode::Complete);
	const Zef::FDecodedItem Item = Editor.Decoder.Take();
	EXPECT_EQ(Item.Fault.Code, Zef::EFault::IndexRange);
	EXPECT_EQ(Item.Fault.Path, "/Surfaces/0");
	EXPECT_EQ(Item.Fault.Message, "Too large.");
	EXPECT_EQ(Item.FaultItem, 42u);
}

TEST(Encoding, SendsLargeArraysFromWhereTheyLie)
{
	const auto Mesh = StripMesh(100000);
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh, 1 << 20);

	const auto* Positions = reinterpret_cast<const std::uint8_t*>(Mesh->Surfaces[0].Positions.data());
	ASSERT_GE(Item.Chunks.size(), 2u);
	EXPECT_EQ(Item.Chunks[0].Data, Positions);
	EXPECT_EQ(Item.Chunks[0].Size, std::size_t(1) << 20);
	EXPECT_EQ(Item.Chunks[1].Data, Positions + (1 << 20));
	for (const Zef::FChunk& Chunk : Item.Chunks)
	{
		EXPECT_LE(Chunk.Size, std::size_t(1) << 20);
	}
}

TEST(Encoding, KeepsTheRecordAliveUntilTheLastChunkIsGone)
{
	auto Mesh = StripMesh(100000);
	const std::weak_ptr<Zef::FSurfaceMesh> Watched = Mesh;
	auto Item = std::make_unique<Zef::FEncodedItem>(Zef::EncodeSurfaceMesh(EObjectType::Garment, std::move(Mesh)));
	EXPECT_FALSE(Watched.expired());
	Item.reset();
	EXPECT_TRUE(Watched.expired());
}

TEST(Encoding, GathersSmallArraysIntoOneChunk)
{
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Garment, SampleMesh());
	EXPECT_EQ(Item.Chunks.size(), 1u);
	EXPECT_EQ(Item.PayloadBytes, Item.Chunks[0].Size);
}

TEST(ReceivedRecord, ReusesTheStorageOfARecordThatIsGone)
{
	FDecoding Editor(EReceiver::Editor);
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Garment, StripMesh(100000));
	ASSERT_EQ(Editor.Feed(Item), EDecode::Complete);
	Zef::FDecodedItem First = Editor.Decoder.Take();
	const std::int32_t* Indices = RecordOf(First).SurfaceMesh.Surfaces[0].Sections[0].Indices.data();
	First.Record.reset();

	ASSERT_EQ(Editor.Feed(Item), EDecode::Complete);
	Zef::FDecodedItem Second = Editor.Decoder.Take();

	EXPECT_EQ(RecordOf(Second).SurfaceMesh.Surfaces[0].Sections[0].Indices.data(), Indices);
}
} // namespace
