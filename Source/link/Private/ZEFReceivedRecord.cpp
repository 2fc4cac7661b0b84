// SPDX-License-Identifier: MIT
#include "ZEFReceivedRecord.h"

#include "ZEFRecordConversion.h"

#include <cstring>

namespace
{
template <typename ElementType>
struct TPooledArrayOps
{
	static constexpr std::size_t ElementBytes = sizeof(ElementType);
	static std::size_t Capacity(const TArray<ElementType>& Array) { return static_cast<std::size_t>(Array.Max()); }
};

template <typename ElementType>
using TPooledArrays = Zef::TArrayPool<TArray<ElementType>, TPooledArrayOps<ElementType>>;

/** Storage in Array for Count elements, none of them written. */
template <typename ElementType>
void* Prepare(TPooledArrays<ElementType>& Pool, TArray<ElementType>& Array, std::uint64_t Count)
{
	Array = Pool.Take(static_cast<std::size_t>(Count));
	Array.SetNumUninitialized(static_cast<int32>(Count), false);
	return Array.GetData();
}
} // namespace

/** One pool for each element type of the records. */
struct FZEFRecordPools
{
	TPooledArrays<FVector3f> Vectors;
	TPooledArrays<FVector2f> UVs;
	TPooledArrays<int32> Indices;
	TPooledArrays<uint32> Offsets;
	TPooledArrays<FZEFBoneInfluence> Weights;
	TPooledArrays<uint8> Bytes;
	/** Elements keep their own arrays, so that a skinned mesh of the same size allocates nothing for its vertices. */
	TPooledArrays<FZEFVertexInfluence> Influences;

	void NextRound()
	{
		Vectors.NextRound();
		UVs.NextRound();
		Indices.NextRound();
		Offsets.NextRound();
		Weights.NextRound();
		Bytes.NextRound();
		Influences.NextRound();
	}
};

FZEFReceivedRecord::FZEFReceivedRecord(std::shared_ptr<FZEFRecordPools> InPools)
	: Pools(std::move(InPools))
{
}

FZEFReceivedRecord::~FZEFReceivedRecord()
{
	FZEFSurfaceMesh& SurfaceMesh = Animation.Mesh;
	for (FZEFSurface& Surface : SurfaceMesh.Surfaces)
	{
		Pools->Vectors.Give(MoveTemp(Surface.Positions));
		Pools->Vectors.Give(MoveTemp(Surface.Normals));
		Pools->Vectors.Give(MoveTemp(Surface.Tangents));
		Pools->UVs.Give(MoveTemp(Surface.UVs));
		for (FZEFSection& Section : Surface.Sections)
		{
			Pools->Indices.Give(MoveTemp(Section.Indices));
		}
	}
	for (TPair<int32, FZEFTexture>& Texture : SurfaceMesh.Textures)
	{
		Pools->Bytes.Give(MoveTemp(Texture.Value.Pixels));
	}
	for (FZEFMeshSequenceFrame& Each : Frames)
	{
		Pools->Vectors.Give(MoveTemp(Each.Positions));
		Pools->Vectors.Give(MoveTemp(Each.Normals));
		Pools->Vectors.Give(MoveTemp(Each.Tangents));
	}
	Pools->Influences.Give(MoveTemp(SurfaceMesh.VertexInfluences));
	Pools->Offsets.Give(MoveTemp(FirstWeight));
	Pools->Weights.Give(MoveTemp(Weights));
}

void FZEFReceivedRecord::Mesh(Zef::FMeshHeader&& Header)
{
	const Zef::FSurfaceMesh& From = Header.Structure;
	FZEFSurfaceMesh& To = Animation.Mesh;
	To.Surfaces.SetNum(static_cast<int32>(From.Surfaces.size()));
	for (int32 Index = 0; Index < To.Surfaces.Num(); ++Index)
	{
		const Zef::FSurface& FromSurface = From.Surfaces[static_cast<std::size_t>(Index)];
		FZEFSurface& Surface = To.Surfaces[Index];
		Surface.Name = ZEFRecordConversion::ToString(FromSurface.Name);
		Surface.SurfaceType = FromSurface.SurfaceType;
		Surface.SurfaceMode = FromSurface.SurfaceMode;
		Surface.VertexOffset = FromSurface.VertexOffset;
		Surface.Sections.SetNum(static_cast<int32>(FromSurface.Sections.size()));
		for (int32 Section = 0; Section < Surface.Sections.Num(); ++Section)
		{
			Surface.Sections[Section].MaterialIndex =
				FromSurface.Sections[static_cast<std::size_t>(Section)].MaterialIndex;
		}
	}
	To.Joints.Reserve(static_cast<int32>(From.Joints.size()));
	for (const Zef::FJoint& Joint : From.Joints)
	{
		To.Joints.Add(ZEFRecordConversion::ToJoint(Joint));
	}
	for (const auto& [Key, Material] : From.Materials)
	{
		To.Materials.Add(Key, ZEFRecordConversion::ToMaterial(Material));
	}
	for (const auto& [Key, Texture] : From.Textures)
	{
		FZEFTexture& Added = To.Textures.Add(Key);
		Added.Format = Texture.Format;
		Added.Width = Texture.Width;
		Added.Height = Texture.Height;
	}
	// The map grows no more, so its values stay where they are.
	for (TPair<int32, FZEFTexture>& Texture : To.Textures)
	{
		TextureOfPosition.Add(&Texture.Value);
	}
}

void* FZEFReceivedRecord::Allocate(const Zef::FArraySlot& Slot)
{
	TArray<FZEFSurface>& Surfaces = Animation.Mesh.Surfaces;
	const int32 Outer = static_cast<int32>(Slot.Outer);
	switch (Slot.Array)
	{
		case Zef::EArray::Positions:
			return Prepare(Pools->Vectors, Surfaces[Outer].Positions, Slot.Count);
		case Zef::EArray::Normals:
			return Prepare(Pools->Vectors, Surfaces[Outer].Normals, Slot.Count);
		case Zef::EArray::Tangents:
			return Prepare(Pools->Vectors, Surfaces[Outer].Tangents, Slot.Count);
		case Zef::EArray::UVs:
			return Prepare(Pools->UVs, Surfaces[Outer].UVs, Slot.Count);
		case Zef::EArray::Indices:
			return Prepare(
				Pools->Indices, Surfaces[Outer].Sections[static_cast<int32>(Slot.Inner)].Indices, Slot.Count);
		case Zef::EArray::FirstWeight:
			return Prepare(Pools->Offsets, FirstWeight, Slot.Count);
		case Zef::EArray::Weights:
			return Prepare(Pools->Weights, Weights, Slot.Count);
		case Zef::EArray::Pixels:
			return Prepare(Pools->Bytes, TextureOfPosition[Outer]->Pixels, Slot.Count);
		case Zef::EArray::FramePositions:
			return Prepare(Pools->Vectors, Frames[Outer].Positions, Slot.Count);
		case Zef::EArray::FrameNormals:
			return Prepare(Pools->Vectors, Frames[Outer].Normals, Slot.Count);
		case Zef::EArray::FrameTangents:
			return Prepare(Pools->Vectors, Frames[Outer].Tangents, Slot.Count);
		default:
			return nullptr;
	}
}

void FZEFReceivedRecord::JointSequence(Zef::FPackedJointSequence&& Sequence)
{
	ZEFRecordConversion::ToSequence(Sequence, Animation.Sequence);
}

void FZEFReceivedRecord::Frame(std::uint32_t Index, double Time)
{
	Frames.SetNum(static_cast<int32>(Index) + 1);
	Frames[static_cast<int32>(Index)].Time = Time;
}

void FZEFReceivedRecord::Finish()
{
	SpreadInfluences();
}

/** From the packed form to one array for each vertex. */
void FZEFReceivedRecord::SpreadInfluences()
{
	const int32 NumVertices = FirstWeight.Num() - 1;
	if (NumVertices <= 0)
	{
		return;
	}
	TArray<FZEFVertexInfluence>& Influences = Animation.Mesh.VertexInfluences;
	Influences = Pools->Influences.Take(static_cast<std::size_t>(NumVertices));
	Influences.SetNum(NumVertices, false);
	for (int32 Vertex = 0; Vertex < NumVertices; ++Vertex)
	{
		TArray<FZEFBoneInfluence>& Pairs = Influences[Vertex].Influences;
		const uint32 First = FirstWeight[Vertex];
		Pairs.SetNumUninitialized(static_cast<int32>(FirstWeight[Vertex + 1] - First), false);
		if (Pairs.Num() > 0)
		{
			std::memcpy(static_cast<void*>(Pairs.GetData()), Weights.GetData() + First,
				static_cast<std::size_t>(Pairs.Num()) * sizeof(FZEFBoneInfluence));
		}
	}
}

FZEFRecordFactory::FZEFRecordFactory()
	: Pools(std::make_shared<FZEFRecordPools>())
{
}

std::unique_ptr<Zef::IRecordSink> FZEFRecordFactory::MakeSink(Zef::EItem, Zef::EObjectType)
{
	Pools->NextRound();
	return std::make_unique<FZEFReceivedRecord>(Pools);
}
