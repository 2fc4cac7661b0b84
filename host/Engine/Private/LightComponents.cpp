// SPDX-License-Identifier: MIT
#include "Components/DirectionalLightComponent.h"
#include "Components/LightComponent.h"
#include "Components/LightComponentBase.h"
#include "Components/SkyLightComponent.h"

#include "Engine/World.h"
#include "Host/Scene.h"

FLinearColor ULightComponentBase::GetLightColor() const
{
	return FLinearColor(LightColor);
}

void ULightComponentBase::SetIntensity(float NewIntensity)
{
	Intensity = NewIntensity;
	MarkRenderStateDirty();
}

void ULightComponentBase::SetLightColor(FLinearColor NewLightColor, bool bSRGB)
{
	LightColor = NewLightColor.ToFColor(bSRGB);
	MarkRenderStateDirty();
}

void ULightComponentBase::CreateRenderState_Concurrent(FRegisterComponentContext*)
{
	Host::FScene::Of(GetWorld())->AddLight(this);
}

void ULightComponentBase::DestroyRenderState_Concurrent()
{
	Host::FScene::Of(GetWorld())->RemoveLight(this);
}

void ULightComponentBase::SendRenderTransform_Concurrent()
{
	MarkRenderStateDirty();
}

FVector ULightComponent::GetDirection() const
{
	return GetComponentTransform().GetRotation().RotateVector(FVector(1.0, 0.0, 0.0));
}
