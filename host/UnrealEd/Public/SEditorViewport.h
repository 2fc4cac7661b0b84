// SPDX-License-Identifier: MIT
// The widget of an editor viewport.
#pragma once

#include "Slate/SceneViewport.h"
#include "Widgets/SCompoundWidget.h"

class FEditorViewportClient;
class FUICommandList;
class SOverlay;

/** Holds the client, the viewport that the client fills, what lies over the picture, and the commands. */
class SEditorViewport : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SEditorViewport)
		: _ViewportSize(FVector2D(1280.0, 720.0))
	{
	}
	/** Pixels. */
	SLATE_ATTRIBUTE(FVector2D, ViewportSize)
	SLATE_END_ARGS()

	SEditorViewport();
	virtual ~SEditorViewport() override;

	/** Makes the client, the viewport, the commands, the tool bar and the overlays, in this order. */
	void Construct(const FArguments& InArgs);

	TSharedPtr<FEditorViewportClient> GetViewportClient() const { return Client; }
	const TSharedPtr<FUICommandList> GetCommandList() const { return CommandList; }
	TSharedPtr<FSceneViewport> GetSceneViewport() { return SceneViewport; }
	virtual void Invalidate();

	/** False while this widget or one around it is hidden. */
	virtual bool IsVisible() const;
	bool IsRealtime() const;
	void OnToggleRealtime();

	bool SupportsKeyboardFocus() const override { return true; }
	/** Goes to the client first, then to the commands. */
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	/** A line that names the preview's feature level, seen while that is below the usual one. */
	TSharedRef<SWidget> BuildFeatureLevelWidget() const;

protected:
	virtual TSharedRef<FEditorViewportClient> MakeEditorViewportClient() = 0;
	/** Empty for no tool bar. */
	virtual TSharedPtr<SWidget> MakeViewportToolbar();
	/** Maps what the viewport can do on CommandList. */
	virtual void BindCommands();
	/** Adds what lies over the picture. */
	virtual void PopulateViewportOverlays(TSharedRef<SOverlay> Overlay);

	TSharedPtr<FUICommandList> CommandList;
	TSharedPtr<FEditorViewportClient> Client;
	TSharedPtr<FSceneViewport> SceneViewport;
	TSharedPtr<SOverlay> ViewportOverlay;
};
