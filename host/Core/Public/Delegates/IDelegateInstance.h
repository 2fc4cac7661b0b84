// SPDX-License-Identifier: MIT
/** Identity of a bound function. */
#pragma once

#include "CoreTypes.h"

/** Says which binding of a multicast delegate to remove; each binding of the program has its own. */
class CORE_API FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;
	explicit FDelegateHandle(EGenerateNewHandleType)
		: ID(GenerateNewID())
	{
	}

	bool IsValid() const { return ID != 0; }
	void Reset() { ID = 0; }
	bool operator==(const FDelegateHandle& Other) const = default;
	friend uint32 GetTypeHash(const FDelegateHandle& Handle) { return static_cast<uint32>(Handle.ID); }

private:
	static uint64 GenerateNewID();

	uint64 ID = 0;
};

/** Address of the object that a binding belongs to, for removing by owner. */
using FDelegateUserObject = void*;
using FDelegateUserObjectConst = const void*;
