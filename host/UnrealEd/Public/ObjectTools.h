// SPDX-License-Identifier: MIT
// Names and removal of objects in the editor.
#pragma once

#include "CoreMinimal.h"

class UObject;

namespace ObjectTools
{
/** The name with an underscore in place of each character that an object's name may not hold; as long as before. */
UNREALED_API FString SanitizeObjectName(const FString& InObjectName);

/**
 * Takes an object out of use: its package is marked dirty, the object loses its standalone flag and becomes garbage.
 * The memory goes at the next collection, which is the caller's to run.
 *
 * @param bPerformReferenceCheck  whether an object that others in memory refer to stays, with a message to the user
 * @return whether the object was taken out of use; false for null
 */
UNREALED_API bool DeleteSingleObject(UObject* ObjectToDelete, bool bPerformReferenceCheck = true);
} // namespace ObjectTools
