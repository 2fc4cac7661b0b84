// SPDX-License-Identifier: MIT
/** Iterator over an indexed container that can remove while it walks. */
#pragma once

#include "HAL/Platform.h"

template <typename ContainerType, typename ElementType, typename SizeType>
class TIndexedContainerIterator
{
public:
	explicit TIndexedContainerIterator(ContainerType& InContainer, SizeType StartIndex = 0)
		: Container(InContainer)
		, Index(StartIndex)
	{
	}

	TIndexedContainerIterator& operator++()
	{
		++Index;
		return *this;
	}
	TIndexedContainerIterator& operator--()
	{
		--Index;
		return *this;
	}
	ElementType& operator*() const { return Container[Index]; }
	ElementType* operator->() const { return &Container[Index]; }
	explicit operator bool() const { return Container.IsValidIndex(Index); }
	SizeType GetIndex() const { return Index; }
	void Reset() { Index = 0; }
	void SetToEnd() { Index = Container.Num(); }

	/** Removes the current element; the next increment reaches the one behind it. */
	void RemoveCurrent() { Container.RemoveAt(Index--); }
	void RemoveCurrentSwap() { Container.RemoveAtSwap(Index--); }

private:
	ContainerType& Container;
	SizeType Index;
};
