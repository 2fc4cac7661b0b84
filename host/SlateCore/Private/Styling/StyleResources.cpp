// SPDX-License-Identifier: MIT

#include "Host/StyleResources.h"

#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Misc/Paths.h"

#include <filesystem>

namespace
{
namespace fs = std::filesystem;

FString FindResourceDir()
{
	std::error_code Error;
	fs::path Folder = fs::read_symlink("/proc/self/exe", Error).parent_path();
	while (!Folder.empty() && Folder != Folder.root_path())
	{
		for (const char* const Candidate : {"host/SlateCore/Resources", "share/zef-tandem/Slate"})
		{
			if (fs::is_directory(Folder / Candidate / "Icons", Error))
			{
				return FString(UTF8_TO_TCHAR((Folder / Candidate).generic_string().c_str()));
			}
		}
		Folder = Folder.parent_path();
	}
	return FString(ZEF_SLATE_RESOURCES);
}
} // namespace

namespace Host
{
const FString& StyleResourceDir()
{
	static const FString Dir = FindResourceDir();
	return Dir;
}

TSharedRef<FSlateBrush> MakeMissingImageBrush(const FVector2D& ImageSize)
{
	const FString Picture = StyleResourceDir() / TEXT("Icons/Missing.png");
	if (FPaths::FileExists(Picture))
	{
		return MakeShared<FSlateImageBrush>(Picture, ImageSize);
	}
	const TSharedRef<FSlateRoundedBoxBrush> Box =
		MakeShared<FSlateRoundedBoxBrush>(FLinearColor::Transparent, 2.0f, FLinearColor(0.8f, 0.1f, 0.6f), 1.0f);
	Box->ImageSize = ImageSize;
	return Box;
}
} // namespace Host
