// SPDX-License-Identifier: MIT
#include "Animation/Skeleton.h"
#include "Engine/SkeletalMesh.h"
#include "ReferenceSkeleton.h"
#include "Rendering/SkeletalMeshLODModel.h"
#include "Rendering/SkeletalMeshModel.h"
#include "Support/Engine.h"
#include "Support/Require.h"
#include "Utils/ZEFTandemEditorUtils.h"

namespace
{
/** Weights sum up to 65535 in 16 bits; a vertex with an empty list hangs on bone 0 with one less. */
void RequireWeights(const FSoftSkinVertex& Vertex, int32 Bones)
{
	uint16 Sum = 0;
	for (int32 Slot = 0; Slot < MAX_TOTAL_INFLUENCES; ++Slot)
	{
		Sum = static_cast<uint16>(Sum + Vertex.InfluenceWeights[Slot]);
		REQUIRE(Vertex.InfluenceBones[Slot] < Bones);
	}
	REQUIRE(Sum == 65535 || Sum == 65534);
}

void Convert(const FZEFSurfaceMesh& SurfaceMesh)
{
	if (SurfaceMesh.Joints.IsEmpty())
	{
		return;
	}
	FZEFSkeletalMeshData Data;
	REQUIRE(ZEFEditorUtils::ZEFSurfaceMeshToSkeletalMeshData(SurfaceMesh, TEXT("SkeletalMesh"), &Data));

	const int32 Bones = SurfaceMesh.Joints.Num();
	REQUIRE(Data.SkeletalMesh->GetRefSkeleton().GetRawBoneNum() == Bones);
	REQUIRE(Data.SkeletalMesh->GetSkeleton() == Data.Skeleton);
	REQUIRE(Data.Materials.Num() == SurfaceMesh.Materials.Num());
	const FSkeletalMeshLODModel& Model = Data.SkeletalMesh->GetImportedModel()->LODModels[0];
	uint32 Vertices = 0;
	for (const FSkelMeshSection& Section : Model.Sections)
	{
		REQUIRE(Section.SoftVertices.Num() == Section.NumVertices);
		REQUIRE(Section.BaseVertexIndex == Vertices);
		REQUIRE(Section.BaseIndex <= static_cast<uint32>(Model.IndexBuffer.Num()));
		REQUIRE(Section.BoneMap.Num() == Bones);
		Vertices += static_cast<uint32>(Section.NumVertices);
		for (const FSoftSkinVertex& Vertex : Section.SoftVertices)
		{
			RequireWeights(Vertex, Bones);
		}
	}
	REQUIRE(Model.NumVertices == Vertices);
	for (const uint32 Index : Model.IndexBuffer)
	{
		REQUIRE(Index < Vertices || Vertices == 0);
	}
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Bytes, std::size_t Size)
{
	Fuzz::ConvertRecords(Bytes, Size, &Convert);
	return 0;
}
