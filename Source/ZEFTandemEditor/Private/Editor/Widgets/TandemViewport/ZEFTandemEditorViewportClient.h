// SPDX-License-Identifier: MIT
/** Camera and clock of the preview. */
#pragma once

#include "EditorViewportClient.h"

class FAdvancedPreviewScene;
class FZEFPreviewScene;
class IZEFTandemEditor;
class SEditorViewport;

class FZEFTandemEditorViewportClient : public FEditorViewportClient
{
public:
	FZEFTandemEditorViewportClient(const TSharedRef<FZEFPreviewScene>& InPreviewScene,
		const TWeakPtr<SEditorViewport>& InViewport, const TWeakPtr<IZEFTandemEditor>& InEditor);

	virtual void Tick(float DeltaSeconds) override;

private:
	TWeakPtr<IZEFTandemEditor> EditorInstance;
	FAdvancedPreviewScene* AdvancedPreviewScene; // not owned; the editor instance's
};
