// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "FilesFixture.h"

using namespace Zef;
using namespace Zef::Peer;
using testing::HasSubstr;

using BrokenFiles = FModelFiles;

TEST_F(BrokenFiles, AreErrorsThatNameTheFile)
{
	const std::string Files[] = {Write("cut.glb", std::string("glTF\2\0\0\0\xff\xff\0\0", 12)),
		Write("words.fbx", "These are words.\n"), Write("empty.glb", ""), Write("empty.obj", ""),
		Write("scene.gltf", R"({"asset":{"version":"2.0"}})"), Folder / "missing.glb"};
	for (const std::string& File : Files)
	{
		EXPECT_THAT(ErrorOf(LoadObject(EObjectType::Garment, {File})), HasSubstr(File + ": "));
	}
}

TEST_F(BrokenFiles, PointNowhereOutsideTheirBuffers)
{
	const std::string File = Write("far.gltf", R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],
		"nodes":[{"mesh":0}],"meshes":[{"name":"far","primitives":[{"attributes":{"POSITION":0}}]}],
		"accessors":[{"bufferView":0,"componentType":5126,"count":400000000,"type":"VEC3"}],
		"bufferViews":[{"buffer":0,"byteLength":12}],
		"buffers":[{"byteLength":12,"uri":"data:application/octet-stream;base64,AAAAAAAAAAAAAAAA"}]})");

	EXPECT_THAT(ErrorOf(LoadObject(EObjectType::Prop, {File})),
		HasSubstr("the positions of mesh \"far\" do not lie in their buffer."));
}

TEST_F(BrokenFiles, MayAbortTheReaderAndNothingElse)
{
	EXPECT_THAT(ErrorOf(LoadWith({}, "abort")), HasSubstr("it broke the library that reads it: Aborted."));
}

TEST_F(BrokenFiles, EndWithTheWallTimeWhenTheReaderHangs)
{
	FModelReaderOptions Short;
	Short.WallSeconds = 1;

	EXPECT_THAT(ErrorOf(LoadWith(Short, "hang")), HasSubstr("reading it was ended after 1 s."));
}

TEST_F(BrokenFiles, EndWithTheProcessorTimeWhenTheReaderSpins)
{
	FModelReaderOptions Short;
	Short.CpuSeconds = 1;

	EXPECT_THAT(ErrorOf(LoadWith(Short, "spin")), HasSubstr("reading it was ended after 1 s of processor time."));
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(BrokenFiles, EndWithTheMemoryWhenTheReaderEatsIt)
{
	FModelReaderOptions Small;
	Small.MemoryBytes = 1 << 30;

	EXPECT_THAT(ErrorOf(LoadWith(Small, "eat")), HasSubstr("it needs more than the 1024 MiB of memory"));
}
#endif

TEST_F(BrokenFiles, AreErrorsWhenTheAnswerIsNone)
{
	EXPECT_THAT(ErrorOf(LoadWith({}, "garbage")), HasSubstr("its reader gave an answer that cannot be understood."));
}
