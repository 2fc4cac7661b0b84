// SPDX-License-Identifier: MIT
#include "Components/DirectionalLightComponent.h"
#include "Components/SkyLightComponent.h"
#include "Engine/World.h"
#include "EngineFixture.h"
#include "Host/Scene.h"
#include "Host/ViewLook.h"
#include "PreviewScene.h"
#include "SceneView.h"

using namespace Host;

namespace
{

constexpr double HalfPixel = 0.5;  // what is left of the perspective in a parallel view
constexpr float Tolerance = 1e-4f; // of unit vectors and colours in 32 bits

/** The place of a point in a picture of 200 by 100, by the matrix that the renderer uses. */
FFloat2 PixelOf(const FCameraSnapshot& Camera, const FFloat3& P)
{
	const FClipMatrix M = ViewProjection(Camera, 2.0f, 10.0f, 1e6f);
	const float X = M[0] * P.X + M[4] * P.Y + M[8] * P.Z + M[12];
	const float Y = M[1] * P.X + M[5] * P.Y + M[9] * P.Z + M[13];
	const float W = M[3] * P.X + M[7] * P.Y + M[11] * P.Z + M[15];
	return {(X / W + 1.0f) * 100.0f, (1.0f - Y / W) * 50.0f};
}

FSceneView ViewOf(const FVector& Location, const FRotator& Rotation, double OrthoWidth)
{
	FSceneView View;
	View.ViewLocation = Location;
	View.ViewRotation = Rotation;
	View.bPerspective = OrthoWidth == 0.0;
	View.OrthoWidth = OrthoWidth;
	View.ViewSize = FIntPoint(200, 100);
	return View;
}

class ViewLook : public FEngineFixture
{
};

} // namespace

TEST_F(ViewLook, ThePictureAndTheModelAgreeOnWhereAPointIs)
{
	FSceneBounds Bounds;
	Bounds.Include({-20.0f, -20.0f, 0.0f});
	Bounds.Include({20.0f, 20.0f, 180.0f});
	for (const double OrthoWidth : {0.0, 400.0})
	{
		for (const FRotator& Rotation : {FRotator(-15.0, 180.0, 0.0), FRotator(-90.0, 0.0, 0.0)})
		{
			const FSceneView View = ViewOf(FVector(300.0, 20.0, 260.0), Rotation, OrthoWidth);
			const FCameraSnapshot Camera = CameraOf(View, Bounds);
			for (const FVector& Point :
				{FVector(0.0, 0.0, 90.0), FVector(20.0, -20.0, 180.0), FVector(-20.0, 20.0, 0.0)})
			{
				FVector2D Expected;
				if (!View.WorldToPixel(Point, Expected))
				{
					continue;
				}
				const FFloat2 Pixel = PixelOf(Camera, {float(Point.X), float(Point.Y), float(Point.Z)});
				EXPECT_NEAR(Pixel.X, Expected.X, HalfPixel) << OrthoWidth;
				EXPECT_NEAR(Pixel.Y, Expected.Y, HalfPixel) << OrthoWidth;
			}
		}
	}
}

TEST_F(ViewLook, TheKeyLightIsTheWorldsDirectionalLight)
{
	FPreviewScene Preview;
	Preview.SetLightDirection(FRotator(-30.0, 90.0, 0.0));
	Preview.SetLightBrightness(2.0f);
	Preview.SetSkyBrightness(0.5f);
	FSceneSnapshot Scene;
	LookAtScene(Scene, 0.0f, 180.0f, 45.0f, 1.0f);
	const FSceneSnapshot Before = Scene;
	ApplyWorldLook(Scene, *Preview.GetWorld());
	ASSERT_EQ(Scene.Lights.size(), Before.Lights.size());
	EXPECT_NEAR(Scene.Lights[0].Towards.Y, -std::cos(0.5235988f), Tolerance);
	EXPECT_NEAR(Scene.Lights[0].Towards.Z, 0.5f, Tolerance);
	EXPECT_NEAR(Scene.Lights[0].Color.X, 5.0f, Tolerance);
	EXPECT_NEAR(Scene.Lights[1].Towards.X, Before.Lights[1].Towards.X, Tolerance);
	EXPECT_NEAR(Scene.Surroundings.Sky.X, 0.5f * Before.Surroundings.Sky.X, Tolerance);
	EXPECT_TRUE(Scene.Surroundings.bFloor);
}

TEST_F(ViewLook, TheSurroundingsDecideOnFloorBackdropAndLamps)
{
	FPreviewScene Preview;
	FScene::Of(Preview.GetWorld())->SetSurroundings({false, 12.0f, false, 90.0f});
	FSceneSnapshot Scene;
	LookAtScene(Scene, 0.0f, 180.0f, 45.0f, 1.0f);
	const FSceneSnapshot Before = Scene;
	ApplyWorldLook(Scene, *Preview.GetWorld());
	EXPECT_FALSE(Scene.Surroundings.bFloor);
	EXPECT_EQ(Scene.Surroundings.FloorPoint.Z, Before.Surroundings.FloorPoint.Z - 12.0f);
	EXPECT_EQ(Scene.Surroundings.BackdropTop.X, Scene.Surroundings.BackdropBottom.X);
	EXPECT_NEAR(Scene.Lights[1].Towards.X, -Before.Lights[1].Towards.Y, Tolerance);
	EXPECT_NEAR(Scene.Lights[1].Towards.Y, Before.Lights[1].Towards.X, Tolerance);
}

TEST_F(ViewLook, ShowFlagsLeaveOutWhatTheySwitchOff)
{
	FSceneViewFamily Family;
	FSceneView View;
	View.Family = &Family;
	FRenderOptions Options;
	Options.Supersampling = 3;
	EXPECT_EQ(OptionsFor(View, Options).Supersampling, 3);
	EXPECT_TRUE(OptionsFor(View, Options).bShadows);
	Family.EngineShowFlags.DisableAdvancedFeatures();
	EXPECT_EQ(OptionsFor(View, Options).Supersampling, 1);
	EXPECT_FALSE(OptionsFor(View, Options).bShadows);
	EXPECT_FALSE(OptionsFor(View, Options).bAmbientOcclusion);
	Family.EngineShowFlags.EnableAdvancedFeatures();
	Family.EngineShowFlags.SetLighting(false);
	EXPECT_FALSE(OptionsFor(View, Options).bShadows);
}

TEST_F(ViewLook, AViewDecidesOnCameraLampsAndFloor)
{
	FPreviewScene Preview;
	FSceneViewFamily Family;
	Family.Scene = Preview.GetScene();
	FSceneView View = ViewOf(FVector(300.0, 0.0, 100.0), FRotator(0.0, 180.0, 0.0), 0.0);
	View.Family = &Family;
	FSceneBounds Bounds;
	Bounds.Include({-10.0f, -10.0f, -5.0f});
	Bounds.Include({10.0f, 10.0f, 50.0f});
	FSceneSnapshot Scene;
	LookThrough(Scene, View, Bounds);
	EXPECT_EQ(Scene.Camera.Location.X, 300.0f);
	EXPECT_EQ(Scene.Lights.size(), 4u);
	EXPECT_EQ(Scene.Surroundings.FloorPoint.Z, -5.0f);

	Family.EngineShowFlags.SetLighting(false);
	LookThrough(Scene, View, Bounds);
	EXPECT_TRUE(Scene.Lights.empty());
	EXPECT_EQ(Scene.Surroundings.Sky.Y, 1.0f);
	EXPECT_EQ(Scene.Surroundings.Ground.Y, 1.0f);
}
