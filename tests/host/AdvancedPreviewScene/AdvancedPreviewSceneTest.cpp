// SPDX-License-Identifier: MIT
#include "AdvancedPreviewScene.h"

#include "AssetViewerSettings.h"
#include "Components/DirectionalLightComponent.h"
#include "Components/SkyLightComponent.h"
#include "EngineFixture.h"
#include "Modules/ModuleManager.h"
#include "Slate/SceneViewport.h"
#include "UObject/UnrealType.h"

namespace
{
class AdvancedPreviewScene : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		FormerProfiles = UAssetViewerSettings::Get()->Profiles;
		Scene = std::make_unique<FAdvancedPreviewScene>(FPreviewScene::ConstructionValues(), 12.0f);
	}
	void TearDown() override
	{
		Scene.reset();
		UAssetViewerSettings::Get()->Profiles = FormerProfiles;
		FEngineFixture::TearDown();
	}

	static void Changed(const TCHAR* PropertyName)
	{
		FPropertyChangedEvent Event(FPreviewSceneProfile::StaticStruct()->FindPropertyByName(FName(PropertyName)));
		UAssetViewerSettings::Get()->PostEditChangeProperty(Event);
	}

	FPreviewSceneProfile& Profile() { return UAssetViewerSettings::Get()->Profiles[0]; }

	TArray<FPreviewSceneProfile> FormerProfiles;
	std::unique_ptr<FAdvancedPreviewScene> Scene;
};
} // namespace

TEST_F(AdvancedPreviewScene, IsAModuleAndHasAProfileAndAFloor)
{
	EXPECT_NE(FModuleManager::Get().LoadModule(TEXT("AdvancedPreviewScene")), nullptr);
	EXPECT_EQ(Scene->GetCurrentProfileIndex(), 0);
	EXPECT_TRUE(UAssetViewerSettings::Get()->Profiles.IsValidIndex(0));
	EXPECT_EQ(Scene->GetFloorOffset(), 12.0f);
	Scene->SetProfileIndex(7);
	EXPECT_EQ(Scene->GetCurrentProfileIndex(), 0);
}

TEST_F(AdvancedPreviewScene, FollowsItsProfile)
{
	TDelegateRecorder<FName> Changes;
	const FDelegateHandle Handle =
		UAssetViewerSettings::Get()->OnAssetViewerSettingsChanged().AddLambda(Changes.Functor());
	Profile().DirectionalLightIntensity = 5.0f;
	Profile().SkyLightIntensity = 2.0f;
	UAssetViewerSettings::Get()->PostEditChange();
	EXPECT_EQ(Scene->DirectionalLight->Intensity, 5.0f);
	EXPECT_EQ(Scene->SkyLight->Intensity, 2.0f);
	Profile().bUseSkyLighting = false;
	Changed(TEXT("bUseSkyLighting"));
	EXPECT_EQ(Scene->SkyLight->Intensity, 0.0f);
	ASSERT_EQ(Changes.Num(), 2);
	EXPECT_EQ(std::get<0>(Changes.Last()), FName(TEXT("bUseSkyLighting")));
	UAssetViewerSettings::Get()->OnAssetViewerSettingsChanged().Remove(Handle);
}

TEST_F(AdvancedPreviewScene, TellsOfProfilesThatComeAndGo)
{
	int Calls = 0;
	const FDelegateHandle Handle =
		UAssetViewerSettings::Get()->OnAssetViewerProfileAddRemoved().AddLambda([&] { ++Calls; });
	UAssetViewerSettings::Get()->Profiles.Add(FPreviewSceneProfile());
	UAssetViewerSettings::Get()->PostEditChange();
	UAssetViewerSettings::Get()->PostEditChange();
	EXPECT_EQ(Calls, 1);
	UAssetViewerSettings::Get()->OnAssetViewerProfileAddRemoved().Remove(Handle);
	UAssetViewerSettings::Get()->Profiles.Pop();
	UAssetViewerSettings::Get()->PostEditChange();
}

TEST_F(AdvancedPreviewScene, KeysSwitchTheProfileWhenPressed)
{
	const auto Press = [this](const FKey& Key, EInputEvent Event)
	{ return Scene->HandleInputKey(FInputKeyEventArgs(nullptr, 0, Key, Event)); };
	EXPECT_TRUE(Profile().bPostProcessingEnabled);
	EXPECT_TRUE(Press(EKeys::P, IE_Pressed));
	EXPECT_FALSE(Profile().bPostProcessingEnabled);
	EXPECT_FALSE(Press(EKeys::P, IE_Released));
	EXPECT_TRUE(Press(EKeys::I, IE_Pressed));
	EXPECT_FALSE(Profile().bShowEnvironment);
	EXPECT_TRUE(Press(EKeys::O, IE_Pressed));
	EXPECT_FALSE(Profile().bShowFloor);
	EXPECT_FALSE(Press(EKeys::X, IE_Pressed));
}

TEST_F(AdvancedPreviewScene, TheLightTurnsWithTheMouseWhileLIsHeld)
{
	FSceneViewport Viewport(nullptr, nullptr);
	const double Yaw = Scene->GetLightDirection().Yaw;
	const auto Move = [&]
	{ return Scene->HandleViewportInput(&Viewport, INPUTDEVICEID_NONE, EKeys::MouseX, 40.0f, 0.1f, 1, false); };
	EXPECT_FALSE(Move());
	Viewport.OnKeyDown(FGeometry(), FKeyEvent(EKeys::L, FModifierKeysState(), 0, false, 0, 0));
	EXPECT_TRUE(Move());
	EXPECT_NEAR(Scene->GetLightDirection().Yaw, Yaw + 10.0, 1e-6);
	Viewport.OnKeyUp(FGeometry(), FKeyEvent(EKeys::L, FModifierKeysState(), 0, false, 0, 0));
	Viewport.OnKeyDown(FGeometry(), FKeyEvent(EKeys::K, FModifierKeysState(), 0, false, 0, 0));
	EXPECT_TRUE(Move());
	EXPECT_NEAR(Scene->GetSkyRotation(), 10.0f, 1e-4);
}

TEST_F(AdvancedPreviewScene, TurnsItsLightByItselfWhenTheProfileSays)
{
	const double Yaw = Scene->GetLightDirection().Yaw;
	Tick(1.0);
	EXPECT_NEAR(Scene->GetLightDirection().Yaw, Yaw, 1e-6);
	Profile().bRotateLightingRig = true;
	Profile().RotationSpeed = 3.0f;
	Tick(1.0);
	EXPECT_NEAR(Scene->GetLightDirection().Yaw, Yaw + 3.0, 1e-6);
}
