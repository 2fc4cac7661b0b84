// SPDX-License-Identifier: MIT
/** Allocation and raw memory operations. */
#pragma once

#include "HAL/Platform.h"
#include <cstring>

inline constexpr uint32 DEFAULT_ALIGNMENT = 0;

struct CORE_API FMemory
{
	/**
	 * Allocates Count bytes; ends the program when there is no memory left.
	 *
	 * @param Alignment  power of two; 0 gives 16. Memory of an alignment above 16 may not go through Realloc.
	 */
	static void* Malloc(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	static void* MallocZeroed(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	/** Grows or shrinks a block of at most 16 byte alignment, keeping its contents; 0 bytes free it and give null. */
	static void* Realloc(void* Original, SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	static void Free(void* Original);

	static void* Memcpy(void* Dest, const void* Src, SIZE_T Count)
	{
		return Count ? std::memcpy(Dest, Src, Count) : Dest;
	}
	static void* Memmove(void* Dest, const void* Src, SIZE_T Count)
	{
		return Count ? std::memmove(Dest, Src, Count) : Dest;
	}
	static int32 Memcmp(const void* A, const void* B, SIZE_T Count) { return Count ? std::memcmp(A, B, Count) : 0; }
	static void* Memset(void* Dest, uint8 Char, SIZE_T Count) { return Count ? std::memset(Dest, Char, Count) : Dest; }
	static void* Memzero(void* Dest, SIZE_T Count) { return Memset(Dest, 0, Count); }
	static void Memswap(void* A, void* B, SIZE_T Size);

	template <typename T>
	static void Memcpy(T& Dest, const T& Src)
	{
		std::memcpy(static_cast<void*>(&Dest), static_cast<const void*>(&Src), sizeof(T));
	}
	template <typename T>
	static void Memset(T& Dest, uint8 Char)
	{
		std::memset(static_cast<void*>(&Dest), Char, sizeof(T));
	}
	template <typename T>
	static void Memzero(T& Dest)
	{
		std::memset(static_cast<void*>(&Dest), 0, sizeof(T));
	}
};
