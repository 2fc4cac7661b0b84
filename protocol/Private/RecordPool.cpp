// SPDX-License-Identifier: MIT
#include "Zef/RecordPool.h"

#include "Zef/ArrayPool.h"

namespace Zef
{

namespace
{
template <class TElement>
struct TVectorOps
{
	static constexpr std::size_t ElementBytes = sizeof(TElement);
	static std::size_t Capacity(const std::vector<TElement>& Vector) { return Vector.capacity(); }
};

template <class TElement>
using TVectorPool = TArrayPool<std::vector<TElement>, TVectorOps<TElement>>;
} // namespace

/** One pool for each element type of the records. */
class FVectorPools
{
public:
	TVectorPool<FVec3> Vec3s;
	TVectorPool<FVec2> Vec2s;
	TVectorPool<std::int32_t> Indices;
	TVectorPool<std::uint32_t> Offsets;
	TVectorPool<FBoneWeight> Weights;
	TVectorPool<std::uint8_t> Bytes;

	void NextRound()
	{
		Vec3s.NextRound();
		Vec2s.NextRound();
		Indices.NextRound();
		Offsets.NextRound();
		Weights.NextRound();
		Bytes.NextRound();
	}
};

namespace
{
/** Storage in Vector for Count elements. A vector from the pool keeps its old elements, so growing it clears little. */
template <class TElement>
void* Prepare(TVectorPool<TElement>& Pool, std::vector<TElement>& Vector, std::uint64_t Count)
{
	Vector = Pool.Take(Count);
	Vector.resize(Count);
	return Vector.data();
}
} // namespace

FReceivedRecord::FReceivedRecord(std::shared_ptr<FVectorPools> InPools)
	: Pools(std::move(InPools))
{
}

FReceivedRecord::~FReceivedRecord()
{
	for (FSurface& Surface : SurfaceMesh.Surfaces)
	{
		Pools->Vec3s.Give(std::move(Surface.Positions));
		Pools->Vec3s.Give(std::move(Surface.Normals));
		Pools->Vec3s.Give(std::move(Surface.Tangents));
		Pools->Vec2s.Give(std::move(Surface.UVs));
		for (FSection& Section : Surface.Sections)
		{
			Pools->Indices.Give(std::move(Section.Indices));
		}
	}
	Pools->Offsets.Give(std::move(SurfaceMesh.VertexInfluences.FirstWeight));
	Pools->Weights.Give(std::move(SurfaceMesh.VertexInfluences.Weights));
	for (auto& [Key, Texture] : SurfaceMesh.Textures)
	{
		Pools->Bytes.Give(std::move(Texture.Pixels));
	}
	for (FMeshSequenceFrame& Frame : Frames)
	{
		Pools->Vec3s.Give(std::move(Frame.Positions));
		Pools->Vec3s.Give(std::move(Frame.Normals));
		Pools->Vec3s.Give(std::move(Frame.Tangents));
	}
}

void FReceivedRecord::Mesh(FMeshHeader&& Header)
{
	SurfaceMesh = std::move(Header.Structure);
}

void* FReceivedRecord::Allocate(const FArraySlot& Slot)
{
	switch (Slot.Array)
	{
		case EArray::Positions:
			return Prepare(Pools->Vec3s, SurfaceMesh.Surfaces[Slot.Outer].Positions, Slot.Count);
		case EArray::Normals:
			return Prepare(Pools->Vec3s, SurfaceMesh.Surfaces[Slot.Outer].Normals, Slot.Count);
		case EArray::Tangents:
			return Prepare(Pools->Vec3s, SurfaceMesh.Surfaces[Slot.Outer].Tangents, Slot.Count);
		case EArray::UVs:
			return Prepare(Pools->Vec2s, SurfaceMesh.Surfaces[Slot.Outer].UVs, Slot.Count);
		case EArray::Indices:
			return Prepare(Pools->Indices, SurfaceMesh.Surfaces[Slot.Outer].Sections[Slot.Inner].Indices, Slot.Count);
		case EArray::FirstWeight:
			return Prepare(Pools->Offsets, SurfaceMesh.VertexInfluences.FirstWeight, Slot.Count);
		case EArray::Weights:
			return Prepare(Pools->Weights, SurfaceMesh.VertexInfluences.Weights, Slot.Count);
		case EArray::Pixels:
			return Prepare(Pools->Bytes, SurfaceMesh.Textures[Slot.Outer].second.Pixels, Slot.Count);
		case EArray::FramePositions:
			return Prepare(Pools->Vec3s, Frames[Slot.Outer].Positions, Slot.Count);
		case EArray::FrameNormals:
			return Prepare(Pools->Vec3s, Frames[Slot.Outer].Normals, Slot.Count);
		case EArray::FrameTangents:
			return Prepare(Pools->Vec3s, Frames[Slot.Outer].Tangents, Slot.Count);
		default:
			return nullptr;
	}
}

void FReceivedRecord::JointSequence(FPackedJointSequence&& Packed)
{
	Sequence = Unpack(Packed);
}

void FReceivedRecord::Frame(std::uint32_t Index, double Time)
{
	Frames.resize(Index + 1);
	Frames[Index].Time = Time;
}

void FReceivedRecord::Finish() {}

FRecordFactory::FRecordFactory()
	: Pools(std::make_shared<FVectorPools>())
{
}

std::unique_ptr<IRecordSink> FRecordFactory::MakeSink(EItem, EObjectType)
{
	Pools->NextRound();
	return std::make_unique<FReceivedRecord>(Pools);
}

void IRecordHandler::OnItem(FReceivedItem& Item)
{
	auto& Record = static_cast<FReceivedRecord&>(*Item.Record);
	switch (Item.Item)
	{
		case EItem::SurfaceMesh:
			OnSurfaceMesh(Item.ObjectType, std::move(Record.SurfaceMesh));
			break;
		case EItem::JointAnimation:
		{
			FJointAnimation Animation{std::move(Record.SurfaceMesh), std::move(Record.Sequence)};
			OnJointAnimation(Item.ObjectType, std::move(Animation));
			Record.SurfaceMesh = std::move(Animation.Mesh);
			break;
		}
		case EItem::SequenceBegin:
			OnMeshSequence(Item.ObjectType, std::move(Record.SurfaceMesh), std::move(Record.Frames));
			break;
		default:
			break;
	}
}

} // namespace Zef
