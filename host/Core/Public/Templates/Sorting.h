// SPDX-License-Identifier: MIT
/** Sorting of contiguous ranges; a predicate that is no strict order never makes it leave the range. */
#pragma once

#include "HAL/UnrealMemory.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"
#include <new>

namespace UE::Core::Private
{

/** Ranges up to this length are sorted by insertion, which beats partitioning for few elements. */
inline constexpr int InsertionSortLimit = 16;

template <typename T, typename SizeType, typename PredicateType>
void InsertionSort(T* First, SizeType Num, const PredicateType& Predicate)
{
	for (SizeType Index = 1; Index < Num; ++Index)
	{
		if (!Predicate(First[Index], First[Index - 1]))
		{
			continue;
		}
		T Moving = MoveTempIfPossible(First[Index]);
		SizeType Hole = Index;
		do
		{
			First[Hole] = MoveTempIfPossible(First[Hole - 1]);
			--Hole;
		} while (Hole > 0 && Predicate(Moving, First[Hole - 1]));
		First[Hole] = MoveTempIfPossible(Moving);
	}
}

template <typename T, typename SizeType, typename PredicateType>
void SiftDown(T* Heap, SizeType Root, SizeType Num, const PredicateType& Predicate)
{
	for (SizeType Child = Root * 2 + 1; Child < Num; Child = Root * 2 + 1)
	{
		if (Child + 1 < Num && Predicate(Heap[Child], Heap[Child + 1]))
		{
			++Child;
		}
		if (!Predicate(Heap[Root], Heap[Child]))
		{
			return;
		}
		Swap(Heap[Root], Heap[Child]);
		Root = Child;
	}
}

template <typename T, typename SizeType, typename PredicateType>
void HeapSort(T* First, SizeType Num, const PredicateType& Predicate)
{
	for (SizeType Root = Num / 2; Root > 0; --Root)
	{
		SiftDown(First, Root - 1, Num, Predicate);
	}
	for (SizeType Last = Num - 1; Last > 0; --Last)
	{
		Swap(First[0], First[Last]);
		SiftDown(First, SizeType(0), Last, Predicate);
	}
}

/** Quick sort that falls back to heap sort when the partitions stay lopsided. */
template <typename T, typename SizeType, typename PredicateType>
void IntroSort(T* First, SizeType Num, const PredicateType& Predicate, int DepthLeft)
{
	while (Num > InsertionSortLimit)
	{
		if (DepthLeft-- == 0)
		{
			HeapSort(First, Num, Predicate);
			return;
		}

		// The median of three goes to the front and serves as pivot.
		const SizeType Middle = Num / 2;
		if (Predicate(First[Middle], First[0]))
		{
			Swap(First[Middle], First[0]);
		}
		if (Predicate(First[Num - 1], First[Middle]))
		{
			Swap(First[Num - 1], First[Middle]);
			if (Predicate(First[Middle], First[0]))
			{
				Swap(First[Middle], First[0]);
			}
		}
		Swap(First[0], First[Middle]);

		SizeType Lower = 0;
		SizeType Upper = Num;
		for (;;)
		{
			do
			{
				++Lower;
			} while (Lower < Upper && Predicate(First[Lower], First[0]));
			do
			{
				--Upper;
			} while (Upper > Lower && Predicate(First[0], First[Upper]));
			if (Lower >= Upper)
			{
				break;
			}
			Swap(First[Lower], First[Upper]);
		}
		const SizeType Split = Lower - 1;
		Swap(First[0], First[Split]);

		// The smaller side recurses, so the stack stays logarithmic.
		const SizeType NumRight = Num - Split - 1;
		if (Split < NumRight)
		{
			IntroSort(First, Split, Predicate, DepthLeft);
			First += Split + 1;
			Num = NumRight;
		}
		else
		{
			IntroSort(First + Split + 1, NumRight, Predicate, DepthLeft);
			Num = Split;
		}
	}
	InsertionSort(First, Num, Predicate);
}

template <typename T, typename SizeType, typename PredicateType>
void StableMergeSort(T* First, SizeType Num, T* Scratch, const PredicateType& Predicate)
{
	if (Num <= InsertionSortLimit)
	{
		InsertionSort(First, Num, Predicate);
		return;
	}
	const SizeType Half = Num / 2;
	StableMergeSort(First, Half, Scratch, Predicate);
	StableMergeSort(First + Half, Num - Half, Scratch, Predicate);
	if (!Predicate(First[Half], First[Half - 1]))
	{
		return;
	}

	for (SizeType Index = 0; Index < Half; ++Index)
	{
		::new (static_cast<void*>(Scratch + Index)) T(MoveTempIfPossible(First[Index]));
	}
	SizeType Left = 0;
	SizeType Right = Half;
	SizeType Out = 0;
	while (Left < Half)
	{
		const bool bTakeRight = Right < Num && Predicate(First[Right], Scratch[Left]);
		First[Out++] = MoveTempIfPossible(bTakeRight ? First[Right++] : Scratch[Left++]);
	}
	for (SizeType Index = 0; Index < Half; ++Index)
	{
		Scratch[Index].~T();
	}
}

/** Lets a predicate over objects sort an array of pointers to them. */
template <typename T, typename PredicateType>
struct TDereferencePredicate
{
	const PredicateType& Predicate;

	bool operator()(const T& A, const T& B) const
	{
		if constexpr (std::is_pointer_v<T>)
		{
			return Predicate(*A, *B);
		}
		else
		{
			return Predicate(A, B);
		}
	}
};

template <typename T, typename SizeType, typename PredicateType>
void SortRange(T* First, SizeType Num, const PredicateType& Predicate)
{
	int DepthLeft = 4;
	for (SizeType Rest = Num; Rest > 1; Rest /= 2)
	{
		DepthLeft += 2;
	}
	IntroSort(First, Num, Predicate, DepthLeft);
}

} // namespace UE::Core::Private

/** Sorts without keeping the order of equal elements; an array of pointers is sorted by what they point to. */
template <typename T, typename SizeType, typename PredicateType>
void Sort(T* First, SizeType Num, const PredicateType& Predicate)
{
	UE::Core::Private::SortRange(First, Num, UE::Core::Private::TDereferencePredicate<T, PredicateType>{Predicate});
}

template <typename T, typename SizeType>
void Sort(T* First, SizeType Num)
{
	Sort(First, Num, TLess<>());
}

/** Sorts and keeps the order of equal elements; takes scratch memory for half of the range. */
template <typename T, typename SizeType, typename PredicateType>
void StableSort(T* First, SizeType Num, const PredicateType& Predicate)
{
	const UE::Core::Private::TDereferencePredicate<T, PredicateType> Wrapper{Predicate};
	T* Scratch = Num > UE::Core::Private::InsertionSortLimit
					 ? static_cast<T*>(FMemory::Malloc(sizeof(T) * static_cast<SIZE_T>(Num / 2 + 1), alignof(T)))
					 : nullptr;
	UE::Core::Private::StableMergeSort(First, Num, Scratch, Wrapper);
	FMemory::Free(Scratch);
}

template <typename T, typename SizeType>
void StableSort(T* First, SizeType Num)
{
	StableSort(First, Num, TLess<>());
}
