// SPDX-License-Identifier: MIT

#include "Widgets/Docking/SDockTab.h"

void SDockTab::Construct(const FArguments& InArgs)
{
	SBorder::Construct(SBorder::FArguments()[InArgs._Content.Widget]);
	TabRole = InArgs._TabRole;
	TabLabel = InArgs._Label;
	TabIcon = InArgs._Icon;
	OnTabClosed = InArgs._OnTabClosed;
	OnCanCloseTab = InArgs._OnCanCloseTab;
}

bool SDockTab::RequestCloseTab()
{
	if (bClosed || (OnCanCloseTab.IsBound() && !OnCanCloseTab.Execute()))
	{
		return false;
	}
	bClosed = true;
	OnTabClosed.ExecuteIfBound(StaticCastSharedRef<SDockTab>(AsShared()));
	return true;
}
