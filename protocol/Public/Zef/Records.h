// SPDX-License-Identifier: MIT
/**
 * The records that cross the link, as plain data of the standard library.
 *
 * Both ends of the link build and read these; the plug-in's runtime module maps them to engine types. Units and axes
 * are the engine's: centimetres, Z up, left-handed, front faces as the engine winds them. Text is UTF-8.
 */
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Zef
{

struct FVec2
{
	float X = 0, Y = 0;

	bool operator==(const FVec2&) const = default;
};

struct FVec3
{
	float X = 0, Y = 0, Z = 0;

	bool operator==(const FVec3&) const = default;
};

struct FVec4
{
	float X = 0, Y = 0, Z = 0, W = 0;

	bool operator==(const FVec4&) const = default;
};

/** Rotation (quaternion x, y, z, w), then translation, then scale. The default is the identity. */
struct FTransform
{
	FVec4 Rotation{0, 0, 0, 1};
	FVec3 Translation{0, 0, 0};
	FVec3 Scale{1, 1, 1};

	bool operator==(const FTransform&) const = default;
};

/** Single-bit values; the same numbers serve as a mask. */
enum class EObjectType : std::int32_t
{
	Garment = 2,
	Avatar = 4,
	Outfit = 8,
	Prop = 16,
	Invalid = 255
};

enum class EAnimationKind : std::int32_t
{
	MeshSequence = 0,
	JointAnimation = 1,
	None = 2
};

struct FPackingOptions
{
	/** Merge vertices that are equal in every attribute before sending. */
	bool bWeld = false;
	/** Send each garment with one material in place of its own ones. */
	bool bUnifiedMaterial = false;

	bool operator==(const FPackingOptions&) const = default;
};

struct FObjectTypeInfo
{
	EObjectType ObjectType = EObjectType::Invalid;
	EAnimationKind AnimationKind = EAnimationKind::None;

	bool operator==(const FObjectTypeInfo&) const = default;
};

struct FAvailability
{
	bool bFlag0 = false;
	bool bGarmentHasAnimation = false;
	bool bFlag2 = false;
	bool bAvatarHasAnimation = false;
	bool bAvatarHasSkeleton = false;

	bool operator==(const FAvailability&) const = default;
};

/** Triangles of one material inside one surface. */
struct FSection
{
	std::int32_t MaterialIndex = 0;	   // key into FSurfaceMesh::Materials
	std::vector<std::int32_t> Indices; // three per triangle, local to the surface

	bool operator==(const FSection&) const = default;
};

/** One vertex pool. Normals and Tangents are [Positions.size()]; UVs the same or empty. */
struct FSurface
{
	std::string Name;
	std::int32_t SurfaceType = 0;
	std::int32_t SurfaceMode = 0;  // 1: every material of this surface is drawn translucent
	std::int32_t VertexOffset = 0; // count of the vertices of the surfaces before this one
	std::vector<FVec3> Positions;
	std::vector<FVec3> Normals;
	std::vector<FVec3> Tangents;
	std::vector<FVec2> UVs;
	std::vector<FSection> Sections;

	bool operator==(const FSurface&) const = default;
};

struct FJoint
{
	std::string Name;
	std::int32_t ParentIndex = -1; // -1: root; parents stand before children
	FTransform Transform;		   // relative to the parent

	bool operator==(const FJoint&) const = default;
};

struct FBoneWeight
{
	std::int32_t BoneIndex = 0;
	float Weight = 0;

	bool operator==(const FBoneWeight&) const = default;
};

/**
 * Bone weights of all vertices, packed. Vertex v owns Weights[FirstWeight[v] .. FirstWeight[v + 1]).
 * FirstWeight is [vertex count + 1], or empty when the object has no influences.
 */
struct FInfluences
{
	std::vector<std::uint32_t> FirstWeight;
	std::vector<FBoneWeight> Weights;

	std::size_t VertexCount() const { return FirstWeight.empty() ? 0 : FirstWeight.size() - 1; }

	bool operator==(const FInfluences&) const = default;
};

/** Keys of FMaterial::Expressions. */
namespace MaterialChannel
{
enum : std::int32_t
{
	BaseColor = 0,
	Normal = 1,
	Unused = 2,
	Roughness = 3,
	Metallic = 4,
	Specular = 5,
	Opacity = 6
};
}

/** One channel of a material. The pairs are a map in order; a key stands once. */
struct FMaterialExpression
{
	std::int32_t TextureId = -1; // key into FSurfaceMesh::Textures; absent there: no map
	std::vector<std::pair<std::int32_t, float>>
		Scalars; // 0 intensity (opacity: alpha mode), 1 value, 3 roughness map used
	std::vector<std::pair<std::int32_t, FVec4>> Vectors; // 0 colour of BaseColor
	FTransform UVTransform;								 // rotation about z, translation xy = offset, scale xy = amount

	bool operator==(const FMaterialExpression&) const = default;
};

struct FMaterial
{
	std::vector<std::pair<std::int32_t, FMaterialExpression>> Expressions; // by MaterialChannel, in order
	std::int32_t Id = 0;
	std::string Name;
	std::int32_t MaterialKind = 0; // 0..14: Matte Shiny Metal Plastic Leather Silk Velvet GlassGem Fur Light Glitter
								   // GlassGem Skin Iridescence KnitWear
	bool bUseTransparency = false;
	bool bSubstance = false;
	std::string SubstanceAssetPath;
	std::string SubstanceGraphName;
	FTransform UVTransform;

	bool operator==(const FMaterial&) const = default;
};

/** Pixels, rows top to bottom, four channels R, G, B, A. */
struct FTexture
{
	std::int32_t Format = -1; // 0: 8 bits per channel; 1: 16 bits, little-endian; -1: no image
	std::int32_t Width = 0;
	std::int32_t Height = 0;
	std::vector<std::uint8_t> Pixels; // [Width * Height * (Format == 0 ? 4 : 8)]

	bool operator==(const FTexture&) const = default;
};

/** One object. Maps are in order; a material's position is its slot. */
struct FSurfaceMesh
{
	std::vector<FSurface> Surfaces;
	std::vector<FJoint> Joints; // empty: no skeleton
	FInfluences VertexInfluences;
	std::vector<std::pair<std::int32_t, FMaterial>> Materials;
	std::vector<std::pair<std::int32_t, FTexture>> Textures;

	bool operator==(const FSurfaceMesh&) const = default;
};

struct FJointSequenceFrame
{
	std::vector<FJoint> Joints;
	double Time = 0; // seconds

	bool operator==(const FJointSequenceFrame&) const = default;
};

struct FJointSequence
{
	std::vector<FJointSequenceFrame> Frames;

	bool operator==(const FJointSequence&) const = default;
};

struct FJointAnimation
{
	FSurfaceMesh Mesh;
	FJointSequence Sequence;

	bool operator==(const FJointAnimation&) const = default;
};

/** One frame of vertex animation over all vertices of the object. */
struct FMeshSequenceFrame
{
	std::vector<FVec3> Positions;
	std::vector<FVec3> Normals;
	std::vector<FVec3> Tangents;
	double Time = 0; // seconds

	bool operator==(const FMeshSequenceFrame&) const = default;
};

} // namespace Zef
