// SPDX-License-Identifier: MIT
#include "Subjects/Subjects.h"

#include "Engine/SkeletalMesh.h"
#include "Rendering/SkeletalMeshLODModel.h"
#include "Rivals/Rivals.h"
#include "Support/Comparison.h"
#include "Support/EngineSession.h"
#include "Support/Samples.h"
#include "Utils/ZEFSkeletalMeshSections.h"
#include "Utils/ZEFTandemEditorUtils.h"

#include <cstring>
#include <memory>

namespace Bench
{

namespace
{

constexpr double RequiredRatio = 2.0;
constexpr int Columns = 399;
constexpr int Rows = 499; // 400 * 500 vertices
constexpr int Joints = 100;
constexpr int Influences = 12;

/** A corner as a vertex cache would see it: what the record says of its vertex, with the weights as the engine has
 * them.
 */
struct FCorner
{
	Zef::FVec3 Position;
	Zef::FVec3 Normal;
	Zef::FVec3 Tangent;
	Zef::FVec2 UV;
	std::uint16_t Bones[Influences];
	std::uint16_t Weights[Influences];
};
static_assert(sizeof(FCorner) == 92, "no padding, for it is compared as bytes");

struct FCase
{
	FZEFSurfaceMesh Record;
	std::vector<FCorner> Corners;
	std::vector<unsigned> Remap;
	TUniquePtr<FSkeletalMeshLODModel> Model;
	FZEFSkeletalMeshData Data;
};

std::vector<FCorner> SpreadCorners(const Zef::FSurfaceMesh& Mesh)
{
	std::vector<FCorner> Corners;
	const Zef::FSurface& Surface = Mesh.Surfaces[0];
	for (const std::int32_t Index : Surface.Sections[0].Indices)
	{
		const auto Vertex = static_cast<std::size_t>(Index);
		FCorner& Corner = Corners.emplace_back(FCorner{
			Surface.Positions[Vertex], Surface.Normals[Vertex], Surface.Tangents[Vertex], Surface.UVs[Vertex], {}, {}});
		for (int Slot = 0; Slot < Influences; ++Slot)
		{
			const Zef::FBoneWeight& Weight =
				Mesh.VertexInfluences.Weights[Mesh.VertexInfluences.FirstWeight[Vertex] + static_cast<unsigned>(Slot)];
			Corner.Bones[Slot] = static_cast<std::uint16_t>(Weight.BoneIndex);
			Corner.Weights[Slot] = static_cast<std::uint16_t>(Weight.Weight * 65534.0f + 1.0f);
		}
	}
	return Corners;
}

void RunSections(FCase& Case)
{
	Case.Model = MakeUnique<FSkeletalMeshLODModel>();
	ZEFEditorUtils::BuildSkeletalMeshSections(Case.Record, Joints, *Case.Model);
}

void RunAll(FCase& Case)
{
	ZEFEditorUtils::ZEFSurfaceMeshToSkeletalMeshData(Case.Record, TEXT("SkeletalMesh"), &Case.Data);
	Case.Data.SkeletalMesh->GetResourceForRendering(); // the build that the conversion leaves pending
}

void RunRival(FCase& Case, std::size_t& OutUnique)
{
#ifdef ZEF_BENCH_HAS_Meshoptimizer
	Case.Remap.resize(Case.Corners.size());
	OutUnique = RemapMeshoptimizer(Case.Remap, Case.Corners.data(), Case.Corners.size(), sizeof(FCorner));
#else
	(void)Case;
	(void)OutUnique;
#endif
}

void AddCase(FSuite& Suite, const std::shared_ptr<FCase>& Case, FComparison&& Comparison)
{
	Comparison.Items = static_cast<double>(Case->Corners.size());
	Comparison.Unit = "corners";
#ifdef ZEF_BENCH_HAS_Meshoptimizer
	Comparison.Contenders.push_back({"meshopt_generateVertexRemap, 92 bytes a corner",
		[Case]
		{
			std::size_t Unique = 0;
			RunRival(*Case, Unique);
		},
		[Case] { std::vector<unsigned>().swap(Case->Remap); }, RequiredRatio});
#else
	Comparison.Skipped.push_back("meshoptimizer is not installed.");
#endif
	Suite.Add(std::move(Comparison));
}

} // namespace

void MeasureSkeletalMesh(FSuite& Suite)
{
	if (const std::string Error = StartEngine(); !Error.empty())
	{
		Suite.Fail(Error);
		return;
	}
	const auto Case = std::make_shared<FCase>();
	{
		Zef::FSurfaceMesh Mesh = MakeCloth(Columns, Rows);
		AddSkin(Mesh, Joints, Influences);
		Case->Record = ToPlugin(Mesh);
		Case->Corners = SpreadCorners(Mesh);
	}
	RunSections(*Case);
#ifdef ZEF_BENCH_HAS_Meshoptimizer
	std::size_t Unique = 0;
	RunRival(*Case, Unique);
	bool bSame = Unique == Case->Model->NumVertices;
	for (std::size_t Corner = 0; bSame && Corner < Case->Remap.size(); ++Corner)
	{
		bSame = Case->Remap[Corner] == Case->Model->IndexBuffer[static_cast<int32>(Corner)];
	}
	if (!bSame)
	{
		Suite.Fail("meshoptimizer finds " + std::to_string(Unique) + " vertices, the conversion " +
				   std::to_string(Case->Model->NumVertices) + ", or gives them other numbers");
	}
#endif
	Case->Model.Reset();

	FComparison Sections;
	Sections.Title = "Soft vertices of a character: 200,000 vertices, 100 joints, 12 influences";
	Sections.Contenders.push_back({"sections, weights and welding of the conversion", [Case] { RunSections(*Case); },
		[Case] { Case->Model.Reset(); }});
	AddCase(Suite, Case, std::move(Sections));

	FComparison Whole;
	Whole.Title = "Surface mesh to skeletal mesh, the same character";
	Whole.Contenders.push_back({"USkeletalMesh, USkeleton and render data", [Case] { RunAll(*Case); },
		[Case]
		{
			Case->Data = FZEFSkeletalMeshData();
			CollectObjects();
		}});
	AddCase(Suite, Case, std::move(Whole));
}

} // namespace Bench
