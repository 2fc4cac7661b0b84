// SPDX-License-Identifier: MIT
/** TDelegate, which holds one bound function. */
#pragma once

#include "Delegates/DelegateFwd.h"
#include "Delegates/DelegateInstances.h"

/**
 * One bound function, or none.
 *
 * Functions are bound by kind: of an object held raw, shared (skipped once it is gone) or as a UObject (likewise), a
 * lambda, or a static function. Values behind the function are its payload: they are kept and passed behind the
 * delegate's own parameters. Copies share the binding and its handle.
 */
template <typename Ret, typename... ParamTypes, typename UserPolicy>
class TDelegate<Ret(ParamTypes...), UserPolicy>
{
	template <typename OtherSignature, typename OtherPolicy>
	friend class TMulticastDelegate;

	using FInstance = UE::Core::Private::TDelegateInstance<Ret, ParamTypes...>;
	template <typename UserClass, typename... VarTypes>
	using TMethod =
		typename UE::Core::Private::TMemFunPtr<UserClass, Ret(ParamTypes..., std::decay_t<VarTypes>...)>::Type;
	template <typename UserClass, typename... VarTypes>
	using TConstMethod =
		typename UE::Core::Private::TMemFunPtr<UserClass, Ret(ParamTypes..., std::decay_t<VarTypes>...)>::ConstType;

public:
	using RetValType = Ret;
	using TFuncType = Ret(ParamTypes...);
	template <typename UserClass, typename... VarTypes>
	using TMethodPtr = TMethod<UserClass, VarTypes...>;
	template <typename UserClass, typename... VarTypes>
	using TConstMethodPtr = TConstMethod<UserClass, VarTypes...>;

	TDelegate() = default;
	TDelegate(decltype(nullptr)) {}

	// Member functions; the function's class may be a base of the object's.

	template <typename UserClass, typename FuncType, typename... VarTypes>
	requires(std::is_member_function_pointer_v<FuncType>) static TDelegate
		CreateRaw(UserClass* InUserObject, FuncType InFunc, VarTypes&&... Vars)
	{
		checkf(InUserObject, TEXT("A function of no object is bound"));
		return MakeMethod<UserClass>(
			UE::Core::Private::TRawObject<UserClass>{InUserObject}, InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, ESPMode Mode, typename FuncType, typename... VarTypes>
	requires(std::is_member_function_pointer_v<FuncType>) static TDelegate
		CreateSP(const TSharedRef<UserClass, Mode>& InUserObject, FuncType InFunc, VarTypes&&... Vars)
	{
		return MakeMethod<UserClass>(
			UE::Core::Private::TSharedObject<UserClass, Mode>{InUserObject}, InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, ESPMode Mode, typename FuncType, typename... VarTypes>
	requires(std::is_member_function_pointer_v<FuncType>) static TDelegate
		CreateSP(const TSharedPtr<UserClass, Mode>& InUserObject, FuncType InFunc, VarTypes&&... Vars)
	{
		return CreateSP(InUserObject.ToSharedRef(), InFunc, Forward<VarTypes>(Vars)...);
	}
	/** From an object with TSharedFromThis. */
	template <typename UserClass, typename FuncType, typename... VarTypes>
	requires(std::is_member_function_pointer_v<FuncType>) static TDelegate
		CreateSP(UserClass* InUserObject, FuncType InFunc, VarTypes&&... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename FuncType, typename... VarTypes>
	static TDelegate CreateThreadSafeSP(UserClass&& InUserObject, FuncType InFunc, VarTypes&&... Vars)
	{
		return CreateSP(Forward<UserClass>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}
	/** From an object of the object system, by pointer or object pointer. */
	template <typename ObjectPtrType, typename FuncType, typename... VarTypes>
	requires(std::is_member_function_pointer_v<FuncType>) static TDelegate
		CreateUObject(const ObjectPtrType& InUserObject, FuncType InFunc, VarTypes&&... Vars)
	{
		auto* Object = ToRawPtr(InUserObject);
		checkf(Object, TEXT("A function of no object is bound"));
		using UserClass = std::remove_pointer_t<decltype(Object)>;
		return MakeMethod<UserClass>(UE::Core::Private::TWeakObject<UserClass>{TWeakObjectPtr<UserClass>(Object)},
			InFunc, Forward<VarTypes>(Vars)...);
	}

	// Functions without an object

	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		using FPayload = std::tuple<std::decay_t<VarTypes>...>;
		using FBound =
			UE::Core::Private::TFunctorDelegateInstance<std::decay_t<FunctorType>, FPayload, Ret, ParamTypes...>;
		return TDelegate(MakeShared<FBound>(Forward<FunctorType>(InFunctor), FPayload(Forward<VarTypes>(Vars)...)));
	}
	template <typename... FuncParamTypes, typename... VarTypes>
	static TDelegate CreateStatic(Ret (*InFunc)(FuncParamTypes...), VarTypes&&... Vars)
	{
		check(InFunc);
		return CreateLambda(InFunc, Forward<VarTypes>(Vars)...);
	}
	/** A lambda that is no longer called once the object is gone. */
	template <typename ObjectPtrType, typename FunctorType, typename... VarTypes>
	static TDelegate CreateWeakLambda(const ObjectPtrType& InUserObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		auto* Object = ToRawPtr(InUserObject);
		using UserClass = std::remove_pointer_t<decltype(Object)>;
		return MakeMethod<UserClass>(UE::Core::Private::TWeakObject<UserClass>{TWeakObjectPtr<UserClass>(Object)},
			Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	static TDelegate CreateSPLambda(const UserClass& InUserObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		const auto Ref = SharedRefOf(InUserObject);
		using FObject = typename decltype(Ref)::ElementType;
		return MakeMethod<FObject>(UE::Core::Private::TSharedObject<FObject, decltype(Ref)::Mode>{Ref},
			Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...);
	}

	template <typename... ArgTypes>
	void BindRaw(ArgTypes&&... Args)
	{
		*this = CreateRaw(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindSP(ArgTypes&&... Args)
	{
		*this = CreateSP(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindThreadSafeSP(ArgTypes&&... Args)
	{
		*this = CreateSP(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindUObject(ArgTypes&&... Args)
	{
		*this = CreateUObject(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindLambda(ArgTypes&&... Args)
	{
		*this = CreateLambda(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args)
	{
		*this = CreateStatic(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindWeakLambda(ArgTypes&&... Args)
	{
		*this = CreateWeakLambda(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindSPLambda(ArgTypes&&... Args)
	{
		*this = CreateSPLambda(Forward<ArgTypes>(Args)...);
	}

	/** False too when the function's object is gone. */
	bool IsBound() const { return Instance && Instance->IsSafeToExecute(); }
	/** Calls the function; without one this is a failed check. */
	Ret Execute(ParamTypes... Params) const
	{
		// The function may bind this delegate anew.
		const TSharedPtr<FInstance> Called = Instance;
		checkf(Called, TEXT("An unbound delegate is executed"));
		return Called->Execute(Forward<ParamTypes>(Params)...);
	}
	/** @return whether there was a function to call */
	bool ExecuteIfBound(ParamTypes... Params) const requires(std::is_void_v<Ret>)
	{
		if (!IsBound())
		{
			return false;
		}
		Execute(Forward<ParamTypes>(Params)...);
		return true;
	}
	void Unbind() { Instance.Reset(); }
	FDelegateHandle GetHandle() const { return Instance ? Instance->GetHandle() : FDelegateHandle(); }
	/** Whether the function belongs to this object; lambdas and static functions belong to none. */
	bool IsBoundToObject(FDelegateUserObjectConst InUserObject) const
	{
		return InUserObject && Instance && Instance->GetUserObject() == InUserObject;
	}
	const void* GetObjectForTimerManager() const { return Instance ? Instance->GetUserObject() : nullptr; }

private:
	explicit TDelegate(const TSharedRef<FInstance>& InInstance)
		: Instance(InInstance)
	{
	}

	template <typename UserClass, typename HolderType, typename FuncType, typename... VarTypes>
	static TDelegate MakeMethod(HolderType&& Holder, FuncType&& Func, VarTypes&&... Vars)
	{
		using FPayload = std::tuple<std::decay_t<VarTypes>...>;
		using FBound = UE::Core::Private::TObjectDelegateInstance<std::decay_t<HolderType>, UserClass,
			std::decay_t<FuncType>, FPayload, Ret, ParamTypes...>;
		return TDelegate(MakeShared<FBound>(
			MoveTempIfPossible(Holder), Forward<FuncType>(Func), FPayload(Forward<VarTypes>(Vars)...)));
	}
	template <typename UserClass>
	static auto SharedRefOf(UserClass* InUserObject)
	{
		return StaticCastSharedRef<UserClass>(InUserObject->AsShared());
	}
	template <typename UserClass, ESPMode Mode>
	static TSharedRef<UserClass, Mode> SharedRefOf(const TSharedRef<UserClass, Mode>& InUserObject)
	{
		return InUserObject;
	}

	TSharedPtr<FInstance> Instance;
};
