// SPDX-License-Identifier: MIT
#pragma once

// Delegates that several widgets share.

#include "Delegates/DelegateCombinations.h"
#include "Input/Reply.h"
#include "Templates/SharedPointer.h"
#include "Types/SlateEnums.h"

class SWidget;

/** Makes the content of a menu at the moment that it opens. */
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent);

DECLARE_DELEGATE_RetVal(FReply, FOnClicked);
DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&);
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type);
DECLARE_DELEGATE_OneParam(FOnIsOpenChanged, bool);
