// SPDX-License-Identifier: MIT
/** Pairs and triples of ids. */
#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

namespace UE::Geometry
{

namespace IndexConstants
{
/** No vertex, triangle, edge or element. */
constexpr int InvalidID = -1;
} // namespace IndexConstants

/** Two ids, such as the ends of an edge. */
struct FIndex2i
{
	int A = 0;
	int B = 0;

	constexpr FIndex2i() = default;
	constexpr FIndex2i(int InA, int InB)
		: A(InA)
		, B(InB)
	{
	}

	static constexpr FIndex2i Zero() { return {0, 0}; }
	static constexpr FIndex2i Invalid() { return {IndexConstants::InvalidID, IndexConstants::InvalidID}; }

	/** 0 is A, 1 is B; anything else is a fault. */
	int& operator[](int Index)
	{
		check(Index >= 0 && Index < 2);
		return Index == 0 ? A : B;
	}
	const int& operator[](int Index) const
	{
		check(Index >= 0 && Index < 2);
		return Index == 0 ? A : B;
	}
	constexpr bool operator==(const FIndex2i& Other) const = default;
	constexpr bool Contains(int Value) const { return A == Value || B == Value; }
	/** The id that is not Value; InvalidID when Value is neither. */
	constexpr int OtherElement(int Value) const
	{
		return A == Value ? B : (B == Value ? A : IndexConstants::InvalidID);
	}
	void Swap()
	{
		const int OldA = A;
		A = B;
		B = OldA;
	}
};

/** Three ids, such as the corners of a triangle. */
struct FIndex3i
{
	int A = 0;
	int B = 0;
	int C = 0;

	constexpr FIndex3i() = default;
	constexpr FIndex3i(int InA, int InB, int InC)
		: A(InA)
		, B(InB)
		, C(InC)
	{
	}

	static constexpr FIndex3i Zero() { return {0, 0, 0}; }
	static constexpr FIndex3i Invalid()
	{
		return {IndexConstants::InvalidID, IndexConstants::InvalidID, IndexConstants::InvalidID};
	}

	/** 0 is A, 1 is B, 2 is C; anything else is a fault. */
	int& operator[](int Index)
	{
		check(Index >= 0 && Index < 3);
		return Index == 0 ? A : (Index == 1 ? B : C);
	}
	const int& operator[](int Index) const
	{
		check(Index >= 0 && Index < 3);
		return Index == 0 ? A : (Index == 1 ? B : C);
	}
	constexpr bool operator==(const FIndex3i& Other) const = default;
	constexpr bool Contains(int Value) const { return A == Value || B == Value || C == Value; }
	/** Position 0..2 of Value; InvalidID when it is not here. */
	constexpr int IndexOf(int Value) const
	{
		return A == Value ? 0 : (B == Value ? 1 : (C == Value ? 2 : IndexConstants::InvalidID));
	}
};

} // namespace UE::Geometry
