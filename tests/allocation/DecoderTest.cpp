// SPDX-License-Identifier: MIT
#include "FailingAllocation.h"
#include "protocol/ItemDecoding.h"
#include "protocol/SampleRecords.h"

#include <gtest/gtest.h>

namespace
{
using namespace AllocationTest;
using namespace LinkTest;
using Zef::EDecode;
using Zef::EFault;
using Zef::EObjectType;
using Zef::EReceiver;

const Zef::FObjectTypeInfo AvatarJoints{EObjectType::Avatar, Zef::EAnimationKind::JointAnimation};

/** Items that make one record together, as an end receives them. */
struct FTransfer
{
	const char* Name;
	EReceiver Receiver;
	std::vector<Zef::FEncodedItem> Items;
};

std::vector<FTransfer> Transfers()
{
	// Arrays above 16 KiB go through the pool of storage.
	const auto Long = StripMesh(4000);
	std::vector<FTransfer> All;
	const auto Add = [&All](const char* Name, EReceiver Receiver, auto... Items)
	{
		FTransfer& Transfer = All.emplace_back();
		Transfer.Name = Name;
		Transfer.Receiver = Receiver;
		(Transfer.Items.push_back(std::move(Items)), ...);
	};
	const EReceiver Application = EReceiver::GarmentApplication;
	Add("Enable", Application, Zef::EncodeEnable(true));
	Add("RequestUpdate", Application, Zef::EncodeUpdateRequest({true, false}));
	Add("RequestAnimation", Application, Zef::EncodeAnimationRequest(AvatarJoints, {}));
	Add("RequestAvailability", Application, Zef::EncodeAvailabilityRequest());
	const auto InTheModel = SampleAnimation();
	for (std::int32_t& Index : InTheModel->Mesh.Surfaces[1].Sections[0].Indices)
	{
		Index += InTheModel->Mesh.Surfaces[1].VertexOffset;
	}
	Add("SendJointAnimation", Application, Zef::EncodeJointAnimationRequest(AvatarJoints, InTheModel));
	Add("SurfaceMesh", EReceiver::Editor, Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()));
	Add("LongSurfaceMesh", EReceiver::Editor, Zef::EncodeSurfaceMesh(EObjectType::Garment, Long));
	Add("JointAnimation", EReceiver::Editor, Zef::EncodeJointAnimation(EObjectType::Avatar, SampleAnimation()));
	Add("MeshSequence", EReceiver::Editor, Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()),
		Zef::EncodeSequenceFrame(0, SampleFrame(0, 0)), Zef::EncodeSequenceFrame(1, SampleFrame(1, 0.5)),
		Zef::EncodeSequenceEnd(2));
	Add("Availability", EReceiver::Editor, Zef::EncodeAvailability({}));
	Add("Fault", EReceiver::Editor,
		Zef::EncodeFault(
			Zef::MakeFault(EFault::PeerFailed, "/A/Path/Of/Some/Length", "A sentence of some length."), 1));
	return All;
}

/** An item as it lies at the decoder's door: what the test itself allocates is made before memory fails. */
struct FArrived
{
	Zef::FBytes Header;
	Zef::FBytes Payload;
};

/** Gives the items to the decoder; the result of the last, and the fault of the first that was refused. */
EDecode Receive(Zef::FItemDecoder& Decoder, const std::vector<FArrived>& Items, EFault& OutFault)
{
	constexpr std::size_t PieceBytes = 7000;
	EDecode Result = EDecode::More;
	for (std::size_t Item = 0; Item < Items.size(); ++Item)
	{
		Result = Decoder.Header(Item + 1, Items[Item].Header);
		const Zef::FByteView Payload(Items[Item].Payload);
		for (std::size_t Offset = 0; Offset < Payload.size() && Result == EDecode::More; Offset += PieceBytes)
		{
			Result =
				Decoder.Piece(Item + 1, Offset, Payload.subspan(Offset, std::min(PieceBytes, Payload.size() - Offset)));
		}
		if (Result == EDecode::Refused && OutFault == EFault::None)
		{
			OutFault = Decoder.Fault().Code;
		}
	}
	return Result;
}

class DecoderWithoutMemory : public testing::TestWithParam<EFailure>
{
};

TEST_P(DecoderWithoutMemory, RefusesTheItemAndTakesTheNextWhicheverAllocationFails)
{
	for (const FTransfer& Transfer : Transfers())
	{
		std::vector<FArrived> Items;
		for (const Zef::FEncodedItem& Item : Transfer.Items)
		{
			Items.push_back({Item.Header, PayloadOf(Item)});
		}
		std::size_t Number = 0;
		for (bool bFailed = true; bFailed; ++Number)
		{
			SCOPED_TRACE(std::string(Transfer.Name) + ", allocation " + std::to_string(Number));
			Zef::FRecordFactory Factory;
			Zef::FItemDecoder Decoder(Factory, Transfer.Receiver, {});
			EFault Fault = EFault::None;
			EDecode Result = EDecode::More;
			{
				const FFailingAllocation Failing(Number, GetParam());
				Result = Receive(Decoder, Items, Fault);
				bFailed = Failing.HasFailed();
			}
			ASSERT_EQ(Fault, bFailed ? EFault::OutOfMemory : EFault::None);
			ASSERT_NE(Result, EDecode::More);
			if (bFailed)
			{
				EXPECT_FALSE(Decoder.IsItemOpen());
				Decoder.Take();
				Fault = EFault::None;
				ASSERT_EQ(Receive(Decoder, Items, Fault), EDecode::Complete);
				ASSERT_EQ(Fault, EFault::None);
			}
			const Zef::FDecodedItem Taken = Decoder.Take();
			EXPECT_EQ(Taken.Item, Transfer.Items[0].Item);
		}
		EXPECT_GT(Number, 1u) << Transfer.Name;
	}
}

INSTANTIATE_TEST_SUITE_P(Fails, DecoderWithoutMemory, testing::Values(EFailure::Once, EFailure::Always),
	[](const testing::TestParamInfo<EFailure>& Info) { return Info.param == EFailure::Once ? "Once" : "FromThenOn"; });

TEST(DecoderWithoutMemory, TellsThatAnItemWasCutOffEvenThen)
{
	const Zef::FEncodedItem Mesh = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
	const Zef::FEncodedItem Next = Zef::EncodeAvailability({});
	Zef::FRecordFactory Factory;
	Zef::FItemDecoder Decoder(Factory, EReceiver::Editor, {});
	ASSERT_EQ(Decoder.Header(1, Mesh.Header), EDecode::More);
	{
		const FFailingAllocation Failing(0, EFailure::Once);
		EXPECT_EQ(Decoder.Header(2, Next.Header), EDecode::Complete);
		EXPECT_TRUE(Failing.HasFailed());
	}
	std::uint64_t Item = 0;
	EXPECT_EQ(Decoder.TakeTruncation(Item).Code, EFault::OutOfMemory);
	EXPECT_EQ(Item, 1u);
}
} // namespace
