// SPDX-License-Identifier: MIT
#include "Host/Docking.h"

#include "EngineFixture.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/LayoutService.h"
#include "Misc/ConfigCacheIni.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBox.h"

namespace
{
class Docking : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Owner = SNew(SDockTab).TabRole(ETabRole::MajorTab).Label(FText::FromString(TEXT("Editor")));
		Manager = FGlobalTabmanager::Get()->NewTabManager(Owner.ToSharedRef());
		for (const TCHAR* Id : {TEXT("Tree"), TEXT("View"), TEXT("Details"), TEXT("Settings"), TEXT("Bar")})
		{
			Manager
				->RegisterTabSpawner(Id, FOnSpawnTab::CreateLambda(
											 [this](const FSpawnTabArgs& Args)
											 {
												 ++Spawned;
												 return SNew(SDockTab)[SNew(SBox).Tag(Args.GetTabId().TabType)];
											 }))
				.SetDisplayName(FText::FromString(Id));
		}
	}
	void TearDown() override
	{
		Widget.Reset();
		Manager.Reset();
		Owner.Reset();
		FEngineFixture::TearDown();
	}

	static TSharedRef<FTabManager::FLayout> DefaultLayout()
	{
		return FTabManager::NewLayout("Sample_v1")
			->AddArea(
				FTabManager::NewPrimaryArea()
					->SetOrientation(Orient_Vertical)
					->Split(FTabManager::NewStack()->SetSizeCoefficient(0.1f)->SetHideTabWell(true)->AddTab(
						"Bar", ETabState::ClosedTab))
					->Split(FTabManager::NewSplitter()
								->SetSizeCoefficient(0.9f)
								->SetOrientation(Orient_Horizontal)
								->Split(FTabManager::NewStack()->SetSizeCoefficient(0.2f)->SetHideTabWell(true)->AddTab(
									"Tree", ETabState::OpenedTab))
								->Split(FTabManager::NewStack()->SetSizeCoefficient(0.6f)->SetHideTabWell(true)->AddTab(
									"View", ETabState::OpenedTab))
								->Split(FTabManager::NewStack()
											->SetSizeCoefficient(0.2f)
											->AddTab("Settings", ETabState::OpenedTab)
											->AddTab("Details", ETabState::OpenedTab))));
	}

	void Restore(const TSharedRef<FTabManager::FLayout>& Layout) { Widget = Manager->RestoreFrom(Layout, nullptr); }

	TSharedPtr<SDockTab> Owner;
	TSharedPtr<FTabManager> Manager;
	TSharedPtr<SWidget> Widget;
	int Spawned = 0;
};
} // namespace

TEST_F(Docking, OpensTheOpenTabsOfALayoutAndKeepsPlacesForTheOthers)
{
	Restore(DefaultLayout());
	EXPECT_EQ(Spawned, 4);
	EXPECT_TRUE(Manager->FindExistingLiveTab(FName("View")).IsValid());
	EXPECT_FALSE(Manager->FindExistingLiveTab(FName("Bar")).IsValid());
	EXPECT_TEXT_EQ(Manager->FindExistingLiveTab(FName("View"))->GetTabLabel().ToString(), TEXT("View"));
}

TEST_F(Docking, RoundTripsALayoutThroughTheSettings)
{
	Restore(DefaultLayout());
	const FString Before = Manager->PersistLayout()->ToString();
	FLayoutSaveRestore::SaveToConfig(GEditorLayoutIni, Manager->PersistLayout());
	const TSharedRef<FTabManager::FLayout> Loaded =
		FLayoutSaveRestore::LoadFromConfig(GEditorLayoutIni, FTabManager::NewLayout("Sample_v1"));
	EXPECT_TEXT_EQ(Loaded->ToString(), Before);
}
