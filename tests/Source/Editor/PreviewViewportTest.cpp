// SPDX-License-Identifier: MIT
#include "AdvancedPreviewScene.h"
#include "AssetViewerSettings.h"
#include "CanvasTypes.h"
#include "Components/DirectionalLightComponent.h"
#include "Components/PrimitiveComponent.h"
#include "Editor.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"
#include "Editor/ZEFPreviewScene.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "GameFramework/Actor.h"
#include "Host/Analytics.h"
#include "Host/EditorState.h"
#include "Host/ViewPainter.h"
#include "Host/Viewports.h"
#include "Host/WidgetTree.h"
#include "IAnalyticsProviderET.h"
#include "SceneView.h"
#include "Source/Editor/OpenEditorFixture.h"
#include "Source/SampleMeshes.h"
#include "UObject/UnrealType.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

using namespace SampleMeshes;

namespace
{

constexpr int32 Garment = 2;
constexpr int32 Avatar = 4;
constexpr int32 Prop = 16;
const FModifierKeysState NoKeys;
const FModifierKeysState Control(false, false, true, false, false, false, false, false, false);

/** A triangle of 100 cm that faces the front, its right angle at Y. */
FZEFSurfaceMesh MakeTriangle(float Y, bool bSkinned = false)
{
	FZEFSurfaceMesh Mesh = bSkinned ? MakeSkinned() : MakeRigid();
	Mesh.Surfaces[0].Positions[0] = FVector3f(0.0f, Y, 0.0f);
	Mesh.Surfaces[0].Positions[1] = FVector3f(0.0f, Y + 100.0f, 0.0f);
	Mesh.Surfaces[0].Positions[2] = FVector3f(0.0f, Y, 100.0f);
	return Mesh;
}

class PreviewViewport : public FOpenEditorFixture
{
protected:
	void SetUp() override
	{
		FOpenEditorFixture::SetUp();
		FormerProfiles = UAssetViewerSettings::Get()->Profiles;
		Widget = Editor->GetViewport();
		View = StaticCastSharedPtr<FZEFTandemEditorViewportClient>(Widget->GetViewportClient());
	}
	void TearDown() override
	{
		UAssetViewerSettings::Get()->Profiles = FormerProfiles;
		View.Reset();
		Widget.Reset();
		FOpenEditorFixture::TearDown();
	}

	FSceneViewport& Viewport() { return *Widget->GetSceneViewport(); }
	bool Key(const FKey& InKey, EInputEvent Event = IE_Pressed)
	{
		return View->InputKey(FInputKeyEventArgs(View->Viewport, 0, InKey, Event));
	}
	/** A picture of 400 by 400 cm in as many pixels, seen from the front: Y points to the left, Z up. */
	void LookFromTheFront()
	{
		Host::ResizeViewport(Viewport(), FIntPoint(400, 400));
		View->SetViewportType(LVT_OrthoFront);
		View->GetViewTransform().SetOrthoZoom(400.0);
	}
	/** @param Y, Z  of the scene, cm */
	void Click(double Y, double Z, const FModifierKeysState& Keys = NoKeys)
	{
		const FIntPoint Pixel(int(200.0 - Y), int(200.0 - Z));
		Host::SendMouseButton(Viewport(), EKeys::LeftMouseButton, IE_Pressed, Pixel, Keys);
		Host::SendMouseButton(Viewport(), EKeys::LeftMouseButton, IE_Released, Pixel, Keys);
	}
	std::vector<std::string> OverlayLines()
	{
		std::vector<std::string> Lines;
		const TSharedRef<SWidget> Overlay = Host::OverlayOf(*Widget);
		for (const TSharedRef<SWidget>& Block :
			Host::FindWidgetsOfType(Host::FindWidgetsOfType(Overlay, TEXT("SVerticalBox"))[0], TEXT("STextBlock")))
		{
			Lines.push_back(TCHAR_TO_UTF8(*StaticCastSharedRef<STextBlock>(Block)->GetText().ToString()));
		}
		return Lines;
	}
	FPreviewSceneProfile& Profile() { return UAssetViewerSettings::Get()->Profiles[0]; }

	TArray<FPreviewSceneProfile> FormerProfiles;
	TSharedPtr<SZEFTandemEditorViewport> Widget;
	TSharedPtr<FZEFTandemEditorViewportClient> View;
};

/** What a picture consists of beside the scene. */
class FLastPicture : public Host::IViewPainter
{
public:
	FLastPicture() { Host::SetViewPainter(this); }
	~FLastPicture() override { Host::SetViewPainter(nullptr); }
	void Paint(FViewport&, const FSceneView&, const Host::FViewDrawing& Drawing) override
	{
		++Pictures;
		LineCount = Drawing.Lines.Num();
		bGrid = Drawing.Grid.IsSet();
	}

	int Pictures = 0;
	int LineCount = -1;
	bool bGrid = false;
};

} // namespace

TEST_F(PreviewViewport, StartsWithItsOwnDefaults)
{
	EXPECT_EQ(View->GetViewMode(), VMI_Lit);
	EXPECT_EQ(View->GetNearClipPlane(), 1.0f);
	EXPECT_TRUE(View->bUsingOrbitCamera);
	EXPECT_EQ(View->DrawHelper.GridColorAxis, FColor(160, 160, 160, 255));
	EXPECT_EQ(View->DrawHelper.GridColorMajor, FColor(144, 144, 144, 255));
	EXPECT_EQ(View->DrawHelper.GridColorMinor, FColor(128, 128, 128, 255));
	EXPECT_EQ(View->DrawHelper.PerspectiveGridSize, 2048.0f);
	EXPECT_EQ(View->DrawHelper.NumCells, 64);
	EXPECT_FALSE(View->DrawHelper.bDrawPivot);
	EXPECT_FALSE(View->DrawHelper.bDrawWorldBox);
	EXPECT_FALSE(View->DrawHelper.bDrawKillZ);
	EXPECT_TRUE(View->IsRealtime());
	EXPECT_EQ(View->GetViewportType(), LVT_Perspective);
	EXPECT_EQ(View->ViewTransformPerspective.GetLocation(), FVector(512.0, 0.0, 512.0));
	EXPECT_EQ(View->ViewTransformPerspective.GetRotation(), FRotator(-15.0, 180.0, 0.0));
	EXPECT_TRUE(View->EngineShowFlags.PostProcessing);
	EXPECT_FALSE(View->IsDrawingNormals() || View->IsDrawingTangents() || View->IsDrawingBinormals());
}

TEST_F(PreviewViewport, PostProcessingOfTheProfileDecidesTheAdvancedShowFlags)
{
	EXPECT_TRUE(Key(EKeys::P));
	EXPECT_FALSE(Profile().bPostProcessingEnabled);
	EXPECT_FALSE(View->EngineShowFlags.PostProcessing);
	Profile().bPostProcessingEnabled = true;
	UAssetViewerSettings::Get()->PostEditChange();
	EXPECT_TRUE(View->EngineShowFlags.PostProcessing);
}

TEST_F(PreviewViewport, AProfileThatBeginsWithoutPostProcessingIsHonoured)
{
	Profile().bPostProcessingEnabled = false;
	const TSharedRef<FZEFTandemEditorViewportClient> Other =
		MakeShared<FZEFTandemEditorViewportClient>(Editor->GetPreviewScene().ToSharedRef(), Widget, Editor);
	EXPECT_FALSE(Other->EngineShowFlags.PostProcessing);
	EXPECT_EQ(Other->ViewTransformPerspective.GetLocation(), FVector(0.0, 0.0, 0.0));
	EXPECT_FALSE(Other->IsRealtime());
}

TEST_F(PreviewViewport, AClickSelectsWhatIsUnderItAlone)
{
	UPrimitiveComponent* const Left = Editor->AddObject(Garment, MakeTriangle(10.0f));
	UPrimitiveComponent* const Right = Editor->AddObject(Avatar, MakeTriangle(-110.0f, true));
	LookFromTheFront();
	Click(30.0, 20.0);
	ASSERT_EQ(Editor->GetSelectedObjects().Num(), 1);
	EXPECT_EQ(Editor->GetSelectedObjects()[0], Left);
	Click(-100.0, 20.0);
	ASSERT_EQ(Editor->GetSelectedObjects().Num(), 1);
	EXPECT_EQ(Editor->GetSelectedObjects()[0], Right);
	EXPECT_TRUE(Right->ShouldRenderSelected());
	EXPECT_FALSE(Left->ShouldRenderSelected());
}

TEST_F(PreviewViewport, CtrlAddsAndRemovesOnlyTheObjectUnderTheClick)
{
	UPrimitiveComponent* const Left = Editor->AddObject(Garment, MakeTriangle(10.0f));
	UPrimitiveComponent* const Right = Editor->AddObject(Prop, MakeTriangle(-110.0f));
	LookFromTheFront();
	Click(30.0, 20.0);
	Click(-100.0, 20.0, Control);
	EXPECT_EQ(Editor->GetSelectedObjects(), TArray<UPrimitiveComponent*>({Left, Right}));
	Click(30.0, 20.0, Control);
	EXPECT_EQ(Editor->GetSelectedObjects(), TArray<UPrimitiveComponent*>({Right}));
	EXPECT_EQ(Host::SelectedComponents(), TArray<UActorComponent*>({Right}));
}

TEST_F(PreviewViewport, AClickOnNothingClearsTheSelectionEvenWithCtrl)
{
	Editor->AddObject(Garment, MakeTriangle(10.0f));
	LookFromTheFront();
	for (const FModifierKeysState& Keys : {NoKeys, Control})
	{
		Click(30.0, 20.0);
		ASSERT_EQ(Editor->GetSelectedObjects().Num(), 1);
		Click(100.0, 100.0, Keys);
		EXPECT_EQ(Editor->GetSelectedObjects().Num(), 0);
	}
}

TEST_F(PreviewViewport, AHitOfAnotherKindOrOfAForeignComponentSelectsNothing)
{
	class HOther : public HHitProxy
	{
	};
	UPrimitiveComponent* const Object = Editor->AddObject(Garment, MakeTriangle(10.0f));
	UPrimitiveComponent* const Foreign = Editor->AddObject(Prop, MakeTriangle(10.0f));
	FSceneViewFamily Family;
	const TUniquePtr<FSceneView> SceneView(View->CalcSceneView(&Family));
	HOther Other;
	HActor ForeignHit(Object->GetOwner(), Foreign);
	HActor OwnHit(Object->GetOwner(), Object);
	for (HHitProxy* const Nothing : {static_cast<HHitProxy*>(&Other), static_cast<HHitProxy*>(&ForeignHit)})
	{
		View->ProcessClick(*SceneView, &OwnHit, EKeys::LeftMouseButton, IE_Released, 0, 0);
		ASSERT_EQ(Editor->GetSelectedObjects().Num(), 1);
		View->ProcessClick(*SceneView, Nothing, EKeys::LeftMouseButton, IE_Released, 0, 0);
		EXPECT_EQ(Editor->GetSelectedObjects().Num(), 0);
	}
}

// Half the height of the view is 29.36 degrees; the box of 50 around the origin has a radius of 86.60.
TEST_F(PreviewViewport, FWithNothingSelectedFramesTheBoxAroundTheOrigin)
{
	EXPECT_FALSE(Key(EKeys::F));
	EXPECT_TRUE(View->GetViewTransform().IsPlaying());
	EXPECT_EQ(View->GetLookAtLocation(), FVector(0.0, 0.0, 0.0));
	Tick(0.3);
	const double Distance = 86.6025 / std::sin(std::atan(9.0 / 16.0));
	EXPECT_NEAR(View->GetViewLocation().Size(), Distance, 1e-3);
	EXPECT_NEAR(View->GetViewLocation().Z, Distance * std::sin(FMath::DegreesToRadians(15.0)), 1e-3);
}

TEST_F(PreviewViewport, FFramesTheSelectionWhenPressedAndWhenReleased)
{
	Arrive(ZefTandemCore::TandemObjectType::Garment, MakeTriangle(1000.0f));
	Select(Editor->GetObjectComponents(Garment));
	Key(EKeys::F, IE_Pressed);
	EXPECT_EQ(View->GetLookAtLocation(), FVector(0.0, 1050.0, 50.0));
	View->SetLookAtLocation(FVector(0.0, 0.0, 0.0));
	Key(EKeys::F, IE_Released);
	EXPECT_EQ(View->GetLookAtLocation(), FVector(0.0, 1050.0, 50.0));
}

TEST_F(PreviewViewport, DeleteRemovesSelectedGarmentsAndAvatarsAndNothingElse)
{
	UPrimitiveComponent* const First = Editor->AddObject(Garment, MakeTriangle(0.0f));
	UPrimitiveComponent* const Kept = Editor->AddObject(Garment, MakeTriangle(200.0f));
	UPrimitiveComponent* const Person = Editor->AddObject(Avatar, MakeTriangle(-200.0f, true));
	UPrimitiveComponent* const Chair = Editor->AddObject(Prop, MakeTriangle(-400.0f));
	Editor->SetSelectedObjects({First, Person, Chair}, true);
	EXPECT_FALSE(Key(EKeys::Platform_Delete));
	EXPECT_EQ(Editor->GetObjectComponents(Garment), TArray<UPrimitiveComponent*>({Kept}));
	EXPECT_EQ(Editor->GetObjectComponents(Avatar).Num(), 0);
	EXPECT_EQ(Editor->GetObjectComponents(Prop), TArray<UPrimitiveComponent*>({Chair}));
}

TEST_F(PreviewViewport, DeleteDoesNothingToASelectedProp)
{
	UPrimitiveComponent* const Chair = Editor->AddObject(Prop, MakeTriangle(0.0f));
	UPrimitiveComponent* const Shirt = Editor->AddObject(Garment, MakeTriangle(200.0f));
	Editor->SetSelectedObjects({Chair}, true);
	Key(EKeys::Platform_Delete, IE_Pressed);
	Key(EKeys::Platform_Delete, IE_Released);
	EXPECT_EQ(Editor->GetObjectComponents(Prop), TArray<UPrimitiveComponent*>({Chair}));
	EXPECT_EQ(Editor->GetObjectComponents(Garment), TArray<UPrimitiveComponent*>({Shirt}));
	EXPECT_EQ(Editor->GetSelectedObjects(), TArray<UPrimitiveComponent*>({Chair}));
}

TEST_F(PreviewViewport, HandledIsWhatTheEngineHandles)
{
	EXPECT_TRUE(Key(EKeys::MouseScrollUp));
	EXPECT_TRUE(Key(EKeys::I));
	EXPECT_TRUE(Key(EKeys::F9));
	EXPECT_FALSE(Key(EKeys::X));
	View->bDisableInput = true;
	EXPECT_TRUE(Key(EKeys::X));
}

TEST_F(PreviewViewport, DisabledInputUsesUpEveryAxis)
{
	const FRotator Light = Editor->GetPreviewScene()->GetLightDirection();
	Host::SendViewportKey(Viewport(), EKeys::L, IE_Pressed, NoKeys);
	View->bDisableInput = true;
	EXPECT_TRUE(View->InputAxis(View->Viewport, INPUTDEVICEID_NONE, EKeys::MouseX, 40.0f, 0.1f));
	EXPECT_EQ(Editor->GetPreviewScene()->GetLightDirection(), Light);
}

TEST_F(PreviewViewport, LTurnsTheLightAndAsksForAPicture)
{
	View->SetRealtime(false);
	Tick(0.1);
	EXPECT_FALSE(Host::NeedsRedraw(Viewport()));
	const FRotator Light = Editor->GetPreviewScene()->GetLightDirection();
	Host::SendViewportKey(Viewport(), EKeys::L, IE_Pressed, NoKeys);
	EXPECT_TRUE(View->InputAxis(View->Viewport, INPUTDEVICEID_NONE, EKeys::MouseX, 40.0f, 0.1f));
	EXPECT_NEAR(Editor->GetPreviewScene()->GetLightDirection().Yaw, Light.Yaw + 10.0, 1e-5);
	EXPECT_TRUE(Host::NeedsRedraw(Viewport()));
	EXPECT_EQ(View->GetViewRotation(), FRotator(-15.0, 180.0, 0.0));

	Host::SendViewportKey(Viewport(), EKeys::L, IE_Released, NoKeys);
	EXPECT_FALSE(View->InputAxis(View->Viewport, INPUTDEVICEID_NONE, EKeys::MouseX, 40.0f, 0.1f));
	Host::SendMouseButton(Viewport(), EKeys::LeftMouseButton, IE_Pressed, FIntPoint(5, 5), NoKeys);
	EXPECT_TRUE(View->InputAxis(View->Viewport, INPUTDEVICEID_NONE, EKeys::MouseX, 40.0f, 0.1f));
	EXPECT_NEAR(View->GetViewRotation().Yaw, 190.0, 1e-5);
}

TEST_F(PreviewViewport, TheVectorTogglesChangeTheirStateAndNoPicture)
{
	FLastPicture Picture;
	Tick(0.1);
	const int LinesBefore = Picture.LineCount;
	View->SetRealtime(false);
	Tick(0.1);
	View->ToggleDrawNormals();
	EXPECT_TRUE(View->IsDrawingNormals());
	EXPECT_TRUE(Host::NeedsRedraw(Viewport()));
	View->ToggleDrawTangents();
	View->SetDrawBinormals(true);
	const int PicturesBefore = Picture.Pictures;
	Tick(0.1);
	EXPECT_EQ(Picture.Pictures, PicturesBefore + 1);
	EXPECT_EQ(Picture.LineCount, LinesBefore);
	EXPECT_TRUE(Picture.bGrid);
	View->ToggleDrawNormals();
	EXPECT_FALSE(View->IsDrawingNormals());
	EXPECT_TRUE(View->IsDrawingTangents());
	EXPECT_TRUE(View->IsDrawingBinormals());
}

TEST_F(PreviewViewport, ReportsItsTogglesToTheProviderOfAnalytics)
{
	class FRecorder : public IAnalyticsProviderET
	{
	public:
		void RecordEvent(const FString& EventName, const TArray<FAnalyticsEventAttribute>& Attributes) override
		{
			Events.push_back(TCHAR_TO_UTF8(
				*(EventName + TEXT(" ") + Attributes[0].GetName() + TEXT(" ") + Attributes[0].GetValue())));
		}
		std::vector<std::string> Events;
	};
	View->ToggleDrawNormals();
	FRecorder Recorder;
	Host::SetAnalyticsProvider(&Recorder);
	View->ToggleDrawNormals();
	View->ToggleDrawTangents();
	View->ToggleDrawBinormals();
	View->SetDrawNormals(true);
	View->ToggleGrid();
	Host::SetAnalyticsProvider(nullptr);
	EXPECT_EQ(Recorder.Events,
		(std::vector<std::string>{"Editor.Usage.ZEF.Toolbar bDrawNormals False",
			"Editor.Usage.ZEF.Toolbar bDrawTangents True", "Editor.Usage.ZEF.Toolbar bDrawBinormals True",
			"Editor.Usage.StaticMesh.Toolbar bDrawNormals True",
			"Editor.Usage.ZEF.Toolbar EngineShowFlags.Grid False"}));
	EXPECT_FALSE(View->IsSetShowGridChecked());
}

TEST_F(PreviewViewport, TheNumbersStandOverThePictureFromTheBeginning)
{
	Tick(0.1);
	EXPECT_EQ(OverlayLines(),
		(std::vector<std::string>{"[Garment]", "Number of Complete Garment:  0", "Triangles:  0", "Vertices:  0", "",
			"", "[Avatar]", "Number of Avatar:  0", "Triangles:  0", "Vertices:  0"}));
	UPrimitiveComponent* const Shirt = Editor->AddObject(Garment, MakeTriangle(0.0f));
	Editor->AddObject(Prop, MakeTriangle(0.0f));
	Tick(0.1);
	EXPECT_EQ(OverlayLines()[1], "Number of Complete Garment:  1");
	EXPECT_EQ(OverlayLines()[2], "Triangles:  1");
	EXPECT_EQ(OverlayLines()[3], "Vertices:  3");
	EXPECT_EQ(OverlayLines()[7], "Number of Avatar:  0");
	Editor->RemoveObject(Garment, Shirt);
	Tick(0.1);
	EXPECT_EQ(OverlayLines()[1], "Number of Complete Garment:  0");
	EXPECT_EQ(OverlayLines()[3], "Vertices:  0");
}

TEST_F(PreviewViewport, TheOverlayKeepsItsWidgetsWhileTheTextIsTheSame)
{
	Tick(0.1);
	const uint64 Before = Host::WidgetInvalidationCount();
	const TSharedRef<SWidget> First = Host::FindWidgetsOfType(Host::OverlayOf(*Widget), TEXT("STextBlock"))[0];
	TickFor(1.0);
	EXPECT_EQ(Host::FindWidgetsOfType(Host::OverlayOf(*Widget), TEXT("STextBlock"))[0], First);
	EXPECT_EQ(Host::WidgetInvalidationCount(), Before);
}

TEST_F(PreviewViewport, TextAndFeatureLevelStandInTheirCorners)
{
	const SOverlay& Overlay = static_cast<SOverlay&>(Host::OverlayOf(*Widget).Get());
	const int32 Last = Overlay.GetNumWidgets() - 1;
	const SOverlay::FOverlaySlot& Text = Overlay.GetSlot(Last - 1);
	EXPECT_EQ(Text.GetWidget()->GetType(), FName(TEXT("SVerticalBox")));
	EXPECT_EQ(Text.GetHorizontalAlignment(), HAlign_Left);
	EXPECT_EQ(Text.GetVerticalAlignment(), VAlign_Top);
	EXPECT_EQ(Text.GetPadding(), FMargin(10.0f, 40.0f, 10.0f, 10.0f));
	const SOverlay::FOverlaySlot& Level = Overlay.GetSlot(Last);
	EXPECT_EQ(Level.GetWidget()->GetType(), FName(TEXT("STextBlock")));
	EXPECT_EQ(Level.GetHorizontalAlignment(), HAlign_Right);
	EXPECT_EQ(Level.GetVerticalAlignment(), VAlign_Bottom);
	EXPECT_EQ(Level.GetPadding(), FMargin(5.0f));
}

TEST_F(PreviewViewport, DrawsNoTextWhenTheEditorIsGone)
{
	View->SetRealtime(true);
	Tick(0.1);
	const TSharedRef<FZEFTandemEditorViewportClient> Orphan = MakeShared<FZEFTandemEditorViewportClient>(
		Editor->GetPreviewScene().ToSharedRef(), Widget, TSharedPtr<IZEFTandemEditor>());
	Widget->PopulateOverlayText({FOverlayTextItem(FText::FromString(TEXT("kept")), TEXT("TextBlock.ShadowedText"))});
	FSceneViewFamily Family;
	const TUniquePtr<FSceneView> SceneView(Orphan->CalcSceneView(&Family));
	FCanvas Canvas(FIntPoint(1, 1));
	Orphan->DrawCanvas(Viewport(), *SceneView, Canvas);
	EXPECT_EQ(OverlayLines(), std::vector<std::string>{"kept"});
	EXPECT_FALSE(
		CatchAssertion([&] { Orphan->InputKey(FInputKeyEventArgs(&Viewport(), 0, EKeys::F, IE_Pressed)); }).empty());
}

TEST_F(PreviewViewport, AnEditedObjectAsksForAPicture)
{
	View->SetRealtime(false);
	Tick(0.1);
	EXPECT_FALSE(Host::NeedsRedraw(Viewport()));
	Editor->AddObject(Garment, MakeTriangle(0.0f))->PostEditChange();
	Tick(0.1);
	Editor->GetObjectComponents(Garment)[0]->PostEditChange();
	EXPECT_TRUE(Host::NeedsRedraw(Viewport()));
}

TEST_F(PreviewViewport, TheWorldFollowsTheFeatureLevelOfTheEditor)
{
	UWorld* const World = Editor->GetPreviewScene()->GetWorld();
	EXPECT_EQ(World->GetFeatureLevel(), GEditor->GetEditorWorldContext().World()->GetFeatureLevel());
	GEditor->SetPreviewPlatform(FPreviewPlatformInfo(ERHIFeatureLevel::ES3_1, true), false);
	EXPECT_EQ(World->GetFeatureLevel(), ERHIFeatureLevel::ES3_1);
	GEditor->SetPreviewPlatform(FPreviewPlatformInfo(), false);
	EXPECT_EQ(World->GetFeatureLevel(), ERHIFeatureLevel::SM5);
}

TEST_F(PreviewViewport, TicksItsWorldOnce)
{
	const double Before = Editor->GetPreviewScene()->GetWorld()->GetTimeSeconds();
	Tick(0.25);
	EXPECT_NEAR(Editor->GetPreviewScene()->GetWorld()->GetTimeSeconds(), Before + 0.25, 1e-6);
}
