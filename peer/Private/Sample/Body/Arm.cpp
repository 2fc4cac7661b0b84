// SPDX-License-Identifier: MIT
#include "Implicit/Loft.h"
#include "Implicit/Solids.h"
#include "Sample/Body/Body.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

FFieldPtr MakeArm()
{
	using namespace Measures;
	auto Arm = std::make_unique<FBlend>();
	// Slices from the shoulder down; A is forward, B away from the body. The bones bend back a little at the elbow.
	const FVec3 Outward = Normalized(Cross(ArmDirection, FVec3{-1, 0, 0}));
	const FLoftFrame Frame{Shoulder, {1, 0, 0}, Outward, ArmDirection};
	Arm->Join(Loft(Frame, {{-3.0f, 0.0f, 0, 3.6f, 3.8f, 3.2f, 3.5f}, {0.0f, 0.0f, 0, 4.4f, 4.5f, 4.3f, 4.4f},
							  {4.0f, -0.1f, 0, 4.6f, 4.6f, 4.6f, 4.5f}, {8.0f, -0.2f, 0, 4.4f, 4.5f, 4.3f, 4.2f},
							  {13.0f, -0.5f, 0, 4.2f, 4.2f, 3.8f, 3.7f}, {18.0f, -0.8f, 0, 4.0f, 3.8f, 3.4f, 3.4f},
							  {23.0f, -1.0f, 0, 3.5f, 3.3f, 3.2f, 3.2f}, {27.5f, -1.2f, 0, 3.2f, 3.1f, 3.4f, 3.4f},
							  {31.0f, -1.0f, 0, 3.5f, 3.0f, 3.6f, 3.4f}, {35.0f, -0.8f, 0, 3.5f, 3.0f, 3.4f, 3.2f},
							  {40.0f, -0.5f, 0, 3.1f, 2.8f, 2.8f, 2.7f}, {45.0f, -0.2f, 0, 2.7f, 2.6f, 2.2f, 2.1f},
							  {49.0f, 0.0f, 0, 2.5f, 2.5f, 1.85f, 1.8f}, {52.0f, 0.0f, 0, 2.6f, 2.6f, 1.8f, 1.8f},
							  {54.0f, 0.0f, 0, 2.4f, 2.4f, 1.6f, 1.6f}}),
		0);
	// Deltoid, point of the elbow, head of the ulna.
	Arm->Join(
		RoundCone(Shoulder + FVec3{-0.2f, 0.2f, -0.6f}, Shoulder + ArmDirection * 10.0f + Outward * 0.6f, 4.3f, 2.9f),
		3.0f);
	Arm->Join(Ellipsoid(Elbow() + FVec3{-1.6f, 0, 0}, {1.2f, 1.3f, 1.8f}), 1.8f);
	Arm->Join(
		Ellipsoid(Wrist() + ArmDirection * -1.5f + FVec3{-1.7f, 0, 0} + Outward * 0.8f, {0.8f, 0.8f, 1.1f}), 1.6f);
	return Arm;
}

} // namespace Zef::Peer
