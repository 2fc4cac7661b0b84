// SPDX-License-Identifier: MIT
#include "Support/UncheckedRecord.h"

#include "HeaderReader.h"

#include <algorithm>
#include <cstring>

namespace Fuzz
{

namespace
{
/** Bounds of what is worth mutating. */
constexpr std::uint64_t MaxElements = 4096;
constexpr std::uint64_t MaxStructure = 1u << 20;

/** Fills arrays from bytes, one after the other. */
class FFiller
{
public:
	explicit FFiller(Zef::FByteView InBytes)
		: Bytes(InBytes)
	{
	}

	template <class TElement>
	void Fill(std::vector<TElement>& Array, std::uint64_t Count)
	{
		const std::uint64_t There = Bytes.size() / sizeof(TElement);
		Array.resize(std::min({Count, There, MaxElements}));
		if (!Array.empty())
		{
			std::memcpy(static_cast<void*>(Array.data()), Bytes.data(), Array.size() * sizeof(TElement));
			Bytes = Bytes.subspan(Array.size() * sizeof(TElement));
		}
	}

private:
	Zef::FByteView Bytes;
};

void FillMesh(FFiller& Filler, const Zef::FMeshCounts& Counts, Zef::FSurfaceMesh& Mesh)
{
	for (std::size_t Index = 0; Index < Mesh.Surfaces.size(); ++Index)
	{
		Zef::FSurface& Surface = Mesh.Surfaces[Index];
		const Zef::FSurfaceCounts& Count = Counts.Surfaces[Index];
		Filler.Fill(Surface.Positions, Count.Positions);
		Filler.Fill(Surface.Normals, Count.Normals);
		Filler.Fill(Surface.Tangents, Count.Tangents);
		Filler.Fill(Surface.UVs, Count.UVs);
		for (std::size_t Section = 0; Section < Surface.Sections.size(); ++Section)
		{
			Filler.Fill(Surface.Sections[Section].Indices, Count.SectionIndices[Section]);
		}
	}
	Filler.Fill(Mesh.VertexInfluences.FirstWeight, Counts.FirstWeight);
	Filler.Fill(Mesh.VertexInfluences.Weights, Counts.Weights);
	for (std::size_t Index = 0; Index < Mesh.Textures.size(); ++Index)
	{
		Filler.Fill(Mesh.Textures[Index].second.Pixels, Counts.TexturePixels[Index]);
	}
}

/** Poses of layouts that are there; a frame of a layout that is not moves nothing. */
void FillPoses(FFiller& Filler, const Zef::Wire::JointSequence& Table, std::vector<Zef::FJointTable>&& Tables,
	Zef::FJointSequence& Out)
{
	std::vector<double> Times;
	std::vector<std::uint32_t> TableOfFrame;
	std::vector<Zef::FTransform> Transforms;
	Filler.Fill(Times, Table.frames());
	Filler.Fill(TableOfFrame, Table.frames());
	Filler.Fill(Transforms, Table.transforms());
	TableOfFrame.resize(Times.size());
	std::size_t Next = 0;
	for (std::size_t Index = 0; Index < Times.size(); ++Index)
	{
		Zef::FJointSequenceFrame& Frame = Out.Frames.emplace_back();
		Frame.Time = Times[Index];
		if (TableOfFrame[Index] >= Tables.size())
		{
			continue;
		}
		for (const Zef::FJointTable::FEntry& Entry : Tables[TableOfFrame[Index]].Joints)
		{
			const Zef::FTransform Transform = Next < Transforms.size() ? Transforms[Next] : Zef::FTransform();
			++Next;
			Frame.Joints.push_back({Entry.Name, Entry.ParentIndex, Transform});
		}
	}
}

bool ReadMeshOf(FUncheckedRecord& Record, const Zef::Wire::Mesh* Mesh, const Zef::Wire::JointSequence* Sequence,
	const Zef::FBytes& Payload)
{
	Zef::FMemoryBudget Budget(MaxStructure);
	Zef::FHeaderReader Reader(Budget);
	Zef::FMeshHeader Header;
	std::vector<Zef::FJointTable> Tables;
	if (Mesh == nullptr || !Reader.ReadMesh(*Mesh, Header) ||
		(Record.HasPoses() && (Sequence == nullptr || !Reader.ReadTables(*Sequence, Tables))))
	{
		return false;
	}
	FFiller Filler(Payload);
	Record.Animation.Mesh = std::move(Header.Structure);
	FillMesh(Filler, Header.Counts, Record.Animation.Mesh);
	if (Record.HasPoses())
	{
		FillPoses(Filler, *Sequence, std::move(Tables), Record.Animation.Sequence);
	}
	return true;
}

Zef::FObjectTypeInfo InfoOf(std::int32_t ObjectType, std::int32_t Kind)
{
	return {static_cast<Zef::EObjectType>(ObjectType), static_cast<Zef::EAnimationKind>(Kind)};
}

Zef::FPackingOptions OptionsOf(const Zef::Wire::PackingOptions* Options)
{
	return Options != nullptr ? Zef::FPackingOptions{Options->weld(), Options->unified_material()}
							  : Zef::FPackingOptions{};
}
} // namespace

bool FUncheckedRecord::HasMesh() const
{
	return HasPoses() || Item == Zef::EItem::SurfaceMesh || Item == Zef::EItem::SequenceBegin;
}

bool FUncheckedRecord::HasPoses() const
{
	return Item == Zef::EItem::JointAnimation || Item == Zef::EItem::SendJointAnimation;
}

std::optional<FUncheckedRecord> ReadUnchecked(const FArrival& Arrival)
{
	using namespace Zef;
	flatbuffers::Verifier Verifier(Arrival.Header.data(), Arrival.Header.size(), 16, 1u << 16);
	if (!Wire::VerifySizePrefixedItemBuffer(Verifier))
	{
		return std::nullopt;
	}
	const Wire::Item& Item = *Wire::GetSizePrefixedItem(Arrival.Header.data());
	FUncheckedRecord Record;
	Record.Item = ItemOf(Item.body_type());
	if (Item.body() == nullptr)
	{
		return std::nullopt;
	}
	switch (Record.Item)
	{
		case EItem::Enable:
			Record.Options.bWeld = Item.body_as_EnableRequest()->enabled();
			return Record;
		case EItem::RequestUpdate:
			Record.Options = OptionsOf(Item.body_as_UpdateRequest()->options());
			return Record;
		case EItem::RequestAnimation:
		{
			const Wire::AnimationRequest& Body = *Item.body_as_AnimationRequest();
			Record.Options = OptionsOf(Body.options());
			Record.Info = InfoOf(Body.object_type(), Body.kind());
			return Record;
		}
		case EItem::RequestAvailability:
			return Record;
		case EItem::SendJointAnimation:
		{
			const Wire::JointAnimationRequest& Body = *Item.body_as_JointAnimationRequest();
			Record.Info = InfoOf(Body.object_type(), Body.kind());
			return ReadMeshOf(Record, Body.mesh(), Body.sequence(), Arrival.Payload) ? std::optional(Record)
																					 : std::nullopt;
		}
		case EItem::SurfaceMesh:
		{
			const Wire::SurfaceMeshReply& Body = *Item.body_as_SurfaceMeshReply();
			Record.Info = InfoOf(Body.object_type(), 0);
			return ReadMeshOf(Record, Body.mesh(), nullptr, Arrival.Payload) ? std::optional(Record) : std::nullopt;
		}
		case EItem::JointAnimation:
		{
			const Wire::JointAnimationReply& Body = *Item.body_as_JointAnimationReply();
			Record.Info = InfoOf(Body.object_type(), 0);
			return ReadMeshOf(Record, Body.mesh(), Body.sequence(), Arrival.Payload) ? std::optional(Record)
																					 : std::nullopt;
		}
		case EItem::SequenceBegin:
		{
			const Wire::SequenceBeginReply& Body = *Item.body_as_SequenceBeginReply();
			Record.Info = InfoOf(Body.object_type(), 0);
			return ReadMeshOf(Record, Body.mesh(), nullptr, Arrival.Payload) ? std::optional(Record) : std::nullopt;
		}
		case EItem::SequenceFrame:
		{
			const Wire::SequenceFrameReply& Body = *Item.body_as_SequenceFrameReply();
			FFiller Filler(Arrival.Payload);
			Record.Number = Body.index();
			Record.Frame.Time = Body.time();
			Filler.Fill(Record.Frame.Positions, Body.vertices());
			Filler.Fill(Record.Frame.Normals, Body.vertices());
			Filler.Fill(Record.Frame.Tangents, Body.vertices());
			return Record;
		}
		case EItem::SequenceEnd:
			Record.Number = Item.body_as_SequenceEndReply()->frames();
			return Record;
		case EItem::Availability:
		{
			const Wire::AvailabilityReply& Body = *Item.body_as_AvailabilityReply();
			Record.Availability = {Body.flag0(), Body.garment_has_animation(), Body.flag2(),
				Body.avatar_has_animation(), Body.avatar_has_skeleton()};
			return Record;
		}
		case EItem::Fault:
		{
			const Wire::FaultReport& Body = *Item.body_as_FaultReport();
			Record.Fault = MakeFault(static_cast<EFault>(Body.code()), Body.path() ? Body.path()->str() : "",
				Body.message() ? Body.message()->str() : "");
			return Record;
		}
		case EItem::UpdateAnnouncement:
		{
			const auto* Objects = Item.body_as_UpdateAnnouncement()->objects();
			const std::size_t Count = Objects != nullptr ? std::min<std::size_t>(Objects->size(), MaxElements) : 0;
			for (std::size_t Index = 0; Index < Count; ++Index)
			{
				const Wire::AnnouncedObject& Object = *Objects->Get(static_cast<flatbuffers::uoffset_t>(Index));
				Record.Announcement.Objects.push_back({static_cast<EObjectType>(Object.object_type()), Object.bytes()});
			}
			return Record;
		}
		default:
			return std::nullopt;
	}
}

FArrival WriteUnchecked(const FUncheckedRecord& Record)
{
	using namespace Zef;
	const auto Animation = std::make_shared<FJointAnimation>(Record.Animation);
	const std::shared_ptr<const FSurfaceMesh> Mesh(Animation, &Animation->Mesh);
	FEncodedItem Item;
	switch (Record.Item)
	{
		case EItem::Enable:
			Item = EncodeEnable(Record.Options.bWeld);
			break;
		case EItem::RequestUpdate:
			Item = EncodeUpdateRequest(Record.Options);
			break;
		case EItem::RequestAnimation:
			Item = EncodeAnimationRequest(Record.Info, Record.Options);
			break;
		case EItem::SendJointAnimation:
			Item = EncodeJointAnimationRequest(Record.Info, Animation);
			break;
		case EItem::SurfaceMesh:
			Item = EncodeSurfaceMesh(Record.Info.ObjectType, Mesh);
			break;
		case EItem::JointAnimation:
			Item = EncodeJointAnimation(Record.Info.ObjectType, Animation);
			break;
		case EItem::SequenceBegin:
			Item = EncodeSequenceBegin(Record.Info.ObjectType, Mesh);
			break;
		case EItem::SequenceFrame:
			Item = EncodeSequenceFrame(Record.Number, std::make_shared<FMeshSequenceFrame>(Record.Frame));
			break;
		case EItem::SequenceEnd:
			Item = EncodeSequenceEnd(Record.Number);
			break;
		case EItem::Availability:
			Item = EncodeAvailability(Record.Availability);
			break;
		case EItem::Fault:
			Item = EncodeFault(Record.Fault);
			break;
		case EItem::UpdateAnnouncement:
			Item = EncodeUpdateAnnouncement(Record.Announcement);
			break;
		default:
			Item = EncodeAvailabilityRequest();
			break;
	}
	FArrival Arrival;
	Arrival.Header = std::move(Item.Header);
	for (const FChunk& Chunk : Item.Chunks)
	{
		Arrival.Payload.insert(Arrival.Payload.end(), Chunk.Data, Chunk.Data + Chunk.Size);
	}
	return Arrival;
}

} // namespace Fuzz
