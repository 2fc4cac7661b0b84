// SPDX-License-Identifier: MIT
#include <algorithm>

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include "Files/Assimp/AssimpParts.h"
#include "Files/Model/Decompose.h"
#include "Files/Model/Readers.h"

namespace Zef::Peer
{

namespace
{

FMatrix34 MatrixOf(const aiMatrix4x4& M)
{
	return {{M.a1, M.b1, M.c1}, {M.a2, M.b2, M.c2}, {M.a3, M.b3, M.c3}, {M.a4, M.b4, M.c4}};
}

FVec3 VectorOf(const aiVector3D& V)
{
	return {V.x, V.y, V.z};
}

class FAssimpReader
{
public:
	FAssimpReader(const aiScene& InScene, FModel& InModel)
		: Scene(InScene)
		, Model(InModel)
	{
	}

	std::map<std::string, int> NodeOf;

	void ReadNodes(const aiNode& Node, int Parent)
	{
		const int Index = static_cast<int>(Model.Nodes.size());
		Model.Nodes.push_back({Node.mName.C_Str(), Parent, Decompose(MatrixOf(Node.mTransformation))});
		NodeOf.emplace(Node.mName.C_Str(), Index);
		for (unsigned M = 0; M < Node.mNumMeshes; ++M)
		{
			Uses.emplace_back(Index, Node.mMeshes[M]);
		}
		for (unsigned C = 0; C < Node.mNumChildren; ++C)
		{
			ReadNodes(*Node.mChildren[C], Index);
		}
	}

	void ReadPieces()
	{
		for (const auto& [Node, Mesh] : Uses)
		{
			ReadPiece(*Scene.mMeshes[Mesh], Node);
		}
	}

private:
	void ReadPiece(const aiMesh& Mesh, int Node)
	{
		FModelPiece Piece;
		Piece.Name = Mesh.mName.length > 0 ? Mesh.mName.C_Str() : Model.Nodes[static_cast<std::size_t>(Node)].Name;
		Piece.Node = Node;
		for (unsigned V = 0; V < Mesh.mNumVertices; ++V)
		{
			Piece.Positions.push_back(VectorOf(Mesh.mVertices[V]));
			if (Mesh.HasNormals())
			{
				Piece.Normals.push_back(VectorOf(Mesh.mNormals[V]));
			}
			if (Mesh.HasTextureCoords(0))
			{
				Piece.UVs.push_back({Mesh.mTextureCoords[0][V].x, Mesh.mTextureCoords[0][V].y});
			}
		}
		FModelSection& Section = Piece.Sections.emplace_back();
		Section.Material = static_cast<int>(Mesh.mMaterialIndex);
		for (unsigned F = 0; F < Mesh.mNumFaces; ++F)
		{
			const aiFace& Face = Mesh.mFaces[F];
			if (Face.mNumIndices == 3 &&
				std::max({Face.mIndices[0], Face.mIndices[1], Face.mIndices[2]}) < Mesh.mNumVertices)
			{
				Section.Indices.insert(Section.Indices.end(), Face.mIndices, Face.mIndices + 3);
			}
		}
		if (Section.Indices.empty())
		{
			return;
		}
		ReadBones(Mesh, Piece);
		Model.Pieces.push_back(std::move(Piece));
	}

	void ReadBones(const aiMesh& Mesh, FModelPiece& Piece)
	{
		if (!Mesh.HasBones())
		{
			return;
		}
		Piece.Skin = static_cast<int>(Model.Skins.size());
		Piece.Weights.resize(Piece.Positions.size());
		FModelSkin& Skin = Model.Skins.emplace_back();
		for (unsigned B = 0; B < Mesh.mNumBones; ++B)
		{
			const aiBone& Bone = *Mesh.mBones[B];
			const auto Found = NodeOf.find(Bone.mName.C_Str());
			if (Found == NodeOf.end())
			{
				Model.Warnings.push_back(
					std::string("the bone \"") + Bone.mName.C_Str() + "\" has no node and is left out.");
				continue;
			}
			const int Joint = static_cast<int>(Skin.Joints.size());
			Skin.Joints.push_back(Found->second);
			Skin.InverseBind.push_back(MatrixOf(Bone.mOffsetMatrix));
			for (unsigned W = 0; W < Bone.mNumWeights; ++W)
			{
				const aiVertexWeight& Weight = Bone.mWeights[W];
				if (Weight.mWeight > 0 && Weight.mVertexId < Piece.Weights.size())
				{
					Piece.Weights[Weight.mVertexId].push_back({Joint, Weight.mWeight});
				}
			}
		}
	}

	const aiScene& Scene;
	FModel& Model;
	std::vector<std::pair<int, unsigned>> Uses;
};

/** Axes and unit of an FBX file, which the library hands on but does not apply. */
void ReadFbxSettings(const aiScene& Scene, FModel& Model)
{
	Model.UnitCentimetres = 1;
	if (!Scene.mMetaData)
	{
		return;
	}
	// The type of the entry differs between versions of the library, and it is found only under its own.
	float Unit = 1;
	if (double Wide = 1; Scene.mMetaData->Get("UnitScaleFactor", Wide))
	{
		Unit = static_cast<float>(Wide);
	}
	else
	{
		Scene.mMetaData->Get("UnitScaleFactor", Unit);
	}
	if (Unit > 1e-6f && Unit < 1e6f)
	{
		Model.UnitCentimetres = Unit;
	}
	FVec3 Columns[3];
	bool bSeen[3] = {};
	// Across goes to -Y, up to Z, and what faces the viewer to X.
	for (const auto& [Name, Goal] :
		{std::pair{"Coord", FVec3{0, -1, 0}}, std::pair{"Up", FVec3{0, 0, 1}}, std::pair{"Front", FVec3{1, 0, 0}}})
	{
		std::int32_t Axis = -1, Sign = 1;
		if (!Scene.mMetaData->Get(std::string(Name) + "Axis", Axis) ||
			!Scene.mMetaData->Get(std::string(Name) + "AxisSign", Sign) || Axis < 0 || Axis > 2 || bSeen[Axis])
		{
			return;
		}
		bSeen[Axis] = true;
		Columns[Axis] = Goal * (Sign < 0 ? -1.0f : 1.0f);
	}
	Model.Axes = {Columns[0], Columns[1], Columns[2], {}};
}

std::string LowerExtension(const std::filesystem::path& File)
{
	std::string Extension = File.extension().string();
	std::transform(Extension.begin(), Extension.end(), Extension.begin(),
		[](unsigned char C) { return static_cast<char>(std::tolower(C)); });
	return Extension;
}

} // namespace

std::string ReadWithAssimp(const std::filesystem::path& File, FModel& Model)
{
	Assimp::Importer Importer;
	Importer.SetPropertyInteger(AI_CONFIG_PP_SBP_REMOVE, aiPrimitiveType_POINT | aiPrimitiveType_LINE);
	Importer.SetPropertyBool(AI_CONFIG_IMPORT_FBX_PRESERVE_PIVOTS, false);
	const aiScene* Scene = Importer.ReadFile(File.string(), aiProcess_Triangulate | aiProcess_JoinIdenticalVertices |
																aiProcess_SortByPType | aiProcess_FlipUVs |
																aiProcess_ValidateDataStructure);
	if (!Scene || !Scene->mRootNode)
	{
		std::string Error = Importer.GetErrorString();
		return Error.empty() ? "no reader of model files knows it." : Error;
	}
	Model.Axes = AxesYUp();
	const std::string Extension = LowerExtension(File);
	if (Extension == ".fbx")
	{
		ReadFbxSettings(*Scene, Model);
	}
	else if (Extension == ".dae")
	{
		Model.UnitCentimetres = 100; // the library brings the file's unit to metres
	}
	FAssimpReader Reader(*Scene, Model);
	Reader.ReadNodes(*Scene->mRootNode, -1);
	Reader.ReadPieces();
	ReadAssimpClips(*Scene, Reader.NodeOf, Model);
	ReadAssimpMaterials(*Scene, File, Model);
	return {};
}

} // namespace Zef::Peer
