// SPDX-License-Identifier: MIT
/** Making, casting and comparing of shared pointers. */
#pragma once

#include "Templates/SharedPointer.h"

/** Makes an object and its reference counts in one allocation. */
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe, typename... ArgTypes>
TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args)
{
	auto* Controller = new SharedPointerInternals::TIntrusiveController<ObjectType, Mode>(Forward<ArgTypes>(Args)...);
	ObjectType* Object = Controller->GetObjectPtr();
	TSharedRef<ObjectType, Mode> Result(Object, SharedPointerInternals::TSharedCounter<Mode>(Controller));
	SharedPointerInternals::EnableSharedFromThis(&Result, Object, Object);
	return Result;
}

/** Hands an object made with new to the shared pointer or reference that is made of the result. */
template <class ObjectType>
SharedPointerInternals::TRawPtrProxy<ObjectType> MakeShareable(ObjectType* Object)
{
	return {Object};
}
template <class ObjectType, class DeleterType>
SharedPointerInternals::TRawPtrProxyWithDeleter<ObjectType, std::decay_t<DeleterType>> MakeShareable(
	ObjectType* Object, DeleterType&& Deleter)
{
	return {Object, Forward<DeleterType>(Deleter)};
}

template <class To, class From, ESPMode Mode>
TSharedRef<To, Mode> StaticCastSharedRef(const TSharedRef<From, Mode>& Other)
{
	return TSharedRef<To, Mode>(Other, static_cast<To*>(&Other.Get()));
}
template <class To, class From, ESPMode Mode>
TSharedPtr<To, Mode> StaticCastSharedPtr(const TSharedPtr<From, Mode>& Other)
{
	return TSharedPtr<To, Mode>(Other, static_cast<To*>(Other.Get()));
}
template <class To, class From, ESPMode Mode>
TWeakPtr<To, Mode> StaticCastWeakPtr(const TWeakPtr<From, Mode>& Other)
{
	return StaticCastSharedPtr<To>(Other.Pin());
}
template <class To, class From, ESPMode Mode>
TSharedRef<To, Mode> ConstCastSharedRef(const TSharedRef<From, Mode>& Other)
{
	return TSharedRef<To, Mode>(Other, const_cast<To*>(&Other.Get()));
}
template <class To, class From, ESPMode Mode>
TSharedPtr<To, Mode> ConstCastSharedPtr(const TSharedPtr<From, Mode>& Other)
{
	return TSharedPtr<To, Mode>(Other, const_cast<To*>(Other.Get()));
}

template <class A, class B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return &Lhs.Get() == &Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return Lhs.Get() == Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return Lhs.Get() == &Rhs.Get();
}
template <class A, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, decltype(nullptr))
{
	return !Lhs.IsValid();
}

// A weak pointer compares by the object that is still there.
template <class A, class B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Lhs, const TWeakPtr<B, Mode>& Rhs)
{
	return Lhs.Pin().Get() == Rhs.Pin().Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return Lhs.Pin().Get() == Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return Lhs.Pin().Get() == &Rhs.Get();
}
template <class A, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Lhs, decltype(nullptr))
{
	return !Lhs.IsValid();
}

template <class ObjectType, ESPMode Mode>
struct UE::Core::Private::TCanBitwiseRelocate<TSharedRef<ObjectType, Mode>>
{
	static constexpr bool Value = true;
};
template <class ObjectType, ESPMode Mode>
struct UE::Core::Private::TCanBitwiseRelocate<TSharedPtr<ObjectType, Mode>>
{
	static constexpr bool Value = true;
};
template <class ObjectType, ESPMode Mode>
struct UE::Core::Private::TCanBitwiseRelocate<TWeakPtr<ObjectType, Mode>>
{
	static constexpr bool Value = true;
};
