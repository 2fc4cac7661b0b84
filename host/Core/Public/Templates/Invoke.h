// SPDX-License-Identifier: MIT
/** Calls of functions, functors and members in one form. */
#pragma once

#include "Templates/UnrealTemplate.h"

template <typename FuncType, typename... ArgTypes>
requires(!std::is_member_pointer_v<std::decay_t<FuncType>>) constexpr decltype(auto)
	Invoke(FuncType&& Func, ArgTypes&&... Args)
{
	return Forward<FuncType>(Func)(Forward<ArgTypes>(Args)...);
}

/** Reads a data member of an object, a pointer or a smart pointer with operator->. */
template <typename MemberType, typename ObjType, typename TargetType>
requires(!std::is_function_v<MemberType>) constexpr auto Invoke(MemberType ObjType::*Member, TargetType&& Target)
	-> decltype(auto)
{
	if constexpr (std::is_base_of_v<ObjType, std::remove_cvref_t<TargetType>>)
	{
		return (Forward<TargetType>(Target).*Member);
	}
	else
	{
		return ((*Target).*Member);
	}
}

/** Calls a member function of an object, a pointer or a smart pointer. */
template <typename FuncType, typename ObjType, typename TargetType, typename... ArgTypes>
requires(std::is_function_v<FuncType>) constexpr decltype(auto)
	Invoke(FuncType ObjType::*Func, TargetType&& Target, ArgTypes&&... Args)
{
	if constexpr (std::is_base_of_v<ObjType, std::remove_cvref_t<TargetType>>)
	{
		return (Forward<TargetType>(Target).*Func)(Forward<ArgTypes>(Args)...);
	}
	else
	{
		return ((*Target).*Func)(Forward<ArgTypes>(Args)...);
	}
}
