// SPDX-License-Identifier: MIT
/** Holders of callables. */
#pragma once

#include "Templates/Invoke.h"

template <typename FuncType>
class TFunctionRef;
template <typename FuncType>
class TFunction;
template <typename FuncType>
class TUniqueFunction;

namespace UE::Core::Private
{

/** True for null function pointers and empty function holders, which become empty holders. */
template <typename FunctorType>
bool IsUnboundCallable(const FunctorType& Functor)
{
	if constexpr (std::is_pointer_v<FunctorType> || std::is_member_pointer_v<FunctorType>)
	{
		return Functor == nullptr;
	}
	else if constexpr (requires { Functor.IsSet(); })
	{
		return !Functor.IsSet();
	}
	else
	{
		return false;
	}
}

/** A callable whose type is forgotten. */
template <typename Ret, typename... ParamTypes>
struct TCallable
{
	virtual ~TCallable() = default;
	virtual Ret Call(ParamTypes... Params) = 0;
	/** Copy in new memory; null for callables that cannot be copied. */
	virtual TCallable* Clone() const = 0;
};

template <typename FunctorType, typename Ret, typename... ParamTypes>
struct TCallableOf final : TCallable<Ret, ParamTypes...>
{
	template <typename ArgType>
	explicit TCallableOf(ArgType&& Arg, int)
		: Functor(Forward<ArgType>(Arg))
	{
	}
	Ret Call(ParamTypes... Params) override
	{
		if constexpr (std::is_void_v<Ret>)
		{
			Invoke(Functor, Forward<ParamTypes>(Params)...);
		}
		else
		{
			return Invoke(Functor, Forward<ParamTypes>(Params)...);
		}
	}
	TCallable<Ret, ParamTypes...>* Clone() const override
	{
		if constexpr (std::is_copy_constructible_v<FunctorType>)
		{
			return new TCallableOf(Functor, 0);
		}
		else
		{
			return nullptr;
		}
	}

	FunctorType Functor;
};

template <typename Ret, typename... ParamTypes>
class TFunctionBase
{
public:
	bool IsSet() const { return Callable != nullptr; }
	explicit operator bool() const { return IsSet(); }
	void Reset()
	{
		delete Callable;
		Callable = nullptr;
	}
	/** Calls what is held; an empty holder is a failed check. */
	Ret operator()(ParamTypes... Params) const
	{
		checkf(Callable, TEXT("An empty function is called"));
		return Callable->Call(Forward<ParamTypes>(Params)...);
	}

protected:
	using FCallable = TCallable<Ret, ParamTypes...>;

	TFunctionBase() = default;
	TFunctionBase(TFunctionBase&& Other) noexcept
		: Callable(Other.Callable)
	{
		Other.Callable = nullptr;
	}
	TFunctionBase& operator=(TFunctionBase&& Other) noexcept
	{
		::Swap(Callable, Other.Callable);
		return *this;
	}
	~TFunctionBase() { Reset(); }

	template <typename FunctorType>
	void Hold(FunctorType&& Functor)
	{
		using FStored = std::decay_t<FunctorType>;
		if (!IsUnboundCallable<FStored>(Functor))
		{
			Callable = new TCallableOf<FStored, Ret, ParamTypes...>(Forward<FunctorType>(Functor), 0);
		}
	}

	FCallable* Callable = nullptr;
};

} // namespace UE::Core::Private

/** Owns a copy of any callable with a fitting signature; copying copies the callable. */
template <typename Ret, typename... ParamTypes>
class TFunction<Ret(ParamTypes...)> : public UE::Core::Private::TFunctionBase<Ret, ParamTypes...>
{
public:
	TFunction() = default;
	TFunction(decltype(nullptr)) {}
	template <typename FunctorType>
	requires(!std::is_same_v<std::decay_t<FunctorType>, TFunction> &&
			 std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>) TFunction(FunctorType&& Functor)
	{
		static_assert(
			std::is_copy_constructible_v<std::decay_t<FunctorType>>, "use TUniqueFunction for what only moves");
		this->Hold(Forward<FunctorType>(Functor));
	}
	TFunction(const TFunction& Other)
		: UE::Core::Private::TFunctionBase<Ret, ParamTypes...>()
	{
		this->Callable = Other.Callable ? Other.Callable->Clone() : nullptr;
	}
	TFunction(TFunction&&) = default;
	TFunction& operator=(const TFunction& Other)
	{
		TFunction Copy(Other);
		return *this = MoveTemp(Copy);
	}
	TFunction& operator=(TFunction&&) = default;
	TFunction& operator=(decltype(nullptr))
	{
		this->Reset();
		return *this;
	}
};

/** Owns any callable with a fitting signature, also one that only moves. */
template <typename Ret, typename... ParamTypes>
class TUniqueFunction<Ret(ParamTypes...)> : public UE::Core::Private::TFunctionBase<Ret, ParamTypes...>
{
public:
	TUniqueFunction() = default;
	TUniqueFunction(decltype(nullptr)) {}
	template <typename FunctorType>
	requires(!std::is_same_v<std::decay_t<FunctorType>, TUniqueFunction> &&
			 std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>)
		TUniqueFunction(FunctorType&& Functor)
	{
		this->Hold(Forward<FunctorType>(Functor));
	}
	TUniqueFunction(TUniqueFunction&&) = default;
	TUniqueFunction& operator=(TUniqueFunction&&) = default;
};

/** Refers to a callable that lives elsewhere; for parameters only. */
template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <typename FunctorType>
	requires(!std::is_same_v<std::decay_t<FunctorType>, TFunctionRef> &&
			 std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>) TFunctionRef(FunctorType&& Functor)
	{
		using FStored = std::remove_reference_t<FunctorType>;
		if constexpr (std::is_function_v<FStored> || std::is_function_v<std::remove_pointer_t<FStored>>)
		{
			Target.Function = reinterpret_cast<void (*)()>(static_cast<std::decay_t<FunctorType>>(Functor));
			Thunk = [](FTarget InTarget, ParamTypes... Params) -> Ret
			{ return reinterpret_cast<std::decay_t<FunctorType>>(InTarget.Function)(Forward<ParamTypes>(Params)...); };
		}
		else
		{
			Target.Object = const_cast<std::remove_const_t<FStored>*>(&Functor);
			Thunk = [](FTarget InTarget, ParamTypes... Params) -> Ret {
				return static_cast<Ret>(
					Invoke(*static_cast<FStored*>(InTarget.Object), Forward<ParamTypes>(Params)...));
			};
		}
	}

	Ret operator()(ParamTypes... Params) const { return Thunk(Target, Forward<ParamTypes>(Params)...); }

private:
	union FTarget
	{
		void* Object;
		void (*Function)();
	};
	FTarget Target;
	Ret (*Thunk)(FTarget, ParamTypes...);
};
