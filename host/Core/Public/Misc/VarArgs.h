// SPDX-License-Identifier: MIT
/** One typed argument of a printf-like call. */
#pragma once

#include "HAL/Platform.h"
#include <type_traits>

namespace UE::Core::Private
{

/** Argument of a formatted print with its real type, so that a wrong conversion letter cannot read foreign memory. */
class FFormatArgument
{
public:
	enum class EKind : uint8
	{
		Signed,
		Unsigned,
		Real,
		Text,
		AnsiText,
		Pointer
	};

	template <typename T>
	requires(std::is_integral_v<T> || std::is_enum_v<T>) FFormatArgument(T InValue)
		: Size(sizeof(T))
	{
		if constexpr (std::is_enum_v<T>)
		{
			SetInteger(static_cast<std::underlying_type_t<T>>(InValue));
		}
		else
		{
			SetInteger(InValue);
		}
	}

	FFormatArgument(float InValue)
		: Kind(EKind::Real)
		, Size(sizeof(double))
		, Real(InValue)
	{
	}
	FFormatArgument(double InValue)
		: Kind(EKind::Real)
		, Size(sizeof(double))
		, Real(InValue)
	{
	}
	FFormatArgument(const TCHAR* InValue)
		: Kind(EKind::Text)
		, Size(sizeof(void*))
		, Text(InValue)
	{
	}
	FFormatArgument(const ANSICHAR* InValue)
		: Kind(EKind::AnsiText)
		, Size(sizeof(void*))
		, AnsiText(InValue)
	{
	}
	FFormatArgument(const void* InValue)
		: Kind(EKind::Pointer)
		, Size(sizeof(void*))
		, Pointer(InValue)
	{
	}
	FFormatArgument(decltype(nullptr))
		: Kind(EKind::Pointer)
		, Size(sizeof(void*))
		, Pointer(nullptr)
	{
	}

	EKind Kind;
	/** Width of the passed type in bytes; an integer prints with this width under %u and %x. */
	uint8 Size;
	union
	{
		int64 Integer;
		double Real;
		const TCHAR* Text;
		const ANSICHAR* AnsiText;
		const void* Pointer;
	};

private:
	template <typename T>
	void SetInteger(T InValue)
	{
		Kind = std::is_signed_v<T> ? EKind::Signed : EKind::Unsigned;
		Integer = static_cast<int64>(InValue);
	}
};

} // namespace UE::Core::Private
