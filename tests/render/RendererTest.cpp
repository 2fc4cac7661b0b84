// SPDX-License-Identifier: MIT
#include "render/RenderFixture.h"
#include "render/SceneShapes.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Host;
using namespace SceneShapes;

namespace
{

float Brightness(const FFloat3& Color)
{
	return (Color.X + Color.Y + Color.Z) / 3.0f;
}

FMaterialSnapshot Plain(float Red, float Green, float Blue)
{
	FMaterialSnapshot Material;
	Material.BaseColor = {Red, Green, Blue, 1.0f};
	Material.Roughness = 0.8f;
	return Material;
}

FMaterialSnapshot Glassy(float Red, float Green, float Blue, float Opacity)
{
	FMaterialSnapshot Material = Plain(Red, Green, Blue);
	Material.Blend = EBlend::Translucent;
	Material.Opacity = Opacity;
	Material.Specular = 0.0f;
	return Material;
}

} // namespace

class Renderer : public RenderFixture
{
};

TEST_F(Renderer, DrawsTheSamePictureTwice)
{
	FSceneSnapshot Scene = SceneOf({Placed(Ball(10.0f), Plain(0.5f, 0.2f, 0.2f)),
		Placed(Square(12.0f), Glassy(0.1f, 0.2f, 0.9f, 0.5f), {-15.0f, 4.0f, 0.0f})});
	Scene.Surroundings.bFloor = true;
	PlaceFloor(Scene.Surroundings, BoundsOf(Scene.Objects));

	const FImage First = Draw(Scene);
	const FImage Second = Draw(Scene);

	EXPECT_EQ(First.Pixels, Second.Pixels);
}

TEST_F(Renderer, DrawsTheSamePictureInAnotherContext)
{
	const FSceneSnapshot Scene = SceneOf({Placed(Ball(10.0f), Plain(0.5f, 0.2f, 0.2f))});
	const FImage First = Draw(Scene);

	std::string Error;
	const std::unique_ptr<FSceneRenderer> Other = FSceneRenderer::Create(Error);
	ASSERT_NE(Other, nullptr) << Error;
	const FRenderResult Second = Other->Render(Scene, First.Width, First.Height);

	ASSERT_TRUE(Second.IsOk()) << Second.Error;
	EXPECT_EQ(First.Pixels, Second.Image.Pixels);
}

TEST_F(Renderer, GivesAnOpaquePictureOfTheSizeAskedFor)
{
	const FRenderResult Result = RendererHere().Render(SceneOf({Placed(Ball(10.0f), Plain(0.5f, 0.5f, 0.5f))}), 83, 41);

	ASSERT_TRUE(Result.IsOk()) << Result.Error;
	EXPECT_EQ(Result.Image.Width, 83);
	EXPECT_EQ(Result.Image.Height, 41);
	ASSERT_EQ(Result.Image.Pixels.size(), 83u * 41u * 4u);
	for (int Y = 0; Y < 41; ++Y)
	{
		for (int X = 0; X < 83; ++X)
		{
			ASSERT_EQ(Result.Image.At(X, Y)[3], 255) << X << ' ' << Y;
		}
	}
}

TEST_F(Renderer, RefusesASizeThatNoPictureHas)
{
	const FSceneSnapshot Scene = SceneOf({Placed(Ball(10.0f), Plain(0.5f, 0.5f, 0.5f))});

	const FRenderResult Nothing = RendererHere().Render(Scene, 0, 100);
	const FRenderResult Huge = RendererHere().Render(Scene, 100, 100000);

	EXPECT_EQ(Nothing.Error, "The picture's size 0 x 100 is outside 1..8192");
	EXPECT_EQ(Huge.Error, "The picture's size 100 x 100000 is outside 1..8192");
	EXPECT_TRUE(Nothing.Image.Pixels.empty());
}

TEST_F(Renderer, DrawsTheBackdropAloneForAnEmptyScene)
{
	FSceneSnapshot Scene = SceneOf({});

	const FImage Image = Draw(Scene);

	const FFloat3 Top = MeanColor(Image, 0.4f, 0.0f, 0.6f, 0.1f);
	const FFloat3 Bottom = MeanColor(Image, 0.4f, 0.9f, 0.6f, 1.0f);
	EXPECT_LT(Brightness(Top), Brightness(Bottom) - 20.0f);
}

TEST_F(Renderer, LeavesWhatNothingCoversTransparentWithoutBackdrop)
{
	FRenderOptions Options = SmallOptions();
	Options.bBackdrop = false;

	const FImage Image = Draw(SceneOf({Placed(Ball(10.0f), Plain(0.5f, 0.5f, 0.5f))}), Options);

	EXPECT_EQ(Image.At(1, 1)[3], 0);
	EXPECT_EQ(Image.At(Image.Width / 2, Image.Height / 2)[3], 255);
}

// The engine's axes are left-handed: looking along +X with Z up, +Y is to the right.
TEST_F(Renderer, ShowsPlusYToTheRightAndPlusZUp)
{
	FSceneSnapshot Scene = SceneOf({Placed(Square(10.0f), Plain(0.9f, 0.1f, 0.1f), {0.0f, -12.0f, 0.0f}),
		Placed(Square(10.0f), Plain(0.1f, 0.1f, 0.9f), {0.0f, 12.0f, 0.0f}),
		Placed(Square(10.0f), Plain(0.1f, 0.9f, 0.1f), {0.0f, 0.0f, 24.0f})});

	const FImage Image = Draw(Scene);

	const FFloat3 Left = MeanColor(Image, 0.2f, 0.65f, 0.35f, 0.8f);
	const FFloat3 Right = MeanColor(Image, 0.65f, 0.65f, 0.8f, 0.8f);
	const FFloat3 Above = MeanColor(Image, 0.45f, 0.2f, 0.55f, 0.3f);
	EXPECT_GT(Left.X, Left.Z + 50.0f);
	EXPECT_GT(Right.Z, Right.X + 50.0f);
	EXPECT_GT(Above.Y, Above.X + 50.0f);
}

TEST_F(Renderer, ShowsTheFirstRowOfATextureAtTheTopAndItsFirstColumnAtTheLeft)
{
	FMaterialSnapshot Material = Plain(1.0f, 1.0f, 1.0f);
	// The corner at U = 0, V = 0 is red, the one at U = 1, V = 0 green, the lower half blue.
	Material.Map(ESurfaceChannel::BaseColor).Texture = Texture8(64, 64,
		[](int X, int Y) {
			return Y >= 32 ? FFloat4{0.1f, 0.1f, 1, 1} : X < 32 ? FFloat4{1, 0.1f, 0.1f, 1} : FFloat4{0.1f, 1, 0.1f, 1};
		});

	const FImage Image = Draw(SceneOf({Placed(Square(10.0f), Material)}));

	const FFloat3 TopLeft = MeanColor(Image, 0.2f, 0.2f, 0.35f, 0.35f);
	const FFloat3 TopRight = MeanColor(Image, 0.65f, 0.2f, 0.8f, 0.35f);
	const FFloat3 Below = MeanColor(Image, 0.2f, 0.65f, 0.8f, 0.8f);
	EXPECT_GT(TopLeft.X, TopLeft.Y + 60.0f);
	EXPECT_GT(TopRight.Y, TopRight.X + 60.0f);
	EXPECT_GT(Below.Z, Below.X + 60.0f);
}

TEST_F(Renderer, LightsBothSidesOfCloth)
{
	FSceneSnapshot Front = SceneOf({Placed(Square(10.0f), Plain(0.6f, 0.6f, 0.6f))});
	FSceneSnapshot Back = Front;
	auto Turned = std::make_shared<FMeshSnapshot>(*Front.Objects[0].Mesh);
	for (FFloat3& Normal : Turned->Normals)
	{
		Normal.X = 1.0f;
	}
	Back.Objects[0].Mesh = Turned;

	const FFloat3 FrontColor = MeanColor(Draw(Front), 0.4f, 0.4f, 0.6f, 0.6f);
	const FFloat3 BackColor = MeanColor(Draw(Back), 0.4f, 0.4f, 0.6f, 0.6f);

	EXPECT_NEAR(Brightness(BackColor), Brightness(FrontColor), 1.0f);
	EXPECT_GT(Brightness(BackColor), 120.0f);
}

TEST_F(Renderer, HidesTheSideThatTheNormalsTurnAwayFromOnlyWhenAskedTo)
{
	FMaterialSnapshot OneSided = Plain(0.9f, 0.1f, 0.1f);
	OneSided.bTwoSided = false;
	FSceneSnapshot Scene = SceneOf({Placed(Square(10.0f), OneSided)});
	const FFloat3 Front = MeanColor(Draw(Scene), 0.4f, 0.4f, 0.6f, 0.6f);
	Scene.Camera = ViewFrom({-Scene.Camera.Location.X, 0.0f, 0.0f}, 0.0f, 180.0f, 0.0f, Scene.Camera.HorizontalFov);
	const FFloat3 Behind = MeanColor(Draw(Scene), 0.4f, 0.4f, 0.6f, 0.6f);

	EXPECT_GT(Front.X, Front.Y + 60.0f);
	EXPECT_NEAR(Behind.X, Behind.Y, 10.0f); // the grey backdrop
}

TEST_F(Renderer, DrawsTheDefaultMaterialForASlotThatIsNotThere)
{
	FSceneSnapshot Scene = SceneOf({Placed(Square(10.0f), Plain(0.9f, 0.1f, 0.1f))});
	auto Mesh = std::make_shared<FMeshSnapshot>(*Scene.Objects[0].Mesh);
	for (int32_t Slot : {-1, 1, 65535})
	{
		Mesh = std::make_shared<FMeshSnapshot>(*Mesh);
		Mesh->Sections[0].MaterialIndex = Slot;
		Scene.Objects[0].Mesh = Mesh;
		const FFloat3 Color = MeanColor(Draw(Scene), 0.4f, 0.4f, 0.6f, 0.6f);
		EXPECT_NEAR(Color.X, Color.Y, 12.0f) << Slot;
		EXPECT_LT(Color.X, 200.0f) << Slot;
	}
}

TEST_F(Renderer, LeavesOutTrianglesWhoseVerticesDoNotExist)
{
	FSceneSnapshot Scene = SceneOf({Placed(Square(10.0f), Plain(0.9f, 0.1f, 0.1f))});
	auto Mesh = std::make_shared<FMeshSnapshot>(*Scene.Objects[0].Mesh);
	Mesh->Sections[0].Indices.insert(Mesh->Sections[0].Indices.end(), {0u, 1u, 4000000000u, 2u});
	const FImage Expected = Draw(Scene);
	Scene.Objects[0].Mesh = Mesh;

	EXPECT_EQ(Draw(Scene).Pixels, Expected.Pixels);
}

TEST_F(Renderer, MixesTranslucentLayersInTheSameWayWhateverTheirOrder)
{
	const FObjectSnapshot Red = Placed(Square(10.0f), Glassy(0.9f, 0.1f, 0.1f, 0.5f), {-5.0f, 0.0f, 0.0f});
	const FObjectSnapshot Green = Placed(Square(10.0f), Glassy(0.1f, 0.9f, 0.1f, 0.5f), {0.0f, 0.0f, 0.0f});
	const FObjectSnapshot Blue = Placed(Square(10.0f), Glassy(0.1f, 0.1f, 0.9f, 0.5f), {5.0f, 0.0f, 0.0f});

	const FImage Sorted = Draw(SceneOf({Blue, Green, Red}));
	const FImage Reversed = Draw(SceneOf({Red, Green, Blue}));
	const FImage Mixed = Draw(SceneOf({Green, Red, Blue}));

	EXPECT_EQ(Sorted.Pixels, Reversed.Pixels);
	EXPECT_EQ(Sorted.Pixels, Mixed.Pixels);
	const FFloat3 Color = MeanColor(Sorted, 0.4f, 0.4f, 0.6f, 0.6f);
	EXPECT_GT(Color.X, Color.Y + 20.0f); // the nearest layer counts most
	EXPECT_GT(Color.Y, Color.Z);
}

TEST_F(Renderer, ShowsMoreOfWhatLiesBehindTheLessOpaqueItIs)
{
	const FObjectSnapshot Wall = Placed(Square(20.0f), Plain(0.9f, 0.9f, 0.9f), {20.0f, 0.0f, 0.0f});
	float Before = -100.0f;
	for (float Opacity : {1.0f, 0.75f, 0.5f, 0.25f, 0.0f})
	{
		const FImage Image = Draw(SceneOf({Wall, Placed(Square(8.0f), Glassy(0.02f, 0.02f, 0.02f, Opacity))}));
		const float Now = Brightness(MeanColor(Image, 0.45f, 0.45f, 0.55f, 0.55f));
		EXPECT_GT(Now, Before + 10.0f) << Opacity;
		Before = Now;
	}
}

TEST_F(Renderer, CutsHolesWhereTheOpacityMapIsBelowTheClipValue)
{
	FMaterialSnapshot Material = Plain(0.9f, 0.1f, 0.1f);
	Material.Blend = EBlend::Masked;
	Material.ClipValue = 0.5f;
	Material.Map(ESurfaceChannel::Opacity).Texture = Texture8(64, 64,
		[](int X, int) {
			return X < 32 ? FFloat4{0, 0, 0, 1} : FFloat4{1, 1, 1, 1};
		});

	const FImage Image = Draw(SceneOf({Placed(Square(10.0f), Material)}));

	const FFloat3 Hole = MeanColor(Image, 0.15f, 0.3f, 0.4f, 0.7f);
	const FFloat3 Cloth = MeanColor(Image, 0.6f, 0.3f, 0.85f, 0.7f);
	EXPECT_NEAR(Hole.X, Hole.Y, 10.0f);
	EXPECT_GT(Cloth.X, Cloth.Y + 60.0f);
}

TEST_F(Renderer, IgnoresOpacityOnAnOpaqueMaterial)
{
	FMaterialSnapshot Material = Plain(0.9f, 0.1f, 0.1f);
	const FImage Expected = Draw(SceneOf({Placed(Square(10.0f), Material)}));
	Material.Opacity = 0.1f;

	EXPECT_EQ(Draw(SceneOf({Placed(Square(10.0f), Material)})).Pixels, Expected.Pixels);
}

TEST_F(Renderer, ThrowsAShadowOnTheFloor)
{
	FSceneSnapshot Scene = SceneOf({Placed(Ball(10.0f), Plain(0.5f, 0.5f, 0.5f))});
	LookAtScene(Scene, -25.0f, 0.0f, 40.0f, 1.0f);
	Scene.Surroundings.bFloor = true;
	FRenderOptions Without = SmallOptions();
	Without.bShadows = false;

	const FImage Shadowed = Draw(Scene);
	const FImage Bright = Draw(Scene, Without);

	// The key light comes from the upper left, so the shadow lies to the right of the ball.
	const FFloat3 With = MeanColor(Shadowed, 0.82f, 0.68f, 0.87f, 0.73f);
	const FFloat3 Free = MeanColor(Bright, 0.82f, 0.68f, 0.87f, 0.73f);
	const FFloat3 Elsewhere = MeanColor(Shadowed, 0.05f, 0.8f, 0.1f, 0.85f);
	EXPECT_LT(Brightness(With), Brightness(Free) - 20.0f);
	EXPECT_NEAR(Brightness(Elsewhere), Brightness(MeanColor(Bright, 0.05f, 0.8f, 0.1f, 0.85f)), 1.0f);
}

TEST_F(Renderer, DarkensWhereSurfacesMeet)
{
	FSceneSnapshot Scene = SceneOf({Placed(Ball(10.0f), Plain(0.7f, 0.7f, 0.7f), {0.0f, -9.0f, 0.0f}),
		Placed(Ball(10.0f), Plain(0.7f, 0.7f, 0.7f), {0.0f, 9.0f, 0.0f})});
	Scene.Lights.clear(); // the light from all sides is what is taken away
	FRenderOptions Options = SmallOptions();
	const FFloat3 With = MeanColor(Draw(Scene, Options), 0.47f, 0.45f, 0.53f, 0.55f);
	Options.bAmbientOcclusion = false;
	const FFloat3 Without = MeanColor(Draw(Scene, Options), 0.47f, 0.45f, 0.53f, 0.55f);

	EXPECT_LT(Brightness(With), Brightness(Without) - 8.0f);
}

TEST_F(Renderer, PlacesObjectsByTheirAxesEvenMirroredOnes)
{
	FSceneSnapshot Scene = SceneOf({Placed(Ball(10.0f), Plain(0.6f, 0.6f, 0.6f))});
	const FImage Expected = Draw(Scene);
	Scene.Objects[0].Placement.AxisX = {-1.0f, 0.0f, 0.0f};

	const FImage Mirrored = Draw(Scene);

	// A ball is its own mirror image; the tessellation differs by next to nothing.
	const FFloat3 A = MeanColor(Expected, 0.2f, 0.2f, 0.8f, 0.8f), B = MeanColor(Mirrored, 0.2f, 0.2f, 0.8f, 0.8f);
	EXPECT_NEAR(Brightness(A), Brightness(B), 0.5f);
}

TEST_F(Renderer, ShowsWhatAMeshWithoutNormalsTangentsAndCoordinatesHas)
{
	FSceneSnapshot Scene = SceneOf({Placed(Square(10.0f), Plain(0.6f, 0.6f, 0.6f))});
	const FFloat3 Expected = MeanColor(Draw(Scene), 0.4f, 0.4f, 0.6f, 0.6f);
	auto Bare = std::make_shared<FMeshSnapshot>(*Scene.Objects[0].Mesh);
	Bare->Normals.clear();
	Bare->Tangents.clear();
	Bare->UVs.clear();
	Scene.Objects[0].Mesh = Bare;

	const FFloat3 Color = MeanColor(Draw(Scene), 0.4f, 0.4f, 0.6f, 0.6f);

	EXPECT_NEAR(Brightness(Color), Brightness(Expected), 1.0f);
}

TEST_F(Renderer, ShowsChangedObjectsAfterOthersWithTheSameRenderer)
{
	const FSceneSnapshot Ball1 = SceneOf({Placed(Ball(10.0f), Plain(0.9f, 0.1f, 0.1f))});
	const FSceneSnapshot Ball2 = SceneOf({Placed(Ball(10.0f), Plain(0.1f, 0.1f, 0.9f))});
	const FImage First = Draw(Ball1);
	const FImage Second = Draw(Ball2);
	const FImage Third = Draw(Ball1);

	EXPECT_EQ(First.Pixels, Third.Pixels);
	EXPECT_NE(First.Pixels, Second.Pixels);
}
