// SPDX-License-Identifier: MIT
// The course of the angles follows what gait analysis commonly reports for a slow, even walk: heel strike with the toes
// up, the foot flat in the first eighth of the stride, heel off at two fifths, toe off at about three fifths.
#include <algorithm>
#include <array>

#include "Sample/Body/Measures.h"
#include "Sample/Rig/LegReach.h"
#include "Sample/Rig/Poses.h"

namespace Zef::Peer
{

namespace
{

constexpr float StrideLength = 104; // cm, by which the ground passes in a stride
constexpr float HeelStrike = 0, ToeOff = 0.62f;
constexpr float MidStance = 0.30f; // when the ankle passes under the hip

/** A closed curve through values at ascending phases in 0..1. */
template <std::size_t Count>
float Closed(const std::array<FVec2, Count>& Keys, float Phase)
{
	const auto Key = [&](std::size_t I) {
		return FVec2{Keys[I % Count].X + static_cast<float>(I / Count), Keys[I % Count].Y};
	};
	if (Phase < Keys[0].X)
	{
		Phase += 1;
	}
	std::size_t I = 0;
	while (I + 1 < Count && Phase >= Keys[I + 1].X)
	{
		++I;
	}
	const FVec2 P0 = I == 0 ? FVec2{Keys[Count - 1].X - 1, Keys[Count - 1].Y} : Key(I - 1);
	const FVec2 P1 = Key(I), P2 = Key(I + 1), P3 = Key(I + 2);
	const float Span = P2.X - P1.X, T = (Phase - P1.X) / Span;
	const float M1 = (P2.Y - P0.Y) / (P2.X - P0.X) * Span, M2 = (P3.Y - P1.Y) / (P3.X - P1.X) * Span;
	const float T2 = T * T, T3 = T2 * T;
	return (2 * T3 - 3 * T2 + 1) * P1.Y + (T3 - 2 * T2 + T) * M1 + (3 * T2 - 2 * T3) * P2.Y + (T3 - T2) * M2;
}

/** Toes up, degrees. */
float FootPitch(float Phase)
{
	static constexpr std::array<FVec2, 11> Keys{{{0.0f, 19}, {0.06f, 8}, {0.12f, 0}, {0.25f, 0}, {0.38f, -1},
		{0.50f, -22}, {0.62f, -52}, {0.70f, -44}, {0.80f, -14}, {0.90f, 8}, {0.96f, 18}}};
	return Closed(Keys, Phase);
}

/** The toes stay on the ground while the heel rises. */
float ToeBend(float Phase)
{
	return -FootPitch(Phase) * SmoothStep(0.34f, 0.40f, Phase) * SmoothStep(0.74f, 0.60f, Phase) * 0.85f;
}

/** Ankle relative to the ground under the hip, x forward and z up, while the foot carries. */
FVec2 CarryingAnkle(float Phase)
{
	using namespace Measures;
	const float Pitch = FootPitch(Phase) * DegreesToRadians;
	const float C = std::cos(Pitch), S = std::sin(Pitch);
	// The foot rolls over its heel while the toes are up, over its ball while they are down.
	const FVec2 Pivot = Pitch > 0 ? FVec2{-5.6f, 0} : FVec2{Ball.X, 0};
	const FVec2 Arm = FVec2{Ankle.X, Ankle.Z} - Pivot;
	const FVec2 Flat{Ankle.X + (MidStance - Phase) * StrideLength, 0};
	return {Flat.X + (Pivot.X - Ankle.X) + Arm.X * C - Arm.Y * S, Arm.X * S + Arm.Y * C};
}

/** Height of the ankle at which the foot touches the ground with its heel, ball or toes. */
float LowestAnkle(float Phase)
{
	using namespace Measures;
	const float Pitch = FootPitch(Phase) * DegreesToRadians;
	const float Toes = Pitch + ToeBend(Phase) * DegreesToRadians;
	const float Heel = -3.8f * std::sin(Pitch) - Ankle.Z * std::cos(Pitch);
	const float BallUnder = (Ball.X - Ankle.X) * std::sin(Pitch) - Ankle.Z * std::cos(Pitch);
	const float BallCenter = (Ball.X - Ankle.X) * std::sin(Pitch) - (Ankle.Z - Ball.Z) * std::cos(Pitch);
	const float ToeUnder = BallCenter + (ToeTip.X - Ball.X) * std::sin(Toes) - Ball.Z * std::cos(Toes);
	return -std::min({Heel, BallUnder, ToeUnder});
}

FVec2 AnkleAt(float Phase)
{
	if (Phase <= ToeOff)
	{
		return CarryingAnkle(Phase);
	}
	// Swinging: leaves and lands with the speed of the carrying foot.
	constexpr float Small = 0.01f;
	const FVec2 From = CarryingAnkle(ToeOff), To = CarryingAnkle(HeelStrike);
	const float Swing = 1 - ToeOff;
	const FVec2 Leaving = (From - CarryingAnkle(ToeOff - Small)) * (Swing / Small);
	const FVec2 Landing = (CarryingAnkle(HeelStrike + Small) - To) * (Swing / Small);
	const float T = (Phase - ToeOff) / Swing, T2 = T * T, T3 = T2 * T;
	const FVec2 Way =
		From * (2 * T3 - 3 * T2 + 1) + Leaving * (T3 - 2 * T2 + T) + To * (3 * T2 - 2 * T3) + Landing * (T3 - T2);
	const float Clearance = 1.5f * std::sin(Pi * T);
	return {Way.X, std::max(Way.Y, LowestAnkle(Phase) + Clearance)};
}

} // namespace

FPose WalkPose(const FSkeleton& Skeleton, double Frame)
{
	FPose Pose(Skeleton);
	const auto Turn = [&](const std::string& Name, const FVec3& Degrees)
	{ Pose.Turns[static_cast<std::size_t>(Skeleton.Find(Name))] = TurnXYZ(Degrees); };

	const double Loops = Frame / WalkFrames;
	const auto Whole = static_cast<float>(Loops - std::floor(Loops));
	const float Strides = Whole * 2;
	const float Phase = Strides - std::floor(Strides);
	const float Angle = 2 * Pi * Phase;
	// 1 when the right foot strikes ahead, -1 when the left one does.
	const float Lead = std::cos(Angle);
	// 1 in the middle of the right foot's stance.
	const float OnRight = std::cos(Angle - 2 * Pi * MidStance);

	Pose.PelvisShift = {0, 2.4f * OnRight, Measures::SoleHeight - 1.7f - 1.5f * std::cos(2 * (Angle - 2 * Pi * 0.05f))};
	Turn("pelvis", {3.8f * OnRight, 2.0f, -7.0f * Lead});
	for (const auto& [Name, Share] : {std::pair{"spine_01", 0.15f}, std::pair{"spine_02", 0.2f},
			 std::pair{"spine_03", 0.25f}, std::pair{"spine_04", 0.25f}, std::pair{"spine_05", 0.15f}})
	{
		Turn(Name, {-5.2f * OnRight * Share, -1.5f * Share, 13.0f * Lead * Share});
	}
	const float Glance = 3.0f * std::sin(2 * Pi * Whole);
	Turn("neck_01", {0.5f * OnRight, 0, -2.2f * Lead});
	Turn("neck_02", {0.5f * OnRight, 0, -2.2f * Lead + 0.3f * Glance});
	Turn("head", {0.4f * OnRight, 1.0f, -1.6f * Lead + 0.7f * Glance});

	for (const bool bRight : {true, false})
	{
		const float Side = bRight ? 1.0f : -1.0f;
		const std::string Ending = bRight ? "_r" : "_l";
		// An arm swings with the other side's leg, a little late.
		const float Swing = -Side * std::cos(Angle - 0.25f);
		const float Late = -Side * std::cos(Angle - 0.7f);
		Turn("clavicle" + Ending, {0, 0, Side * -2.0f * Swing});
		Turn("upperarm" + Ending, {Side * -15.0f, 1.0f - 15.0f * Swing, Side * 4.0f});
		Turn("lowerarm" + Ending, {0, -14.0f - 9.0f * Late, 0});
		Turn("hand" + Ending, {Side * -2.0f, -4.0f - 6.0f * Late, 0});

		const float OwnPhase = bRight ? Phase : Phase + 0.5f - std::floor(Phase + 0.5f);
		const FVec2 Ankle = AnkleAt(OwnPhase);
		FFootGoal Goal;
		Goal.Ankle = {Ankle.X - 1.0f, Side * 5.2f, Ankle.Y + Measures::SoleHeight};
		Goal.Turn = Multiply(AxisAngle({0, 0, 1}, Side * 5.0f), AxisAngle({0, 1, 0}, -FootPitch(OwnPhase)));
		Goal.ToeBend = ToeBend(OwnPhase);
		ReachWithLeg(Skeleton, Pose, bRight, Goal);
	}
	return Pose;
}

} // namespace Zef::Peer
