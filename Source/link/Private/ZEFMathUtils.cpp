// SPDX-License-Identifier: MIT
#include "ZEFMathUtils.h"

#include "HAL/UnrealMemory.h"
#include "Rendering/SkeletalMeshLODModel.h"

bool ZEFMathUtils::AreVerticesEqual(const FSoftSkinVertex& A, const FSoftSkinVertex& B)
{
	// Positions differ most often, so they come first. Integers compare as bytes; floats must not, for 0 and -0 are
	// equal and a vector may have padding.
	if (!(A.Position == B.Position && A.TangentX == B.TangentX && A.TangentY == B.TangentY && A.TangentZ == B.TangentZ))
	{
		return false;
	}
	for (int32 Index = 0; Index < MAX_TEXCOORDS; ++Index)
	{
		if (!(A.UVs[Index] == B.UVs[Index]))
		{
			return false;
		}
	}
	return A.Color == B.Color && FMemory::Memcmp(A.InfluenceBones, B.InfluenceBones, sizeof(A.InfluenceBones)) == 0 &&
		   FMemory::Memcmp(A.InfluenceWeights, B.InfluenceWeights, sizeof(A.InfluenceWeights)) == 0;
}
