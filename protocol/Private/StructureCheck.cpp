// SPDX-License-Identifier: MIT
#include "ArrayCheck.h"
#include "MemoryBudget.h"
#include "Text.h"
#include "Uniqueness.h"
#include "Zef/Check.h"

#include <algorithm>
#include <cmath>

namespace Zef
{

namespace
{
/** Collects the first fault. Paths are put together only when there is one. */
class FStructureCheck
{
public:
	FStructureCheck(const FLimits& InLimits)
		: Limits(InLimits)
	{
	}

	FLinkFault Fault;

	/** Each check returns true when it found a fault, so that a chain of them stops at the first. */
	template <class TPath, class TMessage>
	bool Refuse(bool bWrong, EFault Code, const TPath& Path, const TMessage& Message)
	{
		if (bWrong)
		{
			Fault = MakeFault(Code, Path(), Message());
		}
		return bWrong;
	}

	template <class TPath>
	bool Count(std::uint64_t Value, std::uint64_t Highest, const TPath& Path)
	{
		return Refuse(Value > Highest, EFault::TooManyElements, Path,
			[&]
			{ return "At most " + std::to_string(Highest) + " were expected; " + std::to_string(Value) + " came."; });
	}

	template <class TPath>
	bool Same(std::uint64_t Value, std::uint64_t Expected, const TPath& Path)
	{
		return Refuse(Value != Expected, EFault::CountMismatch, Path,
			[&] { return std::to_string(Expected) + " were expected; " + std::to_string(Value) + " came."; });
	}

	template <class TPath>
	bool Text(const std::string& Value, std::uint32_t HighestBytes, const TPath& Path)
	{
		return Refuse(Value.size() > HighestBytes, EFault::NameTooLong, Path,
				   [&]
				   {
					   return "At most " + std::to_string(HighestBytes) + " bytes were expected; " +
							  std::to_string(Value.size()) + " came.";
				   }) ||
			   Refuse(FindBadUtf8(Value) != std::string::npos, EFault::BadText, Path,
				   [&] { return "UTF-8 was expected; byte " + std::to_string(FindBadUtf8(Value)) + " is not."; });
	}

	template <class TPath>
	bool Floats(std::initializer_list<float> Values, const TPath& Path)
	{
		for (const float Value : Values)
		{
			if (!std::isfinite(Value))
			{
				return Refuse(true, EFault::NotFinite, Path,
					[&]
					{
						return std::string("A finite number was expected; this one is ") +
							   (std::isnan(Value) ? "not a number." : "infinite.");
					});
			}
		}
		return false;
	}

	template <class TPath>
	bool Transform(const FTransform& Value, const TPath& Path)
	{
		return Floats({Value.Rotation.X, Value.Rotation.Y, Value.Rotation.Z, Value.Rotation.W, Value.Translation.X,
						  Value.Translation.Y, Value.Translation.Z, Value.Scale.X, Value.Scale.Y, Value.Scale.Z},
			Path);
	}

	bool Surfaces(const FSurfaceMesh& Mesh, const FMeshCounts& Counts, EIndexBase IndexBase);
	bool Surface(const FSurface& Surface, const FSurfaceCounts& Counts, bool bJoints, const std::string& Path);
	bool Joints(const FSurfaceMesh& Mesh);
	bool Influences(const FSurfaceMesh& Mesh, const FMeshCounts& Counts);
	bool Materials(const FSurfaceMesh& Mesh);
	bool Material(const FMaterial& Material, const std::string& Path);
	bool ChannelScalars(std::int32_t Channel, const FMaterialExpression& Expression, const std::string& Path);
	bool Expression(const FMaterialExpression& Expression, const std::string& Path);
	bool Textures(const FSurfaceMesh& Mesh, const FMeshCounts& Counts);

	/** Refuses a key that stands twice in the pairs of a map. */
	template <class TPairs>
	bool Keys(const TPairs& Pairs, const std::string& Path)
	{
		const std::size_t Twice = FindKeyTwice(Pairs);
		return Refuse(
			Twice != std::string::npos, EFault::KeyTwice, [&] { return Path + "/" + std::to_string(Twice); },
			[&] {
				return "A key of its own was expected; " + std::to_string(Pairs[Twice].first) + " stands there twice.";
			});
	}

private:
	const FLimits& Limits;
	std::vector<std::int32_t> TextureKeys; // ascending
};

bool FStructureCheck::Surfaces(const FSurfaceMesh& Mesh, const FMeshCounts& Counts, EIndexBase IndexBase)
{
	if (Count(Mesh.Surfaces.size(), Limits.MaxEntries, [] { return "/Surfaces"; }))
	{
		return true;
	}
	std::uint64_t Vertices = 0;
	std::uint64_t Indices = 0;
	for (std::size_t Index = 0; Index < Mesh.Surfaces.size(); ++Index)
	{
		const std::string Path = At("", "Surfaces", Index);
		const FSurface& Each = Mesh.Surfaces[Index];
		if (Surface(Each, Counts.Surfaces[Index], !Mesh.Joints.empty(), Path))
		{
			return true;
		}
		// Vertices is where this surface begins: exactly, or at the earliest in a model that may leave vertices out.
		const auto Offset = static_cast<std::int64_t>(Each.VertexOffset);
		const auto Expected = static_cast<std::int64_t>(Vertices);
		if (Refuse(
				IndexBase == EIndexBase::Surface ? Offset != Expected : Offset < Expected, EFault::VertexOffset,
				[&] { return Path + "/VertexOffset"; },
				[&]
				{
					return std::to_string(Expected) +
						   (IndexBase == EIndexBase::Surface ? " was expected; " : " or more was expected; ") +
						   std::to_string(Offset) + " came.";
				}))
		{
			return true;
		}
		Vertices = static_cast<std::uint64_t>(Offset) + Counts.Surfaces[Index].Positions;
		// The editor puts the triangles of all sections into one array.
		for (const std::uint64_t OfSection : Counts.Surfaces[Index].SectionIndices)
		{
			Indices += OfSection;
		}
		if (Count(Vertices, MaxArrayElements, [&] { return Path + "/Positions"; }) ||
			Count(Indices, MaxArrayElements, [&] { return Path + "/Sections"; }))
		{
			return true;
		}
	}
	return false;
}

bool FStructureCheck::Surface(
	const FSurface& Surface, const FSurfaceCounts& Counts, bool bJoints, const std::string& Path)
{
	const auto Positions = [&] { return Path + "/Positions"; };
	if (Text(Surface.Name, Limits.MaxNameBytes, [&] { return Path + "/Name"; }) ||
		Count(Counts.Positions, MaxArrayElements, Positions) ||
		Refuse(bJoints && Counts.Positions == 0, EFault::EmptySurface, Positions,
			[] { return "A surface of a mesh with joints was expected to have vertices."; }) ||
		Same(Counts.Normals, Counts.Positions, [&] { return Path + "/Normals"; }) ||
		Same(Counts.Tangents, Counts.Positions, [&] { return Path + "/Tangents"; }) ||
		Refuse(
			bJoints && Counts.UVs == 0, EFault::UVsMissing, [&] { return Path + "/UVs"; },
			[&]
			{
				return std::to_string(Counts.Positions) +
					   " were expected, one for each vertex, because the mesh has joints; none came.";
			}) ||
		(Counts.UVs != 0 && Same(Counts.UVs, Counts.Positions, [&] { return Path + "/UVs"; })) ||
		Count(Surface.Sections.size(), Limits.MaxEntries, [&] { return Path + "/Sections"; }))
	{
		return true;
	}
	for (std::size_t Index = 0; Index < Surface.Sections.size(); ++Index)
	{
		if (Count(Counts.SectionIndices[Index], MaxArrayElements,
				[&] { return At(At(Path, "Sections", Index), "Indices"); }))
		{
			return true;
		}
	}
	return false;
}

bool FStructureCheck::Joints(const FSurfaceMesh& Mesh)
{
	if (Count(Mesh.Joints.size(), Limits.MaxJoints, [] { return "/Joints"; }))
	{
		return true;
	}
	FNameSet Names;
	Names.Reserve(Mesh.Joints.size());
	for (std::size_t Index = 0; Index < Mesh.Joints.size(); ++Index)
	{
		const FJoint& Joint = Mesh.Joints[Index];
		const auto Name = [&] { return At(At("", "Joints", Index), "Name"); };
		const auto Parent = [&] { return At(At("", "Joints", Index), "ParentIndex"); };
		if (Text(Joint.Name, Limits.MaxNameBytes, Name) ||
			Refuse(Index > 0 && Joint.ParentIndex == -1, EFault::SecondRoot, Parent,
				[] {
					return std::string("An earlier joint was expected, because only the first has no parent; -1 came.");
				}) ||
			Refuse(Joint.ParentIndex < -1 || (Joint.ParentIndex >= 0 && std::size_t(Joint.ParentIndex) >= Index),
				EFault::ParentOrder, Parent,
				[&]
				{
					return Index == 0
							   ? "-1 was expected for the first joint; " + std::to_string(Joint.ParentIndex) + " came."
							   : "A joint below " + std::to_string(Index) + " was expected; " +
									 std::to_string(Joint.ParentIndex) + " came.";
				}) ||
			Transform(Joint.Transform, [&] { return At(At("", "Joints", Index), "Transform"); }))
		{
			return true;
		}
		Names.Add(Joint.Name);
	}
	Fault = Names.FirstFault("/Joints");
	return static_cast<bool>(Fault);
}

bool FStructureCheck::Influences(const FSurfaceMesh& Mesh, const FMeshCounts& Counts)
{
	const auto Path = [] { return "/VertexInfluences"; };
	if (Count(Counts.FirstWeight, MaxArrayElements, Path) || Count(Counts.Weights, MaxArrayElements, Path))
	{
		return true;
	}
	if (Counts.FirstWeight == 0)
	{
		return Refuse(Counts.Weights != 0, EFault::InfluenceCount, Path,
			[&] { return "No weights were expected without offsets; " + std::to_string(Counts.Weights) + " came."; });
	}
	// Without joints the influences mean nothing, and their count is the sender's affair.
	return Refuse(!Mesh.Joints.empty() && Counts.FirstWeight != Counts.VertexCount() + 1, EFault::InfluenceCount, Path,
		[&]
		{
			return "Influences of " + std::to_string(Counts.VertexCount()) + " vertices were expected; " +
				   std::to_string(Counts.FirstWeight - 1) + " came.";
		});
}

bool FStructureCheck::Expression(const FMaterialExpression& Expression, const std::string& Path)
{
	if (Count(Expression.Scalars.size(), Limits.MaxMapEntries, [&] { return Path + "/Scalars"; }) ||
		Count(Expression.Vectors.size(), Limits.MaxMapEntries, [&] { return Path + "/Vectors"; }) ||
		Keys(Expression.Scalars, Path + "/Scalars") || Keys(Expression.Vectors, Path + "/Vectors") ||
		Transform(Expression.UVTransform, [&] { return Path + "/UVTransform"; }))
	{
		return true;
	}
	for (std::size_t Index = 0; Index < Expression.Scalars.size(); ++Index)
	{
		if (Floats({Expression.Scalars[Index].second}, [&] { return At(Path, "Scalars", Index); }))
		{
			return true;
		}
	}
	for (std::size_t Index = 0; Index < Expression.Vectors.size(); ++Index)
	{
		const FVec4& Value = Expression.Vectors[Index].second;
		if (Floats({Value.X, Value.Y, Value.Z, Value.W}, [&] { return At(Path, "Vectors", Index); }))
		{
			return true;
		}
	}
	return false;
}

/** The editor reads these scalars without asking whether they are there. */
bool FStructureCheck::ChannelScalars(
	std::int32_t Channel, const FMaterialExpression& Expression, const std::string& Path)
{
	if (Channel < MaterialChannel::Roughness || Channel > MaterialChannel::Opacity)
	{
		return false;
	}
	const auto Missing = [&](std::int32_t Key)
	{
		const bool bThere = std::any_of(Expression.Scalars.begin(), Expression.Scalars.end(),
			[Key](const auto& Entry) { return Entry.first == Key; });
		return Refuse(
			!bThere, EFault::ScalarMissing, [&] { return Path + "/Scalars"; },
			[&] { return "Key " + std::to_string(Key) + " was expected; it did not come."; });
	};
	const bool bMap = std::binary_search(TextureKeys.begin(), TextureKeys.end(), Expression.TextureId);
	return Missing(1) || (bMap && Missing(0));
}

bool FStructureCheck::Material(const FMaterial& Material, const std::string& Path)
{
	if (Text(Material.Name, Limits.MaxNameBytes, [&] { return Path + "/Name"; }) ||
		Text(Material.SubstanceAssetPath, Limits.MaxPathBytes, [&] { return Path + "/SubstanceAssetPath"; }) ||
		Text(Material.SubstanceGraphName, Limits.MaxPathBytes, [&] { return Path + "/SubstanceGraphName"; }) ||
		Transform(Material.UVTransform, [&] { return Path + "/UVTransform"; }) ||
		Count(Material.Expressions.size(), Limits.MaxMapEntries, [&] { return Path + "/Expressions"; }) ||
		Keys(Material.Expressions, Path + "/Expressions"))
	{
		return true;
	}
	for (std::size_t Index = 0; Index < Material.Expressions.size(); ++Index)
	{
		const auto& [Channel, Value] = Material.Expressions[Index];
		const std::string Place = At(Path, "Expressions", Index);
		if (Expression(Value, Place) || ChannelScalars(Channel, Value, Place))
		{
			return true;
		}
	}
	return false;
}

bool FStructureCheck::Materials(const FSurfaceMesh& Mesh)
{
	if (Count(Mesh.Materials.size(), Limits.MaxMapEntries, [] { return "/Materials"; }) ||
		Keys(Mesh.Materials, "/Materials"))
	{
		return true;
	}
	for (const auto& [Key, Texture] : Mesh.Textures)
	{
		TextureKeys.push_back(Key);
	}
	std::sort(TextureKeys.begin(), TextureKeys.end());
	for (std::size_t Index = 0; Index < Mesh.Materials.size(); ++Index)
	{
		if (Material(Mesh.Materials[Index].second, At("", "Materials", Index)))
		{
			return true;
		}
	}
	return false;
}

bool FStructureCheck::Textures(const FSurfaceMesh& Mesh, const FMeshCounts& Counts)
{
	if (Count(Mesh.Textures.size(), Limits.MaxMapEntries, [] { return "/Textures"; }) ||
		Keys(Mesh.Textures, "/Textures"))
	{
		return true;
	}
	for (std::size_t Index = 0; Index < Mesh.Textures.size(); ++Index)
	{
		const FTexture& Texture = Mesh.Textures[Index].second;
		const auto Path = [&](const char* Field)
		{ return [&, Field] { return At(At("", "Textures", Index), Field); }; };
		const auto Side = [&](std::int32_t Length, const char* Field)
		{
			return Refuse(Length < 0 || std::uint32_t(Length) > Limits.MaxTextureSide, EFault::TextureSize, Path(Field),
				[&]
				{
					return "0 to " + std::to_string(Limits.MaxTextureSide) + " pixels were expected; " +
						   std::to_string(Length) + " came.";
				});
		};
		if (Refuse(Texture.Format < -1 || Texture.Format > 1, EFault::TextureFormat, Path("Format"),
				[&] { return "0, 1 or -1 was expected; " + std::to_string(Texture.Format) + " came."; }) ||
			Side(Texture.Width, "Width") || Side(Texture.Height, "Height") ||
			Count(Counts.TexturePixels[Index], MaxArrayElements, Path("Pixels")))
		{
			return true;
		}
		const std::uint64_t PixelBytes = Texture.Format < 0 ? 0 : Texture.Format == 0 ? 4 : 8;
		const std::uint64_t Expected = std::uint64_t(Texture.Width) * std::uint64_t(Texture.Height) * PixelBytes;
		if (Refuse(Counts.TexturePixels[Index] != Expected, EFault::PixelCount, Path("Pixels"),
				[&]
				{
					return std::to_string(Expected) + " bytes were expected; " +
						   std::to_string(Counts.TexturePixels[Index]) + " came.";
				}))
		{
			return true;
		}
	}
	return false;
}

/** The arrays, and what an editor makes of them beside their copy. The counts have been held against their limits. */
bool FitsBudget(const FSurfaceMesh& Mesh, const FMeshCounts& Counts, std::uint64_t Bytes)
{
	// Each vertex has an array of influences of its own, each section the numbers of all bones in 16 bits.
	constexpr std::uint64_t BytesOfInfluences = 16;
	constexpr std::uint64_t BytesOfBoneNumber = 2;
	FMemoryBudget Budget(Bytes);
	bool bFits = Budget.Take(BytesOf(Counts)) && Budget.Take(Counts.FirstWeight, BytesOfInfluences);
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		bFits = bFits && Budget.Take(Surface.Sections.size(), BytesOfBoneNumber * (Mesh.Joints.size() + 1));
	}
	return bFits;
}
} // namespace

FLinkFault CheckStructure(
	const FSurfaceMesh& Structure, const FMeshCounts& Counts, EIndexBase IndexBase, const FLimits& Limits)
{
	FStructureCheck Check(Limits);
	const bool bRefused = Check.Surfaces(Structure, Counts, IndexBase) || Check.Joints(Structure) ||
						  Check.Influences(Structure, Counts) || Check.Materials(Structure) ||
						  Check.Textures(Structure, Counts);
	if (!bRefused && !FitsBudget(Structure, Counts, Limits.MaxItemBytes))
	{
		return MakeFault(EFault::OverBudget, "",
			"At most " + std::to_string(Limits.MaxItemBytes) + " bytes were expected; the arrays have " +
				std::to_string(BytesOf(Counts)) +
				", beside the influences and bone maps that an editor makes of them.");
	}
	return Check.Fault;
}

bool IsObjectType(EObjectType ObjectType)
{
	return ObjectType == EObjectType::Garment || ObjectType == EObjectType::Avatar ||
		   ObjectType == EObjectType::Outfit || ObjectType == EObjectType::Prop;
}

} // namespace Zef
