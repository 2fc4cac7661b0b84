// SPDX-License-Identifier: MIT
#include "Decoder.h"
#include "SequenceCheck.h"
#include "Text.h"
#include "Zef/Check.h"

#include <cmath>

namespace Zef
{

namespace
{
/** What the other end says about itself: read in any case, but fit for one line of a log. */
std::string Line(const flatbuffers::String* String, std::size_t Bytes)
{
	return String != nullptr ? OneLine(String->string_view(), Bytes) : std::string();
}
} // namespace

EDecode FItemDecoder::FImpl::CheckInfo(std::int32_t ObjectType, std::int32_t AnimationKind, bool bKindNeeded)
{
	if (!IsObjectType(static_cast<EObjectType>(ObjectType)))
	{
		return Refuse(
			EFault::ObjectType, "/ObjectType", "2, 4, 8 or 16 was expected; " + std::to_string(ObjectType) + " came.");
	}
	const std::int32_t Highest = bKindNeeded ? 1 : 2;
	if (AnimationKind < 0 || AnimationKind > Highest)
	{
		return Refuse(EFault::AnimationKind, "/AnimationKind",
			std::string("0 to ") + std::to_string(Highest) + " was expected; " + std::to_string(AnimationKind) +
				" came.");
	}
	Done.ObjectType = static_cast<EObjectType>(ObjectType);
	Done.Info = {Done.ObjectType, static_cast<EAnimationKind>(AnimationKind)};
	return EDecode::More;
}

EDecode FItemDecoder::FImpl::CompleteSmall()
{
	if (PayloadBytes != 0)
	{
		return Refuse(EFault::PayloadSize, "/payload_bytes",
			std::string("0 was expected, because a ") + ToString(Kind) + " has no arrays; " +
				std::to_string(PayloadBytes) + " came.");
	}
	return EDecode::Complete;
}

EDecode FItemDecoder::FImpl::ReadBody(const Wire::Item& Item)
{
	const auto Options = [](const Wire::PackingOptions* Packing) {
		return Packing != nullptr ? FPackingOptions{Packing->weld(), Packing->unified_material()} : FPackingOptions{};
	};
	switch (Kind)
	{
		case EItem::Enable:
			Done.bEnabled = Item.body_as_EnableRequest()->enabled();
			return CompleteSmall();
		case EItem::RequestUpdate:
			Done.Options = Options(Item.body_as_UpdateRequest()->options());
			return CompleteSmall();
		case EItem::RequestAnimation:
		{
			const Wire::AnimationRequest& Request = *Item.body_as_AnimationRequest();
			Done.Options = Options(Request.options());
			const EDecode Result = CheckInfo(Request.object_type(), Request.kind(), true);
			return Result == EDecode::Refused ? Result : CompleteSmall();
		}
		case EItem::RequestAvailability:
			return CompleteSmall();
		case EItem::SendJointAnimation:
		{
			const Wire::JointAnimationRequest& Request = *Item.body_as_JointAnimationRequest();
			const EDecode Result = CheckInfo(Request.object_type(), Request.kind(), false);
			bJointAnimation = true;
			return Result == EDecode::Refused ? Result : BeginMesh(Done.ObjectType, Request.mesh(), Request.sequence());
		}
		case EItem::SurfaceMesh:
		{
			const Wire::SurfaceMeshReply& Reply = *Item.body_as_SurfaceMeshReply();
			const EDecode Result = CheckInfo(Reply.object_type(), 0, false);
			return Result == EDecode::Refused ? Result : BeginMesh(Done.ObjectType, Reply.mesh(), nullptr);
		}
		case EItem::JointAnimation:
		{
			const Wire::JointAnimationReply& Reply = *Item.body_as_JointAnimationReply();
			const EDecode Result = CheckInfo(Reply.object_type(), 0, false);
			bJointAnimation = true;
			return Result == EDecode::Refused ? Result : BeginMesh(Done.ObjectType, Reply.mesh(), Reply.sequence());
		}
		case EItem::SequenceBegin:
		{
			if (Sequence.bOpen)
			{
				Truncation = MakeFault(EFault::SequenceUnexpected, "",
					"A frame or the end of the mesh sequence was expected after " + std::to_string(Sequence.Frames) +
						" frames; another one began.");
				TruncationNumber = Number;
			}
			Sequence = {};
			const Wire::SequenceBeginReply& Reply = *Item.body_as_SequenceBeginReply();
			const EDecode Result = CheckInfo(Reply.object_type(), 0, false);
			return Result == EDecode::Refused ? Result : BeginMesh(Done.ObjectType, Reply.mesh(), nullptr);
		}
		case EItem::SequenceFrame:
			return BeginFrame(*Item.body_as_SequenceFrameReply());
		case EItem::SequenceEnd:
			return EndSequence(*Item.body_as_SequenceEndReply());
		case EItem::Availability:
		{
			const Wire::AvailabilityReply& Reply = *Item.body_as_AvailabilityReply();
			Done.Availability = {Reply.flag0(), Reply.garment_has_animation(), Reply.flag2(),
				Reply.avatar_has_animation(), Reply.avatar_has_skeleton()};
			return CompleteSmall();
		}
		case EItem::Fault:
		{
			const Wire::FaultReport& Report = *Item.body_as_FaultReport();
			Done.Fault = {static_cast<EFault>(Report.code()),
				static_cast<EFaultSeverity>(Report.severity() > 2 ? 2 : Report.severity()),
				Line(Report.path(), Limits.MaxPathBytes), Line(Report.message(), Limits.MaxPathBytes)};
			Done.FaultItem = Report.item();
			return CompleteSmall();
		}
		case EItem::UpdateAnnouncement:
			return ReadAnnouncement(*Item.body_as_UpdateAnnouncement());
		case EItem::None:
			break;
	}
	return Refuse(EFault::UnknownItem, "", "The item is of no known kind.");
}

EDecode FItemDecoder::FImpl::ReadAnnouncement(const Wire::UpdateAnnouncement& Announcement)
{
	const auto* Objects = Announcement.objects();
	for (flatbuffers::uoffset_t Index = 0; Objects != nullptr && Index < Objects->size(); ++Index)
	{
		const Wire::AnnouncedObject& Object = *Objects->Get(Index);
		const std::string Path = "/Objects/" + std::to_string(Index) + "/ObjectType";
		const auto ObjectType = static_cast<EObjectType>(Object.object_type());
		if (!IsObjectType(ObjectType))
		{
			return Refuse(EFault::ObjectType, Path,
				"2, 4, 8 or 16 was expected; " + std::to_string(Object.object_type()) + " came.");
		}
		for (const FAnnouncedObject& Former : Done.Announcement.Objects)
		{
			if (Former.ObjectType == ObjectType)
			{
				return Refuse(EFault::KeyTwice, Path,
					"Each object type was expected once; " + std::to_string(Object.object_type()) + " came again.");
			}
		}
		Done.Announcement.Objects.push_back({ObjectType, Object.bytes()});
	}
	return CompleteSmall();
}

EDecode FItemDecoder::FImpl::BeginMesh(
	EObjectType ObjectType, const Wire::Mesh* Mesh, const Wire::JointSequence* JointTable)
{
	if (Mesh == nullptr || (bJointAnimation && JointTable == nullptr))
	{
		return Refuse(
			EFault::MissingField, Mesh == nullptr ? "/Mesh" : "/Sequence", "The table was expected; it is absent.");
	}
	const EIndexBase IndexBase = Receiver == EReceiver::Editor ? EIndexBase::Surface : EIndexBase::Model;
	FHeaderReader Reader(Structure);
	FMeshHeader Header;
	if (!Reader.ReadMesh(*Mesh, Header))
	{
		Reader.Fault.Path.insert(0, MeshPrefix());
		return Refuse(std::move(Reader.Fault));
	}
	if (FLinkFault Found = CheckStructure(Header.Structure, Header.Counts, IndexBase, Limits))
	{
		Found.Path = MeshPrefix() + Found.Path;
		return Refuse(std::move(Found));
	}
	std::vector<FArrayRule> Rules;
	for (const FArraySlot& Slot : SlotsOf(Header.Counts))
	{
		Rules.push_back(RuleOf(Slot, Header.Structure, Header.Counts, IndexBase));
		Rules.back().Prefix = MeshPrefix();
	}
	if (bJointAnimation)
	{
		if (!Reader.ReadTables(*JointTable, Joints.Tables))
		{
			Reader.Fault.Path.insert(0, "/Sequence");
			return Refuse(std::move(Reader.Fault));
		}
		TransformCount = JointTable->transforms();
		if (FLinkFault Found = CheckSequenceStructure(
				Joints.Tables, JointTable->frames(), TransformCount, Header.Structure.Joints.size(), Limits))
		{
			return Refuse(std::move(Found));
		}
		const auto Add = [&Rules](EArray Array, std::uint64_t Count, std::size_t Bound = 0)
		{
			if (Count != 0)
			{
				FArrayRule& Rule = Rules.emplace_back();
				Rule.Slot = {Array, 0, 0, Count};
				Rule.Bound = static_cast<std::uint32_t>(Bound);
			}
		};
		Add(EArray::SequenceTimes, JointTable->frames());
		Add(EArray::SequenceTables, JointTable->frames(), Joints.Tables.size());
		Add(EArray::SequenceTransforms, TransformCount);
	}
	if (Kind == EItem::SequenceBegin)
	{
		Sequence.ObjectType = ObjectType;
		Sequence.Vertices = Header.Counts.VertexCount();
		Sequence.Bytes = Done.Bytes;
		Sequence.ArrayBytes = PayloadBytes;
	}
	Sink = Factory.MakeSink(Kind, ObjectType);
	if (!Sink)
	{
		return Refuse(EFault::OutOfMemory, "", "Memory for the record was expected; there is none.");
	}
	Sink->Mesh(std::move(Header));
	return BeginPayload(std::move(Rules), &Joints);
}

EDecode FItemDecoder::FImpl::BeginFrame(const Wire::SequenceFrameReply& Frame)
{
	if (Sequence.bDropped)
	{
		return Ignore();
	}
	const std::string Path = At("", "Frames", Frame.index());
	if (!Sequence.bOpen)
	{
		return Refuse(EFault::SequenceUnexpected, Path, "The beginning of a mesh sequence was expected; a frame came.");
	}
	if (Frame.index() != Sequence.Frames || Sequence.Frames >= Limits.MaxFrames)
	{
		return Refuse(EFault::SequenceFrame, Path,
			"Frame " + std::to_string(Sequence.Frames) + " of at most " + std::to_string(Limits.MaxFrames) +
				" was expected; " + std::to_string(Frame.index()) + " came.");
	}
	if (!std::isfinite(Frame.time()))
	{
		return Refuse(EFault::NotFinite, Path + "/Time",
			"A finite number was expected; this one is " +
				(std::isnan(Frame.time()) ? std::string("not a number.") : std::string("infinite.")));
	}
	if (Sequence.Frames > 0 && Frame.time() < Sequence.LastTime)
	{
		return Refuse(EFault::TimeOrder, Path + "/Time",
			"At least " + std::to_string(Sequence.LastTime) + " seconds were expected; " +
				std::to_string(Frame.time()) + " came.");
	}
	if (Frame.vertices() != Sequence.Vertices)
	{
		return Refuse(EFault::CountMismatch, Path + "/Positions",
			std::to_string(Sequence.Vertices) + " were expected, one for each vertex of the mesh; " +
				std::to_string(Frame.vertices()) + " came.");
	}
	if (PayloadBytes > Limits.MaxItemBytes || Sequence.ArrayBytes + PayloadBytes > Limits.MaxItemBytes)
	{
		return Refuse(EFault::OverBudget, Path,
			"At most " + std::to_string(Limits.MaxItemBytes) + " bytes were expected for the sequence; " +
				std::to_string(Sequence.ArrayBytes) + " are there and " + std::to_string(PayloadBytes) +
				" more are announced.");
	}
	std::vector<FArrayRule> Rules;
	for (const EArray Array : {EArray::FramePositions, EArray::FrameNormals, EArray::FrameTangents})
	{
		if (Frame.vertices() != 0)
		{
			Rules.emplace_back().Slot = {Array, Frame.index(), 0, Frame.vertices()};
		}
	}
	Sequence.Sink->Frame(Frame.index(), Frame.time());
	Sequence.LastTime = Frame.time();
	return BeginPayload(std::move(Rules), nullptr);
}

EDecode FItemDecoder::FImpl::EndSequence(const Wire::SequenceEndReply& End)
{
	if (Sequence.bDropped)
	{
		Sequence = {};
		return Ignore();
	}
	if (!Sequence.bOpen)
	{
		return Refuse(EFault::SequenceUnexpected, "", "The beginning of a mesh sequence was expected; an end came.");
	}
	FSequence Ended = std::move(Sequence);
	Sequence = {};
	if (End.frames() != Ended.Frames)
	{
		return Refuse(EFault::SequenceLength, "/Frames",
			std::to_string(End.frames()) + " frames were expected by the end; " + std::to_string(Ended.Frames) +
				" came.");
	}
	if (CompleteSmall() == EDecode::Refused)
	{
		return EDecode::Refused;
	}
	Ended.Sink->Finish();
	Done.Item = EItem::SequenceBegin;
	Done.ObjectType = Ended.ObjectType;
	Done.Record = std::move(Ended.Sink);
	Done.Bytes += Ended.Bytes;
	return EDecode::Complete;
}

} // namespace Zef
