// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "SkeletalMeshSamples.h"
#include "UObject/GarbageCollection.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace SkeletalMeshSamples;

namespace
{
using Skeleton = FEngineFixture;

USkeleton* MakeSkeleton()
{
	return NewObject<USkeleton>(GetTransientPackage(), TEXT("Skeleton"));
}

std::vector<std::string> BoneNames(const USkeleton* Of)
{
	std::vector<std::string> Names;
	for (const FMeshBoneInfo& Bone : Of->GetReferenceSkeleton().GetRefBoneInfo())
	{
		Names.push_back(TCHAR_TO_UTF8(*Bone.Name.ToString()));
	}
	return Names;
}

using FNames = std::vector<std::string>;
} // namespace

TEST_F(Skeleton, CopiesAllBonesIntoAnEmptyTree)
{
	USkeleton* Tree = MakeSkeleton();
	const USkeletalMesh* Mesh = MakeMesh({{TEXT("A"), -1, FVector(1.0, 2.0, 3.0)}, {TEXT("B"), 0}});
	EXPECT_TRUE(Tree->MergeAllBonesToBoneTree(Mesh));
	EXPECT_EQ(BoneNames(Tree), (FNames{"A", "B"}));
	EXPECT_EQ(Tree->GetReferenceSkeleton().GetRefBonePose()[0].GetTranslation(), FVector(1.0, 2.0, 3.0));
}

TEST_F(Skeleton, AppendsTheBonesThatItLacksUnderTheParentOfTheSameName)
{
	USkeleton* Tree = MakeSkeleton();
	Tree->MergeAllBonesToBoneTree(MakeMesh({{TEXT("A"), -1}, {TEXT("B"), 0}, {TEXT("E"), 1}}, TEXT("First")));
	const USkeletalMesh* Second = MakeMesh(
		{{TEXT("A"), -1, FVector(9.0, 9.0, 9.0)}, {TEXT("C"), 0}, {TEXT("B"), 0}, {TEXT("D"), 2}, {TEXT("E"), 2}},
		TEXT("Second"));
	ASSERT_TRUE(Tree->MergeAllBonesToBoneTree(Second));
	EXPECT_EQ(BoneNames(Tree), (FNames{"A", "B", "E", "C", "D"}));
	EXPECT_EQ(Tree->GetReferenceSkeleton().GetParentIndex(3), 0);
	EXPECT_EQ(Tree->GetReferenceSkeleton().GetParentIndex(4), 1);
	EXPECT_EQ(Tree->GetReferenceSkeleton().GetRefBonePose()[0].GetTranslation(), FVector(0.0, 0.0, 0.0))
		<< "a bone that is there keeps its pose";
}

TEST_F(Skeleton, RefusesAMeshWhoseChainOfParentsDiffersAndAddsNothing)
{
	USkeleton* Tree = MakeSkeleton();
	Tree->MergeAllBonesToBoneTree(MakeMesh({{TEXT("A"), -1}, {TEXT("B"), 0}, {TEXT("C"), 1}}, TEXT("First")));
	const USkeletalMesh* Shortcut = MakeMesh({{TEXT("A"), -1}, {TEXT("C"), 0}, {TEXT("D"), 0}}, TEXT("Second"));
	EXPECT_FALSE(Tree->IsCompatibleMesh(Shortcut));
	EXPECT_FALSE(Tree->MergeAllBonesToBoneTree(Shortcut));
	EXPECT_EQ(BoneNames(Tree), (FNames{"A", "B", "C"}));
}

TEST_F(Skeleton, RefusesAMeshOfWhichItKnowsHalfTheBonesOrLess)
{
	USkeleton* Tree = MakeSkeleton();
	Tree->MergeAllBonesToBoneTree(MakeMesh({{TEXT("A"), -1}}, TEXT("First")));
	EXPECT_FALSE(Tree->MergeAllBonesToBoneTree(MakeMesh({{TEXT("A"), -1}, {TEXT("X"), 0}}, TEXT("Second"))));
	EXPECT_FALSE(Tree->MergeAllBonesToBoneTree(MakeMesh({{TEXT("X"), -1}}, TEXT("Third"))));
	EXPECT_FALSE(Tree->MergeAllBonesToBoneTree(nullptr));
}

TEST_F(Skeleton, HoldsItsPreviewMeshWeakly)
{
	USkeleton* Tree = MakeSkeleton();
	Tree->AddToRoot();
	USkeletalMesh* Mesh = MakeMesh({{TEXT("A"), -1}});
	Tree->SetPreviewMesh(Mesh, false);
	EXPECT_EQ(Tree->GetPreviewMesh(), Mesh);
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(Tree->GetPreviewMesh(), nullptr);
	Tree->RemoveFromRoot();
}

TEST_F(Skeleton, GivesItsBonesToADuplicate)
{
	USkeleton* Tree = MakeSkeleton();
	Tree->MergeAllBonesToBoneTree(MakeMesh({{TEXT("A"), -1}, {TEXT("B"), 0}}));
	EXPECT_EQ(BoneNames(DuplicateObject<USkeleton>(Tree, GetTransientPackage(), TEXT("Copy"))), (FNames{"A", "B"}));
}
