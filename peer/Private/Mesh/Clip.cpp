// SPDX-License-Identifier: MIT
#include "Mesh/Clip.h"

#include <map>
#include <unordered_map>

namespace Zef::Peer
{

namespace
{

constexpr std::uint32_t None = 0xffffffffu;

class FClipper
{
public:
	FClipper(const FTriangleMesh& Mesh, const std::function<float(const FVec3&)>& Keep)
		: Mesh(Mesh)
		, Keep(Keep)
		, NewIndex(Mesh.Positions.size(), None)
	{
		for (const FVec3& P : Mesh.Positions)
		{
			Values.push_back(Keep(P));
		}
	}

	FTriangleMesh Run()
	{
		for (std::size_t T = 0; T + 2 < Mesh.Triangles.size(); T += 3)
		{
			Clip(&Mesh.Triangles[T]);
		}
		return std::move(Result);
	}

private:
	void Clip(const std::uint32_t* Corners)
	{
		std::vector<std::uint32_t> Ring;
		for (std::size_t K = 0; K < 3; ++K)
		{
			const std::uint32_t A = Corners[K], B = Corners[(K + 1) % 3];
			const bool bA = Values[A] >= 0, bB = Values[B] >= 0;
			if (bA)
			{
				Ring.push_back(Copied(A));
			}
			if (bA != bB)
			{
				Ring.push_back(Cut(A, B));
			}
		}
		if (Ring.size() == 3)
		{
			Result.AddTriangle(Ring[0], Ring[1], Ring[2]);
		}
		else if (Ring.size() == 4)
		{
			Result.AddQuad(Ring[0], Ring[1], Ring[2], Ring[3]);
		}
	}

	std::uint32_t Copied(std::uint32_t V)
	{
		if (NewIndex[V] == None)
		{
			NewIndex[V] = Result.Add(Mesh.Positions[V], Mesh.Normals[V], Mesh.UVs[V]);
		}
		return NewIndex[V];
	}

	std::uint32_t Cut(std::uint32_t A, std::uint32_t B)
	{
		const std::uint64_t Key = (std::uint64_t(std::min(A, B)) << 32) | std::max(A, B);
		const auto [Found, bNew] = Cuts.try_emplace(Key, 0u);
		if (bNew)
		{
			if (A > B)
			{
				std::swap(A, B);
			}
			// The function is not linear along the edge: close in on its zero.
			float Low = 0, High = 1;
			const bool bLowKept = Values[A] >= 0;
			for (int Step = 0; Step < 10; ++Step)
			{
				const float Middle = 0.5f * (Low + High);
				const bool bKept = Keep(Lerp(Mesh.Positions[A], Mesh.Positions[B], Middle)) >= 0;
				(bKept == bLowKept ? Low : High) = Middle;
			}
			const float T = 0.5f * (Low + High);
			Found->second = Result.Add(Lerp(Mesh.Positions[A], Mesh.Positions[B], T),
				Normalized(Lerp(Mesh.Normals[A], Mesh.Normals[B], T)), Mesh.UVs[A] + (Mesh.UVs[B] - Mesh.UVs[A]) * T);
		}
		return Found->second;
	}

	const FTriangleMesh& Mesh;
	const std::function<float(const FVec3&)>& Keep;
	std::vector<float> Values;
	std::vector<std::uint32_t> NewIndex;
	std::unordered_map<std::uint64_t, std::uint32_t> Cuts;
	FTriangleMesh Result;
};

} // namespace

FTriangleMesh KeepWhere(const FTriangleMesh& Mesh, const std::function<float(const FVec3&)>& Keep)
{
	return FClipper(Mesh, Keep).Run();
}

std::vector<std::vector<std::uint32_t>> OpenEdges(const FTriangleMesh& Mesh)
{
	std::map<std::pair<std::uint32_t, std::uint32_t>, int> Edges;
	for (std::size_t T = 0; T + 2 < Mesh.Triangles.size(); T += 3)
	{
		for (std::size_t K = 0; K < 3; ++K)
		{
			++Edges[{Mesh.Triangles[T + K], Mesh.Triangles[T + (K + 1) % 3]}];
		}
	}
	std::map<std::uint32_t, std::uint32_t> Next;
	for (const auto& [Edge, Count] : Edges)
	{
		if (!Edges.contains({Edge.second, Edge.first}))
		{
			Next[Edge.first] = Edge.second;
		}
	}
	std::vector<std::vector<std::uint32_t>> Loops;
	while (!Next.empty())
	{
		std::vector<std::uint32_t>& Loop = Loops.emplace_back();
		std::uint32_t At = Next.begin()->first;
		for (auto Found = Next.find(At); Found != Next.end(); Found = Next.find(At))
		{
			Loop.push_back(At);
			At = Found->second;
			Next.erase(Found);
		}
	}
	return Loops;
}

std::vector<FVec3> EvenLoop(const std::vector<FVec3>& Points, float PieceLength, int SmoothingPasses)
{
	std::vector<float> Lengths{0};
	for (std::size_t I = 0; I < Points.size(); ++I)
	{
		Lengths.push_back(Lengths.back() + Distance(Points[I], Points[(I + 1) % Points.size()]));
	}
	const auto Pieces = static_cast<std::size_t>(std::max(Lengths.back() / PieceLength, 8.0f));
	std::vector<FVec3> Even;
	std::size_t I = 0;
	for (std::size_t P = 0; P < Pieces; ++P)
	{
		const float Goal = Lengths.back() * static_cast<float>(P) / static_cast<float>(Pieces);
		while (Lengths[I + 1] < Goal)
		{
			++I;
		}
		const float T = (Goal - Lengths[I]) / std::max(Lengths[I + 1] - Lengths[I], 1e-6f);
		Even.push_back(Lerp(Points[I], Points[(I + 1) % Points.size()], T));
	}
	for (int Pass = 0; Pass < SmoothingPasses; ++Pass)
	{
		const std::vector<FVec3> Old = Even;
		for (std::size_t P = 0; P < Pieces; ++P)
		{
			Even[P] = Old[P] * 0.5f + (Old[(P + 1) % Pieces] + Old[(P + Pieces - 1) % Pieces]) * 0.25f;
		}
	}
	return Even;
}

} // namespace Zef::Peer
