// SPDX-License-Identifier: MIT
/** Array that owns its elements one by one, so that they keep their addresses. */
#pragma once

#include "Containers/Array.h"

/** Elements are allocated with new by the caller, deleted by the array, and never null. */
template <typename T, typename Allocator>
class TIndirectArray
{
public:
	using ElementType = T;
	using InternalArrayType = TArray<void*, Allocator>;

	TIndirectArray() = default;
	TIndirectArray(TIndirectArray&&) = default;
	TIndirectArray(const TIndirectArray& Other) { CopyFrom(Other); }
	TIndirectArray& operator=(const TIndirectArray& Other)
	{
		if (this != &Other)
		{
			Empty(Other.Num());
			CopyFrom(Other);
		}
		return *this;
	}
	TIndirectArray& operator=(TIndirectArray&& Other)
	{
		if (this != &Other)
		{
			Empty();
			Array = MoveTemp(Other.Array);
		}
		return *this;
	}
	~TIndirectArray() { Empty(); }

	int32 Num() const { return Array.Num(); }
	bool IsEmpty() const { return Array.IsEmpty(); }
	bool IsValidIndex(int32 Index) const { return Array.IsValidIndex(Index); }
	T** GetData() { return reinterpret_cast<T**>(Array.GetData()); }
	const T* const* GetData() const { return reinterpret_cast<const T* const*>(Array.GetData()); }
	T& operator[](int32 Index) { return *static_cast<T*>(Array[Index]); }
	const T& operator[](int32 Index) const { return *static_cast<const T*>(Array[Index]); }
	T& Last(int32 IndexFromTheEnd = 0) { return (*this)[Num() - IndexFromTheEnd - 1]; }
	const T& Last(int32 IndexFromTheEnd = 0) const { return (*this)[Num() - IndexFromTheEnd - 1]; }

	/** Takes ownership. @return index of the item */
	int32 Add(T* Item) { return Array.Add(Item); }
	void Insert(T* Item, int32 Index) { Array.Insert(Item, Index); }
	void RemoveAt(int32 Index, int32 Count = 1, bool bAllowShrinking = true)
	{
		Delete(Index, Count);
		Array.RemoveAt(Index, Count, bAllowShrinking);
	}
	void Reset(int32 NewSize = 0)
	{
		Delete(0, Num());
		Array.Reset(NewSize);
	}
	void Empty(int32 Slack = 0)
	{
		Delete(0, Num());
		Array.Empty(Slack);
	}
	void Reserve(int32 Number) { Array.Reserve(Number); }
	void Swap(int32 FirstIndex, int32 SecondIndex) { Array.Swap(FirstIndex, SecondIndex); }

	template <typename ArrayElement, typename ValueType>
	class TPointerIterator
	{
	public:
		explicit TPointerIterator(ArrayElement* InPointer)
			: Pointer(InPointer)
		{
		}
		ValueType& operator*() const { return *static_cast<ValueType*>(*Pointer); }
		TPointerIterator& operator++()
		{
			++Pointer;
			return *this;
		}
		bool operator==(const TPointerIterator& Other) const = default;

	private:
		ArrayElement* Pointer;
	};
	auto begin() { return TPointerIterator<void* const, T>(Array.GetData()); }
	auto end() { return TPointerIterator<void* const, T>(Array.GetData() + Num()); }
	auto begin() const { return TPointerIterator<void* const, const T>(Array.GetData()); }
	auto end() const { return TPointerIterator<void* const, const T>(Array.GetData() + Num()); }

private:
	void CopyFrom(const TIndirectArray& Other)
	{
		for (const T& Item : Other)
		{
			Add(new T(Item));
		}
	}
	void Delete(int32 Index, int32 Count)
	{
		for (int32 Offset = 0; Offset < Count; ++Offset)
		{
			delete static_cast<T*>(Array[Index + Offset]);
		}
	}

	InternalArrayType Array;
};
