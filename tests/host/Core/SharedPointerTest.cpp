// SPDX-License-Identifier: MIT
#include "Containers/Map.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

#include <thread>
#include <vector>

namespace
{

struct FItem : TSharedFromThis<FItem>
{
	FItem() { ++NumAlive; }
	FItem(const FItem& Other)
		: TSharedFromThis(Other)
	{
		++NumAlive;
	}
	FItem& operator=(const FItem&) = default;
	virtual ~FItem() { --NumAlive; }

	int32 Value = 0;
	static inline int32 NumAlive = 0;
};

struct FDerivedItem : FItem
{
	TSharedRef<FDerivedItem> Self() { return SharedThis(this); }
	TSharedRef<const FDerivedItem> ConstSelf() const { return SharedThis(this); }
};

struct FAsksInItsConstructor : TSharedFromThis<FAsksInItsConstructor>
{
	FAsksInItsConstructor() { AsShared(); }
};

} // namespace

TEST(SharedPointer, EndsTheObjectWithItsLastOwner)
{
	FItem::NumAlive = 0;
	TSharedPtr<FItem> First = MakeShareable(new FItem);
	TSharedPtr<FItem> Second = First;

	EXPECT_EQ(First.GetSharedReferenceCount(), 2);
	First.Reset();
	EXPECT_TRUE(Second.IsUnique());
	EXPECT_EQ(FItem::NumAlive, 1);
	Second = nullptr;
	EXPECT_EQ(FItem::NumAlive, 0);
}

TEST(SharedPointer, FollowingAnEmptyPointerIsAFailedCheck)
{
	const FAssertionsThrow Assertions;
	const TSharedPtr<FItem> Empty;

	EXPECT_THROW(Empty->Value, FAssertionFailure);
	EXPECT_THROW(*Empty, FAssertionFailure);
	EXPECT_THROW(Empty.ToSharedRef(), FAssertionFailure);
}

TEST(SharedPointer, AWeakPointerLosesItsObjectWithTheLastOwner)
{
	TSharedPtr<FItem> Owner = MakeShared<FItem>();
	const TWeakPtr<FItem> Weak = Owner;

	EXPECT_TRUE(Weak.IsValid());
	EXPECT_TRUE(Weak.HasSameObject(Owner.Get()));
	EXPECT_EQ(Weak.Pin(), Owner);
	Owner.Reset();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Weak.Pin(), nullptr);
}

TEST(SharedPointer, AnObjectGivesSharedPointersToItself)
{
	FItem::NumAlive = 0;
	{
		const TSharedRef<FDerivedItem> Made = MakeShared<FDerivedItem>();
		const TSharedPtr<FItem> Adopted = MakeShareable(new FDerivedItem);

		EXPECT_EQ(Made->Self(), Made);
		EXPECT_EQ(Made->ConstSelf(), Made);
		EXPECT_EQ(Adopted->AsShared(), Adopted);
		EXPECT_EQ(Made->AsWeak(), Made);
		EXPECT_EQ(Made.GetSharedReferenceCount(), 1);
	}
	EXPECT_EQ(FItem::NumAlive, 0);
}

TEST(SharedPointer, AsSharedIsAFailedCheckWithoutAnOwner)
{
	const FAssertionsThrow Assertions;
	FItem OnTheStack;

	EXPECT_FALSE(OnTheStack.DoesSharedInstanceExist());
	EXPECT_THROW(OnTheStack.AsShared(), FAssertionFailure);
	EXPECT_THROW(delete new FAsksInItsConstructor, FAssertionFailure);
}

TEST(SharedPointer, ACopyOfAnObjectHasItsOwnOwner)
{
	const TSharedRef<FItem> First = MakeShared<FItem>();
	const TSharedRef<FItem> Copy = MakeShared<FItem>(*First);
	const TSharedRef<FItem> Assigned = MakeShared<FItem>();
	*Assigned = *First;

	EXPECT_EQ(Copy->AsShared(), Copy);
	EXPECT_EQ(Assigned->AsShared(), Assigned);
}

TEST(SharedPointer, CastsAndComparesAcrossTheClassTree)
{
	const TSharedRef<FDerivedItem> Derived = MakeShared<FDerivedItem>();
	const TSharedRef<FItem> Base = Derived;
	const TSharedPtr<const FItem> Constant = Base;

	EXPECT_EQ(StaticCastSharedRef<FDerivedItem>(Base), Derived);
	EXPECT_EQ(StaticCastSharedPtr<FDerivedItem>(Base.ToSharedPtr()), Derived);
	EXPECT_EQ(StaticCastWeakPtr<FDerivedItem>(Base.ToWeakPtr()), Derived);
	EXPECT_EQ(ConstCastSharedPtr<FItem>(Constant), Base);
	EXPECT_TRUE(Base != MakeShared<FItem>());
	EXPECT_FALSE(TSharedPtr<FItem>().IsValid());
}

TEST(SharedPointer, EndsTheFormerObjectAfterItHoldsTheNewOne)
{
	struct FWatcher
	{
		TSharedPtr<FWatcher>* Holder = nullptr;
		bool* bSawAnother = nullptr;
		~FWatcher()
		{
			if (Holder)
			{
				*bSawAnother = Holder->Get() != this;
			}
		}
	};
	bool bSawAnother = false;
	TSharedPtr<FWatcher> Holder = MakeShared<FWatcher>();
	Holder->Holder = &Holder;
	Holder->bSawAnother = &bSawAnother;

	Holder = MakeShared<FWatcher>();

	EXPECT_TRUE(bSawAnother);
}

TEST(SharedPointer, CallsTheGivenDeleter)
{
	int32 NumDeleted = 0;
	int32 Object = 0;
	{
		const TSharedPtr<int32> Pointer = MakeShareable(&Object, [&NumDeleted](int32*) { ++NumDeleted; });
		const TSharedPtr<void> Untyped(&Object, [&NumDeleted](int32*) { ++NumDeleted; });
	}
	EXPECT_EQ(NumDeleted, 2);
}

TEST(SharedPointer, CountsOwnersOfSeveralThreads)
{
	FItem::NumAlive = 0;
	TSharedPtr<FItem> Shared = MakeShared<FItem>();
	const TWeakPtr<FItem> Weak = Shared;
	std::vector<std::thread> Threads;
	for (int32 Thread = 0; Thread < 4; ++Thread)
	{
		Threads.emplace_back(
			[Copy = Shared, Weak]
			{
				for (int32 Turn = 0; Turn < 2000; ++Turn)
				{
					TSharedPtr<FItem> Another = Copy;
					TSharedPtr<FItem> Pinned = Weak.Pin();
					ASSERT_EQ(Another, Pinned);
				}
			});
	}
	Shared.Reset();
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	Threads.clear();

	EXPECT_EQ(FItem::NumAlive, 0);
	EXPECT_FALSE(Weak.IsValid());
}

TEST(SharedPointer, ServesAsAKeyOfMaps)
{
	const TSharedRef<FItem> A = MakeShared<FItem>();
	const TSharedRef<FItem> B = MakeShared<FItem>();
	TMap<TSharedPtr<FItem>, int32> Map;
	Map.Add(A, 1);
	Map.Add(B, 2);

	EXPECT_EQ(Map.FindRef(A), 1);
	EXPECT_EQ(Map.FindRef(nullptr), 0);
}

TEST(UniquePtr, HasOneOwner)
{
	FItem::NumAlive = 0;
	TUniquePtr<FItem> First = MakeUnique<FDerivedItem>();
	TUniquePtr<FItem> Second = MoveTemp(First);

	EXPECT_FALSE(First.IsValid());
	EXPECT_TRUE(Second.IsValid());
	EXPECT_EQ(FItem::NumAlive, 1);
	Second.Reset();
	EXPECT_EQ(FItem::NumAlive, 0);

	FItem* const Released = MakeUnique<FItem>().Release();
	EXPECT_EQ(FItem::NumAlive, 1);
	delete Released;

	TUniquePtr<int32[]> Array = MakeUnique<int32[]>(3);
	Array[2] = 5;
	EXPECT_EQ(Array[0], 0);
}
