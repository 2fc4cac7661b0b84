// SPDX-License-Identifier: MIT
/** Array of single bits. */
#pragma once

#include "Containers/Array.h"

template <typename Allocator = FDefaultAllocator>
class TBitArray
{
public:
	TBitArray() = default;
	explicit TBitArray(bool bValue, int32 InNumBits) { Init(bValue, InNumBits); }

	int32 Num() const { return NumBits; }
	bool IsEmpty() const { return NumBits == 0; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < NumBits; }

	/** Reference to one bit; it ends with the next change of the array's size. */
	class FBitReference
	{
	public:
		FBitReference(uint32& InWord, uint32 InMask)
			: Word(InWord)
			, Mask(InMask)
		{
		}
		operator bool() const { return (Word & Mask) != 0; }
		FBitReference& operator=(bool bValue)
		{
			Word = bValue ? (Word | Mask) : (Word & ~Mask);
			return *this;
		}
		FBitReference& operator=(const FBitReference& Other) { return *this = static_cast<bool>(Other); }

	private:
		uint32& Word;
		uint32 Mask;
	};

	FBitReference operator[](int32 Index)
	{
		RangeCheck(Index);
		return FBitReference(Words.GetData()[Index / BitsPerWord], 1u << (Index % BitsPerWord));
	}
	bool operator[](int32 Index) const
	{
		RangeCheck(Index);
		return (Words.GetData()[Index / BitsPerWord] >> (Index % BitsPerWord)) & 1u;
	}

	int32 Add(bool bValue)
	{
		const int32 Index = NumBits;
		if (Index % BitsPerWord == 0)
		{
			Words.Add(0);
		}
		++NumBits;
		(*this)[Index] = bValue;
		return Index;
	}
	void Init(bool bValue, int32 InNumBits)
	{
		Words.Init(bValue ? ~0u : 0u, (InNumBits + BitsPerWord - 1) / BitsPerWord);
		NumBits = InNumBits;
		ClearSlack();
	}
	/** Cuts off or appends bits of the given value. */
	void SetNum(int32 InNumBits, bool bValue)
	{
		while (NumBits < InNumBits)
		{
			Add(bValue);
		}
		NumBits = InNumBits;
		Words.SetNum((InNumBits + BitsPerWord - 1) / BitsPerWord, false);
		ClearSlack();
	}
	void Empty(int32 ExpectedNumBits = 0)
	{
		Words.Empty((ExpectedNumBits + BitsPerWord - 1) / BitsPerWord);
		NumBits = 0;
	}
	void Reset()
	{
		Words.Reset();
		NumBits = 0;
	}
	void Reserve(int32 Number) { Words.Reserve((Number + BitsPerWord - 1) / BitsPerWord); }
	int32 CountSetBits() const
	{
		int32 Count = 0;
		for (const uint32 Word : Words)
		{
			Count += __builtin_popcount(Word);
		}
		return Count;
	}
	/** First set bit at or behind an index; Num() when there is none. */
	int32 FindNextSet(int32 Index) const
	{
		int32 WordIndex = Index / BitsPerWord;
		uint32 Mask = ~0u << (Index % BitsPerWord);
		for (; WordIndex < Words.Num(); ++WordIndex, Mask = ~0u)
		{
			if (const uint32 Word = Words.GetData()[WordIndex] & Mask)
			{
				return WordIndex * BitsPerWord + __builtin_ctz(Word);
			}
		}
		return NumBits;
	}
	/** First bit of the given value, or INDEX_NONE. */
	int32 Find(bool bValue) const
	{
		for (int32 Index = 0; Index < NumBits; ++Index)
		{
			if ((*this)[Index] == bValue)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	bool Contains(bool bValue) const { return Find(bValue) != INDEX_NONE; }
	bool operator==(const TBitArray& Other) const { return NumBits == Other.NumBits && Words == Other.Words; }

private:
	static constexpr int32 BitsPerWord = 32;

	void RangeCheck(int32 Index) const
	{
#if DO_CHECK
		if (UNLIKELY(!IsValidIndex(Index)))
		{
			FDebug::IndexOutOfBounds(Index, NumBits);
		}
#else
		(void)Index;
#endif
	}
	/** Bits behind the last one stay zero, so that words can be compared and counted whole. */
	void ClearSlack()
	{
		if (NumBits % BitsPerWord != 0)
		{
			Words.Last() &= ~(~0u << (NumBits % BitsPerWord));
		}
	}

	TArray<uint32, Allocator> Words;
	int32 NumBits = 0;
};

/** Walks over the indices of the set bits. */
template <typename Allocator = FDefaultAllocator>
class TConstSetBitIterator
{
public:
	explicit TConstSetBitIterator(const TBitArray<Allocator>& InArray, int32 StartIndex = 0)
		: Array(InArray)
		, Index(InArray.FindNextSet(StartIndex))
	{
	}
	TConstSetBitIterator& operator++()
	{
		Index = Array.FindNextSet(Index + 1);
		return *this;
	}
	explicit operator bool() const { return Index < Array.Num(); }
	int32 GetIndex() const { return Index; }

private:
	const TBitArray<Allocator>& Array;
	int32 Index;
};
