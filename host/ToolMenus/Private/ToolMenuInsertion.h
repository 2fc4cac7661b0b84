// SPDX-License-Identifier: MIT
#pragma once

// The place in a list of named things that an insert position means.

#include "ToolMenuMisc.h"

/** Index before which the new one goes. A named neighbour that is missing gives the end. */
template <typename ElementType>
int32 FindInsertIndex(const TArray<ElementType>& List, const FToolMenuInsert& Position)
{
	if (Position.Position == EToolMenuInsertType::First)
	{
		return 0;
	}
	if (Position.IsBeforeOrAfter())
	{
		const int32 Neighbour =
			List.IndexOfByPredicate([&](const ElementType& Element) { return Element.Name == Position.Name; });
		if (Neighbour != INDEX_NONE)
		{
			return Position.Position == EToolMenuInsertType::Before ? Neighbour : Neighbour + 1;
		}
	}
	// What wants to be last stays behind what comes later.
	int32 End = List.Num();
	while (Position.Position != EToolMenuInsertType::Last && End > 0 &&
		   List[End - 1].InsertPosition.Position == EToolMenuInsertType::Last)
	{
		--End;
	}
	return End;
}
