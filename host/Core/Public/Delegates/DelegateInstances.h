// SPDX-License-Identifier: MIT
/** The ways in which a delegate can be bound. */
#pragma once

#include "Delegates/IDelegateInstance.h"
#include "Templates/Invoke.h"
#include "Templates/SharedPointer.h"
#include <tuple>

// Defined by the object system, which lies above; complete wherever a function of one of its objects is bound.
template <class T>
struct TWeakObjectPtr;

namespace UE::Core::Private
{

/** Pointer to a member function that fits the constness of the object. */
template <typename UserClass, typename FuncType>
struct TMemFunPtr;
template <typename UserClass, typename Ret, typename... ParamTypes>
struct TMemFunPtr<UserClass, Ret(ParamTypes...)>
{
	using Type = Ret (UserClass::*)(ParamTypes...);
	using ConstType = Ret (UserClass::*)(ParamTypes...) const;
};

/**
 * A bound function; immutable and shared by the delegates that are copies of each other.
 *
 * A call keeps it alive, so a function may unbind itself while it runs.
 */
template <typename Ret, typename... ParamTypes>
class TDelegateInstance
{
public:
	TDelegateInstance() = default;
	TDelegateInstance(const TDelegateInstance&) = delete;
	TDelegateInstance& operator=(const TDelegateInstance&) = delete;
	virtual ~TDelegateInstance() = default;

	virtual Ret Execute(ParamTypes... Params) const = 0;
	/** False when the object that the function belongs to is known to be gone. */
	virtual bool IsSafeToExecute() const { return true; }
	/** Address of the object that the function belongs to; null for those without and for objects that are gone. */
	virtual const void* GetUserObject() const { return nullptr; }
	FDelegateHandle GetHandle() const { return Handle; }

private:
	FDelegateHandle Handle{FDelegateHandle::GenerateNewHandle};
};

/** Any callable, with values that are passed behind the delegate's own parameters. */
template <typename FunctorType, typename PayloadType, typename Ret, typename... ParamTypes>
class TFunctorDelegateInstance : public TDelegateInstance<Ret, ParamTypes...>
{
public:
	TFunctorDelegateInstance(FunctorType InFunctor, PayloadType InPayload)
		: Functor(MoveTempIfPossible(InFunctor))
		, Payload(MoveTempIfPossible(InPayload))
	{
	}

	Ret Execute(ParamTypes... Params) const override
	{
		return std::apply([&](auto&... Values) -> Ret
			{ return static_cast<Ret>(Invoke(Functor, Forward<ParamTypes>(Params)..., Values...)); },
			Payload);
	}

private:
	mutable FunctorType Functor;
	mutable PayloadType Payload;
};

/** How an object is held by a binding: Get() gives null when it is gone. */
template <typename UserClass>
struct TRawObject
{
	UserClass* Object;

	UserClass* Get() const { return Object; }
	static constexpr bool bMayGo = false;
};
template <typename UserClass, ESPMode Mode>
struct TSharedObject
{
	TWeakPtr<UserClass, Mode> Object;

	UserClass* Get() const { return Object.Pin().Get(); }
	static constexpr bool bMayGo = true;
};
template <typename UserClass>
struct TWeakObject
{
	TWeakObjectPtr<UserClass> Object;

	UserClass* Get() const { return Object.Get(); }
	static constexpr bool bMayGo = true;
};

/** A callable that belongs to an object: a member function, or a lambda that is to end with it. */
template <typename HolderType, typename UserClass, typename FuncType, typename PayloadType, typename Ret,
	typename... ParamTypes>
class TObjectDelegateInstance : public TDelegateInstance<Ret, ParamTypes...>
{
public:
	TObjectDelegateInstance(HolderType InHolder, FuncType InFunc, PayloadType InPayload)
		: Holder(MoveTempIfPossible(InHolder))
		, Func(MoveTempIfPossible(InFunc))
		, Payload(MoveTempIfPossible(InPayload))
	{
	}

	Ret Execute(ParamTypes... Params) const override
	{
		// Held to the end of the call, so that the object outlives its own function.
		[[maybe_unused]] const auto KeepAlive = Pin();
		UserClass* Object = Holder.Get();
		checkf(Object, TEXT("A delegate is executed whose object is gone"));
		return std::apply(
			[&](auto&... Values) -> Ret
			{
				if constexpr (std::is_member_pointer_v<FuncType>)
				{
					return static_cast<Ret>((Object->*Func)(Forward<ParamTypes>(Params)..., Values...));
				}
				else
				{
					return static_cast<Ret>(Func(Forward<ParamTypes>(Params)..., Values...));
				}
			},
			Payload);
	}
	bool IsSafeToExecute() const override { return !HolderType::bMayGo || Holder.Get() != nullptr; }
	const void* GetUserObject() const override { return Holder.Get(); }

private:
	auto Pin() const
	{
		if constexpr (requires { Holder.Object.Pin(); })
		{
			return Holder.Object.Pin();
		}
		else
		{
			return 0;
		}
	}

	HolderType Holder;
	mutable FuncType Func;
	mutable PayloadType Payload;
};

} // namespace UE::Core::Private
