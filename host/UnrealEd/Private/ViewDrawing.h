// SPDX-License-Identifier: MIT
// Collects what a view shows beside its scene.
#pragma once

#include "Host/ViewPainter.h"

namespace Host
{
class FViewDrawingCollector final : public FPrimitiveDrawInterface
{
public:
	using FPrimitiveDrawInterface::FPrimitiveDrawInterface;

	void DrawLine(const FVector& Start, const FVector& End, const FLinearColor& Color, uint8 DepthPriorityGroup,
		float Thickness) override
	{
		Drawing.Lines.Add({Start, End, Color, static_cast<ESceneDepthPriorityGroup>(DepthPriorityGroup), Thickness});
	}

	FViewDrawing Drawing;
};
} // namespace Host
