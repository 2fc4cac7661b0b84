// SPDX-License-Identifier: MIT
/** TMulticastDelegate, which holds any number of bound functions. */
#pragma once

#include "Containers/Array.h"
#include "Delegates/TDelegate.h"

/**
 * Any number of bound functions.
 *
 * Functions may be added and removed while a broadcast runs: what is added is not called by it, what is removed and
 * was not called yet is not called either.
 */
template <typename... ParamTypes, typename UserPolicy>
class TMulticastDelegate<void(ParamTypes...), UserPolicy>
{
public:
	using FDelegate = TDelegate<void(ParamTypes...), UserPolicy>;

	TMulticastDelegate() = default;
	TMulticastDelegate(const TMulticastDelegate& Other)
		: Bindings(Other.Bindings)
	{
	}
	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		if (this != &Other)
		{
			Clear();
			for (const FDelegate& Delegate : Other.Bindings)
			{
				Add(Delegate);
			}
		}
		return *this;
	}
	TMulticastDelegate(TMulticastDelegate&& Other)
		: Bindings(MoveTemp(Other.Bindings))
	{
	}
	TMulticastDelegate& operator=(TMulticastDelegate&& Other)
	{
		*this = AsConst(Other);
		Other.Clear();
		return *this;
	}

	/** Adds a bound delegate. @return handle for Remove; invalid when the delegate is not bound */
	FDelegateHandle Add(const FDelegate& InNewDelegate)
	{
		if (!InNewDelegate.IsBound())
		{
			return FDelegateHandle();
		}
		Compact();
		Bindings.Emplace(InNewDelegate);
		return InNewDelegate.GetHandle();
	}
	FDelegateHandle Add(FDelegate&& InNewDelegate) { return Add(AsConst(InNewDelegate)); }
	template <typename... ArgTypes>
	FDelegateHandle AddRaw(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateRaw(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddSP(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSP(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddThreadSafeSP(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSP(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddUObject(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateUObject(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateLambda(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddStatic(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateStatic(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddWeakLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateWeakLambda(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddSPLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSPLambda(Forward<ArgTypes>(Args)...));
	}

	/** @return whether the handle named a binding */
	bool Remove(FDelegateHandle Handle)
	{
		return Handle.IsValid() &&
			   UnbindIf([Handle](const FDelegate& Delegate) { return Delegate.GetHandle() == Handle; }) > 0;
	}
	/** Removes the functions of an object; lambdas and static functions stay. @return number removed */
	int32 RemoveAll(FDelegateUserObjectConst InUserObject)
	{
		return UnbindIf([InUserObject](const FDelegate& Delegate) { return Delegate.IsBoundToObject(InUserObject); });
	}
	void Clear()
	{
		UnbindIf([](const FDelegate&) { return true; });
	}
	bool IsBound() const
	{
		return Bindings.ContainsByPredicate([](const FDelegate& Delegate) { return Delegate.IsBound(); });
	}
	bool IsBoundToObject(FDelegateUserObjectConst InUserObject) const
	{
		return Bindings.ContainsByPredicate(
			[InUserObject](const FDelegate& Delegate) { return Delegate.IsBoundToObject(InUserObject); });
	}

	/** Calls every function, from the one added last to the first; functions of objects that are gone are skipped. */
	void Broadcast(ParamTypes... Params) const
	{
		TMulticastDelegate& Self = const_cast<TMulticastDelegate&>(*this);
		const FRunning Running(Self);
		for (int32 Index = Bindings.Num() - 1; Index >= 0; --Index)
		{
			// A copy, because adding moves the bindings.
			const FDelegate Delegate = Bindings[Index];
			Delegate.ExecuteIfBound(Params...);
		}
	}

private:
	/** Counts the broadcasts that run and tidies up behind the last one. */
	struct FRunning
	{
		explicit FRunning(TMulticastDelegate& InOwner)
			: Owner(InOwner)
		{
			++Owner.NumRunning;
		}
		~FRunning()
		{
			--Owner.NumRunning;
			Owner.Compact();
		}
		TMulticastDelegate& Owner;
	};

	/** Drops bindings that are unbound or whose objects are gone; while a broadcast walks the list it stays. */
	void Compact()
	{
		if (NumRunning == 0)
		{
			Bindings.RemoveAll([](const FDelegate& Delegate) { return !Delegate.IsBound(); });
		}
	}
	template <typename PredicateType>
	int32 UnbindIf(PredicateType Predicate)
	{
		// What a function's end does to this delegate must find the list whole.
		TArray<FDelegate> Removed;
		for (FDelegate& Delegate : Bindings)
		{
			if (Delegate.IsBound() && Predicate(Delegate))
			{
				Removed.Emplace(Delegate);
				Delegate.Unbind();
			}
		}
		Compact();
		return Removed.Num();
	}

	TArray<FDelegate> Bindings;
	int32 NumRunning = 0;
};
