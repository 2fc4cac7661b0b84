// SPDX-License-Identifier: MIT
#include "Sample/Body/Measures.h"
#include "Sample/Rig/LegReach.h"
#include "Sample/Rig/Poses.h"

namespace Zef::Peer
{

FPose StandingPose(const FSkeleton& Skeleton)
{
	FPose Pose(Skeleton);
	const auto Turn = [&](const char* Name, const FVec3& Degrees)
	{ Pose.Turns[static_cast<std::size_t>(Skeleton.Find(Name))] = TurnXYZ(Degrees); };

	// Hips over the right leg and tilted towards the free one; the trunk bends back, shoulders the other way.
	Pose.PelvisShift = {0.5f, 2.0f, Measures::SoleHeight - 0.9f};
	Turn("pelvis", {3.6f, 1.0f, -5});
	Turn("spine_01", {-1.6f, -0.5f, 1});
	Turn("spine_02", {-1.5f, -0.5f, 1.5f});
	Turn("spine_03", {-1.4f, -0.5f, 2});
	Turn("spine_04", {-1.0f, 0, 2});
	Turn("spine_05", {-0.5f, 0.5f, 1.5f});
	Turn("neck_01", {0.8f, 0, 2});
	Turn("neck_02", {1.0f, 0, 3});
	Turn("head", {1.2f, 1.5f, 5});

	Turn("clavicle_r", {0.8f, 0, 0});
	Turn("clavicle_l", {-0.8f, 0, 0});
	Turn("upperarm_r", {-13.5f, 3, 4});
	Turn("lowerarm_r", {-1.5f, -13, 0});
	Turn("hand_r", {-2, -3, 6});
	Turn("upperarm_l", {14.5f, -5, -5});
	Turn("lowerarm_l", {2, -16, 0});
	Turn("hand_l", {2, -4, -6});

	ReachWithLeg(
		Skeleton, Pose, true, {{-2.4f, 6.6f, Measures::Ankle.Z + Measures::SoleHeight}, AxisAngle({0, 0, 1}, 6)});
	ReachWithLeg(
		Skeleton, Pose, false, {{5.6f, -9.6f, Measures::Ankle.Z + Measures::SoleHeight}, AxisAngle({0, 0, 1}, -15)});
	return Pose;
}

} // namespace Zef::Peer
