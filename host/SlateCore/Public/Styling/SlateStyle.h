// SPDX-License-Identifier: MIT
#pragma once

// A style set that is filled by code.

#include "Brushes/SlateNoResource.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"

class FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName);
	~FSlateStyleSet() override;

	FSlateStyleSet(const FSlateStyleSet&) = delete;
	FSlateStyleSet& operator=(const FSlateStyleSet&) = delete;

	const FName& GetStyleSetName() const override;

	/** Directory that the image files of the set are named against. */
	void SetContentRoot(const FString& InContentRootDir);
	const FString& GetContentRootDir() const;
	/** `RelativePath` and `Extension` under the content root. */
	FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension) const;
	FString RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension) const;

	/** Each replaces what stood under the name. The set owns the brush. */
	void Set(const FName PropertyName, FSlateBrush* InBrush);
	void Set(const FName PropertyName, float InFloat);
	void Set(const FName PropertyName, const FSlateColor& InColor);
	void Set(const FName PropertyName, const FMargin& InMargin);
	void Set(const FName PropertyName, const FVector2D& InVector);
	void Set(const FName PropertyName, const FLinearColor& InColor);
	/** A copy of the style, of whatever kind. */
	template <typename WidgetStyleType>
	requires(std::is_base_of_v<FSlateWidgetStyle, WidgetStyleType>) void Set(
		const FName PropertyName, const WidgetStyleType& InStyle)
	{
		WidgetStyles.Add(PropertyName, MakeShared<WidgetStyleType>(InStyle));
	}

	const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* const DefaultBrush = nullptr) const override;
	FVector2D GetVector(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FLinearColor& GetColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	float GetFloat(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FSlateColor GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FMargin& GetMargin(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;

protected:
	const FSlateWidgetStyle* GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName) const override;

private:
	/** Once for each key. */
	void ReportMissing(const TCHAR* Kind, const FName Key) const;
	/** Whether the file of an image brush is there; asked of the disk once between reloads of the pictures. */
	bool HasImageFile(const FSlateBrush& Brush) const;
	const FSlateBrush* GetPlaceholder(const FName Key, const FSlateBrush& Brush) const;

	FName StyleSetName;
	FString ContentRootDir;
	TMap<FName, TSharedPtr<FSlateBrush>> Brushes;
	TMap<FName, float> Floats;
	TMap<FName, FVector2D> Vectors;
	TMap<FName, FLinearColor> LinearColors;
	TMap<FName, FSlateColor> Colors;
	TMap<FName, FMargin> Margins;
	TMap<FName, TSharedPtr<FSlateWidgetStyle>> WidgetStyles;
	FSlateNoResource DefaultBrush;
	FMargin DefaultMargin;
	mutable TSet<FString> Reported;
	mutable TMap<FName, bool> FoundFiles;
	mutable TMap<FName, TSharedPtr<FSlateBrush>> Placeholders;
	/** The count of Host::TextureReloadCount that FoundFiles belongs to. */
	mutable uint64 FoundFilesReload = 0;
};
