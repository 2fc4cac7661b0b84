// SPDX-License-Identifier: MIT
#include "SceneView.h"

namespace
{
/** The view's right and up at distance 1, scaled to the edges of the picture. */
struct FViewEdges
{
	FVector Forward;
	FVector Right;
	FVector Up;

	explicit FViewEdges(const FSceneView& View)
	{
		const FQuat Rotation = View.ViewRotation.Quaternion();
		const double Aspect =
			View.ViewSize.X > 0 && View.ViewSize.Y > 0 ? double(View.ViewSize.X) / double(View.ViewSize.Y) : 1.0;
		const double HalfWidth =
			View.bPerspective ? FMath::Tan(FMath::DegreesToRadians(double(View.FOV)) * 0.5) : View.OrthoWidth * 0.5;
		Forward = Rotation.RotateVector(FVector(1.0, 0.0, 0.0));
		Right = Rotation.RotateVector(FVector(0.0, 1.0, 0.0)) * HalfWidth;
		Up = Rotation.RotateVector(FVector(0.0, 0.0, 1.0)) * (HalfWidth / Aspect);
	}
};
} // namespace

void FSceneView::DeprojectFVector2D(
	const FVector2D& ScreenPos, FVector& out_WorldOrigin, FVector& out_WorldDirection) const
{
	const FViewEdges Edges(*this);
	const double X = ViewSize.X > 0 ? 2.0 * ScreenPos.X / ViewSize.X - 1.0 : 0.0;
	const double Y = ViewSize.Y > 0 ? 1.0 - 2.0 * ScreenPos.Y / ViewSize.Y : 0.0;
	const FVector Sideways = Edges.Right * X + Edges.Up * Y;
	out_WorldOrigin = bPerspective ? ViewLocation : ViewLocation + Sideways;
	out_WorldDirection = bPerspective ? (Edges.Forward + Sideways).GetSafeNormal() : Edges.Forward;
}

bool FSceneView::WorldToPixel(const FVector& WorldPoint, FVector2D& OutPixelLocation) const
{
	const FViewEdges Edges(*this);
	const FVector Offset = WorldPoint - ViewLocation;
	const double Depth = bPerspective ? Offset | Edges.Forward : 1.0;
	if (Depth <= 0.0 || Edges.Right.SizeSquared() == 0.0)
	{
		return false;
	}
	const double X = (Offset | Edges.Right) / Edges.Right.SizeSquared() / Depth;
	const double Y = (Offset | Edges.Up) / Edges.Up.SizeSquared() / Depth;
	OutPixelLocation = FVector2D((X + 1.0) * 0.5 * ViewSize.X, (1.0 - Y) * 0.5 * ViewSize.Y);
	return true;
}
