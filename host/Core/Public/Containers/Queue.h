// SPDX-License-Identifier: MIT
/** Unbounded queue between threads. */
#pragma once

#include "Templates/UnrealTemplate.h"
#include <atomic>

/** How many threads put items in; one thread takes them out. */
enum class EQueueMode
{
	/** Several producers, one consumer. */
	Mpsc,
	/** One producer, one consumer. */
	Spsc,
	SingleThreaded
};

/**
 * First in, first out, without locks.
 *
 * Each item is a node of a list; the node at Tail holds nothing, its successor is the next item to take.
 */
template <typename T, EQueueMode Mode = EQueueMode::Spsc>
class TQueue
{
public:
	using FElementType = T;

	TQueue()
		: Head(new FNode())
		, Tail(Head.load(std::memory_order_relaxed))
	{
	}
	TQueue(const TQueue&) = delete;
	TQueue& operator=(const TQueue&) = delete;
	~TQueue()
	{
		Empty();
		delete Tail;
	}

	/** Producers only. */
	bool Enqueue(const T& Item) { return Link(new FNode(Item)); }
	bool Enqueue(T&& Item) { return Link(new FNode(MoveTemp(Item))); }

	/** Consumer only. @return false when there is nothing to take */
	bool Dequeue(T& OutItem)
	{
		FNode* Next = Tail->Next.load(std::memory_order_acquire);
		if (!Next)
		{
			return false;
		}
		OutItem = MoveTemp(Next->Item);
		Advance(Next);
		return true;
	}
	/** Consumer only: drops the next item. */
	bool Pop()
	{
		FNode* Next = Tail->Next.load(std::memory_order_acquire);
		if (!Next)
		{
			return false;
		}
		Advance(Next);
		return true;
	}
	/** Consumer only: the next item, or null. */
	T* Peek()
	{
		FNode* Next = Tail->Next.load(std::memory_order_acquire);
		return Next ? &Next->Item : nullptr;
	}
	bool Peek(T& OutItem) const
	{
		const FNode* Next = Tail->Next.load(std::memory_order_acquire);
		if (Next)
		{
			OutItem = Next->Item;
		}
		return Next != nullptr;
	}
	bool IsEmpty() const { return Tail->Next.load(std::memory_order_acquire) == nullptr; }
	void Empty()
	{
		while (Pop())
		{
		}
	}

private:
	struct FNode
	{
		FNode() = default;
		explicit FNode(const T& InItem)
			: Item(InItem)
		{
		}
		explicit FNode(T&& InItem)
			: Item(MoveTemp(InItem))
		{
		}

		std::atomic<FNode*> Next = nullptr;
		T Item{};
	};

	bool Link(FNode* Node)
	{
		if constexpr (Mode == EQueueMode::Mpsc)
		{
			// Between the exchange and the store the queue ends at the former node: the consumer waits one turn.
			FNode* Former = Head.exchange(Node, std::memory_order_acq_rel);
			Former->Next.store(Node, std::memory_order_release);
		}
		else
		{
			FNode* Former = Head.load(std::memory_order_relaxed);
			Head.store(Node, std::memory_order_relaxed);
			Former->Next.store(Node, std::memory_order_release);
		}
		return true;
	}
	/** The node that was next becomes the empty one. */
	void Advance(FNode* Next)
	{
		FNode* Former = Tail;
		Tail = Next;
		Next->Item = T{};
		delete Former;
	}

	std::atomic<FNode*> Head;
	FNode* Tail;
};
