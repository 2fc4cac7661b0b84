// SPDX-License-Identifier: MIT
// The profiles of advanced preview scenes.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"
#include "EditorUndoClient.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "AssetViewerSettings.generated.h"

/** What a preview scene shows beside the asset. */
USTRUCT()
struct FPreviewSceneProfile
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Profile")
	FString ProfileName;
	UPROPERTY(EditAnywhere, Category = "Profile")
	bool bSharedProfile = false;
	UPROPERTY(EditAnywhere, Category = "Lighting")
	bool bUseSkyLighting = true;
	UPROPERTY(EditAnywhere, Category = "Environment")
	bool bShowFloor = true;
	UPROPERTY(EditAnywhere, Category = "Environment")
	bool bShowEnvironment = true;
	UPROPERTY(EditAnywhere, Category = "Lighting")
	bool bRotateLightingRig = false;
	UPROPERTY(EditAnywhere, Category = "PostProcessing")
	bool bPostProcessingEnabled = true;
	UPROPERTY(EditAnywhere, Category = "Lighting")
	float DirectionalLightIntensity = 1.0f;
	UPROPERTY(EditAnywhere, Category = "Lighting")
	float SkyLightIntensity = 1.0f;
	/** Degrees. */
	UPROPERTY(EditAnywhere, Category = "Lighting")
	FRotator DirectionalLightRotation = FRotator(-40.0, -67.5, 0.0);
	/** Degrees per second. */
	UPROPERTY(EditAnywhere, Category = "Lighting")
	float RotationSpeed = 2.0f;
};

UCLASS()
class UAssetViewerSettings : public UObject, public FEditorUndoClient
{
	GENERATED_BODY()

public:
	DECLARE_EVENT_OneParam(UAssetViewerSettings, FOnAssetViewerSettingsChangedEvent, const FName&);
	DECLARE_EVENT(UAssetViewerSettings, FOnAssetViewerProfileAddRemovedEvent);

	UAssetViewerSettings(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	static UAssetViewerSettings* Get();

	/** At least one. */
	UPROPERTY(EditAnywhere, Category = "Settings")
	TArray<FPreviewSceneProfile> Profiles;

	/** Broadcast with the name of the changed property, none for all. */
	FOnAssetViewerSettingsChangedEvent& OnAssetViewerSettingsChanged() { return SettingsChangedEvent; }
	FOnAssetViewerProfileAddRemovedEvent& OnAssetViewerProfileAddRemoved() { return ProfileAddRemovedEvent; }

	/** Must follow a change; tells the subscribers. */
	void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

private:
	FOnAssetViewerSettingsChangedEvent SettingsChangedEvent;
	FOnAssetViewerProfileAddRemovedEvent ProfileAddRemovedEvent;
	int32 KnownProfiles = 1;
};
