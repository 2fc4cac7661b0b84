// SPDX-License-Identifier: MIT
#include "ZEFRecordConversion.h"

#include "Containers/StringConv.h"

#include <cstring>
#include <utility>
#include <vector>

namespace ZEFRecordConversion
{

namespace
{
FVector3f ToVector(const Zef::FVec3& Vector)
{
	return FVector3f(Vector.X, Vector.Y, Vector.Z);
}

Zef::FVec3 FromVector(const FVector3f& Vector)
{
	return {Vector.X, Vector.Y, Vector.Z};
}

/** Elements of equal layout. */
template <typename ToType, typename FromType>
void CopyArray(const TArray<FromType>& From, std::vector<ToType>& To)
{
	static_assert(sizeof(ToType) == sizeof(FromType));
	To.resize(static_cast<std::size_t>(From.Num()));
	if (!To.empty())
	{
		std::memcpy(static_cast<void*>(To.data()), From.GetData(), To.size() * sizeof(ToType));
	}
}

FZEFMaterialExpression ToExpression(const Zef::FMaterialExpression& From)
{
	FZEFMaterialExpression Expression;
	Expression.TextureId = From.TextureId;
	for (const auto& [Slot, Value] : From.Scalars)
	{
		Expression.Scalars.Add(Slot, Value);
	}
	for (const auto& [Key, Value] : From.Vectors)
	{
		Expression.Vectors.Add(Key, FVector4f(Value.X, Value.Y, Value.Z, Value.W));
	}
	Expression.UVTransform = ToTransform(From.UVTransform);
	return Expression;
}

Zef::FMaterialExpression FromExpression(const FZEFMaterialExpression& From)
{
	Zef::FMaterialExpression Expression;
	Expression.TextureId = From.TextureId;
	for (const TPair<int32, float>& Scalar : From.Scalars)
	{
		Expression.Scalars.emplace_back(Scalar.Key, Scalar.Value);
	}
	for (const TPair<int32, FVector4f>& Vector : From.Vectors)
	{
		const FVector4f& Value = Vector.Value;
		Expression.Vectors.emplace_back(Vector.Key, Zef::FVec4{Value.X, Value.Y, Value.Z, Value.W});
	}
	Expression.UVTransform = FromTransform(From.UVTransform);
	return Expression;
}

Zef::FSurface FromSurface(const FZEFSurface& From)
{
	Zef::FSurface Surface;
	Surface.Name = FromString(From.Name);
	Surface.SurfaceType = From.SurfaceType;
	Surface.SurfaceMode = From.SurfaceMode;
	Surface.VertexOffset = From.VertexOffset;
	CopyArray(From.Positions, Surface.Positions);
	CopyArray(From.Normals, Surface.Normals);
	CopyArray(From.Tangents, Surface.Tangents);
	CopyArray(From.UVs, Surface.UVs);
	for (const FZEFSection& Section : From.Sections)
	{
		Zef::FSection& Added = Surface.Sections.emplace_back();
		Added.MaterialIndex = Section.MaterialIndex;
		CopyArray(Section.Indices, Added.Indices);
	}
	return Surface;
}

Zef::FInfluences FromInfluences(const TArray<FZEFVertexInfluence>& From)
{
	Zef::FInfluences Influences;
	if (From.IsEmpty())
	{
		return Influences;
	}
	Influences.FirstWeight.reserve(static_cast<std::size_t>(From.Num()) + 1);
	for (const FZEFVertexInfluence& Vertex : From)
	{
		Influences.FirstWeight.push_back(static_cast<std::uint32_t>(Influences.Weights.size()));
		for (const FZEFBoneInfluence& Pair : Vertex.Influences)
		{
			Influences.Weights.push_back({Pair.BoneIndex, Pair.Weight});
		}
	}
	Influences.FirstWeight.push_back(static_cast<std::uint32_t>(Influences.Weights.size()));
	return Influences;
}
} // namespace

FString ToString(const std::string& Text)
{
	const FUTF8ToTCHAR Wide(Text.c_str(), static_cast<int32>(Text.size()));
	return FString(Wide.Length(), Wide.Get());
}

std::string FromString(const FString& Text)
{
	const FTCHARToUTF8 Narrow(*Text, Text.Len());
	return std::string(Narrow.Get(), static_cast<std::size_t>(Narrow.Length()));
}

FTransform3f ToTransform(const Zef::FTransform& Transform)
{
	const Zef::FVec4& Rotation = Transform.Rotation;
	return FTransform3f(FQuat4f(Rotation.X, Rotation.Y, Rotation.Z, Rotation.W), ToVector(Transform.Translation),
		ToVector(Transform.Scale));
}

Zef::FTransform FromTransform(const FTransform3f& Transform)
{
	const FQuat4f Rotation = Transform.GetRotation();
	return {{Rotation.X, Rotation.Y, Rotation.Z, Rotation.W}, FromVector(Transform.GetTranslation()),
		FromVector(Transform.GetScale3D())};
}

FZEFMaterial ToMaterial(const Zef::FMaterial& From)
{
	FZEFMaterial Material;
	for (const auto& [Channel, Expression] : From.Expressions)
	{
		Material.Expressions.Add(Channel, ToExpression(Expression));
	}
	Material.Id = From.Id;
	Material.Name = ToString(From.Name);
	Material.MaterialKind = From.MaterialKind;
	Material.bUseTransparency = From.bUseTransparency;
	Material.bSubstance = From.bSubstance;
	Material.SubstanceAssetPath = ToString(From.SubstanceAssetPath);
	Material.SubstanceGraphName = ToString(From.SubstanceGraphName);
	Material.UVTransform = ToTransform(From.UVTransform);
	return Material;
}

Zef::FMaterial FromMaterial(const FZEFMaterial& From)
{
	Zef::FMaterial Material;
	for (const TPair<int32, FZEFMaterialExpression>& Expression : From.Expressions)
	{
		Material.Expressions.emplace_back(Expression.Key, FromExpression(Expression.Value));
	}
	Material.Id = From.Id;
	Material.Name = FromString(From.Name);
	Material.MaterialKind = From.MaterialKind;
	Material.bUseTransparency = From.bUseTransparency;
	Material.bSubstance = From.bSubstance;
	Material.SubstanceAssetPath = FromString(From.SubstanceAssetPath);
	Material.SubstanceGraphName = FromString(From.SubstanceGraphName);
	Material.UVTransform = FromTransform(From.UVTransform);
	return Material;
}

FZEFJoint ToJoint(const Zef::FJoint& From)
{
	FZEFJoint Joint;
	Joint.Name = ToString(From.Name);
	Joint.ParentIndex = From.ParentIndex;
	Joint.Transform = ToTransform(From.Transform);
	return Joint;
}

Zef::FJoint FromJoint(const FZEFJoint& From)
{
	return {FromString(From.Name), From.ParentIndex, FromTransform(From.Transform)};
}

Zef::FSurfaceMesh FromSurfaceMesh(const FZEFSurfaceMesh& From)
{
	Zef::FSurfaceMesh Mesh;
	for (const FZEFSurface& Surface : From.Surfaces)
	{
		Mesh.Surfaces.push_back(FromSurface(Surface));
	}
	for (const FZEFJoint& Joint : From.Joints)
	{
		Mesh.Joints.push_back(FromJoint(Joint));
	}
	Mesh.VertexInfluences = FromInfluences(From.VertexInfluences);
	for (const TPair<int32, FZEFMaterial>& Material : From.Materials)
	{
		Mesh.Materials.emplace_back(Material.Key, FromMaterial(Material.Value));
	}
	for (const TPair<int32, FZEFTexture>& Texture : From.Textures)
	{
		Zef::FTexture& Added = Mesh.Textures.emplace_back(Texture.Key, Zef::FTexture()).second;
		Added.Format = Texture.Value.Format;
		Added.Width = Texture.Value.Width;
		Added.Height = Texture.Value.Height;
		CopyArray(Texture.Value.Pixels, Added.Pixels);
	}
	return Mesh;
}

Zef::FJointSequence FromSequence(const FZEFJointSequence& From)
{
	Zef::FJointSequence Sequence;
	for (const FZEFJointSequenceFrame& Frame : From.Frames)
	{
		Zef::FJointSequenceFrame& Added = Sequence.Frames.emplace_back();
		Added.Time = Frame.Time;
		for (const FZEFJoint& Joint : Frame.Joints)
		{
			Added.Joints.push_back(FromJoint(Joint));
		}
	}
	return Sequence;
}

void ToSequence(const Zef::FPackedJointSequence& Packed, FZEFJointSequence& OutSequence)
{
	TArray<TArray<FString>> Names;
	for (const Zef::FJointTable& Table : Packed.Tables)
	{
		TArray<FString>& TableNames = Names.AddDefaulted_GetRef();
		for (const Zef::FJointTable::FEntry& Entry : Table.Joints)
		{
			TableNames.Add(ToString(Entry.Name));
		}
	}
	OutSequence.Frames.SetNum(static_cast<int32>(Packed.Times.size()));
	std::size_t Next = 0;
	for (int32 Index = 0; Index < OutSequence.Frames.Num(); ++Index)
	{
		FZEFJointSequenceFrame& Frame = OutSequence.Frames[Index];
		const std::uint32_t TableIndex = Packed.TableOfFrame[static_cast<std::size_t>(Index)];
		const Zef::FJointTable& Table = Packed.Tables[TableIndex];
		Frame.Time = Packed.Times[static_cast<std::size_t>(Index)];
		Frame.Joints.SetNum(static_cast<int32>(Table.Joints.size()));
		for (int32 Joint = 0; Joint < Frame.Joints.Num(); ++Joint)
		{
			Frame.Joints[Joint].Name = Names[static_cast<int32>(TableIndex)][Joint];
			Frame.Joints[Joint].ParentIndex = Table.Joints[static_cast<std::size_t>(Joint)].ParentIndex;
			Frame.Joints[Joint].Transform = ToTransform(Packed.Transforms[Next++]);
		}
	}
}

} // namespace ZEFRecordConversion
