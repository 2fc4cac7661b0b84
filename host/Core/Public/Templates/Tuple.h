// SPDX-License-Identifier: MIT
/** TPair and TTuple. */
#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"
#include "Templates/UnrealTypeTraits.h"
#include <tuple>

/** Fixed list of values of different types, read with Get<Index>(). */
template <typename... Types>
class TTuple
{
public:
	TTuple() = default;
	template <typename... ArgTypes>
	requires(sizeof...(ArgTypes) == sizeof...(Types) && sizeof...(ArgTypes) > 0 &&
			 (std::is_constructible_v<Types, ArgTypes&&> && ...)) TTuple(ArgTypes&&... Args)
		: Values(Forward<ArgTypes>(Args)...)
	{
	}

	template <int Index>
	decltype(auto) Get()
	{
		return std::get<Index>(Values);
	}
	template <int Index>
	decltype(auto) Get() const
	{
		return std::get<Index>(Values);
	}
	template <typename Type>
	decltype(auto) Get() const
	{
		return std::get<Type>(Values);
	}
	/** Calls Func with the values behind the given arguments. */
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return std::apply(
			[&](const auto&... Each) -> decltype(auto) { return Func(Forward<ArgTypes>(Args)..., Each...); }, Values);
	}

	bool operator==(const TTuple& Other) const { return Values == Other.Values; }
	bool operator<(const TTuple& Other) const { return Values < Other.Values; }

	friend uint32 GetTypeHash(const TTuple& Tuple)
	{
		return std::apply(
			[](const auto&... Each)
			{
				uint32 Hash = 0;
				((Hash = HashCombine(Hash, GetTypeHashHelper(Each))), ...);
				return Hash;
			},
			Tuple.Values);
	}

private:
	std::tuple<Types...> Values;
};

/** A pair's two values are named Key and Value. */
template <typename KeyType, typename ValueType>
class TTuple<KeyType, ValueType>
{
public:
	TTuple()
		: Key()
		, Value()
	{
	}
	TTuple(const TTuple&) = default;
	TTuple(TTuple&&) = default;
	TTuple& operator=(const TTuple&) = default;
	TTuple& operator=(TTuple&&) = default;
	TTuple(const KeyType& InKey, const ValueType& InValue)
		: Key(InKey)
		, Value(InValue)
	{
	}
	template <typename OtherKey, typename OtherValue>
	requires(std::is_constructible_v<KeyType, OtherKey&&>&& std::is_constructible_v<ValueType, OtherValue&&>)
		TTuple(OtherKey&& InKey, OtherValue&& InValue)
		: Key(Forward<OtherKey>(InKey))
		, Value(Forward<OtherValue>(InValue))
	{
	}
	template <typename OtherKey, typename OtherValue>
	requires(std::is_constructible_v<KeyType, const OtherKey&>&& std::is_constructible_v<ValueType, const OtherValue&>)
		TTuple(const TTuple<OtherKey, OtherValue>& Other)
		: Key(Other.Key)
		, Value(Other.Value)
	{
	}

	template <int Index>
	auto& Get()
	{
		if constexpr (Index == 0)
		{
			return Key;
		}
		else
		{
			return Value;
		}
	}
	template <int Index>
	const auto& Get() const
	{
		return const_cast<TTuple*>(this)->template Get<Index>();
	}
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return Func(Forward<ArgTypes>(Args)..., Key, Value);
	}

	bool operator==(const TTuple& Other) const { return Key == Other.Key && Value == Other.Value; }
	bool operator<(const TTuple& Other) const { return Key < Other.Key || (!(Other.Key < Key) && Value < Other.Value); }

	friend uint32 GetTypeHash(const TTuple& Pair)
	{
		return HashCombine(GetTypeHashHelper(Pair.Key), GetTypeHashHelper(Pair.Value));
	}

	KeyType Key;
	ValueType Value;
};

template <typename KeyType, typename ValueType>
using TPair = TTuple<KeyType, ValueType>;

template <typename KeyType, typename ValueType>
struct UE::Core::Private::TCanBitwiseRelocate<TTuple<KeyType, ValueType>>
{
	static constexpr bool Value = TCanBitwiseRelocate<KeyType>::Value && TCanBitwiseRelocate<ValueType>::Value;
};

template <typename... Types>
TTuple<std::decay_t<Types>...> MakeTuple(Types&&... Args)
{
	return TTuple<std::decay_t<Types>...>(Forward<Types>(Args)...);
}

template <typename... Types>
struct std::tuple_size<TTuple<Types...>> : std::integral_constant<std::size_t, sizeof...(Types)>
{
};
template <std::size_t Index, typename... Types>
struct std::tuple_element<Index, TTuple<Types...>>
{
	using type = std::tuple_element_t<Index, std::tuple<Types...>>;
};
template <std::size_t Index, typename... Types>
decltype(auto) get(TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}
template <std::size_t Index, typename... Types>
decltype(auto) get(const TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

/** Assigns a tuple's values to variables; by assignment, the variables keep their types. */
template <typename... Types>
auto Tie(Types&... Args)
{
	struct FTie
	{
		std::tuple<Types&...> Refs;
		void operator=(const TTuple<std::decay_t<Types>...>& Values)
		{
			Values.ApplyAfter([this](const auto&... Each) { Refs = std::tie(Each...); });
		}
	};
	return FTie{std::tuple<Types&...>(Args...)};
}
