// SPDX-License-Identifier: MIT
#include "Sample/Body/Hand.h"

#include "Implicit/Solids.h"
#include "Sample/Body/Body.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

/** A finger in the hand's own axes: along, towards the thumb, out of the palm. */
struct FFingerPlan
{
	FVec3 Palm, Knuckle;
	float Lengths[3];
	float Curl[3]; // degrees towards the palm, at each joint
	float Spread;  // degrees towards the thumb
	float Radii[4];
};

constexpr FFingerPlan Plans[] = {
	{{1.0f, 1.3f, 0.5f}, {2.0f, 1.9f, 0.9f}, {4.2f, 3.2f, 2.6f}, {20, 10, 12}, 34, {1.25f, 0.98f, 0.86f, 0.68f}},
	{{1.5f, 1.1f, 0.0f}, {8.8f, 2.45f, 0.0f}, {4.1f, 2.5f, 2.1f}, {14, 16, 10}, 3, {0.90f, 0.80f, 0.71f, 0.58f}},
	{{1.5f, 0.4f, -0.1f}, {9.1f, 0.75f, -0.2f}, {4.6f, 2.9f, 2.2f}, {18, 20, 12}, 0, {0.92f, 0.81f, 0.72f, 0.59f}},
	{{1.5f, -0.4f, -0.1f}, {8.7f, -0.95f, -0.1f}, {4.3f, 2.7f, 2.1f}, {23, 24, 14}, -2, {0.87f, 0.77f, 0.68f, 0.56f}},
	{{1.5f, -1.1f, 0.0f}, {7.9f, -2.45f, 0.2f}, {3.3f, 2.0f, 1.8f}, {28, 26, 15}, -6, {0.78f, 0.68f, 0.60f, 0.50f}},
};

FHand MakeRightHand()
{
	using namespace Measures;
	FHand Hand;
	Hand.Wrist = Wrist();
	Hand.ThumbWay = {1, 0, 0};
	// The hand hangs a little steeper than the forearm.
	Hand.Along = Rotate(AxisAngle({1, 0, 0}, -8), ArmDirection);
	Hand.PalmWay = Normalized(Cross(Hand.Along, Hand.ThumbWay));
	if (Hand.PalmWay.Y > 0)
	{
		Hand.PalmWay = -Hand.PalmWay;
	}
	const auto Out = [&](const FVec3& P) { return Hand.Along * P.X + Hand.ThumbWay * P.Y + Hand.PalmWay * P.Z; };

	for (int F = 0; F < FingerCount; ++F)
	{
		const FFingerPlan& Plan = Plans[F];
		FFinger& Finger = Hand.Fingers[static_cast<std::size_t>(F)];
		Finger.Palm = Hand.Wrist + Out(Plan.Palm);
		FVec3 At = Plan.Knuckle;
		float Bend = 0;
		for (std::size_t J = 0; J < 4; ++J)
		{
			Finger.Joints[J] = Hand.Wrist + Out(At);
			Finger.Radii[J] = Plan.Radii[J];
			if (J == 3)
			{
				break;
			}
			Bend += Plan.Curl[J];
			const float C = std::cos(Bend * DegreesToRadians), S = std::sin(Bend * DegreesToRadians);
			const float SpreadC = std::cos(Plan.Spread * DegreesToRadians);
			const float SpreadS = std::sin(Plan.Spread * DegreesToRadians);
			At += FVec3{C * SpreadC, C * SpreadS, S} * Plan.Lengths[J];
		}
	}
	return Hand;
}

} // namespace

const FHand& RightHand()
{
	static const FHand Hand = MakeRightHand();
	return Hand;
}

FFieldPtr MakeHand()
{
	const FHand& Hand = RightHand();
	auto Field = std::make_unique<FBlend>();
	const auto Place = [&](float Along, float Across, float Palm)
	{ return Hand.Wrist + Hand.Along * Along + Hand.ThumbWay * Across + Hand.PalmWay * Palm; };

	// Palm: the four bones, blended wide, and the heels of thumb and little finger.
	for (int F = Index; F < FingerCount; ++F)
	{
		const FFinger& Finger = Hand.Fingers[static_cast<std::size_t>(F)];
		Field->Join(RoundCone(Finger.Palm, Finger.Joints[0], 1.25f, Finger.Radii[0] + 0.12f), 1.6f);
	}
	Field->Join(RoundCone(Place(-0.8f, 0.3f, 0), Place(2.4f, 0.2f, 0), 1.75f, 1.6f), 2.0f);
	const FFinger& ThumbBones = Hand.Fingers[Thumb];
	Field->Join(RoundCone(Place(1.2f, 1.1f, 0.5f), ThumbBones.Joints[1], 1.45f, 1.05f), 1.8f);
	Field->Join(RoundCone(Place(2.0f, -1.6f, 0.5f), Place(6.0f, -2.3f, 0.4f), 1.2f, 0.9f), 1.4f);
	// Fingers: a phalanx blends with the next, hardly with its neighbour.
	for (int F = 0; F < FingerCount; ++F)
	{
		const FFinger& Finger = Hand.Fingers[static_cast<std::size_t>(F)];
		auto Bones = std::make_unique<FBlend>();
		for (std::size_t J = F == Thumb ? 1 : 0; J < 3; ++J)
		{
			Bones->Join(RoundCone(Finger.Joints[J], Finger.Joints[J + 1], Finger.Radii[J], Finger.Radii[J + 1]), 0.3f);
		}
		Field->Join(std::move(Bones), F == Thumb ? 0.9f : 0.55f);
	}
	return Field;
}

} // namespace Zef::Peer
