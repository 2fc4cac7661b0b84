// SPDX-License-Identifier: MIT
/** A value or the fault that prevented it. */
#pragma once

#include "Zef/Fault.h"

#include <optional>
#include <utility>

namespace Zef
{

/** Holds a value or a fault; never both, never neither. */
template <class T>
class TResult
{
public:
	TResult(T InValue)
		: Held(std::move(InValue))
	{
	}
	TResult(FLinkFault InFault)
		: Report(std::move(InFault))
	{
	}

	explicit operator bool() const { return Held.has_value(); }

	/** The value; only when there is one. */
	T& operator*() { return *Held; }
	const T& operator*() const { return *Held; }
	T* operator->() { return &*Held; }
	const T* operator->() const { return &*Held; }

	/** The fault; its code is None when there is a value. */
	const FLinkFault& Fault() const { return Report; }

private:
	std::optional<T> Held;
	FLinkFault Report;
};

} // namespace Zef
