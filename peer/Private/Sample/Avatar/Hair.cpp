// SPDX-License-Identifier: MIT
#include "Sample/Avatar/Hair.h"

#include "Implicit/Polygonize.h"
#include "Implicit/Solids.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

constexpr FVec3 BunCenter{-10.2f, 0, 0.4f};
/** Strands run like meridians from a pole in front of the face to one in the bun. */
const FVec3 StrandAxis = Normalized(FVec3{0.90f, 0, -0.28f});
constexpr FVec3 StrandMiddle{-1.2f, 0, 2.6f};

FVec3 Local(const FVec3& P)
{
	return P - Measures::Skull;
}

/** Angle around the strands' axis, 0 on top, growing to her right. */
float StrandAngle(const FVec3& Q)
{
	const FVec3 D = Q - StrandMiddle;
	const FVec3 Up = SquareTo(StrandAxis, {0, 0, 1});
	return std::atan2(D.Y, Dot(D, Up));
}

/** Above 0 in front of the hair line: forehead, temples, before and behind the ear, nape. */
float BeyondHairLine(const FVec3& Q)
{
	const float Side = std::fabs(Q.Y);
	float Beyond = 0.70f * Q.X - 0.715f * Q.Z + 0.30f;
	// Down in front of the ear, back over the temple, peak in the middle of the forehead.
	Beyond -= 1.9f * std::exp(-std::pow((Q.X - 1.4f) / 1.7f, 2.0f) - std::pow((Q.Z - 0.2f) / 2.2f, 2.0f));
	Beyond += 0.55f * std::exp(-std::pow((Side - 4.6f) / 1.6f, 2.0f)) * SmoothStep(1.0f, 4.0f, Q.X);
	Beyond -= 0.35f * std::exp(-std::pow(Side / 1.0f, 2.0f)) * SmoothStep(3.0f, 6.0f, Q.X);
	return Beyond;
}

FFieldPtr HairSolid()
{
	const auto At = [](float X, float Y, float Z) { return Measures::Skull + FVec3{X, Y, Z}; };
	auto Hair = std::make_unique<FBlend>();
	Hair->Join(Ellipsoid(At(-1.1f, 0, 3.4f), {10.0f, 8.15f, 9.3f}), 0);
	Hair->Join(Ellipsoid(At(1.4f, 0, 3.2f), {7.4f, 7.2f, 8.0f}), 3.0f);
	// Fullness above the temples, drawn in behind the ears to the nape.
	Hair->Join(Ellipsoid(At(-5.5f, 0, -0.8f), {5.0f, 5.6f, 4.6f}), 3.0f);
	const FBox Box = FBox{Measures::Skull, Measures::Skull}.Grown(30);
	Hair->Keep(Function([](const FVec3& P) { return BeyondHairLine(Local(P)); }, Box), 2.6f);
	const auto Waves = [](const FVec3& P)
	{
		const FVec3 Q = Local(P);
		const float Angle = StrandAngle(Q);
		// Locks of uneven width, and the parting on her left.
		const float Locks = 0.6f * std::sin(34 * Angle + 2 * std::sin(5 * Angle)) + 0.4f * std::sin(57 * Angle + 1.3f);
		const float Parting = std::exp(-std::pow((Angle + 0.22f) / 0.035f, 2.0f)) * SmoothStep(-3.0f, 2.0f, Q.X);
		const float Inside = SmoothStep(-0.6f, -3.0f, BeyondHairLine(Q));
		return (0.055f * Locks * SmoothStep(-9.0f, -6.0f, Q.X) - 0.2f * Parting) * (0.15f + 0.85f * Inside);
	};
	return Raised(std::move(Hair), Waves, 0.1f);
}

FFieldPtr BunSolid()
{
	const FVec3 Center = Measures::Skull + BunCenter;
	auto Bun = std::make_unique<FBlend>();
	const FVec4 Turn = AxisAngle({0, 1, 0}, 14);
	Bun->Join(Ellipsoid(Center, {2.9f, 4.1f, 3.7f}, Turn), 0);
	const auto Coil = [Center](const FVec3& P)
	{
		const FVec3 D = P - Center;
		const float Radius = std::sqrt(D.Y * D.Y + D.Z * D.Z);
		const float Around = std::atan2(D.Z, D.Y);
		const float Turns = Radius * 2.1f - Around * 1.0f;
		return 0.22f * std::sin(Turns) * SmoothStep(0.0f, 1.2f, Radius) + 0.05f * std::sin(Turns * 5 + 0.7f);
	};
	return Raised(std::move(Bun), Coil, 0.3f);
}

} // namespace

FTriangleMesh MakeHairCap()
{
	const FFieldPtr Hair = HairSolid();
	FPolygonizeOptions Options;
	Options.FinestCell = 0.42f;
	Options.CellSize = [&](const FVec3&, float) { return Options.FinestCell; };
	FTriangleMesh Mesh = Polygonize(*Hair, Options);
	const FVec3 Up = SquareTo(StrandAxis, {0, 0, 1});
	for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
	{
		const FVec3 D = Local(Mesh.Positions[V]) - StrandMiddle;
		const float Along = std::acos(Clamp(Dot(Normalized(D), StrandAxis), -1, 1)) / Pi;
		const float Angle = std::atan2(D.Y, Dot(D, Up));
		Mesh.UVs[V] = {0.5f - Angle / (2 * Pi), Along};
	}
	return Mesh;
}

FTriangleMesh MakeBun()
{
	const FFieldPtr Bun = BunSolid();
	FPolygonizeOptions Options;
	Options.FinestCell = 0.36f;
	Options.CellSize = [&](const FVec3&, float) { return Options.FinestCell; };
	FTriangleMesh Mesh = Polygonize(*Bun, Options);
	const FVec3 Center = Measures::Skull + BunCenter;
	for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
	{
		const FVec3 D = Mesh.Positions[V] - Center;
		const float Radius = std::sqrt(D.Y * D.Y + D.Z * D.Z);
		Mesh.UVs[V] = {Radius / 8 + D.X / 12, std::atan2(D.Z, D.Y) / Pi};
	}
	return Mesh;
}

} // namespace Zef::Peer
