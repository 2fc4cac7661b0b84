// SPDX-License-Identifier: MIT
#include "Containers/Queue.h"
#include "fixtures/CorePrinting.h"

#include <thread>
#include <vector>

TEST(Queue, GivesItemsInTheOrderTheyWereAdded)
{
	TQueue<FString> Queue;
	FString Item;

	EXPECT_FALSE(Queue.Dequeue(Item));
	Queue.Enqueue(TEXT("a"));
	Queue.Enqueue(TEXT("b"));
	EXPECT_EQ(*Queue.Peek(), TEXT("a"));
	EXPECT_TRUE(Queue.Dequeue(Item));
	EXPECT_EQ(Item, TEXT("a"));
	EXPECT_TRUE(Queue.Pop());
	EXPECT_TRUE(Queue.IsEmpty());
	EXPECT_EQ(Queue.Peek(), nullptr);
}

TEST(Queue, KeepsTheOrderOfEachProducer)
{
	constexpr int32 NumProducers = 3;
	constexpr int32 NumItems = 2000;
	TQueue<int32, EQueueMode::Mpsc> Queue;
	std::vector<std::thread> Producers;
	for (int32 Producer = 0; Producer < NumProducers; ++Producer)
	{
		Producers.emplace_back(
			[&Queue, Producer]
			{
				for (int32 Index = 0; Index < NumItems; ++Index)
				{
					Queue.Enqueue(Producer * NumItems + Index);
				}
			});
	}

	int32 Next[NumProducers] = {};
	for (int32 NumReceived = 0; NumReceived < NumProducers * NumItems;)
	{
		int32 Item = 0;
		if (Queue.Dequeue(Item))
		{
			ASSERT_EQ(Item % NumItems, Next[Item / NumItems]++);
			++NumReceived;
		}
		else
		{
			std::this_thread::yield();
		}
	}
	for (std::thread& Producer : Producers)
	{
		Producer.join();
	}
	EXPECT_TRUE(Queue.IsEmpty());
}
