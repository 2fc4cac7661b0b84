// SPDX-License-Identifier: MIT
#include "HeaderWriter.h"

namespace Zef
{

namespace
{
using FBuilder = flatbuffers::FlatBufferBuilder;

Wire::Transform ToWire(const FTransform& Value)
{
	return {Wire::Vec4(Value.Rotation.X, Value.Rotation.Y, Value.Rotation.Z, Value.Rotation.W),
		Wire::Vec3(Value.Translation.X, Value.Translation.Y, Value.Translation.Z),
		Wire::Vec3(Value.Scale.X, Value.Scale.Y, Value.Scale.Z)};
}

flatbuffers::Offset<Wire::Surface> WriteSurface(FBuilder& Builder, const FSurface& Surface)
{
	std::vector<flatbuffers::Offset<Wire::Section>> Sections;
	Sections.reserve(Surface.Sections.size());
	for (const FSection& Section : Surface.Sections)
	{
		Sections.push_back(Wire::CreateSection(Builder, Section.MaterialIndex, Section.Indices.size()));
	}
	const auto Name = Builder.CreateString(Surface.Name);
	const auto SectionList = Builder.CreateVector(Sections);
	return Wire::CreateSurface(Builder, Name, Surface.SurfaceType, Surface.SurfaceMode, Surface.VertexOffset,
		Surface.Positions.size(), Surface.Normals.size(), Surface.Tangents.size(), Surface.UVs.size(), SectionList);
}

flatbuffers::Offset<Wire::Expression> WriteExpression(
	FBuilder& Builder, std::int32_t Channel, const FMaterialExpression& Expression)
{
	std::vector<Wire::ScalarEntry> Scalars;
	for (const auto& [Key, Value] : Expression.Scalars)
	{
		Scalars.emplace_back(Key, Value);
	}
	std::vector<Wire::VectorEntry> Vectors;
	for (const auto& [Key, Value] : Expression.Vectors)
	{
		Vectors.emplace_back(Key, Wire::Vec4(Value.X, Value.Y, Value.Z, Value.W));
	}
	const auto ScalarList = Builder.CreateVectorOfStructs(Scalars);
	const auto VectorList = Builder.CreateVectorOfStructs(Vectors);
	const Wire::Transform UVTransform = ToWire(Expression.UVTransform);
	return Wire::CreateExpression(Builder, Channel, Expression.TextureId, ScalarList, VectorList, &UVTransform);
}

flatbuffers::Offset<Wire::Material> WriteMaterial(FBuilder& Builder, std::int32_t Key, const FMaterial& Material)
{
	std::vector<flatbuffers::Offset<Wire::Expression>> Expressions;
	for (const auto& [Channel, Expression] : Material.Expressions)
	{
		Expressions.push_back(WriteExpression(Builder, Channel, Expression));
	}
	const auto Name = Builder.CreateString(Material.Name);
	const auto Asset = Builder.CreateString(Material.SubstanceAssetPath);
	const auto Graph = Builder.CreateString(Material.SubstanceGraphName);
	const auto ExpressionList = Builder.CreateVector(Expressions);
	const Wire::Transform UVTransform = ToWire(Material.UVTransform);
	return Wire::CreateMaterial(Builder, Key, Material.Id, Name, Material.MaterialKind, Material.bUseTransparency,
		Material.bSubstance, Asset, Graph, &UVTransform, ExpressionList);
}
} // namespace

flatbuffers::Offset<Wire::Mesh> WriteMesh(FBuilder& Builder, const FSurfaceMesh& Mesh)
{
	std::vector<flatbuffers::Offset<Wire::Surface>> Surfaces;
	Surfaces.reserve(Mesh.Surfaces.size());
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		Surfaces.push_back(WriteSurface(Builder, Surface));
	}
	std::vector<flatbuffers::Offset<Wire::Joint>> Joints;
	Joints.reserve(Mesh.Joints.size());
	for (const FJoint& Joint : Mesh.Joints)
	{
		const auto Name = Builder.CreateString(Joint.Name);
		const Wire::Transform Transform = ToWire(Joint.Transform);
		Joints.push_back(Wire::CreateJoint(Builder, Name, Joint.ParentIndex, &Transform));
	}
	std::vector<flatbuffers::Offset<Wire::Material>> Materials;
	for (const auto& [Key, Material] : Mesh.Materials)
	{
		Materials.push_back(WriteMaterial(Builder, Key, Material));
	}
	std::vector<flatbuffers::Offset<Wire::Texture>> Textures;
	for (const auto& [Key, Texture] : Mesh.Textures)
	{
		Textures.push_back(
			Wire::CreateTexture(Builder, Key, Texture.Format, Texture.Width, Texture.Height, Texture.Pixels.size()));
	}
	const auto SurfaceList = Builder.CreateVector(Surfaces);
	const auto JointList = Builder.CreateVector(Joints);
	const auto MaterialList = Builder.CreateVector(Materials);
	const auto TextureList = Builder.CreateVector(Textures);
	return Wire::CreateMesh(Builder, SurfaceList, JointList, Mesh.VertexInfluences.FirstWeight.size(),
		Mesh.VertexInfluences.Weights.size(), MaterialList, TextureList);
}

flatbuffers::Offset<Wire::JointSequence> WriteSequence(FBuilder& Builder, const FPackedJointSequence& Sequence)
{
	std::vector<flatbuffers::Offset<Wire::JointTable>> Tables;
	for (const FJointTable& Table : Sequence.Tables)
	{
		std::vector<flatbuffers::Offset<Wire::JointTableEntry>> Entries;
		Entries.reserve(Table.Joints.size());
		for (const FJointTable::FEntry& Entry : Table.Joints)
		{
			// Layouts repeat the names of the skeleton; shared strings keep the header short.
			const auto Name = Builder.CreateSharedString(Entry.Name);
			Entries.push_back(Wire::CreateJointTableEntry(Builder, Name, Entry.ParentIndex));
		}
		const auto EntryList = Builder.CreateVector(Entries);
		Tables.push_back(Wire::CreateJointTable(Builder, EntryList));
	}
	const auto TableList = Builder.CreateVector(Tables);
	return Wire::CreateJointSequence(Builder, TableList, Sequence.Times.size(), Sequence.Transforms.size());
}

} // namespace Zef
