// SPDX-License-Identifier: MIT
/** The plug-in's own icons. */
#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FSlateStyleSet;
class ISlateStyle;

/** The style set "ZEFTandemEditorButtonStyle"; made at most once a process, and never taken down. */
class FZEFTandemEditorButtonStyle
{
public:
	/** Makes and registers the style set unless it is there. */
	static void Initialize();

	/** Makes the application load pictures again; does nothing without an application. */
	static void ReloadTextures();

	/** The style set; an assertion before Initialize. */
	static const ISlateStyle& Get();

	static const FName& GetStyleSetName();

private:
	static TSharedPtr<FSlateStyleSet> StyleInstance;
};
