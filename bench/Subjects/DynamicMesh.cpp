// SPDX-License-Identifier: MIT
#include "Subjects/Subjects.h"

#include "DynamicMesh/DynamicMesh3.h"
#include "Rivals/Rivals.h"
#include "Support/Comparison.h"
#include "Support/EngineSession.h"
#include "Support/Samples.h"
#include "Utils/ZEFTandemEditorUtils.h"

namespace Bench
{

namespace
{

constexpr double RequiredRatio = 2.0;

/** One object in both forms, and what the contenders last made of it. */
struct FCase
{
	FZEFSurfaceMesh Record;
	std::vector<std::int32_t> Indices; // of the whole mesh
	std::size_t Vertices = 0;
	FZEFDynamicMeshData Ours;
	std::unique_ptr<IRivalMesh> Theirs;
};

std::shared_ptr<FCase> MakeCase(const Zef::FSurfaceMesh& Mesh)
{
	auto Case = std::make_shared<FCase>();
	Case->Record = ToPlugin(Mesh);
	for (const Zef::FSurface& Surface : Mesh.Surfaces)
	{
		for (const Zef::FSection& Section : Surface.Sections)
		{
			for (const std::int32_t Index : Section.Indices)
			{
				Case->Indices.push_back(Index + Surface.VertexOffset);
			}
		}
		Case->Vertices += Surface.Positions.size();
	}
	// Textures are not topology.
	Case->Record.Textures.Empty();
	return Case;
}

void RunOurs(FCase& Case)
{
	ZEFEditorUtils::ZEFSurfaceMeshToDynamicMeshData(Case.Record, TEXT("DynamicMesh"), &Case.Ours);
}

using FBuild = std::unique_ptr<IRivalMesh> (*)(std::size_t, std::span<const std::int32_t>);

void AddCase(FSuite& Suite, const std::string& Title, const Zef::FSurfaceMesh& Mesh, bool bSameRules)
{
	const std::shared_ptr<FCase> Case = MakeCase(Mesh);
	RunOurs(*Case);
	const UE::Geometry::FDynamicMesh3 Reference = *Case->Ours.DynamicMesh;
	Case->Ours.DynamicMesh.Reset();
	FComparison Comparison;
	Comparison.Title = Title;
	Comparison.Items = static_cast<double>(Case->Indices.size() / 3);
	Comparison.Unit = "triangles";
	Comparison.bFasterRivalCounts = true;
	Comparison.Contenders.push_back({"FDynamicMesh3 with all attributes", [Case] { RunOurs(*Case); },
		[Case]
		{
			Case->Ours.DynamicMesh.Reset();
			CollectObjects();
		}});
	const auto AddRival = [&](const char* Name, FBuild Build)
	{
		const std::unique_ptr<IRivalMesh> Built = Build(Case->Vertices, Case->Indices);
		// Rivals refuse triangles against the winding of their neighbours too, so they may keep fewer of a real model.
		const auto Faces = static_cast<std::size_t>(Reference.TriangleCount());
		const auto Edges = static_cast<std::size_t>(Reference.EdgeCount());
		const bool bSame = Built->Vertices() == static_cast<std::size_t>(Reference.VertexCount()) &&
						   (bSameRules ? Built->Faces() == Faces && Built->Edges() == Edges : Built->Faces() <= Faces);
		if (!bSame)
		{
			Suite.Fail(Title + ": " + Name + " has " + std::to_string(Built->Vertices()) + " vertices, " +
					   std::to_string(Built->Edges()) + " edges, " + std::to_string(Built->Faces()) +
					   " triangles; FDynamicMesh3 has " + std::to_string(Reference.VertexCount()) + ", " +
					   std::to_string(Edges) + ", " + std::to_string(Faces));
		}
		Comparison.Contenders.push_back({std::string(Name) + ", topology alone",
			[Case, Build] { Case->Theirs = Build(Case->Vertices, Case->Indices); }, [Case] { Case->Theirs.reset(); },
			RequiredRatio});
	};
#ifdef ZEF_BENCH_HAS_OpenMesh
	AddRival("OpenMesh", &BuildOpenMesh);
#else
	Comparison.Skipped.push_back("OpenMesh is not installed.");
#endif
#ifdef ZEF_BENCH_HAS_CGAL
	AddRival("CGAL Surface_mesh", &BuildCgal);
#else
	Comparison.Skipped.push_back("CGAL is not installed.");
#endif
	Suite.Add(std::move(Comparison));
}

} // namespace

void MeasureDynamicMesh(FSuite& Suite)
{
	if (const std::string Error = StartEngine(); !Error.empty())
	{
		Suite.Fail(Error);
		return;
	}
	AddCase(Suite, "Surface mesh to dynamic mesh, cloth of 1,000,000 triangles", MakeCloth(500, 1000), true);
	std::string Reason;
	if (const std::optional<Zef::FSurfaceMesh> Scan = LoadScan(Reason))
	{
		AddCase(Suite, "Surface mesh to dynamic mesh, flight helmet of the shared data", *Scan, false);
	}
	else
	{
		Suite.Skip("the model of the shared data: " + Reason);
	}
}

} // namespace Bench
