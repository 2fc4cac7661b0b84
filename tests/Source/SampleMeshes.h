// SPDX-License-Identifier: MIT
/** Small received objects for tests. */
#pragma once

#include "ZEFTandemRecords.h"

namespace SampleMeshes
{

/** A pool of `NumVertices` vertices along X, 1 cm apart, normals up, tangents along X, UVs counted up. */
inline FZEFSurface MakeSurface(int32 NumVertices, int32 VertexOffset = 0)
{
	FZEFSurface Surface;
	Surface.VertexOffset = VertexOffset;
	for (int32 Vertex = 0; Vertex < NumVertices; ++Vertex)
	{
		Surface.Positions.Add(FVector3f(static_cast<float>(Vertex), static_cast<float>(Vertex % 2), 0.0f));
		Surface.Normals.Add(FVector3f(0.0f, 0.0f, 1.0f));
		Surface.Tangents.Add(FVector3f(1.0f, 0.0f, 0.0f));
		Surface.UVs.Add(FVector2f(static_cast<float>(Vertex), 0.5f));
	}
	return Surface;
}

inline FZEFSection MakeSection(int32 MaterialIndex, std::initializer_list<int32> Indices)
{
	FZEFSection Section;
	Section.MaterialIndex = MaterialIndex;
	Section.Indices = TArray<int32>(Indices);
	return Section;
}

inline FZEFMaterial MakeMaterial(int32 Id, const TCHAR* Name, int32 Kind)
{
	FZEFMaterial Material;
	Material.Id = Id;
	Material.Name = Name;
	Material.MaterialKind = Kind;
	return Material;
}

/** An image of one colour; Format 0 has 8 bits a channel, 1 has 16. */
inline FZEFTexture MakeTexture(int32 Format, int32 Width, int32 Height, uint8 Fill = 128)
{
	FZEFTexture Texture;
	Texture.Format = Format;
	Texture.Width = Width;
	Texture.Height = Height;
	Texture.Pixels.Init(Fill, Width * Height * (Format == 1 ? 8 : 4));
	return Texture;
}

inline FZEFJoint MakeJoint(const TCHAR* Name, int32 ParentIndex, const FVector3f& Translation = FVector3f(0, 0, 0))
{
	FZEFJoint Joint;
	Joint.Name = Name;
	Joint.ParentIndex = ParentIndex;
	Joint.Transform.SetTranslation(Translation);
	return Joint;
}

/** One triangle without joints. */
inline FZEFSurfaceMesh MakeRigid()
{
	FZEFSurfaceMesh Mesh;
	Mesh.Surfaces.Add(MakeSurface(3));
	Mesh.Surfaces[0].Sections.Add(MakeSection(1, {0, 1, 2}));
	Mesh.Materials.Add(1, MakeMaterial(1, TEXT("Cotton"), 0));
	return Mesh;
}

/** One triangle on a skeleton of two joints, all weight on the second. */
inline FZEFSurfaceMesh MakeSkinned()
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Joints.Add(MakeJoint(TEXT("root"), -1));
	Mesh.Joints.Add(MakeJoint(TEXT("Spine"), 0, FVector3f(0, 0, 10)));
	for (int32 Vertex = 0; Vertex < 3; ++Vertex)
	{
		Mesh.VertexInfluences.AddDefaulted_GetRef().Influences.Add({1, 1.0f});
	}
	return Mesh;
}

} // namespace SampleMeshes
