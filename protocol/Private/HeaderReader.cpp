// SPDX-License-Identifier: MIT
#include "HeaderReader.h"

#include "ArrayCheck.h"
#include "Text.h"

namespace Zef
{

namespace
{
/** An array that will arrive is noted as a slot and as a rule. */
constexpr std::size_t BytesOfArray = sizeof(FArraySlot) + sizeof(FArrayRule);

constexpr std::size_t BytesOfSurface = sizeof(FSurface) + sizeof(FSurfaceCounts) + 4 * BytesOfArray;
constexpr std::size_t BytesOfSection = sizeof(FSection) + sizeof(std::uint64_t) + BytesOfArray;
constexpr std::size_t BytesOfTexture = sizeof(std::pair<std::int32_t, FTexture>) + sizeof(std::uint64_t) + BytesOfArray;

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

/** The entry of a vector of tables. */
template <class TTable>
const TTable& Entry(const flatbuffers::Vector<flatbuffers::Offset<TTable>>& Vector, std::size_t Index)
{
	return *Vector.Get(static_cast<flatbuffers::uoffset_t>(Index));
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
		case Wire::Body::UpdateAnnouncement:
			return EItem::UpdateAnnouncement;
		case Wire::Body::NONE:
			break;
	}
	return EItem::None;
}

EItem KindOfHeader(FByteView Header)
{
	// Verification wants the alignment that a vector's memory has.
	const FBytes Aligned(Header.begin(), Header.end());
	flatbuffers::Verifier Verifier(Aligned.data(), Aligned.size());
	return Wire::VerifySizePrefixedItemBuffer(Verifier) ? ItemOf(Wire::GetSizePrefixedItem(Aligned.data())->body_type())
														: EItem::None;
}

FHeaderReader::FHeaderReader(FMemoryBudget& InBudget)
	: Budget(InBudget)
{
}

bool FHeaderReader::OverBudget(const char* Name)
{
	Fault = MakeFault(EFault::OverBudget, At("", Name),
		"At most " + std::to_string(Budget.Total()) +
			" bytes of memory were expected for all that the header names; they are used up here.");
	return false;
}

bool FHeaderReader::Inside(const char* List, std::size_t Index)
{
	Fault.Path.insert(0, At("", List, Index));
	return false;
}

/** Takes the memory of a list from the budget. */
template <class TVector>
bool FHeaderReader::Reserve(const TVector* Vector, std::size_t ElementBytes, const char* Name)
{
	return Budget.Take(Size(Vector), ElementBytes) || OverBudget(Name);
}

bool FHeaderReader::ReadText(const flatbuffers::String* String, std::string& OutText, const char* Name)
{
	if (!Budget.Take(Size(String)))
	{
		return OverBudget(Name);
	}
	if (String != nullptr)
	{
		OutText.assign(String->c_str(), String->size());
	}
	return true;
}

bool FHeaderReader::ReadSurface(const Wire::Surface& Table, FSurface& OutSurface, FSurfaceCounts& OutCounts)
{
	const std::size_t Sections = Size(Table.sections());
	if (!ReadText(Table.name(), OutSurface.Name, "Name") || !Reserve(Table.sections(), BytesOfSection, "Sections"))
	{
		return false;
	}
	OutSurface.SurfaceType = Table.surface_type();
	OutSurface.SurfaceMode = Table.surface_mode();
	OutSurface.VertexOffset = Table.vertex_offset();
	OutCounts.Positions = Table.positions();
	OutCounts.Normals = Table.normals();
	OutCounts.Tangents = Table.tangents();
	OutCounts.UVs = Table.uvs();
	OutSurface.Sections.resize(Sections);
	OutCounts.SectionIndices.resize(Sections);
	for (std::size_t Index = 0; Index < Sections; ++Index)
	{
		const Wire::Section& Section = Entry(*Table.sections(), Index);
		OutSurface.Sections[Index].MaterialIndex = Section.material();
		OutCounts.SectionIndices[Index] = Section.indices();
	}
	return true;
}

bool FHeaderReader::ReadExpression(const Wire::Expression& Table, FMaterialExpression& OutExpression)
{
	if (!Reserve(Table.scalars(), sizeof(OutExpression.Scalars[0]), "Scalars") ||
		!Reserve(Table.vectors(), sizeof(OutExpression.Vectors[0]), "Vectors"))
	{
		return false;
	}
	OutExpression.TextureId = Table.texture();
	OutExpression.UVTransform = FromWire(Table.uv_transform());
	OutExpression.Scalars.reserve(Size(Table.scalars()));
	for (std::size_t Index = 0; Index < Size(Table.scalars()); ++Index)
	{
		const Wire::ScalarEntry& Scalar = *Table.scalars()->Get(static_cast<flatbuffers::uoffset_t>(Index));
		OutExpression.Scalars.emplace_back(Scalar.key(), Scalar.value());
	}
	OutExpression.Vectors.reserve(Size(Table.vectors()));
	for (std::size_t Index = 0; Index < Size(Table.vectors()); ++Index)
	{
		const Wire::VectorEntry& Vector = *Table.vectors()->Get(static_cast<flatbuffers::uoffset_t>(Index));
		OutExpression.Vectors.emplace_back(Vector.key(), FromWire(Vector.value()));
	}
	return true;
}

bool FHeaderReader::ReadMaterial(const Wire::Material& Table, FMaterial& OutMaterial)
{
	if (!ReadText(Table.name(), OutMaterial.Name, "Name") ||
		!ReadText(Table.substance_asset(), OutMaterial.SubstanceAssetPath, "SubstanceAssetPath") ||
		!ReadText(Table.substance_graph(), OutMaterial.SubstanceGraphName, "SubstanceGraphName") ||
		!Reserve(Table.expressions(), sizeof(OutMaterial.Expressions[0]), "Expressions"))
	{
		return false;
	}
	OutMaterial.Id = Table.id();
	OutMaterial.MaterialKind = Table.kind();
	OutMaterial.bUseTransparency = Table.transparency();
	OutMaterial.bSubstance = Table.substance();
	OutMaterial.UVTransform = FromWire(Table.uv_transform());
	OutMaterial.Expressions.resize(Size(Table.expressions()));
	for (std::size_t Index = 0; Index < OutMaterial.Expressions.size(); ++Index)
	{
		const Wire::Expression& Expression = Entry(*Table.expressions(), Index);
		OutMaterial.Expressions[Index].first = Expression.channel();
		if (!ReadExpression(Expression, OutMaterial.Expressions[Index].second))
		{
			return Inside("Expressions", Index);
		}
	}
	return true;
}

bool FHeaderReader::ReadMesh(const Wire::Mesh& Table, FMeshHeader& OutHeader)
{
	FSurfaceMesh& Mesh = OutHeader.Structure;
	FMeshCounts& Counts = OutHeader.Counts;
	if (!Reserve(Table.surfaces(), BytesOfSurface, "Surfaces") || !Reserve(Table.joints(), sizeof(FJoint), "Joints") ||
		!Reserve(Table.materials(), sizeof(Mesh.Materials[0]), "Materials") ||
		!Reserve(Table.textures(), BytesOfTexture, "Textures"))
	{
		return false;
	}
	Mesh.Surfaces.resize(Size(Table.surfaces()));
	Counts.Surfaces.resize(Mesh.Surfaces.size());
	for (std::size_t Index = 0; Index < Mesh.Surfaces.size(); ++Index)
	{
		if (!ReadSurface(Entry(*Table.surfaces(), Index), Mesh.Surfaces[Index], Counts.Surfaces[Index]))
		{
			return Inside("Surfaces", Index);
		}
	}
	Mesh.Joints.resize(Size(Table.joints()));
	for (std::size_t Index = 0; Index < Mesh.Joints.size(); ++Index)
	{
		const Wire::Joint& Joint = Entry(*Table.joints(), Index);
		Mesh.Joints[Index].ParentIndex = Joint.parent();
		Mesh.Joints[Index].Transform = FromWire(Joint.transform());
		if (!ReadText(Joint.name(), Mesh.Joints[Index].Name, "Name"))
		{
			return Inside("Joints", Index);
		}
	}
	Counts.FirstWeight = Table.first_weight();
	Counts.Weights = Table.weights();
	Mesh.Materials.resize(Size(Table.materials()));
	for (std::size_t Index = 0; Index < Mesh.Materials.size(); ++Index)
	{
		const Wire::Material& Material = Entry(*Table.materials(), Index);
		Mesh.Materials[Index].first = Material.key();
		if (!ReadMaterial(Material, Mesh.Materials[Index].second))
		{
			return Inside("Materials", Index);
		}
	}
	Mesh.Textures.reserve(Size(Table.textures()));
	Counts.TexturePixels.reserve(Size(Table.textures()));
	for (std::size_t Index = 0; Index < Size(Table.textures()); ++Index)
	{
		const Wire::Texture& Texture = Entry(*Table.textures(), Index);
		Mesh.Textures.emplace_back(Texture.key(), FTexture{Texture.format(), Texture.width(), Texture.height(), {}});
		Counts.TexturePixels.push_back(Texture.pixels());
	}
	return true;
}

bool FHeaderReader::ReadTables(const Wire::JointSequence& Table, std::vector<FJointTable>& OutTables)
{
	if (!Reserve(Table.tables(), sizeof(FJointTable), "Tables"))
	{
		return false;
	}
	OutTables.resize(Size(Table.tables()));
	for (std::size_t Index = 0; Index < OutTables.size(); ++Index)
	{
		const Wire::JointTable& Layout = Entry(*Table.tables(), Index);
		std::vector<FJointTable::FEntry>& Joints = OutTables[Index].Joints;
		if (!Reserve(Layout.joints(), sizeof(FJointTable::FEntry), "Joints"))
		{
			return Inside("Tables", Index);
		}
		Joints.resize(Size(Layout.joints()));
		for (std::size_t Joint = 0; Joint < Joints.size(); ++Joint)
		{
			const Wire::JointTableEntry& Named = Entry(*Layout.joints(), Joint);
			Joints[Joint].ParentIndex = Named.parent();
			if (!ReadText(Named.name(), Joints[Joint].Name, "Name"))
			{
				Inside("Joints", Joint);
				return Inside("Tables", Index);
			}
		}
	}
	return true;
}

} // namespace Zef
