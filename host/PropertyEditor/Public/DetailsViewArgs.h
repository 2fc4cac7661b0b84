// SPDX-License-Identifier: MIT
// How a details view is made.
#pragma once

#include "CoreMinimal.h"

class FNotifyHook;

struct FDetailsViewArgs
{
	/** A set of bits: what is named above the properties. */
	enum ENameAreaSettings
	{
		HideNameArea = 0,
		ObjectsUseNameArea = 1 << 0,
		ActorsUseNameArea = 1 << 1,
		ComponentsAndActorsUseNameArea = 1 << 2 | ActorsUseNameArea,
	};

	/** Under which the view keeps its settings; none keeps nothing. */
	FName ViewIdentifier;
	/** Not owned; told of every change that the user makes. Null for nobody. */
	FNotifyHook* NotifyHook = nullptr;
	/** Share of the width that the values get, 0..1. */
	float ColumnWidth = 0.65f;
	ENameAreaSettings NameAreaSettings = ActorsUseNameArea;
	uint8 bUpdatesFromSelection : 1 = 0;
	uint8 bLockable : 1 = 0;
	uint8 bAllowSearch : 1 = 1;
	uint8 bHideSelectionTip : 1 = 0;
	uint8 bSearchInitialKeyFocus : 1 = 0;
	uint8 bShowOptions : 1 = 1;
	uint8 bShowPropertyMatrixButton : 1 = 1;
	uint8 bAllowFavoriteSystem : 1 = 1;
	uint8 bAllowMultipleTopLevelObjects : 1 = 0;
	uint8 bShowScrollBar : 1 = 1;
};
