// SPDX-License-Identifier: MIT
#include "Mesh/Shapes.h"

namespace Zef::Peer
{

namespace
{

std::uint32_t At(int Columns, int Column, int Row)
{
	return static_cast<std::uint32_t>(Row * (Columns + 1) + Column);
}

/** Quads over a grid of (Columns + 1) x (Rows + 1) vertices whose v runs down on the front. */
void AddGrid(FTriangleMesh& Mesh, int Columns, int Rows)
{
	for (int R = 0; R < Rows; ++R)
	{
		for (int C = 0; C < Columns; ++C)
		{
			const std::uint32_t A = At(Columns, C, R), B = At(Columns, C, R + 1);
			const std::uint32_t D = At(Columns, C + 1, R), E = At(Columns, C + 1, R + 1);
			// At a pole two corners fall together, and one triangle is enough.
			const bool bTop = Distance(Mesh.Positions[A], Mesh.Positions[D]) < 1e-5f;
			const bool bBottom = Distance(Mesh.Positions[B], Mesh.Positions[E]) < 1e-5f;
			if (bTop && !bBottom)
			{
				Mesh.AddTriangle(A, B, E);
			}
			else if (bBottom && !bTop)
			{
				Mesh.AddTriangle(A, B, D);
			}
			else if (!bTop)
			{
				Mesh.AddQuad(A, B, E, D);
			}
		}
	}
}

} // namespace

FTriangleMesh Sheet(int Columns, int Rows, const std::function<FVec3(float, float)>& Place)
{
	FTriangleMesh Mesh;
	for (int R = 0; R <= Rows; ++R)
	{
		for (int C = 0; C <= Columns; ++C)
		{
			const float U = static_cast<float>(C) / static_cast<float>(Columns);
			const float V = static_cast<float>(R) / static_cast<float>(Rows);
			Mesh.Add(Place(U, V), {}, {U, V});
		}
	}
	AddGrid(Mesh, Columns, Rows);
	ComputeNormalsAcrossSeams(Mesh);
	return Mesh;
}

FTriangleMesh Ball(const FVec3& Center, const FVec3& Radii, int Columns, int Rows)
{
	FTriangleMesh Mesh = Sheet(Columns, Rows,
		[&](float U, float V)
		{
			// Against the angle, which is to the right when seen from outside.
			const float Around = -2 * Pi * U, Down = Pi * V;
			return Center + FVec3{Radii.X * std::sin(Down) * std::cos(Around),
								Radii.Y * std::sin(Down) * std::sin(Around), Radii.Z * std::cos(Down)};
		});
	for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
	{
		const FVec3 Q = Mesh.Positions[V] - Center;
		Mesh.Normals[V] =
			Normalized(FVec3{Q.X / (Radii.X * Radii.X), Q.Y / (Radii.Y * Radii.Y), Q.Z / (Radii.Z * Radii.Z)});
	}
	return Mesh;
}

FTriangleMesh Lathe(const FVec3& Center, const std::vector<FOutlinePoint>& Outline, int Columns)
{
	std::vector<float> Lengths{0};
	for (std::size_t I = 1; I < Outline.size(); ++I)
	{
		Lengths.push_back(Lengths.back() + std::hypot(Outline[I].Radius - Outline[I - 1].Radius,
											   Outline[I].Height - Outline[I - 1].Height));
	}
	FTriangleMesh Mesh;
	const int Rows = static_cast<int>(Outline.size()) - 1;
	for (int R = 0; R <= Rows; ++R)
	{
		const FOutlinePoint& P = Outline[static_cast<std::size_t>(R)];
		for (int C = 0; C <= Columns; ++C)
		{
			const float U = static_cast<float>(C) / static_cast<float>(Columns);
			const float Around = -2 * Pi * (C == Columns ? 0.0f : U);
			Mesh.Add(Center + FVec3{P.Radius * std::cos(Around), P.Radius * std::sin(Around), P.Height}, {},
				{U, Lengths[static_cast<std::size_t>(R)] / Lengths.back()});
		}
	}
	AddGrid(Mesh, Columns, Rows);
	// A doubled point makes an edge: the two rows see only their own side.
	ComputeNormals(Mesh);
	for (int R = 0; R <= Rows; ++R)
	{
		FVec3& First = Mesh.Normals[At(Columns, 0, R)];
		FVec3& Last = Mesh.Normals[At(Columns, Columns, R)];
		First = Last = Normalized(First + Last);
		if (Outline[static_cast<std::size_t>(R)].Radius < 1e-5f)
		{
			for (int C = 0; C <= Columns; ++C)
			{
				Mesh.Normals[At(Columns, C, R)] = {0, 0, R == 0 ? 1.0f : -1.0f};
			}
		}
	}
	return Mesh;
}

std::vector<FVec3> Smoothed(const std::vector<FVec3>& Points, int StepsBetween)
{
	std::vector<FVec3> Result;
	for (std::size_t I = 0; I + 1 < Points.size(); ++I)
	{
		const FVec3& P1 = Points[I];
		const FVec3& P2 = Points[I + 1];
		const FVec3 M1 = I == 0 ? P2 - P1 : (P2 - Points[I - 1]) * 0.5f;
		const FVec3 M2 = I + 2 == Points.size() ? P2 - P1 : (Points[I + 2] - P1) * 0.5f;
		for (int S = 0; S < StepsBetween; ++S)
		{
			const float T = static_cast<float>(S) / static_cast<float>(StepsBetween), T2 = T * T, T3 = T2 * T;
			Result.push_back(
				P1 * (2 * T3 - 3 * T2 + 1) + M1 * (T3 - 2 * T2 + T) + P2 * (3 * T2 - 2 * T3) + M2 * (T3 - T2));
		}
	}
	Result.push_back(Points.back());
	return Result;
}

FTriangleMesh Tube(const std::vector<FVec3>& Points, const std::vector<float>& Radii, int Sides, bool bClosed)
{
	FTriangleMesh Mesh;
	const std::size_t Count = Points.size();
	const std::size_t Rings = bClosed ? Count + 1 : Count;
	FVec3 Side{};
	float Length = 0;
	for (std::size_t I = 0; I < Rings; ++I)
	{
		const std::size_t Here = I % Count;
		const std::size_t Before = bClosed ? (Here + Count - 1) % Count : (Here == 0 ? 0 : Here - 1);
		const std::size_t After = bClosed ? (Here + 1) % Count : std::min(Here + 1, Count - 1);
		const FVec3 Along = Normalized(Points[After] - Points[Before]);
		// The frame is carried along the curve, so that the pipe does not twist.
		Side = I == 0 ? SquareTo(Along, {0, 0, 1}) : SquareTo(Along, Side);
		const FVec3 Other = Cross(Along, Side);
		Length += I == 0 ? 0 : Distance(Points[Here], Points[(I - 1) % Count]);
		for (int S = 0; S <= Sides; ++S)
		{
			const float U = static_cast<float>(S) / static_cast<float>(Sides);
			const float Around = 2 * Pi * (S == Sides ? 0.0f : U);
			const FVec3 Out = Side * std::cos(Around) + Other * std::sin(Around);
			Mesh.Add(Points[Here] + Out * Radii[Here], Out, {U, Length});
		}
	}
	for (FVec2& UV : Mesh.UVs)
	{
		UV.Y /= std::max(Length, 1e-6f);
	}
	AddGrid(Mesh, Sides, static_cast<int>(Rings) - 1);
	if (!bClosed)
	{
		for (const bool bEnd : {false, true})
		{
			const std::size_t Ring = bEnd ? Count - 1 : 0;
			const FVec3 Out = Normalized(bEnd ? Points[Count - 1] - Points[Count - 2] : Points[0] - Points[1]);
			const std::uint32_t Middle = Mesh.Add(Points[Ring], Out, {0.5f, 0.5f});
			const auto First = static_cast<std::uint32_t>(Mesh.Positions.size());
			for (int S = 0; S < Sides; ++S)
			{
				const FVec3 P = Mesh.Positions[At(Sides, S, static_cast<int>(Ring))];
				Mesh.Add(P, Out, {0.5f, 0.5f});
			}
			for (int S = 0; S < Sides; ++S)
			{
				Mesh.AddTriangle(
					Middle, First + static_cast<std::uint32_t>(S), First + static_cast<std::uint32_t>((S + 1) % Sides));
			}
		}
	}
	FaceTowardsNormals(Mesh);
	return Mesh;
}

FTriangleMesh Mirrored(const FTriangleMesh& Mesh)
{
	FTriangleMesh Result = Mesh;
	for (std::vector<FVec3>* Vectors : {&Result.Positions, &Result.Normals, &Result.Tangents})
	{
		for (FVec3& V : *Vectors)
		{
			V.Y = -V.Y;
		}
	}
	for (std::size_t T = 0; T + 2 < Result.Triangles.size(); T += 3)
	{
		std::swap(Result.Triangles[T + 1], Result.Triangles[T + 2]);
	}
	return Result;
}

} // namespace Zef::Peer
