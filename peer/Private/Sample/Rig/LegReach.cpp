// SPDX-License-Identifier: MIT
#include "Sample/Rig/LegReach.h"

namespace Zef::Peer
{

namespace
{

/** The shortest turn from one unit vector to another. */
FVec4 TurnBetween(const FVec3& From, const FVec3& To)
{
	const FVec3 Axis = Cross(From, To);
	return Normalized(FVec4{Axis.X, Axis.Y, Axis.Z, 1 + Dot(From, To)});
}

/** The turn that brings one pair of directions to another: the first exactly, the second as near as it can. */
FVec4 TurnPair(const FVec3& Along, const FVec3& Front, const FVec3& NewAlong, const FVec3& NewFront)
{
	const FVec4 First = TurnBetween(Along, NewAlong);
	const FVec3 Turned = SquareTo(NewAlong, Rotate(First, Front));
	const FVec3 Wanted = SquareTo(NewAlong, NewFront);
	const float Sine = Dot(Cross(Turned, Wanted), NewAlong), Cosine = Dot(Turned, Wanted);
	return Multiply(AxisAngle(NewAlong, std::atan2(Sine, Cosine) / DegreesToRadians), First);
}

} // namespace

void ReachWithLeg(const FSkeleton& Skeleton, FPose& Pose, bool bRight, const FFootGoal& Goal)
{
	const std::string Ending = bRight ? "_r" : "_l";
	const auto Index = [&](const char* Name) { return static_cast<std::size_t>(Skeleton.Find(Name + Ending)); };
	const std::size_t Thigh = Index("thigh"), Calf = Index("calf"), Foot = Index("foot"), Ball = Index("ball");
	const auto Pelvis = static_cast<std::size_t>(Skeleton.Joints()[Thigh].Parent);
	const std::vector<FRigid> Places = PlaceJoints(Skeleton, Pose);
	const auto At = [&](std::size_t Joint) { return Skeleton.Joints()[Joint].Place; };

	const FVec3 Hip = Places[Thigh].Translation;
	const FVec3 UpperBone = At(Calf) - At(Thigh), LowerBone = At(Foot) - At(Calf);
	const float Upper = Length(UpperBone), Lower = Length(LowerBone);
	constexpr float NearlyStraight = 0.9985f;
	const FVec3 Way = Goal.Ankle - Hip;
	const float Reach = std::min(Length(Way), (Upper + Lower) * NearlyStraight);
	const FVec3 Line = Normalized(Way);
	const FVec3 Front = SquareTo(Line, Rotate(Goal.Turn, {1, 0, 0}));

	// The knee, from the three sides of the triangle.
	const float Along = (Upper * Upper - Lower * Lower + Reach * Reach) / (2 * Reach);
	const float Ahead = std::sqrt(std::max(Upper * Upper - Along * Along, 0.0f));
	const FVec3 Knee = Hip + Line * Along + Front * Ahead;
	const FVec3 Ankle = Hip + Line * Reach;

	const FVec3 Forward{1, 0, 0};
	const FVec4 ThighTurn = TurnPair(Normalized(UpperBone), Forward, Normalized(Knee - Hip), Front);
	const FVec4 CalfTurn = TurnPair(Normalized(LowerBone), Forward, Normalized(Ankle - Knee), Front);
	Pose.Turns[Thigh] = Multiply(Conjugate(Places[Pelvis].Rotation), ThighTurn);
	Pose.Turns[Calf] = Multiply(Conjugate(ThighTurn), CalfTurn);
	Pose.Turns[Foot] = Multiply(Conjugate(CalfTurn), Goal.Turn);
	Pose.Turns[Ball] = AxisAngle({0, 1, 0}, -Goal.ToeBend);
}

} // namespace Zef::Peer
