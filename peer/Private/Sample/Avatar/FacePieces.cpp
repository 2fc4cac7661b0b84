// SPDX-License-Identifier: MIT
#include "Sample/Avatar/FacePieces.h"

#include "Math/Rotation.h"
#include "Mesh/Shapes.h"
#include "Sample/Body/Face.h"
#include "Sample/Body/Hand.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

/** A point on the face, seen straight from the front, lifted off the skin. */
FVec3 OnFace(const IField& Body, float Y, float Z, float Lift)
{
	const FVec3 P = CastOnto(Body, {Measures::Skull.X + 14, Y, Z}, {-1, 0, 0}, 30);
	return P + Normalized(GradientOf(Body, P)) * Lift;
}

/** Seen from the front her right is on the left: U 0..1 runs from y = Width to -Width. */
float AcrossFace(float U, float Width)
{
	return Width * (1 - 2 * U);
}

FTriangleMesh BothSides(const FTriangleMesh& Right)
{
	FTriangleMesh Both = Right;
	Both.Append(Mirrored(Right));
	return Both;
}

} // namespace

FTriangleMesh MakeLips(const IField& Body)
{
	using namespace Face;
	constexpr int Columns = 44, Rows = 14;
	// One sheet over both lips, thinning out to nothing in the corners; its middle row runs along the line between.
	return Sheet(Columns, Rows,
		[&](float U, float V)
		{
			const float Y = AcrossFace(U, MouthHalfWidth * 0.985f);
			const float T = std::fabs(Y) / MouthHalfWidth;
			const float Z =
				V < 0.5f ? Lerp(UpperLipEdge(T), LipLine(T), V * 2) : Lerp(LipLine(T), LowerLipEdge(T), V * 2 - 1);
			return OnFace(Body, Y, Measures::Skull.Z + Z, 0.02f + 0.02f * std::sin(Pi * V));
		});
}

FTriangleMesh MakeBrows(const IField& Body)
{
	// From near the nose, rising, to the outer end, which points down a little.
	const auto Brow = Sheet(26, 4,
		[&](float U, float V)
		{
			const float Y = Lerp(5.05f, 1.35f, U);
			const float S = 1 - U;
			const float Middle = 2.42f + 0.50f * std::sin(Pi * 0.62f * (S + 0.15f)) - 0.50f * SmoothStep(0.6f, 1.0f, S);
			const float Half =
				0.22f * (1 - SmoothStep(0.3f, 1.05f, S)) * (0.25f + 0.75f * SmoothStep(-0.05f, 0.22f, S)) + 0.02f;
			const float Lift = 0.02f + 0.05f * std::sin(Pi * V);
			return OnFace(Body, Y, Measures::Skull.Z + Middle + Half * (1 - 2 * V), Lift);
		});
	return BothSides(Brow);
}

FTriangleMesh MakeLashes(const IField& Body)
{
	using namespace Face;
	// A dark edge along the upper lid that widens towards the outer corner and runs out beyond it, a thin one below.
	const auto Edge = [&](bool bUpper)
	{
		return Sheet(28, 2,
			[&](float U, float V)
			{
				const float T = Lerp(bUpper ? 1.14f : 0.92f, -0.97f, U);
				const float Inside = Clamp(T, -1, 1);
				const float Beyond = std::max(T - 1, 0.0f);
				const float Lid = (bUpper ? UpperLid(Inside) : LowerLid(Inside)) + Beyond * 1.4f;
				const float Ends =
					SmoothStep(bUpper ? 1.16f : 1.0f, bUpper ? 0.85f : 0.5f, T) * SmoothStep(-1.0f, -0.6f, T);
				const float Width = bUpper ? Lerp(0.07f, 0.19f, SmoothStep(-0.6f, 0.9f, T)) : 0.05f;
				const float Z = bUpper ? Lid - 0.05f + Width * Ends * (1 - V) + 0.03f : Lid - Width * Ends * V + 0.01f;
				const float Lift = 0.03f + (bUpper ? 0.09f * std::sin(Pi * V * 0.8f) * Ends : 0.0f);
				return OnFace(Body, Measures::Eye.Y + T * EyeHalfWidth, Measures::Eye.Z + Z, Lift);
			});
	};
	FTriangleMesh Right = Edge(true);
	Right.Append(Edge(false));
	return BothSides(Right);
}

FTriangleMesh MakeEyeball(bool bRight)
{
	using namespace Measures;
	const FVec3 Center{EyeBall.X, bRight ? EyeBall.Y : -EyeBall.Y, EyeBall.Z};
	// Only the front half is ever seen. A slight turn inwards makes the eyes look at one point.
	const float Turn = bRight ? -2.0f : 2.0f;
	constexpr int Columns = 32, Rows = 32;
	FTriangleMesh Eye = Sheet(Columns, Rows,
		[&](float U, float V)
		{
			// A square bent to a cap of 85 degrees, its texture a picture of it from the front.
			const float X = 2 * U - 1, Y = 2 * V - 1;
			const float A = X * std::sqrt(1 - Y * Y * 0.5f), B = Y * std::sqrt(1 - X * X * 0.5f);
			const float Radius = std::min(std::sqrt(A * A + B * B), 1.0f);
			const float Angle = 85 * DegreesToRadians * Radius;
			const float Scale = Radius > 1e-5f ? std::sin(Angle) / Radius : 85 * DegreesToRadians;
			const FVec3 Out{std::cos(Angle), -A * Scale, -B * Scale};
			return Center + Rotate(AxisAngle({0, 0, 1}, Turn), Out) * EyeBallRadius;
		});
	for (std::size_t V = 0; V < Eye.Positions.size(); ++V)
	{
		Eye.Normals[V] = Normalized(Eye.Positions[V] - Center);
	}
	return Eye;
}

FTriangleMesh MakeNails(const IField& Body)
{
	const FHand& Hand = RightHand();
	FTriangleMesh Right;
	for (int F = 0; F < FingerCount; ++F)
	{
		const FFinger& Finger = Hand.Fingers[static_cast<std::size_t>(F)];
		const FVec3 Along = Normalized(Finger.Joints[3] - Finger.Joints[2]);
		// The back of the finger; the thumb's is turned towards the front.
		const FVec3 BackWay = F == Thumb ? Hand.ThumbWay * 0.75f - Hand.PalmWay * 0.65f : -Hand.PalmWay;
		const FVec3 Back = SquareTo(Along, BackWay);
		const FVec3 Across = Cross(Back, Along);
		const float Radius = Finger.Radii[3];
		Right.Append(Sheet(8, 8,
			[&](float U, float V)
			{
				const float Round = 1 - 0.45f * SmoothStep(0.55f, 1.0f, std::fabs(2 * V - 1));
				const float Side = (2 * U - 1) * Radius * 0.78f * Round;
				const FVec3 Start = Finger.Joints[3] + Along * (Radius * Lerp(-1.15f, 0.82f, V)) + Across * Side +
									Back * (Radius * 2.5f);
				const FVec3 P = CastOnto(Body, Start, -Back, Radius * 4);
				return P + Normalized(GradientOf(Body, P)) * (0.015f + 0.03f * V);
			}));
	}
	FTriangleMesh Both = Right;
	Both.Append(Mirrored(Right));
	// Which hand a sheet came out with depends on the finger.
	return Both;
}

} // namespace Zef::Peer
