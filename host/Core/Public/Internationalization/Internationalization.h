// SPDX-License-Identifier: MIT
/** Texts with a namespace and a key. */
#pragma once

#include "Internationalization/Text.h"

class CORE_API FInternationalization
{
public:
	/** What LOCTEXT and NSLOCTEXT call; texts of the same namespace, key and source are identical to each other. */
	static FText ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(
		const TCHAR* InTextLiteral, const TCHAR* Namespace, const TCHAR* Key);
};

#define NSLOCTEXT(InNamespace, InKey, InTextLiteral)                                                                   \
	FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(                                    \
		TEXT(InTextLiteral), TEXT(InNamespace), TEXT(InKey))
/** Uses the namespace that the source file defines as LOCTEXT_NAMESPACE. */
#define LOCTEXT(InKey, InTextLiteral) NSLOCTEXT(LOCTEXT_NAMESPACE, InKey, InTextLiteral)
/** A text without a key that is never translated. */
#define INVTEXT(InTextLiteral) FText::AsCultureInvariant(TEXT(InTextLiteral))
