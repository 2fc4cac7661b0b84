// SPDX-License-Identifier: MIT

#include "Styling/AppStyle.h"

#include "EditorStyle.h"
#include "Host/StyleResources.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"

namespace
{
/** What widgets need; the application's own set has the same and its icons. */
class FHostStyle : public FSlateStyleSet
{
public:
	explicit FHostStyle(const FName& Name)
		: FSlateStyleSet(Name)
	{
		SetContentRoot(Host::StyleResourceDir());
		EditorStyle::AddColorsAndBrushes(*this);
		EditorStyle::AddTexts(*this);
		EditorStyle::AddWidgets(*this);
	}
};

class FHostAppStyle : public FHostStyle
{
public:
	FHostAppStyle()
		: FHostStyle(FAppStyle::GetAppStyleSetName())
	{
		EditorStyle::AddIcons(*this);
	}
};
} // namespace

const ISlateStyle& FCoreStyle::Get()
{
	static const FHostStyle Style(TEXT("CoreStyle"));
	return Style;
}

const ISlateStyle& FAppStyle::Get()
{
	static const FHostAppStyle Style;
	return Style;
}

const FName FAppStyle::GetAppStyleSetName()
{
	static const FName Name(TEXT("EditorStyle"));
	return Name;
}
