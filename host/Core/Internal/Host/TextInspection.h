// SPDX-License-Identifier: MIT
/** Namespace and key of texts, in a form that is short to compare. */
#pragma once

#include "Internationalization/Text.h"

namespace Host
{

/** Namespace of a text; empty for a text without a key. */
inline FString TextNamespace(const FText& Text)
{
	return FTextInspector::GetNamespace(Text).Get(FString());
}

/** Key of a text; empty for a text without one. */
inline FString TextKey(const FText& Text)
{
	return FTextInspector::GetKey(Text).Get(FString());
}

} // namespace Host
