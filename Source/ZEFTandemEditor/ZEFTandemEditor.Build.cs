// SPDX-License-Identifier: MIT
using UnrealBuildTool;

public class ZEFTandemEditor : ModuleRules
{
	public ZEFTandemEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;
		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"Engine",
			"ZEFTandemRuntime",
		});
		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"AdvancedPreviewScene",
			"Analytics",
			"AnalyticsET",
			"EditorFramework",
			"EditorScriptingUtilities",
			"GeometryCore",
			"GeometryFramework",
			"InputCore",
			"MaterialEditor",
			"PropertyEditor",
			"RHI",
			"RenderCore",
			"Slate",
			"SlateCore",
			"UnrealEd",
		});
		// Loaded by name at the moment of need: its header is used, its library is not linked.
		PrivateIncludePathModuleNames.Add("ZEFTandemMisc");
		DynamicallyLoadedModuleNames.Add("ZEFTandemMisc");
	}
}
