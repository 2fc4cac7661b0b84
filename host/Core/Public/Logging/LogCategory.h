// SPDX-License-Identifier: MIT
/** Named group of log lines. */
#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

struct CORE_API FLogCategoryBase
{
	FLogCategoryBase(
		const TCHAR* InName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
		: Name(InName)
		, Verbosity(InDefaultVerbosity)
		, CompileTimeVerbosity(InCompileTimeVerbosity)
	{
	}

	const FName& GetCategoryName() const { return Name; }
	ELogVerbosity::Type GetVerbosity() const { return Verbosity; }
	/** Lines that are less important than this are dropped; it cannot go beyond what was compiled in. */
	void SetVerbosity(ELogVerbosity::Type InVerbosity)
	{
		Verbosity = InVerbosity < CompileTimeVerbosity ? InVerbosity : CompileTimeVerbosity;
	}
	bool IsSuppressed(ELogVerbosity::Type LineVerbosity) const { return LineVerbosity > Verbosity; }

private:
	FName Name;
	ELogVerbosity::Type Verbosity;
	ELogVerbosity::Type CompileTimeVerbosity;
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : FLogCategoryBase
{
	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	explicit FLogCategory(const TCHAR* InName)
		: FLogCategoryBase(InName, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
