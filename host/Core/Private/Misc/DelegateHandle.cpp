// SPDX-License-Identifier: MIT
#include "Delegates/IDelegateInstance.h"

#include <atomic>

uint64 FDelegateHandle::GenerateNewID()
{
	static std::atomic<uint64> LastID = 0;
	return ++LastID;
}
