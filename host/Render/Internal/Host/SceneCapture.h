// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneSnapshot.h"

#include <cstdint>
#include <map>
#include <memory>

class UPrimitiveComponent;
class UWorld;

namespace Host
{

/**
 * Takes the snapshots of a world that a renderer draws: dynamic mesh components by their overlays, skeletal mesh
 * components in their reference pose. Nothing of a snapshot refers to an engine object, so it outlives the world.
 *
 * Meshes are extracted anew only when they have changed, so that snapshots of one capture share them. Use it
 * on the game thread.
 */
class FSceneCapture
{
public:
	FSceneCapture();
	~FSceneCapture();
	FSceneCapture(const FSceneCapture&) = delete;
	FSceneCapture& operator=(const FSceneCapture&) = delete;

	/**
	 * The visible primitives of the world in the order in which they came; without camera and lights, which
	 * LookAtScene or LookAtSceneFrom of Host/SceneCamera.h set.
	 */
	FSceneSnapshot Capture(const UWorld& World);

private:
	struct FMeshEntry
	{
		uint64_t Revision = 0;
		std::shared_ptr<const FMeshSnapshot> Mesh;
	};

	struct FTextures;

	std::shared_ptr<const FMeshSnapshot> MeshOf(const UPrimitiveComponent& Component, uint64_t Revision);

	std::map<const UPrimitiveComponent*, FMeshEntry> Meshes;
	std::unique_ptr<FTextures> Textures;
};

} // namespace Host
