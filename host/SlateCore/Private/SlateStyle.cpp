// SPDX-License-Identifier: MIT

#include "Styling/SlateStyle.h"

#include "Logging/LogMacros.h"
#include "Styling/AppStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Textures/SlateIcon.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateStyle, Log, All);

namespace
{
FName JoinKey(const FName PropertyName, const ANSICHAR* Specifier)
{
	return Specifier ? FName(*(PropertyName.ToString() + FString(Specifier))) : PropertyName;
}

void ReportMissing(const TCHAR* Kind, const FName Key, const FName StyleSetName)
{
	UE_LOG(LogSlateStyle, Log, TEXT("Style set '%s' has no %s '%s'"), *StyleSetName.ToString(), Kind, *Key.ToString());
}

TMap<FName, const ISlateStyle*>& RegisteredStyles()
{
	static TMap<FName, const ISlateStyle*> Styles;
	return Styles;
}
} // namespace

const FName FTextBlockStyle::TypeName(TEXT("FTextBlockStyle"));

const FTextBlockStyle& FTextBlockStyle::GetDefault()
{
	static const FTextBlockStyle Default;
	return Default;
}

FTextBlockStyle& FTextBlockStyle::SetColorAndOpacity(const FSlateColor& InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetShadowOffset(const FVector2D& InShadowOffset)
{
	ShadowOffset = InShadowOffset;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetShadowColorAndOpacity(const FLinearColor& InShadowColorAndOpacity)
{
	ShadowColorAndOpacity = InShadowColorAndOpacity;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetFontSize(float InFontSize)
{
	FontSize = InFontSize;
	return *this;
}

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
{
}

FSlateStyleSet::~FSlateStyleSet() = default;

const FName& FSlateStyleSet::GetStyleSetName() const
{
	return StyleSetName;
}

void FSlateStyleSet::SetContentRoot(const FString& InContentRootDir)
{
	ContentRootDir = InContentRootDir;
}

const FString& FSlateStyleSet::GetContentRootDir() const
{
	return ContentRootDir;
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath, const TCHAR* Extension) const
{
	return (ContentRootDir / RelativePath) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension) const
{
	return RootToContentDir(FString(RelativePath), Extension);
}

void FSlateStyleSet::Set(const FName PropertyName, FSlateBrush* InBrush)
{
	Brushes.Add(PropertyName, MakeShareable(InBrush));
}

void FSlateStyleSet::Set(const FName PropertyName, float InFloat)
{
	Floats.Add(PropertyName, InFloat);
}

void FSlateStyleSet::Set(const FName PropertyName, const FSlateColor& InColor)
{
	Colors.Add(PropertyName, InColor);
}

void FSlateStyleSet::Set(const FName PropertyName, const FMargin& InMargin)
{
	Margins.Add(PropertyName, InMargin);
}

void FSlateStyleSet::Set(const FName PropertyName, const FTextBlockStyle& InStyle)
{
	WidgetStyles.Add(PropertyName, MakeShared<FTextBlockStyle>(InStyle));
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier) const
{
	if (const FSlateBrush* Found = GetOptionalBrush(PropertyName, Specifier))
	{
		return Found;
	}
	ReportMissing(TEXT("brush"), JoinKey(PropertyName, Specifier), StyleSetName);
	return &DefaultBrush;
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(
	const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const InDefaultBrush) const
{
	const TSharedPtr<FSlateBrush>* Found = Brushes.Find(JoinKey(PropertyName, Specifier));
	return Found ? Found->Get() : InDefaultBrush;
}

float FSlateStyleSet::GetFloat(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const float* Found = Floats.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("number"), Key, StyleSetName);
	return 0.0f;
}

const FSlateColor FSlateStyleSet::GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const FSlateColor* Found = Colors.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("colour"), Key, StyleSetName);
	return FSlateColor::UseForeground();
}

const FMargin& FSlateStyleSet::GetMargin(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const FMargin* Found = Margins.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("margin"), Key, StyleSetName);
	return DefaultMargin;
}

const FSlateWidgetStyle* FSlateStyleSet::GetWidgetStyleInternal(
	const FName DesiredTypeName, const FName StyleName) const
{
	const TSharedPtr<FSlateWidgetStyle>* Found = WidgetStyles.Find(StyleName);
	if (Found && (*Found)->GetTypeName() == DesiredTypeName)
	{
		return Found->Get();
	}
	ReportMissing(TEXT("widget style"), StyleName, StyleSetName);
	return nullptr;
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const FName Name = InSlateStyle.GetStyleSetName();
	checkf(!RegisteredStyles().Contains(Name), TEXT("A style set named '%s' is registered already"), *Name.ToString());
	RegisteredStyles().Add(Name, &InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	UnRegisterSlateStyle(InSlateStyle.GetStyleSetName());
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const FName StyleSetName)
{
	RegisteredStyles().Remove(StyleSetName);
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	if (const ISlateStyle* const* Found = RegisteredStyles().Find(InSlateStyleName))
	{
		return *Found;
	}
	return InSlateStyleName == FAppStyle::GetAppStyleSetName() ? &FAppStyle::Get() : nullptr;
}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* Style = bIsSet ? FSlateStyleRegistry::FindSlateStyle(StyleSetName) : nullptr;
	return Style ? Style->GetOptionalBrush(StyleName) : nullptr;
}
