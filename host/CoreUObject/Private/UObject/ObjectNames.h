// SPDX-License-Identifier: MIT
/** Finds objects by outer and name. */
#pragma once

#include "UObject/NameTypes.h"

class UObject;

namespace Host
{

/** The names in one outer are unique, so each pair of outer and name leads to one object at most. */
struct FObjectNames
{
	/** Null when nothing has the name; the object may be marked as garbage. */
	static UObject* Find(const UObject* Outer, FName Name);
	static void Add(UObject* Object, const UObject* Outer, FName Name);
	static void Remove(const UObject* Object, const UObject* Outer, FName Name);
};

} // namespace Host
