// SPDX-License-Identifier: MIT
#include "Rivals/Rivals.h"

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <assimp/version.h>

namespace Bench
{

namespace
{

struct FRivalScene : IRivalScene
{
	Assimp::Importer Importer;
	const aiScene* Scene = nullptr; // the importer's

	FImported Describe() const override
	{
		FImported Imported;
		if (Scene == nullptr)
		{
			Imported.Error = Importer.GetErrorString();
			return Imported;
		}
		for (unsigned Index = 0; Index < Scene->mNumMeshes; ++Index)
		{
			Imported.Vertices += Scene->mMeshes[Index]->mNumVertices;
			Imported.Triangles += Scene->mMeshes[Index]->mNumFaces;
		}
		Imported.Textures = Scene->mNumTextures;
		return Imported;
	}
};

} // namespace

std::unique_ptr<IRivalScene> ImportAssimp(std::span<const std::uint8_t> Bytes, const char* Format, bool bJoin)
{
	auto Imported = std::make_unique<FRivalScene>();
	Imported->Scene = Imported->Importer.ReadFileFromMemory(
		Bytes.data(), Bytes.size(), bJoin ? aiProcess_JoinIdenticalVertices : 0u, Format);
	return Imported;
}

std::string AssimpVersion()
{
	return "Assimp " + std::to_string(aiGetVersionMajor()) + "." + std::to_string(aiGetVersionMinor()) + "." +
		   std::to_string(aiGetVersionPatch());
}

} // namespace Bench
