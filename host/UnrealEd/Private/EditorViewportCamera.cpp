// SPDX-License-Identifier: MIT
// Camera moves of an editor viewport.
#include "EditorViewportClient.h"

#include "SEditorViewport.h"

namespace
{
constexpr double SmallestFocusRadius = 10.0; // cm
constexpr float DegreesPerPixel = 0.25f;
constexpr float SteepestPitch = 89.0f; // degrees; straight up and down have no direction to turn
constexpr float StepsPerPixel = 0.05f;
constexpr double TravelPerPixel = 1.0;	  // cm
constexpr int32 DefaultWidth = 1280;	  // pixels, while no viewport tells it
constexpr double SmallestDistance = 1.0;  // cm
constexpr double DefaultDistance = 200.0; // cm

/** By speed setting, cm per second. */
constexpr float CameraSpeeds[] = {10.0f, 33.0f, 100.0f, 320.0f, 1000.0f, 2500.0f, 5000.0f, 10000.0f};

/** How far away the point looked at is; a camera that stands in it has none yet. */
double DistanceOf(const FViewportCameraTransform& View)
{
	const double Distance = FVector::Dist(View.GetLocation(), View.GetLookAt());
	return Distance < SmallestDistance * 0.5 ? DefaultDistance : Distance;
}

double ClampPitch(double Pitch)
{
	return FMath::Clamp(Pitch, -double(SteepestPitch), double(SteepestPitch));
}
} // namespace

void FEditorViewportClient::GetShownView(FVector& OutLocation, FRotator& OutRotation) const
{
	const FViewportCameraTransform& View = GetViewTransform();
	OutLocation = View.GetLocation();
	OutRotation = View.GetRotation();
	// A move to a framed box begins and ends where the orbit's eye is, and runs straight between.
	if (bUsingOrbitCamera && IsPerspective() && !View.IsPlaying())
	{
		OutLocation = View.GetLookAt() - OutRotation.Vector() * FVector::Dist(View.GetLocation(), View.GetLookAt());
	}
}

void FEditorViewportClient::TakeShownView()
{
	FVector Location;
	FRotator Rotation;
	GetShownView(Location, Rotation);
	GetViewTransform().SetLocation(Location);
}

float FEditorViewportClient::GetAspect() const
{
	const FIntPoint Size = Viewport ? Viewport->GetSizeXY() : FIntPoint(0, 0);
	return Size.X > 0 && Size.Y > 0 ? float(Size.X) / float(Size.Y) : AspectRatio;
}

void FEditorViewportClient::FocusViewportOnBox(const FBox& BoundingBox, bool bInstant)
{
	TakeShownView();
	FViewportCameraTransform& View = GetViewTransform();
	const FVector Center = BoundingBox.GetCenter();
	const double Radius = FMath::Max(BoundingBox.GetExtent().Size(), SmallestFocusRadius);
	View.SetLookAt(Center);
	FVector Location = Center;
	if (IsPerspective())
	{
		// The sphere touches the sides of the narrower of the two angles: Distance * sin(Angle / 2) = Radius.
		const double HalfHorizontal = FMath::DegreesToRadians(double(ViewFOV)) * 0.5;
		const double HalfVertical = FMath::Atan(FMath::Tan(HalfHorizontal) / GetAspect());
		const double Distance = Radius / FMath::Sin(FMath::Min(HalfHorizontal, HalfVertical));
		Location -= View.GetRotation().Vector() * Distance;
	}
	else
	{
		View.SetOrthoZoom(2.0 * Radius * FMath::Max(1.0, double(GetAspect())));
	}
	View.TransitionToLocation(Location, EditorViewportWidget, bInstant);
	Invalidate();
}

void FEditorViewportClient::ToggleOrbitCamera(bool bEnableOrbitCamera)
{
	if (bUsingOrbitCamera == bEnableOrbitCamera)
	{
		return;
	}
	TakeShownView();
	if (bEnableOrbitCamera)
	{
		FViewportCameraTransform& View = GetViewTransform();
		const double Distance = DistanceOf(View);
		View.SetLookAt(View.GetLocation() + View.GetRotation().Vector() * Distance);
	}
	bUsingOrbitCamera = bEnableOrbitCamera;
	Invalidate();
}

void FEditorViewportClient::SetCameraSpeedSetting(int32 SpeedSetting)
{
	CameraSpeedSetting = FMath::Clamp(SpeedSetting, 1, int32(UE_ARRAY_COUNT(CameraSpeeds)));
}

float FEditorViewportClient::GetCameraSpeed() const
{
	return CameraSpeeds[CameraSpeedSetting - 1];
}

FEditorViewportClient::EDrag FEditorViewportClient::DragOf(const FViewport& InViewport) const
{
	const bool bLeft = InViewport.KeyState(EKeys::LeftMouseButton);
	const bool bRight = InViewport.KeyState(EKeys::RightMouseButton);
	const bool bMiddle = InViewport.KeyState(EKeys::MiddleMouseButton);
	const bool bAlt = InViewport.KeyState(EKeys::LeftAlt) || InViewport.KeyState(EKeys::RightAlt);
	const bool bBoth = bLeft && bRight;
	if (IsOrtho())
	{
		if (bBoth || (bAlt && bRight))
		{
			return EDrag::Nearer;
		}
		return bRight || bMiddle ? EDrag::Shift : EDrag::None;
	}
	if (bBoth || bMiddle)
	{
		return EDrag::Shift;
	}
	if (bUsingOrbitCamera || bAlt)
	{
		return bLeft ? EDrag::Orbit : bRight ? EDrag::Nearer : EDrag::None;
	}
	return bLeft ? EDrag::Travel : bRight ? EDrag::Look : EDrag::None;
}

bool FEditorViewportClient::Drag(EDrag Kind, float Right, float Up)
{
	if (Kind == EDrag::None)
	{
		return false;
	}
	TakeShownView();
	switch (Kind)
	{
		case EDrag::Orbit:
			TurnAroundLookAt(Right * DegreesPerPixel, Up * DegreesPerPixel);
			break;
		case EDrag::Look:
			TurnEye(Right * DegreesPerPixel, Up * DegreesPerPixel);
			break;
		case EDrag::Travel:
			Travel(Right * DegreesPerPixel, float(Up * TravelPerPixel));
			break;
		case EDrag::Shift:
			// The scene follows the pointer, so the eye goes against it.
			Shift(-Right, -Up);
			break;
		case EDrag::Nearer:
			MoveNearer((Right + Up) * StepsPerPixel);
			break;
		case EDrag::None:
			break;
	}
	Invalidate();
	return true;
}

void FEditorViewportClient::TurnAroundLookAt(float Yaw, float Pitch)
{
	FViewportCameraTransform& View = GetViewTransform();
	FRotator Rotation = View.GetRotation();
	const double Distance = DistanceOf(View);
	// A free camera need not look at its point: then the point in front of it is taken.
	const FVector Center = View.GetLocation() + Rotation.Vector() * Distance;
	Rotation.Yaw += Yaw;
	Rotation.Pitch = ClampPitch(Rotation.Pitch + Pitch);
	View.SetRotation(Rotation);
	View.SetLookAt(Center);
	View.SetLocation(Center - Rotation.Vector() * Distance);
}

void FEditorViewportClient::TurnEye(float Yaw, float Pitch)
{
	FViewportCameraTransform& View = GetViewTransform();
	FRotator Rotation = View.GetRotation();
	const double Distance = DistanceOf(View);
	Rotation.Yaw += Yaw;
	Rotation.Pitch = ClampPitch(Rotation.Pitch + Pitch);
	View.SetRotation(Rotation);
	View.SetLookAt(View.GetLocation() + Rotation.Vector() * Distance);
}

void FEditorViewportClient::Travel(float Yaw, float Forward)
{
	TurnEye(Yaw, 0.0f);
	const double Direction = GetViewTransform().GetRotation().Yaw;
	MoveEye(FRotator(0.0, Direction, 0.0).Vector() * double(Forward));
}

void FEditorViewportClient::MoveEye(const FVector& Offset)
{
	FViewportCameraTransform& View = GetViewTransform();
	View.SetLocation(View.GetLocation() + Offset);
	View.SetLookAt(View.GetLookAt() + Offset);
}

void FEditorViewportClient::Shift(float Right, float Up)
{
	const FViewportCameraTransform& View = GetViewTransform();
	const FQuat Rotation = View.GetRotation().Quaternion();
	const double Distance = DistanceOf(View);
	// What lies as far away as the point looked at follows the pointer.
	const int32 Width = Viewport && Viewport->GetSizeXY().X > 0 ? Viewport->GetSizeXY().X : DefaultWidth;
	const double WidthThere = IsPerspective()
								  ? 2.0 * Distance * FMath::Tan(FMath::DegreesToRadians(double(ViewFOV)) * 0.5)
								  : View.GetOrthoZoom();
	MoveEye((Rotation.RotateVector(FVector(0.0, 1.0, 0.0)) * double(Right) +
				Rotation.RotateVector(FVector(0.0, 0.0, 1.0)) * double(Up)) *
			(WidthThere / Width));
}

void FEditorViewportClient::MoveNearer(float Steps)
{
	// Each step takes a tenth of the way that is left, so the point looked at is never passed.
	const double Left = FMath::Pow(0.9, double(Steps));
	FViewportCameraTransform& View = GetViewTransform();
	if (IsPerspective())
	{
		const double Distance = DistanceOf(View);
		const FVector Forward = View.GetRotation().Vector();
		const FVector Center = View.GetLocation() + Forward * Distance;
		View.SetLookAt(Center);
		View.SetLocation(Center - Forward * FMath::Max(Distance * Left, SmallestDistance));
	}
	else
	{
		View.SetOrthoZoom(FMath::Clamp(View.GetOrthoZoom() * Left, 1.0, 1.0e7));
	}
	Invalidate();
}

void FEditorViewportClient::MoveForward(float Steps)
{
	const FViewportCameraTransform& View = GetViewTransform();
	MoveEye(View.GetRotation().Vector() * (0.1 * DistanceOf(View) * double(Steps)));
	Invalidate();
}

bool FEditorViewportClient::IsFlightKey(const FKey& Key) const
{
	return Key == EKeys::W || Key == EKeys::A || Key == EKeys::S || Key == EKeys::D || Key == EKeys::Q ||
		   Key == EKeys::E;
}

void FEditorViewportClient::Fly(float DeltaSeconds)
{
	if (!Viewport || bDisableInput || IsOrtho() || !Viewport->KeyState(EKeys::RightMouseButton))
	{
		return;
	}
	const auto Axis = [this](const FKey& Forward, const FKey& Back)
	{ return double(Viewport->KeyState(Forward)) - double(Viewport->KeyState(Back)); };
	const FVector Wish(Axis(EKeys::W, EKeys::S), Axis(EKeys::D, EKeys::A), 0.0);
	const double Rise = Axis(EKeys::E, EKeys::Q);
	if (Wish.IsNearlyZero() && Rise == 0.0)
	{
		return;
	}
	TakeShownView();
	Tracking.bDragged = true;
	const FVector Direction = GetViewTransform().GetRotation().RotateVector(Wish) + FVector(0.0, 0.0, Rise);
	MoveEye(Direction.GetSafeNormal() * double(GetCameraSpeed() * DeltaSeconds));
	Invalidate();
}
