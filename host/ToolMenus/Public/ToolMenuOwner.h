// SPDX-License-Identifier: MIT
#pragma once

// Who added a section or an entry, for removing it again.

#include "CoreMinimal.h"

/** A pointer or a name; the two never mean the same owner. */
struct FToolMenuOwner
{
	/** Nobody. */
	FToolMenuOwner() = default;
	FToolMenuOwner(void* InPointer)
		: Pointer(InPointer)
	{
	}
	FToolMenuOwner(const ANSICHAR* InValue)
		: Name(InValue)
	{
	}
	FToolMenuOwner(const WIDECHAR* InValue)
		: Name(InValue)
	{
	}
	FToolMenuOwner(const FName InValue)
		: Name(InValue)
	{
	}

	bool IsSet() const { return Pointer != nullptr || !Name.IsNone(); }
	bool operator==(const FToolMenuOwner& Other) const { return Pointer == Other.Pointer && Name == Other.Name; }
	bool operator!=(const FToolMenuOwner& Other) const { return !(*this == Other); }

private:
	void* Pointer = nullptr;
	FName Name;
};
