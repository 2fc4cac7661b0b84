// SPDX-License-Identifier: MIT
/** Whether a predicate holds for every element. */
#pragma once

#include "Templates/Invoke.h"

namespace Algo
{

template <typename RangeType, typename PredicateType>
bool AllOf(const RangeType& Range, PredicateType Predicate)
{
	for (const auto& Element : Range)
	{
		if (!Invoke(Predicate, Element))
		{
			return false;
		}
	}
	return true;
}

} // namespace Algo
