// SPDX-License-Identifier: MIT
/** Cloth as points held together by lengths, moved in small fixed steps: the same every time. */
#pragma once

#include <cstdint>
#include <vector>

#include "Sample/Cloth/BodyCollider.h"

namespace Zef::Peer
{

/** How a cloth behaves; stiffnesses are shares of an error that a step takes away, 0 to 1. */
struct FClothNature
{
	float Stretch = 1.0f;
	float Shear = 0.35f;
	float Bend = 0.05f;
	float Thickness = 0.7f; // kept from the skin, cm
	float Friction = 0.35f; // share of the sliding that contact takes away in a step
	float Drag = 0.6f;		// per second: pull towards the speed of the air
	float Damping = 1.2f;	// per second
};

/** A rectangular pattern of points; closed: the last column is joined to the first. */
class FCloth
{
public:
	FCloth(int Columns, int Rows, bool bClosed, const FClothNature& Nature);

	int Columns() const { return ColumnCount; }
	int Rows() const { return RowCount; }
	bool IsClosed() const { return bClosed; }
	std::size_t At(int Column, int Row) const { return static_cast<std::size_t>(Row * ColumnCount + Column); }

	/** [Rows * Columns], to be filled before the first step. */
	std::vector<FVec3> Positions;
	/** 0: the point goes where it is put; else it moves freely. */
	std::vector<std::uint8_t> bFree;

	/**
	 * Cuts the cloth as a part of a flat ring: each row at a radius, cm, neighbouring columns AnglePerColumn apart as
	 * seen from the ring's middle. It is at rest when all lengths are those of that pattern.
	 */
	void SetPattern(const std::vector<float>& RowRadii, float AnglePerColumn);

	/**
	 * Where a point lies in the flat pattern, in decimetres: u to the right, v down, the column 0 upright. Fractions
	 * lie between points.
	 */
	FVec2 PatternPlace(float Column, float Row) const;

	/** One step of Seconds; held points must have been put to their places before. */
	void Step(const FBodyCollider& Body, float Seconds, const FVec3& Wind);

	/** Looks up each point's place on the body anew; to be called when the collider was sorted. */
	void FindContacts(const FBodyCollider& Body);

	/** Lets all speeds be zero. */
	void Rest();

private:
	struct FLink
	{
		std::uint32_t A, B;
		float Length;
		float Share;
	};
	void AddLink(std::size_t A, std::size_t B, float Length, float Share);
	void Solve(const std::vector<FLink>& Links);
	void Collide(const FBodyCollider& Body);

	int ColumnCount, RowCount;
	bool bClosed;
	FClothNature Nature;
	std::vector<FLink> Links;
	std::vector<float> Radii;
	float ColumnAngle = 0;
	std::vector<FVec3> Previous, Speeds;
	std::vector<std::uint32_t> Contacts;
};

} // namespace Zef::Peer
