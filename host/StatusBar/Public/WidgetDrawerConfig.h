// SPDX-License-Identifier: MIT
// A drawer of a status bar: a button that opens a widget above the bar.
#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Misc/Attribute.h"

struct FSlateBrush;

struct FWidgetDrawerConfig
{
	explicit FWidgetDrawerConfig(FName InUniqueId)
		: UniqueId(InUniqueId)
	{
	}

	FName UniqueId;
	FText ButtonText;
	FText ToolTipText;
	/** Not owned; null for none. */
	const FSlateBrush* Icon = nullptr;
	/** Called each time that the drawer opens. */
	FOnGetContent GetDrawerContentDelegate;
};
