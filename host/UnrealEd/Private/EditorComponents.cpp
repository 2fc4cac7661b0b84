// SPDX-License-Identifier: MIT
#include "EditorComponents.h"

#include "SceneView.h"
#include "ViewDrawing.h"

namespace
{
constexpr int32 CellsPerMajorLine = 8;
constexpr double HalfWorldSize = 2097152.0; // cm
} // namespace

void FEditorCommonDrawHelper::Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI) const
{
	if (bDrawGrid && View->Family->EngineShowFlags.Grid && NumCells > 0)
	{
		DrawGrid(PDI);
	}
	if (bDrawPivot && View->Family->EngineShowFlags.Pivot)
	{
		DrawPivot(View, PDI);
	}
	if (bDrawWorldBox)
	{
		DrawWorldBox(PDI);
	}
}

void FEditorCommonDrawHelper::DrawGrid(FPrimitiveDrawInterface* PDI) const
{
	if (auto* const Collector = dynamic_cast<Host::FViewDrawingCollector*>(PDI))
	{
		// A painter draws the lines without steps and lets them fade, which it cannot do line by line.
		Host::FViewGrid Grid;
		Grid.AxisColor = FLinearColor(GridColorAxis);
		Grid.MajorColor = FLinearColor(GridColorMajor);
		Grid.MinorColor = FLinearColor(GridColorMinor);
		Grid.HalfSize = PerspectiveGridSize;
		Grid.NumCells = NumCells;
		Grid.Height = -GridDepthBias;
		Collector->Drawing.Grid = Grid;
		return;
	}
	const double Half = PerspectiveGridSize;
	const double Cell = 2.0 * Half / NumCells;
	const double Ground = -GridDepthBias;
	for (int32 Index = 0; Index <= NumCells; ++Index)
	{
		const double Offset = -Half + Index * Cell;
		const bool bAxis = 2 * Index == NumCells;
		const bool bMajor = Index % CellsPerMajorLine == 0;
		const FLinearColor Color(bAxis ? GridColorAxis : bMajor ? GridColorMajor : GridColorMinor);
		PDI->DrawLine(FVector(Offset, -Half, Ground), FVector(Offset, Half, Ground), Color, DepthPriorityGroup);
		PDI->DrawLine(FVector(-Half, Offset, Ground), FVector(Half, Offset, Ground), Color, DepthPriorityGroup);
	}
}

void FEditorCommonDrawHelper::DrawPivot(const FSceneView* View, FPrimitiveDrawInterface* PDI) const
{
	// As long on the screen from everywhere.
	const double Length = PivotSize * (View->bPerspective ? View->ViewLocation.Size() : View->OrthoWidth);
	const FVector Origin(0.0, 0.0, 0.0);
	for (const FVector& Axis : {FVector(1.0, 0.0, 0.0), FVector(0.0, 1.0, 0.0), FVector(0.0, 0.0, 1.0)})
	{
		PDI->DrawLine(Origin, Axis * Length, FLinearColor(PivotColor), SDPG_Foreground, AxesLineThickness);
	}
}

void FEditorCommonDrawHelper::DrawWorldBox(FPrimitiveDrawInterface* PDI) const
{
	const auto Corner = [](int32 Bits)
	{
		return FVector(Bits & 1 ? HalfWorldSize : -HalfWorldSize, Bits & 2 ? HalfWorldSize : -HalfWorldSize,
			Bits & 4 ? HalfWorldSize : -HalfWorldSize);
	};
	for (int32 From = 0; From < 8; ++From)
	{
		for (const int32 Axis : {1, 2, 4})
		{
			if (!(From & Axis))
			{
				PDI->DrawLine(Corner(From), Corner(From | Axis), FLinearColor(BaseBoxColor), DepthPriorityGroup);
			}
		}
	}
}
