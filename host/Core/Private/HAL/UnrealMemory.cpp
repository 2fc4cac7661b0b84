// SPDX-License-Identifier: MIT
#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"

#include <cstdio>
#include <cstdlib>

namespace
{

[[noreturn]] void EndWithoutMemory(SIZE_T Count)
{
	// Formatting a report through the assertion handler would allocate again.
	std::fprintf(stderr, "Out of memory: %zu bytes were asked for\n", Count);
	std::abort();
}

} // namespace

void* FMemory::Malloc(SIZE_T Count, uint32 Alignment)
{
	if (Count == 0)
	{
		return nullptr;
	}
	void* Result = nullptr;
	if (Alignment <= alignof(std::max_align_t))
	{
		Result = std::malloc(Count);
	}
	else
	{
		const SIZE_T Rounded = (Count + Alignment - 1) / Alignment * Alignment;
		Result = std::aligned_alloc(Alignment, Rounded);
	}
	if (!Result)
	{
		EndWithoutMemory(Count);
	}
	return Result;
}

void* FMemory::MallocZeroed(SIZE_T Count, uint32 Alignment)
{
	return Memzero(Malloc(Count, Alignment), Count);
}

void* FMemory::Realloc(void* Original, SIZE_T Count, uint32 Alignment)
{
	check(Alignment <= alignof(std::max_align_t));
	if (Count == 0)
	{
		std::free(Original);
		return nullptr;
	}
	void* Result = std::realloc(Original, Count);
	if (!Result)
	{
		EndWithoutMemory(Count);
	}
	return Result;
}

void FMemory::Free(void* Original)
{
	std::free(Original);
}

void FMemory::Memswap(void* A, void* B, SIZE_T Size)
{
	uint8* Left = static_cast<uint8*>(A);
	uint8* Right = static_cast<uint8*>(B);
	for (SIZE_T Index = 0; Index < Size; ++Index)
	{
		const uint8 Byte = Left[Index];
		Left[Index] = Right[Index];
		Right[Index] = Byte;
	}
}
