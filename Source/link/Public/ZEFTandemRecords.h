// SPDX-License-Identifier: MIT
/**
 * The plain records that pass between the link and the conversions.
 *
 * Members are public and owned by value: a copy is a deep copy. Units and axes are the engine's: centimetres, Z up,
 * left-handed. Only the engine objects named in the mesh data records are references; the engine owns them.
 */
#pragma once

#include "CoreMinimal.h"

class UMaterialInterface;
class USkeletalMesh;
class USkeleton;
class UTexture2D;

namespace UE
{
namespace Geometry
{
class FDynamicMesh3;
}
} // namespace UE

/** The triangles of one material inside one surface. */
struct FZEFSection
{
	/** Key into FZEFSurfaceMesh::Materials on import; on export the engine section's material index. */
	int32 MaterialIndex = 0;
	/** Three per triangle, local to the surface on import; one or two trailing ones make no triangle. */
	TArray<int32> Indices;
	/** Carried for the owner of the record; no conversion reads or writes it. */
	TArray<uint8> UserData;
};

/** One pool of vertices with its triangles. */
struct FZEFSurface
{
	FString Name;
	int32 SurfaceType = 0;
	/** 1: every material used by a section of this surface is drawn translucent. */
	int32 SurfaceMode = 0;
	/** Index of the first vertex among the vertices of the whole object, and in FZEFSurfaceMesh::VertexInfluences. */
	int32 VertexOffset = 0;
	TArray<FVector3f> Positions;
	/** [Positions.Num()] */
	TArray<FVector3f> Normals;
	/** [Positions.Num()] */
	TArray<FVector3f> Tangents;
	/** [Positions.Num()] or empty */
	TArray<FVector2f> UVs;
	/** Carried for the owner of the record; no conversion reads or writes it. */
	TArray<uint8> UserData;
	TArray<FZEFSection> Sections;
};

/** One bone's part in a vertex. */
struct FZEFBoneInfluence
{
	/** Index into FZEFSurfaceMesh::Joints. */
	int32 BoneIndex = 0;
	/** 0..1 */
	float Weight = 0.0f;
};

/** The bone weights of one vertex. */
struct FZEFVertexInfluence
{
	TArray<FZEFBoneInfluence> Influences;
};

/** One bone. */
struct FZEFJoint
{
	FString Name;
	/** Index of the parent in the same array, -1 for the root. In a frame of a sequence: index into the mesh's Joints.
	 */
	int32 ParentIndex = 0;
	/** Relative to the parent. */
	FTransform3f Transform;
};

/** One pose. */
struct FZEFJointSequenceFrame
{
	/** One entry for each animated bone. */
	TArray<FZEFJoint> Joints;
	/** Seconds from the start of the animation. */
	double Time = 0.0;
};

/** Poses in ascending time. */
struct FZEFJointSequence
{
	TArray<FZEFJointSequenceFrame> Frames;
};

/** A pixel buffer. */
struct FZEFTexture
{
	/** 0: 8 bits, 1: 16 bits in each of the four channels R, G, B, A; -1: the entry holds no image. */
	int32 Format = 0;
	/** Pixels. */
	int32 Width = 0;
	/** Pixels. */
	int32 Height = 0;
	/** Rows of pixels, Width times Height of them. */
	TArray<uint8> Pixels;
};

/** One channel of a material. */
struct FZEFMaterialExpression
{
	/** Key into FZEFSurfaceMesh::Textures; a key that is absent there means that the channel has no map. */
	int32 TextureId = 0;
	/** By slot: 0 intensity of the map (opacity: alpha mode), 1 value, 3 present when a roughness map may be used. */
	TMap<int32, float> Scalars;
	/** Key 0 is the colour of the base colour channel. */
	TMap<int32, FVector4f> Vectors;
	/** Placement of the map: rotation, translation x and y as U and V offset, scale x and y as U and V amount. */
	FTransform3f UVTransform;
};

/** One material. */
struct FZEFMaterial
{
	/** By channel: 0 BaseColor, 1 Normal, 3 Roughness, 4 Metallic, 5 Specular, 6 Opacity; others are ignored. */
	TMap<int32, FZEFMaterialExpression> Expressions;
	/** Part of the names of the built assets. */
	int32 Id = 0;
	/** The user's name for it. */
	FString Name;
	/** 0 to 14, the master material; any other value means none. */
	int32 MaterialKind = 0;
	/** With an Opacity channel, override the blend mode of the instance. */
	bool bUseTransparency = false;
	/** The two strings below are valid, and a Substance material is to be built. */
	bool bSubstance = false;
	FString SubstanceAssetPath;
	FString SubstanceGraphName;
	/** Placement of the texture coordinates of a Substance material. */
	FTransform3f UVTransform;
};

/** One object as it crosses the link. */
struct FZEFSurfaceMesh
{
	TArray<FZEFSurface> Surfaces;
	/** Reference pose, parents before children; empty: no skeleton. */
	TArray<FZEFJoint> Joints;
	/** One entry for each vertex of all surfaces, or empty. */
	TArray<FZEFVertexInfluence> VertexInfluences;
	/** By material id; a key's position in iteration order is the material slot of the built mesh. */
	TMap<int32, FZEFMaterial> Materials;
	/** By texture id. */
	TMap<int32, FZEFTexture> Textures;
};

/** An animation with the mesh that it drives. */
struct FZEFJointAnimation
{
	FZEFSurfaceMesh Mesh;
	FZEFJointSequence Sequence;
};

/** One frame of vertex animation, over all vertices of the object. */
struct FZEFMeshSequenceFrame
{
	TArray<FVector3f> Positions;
	/** [Positions.Num()] */
	TArray<FVector3f> Normals;
	/** [Positions.Num()] */
	TArray<FVector3f> Tangents;
	/** Seconds from the start. */
	double Time = 0.0;
};

/** One built material. */
struct FZEFMaterialData
{
	/** The material instance, or the fallback material. Not owned. */
	UMaterialInterface* Material = nullptr;
	bool bSubstance = false;
	FString SubstanceAssetPath;
	FString SubstanceGraphName;
	FTransform3f UVTransform;
};

/** An object without skeleton, built for the preview. */
struct FZEFDynamicMeshData
{
	/** Prefix of the texture names. */
	FString Name = TEXT("DynamicMesh");
	/** Carried for the owner of the record; no conversion reads or writes it. */
	uint64 UserData = 0;
	/** In the order of FZEFSurfaceMesh::Materials, so that a material slot indexes it. */
	TArray<FZEFMaterialData> Materials;
	/** By texture id; null where none could be built. Not owned. */
	TMap<int32, UTexture2D*> Textures;
	TSharedPtr<UE::Geometry::FDynamicMesh3> DynamicMesh;
};

/** An object with a skeleton, built for the preview. */
struct FZEFSkeletalMeshData
{
	/** Prefix of the texture names and name of the built mesh. */
	FString Name = TEXT("SkeletalMesh");
	/** Carried for the owner of the record; no conversion reads or writes it. */
	uint64 UserData = 0;
	/** In the order of FZEFSurfaceMesh::Materials, so that a material slot indexes it. */
	TArray<FZEFMaterialData> Materials;
	/** By texture id; null where none could be built. Not owned. */
	TMap<int32, UTexture2D*> Textures;
	/** Not owned. */
	USkeletalMesh* SkeletalMesh = nullptr;
	/** Not owned. */
	USkeleton* Skeleton = nullptr;
};
