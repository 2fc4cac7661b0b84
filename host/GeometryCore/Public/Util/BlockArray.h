// SPDX-License-Identifier: MIT
/** Array that grows without moving its elements, and whose copies share them. */
#pragma once

#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"
#include <atomic>
#include <new>
#include <type_traits>

namespace UE::Geometry
{

/**
 * Elements in blocks, each twice the size of the one before. Growing a mesh by millions of elements this way copies
 * nothing and touches each page of memory once, which is most of the cost of building one.
 *
 * A copy shares the blocks of its original; the first of the two that is changed takes blocks of its own, unless the
 * other is gone by then. Copying and reading may go on in several threads; whoever changes an array does so alone.
 */
template <typename ElementType>
class TBlockArray
{
	static_assert(std::is_trivially_copyable_v<ElementType>, "blocks are copied bitwise");

public:
	TBlockArray() = default;
	TBlockArray(const TBlockArray& Other) { Share(Other); }
	TBlockArray(TBlockArray&& Other) { TakeOver(Other); }
	~TBlockArray() { Empty(); }
	TBlockArray& operator=(const TBlockArray& Other)
	{
		if (this != &Other)
		{
			Empty();
			Share(Other);
		}
		return *this;
	}
	/** Other is empty afterwards. */
	TBlockArray& operator=(TBlockArray&& Other)
	{
		if (this != &Other)
		{
			Empty();
			TakeOver(Other);
		}
		return *this;
	}

	int32 Num() const { return Count; }

	/** Position of the new element. */
	FORCEINLINE int32 Add(const ElementType& Element)
	{
		if (UNLIKELY(Count >= Room))
		{
			MakeRoom();
		}
		*Next++ = Element;
		return Count++;
	}

	/** Drops the elements, and releases the memory that nobody shares. */
	void Empty()
	{
		for (int32 Block = 0; Block < NumBlocks; ++Block)
		{
			Release(GetBlock(Block));
		}
		Count = Room = NumBlocks = 0;
		Next = nullptr;
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
	FORCEINLINE ElementType& At(int32 Index)
	{
		Own();
		return *Locate(Index);
	}
	FORCEINLINE const ElementType& At(int32 Index) const { return *Locate(Index); }
	/** At, for a stretch of code that has called Own() and copies nothing meanwhile. */
	FORCEINLINE ElementType& AtOwned(int32 Index) { return *Locate(Index); }

	/** Makes sure that changes are seen here alone. */
	FORCEINLINE void Own()
	{
		if (UNLIKELY(Room < 0))
		{
			TakeOwnBlocks();
		}
	}

private:
	/** In front of the elements of each block. Its size keeps them aligned like the memory itself. */
	struct FHeader
	{
		explicit FHeader(int32 InUsers)
			: Users(InUsers)
		{
		}
		std::atomic<int32> Users;
	};
	static constexpr SIZE_T HeaderBytes = 16;
	static_assert(sizeof(FHeader) <= HeaderBytes && alignof(ElementType) <= HeaderBytes);

	static constexpr int32 FirstBlockBits = 5;
	static constexpr uint32 FirstBlockSize = 1u << FirstBlockBits;
	static constexpr int32 MaxBlocks = 32 - FirstBlockBits;
	/** Value of Room while the blocks may be those of another array too. */
	static constexpr int32 Shared = -1;

	static uint32 SizeOf(int32 Block) { return FirstBlockSize << Block; }
	void* GetBlock(int32 Block) const
	{
		return reinterpret_cast<void*>(
			Origins[Block + FirstBlockBits] + UPTRINT{SizeOf(Block)} * sizeof(ElementType) - HeaderBytes);
	}
	void SetBlock(int32 Block, void* Memory)
	{
		Origins[Block + FirstBlockBits] =
			reinterpret_cast<UPTRINT>(Memory) + HeaderBytes - UPTRINT{SizeOf(Block)} * sizeof(ElementType);
	}
	static uint8* ElementsOf(void* Block) { return static_cast<uint8*>(Block) + HeaderBytes; }
	int32 Capacity() const { return static_cast<int32>((FirstBlockSize << NumBlocks) - FirstBlockSize); }

	FORCEINLINE ElementType* Locate(int32 Index) const
	{
		// With the first block's size added, the highest set bit tells the block and the rest the place in it. That bit
		// need not be taken away, for Origins are so much lower.
		const uint32 Shifted = static_cast<uint32>(Index) + FirstBlockSize;
		const UPTRINT Origin = Origins[31 ^ __builtin_clz(Shifted)];
		return reinterpret_cast<ElementType*>(Origin + UPTRINT{Shifted} * sizeof(ElementType));
	}

	void CheckRange(int32 Index) const
	{
		if (UNLIKELY(static_cast<uint32>(Index) >= static_cast<uint32>(Count)))
		{
			FDebug::IndexOutOfBounds(Index, Count);
		}
	}

	static void* NewBlock(int32 Block)
	{
		void* const Memory = FMemory::Malloc(HeaderBytes + sizeof(ElementType) * SizeOf(Block));
		::new (Memory) FHeader(1);
		return Memory;
	}
	static FHeader& HeaderOf(void* Block) { return *static_cast<FHeader*>(Block); }
	static void Release(void* Block)
	{
		if (HeaderOf(Block).Users.fetch_sub(1, std::memory_order_acq_rel) == 1)
		{
			FMemory::Free(Block);
		}
	}

	/** Owns the blocks and has room for one more element. */
	FORCENOINLINE void MakeRoom()
	{
		Own();
		if (Count == Room)
		{
			checkf(NumBlocks < MaxBlocks - 1, TEXT("an array of more than 2^31 elements"));
			SetBlock(NumBlocks, NewBlock(NumBlocks));
			++NumBlocks;
			Room = Capacity();
		}
		Next = Locate(Count);
	}

	FORCENOINLINE void TakeOwnBlocks()
	{
		for (int32 Block = 0; Block < NumBlocks; ++Block)
		{
			void* const Theirs = GetBlock(Block);
			if (HeaderOf(Theirs).Users.load(std::memory_order_acquire) > 1)
			{
				void* const Mine = NewBlock(Block);
				const uint32 First = SizeOf(Block) - FirstBlockSize;
				const uint32 Used = static_cast<uint32>(Count) <= First ? 0 : static_cast<uint32>(Count) - First;
				FMemory::Memcpy(ElementsOf(Mine), ElementsOf(Theirs),
					sizeof(ElementType) * (Used < SizeOf(Block) ? Used : SizeOf(Block)));
				Release(Theirs);
				SetBlock(Block, Mine);
			}
		}
		Room = Capacity();
		Next = Count < Room ? Locate(Count) : nullptr;
	}

	void Share(const TBlockArray& Other)
	{
		for (int32 Block = 0; Block < Other.NumBlocks; ++Block)
		{
			SetBlock(Block, Other.GetBlock(Block));
			HeaderOf(GetBlock(Block)).Users.fetch_add(1, std::memory_order_relaxed);
		}
		Count = Other.Count;
		NumBlocks = Other.NumBlocks;
		if (NumBlocks > 0)
		{
			Room = Shared;
			// Others may be copying it at the same time.
			std::atomic_ref<int32>(Other.Room).store(Shared, std::memory_order_relaxed);
		}
	}

	void TakeOver(TBlockArray& Other)
	{
		for (int32 Block = 0; Block < Other.NumBlocks; ++Block)
		{
			SetBlock(Block, Other.GetBlock(Block));
		}
		Next = Other.Next;
		Count = Other.Count;
		Room = Other.Room;
		NumBlocks = Other.NumBlocks;
		Other.Count = Other.Room = Other.NumBlocks = 0;
		Other.Next = nullptr;
	}

	/** By the highest bit of the index plus the first block's size: where the element of index minus that size would
	 * be. */
	UPTRINT Origins[32] = {};
	/** Place of the next element while Count < Room. */
	ElementType* Next = nullptr;
	int32 Count = 0;
	/** Elements that the blocks hold, or Shared. */
	mutable int32 Room = 0;
	int32 NumBlocks = 0;
};

} // namespace UE::Geometry
