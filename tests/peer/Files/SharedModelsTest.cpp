// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "FilesFixture.h"
#include "Zef/Check.h"

using namespace Zef;
using namespace Zef::Peer;

using SharedModels = FModelFiles;

namespace
{

std::filesystem::path Data()
{
	return ZEF_SHARED_DATA;
}

} // namespace

TEST_F(SharedModels, AllLoadAndPassTheChecksOfTheLink)
{
	if (!std::filesystem::is_directory(Data()))
	{
		GTEST_SKIP() << "The folder of test models is not here: " << Data();
	}
	int Count = 0;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Data()))
	{
		const std::string Extension = Entry.path().extension().string();
		if (Extension != ".gltf" && Extension != ".glb" && Extension != ".obj")
		{
			continue;
		}
		for (const EObjectType Type : {EObjectType::Avatar, EObjectType::Garment})
		{
			const FLoadResult Result = LoadObject(Type, {Entry.path()});
			ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
			const FLinkFault Fault = CheckMesh(Result.Object->Mesh, EIndexBase::Surface);
			EXPECT_FALSE(Fault) << Entry.path() << Fault.Path << ": " << Fault.Message;
			EXPECT_TRUE(Type == EObjectType::Avatar || Result.Object->Mesh.Joints.empty());
		}
		++Count;
	}
	EXPECT_GT(Count, 0);
}

TEST_F(SharedModels, HaveTheWomanOnHerFeetWithHerSkeletonAndWalk)
{
	const std::filesystem::path File = Data() / "characters/makehuman-woman/avatar.gltf";
	if (!std::filesystem::exists(File))
	{
		GTEST_SKIP() << "The test model is not here: " << File;
	}
	const FLoadResult Result = LoadObject(EObjectType::Avatar, {File});

	ASSERT_TRUE(Result.Object);
	EXPECT_EQ(Result.Object->Mesh.Joints.size(), 53u);
	EXPECT_EQ(Result.Object->JointSequence.Frames.size(), 91u); // of the two clips, idle is the longer
	float Lowest = 1e9f, Highest = -1e9f;
	for (const FSurface& Surface : Result.Object->Mesh.Surfaces)
	{
		for (const FVec3& P : Surface.Positions)
		{
			Lowest = std::min(Lowest, P.Z);
			Highest = std::max(Highest, P.Z);
		}
	}
	// The file leaves out the body under the clothes: it spans from the hands to the top of the head.
	EXPECT_NEAR(Lowest, 84.966f, 0.01f);
	EXPECT_NEAR(Highest, 158.980f, 0.01f);
}
