// SPDX-License-Identifier: MIT
#include "Subjects/Subjects.h"

#include "Support/Comparison.h"
#include "Support/Samples.h"
#include "Zef/Check.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>

namespace Bench
{

namespace
{

/** The check may take twice the time of reading. */
constexpr double RequiredRatio = 0.5;

/** All bytes once, eight at a time; what a program does at least that looks at every number. */
template <class TElement>
std::uint64_t Read(const std::vector<TElement>& Array)
{
	const auto* Bytes = reinterpret_cast<const unsigned char*>(Array.data());
	const std::size_t Words = Array.size() * sizeof(TElement) / sizeof(std::uint64_t);
	std::uint64_t Sum = 0;
	for (std::size_t Word = 0; Word < Words; ++Word)
	{
		std::uint64_t Value = 0;
		std::memcpy(&Value, Bytes + Word * sizeof(Value), sizeof(Value));
		Sum += Value;
	}
	return Sum;
}

std::uint64_t ReadAll(const Zef::FSurfaceMesh& Mesh)
{
	const Zef::FSurface& Surface = Mesh.Surfaces[0];
	return Read(Surface.Positions) + Read(Surface.Normals) + Read(Surface.Tangents) + Read(Surface.UVs) +
		   Read(Surface.Sections[0].Indices) + Read(Mesh.VertexInfluences.FirstWeight) +
		   Read(Mesh.VertexInfluences.Weights);
}

void AddCase(FSuite& Suite, const std::string& Title, Zef::FSurfaceMesh&& Made)
{
	const auto Mesh = std::make_shared<const Zef::FSurfaceMesh>(std::move(Made));
	if (const Zef::FLinkFault Fault = Zef::CheckMesh(*Mesh, Zef::EIndexBase::Surface))
	{
		Suite.Fail(Title + ": " + Zef::ToString(Fault));
	}
	FComparison Comparison;
	Comparison.Title = Title;
	Comparison.Items = static_cast<double>(Mesh->Surfaces[0].Sections[0].Indices.size() / 3);
	Comparison.Unit = "triangles";
	Comparison.Contenders.push_back(
		{"CheckMesh", [Mesh] { benchmark::DoNotOptimize(Zef::CheckMesh(*Mesh, Zef::EIndexBase::Surface).Code); }, {}});
	Comparison.Contenders.push_back(
		{"reading the same bytes once", [Mesh] { benchmark::DoNotOptimize(ReadAll(*Mesh)); }, {}, RequiredRatio});
	Suite.Add(std::move(Comparison));
}

} // namespace

void MeasureChecker(FSuite& Suite)
{
	AddCase(Suite, "Checks of a received mesh, cloth of 2,000,000 triangles", MakeCloth(1000, 1000));
	Zef::FSurfaceMesh Character = MakeCloth(1000, 1000);
	AddSkin(Character, 100, 4);
	AddCase(Suite, "Checks of a received mesh, the same with a skin of 4 influences", std::move(Character));
}

} // namespace Bench
