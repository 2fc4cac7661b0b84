// SPDX-License-Identifier: MIT
// What a sender's check refuses, the receiver refuses, with the same report; what it lets pass, the receiver takes as
// it was. The records are what an input holds, unchecked.
#include "Support/Require.h"
#include "Support/UncheckedRecord.h"
#include "Zef/Check.h"
#include "Zef/RecordPool.h"

namespace
{
using namespace Fuzz;
using Zef::EDecode;
using Zef::EItem;
using Zef::EReceiver;

EReceiver ReceiverOf(EItem Item)
{
	return Item == EItem::SendJointAnimation ? EReceiver::GarmentApplication : EReceiver::Editor;
}

Zef::FLinkFault CheckRecord(const FUncheckedRecord& Record)
{
	const Zef::FSurfaceMesh& Mesh = Record.Animation.Mesh;
	const Zef::EIndexBase Base =
		Record.Item == EItem::SendJointAnimation ? Zef::EIndexBase::Model : Zef::EIndexBase::Surface;
	if (Zef::FLinkFault Fault = Zef::CheckMesh(Mesh, Base))
	{
		return Fault;
	}
	return Record.HasPoses() ? Zef::CheckJointSequence(Zef::Pack(Record.Animation.Sequence), Mesh.Joints.size())
							 : Zef::FLinkFault();
}

void CheckMeshRecord(const FUncheckedRecord& Record)
{
	const Zef::FLinkFault Fault = CheckRecord(Record);
	FArrivals Arrivals;
	Arrivals.Receiver = ReceiverOf(Record.Item);
	Arrivals.Items.push_back(WriteUnchecked(Record));
	Zef::FRecordFactory Factory;
	Zef::FItemDecoder Decoder(Factory, Arrivals.Receiver, {});
	const EDecode Result = Receive(Decoder, Arrivals, 50);
	if (Fault)
	{
		REQUIRE(Result == EDecode::Refused);
		// An animation's layouts come before the arrays of its mesh, so the first fault may be another one.
		if (!Record.HasPoses())
		{
			REQUIRE(Decoder.Fault().Code == Fault.Code);
			REQUIRE(Decoder.Fault().Path == Fault.Path);
			REQUIRE(Decoder.Fault().Message == Fault.Message);
		}
		return;
	}
	// A sequence begins and waits for its frames.
	REQUIRE(Result == (Record.Item == EItem::SequenceBegin ? EDecode::More : EDecode::Complete));
	REQUIRE(!Decoder.IsItemOpen());
	if (Result == EDecode::Complete)
	{
		const Zef::FDecodedItem Item = Decoder.Take();
		const auto& Received = static_cast<const Zef::FReceivedRecord&>(*Item.Record);
		REQUIRE(Received.SurfaceMesh == Record.Animation.Mesh);
		REQUIRE(Received.Sequence == Record.Animation.Sequence);
	}
}

void CheckFrameRecord(const FUncheckedRecord& Record)
{
	const std::size_t Vertices = Record.Frame.Positions.size();
	const Zef::FLinkFault Fault = Zef::CheckSequenceFrame(Record.Frame, 0, Vertices);
	auto Cloth = std::make_shared<Zef::FSurfaceMesh>();
	Zef::FSurface& Surface = Cloth->Surfaces.emplace_back();
	Surface.Positions.resize(Vertices);
	Surface.Normals.resize(Vertices);
	Surface.Tangents.resize(Vertices);
	FUncheckedRecord Begin;
	Begin.Item = EItem::SequenceBegin;
	Begin.Info.ObjectType = Zef::EObjectType::Garment;
	Begin.Animation.Mesh = *Cloth;
	FUncheckedRecord Frame = Record;
	Frame.Number = 0;
	FArrivals Arrivals;
	Arrivals.Items = {WriteUnchecked(Begin), WriteUnchecked(Frame)};
	Zef::FRecordFactory Factory;
	Zef::FItemDecoder Decoder(Factory, EReceiver::Editor, {});
	const EDecode Result = Receive(Decoder, Arrivals, 50);
	REQUIRE((Result == EDecode::Refused) == static_cast<bool>(Fault) || Frame.Frame.Normals.size() != Vertices ||
			Frame.Frame.Tangents.size() != Vertices);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	for (const FArrival& Arrival : ReadArrivals({Data, Size}).Items)
	{
		std::optional<FUncheckedRecord> Record = ReadUnchecked(Arrival);
		if (!Record)
		{
			continue;
		}
		if (Record->HasMesh())
		{
			Record->Info = {Zef::EObjectType::Avatar, Zef::EAnimationKind::JointAnimation};
			CheckMeshRecord(*Record);
		}
		else if (Record->Item == EItem::SequenceFrame)
		{
			CheckFrameRecord(*Record);
		}
	}
	return 0;
}
