// SPDX-License-Identifier: MIT
#include "AssertionsThrow.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "CorePrinting.h"
#include "Misc/Paths.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/ToolBarStyle.h"
#include "TemporaryFolder.h"
#include "TestLog.h"
#include "Textures/SlateIcon.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

namespace
{
FString ToFString(const std::string& Text)
{
	return FString(UTF8_TO_TCHAR(Text.c_str()));
}

/** Width and height of a PNG file; 0 by 0 when it is none. */
std::array<uint32, 2> SizeOfPng(const FString& Path)
{
	std::ifstream File(TCHAR_TO_UTF8(*Path), std::ios::binary);
	std::array<unsigned char, 24> Head{};
	File.read(reinterpret_cast<char*>(Head.data()), Head.size());
	if (!File || Head[1] != 'P' || Head[2] != 'N' || Head[3] != 'G')
	{
		return {0, 0};
	}
	const auto Number = [&](int At)
	{ return uint32{Head[At]} << 24 | uint32{Head[At + 1]} << 16 | uint32{Head[At + 2]} << 8 | uint32{Head[At + 3]}; };
	return {Number(16), Number(20)};
}
} // namespace

TEST(Styles, AMissingKeyGivesADefaultAndOneLineInTheLog)
{
	const FLogCapture Log;
	FSlateStyleSet Style(TEXT("Empty"));
	for (int Round = 0; Round < 3; ++Round)
	{
		EXPECT_EQ(Style.GetBrush(TEXT("No.Brush"))->GetDrawType(), ESlateBrushDrawType::NoDrawType);
		EXPECT_EQ(Style.GetFloat(TEXT("No.Float")), 0.0f);
		EXPECT_EQ(Style.GetVector(TEXT("No.Vector")), FVector2D(0.0, 0.0));
		EXPECT_EQ(Style.GetColor(TEXT("No.Color")), FLinearColor::White);
		EXPECT_EQ(Style.GetSlateColor(TEXT("No.SlateColor")), FSlateColor::UseForeground());
		EXPECT_EQ(Style.GetMargin(TEXT("No.Margin")), FMargin());
		EXPECT_EQ(&Style.GetWidgetStyle<FButtonStyle>(TEXT("No.Button")), &FButtonStyle::GetDefault());
	}
	EXPECT_EQ(Log.CountContaining("The style set 'Empty' has no brush 'No.Brush'"), 1);
	EXPECT_EQ(Log.CountContaining("The style set 'Empty' has no number 'No.Float'"), 1);
	EXPECT_EQ(Log.CountContaining("The style set 'Empty' has no vector 'No.Vector'"), 1);
	EXPECT_EQ(Log.CountContaining("The style set 'Empty' has no colour 'No.Color'"), 1);
	EXPECT_EQ(Log.CountContaining("The style set 'Empty' has no margin 'No.Margin'"), 1);
	EXPECT_EQ(Log.CountContaining("The style set 'Empty' has no widget style 'No.Button'"), 1);
	EXPECT_EQ(Style.GetOptionalBrush(TEXT("No.Other")), nullptr);
	EXPECT_EQ(Log.CountContaining("No.Other"), 0);
}

TEST(Styles, KeepValuesOfEveryKindUnderTheirKeys)
{
	FSlateStyleSet Style(TEXT("Full"));
	Style.Set(TEXT("Size"), 2.5f);
	Style.Set(TEXT("Size"), FVector2D(3.0, 4.0));
	Style.Set(TEXT("Ink"), FLinearColor(0.1f, 0.2f, 0.3f));
	Style.Set(TEXT("Text"), FSlateColor::UseSubduedForeground());
	Style.Set(TEXT("Pad"), FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	Style.Set(TEXT("Paint"), new FSlateColorBrush(FLinearColor::Red));
	Style.Set(TEXT("Press.Small"), FButtonStyle().SetNormalPadding(FMargin(7.0f)));

	EXPECT_EQ(Style.GetFloat(TEXT("Size")), 2.5f);
	EXPECT_EQ(Style.GetVector(TEXT("Size")), FVector2D(3.0, 4.0));
	EXPECT_EQ(Style.GetColor(TEXT("Ink")), FLinearColor(0.1f, 0.2f, 0.3f));
	EXPECT_EQ(Style.GetSlateColor(TEXT("Ink")), FSlateColor(FLinearColor(0.1f, 0.2f, 0.3f)));
	EXPECT_EQ(Style.GetSlateColor(TEXT("Text")), FSlateColor::UseSubduedForeground());
	EXPECT_EQ(Style.GetMargin(TEXT("Pad")), FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	EXPECT_EQ(Style.GetBrush(TEXT("Paint"))->TintColor, FSlateColor(FLinearColor::Red));
	EXPECT_EQ(Style.GetWidgetStyle<FButtonStyle>(TEXT("Press"), ".Small").NormalPadding, FMargin(7.0f));
	// The kind counts, not only the key.
	EXPECT_EQ(&Style.GetWidgetStyle<FTextBlockStyle>(TEXT("Press.Small")), &FTextBlockStyle::GetDefault());
}

TEST(Styles, AMissingImageFileIsAPlaceholderOfItsSizeAndOneWarning)
{
	const FTemporaryFolder Folder;
	const FLogCapture Log;
	FSlateStyleSet Style(TEXT("Pictures"));
	Style.SetContentRoot(ToFString(Folder.GetPath()));
	Style.Set(TEXT("Pictures.Cat"),
		new FSlateImageBrush(Style.RootToContentDir(TEXT("Cat"), TEXT(".png")), FVector2D(40.0, 40.0)));

	const FSlateBrush* const Placeholder = Style.GetBrush(TEXT("Pictures.Cat"));
	EXPECT_EQ(Style.GetBrush(TEXT("Pictures.Cat")), Placeholder);
	EXPECT_EQ(Style.GetOptionalBrush(TEXT("Pictures.Cat")), Placeholder);
	EXPECT_EQ(Placeholder->GetImageSize(), FVector2D(40.0, 40.0));
	EXPECT_TEXT_EQ(FPaths::GetCleanFilename(Placeholder->GetResourceName().ToString()), TEXT("Missing.png"));
	EXPECT_EQ(Log.CountContaining("Cat.png' of the brush 'Pictures.Cat' in the style set 'Pictures' is missing"), 1);

	std::ofstream(Folder / "Cat.png") << "picture";
	EXPECT_EQ(Style.GetBrush(TEXT("Pictures.Cat")), Placeholder);
	FSlateRenderer().ReloadTextureResources();
	EXPECT_TEXT_EQ(
		FPaths::GetCleanFilename(Style.GetBrush(TEXT("Pictures.Cat"))->GetResourceName().ToString()), TEXT("Cat.png"));
}

TEST(Styles, ASecondSetOfANameIsRefused)
{
	const FSlateStyleSet First(TEXT("Doublet"));
	const FSlateStyleSet Second(TEXT("Doublet"));
	FSlateStyleRegistry::RegisterSlateStyle(First);
	{
		const FAssertionsThrow Throw;
		EXPECT_THROW(FSlateStyleRegistry::RegisterSlateStyle(Second), FAssertionFailure);
	}
	FSlateStyleRegistry::UnRegisterSlateStyle(First);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("Doublet")), nullptr);
}

TEST(AppStyle, HasTheIconsThatTheEditorNames)
{
	for (const TCHAR* Key : {TEXT("LevelEditor.Tabs.Viewports"), TEXT("LevelEditor.Tabs.Details"),
			 TEXT("LevelEditor.Tabs.Toolbar"), TEXT("Toolbar.Icon"), TEXT("LevelEditor.Save"), TEXT("Icons.Settings"),
			 TEXT("ContentBrowser.TabIcon"), TEXT("GenericCommands.Undo"), TEXT("Icons.WarningWithColor.Large"),
			 TEXT("EditorViewport.LitMode"), TEXT("NotificationList.SuccessImage")})
	{
		const FSlateBrush* const Brush = FSlateIcon(FAppStyle::GetAppStyleSetName(), Key).GetIcon();
		ASSERT_NE(Brush, nullptr) << TCHAR_TO_UTF8(Key);
		EXPECT_EQ(SizeOfPng(Brush->GetResourceName().ToString()), (std::array<uint32, 2>{64, 64}))
			<< TCHAR_TO_UTF8(Key);
	}
}

TEST(AppStyle, HasTheBrushesColoursAndSizesThatTheEditorNames)
{
	EXPECT_EQ(FAppStyle::GetBrush(TEXT("NoBorder"))->GetDrawType(), ESlateBrushDrawType::NoDrawType);
	for (const TCHAR* Key : {TEXT("Brushes.Panel"), TEXT("Menu.Background"), TEXT("ToolPanel.GroupBorder")})
	{
		EXPECT_NE(FAppStyle::GetBrush(Key)->GetDrawType(), ESlateBrushDrawType::NoDrawType) << TCHAR_TO_UTF8(Key);
	}
	EXPECT_TRUE(FAppStyle::GetSlateColor(TEXT("Colors.ForegroundInverted")).IsColorSpecified());
	EXPECT_NE(FAppStyle::GetSlateColor(TEXT("Colors.ForegroundInverted")).GetSpecifiedColor(),
		FAppStyle::GetColor(TEXT("Colors.Select")));
	EXPECT_GT(FAppStyle::GetFloat(TEXT("StandardDialog.MinDesiredSlotWidth")), 0.0f);
	EXPECT_GT(FAppStyle::GetMargin(TEXT("StandardDialog.SlotPadding")).Left, 0.0f);
	EXPECT_FALSE(
		FAppStyle::GetWidgetStyle<FTextBlockStyle>(TEXT("TextBlock.ShadowedText")).ShadowOffset == FVector2D(0.0, 0.0));
}

TEST(AppStyle, HasTheToolBarStylesThatTheEditorNames)
{
	const auto Find = [](const TCHAR* Name) -> const FToolBarStyle&
	{ return FAppStyle::GetWidgetStyle<FToolBarStyle>(Name); };
	for (const TCHAR* Name : {TEXT("ToolBar"), TEXT("SlimToolBar"), TEXT("Toolbar.BackplateLeft"),
			 TEXT("Toolbar.BackplateRightCombo"), TEXT("CalloutToolbar")})
	{
		EXPECT_NE(&Find(Name), &FToolBarStyle::GetDefault()) << TCHAR_TO_UTF8(Name);
	}
	// The plates of a button and of its options meet with straight edges.
	EXPECT_EQ(Find(TEXT("Toolbar.BackplateLeft")).ButtonStyle.Normal.OutlineSettings.CornerRadii,
		FVector4(4.0, 0.0, 0.0, 4.0));
	EXPECT_EQ(Find(TEXT("Toolbar.BackplateRightCombo")).ComboButtonStyle.ButtonStyle.Normal.OutlineSettings.CornerRadii,
		FVector4(0.0, 4.0, 4.0, 0.0));
	EXPECT_NE(
		&FAppStyle::GetWidgetStyle<FComboButtonStyle>(TEXT("SimpleComboButton")), &FComboButtonStyle::GetDefault());
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("CoreStyle")), &FCoreStyle::Get());
}

TEST(PluginPictures, AreSharpAtFortyUnitsAndDoubleScale)
{
	for (const char* Name : {"Icon40", "TandemTree_Garment_Icon_None_40", "TandemTree_Avatar_Icon_None_40",
			 "TandemTree_SceneAndProps_Icon_None_40", "Blank_Icon40"})
	{
		const FString Path = ToFString(std::string(ZEF_SOURCE_DIR "/Resources/") + Name + ".png");
		EXPECT_EQ(SizeOfPng(Path), (std::array<uint32, 2>{80, 80})) << Name;
		EXPECT_TRUE(FPaths::FileExists(FPaths::ChangeExtension(Path, TEXT(".svg")))) << Name;
	}
}
