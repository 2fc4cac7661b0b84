// SPDX-License-Identifier: MIT
using System;
using System.IO;
using UnrealBuildTool;

// The records and the client of the link. The protocol's library is engine-free and built beforehand by CMake
// (target zef_protocol); ZEF_PROTOCOL_DIR names the folder where its library and that of ZeroMQ lie.
public class ZEFTandemRuntime : ModuleRules
{
	public ZEFTandemRuntime(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;
		// ZeroMQ's C++ binding reports errors as exceptions; they end inside the protocol's library.
		bEnableExceptions = true;

		PublicDependencyModuleNames.AddRange(new string[] { "Core", "CoreUObject", "Engine", "GeometryCore" });

		string PluginRoot = Path.GetFullPath(Path.Combine(ModuleDirectory, "..", ".."));
		PublicIncludePaths.Add(Path.Combine(PluginRoot, "protocol", "Public"));

		string Libraries = Environment.GetEnvironmentVariable("ZEF_PROTOCOL_DIR")
			?? Path.Combine(PluginRoot, "protocol", "Lib", Target.Platform.ToString());
		if (Target.Platform == UnrealTargetPlatform.Win64)
		{
			PublicAdditionalLibraries.Add(Path.Combine(Libraries, "zef_protocol.lib"));
			PublicAdditionalLibraries.Add(Path.Combine(Libraries, "libzmq.lib"));
			PublicSystemLibraries.AddRange(new string[] { "ws2_32.lib", "iphlpapi.lib" });
		}
		else
		{
			PublicAdditionalLibraries.Add(Path.Combine(Libraries, "libzef_protocol.a"));
			PublicAdditionalLibraries.Add(Path.Combine(Libraries, "libzmq.a"));
		}
	}
}
