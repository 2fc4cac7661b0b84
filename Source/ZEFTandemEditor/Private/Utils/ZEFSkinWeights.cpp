// SPDX-License-Identifier: MIT
#include "Utils/ZEFSkinWeights.h"

#include "Rendering/SkeletalMeshLODModel.h"

namespace ZEFEditorUtils
{

namespace
{

constexpr int32 NumBoneIds = 65536;

/** Truncates in 32-bit float arithmetic, each operation rounded, then keeps the low 16 bits. */
uint16 QuantizeWeight(float Weight)
{
	const float Scaled = Weight * 65534.0f;
	return static_cast<uint16>(static_cast<int64>(Scaled + 1.0f));
}

} // namespace

FQuantizedInfluences::FQuantizedInfluences(const TArray<FZEFVertexInfluence>& Influences)
{
	int32 NumPairs = 0;
	for (const FZEFVertexInfluence& Vertex : Influences)
	{
		NumPairs += Vertex.Influences.Num();
	}
	Packed.Reserve(NumPairs);
	FirstOfVertex.Reserve(Influences.Num() + 1);
	FirstOfVertex.Add(0);

	// Where each bone stands in Packed. An entry counts only from the vertex's own first pair on and only while it
	// names its bone, so the table needs no clearing between vertices.
	TArray<int32> PlaceOfBone;
	PlaceOfBone.SetNumZeroed(NumBoneIds);
	for (const FZEFVertexInfluence& Vertex : Influences)
	{
		const int32 First = Packed.Num();
		for (const FZEFBoneInfluence& Pair : Vertex.Influences)
		{
			const uint16 Bone = static_cast<uint16>(Pair.BoneIndex);
			const uint16 Weight = QuantizeWeight(Pair.Weight);
			const int32 Place = PlaceOfBone[Bone];
			if (Place >= First && Place < Packed.Num() && Packed[Place].Bone == Bone)
			{
				Packed[Place].Weight = Weight;
			}
			else
			{
				PlaceOfBone[Bone] = Packed.Num();
				Packed.Add({Bone, Weight});
			}
		}
		TArrayView<FQuantizedInfluence> OfVertex = MakeArrayView(Packed.GetData() + First, Packed.Num() - First);
		OfVertex.Sort([](const FQuantizedInfluence& A, const FQuantizedInfluence& B) { return A.Weight > B.Weight; });
		FirstOfVertex.Add(Packed.Num());
	}
}

void FQuantizedInfluences::Apply(int32 Vertex, FSoftSkinVertex& OutVertex) const
{
	FMemory::Memzero(OutVertex.InfluenceBones, sizeof(OutVertex.InfluenceBones));
	FMemory::Memzero(OutVertex.InfluenceWeights, sizeof(OutVertex.InfluenceWeights));
	OutVertex.InfluenceWeights[0] = 65535;
	if (static_cast<uint32>(Vertex) >= static_cast<uint32>(FirstOfVertex.Num() - 1))
	{
		return;
	}
	const int32 First = FirstOfVertex[Vertex];
	const int32 Count = FMath::Min<int32>(FirstOfVertex[Vertex + 1] - First, MAX_TOTAL_INFLUENCES);
	uint16 Rest = 65535;
	for (int32 Slot = 0; Slot < Count; ++Slot)
	{
		const FQuantizedInfluence& Influence = Packed[First + Slot];
		OutVertex.InfluenceBones[Slot] = Influence.Bone;
		OutVertex.InfluenceWeights[Slot] = Influence.Weight;
		Rest = static_cast<uint16>(Rest - Influence.Weight);
	}
	// Also for an empty list: 65535 + 65535 wraps to 65534, and the vertex hangs on bone 0 with that.
	OutVertex.InfluenceWeights[0] = static_cast<uint16>(OutVertex.InfluenceWeights[0] + Rest);
}

} // namespace ZEFEditorUtils
