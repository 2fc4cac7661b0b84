// SPDX-License-Identifier: MIT
#include "Sample/Body/Body.h"

#include "Implicit/Polygonize.h"
#include "Sample/Body/Hand.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

FFieldPtr MakeBody()
{
	auto Body = std::make_unique<FBlend>(true);
	Body->Join(MakeTrunk(), 0);
	Body->Join(MakeLeg(), 3.5f);
	Body->Join(MakeArm(), 3.0f);
	Body->Join(MakeHand(), 1.2f);
	Body->Join(MakeHead(), 2.4f);
	return Body;
}

FTriangleMesh MakeBodySkin(const IField& Body)
{
	FPolygonizeOptions Options;
	constexpr float Finest = 0.16f;
	Options.FinestCell = Finest;
	const FVec3 HandCenter = RightHand().Wrist + RightHand().Along * 10.0f;
	Options.CellSize = [HandCenter](const FVec3& Center, float Reach)
	{
		const FVec3 P{Center.X, std::fabs(Center.Y), Center.Z};
		const auto Touches = [&](const FVec3& Place, float Radius) { return Distance(P, Place) < Radius + Reach; };
		if (Touches(Measures::Eye + FVec3{1.0f, 0, 0.1f}, 1.7f) ||
			Touches(Measures::Skull + FVec3{7.4f, 1.0f, -5.7f}, 1.9f))
		{
			return Finest;
		}
		if (Touches(Measures::Skull + FVec3{6.2f, 0, -4.5f}, 5.0f) ||
			Touches(Measures::Skull + FVec3{-1.0f, 7.6f, -1.0f}, 2.2f) || Touches(HandCenter, 8.0f))
		{
			return 2 * Finest;
		}
		if (P.Z + Reach > 152 || Touches(HandCenter, 10.0f))
		{
			return 4 * Finest;
		}
		return 8 * Finest;
	};
	return Polygonize(Body, Options);
}

} // namespace Zef::Peer
