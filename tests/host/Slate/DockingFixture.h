// SPDX-License-Identifier: MIT
// An editor's tabs inside a major tab.
#pragma once

#include "EngineFixture.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/LayoutService.h"
#include "Host/Docking.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

#include <map>
#include <string>

/** Panels "Tree", "View", "Details", "Settings" and "Bar" of one manager. Nothing is restored at first. */
class FDockingFixture : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Owner = MakeMajorTab(TEXT("Editor"));
		Manager = FGlobalTabmanager::Get()->NewTabManager(Owner.ToSharedRef());
		RegisterPanels(*Manager);
	}

	void TearDown() override
	{
		Widget.Reset();
		Manager.Reset();
		Owner.Reset();
		FEngineFixture::TearDown();
	}

	static TSharedRef<SDockTab> MakeMajorTab(const TCHAR* Label)
	{
		return SNew(SDockTab).TabRole(ETabRole::MajorTab).Label(FText::FromString(Label));
	}

	void RegisterPanels(FTabManager& To)
	{
		for (const char* Id : {"Tree", "View", "Details", "Settings", "Bar"})
		{
			To.RegisterTabSpawner(Id, FOnSpawnTab::CreateRaw(this, &FDockingFixture::Spawn))
				.SetDisplayName(FText::FromString(FString(Id)));
		}
	}

	// +--------------------- 0.1, Bar (closed)
	// | Tree | View | Settings, Details
	// +- 0.2 + 0.6 -+- 0.2 -  all of it 0.9
	static TSharedRef<FTabManager::FLayout> DefaultLayout(FName Name = "Sample_v1")
	{
		const auto Stack = [](float Size, const char* Id, ETabState::Type State, bool bHideTabWell)
		{ return FTabManager::NewStack()->SetSizeCoefficient(Size)->SetHideTabWell(bHideTabWell)->AddTab(Id, State); };
		return FTabManager::NewLayout(Name)->AddArea(
			FTabManager::NewPrimaryArea()
				->SetOrientation(Orient_Vertical)
				->Split(Stack(0.1f, "Bar", ETabState::ClosedTab, true))
				->Split(FTabManager::NewSplitter()
							->SetSizeCoefficient(0.9f)
							->SetOrientation(Orient_Horizontal)
							->Split(Stack(0.2f, "Tree", ETabState::OpenedTab, true))
							->Split(Stack(0.6f, "View", ETabState::OpenedTab, true))
							->Split(Stack(0.2f, "Settings", ETabState::OpenedTab, false)
										->AddTab("Details", ETabState::OpenedTab))));
	}

	void Restore(const TSharedRef<FTabManager::FLayout>& Layout = DefaultLayout())
	{
		Widget = Manager->RestoreFrom(Layout, nullptr);
	}

	TSharedPtr<SDockTab> Tab(const char* Id) const { return Manager->FindExistingLiveTab(FName(Id)); }
	TSharedRef<Host::SDockStack> Stack(const char* Id) const { return Host::StackOf(*Tab(Id)).ToSharedRef(); }

	/** The live areas, such as "V[{} H[{*Tree} {View *Details}]]": "*" stands before the tab in front. */
	std::string Tabs() const
	{
		std::string Result;
		for (const TSharedRef<Host::SDockArea>& Area : Host::LiveAreas(*Manager))
		{
			Result += (Result.empty() ? "" : " + ") + DescribeNode(Area);
		}
		return Result;
	}

	static std::string DescribeNode(const TSharedRef<Host::SDockNode>& Node)
	{
		std::string Result;
		if (auto* const Stack = dynamic_cast<Host::SDockStack*>(&Node.Get()))
		{
			for (const TSharedRef<SDockTab>& Each : Stack->GetTabs())
			{
				Result += (Result.empty() ? "" : " ") + std::string(Each == Stack->GetForegroundTab() ? "*" : "") +
						  TCHAR_TO_UTF8(*Each->GetTabLabel().ToString());
			}
			return "{" + Result + "}";
		}
		const auto& Splitter = static_cast<Host::SDockSplitter&>(*Node);
		for (int32 Index = 0; Index < Splitter.NumNodes(); ++Index)
		{
			Result += (Index ? " " : "") + DescribeNode(Splitter.GetNode(Index));
		}
		return (Splitter.GetOrientation() == Orient_Horizontal ? "H[" : "V[") + Result + "]";
	}

	TSharedPtr<SDockTab> Owner;
	TSharedPtr<FTabManager> Manager;
	TSharedPtr<SWidget> Widget;
	/** By identifier. */
	std::map<std::string, int> Spawned;
	std::map<std::string, int> Closed;

private:
	TSharedRef<SDockTab> Spawn(const FSpawnTabArgs& Args)
	{
		const std::string Id = TCHAR_TO_UTF8(*Args.GetTabId().ToString());
		++Spawned[Id];
		return SNew(SDockTab).OnTabClosed_Lambda(
			[this, Id](TSharedRef<SDockTab>) { ++Closed[Id]; })[SNew(SBox).Tag(Args.GetTabId().TabType)];
	}
};
