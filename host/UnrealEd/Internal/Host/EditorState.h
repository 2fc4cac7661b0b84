// SPDX-License-Identifier: MIT
// What the editor keeps to itself.
#pragma once

#include "CoreMinimal.h"

class UActorComponent;

namespace Host
{
/** The selected components of GEditor that are alive, in the order of selecting. */
TArray<UActorComponent*> SelectedComponents();

/** How often GEditor's selection was changed with a note to others. */
int32 SelectionNoteCount();

/** The number of registered undo clients of GEditor. */
int32 UndoClientCount();
} // namespace Host
