// SPDX-License-Identifier: MIT
/** Order predicates. */
#pragma once

template <typename T = void>
struct TLess
{
	constexpr bool operator()(const T& A, const T& B) const { return A < B; }
};
template <>
struct TLess<void>
{
	template <typename A, typename B>
	constexpr bool operator()(const A& Lhs, const B& Rhs) const
	{
		return Lhs < Rhs;
	}
};

template <typename T = void>
struct TGreater
{
	constexpr bool operator()(const T& A, const T& B) const { return B < A; }
};
template <>
struct TGreater<void>
{
	template <typename A, typename B>
	constexpr bool operator()(const A& Lhs, const B& Rhs) const
	{
		return Rhs < Lhs;
	}
};
