// SPDX-License-Identifier: MIT
#include "Support/Engine.h"

#include "Host/Assertions.h"
#include "Host/EngineLoop.h"
#include "Host/FilePackageStore.h"
#include "Host/LogSink.h"
#include "Host/PackageStore.h"
#include "Support/Arrivals.h"
#include "UObject/GarbageCollection.h"
#include "ZEFReceivedRecord.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace Fuzz
{

namespace
{
/** Inputs between two collections of garbage. */
constexpr int InputsBetweenCollections = 32;

void EndWith(const Host::FAssertion& Assertion, void*)
{
	std::fprintf(stderr, "%s:%d: failed assertion %s\n", Assertion.File, Assertion.Line, Assertion.Expression);
	std::abort();
}

/** Lives as long as the program. */
class FEngine
{
public:
	FEngine()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "zef-fuzz-XXXXXX").string();
		Project = mkdtemp(Pattern.data());
		for (const char* Part : {"Config", "Content", "Saved"})
		{
			std::filesystem::create_directory(Project / Part);
		}
		Host::SetLogToStderr(false);
		Host::SetAssertionHandler(&EndWith);
		Host::SetPackageStore(&PackageStore);
		Host::FEngineLoopOptions Options;
		Options.ProjectDir = FString(UTF8_TO_TCHAR(Project.c_str()));
		Options.PluginDir = TEXT(ZEF_SOURCE_DIR);
		FString Error;
		if (!Loop.Init(Options, Error))
		{
			std::fprintf(stderr, "the engine does not start\n");
			std::abort();
		}
	}
	~FEngine()
	{
		CollectGarbage(RF_NoFlags);
		Loop.Exit();
		Host::SetPackageStore(nullptr);
		std::filesystem::remove_all(Project);
	}

private:
	std::filesystem::path Project;
	Host::FFilePackageStore PackageStore;
	Host::FEngineLoop Loop;
};

Zef::FLimits FuzzLimits()
{
	Zef::FLimits Limits;
	Limits.MaxItemBytes = 1u << 20;
	Limits.MaxStructureBytes = 4u << 20;
	return Limits;
}
} // namespace

void ConvertRecords(
	const std::uint8_t* Data, std::size_t Size, const std::function<void(const FZEFSurfaceMesh&)>& Convert)
{
	static FEngine Engine;
	static int Inputs = 0;
	FZEFRecordFactory Factory;
	for (const FArrival& Arrival : ReadArrivals({Data, Size}).Items)
	{
		Zef::FItemDecoder Decoder(Factory, Zef::EReceiver::Editor, FuzzLimits());
		FArrivals One;
		One.Items.push_back(Arrival);
		if (Receive(Decoder, One, 1u << 20) != Zef::EDecode::Complete)
		{
			continue;
		}
		const Zef::FDecodedItem Item = Decoder.Take();
		if (Item.Record)
		{
			Convert(static_cast<const FZEFReceivedRecord&>(*Item.Record).Animation.Mesh);
		}
	}
	if (++Inputs % InputsBetweenCollections == 0)
	{
		CollectGarbage(RF_NoFlags);
	}
}

} // namespace Fuzz
