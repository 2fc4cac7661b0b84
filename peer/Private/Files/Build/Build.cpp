// SPDX-License-Identifier: MIT
#include "Files/Build/Build.h"

#include <algorithm>
#include <cmath>

#include "Files/Build/BuildMaterials.h"
#include "Files/Build/Geometry.h"
#include "Files/Build/Names.h"
#include "Files/Build/Sample.h"
#include "Files/Model/Decompose.h"
#include "Math/Box.h"

namespace Zef::Peer
{

namespace
{

std::vector<FTransform> RestOf(const FModel& Model)
{
	std::vector<FTransform> Locals;
	for (const FModelNode& Node : Model.Nodes)
	{
		Locals.push_back(Node.Local);
	}
	return Locals;
}

/** Centimetres per unit of a file that does not say: no garment or person is 10 m tall, none below 10 cm. */
float GuessUnit(const FModel& Model, const std::vector<FPiecePlacement>& Placements, FReadObject& Object)
{
	constexpr float LargestInMetres = 10;
	FBox Box;
	for (std::size_t P = 0; P < Model.Pieces.size(); ++P)
	{
		for (std::size_t V = 0; V < Model.Pieces[P].Positions.size(); ++V)
		{
			Box.Add(Placements[P].WayOf(V).Point(Model.Pieces[P].Positions[V]));
		}
	}
	const FVec3 Size = Box.Max - Box.Min;
	const bool bMetres = std::max({Size.X, Size.Y, Size.Z}) < LargestInMetres;
	Object.Warnings.push_back(std::string("the file states no unit; it is read in ") +
							  (bMetres ? "metres, because it measures less than 10 units."
									   : "centimetres, because it measures 10 units or more.") +
							  " Name its unit with --unit if that is wrong.");
	return bMetres ? 100.0f : 1.0f;
}

class FObjectBuilder
{
public:
	FObjectBuilder(FModel& InModel, float InUnstatedUnit, FReadObject& InObject)
		: Model(InModel)
		, UnstatedUnit(InUnstatedUnit)
		, Object(InObject)
		, NodePlaces(PlaceNodes(Model, RestOf(Model)))
		, Skeleton(MakeSkeleton(Model, NodePlaces))
	{
	}

	std::string Build(EObjectType Type)
	{
		const FModelPose Pose{Model, NodePlaces, Skeleton};
		std::vector<FPiecePlacement> Placements;
		for (const FModelPiece& Piece : Model.Pieces)
		{
			Placements.push_back(PlaceVertices(Pose, Piece));
		}
		ToEngine = FMatrix34();
		ToEngine.AddScaled(Model.Axes, CentimetresPerUnit(Placements));
		const bool bJoints = Type == EObjectType::Avatar && !Skeleton.Nodes.empty();
		std::vector<std::size_t> Kept;
		for (std::size_t P = 0; P < Model.Pieces.size(); ++P)
		{
			FSurface Surface = BuildSurface(Model.Pieces[P], Placements[P], ToEngine);
			if (!Surface.Sections.empty())
			{
				Surface.VertexOffset = VertexCount;
				VertexCount += static_cast<std::int32_t>(Surface.Positions.size());
				Object.Mesh.Surfaces.push_back(std::move(Surface));
				Kept.push_back(P);
			}
		}
		if (Object.Mesh.Surfaces.empty())
		{
			return "it holds no triangles.";
		}
		if (bJoints)
		{
			BuildJoints();
			BuildInfluences(Kept, Placements);
			BuildSequence();
		}
		if (Object.Sequence.Frames.empty())
		{
			BuildMorphFrames(Kept, Placements);
		}
		BuildMaterials(Model, Object.Mesh);
		return {};
	}

private:
	float CentimetresPerUnit(const std::vector<FPiecePlacement>& Placements)
	{
		if (Model.UnitCentimetres > 0)
		{
			return Model.UnitCentimetres;
		}
		return UnstatedUnit > 0 ? UnstatedUnit : GuessUnit(Model, Placements, Object);
	}

	/** A place of the file's space as one of the engine's. */
	FMatrix34 InEngine(const FMatrix34& Place) const { return ToEngine * Place * ToEngine.Inverted(); }

	void BuildJoints()
	{
		FUniqueNames Names;
		std::vector<FMatrix34> Places;
		for (std::size_t J = 0; J < Skeleton.Nodes.size(); ++J)
		{
			const int Node = Skeleton.Nodes[J], Parent = Skeleton.Parents[J];
			Places.push_back(InEngine(Skeleton.BindPlace[J]));
			FJoint Joint;
			Joint.Name = Names.Make(
				Node >= 0 ? Model.Nodes[static_cast<std::size_t>(Node)].Name : "Root", "Joint_" + std::to_string(J));
			Joint.ParentIndex = Parent;
			Joint.Transform =
				Decompose(Parent < 0 ? Places[J] : Places[static_cast<std::size_t>(Parent)].Inverted() * Places[J]);
			Object.Mesh.Joints.push_back(std::move(Joint));
		}
	}

	void BuildInfluences(const std::vector<std::size_t>& Kept, const std::vector<FPiecePlacement>& Placements)
	{
		FInfluences& Influences = Object.Mesh.VertexInfluences;
		Influences.FirstWeight.push_back(0);
		for (const std::size_t P : Kept)
		{
			for (const std::vector<FBoneWeight>& Weights : Placements[P].Joints)
			{
				Influences.Weights.insert(Influences.Weights.end(), Weights.begin(), Weights.end());
				Influences.FirstWeight.push_back(static_cast<std::uint32_t>(Influences.Weights.size()));
			}
		}
	}

	/** True for a node whose movement moves a joint: a joint, or what stands above the topmost ones. */
	bool MovesJoints(int Node) const
	{
		for (std::size_t J = 0; J < Skeleton.Nodes.size(); ++J)
		{
			int Above = Skeleton.Nodes[J];
			if (Above == Node)
			{
				return true;
			}
			const bool bTop =
				Skeleton.Parents[J] < 0 || Skeleton.Nodes[static_cast<std::size_t>(Skeleton.Parents[J])] < 0;
			while (bTop && Above >= 0)
			{
				Above = Model.Nodes[static_cast<std::size_t>(Above)].Parent;
				if (Above == Node)
				{
					return true;
				}
			}
		}
		return false;
	}

	void BuildSequence()
	{
		const FModelClip* Clip = LongestClip(Model,
			[&](const FModelNodeTracks& Tracks)
			{
				return MovesJoints(Tracks.Node) && (!Tracks.Translation.Times.empty() ||
													   !Tracks.Rotation.Times.empty() || !Tracks.Scale.Times.empty());
			});
		if (!Clip)
		{
			return;
		}
		const std::size_t Count = CountFrames(*Clip);
		if (Count == 0)
		{
			Object.Warnings.push_back("the clip \"" + Clip->Name + "\" lasts longer than ten minutes and is left out.");
		}
		for (std::size_t F = 0; F < Count; ++F)
		{
			const double Time = static_cast<double>(F) / FramesPerSecond;
			std::vector<FTransform> Locals = RestOf(Model);
			for (const FModelNodeTracks& Tracks : Clip->Nodes)
			{
				FTransform& Local = Locals[static_cast<std::size_t>(Tracks.Node)];
				Local = SampleNode(Tracks, Local, std::min(Clip->Start + Time, Clip->End));
			}
			const std::vector<FMatrix34> Places = PlaceNodes(Model, Locals);
			FJointSequenceFrame& Frame = Object.Sequence.Frames.emplace_back();
			Frame.Time = Time;
			Frame.Joints = Object.Mesh.Joints;
			for (std::size_t J = 0; J < Skeleton.Nodes.size(); ++J)
			{
				const int Node = Skeleton.Nodes[J], Parent = Skeleton.Parents[J];
				if (Node < 0)
				{
					continue;
				}
				// The topmost joints carry what the nodes above them do.
				const bool bTop = Parent < 0 || Skeleton.Nodes[static_cast<std::size_t>(Parent)] < 0;
				Frame.Joints[J].Transform =
					Decompose(InEngine(bTop ? Places[static_cast<std::size_t>(Node)]
											: FMatrix34::From(Locals[static_cast<std::size_t>(Node)])));
			}
		}
	}

	void BuildMorphFrames(const std::vector<std::size_t>& Kept, const std::vector<FPiecePlacement>& Placements)
	{
		const auto Moves = [&](const FModelNodeTracks& Tracks)
		{
			return !Tracks.Morph.Times.empty() &&
				   std::any_of(Kept.begin(), Kept.end(),
					   [&](std::size_t P)
					   { return Model.Pieces[P].Node == Tracks.Node && !Model.Pieces[P].Morphs.empty(); });
		};
		const FModelClip* Clip = LongestClip(Model, Moves);
		const std::size_t Count = Clip ? CountFrames(*Clip) : 0;
		for (std::size_t F = 0; F < Count; ++F)
		{
			FMeshSequenceFrame& Frame = Object.Frames.emplace_back();
			Frame.Time = static_cast<double>(F) / FramesPerSecond;
			for (std::size_t K = 0; K < Kept.size(); ++K)
			{
				const FModelPiece& Piece = Model.Pieces[Kept[K]];
				std::vector<float> Weights = Piece.MorphWeights;
				for (const FModelNodeTracks& Tracks : Clip->Nodes)
				{
					std::vector<float> Sampled;
					if (Tracks.Node == Piece.Node && !Tracks.Morph.Times.empty())
					{
						Sampled =
							SampleMorph(Tracks, Piece.Morphs.size(), std::min(Clip->Start + Frame.Time, Clip->End));
					}
					Weights = Sampled.empty() ? Weights : Sampled;
				}
				AppendMorphed(Piece, Weights, Placements[Kept[K]], Object.Mesh.Surfaces[K], Frame);
			}
		}
	}

	void AppendMorphed(const FModelPiece& Piece, const std::vector<float>& Weights, const FPiecePlacement& Placement,
		const FSurface& Surface, FMeshSequenceFrame& Frame) const
	{
		std::vector<FVec3> Positions, Normals;
		ApplyMorphs(Piece, Weights, Positions, Normals);
		for (std::size_t V = 0; V < Positions.size(); ++V)
		{
			const FMatrix34 Way = ToEngine * Placement.WayOf(V);
			Frame.Positions.push_back(Way.Point(Positions[V]));
			const FVec3 Normal = V < Normals.size() ? MoveNormal(Way, Normals[V]) : FVec3{};
			Frame.Normals.push_back(Normalized(Normal, Surface.Normals[V]));
			Frame.Tangents.push_back(SquareTo(Frame.Normals.back(), Surface.Tangents[V]));
		}
	}

	FModel& Model;
	const float UnstatedUnit;
	FReadObject& Object;
	std::vector<FMatrix34> NodePlaces;
	FModelSkeleton Skeleton;
	FMatrix34 ToEngine;
	std::int32_t VertexCount = 0;
};

} // namespace

std::string BuildObject(EObjectType Type, FModel& Model, float UnstatedUnit, FReadObject& Object)
{
	Object.Warnings = Model.Warnings;
	return FObjectBuilder(Model, UnstatedUnit, Object).Build(Type);
}

} // namespace Zef::Peer
