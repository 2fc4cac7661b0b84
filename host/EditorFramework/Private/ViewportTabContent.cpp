// SPDX-License-Identifier: MIT
#include "ViewportTabContent.h"

#include "Widgets/Docking/SDockTab.h"

bool FViewportTabContent::IsVisible() const
{
	return bHasLayout;
}

bool FViewportTabContent::BelongsToTab(TSharedRef<SDockTab> InParentTab) const
{
	return ParentTab.Pin() == InParentTab;
}

bool FViewportTabContent::IsViewportConfigurationSet(const FName& InConfigurationName) const
{
	return bHasLayout && ConfigurationName == InConfigurationName;
}

const TMap<FName, TSharedPtr<IEditorViewportLayoutEntity>>* FViewportTabContent::GetViewports() const
{
	return bHasLayout ? &Viewports : nullptr;
}

void FViewportTabContent::PerformActionOnViewports(ViewportActionFunction& TFuncPtr)
{
	// The action may arrange the panes anew.
	const TMap<FName, TSharedPtr<IEditorViewportLayoutEntity>> Panes = Viewports;
	for (const auto& Pane : Panes)
	{
		TFuncPtr(Pane.Key, Pane.Value);
	}
}
