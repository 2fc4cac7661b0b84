// SPDX-License-Identifier: MIT
#include "Utils/ZEFFallbackMaterial.h"

#include "MaterialDomain.h"
#include "MaterialEditingLibrary.h"
#include "Materials/Material.h"
#include "UObject/UObjectGlobals.h"

namespace ZEFEditorUtils
{

UMaterial* DuplicateDefaultMaterial(UObject* Outer, FName Name)
{
	UMaterial* const Material = DuplicateObject<UMaterial>(UMaterial::GetDefaultMaterial(MD_Surface), Outer, Name);
	Material->TwoSided = true;
	UMaterialEditingLibrary::LayoutMaterialExpressions(Material);
	Material->MarkPackageDirty();
	Material->PostEditChange();
	return Material;
}

} // namespace ZEFEditorUtils
