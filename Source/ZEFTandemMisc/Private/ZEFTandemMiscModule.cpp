// SPDX-License-Identifier: MIT
#include "IZEFTandemMisc.h"
#include "Materials/MaterialInstance.h"
#include "Modules/ModuleManager.h"

/**
 * The companion for installations whose Substance plug-in this build does not know: it declines every material, and
 * the caller then shows its fallback.
 */
class FZEFTandemMiscModule : public IZEFTandemMisc
{
public:
	virtual bool CreateSubstanceMaterial(
		FString, FString, FTransform3f, FString, FString, TWeakObjectPtr<UMaterialInstance>&) override
	{
		return false;
	}
};

IMPLEMENT_MODULE(FZEFTandemMiscModule, ZEFTandemMisc)
