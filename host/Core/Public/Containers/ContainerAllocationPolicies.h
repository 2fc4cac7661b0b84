// SPDX-License-Identifier: MIT
/** Where arrays keep their elements: heap, inline with a second allocator, or inline only. */
#pragma once

#include "Containers/ContainersFwd.h"
#include "Misc/AssertionMacros.h"
#include "Templates/MemoryOps.h"

/** Index type of an allocator by its width in bits. */
template <int IndexSize>
struct TBitsToSizeType;
template <>
struct TBitsToSizeType<32>
{
	using Type = int32;
};
template <>
struct TBitsToSizeType<64>
{
	using Type = int64;
};

/** Capacity for a growing array: half as much again and a few, so that appending one by one stays linear. */
template <typename SizeType>
SizeType DefaultCalculateSlackGrow(SizeType NumElements, SizeType NumAllocated)
{
	constexpr SizeType FirstGrow = 4;
	if (NumAllocated == 0 && NumElements <= FirstGrow)
	{
		return FirstGrow;
	}
	const SizeType Wanted = NumElements + NumElements / 2 + 8;
	// Near the end of the index range there is no room for slack.
	return Wanted > NumElements ? Wanted : NumElements;
}

/** Heap memory with an index of 32 or 64 bits. Elements that may be copied bitwise grow through realloc. */
template <int IndexSize>
class TSizedDefaultAllocator
{
public:
	using SizeType = typename TBitsToSizeType<IndexSize>::Type;
	static constexpr bool bIsHeap = true;

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;
		~ForElementType() { FMemory::Free(Data); }

		ElementType* GetAllocation() const { return Data; }
		SizeType GetInitialCapacity() const { return 0; }
		bool HasAllocation() const { return Data != nullptr; }

		/** Makes room for NewMax elements and relocates the first Num into it. */
		void ResizeAllocation(SizeType Num, SizeType NewMax)
		{
			if constexpr (UE::Core::Private::TCanBitwiseRelocate<ElementType>::Value && alignof(ElementType) <= 16)
			{
				Data = static_cast<ElementType*>(
					FMemory::Realloc(Data, sizeof(ElementType) * static_cast<SIZE_T>(NewMax)));
			}
			else
			{
				ElementType* NewData = nullptr;
				if (NewMax > 0)
				{
					NewData = static_cast<ElementType*>(
						FMemory::Malloc(sizeof(ElementType) * static_cast<SIZE_T>(NewMax), alignof(ElementType)));
					RelocateConstructItems(NewData, Data, Num);
				}
				FMemory::Free(Data);
				Data = NewData;
			}
		}

		/** Takes over the other's elements; this one holds none. */
		void MoveToEmpty(ForElementType& Other, SizeType)
		{
			FMemory::Free(Data);
			Data = Other.Data;
			Other.Data = nullptr;
		}

	private:
		ElementType* Data = nullptr;
	};
};

/** Keeps the first NumInlineElements in the array itself and goes to the second allocator for more. */
template <uint32 NumInlineElements, typename SecondaryAllocator = FDefaultAllocator>
class TInlineAllocator
{
public:
	using SizeType = typename SecondaryAllocator::SizeType;
	static constexpr bool bIsHeap = false;

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;

		ElementType* GetAllocation() const
		{
			return Secondary.HasAllocation() ? Secondary.GetAllocation() : GetInline();
		}
		SizeType GetInitialCapacity() const { return NumInlineElements; }
		bool HasAllocation() const { return Secondary.HasAllocation(); }

		void ResizeAllocation(SizeType Num, SizeType NewMax)
		{
			if (NewMax > static_cast<SizeType>(NumInlineElements))
			{
				const bool bFromInline = !Secondary.HasAllocation();
				Secondary.ResizeAllocation(bFromInline ? 0 : Num, NewMax);
				if (bFromInline)
				{
					RelocateConstructItems(Secondary.GetAllocation(), GetInline(), Num);
				}
			}
			else if (Secondary.HasAllocation())
			{
				RelocateConstructItems(GetInline(), Secondary.GetAllocation(), Num);
				Secondary.ResizeAllocation(0, 0);
			}
		}

		void MoveToEmpty(ForElementType& Other, SizeType Num)
		{
			if (!Other.Secondary.HasAllocation())
			{
				RelocateConstructItems(GetInline(), Other.GetInline(), Num);
			}
			Secondary.MoveToEmpty(Other.Secondary, Num);
		}

	private:
		ElementType* GetInline() const
		{
			return const_cast<ElementType*>(reinterpret_cast<const ElementType*>(InlineData));
		}

		alignas(ElementType) uint8 InlineData[sizeof(ElementType) * NumInlineElements];
		typename SecondaryAllocator::template ForElementType<ElementType> Secondary;
	};
};

/** Keeps up to NumInlineElements in the array itself; more is a failed check. */
template <uint32 NumInlineElements>
class TFixedAllocator
{
public:
	using SizeType = int32;
	static constexpr bool bIsHeap = false;

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;

		ElementType* GetAllocation() const
		{
			return const_cast<ElementType*>(reinterpret_cast<const ElementType*>(InlineData));
		}
		SizeType GetInitialCapacity() const { return NumInlineElements; }
		bool HasAllocation() const { return false; }
		void ResizeAllocation(SizeType, SizeType NewMax) { check(NewMax <= static_cast<SizeType>(NumInlineElements)); }
		void MoveToEmpty(ForElementType& Other, SizeType Num)
		{
			RelocateConstructItems(GetAllocation(), Other.GetAllocation(), Num);
		}

	private:
		alignas(ElementType) uint8 InlineData[sizeof(ElementType) * NumInlineElements];
	};
};

/** Heap memory for sets and maps. */
class FDefaultSetAllocator
{
};

/** Accepted for sets and maps of few elements; their memory comes from the heap all the same. */
template <uint32 NumInlineElements>
class TInlineSetAllocator
{
};
