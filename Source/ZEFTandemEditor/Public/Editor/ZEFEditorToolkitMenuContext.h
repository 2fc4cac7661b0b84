// SPDX-License-Identifier: MIT
/** How an entry of a menu or tool bar finds the toolkit that built it. */
#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "ZEFEditorToolkitMenuContext.generated.h"

class FZEFEditorToolkit;

/** Part of the context that a toolkit builds its menus and tool bars with. */
UCLASS()
class ZEFTANDEMEDITOR_API UZEFEditorToolkitMenuContext : public UObject
{
	GENERATED_BODY()

public:
	TWeakPtr<FZEFEditorToolkit> Toolkit;
};
