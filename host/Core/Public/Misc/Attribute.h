// SPDX-License-Identifier: MIT
/** A value, or a function that gives it. */
#pragma once

#include "Delegates/TDelegate.h"
#include "Templates/Function.h"

/**
 * A value that is set directly or got from a bound function each time.
 *
 * When the object of a bound function is gone, the last value that it gave stays.
 */
template <typename ObjectType>
class TAttribute
{
public:
	using FGetter = TDelegate<ObjectType()>;

	/** Not set; Get gives a default value. */
	TAttribute()
		: Value()
	{
	}
	template <typename OtherType>
	requires(std::is_convertible_v<OtherType, ObjectType> && !std::is_same_v<std::decay_t<OtherType>, TAttribute>)
		TAttribute(OtherType&& InInitialValue)
		: Value(Forward<OtherType>(InInitialValue))
		, bIsSet(true)
	{
	}
	template <typename OtherType>
	requires(std::is_convertible_v<const OtherType&, ObjectType> && !std::is_same_v<OtherType, ObjectType>)
		TAttribute(const TAttribute<OtherType>& Other)
		: Value()
	{
		if (Other.IsSet())
		{
			Set(Other.Get());
		}
	}

	static TAttribute Create(FGetter InGetter)
	{
		TAttribute Result;
		Result.Bind(MoveTemp(InGetter));
		return Result;
	}
	static TAttribute Create(TFunction<ObjectType()> InGetter) { return CreateLambda(MoveTemp(InGetter)); }
	template <typename... ArgTypes>
	static TAttribute CreateSP(ArgTypes&&... Args)
	{
		return Create(FGetter::CreateSP(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	static TAttribute CreateRaw(ArgTypes&&... Args)
	{
		return Create(FGetter::CreateRaw(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	static TAttribute CreateUObject(ArgTypes&&... Args)
	{
		return Create(FGetter::CreateUObject(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	static TAttribute CreateStatic(ArgTypes&&... Args)
	{
		return Create(FGetter::CreateStatic(Forward<ArgTypes>(Args)...));
	}
	template <typename FunctorType>
	static TAttribute CreateLambda(FunctorType&& Functor)
	{
		return Create(FGetter::CreateLambda(Forward<FunctorType>(Functor)));
	}

	template <typename OtherType>
	void Set(OtherType&& InNewValue)
	{
		Getter.Unbind();
		Value = Forward<OtherType>(InNewValue);
		bIsSet = true;
	}
	/** Whether a value or a function was given. */
	bool IsSet() const { return bIsSet; }
	/** Whether a function is bound whose object is there. */
	bool IsBound() const { return Getter.IsBound(); }
	/** The value; a bound function is called for it. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}
	/** The value, or the given one when none was set. */
	ObjectType Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }
	void Bind(FGetter InGetter)
	{
		bIsSet = true;
		Getter = MoveTemp(InGetter);
	}
	template <typename UserClass>
	void BindRaw(UserClass* InUserObject, typename FGetter::template TConstMethodPtr<UserClass> InFunc)
	{
		Bind(FGetter::CreateRaw(InUserObject, InFunc));
	}
	void BindLambda(TFunction<ObjectType()> Functor) { *this = CreateLambda(MoveTemp(Functor)); }
	const FGetter& GetBinding() const { return Getter; }
	/** Neither value nor function; Get gives a default value again. */
	void Reset() { *this = TAttribute(); }
	/** Whether both have the same value, or functions of the same binding. */
	bool IdenticalTo(const TAttribute& Other) const
	{
		if (IsBound() || Other.IsBound())
		{
			return Getter.GetHandle() == Other.Getter.GetHandle();
		}
		return bIsSet == Other.bIsSet && (!bIsSet || Value == Other.Value);
	}

private:
	/** The last value; a bound function's result is kept here. */
	mutable ObjectType Value;
	FGetter Getter;
	bool bIsSet = false;
};

namespace UE::Core::Private
{

/** Type of the attribute that a member function without parameters gives. */
template <typename FuncType>
struct TGetterResult;
template <typename Ret, typename UserClass, typename... VarTypes>
struct TGetterResult<Ret (UserClass::*)(VarTypes...)>
{
	using Type = std::decay_t<Ret>;
};
template <typename Ret, typename UserClass, typename... VarTypes>
struct TGetterResult<Ret (UserClass::*)(VarTypes...) const>
{
	using Type = std::decay_t<Ret>;
};

} // namespace UE::Core::Private

// Attributes of the type that the getter returns.

template <typename T>
TAttribute<std::decay_t<T>> MakeAttribute(T&& InValue)
{
	return TAttribute<std::decay_t<T>>(Forward<T>(InValue));
}
template <typename UserClass, typename FuncType, typename... VarTypes>
auto MakeAttributeSP(UserClass&& InUserObject, FuncType InFunc, VarTypes&&... Vars)
{
	using FResult = typename UE::Core::Private::TGetterResult<FuncType>::Type;
	return TAttribute<FResult>::CreateSP(Forward<UserClass>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
}
template <typename UserClass, typename FuncType, typename... VarTypes>
auto MakeAttributeRaw(UserClass* InUserObject, FuncType InFunc, VarTypes&&... Vars)
{
	using FResult = typename UE::Core::Private::TGetterResult<FuncType>::Type;
	return TAttribute<FResult>::CreateRaw(InUserObject, InFunc, Forward<VarTypes>(Vars)...);
}
template <typename UserClass, typename FuncType, typename... VarTypes>
auto MakeAttributeUObject(UserClass&& InUserObject, FuncType InFunc, VarTypes&&... Vars)
{
	using FResult = typename UE::Core::Private::TGetterResult<FuncType>::Type;
	return TAttribute<FResult>::CreateUObject(Forward<UserClass>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
}
template <typename FunctorType>
auto MakeAttributeLambda(FunctorType&& InFunctor)
{
	return TAttribute<std::decay_t<decltype(InFunctor())>>::CreateLambda(Forward<FunctorType>(InFunctor));
}
