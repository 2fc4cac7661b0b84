// SPDX-License-Identifier: MIT
#include "Host/BoundsMemory.h"
#include "render/RenderFixture.h"
#include "render/SceneShapes.h"

using namespace Host;
using namespace SceneShapes;

namespace
{

/** A dark square that covers the middle third of the picture. */
FSceneSnapshot SquareInTheMiddle(bool bSelected, EBlend Blend = EBlend::Opaque)
{
	FMaterialSnapshot Material;
	Material.BaseColor = {0.02f, 0.02f, 0.02f, 1.0f};
	Material.Roughness = 1.0f;
	Material.Specular = 0.0f;
	Material.Blend = Blend;
	Material.Opacity = Blend == EBlend::Opaque ? 1.0f : 0.3f;
	FSceneSnapshot Scene = SceneOf({Placed(Square(10.0f), Material)});
	Scene.Camera.Location = {-60.0f, 0.0f, 0.0f};
	Scene.Camera.HorizontalFov = 53.13f; // 60 cm wide at 60 cm
	Scene.Objects[0].bSelected = bSelected;
	Scene.OutlineColor = {1.0f, 0.0f, 0.0f};
	return Scene;
}

struct FCounts
{
	int Inside = 0;	 // red pixels on the square
	int Outside = 0; // and around it
};

FCounts CountRed(const FImage& Image)
{
	FCounts Counts;
	for (int Y = 0; Y < Image.Height; ++Y)
	{
		for (int X = 0; X < Image.Width; ++X)
		{
			const uint8_t* const Pixel = Image.At(X, Y);
			if (Pixel[0] > 180 && Pixel[1] < 90 && Pixel[2] < 90)
			{
				const bool bInside = X >= 32 && X < 64 && Y >= 32 && Y < 64;
				++(bInside ? Counts.Inside : Counts.Outside);
			}
		}
	}
	return Counts;
}

} // namespace

class SelectionOutline : public RenderFixture
{
};

TEST_F(SelectionOutline, RunsAroundWhatIsSelectedAndNotOverIt)
{
	const FCounts Counts = CountRed(Draw(SquareInTheMiddle(true)));
	EXPECT_EQ(Counts.Inside, 0);
	// Two pixels wide around 32 x 32: 4 * 32 * 2, and the corners.
	EXPECT_GE(Counts.Outside, 200);
	EXPECT_LE(Counts.Outside, 280);
}

TEST_F(SelectionOutline, IsNotThereWithoutASelectionOrWithoutThickness)
{
	EXPECT_EQ(CountRed(Draw(SquareInTheMiddle(false))).Outside, 0);
	FRenderOptions Options = SmallOptions();
	Options.OutlineThickness = 0.0f;
	EXPECT_EQ(CountRed(Draw(SquareInTheMiddle(true), Options)).Outside, 0);
}

TEST_F(SelectionOutline, TakesASheerSurfaceForAWholeOne)
{
	const FCounts Counts = CountRed(Draw(SquareInTheMiddle(true, EBlend::Translucent)));
	EXPECT_EQ(Counts.Inside, 0);
	EXPECT_GE(Counts.Outside, 200);
}

TEST_F(SelectionOutline, LeavesTheRestOfThePictureAsItIs)
{
	const FImage Without = Draw(SquareInTheMiddle(false));
	const FImage With = Draw(SquareInTheMiddle(true));
	int Different = 0;
	for (int Y = 0; Y < With.Height; ++Y)
	{
		for (int X = 0; X < With.Width; ++X)
		{
			const bool bNear = X >= 28 && X < 68 && Y >= 28 && Y < 68;
			Different += !bNear && !std::equal(With.At(X, Y), With.At(X, Y) + 4, Without.At(X, Y));
		}
	}
	EXPECT_EQ(Different, 0);
}

TEST(BoundsMemory, GivesTheBoxOfTheObjectsAndNoticesEachChange)
{
	FBoundsMemory Memory;
	FMaterialSnapshot Material;
	std::vector<FObjectSnapshot> Objects = {Placed(Square(10.0f), Material), Placed(Square(5.0f), Material)};
	Objects[1].Placement.Origin = {0.0f, 50.0f, 0.0f};
	EXPECT_EQ(Memory.Of(Objects).Max.Y, 55.0f);
	EXPECT_EQ(Memory.Of(Objects).Max.Y, 55.0f);

	Objects[1].Placement.Origin.Y = 70.0f;
	EXPECT_EQ(Memory.Of(Objects).Max.Y, 75.0f);
	Objects[1].Mesh = Square(20.0f);
	EXPECT_EQ(Memory.Of(Objects).Max.Y, 90.0f);
	Objects.pop_back();
	EXPECT_EQ(Memory.Of(Objects).Max.Y, 10.0f);
	Objects.clear();
	EXPECT_TRUE(Memory.Of(Objects).IsEmpty());
}
