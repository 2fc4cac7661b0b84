// SPDX-License-Identifier: MIT
#include "SStatusBar.h"

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"

namespace
{
constexpr float IconSize = 16.0f; // slate units
} // namespace

void SStatusBar::Construct(const FArguments&)
{
	ChildSlot[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SAssignNew(DrawerBox, SBox)] +
			  SVerticalBox::Slot().AutoHeight()[SAssignNew(ButtonBox, SBox)]];
	CloseDrawer();
}

void SStatusBar::SetDrawers(const TArray<FWidgetDrawerConfig>& InDrawers)
{
	Drawers = InDrawers;
	FSlimHorizontalToolBarBuilder Buttons(nullptr, FMultiBoxCustomization::None);
	Buttons.SetIsFocusable(true);
	Buttons.BeginSection("Drawers");
	for (const FWidgetDrawerConfig& Drawer : Drawers)
	{
		if (Drawer.Icon)
		{
			Buttons.AddWidget(
				SNew(SBox).WidthOverride(IconSize).HeightOverride(IconSize)[SNew(SBorder).BorderImage(Drawer.Icon)]);
		}
		const FName Id = Drawer.UniqueId;
		Buttons.AddToolBarButton(
			FUIAction(FExecuteAction::CreateSPLambda(this, [this, Id] { ToggleDrawer(Id); }), FCanExecuteAction(),
				FIsActionChecked::CreateSP(this, &SStatusBar::IsDrawerOpen, Id)),
			Id, Drawer.ButtonText, Drawer.ToolTipText, TAttribute<FSlateIcon>(),
			EUserInterfaceActionType::ToggleButton);
	}
	Buttons.EndSection();
	ButtonBox->SetContent(Buttons.MakeWidget());
	ButtonBox->SetVisibility(Drawers.IsEmpty() ? EVisibility::Collapsed : EVisibility::Visible);
	if (!Drawers.ContainsByPredicate(
			[this](const FWidgetDrawerConfig& Drawer) { return Drawer.UniqueId == OpenDrawer; }))
	{
		CloseDrawer();
	}
}

bool SStatusBar::ToggleDrawer(const FName DrawerId)
{
	const FWidgetDrawerConfig* const Drawer =
		Drawers.FindByPredicate([DrawerId](const FWidgetDrawerConfig& Entry) { return Entry.UniqueId == DrawerId; });
	if (!Drawer)
	{
		return false;
	}
	const bool bOpens = OpenDrawer != DrawerId;
	CloseDrawer();
	if (bOpens && Drawer->GetDrawerContentDelegate.IsBound())
	{
		OpenDrawer = DrawerId;
		DrawerBox->SetContent(Drawer->GetDrawerContentDelegate.Execute());
		DrawerBox->SetVisibility(EVisibility::Visible);
	}
	return true;
}

void SStatusBar::CloseDrawer()
{
	OpenDrawer = NAME_None;
	DrawerBox->SetContent(SNullWidget::NullWidget);
	DrawerBox->SetVisibility(EVisibility::Collapsed);
}
