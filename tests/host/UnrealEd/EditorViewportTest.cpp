// SPDX-License-Identifier: MIT
#include "Editor.h"
#include "EditorViewportClient.h"
#include "EditorViewportTabContent.h"
#include "Engine/World.h"
#include "EngineFixture.h"
#include "Host/ViewPainter.h"
#include "Host/WidgetTree.h"
#include "PreviewScene.h"
#include "SAssetEditorViewport.h"
#include "SceneView.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
class FTestClient : public FEditorViewportClient
{
public:
	using FEditorViewportClient::FEditorViewportClient;

	void Tick(float DeltaSeconds) override
	{
		FEditorViewportClient::Tick(DeltaSeconds);
		++Ticks;
	}
	void DrawCanvas(FViewport& InViewport, FSceneView& View, FCanvas& Canvas) override
	{
		FEditorViewportClient::DrawCanvas(InViewport, View, Canvas);
		++Pictures;
	}

	int Ticks = 0;
	int Pictures = 0;
};

class STestViewport : public SAssetEditorViewport
{
public:
	SLATE_BEGIN_ARGS(STestViewport) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&, FPreviewScene* InScene)
	{
		Scene = InScene;
		SEditorViewport::Construct(SEditorViewport::FArguments().ViewportSize(FVector2D(200.0, 100.0)));
	}

	std::string Order;
	TSharedPtr<FTestClient> TestClient;

protected:
	TSharedRef<FEditorViewportClient> MakeEditorViewportClient() override
	{
		Order += "client ";
		TestClient = MakeShared<FTestClient>(nullptr, Scene, SharedThis(static_cast<SEditorViewport*>(this)));
		return TestClient.ToSharedRef();
	}
	void BindCommands() override
	{
		SAssetEditorViewport::BindCommands();
		Order += CommandList.IsValid() ? "commands " : "";
	}
	TSharedPtr<SWidget> MakeViewportToolbar() override
	{
		Order += "toolbar ";
		return nullptr;
	}
	void PopulateViewportOverlays(TSharedRef<SOverlay> Overlay) override
	{
		Order += "overlays ";
		Overlay->AddSlot()[BuildFeatureLevelWidget()];
	}

private:
	FPreviewScene* Scene = nullptr;
};

class FPainter : public Host::IViewPainter
{
public:
	void Paint(FViewport&, const FSceneView& View, const Host::FViewDrawing& Drawing) override
	{
		++Pictures;
		Scene = View.Family->Scene;
		Location = View.ViewLocation;
		Grid = Drawing.Grid;
		Lines = Drawing.Lines;
	}

	int Pictures = 0;
	const FSceneInterface* Scene = nullptr;
	FVector Location = FVector(0.0, 0.0, 0.0);
	TOptional<Host::FViewGrid> Grid;
	TArray<Host::FViewLine> Lines;
};

class EditorViewport : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Scene = std::make_unique<FPreviewScene>();
		Viewport = SNew(STestViewport, Scene.get());
		Client = Viewport->TestClient;
	}
	void TearDown() override
	{
		Client.Reset();
		Viewport.Reset();
		Scene.reset();
		FEngineFixture::TearDown();
	}

	std::unique_ptr<FPreviewScene> Scene;
	TSharedPtr<STestViewport> Viewport;
	TSharedPtr<FTestClient> Client;
};

constexpr double Tolerance = 1e-6; // of positions of some hundred cm that pass through sines
} // namespace

TEST_F(EditorViewport, MakesItsPartsInOrder)
{
	EXPECT_EQ(Viewport->Order, "client commands toolbar overlays ");
	EXPECT_EQ(Viewport->GetViewportClient(), Client);
	EXPECT_EQ(Client->Viewport, Viewport->GetSceneViewport().Get());
	EXPECT_EQ(Client->GetWorld(), Scene->GetWorld());
	EXPECT_EQ(Client->Viewport->GetSizeXY(), FIntPoint(200, 100));
}

TEST_F(EditorViewport, TheClientOutlivesItsViewport)
{
	Viewport.Reset();
	EXPECT_EQ(Client->Viewport, nullptr);
	Client->Invalidate();
	Tick(0.1);
	EXPECT_EQ(Client->Ticks, 1);
}

TEST_F(EditorViewport, DrawsOnlyWhatIsOutOfDateUnlessItIsRealtime)
{
	Tick(0.1);
	EXPECT_EQ(Client->Pictures, 1);
	Tick(0.1);
	EXPECT_EQ(Client->Pictures, 1);
	Client->Viewport->Invalidate();
	Tick(0.1);
	EXPECT_EQ(Client->Pictures, 2);
	Client->SetRealtime(true);
	Tick(0.1);
	Tick(0.1);
	EXPECT_EQ(Client->Pictures, 4);
	EXPECT_EQ(Client->Ticks, 5);
}

TEST_F(EditorViewport, HandsSceneAndGridToWhoeverPaints)
{
	FPainter Painter;
	Host::SetViewPainter(&Painter);
	Client->DrawHelper.NumCells = 4;
	Client->DrawHelper.PerspectiveGridSize = 200.0f;
	Client->DrawHelper.GridDepthBias = 0.5f;
	Client->DrawHelper.bDrawPivot = false;
	Tick(0.1);
	EXPECT_EQ(Painter.Scene, Scene->GetScene());
	ASSERT_TRUE(Painter.Grid.IsSet());
	EXPECT_EQ(Painter.Grid->NumCells, 4);
	EXPECT_EQ(Painter.Grid->HalfSize, 200.0);
	EXPECT_EQ(Painter.Grid->CellSize(), 100.0);
	EXPECT_EQ(Painter.Grid->Height, -0.5);
	EXPECT_EQ(Painter.Grid->AxisColor.ToFColor(true), Client->DrawHelper.GridColorAxis);
	EXPECT_EQ(Painter.Lines.Num(), 0);

	EXPECT_TRUE(Client->IsSetShowGridChecked());
	Client->SetShowGrid();
	EXPECT_FALSE(Client->IsSetShowGridChecked());
	Tick(0.1);
	EXPECT_FALSE(Painter.Grid.IsSet());
	Host::SetViewPainter(nullptr);
}

TEST_F(EditorViewport, DrawsPivotAndWorldBoxAsLines)
{
	FPainter Painter;
	Host::SetViewPainter(&Painter);
	Client->SetViewLocation(FVector(-300.0, 0.0, 0.0));
	Client->DrawHelper.bDrawGrid = false;
	Client->DrawHelper.PivotSize = 0.1f;
	Tick(0.1);
	EXPECT_FALSE(Painter.Grid.IsSet());
	ASSERT_EQ(Painter.Lines.Num(), 3);
	EXPECT_NEAR(Painter.Lines[2].End.Z, 30.0, 1e-5);
	Client->DrawHelper.bDrawPivot = false;
	Client->DrawHelper.bDrawWorldBox = true;
	Client->Invalidate();
	Tick(0.1);
	EXPECT_EQ(Painter.Lines.Num(), 12);
	Host::SetViewPainter(nullptr);
}

// A painter without a place for a whole grid gets its lines.
TEST_F(EditorViewport, TheGridIsLinesForWhoeverDrawsLineByLine)
{
	class FLines : public FPrimitiveDrawInterface
	{
	public:
		using FPrimitiveDrawInterface::FPrimitiveDrawInterface;
		void DrawLine(const FVector& Start, const FVector& End, const FLinearColor& Color, uint8, float) override
		{
			++Count;
			Axes += Color.ToFColor(true) == FColor(1, 2, 3) && (Start.X == 0.0 || End.Y == 0.0);
		}
		int Count = 0;
		int Axes = 0;
	};
	FSceneViewFamily Family;
	FSceneView View;
	View.Family = &Family;
	FLines Lines(&View);
	FEditorCommonDrawHelper Helper;
	Helper.bDrawPivot = false;
	Helper.NumCells = 4;
	Helper.GridColorAxis = FColor(1, 2, 3);
	Helper.Draw(&View, &Lines);
	EXPECT_EQ(Lines.Count, 10);
	EXPECT_EQ(Lines.Axes, 2);
}

// A view of 90 by 53.13 degrees: the sphere around the box touches top and bottom, where sin(Angle / 2) = 1 / sqrt(5).
TEST_F(EditorViewport, FramesABoxAlongItsDirection)
{
	Client->SetViewRotation(FRotator(0.0, 180.0, 0.0));
	Client->FocusViewportOnBox(FBox(FVector(-30.0, -40.0, 100.0), FVector(30.0, 40.0, 100.0)), true);
	EXPECT_NEAR(Client->GetViewLocation().X, 50.0 * std::sqrt(5.0), Tolerance);
	EXPECT_NEAR(Client->GetViewLocation().Y, 0.0, Tolerance);
	EXPECT_NEAR(Client->GetViewLocation().Z, 100.0, Tolerance);
	EXPECT_EQ(Client->GetLookAtLocation(), FVector(0.0, 0.0, 100.0));
}

TEST_F(EditorViewport, KeepsADistanceToABoxThatIsAPoint)
{
	Client->FocusViewportOnBox(FBox(FVector(0.0, 0.0, 0.0), FVector(0.0, 0.0, 0.0)), true);
	EXPECT_NEAR(Client->GetViewLocation().X, -10.0 * std::sqrt(5.0), Tolerance);
}

TEST_F(EditorViewport, MovesToAFramedBoxWithinAQuarterOfASecond)
{
	Client->SetViewLocation(FVector(-1000.0, 0.0, 0.0));
	Client->FocusViewportOnBox(FBox(FVector(-50.0, 0.0, 0.0), FVector(50.0, 0.0, 0.0)));
	EXPECT_EQ(Client->GetViewLocation().X, -1000.0);
	Tick(0.1);
	EXPECT_GT(Client->GetViewLocation().X, -1000.0);
	EXPECT_LT(Client->GetViewLocation().X, -50.0 * std::sqrt(5.0));
	Tick(0.2);
	EXPECT_NEAR(Client->GetViewLocation().X, -50.0 * std::sqrt(5.0), Tolerance);
	EXPECT_FALSE(Client->GetViewTransform().IsPlaying());
}

TEST_F(EditorViewport, FramesABoxInAParallelViewByItsWidth)
{
	Client->SetViewportType(LVT_OrthoXY);
	Client->FocusViewportOnBox(FBox(FVector(-30.0, -40.0, 0.0), FVector(30.0, 40.0, 0.0)), true);
	EXPECT_EQ(Client->GetViewTransform().GetOrthoZoom(), 200.0);
	EXPECT_EQ(Client->GetViewLocation(), FVector(0.0, 0.0, 0.0));
}

TEST_F(EditorViewport, ADragWithTheLeftButtonTurnsAroundWhatIsLookedAt)
{
	Client->bUsingOrbitCamera = true;
	Client->SetViewRotation(FRotator(0.0, 0.0, 0.0));
	Client->FocusViewportOnBox(FBox(FVector(-50.0, 0.0, 0.0), FVector(50.0, 0.0, 0.0)), true);
	const double Distance = -Client->GetViewLocation().X;
	const FGeometry Nowhere;
	Viewport->OnKeyDown(Nowhere, FKeyEvent(EKeys::LeftMouseButton, FModifierKeysState(), 0, false, 0, 0));
	EXPECT_TRUE(Client->Viewport->KeyState(EKeys::LeftMouseButton));
	EXPECT_TRUE(Client->InputAxis(Client->Viewport, INPUTDEVICEID_NONE, EKeys::MouseX, 360.0f, 0.1f));
	EXPECT_NEAR(Client->GetViewRotation().Yaw, 90.0, Tolerance);
	EXPECT_NEAR(Client->GetViewLocation().Y, -Distance, 1e-4);

	Viewport->OnKeyUp(Nowhere, FKeyEvent(EKeys::LeftMouseButton, FModifierKeysState(), 0, false, 0, 0));
	EXPECT_FALSE(Client->InputAxis(Client->Viewport, INPUTDEVICEID_NONE, EKeys::MouseX, 360.0f, 0.1f));
}

TEST_F(EditorViewport, DisabledInputIsUsedUpWithoutEffect)
{
	Client->bDisableInput = true;
	const FVector Before = Client->GetViewLocation();
	EXPECT_TRUE(Client->InputKey(FInputKeyEventArgs(Client->Viewport, 0, EKeys::MouseScrollUp, IE_Pressed)));
	EXPECT_EQ(Client->GetViewLocation(), Before);
}

TEST_F(EditorViewport, OverridesTheNearPlaneUntilTold)
{
	EXPECT_EQ(Client->GetNearClipPlane(), 10.0f);
	Client->OverrideNearClipPlane(1.0f);
	EXPECT_EQ(Client->GetNearClipPlane(), 1.0f);
	Client->OverrideNearClipPlane(-1.0f);
	EXPECT_EQ(Client->GetNearClipPlane(), 10.0f);
}

TEST_F(EditorViewport, SwitchesAllThatMakesAPictureLookFinished)
{
	Client->SetAdvancedShowFlagsForScene(false);
	EXPECT_FALSE(Client->EngineShowFlags.PostProcessing);
	EXPECT_FALSE(Client->EngineShowFlags.Bloom);
	EXPECT_TRUE(Client->EngineShowFlags.Lighting);
	Client->SetAdvancedShowFlagsForScene(true);
	EXPECT_TRUE(Client->EngineShowFlags.PostProcessing);
}

TEST_F(EditorViewport, NamesTheFeatureLevelOnlyBelowTheUsualOne)
{
	const TArray<TSharedRef<SWidget>> Lines = Host::FindWidgetsOfType(Viewport.ToSharedRef(), TEXT("STextBlock"));
	ASSERT_EQ(Lines.Num(), 1);
	EXPECT_EQ(Lines[0]->GetVisibility(), EVisibility::Collapsed);
	GEditor->SetPreviewPlatform(FPreviewPlatformInfo(ERHIFeatureLevel::ES3_1, true), false);
	EXPECT_EQ(Lines[0]->GetVisibility(), EVisibility::Visible);
	EXPECT_EQ(StaticCastSharedRef<STextBlock>(Lines[0])->GetText().ToString(), FString(TEXT("Feature Level: ES3_1")));
}

TEST_F(EditorViewport, ATabContentMakesOnePaneWithOrWithoutATab)
{
	const TSharedPtr<SDockTab> Tab = SNew(SDockTab);
	for (const TSharedPtr<SDockTab>& Parent : {Tab, TSharedPtr<SDockTab>()})
	{
		const TSharedRef<FEditorViewportTabContent> Content = MakeShared<FEditorViewportTabContent>();
		EXPECT_FALSE(Content->GetFirstViewport().IsValid());
		EXPECT_EQ(Content->GetViewports(), nullptr);
		int Changes = 0;
		Content->OnViewportTabContentLayoutChanged().AddLambda([&] { ++Changes; });
		FName ConfigKey;
		Content->Initialize(
			[&](const FAssetEditorViewportConstructionArgs& Args) -> TSharedRef<SAssetEditorViewport>
			{
				ConfigKey = Args.ConfigKey;
				return SNew(STestViewport, Scene.get());
			},
			Parent, TEXT("SomeLayout"));

		EXPECT_EQ(Changes, 1);
		EXPECT_EQ(ConfigKey, FName(TEXT("SomeLayout.Viewport0")));
		ASSERT_TRUE(Content->GetFirstViewport().IsValid());
		ASSERT_EQ(Content->GetViewports()->Num(), 1);
		EXPECT_TRUE(Content->IsViewportConfigurationSet(TEXT("OnePane")));
		int Visits = 0;
		FViewportTabContent::ViewportActionFunction Action =
			[&](FName Name, TSharedPtr<IEditorViewportLayoutEntity> Entity)
		{
			++Visits;
			EXPECT_EQ(Name, ConfigKey);
			EXPECT_EQ(Entity->AsAssetEditorViewport(), Content->GetFirstViewport());
		};
		Content->PerformActionOnViewports(Action);
		EXPECT_EQ(Visits, 1);
		if (Parent.IsValid())
		{
			EXPECT_EQ(Parent->GetContent(), Content->GetFirstViewport());
			EXPECT_TRUE(Content->BelongsToTab(Parent.ToSharedRef()));
		}
	}
}
