// SPDX-License-Identifier: MIT
/** Sorting of whole containers. */
#pragma once

#include "Templates/Invoke.h"
#include "Templates/Sorting.h"

namespace Algo
{

/** Sorts a container with GetData and Num; pointers are compared as pointers. */
template <typename RangeType, typename PredicateType = TLess<>>
void Sort(RangeType&& Range, PredicateType Predicate = PredicateType())
{
	UE::Core::Private::SortRange(Range.GetData(), Range.Num(), Predicate);
}

/** Sorts by what the projection gives for each element. */
template <typename RangeType, typename ProjectionType, typename PredicateType = TLess<>>
void SortBy(RangeType&& Range, ProjectionType Projection, PredicateType Predicate = PredicateType())
{
	UE::Core::Private::SortRange(Range.GetData(), Range.Num(),
		[&](const auto& A, const auto& B) { return Predicate(Invoke(Projection, A), Invoke(Projection, B)); });
}

} // namespace Algo
