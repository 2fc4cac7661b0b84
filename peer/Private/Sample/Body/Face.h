// SPDX-License-Identifier: MIT
/** The outlines of lips, eyes and brows, which both the skin's relief and the pieces laid upon it follow. */
#pragma once

#include "Math/Vector.h"

namespace Zef::Peer::Face
{

/** Heights are relative to the middle between the ears; T runs from 0 in the middle of the mouth to 1 in its corner. */
constexpr float MouthHalfWidth = 2.35f;
float UpperLipEdge(float T);
float LipLine(float T);
float LowerLipEdge(float T);

/** Heights relative to the eye's centre; T runs from -1 in the inner corner to 1 in the outer one. */
constexpr float EyeHalfWidth = 1.5f;
float UpperLid(float T);
float LowerLid(float T);

/**
 * How far the skin of the face is raised at a point of the right half, cm: lips, groove of the upper lip, openings and
 * creases of the lids.
 */
float Relief(const FVec3& P);
constexpr float HighestRelief = 0.45f;

} // namespace Zef::Peer::Face
