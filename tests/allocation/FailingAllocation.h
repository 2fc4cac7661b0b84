// SPDX-License-Identifier: MIT
/** An operator new that can be told to fail; this program's own. */
#pragma once

#include <cstddef>

namespace AllocationTest
{

/** How often the allocation that was asked for does not come. */
enum class EFailure
{
	/** Once; memory is there again afterwards. */
	Once,
	/** From then on until the end of the scope. */
	Always
};

/** While it lives, the allocation of that number, counted from 0 on this thread, throws std::bad_alloc. */
class FFailingAllocation
{
public:
	FFailingAllocation(std::size_t Number, EFailure Failure);
	~FFailingAllocation();

	FFailingAllocation(const FFailingAllocation&) = delete;
	FFailingAllocation& operator=(const FFailingAllocation&) = delete;

	/** True when the number was reached. */
	bool HasFailed() const;
};

} // namespace AllocationTest
