// SPDX-License-Identifier: MIT
/** Construction, destruction and relocation of runs of elements. */
#pragma once

#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTemplate.h"
#include "Templates/UnrealTypeTraits.h"
#include <new>

template <typename ElementType, typename SizeType>
void DefaultConstructItems(void* Address, SizeType Count)
{
	if constexpr (std::is_arithmetic_v<ElementType> || std::is_pointer_v<ElementType> || std::is_enum_v<ElementType>)
	{
		FMemory::Memzero(Address, sizeof(ElementType) * static_cast<SIZE_T>(Count));
	}
	else
	{
		ElementType* Element = static_cast<ElementType*>(Address);
		for (; Count > 0; --Count, ++Element)
		{
			::new (static_cast<void*>(Element)) ElementType();
		}
	}
}

template <typename ElementType, typename SizeType>
void DestructItems(ElementType* Element, SizeType Count)
{
	if constexpr (!std::is_trivially_destructible_v<ElementType>)
	{
		for (; Count > 0; --Count, ++Element)
		{
			Element->~ElementType();
		}
	}
}

template <typename ElementType>
void DestructItem(ElementType* Element)
{
	Element->~ElementType();
}

/** Copies Count elements of any convertible type into raw memory. */
template <typename DestType, typename SourceType, typename SizeType>
void ConstructItems(void* Dest, const SourceType* Source, SizeType Count)
{
	if constexpr (std::is_same_v<DestType, SourceType> && std::is_trivially_copyable_v<DestType>)
	{
		FMemory::Memcpy(Dest, Source, sizeof(DestType) * static_cast<SIZE_T>(Count));
	}
	else
	{
		DestType* Element = static_cast<DestType*>(Dest);
		for (; Count > 0; --Count, ++Element, ++Source)
		{
			::new (static_cast<void*>(Element)) DestType(*Source);
		}
	}
}

template <typename ElementType, typename SizeType>
void MoveConstructItems(void* Dest, ElementType* Source, SizeType Count)
{
	if constexpr (std::is_trivially_copyable_v<ElementType>)
	{
		FMemory::Memmove(Dest, Source, sizeof(ElementType) * static_cast<SIZE_T>(Count));
	}
	else
	{
		ElementType* Element = static_cast<ElementType*>(Dest);
		for (; Count > 0; --Count, ++Element, ++Source)
		{
			::new (static_cast<void*>(Element)) ElementType(MoveTempIfPossible(*Source));
		}
	}
}

/** Moves elements to another address and ends the originals; the ranges may overlap. */
template <typename ElementType, typename SizeType>
void RelocateConstructItems(void* Dest, ElementType* Source, SizeType Count)
{
	if constexpr (UE::Core::Private::TCanBitwiseRelocate<ElementType>::Value)
	{
		FMemory::Memmove(Dest, Source, sizeof(ElementType) * static_cast<SIZE_T>(Count));
	}
	else if (static_cast<ElementType*>(Dest) <= Source)
	{
		ElementType* Target = static_cast<ElementType*>(Dest);
		for (SizeType Index = 0; Index < Count; ++Index)
		{
			::new (static_cast<void*>(Target + Index)) ElementType(MoveTempIfPossible(Source[Index]));
			Source[Index].~ElementType();
		}
	}
	else
	{
		ElementType* Target = static_cast<ElementType*>(Dest);
		for (SizeType Index = Count; Index > 0; --Index)
		{
			::new (static_cast<void*>(Target + Index - 1)) ElementType(MoveTempIfPossible(Source[Index - 1]));
			Source[Index - 1].~ElementType();
		}
	}
}

template <typename ElementType, typename SizeType>
bool CompareItems(const ElementType* A, const ElementType* B, SizeType Count)
{
	for (SizeType Index = 0; Index < Count; ++Index)
	{
		if (!(A[Index] == B[Index]))
		{
			return false;
		}
	}
	return true;
}
