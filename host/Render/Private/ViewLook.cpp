// SPDX-License-Identifier: MIT
#include "Host/ViewLook.h"

#include "VectorMath.h"

#include "Components/DirectionalLightComponent.h"
#include "Components/SkyLightComponent.h"
#include "Engine/World.h"
#include "Host/Scene.h"
#include "SceneView.h"
#include "Templates/Casts.h"

#include <cmath>

namespace Host
{
namespace
{

// Narrow enough that a figure's front and back differ by less than a pixel in width.
constexpr double ParallelFov = 0.5; // degrees
constexpr double RadiansPerDegree = 3.14159265358979323846 / 180.0;

// What a light of intensity 1 has in the studio.
constexpr float KeyStrength = 2.5f;

FFloat3 ToFloats(const FVector& V)
{
	return {float(V.X), float(V.Y), float(V.Z)};
}

FFloat3 Turned(const FFloat3& V, float Degrees)
{
	const float Sine = std::sin(Degrees * float(RadiansPerDegree));
	const float Cosine = std::cos(Degrees * float(RadiansPerDegree));
	return {V.X * Cosine - V.Y * Sine, V.X * Sine + V.Y * Cosine, V.Z};
}

} // namespace

FCameraSnapshot CameraOf(const FSceneView& View, const FSceneBounds& Bounds)
{
	const FRotator& Rotation = View.ViewRotation;
	FCameraSnapshot Camera = ViewFrom(
		ToFloats(View.ViewLocation), float(Rotation.Pitch), float(Rotation.Yaw), float(Rotation.Roll), View.FOV);
	if (View.bPerspective)
	{
		return Camera;
	}
	const double Distance = View.OrthoWidth * 0.5 / std::tan(ParallelFov * 0.5 * RadiansPerDegree);
	const float Depth = Dot(Bounds.Center() - Camera.Location, Camera.Forward);
	Camera.Location = Camera.Location + Camera.Forward * (Depth - float(Distance));
	Camera.HorizontalFov = float(ParallelFov);
	return Camera;
}

void ApplyWorldLook(FSceneSnapshot& Scene, const UWorld& World)
{
	const FScene* const WorldScene = FScene::Of(&World);
	if (!WorldScene)
	{
		return;
	}
	const FSceneSurroundings& Surroundings = WorldScene->GetSurroundings();
	for (size_t Index = 1; Index < Scene.Lights.size(); ++Index)
	{
		Scene.Lights[Index].Towards = Turned(Scene.Lights[Index].Towards, Surroundings.SkyRotation);
	}
	bool bKey = false;
	for (const ULightComponentBase* const Light : WorldScene->GetLights())
	{
		const FLinearColor Color = Light->GetLightColor();
		const FFloat3 Strength =
			FFloat3{Color.R, Color.G, Color.B} * (Light->bAffectsWorld && Light->IsVisible() ? Light->Intensity : 0.0f);
		if (!bKey && Light->IsA(UDirectionalLightComponent::StaticClass()) && !Scene.Lights.empty())
		{
			bKey = true;
			Scene.Lights.front().Towards =
				ToFloats(Light->GetComponentTransform().GetRotation().RotateVector(FVector(-1.0, 0.0, 0.0)));
			Scene.Lights.front().Color = Strength * KeyStrength;
		}
		else if (Light->IsA(USkyLightComponent::StaticClass()))
		{
			FSurroundings& Around = Scene.Surroundings;
			Around.Sky = {Around.Sky.X * Strength.X, Around.Sky.Y * Strength.Y, Around.Sky.Z * Strength.Z};
			Around.Ground = {Around.Ground.X * Strength.X, Around.Ground.Y * Strength.Y, Around.Ground.Z * Strength.Z};
		}
	}
	Scene.Surroundings.bFloor = Scene.Surroundings.bFloor && Surroundings.bFloor;
	Scene.Surroundings.FloorPoint.Z -= Surroundings.FloorOffset;
	if (!Surroundings.bBackdrop)
	{
		// The plain ground that an editor shows without an environment.
		Scene.Surroundings.BackdropTop = {0.02f, 0.02f, 0.02f};
		Scene.Surroundings.BackdropBottom = {0.02f, 0.02f, 0.02f};
	}
}

void LookThrough(FSceneSnapshot& Scene, const FSceneView& View, const FSceneBounds& Bounds)
{
	Scene.Camera = CameraOf(View, Bounds);
	Scene.Lights = StudioLights(Scene.Camera);
	PlaceFloor(Scene.Surroundings, Bounds);
	if (!View.Family)
	{
		return;
	}
	if (View.Family->Scene)
	{
		ApplyWorldLook(Scene, *View.Family->Scene->GetWorld());
	}
	if (!View.Family->EngineShowFlags.Lighting)
	{
		Scene.Lights.clear();
		Scene.Surroundings.Sky = Scene.Surroundings.Ground = {1.0f, 1.0f, 1.0f};
	}
}

FRenderOptions OptionsFor(const FSceneView& View, const FRenderOptions& Options)
{
	FRenderOptions Result = Options;
	if (View.Family)
	{
		const FEngineShowFlags& Flags = View.Family->EngineShowFlags;
		Result.bShadows = Result.bShadows && Flags.DynamicShadows && Flags.Lighting;
		Result.bAmbientOcclusion = Result.bAmbientOcclusion && Flags.AmbientOcclusion && Flags.Lighting;
		Result.Supersampling = Flags.AntiAliasing ? Result.Supersampling : 1;
	}
	return Result;
}

} // namespace Host
