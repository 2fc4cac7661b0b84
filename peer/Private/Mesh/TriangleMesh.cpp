// SPDX-License-Identifier: MIT
#include "Mesh/TriangleMesh.h"

#include <unordered_map>

#include "Zef/Peer/Winding.h"

namespace Zef::Peer
{

std::uint32_t FTriangleMesh::Add(const FVec3& Position, const FVec3& Normal, const FVec2& UV)
{
	Positions.push_back(Position);
	Normals.push_back(Normal);
	UVs.push_back(UV);
	return static_cast<std::uint32_t>(Positions.size() - 1);
}

void FTriangleMesh::AddTriangle(std::uint32_t A, std::uint32_t B, std::uint32_t C)
{
	Triangles.push_back(A);
	Triangles.push_back(B);
	Triangles.push_back(C);
}

void FTriangleMesh::AddQuad(std::uint32_t A, std::uint32_t B, std::uint32_t C, std::uint32_t D)
{
	if (Distance(Positions[A], Positions[C]) <= Distance(Positions[B], Positions[D]))
	{
		AddTriangle(A, B, C);
		AddTriangle(A, C, D);
	}
	else
	{
		AddTriangle(A, B, D);
		AddTriangle(B, C, D);
	}
}

void FTriangleMesh::Append(const FTriangleMesh& Other)
{
	const auto Base = static_cast<std::uint32_t>(Positions.size());
	Positions.insert(Positions.end(), Other.Positions.begin(), Other.Positions.end());
	Normals.insert(Normals.end(), Other.Normals.begin(), Other.Normals.end());
	Tangents.insert(Tangents.end(), Other.Tangents.begin(), Other.Tangents.end());
	UVs.insert(UVs.end(), Other.UVs.begin(), Other.UVs.end());
	Triangles.reserve(Triangles.size() + Other.Triangles.size());
	for (std::uint32_t Index : Other.Triangles)
	{
		Triangles.push_back(Base + Index);
	}
}

FBox FTriangleMesh::Bounds() const
{
	FBox Box;
	for (const FVec3& P : Positions)
	{
		Box.Add(P);
	}
	return Box;
}

namespace
{

std::vector<FVec3> SummedFronts(const FTriangleMesh& Mesh)
{
	std::vector<FVec3> Sums(Mesh.Positions.size());
	for (std::size_t T = 0; T + 2 < Mesh.Triangles.size(); T += 3)
	{
		const std::uint32_t A = Mesh.Triangles[T], B = Mesh.Triangles[T + 1], C = Mesh.Triangles[T + 2];
		const FVec3 N = FrontDirection(Mesh.Positions[A], Mesh.Positions[B], Mesh.Positions[C]);
		Sums[A] += N;
		Sums[B] += N;
		Sums[C] += N;
	}
	return Sums;
}

} // namespace

void ComputeNormals(FTriangleMesh& Mesh)
{
	Mesh.Normals = SummedFronts(Mesh);
	for (FVec3& N : Mesh.Normals)
	{
		N = Normalized(N);
	}
}

void ComputeNormalsAcrossSeams(FTriangleMesh& Mesh)
{
	struct FPlace
	{
		std::int64_t X, Y, Z;
		bool operator==(const FPlace&) const = default;
	};
	struct FPlaceHash
	{
		std::size_t operator()(const FPlace& P) const
		{
			return static_cast<std::size_t>(P.X * 73856093 ^ P.Y * 19349663 ^ P.Z * 83492791);
		}
	};
	constexpr float PerCentimetre = 1000;
	const auto PlaceOf = [](const FVec3& P)
	{
		return FPlace{
			std::llround(P.X * PerCentimetre), std::llround(P.Y * PerCentimetre), std::llround(P.Z * PerCentimetre)};
	};
	Mesh.Normals = SummedFronts(Mesh);
	std::unordered_map<FPlace, FVec3, FPlaceHash> Shared;
	Shared.reserve(Mesh.Positions.size());
	for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
	{
		Shared[PlaceOf(Mesh.Positions[V])] += Mesh.Normals[V];
	}
	for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
	{
		Mesh.Normals[V] = Normalized(Shared[PlaceOf(Mesh.Positions[V])]);
	}
}

void ComputeTangents(FTriangleMesh& Mesh)
{
	std::vector<FVec3> Sums(Mesh.Positions.size());
	for (std::size_t T = 0; T + 2 < Mesh.Triangles.size(); T += 3)
	{
		const std::uint32_t* I = &Mesh.Triangles[T];
		const FVec3 E1 = Mesh.Positions[I[1]] - Mesh.Positions[I[0]];
		const FVec3 E2 = Mesh.Positions[I[2]] - Mesh.Positions[I[0]];
		const FVec2 D1 = Mesh.UVs[I[1]] - Mesh.UVs[I[0]];
		const FVec2 D2 = Mesh.UVs[I[2]] - Mesh.UVs[I[0]];
		const float Area = D1.X * D2.Y - D2.X * D1.Y;
		if (std::fabs(Area) < 1e-12f)
		{
			continue;
		}
		const FVec3 Along = (E1 * D2.Y - E2 * D1.Y) * (1 / Area);
		const float Weight = Length(Cross(E1, E2));
		for (int C = 0; C < 3; ++C)
		{
			Sums[I[C]] += Normalized(Along) * Weight;
		}
	}
	Mesh.Tangents.resize(Mesh.Positions.size());
	for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
	{
		Mesh.Tangents[V] = SquareTo(Mesh.Normals[V], Sums[V]);
	}
}

void SeparateTriangles(FTriangleMesh& Mesh)
{
	FTriangleMesh Separate;
	for (const std::uint32_t V : Mesh.Triangles)
	{
		Separate.Triangles.push_back(Separate.Add(Mesh.Positions[V], Mesh.Normals[V], Mesh.UVs[V]));
		if (!Mesh.Tangents.empty())
		{
			Separate.Tangents.push_back(Mesh.Tangents[V]);
		}
	}
	Mesh = std::move(Separate);
}

void FaceTowardsNormals(FTriangleMesh& Mesh)
{
	for (std::size_t T = 0; T + 2 < Mesh.Triangles.size(); T += 3)
	{
		std::uint32_t* I = &Mesh.Triangles[T];
		const FVec3 Front = FrontDirection(Mesh.Positions[I[0]], Mesh.Positions[I[1]], Mesh.Positions[I[2]]);
		if (Dot(Front, Mesh.Normals[I[0]] + Mesh.Normals[I[1]] + Mesh.Normals[I[2]]) < 0)
		{
			std::swap(I[1], I[2]);
		}
	}
}

} // namespace Zef::Peer
