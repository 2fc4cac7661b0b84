// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewportToolbar.h"

#include "Editor/ZEFTandemEditorCommands.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "SEditorViewport.h"
#include "Styling/CoreStyle.h"

namespace
{

constexpr uint32 MaxMenuHeight = 1000;

} // namespace

void SZEFTandemEditorViewportToolbar::Construct(
	const FArguments& /*InArgs*/, TSharedPtr<ICommonEditorViewportToolbarInfoProvider> InInfoProvider)
{
	SCommonEditorViewportToolbarBase::Construct(SCommonEditorViewportToolbarBase::FArguments(), InInfoProvider);
}

TSharedRef<SWidget> SZEFTandemEditorViewportToolbar::GenerateShowMenu() const
{
	const FZEFTandemEditorCommands& Commands = FZEFTandemEditorCommands::Get();
	FMenuBuilder MenuBuilder(true, GetInfoProvider().GetViewportWidget()->GetCommandList(), TSharedPtr<FExtender>(),
		false, &FCoreStyle::Get(), false);
	MenuBuilder.AddMenuEntry(Commands.SetShowGrid);
	MenuBuilder.AddMenuSeparator();
	MenuBuilder.AddMenuEntry(Commands.SetShowNormals);
	MenuBuilder.AddMenuEntry(Commands.SetShowTangents);
	MenuBuilder.AddMenuEntry(Commands.SetShowBinormals);
	return MenuBuilder.MakeWidget(nullptr, MaxMenuHeight);
}
