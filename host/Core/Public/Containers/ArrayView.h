// SPDX-License-Identifier: MIT
/** Non-owning view of contiguous elements. */
#pragma once

#include "Containers/Array.h"

/**
 * Pointer and count over elements that live elsewhere.
 *
 * A view is valid as long as the elements stay where they are; a view of an initializer_list ends with the call.
 */
template <typename InElementType, typename InSizeType>
class TArrayView
	: public UE::Core::Private::TArraySearch<TArrayView<InElementType, InSizeType>, InElementType, InSizeType>
{
public:
	using ElementType = InElementType;
	using SizeType = InSizeType;

	TArrayView() = default;
	template <typename OtherElementType>
	requires(std::is_convertible_v<OtherElementType (*)[], ElementType (*)[]>)
		TArrayView(OtherElementType* InData, SizeType InCount)
		: Data(InData)
		, ArrayNum(InCount)
	{
		check(InCount >= 0);
	}
	/** From any container with GetData and Num, arrays and other views included. */
	template <typename ContainerType>
	requires requires(ContainerType& Container)
	{
		{Container.Num()};
		requires std::is_convertible_v < std::remove_reference_t<decltype(*Container.GetData())>(*)
		[], ElementType(*)[] > ;
	}
	TArrayView(ContainerType&& Container)
		: Data(Container.GetData())
		, ArrayNum(static_cast<SizeType>(Container.Num()))
	{
	}
	template <typename OtherElementType, SIZE_T Count>
	requires(std::is_convertible_v<OtherElementType (*)[], ElementType (*)[]>)
		TArrayView(OtherElementType (&Array)[Count])
		: Data(Array)
		, ArrayNum(static_cast<SizeType>(Count))
	{
	}
	TArrayView(std::initializer_list<std::remove_const_t<ElementType>> List) requires(std::is_const_v<ElementType>)
		: ArrayNum(static_cast<SizeType>(List.size()))
	{
		const ElementType* const First = List.begin();
		Data = First;
	}

	ElementType* GetData() const { return Data; }
	SizeType Num() const { return ArrayNum; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }
	static constexpr SIZE_T GetTypeSize() { return sizeof(ElementType); }
	SIZE_T NumBytes() const { return static_cast<SIZE_T>(ArrayNum) * sizeof(ElementType); }
	void RangeCheck(SizeType Index) const
	{
#if DO_CHECK
		if (UNLIKELY(Index < 0 || Index >= ArrayNum))
		{
			FDebug::IndexOutOfBounds(Index, ArrayNum);
		}
#else
		(void)Index;
#endif
	}
	ElementType& operator[](SizeType Index) const
	{
		RangeCheck(Index);
		return Data[Index];
	}
	ElementType& Last(SizeType IndexFromTheEnd = 0) const
	{
		return (*this)[ArrayNum - IndexFromTheEnd - 1];
	}
	ElementType* begin() const
	{
		return Data;
	}
	ElementType* end() const
	{
		return Data + ArrayNum;
	}

	/** Part of the view; Index and InNum must lie inside. */
	TArrayView Slice(SizeType Index, SizeType InNum) const
	{
		check(Index >= 0 && InNum >= 0 && Index <= ArrayNum && InNum <= ArrayNum - Index);
		return TArrayView(Data + Index, InNum);
	}
	/** Part of the view, cut to what exists. */
	TArrayView Mid(SizeType Index, SizeType Count) const
	{
		const SizeType First = Clamp(Index);
		const SizeType Rest = ArrayNum - First;
		return TArrayView(Data + First, Count < 0 ? 0 : (Count < Rest ? Count : Rest));
	}
	TArrayView Mid(SizeType Index) const
	{
		return Mid(Index, ArrayNum);
	}
	TArrayView Left(SizeType Count) const
	{
		return TArrayView(Data, Clamp(Count));
	}
	TArrayView LeftChop(SizeType Count) const
	{
		return TArrayView(Data, Clamp(ArrayNum - Count));
	}
	TArrayView Right(SizeType Count) const
	{
		return Mid(ArrayNum - Clamp(Count));
	}
	TArrayView RightChop(SizeType Count) const
	{
		return Mid(Count);
	}

	void Sort() const
	{
		::Sort(Data, ArrayNum);
	}
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate) const
	{
		::Sort(Data, ArrayNum, Predicate);
	}

private:
	SizeType Clamp(SizeType Index) const
	{
		return Index < 0 ? 0 : (Index < ArrayNum ? Index : ArrayNum);
	}

	ElementType* Data = nullptr;
	SizeType ArrayNum = 0;
};

template <typename ElementType, typename SizeType>
TArrayView<ElementType, int32> MakeArrayView(ElementType* Pointer, SizeType Size)
{
	return TArrayView<ElementType, int32>(Pointer, static_cast<int32>(Size));
}
template <typename ElementType, SIZE_T Count>
TArrayView<ElementType> MakeArrayView(ElementType (&Array)[Count])
{
	return TArrayView<ElementType>(Array);
}
template <typename ElementType>
TArrayView<const ElementType> MakeArrayView(std::initializer_list<ElementType> List)
{
	return TArrayView<const ElementType>(List.begin(), static_cast<int32>(List.size()));
}
template <typename ContainerType>
requires requires(ContainerType& Container)
{
	Container.GetData();
}
auto MakeArrayView(ContainerType&& Container)
{
	return TArrayView<std::remove_reference_t<decltype(*Container.GetData())>>(Container);
}
template <typename ElementType, typename SizeType>
TArrayView<const ElementType, int32> MakeConstArrayView(const ElementType* Pointer, SizeType Size)
{
	return TArrayView<const ElementType, int32>(Pointer, static_cast<int32>(Size));
}
template <typename ContainerType>
requires requires(ContainerType& Container)
{
	Container.GetData();
}
auto MakeConstArrayView(const ContainerType& Container)
{
	return TArrayView<const std::remove_reference_t<decltype(*Container.GetData())>>(Container);
}
