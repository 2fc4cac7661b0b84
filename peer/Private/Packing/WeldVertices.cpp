// SPDX-License-Identifier: MIT
#include <bit>
#include <cmath>

#include "Packing/PickVertices.h"
#include "Zef/Peer/Packing.h"

namespace Zef::Peer
{

namespace
{

/** Bits for which equal floats are equal: one zero, one not-a-number. */
std::uint32_t CanonicalBits(float X)
{
	if (X == 0.0f)
	{
		return 0;
	}
	return std::isnan(X) ? 0x7fc00000u : std::bit_cast<std::uint32_t>(X);
}

class FVertexHash
{
public:
	void Add(std::uint32_t Word)
	{
		State = (State ^ Word) * 0x9E3779B97F4A7C15ull;
		State ^= State >> 29;
	}
	void Add(const FVec2& V)
	{
		Add(CanonicalBits(V.X));
		Add(CanonicalBits(V.Y));
	}
	void Add(const FVec3& V)
	{
		Add(CanonicalBits(V.X));
		Add(CanonicalBits(V.Y));
		Add(CanonicalBits(V.Z));
	}
	std::uint64_t Value() const { return State; }

private:
	std::uint64_t State = 0x243F6A8885A308D3ull;
};

bool Same(float A, float B)
{
	return CanonicalBits(A) == CanonicalBits(B);
}
bool Same(const FVec2& A, const FVec2& B)
{
	return Same(A.X, B.X) && Same(A.Y, B.Y);
}
bool Same(const FVec3& A, const FVec3& B)
{
	return Same(A.X, B.X) && Same(A.Y, B.Y) && Same(A.Z, B.Z);
}

/** The vertices of one surface and their influences, which may be missing. */
struct FVertexView
{
	const FSurface& Surface;
	const FInfluences& Influences;
	std::size_t FirstInfluence;
	bool bInfluences;

	std::uint64_t Hash(std::size_t V) const
	{
		FVertexHash H;
		H.Add(Surface.Positions[V]);
		H.Add(Surface.Normals[V]);
		H.Add(Surface.Tangents[V]);
		if (!Surface.UVs.empty())
		{
			H.Add(Surface.UVs[V]);
		}
		if (bInfluences)
		{
			const std::size_t I = FirstInfluence + V;
			for (std::uint32_t W = Influences.FirstWeight[I]; W < Influences.FirstWeight[I + 1]; ++W)
			{
				H.Add(static_cast<std::uint32_t>(Influences.Weights[W].BoneIndex));
				H.Add(CanonicalBits(Influences.Weights[W].Weight));
			}
		}
		return H.Value();
	}

	bool Equal(std::size_t A, std::size_t B) const
	{
		return Same(Surface.Positions[A], Surface.Positions[B]) && Same(Surface.Normals[A], Surface.Normals[B]) &&
			   Same(Surface.Tangents[A], Surface.Tangents[B]) &&
			   (Surface.UVs.empty() || Same(Surface.UVs[A], Surface.UVs[B])) &&
			   (!bInfluences || EqualInfluences(FirstInfluence + A, FirstInfluence + B));
	}

	bool EqualInfluences(std::size_t A, std::size_t B) const
	{
		const std::uint32_t FromA = Influences.FirstWeight[A], FromB = Influences.FirstWeight[B];
		const std::uint32_t Count = Influences.FirstWeight[A + 1] - FromA;
		if (Count != Influences.FirstWeight[B + 1] - FromB)
		{
			return false;
		}
		for (std::uint32_t W = 0; W < Count; ++W)
		{
			const FBoneWeight &X = Influences.Weights[FromA + W], &Y = Influences.Weights[FromB + W];
			if (X.BoneIndex != Y.BoneIndex || !Same(X.Weight, Y.Weight))
			{
				return false;
			}
		}
		return true;
	}
};

constexpr std::uint32_t Free = 0xffffffffu;

/** For each vertex the number of the first equal one among the kept ones; `Kept` receives the old numbers of those. */
std::vector<std::uint32_t> FindFirstEqual(const FVertexView& View, std::vector<std::uint32_t>& Kept)
{
	const std::size_t Count = View.Surface.Positions.size();
	const std::size_t Slots = std::bit_ceil(Count * 2 + 1);
	std::vector<std::uint32_t> Table(Slots, Free);
	std::vector<std::uint32_t> NewIndex(Count);
	for (std::size_t V = 0; V < Count; ++V)
	{
		std::size_t Slot = View.Hash(V) & (Slots - 1);
		while (Table[Slot] != Free && !View.Equal(Kept[Table[Slot]], V))
		{
			Slot = (Slot + 1) & (Slots - 1);
		}
		if (Table[Slot] == Free)
		{
			Table[Slot] = static_cast<std::uint32_t>(Kept.size());
			Kept.push_back(static_cast<std::uint32_t>(V));
		}
		NewIndex[V] = Table[Slot];
	}
	return NewIndex;
}

} // namespace

FKeptVertices WeldVertices(FSurfaceMesh& Mesh)
{
	std::size_t VertexCount = 0;
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		VertexCount += Surface.Positions.size();
	}
	const bool bInfluences = Mesh.VertexInfluences.VertexCount() == VertexCount && VertexCount > 0;

	FKeptVertices Result;
	std::size_t OldBase = 0;
	for (FSurface& Surface : Mesh.Surfaces)
	{
		std::vector<std::uint32_t> Kept;
		const std::vector<std::uint32_t> NewIndex =
			FindFirstEqual({Surface, Mesh.VertexInfluences, OldBase, bInfluences}, Kept);

		const std::size_t OldCount = Surface.Positions.size();
		Surface.VertexOffset = static_cast<std::int32_t>(Result.Old.size());
		PickVertices(Surface.Positions, Kept);
		PickVertices(Surface.Normals, Kept);
		PickVertices(Surface.Tangents, Kept);
		PickVertices(Surface.UVs, Kept);
		for (FSection& Section : Surface.Sections)
		{
			for (std::int32_t& Index : Section.Indices)
			{
				Index = static_cast<std::int32_t>(NewIndex[static_cast<std::size_t>(Index)]);
			}
		}
		for (std::uint32_t V : Kept)
		{
			Result.Old.push_back(static_cast<std::uint32_t>(OldBase) + V);
		}
		OldBase += OldCount;
	}

	if (bInfluences)
	{
		FInfluences Packed;
		Packed.FirstWeight.push_back(0);
		for (std::uint32_t V : Result.Old)
		{
			const auto From = Mesh.VertexInfluences.Weights.begin() + Mesh.VertexInfluences.FirstWeight[V];
			const auto To = Mesh.VertexInfluences.Weights.begin() + Mesh.VertexInfluences.FirstWeight[V + 1];
			Packed.Weights.insert(Packed.Weights.end(), From, To);
			Packed.FirstWeight.push_back(static_cast<std::uint32_t>(Packed.Weights.size()));
		}
		Mesh.VertexInfluences = std::move(Packed);
	}
	return Result;
}

} // namespace Zef::Peer
