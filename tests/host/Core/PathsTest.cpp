// SPDX-License-Identifier: MIT
#include "Host/ProjectDirectory.h"
#include "Misc/Paths.h"
#include "fixtures/CorePrinting.h"

TEST(Paths, CutsAPathIntoItsParts)
{
	const FString Path(TEXT("/Game/My.Folder/T_Shirt.tar.png"));

	EXPECT_TEXT_EQ(FPaths::GetPath(Path), TEXT("/Game/My.Folder"));
	EXPECT_TEXT_EQ(FPaths::GetCleanFilename(Path), TEXT("T_Shirt.tar.png"));
	EXPECT_TEXT_EQ(FPaths::GetBaseFilename(Path), TEXT("T_Shirt.tar"));
	EXPECT_TEXT_EQ(FPaths::GetBaseFilename(Path, false), TEXT("/Game/My.Folder/T_Shirt.tar"));
	EXPECT_TEXT_EQ(FPaths::GetExtension(Path), TEXT("png"));
	EXPECT_TEXT_EQ(FPaths::GetExtension(Path, true), TEXT(".png"));
	EXPECT_TEXT_EQ(FPaths::GetExtension(TEXT("/Game/My.Folder/Shirt")), TEXT(""));
	EXPECT_TEXT_EQ(FPaths::GetPath(TEXT("Shirt")), TEXT(""));
	EXPECT_TEXT_EQ(FPaths::GetPathLeaf(TEXT("/Game/Shirts/")), TEXT("Shirts"));
	EXPECT_TEXT_EQ(FPaths::GetCleanFilename(TEXT("C:\\Models\\shirt.glb")), TEXT("shirt.glb"));
}

TEST(Paths, CombinesPieces)
{
	EXPECT_TEXT_EQ(
		FPaths::Combine(TEXT("/Game/"), FString(TEXT("/Shirts")), TEXT(""), TEXT("A")), TEXT("/Game/Shirts/A"));
	EXPECT_TEXT_EQ(FPaths::Combine(FString(), TEXT("A")), TEXT("A"));
}

TEST(Paths, SetsAndChangesExtensions)
{
	EXPECT_TEXT_EQ(FPaths::SetExtension(TEXT("a/b"), TEXT("png")), TEXT("a/b.png"));
	EXPECT_TEXT_EQ(FPaths::SetExtension(TEXT("a/b.jpg"), TEXT(".png")), TEXT("a/b.png"));
	EXPECT_TEXT_EQ(FPaths::ChangeExtension(TEXT("a.b/c"), TEXT("png")), TEXT("a.b/c"));
}

TEST(Paths, CollapsesDots)
{
	struct FCase
	{
		const TCHAR* Path;
		const TCHAR* Collapsed;
		bool bInside;
	};
	const FCase Cases[] = {
		{TEXT("/a/./b/../c"), TEXT("/a/c"), true},
		{TEXT("/a//b/"), TEXT("/a/b/"), true},
		{TEXT("../a/.."), TEXT(".."), true},
		{TEXT("a\\b\\..\\..\\..\\c"), TEXT("../c"), true},
		{TEXT("/../a"), TEXT("/a"), false},
	};
	for (const FCase& Case : Cases)
	{
		FString Path(Case.Path);

		EXPECT_EQ(FPaths::CollapseRelativeDirectories(Path), Case.bInside) << TCHAR_TO_UTF8(Case.Path);
		EXPECT_TEXT_EQ(Path, Case.Collapsed);
	}
	EXPECT_TEXT_EQ(FPaths::ConvertRelativePathToFull(TEXT("/base"), TEXT("a/../b")), TEXT("/base/b"));
	EXPECT_TEXT_EQ(FPaths::ConvertRelativePathToFull(TEXT("/base"), TEXT("/b")), TEXT("/b"));
}

TEST(Paths, SeesFilesAndFolders)
{
	const FString Folder(ZEF_SOURCE_DIR);

	EXPECT_TRUE(FPaths::DirectoryExists(Folder));
	EXPECT_FALSE(FPaths::FileExists(Folder));
	EXPECT_TRUE(FPaths::FileExists(Folder / TEXT("CMakeLists.txt")));
	EXPECT_FALSE(FPaths::FileExists(Folder / TEXT("no such file")));
}

TEST(Paths, TheProjectsFoldersStandOnTheOneThatWasSet)
{
	const FString Former = FPaths::ProjectDir();

	Host::SetProjectDir(TEXT("/home/me/My Project"));
	EXPECT_TEXT_EQ(FPaths::ProjectDir(), TEXT("/home/me/My Project/"));
	EXPECT_TEXT_EQ(FPaths::ProjectContentDir(), TEXT("/home/me/My Project/Content/"));
	EXPECT_TEXT_EQ(FPaths::ProjectSavedDir(), TEXT("/home/me/My Project/Saved/"));

	Host::SetProjectDir(Former);
}
