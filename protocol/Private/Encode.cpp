// SPDX-License-Identifier: MIT
#include "Zef/Encode.h"

#include "HeaderWriter.h"
#include "Zef/RecordSink.h"

#include <bit>
#include <cstring>

namespace Zef
{

// Arrays travel as they lie in memory.
static_assert(std::endian::native == std::endian::little, "The link's arrays are little-endian.");
static_assert(sizeof(FVec2) == 8 && sizeof(FVec3) == 12 && sizeof(FBoneWeight) == 8 && sizeof(FTransform) == 40,
	"The link's elements are packed.");

namespace
{
using FBuilder = flatbuffers::FlatBufferBuilder;

/** Arrays below this are gathered: a message of its own costs about as much as copying so many bytes. */
constexpr std::size_t GatherBytes = 64u << 10;

/** Lines up arrays as chunks. */
class FChunkList
{
public:
	FChunkList(FEncodedItem& InItem, std::uint32_t InPieceBytes)
		: Item(InItem)
		, PieceBytes(InPieceBytes == 0 ? DefaultPieceBytes : InPieceBytes)
	{
	}
	~FChunkList() { Flush(); }

	FChunkList(const FChunkList&) = delete;
	FChunkList& operator=(const FChunkList&) = delete;

	template <class TElement>
	void Add(const std::vector<TElement>& Array, const std::shared_ptr<const void>& Owner)
	{
		const auto* Data = reinterpret_cast<const std::uint8_t*>(Array.data());
		std::size_t Left = Array.size() * sizeof(TElement);
		Item.PayloadBytes += Left;
		if (Left < GatherBytes)
		{
			Gather(Data, Left);
			return;
		}
		Flush();
		while (Left > 0)
		{
			const std::size_t Size = Left < PieceBytes ? Left : PieceBytes;
			Item.Chunks.push_back({Data, Size, Owner});
			Data += Size;
			Left -= Size;
		}
	}

private:
	void Gather(const std::uint8_t* Data, std::size_t Left)
	{
		while (Left > 0)
		{
			if (!Gathered)
			{
				Gathered = std::make_shared<FBytes>();
				Gathered->reserve(PieceBytes < GatherBytes ? PieceBytes : GatherBytes);
			}
			const std::size_t Room = PieceBytes - Gathered->size();
			const std::size_t Size = Left < Room ? Left : Room;
			Gathered->insert(Gathered->end(), Data, Data + Size);
			Data += Size;
			Left -= Size;
			if (Gathered->size() == PieceBytes)
			{
				Flush();
			}
		}
	}

	void Flush()
	{
		if (Gathered)
		{
			Item.Chunks.push_back({Gathered->data(), Gathered->size(), Gathered});
			Gathered.reset();
		}
	}

	FEncodedItem& Item;
	const std::size_t PieceBytes;
	std::shared_ptr<FBytes> Gathered;
};

void AddMesh(FChunkList& Chunks, const FSurfaceMesh& Mesh, const std::shared_ptr<const void>& Owner)
{
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		Chunks.Add(Surface.Positions, Owner);
		Chunks.Add(Surface.Normals, Owner);
		Chunks.Add(Surface.Tangents, Owner);
		Chunks.Add(Surface.UVs, Owner);
		for (const FSection& Section : Surface.Sections)
		{
			Chunks.Add(Section.Indices, Owner);
		}
	}
	Chunks.Add(Mesh.VertexInfluences.FirstWeight, Owner);
	Chunks.Add(Mesh.VertexInfluences.Weights, Owner);
	for (const auto& [Key, Texture] : Mesh.Textures)
	{
		Chunks.Add(Texture.Pixels, Owner);
	}
}

void AddSequence(FChunkList& Chunks, const std::shared_ptr<const FPackedJointSequence>& Sequence)
{
	Chunks.Add(Sequence->Times, Sequence);
	Chunks.Add(Sequence->TableOfFrame, Sequence);
	Chunks.Add(Sequence->Transforms, Sequence);
}

template <class TBody>
void FinishHeader(FEncodedItem& Item, FBuilder& Builder, flatbuffers::Offset<TBody> Body)
{
	Builder.FinishSizePrefixed(
		Wire::CreateItem(Builder, Wire::BodyTraits<TBody>::enum_value, Body.Union(), Item.PayloadBytes));
	const auto View = Builder.GetBufferSpan();
	Item.Header.assign(View.begin(), View.end());
}

Wire::PackingOptions ToWire(const FPackingOptions& Options)
{
	return {Options.bWeld, Options.bUnifiedMaterial};
}

std::int32_t ToWire(EObjectType ObjectType)
{
	return static_cast<std::int32_t>(ObjectType);
}
} // namespace

FEncodedItem EncodeEnable(bool bEnabled)
{
	FEncodedItem Item;
	Item.Item = EItem::Enable;
	FBuilder Builder;
	FinishHeader(Item, Builder, Wire::CreateEnableRequest(Builder, bEnabled));
	return Item;
}

FEncodedItem EncodeUpdateRequest(const FPackingOptions& Options)
{
	FEncodedItem Item;
	Item.Item = EItem::RequestUpdate;
	FBuilder Builder;
	const Wire::PackingOptions Packing = ToWire(Options);
	FinishHeader(Item, Builder, Wire::CreateUpdateRequest(Builder, &Packing));
	return Item;
}

FEncodedItem EncodeAnimationRequest(const FObjectTypeInfo& Info, const FPackingOptions& Options)
{
	FEncodedItem Item;
	Item.Item = EItem::RequestAnimation;
	FBuilder Builder;
	const Wire::PackingOptions Packing = ToWire(Options);
	FinishHeader(Item, Builder,
		Wire::CreateAnimationRequest(
			Builder, ToWire(Info.ObjectType), static_cast<std::int32_t>(Info.AnimationKind), &Packing));
	return Item;
}

FEncodedItem EncodeAvailabilityRequest()
{
	FEncodedItem Item;
	Item.Item = EItem::RequestAvailability;
	FBuilder Builder;
	FinishHeader(Item, Builder, Wire::CreateAvailabilityRequest(Builder));
	return Item;
}

namespace
{
/** An item of a mesh alone. MakeBody writes the item's table from the builder and the mesh's structure. */
template <class TMakeBody>
FEncodedItem EncodeMeshItem(
	EItem Kind, const std::shared_ptr<const FSurfaceMesh>& Mesh, std::uint32_t PieceBytes, const TMakeBody& MakeBody)
{
	FEncodedItem Item;
	Item.Item = Kind;
	{
		FChunkList Chunks(Item, PieceBytes);
		AddMesh(Chunks, *Mesh, Mesh);
	}
	FBuilder Builder;
	const auto Structure = WriteMesh(Builder, *Mesh);
	FinishHeader(Item, Builder, MakeBody(Builder, Structure));
	return Item;
}

/** An item of a mesh with its joint sequence; MakeBody takes the sequence's table too. */
template <class TMakeBody>
FEncodedItem EncodeAnimationItem(EItem Kind, const std::shared_ptr<const FJointAnimation>& Animation,
	std::uint32_t PieceBytes, const TMakeBody& MakeBody)
{
	FEncodedItem Item;
	Item.Item = Kind;
	const auto Sequence = std::make_shared<const FPackedJointSequence>(Pack(Animation->Sequence));
	{
		FChunkList Chunks(Item, PieceBytes);
		AddMesh(Chunks, Animation->Mesh, Animation);
		AddSequence(Chunks, Sequence);
	}
	FBuilder Builder;
	const auto Mesh = WriteMesh(Builder, Animation->Mesh);
	const auto Frames = WriteSequence(Builder, *Sequence);
	FinishHeader(Item, Builder, MakeBody(Builder, Mesh, Frames));
	return Item;
}
} // namespace

FEncodedItem EncodeJointAnimationRequest(
	const FObjectTypeInfo& Info, std::shared_ptr<const FJointAnimation> Animation, std::uint32_t PieceBytes)
{
	return EncodeAnimationItem(EItem::SendJointAnimation, Animation, PieceBytes,
		[&](FBuilder& Builder, const auto& Mesh, const auto& Frames)
		{
			return Wire::CreateJointAnimationRequest(
				Builder, ToWire(Info.ObjectType), static_cast<std::int32_t>(Info.AnimationKind), Mesh, Frames);
		});
}

FEncodedItem EncodeSurfaceMesh(
	EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh, std::uint32_t PieceBytes)
{
	return EncodeMeshItem(EItem::SurfaceMesh, Mesh, PieceBytes,
		[&](FBuilder& Builder, const auto& Structure)
		{ return Wire::CreateSurfaceMeshReply(Builder, ToWire(ObjectType), Structure); });
}

FEncodedItem EncodeJointAnimation(
	EObjectType ObjectType, std::shared_ptr<const FJointAnimation> Animation, std::uint32_t PieceBytes)
{
	return EncodeAnimationItem(EItem::JointAnimation, Animation, PieceBytes,
		[&](FBuilder& Builder, const auto& Mesh, const auto& Frames)
		{ return Wire::CreateJointAnimationReply(Builder, ToWire(ObjectType), Mesh, Frames); });
}

FEncodedItem EncodeSequenceBegin(
	EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh, std::uint32_t PieceBytes)
{
	return EncodeMeshItem(EItem::SequenceBegin, Mesh, PieceBytes,
		[&](FBuilder& Builder, const auto& Structure)
		{ return Wire::CreateSequenceBeginReply(Builder, ToWire(ObjectType), Structure); });
}

FEncodedItem EncodeSequenceFrame(
	std::uint32_t Index, std::shared_ptr<const FMeshSequenceFrame> Frame, std::uint32_t PieceBytes)
{
	FEncodedItem Item;
	Item.Item = EItem::SequenceFrame;
	{
		FChunkList Chunks(Item, PieceBytes);
		Chunks.Add(Frame->Positions, Frame);
		Chunks.Add(Frame->Normals, Frame);
		Chunks.Add(Frame->Tangents, Frame);
	}
	FBuilder Builder;
	FinishHeader(Item, Builder, Wire::CreateSequenceFrameReply(Builder, Index, Frame->Time, Frame->Positions.size()));
	return Item;
}

FEncodedItem EncodeSequenceEnd(std::uint32_t FrameCount)
{
	FEncodedItem Item;
	Item.Item = EItem::SequenceEnd;
	FBuilder Builder;
	FinishHeader(Item, Builder, Wire::CreateSequenceEndReply(Builder, FrameCount));
	return Item;
}

FEncodedItem EncodeAvailability(const FAvailability& Availability)
{
	FEncodedItem Item;
	Item.Item = EItem::Availability;
	FBuilder Builder;
	FinishHeader(Item, Builder,
		Wire::CreateAvailabilityReply(Builder, Availability.bFlag0, Availability.bGarmentHasAnimation,
			Availability.bFlag2, Availability.bAvatarHasAnimation, Availability.bAvatarHasSkeleton));
	return Item;
}

FEncodedItem EncodeUpdateAnnouncement(const FUpdateAnnouncement& Announcement)
{
	FEncodedItem Item;
	Item.Item = EItem::UpdateAnnouncement;
	FBuilder Builder;
	std::vector<flatbuffers::Offset<Wire::AnnouncedObject>> Objects;
	for (const FAnnouncedObject& Object : Announcement.Objects)
	{
		Objects.push_back(Wire::CreateAnnouncedObject(Builder, ToWire(Object.ObjectType), Object.Bytes));
	}
	FinishHeader(Item, Builder, Wire::CreateUpdateAnnouncement(Builder, Builder.CreateVector(Objects)));
	return Item;
}

FEncodedItem EncodeFault(const FLinkFault& Fault, std::uint64_t ItemNumber)
{
	FEncodedItem Item;
	Item.Item = EItem::Fault;
	FBuilder Builder;
	const auto Path = Builder.CreateString(Fault.Path);
	const auto Message = Builder.CreateString(Fault.Message);
	FinishHeader(Item, Builder,
		Wire::CreateFaultReport(Builder, static_cast<std::uint16_t>(Fault.Code),
			static_cast<std::uint8_t>(Fault.Severity), Path, Message, ItemNumber));
	return Item;
}

} // namespace Zef
