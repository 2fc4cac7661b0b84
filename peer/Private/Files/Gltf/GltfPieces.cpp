// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>

#include "Files/Gltf/GltfLibrary.h"

#include "Files/Gltf/GltfAccessor.h"
#include "Files/Gltf/GltfParts.h"

namespace Zef::Peer
{

namespace
{

int Attribute(const std::map<std::string, int>& Attributes, const std::string& Name)
{
	const auto Found = Attributes.find(Name);
	return Found == Attributes.end() ? -1 : Found->second;
}

void AppendVectors(const std::vector<float>& Numbers, std::size_t Width, std::vector<FVec3>& Out)
{
	for (std::size_t I = 0; I + Width <= Numbers.size(); I += Width)
	{
		Out.push_back({Numbers[I], Numbers[I + 1], Numbers[I + 2]});
	}
}

/** Which set of texture coordinates the material's colour map asks for; the records carry one set only. */
int UVSetOf(const tinygltf::Model& File, int Material)
{
	if (Material < 0 || static_cast<std::size_t>(Material) >= File.materials.size())
	{
		return 0;
	}
	return std::clamp(
		File.materials[static_cast<std::size_t>(Material)].pbrMetallicRoughness.baseColorTexture.texCoord, 0, 7);
}

class FPieceReader
{
public:
	FPieceReader(const tinygltf::Model& InFile, FModel& InModel)
		: File(InFile)
		, Model(InModel)
	{
	}

	/** Reads the primitives of a mesh into one pool; those that share their attributes share its vertices. */
	std::string Read(const tinygltf::Mesh& Mesh, FModelPiece& InPiece)
	{
		Piece = &InPiece;
		std::map<std::pair<std::map<std::string, int>, int>, std::uint32_t> Pools;
		for (const tinygltf::Primitive& Primitive : Mesh.primitives)
		{
			const int UVSet = UVSetOf(File, Primitive.material);
			const auto Key = std::pair{Primitive.attributes, UVSet};
			auto Pool = Pools.find(Key);
			if (Pool == Pools.end())
			{
				Pool = Pools.emplace(Key, static_cast<std::uint32_t>(Piece->Positions.size())).first;
				const std::string Reason = AppendVertices(Primitive, UVSet);
				if (!Reason.empty())
				{
					return Reason;
				}
			}
			const std::string Reason = AppendTriangles(Primitive, Pool->second);
			if (!Reason.empty())
			{
				return Reason;
			}
		}
		return {};
	}

private:
	std::string Fault(const std::string& Attribute) const
	{
		return "the " + Attribute + " of mesh \"" + Piece->Name + "\" do not lie in their buffer.";
	}

	std::string AppendVertices(const tinygltf::Primitive& Primitive, int UVSet)
	{
		const std::size_t First = Piece->Positions.size();
		std::vector<float> Numbers;
		if (!ReadFloats(File, Attribute(Primitive.attributes, "POSITION"), 3, Numbers))
		{
			return Fault("positions");
		}
		AppendVectors(Numbers, 3, Piece->Positions);
		const std::size_t Count = Piece->Positions.size();
		// What only some primitives have is zero on the others, and is computed for them later.
		const auto Vectors = [&](const char* Name, int Width, std::vector<FVec3>& Out)
		{
			const int Accessor = Attribute(Primitive.attributes, Name);
			if (Accessor >= 0)
			{
				Out.resize(First);
				if (!ReadFloats(File, Accessor, Width, Numbers) ||
					Numbers.size() != (Count - First) * static_cast<std::size_t>(Width))
				{
					return false;
				}
				AppendVectors(Numbers, static_cast<std::size_t>(Width), Out);
			}
			else if (!Out.empty())
			{
				Out.resize(Count);
			}
			return true;
		};
		if (!Vectors("NORMAL", 3, Piece->Normals) || !Vectors("TANGENT", 4, Piece->Tangents))
		{
			return Fault("normals or tangents");
		}
		int UVs = Attribute(Primitive.attributes, "TEXCOORD_" + std::to_string(UVSet));
		UVs = UVs >= 0 ? UVs : Attribute(Primitive.attributes, "TEXCOORD_0");
		if (UVs >= 0)
		{
			Piece->UVs.resize(First);
			if (!ReadFloats(File, UVs, 2, Numbers) || Numbers.size() != (Count - First) * 2)
			{
				return Fault("texture coordinates");
			}
			for (std::size_t I = 0; I + 2 <= Numbers.size(); I += 2)
			{
				Piece->UVs.push_back({Numbers[I], Numbers[I + 1]});
			}
		}
		else if (!Piece->UVs.empty())
		{
			Piece->UVs.resize(Count);
		}
		std::string Reason = AppendWeights(Primitive, First, Count);
		return Reason.empty() ? AppendMorphs(Primitive, First, Count) : Reason;
	}

	std::string AppendWeights(const tinygltf::Primitive& Primitive, std::size_t First, std::size_t Count)
	{
		if (Piece->Skin < 0)
		{
			return {};
		}
		const std::size_t Joints = Model.Skins[static_cast<std::size_t>(Piece->Skin)].Joints.size();
		Piece->Weights.resize(Count);
		for (int Set = 0;; ++Set)
		{
			const int JointSet = Attribute(Primitive.attributes, "JOINTS_" + std::to_string(Set));
			const int WeightSet = Attribute(Primitive.attributes, "WEIGHTS_" + std::to_string(Set));
			if (JointSet < 0 || WeightSet < 0)
			{
				return {};
			}
			std::vector<std::uint32_t> Indices;
			std::vector<float> Weights;
			if (!ReadIntegers(File, JointSet, 4, Indices) || !ReadFloats(File, WeightSet, 4, Weights) ||
				Indices.size() != (Count - First) * 4 || Weights.size() != Indices.size())
			{
				return Fault("weights");
			}
			for (std::size_t I = 0; I < Indices.size(); ++I)
			{
				if (!(Weights[I] > 0))
				{
					continue;
				}
				if (Indices[I] >= Joints)
				{
					return "a vertex of mesh \"" + Piece->Name + "\" names joint " + std::to_string(Indices[I]) +
						   " of " + std::to_string(Joints) + ".";
				}
				Piece->Weights[First + I / 4].push_back({static_cast<int>(Indices[I]), Weights[I]});
			}
		}
	}

	std::string AppendMorphs(const tinygltf::Primitive& Primitive, std::size_t First, std::size_t Count)
	{
		Piece->Morphs.resize(std::max(Piece->Morphs.size(), Primitive.targets.size()));
		for (std::size_t T = 0; T < Piece->Morphs.size(); ++T)
		{
			for (const auto& [Name, Out] :
				{std::pair{"POSITION", &Piece->Morphs[T].Positions}, std::pair{"NORMAL", &Piece->Morphs[T].Normals}})
			{
				const int Accessor = T < Primitive.targets.size() ? Attribute(Primitive.targets[T], Name) : -1;
				if (Accessor >= 0)
				{
					std::vector<float> Numbers;
					Out->resize(First);
					if (!ReadFloats(File, Accessor, 3, Numbers) || Numbers.size() != (Count - First) * 3)
					{
						return Fault("morph targets");
					}
					AppendVectors(Numbers, 3, *Out);
				}
				else if (!Out->empty())
				{
					Out->resize(Count);
				}
			}
		}
		return {};
	}

	std::string AppendTriangles(const tinygltf::Primitive& Primitive, std::uint32_t Base)
	{
		std::vector<std::uint32_t> Indices;
		const std::size_t Vertices = Piece->Positions.size() - Base;
		if (Primitive.indices >= 0)
		{
			if (!ReadIntegers(File, Primitive.indices, 1, Indices))
			{
				return Fault("indices");
			}
		}
		else
		{
			for (std::uint32_t V = 0; V < Vertices; ++V)
			{
				Indices.push_back(V);
			}
		}
		for (const std::uint32_t Index : Indices)
		{
			if (Index >= Vertices)
			{
				return "an index of mesh \"" + Piece->Name + "\" is " + std::to_string(Index) + "; it has " +
					   std::to_string(Vertices) + " vertices.";
			}
		}
		FModelSection Section;
		Section.Material = Primitive.material;
		const auto Add = [&](std::size_t A, std::size_t B, std::size_t C) {
			Section.Indices.insert(Section.Indices.end(), {Base + Indices[A], Base + Indices[B], Base + Indices[C]});
		};
		const int Mode = Primitive.mode < 0 ? TINYGLTF_MODE_TRIANGLES : Primitive.mode;
		if (Mode == TINYGLTF_MODE_TRIANGLES)
		{
			for (std::size_t I = 0; I + 3 <= Indices.size(); I += 3)
			{
				Add(I, I + 1, I + 2);
			}
		}
		else if (Mode == TINYGLTF_MODE_TRIANGLE_STRIP)
		{
			for (std::size_t I = 0; I + 3 <= Indices.size(); ++I)
			{
				I % 2 == 0 ? Add(I, I + 1, I + 2) : Add(I + 1, I, I + 2);
			}
		}
		else if (Mode == TINYGLTF_MODE_TRIANGLE_FAN)
		{
			for (std::size_t I = 1; I + 2 <= Indices.size(); ++I)
			{
				Add(0, I, I + 1);
			}
		}
		else
		{
			Model.Warnings.push_back("mesh \"" + Piece->Name + "\" has points or lines, which are left out.");
			return {};
		}
		Piece->Sections.push_back(std::move(Section));
		return {};
	}

	const tinygltf::Model& File;
	FModel& Model;
	FModelPiece* Piece = nullptr;
};

/** Nodes of the default scene; all nodes of a file without one. */
std::vector<bool> NodesInScene(const tinygltf::Model& File)
{
	std::vector<bool> Shown(File.nodes.size(), File.scenes.empty());
	if (File.scenes.empty())
	{
		return Shown;
	}
	const auto Scene = static_cast<std::size_t>(std::max(File.defaultScene, 0));
	std::vector<int> Open = File.scenes[std::min(Scene, File.scenes.size() - 1)].nodes;
	while (!Open.empty())
	{
		const auto Node = static_cast<std::size_t>(Open.back());
		Open.pop_back();
		if (Node < Shown.size() && !Shown[Node])
		{
			Shown[Node] = true;
			Open.insert(Open.end(), File.nodes[Node].children.begin(), File.nodes[Node].children.end());
		}
	}
	return Shown;
}

} // namespace

std::string ReadGltfPieces(const tinygltf::Model& File, FModel& Model)
{
	const std::vector<bool> Shown = NodesInScene(File);
	for (std::size_t N = 0; N < File.nodes.size(); ++N)
	{
		const tinygltf::Node& Node = File.nodes[N];
		if (!Shown[N] || Node.mesh < 0)
		{
			continue;
		}
		if (static_cast<std::size_t>(Node.mesh) >= File.meshes.size() ||
			(Node.skin >= 0 && static_cast<std::size_t>(Node.skin) >= Model.Skins.size()))
		{
			return "node " + std::to_string(N) + " names a mesh or skin that does not exist.";
		}
		const tinygltf::Mesh& Mesh = File.meshes[static_cast<std::size_t>(Node.mesh)];
		FModelPiece Piece;
		Piece.Name = Node.name.empty() ? Mesh.name : Node.name;
		Piece.Node = static_cast<int>(N);
		Piece.Skin = Node.skin;
		const std::vector<double>& Rest = Node.weights.empty() ? Mesh.weights : Node.weights;
		for (const double Weight : Rest)
		{
			Piece.MorphWeights.push_back(static_cast<float>(Weight));
		}
		const std::string Reason = FPieceReader(File, Model).Read(Mesh, Piece);
		if (!Reason.empty())
		{
			return Reason;
		}
		Model.Pieces.push_back(std::move(Piece));
	}
	return {};
}

} // namespace Zef::Peer
