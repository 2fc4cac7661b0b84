// SPDX-License-Identifier: MIT
#include "Host/SceneCamera.h"
#include "render/SceneShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Host;

namespace
{

void ExpectVector(const FFloat3& Actual, float X, float Y, float Z)
{
	constexpr float Tolerance = 1e-5f; // of sines and cosines in 32 bits
	EXPECT_NEAR(Actual.X, X, Tolerance);
	EXPECT_NEAR(Actual.Y, Y, Tolerance);
	EXPECT_NEAR(Actual.Z, Z, Tolerance);
}

/** Where a point comes to lie: x to the right and y up, -1..1 inside the picture, and z from near to far. */
FFloat3 OnScreen(const FClipMatrix& M, const FFloat3& P)
{
	const auto Row = [&](int Index) {
		return M[size_t(Index)] * P.X + M[size_t(Index) + 4] * P.Y + M[size_t(Index) + 8] * P.Z + M[size_t(Index) + 12];
	};
	return {Row(0) / Row(3), Row(1) / Row(3), Row(2) / Row(3)};
}

} // namespace

TEST(SceneCamera, LooksAlongXWithYToTheRightWhenNothingIsTurned)
{
	const FCameraSnapshot Camera = ViewFrom({1.0f, 2.0f, 3.0f}, 0.0f, 0.0f, 0.0f, 60.0f);

	ExpectVector(Camera.Location, 1.0f, 2.0f, 3.0f);
	ExpectVector(Camera.Forward, 1.0f, 0.0f, 0.0f);
	ExpectVector(Camera.Right, 0.0f, 1.0f, 0.0f);
	ExpectVector(Camera.Up, 0.0f, 0.0f, 1.0f);
}

TEST(SceneCamera, TurnsAsTheEnginesRotatorsDo)
{
	const FCameraSnapshot Yawed = ViewFrom({}, 0.0f, 90.0f, 0.0f, 60.0f);
	const FCameraSnapshot Pitched = ViewFrom({}, 90.0f, 0.0f, 0.0f, 60.0f);
	const FCameraSnapshot Rolled = ViewFrom({}, 0.0f, 0.0f, 90.0f, 60.0f);

	ExpectVector(Yawed.Forward, 0.0f, 1.0f, 0.0f);
	ExpectVector(Yawed.Right, -1.0f, 0.0f, 0.0f);
	ExpectVector(Pitched.Forward, 0.0f, 0.0f, 1.0f);
	ExpectVector(Pitched.Up, -1.0f, 0.0f, 0.0f);
	ExpectVector(Rolled.Right, 0.0f, 0.0f, -1.0f);
	ExpectVector(Rolled.Up, 0.0f, 1.0f, 0.0f);
}

TEST(SceneCamera, ProjectsRightToTheRightAndFarBehindNear)
{
	const FCameraSnapshot Camera = ViewFrom({}, 0.0f, 0.0f, 0.0f, 90.0f);
	const FClipMatrix Matrix = ViewProjection(Camera, 2.0f, 1.0f, 100.0f);

	ExpectVector(OnScreen(Matrix, {10.0f, 10.0f, 5.0f}), 1.0f, 1.0f, OnScreen(Matrix, {10.0f, 0.0f, 0.0f}).Z);
	ExpectVector(OnScreen(Matrix, {1.0f, 0.0f, 0.0f}), 0.0f, 0.0f, -1.0f);
	ExpectVector(OnScreen(Matrix, {100.0f, 0.0f, 0.0f}), 0.0f, 0.0f, 1.0f);
}

TEST(SceneCamera, FramesEveryCornerOfABox)
{
	FSceneBounds Bounds;
	Bounds.Include({-30.0f, -80.0f, 0.0f});
	Bounds.Include({20.0f, 90.0f, 180.0f});
	for (float Aspect : {0.5f, 1.0f, 2.0f})
	{
		for (float Yaw : {0.0f, 45.0f, 180.0f, 205.0f})
		{
			const FCameraSnapshot Camera = FrameBounds(Bounds, -10.0f, Yaw, 30.0f, Aspect, 1.0f);
			const FClipMatrix Matrix = ViewProjection(Camera, Aspect, 1.0f, 10000.0f);
			float Largest = 0.0f;
			for (int Corner = 0; Corner < 8; ++Corner)
			{
				const FFloat3 P = OnScreen(
					Matrix, {Corner & 1 ? Bounds.Max.X : Bounds.Min.X, Corner & 2 ? Bounds.Max.Y : Bounds.Min.Y,
								Corner & 4 ? Bounds.Max.Z : Bounds.Min.Z});
				Largest = std::max({Largest, std::fabs(P.X), std::fabs(P.Y)});
			}
			EXPECT_NEAR(Largest, 1.0f, 1e-3f) << Aspect << ' ' << Yaw;
		}
	}
}

TEST(SceneCamera, LooksAtTheOriginWhenThereIsNothing)
{
	const FCameraSnapshot Camera = FrameBounds(FSceneBounds(), 0.0f, 180.0f, 30.0f, 1.0f);

	ExpectVector(Camera.Location, 300.0f, 0.0f, 0.0f);
}

TEST(SceneCamera, MeasuresOnlyVerticesThatTrianglesUse)
{
	auto Mesh = std::make_shared<FMeshSnapshot>();
	Mesh->Positions = {
		{0, 0, 0}, {1, 0, 0}, {0, 2, 0}, {500, 500, 500}, {std::numeric_limits<float>::quiet_NaN(), 0, 0}};
	Mesh->Sections.push_back({0, {0, 1, 2, 4, 7, 0}});
	FObjectSnapshot Object;
	Object.Mesh = Mesh;
	Object.Placement.AxisX = {3.0f, 0.0f, 0.0f};
	Object.Placement.Origin = {10.0f, 20.0f, 30.0f};

	const FSceneBounds Bounds = BoundsOf({Object, FObjectSnapshot()});

	ExpectVector(Bounds.Min, 10.0f, 20.0f, 30.0f);
	ExpectVector(Bounds.Max, 13.0f, 22.0f, 30.0f);
}

TEST(SceneCamera, LightsFromTheUpperLeftOfTheViewFirst)
{
	for (float Yaw : {0.0f, 90.0f, 200.0f})
	{
		const FCameraSnapshot Camera = ViewFrom({}, -20.0f, Yaw, 0.0f, 45.0f);
		const FLightSnapshot Key = StudioLights(Camera).front();
		const auto Along = [&](const FFloat3& Axis)
		{ return Key.Towards.X * Axis.X + Key.Towards.Y * Axis.Y + Key.Towards.Z * Axis.Z; };
		EXPECT_LT(Along(Camera.Right), -0.3f) << Yaw;
		EXPECT_GT(Along(Camera.Up), 0.3f) << Yaw;
		EXPECT_LT(Along(Camera.Forward), 0.0f) << Yaw;
	}
}

TEST(SceneCamera, PutsTheFloorUnderTheScene)
{
	FSceneSnapshot Scene =
		SceneShapes::SceneOf({SceneShapes::Placed(SceneShapes::Ball(10.0f), {}, {5.0f, 6.0f, 7.0f})});

	LookAtScene(Scene, -5.0f, 0.0f, 30.0f, 1.5f);

	EXPECT_NEAR(Scene.Surroundings.FloorPoint.Z, -3.0f, 1e-4f);
	EXPECT_NEAR(Scene.Surroundings.FloorPoint.X, 5.0f, 1e-4f);
	EXPECT_EQ(Scene.Lights.size(), 4u);
}
