// SPDX-License-Identifier: MIT
/** Counts live objects by class, to find objects that were left over. */
#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

namespace Host
{

/** Numbers of objects by the name of their class. Classes, their defaults and packages of native types do not count. */
struct FObjectCensus
{
	TMap<FString, int32> Counts;
	int32 Total = 0;
};

COREUOBJECT_API FObjectCensus TakeObjectCensus();

/** The classes whose numbers differ, as "StaticMesh +2, Package -1" in alphabetical order; empty when all are equal. */
COREUOBJECT_API FString CompareObjectCensus(const FObjectCensus& Before, const FObjectCensus& After);

/** The paths of all live objects of a class, one a line, for messages about objects left over. */
COREUOBJECT_API FString ListObjectsOfClass(const FString& ClassName);

} // namespace Host
