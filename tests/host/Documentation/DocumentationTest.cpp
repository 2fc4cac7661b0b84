// SPDX-License-Identifier: MIT
#include "IDocumentation.h"

#include "EngineFixture.h"
#include "Host/DocumentationPages.h"

#include <filesystem>
#include <fstream>

namespace
{
class Documentation : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		std::filesystem::create_directories(Folder / "docs");
		std::ofstream(Folder / "README.md") << "start\n";
		std::ofstream(Folder / "docs/Page.md") << "page\n";
		std::ofstream(Folder / "secret.md") << "secret\n";
		Host::SetDocumentationFolder(FolderPath());
		Former = Host::SetDocumentViewer(
			[this](const FString& Path)
			{
				Shown.push_back(ToStdString(Path));
				return bCanShow;
			});
	}
	void TearDown() override
	{
		Host::SetDocumentViewer(Former);
		FEngineFixture::TearDown();
	}

	FString FolderPath() const { return UTF8_TO_TCHAR(Folder.GetPath().c_str()); }

	FTemporaryFolder Folder;
	std::vector<std::string> Shown;
	bool bCanShow = true;
	Host::FShowDocument Former;
};
} // namespace

TEST_F(Documentation, OpensTheStartPageAndTheOthersByTheirLinks)
{
	EXPECT_TRUE(IDocumentation::Get()->Open(TEXT("%ROOT%")));
	EXPECT_TRUE(IDocumentation::Get()->Open(TEXT("Shared/%ROOT%")));
	EXPECT_TRUE(IDocumentation::Get()->Open(TEXT("Shared/Page")));

	const std::string Root = Folder / "README.md";
	EXPECT_EQ(Shown, (std::vector<std::string>{Root, Root, Folder / "docs/Page.md"}));
}

TEST_F(Documentation, NamesALinkWithoutAPageInTheLog)
{
	EXPECT_FALSE(IDocumentation::Get()->Open(TEXT("Missing")));
	EXPECT_FALSE(IDocumentation::Get()->Open(TEXT("")));
	EXPECT_EQ(Shown.size(), 0u);
	EXPECT_EQ(Log().CountContaining("There is no page 'Missing'"), 1);
}

TEST_F(Documentation, StaysInsideItsFolder)
{
	EXPECT_FALSE(IDocumentation::Get()->Open(TEXT("../secret")));
	EXPECT_EQ(Shown.size(), 0u);
}

TEST_F(Documentation, NamesThePageWhereNothingCanShowIt)
{
	Host::SetDocumentViewer(nullptr);
	EXPECT_FALSE(IDocumentation::Get()->Open(TEXT("Page")));
	EXPECT_EQ(Log().CountContaining("docs/Page.md"), 1);
}

TEST_F(Documentation, SaysWhenAPageCouldNotBeShown)
{
	bCanShow = false;
	EXPECT_FALSE(IDocumentation::Get()->Open(TEXT("Page")));
	EXPECT_EQ(Log().CountContaining("could not be shown"), 1);
}
