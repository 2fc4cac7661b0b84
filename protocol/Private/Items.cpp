// SPDX-License-Identifier: MIT
#include "Zef/Items.h"

#include "Zef/RecordSink.h"

namespace Zef
{

const char* ToString(EItem Item)
{
	switch (Item)
	{
		case EItem::Enable:
			return "Enable";
		case EItem::RequestUpdate:
			return "RequestUpdate";
		case EItem::RequestAnimation:
			return "RequestAnimation";
		case EItem::RequestAvailability:
			return "RequestAvailability";
		case EItem::SendJointAnimation:
			return "SendJointAnimation";
		case EItem::SurfaceMesh:
			return "SurfaceMesh";
		case EItem::JointAnimation:
			return "JointAnimation";
		case EItem::SequenceBegin:
			return "SequenceBegin";
		case EItem::SequenceFrame:
			return "SequenceFrame";
		case EItem::SequenceEnd:
			return "SequenceEnd";
		case EItem::Availability:
			return "Availability";
		case EItem::UpdateAnnouncement:
			return "UpdateAnnouncement";
		case EItem::Fault:
			return "Fault";
		case EItem::None:
			break;
	}
	return "None";
}

std::uint32_t ElementBytes(EArray Array)
{
	switch (Array)
	{
		case EArray::Positions:
		case EArray::Normals:
		case EArray::Tangents:
		case EArray::FramePositions:
		case EArray::FrameNormals:
		case EArray::FrameTangents:
			return sizeof(FVec3);
		case EArray::UVs:
			return sizeof(FVec2);
		case EArray::Indices:
		case EArray::FirstWeight:
		case EArray::SequenceTables:
			return sizeof(std::uint32_t);
		case EArray::Weights:
			return sizeof(FBoneWeight);
		case EArray::SequenceTimes:
			return sizeof(double);
		case EArray::SequenceTransforms:
			return sizeof(FTransform);
		case EArray::Pixels:
			break;
	}
	return 1;
}

std::uint64_t FMeshCounts::VertexCount() const
{
	std::uint64_t Count = 0;
	for (const FSurfaceCounts& Surface : Surfaces)
	{
		Count += Surface.Positions;
	}
	return Count;
}

FMeshCounts CountsOf(const FSurfaceMesh& Mesh)
{
	FMeshCounts Counts;
	Counts.Surfaces.reserve(Mesh.Surfaces.size());
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		FSurfaceCounts& Entry = Counts.Surfaces.emplace_back();
		Entry.Positions = Surface.Positions.size();
		Entry.Normals = Surface.Normals.size();
		Entry.Tangents = Surface.Tangents.size();
		Entry.UVs = Surface.UVs.size();
		Entry.SectionIndices.reserve(Surface.Sections.size());
		for (const FSection& Section : Surface.Sections)
		{
			Entry.SectionIndices.push_back(Section.Indices.size());
		}
	}
	Counts.FirstWeight = Mesh.VertexInfluences.FirstWeight.size();
	Counts.Weights = Mesh.VertexInfluences.Weights.size();
	Counts.TexturePixels.reserve(Mesh.Textures.size());
	for (const auto& [Key, Texture] : Mesh.Textures)
	{
		Counts.TexturePixels.push_back(Texture.Pixels.size());
	}
	return Counts;
}

namespace
{
bool SameLayout(const FJointTable& Table, const std::vector<FJoint>& Joints)
{
	if (Table.Joints.size() != Joints.size())
	{
		return false;
	}
	for (std::size_t Index = 0; Index < Joints.size(); ++Index)
	{
		if (Table.Joints[Index].ParentIndex != Joints[Index].ParentIndex ||
			Table.Joints[Index].Name != Joints[Index].Name)
		{
			return false;
		}
	}
	return true;
}
} // namespace

FPackedJointSequence Pack(const FJointSequence& Sequence)
{
	FPackedJointSequence Packed;
	Packed.Times.reserve(Sequence.Frames.size());
	Packed.TableOfFrame.reserve(Sequence.Frames.size());
	for (const FJointSequenceFrame& Frame : Sequence.Frames)
	{
		Packed.Times.push_back(Frame.Time);
		// Frames in a row mostly move the same joints, so the latest table is tried alone: a search would be quadratic.
		if (Packed.Tables.empty() || !SameLayout(Packed.Tables.back(), Frame.Joints))
		{
			FJointTable& Table = Packed.Tables.emplace_back();
			Table.Joints.reserve(Frame.Joints.size());
			for (const FJoint& Joint : Frame.Joints)
			{
				Table.Joints.push_back({Joint.Name, Joint.ParentIndex});
			}
		}
		Packed.TableOfFrame.push_back(static_cast<std::uint32_t>(Packed.Tables.size() - 1));
		for (const FJoint& Joint : Frame.Joints)
		{
			Packed.Transforms.push_back(Joint.Transform);
		}
	}
	return Packed;
}

FJointSequence Unpack(const FPackedJointSequence& Packed)
{
	FJointSequence Sequence;
	Sequence.Frames.resize(Packed.Times.size());
	std::size_t Next = 0;
	for (std::size_t Index = 0; Index < Sequence.Frames.size(); ++Index)
	{
		FJointSequenceFrame& Frame = Sequence.Frames[Index];
		const FJointTable& Table = Packed.Tables[Packed.TableOfFrame[Index]];
		Frame.Time = Packed.Times[Index];
		Frame.Joints.reserve(Table.Joints.size());
		for (const FJointTable::FEntry& Entry : Table.Joints)
		{
			Frame.Joints.push_back({Entry.Name, Entry.ParentIndex, Packed.Transforms[Next++]});
		}
	}
	return Sequence;
}

} // namespace Zef
