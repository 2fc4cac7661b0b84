// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneSnapshot.h"

#include <map>
#include <memory>
#include <string>

class UMaterialInterface;
class UTexture;

namespace Host
{

/**
 * Snapshots of textures, known by the identity of their pixels: the same source gives the same snapshot. A snapshot
 * shares the source's pixels instead of copying them.
 */
class FTextureSnapshots
{
public:
	/** @return null for a texture without pixels or of a layout that no material of the plug-in has */
	std::shared_ptr<const FTextureSnapshot> Find(const UTexture& Texture);

	/** Forgets what no snapshot of a scene holds any more. */
	void DropUnused();

private:
	std::map<std::string, std::shared_ptr<const FTextureSnapshot>> Known; // by the source's guid and the sRGB flag
};

/** The values of a material in effect. */
std::shared_ptr<const FMaterialSnapshot> SnapshotOf(const UMaterialInterface& Material, FTextureSnapshots& Textures);

} // namespace Host
