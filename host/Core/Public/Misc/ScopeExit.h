// SPDX-License-Identifier: MIT
/** Code that runs when a scope ends. */
#pragma once

#include "Templates/UnrealTemplate.h"

namespace UE::Core::Private
{

template <typename FuncType>
class TScopeExit
{
public:
	explicit TScopeExit(FuncType&& InFunc)
		: Func(MoveTemp(InFunc))
	{
	}
	~TScopeExit() { Func(); }
	TScopeExit(const TScopeExit&) = delete;
	TScopeExit& operator=(const TScopeExit&) = delete;

private:
	FuncType Func;
};

struct FScopeExitMaker
{
	template <typename FuncType>
	TScopeExit<FuncType> operator+(FuncType&& Func)
	{
		return TScopeExit<FuncType>(static_cast<FuncType&&>(Func));
	}
};

} // namespace UE::Core::Private

#define UE_SCOPE_EXIT_NAME_2(Line) ScopeExit_##Line
#define UE_SCOPE_EXIT_NAME(Line) UE_SCOPE_EXIT_NAME_2(Line)
#define ON_SCOPE_EXIT const auto UE_SCOPE_EXIT_NAME(__LINE__) = ::UE::Core::Private::FScopeExitMaker() + [&]()
