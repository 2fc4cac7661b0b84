// SPDX-License-Identifier: MIT
#include "Editor/ZEFPreviewScene.h"

FZEFPreviewScene::~FZEFPreviewScene() = default;
