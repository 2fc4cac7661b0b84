// SPDX-License-Identifier: MIT
#include "Implicit/Loft.h"
#include "Implicit/Solids.h"
#include "Sample/Body/Body.h"
#include "Sample/Body/Face.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

/** Relative to the middle between the ears. */
FVec3 At(float X, float Y, float Z)
{
	return Measures::Skull + FVec3{X, Y, Z};
}

void JoinSkull(FBlend& Head)
{
	Head.Join(Ellipsoid(At(-1.0f, 0, 3.2f), {9.3f, 7.2f, 8.4f}), 0);
	// Forehead, temples and the face down to the chin.
	Head.Join(Ellipsoid(At(1.8f, 0, 2.6f), {6.7f, 6.3f, 6.8f}), 3.0f);
	Head.Join(Loft({At(0, 0, 0)},
				  {{-9.6f, 5.9f, 0, 1.1f, 1.6f, 0.9f, 0.9f, 2.1f}, {-8.7f, 5.0f, 0, 2.4f, 3.6f, 1.6f, 1.6f, 2.1f},
					  {-7.2f, 3.7f, 0, 3.5f, 5.0f, 2.8f, 2.8f, 2.1f}, {-5.2f, 2.7f, 0, 4.7f, 5.0f, 4.05f, 4.05f, 2.1f},
					  {-3.0f, 2.2f, 0, 5.2f, 5.0f, 5.2f, 5.2f, 2.1f}, {-0.5f, 1.9f, 0, 5.5f, 5.0f, 5.9f, 5.9f, 2.1f},
					  {2.0f, 1.6f, 0, 6.1f, 5.0f, 6.3f, 6.3f, 2.1f}, {4.0f, 1.2f, 0, 6.4f, 5.0f, 6.3f, 6.3f, 2.1f}}),
		1.6f);
	// Jaw from the ear to the chin, cheek bone, brow, chin, cheek.
	Head.Join(RoundCone(At(-0.6f, 4.5f, -4.0f), At(5.2f, 1.0f, -8.3f), 0.8f, 0.75f), 2.2f);
	Head.Join(RoundCone(At(1.0f, 5.8f, -0.7f), At(4.8f, 4.2f, -1.4f), 0.9f, 1.3f), 2.6f);
	Head.Join(RoundCone(At(6.9f, 1.4f, 2.4f), At(5.4f, 4.7f, 2.6f), 0.7f, 0.7f), 2.0f);
	Head.Join(Ellipsoid(At(6.25f, 0, -8.35f), {1.25f, 1.3f, 1.0f}), 2.2f);
	Head.Join(Ellipsoid(At(5.3f, 3.0f, -3.4f), {1.8f, 1.8f, 1.8f}), 2.4f);
	// Dome under both lips.
	Head.Join(Ellipsoid(At(5.7f, 0, -5.5f), {2.45f, 3.1f, 2.0f}), 1.8f);
	Head.Cut(Ellipsoid(At(8.25f, 0, -7.35f), {0.75f, 1.5f, 0.4f}), 1.2f);
}

void JoinNose(FBlend& Head)
{
	auto Nose = std::make_unique<FBlend>();
	Nose->Join(RoundCone(At(7.2f, 0, 1.2f), At(9.15f, 0, -2.0f), 0.50f, 0.50f), 0);
	Nose->Join(Ellipsoid(At(9.1f, 0, -2.35f), {0.72f, 0.72f, 0.62f}), 0.6f);
	Nose->Join(RoundCone(At(8.9f, 0.35f, -2.6f), At(7.7f, 1.05f, -2.75f), 0.46f, 0.46f), 0.7f);
	Head.Join(std::move(Nose), 1.0f);
	Head.Cut(Ellipsoid(At(8.5f, 0.48f, -3.18f), {0.45f, 0.2f, 0.22f}), 0.25f);
}

/** The socket and in it the ball of the lids. */
void JoinEyes(FBlend& Head)
{
	using namespace Measures;
	Head.Cut(Ellipsoid(Eye + FVec3{2.0f, -0.1f, 0.1f}, {1.5f, 2.0f, 1.35f}), 1.4f);
	Head.Join(Ellipsoid(Eye, {EyeRadius + 0.17f, EyeRadius + 0.34f, EyeRadius + 0.14f}), 0.5f);
}

void JoinEar(FBlend& Head)
{
	const FVec4 Turn = TurnXYZ({8, -14, -22});
	auto Ear = std::make_unique<FBlend>();
	const FVec3 Center = At(-1.1f, 7.3f, -0.6f);
	Ear->Join(Ellipsoid(Center, {1.55f, 0.42f, 2.7f}, Turn), 0);
	Ear->Join(Ellipsoid(Center + FVec3{0.5f, -0.1f, -2.3f}, {0.75f, 0.38f, 0.85f}, Turn), 0.6f);
	Ear->Cut(Ellipsoid(Center + FVec3{0.15f, 0.5f, 0.25f}, {0.85f, 0.45f, 1.75f}, Turn), 0.3f);
	Ear->Join(RoundCone(Center + FVec3{0.9f, -0.2f, -0.6f}, Center + FVec3{1.0f, -0.2f, -1.1f}, 0.35f, 0.35f), 0.4f);
	Head.Join(std::move(Ear), 0.7f);
}

} // namespace

FFieldPtr MakeHead()
{
	auto Head = std::make_unique<FBlend>();
	JoinSkull(*Head);
	JoinNose(*Head);
	JoinEyes(*Head);
	JoinEar(*Head);
	return Raised(std::move(Head), Face::Relief, Face::HighestRelief);
}

} // namespace Zef::Peer
