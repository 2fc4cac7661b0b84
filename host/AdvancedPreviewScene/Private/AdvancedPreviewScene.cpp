// SPDX-License-Identifier: MIT
#include "AdvancedPreviewScene.h"

#include "AssetViewerSettings.h"
#include "Components/DirectionalLightComponent.h"
#include "Host/Scene.h"
#include "Modules/ModuleManager.h"
#include "UObject/UnrealType.h"
#include "UnrealClient.h"

namespace
{
constexpr float DegreesPerPixel = 0.25f;

/** A property of a profile was changed by code. */
void NotifyChanged(const TCHAR* PropertyName)
{
	FPropertyChangedEvent Event(FPreviewSceneProfile::StaticStruct()->FindPropertyByName(FName(PropertyName)));
	UAssetViewerSettings::Get()->PostEditChangeProperty(Event);
}
} // namespace

UAssetViewerSettings::UAssetViewerSettings(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	FPreviewSceneProfile Profile;
	Profile.ProfileName = TEXT("Profile_0");
	Profiles.Add(Profile);
}

UAssetViewerSettings* UAssetViewerSettings::Get()
{
	return GetMutableDefault<UAssetViewerSettings>();
}

void UAssetViewerSettings::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	if (Profiles.Num() != KnownProfiles)
	{
		KnownProfiles = Profiles.Num();
		ProfileAddRemovedEvent.Broadcast();
	}
	SettingsChangedEvent.Broadcast(PropertyChangedEvent.GetPropertyName());
	Super::PostEditChangeProperty(PropertyChangedEvent);
}

FAdvancedPreviewScene::FAdvancedPreviewScene(ConstructionValues CVS, float InFloorOffset)
	: FPreviewScene(CVS)
	, FloorOffset(InFloorOffset)
{
	ApplyProfile();
	UAssetViewerSettings::Get()->OnAssetViewerSettingsChanged().AddRaw(this, &FAdvancedPreviewScene::OnSettingsChanged);
}

FAdvancedPreviewScene::~FAdvancedPreviewScene()
{
	UAssetViewerSettings::Get()->OnAssetViewerSettingsChanged().RemoveAll(this);
}

bool FAdvancedPreviewScene::HandleViewportInput(
	FViewport* InViewport, FInputDeviceId, FKey Key, float Delta, float, int32, bool)
{
	const bool bAcross = Key == EKeys::MouseX;
	if (!InViewport || (!bAcross && Key != EKeys::MouseY))
	{
		return false;
	}
	if (InViewport->KeyState(EKeys::L))
	{
		FRotator Direction = GetLightDirection();
		if (bAcross)
		{
			Direction.Yaw += Delta * DegreesPerPixel;
		}
		else
		{
			Direction.Pitch = FMath::Clamp(Direction.Pitch + Delta * DegreesPerPixel, -90.0, 90.0);
		}
		SetLightDirection(Direction);
		// The profile is what the next change of a setting is applied from.
		UAssetViewerSettings* const Settings = UAssetViewerSettings::Get();
		if (Settings->Profiles.IsValidIndex(CurrentProfileIndex))
		{
			Settings->Profiles[CurrentProfileIndex].DirectionalLightRotation = Direction;
		}
		return true;
	}
	if (InViewport->KeyState(EKeys::K))
	{
		if (bAcross)
		{
			SkyRotation = static_cast<float>(FRotator::ClampAxis(SkyRotation + Delta * DegreesPerPixel));
			ShowSurroundings();
		}
		return true;
	}
	return false;
}

bool FAdvancedPreviewScene::HandleInputKey(const FInputKeyEventArgs& EventArgs)
{
	UAssetViewerSettings* const Settings = UAssetViewerSettings::Get();
	if (EventArgs.Event != IE_Pressed || !Settings->Profiles.IsValidIndex(CurrentProfileIndex))
	{
		return false;
	}
	FPreviewSceneProfile& Profile = Settings->Profiles[CurrentProfileIndex];
	if (EventArgs.Key == EKeys::I)
	{
		Profile.bShowEnvironment = !Profile.bShowEnvironment;
		NotifyChanged(TEXT("bShowEnvironment"));
		return true;
	}
	if (EventArgs.Key == EKeys::O)
	{
		Profile.bShowFloor = !Profile.bShowFloor;
		NotifyChanged(TEXT("bShowFloor"));
		return true;
	}
	if (EventArgs.Key == EKeys::P)
	{
		Profile.bPostProcessingEnabled = !Profile.bPostProcessingEnabled;
		NotifyChanged(TEXT("bPostProcessingEnabled"));
		return true;
	}
	return false;
}

void FAdvancedPreviewScene::SetProfileIndex(const int32 InProfileIndex)
{
	if (UAssetViewerSettings::Get()->Profiles.IsValidIndex(InProfileIndex))
	{
		CurrentProfileIndex = InProfileIndex;
		ApplyProfile();
	}
}

void FAdvancedPreviewScene::Tick(float DeltaTime)
{
	const TArray<FPreviewSceneProfile>& Profiles = UAssetViewerSettings::Get()->Profiles;
	if (Profiles.IsValidIndex(CurrentProfileIndex) && Profiles[CurrentProfileIndex].bRotateLightingRig)
	{
		FRotator Direction = GetLightDirection();
		Direction.Yaw += Profiles[CurrentProfileIndex].RotationSpeed * DeltaTime;
		SetLightDirection(Direction);
	}
}

TStatId FAdvancedPreviewScene::GetStatId() const
{
	RETURN_QUICK_DECLARE_CYCLE_STAT(FAdvancedPreviewScene, STATGROUP_Tickables);
}

void FAdvancedPreviewScene::ApplyProfile()
{
	const TArray<FPreviewSceneProfile>& Profiles = UAssetViewerSettings::Get()->Profiles;
	if (!Profiles.IsValidIndex(CurrentProfileIndex))
	{
		return;
	}
	const FPreviewSceneProfile& Profile = Profiles[CurrentProfileIndex];
	SetLightDirection(Profile.DirectionalLightRotation);
	SetLightBrightness(Profile.DirectionalLightIntensity);
	SetSkyBrightness(Profile.bUseSkyLighting ? Profile.SkyLightIntensity : 0.0f);
	ShowSurroundings();
}

void FAdvancedPreviewScene::ShowSurroundings()
{
	const TArray<FPreviewSceneProfile>& Profiles = UAssetViewerSettings::Get()->Profiles;
	Host::FScene* const Scene = Host::FScene::Of(GetWorld());
	if (Scene && Profiles.IsValidIndex(CurrentProfileIndex))
	{
		const FPreviewSceneProfile& Profile = Profiles[CurrentProfileIndex];
		Scene->SetSurroundings({Profile.bShowFloor, FloorOffset, Profile.bShowEnvironment, SkyRotation});
	}
}

void FAdvancedPreviewScene::SetFloorOffset(const float InFloorOffset)
{
	FloorOffset = InFloorOffset;
	ShowSurroundings();
}

void FAdvancedPreviewScene::OnSettingsChanged(const FName&)
{
	ApplyProfile();
}

IMPLEMENT_MODULE(FDefaultModuleImpl, AdvancedPreviewScene)
