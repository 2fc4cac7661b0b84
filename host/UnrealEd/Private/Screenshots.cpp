// SPDX-License-Identifier: MIT
#include "Host/Screenshots.h"

#include "Logging/LogMacros.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogScreenshot, Log, All);

namespace Host
{
namespace
{
constexpr int32 MostScreenshots = 100000; // as many as the name has numbers for

IScreenshotTaker* Taker = nullptr;

FString NextFile()
{
	const FString Folder = FPaths::ConvertRelativePathToFull(FPaths::ProjectSavedDir() / TEXT("Screenshots"));
	for (int32 Number = 0; Number < MostScreenshots; ++Number)
	{
		const FString File = Folder / FString::Printf(TEXT("Screenshot%05d.png"), Number);
		if (!FPaths::FileExists(File))
		{
			return File;
		}
	}
	return FString();
}
} // namespace

IScreenshotTaker* SetScreenshotTaker(IScreenshotTaker* NewTaker)
{
	IScreenshotTaker* const Former = Taker;
	Taker = NewTaker;
	return Former;
}

void TakeScreenshot(FViewport& Viewport)
{
	if (!Taker)
	{
		UE_LOG(LogScreenshot, Warning, TEXT("No screenshot was taken: no window shows this viewport"));
		return;
	}
	const FString File = NextFile();
	FString Reason(TEXT("all numbers are taken; move the files of Saved/Screenshots elsewhere"));
	if (!File.IsEmpty() && Taker->TakeScreenshot(Viewport, File, Reason))
	{
		UE_LOG(LogScreenshot, Log, TEXT("The screenshot is %s"), *File);
	}
	else
	{
		UE_LOG(LogScreenshot, Warning, TEXT("No screenshot was taken: %s"), *Reason);
	}
}
} // namespace Host
