// SPDX-License-Identifier: MIT
/** Small records whose every field has a value of its own, for the tests of the link. */
#pragma once

#include "Zef/Encode.h"
#include "Zef/Records.h"

#include <memory>
#include <string>
#include <vector>

namespace LinkTest
{

/** Two surfaces, three joints, weights, two materials, three textures. */
inline std::shared_ptr<Zef::FSurfaceMesh> SampleMesh()
{
	auto Mesh = std::make_shared<Zef::FSurfaceMesh>();

	Zef::FSurface Front;
	Front.Name = "Front";
	Front.SurfaceType = 5;
	Front.SurfaceMode = 1;
	Front.Positions = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
	Front.Normals = {{0, 0, 1}, {0, 0, 1}, {0, 0, 1}};
	Front.Tangents = {{1, 0, 0}, {1, 0, 0}, {1, 0, 0}};
	Front.UVs = {{0, 0}, {1, 0}, {0, 1}};
	Front.Sections = {{7, {0, 1, 2}}, {-3, {}}};

	Zef::FSurface Back;
	Back.Name = "R\xc3\xbc"
				"cken";
	Back.VertexOffset = 3;
	Back.Positions = {{0, 0, 2}, {1, 0, 2}, {0, 1, 2}, {1, 1, 2}};
	Back.Normals = {{0, 0, -1}, {0, 0, -1}, {0, 0, -1}, {0, 0, -1}};
	Back.Tangents = {{1, 0, 0}, {1, 0, 0}, {1, 0, 0}, {1, 0, 0}};
	Back.UVs = {{0, 0}, {1, 0}, {0, 1}, {1, 1}};
	Back.Sections = {{9, {0, 2, 1, 1, 2, 3, 0}}};
	Mesh->Surfaces = {Front, Back};

	Mesh->Joints = {{"Root", -1, {}}, {"Spine", 0, {{0, 0, 0, 1}, {0, 0, 90}, {1, 1, 1}}},
		{"Head", 1, {{0.5f, 0.5f, 0.5f, 0.5f}, {1, 2, 3}, {2, 2, 2}}}};
	Mesh->VertexInfluences.FirstWeight = {0, 1, 3, 3, 4, 5, 6, 7};
	Mesh->VertexInfluences.Weights = {{0, 1}, {1, 0.75f}, {2, 0.25f}, {2, 1}, {1, 1}, {0, 1}, {2, 0}};

	Zef::FMaterial Cloth;
	Cloth.Id = 12;
	Cloth.Name = "Cloth";
	Cloth.MaterialKind = 5;
	Cloth.bUseTransparency = true;
	Zef::FMaterialExpression BaseColor;
	BaseColor.TextureId = 100;
	BaseColor.Vectors = {{0, {0.1f, 0.2f, 0.3f, 0.4f}}};
	BaseColor.UVTransform = {{0, 0, 0, 1}, {0.25f, 0.5f, 0}, {2, 3, 1}};
	Zef::FMaterialExpression Roughness;
	Roughness.Scalars = {{3, 1}, {0, 0.5f}, {1, 0.25f}};
	Cloth.Expressions = {{Zef::MaterialChannel::Roughness, Roughness}, {Zef::MaterialChannel::BaseColor, BaseColor}};

	Zef::FMaterial Substance;
	Substance.Id = 13;
	Substance.Name = "Leder";
	Substance.MaterialKind = 99;
	Substance.bSubstance = true;
	Substance.SubstanceAssetPath = "/Game/S/Leather.Leather";
	Substance.SubstanceGraphName = "graph";
	Substance.UVTransform = {{0, 0, 0, 1}, {1, 2, 0}, {4, 5, 1}};
	Mesh->Materials = {{9, Substance}, {7, Cloth}};

	Mesh->Textures = {{100, {0, 2, 1, {1, 2, 3, 4, 5, 6, 7, 8}}},
		{50, {1, 1, 2, {1, 0, 2, 0, 3, 0, 4, 0, 5, 0, 6, 0, 7, 0, 8, 0}}}, {51, {-1, 0, 0, {}}}};
	return Mesh;
}

/** SampleMesh with three frames, of which the last moves one joint alone. */
inline std::shared_ptr<Zef::FJointAnimation> SampleAnimation()
{
	auto Animation = std::make_shared<Zef::FJointAnimation>();
	Animation->Mesh = *SampleMesh();
	const Zef::FTransform Bent{{0, 0, 1, 0}, {0, 0, 91}, {1, 1, 1}};
	Animation->Sequence.Frames = {{{{"Spine", 0, {}}, {"Head", 1, Bent}}, 0.0},
		{{{"Spine", 0, Bent}, {"Head", 1, {}}}, 0.5}, {{{"Head", 1, Bent}}, 1.0}};
	return Animation;
}

/** A frame over the seven vertices of SampleMesh. */
inline std::shared_ptr<Zef::FMeshSequenceFrame> SampleFrame(float Height, double Time)
{
	auto Frame = std::make_shared<Zef::FMeshSequenceFrame>();
	for (int Vertex = 0; Vertex < 7; ++Vertex)
	{
		Frame->Positions.push_back({static_cast<float>(Vertex), 0, Height});
		Frame->Normals.push_back({0, 0, 1});
		Frame->Tangents.push_back({1, 0, 0});
	}
	Frame->Time = Time;
	return Frame;
}

/** A strip of quads of so many vertices, two by two, without joints; a few megabytes for a hundred thousand. */
inline std::shared_ptr<Zef::FSurfaceMesh> StripMesh(std::int32_t Vertices)
{
	auto Mesh = std::make_shared<Zef::FSurfaceMesh>();
	Zef::FSurface& Strip = Mesh->Surfaces.emplace_back();
	Strip.Name = "Strip";
	Zef::FSection& Section = Strip.Sections.emplace_back();
	for (std::int32_t Vertex = 0; Vertex < Vertices; ++Vertex)
	{
		Strip.Positions.push_back({static_cast<float>(Vertex / 2), static_cast<float>(Vertex % 2), 0});
		Strip.Normals.push_back({0, 0, 1});
		Strip.Tangents.push_back({1, 0, 0});
		Strip.UVs.push_back({static_cast<float>(Vertex), 0});
		if (Vertex >= 2)
		{
			Section.Indices.insert(Section.Indices.end(), {Vertex - 2, Vertex - 1, Vertex});
		}
	}
	return Mesh;
}

/** All arrays of an item, one after the other. */
inline Zef::FBytes PayloadOf(const Zef::FEncodedItem& Item)
{
	Zef::FBytes Payload;
	for (const Zef::FChunk& Chunk : Item.Chunks)
	{
		Payload.insert(Payload.end(), Chunk.Data, Chunk.Data + Chunk.Size);
	}
	return Payload;
}

} // namespace LinkTest
