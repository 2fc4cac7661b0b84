// SPDX-License-Identifier: MIT
/** The moving body as cloth meets it: skin points with normals, and which lie near which. */
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Sample/Avatar/Figure.h"

namespace Zef::Peer
{

/** The collider's points at one moment. */
struct FColliderPose
{
	std::vector<FVec3> Points;
	std::vector<FVec3> Normals;
};

/**
 * A closed surface sampled by points. Cloth that lies nearer than a distance, or inside, is pushed out along the
 * surface's normal, smoothed over the points around.
 */
class FBodyCollider
{
public:
	/**
	 * Skin of trunk, arms and legs; head, hands and feet do not meet clothes. Where the bodice spans hollows of the
	 * trunk, the surface is the bodice's.
	 */
	explicit FBodyCollider(const FFigure& Figure);

	FColliderPose PoseAt(const FFigure& Figure, const std::vector<FRigid>& Places) const;

	/** The points are at Weight between two poses from now on; 0: the first, 1: the second. */
	void SetPose(const FColliderPose& From, const FColliderPose& To, float Weight);

	/** Moves the present pose towards From; Weight 1 leaves it as it is. */
	void BlendFrom(const FColliderPose& From, float Weight);

	/** Prepares Nearest for the present pose. */
	void Sort();

	static constexpr std::uint32_t None = 0xffffffffu;

	/** The point nearest to P; None when there is none within a few centimetres. */
	std::uint32_t Nearest(const FVec3& P) const;

	/** What the surface near P does to it. */
	struct FContact
	{
		float Height = 1e30f; // above the surface, negative inside
		FVec3 Normal;
		FVec3 Motion; // of the surface since the last SetPose
	};
	/** Follows Hint, a point near P, to the nearest one around it. */
	FContact ContactAt(const FVec3& P, std::uint32_t& Hint) const;

private:
	std::size_t CellOf(const FVec3& P) const;

	FTriangleMesh Skin; // in the symmetric pose, without triangles
	FSkinWeights Weights;
	std::vector<std::uint32_t> FirstNeighbour; // [points + 1]
	std::vector<std::uint32_t> Neighbours;

	FColliderPose Now;
	std::vector<FVec3> Before;

	/** A grid over the present pose: points by cell. */
	FVec3 GridOrigin;
	std::array<int, 3> GridSize{0, 0, 0};
	std::vector<std::uint32_t> FirstInCell, InCell;
};

} // namespace Zef::Peer
