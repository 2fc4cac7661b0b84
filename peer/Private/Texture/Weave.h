// SPDX-License-Identifier: MIT
/** Pictures of cloth, thread by thread. All repeat at their edges. */
#pragma once

#include <functional>

#include "Texture/Image.h"

namespace Zef::Peer
{

/** How threads cross. Ends stand (along V), picks lie (along U); both counts fit the repeat of the crossing. */
struct FWeave
{
	int Ends = 64, Picks = 64;
	/** True where the end lies over the pick. */
	std::function<bool(int End, int Pick)> IsEndOver;
	FVec3 EndColor{0.5f, 0.5f, 0.5f}, PickColor{0.5f, 0.5f, 0.5f};
	/** Half a thread's thickness, as a share of half the distance to the next: 1 leaves no gap. */
	float Thickness = 1;
	/** How much threads differ in shade, 0 to 1. */
	float Uneven = 0.15f;
	std::uint32_t Seed = 1;
};

/** One place of a cloth. */
struct FThread
{
	bool bEnd = false;
	float Height = 0; // 0 to 1; 0 in a gap
	float Round = 0;  // -1 to 1 across the thread
	float Cover = 0;  // 1 on a thread, 0 in a gap
	FVec3 Color;
};
FThread ThreadAt(const FWeave& Weave, float U, float V);

FImage ColorsOf(const FWeave& Weave, int Size);
FImage HeightsOf(const FWeave& Weave, int Size);
/** Threads are smoother on their crowns than in between. */
FImage RoughnessOf(const FWeave& Weave, int Size, float Crown, float Between);
/** Gray cover with its gaps, for an opacity map. */
FImage CoverOf(const FWeave& Weave, int Size, float OnThread, float InGap);

/** Two over, two under, turning round every `Stripe` ends. */
FWeave Herringbone(int Threads, int Stripe, const FVec3& EndColor, const FVec3& PickColor);
FWeave PlainWeave(int Threads, float Thickness, const FVec3& Color);

/** Height 0 to 1 of knitted stitches. */
FImage KnitHeights(int Size, int Stitches);

/** Height 0 to 1 of leather's grain. */
FImage GrainHeights(int Width, int Height, int Cells, std::uint32_t Seed);

} // namespace Zef::Peer
