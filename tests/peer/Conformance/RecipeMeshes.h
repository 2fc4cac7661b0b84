// SPDX-License-Identifier: MIT
/** The smallest records that the cases are made of. */
#pragma once

#include "Zef/Records.h"

#include <memory>

namespace ConformanceTest
{

/** Five vertices, one triangle, one material with a roughness map, no joints. */
inline std::shared_ptr<Zef::FSurfaceMesh> Cloth()
{
	auto Mesh = std::make_shared<Zef::FSurfaceMesh>();
	Zef::FSurface& Surface = Mesh->Surfaces.emplace_back();
	Surface.Name = "Cloth";
	Surface.Positions = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}, {2, 1, 0}};
	Surface.Normals.assign(5, {0, 0, 1});
	Surface.Tangents.assign(5, {1, 0, 0});
	Surface.UVs = {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {2, 1}};
	Surface.Sections = {{7, {0, 1, 2}}};

	Zef::FMaterial Material;
	Material.Name = "Linen";
	Zef::FMaterialExpression Roughness;
	Roughness.TextureId = 3;
	Roughness.Scalars = {{0, 1}, {1, 0.5f}, {3, 1}};
	Material.Expressions = {{Zef::MaterialChannel::Roughness, Roughness}};
	Mesh->Materials = {{7, Material}};
	Mesh->Textures = {{3, {0, 1, 1, {1, 2, 3, 4}}}};
	return Mesh;
}

/** Three vertices, one triangle, three joints. */
inline std::shared_ptr<Zef::FSurfaceMesh> Body()
{
	auto Mesh = std::make_shared<Zef::FSurfaceMesh>();
	Zef::FSurface& Surface = Mesh->Surfaces.emplace_back();
	Surface.Name = "Body";
	Surface.Positions = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
	Surface.Normals.assign(3, {0, 0, 1});
	Surface.Tangents.assign(3, {1, 0, 0});
	Surface.UVs = {{0, 0}, {1, 0}, {0, 1}};
	Surface.Sections = {{0, {0, 1, 2}}};
	Mesh->Joints = {{"Hips", -1, {}}, {"Spine", 0, {}}, {"Head", 1, {}}};
	Mesh->VertexInfluences.FirstWeight = {0, 1, 3, 4};
	Mesh->VertexInfluences.Weights = {{0, 1}, {1, 0.5f}, {2, 0.5f}, {2, 1}};
	return Mesh;
}

/** Body with two poses. */
inline std::shared_ptr<Zef::FJointAnimation> Walk()
{
	auto Animation = std::make_shared<Zef::FJointAnimation>();
	Animation->Mesh = *Body();
	Animation->Sequence.Frames = {
		{{{"Spine", 0, {}}, {"Head", 1, {}}}, 0.0}, {{{"Spine", 0, {}}, {"Head", 1, {}}}, 0.5}};
	return Animation;
}

/** A frame over the vertices of Cloth. */
inline std::shared_ptr<Zef::FMeshSequenceFrame> Fold(double Time)
{
	auto Frame = std::make_shared<Zef::FMeshSequenceFrame>();
	Frame->Positions.assign(5, {1, 2, 3});
	Frame->Normals.assign(5, {0, 0, 1});
	Frame->Tangents.assign(5, {1, 0, 0});
	Frame->Time = Time;
	return Frame;
}

} // namespace ConformanceTest
