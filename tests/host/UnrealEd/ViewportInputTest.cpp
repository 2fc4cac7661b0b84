// SPDX-License-Identifier: MIT
#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Editor.h"
#include "EditorViewportClient.h"
#include "Engine/World.h"
#include "EngineFixture.h"
#include "EngineUtils.h"
#include "GameFramework/Actor.h"
#include "Host/Screenshots.h"
#include "Host/ViewPainter.h"
#include "Host/Viewports.h"
#include "PreviewScene.h"
#include "SAssetEditorViewport.h"
#include "SceneView.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SOverlay.h"

namespace
{
struct FClick
{
	const UPrimitiveComponent* Component;
	FKey Key;
	EInputEvent Event;
	uint32 X;
	uint32 Y;
};

class FClickedClient : public FEditorViewportClient
{
public:
	using FEditorViewportClient::FEditorViewportClient;

	void ProcessClick(FSceneView&, HHitProxy* HitProxy, FKey Key, EInputEvent Event, uint32 X, uint32 Y) override
	{
		const HActor* const Actor = HitProxyCast<HActor>(HitProxy);
		Clicks.push_back({Actor ? Actor->PrimComponent.Get() : nullptr, Key, Event, X, Y});
	}

	std::vector<FClick> Clicks;
};

class SClickedViewport : public SAssetEditorViewport
{
public:
	SLATE_BEGIN_ARGS(SClickedViewport) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&, FPreviewScene* InScene)
	{
		Scene = InScene;
		SEditorViewport::Construct(SEditorViewport::FArguments().ViewportSize(FVector2D(200.0, 100.0)));
	}

protected:
	TSharedRef<FEditorViewportClient> MakeEditorViewportClient() override
	{
		return MakeShared<FClickedClient>(nullptr, Scene, SharedThis(static_cast<SEditorViewport*>(this)));
	}

private:
	FPreviewScene* Scene = nullptr;
};

class FPictureCounter : public Host::IViewPainter
{
public:
	FPictureCounter() { Host::SetViewPainter(this); }
	~FPictureCounter() override { Host::SetViewPainter(nullptr); }
	void Paint(FViewport&, const FSceneView&, const Host::FViewDrawing&) override { ++Pictures; }

	int Pictures = 0;
};

const FModifierKeysState NoKeys;
const FModifierKeysState Alt(false, false, false, false, true, false, false, false, false);
const FModifierKeysState Control(false, false, true, false, false, false, false, false, false);
constexpr double Tolerance = 1e-6; // of positions of some hundred cm that pass through sines

/** A view of 90 degrees, 200 by 100 pixels, from 100 cm on the origin along X. */
class ViewportInput : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Scene = std::make_unique<FPreviewScene>();
		Widget = SNew(SClickedViewport, Scene.get());
		Client = StaticCastSharedPtr<FClickedClient>(Widget->GetViewportClient());
		Client->SetViewLocation(FVector(-100.0, 0.0, 0.0));
	}
	void TearDown() override
	{
		Client.Reset();
		Widget.Reset();
		Scene.reset();
		FEngineFixture::TearDown();
	}

	FSceneViewport& Viewport() { return *Widget->GetSceneViewport(); }
	void Press(const FKey& Button, FIntPoint At, const FModifierKeysState& Keys = NoKeys)
	{
		EXPECT_TRUE(Host::SendMouseButton(Viewport(), Button, IE_Pressed, At, Keys));
	}
	void Release(const FKey& Button, FIntPoint At, const FModifierKeysState& Keys = NoKeys)
	{
		EXPECT_TRUE(Host::SendMouseButton(Viewport(), Button, IE_Released, At, Keys));
	}
	void Move(double Right, double Down, const FModifierKeysState& Keys = NoKeys)
	{
		Host::SendMouseMove(Viewport(), FIntPoint(100 + int(Right), 50 + int(Down)), FVector2D(Right, Down), Keys);
	}
	void Drag(const FKey& Button, double Right, double Down, const FModifierKeysState& Keys = NoKeys)
	{
		Press(Button, FIntPoint(100, 50), Keys);
		Move(Right, Down, Keys);
		Release(Button, FIntPoint(100 + int(Right), 50 + int(Down)), Keys);
	}

	/** A square of 2 * Half cm across the line of sight, X cm from the origin. */
	UDynamicMeshComponent* AddSquare(double X, double Half, double Y = 0.0)
	{
		AActor* const Actor = Scene->GetWorld()->SpawnActor<AActor>();
		UDynamicMeshComponent* const Component = NewObject<UDynamicMeshComponent>(Actor);
		UE::Geometry::FDynamicMesh3& Mesh = *Component->GetMesh();
		for (const double Z : {-Half, Half})
		{
			Mesh.AppendVertex(FVector(0.0, -Half, Z));
			Mesh.AppendVertex(FVector(0.0, Half, Z));
		}
		Mesh.AppendTriangle(0, 1, 2);
		Mesh.AppendTriangle(1, 3, 2);
		Component->NotifyMeshUpdated();
		Scene->AddComponent(Component, FTransform(FVector(X, Y, 0.0)));
		return Component;
	}

	std::unique_ptr<FPreviewScene> Scene;
	TSharedPtr<SClickedViewport> Widget;
	TSharedPtr<FClickedClient> Client;
};
} // namespace

TEST_F(ViewportInput, KnowsViewportsAmongWidgets)
{
	EXPECT_EQ(Host::AsEditorViewport(Widget.ToSharedRef()), Widget);
	EXPECT_FALSE(Host::AsEditorViewport(SNew(SBox)).IsValid());
	EXPECT_EQ(Host::OverlayOf(*Widget)->GetType(), FName(TEXT("SOverlay")));
}

TEST_F(ViewportInput, AClickTellsWhatIsNearestUnderThePointer)
{
	UDynamicMeshComponent* const Near = AddSquare(0.0, 10.0);
	UDynamicMeshComponent* const Far = AddSquare(50.0, 60.0);
	// At 100 cm, 200 pixels show 200 cm: the near square covers 10 pixels on each side of the middle.
	for (const auto& [X, Expected] : {std::pair<int, const UPrimitiveComponent*>(100, Near), {109, Near}, {111, Far},
			 {139, Far}, {141, nullptr}, {61, Far}, {59, nullptr}})
	{
		Client->Clicks.clear();
		Press(EKeys::LeftMouseButton, FIntPoint(X, 50));
		EXPECT_TRUE(Client->Clicks.empty());
		Release(EKeys::LeftMouseButton, FIntPoint(X, 50));
		ASSERT_EQ(Client->Clicks.size(), 1u) << X;
		EXPECT_EQ(Client->Clicks[0].Component, Expected) << X;
		EXPECT_EQ(Client->Clicks[0].Key, EKeys::LeftMouseButton);
		EXPECT_EQ(Client->Clicks[0].Event, IE_Released);
		EXPECT_EQ(Client->Clicks[0].X, uint32(X));
		EXPECT_EQ(Client->Clicks[0].Y, 50u);
	}
}

TEST_F(ViewportInput, AClickGoesThroughWhatIsHidden)
{
	UDynamicMeshComponent* const Near = AddSquare(0.0, 10.0);
	UDynamicMeshComponent* const Far = AddSquare(50.0, 10.0);
	Near->SetVisibility(false);
	Press(EKeys::LeftMouseButton, FIntPoint(100, 50));
	Release(EKeys::LeftMouseButton, FIntPoint(100, 50));
	EXPECT_EQ(Client->Clicks[0].Component, Far);
}

TEST_F(ViewportInput, AClickHitsTheTrianglesAndNotTheBoxAroundThem)
{
	AActor* const Actor = Scene->GetWorld()->SpawnActor<AActor>();
	UDynamicMeshComponent* const Component = NewObject<UDynamicMeshComponent>(Actor);
	UE::Geometry::FDynamicMesh3& Mesh = *Component->GetMesh();
	Mesh.AppendVertex(FVector(0.0, -40.0, -40.0));
	Mesh.AppendVertex(FVector(0.0, 40.0, -40.0));
	Mesh.AppendVertex(FVector(0.0, -40.0, 40.0));
	Mesh.AppendTriangle(0, 1, 2);
	Component->NotifyMeshUpdated();
	Scene->AddComponent(Component, FTransform::Identity);
	EXPECT_NE(Viewport().GetHitProxy(80, 60), nullptr);
	EXPECT_EQ(Viewport().GetHitProxy(120, 30), nullptr);
}

TEST_F(ViewportInput, HitsFollowTurnedAndScaledObjects)
{
	UDynamicMeshComponent* const Square = AddSquare(0.0, 10.0);
	Square->SetRelativeTransform(
		FTransform(FRotator(0.0, 0.0, 45.0).Quaternion(), FVector(0.0, 20.0, 0.0), FVector(1.0, 2.0, 2.0)));
	Client->Invalidate();
	// A square of 40 cm stands on its corner, 28.3 cm from its middle at (120, 50).
	EXPECT_NE(Viewport().GetHitProxy(147, 50), nullptr);
	EXPECT_EQ(Viewport().GetHitProxy(149, 50), nullptr);
	EXPECT_EQ(Viewport().GetHitProxy(137, 33), nullptr);
}

TEST_F(ViewportInput, NothingIsHitOutsideOfThePicture)
{
	AddSquare(0.0, 1000.0);
	EXPECT_NE(Viewport().GetHitProxy(0, 0), nullptr);
	EXPECT_NE(Viewport().GetHitProxy(199, 99), nullptr);
	EXPECT_EQ(Viewport().GetHitProxy(200, 50), nullptr);
	EXPECT_EQ(Viewport().GetHitProxy(50, -1), nullptr);
}

TEST_F(ViewportInput, AParallelViewHitsWhatLiesBehindItsPlane)
{
	UDynamicMeshComponent* const Square = AddSquare(-5000.0, 10.0);
	Client->SetViewportType(LVT_OrthoBack);
	Client->GetViewTransform().SetOrthoZoom(200.0);
	const HActor* const Hit = HitProxyCast<HActor>(Viewport().GetHitProxy(105, 50));
	ASSERT_NE(Hit, nullptr);
	EXPECT_EQ(Hit->PrimComponent.Get(), Square);
	EXPECT_EQ(Hit->Actor.Get(), Square->GetOwner());
}

TEST_F(ViewportInput, AHandThatShakesStillClicks)
{
	Press(EKeys::LeftMouseButton, FIntPoint(100, 50));
	Move(2.0, 2.0);
	Release(EKeys::LeftMouseButton, FIntPoint(102, 52));
	EXPECT_EQ(Client->Clicks.size(), 1u);
	EXPECT_EQ(Client->GetViewRotation(), FRotator(0.0, 0.0, 0.0));
}

TEST_F(ViewportInput, ADragIsNoClickAndLosesNoPixel)
{
	Client->bUsingOrbitCamera = true;
	Press(EKeys::LeftMouseButton, FIntPoint(100, 50));
	Move(3.0, 0.0);
	EXPECT_EQ(Client->GetViewRotation().Yaw, 0.0);
	Move(5.0, 0.0);
	Release(EKeys::LeftMouseButton, FIntPoint(108, 50));
	EXPECT_TRUE(Client->Clicks.empty());
	EXPECT_NEAR(Client->GetViewRotation().Yaw, 2.0, Tolerance);
}

TEST_F(ViewportInput, ADoubleClickIsOneEventWithoutAnotherClick)
{
	Press(EKeys::LeftMouseButton, FIntPoint(100, 50));
	Release(EKeys::LeftMouseButton, FIntPoint(100, 50));
	Host::SendMouseButton(Viewport(), EKeys::LeftMouseButton, IE_DoubleClick, FIntPoint(100, 50), NoKeys);
	Release(EKeys::LeftMouseButton, FIntPoint(100, 50));
	ASSERT_EQ(Client->Clicks.size(), 2u);
	EXPECT_EQ(Client->Clicks[0].Event, IE_Released);
	EXPECT_EQ(Client->Clicks[1].Event, IE_DoubleClick);
}

TEST_F(ViewportInput, TwoButtonsTogetherAreNoClick)
{
	Press(EKeys::LeftMouseButton, FIntPoint(100, 50));
	Press(EKeys::RightMouseButton, FIntPoint(100, 50));
	Release(EKeys::RightMouseButton, FIntPoint(100, 50));
	EXPECT_TRUE(Host::WishesOf(Viewport()).bCapturesMouse);
	Release(EKeys::LeftMouseButton, FIntPoint(100, 50));
	EXPECT_TRUE(Client->Clicks.empty());
	EXPECT_FALSE(Host::WishesOf(Viewport()).bCapturesMouse);
}

TEST_F(ViewportInput, WishesTheMouseWhileADragLasts)
{
	Client->bUsingOrbitCamera = true;
	Press(EKeys::RightMouseButton, FIntPoint(100, 50));
	Host::FViewportWishes Wishes = Host::WishesOf(Viewport());
	EXPECT_TRUE(Wishes.bCapturesMouse);
	EXPECT_FALSE(Wishes.bPinsPointer);
	Move(0.0, 20.0);
	Wishes = Host::WishesOf(Viewport());
	EXPECT_TRUE(Wishes.bPinsPointer);
	EXPECT_EQ(Wishes.Cursor, Host::EViewportCursor::Nearer);
	Release(EKeys::RightMouseButton, FIntPoint(100, 70));
	Wishes = Host::WishesOf(Viewport());
	EXPECT_FALSE(Wishes.bCapturesMouse);
	EXPECT_FALSE(Wishes.bPinsPointer);
	EXPECT_EQ(Wishes.Cursor, Host::EViewportCursor::Arrow);
}

TEST_F(ViewportInput, LosingTheKeyboardReleasesEverything)
{
	Client->bUsingOrbitCamera = true;
	Host::SetViewportFocus(Viewport(), true);
	Press(EKeys::LeftMouseButton, FIntPoint(100, 50), Control);
	Move(20.0, 0.0, Control);
	EXPECT_TRUE(Client->IsCtrlPressed());
	Host::SetViewportFocus(Viewport(), false);
	EXPECT_FALSE(Client->IsCtrlPressed());
	EXPECT_FALSE(Viewport().KeyState(EKeys::LeftMouseButton));
	EXPECT_FALSE(Host::WishesOf(Viewport()).bCapturesMouse);
	EXPECT_FALSE(Host::WishesOf(Viewport()).bPinsPointer);
	EXPECT_FALSE(Host::SendMouseButton(Viewport(), EKeys::LeftMouseButton, IE_Released, FIntPoint(120, 50), NoKeys));
	EXPECT_TRUE(Client->Clicks.empty());
}

TEST_F(ViewportInput, ModifierKeysCountFromAnyEvent)
{
	Host::SendMouseMove(Viewport(), FIntPoint(1, 1), FVector2D(1.0, 0.0), Control);
	EXPECT_TRUE(Viewport().KeyState(EKeys::LeftControl));
	EXPECT_FALSE(Viewport().KeyState(EKeys::RightControl));
	Host::SendMouseMove(Viewport(), FIntPoint(2, 1), FVector2D(1.0, 0.0), NoKeys);
	EXPECT_FALSE(Viewport().KeyState(EKeys::LeftControl));
	Host::SendViewportKey(Viewport(), EKeys::RightControl, IE_Pressed, Control);
	EXPECT_FALSE(Viewport().KeyState(EKeys::RightControl) && Viewport().KeyState(EKeys::LeftControl) &&
				 !Client->IsCtrlPressed());
	EXPECT_TRUE(Client->IsCtrlPressed());
}

TEST_F(ViewportInput, AnOrbitKeepsItsDistanceAndLooksAtItsPoint)
{
	Client->bUsingOrbitCamera = true;
	Drag(EKeys::LeftMouseButton, 360.0, 120.0);
	const FSceneView View = Host::ViewOf(Viewport());
	EXPECT_NEAR(View.ViewRotation.Yaw, 90.0, Tolerance);
	EXPECT_NEAR(View.ViewRotation.Pitch, -30.0, Tolerance);
	EXPECT_NEAR(View.ViewLocation.Size(), 100.0, Tolerance);
	EXPECT_NEAR((View.ViewRotation.Vector() | View.ViewLocation), -100.0, Tolerance);
	EXPECT_NEAR(Client->GetLookAtLocation().Size(), 0.0, Tolerance);
	Drag(EKeys::LeftMouseButton, 0.0, -4000.0);
	EXPECT_NEAR(Host::ViewOf(Viewport()).ViewRotation.Pitch, 89.0, Tolerance);
}

// The eye of an orbit follows from the point, the rotation and the distance; the location alone does not say it.
TEST_F(ViewportInput, AnOrbitIsShownFromItsOwnEye)
{
	Client->bUsingOrbitCamera = true;
	Client->SetViewLocation(FVector(512.0, 0.0, 512.0));
	Client->SetViewRotation(FRotator(-15.0, 180.0, 0.0));
	const double Distance = 512.0 * std::sqrt(2.0);
	const FSceneView View = Host::ViewOf(Viewport());
	EXPECT_NEAR(View.ViewLocation.X, Distance * std::cos(FMath::DegreesToRadians(15.0)), 1e-4);
	EXPECT_NEAR(View.ViewLocation.Z, Distance * std::sin(FMath::DegreesToRadians(15.0)), 1e-4);
	const FMatrix Orbit = Client->GetViewTransform().ComputeOrbitMatrix();
	EXPECT_TRUE(Orbit.Inverse().GetOrigin().Equals(View.ViewLocation, 1e-6));
	EXPECT_TRUE(Orbit.Inverse().Rotator().Equals(View.ViewRotation, 1e-3));
	EXPECT_EQ(Client->GetViewLocation(), FVector(512.0, 0.0, 512.0));
}

TEST_F(ViewportInput, AnOrbitGoesNearerWithTheWheelAndTheRightButtonButNeverThrough)
{
	Client->bUsingOrbitCamera = true;
	Host::SendMouseWheel(Viewport(), 1.0f, FIntPoint(100, 50), NoKeys);
	EXPECT_NEAR(Client->GetViewLocation().X, -90.0, Tolerance);
	Host::SendMouseWheel(Viewport(), -1.0f, FIntPoint(100, 50), NoKeys);
	EXPECT_NEAR(Client->GetViewLocation().X, -100.0, Tolerance);
	Host::SendMouseWheel(Viewport(), 0.5f, FIntPoint(100, 50), NoKeys);
	EXPECT_NEAR(Client->GetViewLocation().X, -100.0, Tolerance);
	Host::SendMouseWheel(Viewport(), 0.5f, FIntPoint(100, 50), NoKeys);
	EXPECT_NEAR(Client->GetViewLocation().X, -90.0, Tolerance);
	Drag(EKeys::RightMouseButton, 0.0, -20.0);
	EXPECT_NEAR(Client->GetViewLocation().X, -81.0, Tolerance);
	Drag(EKeys::RightMouseButton, 0.0, -100000.0);
	EXPECT_NEAR(Client->GetViewLocation().X, -1.0, Tolerance);
	EXPECT_EQ(Client->GetLookAtLocation(), FVector(0.0, 0.0, 0.0));
}

// 200 pixels show 200 cm at the point's distance.
TEST_F(ViewportInput, ADragWithTheMiddleButtonTakesTheSceneAlong)
{
	Client->bUsingOrbitCamera = true;
	Drag(EKeys::MiddleMouseButton, 30.0, 10.0);
	EXPECT_NEAR(Client->GetViewLocation().Y, -30.0, Tolerance);
	EXPECT_NEAR(Client->GetViewLocation().Z, 10.0, Tolerance);
	EXPECT_NEAR(Client->GetLookAtLocation().Y, -30.0, Tolerance);
	EXPECT_EQ(Client->GetViewRotation(), FRotator(0.0, 0.0, 0.0));
}

TEST_F(ViewportInput, AFreeCameraTurnsInItsPlace)
{
	Drag(EKeys::RightMouseButton, 40.0, -20.0);
	EXPECT_NEAR(Client->GetViewRotation().Yaw, 10.0, Tolerance);
	EXPECT_NEAR(Client->GetViewRotation().Pitch, 5.0, Tolerance);
	EXPECT_EQ(Client->GetViewLocation(), FVector(-100.0, 0.0, 0.0));
	Drag(EKeys::LeftMouseButton, -40.0, -20.0);
	EXPECT_NEAR(Client->GetViewRotation().Yaw, 0.0, Tolerance);
	EXPECT_NEAR(Client->GetViewLocation().X, -80.0, Tolerance);
	EXPECT_EQ(Client->GetViewLocation().Z, 0.0);
}

TEST_F(ViewportInput, AltMakesAFreeCameraOrbit)
{
	Drag(EKeys::LeftMouseButton, 360.0, 0.0, Alt);
	EXPECT_NEAR(Client->GetViewRotation().Yaw, 90.0, Tolerance);
	EXPECT_NEAR(Client->GetViewLocation().Y, -100.0, Tolerance);
	EXPECT_NEAR(Client->GetViewLocation().X, 0.0, Tolerance);
}

TEST_F(ViewportInput, FliesWhileTheRightButtonIsHeld)
{
	Host::SendViewportKey(Viewport(), EKeys::W, IE_Pressed, NoKeys);
	Tick(0.5);
	EXPECT_EQ(Client->GetViewLocation().X, -100.0);
	Press(EKeys::RightMouseButton, FIntPoint(100, 50));
	EXPECT_TRUE(Host::SendViewportKey(Viewport(), EKeys::W, IE_Repeat, NoKeys));
	Tick(0.5);
	EXPECT_NEAR(Client->GetViewLocation().X, -100.0 + 160.0, 1e-3);
	Host::SendMouseWheel(Viewport(), -1.0f, FIntPoint(100, 50), NoKeys);
	EXPECT_EQ(Client->GetCameraSpeedSetting(), 3);
	Host::SendViewportKey(Viewport(), EKeys::W, IE_Released, NoKeys);
	Host::SendViewportKey(Viewport(), EKeys::Q, IE_Pressed, NoKeys);
	Tick(1.0);
	EXPECT_NEAR(Client->GetViewLocation().Z, -100.0, 1e-3);
	Release(EKeys::RightMouseButton, FIntPoint(100, 50));
	EXPECT_TRUE(Client->Clicks.empty());
	Client->SetCameraSpeedSetting(99);
	EXPECT_EQ(Client->GetCameraSpeedSetting(), 8);
}

TEST_F(ViewportInput, ChangingTheCameraLeavesThePicture)
{
	Client->SetViewRotation(FRotator(-20.0, 30.0, 0.0));
	const FSceneView Before = Host::ViewOf(Viewport());
	Client->ToggleOrbitCamera(true);
	EXPECT_TRUE(Client->bUsingOrbitCamera);
	EXPECT_TRUE(Host::ViewOf(Viewport()).ViewLocation.Equals(Before.ViewLocation, 1e-6));
	Client->ToggleOrbitCamera(false);
	EXPECT_TRUE(Host::ViewOf(Viewport()).ViewLocation.Equals(Before.ViewLocation, 1e-6));
	EXPECT_EQ(Client->GetViewRotation(), FRotator(-20.0, 30.0, 0.0));
}

TEST_F(ViewportInput, AParallelViewLooksAlongItsAxisAndMoves)
{
	Client->SetViewportType(LVT_OrthoTop);
	Client->GetViewTransform().SetOrthoZoom(400.0);
	EXPECT_EQ(Host::ViewOf(Viewport()).ViewRotation, FRotator(-90.0, 0.0, 0.0));
	EXPECT_EQ(Host::ViewOf(Viewport()).OrthoWidth, 400.0);
	Drag(EKeys::RightMouseButton, 10.0, 0.0);
	EXPECT_NEAR(Client->GetViewLocation().Y, -20.0, Tolerance);
	Host::SendMouseWheel(Viewport(), 1.0f, FIntPoint(100, 50), NoKeys);
	EXPECT_NEAR(Client->GetViewTransform().GetOrthoZoom(), 360.0, Tolerance);
	Client->SetViewportType(LVT_Perspective);
	EXPECT_EQ(Client->GetViewLocation(), FVector(-100.0, 0.0, 0.0));
}

TEST_F(ViewportInput, ARealtimeViewIsPaintedOnlyWhenSomethingHasChanged)
{
	FPictureCounter Painter;
	Client->SetRealtime(true);
	TickFor(1.0);
	EXPECT_EQ(Painter.Pictures, 1);
	UDynamicMeshComponent* const Square = AddSquare(0.0, 10.0);
	Tick(0.1);
	EXPECT_EQ(Painter.Pictures, 2);
	Square->SetRelativeLocation(FVector(1.0, 0.0, 0.0));
	Tick(0.1);
	EXPECT_EQ(Painter.Pictures, 3);
	Client->SetViewLocation(FVector(0.0, 0.0, 1.0));
	Tick(0.1);
	EXPECT_EQ(Painter.Pictures, 4);
	GEditor->SelectComponent(Square, true, true);
	Tick(0.1);
	EXPECT_EQ(Painter.Pictures, 5);
	Scene->SetLightDirection(FRotator(-10.0, 0.0, 0.0));
	Tick(0.1);
	EXPECT_EQ(Painter.Pictures, 6);
	Client->Invalidate();
	TickFor(1.0);
	EXPECT_EQ(Painter.Pictures, 7);
	GEditor->SelectNone(false, false);
}

TEST_F(ViewportInput, ResizingAsksForAPictureOnlyWhenTheSizeDiffers)
{
	Tick(0.1);
	EXPECT_FALSE(Host::NeedsRedraw(Viewport()));
	Host::ResizeViewport(Viewport(), FIntPoint(200, 100));
	EXPECT_FALSE(Host::NeedsRedraw(Viewport()));
	Host::ResizeViewport(Viewport(), FIntPoint(300, 100));
	EXPECT_TRUE(Host::NeedsRedraw(Viewport()));
	Tick(0.1);
	EXPECT_EQ(Host::ViewOf(Viewport()).ViewSize, FIntPoint(300, 100));
	Host::ResizeViewport(Viewport(), FIntPoint(-5, 0));
	EXPECT_EQ(Viewport().GetSizeXY(), FIntPoint(0, 0));
}

TEST_F(ViewportInput, AHiddenViewWaitsUntilItIsSeen)
{
	FPictureCounter Painter;
	Widget->SetVisibility(EVisibility::Collapsed);
	Tick(0.1);
	EXPECT_FALSE(Host::NeedsRedraw(Viewport()));
	EXPECT_EQ(Painter.Pictures, 0);
	Widget->SetVisibility(EVisibility::Visible);
	Tick(0.1);
	EXPECT_EQ(Painter.Pictures, 1);
	const TSharedRef<SBox> Around = SNew(SBox)[Widget.ToSharedRef()];
	EXPECT_TRUE(Widget->IsVisible());
	Around->SetVisibility(EVisibility::Hidden);
	EXPECT_FALSE(Widget->IsVisible());
}

TEST_F(ViewportInput, RealtimeOverridesStandAboveTheSetting)
{
	const FText Dialog = FText::FromString(TEXT("Dialog"));
	const FText Battery = FText::FromString(TEXT("Battery"));
	Client->SetRealtime(true);
	Client->AddRealtimeOverride(false, Dialog);
	EXPECT_FALSE(Client->IsRealtime());
	Client->AddRealtimeOverride(true, Battery);
	EXPECT_TRUE(Client->IsRealtime());
	Client->RemoveRealtimeOverride(Battery);
	EXPECT_FALSE(Client->IsRealtime());
	EXPECT_TRUE(Client->HasRealtimeOverride(Dialog));
	Client->SetRealtime(false);
	Client->RemoveRealtimeOverride(Dialog);
	EXPECT_FALSE(Client->IsRealtime());
	EXPECT_FALSE(Client->HasRealtimeOverride(Dialog));
	Client->RemoveRealtimeOverride(Dialog, false);
}

TEST_F(ViewportInput, KeysOfTheContextChangeTheViewUnlessTheClientUsesThem)
{
	const auto Key = [this](const FKey& InKey, const FModifierKeysState& Keys)
	{ return Widget->OnKeyDown(FGeometry(), FKeyEvent(InKey, Keys, 0, false, 0, 0)).IsEventHandled(); };
	EXPECT_TRUE(Key(EKeys::J, Alt));
	EXPECT_EQ(Client->GetViewportType(), LVT_OrthoTop);
	EXPECT_EQ(Client->GetViewMode(), VMI_BrushWireframe);
	EXPECT_TRUE(Client->EngineShowFlags.Wireframe);
	EXPECT_TRUE(Key(EKeys::G, Alt));
	EXPECT_EQ(Client->GetViewportType(), LVT_Perspective);
	EXPECT_EQ(Client->GetViewMode(), VMI_Lit);
	EXPECT_TRUE(Key(EKeys::Three, Alt));
	EXPECT_EQ(Client->GetViewMode(), VMI_Unlit);
	EXPECT_FALSE(Client->EngineShowFlags.Lighting);
	EXPECT_TRUE(Key(EKeys::Four, Alt));
	EXPECT_TRUE(Client->EngineShowFlags.Lighting);
	EXPECT_TRUE(Key(EKeys::R, Control));
	EXPECT_TRUE(Client->IsRealtime());
	EXPECT_FALSE(Key(EKeys::X, NoKeys));
}

TEST_F(ViewportInput, SelectedComponentsLookSelectedUnlessSomebodySaysOtherwise)
{
	UDynamicMeshComponent* const Square = AddSquare(0.0, 10.0);
	EXPECT_FALSE(Square->ShouldRenderSelected());
	GEditor->SelectComponent(Square, true, true);
	EXPECT_TRUE(Square->IsComponentIndividuallySelected());
	EXPECT_TRUE(Square->ShouldRenderSelected());
	Square->SelectionOverrideDelegate.BindLambda([](const UPrimitiveComponent*) { return false; });
	EXPECT_FALSE(Square->ShouldRenderSelected());
	Square->SelectionOverrideDelegate.Unbind();
	GEditor->SelectNone(true, true);
	EXPECT_FALSE(Square->ShouldRenderSelected());
}

TEST_F(ViewportInput, AScreenshotGoesToTheNextFreeFile)
{
	class FTaker : public Host::IScreenshotTaker
	{
	public:
		bool TakeScreenshot(FViewport&, const FString& File, FString& OutReason) override
		{
			Files.Add(File);
			OutReason = TEXT("the disk is full");
			return false;
		}
		TArray<FString> Files;
	};
	EXPECT_FALSE(Client->InputTakeScreenshot(&Viewport(), EKeys::F8, IE_Pressed));
	FTaker Taker;
	Host::SetScreenshotTaker(&Taker);
	EXPECT_TRUE(Client->InputTakeScreenshot(&Viewport(), EKeys::F9, IE_Pressed));
	EXPECT_TRUE(Client->InputTakeScreenshot(&Viewport(), EKeys::F9, IE_Released));
	Host::SetScreenshotTaker(nullptr);
	ASSERT_EQ(Taker.Files.Num(), 1);
	EXPECT_TRUE(Taker.Files[0].EndsWith(TEXT("Saved/Screenshots/Screenshot00000.png")));
	EXPECT_TRUE(Client->InputTakeScreenshot(&Viewport(), EKeys::F9, IE_Pressed));
}
