// SPDX-License-Identifier: MIT
// Base of the lights: strength and colour.
#pragma once

#include "Components/SceneComponent.h"
#include "LightComponentBase.generated.h"

UCLASS(Abstract)
class ULightComponentBase : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Light")
	float Intensity = 3.14159265f;

	UPROPERTY(EditAnywhere, Category = "Light")
	FColor LightColor = FColor(255, 255, 255);

	UPROPERTY(EditAnywhere, Category = "Light")
	bool bAffectsWorld = true;

	/** In linear space. */
	FLinearColor GetLightColor() const;
	void SetIntensity(float NewIntensity);
	void SetLightColor(FLinearColor NewLightColor, bool bSRGB = true);

protected:
	bool ShouldCreateRenderState() const override { return bAffectsWorld; }
	void CreateRenderState_Concurrent(FRegisterComponentContext* Context) override;
	void DestroyRenderState_Concurrent() override;
	void SendRenderTransform_Concurrent() override;
};
