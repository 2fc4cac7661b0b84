// SPDX-License-Identifier: MIT
#include "Host/SceneCamera.h"

#include "VectorMath.h"

#include <algorithm>
#include <cmath>

namespace Host
{
namespace
{

constexpr double RadiansPerDegree = 3.14159265358979323846 / 180.0;

/** Half the width of the view at distance 1. */
float HalfTangent(const FCameraSnapshot& Camera)
{
	return float(std::tan(double(Camera.HorizontalFov) * 0.5 * RadiansPerDegree));
}

bool IsFinite(const FFloat3& P)
{
	return std::isfinite(P.X) && std::isfinite(P.Y) && std::isfinite(P.Z);
}

FFloat3 Placed(const FPlacement& Placement, const FFloat3& P)
{
	return Placement.Origin + Placement.AxisX * P.X + Placement.AxisY * P.Y + Placement.AxisZ * P.Z;
}

FLightSnapshot Lamp(const FCameraSnapshot& Camera, float Azimuth, float Elevation, const FFloat3& Color, float Size)
{
	// Azimuth turns from the camera's own direction to its right; the lamps stand level with the scene's horizon.
	const float Yaw = std::atan2(-Camera.Forward.Y, -Camera.Forward.X) - Azimuth * float(RadiansPerDegree);
	const float Pitch = Elevation * float(RadiansPerDegree);
	FLightSnapshot Light;
	Light.Towards = {std::cos(Pitch) * std::cos(Yaw), std::cos(Pitch) * std::sin(Yaw), std::sin(Pitch)};
	Light.Color = Color;
	Light.Size = Size;
	return Light;
}

} // namespace

FFloat3 FSceneBounds::Center() const
{
	return IsEmpty() ? FFloat3() : (Min + Max) * 0.5f;
}

float FSceneBounds::Radius() const
{
	return IsEmpty() ? 0.0f : Length(Max - Min) * 0.5f;
}

void FSceneBounds::Include(const FFloat3& Point)
{
	Min = {std::min(Min.X, Point.X), std::min(Min.Y, Point.Y), std::min(Min.Z, Point.Z)};
	Max = {std::max(Max.X, Point.X), std::max(Max.Y, Point.Y), std::max(Max.Z, Point.Z)};
}

FSceneBounds BoundsOf(const std::vector<FObjectSnapshot>& Objects)
{
	FSceneBounds Bounds;
	for (const FObjectSnapshot& Object : Objects)
	{
		if (!Object.Mesh)
		{
			continue;
		}
		for (const FMeshSection& Section : Object.Mesh->Sections)
		{
			for (uint32_t Index : Section.Indices)
			{
				if (Index >= Object.Mesh->Positions.size())
				{
					continue;
				}
				const FFloat3 Point = Placed(Object.Placement, Object.Mesh->Positions[Index]);
				if (IsFinite(Point))
				{
					Bounds.Include(Point);
				}
			}
		}
	}
	return Bounds;
}

FCameraSnapshot ViewFrom(const FFloat3& Location, float Pitch, float Yaw, float Roll, float HorizontalFov)
{
	// In 64 bits, so that a half turn leaves nothing of the axis that it leaves.
	const auto Sine = [](float Degrees) { return float(std::sin(double(Degrees) * RadiansPerDegree)); };
	const auto Cosine = [](float Degrees) { return float(std::cos(double(Degrees) * RadiansPerDegree)); };
	const float SP = Sine(Pitch), CP = Cosine(Pitch);
	const float SY = Sine(Yaw), CY = Cosine(Yaw);
	const float SR = Sine(Roll), CR = Cosine(Roll);
	FCameraSnapshot Camera;
	Camera.Location = Location;
	Camera.Forward = {CP * CY, CP * SY, SP};
	// Without roll the right stays level; roll turns it about the forward axis, clockwise as the viewer sees it.
	const FFloat3 Level{-SY, CY, 0.0f};
	const FFloat3 Upright{-SP * CY, -SP * SY, CP};
	Camera.Right = Level * CR - Upright * SR;
	Camera.Up = Upright * CR + Level * SR;
	Camera.HorizontalFov = std::clamp(HorizontalFov, 5.0f, 170.0f);
	return Camera;
}

FCameraSnapshot FrameBounds(
	const FSceneBounds& Bounds, float Pitch, float Yaw, float HorizontalFov, float Aspect, float Margin)
{
	FCameraSnapshot Camera = ViewFrom(FFloat3(), Pitch, Yaw, 0.0f, HorizontalFov);
	const FFloat3 Center = Bounds.Center();
	constexpr float DistanceToNothing = 300.0f;
	float Distance = DistanceToNothing;
	if (!Bounds.IsEmpty())
	{
		const float TanX = HalfTangent(Camera);
		const float TanY = TanX / Aspect;
		// Every corner must lie inside the four side planes: its distance sideways over the tangent, less its own
		// depth.
		Distance = 0.1f;
		for (int Corner = 0; Corner < 8; ++Corner)
		{
			const FFloat3 Point{Corner & 1 ? Bounds.Max.X : Bounds.Min.X, Corner & 2 ? Bounds.Max.Y : Bounds.Min.Y,
				Corner & 4 ? Bounds.Max.Z : Bounds.Min.Z};
			const FFloat3 Offset = Point - Center;
			const float Sideways =
				std::max(std::fabs(Dot(Offset, Camera.Right)) / TanX, std::fabs(Dot(Offset, Camera.Up)) / TanY);
			Distance = std::max(Distance, Sideways * Margin - Dot(Offset, Camera.Forward));
		}
	}
	Camera.Location = Center - Camera.Forward * Distance;
	return Camera;
}

std::vector<FLightSnapshot> StudioLights(const FCameraSnapshot& Camera)
{
	return {
		Lamp(Camera, -42.0f, 48.0f, {2.50f, 2.40f, 2.24f}, 0.42f), // key
		Lamp(Camera, 58.0f, 18.0f, {0.42f, 0.48f, 0.58f}, 0.60f),  // fill
		Lamp(Camera, 148.0f, 38.0f, {2.10f, 2.16f, 2.35f}, 0.30f), // rim
		Lamp(Camera, -155.0f, 26.0f, {1.20f, 1.12f, 1.04f}, 0.30f),
	};
}

void PlaceFloor(FSurroundings& Surroundings, const FSceneBounds& Bounds)
{
	const FFloat3 Center = Bounds.Center();
	Surroundings.FloorPoint = {Center.X, Center.Y, Bounds.IsEmpty() ? 0.0f : Bounds.Min.Z};
	Surroundings.FloorRadius = std::max(Bounds.Radius() * 3.2f, 1.0f);
}

void LookAtScene(FSceneSnapshot& Scene, float Pitch, float Yaw, float HorizontalFov, float Aspect)
{
	LookAtSceneFrom(Scene, FrameBounds(BoundsOf(Scene.Objects), Pitch, Yaw, HorizontalFov, Aspect));
}

void LookAtSceneFrom(FSceneSnapshot& Scene, const FCameraSnapshot& Camera)
{
	LookAtSceneFrom(Scene, Camera, BoundsOf(Scene.Objects));
}

void LookAtSceneFrom(FSceneSnapshot& Scene, const FCameraSnapshot& Camera, const FSceneBounds& Bounds)
{
	Scene.Camera = Camera;
	Scene.Lights = StudioLights(Camera);
	PlaceFloor(Scene.Surroundings, Bounds);
}

FClipMatrix ViewProjection(const FCameraSnapshot& Camera, float Aspect, float Near, float Far)
{
	const float ScaleX = 1.0f / HalfTangent(Camera);
	const float ScaleY = ScaleX * Aspect;
	const float DepthScale = (Far + Near) / (Far - Near);
	const float DepthOffset = -2.0f * Far * Near / (Far - Near);
	const FFloat3 X = Camera.Right * ScaleX, Y = Camera.Up * ScaleY, W = Camera.Forward;
	const FFloat3& L = Camera.Location;
	return {X.X, Y.X, W.X * DepthScale, W.X, X.Y, Y.Y, W.Y * DepthScale, W.Y, X.Z, Y.Z, W.Z * DepthScale, W.Z,
		-Dot(X, L), -Dot(Y, L), -Dot(W, L) * DepthScale + DepthOffset, -Dot(W, L)};
}

FClipMatrix ParallelProjection(const FFloat3& Center, const FFloat3& Towards, float Extent)
{
	const FFloat3 Forward = Normalized(Towards) * -1.0f;
	const FFloat3 Helper = std::fabs(Forward.Z) > 0.9f ? FFloat3{1.0f, 0.0f, 0.0f} : FFloat3{0.0f, 0.0f, 1.0f};
	const FFloat3 Right = Normalized(Cross(Helper, Forward));
	const FFloat3 Up = Cross(Forward, Right);
	const float S = 1.0f / Extent;
	return {Right.X * S, Up.X * S, Forward.X * S, 0.0f, Right.Y * S, Up.Y * S, Forward.Y * S, 0.0f, Right.Z * S,
		Up.Z * S, Forward.Z * S, 0.0f, -Dot(Right, Center) * S, -Dot(Up, Center) * S, -Dot(Forward, Center) * S, 1.0f};
}

} // namespace Host
