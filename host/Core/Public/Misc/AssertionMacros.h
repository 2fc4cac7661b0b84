// SPDX-License-Identifier: MIT
/** check, checkf, verify, ensure and their relatives. */
#pragma once

#include "Misc/CoreMiscDefines.h"
#include "Misc/VarArgs.h"

/** Receives failed assertions and hands them to the program's assertion handler. */
struct CORE_API FDebug
{
	/** Reports a failed check with a printf-like message; returns when the handler does. */
	template <typename... ArgTypes>
	FORCENOINLINE static void CheckVerifyFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, ArgTypes... Args)
	{
		const UE::Core::Private::FFormatArgument Arguments[] = {nullptr, Args...};
		Report(Expression, File, Line, Format, Arguments + 1, sizeof...(Args), false);
	}

	/** Reports a failed ensure; always false, so that it can end the macro's expression. */
	template <typename... ArgTypes>
	FORCENOINLINE static bool EnsureFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, ArgTypes... Args)
	{
		const UE::Core::Private::FFormatArgument Arguments[] = {nullptr, Args...};
		Report(Expression, File, Line, Format, Arguments + 1, sizeof...(Args), true);
		return false;
	}

	/** Reports an index outside of a container; kept out of line so that a range check stays a compare and a jump. */
	static void IndexOutOfBounds(int64 Index, int64 Num);

private:
	static void Report(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format,
		const UE::Core::Private::FFormatArgument* Args, int32 NumArgs, bool bEnsure);
};

#if DO_CHECK
#define check(expr)                                                                                                    \
	do                                                                                                                 \
	{                                                                                                                  \
		if (UNLIKELY(!(expr)))                                                                                         \
		{                                                                                                              \
			FDebug::CheckVerifyFailed(#expr, __FILE__, __LINE__, TEXT(""));                                            \
		}                                                                                                              \
	} while (0)
#define checkf(expr, format, ...)                                                                                      \
	do                                                                                                                 \
	{                                                                                                                  \
		if (UNLIKELY(!(expr)))                                                                                         \
		{                                                                                                              \
			FDebug::CheckVerifyFailed(#expr, __FILE__, __LINE__, format __VA_OPT__(, ) __VA_ARGS__);                   \
		}                                                                                                              \
	} while (0)
#define verify(expr) check(expr)
#define verifyf(expr, format, ...) checkf(expr, format __VA_OPT__(, ) __VA_ARGS__)
#define checkNoEntry() FDebug::CheckVerifyFailed("Enclosing block should never be called", __FILE__, __LINE__, TEXT(""))
#define unimplemented() FDebug::CheckVerifyFailed("Unimplemented function called", __FILE__, __LINE__, TEXT(""))
#else
#define check(expr) ((void)sizeof(!(expr)))
#define checkf(expr, format, ...) ((void)sizeof(!(expr)))
#define verify(expr) ((void)(expr))
#define verifyf(expr, format, ...) ((void)(expr))
#define checkNoEntry() ((void)0)
#define unimplemented() ((void)0)
#endif

#define checkSlow(expr) ((void)sizeof(!(expr)))
#define checkfSlow(expr, format, ...) ((void)sizeof(!(expr)))

/** The expression's truth; a failure is reported once for each place in the source. */
#define UE_ENSURE_IMPL(bAlways, expr, format, ...)                                                                     \
	(LIKELY(!!(expr)) || (                                                                                             \
							 [&]() -> bool                                                                             \
							 {                                                                                         \
								 static bool bReported = false;                                                        \
								 if (bReported && !(bAlways))                                                          \
								 {                                                                                     \
									 return false;                                                                     \
								 }                                                                                     \
								 bReported = true;                                                                     \
								 return FDebug::EnsureFailed(                                                          \
									 #expr, __FILE__, __LINE__, format __VA_OPT__(, ) __VA_ARGS__);                    \
							 })())

#define ensure(expr) UE_ENSURE_IMPL(false, expr, TEXT(""))
#define ensureMsgf(expr, format, ...) UE_ENSURE_IMPL(false, expr, format __VA_OPT__(, ) __VA_ARGS__)
#define ensureAlways(expr) UE_ENSURE_IMPL(true, expr, TEXT(""))
#define ensureAlwaysMsgf(expr, format, ...) UE_ENSURE_IMPL(true, expr, format __VA_OPT__(, ) __VA_ARGS__)
