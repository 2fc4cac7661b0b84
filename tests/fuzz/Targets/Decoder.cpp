// SPDX-License-Identifier: MIT
// Whatever arrives is refused with a fault of the table or becomes a record that the sender's check would let pass, and
// that travels back to the same bytes' meaning.
#include "Support/Arrivals.h"
#include "Support/Require.h"
#include "Zef/Check.h"
#include "Zef/Encode.h"
#include "Zef/RecordPool.h"

#include <optional>

namespace
{
using namespace Fuzz;
using Zef::EDecode;
using Zef::EItem;
using Zef::EReceiver;

/** Small enough that an input cannot ask for gigabytes, large enough for every rule. */
Zef::FLimits FuzzLimits()
{
	Zef::FLimits Limits;
	Limits.MaxItemBytes = 1u << 20;
	Limits.MaxStructureBytes = 4u << 20;
	Limits.MaxNameBytes = 64;
	return Limits;
}

Zef::EIndexBase BaseOf(EReceiver Receiver)
{
	return Receiver == EReceiver::Editor ? Zef::EIndexBase::Surface : Zef::EIndexBase::Model;
}

/** The record passes the check of a sender. */
void RequireChecked(const Zef::FReceivedRecord& Record, const Zef::FDecodedItem& Item, EReceiver Receiver)
{
	REQUIRE(!Zef::CheckMesh(Record.SurfaceMesh, BaseOf(Receiver), FuzzLimits()));
	REQUIRE(!Zef::CheckJointSequence(Zef::Pack(Record.Sequence), Record.SurfaceMesh.Joints.size(), FuzzLimits()));
	const std::uint64_t Vertices = Zef::CountsOf(Record.SurfaceMesh).VertexCount();
	for (std::size_t Index = 0; Index < Record.Frames.size(); ++Index)
	{
		REQUIRE(
			!Zef::CheckSequenceFrame(Record.Frames[Index], static_cast<std::uint32_t>(Index), Vertices, FuzzLimits()));
	}
	REQUIRE(Zef::IsObjectType(Item.ObjectType));
}

/** The record of an object or an animation survives another journey. */
void RequireRoundTrip(const Zef::FReceivedRecord& Record, const Zef::FDecodedItem& Item, EReceiver Receiver)
{
	const auto Animation = std::make_shared<Zef::FJointAnimation>();
	Animation->Mesh = Record.SurfaceMesh;
	Animation->Sequence = Record.Sequence;
	Zef::FEncodedItem Again;
	if (Item.Item == EItem::SurfaceMesh)
	{
		Again = Zef::EncodeSurfaceMesh(Item.ObjectType, {Animation, &Animation->Mesh});
	}
	else if (Item.Item == EItem::JointAnimation)
	{
		Again = Zef::EncodeJointAnimation(Item.ObjectType, Animation);
	}
	else if (Item.Item == EItem::SendJointAnimation)
	{
		Again = Zef::EncodeJointAnimationRequest(Item.Info, Animation);
	}
	else
	{
		return;
	}
	FArrivals Arrivals;
	Arrivals.Receiver = Receiver;
	FArrival& Arrival = Arrivals.Items.emplace_back();
	Arrival.Header = Again.Header;
	for (const Zef::FChunk& Chunk : Again.Chunks)
	{
		Arrival.Payload.insert(Arrival.Payload.end(), Chunk.Data, Chunk.Data + Chunk.Size);
	}
	Zef::FRecordFactory Factory;
	Zef::FItemDecoder Decoder(Factory, Receiver, FuzzLimits());
	REQUIRE(Receive(Decoder, Arrivals, 100) == EDecode::Complete);
	const Zef::FDecodedItem Taken = Decoder.Take();
	const auto& Second = static_cast<const Zef::FReceivedRecord&>(*Taken.Record);
	REQUIRE(Second.SurfaceMesh == Record.SurfaceMesh);
	REQUIRE(Second.Sequence == Record.Sequence);
}

/** Two ways to cut the arrays give the same outcome. */
struct FOutcome
{
	EDecode Result = EDecode::More;
	Zef::EFault Code = Zef::EFault::None;
	std::string Path;
	bool bOverrun = false;
};

FOutcome Decode(const FArrivals& Arrivals, std::size_t PieceBytes, bool bLookAtRecord)
{
	Zef::FRecordFactory Factory;
	Zef::FItemDecoder Decoder(Factory, Arrivals.Receiver, FuzzLimits());
	FOutcome Outcome;
	const EDecode Result = Outcome.Result = Receive(Decoder, Arrivals, PieceBytes, &Outcome.bOverrun);
	if (Result == EDecode::Refused)
	{
		Outcome.Code = Decoder.Fault().Code;
		Outcome.Path = Decoder.Fault().Path;
		REQUIRE(Zef::FaultInfo(Outcome.Code).Code != Zef::EFault::None);
		REQUIRE(Decoder.Fault().Severity == Zef::FaultInfo(Outcome.Code).Severity);
		REQUIRE(!Decoder.Fault().Message.empty());
		REQUIRE(!Decoder.IsItemOpen());
	}
	if (Result == EDecode::Complete && bLookAtRecord)
	{
		const Zef::FDecodedItem Item = Decoder.Take();
		REQUIRE(Item.Item != EItem::None);
		if (Item.Record)
		{
			const auto& Record = static_cast<const Zef::FReceivedRecord&>(*Item.Record);
			RequireChecked(Record, Item, Arrivals.Receiver);
			RequireRoundTrip(Record, Item, Arrivals.Receiver);
		}
	}
	return Outcome;
}

/** The bytes as a prefix and as a greeting. */
void ReadGreetings(Zef::FByteView Bytes)
{
	Zef::FLinkFault Fault;
	if (const std::optional<Zef::FPrefix> Prefix = Zef::DecodePrefix(Bytes, Fault))
	{
		const auto Again = Zef::EncodePrefix(*Prefix);
		REQUIRE(std::equal(Again.begin(), Again.end(), Bytes.begin(), Bytes.end()));
	}
	else
	{
		REQUIRE(Fault.Code == Zef::EFault::BadPrefix || Fault.Code == Zef::EFault::UnknownFrame);
	}
	if (const std::optional<Zef::FHello> Hello = Zef::DecodeHello(Bytes))
	{
		REQUIRE(Hello->MinVersion <= Hello->MaxVersion && Hello->WindowBytes > 0 && Hello->MaxPieceBytes > 0);
	}
	Zef::DecodeWelcome(Bytes);
	Zef::DecodeRefused(Bytes);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	const FArrivals Arrivals = ReadArrivals({Data, Size});
	for (const FArrival& Arrival : Arrivals.Items)
	{
		ReadGreetings(Arrival.Header);
	}
	const FOutcome Whole = Decode(Arrivals, 1u << 20, true);
	const FOutcome InPieces = Decode(Arrivals, 7, false);
	REQUIRE(Whole.bOverrun || InPieces.Result == Whole.Result);
	REQUIRE(Whole.bOverrun || InPieces.Code == Whole.Code);
	REQUIRE(Whole.bOverrun || InPieces.Path == Whole.Path);
	return 0;
}
