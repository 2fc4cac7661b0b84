// SPDX-License-Identifier: MIT
#include "EditorViewportClient.h"

#include "Host/Clock.h"
#include "Widgets/SWidget.h"

namespace
{
constexpr double TransitionSeconds = 0.25;

/** Starts fast and ends softly: 1 - (1 - t)^3. */
double EaseOut(double Progress)
{
	const double Left = 1.0 - Progress;
	return 1.0 - Left * Left * Left;
}
} // namespace

void FViewportCameraTransform::SetLocation(const FVector& Position)
{
	ViewLocation = Position;
	bInTransition = false;
}

void FViewportCameraTransform::TransitionToLocation(const FVector& InDesiredLocation, TWeakPtr<SWidget>, bool bInstant)
{
	if (bInstant)
	{
		SetLocation(InDesiredLocation);
		return;
	}
	StartLocation = ViewLocation;
	DesiredLocation = InDesiredLocation;
	StartTime = Host::AppTime();
	bInTransition = true;
}

FMatrix FViewportCameraTransform::ComputeOrbitMatrix() const
{
	const FVector Eye = LookAt - ViewRotation.Vector() * FVector::Dist(ViewLocation, LookAt);
	const FQuat Rotation = ViewRotation.Quaternion();
	return FMatrix(Rotation.RotateVector(FVector(1.0, 0.0, 0.0)), Rotation.RotateVector(FVector(0.0, 1.0, 0.0)),
		Rotation.RotateVector(FVector(0.0, 0.0, 1.0)), Eye)
		.Inverse();
}

bool FViewportCameraTransform::UpdateTransition()
{
	if (!bInTransition)
	{
		return false;
	}
	const double Progress = (Host::AppTime() - StartTime) / TransitionSeconds;
	if (Progress >= 1.0)
	{
		SetLocation(DesiredLocation);
		return false;
	}
	ViewLocation = StartLocation + (DesiredLocation - StartLocation) * EaseOut(Progress);
	return true;
}
