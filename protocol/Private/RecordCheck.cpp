// SPDX-License-Identifier: MIT
#include "ArrayCheck.h"
#include "SequenceCheck.h"
#include "Text.h"

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
	if (FrameCount > Limits.MaxFrames)
	{
		return MakeFault(EFault::TooManyElements, "/Sequence/Frames",
			"At most " + std::to_string(Limits.MaxFrames) + " were expected; " + std::to_string(FrameCount) + " came.");
	}
	if (TransformCount > MaxArrayElements)
	{
		return MakeFault(EFault::TooManyElements, "/Sequence/Transforms",
			"At most " + std::to_string(MaxArrayElements) + " were expected; " + std::to_string(TransformCount) +
				" came.");
	}
	for (std::size_t Table = 0; Table < Tables.size(); ++Table)
	{
		for (std::size_t Index = 0; Index < Tables[Table].Joints.size(); ++Index)
		{
			const FJointTable::FEntry& Entry = Tables[Table].Joints[Index];
			const auto Path = [&](const char* Field)
			{ return At(At(At("/Sequence", "Tables", Table), "Joints", Index), Field); };
			if (Entry.Name.size() > Limits.MaxNameBytes)
			{
				return MakeFault(EFault::NameTooLong, Path("Name"),
					"At most " + std::to_string(Limits.MaxNameBytes) + " bytes were expected; " +
						std::to_string(Entry.Name.size()) + " came.");
			}
			if (const std::size_t Bad = FindBadUtf8(Entry.Name); Bad != std::string::npos)
			{
				return MakeFault(
					EFault::BadText, Path("Name"), "UTF-8 was expected; byte " + std::to_string(Bad) + " is not.");
			}
			if (Entry.ParentIndex < -1 ||
				(Entry.ParentIndex >= 0 && static_cast<std::size_t>(Entry.ParentIndex) >= JointCount))
			{
				return MakeFault(EFault::JointTable, Path("ParentIndex"),
					"-1 or a joint below " + std::to_string(JointCount) + " was expected; " +
						std::to_string(Entry.ParentIndex) + " came.");
			}
		}
	}
	return {};
}

FLinkFault CheckTransformCount(const std::vector<FJointTable>& Tables, const std::uint32_t* TableOfFrame,
	std::uint64_t FrameCount, std::uint64_t TransformCount)
{
	std::uint64_t Expected = 0;
	for (std::uint64_t Frame = 0; Frame < FrameCount; ++Frame)
	{
		Expected += Tables[TableOfFrame[Frame]].Joints.size();
	}
	return Expected == TransformCount
			   ? FLinkFault{}
			   : MakeFault(EFault::CountMismatch, "/Sequence/Transforms",
					 std::to_string(Expected) + " were expected; " + std::to_string(TransformCount) + " came.");
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
			CheckTransformCount(Sequence.Tables, Sequence.TableOfFrame.data(), Frames, Sequence.Transforms.size()))
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
		return MakeFault(EFault::NotFinite, At(At("", "Frames", Index), "Time"), "A finite number was expected.");
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
