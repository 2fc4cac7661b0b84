// SPDX-License-Identifier: MIT
#include "Sample/Garment/Bodice.h"

#include "Implicit/Polygonize.h"
#include "Implicit/Solids.h"
#include "Math/Rotation.h"
#include "Mesh/Clip.h"
#include "Mesh/Shapes.h"
#include "Sample/Body/Body.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

constexpr float Layer = 0.5f; // between skin and cloth, cm
constexpr float SideSeam = -0.8f;

/** Positive where the bodice is: outside the neckline, the armholes and above the waist. */
float InsideBodice(const FVec3& P)
{
	const float Side = std::fabs(P.Y);
	// A deep V in front, a shallow curve behind; they meet on the shoulder.
	const float Front = (P.Z - 130.2f) * 0.56f;
	const float Back = P.Z < 139.5f ? (P.Z - 139.5f) : std::sqrt((P.Z - 139.5f) * 11.0f);
	// The point of the V is rounded.
	const float Neck = std::sqrt(P.Y * P.Y + 0.5f) - Lerp(Back, Front, SmoothStep(-5.0f, 0.5f, P.X));
	static const FFieldPtr Arm = RoundCone(Measures::Shoulder + Measures::ArmDirection, Measures::Wrist(), 7.0f, 6.0f);
	const float ArmHole = Arm->At({P.X, Side, P.Z});
	const float Waist = P.Z - (WaistHeight - 1.5f);
	return std::min({Neck, ArmHole, Waist});
}

FVec3 OnBodice(const IField& Solid, float Y, float Z, float Lift)
{
	const FVec3 P = CastOnto(Solid, {30, Y, Z}, {-1, 0, 0}, 60);
	return P + Normalized(GradientOf(Solid, P)) * Lift;
}

FTriangleMesh MakeBinding(const FTriangleMesh& Whole)
{
	FTriangleMesh Binding;
	for (const std::vector<std::uint32_t>& Loop : OpenEdges(Whole))
	{
		std::vector<FVec3> Points;
		float Height = 0;
		for (const std::uint32_t V : Loop)
		{
			Points.push_back(Whole.Positions[V]);
			Height += Whole.Positions[V].Z / static_cast<float>(Loop.size());
		}
		// The lowest loop is the waist, which the skirt covers.
		if (Height < 115 || Loop.size() < 20)
		{
			continue;
		}
		const std::vector<FVec3> Even = EvenLoop(Points, 0.7f, 3);
		Binding.Append(Tube(Even, std::vector<float>(Even.size(), 0.30f), 8, true));
	}
	return Binding;
}

FTriangleMesh MakePlacket(const IField& Solid)
{
	return Sheet(4, 40,
		[&](float U, float V)
		{
			const float Z = Lerp(131.3f, WaistHeight - 1, V);
			const float Edge = std::fabs(2 * U - 1);
			return OnBodice(Solid, 1.15f * (1 - 2 * U), Z, Edge > 0.9f ? 0.02f : 0.16f);
		});
}

FTriangleMesh MakeButtons(const IField& Solid)
{
	FTriangleMesh Buttons;
	for (int B = 0; B < 6; ++B)
	{
		const float Z = 128.6f - 3.5f * static_cast<float>(B);
		const FVec3 At = OnBodice(Solid, 0, Z, 0.30f);
		const FVec3 Out = Normalized(GradientOf(Solid, At));
		FTriangleMesh Button = Ball({0, 0, 0}, {0.26f, 0.55f, 0.55f}, 16, 10);
		const float Pitch = -std::asin(Clamp(Out.Z, -1, 1)) / DegreesToRadians;
		const FVec4 Turn = AxisAngle({0, 1, 0}, Pitch);
		for (std::size_t V = 0; V < Button.Positions.size(); ++V)
		{
			Button.Positions[V] = At + Rotate(Turn, Button.Positions[V]);
			Button.Normals[V] = Rotate(Turn, Button.Normals[V]);
		}
		Buttons.Append(Button);
	}
	return Buttons;
}

FTriangleMesh MakeLabel(const IField& Solid)
{
	// Seen from the front through the neck opening: it lies against the inside of the back and faces forward.
	return Sheet(6, 4,
		[&](float U, float V)
		{
			const FVec3 P = CastOnto(Solid, {-40, 2.2f * (1 - 2 * U), Lerp(138.6f, 136.0f, V)}, {1, 0, 0}, 60);
			return P - Normalized(GradientOf(Solid, P)) * 0.12f;
		});
}

} // namespace

FFieldPtr MakeBodiceSolid()
{
	auto Solid = std::make_unique<FBlend>(true);
	Solid->Join(MakeTrunk(), 0);
	Solid->Join(MakeArm(), 3.0f);
	Solid->Join(MakeLeg(), 3.5f);
	// Cloth spans the hollows between and under the breasts.
	Solid->Join(Ellipsoid({7.4f, 0, 126.2f}, {4.4f, 7.0f, 5.2f}), 3.0f);
	Solid->Join(RoundCone({6.6f, 5.6f, 121.0f}, {5.2f, 5.0f, 113.0f}, 3.2f, 3.2f), 4.0f);
	return Raised(
		std::move(Solid), [](const FVec3&) { return Layer; }, Layer);
}

FBodice MakeBodice()
{
	const FFieldPtr Solid = MakeBodiceSolid();
	// Only the part around the bodice is made into triangles; its cut faces lie outside the lines of the cut.
	class FPart : public IField
	{
	public:
		explicit FPart(const IField& Whole)
			: Whole(Whole)
		{
		}
		float At(const FVec3& P) const override { return std::max(Whole.At(P), Outside(P)); }
		FBox Bounds() const override { return {{-18, -24, 102}, {18, 24, 150}}; }

	private:
		static float Outside(const FVec3& P) { return std::max({103.0f - P.Z, P.Z - 149.0f, std::fabs(P.Y) - 22.0f}); }
		const IField& Whole;
	};
	const FPart Part(*Solid);
	FPolygonizeOptions Options;
	Options.FinestCell = 0.8f;
	Options.CellSize = [&](const FVec3&, float) { return Options.FinestCell; };
	FTriangleMesh Layered = Polygonize(Part, Options);
	const FTriangleMesh Whole = KeepWhere(Layered, InsideBodice);

	FBodice Bodice;
	Bodice.Front = KeepWhere(Whole, [](const FVec3& P) { return P.X - SideSeam; });
	Bodice.Back = KeepWhere(Whole, [](const FVec3& P) { return SideSeam - P.X; });
	for (FTriangleMesh* Half : {&Bodice.Front, &Bodice.Back})
	{
		const bool bFront = Half == &Bodice.Front;
		for (std::size_t V = 0; V < Half->Positions.size(); ++V)
		{
			// Around the body to the right, and down, in decimetres: about how the cloth would lie flat.
			const FVec3& P = Half->Positions[V];
			constexpr float MeanRadius = 1.25f;
			const float Angle = bFront ? std::atan2(P.Y, P.X + 6) : std::atan2(-P.Y, 4 - P.X);
			Half->UVs[V] = {-Angle * MeanRadius, (150 - P.Z) * 0.1f};
		}
	}
	Bodice.Binding = MakeBinding(Whole);
	Bodice.Placket = MakePlacket(*Solid);
	Bodice.Buttons = MakeButtons(*Solid);
	Bodice.Label = MakeLabel(*Solid);
	return Bodice;
}

std::vector<FVec3> MakeWaistLine(const IField& Bodice, int Points, float Lift)
{
	constexpr int Rough = 720;
	std::vector<FVec3> Around;
	for (int I = 0; I < Rough; ++I)
	{
		const float Angle = Pi - 2 * Pi * static_cast<float>(I) / Rough;
		const FVec3 Out{std::cos(Angle), std::sin(Angle), 0};
		const FVec3 Axis{-0.5f, 0, WaistHeight};
		const FVec3 P = CastOnto(Bodice, Axis + Out * 21, -Out, 21);
		Around.push_back(P + Out * Lift);
	}
	float Whole = 0;
	for (int I = 0; I < Rough; ++I)
	{
		Whole += Distance(Around[static_cast<std::size_t>(I)], Around[static_cast<std::size_t>((I + 1) % Rough)]);
	}
	return EvenLoop(Around, Whole / (static_cast<float>(Points) + 0.25f), 1);
}

} // namespace Zef::Peer
