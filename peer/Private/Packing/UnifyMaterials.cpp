// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <map>

#include "Zef/Peer/Packing.h"
#include "Zef/Peer/Winding.h"

namespace Zef::Peer
{

namespace
{

double SectionArea(const FSurface& Surface, const FSection& Section)
{
	double Area = 0;
	for (std::size_t I = 0; I + 2 < Section.Indices.size(); I += 3)
	{
		const FVec3 D = FrontDirection(Surface.Positions[Section.Indices[I]], Surface.Positions[Section.Indices[I + 1]],
			Surface.Positions[Section.Indices[I + 2]]);
		Area += 0.5 * std::sqrt(double(D.X) * D.X + double(D.Y) * D.Y + double(D.Z) * D.Z);
	}
	return Area;
}

/** What the choice of the dominant material goes by. */
struct FCoverage
{
	double Area = 0;
	/** The surface where it covers most, and how much. */
	double LargestOnOneSurface = -1;
	std::int32_t ModeThere = 0;
};

std::map<std::int32_t, FCoverage> MeasureCoverage(const FSurfaceMesh& Mesh)
{
	std::map<std::int32_t, FCoverage> Coverage;
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		std::map<std::int32_t, double> Here;
		for (const FSection& Section : Surface.Sections)
		{
			Here[Section.MaterialIndex] += SectionArea(Surface, Section);
		}
		for (const auto& [Key, Area] : Here)
		{
			FCoverage& Whole = Coverage[Key];
			Whole.Area += Area;
			if (Area > Whole.LargestOnOneSurface)
			{
				Whole.LargestOnOneSurface = Area;
				Whole.ModeThere = Surface.SurfaceMode;
			}
		}
	}
	return Coverage;
}

/** Position in Mesh.Materials of the dominant material; the mesh has at least one. */
std::size_t DominantMaterial(const FSurfaceMesh& Mesh, const std::map<std::int32_t, FCoverage>& Coverage)
{
	const auto AreaOf = [&](std::size_t I)
	{
		const auto Found = Coverage.find(Mesh.Materials[I].first);
		return Found == Coverage.end() ? 0.0 : Found->second.Area;
	};
	std::size_t Best = 0;
	for (std::size_t I = 1; I < Mesh.Materials.size(); ++I)
	{
		const bool bHere = Mesh.Materials[I].second.bSubstance, bBest = Mesh.Materials[Best].second.bSubstance;
		if (bHere != bBest ? bBest : AreaOf(I) > AreaOf(Best))
		{
			Best = I;
		}
	}
	return Best;
}

void RemoveUnusedTextures(FSurfaceMesh& Mesh)
{
	const auto bUsed = [&](std::int32_t TextureId)
	{
		for (const auto& [Key, Material] : Mesh.Materials)
		{
			for (const auto& [Channel, Expression] : Material.Expressions)
			{
				if (Expression.TextureId == TextureId)
				{
					return true;
				}
			}
		}
		return false;
	};
	std::erase_if(Mesh.Textures, [&](const auto& Texture) { return !bUsed(Texture.first); });
}

void JoinSections(FSurface& Surface, std::int32_t MaterialKey)
{
	if (Surface.Sections.empty())
	{
		return;
	}
	FSection Joined;
	Joined.MaterialIndex = MaterialKey;
	for (const FSection& Section : Surface.Sections)
	{
		// One or two trailing indices of a section form no triangle and would shift those of the next.
		const std::size_t Whole = Section.Indices.size() / 3 * 3;
		Joined.Indices.insert(Joined.Indices.end(), Section.Indices.begin(),
			Section.Indices.begin() + static_cast<std::ptrdiff_t>(Whole));
	}
	Surface.Sections.clear();
	Surface.Sections.push_back(std::move(Joined));
}

} // namespace

void UnifyMaterials(FSurfaceMesh& Mesh)
{
	std::int32_t Key = 0;
	if (!Mesh.Materials.empty())
	{
		const std::map<std::int32_t, FCoverage> Coverage = MeasureCoverage(Mesh);
		std::pair<std::int32_t, FMaterial> Unified = std::move(Mesh.Materials[DominantMaterial(Mesh, Coverage)]);
		Key = Unified.first;
		Unified.second.Name = "Unified";
		Mesh.Materials.clear();
		Mesh.Materials.push_back(std::move(Unified));
		RemoveUnusedTextures(Mesh);

		const auto Found = Coverage.find(Key);
		if (Found != Coverage.end())
		{
			for (FSurface& Surface : Mesh.Surfaces)
			{
				Surface.SurfaceMode = Found->second.ModeThere;
			}
		}
	}
	for (FSurface& Surface : Mesh.Surfaces)
	{
		JoinSections(Surface, Key);
	}
}

} // namespace Zef::Peer
