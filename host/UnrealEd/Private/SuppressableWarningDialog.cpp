// SPDX-License-Identifier: MIT
#include "Dialogs/Dialogs.h"

#include "Host/DialogService.h"
#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogDialogs, Log, All);

namespace
{
const TCHAR* const Section = TEXT("SuppressableDialogs");
} // namespace

FSuppressableWarningDialog::FSetupInfo::FSetupInfo(
	const FText& InMessage, const FText& InTitle, const FString& InIniSettingName, const FString& InIniSettingFileName)
	: Message(InMessage)
	, Title(InTitle)
	, IniSettingName(InIniSettingName)
	, IniSettingFileName(InIniSettingFileName)
{
}

FSuppressableWarningDialog::FSuppressableWarningDialog(const FSetupInfo& InInfo)
	: Info(InInfo)
{
}

FSuppressableWarningDialog::EResult FSuppressableWarningDialog::ShowModal() const
{
	checkf(!Info.ConfirmText.IsEmpty(), TEXT("A warning needs a text on its confirm button"));
	bool bSuppressed = false;
	GConfig->GetBool(Section, *Info.IniSettingName, bSuppressed, Info.IniSettingFileName);
	if (bSuppressed)
	{
		return Suppressed;
	}
	Host::IDialogService* const Service = Host::GetDialogService();
	if (!Service)
	{
		UE_LOG(LogDialogs, Log, TEXT("%s: %s"), *Info.Title.ToString(), *Info.Message.ToString());
		return Suppressed;
	}
	const Host::FSuppressableAnswer Answer = Service->OpenSuppressable({Info.Message, Info.Title, Info.ConfirmText,
		Info.CancelText, Info.CheckBoxText, Info.bDefaultToSuppressInTheFuture});
	if (!Answer.bConfirmed)
	{
		return Cancel;
	}
	if (Answer.bSuppress)
	{
		GConfig->SetBool(Section, *Info.IniSettingName, true, Info.IniSettingFileName);
		GConfig->Flush(false, Info.IniSettingFileName);
	}
	return Confirm;
}
