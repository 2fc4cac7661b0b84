// SPDX-License-Identifier: MIT
#include "Host/BoundsMemory.h"

#include <cstring>

namespace Host
{
namespace
{

bool IsSame(const FPlacement& A, const FPlacement& B)
{
	static_assert(sizeof(FPlacement) == 12 * sizeof(float), "compared as bytes: no padding between the numbers");
	return std::memcmp(&A, &B, sizeof(FPlacement)) == 0;
}

} // namespace

FSceneBounds FBoundsMemory::Of(const std::vector<FObjectSnapshot>& Objects)
{
	std::multimap<const FMeshSnapshot*, FEntry> Seen;
	FSceneBounds All;
	for (const FObjectSnapshot& Object : Objects)
	{
		if (!Object.Mesh)
		{
			continue;
		}
		const FEntry* Known = nullptr;
		const auto [First, Last] = Entries.equal_range(Object.Mesh.get());
		for (auto It = First; It != Last && !Known; ++It)
		{
			// The address alone may be that of a mesh that is gone.
			Known = IsSame(It->second.Placement, Object.Placement) && It->second.Mesh.lock() == Object.Mesh
						? &It->second
						: nullptr;
		}
		const FEntry Entry = Known ? *Known : FEntry{Object.Mesh, Object.Placement, BoundsOf({Object})};
		if (!Entry.Bounds.IsEmpty())
		{
			All.Include(Entry.Bounds.Min);
			All.Include(Entry.Bounds.Max);
		}
		Seen.emplace(Object.Mesh.get(), Entry);
	}
	Entries.swap(Seen);
	return All;
}

} // namespace Host
