// SPDX-License-Identifier: MIT
/** The hanging parts of the garments, simulated: the skirt of the dress and the capelet. */
#pragma once

#include "Sample/Cloth/Cloth.h"
#include "Sample/Cloth/ClothSurface.h"

namespace Zef::Peer
{

/** A cloth whose upper row is sewn to the body: where, in the symmetric pose, and how that moves. */
struct FHangingCloth
{
	FCloth Cloth;
	std::vector<FVec3> SeamPlaces; // [columns]
	FSkinWeights SeamWeights;
};

/** Both start above where they will hang, in the standing pose, and have not fallen yet. */
FHangingCloth MakeSkirtCloth(const FFigure& Figure);
FHangingCloth MakeCapeletCloth(const FFigure& Figure);

/** Where the sewn row is when the joints are at Places. */
std::vector<FVec3> SeamAt(const FHangingCloth& Hanging, const FFigure& Figure, const std::vector<FRigid>& Places);

/** Puts the sewn row between two places. */
void HoldSeam(FHangingCloth& Hanging, const std::vector<FVec3>& From, const std::vector<FVec3>& To, float Weight);

/** Moves the sewn row towards From; Weight 1 leaves it as it is. */
void BlendSeamFrom(FHangingCloth& Hanging, const std::vector<FVec3>& From, float Weight);

constexpr int StepsPerFrame = 8;
constexpr float StepSeconds = 1.0f / (30 * StepsPerFrame);

/** Lets the cloth fall and come to rest on the standing body. */
void Settle(FHangingCloth& Hanging, const FFigure& Figure, FBodyCollider& Body, int Frames);

} // namespace Zef::Peer
