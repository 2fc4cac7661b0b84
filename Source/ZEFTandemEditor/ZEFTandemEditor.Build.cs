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
			"Documentation",
			"EditorFramework",
			"EditorScriptingUtilities",
			"EditorStyle",
			"EditorSubsystem",
			"GeometryCore",
			"GeometryFramework",
			"InputCore",
			"MaterialEditor",
			"Projects",
			"PropertyEditor",
			"RHI",
			"RenderCore",
			"Slate",
			"SlateCore",
			"StatusBar",
			"ToolMenus",
			"UnrealEd",
		});
		// Loaded by name at the moment of need: its header is used, its library is not linked.
		PrivateIncludePathModuleNames.Add("ZEFTandemMisc");
		DynamicallyLoadedModuleNames.Add("ZEFTandemMisc");
	}
}
