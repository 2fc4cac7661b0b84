// SPDX-License-Identifier: MIT
// News of assets that were imported again.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"

class UObject;

class FReimportManager
{
public:
	DECLARE_EVENT_TwoParams(FReimportManager, FPostReimportNotification, UObject*, bool);

	/** Never null. */
	static FReimportManager* Instance();

	/** The asset, and whether the import succeeded. */
	FPostReimportNotification& OnPostReimport() { return PostReimport; }

private:
	FReimportManager() = default;

	FPostReimportNotification PostReimport;
};
