// SPDX-License-Identifier: MIT
/** UE_LOG and the declaration of log categories. */
#pragma once

#include "Logging/LogCategory.h"

struct CORE_API FMsg
{
	/** Hands a line to the log sinks; a fatal line is a failed assertion. */
	template <typename... ArgTypes>
	FORCENOINLINE static void Logf(const ANSICHAR* File, int32 Line, const FName& Category,
		ELogVerbosity::Type Verbosity, const TCHAR* Format, ArgTypes... Args)
	{
		const UE::Core::Private::FFormatArgument Arguments[] = {nullptr, Args...};
		LogArguments(File, Line, Category, Verbosity, Format, Arguments + 1, sizeof...(Args));
	}

private:
	static void LogArguments(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity,
		const TCHAR* Format, const UE::Core::Private::FFormatArgument* Args, int32 NumArgs);
};

#define UE_LOG(CategoryName, Verbosity, Format, ...)                                                                   \
	do                                                                                                                 \
	{                                                                                                                  \
		if constexpr (ELogVerbosity::Verbosity <=                                                                      \
					  std::remove_reference_t<decltype(CategoryName)>::CompileTimeVerbosity)                           \
		{                                                                                                              \
			if (!(CategoryName).IsSuppressed(ELogVerbosity::Verbosity))                                                \
			{                                                                                                          \
				FMsg::Logf(__FILE__, __LINE__, (CategoryName).GetCategoryName(), ELogVerbosity::Verbosity,             \
					Format __VA_OPT__(, ) __VA_ARGS__);                                                                \
			}                                                                                                          \
		}                                                                                                              \
	} while (0)

#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...)                                                       \
	do                                                                                                                 \
	{                                                                                                                  \
		if (Condition)                                                                                                 \
		{                                                                                                              \
			UE_LOG(CategoryName, Verbosity, Format __VA_OPT__(, ) __VA_ARGS__);                                        \
		}                                                                                                              \
	} while (0)

/** Whether a line of this importance would be written. */
#define UE_LOG_ACTIVE(CategoryName, Verbosity) (!(CategoryName).IsSuppressed(ELogVerbosity::Verbosity))

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                              \
	extern struct FLogCategory##CategoryName                                                                           \
		: public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity>                    \
	{                                                                                                                  \
		FLogCategory##CategoryName()                                                                                   \
			: FLogCategory(TEXT(#CategoryName))                                                                        \
		{                                                                                                              \
		}                                                                                                              \
	} CategoryName

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                               \
	static struct FLogCategory##CategoryName                                                                           \
		: public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity>                    \
	{                                                                                                                  \
		FLogCategory##CategoryName()                                                                                   \
			: FLogCategory(TEXT(#CategoryName))                                                                        \
		{                                                                                                              \
		}                                                                                                              \
	} CategoryName
