// SPDX-License-Identifier: MIT
#include "EditorViewportTabContent.h"
#include "SAssetEditorViewport.h"
#include "SEditorViewport.h"

#include "Editor.h"
#include "EditorViewportClient.h"
#include "EditorViewportCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
const TCHAR* FeatureLevelName(ERHIFeatureLevel::Type Level)
{
	switch (Level)
	{
		case ERHIFeatureLevel::ES3_1:
			return TEXT("ES3_1");
		case ERHIFeatureLevel::SM5:
			return TEXT("SM5");
		case ERHIFeatureLevel::SM6:
			return TEXT("SM6");
		default:
			return TEXT("Unknown");
	}
}

/** The one pane of a tab content. */
class FViewportPane : public IEditorViewportLayoutEntity
{
public:
	explicit FViewportPane(const TSharedRef<SAssetEditorViewport>& InViewport)
		: Viewport(InViewport)
	{
	}

	TSharedRef<SWidget> AsWidget() const override { return Viewport; }
	TSharedPtr<SAssetEditorViewport> AsAssetEditorViewport() const override { return Viewport; }
	void SetKeyboardFocus() override { Viewport->Invalidate(); }
	void OnLayoutDestroyed() override {}
	void SaveConfig(const FString&) override {}
	FName GetType() const override { return FName(TEXT("Default")); }
	void TakeHighResScreenShot() const override {}

private:
	TSharedRef<SAssetEditorViewport> Viewport;
};
} // namespace

SEditorViewport::SEditorViewport() = default;

SEditorViewport::~SEditorViewport()
{
	if (Client.IsValid())
	{
		// The client may be held elsewhere and outlive its viewport.
		Client->Viewport = nullptr;
	}
}

void SEditorViewport::Construct(const FArguments& InArgs)
{
	ViewportOverlay = SNew(SOverlay);
	ChildSlot[ViewportOverlay.ToSharedRef()];

	Client = MakeEditorViewportClient();
	SceneViewport = MakeShared<FSceneViewport>(Client.Get(), SharedThis(this));
	const FVector2D Size = InArgs._ViewportSize.Get();
	SceneViewport->SetFixedViewportSize(static_cast<uint32>(Size.X), static_cast<uint32>(Size.Y));
	Client->Viewport = SceneViewport.Get();

	CommandList = MakeShared<FUICommandList>();
	BindCommands();

	if (const TSharedPtr<SWidget> Toolbar = MakeViewportToolbar())
	{
		ViewportOverlay->AddSlot().VAlign(VAlign_Top)[Toolbar.ToSharedRef()];
	}
	PopulateViewportOverlays(ViewportOverlay.ToSharedRef());
}

void SEditorViewport::Invalidate()
{
	Client->Invalidate();
}

bool SEditorViewport::IsVisible() const
{
	if (!GetVisibility().IsVisible())
	{
		return false;
	}
	for (TSharedPtr<SWidget> Around = GetParentWidget(); Around.IsValid(); Around = Around->GetParentWidget())
	{
		if (!Around->GetVisibility().IsVisible())
		{
			return false;
		}
	}
	return true;
}

bool SEditorViewport::IsRealtime() const
{
	return Client->IsRealtime();
}

void SEditorViewport::OnToggleRealtime()
{
	Client->SetRealtime(!Client->IsRealtime());
}

FReply SEditorViewport::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FReply Reply = SceneViewport->OnKeyDown(MyGeometry, InKeyEvent);
	if (Reply.IsEventHandled())
	{
		return Reply;
	}
	return CommandList->ProcessCommandBindings(InKeyEvent) ? FReply::Handled() : FReply::Unhandled();
}

FReply SEditorViewport::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	return SceneViewport->OnKeyUp(MyGeometry, InKeyEvent);
}

TSharedRef<SWidget> SEditorViewport::BuildFeatureLevelWidget() const
{
	const auto CurrentLevel = [] { return GEditor->PreviewPlatform.GetEffectivePreviewFeatureLevel(); };
	return SNew(STextBlock)
		.Text_Lambda(
			[CurrentLevel]
			{
				return FText::Format(NSLOCTEXT("SEditorViewport", "FeatureLevel", "Feature Level: {0}"),
					FText::FromString(FeatureLevelName(CurrentLevel())));
			})
		.Visibility_Lambda([CurrentLevel]
			{ return CurrentLevel() < ERHIFeatureLevel::SM5 ? EVisibility::Visible : EVisibility::Collapsed; });
}

TSharedPtr<SWidget> SEditorViewport::MakeViewportToolbar()
{
	return nullptr;
}

void SEditorViewport::BindCommands()
{
	const FEditorViewportCommands& Commands = FEditorViewportCommands::Get();
	const TSharedRef<FEditorViewportClient> ClientRef = Client.ToSharedRef();
	CommandList->MapAction(Commands.ToggleRealTime, FExecuteAction::CreateSP(this, &SEditorViewport::OnToggleRealtime),
		FCanExecuteAction(), FIsActionChecked::CreateSP(this, &SEditorViewport::IsRealtime));
	const auto MapMode = [&](const TSharedPtr<FUICommandInfo>& Command, EViewModeIndex Mode)
	{
		CommandList->MapAction(Command, FExecuteAction::CreateSP(ClientRef, &FEditorViewportClient::SetViewMode, Mode),
			FCanExecuteAction(),
			FIsActionChecked::CreateSP(ClientRef, &FEditorViewportClient::IsViewModeEnabled, Mode));
	};
	MapMode(Commands.WireframeMode, VMI_BrushWireframe);
	MapMode(Commands.UnlitMode, VMI_Unlit);
	MapMode(Commands.LitMode, VMI_Lit);
	const auto MapType = [&](const TSharedPtr<FUICommandInfo>& Command, ELevelViewportType Type)
	{
		CommandList->MapAction(Command,
			FExecuteAction::CreateSP(ClientRef, &FEditorViewportClient::SetViewportType, Type), FCanExecuteAction(),
			FIsActionChecked::CreateSP(ClientRef, &FEditorViewportClient::IsActiveViewportType, Type));
	};
	MapType(Commands.Perspective, LVT_Perspective);
	MapType(Commands.Front, LVT_OrthoFront);
	MapType(Commands.Left, LVT_OrthoLeft);
	MapType(Commands.Top, LVT_OrthoTop);
	MapType(Commands.Back, LVT_OrthoBack);
	MapType(Commands.Right, LVT_OrthoRight);
	MapType(Commands.Bottom, LVT_OrthoBottom);
}

void SEditorViewport::PopulateViewportOverlays(TSharedRef<SOverlay>) {}

SAssetEditorViewport::SAssetEditorViewport() = default;

SAssetEditorViewport::~SAssetEditorViewport() = default;

void SAssetEditorViewport::Construct(
	const FArguments&, const FAssetEditorViewportConstructionArgs& InViewportConstructionArgs)
{
	ConfigKey = InViewportConstructionArgs.ConfigKey;
	SEditorViewport::Construct(SEditorViewport::FArguments().IsEnabled(InViewportConstructionArgs.IsEnabled));
	Client->SetViewportType(InViewportConstructionArgs.ViewportType);
	Client->SetRealtime(InViewportConstructionArgs.bRealtime);
}

bool SAssetEditorViewport::IsViewportConfigurationSet(FName ConfigurationName) const
{
	const TSharedPtr<FViewportTabContent> TabContent = ParentTabContent.Pin();
	return TabContent.IsValid() && TabContent->IsViewportConfigurationSet(ConfigurationName);
}

void SAssetEditorViewport::BindCommands()
{
	SEditorViewport::BindCommands();
}

TSharedRef<FEditorViewportClient> SAssetEditorViewport::MakeEditorViewportClient()
{
	return MakeShared<FEditorViewportClient>(nullptr, nullptr, SharedThis(this));
}

void FEditorViewportTabContent::Initialize(
	AssetEditorViewportFactoryFunction Func, TSharedPtr<SDockTab> InParentTab, const FString& InLayoutString)
{
	check(!InLayoutString.IsEmpty());
	ParentTab = InParentTab;
	LayoutString = InLayoutString;
	ConfigurationName = FName(TEXT("OnePane"));
	ViewportCreationFactories.Add(FName(TEXT("Default")), Func);

	FAssetEditorViewportConstructionArgs Args;
	Args.bRealtime = true;
	Args.ConfigKey = FName(*(LayoutString + TEXT(".Viewport0")));
	const TSharedRef<SAssetEditorViewport> Viewport = CreateSlateViewport(FName(TEXT("Default")), Args).ToSharedRef();
	Viewport->ParentTabContent = AsWeak();
	Viewports.Empty();
	Viewports.Add(Args.ConfigKey, MakeShared<FViewportPane>(Viewport));
	bHasLayout = true;
	UpdateViewportTabWidget();
	OnViewportTabContentLayoutChangedEvent.Broadcast();
}

TSharedPtr<SEditorViewport> FEditorViewportTabContent::GetFirstViewport()
{
	for (const auto& Pane : Viewports)
	{
		return Pane.Value->AsAssetEditorViewport();
	}
	return nullptr;
}

TSharedPtr<SAssetEditorViewport> FEditorViewportTabContent::CreateSlateViewport(
	FName InTypeName, const FAssetEditorViewportConstructionArgs& ConstructionArgs) const
{
	const AssetEditorViewportFactoryFunction* const Factory = ViewportCreationFactories.Find(InTypeName);
	return Factory ? TSharedPtr<SAssetEditorViewport>((*Factory)(ConstructionArgs)) : nullptr;
}

void FEditorViewportTabContent::UpdateViewportTabWidget()
{
	const TSharedPtr<SDockTab> Tab = ParentTab.Pin();
	if (Tab.IsValid())
	{
		for (const auto& Pane : Viewports)
		{
			Tab->SetContent(Pane.Value->AsWidget());
		}
	}
}
