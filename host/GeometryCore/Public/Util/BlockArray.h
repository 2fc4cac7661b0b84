// SPDX-License-Identifier: MIT
/** Array that grows without moving its elements. */
#pragma once

#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"
#include <type_traits>

namespace UE::Geometry
{

/**
 * Elements in blocks, each twice the size of the one before. Growing a mesh by millions of elements this way copies
 * nothing and touches each page of memory once, which is most of the cost of building one.
 */
template <typename ElementType>
class TBlockArray
{
	static_assert(std::is_trivially_copyable_v<ElementType>, "blocks are copied bitwise");

public:
	TBlockArray() = default;
	TBlockArray(const TBlockArray& Other) { Append(Other); }
	TBlockArray(TBlockArray&& Other) { Swap(Other); }
	~TBlockArray() { Empty(); }
	TBlockArray& operator=(const TBlockArray& Other)
	{
		if (this != &Other)
		{
			Empty();
			Append(Other);
		}
		return *this;
	}
	/** Other is empty afterwards. */
	TBlockArray& operator=(TBlockArray&& Other)
	{
		if (this != &Other)
		{
			Empty();
			Swap(Other);
		}
		return *this;
	}

	int32 Num() const { return Count; }

	/** Position of the new element. */
	int32 Add(const ElementType& Element)
	{
		if (Count == Capacity)
		{
			AddBlock();
		}
		At(Count) = Element;
		return Count++;
	}

	/** Releases all memory. */
	void Empty()
	{
		for (int32 Block = 0; Block < NumBlocks; ++Block)
		{
			FMemory::Free(Blocks[Block]);
		}
		Count = Capacity = NumBlocks = 0;
	}

	/** An index outside of the array is a fault. */
	ElementType& operator[](int32 Index)
	{
		CheckRange(Index);
		return At(Index);
	}
	const ElementType& operator[](int32 Index) const
	{
		CheckRange(Index);
		return At(Index);
	}

	/** Without the range check. */
	ElementType& At(int32 Index)
	{
		// With the first block's size added, the highest set bit tells the block and the rest the place in it.
		const uint32 Shifted = static_cast<uint32>(Index) + FirstBlockSize;
		const int32 HighBit = 31 - __builtin_clz(Shifted);
		return Blocks[HighBit - FirstBlockBits][Shifted ^ (1u << HighBit)];
	}
	const ElementType& At(int32 Index) const { return const_cast<TBlockArray*>(this)->At(Index); }

private:
	static constexpr int32 FirstBlockBits = 5;
	static constexpr uint32 FirstBlockSize = 1u << FirstBlockBits;
	static constexpr int32 MaxBlocks = 32 - FirstBlockBits;

	void CheckRange(int32 Index) const
	{
		if (static_cast<uint32>(Index) >= static_cast<uint32>(Count))
		{
			FDebug::IndexOutOfBounds(Index, Count);
		}
	}

	FORCENOINLINE void AddBlock()
	{
		checkf(NumBlocks < MaxBlocks - 1, TEXT("an array of more than 2^31 elements"));
		const uint32 Size = FirstBlockSize << NumBlocks;
		Blocks[NumBlocks++] = static_cast<ElementType*>(FMemory::Malloc(sizeof(ElementType) * Size));
		Capacity += static_cast<int32>(Size);
	}

	void Append(const TBlockArray& Other)
	{
		while (Capacity < Other.Count)
		{
			const int32 Block = NumBlocks;
			const int32 First = Capacity;
			AddBlock();
			const int32 Last = Capacity < Other.Count ? Capacity : Other.Count;
			FMemory::Memcpy(
				Blocks[Block], Other.Blocks[Block], sizeof(ElementType) * static_cast<SIZE_T>(Last - First));
		}
		Count = Other.Count;
	}

	void Swap(TBlockArray& Other)
	{
		for (int32 Block = 0; Block < MaxBlocks; ++Block)
		{
			ElementType* const Mine = Blocks[Block];
			Blocks[Block] = Other.Blocks[Block];
			Other.Blocks[Block] = Mine;
		}
		SwapNumbers(Count, Other.Count);
		SwapNumbers(Capacity, Other.Capacity);
		SwapNumbers(NumBlocks, Other.NumBlocks);
	}
	static void SwapNumbers(int32& A, int32& B)
	{
		const int32 OldA = A;
		A = B;
		B = OldA;
	}

	ElementType* Blocks[MaxBlocks] = {};
	int32 Count = 0;
	int32 Capacity = 0;
	int32 NumBlocks = 0;
};

} // namespace UE::Geometry
