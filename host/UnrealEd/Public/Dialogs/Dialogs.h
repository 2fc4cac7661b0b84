// SPDX-License-Identifier: MIT
// A warning that the user can switch off.
#pragma once

#include "CoreMinimal.h"
#include "CoreGlobals.h"
#include "Misc/ConfigCacheIni.h"

struct FSlateBrush;

/** A switched-off warning is kept as a bool of its own name in the section "SuppressableDialogs" of an ini file. */
class FSuppressableWarningDialog
{
public:
	enum EResult
	{
		/** Nothing was asked. */
		Suppressed = -1,
		/** Also when the dialog was closed by its frame. */
		Cancel = 0,
		Confirm = 1,
	};

	struct FSetupInfo
	{
		FText Message;
		FText Title;
		/** Must be set. */
		FText ConfirmText;
		/** Empty for no cancel button. */
		FText CancelText;
		FText CheckBoxText;
		FString IniSettingName;
		FString IniSettingFileName;
		/** Whether the check box is ticked when the dialog opens. */
		bool bDefaultToSuppressInTheFuture = false;
		/** Not owned; null for the usual picture. */
		FSlateBrush* Image = nullptr;

		FSetupInfo(const FText& InMessage, const FText& InTitle, const FString& InIniSettingName,
			const FString& InIniSettingFileName = GEditorPerProjectIni);
	};

	explicit FSuppressableWarningDialog(const FSetupInfo& Info);

	/** Asks, unless it was switched off; a ticked check box switches it off when the user confirms. */
	EResult ShowModal() const;

private:
	FSetupInfo Info;
};
