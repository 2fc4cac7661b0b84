// SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

namespace
{

DECLARE_DELEGATE_RetVal_OneParam(int32, FIntDelegate, int32);
DECLARE_MULTICAST_DELEGATE_OneParam(FLogDelegate, TArray<FString>&);

struct FListener : TSharedFromThis<FListener>
{
	explicit FListener(const TCHAR* InName = TEXT("listener"))
		: Name(InName)
	{
	}

	int32 Add(int32 Value) { return Value + Offset; }
	int32 AddConst(int32 Value) const { return Value + Offset; }
	int32 AddBoth(int32 Value, int32 Payload) { return Value + Offset + Payload; }
	void Log(TArray<FString>& Out) { Out.Add(Name); }
	void LogWith(TArray<FString>& Out, FString Suffix) const { Out.Add(Name + Suffix); }

	FString Name;
	int32 Offset = 100;
};

struct FDerivedListener : FListener
{
};

struct FOwner
{
	DECLARE_EVENT_OneParam(FOwner, FChanged, int32);
	void Change() { Changed.Broadcast(3); }
	FChanged Changed;
};

int32 Negate(int32 Value)
{
	return -Value;
}

TArray<FString> Broadcast(const FLogDelegate& Delegate)
{
	TArray<FString> Log;
	Delegate.Broadcast(Log);
	return Log;
}

} // namespace

TEST(Delegate, CallsEachKindOfFunction)
{
	FListener Raw;
	const TSharedRef<FDerivedListener> Shared = MakeShared<FDerivedListener>();
	const FListener& Constant = Raw;

	EXPECT_EQ(FIntDelegate::CreateRaw(&Raw, &FListener::Add).Execute(1), 101);
	EXPECT_EQ(FIntDelegate::CreateRaw(&Constant, &FListener::AddConst).Execute(2), 102);
	EXPECT_EQ(FIntDelegate::CreateSP(Shared, &FDerivedListener::Add).Execute(3), 103);
	EXPECT_EQ(FIntDelegate::CreateSP(&Shared.Get(), &FListener::AddConst).Execute(4), 104);
	EXPECT_EQ(FIntDelegate::CreateStatic(&Negate).Execute(5), -5);
	EXPECT_EQ(FIntDelegate::CreateLambda([](int32 Value) { return Value * 10; }).Execute(6), 60);
	EXPECT_EQ(FIntDelegate::CreateRaw(&Raw, &FListener::AddBoth, 1000).Execute(7), 1107);
	EXPECT_EQ(FIntDelegate::CreateLambda([](int32 A, int32 B) { return A * B; }, 3).Execute(8), 24);
}

TEST(Delegate, ExecutingAnUnboundDelegateIsAFailedCheck)
{
	const FAssertionsThrow Assertions;
	FIntDelegate Delegate;

	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.GetHandle().IsValid());
	EXPECT_THROW(Delegate.Execute(1), FAssertionFailure);
	EXPECT_FALSE(FSimpleDelegate().ExecuteIfBound());
}

TEST(Delegate, ASharedBindingEndsWithItsObjectAndDoesNotKeepItAlive)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	int32 NumCalls = 0;
	FSimpleDelegate OfLambda = FSimpleDelegate::CreateSPLambda(Listener.Get(), [&NumCalls] { ++NumCalls; });
	FIntDelegate Delegate;
	Delegate.BindSP(Listener.ToSharedRef(), &FListener::Add);

	EXPECT_TRUE(Delegate.IsBound());
	EXPECT_TRUE(OfLambda.ExecuteIfBound());
	EXPECT_TRUE(Listener.IsUnique());
	Listener.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(OfLambda.ExecuteIfBound());
	EXPECT_EQ(NumCalls, 1);
}

TEST(Delegate, MayBindItselfAnewWhileItRuns)
{
	FSimpleDelegate Delegate;
	FString Log;
	const FString Kept(TEXT("a text that is long enough for the heap"));
	Delegate.BindLambda(
		[&Delegate, &Log, Kept]
		{
			Delegate.BindLambda([&Log] { Log += TEXT(" second"); });
			Log += Kept;
		});

	Delegate.Execute();
	Delegate.Execute();

	EXPECT_TEXT_EQ(Log, TEXT("a text that is long enough for the heap second"));
}

TEST(MulticastDelegate, WalksFromTheLastAddedToTheFirst)
{
	FListener A(TEXT("A"));
	FListener B(TEXT("B"));
	FLogDelegate Delegate;
	Delegate.AddRaw(&A, &FListener::Log);
	Delegate.AddRaw(&B, &FListener::LogWith, FString(TEXT("!")));
	Delegate.AddLambda([](TArray<FString>& Out) { Out.Add(TEXT("lambda")); });

	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("lambda"), TEXT("B!"), TEXT("A")}));
}

TEST(MulticastDelegate, RemovesByHandle)
{
	FListener A(TEXT("A"));
	FLogDelegate Delegate;
	const FDelegateHandle First = Delegate.AddRaw(&A, &FListener::Log);
	const FDelegateHandle Second = Delegate.AddRaw(&A, &FListener::LogWith, FString(TEXT("2")));

	EXPECT_TRUE(Delegate.Remove(First));
	EXPECT_FALSE(Delegate.Remove(First));
	EXPECT_FALSE(Delegate.Remove(FDelegateHandle()));
	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("A2")}));
	EXPECT_TRUE(Delegate.Remove(Second));
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(MulticastDelegate, RemoveAllTakesTheFunctionsOfOneObject)
{
	FListener A(TEXT("A"));
	const TSharedRef<FListener> B = MakeShared<FListener>(TEXT("B"));
	FLogDelegate Delegate;
	Delegate.AddRaw(&A, &FListener::Log);
	Delegate.AddSP(B, &FListener::Log);
	Delegate.AddSP(B, &FListener::LogWith, FString(TEXT("2")));
	Delegate.AddLambda([](TArray<FString>& Out) { Out.Add(TEXT("lambda")); });

	EXPECT_TRUE(Delegate.IsBoundToObject(&B.Get()));
	EXPECT_EQ(Delegate.RemoveAll(&B.Get()), 2);
	EXPECT_EQ(Delegate.RemoveAll(nullptr), 0);
	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("lambda"), TEXT("A")}));
}

TEST(MulticastDelegate, SkipsSharedBindingsWhoseObjectIsGone)
{
	FListener A(TEXT("A"));
	TSharedPtr<FListener> B = MakeShared<FListener>(TEXT("B"));
	FLogDelegate Delegate;
	Delegate.AddRaw(&A, &FListener::Log);
	Delegate.AddSP(B.ToSharedRef(), &FListener::Log);

	B.Reset();

	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("A")}));
}

TEST(MulticastDelegate, AFunctionMayRemoveItselfDuringTheBroadcast)
{
	FLogDelegate Delegate;
	FDelegateHandle Handle;
	const FString Kept(TEXT("once, and long enough for the heap"));
	Delegate.AddLambda([](TArray<FString>& Out) { Out.Add(TEXT("first")); });
	Handle = Delegate.AddLambda(
		[&Delegate, &Handle, Kept](TArray<FString>& Out)
		{
			Delegate.Remove(Handle);
			Out.Add(Kept);
		});
	Delegate.AddLambda([](TArray<FString>& Out) { Out.Add(TEXT("last")); });

	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("last"), Kept, TEXT("first")}));
	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("last"), TEXT("first")}));
}

TEST(MulticastDelegate, WhatIsRemovedDuringTheBroadcastIsNotCalledAnyMore)
{
	FListener A(TEXT("A"));
	FLogDelegate Delegate;
	Delegate.AddRaw(&A, &FListener::Log);
	Delegate.AddLambda(
		[&Delegate, &A](TArray<FString>& Out)
		{
			Out.Add(TEXT("remover"));
			Delegate.RemoveAll(&A);
		});

	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("remover")}));
}

TEST(MulticastDelegate, WhatIsAddedDuringTheBroadcastIsCalledByTheNext)
{
	FLogDelegate Delegate;
	int32 NumAdded = 0;
	Delegate.AddLambda(
		[&](TArray<FString>& Out)
		{
			Out.Add(TEXT("adder"));
			if (NumAdded == 0)
			{
				for (; NumAdded < 50; ++NumAdded)
				{
					Delegate.AddLambda([](TArray<FString>& InnerOut) { InnerOut.Add(TEXT("added")); });
				}
			}
		});

	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("adder")}));
	EXPECT_EQ(Broadcast(Delegate).Num(), 51);
}

TEST(MulticastDelegate, MayBeClearedAndBroadcastAgainDuringTheBroadcast)
{
	FLogDelegate Delegate;
	Delegate.AddLambda([](TArray<FString>& Out) { Out.Add(TEXT("first")); });
	Delegate.AddLambda(
		[&Delegate](TArray<FString>& Out)
		{
			Out.Add(TEXT("outer"));
			if (Out.Num() == 1)
			{
				Delegate.Broadcast(Out);
				Delegate.Clear();
			}
		});

	EXPECT_EQ(Broadcast(Delegate), (TArray<FString>{TEXT("outer"), TEXT("outer"), TEXT("first")}));
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(MulticastDelegate, AnObjectMayGoDuringTheBroadcast)
{
	TSharedPtr<FListener> B = MakeShared<FListener>(TEXT("B"));
	FLogDelegate Delegate;
	Delegate.AddSP(B.ToSharedRef(), &FListener::Log);
	Delegate.AddLambda([&B](TArray<FString>&) { B.Reset(); });

	EXPECT_EQ(Broadcast(Delegate), TArray<FString>());
}

TEST(MulticastDelegate, ABoundDelegateIsAddedWithItsHandle)
{
	const FLogDelegate::FDelegate Single =
		FLogDelegate::FDelegate::CreateLambda([](TArray<FString>& Out) { Out.Add(TEXT("single")); });
	FLogDelegate Delegate;

	EXPECT_EQ(Delegate.Add(Single), Single.GetHandle());
	EXPECT_FALSE(Delegate.Add(FLogDelegate::FDelegate()).IsValid());
	const FLogDelegate Copy = Delegate;
	Delegate.Clear();
	EXPECT_EQ(Broadcast(Copy), (TArray<FString>{TEXT("single")}));
}

TEST(MulticastDelegate, AnEventIsBroadcastByItsOwner)
{
	FOwner Owner;
	int32 Received = 0;
	Owner.Changed.AddLambda([&Received](int32 Value) { Received = Value; });

	Owner.Change();

	EXPECT_EQ(Received, 3);
}
