// SPDX-License-Identifier: MIT
#include "Rendering/SkeletalMeshLODModel.h"

bool FSoftSkinVertex::GetRigidWeightBone(FBoneIndexType& OutBoneIndex) const
{
	int32 NumFound = 0;
	for (int32 Slot = 0; Slot < MAX_TOTAL_INFLUENCES; ++Slot)
	{
		if (InfluenceWeights[Slot] > 0)
		{
			OutBoneIndex = InfluenceBones[Slot];
			++NumFound;
		}
	}
	return NumFound == 1;
}

uint16 FSoftSkinVertex::GetMaximumWeight() const
{
	uint16 Largest = 0;
	for (const uint16 Weight : InfluenceWeights)
	{
		Largest = Weight > Largest ? Weight : Largest;
	}
	return Largest;
}

void FSkelMeshSection::CalcMaxBoneInfluences()
{
	MaxBoneInfluences = 0;
	for (const FSoftSkinVertex& Vertex : SoftVertices)
	{
		int32 NumInfluences = 0;
		for (const uint16 Weight : Vertex.InfluenceWeights)
		{
			NumInfluences += Weight > 0;
		}
		MaxBoneInfluences = FMath::Max(MaxBoneInfluences, NumInfluences);
		if (MaxBoneInfluences == MAX_TOTAL_INFLUENCES)
		{
			return;
		}
	}
}

void FSkelMeshSection::CalcUse16BitBoneIndex()
{
	bUse16BitBoneIndex = false;
	for (const FSoftSkinVertex& Vertex : SoftVertices)
	{
		// Together, for all bones of all vertices are looked at in most meshes.
		uint32 Bits = 0;
		for (const FBoneIndexType Bone : Vertex.InfluenceBones)
		{
			Bits |= Bone;
		}
		if (Bits > 255)
		{
			bUse16BitBoneIndex = true;
			return;
		}
	}
}

int32 FSkeletalMeshLODModel::GetMaxBoneInfluences() const
{
	int32 Most = 0;
	for (const FSkelMeshSection& Section : Sections)
	{
		Most = FMath::Max(Most, Section.GetMaxBoneInfluences());
	}
	return Most;
}

bool FSkeletalMeshLODModel::DoSectionsUse16BitBoneIndex() const
{
	for (const FSkelMeshSection& Section : Sections)
	{
		if (Section.Use16BitBoneIndex())
		{
			return true;
		}
	}
	return false;
}

void FSkeletalMeshLODModel::GetVertices(TArray<FSoftSkinVertex>& Vertices) const
{
	Vertices.Empty(int32(NumVertices));
	for (const FSkelMeshSection& Section : Sections)
	{
		Vertices.Append(Section.SoftVertices);
	}
}
