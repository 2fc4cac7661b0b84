// SPDX-License-Identifier: MIT
#include "Support/RecordMutator.h"

#include <algorithm>
#include <limits>

namespace Fuzz
{

namespace
{
using Zef::FSurface;
using Zef::FSurfaceMesh;

constexpr std::size_t MaxVertices = 64;
constexpr std::size_t MaxList = 6;
constexpr std::size_t MaxFrames = 8;

std::size_t Below(FRandom& Random, std::size_t End)
{
	return End == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, End - 1)(Random);
}

bool OneIn(FRandom& Random, std::size_t Count)
{
	return Below(Random, Count) == 0;
}

template <class TElement, std::size_t Count>
const TElement& Pick(FRandom& Random, const TElement (&Values)[Count])
{
	return Values[Below(Random, Count)];
}

float Float(FRandom& Random)
{
	static constexpr float Values[] = {0, -0.0f, 1, -1, 0.5f, 1.0f / 65535, 1.0001f, 1e-8f, 1e-30f, 1e-45f, 1e6f, 3e38f,
		-3e38f, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()};
	// The last two are refused everywhere: rare, so that most records go on.
	return OneIn(Random, 16) ? Pick(Random, Values)
							 : (OneIn(Random, 2) ? Values[Below(Random, std::size(Values) - 2)]
												 : std::uniform_real_distribution<float>(-10, 10)(Random));
}

std::int32_t Int(FRandom& Random)
{
	static constexpr std::int32_t Values[] = {0, 1, 2, 3, 4, 5, 6, 7, 14, 15, -1, -2, 255, 65535, 65536,
		std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()};
	return OneIn(Random, 8) ? static_cast<std::int32_t>(Random()) : Pick(Random, Values);
}

std::string Name(FRandom& Random)
{
	static const std::string Names[] = {"", "None", "Root", "root", "Spine", "Bone_1", "Bone_01", "Bone_0",
		"a b%c/d\\e", "..", "/Game/X.X",
		"R\xc3\xbc"
		"cken",
		"\xf0\x9f\x91\x97", "\xff\xfe", std::string("a\0b", 3), std::string(512, 'n'), std::string(513, 'n'), "\n\t\"'",
		"TempMaterial", "{0}", "%s%n", "CON", "Bone_2147483648", "-", "_"};
	return OneIn(Random, 4) ? "N" + std::to_string(Random()) : Pick(Random, Names);
}

Zef::FVec3 Vector(FRandom& Random)
{
	return {Float(Random), Float(Random), Float(Random)};
}

Zef::FTransform Transform(FRandom& Random)
{
	return {{Float(Random), Float(Random), Float(Random), Float(Random)}, Vector(Random), Vector(Random)};
}

void ResizeVertices(FSurface& Surface, std::size_t Count, bool bUVs)
{
	Surface.Positions.resize(Count);
	Surface.Normals.resize(Count, {0, 0, 1});
	Surface.Tangents.resize(Count, {1, 0, 0});
	Surface.UVs.resize(bUVs ? Count : 0);
}

void MutateVertices(FSurface& Surface, FRandom& Random)
{
	switch (Below(Random, 5))
	{
		case 0:
			ResizeVertices(Surface, Below(Random, MaxVertices), !OneIn(Random, 4));
			break;
		case 1:
			(OneIn(Random, 2) ? Surface.Normals : Surface.Tangents).resize(Below(Random, MaxVertices));
			break;
		case 2:
			Surface.UVs.resize(Below(Random, MaxVertices));
			break;
		default:
			for (std::vector<Zef::FVec3>* Array : {&Surface.Positions, &Surface.Normals, &Surface.Tangents})
			{
				if (!Array->empty())
				{
					(*Array)[Below(Random, Array->size())] = Vector(Random);
				}
			}
	}
}

void MutateSections(FSurface& Surface, FRandom& Random)
{
	if (Surface.Sections.empty() || (OneIn(Random, 4) && Surface.Sections.size() < MaxList))
	{
		Surface.Sections.push_back({Int(Random), {}});
	}
	Zef::FSection& Section = Surface.Sections[Below(Random, Surface.Sections.size())];
	switch (Below(Random, 5))
	{
		case 0:
			Section.MaterialIndex = Int(Random);
			break;
		case 1:
			Section.Indices.resize(Below(Random, 3 * MaxVertices));
			break;
		case 2:
			if (!Section.Indices.empty())
			{
				Section.Indices[Below(Random, Section.Indices.size())] = Int(Random);
			}
			break;
		case 3:
			Surface.Sections.erase(
				Surface.Sections.begin() + static_cast<std::ptrdiff_t>(Below(Random, Surface.Sections.size())));
			break;
		default:
			for (int Triangle = 0; Triangle < 4; ++Triangle)
			{
				for (int Corner = 0; Corner < 3; ++Corner)
				{
					Section.Indices.push_back(static_cast<std::int32_t>(Below(Random, Surface.Positions.size())));
				}
			}
	}
}

void MutateSurfaces(FSurfaceMesh& Mesh, FRandom& Random)
{
	if (Mesh.Surfaces.empty() || (OneIn(Random, 6) && Mesh.Surfaces.size() < MaxList))
	{
		ResizeVertices(Mesh.Surfaces.emplace_back(), 3, true);
	}
	const std::size_t Index = Below(Random, Mesh.Surfaces.size());
	FSurface& Surface = Mesh.Surfaces[Index];
	switch (Below(Random, 8))
	{
		case 0:
			Surface.Name = Name(Random);
			break;
		case 1:
			Surface.SurfaceMode = Int(Random);
			Surface.SurfaceType = Int(Random);
			break;
		case 2:
			Surface.VertexOffset = Int(Random);
			break;
		case 3:
			Mesh.Surfaces.erase(Mesh.Surfaces.begin() + static_cast<std::ptrdiff_t>(Index));
			break;
		case 4:
			MutateVertices(Surface, Random);
			break;
		default:
			MutateSections(Surface, Random);
	}
}

void MutateJoints(FSurfaceMesh& Mesh, FRandom& Random)
{
	if (Mesh.Joints.empty() || (OneIn(Random, 3) && Mesh.Joints.size() < 4 * MaxList))
	{
		const auto Parent = static_cast<std::int32_t>(Below(Random, Mesh.Joints.size()));
		Mesh.Joints.push_back({Name(Random), Mesh.Joints.empty() ? -1 : Parent, {}});
		return;
	}
	const std::size_t Index = Below(Random, Mesh.Joints.size());
	switch (Below(Random, 5))
	{
		case 0:
			Mesh.Joints.clear();
			break;
		case 1:
			Mesh.Joints[Index].Name = Name(Random);
			break;
		case 2:
			Mesh.Joints[Index].ParentIndex = Int(Random);
			break;
		case 3:
			Mesh.Joints[Index].Transform = Transform(Random);
			break;
		default:
			Mesh.Joints.pop_back();
	}
}

void MutateInfluences(Zef::FInfluences& Influences, FRandom& Random)
{
	switch (Below(Random, 5))
	{
		case 0:
			Influences = {};
			break;
		case 1:
			Influences.Weights.push_back({Int(Random), Float(Random)});
			break;
		case 2:
			Influences.FirstWeight.push_back(static_cast<std::uint32_t>(Int(Random)));
			break;
		default:
			for (Zef::FBoneWeight& Pair : Influences.Weights)
			{
				if (OneIn(Random, 3))
				{
					Pair = {static_cast<std::int32_t>(Below(Random, 8)), Float(Random)};
				}
			}
	}
}

void MutateExpression(Zef::FMaterialExpression& Expression, FRandom& Random)
{
	switch (Below(Random, 4))
	{
		case 0:
			Expression.TextureId = Int(Random);
			break;
		case 1:
			Expression.Scalars.emplace_back(static_cast<std::int32_t>(Below(Random, 5)), Float(Random));
			break;
		case 2:
			Expression.Vectors.push_back(
				{static_cast<std::int32_t>(Below(Random, 3)), {Float(Random), Float(Random), 0, 1}});
			break;
		default:
			Expression.UVTransform = Transform(Random);
	}
}

void MutateMaterials(FSurfaceMesh& Mesh, FRandom& Random)
{
	if (Mesh.Materials.empty() || (OneIn(Random, 4) && Mesh.Materials.size() < MaxList))
	{
		Mesh.Materials.emplace_back(Int(Random), Zef::FMaterial());
	}
	auto& [Key, Material] = Mesh.Materials[Below(Random, Mesh.Materials.size())];
	switch (Below(Random, 9))
	{
		case 0:
			Key = Int(Random);
			break;
		case 1:
			Material.Name = Name(Random);
			break;
		case 2:
			Material.MaterialKind = Int(Random);
			break;
		case 3:
			Material.bUseTransparency = !Material.bUseTransparency;
			break;
		case 4:
			Material.bSubstance = !Material.bSubstance;
			Material.SubstanceAssetPath = Name(Random);
			Material.SubstanceGraphName = Name(Random);
			break;
		case 5:
			Material.Id = Int(Random);
			Material.UVTransform = Transform(Random);
			break;
		case 6:
			Material.Expressions.emplace_back(
				static_cast<std::int32_t>(Below(Random, 9)) - 1, Zef::FMaterialExpression());
			break;
		default:
			if (!Material.Expressions.empty())
			{
				MutateExpression(Material.Expressions[Below(Random, Material.Expressions.size())].second, Random);
			}
	}
}

void MutateTextures(FSurfaceMesh& Mesh, FRandom& Random)
{
	if (Mesh.Textures.empty() || (OneIn(Random, 4) && Mesh.Textures.size() < MaxList))
	{
		Mesh.Textures.push_back({Int(Random), {}});
	}
	auto& [Key, Texture] = Mesh.Textures[Below(Random, Mesh.Textures.size())];
	switch (Below(Random, 4))
	{
		case 0:
			Key = Int(Random);
			break;
		case 1:
			Texture.Format = static_cast<std::int32_t>(Below(Random, 5)) - 2;
			break;
		case 2:
			Texture.Pixels.resize(Below(Random, 256));
			break;
		default:
			(OneIn(Random, 2) ? Texture.Width : Texture.Height) =
				OneIn(Random, 8) ? Int(Random) : static_cast<std::int32_t>(Below(Random, 9));
	}
}

void MutatePoses(Zef::FJointSequence& Sequence, FRandom& Random)
{
	if (Sequence.Frames.empty() || (OneIn(Random, 4) && Sequence.Frames.size() < MaxFrames))
	{
		Sequence.Frames.push_back(Sequence.Frames.empty() ? Zef::FJointSequenceFrame() : Sequence.Frames.back());
	}
	Zef::FJointSequenceFrame& Frame = Sequence.Frames[Below(Random, Sequence.Frames.size())];
	switch (Below(Random, 5))
	{
		case 0:
			Frame.Time = Float(Random);
			break;
		case 1:
			Frame.Joints.push_back({Name(Random), static_cast<std::int32_t>(Below(Random, 4)) - 1, Transform(Random)});
			break;
		case 2:
			Frame.Joints.clear();
			break;
		case 3:
			Sequence.Frames.clear();
			break;
		default:
			if (!Frame.Joints.empty())
			{
				Zef::FJoint& Joint = Frame.Joints[Below(Random, Frame.Joints.size())];
				Joint = {OneIn(Random, 3) ? Name(Random) : Joint.Name,
					OneIn(Random, 4) ? Int(Random) : Joint.ParentIndex, Transform(Random)};
			}
	}
}

void MutateFrame(FUncheckedRecord& Record, FRandom& Random)
{
	Zef::FMeshSequenceFrame& Frame = Record.Frame;
	switch (Below(Random, 4))
	{
		case 0:
			Frame.Time = Float(Random);
			break;
		case 1:
			Record.Number = static_cast<std::uint32_t>(Below(Random, 4));
			break;
		case 2:
			Frame.Positions.resize(Below(Random, MaxVertices));
			Frame.Normals.resize(Frame.Positions.size());
			Frame.Tangents.resize(Frame.Positions.size());
			break;
		default:
			if (!Frame.Positions.empty())
			{
				Frame.Positions[Below(Random, Frame.Positions.size())] = Vector(Random);
			}
	}
}

template <class TPairs>
void RemoveKeysTwice(TPairs& Pairs)
{
	for (std::size_t Index = 0; Index < Pairs.size(); ++Index)
	{
		const auto Key = Pairs[Index].first;
		const auto IsKey = [Key](const auto& Pair) { return Pair.first == Key; };
		Pairs.erase(
			std::remove_if(Pairs.begin() + static_cast<std::ptrdiff_t>(Index) + 1, Pairs.end(), IsKey), Pairs.end());
	}
}

void RepairSurfaces(FSurfaceMesh& Mesh, bool bInTheModel, FRandom& Random)
{
	std::int32_t Vertices = 0;
	for (FSurface& Surface : Mesh.Surfaces)
	{
		const std::size_t Least = Mesh.Joints.empty() ? 0 : 1;
		const std::size_t Count = std::clamp(Surface.Positions.size(), Least, MaxVertices);
		ResizeVertices(Surface, Count, !Surface.UVs.empty() || !Mesh.Joints.empty());
		Vertices += bInTheModel && OneIn(Random, 4) ? 5 : 0;
		Surface.VertexOffset = Vertices;
		const std::int32_t Base = bInTheModel ? Vertices : 0;
		for (Zef::FSection& Section : Surface.Sections)
		{
			Section.Indices.resize(Count == 0 ? 0 : Section.Indices.size());
			for (std::int32_t& Index : Section.Indices)
			{
				if (Index < Base || Index >= Base + static_cast<std::int32_t>(Count))
				{
					Index = Base + static_cast<std::int32_t>(Below(Random, Count));
				}
			}
		}
		Vertices += static_cast<std::int32_t>(Count);
	}
}

void RepairInfluences(FSurfaceMesh& Mesh, FRandom& Random)
{
	Zef::FInfluences& Influences = Mesh.VertexInfluences;
	if (Influences.FirstWeight.empty())
	{
		Influences.Weights.clear();
		return;
	}
	std::size_t Vertices = 0;
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		Vertices += Surface.Positions.size();
	}
	for (Zef::FBoneWeight& Pair : Influences.Weights)
	{
		Pair.BoneIndex = static_cast<std::int32_t>(Below(Random, Mesh.Joints.size()));
		Pair.Weight = Pair.Weight >= 0 && Pair.Weight <= 1 ? Pair.Weight : 0.25f;
	}
	Influences.FirstWeight.assign(Vertices + 1, 0);
	for (std::uint32_t& First : Influences.FirstWeight)
	{
		First = static_cast<std::uint32_t>(Below(Random, Influences.Weights.size() + 1));
	}
	std::sort(Influences.FirstWeight.begin(), Influences.FirstWeight.end());
	Influences.FirstWeight.front() = 0;
	Influences.FirstWeight.back() = static_cast<std::uint32_t>(Influences.Weights.size());
	if (Vertices == 0)
	{
		Influences = {};
	}
}

void RepairJoints(FSurfaceMesh& Mesh)
{
	for (std::size_t Index = 0; Index < Mesh.Joints.size(); ++Index)
	{
		Zef::FJoint& Joint = Mesh.Joints[Index];
		Joint.Name = Joint.Name.empty() || Joint.Name == "None" || Index > 0
						 ? Joint.Name.substr(0, 8) + "_" + std::to_string(Index)
						 : Joint.Name;
		const bool bEarlier = Joint.ParentIndex >= 0 && Joint.ParentIndex < static_cast<std::int32_t>(Index);
		Joint.ParentIndex = Index == 0 ? -1 : bEarlier ? Joint.ParentIndex : 0;
	}
}

void RepairMaterials(FSurfaceMesh& Mesh)
{
	RemoveKeysTwice(Mesh.Materials);
	RemoveKeysTwice(Mesh.Textures);
	for (auto& [Key, Material] : Mesh.Materials)
	{
		RemoveKeysTwice(Material.Expressions);
		for (auto& [Channel, Expression] : Material.Expressions)
		{
			Expression.Scalars.emplace_back(1, 0.5f);
			Expression.Scalars.emplace_back(0, 1.0f);
			RemoveKeysTwice(Expression.Scalars);
			RemoveKeysTwice(Expression.Vectors);
		}
	}
	for (auto& [Key, Texture] : Mesh.Textures)
	{
		Texture.Format = std::clamp(Texture.Format, -1, 1);
		Texture.Width = std::clamp(Texture.Width, 0, 16);
		Texture.Height = std::clamp(Texture.Height, 0, 16);
		const auto Pixels = static_cast<std::size_t>(Texture.Width) * static_cast<std::size_t>(Texture.Height);
		Texture.Pixels.resize(Texture.Format < 0 ? 0 : Pixels * (Texture.Format == 0 ? 4 : 8));
	}
}
} // namespace

void Repair(FUncheckedRecord& Record, FRandom& Random)
{
	if (!Record.HasMesh())
	{
		return;
	}
	FSurfaceMesh& Mesh = Record.Animation.Mesh;
	RepairJoints(Mesh);
	RepairSurfaces(Mesh, Record.Item == Zef::EItem::SendJointAnimation, Random);
	RepairInfluences(Mesh, Random);
	RepairMaterials(Mesh);
	double Time = 0;
	for (Zef::FJointSequenceFrame& Frame : Record.Animation.Sequence.Frames)
	{
		Time = Frame.Time > Time ? Frame.Time : Time;
		Frame.Time = Time;
		for (Zef::FJoint& Joint : Frame.Joints)
		{
			Joint.ParentIndex =
				Joint.ParentIndex < static_cast<std::int32_t>(Mesh.Joints.size()) && Joint.ParentIndex >= -1
					? Joint.ParentIndex
					: -1;
		}
	}
}

void Mutate(FUncheckedRecord& Record, FRandom& Random)
{
	static constexpr Zef::EObjectType Types[] = {Zef::EObjectType::Garment, Zef::EObjectType::Avatar,
		Zef::EObjectType::Outfit, Zef::EObjectType::Prop, Zef::EObjectType::Invalid};
	if (OneIn(Random, 10))
	{
		Record.Info = {Pick(Random, Types), static_cast<Zef::EAnimationKind>(Below(Random, 4))};
		Record.Number = static_cast<std::uint32_t>(Below(Random, 4));
		Record.Options.bWeld = !Record.Options.bWeld;
		Record.Fault.Message = Name(Random);
		Record.Fault.Path = Name(Random);
		return;
	}
	if (Record.Item == Zef::EItem::SequenceFrame)
	{
		MutateFrame(Record, Random);
		return;
	}
	if (Record.Item == Zef::EItem::UpdateAnnouncement)
	{
		Record.Announcement.Objects.push_back({Pick(Random, Types), Random()});
		return;
	}
	if (!Record.HasMesh())
	{
		return;
	}
	FSurfaceMesh& Mesh = Record.Animation.Mesh;
	switch (Below(Random, Record.HasPoses() ? 8 : 7))
	{
		case 0:
		case 1:
			MutateSurfaces(Mesh, Random);
			break;
		case 2:
			MutateJoints(Mesh, Random);
			break;
		case 3:
			MutateInfluences(Mesh.VertexInfluences, Random);
			break;
		case 4:
		case 5:
			MutateMaterials(Mesh, Random);
			break;
		case 6:
			MutateTextures(Mesh, Random);
			break;
		default:
			MutatePoses(Record.Animation.Sequence, Random);
	}
}

} // namespace Fuzz
