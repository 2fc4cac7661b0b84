// SPDX-License-Identifier: MIT
// What material evaluation reads of an instance and nobody else may see.
#pragma once

#include "Materials/MaterialInstance.h"

namespace Host
{
struct FMaterialInstanceAccess
{
	/** The static switches in effect: those of the last PostEditChange. */
	static const TArray<FStaticSwitchParameter>& GetSwitches(const UMaterialInstance& Instance)
	{
		return Instance.ResolvedStaticSwitches;
	}
};
} // namespace Host
