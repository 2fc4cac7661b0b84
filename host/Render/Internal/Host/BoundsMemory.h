// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneCamera.h"

#include <map>

namespace Host
{

/**
 * Boxes around objects that are asked for again and again, as for each picture of a camera that moves: an object whose
 * mesh and placement are those of the time before is not walked through again.
 */
class FBoundsMemory
{
public:
	/** The same as BoundsOf. Forgets what is not among the objects. */
	FSceneBounds Of(const std::vector<FObjectSnapshot>& Objects);

private:
	struct FEntry
	{
		std::weak_ptr<const FMeshSnapshot> Mesh;
		FPlacement Placement;
		FSceneBounds Bounds;
	};

	std::multimap<const FMeshSnapshot*, FEntry> Entries;
};

} // namespace Host
