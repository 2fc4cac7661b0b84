// SPDX-License-Identifier: MIT
// The status bars of editor windows, by name.
#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"
#include "WidgetDrawerConfig.h"
#include "StatusBarSubsystem.generated.h"

class SDockTab;
class SStatusBar;
class SWidget;

UCLASS()
class UStatusBarSubsystem : public UEditorSubsystem
{
	GENERATED_BODY()

public:
	/** A bar that shows its drawers, those that were registered before too. A second bar of a name takes its place. */
	TSharedRef<SWidget> MakeStatusBarWidget(FName StatusBarName, const TSharedRef<SDockTab>& InParentTab);

	/**
	 * Adds a drawer to a bar, which need not be there yet; one of the same identifier is replaced.
	 *
	 * @param SlotIndex  place among the bar's drawers; INDEX_NONE for behind them
	 */
	void RegisterDrawer(FName StatusBarName, FWidgetDrawerConfig&& Drawer, int32 SlotIndex = INDEX_NONE);
	void UnregisterDrawer(FName StatusBarName, FName DrawerId);

	/** Opens a closed drawer and closes an open one; false when no bar with such a drawer stands in a window. */
	bool TryToggleDrawer(const FName DrawerId);

private:
	struct FStatusBar
	{
		TArray<FWidgetDrawerConfig> Drawers;
		TWeakPtr<SStatusBar> Widget;
	};

	TMap<FName, FStatusBar> StatusBars;
};
