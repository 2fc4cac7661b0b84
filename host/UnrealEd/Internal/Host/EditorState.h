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

/** What Undo and Redo would do, as their menu entries say it: "Undo Move"; "Undo" when there is nothing. */
FText UndoText();
FText RedoText();
bool CanUndo();
bool CanRedo();
/** Titles of the editor's transactions from the oldest on, those that were undone included. */
TArray<FText> TransactionTitles();

/** The number of registered undo clients of GEditor. */
int32 UndoClientCount();
} // namespace Host
