// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditorButtonStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

TSharedPtr<FSlateStyleSet> FZEFTandemEditorButtonStyle::StyleInstance;

namespace
{

const FVector2D Icon16x16(16.0, 16.0);
const FVector2D Icon20x20(20.0, 20.0);
const FVector2D Icon40x40(40.0, 40.0);

TSharedRef<FSlateStyleSet> MakeStyle()
{
	const TSharedRef<FSlateStyleSet> Style = MakeShared<FSlateStyleSet>(FZEFTandemEditorButtonStyle::GetStyleSetName());
	Style->SetContentRoot(IPluginManager::Get().FindPlugin("ZEFTandem")->GetBaseDir() / TEXT("Resources"));

	const auto SetIcon = [&Style](const TCHAR* Key, const TCHAR* File, const FVector2D& Size)
	{
		Style->Set(Key, new FSlateImageBrush(Style->RootToContentDir(File, TEXT(".png")), Size,
							FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))));
	};
	SetIcon(TEXT("ZEFTandemEditorButton.OpenPluginWindow"), TEXT("Icon40"), Icon40x40);
	SetIcon(TEXT("ZEFTandemTreeItem.Icon_Garment"), TEXT("TandemTree_Garment_Icon_None_40"), Icon16x16);
	SetIcon(TEXT("ZEFTandemTreeItem.Icon_Avatar"), TEXT("TandemTree_Avatar_Icon_None_40"), Icon16x16);
	SetIcon(TEXT("ZEFTandemTreeItem.Icon_Prop"), TEXT("TandemTree_SceneAndProps_Icon_None_40"), Icon16x16);
	SetIcon(TEXT("ZEFTandemTreeItem.Icon_BlankBlack"), TEXT("Blank_Icon40"), Icon16x16);
	return Style;
}

} // namespace

void FZEFTandemEditorButtonStyle::Initialize()
{
	if (!StyleInstance.IsValid())
	{
		StyleInstance = MakeStyle();
		FSlateStyleRegistry::RegisterSlateStyle(*StyleInstance);
	}
}

void FZEFTandemEditorButtonStyle::ReloadTextures()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
	}
}

const ISlateStyle& FZEFTandemEditorButtonStyle::Get()
{
	return *StyleInstance;
}

const FName& FZEFTandemEditorButtonStyle::GetStyleSetName()
{
	static const FName StyleSetName(TEXT("ZEFTandemEditorButtonStyle"));
	return StyleSetName;
}
