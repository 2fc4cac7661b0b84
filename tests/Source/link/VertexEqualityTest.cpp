// SPDX-License-Identifier: MIT
#include "Rendering/SkeletalMeshLODModel.h"
#include "ZEFMathUtils.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <limits>
#include <vector>

namespace
{
/** Every byte of it is set, padding to different values. */
FSoftSkinVertex SampleVertex(int Padding)
{
	FSoftSkinVertex Vertex;
	std::memset(static_cast<void*>(&Vertex), Padding, sizeof(Vertex));
	Vertex.Position = FVector3f(1, 2, 3);
	Vertex.TangentX = FVector3f(1, 0, 0);
	Vertex.TangentY = FVector3f(0, 1, 0);
	Vertex.TangentZ = FVector4f(0, 0, 1, 1);
	for (int32 Index = 0; Index < MAX_TEXCOORDS; ++Index)
	{
		Vertex.UVs[Index] = FVector2f(0.25f, 0.5f);
	}
	Vertex.Color = FColor(1, 2, 3, 4);
	for (int32 Index = 0; Index < MAX_TOTAL_INFLUENCES; ++Index)
	{
		Vertex.InfluenceBones[Index] = static_cast<FBoneIndexType>(Index);
		Vertex.InfluenceWeights[Index] = static_cast<uint16>(100 * Index);
	}
	return Vertex;
}

TEST(AreVerticesEqual, IsTrueForEqualFieldsWhateverLiesBetweenThem)
{
	EXPECT_TRUE(ZEFMathUtils::AreVerticesEqual(SampleVertex(0), SampleVertex(255)));
}

TEST(AreVerticesEqual, LooksAtEachField)
{
	const std::vector<std::function<void(FSoftSkinVertex&)>> Changes = {
		[](FSoftSkinVertex& V) { V.Position.X += 1; },
		[](FSoftSkinVertex& V) { V.Position.Z += 1; },
		[](FSoftSkinVertex& V) { V.TangentX.Y = 1; },
		[](FSoftSkinVertex& V) { V.TangentY.Z = 1; },
		[](FSoftSkinVertex& V) { V.TangentZ.X = 1; },
		[](FSoftSkinVertex& V) { V.TangentZ.W = -1; },
		[](FSoftSkinVertex& V) { V.UVs[0].X = 1; },
		[](FSoftSkinVertex& V) { V.UVs[MAX_TEXCOORDS - 1].Y = 1; },
		[](FSoftSkinVertex& V) { V.Color.R = 9; },
		[](FSoftSkinVertex& V) { V.Color.A = 9; },
		[](FSoftSkinVertex& V) { V.InfluenceBones[0] = 9; },
		[](FSoftSkinVertex& V) { V.InfluenceBones[MAX_TOTAL_INFLUENCES - 1] = 99; },
		[](FSoftSkinVertex& V) { V.InfluenceWeights[0] = 9; },
		[](FSoftSkinVertex& V) { V.InfluenceWeights[MAX_TOTAL_INFLUENCES - 1] = 9; },
	};
	for (std::size_t Index = 0; Index < Changes.size(); ++Index)
	{
		FSoftSkinVertex Changed = SampleVertex(0);
		Changes[Index](Changed);
		EXPECT_FALSE(ZEFMathUtils::AreVerticesEqual(SampleVertex(0), Changed)) << Index;
		EXPECT_FALSE(ZEFMathUtils::AreVerticesEqual(Changed, SampleVertex(0))) << Index;
	}
}

TEST(AreVerticesEqual, ComparesFloatsAsNumbers)
{
	FSoftSkinVertex Zero = SampleVertex(0);
	FSoftSkinVertex NegativeZero = SampleVertex(0);
	Zero.Position.X = 0.0f;
	NegativeZero.Position.X = -0.0f;
	EXPECT_TRUE(ZEFMathUtils::AreVerticesEqual(Zero, NegativeZero));

	FSoftSkinVertex NotANumber = SampleVertex(0);
	NotANumber.UVs[0].X = std::numeric_limits<float>::quiet_NaN();
	EXPECT_FALSE(ZEFMathUtils::AreVerticesEqual(NotANumber, NotANumber));
}
} // namespace
