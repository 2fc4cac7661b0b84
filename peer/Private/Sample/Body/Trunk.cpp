// SPDX-License-Identifier: MIT
#include "Implicit/Loft.h"
#include "Implicit/Solids.h"
#include "Sample/Body/Body.h"

namespace Zef::Peer
{

FFieldPtr MakeTrunk()
{
	auto Trunk = std::make_unique<FBlend>();
	// Height, centre, front, back, side, side, squareness.
	Trunk->Join(Loft({}, {{80, 0, 0, 4.5f, 6.5f, 10.5f, 10.5f, 2.2f}, {84, 0, 0, 7.0f, 9.2f, 14.6f, 14.6f, 2.3f},
							 {88, 0, 0, 8.4f, 10.6f, 16.5f, 16.5f, 2.3f}, {92, 0, 0, 9.0f, 10.6f, 16.6f, 16.6f, 2.3f},
							 {96, 0, 0, 9.2f, 9.5f, 15.6f, 15.6f, 2.3f}, {100, 0, 0, 9.2f, 8.0f, 13.9f, 13.9f, 2.3f},
							 {104, 0, 0, 8.9f, 6.9f, 12.3f, 12.3f, 2.3f}, {109, 0, 0, 8.4f, 6.2f, 11.3f, 11.3f, 2.3f},
							 {115, 0, 0, 8.5f, 7.0f, 11.8f, 11.8f, 2.3f}, {121, 0, 0, 8.9f, 8.4f, 12.8f, 12.8f, 2.3f},
							 {127, 0, 0, 8.9f, 9.5f, 13.4f, 13.4f, 2.3f}, {132, 0, 0, 8.3f, 9.9f, 13.6f, 13.6f, 2.3f},
							 {136, 0, 0, 7.0f, 9.7f, 13.2f, 13.2f, 2.3f}, {140, 0, 0, 4.9f, 8.9f, 11.6f, 11.6f, 2.2f},
							 {143, 0, 0, 3.0f, 8.0f, 9.0f, 9.0f, 2.1f}, {146, -1.0f, 0, 2.6f, 6.2f, 6.2f, 6.2f, 2.0f},
							 {149, -2.0f, 0, 2.8f, 4.4f, 4.6f, 4.6f, 2.0f}}),
		0);
	// Seat.
	Trunk->Join(Ellipsoid({-5.0f, 7.0f, 89.0f}, {7.4f, 7.6f, 7.8f}), 4.0f);
	// Bust: the upper slope is longer than the lower.
	Trunk->Join(Ellipsoid({6.4f, 7.2f, 126.0f}, {5.1f, 5.3f, 5.0f}), 2.6f);
	Trunk->Join(RoundCone({6.2f, 7.4f, 127.5f}, {3.4f, 8.2f, 136.0f}, 3.6f, 2.4f), 4.0f);
	// Front and back fold of the armpit.
	Trunk->Join(RoundCone({4.8f, 9.5f, 131.5f}, {0.6f, 15.6f, 137.0f}, 2.8f, 2.8f), 3.5f);
	Trunk->Join(RoundCone({-4.4f, 9.6f, 118.0f}, {-3.8f, 15.0f, 135.5f}, 1.8f, 3.0f), 4.0f);
	// Shoulder blades, with the furrow of the spine between them.
	Trunk->Join(Ellipsoid({-7.0f, 6.8f, 132.0f}, {3.2f, 4.2f, 6.5f}, TurnXYZ({12, 0, 0})), 3.0f);
	// Trapezius from the neck down to the shoulder.
	Trunk->Join(RoundCone({-3.8f, 2.2f, 148.5f}, {-2.8f, 13.0f, 142.2f}, 2.4f, 2.0f), 5.5f);
	// Collar bone and the hollow above it.
	Trunk->Join(RoundCone({3.0f, 1.8f, 142.0f}, {-0.6f, 14.0f, 142.6f}, 0.75f, 0.9f), 2.0f);
	// Neck, leaning forward, with the muscle from behind the ear to the breast bone.
	Trunk->Join(RoundCone({-3.0f, 0, 143.0f}, {-0.2f, 0, 157.0f}, 4.4f, 4.2f), 4.0f);
	Trunk->Join(RoundCone({-0.6f, 4.5f, 156.0f}, {2.4f, 1.3f, 143.0f}, 0.9f, 0.7f), 2.2f);
	return Trunk;
}

} // namespace Zef::Peer
