// SPDX-License-Identifier: MIT
// Master materials as JSON files; the format stands in the README of the plug-in's content.
#pragma once

#include "CoreMinimal.h"
#include "Host/MaterialDeclaration.h"

class UMaterial;

namespace Host
{
/** What a master's file says. */
struct FMaterialFile
{
	FMaterialDeclaration Declaration;
	EMaterialDomain Domain = MD_Surface;
	EBlendMode BlendMode = BLEND_Opaque;
	bool bTwoSided = false;
	float OpacityMaskClipValue = 0.3333f;

	/** Makes `Material` what the file says. */
	void Apply(UMaterial& Material) const;
};

/**
 * Reads a master from JSON text.
 *
 * @param FileName  named in the error
 * @param OutError  on failure: the file, the place in it and what is wrong there; empty on success
 * @return whether `OutFile` was filled
 */
bool ParseMaterialFile(
	const char* Text, SIZE_T Length, const FString& FileName, FMaterialFile& OutFile, FString& OutError);

/** The same from a file. */
bool ReadMaterialFile(const FString& Path, FMaterialFile& OutFile, FString& OutError);
} // namespace Host
