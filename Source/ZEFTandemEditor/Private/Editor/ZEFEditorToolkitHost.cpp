// SPDX-License-Identifier: MIT
#include "Editor/ZEFEditorToolkitHost.h"

#include "CoreGlobals.h"
#include "Editor.h"
#include "Editor/ZEFEditorToolkit.h"
#include "Editor/ZEFEditorToolkitHostMenu.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/PackageName.h"
#include "StatusBarSubsystem.h"
#include "ToolMenu.h"
#include "ToolMenuContext.h"
#include "ToolMenus.h"
#include "Toolkits/ToolkitManager.h"
#include "UObject/Package.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"

SZEFEditorToolkitHost::SZEFEditorToolkitHost() = default;

SZEFEditorToolkitHost::~SZEFEditorToolkitHost()
{
	ShutDown();
}

void SZEFEditorToolkitHost::Construct(
	const FArguments& /*InArgs*/, const TSharedPtr<FTabManager>& InTabManager, FName InAppName)
{
	MyTabManager = InTabManager;
	StatusBarName = FName(*(InAppName.ToString() + TEXT(".StatusBar")));
	SAssignNew(MenuOverlayBox, SBox);
	SAssignNew(ToolbarBox, SBox);
	SAssignNew(ContentArea, SVerticalBox);
}

void SZEFEditorToolkitHost::SetupInitialContent(const TSharedRef<FTabManager::FLayout>& DefaultLayout,
	const TSharedPtr<SDockTab>& InHostTab, bool bCreateDefaultStandaloneMenu)
{
	HostTabPtr = InHostTab;
	if (bCreateDefaultStandaloneMenu)
	{
		ZEFEditorToolkitHostMenu::RegisterDefaultMenu(*HostedZEFEditorToolkit);
	}

	// The main menu itself is shown by the tab's window, which the tab manager gives it to.
	const TSharedRef<SHorizontalBox> BarRow = SNew(SHorizontalBox) +
											  SHorizontalBox::Slot().FillWidth(1.0f)[ToolbarBox.ToSharedRef()] +
											  SHorizontalBox::Slot().AutoWidth()[MenuOverlayBox.ToSharedRef()];
	ChildSlot[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[BarRow] +
			  SVerticalBox::Slot().FillHeight(1.0f)[ContentArea.ToSharedRef()] +
			  SVerticalBox::Slot().AutoHeight()[GEditor->GetEditorSubsystem<UStatusBarSubsystem>()->MakeStatusBarWidget(
				  StatusBarName, InHostTab.ToSharedRef())]];

	InHostTab->SetContent(AsShared());
	InHostTab->SetCanCloseTab(SDockTab::FCanCloseTab::CreateSP(this, &SZEFEditorToolkitHost::CanCloseHostTab));
	InHostTab->SetOnTabClosed(SDockTab::FOnTabClosedCallback::CreateSP(this, &SZEFEditorToolkitHost::OnTabClosed));
	GenerateMenus();
	RestoreFromLayout(DefaultLayout);
}

void SZEFEditorToolkitHost::RestoreFromLayout(const TSharedRef<FTabManager::FLayout>& NewLayout)
{
	const TSharedPtr<SDockTab> HostTab = HostTabPtr.Pin();
	check(HostTab.IsValid());
	MyTabManager->CloseAllAreas();
	const TSharedPtr<SWidget> RestoredUI = MyTabManager->RestoreFrom(NewLayout, HostTab->GetParentWindow());
	checkf(RestoredUI.IsValid(), TEXT("The layout must have a primary dock area"));
	ContentArea->ClearChildren();
	ContentArea->AddSlot().FillHeight(1.0f)[RestoredUI.ToSharedRef()];
}

void SZEFEditorToolkitHost::GenerateMenus()
{
	if (!HostedZEFEditorToolkit.IsValid())
	{
		return;
	}
	UToolMenus* const Menus = UToolMenus::Get();
	const FName MenuName = HostedZEFEditorToolkit->GetToolMenuName();
	if (!Menus->IsMenuRegistered(MenuName))
	{
		return;
	}
	TArray<TSharedPtr<FExtender>> Extenders = HostedZEFEditorToolkit->GetMenuExtenders();
	Extenders.Add(ZEFEditorToolkitHostMenu::MakeTabsExtender(MyTabManager));
	UToolMenu* const Menu = Menus->GenerateMenu(MenuName, HostedZEFEditorToolkit->MakeToolMenuContext(Extenders));
	const TSharedRef<SWidget> MenuWidget = Menus->GenerateWidget(Menu);
	MyTabManager->SetMenuMultiBox(StaticCastSharedRef<SMultiBoxWidget>(MenuWidget)->GetMultiBox(), MenuWidget);
}

void SZEFEditorToolkitHost::SetMenuOverlay(const TSharedRef<SWidget>& Widget)
{
	MenuOverlayBox->SetContent(Widget);
}

void SZEFEditorToolkitHost::SetToolbar(const TSharedRef<SWidget>& Widget)
{
	ToolbarBox->SetContent(Widget);
}

TSharedRef<SWidget> SZEFEditorToolkitHost::GetParentWidget()
{
	return AsShared();
}

void SZEFEditorToolkitHost::BringToFront()
{
	if (const TSharedPtr<SDockTab> HostTab = HostTabPtr.Pin())
	{
		FGlobalTabmanager::Get()->DrawAttention(HostTab.ToSharedRef());
	}
}

void SZEFEditorToolkitHost::OnToolkitHostingStarted(const TSharedRef<IToolkit>& Toolkit)
{
	HostedToolkits.Add(Toolkit);
	Toolkit->RegisterTabSpawners(MyTabManager.ToSharedRef());
	if (!HostedZEFEditorToolkit.IsValid())
	{
		HostedZEFEditorToolkit = StaticCastSharedRef<FZEFEditorToolkit>(Toolkit);
	}
	else
	{
		HostedZEFEditorToolkit->OnToolkitHostingStarted(Toolkit);
	}
}

void SZEFEditorToolkitHost::OnToolkitHostingFinished(const TSharedRef<IToolkit>& Toolkit)
{
	Toolkit->UnregisterTabSpawners(MyTabManager.ToSharedRef());
	HostedToolkits.Remove(Toolkit);
	if (!HostedZEFEditorToolkit.IsValid())
	{
		return;
	}
	if (Toolkit == StaticCastSharedPtr<IToolkit>(HostedZEFEditorToolkit))
	{
		ShutDown();
	}
	else
	{
		HostedZEFEditorToolkit->OnToolkitHostingFinished(Toolkit);
	}
}

void SZEFEditorToolkitHost::ShutDown()
{
	// The tab holds this widget, and may be the last one to do so.
	const TSharedPtr<SDockTab> HostTab = HostTabPtr.Pin();
	if (HostTab.IsValid())
	{
		HostTab->RequestCloseTab();
	}
	FToolkitManager::Get().OnToolkitHostDestroyed(this);
	HostedToolkits.Empty();
	HostedZEFEditorToolkit.Reset();
}

bool SZEFEditorToolkitHost::CanCloseHostTab() const
{
	// An owner that has left already was asked before.
	const TSharedPtr<IToolkit> Owner = HostedZEFEditorToolkit;
	return !HostedToolkits.Contains(Owner) || HostedZEFEditorToolkit->OnRequestClose();
}

void SZEFEditorToolkitHost::OnTabClosed(TSharedRef<SDockTab> TabClosed)
{
	check(TabClosed == HostTabPtr.Pin());
	MyTabManager->SetMenuMultiBox(nullptr, nullptr);
	SaveTabLocations(*TabClosed);

	const TSharedPtr<FZEFEditorToolkit> Owner = HostedZEFEditorToolkit;
	const TSharedPtr<IToolkit> OwningToolkit = Owner;
	if (HostedToolkits.Contains(OwningToolkit))
	{
		Owner->OnClose();
		FToolkitManager::Get().CloseToolkit(Owner.ToSharedRef());
	}
}

void SZEFEditorToolkitHost::SaveTabLocations(const SDockTab& TabClosed) const
{
	const TArray<UObject*>* const Edited =
		HostedZEFEditorToolkit.IsValid() ? HostedZEFEditorToolkit->GetObjectsCurrentlyBeingEdited() : nullptr;
	if (Edited == nullptr)
	{
		return;
	}
	const bool bHasDockedSibling = TabClosed.HasSiblingTab(FName(TEXT("DockedToolkit")), false);
	for (const UObject* const Object : *Edited)
	{
		if (FPackageName::DoesPackageExist(Object->GetOutermost()->GetName()))
		{
			GConfig->SetInt(TEXT("AssetEditorToolkitTabLocation"), *Object->GetPathName(), bHasDockedSibling ? 0 : 1,
				GEditorPerProjectIni);
		}
	}
}

UWorld* SZEFEditorToolkitHost::GetWorld() const
{
	checkf(false, TEXT("IToolkitHost::GetWorld() doesn't make sense in SStandaloneAssetEditorToolkitHost currently"));
	return nullptr;
}

FEditorModeTools& SZEFEditorToolkitHost::GetEditorModeManager() const
{
	check(HostedZEFEditorToolkit.IsValid());
	return HostedZEFEditorToolkit->GetEditorModeManager();
}

void SZEFEditorToolkitHost::AddViewportOverlayWidget(
	TSharedRef<SWidget> InOverlaidWidget, TSharedPtr<IAssetViewport> /*InViewport*/)
{
	if (HostedZEFEditorToolkit.IsValid())
	{
		HostedZEFEditorToolkit->AddViewportOverlayWidget(InOverlaidWidget);
	}
}

void SZEFEditorToolkitHost::RemoveViewportOverlayWidget(
	TSharedRef<SWidget> InOverlaidWidget, TSharedPtr<IAssetViewport> /*InViewport*/)
{
	if (HostedZEFEditorToolkit.IsValid())
	{
		HostedZEFEditorToolkit->RemoveViewportOverlayWidget(InOverlaidWidget);
	}
}

FReply SZEFEditorToolkitHost::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	// A command may close the toolkits.
	const TSharedRef<SWidget> KeepAlive = AsShared();
	const TArray<TSharedPtr<IToolkit>> Toolkits = HostedToolkits;
	for (const TSharedPtr<IToolkit>& Toolkit : Toolkits)
	{
		if (Toolkit->ProcessCommandBindings(InKeyEvent))
		{
			return FReply::Handled();
		}
	}
	return FReply::Unhandled();
}
