// SPDX-License-Identifier: MIT
/** Names of the master materials and of what is built from them. */
#pragma once

#include "CoreMinimal.h"
#include "ZEFTandemRecords.h"

namespace ZEFEditorUtils
{

/** Label of the master of a kind, 0 to 14; empty for any other kind, negative ones included. */
inline const TCHAR* GetMasterLabel(int32 MaterialKind)
{
	static const TCHAR* const Labels[] = {TEXT("Matte"), TEXT("Shiny"), TEXT("Metal"), TEXT("Plastic"), TEXT("Leather"),
		TEXT("Silk"), TEXT("Velvet"), TEXT("GlassGem"), TEXT("Fur"), TEXT("Light"), TEXT("Glitter"), TEXT("GlassGem"),
		TEXT("Skin"), TEXT("Iridescence"), TEXT("KnitWear")};
	const uint32 Index = static_cast<uint32>(MaterialKind);
	return Index < UE_ARRAY_COUNT(Labels) ? Labels[Index] : TEXT("");
}

/** Object path of the master "M_ZEF_" + Label in the plug-in's content. */
inline FString GetMasterPath(const TCHAR* Label)
{
	return FString::Format(
		TEXT("{0}/{1}.{1}"), {FString(TEXT("/ZEFTandem/Material/UE")), TEXT("M_ZEF_") + FString(Label)});
}

} // namespace ZEFEditorUtils
