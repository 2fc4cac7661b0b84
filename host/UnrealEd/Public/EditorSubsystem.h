// SPDX-License-Identifier: MIT
// Base of the editor's subsystems.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "EditorSubsystem.generated.h"

/** One object of each class lives beside the editor's engine object; see UEditorEngine::GetEditorSubsystem. */
UCLASS(Abstract)
class UEditorSubsystem : public UObject
{
	GENERATED_BODY()
};
