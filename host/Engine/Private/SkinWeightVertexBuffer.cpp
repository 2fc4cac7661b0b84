// SPDX-License-Identifier: MIT
#include "Rendering/SkinWeightVertexBuffer.h"

#include "Rendering/SkeletalMeshLODModel.h"

namespace
{
/** 16-bit weights as bytes; the first takes what rounding adds or takes, as far as a byte reaches. */
void QuantizeWeights(const uint16* Weights, uint32 Num, uint8* OutBytes)
{
	int32 SumOfWeights = 0;
	int32 SumOfBytes = 0;
	for (uint32 Slot = 0; Slot < Num; ++Slot)
	{
		OutBytes[Slot] = uint8((Weights[Slot] + 128) / 257);
		SumOfWeights += Weights[Slot];
		SumOfBytes += OutBytes[Slot];
	}
	if (Num > 0)
	{
		const int32 Missing = (SumOfWeights + 128) / 257 - SumOfBytes;
		OutBytes[0] = uint8(FMath::Clamp(OutBytes[0] + Missing, 0, 255));
	}
}

uint16 Load16(const uint8* Bytes)
{
	uint16 Value;
	FMemory::Memcpy(&Value, Bytes, sizeof(Value));
	return Value;
}
} // namespace

void FSkinWeightVertexBuffer::Init(uint32 InNumVertices)
{
	check(MaxBoneInfluences <= MAX_TOTAL_INFLUENCES);
	NumVertices = InNumVertices;
	Data.SetNumUninitialized(int32(NumVertices * GetStride()), false);
}

void FSkinWeightVertexBuffer::SetVertexSkinWeights(uint32 VertexIndex, const FSoftSkinVertex& Vertex)
{
	uint8* Bones = Data.GetData() + VertexIndex * GetStride();
	uint8* Weights = Bones + MaxBoneInfluences * GetBoneBytes();
	if (bUse16BitBoneIndex)
	{
		FMemory::Memcpy(Bones, Vertex.InfluenceBones, MaxBoneInfluences * sizeof(uint16));
	}
	else
	{
		for (uint32 Slot = 0, Num = MaxBoneInfluences; Slot < Num; ++Slot)
		{
			Bones[Slot] = uint8(Vertex.InfluenceBones[Slot]);
		}
	}
	if (bUse16BitBoneWeight)
	{
		FMemory::Memcpy(Weights, Vertex.InfluenceWeights, MaxBoneInfluences * sizeof(uint16));
	}
	else
	{
		QuantizeWeights(Vertex.InfluenceWeights, MaxBoneInfluences, Weights);
	}
}

uint32 FSkinWeightVertexBuffer::GetBoneIndex(uint32 VertexIndex, uint32 InfluenceIndex) const
{
	check(VertexIndex < NumVertices);
	if (InfluenceIndex >= MaxBoneInfluences)
	{
		return 0;
	}
	const uint8* Bone = Data.GetData() + VertexIndex * GetStride() + InfluenceIndex * GetBoneBytes();
	return bUse16BitBoneIndex ? Load16(Bone) : *Bone;
}

uint16 FSkinWeightVertexBuffer::GetBoneWeight(uint32 VertexIndex, uint32 InfluenceIndex) const
{
	check(VertexIndex < NumVertices);
	if (InfluenceIndex >= MaxBoneInfluences)
	{
		return 0;
	}
	const uint8* Weights = Data.GetData() + VertexIndex * GetStride() + MaxBoneInfluences * GetBoneBytes();
	return bUse16BitBoneWeight ? Load16(Weights + InfluenceIndex * sizeof(uint16))
							   : uint16(Weights[InfluenceIndex] * 257);
}

FSkinWeightInfo FSkinWeightVertexBuffer::GetVertexSkinWeights(uint32 VertexIndex) const
{
	FSkinWeightInfo Info;
	for (uint32 Slot = 0; Slot < MAX_TOTAL_INFLUENCES; ++Slot)
	{
		Info.InfluenceBones[Slot] = FBoneIndexType(GetBoneIndex(VertexIndex, Slot));
		Info.InfluenceWeights[Slot] = GetBoneWeight(VertexIndex, Slot);
	}
	return Info;
}

void FSkinWeightVertexBuffer::GetSkinWeights(TArray<FSkinWeightInfo>& OutVertices) const
{
	OutVertices.SetNumUninitialized(int32(NumVertices));
	for (uint32 Vertex = 0; Vertex < NumVertices; ++Vertex)
	{
		OutVertices[int32(Vertex)] = GetVertexSkinWeights(Vertex);
	}
}
