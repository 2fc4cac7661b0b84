// SPDX-License-Identifier: MIT
#include "Utils/ZEFSkinWeights.h"

#include "Rendering/SkeletalMeshLODModel.h"
#include "Templates/Sorting.h"

namespace ZEFEditorUtils
{

namespace
{

constexpr int32 NumBoneIds = 65536;

/** Lists up to this length are sorted by counting for each entry how many stand before it. */
constexpr int32 NumLanes = 16;

/** Truncates in 32-bit float arithmetic, each operation rounded, then keeps the low 16 bits. */
uint16 QuantizeWeight(float Weight)
{
	const float Scaled = Weight * 65534.0f;
	return static_cast<uint16>(static_cast<int64>(Scaled + 1.0f));
}

/**
 * Writes the places that the first `Num` entries take when the heaviest comes first.
 *
 * Every entry is compared with every other, without branches and with a fixed count of lanes, so that the compiler
 * compares several at once: weights of neighbours are too alike to be predicted, and a sort would stumble at each.
 */
void RankByWeight(const FQuantizedInfluence* Entries, int32 Num, int32 (&OutRanks)[NumLanes])
{
	// One key orders by weight, and by place among equal weights.
	int32 Keys[NumLanes];
	for (int32 Lane = 0; Lane < NumLanes; ++Lane)
	{
		Keys[Lane] = -1;
		OutRanks[Lane] = 0;
	}
	for (int32 Lane = 0; Lane < Num; ++Lane)
	{
		Keys[Lane] = static_cast<int32>(Entries[Lane].Weight) * NumLanes + (NumLanes - 1 - Lane);
	}
	for (int32 Entry = 0; Entry < Num; ++Entry)
	{
		const int32 Key = Keys[Entry];
		for (int32 Lane = 0; Lane < NumLanes; ++Lane)
		{
			OutRanks[Lane] += Keys[Lane] < Key ? 1 : 0;
		}
	}
}

} // namespace

FInfluenceQuantizer::FInfluenceQuantizer(const TArray<FZEFVertexInfluence>& InInfluences)
	: Influences(InInfluences)
{
	PlaceOfBone.SetNumZeroed(NumBoneIds);
}

/** Fills Quantized in the order of the list. @return how many entries there are */
int32 FInfluenceQuantizer::Quantize(const TArray<FZEFBoneInfluence>& Pairs)
{
	const int32 NumPairs = Pairs.Num();
	if (Quantized.Num() < NumPairs)
	{
		Quantized.SetNumUninitialized(NumPairs);
	}
	FQuantizedInfluence* const Entries = Quantized.GetData();
	uint64* const Places = PlaceOfBone.GetData();
	int32 Num = 0;
	for (const FZEFBoneInfluence& Pair : Pairs)
	{
		const uint16 Bone = static_cast<uint16>(Pair.BoneIndex);
		const uint16 Weight = QuantizeWeight(Pair.Weight);
		uint64& Place = Places[Bone];
		if (Place >= VertexStart)
		{
			Entries[Place - VertexStart].Weight = Weight;
			continue;
		}
		Place = VertexStart + static_cast<uint64>(Num);
		Entries[Num++] = {Bone, Weight};
	}
	VertexStart += static_cast<uint64>(Num);
	return Num;
}

void FInfluenceQuantizer::Apply(int32 Vertex, FSoftSkinVertex& OutVertex)
{
	FMemory::Memzero(OutVertex.InfluenceBones, sizeof(OutVertex.InfluenceBones));
	FMemory::Memzero(OutVertex.InfluenceWeights, sizeof(OutVertex.InfluenceWeights));
	OutVertex.InfluenceWeights[0] = 65535;
	if (static_cast<uint32>(Vertex) >= static_cast<uint32>(Influences.Num()))
	{
		return;
	}
	const int32 Num = Quantize(Influences[Vertex].Influences);
	uint16 Rest = 65535;
	if (Num <= NumLanes)
	{
		int32 Ranks[NumLanes];
		RankByWeight(Quantized.GetData(), Num, Ranks);
		for (int32 Entry = 0; Entry < Num; ++Entry)
		{
			const FQuantizedInfluence& Influence = Quantized.GetData()[Entry];
			if (Ranks[Entry] < MAX_TOTAL_INFLUENCES)
			{
				OutVertex.InfluenceBones[Ranks[Entry]] = Influence.Bone;
				OutVertex.InfluenceWeights[Ranks[Entry]] = Influence.Weight;
				Rest = static_cast<uint16>(Rest - Influence.Weight);
			}
		}
	}
	else
	{
		FQuantizedInfluence* const Sorted = Quantized.GetData();
		StableSort(Sorted, Num,
			[](const FQuantizedInfluence& A, const FQuantizedInfluence& B) { return A.Weight > B.Weight; });
		for (int32 Slot = 0; Slot < MAX_TOTAL_INFLUENCES; ++Slot)
		{
			OutVertex.InfluenceBones[Slot] = Sorted[Slot].Bone;
			OutVertex.InfluenceWeights[Slot] = Sorted[Slot].Weight;
			Rest = static_cast<uint16>(Rest - Sorted[Slot].Weight);
		}
	}
	// Also for an empty list: 65535 + 65535 wraps to 65534, and the vertex hangs on bone 0 with that.
	OutVertex.InfluenceWeights[0] = static_cast<uint16>(OutVertex.InfluenceWeights[0] + Rest);
}

} // namespace ZEFEditorUtils
