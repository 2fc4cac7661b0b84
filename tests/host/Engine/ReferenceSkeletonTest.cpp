// SPDX-License-Identifier: MIT
#include "AssertionRecorder.h"
#include "EngineFixture.h"
#include "ReferenceSkeleton.h"

#include <gtest/gtest.h>

namespace
{
using ReferenceSkeleton = FEngineFixture;

FMeshBoneInfo Bone(const TCHAR* Name, int32 Parent)
{
	return FMeshBoneInfo(FName(Name), FString(Name) + TEXT("_Export"), Parent);
}

FTransform At(double X)
{
	return FTransform(FVector(X, 0.0, 0.0));
}
} // namespace

TEST_F(ReferenceSkeleton, TakesBonesInWhenItsModifierCloses)
{
	FReferenceSkeleton Skeleton;
	{
		FReferenceSkeletonModifier Modifier(Skeleton, nullptr);
		Modifier.Add(Bone(TEXT("Hips"), INDEX_NONE), At(1.0));
		Modifier.Add(Bone(TEXT("Spine"), 0), At(2.0));
		EXPECT_EQ(Skeleton.GetRawBoneNum(), 2);
		EXPECT_EQ(Skeleton.GetNum(), 0);
	}
	EXPECT_EQ(Skeleton.GetNum(), 2);
	EXPECT_EQ(Skeleton.FindBoneIndex(TEXT("spine")), 1) << "names ignore case";
	EXPECT_EQ(Skeleton.FindBoneIndex(TEXT("Tail")), INDEX_NONE);
	EXPECT_EQ(Skeleton.GetParentIndex(1), 0);
	EXPECT_EQ(Skeleton.GetParentIndex(0), INDEX_NONE);
	EXPECT_EQ(Skeleton.GetBoneName(0), FName(TEXT("Hips")));
	EXPECT_EQ(Skeleton.GetRefBonePose()[1].GetTranslation().X, 2.0);
	EXPECT_TRUE(Skeleton.GetRawRefBoneInfo()[1].ExportName.Equals(TEXT("Spine_Export"), ESearchCase::CaseSensitive));
}

TEST_F(ReferenceSkeleton, ReportsADuplicateNameAParentToComeAndASecondRootAndLeavesThemOut)
{
	FReferenceSkeleton Skeleton;
	FAssertionRecorder Assertions;
	{
		FReferenceSkeletonModifier Modifier(Skeleton, nullptr);
		Modifier.Add(Bone(TEXT("Root"), INDEX_NONE), At(0.0));
		Modifier.Add(Bone(TEXT("Root"), 0), At(0.0));
		Modifier.Add(Bone(TEXT("Hand"), 5), At(0.0));
		Modifier.Add(Bone(TEXT("Other"), INDEX_NONE), At(0.0));
	}
	EXPECT_EQ(Assertions.Num(), 3);
	EXPECT_EQ(Skeleton.GetNum(), 1);
}

TEST_F(ReferenceSkeleton, TakesASecondRootWhenItIsAllowed)
{
	FReferenceSkeleton Skeleton;
	FAssertionRecorder Assertions;
	{
		FReferenceSkeletonModifier Modifier(Skeleton, nullptr);
		Modifier.Add(Bone(TEXT("A"), INDEX_NONE), At(0.0));
		Modifier.Add(Bone(TEXT("B"), INDEX_NONE), At(0.0), true);
	}
	EXPECT_EQ(Assertions.Num(), 0);
	EXPECT_EQ(Skeleton.GetNum(), 2);
}

TEST_F(ReferenceSkeleton, TakesNoBoneFromASkeletonWhenItIsRebuilt)
{
	FReferenceSkeleton Skeleton;
	Skeleton.RebuildRefSkeleton(nullptr, true);
	EXPECT_EQ(Skeleton.GetNum(), 0);
}
