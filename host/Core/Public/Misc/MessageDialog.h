// SPDX-License-Identifier: MIT
/** Modal message boxes. */
#pragma once

#include "GenericPlatform/GenericPlatformMisc.h"
#include "Internationalization/Text.h"

/** Each call blocks until the user has answered; where nobody can be asked it gives the default answer. */
struct CORE_API FMessageDialog
{
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, const FText& Message);
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, const FText& Message, const FText& Title);
	static EAppReturnType::Type Open(
		EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message);
	static EAppReturnType::Type Open(
		EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message, const FText& Title);

	static EAppReturnType::Type Open(
		EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message);
	static EAppReturnType::Type Open(
		EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title);
	static EAppReturnType::Type Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType,
		EAppReturnType::Type DefaultValue, const FText& Message);
	static EAppReturnType::Type Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType,
		EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title);
};
