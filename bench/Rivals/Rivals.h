// SPDX-License-Identifier: MIT
/** The other libraries behind plain functions, so that none of their headers meets ours. */
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace Bench
{

/** A built mesh, kept until its counts were taken and its time was noted. */
struct IRivalMesh
{
	virtual ~IRivalMesh() = default;
	virtual std::size_t Vertices() const = 0;
	virtual std::size_t Edges() const = 0;
	virtual std::size_t Faces() const = 0;
};

/** Builds the topology of triangles over so many vertices; Indices is [3 * triangles]. */
std::unique_ptr<IRivalMesh> BuildOpenMesh(std::size_t Vertices, std::span<const std::int32_t> Indices);
std::unique_ptr<IRivalMesh> BuildCgal(std::size_t Vertices, std::span<const std::int32_t> Indices);

/**
 * Finds equal vertices of an unindexed stream.
 *
 * @param Remap  [Corners], receives the number of each corner's vertex
 * @return how many different vertices there are
 */
std::size_t RemapMeshoptimizer(
	std::vector<unsigned>& Remap, const void* Vertices, std::size_t Corners, std::size_t VertexBytes);

/** What an import found. */
struct FImported
{
	std::size_t Vertices = 0;
	std::size_t Triangles = 0;
	std::size_t Textures = 0;
	std::string Error;
};

/** An imported scene, kept until its time was noted. */
struct IRivalScene
{
	virtual ~IRivalScene() = default;
	virtual FImported Describe() const = 0;
};

/** Imports a model of that format ("glb"); with bJoin its identical vertices are joined. */
std::unique_ptr<IRivalScene> ImportAssimp(std::span<const std::uint8_t> Bytes, const char* Format, bool bJoin);

// Names and versions.
std::string OpenMeshVersion();
std::string CgalVersion();
std::string MeshoptimizerVersion();
std::string AssimpVersion();

} // namespace Bench
