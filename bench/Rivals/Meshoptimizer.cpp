// SPDX-License-Identifier: MIT
#include "Rivals/Rivals.h"

#include <meshoptimizer.h>

namespace Bench
{

std::size_t RemapMeshoptimizer(
	std::vector<unsigned>& Remap, const void* Vertices, std::size_t Corners, std::size_t VertexBytes)
{
	return meshopt_generateVertexRemap(Remap.data(), nullptr, Corners, Vertices, Corners, VertexBytes);
}

std::string MeshoptimizerVersion()
{
	return "meshoptimizer " + std::to_string(MESHOPTIMIZER_VERSION / 1000) + "." +
		   std::to_string(MESHOPTIMIZER_VERSION / 10 % 100);
}

} // namespace Bench
