// SPDX-License-Identifier: MIT
/** The scene that received objects stand in. */
#pragma once

#include "AdvancedPreviewScene.h"

class FZEFPreviewScene : public FAdvancedPreviewScene
{
public:
	FZEFPreviewScene()
		: FAdvancedPreviewScene(FPreviewScene::ConstructionValues(), 0.0f)
	{
	}

	virtual ~FZEFPreviewScene() override;
};
