// SPDX-License-Identifier: MIT
#include "Files/Write/GltfWriter.h"

#include <algorithm>
#include <map>

#include <nlohmann/json.hpp>

#include "Math/Matrix.h"

namespace Zef::Peer
{

namespace
{

using FJson = nlohmann::json;

constexpr int Float = 5126, Short = 5123, Integer = 5125;
constexpr int ArrayBuffer = 34962, ElementBuffer = 34963;

/** The way back from the engine's axes: X to Z, Y to -X, Z to Y. */
FVec3 Turned(const FVec3& V)
{
	return {-V.Y, V.Z, V.X};
}

FVec3 InMetres(const FVec3& V)
{
	return Turned(V) * 0.01f;
}

/** A turn seen from the other side of a reflection. */
FVec4 Turned(const FVec4& Q)
{
	const FVec3 Axis = Turned(FVec3{Q.X, Q.Y, Q.Z});
	return Normalized(FVec4{-Axis.X, -Axis.Y, -Axis.Z, Q.W});
}

FVec3 TurnedScale(const FVec3& S)
{
	return {S.Y, S.Z, S.X};
}

FTransform Turned(const FTransform& Transform)
{
	return {Turned(Transform.Rotation), InMetres(Transform.Translation), TurnedScale(Transform.Scale)};
}

FJson Json(const FVec3& V)
{
	return {V.X, V.Y, V.Z};
}
FJson Json(const FVec4& V)
{
	return {V.X, V.Y, V.Z, V.W};
}

class FGlb
{
public:
	FJson Root;

	/** Adds an accessor over new bytes, each aligned to four. */
	template <class TNumber>
	int Add(const std::vector<TNumber>& Numbers, std::size_t Width, const char* Type, int Component, int Target,
		bool bBounds = false)
	{
		FJson View{{"buffer", 0}, {"byteOffset", Bytes.size()}, {"byteLength", Numbers.size() * sizeof(TNumber)}};
		if (Target != 0)
		{
			View["target"] = Target;
		}
		Bytes.append(reinterpret_cast<const char*>(Numbers.data()), Numbers.size() * sizeof(TNumber));
		Bytes.resize((Bytes.size() + 3) / 4 * 4);
		FJson Accessor{{"bufferView", Root["bufferViews"].size()}, {"componentType", Component},
			{"count", Numbers.size() / Width}, {"type", Type}};
		if (bBounds)
		{
			FJson Least = FJson::array(), Most = FJson::array();
			for (std::size_t C = 0; C < Width; ++C)
			{
				TNumber Low = Numbers[C], High = Numbers[C];
				for (std::size_t I = C; I < Numbers.size(); I += Width)
				{
					Low = std::min(Low, Numbers[I]);
					High = std::max(High, Numbers[I]);
				}
				Least.push_back(Low);
				Most.push_back(High);
			}
			Accessor["min"] = Least;
			Accessor["max"] = Most;
		}
		Root["bufferViews"].push_back(View);
		Root["accessors"].push_back(Accessor);
		return static_cast<int>(Root["accessors"].size()) - 1;
	}

	std::string Finish()
	{
		Root["buffers"] = FJson::array({{{"byteLength", Bytes.size()}}});
		std::string Text = Root.dump(-1, ' ', false, FJson::error_handler_t::replace);
		Text.resize((Text.size() + 3) / 4 * 4, ' ');
		std::string File;
		const auto Word = [&](std::size_t Value)
		{
			const auto Number = static_cast<std::uint32_t>(Value);
			File.append(reinterpret_cast<const char*>(&Number), 4);
		};
		File += "glTF";
		Word(2);
		Word(12 + 8 + Text.size() + 8 + Bytes.size());
		Word(Text.size());
		File += "JSON";
		File += Text;
		Word(Bytes.size());
		File.append("BIN\0", 4);
		File += Bytes;
		return File;
	}

private:
	std::string Bytes;
};

std::vector<float> Flat(const std::vector<FVec3>& Vectors, FVec3 (*Way)(const FVec3&))
{
	std::vector<float> Numbers;
	for (const FVec3& V : Vectors)
	{
		const FVec3 W = Way(V);
		Numbers.insert(Numbers.end(), {W.X, W.Y, W.Z});
	}
	return Numbers;
}

FVec3 UnitTurned(const FVec3& V)
{
	return Normalized(Turned(V));
}

class FWriter
{
public:
	FWriter(const FJointAnimation& InAnimation, const std::string& InName)
		: Animation(InAnimation)
		, Mesh(InAnimation.Mesh)
		, Name(InName)
	{
	}

	std::string Write()
	{
		Glb.Root = {{"asset", {{"version", "2.0"}, {"generator", "zef-peer"}}}, {"scene", 0}};
		if (Mesh.Joints.empty() || !WritePrimitives())
		{
			return {};
		}
		WriteNodes();
		WriteClip();
		return Glb.Finish();
	}

private:
	bool WritePrimitives()
	{
		FJson Primitives = FJson::array();
		for (const FSurface& Surface : Mesh.Surfaces)
		{
			if (Surface.Positions.empty())
			{
				continue;
			}
			FJson Attributes{
				{"POSITION", Glb.Add(Flat(Surface.Positions, InMetres), 3, "VEC3", Float, ArrayBuffer, true)}};
			const std::size_t Count = Surface.Positions.size();
			if (Surface.Normals.size() == Count)
			{
				Attributes["NORMAL"] = Glb.Add(Flat(Surface.Normals, UnitTurned), 3, "VEC3", Float, ArrayBuffer);
			}
			if (Surface.UVs.size() == Count)
			{
				std::vector<float> UVs;
				for (const FVec2& UV : Surface.UVs)
				{
					UVs.insert(UVs.end(), {UV.X, UV.Y});
				}
				Attributes["TEXCOORD_0"] = Glb.Add(UVs, 2, "VEC2", Float, ArrayBuffer);
			}
			WriteWeights(Surface, Attributes);
			for (const FSection& Section : Surface.Sections)
			{
				std::vector<std::uint32_t> Indices;
				for (const std::int32_t Index : Section.Indices)
				{
					const std::int64_t Local = std::int64_t(Index) - Surface.VertexOffset;
					if (Local < 0 || static_cast<std::size_t>(Local) >= Count)
					{
						return false;
					}
					Indices.push_back(static_cast<std::uint32_t>(Local));
				}
				Indices.resize(Indices.size() / 3 * 3);
				if (!Indices.empty())
				{
					Primitives.push_back({{"attributes", Attributes},
						{"indices", Glb.Add(Indices, 1, "SCALAR", Integer, ElementBuffer)}});
				}
			}
		}
		if (Primitives.empty())
		{
			return false;
		}
		Glb.Root["meshes"] = FJson::array({{{"name", Name}, {"primitives", Primitives}}});
		return true;
	}

	/** In sets of four: as many sets as the vertex with the most joints needs, sums of exactly one before rounding. */
	void WriteWeights(const FSurface& Surface, FJson& Attributes)
	{
		const FInfluences& All = Mesh.VertexInfluences;
		const std::size_t Count = Surface.Positions.size();
		const auto Range = [&](std::size_t V)
		{
			const std::size_t Vertex = static_cast<std::size_t>(std::max(Surface.VertexOffset, 0)) + V;
			return Vertex < All.VertexCount() ? std::pair{All.FirstWeight[Vertex], All.FirstWeight[Vertex + 1]}
											  : std::pair{0u, 0u};
		};
		std::size_t Most = 1;
		for (std::size_t V = 0; V < Count; ++V)
		{
			Most = std::max<std::size_t>(Most, Range(V).second - Range(V).first);
		}
		const std::size_t Sets = (Most + 3) / 4;
		std::vector<std::vector<std::uint16_t>> Joints(Sets, std::vector<std::uint16_t>(Count * 4));
		std::vector<std::vector<float>> Weights(Sets, std::vector<float>(Count * 4));
		for (std::size_t V = 0; V < Count; ++V)
		{
			std::map<std::int32_t, float> Merged; // a joint may stand once on a vertex
			float Sum = 0;
			for (std::uint32_t W = Range(V).first; W < Range(V).second; ++W)
			{
				const FBoneWeight& Weight = All.Weights[W];
				if (Weight.Weight > 0 && Weight.BoneIndex >= 0 &&
					static_cast<std::size_t>(Weight.BoneIndex) < Mesh.Joints.size())
				{
					Merged[Weight.BoneIndex] += Weight.Weight;
					Sum += Weight.Weight;
				}
			}
			if (Merged.empty())
			{
				Merged[0] = Sum = 1; // what nothing moves stands with the root
			}
			std::size_t Slot = 0;
			for (const auto& [Joint, Weight] : Merged)
			{
				Joints[Slot / 4][V * 4 + Slot % 4] = static_cast<std::uint16_t>(Joint);
				Weights[Slot / 4][V * 4 + Slot % 4] = Weight / Sum;
				++Slot;
			}
		}
		for (std::size_t S = 0; S < Sets; ++S)
		{
			Attributes["JOINTS_" + std::to_string(S)] = Glb.Add(Joints[S], 4, "VEC4", Short, ArrayBuffer);
			Attributes["WEIGHTS_" + std::to_string(S)] = Glb.Add(Weights[S], 4, "VEC4", Float, ArrayBuffer);
		}
	}

	void WriteNodes()
	{
		FJson Nodes = FJson::array(), Joints = FJson::array(), Roots = FJson::array();
		std::vector<FMatrix34> Places;
		std::vector<float> Inverse;
		for (std::size_t J = 0; J < Mesh.Joints.size(); ++J)
		{
			const FJoint& Joint = Mesh.Joints[J];
			const FTransform Local = Turned(Joint.Transform);
			Nodes.push_back({{"name", Joint.Name}, {"rotation", Json(Local.Rotation)},
				{"translation", Json(Local.Translation)}, {"scale", Json(Local.Scale)}});
			Joints.push_back(J);
			const FMatrix34 Matrix = FMatrix34::From(Local);
			if (Joint.ParentIndex < 0)
			{
				Roots.push_back(J);
				Places.push_back(Matrix);
			}
			else
			{
				Nodes[static_cast<std::size_t>(Joint.ParentIndex)]["children"].push_back(J);
				Places.push_back(Places[static_cast<std::size_t>(Joint.ParentIndex)] * Matrix);
			}
			const FMatrix34 Back = Places.back().Inverted();
			const FVec3 Columns[] = {Back.ColumnX, Back.ColumnY, Back.ColumnZ, Back.Shift};
			for (int C = 0; C < 4; ++C)
			{
				Inverse.insert(Inverse.end(), {Columns[C].X, Columns[C].Y, Columns[C].Z, C == 3 ? 1.0f : 0.0f});
			}
		}
		Roots.push_back(Nodes.size());
		Nodes.push_back({{"name", Name}, {"mesh", 0}, {"skin", 0}});
		Glb.Root["nodes"] = Nodes;
		Glb.Root["scenes"] = FJson::array({{{"nodes", Roots}}});
		Glb.Root["skins"] =
			FJson::array({{{"joints", Joints}, {"inverseBindMatrices", Glb.Add(Inverse, 16, "MAT4", Float, 0)}}});
	}

	void WriteClip()
	{
		const std::vector<FJointSequenceFrame>& Frames = Animation.Sequence.Frames;
		if (Frames.empty())
		{
			return;
		}
		std::map<std::string, std::size_t> IndexOf;
		for (std::size_t J = 0; J < Mesh.Joints.size(); ++J)
		{
			IndexOf.emplace(Mesh.Joints[J].Name, J);
		}
		std::vector<float> Times;
		std::vector<std::vector<FTransform>> Poses(Mesh.Joints.size());
		std::vector<bool> IsMoved(Mesh.Joints.size());
		for (const FJointSequenceFrame& Frame : Frames)
		{
			const auto Time = static_cast<float>(std::max(Frame.Time, 0.0));
			if (!Times.empty() && Time <= Times.back())
			{
				continue; // times have to rise
			}
			Times.push_back(Time);
			for (std::size_t J = 0; J < Mesh.Joints.size(); ++J)
			{
				Poses[J].push_back(Turned(Mesh.Joints[J].Transform));
			}
			for (const FJoint& Joint : Frame.Joints)
			{
				const auto Found = IndexOf.find(Joint.Name);
				if (Found != IndexOf.end())
				{
					Poses[Found->second].back() = Turned(Joint.Transform);
					IsMoved[Found->second] = true;
				}
			}
		}
		const int Input = Glb.Add(Times, 1, "SCALAR", Float, 0, true);
		FJson Samplers = FJson::array(), Channels = FJson::array();
		const auto Channel =
			[&](std::size_t Node, const char* Path, const std::vector<float>& Values, std::size_t Width)
		{
			Channels.push_back({{"sampler", Samplers.size()}, {"target", {{"node", Node}, {"path", Path}}}});
			Samplers.push_back(
				{{"input", Input}, {"output", Glb.Add(Values, Width, Width == 4 ? "VEC4" : "VEC3", Float, 0)}});
		};
		for (std::size_t J = 0; J < Mesh.Joints.size(); ++J)
		{
			if (!IsMoved[J])
			{
				continue;
			}
			std::vector<float> Shifts, Turns, Scales;
			for (const FTransform& Pose : Poses[J])
			{
				Shifts.insert(Shifts.end(), {Pose.Translation.X, Pose.Translation.Y, Pose.Translation.Z});
				Turns.insert(Turns.end(), {Pose.Rotation.X, Pose.Rotation.Y, Pose.Rotation.Z, Pose.Rotation.W});
				Scales.insert(Scales.end(), {Pose.Scale.X, Pose.Scale.Y, Pose.Scale.Z});
			}
			Channel(J, "translation", Shifts, 3);
			Channel(J, "rotation", Turns, 4);
			Channel(J, "scale", Scales, 3);
		}
		if (!Channels.empty())
		{
			Glb.Root["animations"] = FJson::array({{{"name", Name}, {"samplers", Samplers}, {"channels", Channels}}});
		}
	}

	const FJointAnimation& Animation;
	const FSurfaceMesh& Mesh;
	std::string Name;
	FGlb Glb;
};

} // namespace

std::string WriteGlb(const FJointAnimation& Animation, const std::string& Name)
{
	return FWriter(Animation, Name).Write();
}

} // namespace Zef::Peer
