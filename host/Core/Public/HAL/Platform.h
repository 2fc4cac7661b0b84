// SPDX-License-Identifier: MIT
/** Basic types, compiler words and platform switches. */
#pragma once

#include <cstddef>
#include <cstdint>

#define PLATFORM_DESKTOP 1
#define PLATFORM_LITTLE_ENDIAN 1
#define PLATFORM_64BITS 1
#if defined(_WIN32)
#define PLATFORM_WINDOWS 1
#define PLATFORM_LINUX 0
#define PLATFORM_MAC 0
#elif defined(__APPLE__)
#define PLATFORM_WINDOWS 0
#define PLATFORM_LINUX 0
#define PLATFORM_MAC 1
#else
#define PLATFORM_WINDOWS 0
#define PLATFORM_LINUX 1
#define PLATFORM_MAC 0
#endif

#if defined(_MSC_VER)
#define FORCEINLINE __forceinline
#define FORCENOINLINE __declspec(noinline)
#elif defined(NDEBUG)
#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))
#else
#define FORCEINLINE inline
#define FORCENOINLINE __attribute__((noinline))
#endif

#if defined(__GNUC__)
#define LIKELY(Condition) __builtin_expect(!!(Condition), 1)
#define UNLIKELY(Condition) __builtin_expect(!!(Condition), 0)
#define PLATFORM_BREAK() __builtin_trap()
#define RESTRICT __restrict
#else
#define LIKELY(Condition) (!!(Condition))
#define UNLIKELY(Condition) (!!(Condition))
#define PLATFORM_BREAK() __debugbreak()
#define RESTRICT __restrict
#endif

#define UE_NODISCARD [[nodiscard]]
#define UE_NORETURN [[noreturn]]
#define UE_DEPRECATED(Version, Message) [[deprecated(Message)]]
#define UE_CONSTEVAL consteval
#define VARARGS
#define CDECL
#define CONSTEXPR constexpr

using int8 = std::int8_t;
using int16 = std::int16_t;
using int32 = std::int32_t;
using int64 = long long;
using uint8 = std::uint8_t;
using uint16 = std::uint16_t;
using uint32 = std::uint32_t;
using uint64 = unsigned long long;
using UPTRINT = std::uintptr_t;
using PTRINT = std::intptr_t;
using SIZE_T = std::size_t;
using SSIZE_T = std::ptrdiff_t;
using TYPE_OF_NULLPTR = decltype(nullptr);

/** Narrow character, 8 bits; text of this type is UTF-8 unless a function says otherwise. */
using ANSICHAR = char;
/** Wide character, one UTF-16 unit. */
using WIDECHAR = char16_t;
using TCHAR = WIDECHAR;
using UTF8CHAR = char8_t;
using UTF16CHAR = char16_t;
using UTF32CHAR = char32_t;
using CHAR16 = char16_t;

#define TEXT_PASTE(Literal) u##Literal
#define TEXT(Literal) TEXT_PASTE(Literal)
#define UTF8TEXT_PASTE(Literal) u8##Literal
#define UTF8TEXT(Literal) UTF8TEXT_PASTE(Literal)

static_assert(sizeof(int64) == 8 && sizeof(TCHAR) == 2, "the basic types have the engine's widths");
