// SPDX-License-Identifier: MIT
/** Name of a timer. */
#pragma once

#include "CoreTypes.h"

/** Names one timer of one timer manager. A valid handle may name a timer that has run out. */
struct FTimerHandle
{
	/** Names no timer. */
	FTimerHandle() = default;

	/** Whether the handle was given to a timer and not invalidated since. */
	bool IsValid() const { return Handle != 0; }
	void Invalidate() { Handle = 0; }
	bool operator==(const FTimerHandle& Other) const = default;

private:
	friend class FTimerManager;
	friend uint32 GetTypeHash(const FTimerHandle& InHandle);

	uint64 Handle = 0;
};

inline uint32 GetTypeHash(const FTimerHandle& InHandle)
{
	return static_cast<uint32>(InHandle.Handle ^ InHandle.Handle >> 32);
}
