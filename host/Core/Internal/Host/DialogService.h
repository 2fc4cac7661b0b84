// SPDX-License-Identifier: MIT
/** Who answers modal dialogs: a window, a program's options or a test. */
#pragma once

#include "GenericPlatform/GenericPlatformMisc.h"
#include "Internationalization/Text.h"

namespace Host
{

/** A warning that the user may switch off for the future. */
struct FSuppressableRequest
{
	FText Message;
	FText Title;
	FText ConfirmText;
	FText CancelText; // empty: there is no cancel button
	FText CheckBoxText;
	bool bDefaultToSuppress = false; // how the check box stands at first
};

struct FSuppressableAnswer
{
	bool bConfirmed = false;
	/** The check box was ticked: do not ask again. */
	bool bSuppress = false;
};

/** Answers dialogs on the game thread; a call returns when the user has answered. */
struct IDialogService
{
	virtual ~IDialogService() = default;

	/**
	 * @param Default  the answer to give when there is nobody to ask
	 * @param Title    empty for a dialog without a title
	 */
	virtual EAppReturnType::Type OpenMessage(EAppMsgCategory Category, EAppMsgType::Type Type,
		EAppReturnType::Type Default, const FText& Message, const FText& Title) = 0;

	virtual FSuppressableAnswer OpenSuppressable(const FSuppressableRequest& Request) = 0;
};

/** Not owned; null: dialogs are logged and get their default answer. @return the former service */
IDialogService* SetDialogService(IDialogService* Service);

/** The service that is set; null without one. */
IDialogService* GetDialogService();

} // namespace Host
