// SPDX-License-Identifier: MIT
#include "Implicit/Loft.h"
#include "Implicit/Solids.h"
#include "Sample/Body/Body.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

void JoinToe(FBlend& Foot, const FVec3& Root, const FVec3& Tip, float RootRadius, float TipRadius)
{
	const FVec3 Middle = Lerp(Root, Tip, 0.5f) + FVec3{0, 0, 0.25f};
	Foot.Join(RoundCone(Root, Middle, RootRadius, TipRadius), 1.2f);
	Foot.Join(RoundCone(Middle, Tip, TipRadius * 0.92f, TipRadius), 0.5f);
}

} // namespace

FFieldPtr MakeFoot()
{
	auto Foot = std::make_unique<FBlend>();
	// Heel, instep, ball, outer edge.
	Foot->Join(Ellipsoid({-3.6f, 7.5f, 3.4f}, {3.0f, 2.9f, 3.4f}), 0);
	Foot->Join(RoundCone({-1.4f, 7.6f, 7.2f}, {8.0f, 7.6f, 3.2f}, 3.0f, 2.3f), 2.5f);
	Foot->Join(Ellipsoid({9.6f, 8.1f, 2.2f}, {4.2f, 3.7f, 2.1f}), 2.5f);
	Foot->Join(RoundCone({-2.5f, 8.3f, 2.2f}, {9.0f, 10.0f, 1.7f}, 2.1f, 1.6f), 2.0f);
	JoinToe(*Foot, {11.4f, 6.3f, 1.7f}, {16.6f, 6.8f, 1.25f}, 1.45f, 1.15f);
	JoinToe(*Foot, {12.2f, 8.0f, 1.5f}, {16.9f, 8.4f, 1.0f}, 1.05f, 0.82f);
	JoinToe(*Foot, {11.9f, 9.2f, 1.4f}, {15.9f, 9.7f, 0.95f}, 0.95f, 0.77f);
	JoinToe(*Foot, {11.2f, 10.2f, 1.3f}, {14.6f, 10.8f, 0.9f}, 0.9f, 0.72f);
	JoinToe(*Foot, {10.0f, 11.0f, 1.2f}, {12.9f, 11.6f, 0.85f}, 0.9f, 0.72f);
	Foot->Keep(HalfSpace({0, 0, 0.1f}, {0, 0, -1}), 0.8f);
	return Foot;
}

FFieldPtr MakeLeg()
{
	auto Leg = std::make_unique<FBlend>();
	// Height, centre forward and aside; front, back, outside, inside.
	Leg->Join(
		Loft({}, {{5.0f, -2.0f, 7.6f, 3.0f, 3.3f, 2.7f, 2.7f}, {9.0f, -1.9f, 7.6f, 3.0f, 3.2f, 2.9f, 2.9f},
					 {13.0f, -1.8f, 7.65f, 2.9f, 3.2f, 2.65f, 2.65f}, {18.0f, -1.5f, 7.7f, 3.1f, 3.6f, 3.0f, 3.1f},
					 {24.0f, -1.2f, 7.75f, 3.6f, 4.7f, 3.8f, 4.0f}, {30.0f, -0.9f, 7.8f, 4.1f, 5.7f, 4.6f, 4.7f},
					 {35.0f, -0.6f, 7.8f, 4.4f, 6.1f, 5.0f, 4.9f}, {40.0f, -0.2f, 7.8f, 4.6f, 5.7f, 4.9f, 4.7f},
					 {44.5f, 0.2f, 7.9f, 4.8f, 4.9f, 4.6f, 4.5f}, {48.5f, 0.5f, 8.0f, 5.2f, 4.6f, 4.7f, 4.7f},
					 {52.0f, 0.6f, 8.1f, 5.3f, 4.9f, 4.9f, 4.9f}, {57.0f, 0.6f, 8.2f, 5.8f, 5.6f, 5.5f, 5.3f},
					 {63.0f, 0.6f, 8.4f, 6.6f, 6.5f, 6.4f, 6.2f}, {70.0f, 0.4f, 8.7f, 7.3f, 7.3f, 7.2f, 7.2f},
					 {77.0f, 0.1f, 9.0f, 7.8f, 8.0f, 7.7f, 8.2f}, {83.0f, -0.1f, 9.1f, 7.9f, 8.7f, 7.8f, 8.8f},
					 {90.0f, -0.1f, 9.0f, 7.0f, 8.5f, 7.3f, 8.0f}, {95.0f, -0.1f, 8.6f, 5.0f, 5.5f, 5.5f, 6.0f}}),
		0);
	// Knee cap, shin bone, ankle bones, tendon of the heel.
	Leg->Join(Ellipsoid({4.0f, 7.9f, 49.2f}, {1.7f, 2.3f, 3.2f}), 3.0f);
	Leg->Join(RoundCone({3.2f, 7.4f, 43.0f}, {0.6f, 7.3f, 14.0f}, 0.9f, 0.7f), 2.0f);
	Leg->Join(Ellipsoid({-1.6f, 4.9f, 9.3f}, {1.3f, 1.0f, 1.4f}), 1.4f);
	Leg->Join(Ellipsoid({-2.3f, 10.2f, 8.3f}, {1.2f, 0.9f, 1.3f}), 1.4f);
	Leg->Join(RoundCone({-4.9f, 7.6f, 6.0f}, {-4.5f, 7.7f, 18.0f}, 0.9f, 1.2f), 1.8f);
	Leg->Join(MakeFoot(), 2.2f);
	return Leg;
}

} // namespace Zef::Peer
