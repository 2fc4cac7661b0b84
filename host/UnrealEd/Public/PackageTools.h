// SPDX-License-Identifier: MIT
// Names of packages in the editor.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "PackageTools.generated.h"

/** Names of packages in the editor. */
UCLASS(Abstract)
class UPackageTools : public UObject
{
	GENERATED_BODY()

public:
	/**
	 * The name with an underscore in place of each character that a package's name may not hold, and with one slash
	 * where several stood in a row.
	 */
	UNREALED_API static FString SanitizePackageName(const FString& InPackageName);
};
