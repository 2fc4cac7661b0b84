// SPDX-License-Identifier: MIT

#include "Styling/SlateStyle.h"

#include "Host/Rendering.h"
#include "Host/StyleResources.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Textures/SlateIcon.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateStyle, Log, All);

namespace
{
FName JoinKey(const FName PropertyName, const ANSICHAR* Specifier)
{
	return Specifier ? FName(*(PropertyName.ToString() + FString(Specifier))) : PropertyName;
}

TMap<FName, const ISlateStyle*>& RegisteredStyles()
{
	static TMap<FName, const ISlateStyle*> Styles;
	return Styles;
}
} // namespace

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

void FSlateStyleSet::Set(const FName PropertyName, const FVector2D& InVector)
{
	Vectors.Add(PropertyName, InVector);
}

void FSlateStyleSet::Set(const FName PropertyName, const FLinearColor& InColor)
{
	LinearColors.Add(PropertyName, InColor);
}

void FSlateStyleSet::ReportMissing(const TCHAR* Kind, const FName Key) const
{
	const FString Line =
		FString::Printf(TEXT("The style set '%s' has no %s '%s'"), *StyleSetName.ToString(), Kind, *Key.ToString());
	bool bAlready = false;
	Reported.Add(Line, &bAlready);
	if (!bAlready)
	{
		UE_LOG(LogSlateStyle, Log, TEXT("%s"), *Line);
	}
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier) const
{
	if (const FSlateBrush* Found = GetOptionalBrush(PropertyName, Specifier))
	{
		return Found;
	}
	ReportMissing(TEXT("brush"), JoinKey(PropertyName, Specifier));
	return &DefaultBrush;
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(
	const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const InDefaultBrush) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	const TSharedPtr<FSlateBrush>* const Found = Brushes.Find(Key);
	if (!Found)
	{
		return InDefaultBrush;
	}
	return HasImageFile(**Found) ? Found->Get() : GetPlaceholder(Key, **Found);
}

bool FSlateStyleSet::HasImageFile(const FSlateBrush& Brush) const
{
	const FName File = Brush.GetResourceName();
	if (File.IsNone())
	{
		return true;
	}
	if (FoundFilesReload != Host::TextureReloadCount())
	{
		FoundFilesReload = Host::TextureReloadCount();
		FoundFiles.Empty();
	}
	if (const bool* const Known = FoundFiles.Find(File))
	{
		return *Known;
	}
	const bool bFound = FPaths::FileExists(File.ToString());
	FoundFiles.Add(File, bFound);
	return bFound;
}

const FSlateBrush* FSlateStyleSet::GetPlaceholder(const FName Key, const FSlateBrush& Brush) const
{
	if (const TSharedPtr<FSlateBrush>* const Made = Placeholders.Find(Key))
	{
		return Made->Get();
	}
	UE_LOG(LogSlateStyle, Warning,
		TEXT("The image file '%s' of the brush '%s' in the style set '%s' is missing; put it back, or reinstall"),
		*Brush.GetResourceName().ToString(), *Key.ToString(), *StyleSetName.ToString());
	const TSharedRef<FSlateBrush> Placeholder = Host::MakeMissingImageBrush(Brush.GetImageSize());
	Placeholders.Add(Key, Placeholder);
	return &*Placeholder;
}

FVector2D FSlateStyleSet::GetVector(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const FVector2D* Found = Vectors.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("vector"), Key);
	return FVector2D(0.0, 0.0);
}

const FLinearColor& FSlateStyleSet::GetColor(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const FLinearColor* Found = LinearColors.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("colour"), Key);
	return FLinearColor::White;
}

float FSlateStyleSet::GetFloat(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const float* Found = Floats.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("number"), Key);
	return 0.0f;
}

const FSlateColor FSlateStyleSet::GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const FSlateColor* Found = Colors.Find(Key))
	{
		return *Found;
	}
	if (const FLinearColor* Found = LinearColors.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("colour"), Key);
	return FSlateColor::UseForeground();
}

const FMargin& FSlateStyleSet::GetMargin(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Key = JoinKey(PropertyName, Specifier);
	if (const FMargin* Found = Margins.Find(Key))
	{
		return *Found;
	}
	ReportMissing(TEXT("margin"), Key);
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
	ReportMissing(TEXT("widget style"), StyleName);
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
	if (InSlateStyleName == FAppStyle::GetAppStyleSetName())
	{
		return &FAppStyle::Get();
	}
	return InSlateStyleName == FCoreStyle::Get().GetStyleSetName() ? &FCoreStyle::Get() : nullptr;
}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* Style = bIsSet ? FSlateStyleRegistry::FindSlateStyle(StyleSetName) : nullptr;
	return Style ? Style->GetOptionalBrush(StyleName) : nullptr;
}
