// SPDX-License-Identifier: MIT
/** Whether a predicate holds for some element. */
#pragma once

#include "Templates/Invoke.h"

namespace Algo
{

template <typename RangeType, typename PredicateType>
bool AnyOf(const RangeType& Range, PredicateType Predicate)
{
	for (const auto& Element : Range)
	{
		if (Invoke(Predicate, Element))
		{
			return true;
		}
	}
	return false;
}

template <typename RangeType, typename PredicateType>
bool NoneOf(const RangeType& Range, PredicateType Predicate)
{
	return !AnyOf(Range, Predicate);
}

} // namespace Algo
