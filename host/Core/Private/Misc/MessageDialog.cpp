// SPDX-License-Identifier: MIT
#include "Misc/MessageDialog.h"

#include "CoreGlobals.h"
#include "Host/DialogService.h"
#include "Logging/LogMacros.h"

namespace Host
{

static IDialogService* DialogService = nullptr;

IDialogService* SetDialogService(IDialogService* Service)
{
	IDialogService* const Former = DialogService;
	DialogService = Service;
	return Former;
}

IDialogService* GetDialogService()
{
	return DialogService;
}

} // namespace Host

/** The answer of least consequence for each set of buttons. */
static EAppReturnType::Type GetDefaultAnswer(EAppMsgType::Type MessageType)
{
	switch (MessageType)
	{
		case EAppMsgType::Ok:
			return EAppReturnType::Ok;
		case EAppMsgType::YesNo:
		case EAppMsgType::YesNoYesAllNoAll:
		case EAppMsgType::YesNoYesAll:
			return EAppReturnType::No;
		default:
			return EAppReturnType::Cancel;
	}
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, const FText& Message)
{
	return Open(EAppMsgCategory::Warning, MessageType, GetDefaultAnswer(MessageType), Message, FText());
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, const FText& Message, const FText& Title)
{
	return Open(EAppMsgCategory::Warning, MessageType, GetDefaultAnswer(MessageType), Message, Title);
}

EAppReturnType::Type FMessageDialog::Open(
	EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message)
{
	return Open(MessageCategory, MessageType, GetDefaultAnswer(MessageType), Message, FText());
}

EAppReturnType::Type FMessageDialog::Open(
	EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message, const FText& Title)
{
	return Open(MessageCategory, MessageType, GetDefaultAnswer(MessageType), Message, Title);
}

EAppReturnType::Type FMessageDialog::Open(
	EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message)
{
	return Open(EAppMsgCategory::Warning, MessageType, DefaultValue, Message, FText());
}

EAppReturnType::Type FMessageDialog::Open(
	EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title)
{
	return Open(EAppMsgCategory::Warning, MessageType, DefaultValue, Message, Title);
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType,
	EAppReturnType::Type DefaultValue, const FText& Message)
{
	return Open(MessageCategory, MessageType, DefaultValue, Message, FText());
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType,
	EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title)
{
	if (Host::IDialogService* const Service = Host::GetDialogService())
	{
		return Service->OpenMessage(MessageCategory, MessageType, DefaultValue, Message, Title);
	}
	UE_LOG(LogTemp, Warning, TEXT("%s"), *Message.ToString());
	return DefaultValue;
}
