// SPDX-License-Identifier: MIT
/**
 * Where the joints of the figure are before she is posed: upright, symmetric, arms away from the body. Centimetres;
 * x forward, y to her right (the left side is the mirror image), z up.
 */
#pragma once

#include "Math/Vector.h"

namespace Zef::Peer::Measures
{

constexpr FVec3 Pelvis{-1.0f, 0, 95.0f};
constexpr FVec3 Spine1{-1.6f, 0, 100.0f};
constexpr FVec3 Spine2{-2.0f, 0, 106.5f};
constexpr FVec3 Spine3{-2.6f, 0, 114.0f};
constexpr FVec3 Spine4{-3.6f, 0, 122.5f};
constexpr FVec3 Spine5{-4.4f, 0, 132.0f};
constexpr FVec3 Neck1{-3.6f, 0, 144.5f};
constexpr FVec3 Neck2{-2.2f, 0, 150.0f};
constexpr FVec3 Head{-0.6f, 0, 155.5f};
constexpr FVec3 HeadTop{0.6f, 0, 175.0f};

constexpr FVec3 Clavicle{-0.6f, 2.2f, 141.5f};
constexpr FVec3 Shoulder{-1.6f, 15.7f, 139.9f};
/** Unit vector from shoulder to wrist: 36 degrees off the vertical. */
constexpr FVec3 ArmDirection{0.0f, 0.5878f, -0.8090f};
constexpr float UpperArm = 27.5f;
constexpr float ForeArm = 24.0f;
/** The elbow lies behind the straight line from shoulder to wrist. */
constexpr float ElbowBack = 1.3f;

constexpr FVec3 Hip{0.0f, 8.8f, 90.0f};
constexpr FVec3 Knee{0.7f, 8.1f, 49.0f};
constexpr FVec3 Ankle{-1.8f, 7.6f, 8.6f};
constexpr FVec3 Ball{10.8f, 8.4f, 2.2f};
/** What the soles of her shoes lift her by when she stands and walks. */
constexpr float SoleHeight = 0.9f;
constexpr FVec3 ToeTip{17.4f, 8.6f, 1.6f};

/** Middle between the ears, to which the parts of the head are relative. */
constexpr FVec3 Skull{1.2f, 0, 163.4f};
constexpr FVec3 Eye{7.35f, 3.15f, 164.1f};
constexpr float EyeRadius = 1.22f;
/** The ball that shows between the lids is a little larger and further out than the socket is built for. */
constexpr FVec3 EyeBall{7.40f, 3.15f, 164.1f};
constexpr float EyeBallRadius = 1.32f;

inline FVec3 Wrist()
{
	return Shoulder + ArmDirection * (UpperArm + ForeArm);
}
inline FVec3 Elbow()
{
	return Shoulder + ArmDirection * UpperArm + FVec3{-ElbowBack, 0, 0};
}

} // namespace Zef::Peer::Measures
