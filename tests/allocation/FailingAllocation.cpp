// SPDX-License-Identifier: MIT
#include "FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace
{
thread_local bool bCounting = false;
thread_local bool bFailed = false;
thread_local bool bAlways = false;
thread_local std::size_t Left = 0;

bool FailsNow()
{
	if (!bCounting || (bFailed && !bAlways))
	{
		return false;
	}
	bFailed = bFailed || Left-- == 0;
	return bFailed;
}

void* Allocate(std::size_t Bytes)
{
	void* const Memory = FailsNow() ? nullptr : std::malloc(Bytes == 0 ? 1 : Bytes);
	if (Memory == nullptr)
	{
		throw std::bad_alloc();
	}
	return Memory;
}
} // namespace

void* operator new(std::size_t Bytes)
{
	return Allocate(Bytes);
}

void* operator new[](std::size_t Bytes)
{
	return Allocate(Bytes);
}

void operator delete(void* Memory) noexcept
{
	std::free(Memory);
}

void operator delete[](void* Memory) noexcept
{
	std::free(Memory);
}

void operator delete(void* Memory, std::size_t) noexcept
{
	std::free(Memory);
}

void operator delete[](void* Memory, std::size_t) noexcept
{
	std::free(Memory);
}

namespace AllocationTest
{

FFailingAllocation::FFailingAllocation(std::size_t Number, EFailure Failure)
{
	Left = Number;
	bFailed = false;
	bAlways = Failure == EFailure::Always;
	bCounting = true;
}

FFailingAllocation::~FFailingAllocation()
{
	bCounting = false;
}

bool FFailingAllocation::HasFailed() const
{
	return bFailed;
}

} // namespace AllocationTest
