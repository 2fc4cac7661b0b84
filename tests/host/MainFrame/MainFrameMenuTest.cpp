// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/MultiBoxes.h"
#include "ToolMenus.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
class MainFrameMenu : public FEngineFixture
{
};

std::vector<std::string> Describe(const TSharedRef<SWidget>& Menu)
{
	std::vector<std::string> Lines;
	for (const FString& Line : Host::DescribeMultiBox(Menu))
	{
		Lines.push_back(ToStdString(Line));
	}
	return Lines;
}
} // namespace

TEST_F(MainFrameMenu, HasTheMenusThatEditorWindowsShare)
{
	const TSharedRef<SWidget> Bar = UToolMenus::Get()->GenerateWidget("MainFrame.MainMenu", FToolMenuContext());
	TArray<FString> Labels;
	for (const TSharedRef<Host::SMultiBoxItem>& Item : Host::GetMultiBoxItems(Bar))
	{
		Labels.Add(Item->GetLabel().ToString());
	}
	EXPECT_EQ(Labels, TArray<FString>({TEXT("File"), TEXT("Edit"), TEXT("Window"), TEXT("Help")}));
}

TEST_F(MainFrameMenu, ListsTheTabsOfAManagerUnderTheirCategories)
{
	const TSharedRef<SDockTab> Major = SNew(SDockTab).TabRole(ETabRole::MajorTab);
	const TSharedRef<FTabManager> Manager = FGlobalTabmanager::Get()->NewTabManager(Major);
	const TSharedRef<FWorkspaceItem> Category =
		Manager->AddLocalWorkspaceMenuCategory(FText::FromString(TEXT("Category")));
	const FOnSpawnTab Spawn = FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab); });
	Manager->RegisterTabSpawner("Shown", Spawn).SetDisplayName(FText::FromString(TEXT("Shown"))).SetGroup(Category);
	Manager->RegisterTabSpawner("Off", Spawn)
		.SetDisplayName(FText::FromString(TEXT("Off")))
		.SetGroup(Category)
		.SetMenuType(ETabSpawnerMenuType::Disabled);
	Manager->RegisterTabSpawner("Hidden", Spawn).SetGroup(Category).SetMenuType(ETabSpawnerMenuType::Hidden);
	Manager->RegisterTabSpawner("Left out", Spawn).SetGroup(Category).SetAutoGenerateMenuEntry(false);

	FMenuBuilder Menu(true, nullptr);
	Manager->PopulateLocalTabSpawnerMenu(Menu);
	EXPECT_EQ(Describe(Menu.MakeWidget()), (std::vector<std::string>{"# Category", "[ ] Shown", "([ ] Off)"}));
}
