// SPDX-License-Identifier: MIT
using UnrealBuildTool;

public class ZEFTandemMisc : ModuleRules
{
	public ZEFTandemMisc(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;
		PublicDependencyModuleNames.AddRange(new string[] { "Core", "CoreUObject", "Engine" });
	}
}
