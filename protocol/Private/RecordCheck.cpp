// SPDX-License-Identifier: MIT
#include "ArrayCheck.h"
#include "MemoryBudget.h"
#include "SequenceCheck.h"
#include "Text.h"
#include "Uniqueness.h"

#include <cmath>

namespace Zef
{

namespace
{
const void* ElementsOf(const FSurfaceMesh& Mesh, const FArraySlot& Slot)
{
	switch (Slot.Array)
	{
		case EArray::Positions:
			return Mesh.Surfaces[Slot.Outer].Positions.data();
		case EArray::Normals:
			return Mesh.Surfaces[Slot.Outer].Normals.data();
		case EArray::Tangents:
			return Mesh.Surfaces[Slot.Outer].Tangents.data();
		case EArray::UVs:
			return Mesh.Surfaces[Slot.Outer].UVs.data();
		case EArray::Indices:
			return Mesh.Surfaces[Slot.Outer].Sections[Slot.Inner].Indices.data();
		case EArray::FirstWeight:
			return Mesh.VertexInfluences.FirstWeight.data();
		case EArray::Weights:
			return Mesh.VertexInfluences.Weights.data();
		case EArray::Pixels:
			return Mesh.Textures[Slot.Outer].second.Pixels.data();
		default:
			return nullptr;
	}
}

FLinkFault CheckArray(
	EArray Array, std::uint32_t Outer, const void* Elements, std::uint64_t Count, std::uint32_t Bound = 0)
{
	FArrayRule Rule;
	Rule.Slot = {Array, Outer, 0, Count};
	Rule.Bound = Bound;
	return CheckElements(Rule, Elements, 0, Count);
}

FLinkFault CheckCount(std::uint64_t Count, std::uint64_t Highest, const std::string& Path)
{
	return Count <= Highest
			   ? FLinkFault{}
			   : MakeFault(EFault::TooManyElements, Path,
					 "At most " + std::to_string(Highest) + " were expected; " + std::to_string(Count) + " came.");
}

FLinkFault CheckLayoutName(const std::string& Name, const std::string& Path, const FLimits& Limits)
{
	if (Name.size() > Limits.MaxNameBytes)
	{
		return MakeFault(EFault::NameTooLong, Path,
			"At most " + std::to_string(Limits.MaxNameBytes) + " bytes were expected; " + std::to_string(Name.size()) +
				" came.");
	}
	if (const std::size_t Bad = FindBadUtf8(Name); Bad != std::string::npos)
	{
		return MakeFault(EFault::BadText, Path, "UTF-8 was expected; byte " + std::to_string(Bad) + " is not.");
	}
	return {};
}

/** One layout of poses; its names are looked up among the joints of the mesh, and tracks are kept by them. */
FLinkFault CheckLayout(const FJointTable& Table, const std::string& Path, std::size_t JointCount, const FLimits& Limits)
{
	if (FLinkFault Fault = CheckCount(Table.Joints.size(), Limits.MaxJoints, At(Path, "Joints")))
	{
		return Fault;
	}
	FNameSet Names;
	Names.Reserve(Table.Joints.size());
	for (std::size_t Index = 0; Index < Table.Joints.size(); ++Index)
	{
		const FJointTable::FEntry& Entry = Table.Joints[Index];
		if (FLinkFault Fault = CheckLayoutName(Entry.Name, At(At(Path, "Joints", Index), "Name"), Limits))
		{
			return Fault;
		}
		if (Entry.ParentIndex < -1 ||
			(Entry.ParentIndex >= 0 && static_cast<std::size_t>(Entry.ParentIndex) >= JointCount))
		{
			return MakeFault(EFault::JointTable, At(At(Path, "Joints", Index), "ParentIndex"),
				"-1 or a joint below " + std::to_string(JointCount) + " was expected; " +
					std::to_string(Entry.ParentIndex) + " came.");
		}
		Names.Add(Entry.Name);
	}
	return Names.FirstFault(At(Path, "Joints"));
}
} // namespace

FLinkFault CheckMesh(const FSurfaceMesh& Mesh, EIndexBase IndexBase, const FLimits& Limits)
{
	const FMeshCounts Counts = CountsOf(Mesh);
	if (FLinkFault Fault = CheckStructure(Mesh, Counts, IndexBase, Limits))
	{
		return Fault;
	}
	for (const FArraySlot& Slot : SlotsOf(Counts))
	{
		FArrayRule Rule = RuleOf(Slot, Mesh, Counts, IndexBase);
		Rule.FirstWeight = Mesh.VertexInfluences.FirstWeight.data();
		if (FLinkFault Fault = CheckElements(Rule, ElementsOf(Mesh, Slot), 0, Slot.Count))
		{
			return Fault;
		}
	}
	return {};
}

FLinkFault CheckSequenceStructure(const std::vector<FJointTable>& Tables, std::uint64_t FrameCount,
	std::uint64_t TransformCount, std::size_t JointCount, const FLimits& Limits)
{
	if (FLinkFault Fault = CheckCount(FrameCount, Limits.MaxFrames, "/Sequence/Frames"))
	{
		return Fault;
	}
	if (FLinkFault Fault = CheckCount(TransformCount, MaxArrayElements, "/Sequence/Transforms"))
	{
		return Fault;
	}
	if (FLinkFault Fault = CheckCount(Tables.size(), Limits.MaxEntries, "/Sequence/Tables"))
	{
		return Fault;
	}
	for (std::size_t Table = 0; Table < Tables.size(); ++Table)
	{
		if (FLinkFault Fault = CheckLayout(Tables[Table], At("/Sequence", "Tables", Table), JointCount, Limits))
		{
			return Fault;
		}
	}
	return {};
}

FLinkFault CheckPoses(const std::vector<FJointTable>& Tables, const std::uint32_t* TableOfFrame,
	std::uint64_t FrameCount, std::uint64_t TransformCount, const FLimits& Limits)
{
	// What the joints of one frame take in a record, where each pose has names of its own.
	std::vector<std::uint64_t> FrameBytes;
	FrameBytes.reserve(Tables.size());
	for (const FJointTable& Table : Tables)
	{
		std::uint64_t& Bytes = FrameBytes.emplace_back(sizeof(FJointSequenceFrame));
		for (const FJointTable::FEntry& Entry : Table.Joints)
		{
			Bytes += sizeof(FJoint) + Entry.Name.size();
		}
	}
	std::uint64_t Transforms = 0;
	FMemoryBudget Budget(Limits.MaxItemBytes);
	for (std::uint64_t Frame = 0; Frame < FrameCount; ++Frame)
	{
		Transforms += Tables[TableOfFrame[Frame]].Joints.size();
		if (!Budget.Take(FrameBytes[TableOfFrame[Frame]]))
		{
			return MakeFault(EFault::OverBudget, At("/Sequence", "Frames", Frame),
				"At most " + std::to_string(Limits.MaxItemBytes) +
					" bytes of memory were expected for the poses; they are used up here.");
		}
	}
	return Transforms == TransformCount
			   ? FLinkFault{}
			   : MakeFault(EFault::CountMismatch, "/Sequence/Transforms",
					 std::to_string(Transforms) + " were expected; " + std::to_string(TransformCount) + " came.");
}

FLinkFault CheckJointSequence(const FPackedJointSequence& Sequence, std::size_t JointCount, const FLimits& Limits)
{
	const std::uint64_t Frames = Sequence.Times.size();
	if (FLinkFault Fault =
			CheckSequenceStructure(Sequence.Tables, Frames, Sequence.Transforms.size(), JointCount, Limits))
	{
		return Fault;
	}
	if (Sequence.TableOfFrame.size() != Frames)
	{
		return MakeFault(EFault::CountMismatch, "/Sequence/TableOfFrame",
			std::to_string(Frames) + " were expected; " + std::to_string(Sequence.TableOfFrame.size()) + " came.");
	}
	if (FLinkFault Fault = CheckArray(EArray::SequenceTimes, 0, Sequence.Times.data(), Frames))
	{
		return Fault;
	}
	if (FLinkFault Fault = CheckArray(EArray::SequenceTables, 0, Sequence.TableOfFrame.data(), Frames,
			static_cast<std::uint32_t>(Sequence.Tables.size())))
	{
		return Fault;
	}
	if (FLinkFault Fault =
			CheckPoses(Sequence.Tables, Sequence.TableOfFrame.data(), Frames, Sequence.Transforms.size(), Limits))
	{
		return Fault;
	}
	return CheckArray(EArray::SequenceTransforms, 0, Sequence.Transforms.data(), Sequence.Transforms.size());
}

FLinkFault CheckSequenceFrame(
	const FMeshSequenceFrame& Frame, std::uint32_t Index, std::uint64_t VertexCount, const FLimits& /*Limits*/)
{
	if (!std::isfinite(Frame.Time))
	{
		return MakeFault(EFault::NotFinite, At(At("", "Frames", Index), "Time"),
			"A finite number was expected; this one is " +
				(std::isnan(Frame.Time) ? std::string("not a number.") : std::string("infinite.")));
	}
	const struct
	{
		EArray Array;
		const std::vector<FVec3>& Elements;
	} Arrays[] = {{EArray::FramePositions, Frame.Positions}, {EArray::FrameNormals, Frame.Normals},
		{EArray::FrameTangents, Frame.Tangents}};
	for (const auto& [Array, Elements] : Arrays)
	{
		if (Elements.size() != VertexCount)
		{
			FArrayRule Rule;
			Rule.Slot = {Array, Index, 0, Elements.size()};
			return MakeFault(EFault::CountMismatch, PathOf(Rule),
				std::to_string(VertexCount) + " were expected, one for each vertex of the mesh; " +
					std::to_string(Elements.size()) + " came.");
		}
		if (FLinkFault Fault = CheckArray(Array, Index, Elements.data(), Elements.size()))
		{
			return Fault;
		}
	}
	return {};
}

} // namespace Zef
