// SPDX-License-Identifier: MIT
/** Casts between object classes that look at the object. A pointer to const stays one. */
#pragma once

#include "UObject/Object.h"

#include <type_traits>

template <class To, class From>
using TCastResult = std::conditional_t<std::is_const_v<From>, const To, To>*;

/** The object as a `To`; null when it is null or of another class. */
template <class To, class From>
TCastResult<To, From> Cast(From* Src)
{
	const UObject* Object = (const UObject*)Src;
	return Object && Object->IsA(std::remove_const_t<To>::StaticClass()) ? (TCastResult<To, From>)Src : nullptr;
}
template <class To, class From>
TCastResult<To, From> Cast(const TObjectPtr<From>& Src)
{
	return Cast<To>(Src.Get());
}

/** Reports a failed CastChecked; a fatal error. */
COREUOBJECT_API void CastLogError(const UObject* Object, const UClass* ToClass);

/** Like Cast, but null and another class are fatal errors. */
template <class To, class From>
TCastResult<To, From> CastChecked(From* Src)
{
	const TCastResult<To, From> Result = Cast<To>(Src);
	if (!Result)
	{
		CastLogError((const UObject*)Src, std::remove_const_t<To>::StaticClass());
	}
	return Result;
}
template <class To, class From>
TCastResult<To, From> CastChecked(const TObjectPtr<From>& Src)
{
	return CastChecked<To>(Src.Get());
}

/** Like Cast, but an object of a derived class gives null too. */
template <class To, class From>
TCastResult<To, From> ExactCast(From* Src)
{
	const UObject* Object = (const UObject*)Src;
	return Object && Object->GetClass() == std::remove_const_t<To>::StaticClass() ? (TCastResult<To, From>)Src
																				  : nullptr;
}
template <class To, class From>
TCastResult<To, From> ExactCast(const TObjectPtr<From>& Src)
{
	return ExactCast<To>(Src.Get());
}
