// SPDX-License-Identifier: MIT
// The tool bar that the viewports of asset editors have in common.
#pragma once

#include "CoreMinimal.h"
#include "SViewportToolBar.h"

class FExtender;
class SEditorViewport;
class SHorizontalBox;

/** What a tool bar needs to know of the viewport that it stands over. */
class ICommonEditorViewportToolbarInfoProvider
{
public:
	virtual ~ICommonEditorViewportToolbarInfoProvider() = default;

	virtual TSharedRef<SEditorViewport> GetViewportWidget() = 0;
	/** Additions to the menus of the tool bar; empty for none. */
	virtual TSharedPtr<FExtender> GetExtenders() const = 0;
	virtual void OnFloatingButtonClicked() = 0;
};

/**
 * Four menus: the options of the viewport, its projection, its view mode, and what it shows. The labels of the second
 * and the third say what is chosen.
 */
class SCommonEditorViewportToolbarBase : public SViewportToolBar
{
public:
	SLATE_BEGIN_ARGS(SCommonEditorViewportToolbarBase) {}
	SLATE_END_ARGS()

	virtual ~SCommonEditorViewportToolbarBase() override;

	/** @param InInfoProvider  known weakly: it holds the tool bar */
	void Construct(const FArguments& InArgs, TSharedPtr<ICommonEditorViewportToolbarInfoProvider> InInfoProvider);

	/** The content of the menu "Show"; empty here, since only a derived class knows what there is to show. */
	virtual TSharedRef<SWidget> GenerateShowMenu() const;

protected:
	/** A failed check when the viewport is gone. */
	ICommonEditorViewportToolbarInfoProvider& GetInfoProvider() const;
	/** Adds to the left part of the bar, behind the four menus. */
	virtual void ExtendLeftAlignedToolbarSlots(
		TSharedPtr<SHorizontalBox> MainBoxPtr, TSharedPtr<SViewportToolBar> ParentToolBarPtr) const;

	virtual TSharedRef<SWidget> GenerateOptionsMenu() const;
	TSharedRef<SWidget> GenerateCameraMenu() const;
	TSharedRef<SWidget> GenerateViewMenu() const;
	FText GetCameraMenuLabel() const;
	FText GetViewMenuLabel() const;

private:
	TWeakPtr<ICommonEditorViewportToolbarInfoProvider> InfoProviderPtr;
};
