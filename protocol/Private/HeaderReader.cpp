// SPDX-License-Identifier: MIT
#include "HeaderReader.h"

namespace Zef
{

namespace
{
std::string Text(const flatbuffers::String* String)
{
	return String != nullptr ? String->str() : std::string();
}

template <class TVector>
std::size_t Size(const TVector* Vector)
{
	return Vector != nullptr ? Vector->size() : 0;
}

FVec4 FromWire(const Wire::Vec4& Value)
{
	return {Value.x(), Value.y(), Value.z(), Value.w()};
}

FVec3 FromWire(const Wire::Vec3& Value)
{
	return {Value.x(), Value.y(), Value.z()};
}

FTransform FromWire(const Wire::Transform* Value)
{
	return Value != nullptr
			   ? FTransform{FromWire(Value->rotation()), FromWire(Value->translation()), FromWire(Value->scale())}
			   : FTransform{};
}

void ReadSurface(const Wire::Surface& Table, FSurface& OutSurface, FSurfaceCounts& OutCounts)
{
	OutSurface.Name = Text(Table.name());
	OutSurface.SurfaceType = Table.surface_type();
	OutSurface.SurfaceMode = Table.surface_mode();
	OutSurface.VertexOffset = Table.vertex_offset();
	OutCounts.Positions = Table.positions();
	OutCounts.Normals = Table.normals();
	OutCounts.Tangents = Table.tangents();
	OutCounts.UVs = Table.uvs();
	const std::size_t Sections = Size(Table.sections());
	OutSurface.Sections.resize(Sections);
	OutCounts.SectionIndices.resize(Sections);
	for (std::size_t Index = 0; Index < Sections; ++Index)
	{
		const Wire::Section& Section = *Table.sections()->Get(static_cast<flatbuffers::uoffset_t>(Index));
		OutSurface.Sections[Index].MaterialIndex = Section.material();
		OutCounts.SectionIndices[Index] = Section.indices();
	}
}

FMaterialExpression ReadExpression(const Wire::Expression& Table)
{
	FMaterialExpression Expression;
	Expression.TextureId = Table.texture();
	if (Table.scalars() != nullptr)
	{
		for (const Wire::ScalarEntry* Entry : *Table.scalars())
		{
			Expression.Scalars.emplace_back(Entry->key(), Entry->value());
		}
	}
	if (Table.vectors() != nullptr)
	{
		for (const Wire::VectorEntry* Entry : *Table.vectors())
		{
			Expression.Vectors.emplace_back(Entry->key(), FromWire(Entry->value()));
		}
	}
	Expression.UVTransform = FromWire(Table.uv_transform());
	return Expression;
}

FMaterial ReadMaterial(const Wire::Material& Table)
{
	FMaterial Material;
	Material.Id = Table.id();
	Material.Name = Text(Table.name());
	Material.MaterialKind = Table.kind();
	Material.bUseTransparency = Table.transparency();
	Material.bSubstance = Table.substance();
	Material.SubstanceAssetPath = Text(Table.substance_asset());
	Material.SubstanceGraphName = Text(Table.substance_graph());
	Material.UVTransform = FromWire(Table.uv_transform());
	if (Table.expressions() != nullptr)
	{
		for (const Wire::Expression* Expression : *Table.expressions())
		{
			Material.Expressions.emplace_back(Expression->channel(), ReadExpression(*Expression));
		}
	}
	return Material;
}
} // namespace

EItem ItemOf(Wire::Body Body)
{
	switch (Body)
	{
		case Wire::Body::EnableRequest:
			return EItem::Enable;
		case Wire::Body::UpdateRequest:
			return EItem::RequestUpdate;
		case Wire::Body::AnimationRequest:
			return EItem::RequestAnimation;
		case Wire::Body::AvailabilityRequest:
			return EItem::RequestAvailability;
		case Wire::Body::JointAnimationRequest:
			return EItem::SendJointAnimation;
		case Wire::Body::SurfaceMeshReply:
			return EItem::SurfaceMesh;
		case Wire::Body::JointAnimationReply:
			return EItem::JointAnimation;
		case Wire::Body::SequenceBeginReply:
			return EItem::SequenceBegin;
		case Wire::Body::SequenceFrameReply:
			return EItem::SequenceFrame;
		case Wire::Body::SequenceEndReply:
			return EItem::SequenceEnd;
		case Wire::Body::AvailabilityReply:
			return EItem::Availability;
		case Wire::Body::FaultReport:
			return EItem::Fault;
		case Wire::Body::NONE:
			break;
	}
	return EItem::None;
}

void ReadMesh(const Wire::Mesh& Table, FMeshHeader& OutHeader)
{
	FSurfaceMesh& Mesh = OutHeader.Structure;
	FMeshCounts& Counts = OutHeader.Counts;
	const std::size_t Surfaces = Size(Table.surfaces());
	Mesh.Surfaces.resize(Surfaces);
	Counts.Surfaces.resize(Surfaces);
	for (std::size_t Index = 0; Index < Surfaces; ++Index)
	{
		ReadSurface(*Table.surfaces()->Get(static_cast<flatbuffers::uoffset_t>(Index)), Mesh.Surfaces[Index],
			Counts.Surfaces[Index]);
	}
	if (Table.joints() != nullptr)
	{
		Mesh.Joints.reserve(Table.joints()->size());
		for (const Wire::Joint* Joint : *Table.joints())
		{
			Mesh.Joints.push_back({Text(Joint->name()), Joint->parent(), FromWire(Joint->transform())});
		}
	}
	Counts.FirstWeight = Table.first_weight();
	Counts.Weights = Table.weights();
	if (Table.materials() != nullptr)
	{
		for (const Wire::Material* Material : *Table.materials())
		{
			Mesh.Materials.emplace_back(Material->key(), ReadMaterial(*Material));
		}
	}
	if (Table.textures() != nullptr)
	{
		for (const Wire::Texture* Texture : *Table.textures())
		{
			Mesh.Textures.emplace_back(
				Texture->key(), FTexture{Texture->format(), Texture->width(), Texture->height(), {}});
			Counts.TexturePixels.push_back(Texture->pixels());
		}
	}
}

std::vector<FJointTable> ReadTables(const Wire::JointSequence& Table)
{
	std::vector<FJointTable> Tables;
	if (Table.tables() == nullptr)
	{
		return Tables;
	}
	for (const Wire::JointTable* Layout : *Table.tables())
	{
		FJointTable& Entry = Tables.emplace_back();
		if (Layout->joints() == nullptr)
		{
			continue;
		}
		Entry.Joints.reserve(Layout->joints()->size());
		for (const Wire::JointTableEntry* Joint : *Layout->joints())
		{
			Entry.Joints.push_back({Text(Joint->name()), Joint->parent()});
		}
	}
	return Tables;
}

} // namespace Zef
