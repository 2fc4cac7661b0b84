// SPDX-License-Identifier: MIT
#include "Math/Matrix.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "fixtures/EnginePrinters.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace
{
/** Rounding of a handful of operations on numbers around 1, in double and in float. */
constexpr double Tolerance = 1e-12;
constexpr float FloatTolerance = 1e-6f;

FQuat AboutZ(double Degrees)
{
	return FQuat(FVector(0, 0, 1), FMath::DegreesToRadians(Degrees));
}
} // namespace

TEST(Rotation, PositiveAnglesTurnTheAxesAsDocumented)
{
	EXPECT_TRUE(FRotator(0, 90, 0).RotateVector(FVector(1, 0, 0)).Equals(FVector(0, 1, 0), Tolerance));
	EXPECT_TRUE(FRotator(90, 0, 0).RotateVector(FVector(1, 0, 0)).Equals(FVector(0, 0, 1), Tolerance));
	EXPECT_TRUE(FRotator(0, 0, 90).RotateVector(FVector(0, 0, 1)).Equals(FVector(0, 1, 0), Tolerance));
}

TEST(Rotation, RollComesFirstThenPitchThenYaw)
{
	const FQuat Combined = FRotator(20, 30, 40).Quaternion();
	const FQuat Steps =
		FRotator(0, 30, 0).Quaternion() * FRotator(20, 0, 0).Quaternion() * FRotator(0, 0, 40).Quaternion();

	EXPECT_TRUE(Combined.Equals(Steps, Tolerance));
}

TEST(Rotation, ProductAppliesTheRightFactorFirst)
{
	const FQuat Yaw = FRotator(0, 90, 0).Quaternion();
	const FQuat Pitch = FRotator(90, 0, 0).Quaternion();
	const FVector V(1, 2, 3);

	EXPECT_TRUE((Yaw * Pitch).RotateVector(V).Equals(Yaw.RotateVector(Pitch.RotateVector(V)), Tolerance));
	EXPECT_FALSE((Pitch * Yaw).RotateVector(V).Equals(Yaw.RotateVector(Pitch.RotateVector(V)), 0.5));
}

TEST(Rotation, EulerHasRollPitchYaw)
{
	EXPECT_EQ(FRotator(1, 2, 3).Euler(), FVector(3, 1, 2));
	EXPECT_EQ(FRotator::MakeFromEuler(FVector(3, 1, 2)), FRotator(1, 2, 3));
	EXPECT_TRUE(FQuat::MakeFromEuler(FVector(10, 20, 30)).Euler().Equals(FVector(10, 20, 30), 1e-9));
}

// A quarter turn in units of a turn is the angle that texture coordinates take.
TEST(Rotation, AQuarterTurnAboutZIsAQuarterOfTheEulerTurn)
{
	const FQuat4f Quarter(FVector3f(0, 0, 1), UE_HALF_PI);

	EXPECT_NEAR(Quarter.Euler().Z * (1.0f / 360.0f), 0.25f, 2e-7f);
	EXPECT_NEAR(FQuat4f(FVector3f(0, 0, 1), -UE_HALF_PI).Euler().Z, -90.0f, 1e-4f);
	EXPECT_NEAR(AboutZ(200).Euler().Z, -160.0, 1e-9);
}

TEST(Rotation, AnglesSurviveTheWayThroughAQuaternion)
{
	for (double Pitch = -85; Pitch <= 85; Pitch += 17)
	{
		for (double Yaw = -179; Yaw <= 180; Yaw += 29)
		{
			for (double Roll = -179; Roll <= 180; Roll += 31)
			{
				const FRotator In(Pitch, Yaw, Roll);
				EXPECT_TRUE(In.Quaternion().Rotator().Equals(In, 1e-9)) << testing::PrintToString(In);
			}
		}
	}
}

TEST(Rotation, AtThePolesPitchIsExactAndTheRotationStaysTheSame)
{
	for (const double Pitch : {90.0, -90.0})
	{
		for (double Yaw = -170; Yaw <= 180; Yaw += 25)
		{
			for (double Roll = -170; Roll <= 180; Roll += 25)
			{
				const FQuat In = FRotator(Pitch, Yaw, Roll).Quaternion();
				const FRotator Angles = In.Rotator();
				EXPECT_EQ(Angles.Pitch, Pitch);
				EXPECT_TRUE(Angles.Quaternion().Equals(In, 1e-9)) << Yaw << " " << Roll;
			}
		}
	}
}

TEST(Rotation, MatrixAndQuaternionAgreeForEveryLargestComponent)
{
	const FQuat Samples[] = {FQuat(0, 0, 0, 1), FQuat(1, 0, 0, 0), FQuat(0, 1, 0, 0), FQuat(0, 0, 1, 0),
		FQuat(0.5, 0.5, 0.5, 0.5), FQuat(0.9, 0.1, -0.2, 0.1), FQuat(-0.1, 0.9, 0.2, -0.1), FQuat(0.1, 0.2, -0.9, 0.1)};
	for (const FQuat& Sample : Samples)
	{
		const FQuat Unit = Sample.GetNormalized();
		const FMatrix Matrix = Unit.ToMatrix();
		EXPECT_TRUE(FQuat(Matrix).Equals(Unit, Tolerance)) << ToStdString(Unit.ToString());
		EXPECT_TRUE(
			FVector(Matrix.TransformVector(FVector(1, 2, 3))).Equals(Unit.RotateVector(FVector(1, 2, 3)), Tolerance));
	}
}

TEST(Rotation, InverseUndoesAndNormalizeFallsBackToTheIdentity)
{
	const FQuat4f Q = FRotator3f(10, 20, 30).Quaternion();

	EXPECT_TRUE((Q * Q.Inverse()).Equals(FQuat4f::Identity, FloatTolerance));
	EXPECT_TRUE(Q.UnrotateVector(Q.RotateVector(FVector3f(1, 2, 3))).Equals(FVector3f(1, 2, 3), 1e-5f));
	EXPECT_EQ(FQuat(0, 0, 0, 0).GetNormalized(), FQuat::Identity);
	EXPECT_EQ(FQuat(0, 0, 0, 2).GetNormalized(), FQuat::Identity);
	EXPECT_EQ(FQuat(ForceInit), FQuat::Identity);
	EXPECT_EQ(FQuat(ForceInitToZero), FQuat(0, 0, 0, 0));
}

TEST(Rotation, EqualsTakesTheNegatedQuaternionForTheSameRotation)
{
	const FQuat Q = AboutZ(50);

	EXPECT_TRUE(Q.Equals(-Q, Tolerance));
	EXPECT_FALSE(Q == -Q);
}

TEST(Rotation, SlerpTakesTheShortWayAtConstantSpeed)
{
	EXPECT_TRUE(FQuat::Slerp(AboutZ(0), AboutZ(80), 0.25).Equals(AboutZ(20), Tolerance));
	EXPECT_TRUE(FQuat::Slerp(AboutZ(0), -AboutZ(80), 0.25).Equals(AboutZ(20), Tolerance));
	EXPECT_TRUE(FQuat::Slerp(AboutZ(170), AboutZ(190), 0.5).Equals(AboutZ(180), 1e-9));
	EXPECT_NEAR(AboutZ(10).AngularDistance(AboutZ(100)), FMath::DegreesToRadians(90.0), 1e-9);
}

TEST(Rotation, FindBetweenTurnsOneDirectionIntoTheOtherEvenWhenOpposite)
{
	const FVector Directions[] = {FVector(1, 0, 0), FVector(-1, 0, 0), FVector(0, 1, 0), FVector(0, -1, 0),
		FVector(0, 0, 1), FVector(0, 0, -1), FVector(0.6, 0, 0.8)};
	for (const FVector& From : Directions)
	{
		for (const FVector& To : Directions)
		{
			EXPECT_TRUE(FQuat::FindBetween(From, To).RotateVector(From).Equals(To, 1e-9))
				<< testing::PrintToString(From) << testing::PrintToString(To);
		}
	}
}

TEST(Rotation, AnglesAreBroughtIntoTheirRange)
{
	EXPECT_EQ(FRotator::ClampAxis(-90.0), 270.0);
	EXPECT_EQ(FRotator::NormalizeAxis(270.0), -90.0);
	EXPECT_EQ(FRotator::NormalizeAxis(180.0), 180.0);
	EXPECT_EQ(FRotator::NormalizeAxis(-180.0), 180.0);
	EXPECT_TRUE(FRotator(0, 359, 0).Equals(FRotator(0, -1, 0)));
}

TEST(Rotation, RotationOfADirectionPointsThere)
{
	const FVector Direction = FVector(1, -2, 3).GetSafeNormal();

	EXPECT_TRUE(Direction.Rotation().Vector().Equals(Direction, Tolerance));
	EXPECT_EQ(FVector(0, 0, 0).Rotation(), FRotator(0, 0, 0));
}

TEST(Rotation, PrecisionsConvertOnlyWhenWrittenOut)
{
	static_assert(!std::is_convertible_v<FQuat, FQuat4f> && !std::is_convertible_v<FQuat4f, FQuat>);
	static_assert(!std::is_convertible_v<FRotator, FQuat>);

	EXPECT_EQ(FQuat(FQuat4f(0.5f, 0.25f, 0.0f, 1.0f)), FQuat(0.5, 0.25, 0.0, 1.0));
}
