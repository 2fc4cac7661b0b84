// SPDX-License-Identifier: MIT
#include "ArrayCheck.h"

#include "Text.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace Zef
{

namespace
{
// The loops below test a block at a time without branches, so that the compiler can use vector instructions; only a
// block that holds something suspicious is looked at element by element.
constexpr std::uint64_t Block = 256;

constexpr std::uint32_t ExponentMask = 0x7f800000;

/** A weight of 65535 times the float nearest to 1/65535 is a little above 1; this leaves room for such roundings. */
constexpr float HighestWeight = 1.0001f;

/** Index of the first element in [First, Last) that is not good, or Last. Suspicious tells quickly of a whole block. */
template <class TSuspicious, class TGood>
std::uint64_t FindBad(std::uint64_t First, std::uint64_t Last, const TSuspicious& IsSuspicious, const TGood& IsGood)
{
	while (First < Last)
	{
		const std::uint64_t End = Last - First < Block ? Last : First + Block;
		if (End - First < Block || IsSuspicious(First))
		{
			for (; First < End; ++First)
			{
				if (!IsGood(First))
				{
					return First;
				}
			}
		}
		First = End;
	}
	return Last;
}

std::uint64_t FindNotFinite(const std::uint32_t* Floats, std::uint64_t First, std::uint64_t Last)
{
	const auto IsSuspicious = [Floats](std::uint64_t Begin)
	{
		std::uint32_t Bad = 0;
		for (std::uint64_t Step = 0; Step < Block; ++Step)
		{
			Bad |= static_cast<std::uint32_t>((Floats[Begin + Step] & ExponentMask) == ExponentMask);
		}
		return Bad != 0;
	};
	const auto IsGood = [Floats](std::uint64_t Index) { return (Floats[Index] & ExponentMask) != ExponentMask; };
	return FindBad(First, Last, IsSuspicious, IsGood);
}

std::uint64_t FindOutOfRange(
	const std::uint32_t* Indices, std::uint64_t First, std::uint64_t Last, std::uint32_t Base, std::uint32_t Bound)
{
	const auto IsSuspicious = [=](std::uint64_t Begin)
	{
		std::uint32_t Bad = 0;
		for (std::uint64_t Step = 0; Step < Block; ++Step)
		{
			Bad |= static_cast<std::uint32_t>(Indices[Begin + Step] - Base >= Bound);
		}
		return Bad != 0;
	};
	return FindBad(First, Last, IsSuspicious, [=](std::uint64_t Index) { return Indices[Index] - Base < Bound; });
}

std::uint64_t FindBadWeight(const FBoneWeight* Pairs, std::uint64_t First, std::uint64_t Last, std::uint32_t Joints)
{
	const std::uint32_t BoneBound = Joints == 0 ? ~0u : Joints;
	const std::uint32_t WeightBound = std::bit_cast<std::uint32_t>(HighestWeight) + 1;
	const auto IsSuspicious = [=](std::uint64_t Begin)
	{
		// Non-negative floats order like their bits; negative ones, -0 among them, and NaNs are above the bound.
		std::uint32_t Bad = 0;
		for (std::uint64_t Step = 0; Step < Block; ++Step)
		{
			const FBoneWeight& Pair = Pairs[Begin + Step];
			Bad |= static_cast<std::uint32_t>(static_cast<std::uint32_t>(Pair.BoneIndex) >= BoneBound);
			Bad |= static_cast<std::uint32_t>(std::bit_cast<std::uint32_t>(Pair.Weight) >= WeightBound);
		}
		return Bad != 0;
	};
	const auto IsGood = [=](std::uint64_t Index)
	{
		const FBoneWeight& Pair = Pairs[Index];
		return (Joints == 0 || static_cast<std::uint32_t>(Pair.BoneIndex) < Joints) && Pair.Weight >= 0 &&
			   Pair.Weight <= HighestWeight;
	};
	return FindBad(First, Last, IsSuspicious, IsGood);
}

std::string Number(double Value)
{
	return std::isnan(Value) ? "not a number" : std::isinf(Value) ? "infinite" : std::to_string(Value);
}

FLinkFault CheckFloats(
	const FArrayRule& Rule, const void* Elements, std::uint64_t First, std::uint64_t Last, std::uint32_t Components)
{
	const auto* Floats = static_cast<const std::uint32_t*>(Elements);
	const std::uint64_t Bad = FindNotFinite(Floats, First * Components, Last * Components);
	if (Bad == Last * Components)
	{
		return {};
	}
	static constexpr const char* Names[] = {"X", "Y", "Z"};
	const std::string Path = PathOf(Rule) + "/" + std::to_string(Bad / Components);
	return MakeFault(EFault::NotFinite, Components <= 3 ? At(Path, Names[Bad % Components]) : Path,
		"A finite number was expected; this one is " + Number(std::bit_cast<float>(Floats[Bad])) + ".");
}

FLinkFault CheckIndices(const FArrayRule& Rule, const std::uint32_t* Indices, std::uint64_t First, std::uint64_t Last)
{
	const std::uint64_t Bad = FindOutOfRange(Indices, First, Last, Rule.Base, Rule.Bound);
	if (Bad == Last)
	{
		return {};
	}
	return MakeFault(EFault::IndexRange, PathOf(Rule) + "/" + std::to_string(Bad),
		"An index from " + std::to_string(Rule.Base) + " to below " +
			std::to_string(std::uint64_t(Rule.Base) + Rule.Bound) + " was expected; " +
			std::to_string(static_cast<std::int32_t>(Indices[Bad])) + " came.");
}

FLinkFault CheckFirstWeight(
	const FArrayRule& Rule, const std::uint32_t* Offsets, std::uint64_t First, std::uint64_t Last)
{
	for (std::uint64_t Index = First; Index < Last; ++Index)
	{
		const std::uint64_t Least = Index == 0 ? 0 : Offsets[Index - 1];
		const bool bLast = Index + 1 == Rule.Slot.Count;
		if (Offsets[Index] < Least || Offsets[Index] > Rule.Total || (Index == 0 && Offsets[0] != 0) ||
			(bLast && Offsets[Index] != Rule.Total))
		{
			return MakeFault(EFault::InfluenceOffsets, PathOf(Rule) + "/" + std::to_string(Index),
				"Offsets ascending from 0 to the " + std::to_string(Rule.Total) + " weights were expected; after " +
					std::to_string(Least) + " came " + std::to_string(Offsets[Index]) + ".");
		}
	}
	return {};
}

FLinkFault CheckWeights(const FArrayRule& Rule, const FBoneWeight* Pairs, std::uint64_t First, std::uint64_t Last)
{
	const std::uint64_t Bad = FindBadWeight(Pairs, First, Last, Rule.Bound);
	if (Bad == Last)
	{
		return {};
	}
	std::string Path = std::string(Rule.Prefix) + "/VertexInfluences";
	if (Rule.FirstWeight != nullptr)
	{
		const std::uint32_t* End = Rule.FirstWeight + Rule.FirstWeightCount;
		const std::uint32_t* After = std::upper_bound(Rule.FirstWeight, End, static_cast<std::uint32_t>(Bad));
		const auto Vertex = static_cast<std::uint64_t>(After - Rule.FirstWeight) - 1;
		Path += "/" + std::to_string(Vertex) + "/Influences/" + std::to_string(Bad - Rule.FirstWeight[Vertex]);
	}
	if (const FBoneWeight& Pair = Pairs[Bad];
		Rule.Bound != 0 && static_cast<std::uint32_t>(Pair.BoneIndex) >= Rule.Bound)
	{
		return MakeFault(EFault::BoneIndexRange, Path + "/BoneIndex",
			"A joint from 0 to below " + std::to_string(Rule.Bound) + " was expected; " +
				std::to_string(Pair.BoneIndex) + " came.");
	}
	return MakeFault(EFault::WeightRange, Path + "/Weight",
		"A weight from 0 to 1 was expected; it is " + Number(Pairs[Bad].Weight) + ".");
}

FLinkFault CheckTimes(const FArrayRule& Rule, const double* Times, std::uint64_t First, std::uint64_t Last)
{
	for (std::uint64_t Index = First; Index < Last; ++Index)
	{
		const std::string Path = Rule.Prefix + ("/Sequence/Frames/" + std::to_string(Index) + "/Time");
		if (!std::isfinite(Times[Index]))
		{
			return MakeFault(
				EFault::NotFinite, Path, "A finite number was expected; this one is " + Number(Times[Index]) + ".");
		}
		if (Index > 0 && Times[Index] < Times[Index - 1])
		{
			return MakeFault(EFault::TimeOrder, Path,
				"At least " + std::to_string(Times[Index - 1]) + " seconds were expected; " +
					std::to_string(Times[Index]) + " came.");
		}
	}
	return {};
}

FLinkFault CheckTables(const FArrayRule& Rule, const std::uint32_t* Tables, std::uint64_t First, std::uint64_t Last)
{
	const std::uint64_t Bad = FindOutOfRange(Tables, First, Last, 0, Rule.Bound);
	if (Bad == Last)
	{
		return {};
	}
	return MakeFault(EFault::JointTable, PathOf(Rule) + "/" + std::to_string(Bad),
		"A layout below " + std::to_string(Rule.Bound) + " was expected; " + std::to_string(Tables[Bad]) + " came.");
}
} // namespace

FArrayRule RuleOf(
	const FArraySlot& Slot, const FSurfaceMesh& Structure, const FMeshCounts& Counts, EIndexBase IndexBase)
{
	FArrayRule Rule;
	Rule.Slot = Slot;
	if (Slot.Array == EArray::Indices)
	{
		Rule.Base = IndexBase == EIndexBase::Model
						? static_cast<std::uint32_t>(Structure.Surfaces[Slot.Outer].VertexOffset)
						: 0;
		Rule.Bound = static_cast<std::uint32_t>(Counts.Surfaces[Slot.Outer].Positions);
	}
	else if (Slot.Array == EArray::FirstWeight)
	{
		Rule.Total = Counts.Weights;
	}
	else if (Slot.Array == EArray::Weights)
	{
		Rule.Bound = static_cast<std::uint32_t>(Structure.Joints.size());
		Rule.FirstWeightCount = Counts.FirstWeight;
	}
	return Rule;
}

std::string PathOf(const FArrayRule& Rule)
{
	const FArraySlot& Slot = Rule.Slot;
	const std::string Surface = At(Rule.Prefix, "Surfaces", Slot.Outer);
	const std::string Frame = At(Rule.Prefix, "Frames", Slot.Outer);
	switch (Slot.Array)
	{
		case EArray::Positions:
			return At(Surface, "Positions");
		case EArray::Normals:
			return At(Surface, "Normals");
		case EArray::Tangents:
			return At(Surface, "Tangents");
		case EArray::UVs:
			return At(Surface, "UVs");
		case EArray::Indices:
			return At(At(Surface, "Sections", Slot.Inner), "Indices");
		case EArray::FirstWeight:
			return At(At(Rule.Prefix, "VertexInfluences"), "FirstWeight");
		case EArray::Weights:
			return At(At(Rule.Prefix, "VertexInfluences"), "Weights");
		case EArray::Pixels:
			return At(At(Rule.Prefix, "Textures", Slot.Outer), "Pixels");
		case EArray::FramePositions:
			return At(Frame, "Positions");
		case EArray::FrameNormals:
			return At(Frame, "Normals");
		case EArray::FrameTangents:
			return At(Frame, "Tangents");
		case EArray::SequenceTimes:
			return At(At(Rule.Prefix, "Sequence"), "Times");
		case EArray::SequenceTables:
			return At(At(Rule.Prefix, "Sequence"), "TableOfFrame");
		case EArray::SequenceTransforms:
			return At(At(Rule.Prefix, "Sequence"), "Transforms");
	}
	return Rule.Prefix;
}

FLinkFault CheckElements(const FArrayRule& Rule, const void* Elements, std::uint64_t First, std::uint64_t Last)
{
	switch (Rule.Slot.Array)
	{
		case EArray::Positions:
		case EArray::Normals:
		case EArray::Tangents:
		case EArray::FramePositions:
		case EArray::FrameNormals:
		case EArray::FrameTangents:
			return CheckFloats(Rule, Elements, First, Last, 3);
		case EArray::UVs:
			return CheckFloats(Rule, Elements, First, Last, 2);
		case EArray::SequenceTransforms:
			return CheckFloats(Rule, Elements, First, Last, sizeof(FTransform) / sizeof(float));
		case EArray::Indices:
			return CheckIndices(Rule, static_cast<const std::uint32_t*>(Elements), First, Last);
		case EArray::FirstWeight:
			return CheckFirstWeight(Rule, static_cast<const std::uint32_t*>(Elements), First, Last);
		case EArray::Weights:
			return CheckWeights(Rule, static_cast<const FBoneWeight*>(Elements), First, Last);
		case EArray::SequenceTimes:
			return CheckTimes(Rule, static_cast<const double*>(Elements), First, Last);
		case EArray::SequenceTables:
			return CheckTables(Rule, static_cast<const std::uint32_t*>(Elements), First, Last);
		case EArray::Pixels:
			break;
	}
	return {};
}

std::vector<FArraySlot> SlotsOf(const FMeshCounts& Counts)
{
	std::vector<FArraySlot> Slots;
	const auto Add = [&Slots](EArray Array, std::size_t Outer, std::size_t Inner, std::uint64_t Count)
	{
		if (Count != 0)
		{
			Slots.push_back({Array, static_cast<std::uint32_t>(Outer), static_cast<std::uint32_t>(Inner), Count});
		}
	};
	for (std::size_t Index = 0; Index < Counts.Surfaces.size(); ++Index)
	{
		const FSurfaceCounts& Surface = Counts.Surfaces[Index];
		Add(EArray::Positions, Index, 0, Surface.Positions);
		Add(EArray::Normals, Index, 0, Surface.Normals);
		Add(EArray::Tangents, Index, 0, Surface.Tangents);
		Add(EArray::UVs, Index, 0, Surface.UVs);
		for (std::size_t Section = 0; Section < Surface.SectionIndices.size(); ++Section)
		{
			Add(EArray::Indices, Index, Section, Surface.SectionIndices[Section]);
		}
	}
	Add(EArray::FirstWeight, 0, 0, Counts.FirstWeight);
	Add(EArray::Weights, 0, 0, Counts.Weights);
	for (std::size_t Index = 0; Index < Counts.TexturePixels.size(); ++Index)
	{
		Add(EArray::Pixels, Index, 0, Counts.TexturePixels[Index]);
	}
	return Slots;
}

std::uint64_t BytesOf(const FMeshCounts& Counts)
{
	std::uint64_t Bytes = Counts.FirstWeight * sizeof(std::uint32_t) + Counts.Weights * sizeof(FBoneWeight);
	for (const FSurfaceCounts& Surface : Counts.Surfaces)
	{
		Bytes += (Surface.Positions + Surface.Normals + Surface.Tangents) * sizeof(FVec3) + Surface.UVs * sizeof(FVec2);
		for (const std::uint64_t Indices : Surface.SectionIndices)
		{
			Bytes += Indices * sizeof(std::int32_t);
		}
	}
	for (const std::uint64_t Pixels : Counts.TexturePixels)
	{
		Bytes += Pixels;
	}
	return Bytes;
}

} // namespace Zef
