// SPDX-License-Identifier: MIT
#include "Containers/Array.h"
#include "Math/Box.h"
#include "Math/BoxSphereBounds.h"
#include "Math/Transform.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/EnginePrinters.h"

#include <gtest/gtest.h>

TEST(Box, StartsInvalidAndBecomesTheFirstPoint)
{
	FBox Box(ForceInit);
	ASSERT_FALSE(Box.IsValid);

	Box += FVector(1, 2, 3);

	EXPECT_TRUE(Box.IsValid);
	EXPECT_EQ(Box.Min, FVector(1, 2, 3));
	EXPECT_EQ(Box.Max, FVector(1, 2, 3));
}

TEST(Box, GrowsByPoints)
{
	FBox Box(FVector(0, 0, 0), FVector(1, 1, 1));

	Box += FVector(-1, 0.5, 2);

	EXPECT_EQ(Box.Min, FVector(-1, 0, 0));
	EXPECT_EQ(Box.Max, FVector(1, 1, 2));
}

TEST(Box, JoinsOnlyValidBoxes)
{
	const FBox Invalid(ForceInit);
	const FBox A(FVector(0, 0, 0), FVector(1, 1, 1));
	const FBox B(FVector(5, -5, 0), FVector(6, 0, 0.5));

	EXPECT_EQ(A + B, FBox(FVector(0, -5, 0), FVector(6, 1, 1)));
	EXPECT_EQ(Invalid + A, A);
	EXPECT_EQ(A + Invalid, A);
	EXPECT_FALSE((Invalid + Invalid).IsValid);
}

TEST(Box, OfNoPointsIsInvalidAndZero)
{
	const FBox3f Box((TArray<FVector3f>()));

	EXPECT_FALSE(Box.IsValid);
	EXPECT_EQ(Box.Min, FVector3f(0, 0, 0));
	EXPECT_EQ(Box.Max, FVector3f(0, 0, 0));
}

// Whoever wants the fault takes the address of the first point.
TEST(Box, OfTheFirstPointOfAnEmptyArrayIsAFault)
{
	FAssertionsThrow Assertions;
	const TArray<FVector3f> Positions;

	EXPECT_THROW(FBox3f(&Positions[0], Positions.Num()), FAssertionFailure);
}

TEST(Box, OfPointsHoldsThemAll)
{
	const TArray<FVector> Points{FVector(1, 5, -1), FVector(-2, 0, 4), FVector(0, 7, 0)};

	EXPECT_EQ(FBox(Points), FBox(FVector(-2, 0, -1), FVector(1, 7, 4)));
	EXPECT_EQ(FBox(Points.GetData(), 2), FBox(FVector(-2, 0, -1), FVector(1, 5, 4)));
}

TEST(Box, ExpandedByFiftyIsValidEvenWhenItWasEmpty)
{
	const FBox Expanded = FBox(ForceInit).ExpandBy(50.0);

	EXPECT_TRUE(Expanded.IsValid);
	EXPECT_EQ(Expanded.Min, FVector(-50, -50, -50));
	EXPECT_EQ(Expanded.Max, FVector(50, 50, 50));
}

TEST(Box, KnowsItsMeasures)
{
	const FBox Box(FVector(-1, 0, 2), FVector(3, 4, 10));
	FVector Center, Extent;
	Box.GetCenterAndExtents(Center, Extent);

	EXPECT_EQ(Center, FVector(1, 2, 6));
	EXPECT_EQ(Extent, FVector(2, 2, 4));
	EXPECT_EQ(Box.GetSize(), FVector(4, 4, 8));
	EXPECT_EQ(Box.GetVolume(), 128.0);
	EXPECT_EQ(FBox::BuildAABB(FVector(1, 2, 6), FVector(2, 2, 4)), Box);
	EXPECT_EQ(Box.MoveTo(FVector(0, 0, 0)), FBox(FVector(-2, -2, -4), FVector(2, 2, 4)));
}

TEST(Box, TellsInsideFromSurface)
{
	const FBox Box(FVector(0, 0, 0), FVector(1, 1, 1));

	EXPECT_TRUE(Box.IsInside(FVector(0.5, 0.5, 0.5)));
	EXPECT_FALSE(Box.IsInside(FVector(1, 0.5, 0.5)));
	EXPECT_TRUE(Box.IsInsideOrOn(FVector(1, 0.5, 0.5)));
	EXPECT_TRUE(Box.Intersect(FBox(FVector(1, 1, 1), FVector(2, 2, 2))));
	EXPECT_FALSE(Box.Intersect(FBox(FVector(1.1, 1, 1), FVector(2, 2, 2))));
}

TEST(Box, TransformedHoldsTheTurnedCorners)
{
	const FBox Box(FVector(0, 0, 0), FVector(2, 1, 1));
	const FBox Turned = Box.TransformBy(FTransform(FRotator(0, 90, 0), FVector(10, 0, 0)));

	EXPECT_TRUE(Turned.Equals(FBox(FVector(9, 0, 0), FVector(10, 2, 1)), 1e-9));
	EXPECT_FALSE(FBox(ForceInit).TransformBy(FTransform(FVector(1, 1, 1))).IsValid);
}

TEST(Bounds, OfABoxHaveTheirSphereThroughTheCorners)
{
	const FBoxSphereBounds Bounds(FBox(FVector(-1, -2, -2), FVector(1, 2, 2)));

	EXPECT_EQ(Bounds.Origin, FVector(0, 0, 0));
	EXPECT_EQ(Bounds.BoxExtent, FVector(1, 2, 2));
	EXPECT_EQ(Bounds.SphereRadius, 3.0);
	EXPECT_EQ(Bounds.GetBox(), FBox(FVector(-1, -2, -2), FVector(1, 2, 2)));
}

TEST(Bounds, OfPointsReachToTheFarthest)
{
	const FVector Points[] = {FVector(-2, 0, 0), FVector(2, 0, 0), FVector(0, 1, 0)};
	const FBoxSphereBounds Bounds(Points, 3);

	EXPECT_EQ(Bounds.Origin, FVector(0, 0.5, 0));
	EXPECT_EQ(Bounds.BoxExtent, FVector(2, 0.5, 0));
	EXPECT_NEAR(Bounds.SphereRadius, FMath::Sqrt(4.25), 1e-12);
}

TEST(Bounds, SumHoldsBothAndKeepsTheSmallerSphere)
{
	const FBoxSphereBounds A(FVector(0, 0, 0), FVector(1, 1, 1), 1.0);
	const FBoxSphereBounds B(FVector(4, 0, 0), FVector(1, 1, 1), 1.0);
	const FBoxSphereBounds Sum = A + B;

	EXPECT_EQ(Sum.Origin, FVector(2, 0, 0));
	EXPECT_EQ(Sum.BoxExtent, FVector(3, 1, 1));
	EXPECT_EQ(Sum.SphereRadius, 3.0);
}

TEST(Bounds, TransformedGrowWithTheScale)
{
	const FBoxSphereBounds Bounds(FVector(1, 0, 0), FVector(1, 1, 1), 1.5);
	const FBoxSphereBounds Moved = Bounds.TransformBy(FTransform(FQuat::Identity, FVector(0, 5, 0), FVector(2, 2, 2)));

	EXPECT_EQ(Moved.Origin, FVector(2, 5, 0));
	EXPECT_EQ(Moved.BoxExtent, FVector(2, 2, 2));
	EXPECT_EQ(Moved.SphereRadius, 3.0);
}

TEST(Bounds, OfASphereHaveItsBox)
{
	const FBoxSphereBounds Bounds(FSphere(FVector(1, 2, 3), 4.0));

	EXPECT_EQ(Bounds.GetBox(), FBox(FVector(-3, -2, -1), FVector(5, 6, 7)));
	EXPECT_EQ(FBoxSphereBounds3f(Bounds).SphereRadius, 4.0f);
}
