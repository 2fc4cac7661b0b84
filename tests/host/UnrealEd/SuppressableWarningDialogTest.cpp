// SPDX-License-Identifier: MIT
#include "Dialogs/Dialogs.h"

#include "EngineFixture.h"
#include "Host/ConfigDirs.h"
#include "Host/DialogService.h"

namespace
{
class SuppressableWarningDialog : public FEngineFixture
{
protected:
	FSuppressableWarningDialog::EResult Ask()
	{
		FSuppressableWarningDialog::FSetupInfo Info(FText::FromString(TEXT("It may be hot.")),
			FText::FromString(TEXT("Careful")), TEXT("HotWarning"), GEditorPerProjectIni);
		Info.ConfirmText = FText::FromString(TEXT("Go on"));
		Info.CancelText = FText::FromString(TEXT("Stop"));
		Info.CheckBoxText = FText::FromString(TEXT("Never again"));
		return FSuppressableWarningDialog(Info).ShowModal();
	}

	static bool IsKept()
	{
		bool bSuppressed = false;
		return GConfig->GetBool(TEXT("SuppressableDialogs"), TEXT("HotWarning"), bSuppressed, GEditorPerProjectIni) &&
			   bSuppressed;
	}
};
} // namespace

TEST_F(SuppressableWarningDialog, AsksInItsWordsAndTakesTheAnswer)
{
	Dialogs().AnswerSuppressable(true);
	Dialogs().AnswerSuppressable(false);
	EXPECT_EQ(Ask(), FSuppressableWarningDialog::Confirm);
	EXPECT_EQ(Ask(), FSuppressableWarningDialog::Cancel);
	ASSERT_EQ(Dialogs().Suppressables().size(), 2u);
	const Host::FSuppressableRequest& Asked = Dialogs().Suppressables()[0];
	EXPECT_EQ(Asked.Message.ToString(), FString(TEXT("It may be hot.")));
	EXPECT_EQ(Asked.Title.ToString(), FString(TEXT("Careful")));
	EXPECT_EQ(Asked.ConfirmText.ToString(), FString(TEXT("Go on")));
	EXPECT_EQ(Asked.CancelText.ToString(), FString(TEXT("Stop")));
	EXPECT_EQ(Asked.CheckBoxText.ToString(), FString(TEXT("Never again")));
	EXPECT_FALSE(Asked.bDefaultToSuppress);
	EXPECT_FALSE(IsKept());
}

TEST_F(SuppressableWarningDialog, IsNotAskedAgainOnceSwitchedOff)
{
	Dialogs().AnswerSuppressable(true, true);
	EXPECT_EQ(Ask(), FSuppressableWarningDialog::Confirm);
	EXPECT_TRUE(IsKept());
	EXPECT_EQ(Ask(), FSuppressableWarningDialog::Suppressed);
	EXPECT_EQ(Dialogs().Suppressables().size(), 1u);
}

TEST_F(SuppressableWarningDialog, ACancelledOneIsAskedAgain)
{
	Dialogs().AnswerSuppressable(false, true);
	EXPECT_EQ(Ask(), FSuppressableWarningDialog::Cancel);
	EXPECT_FALSE(IsKept());
}

TEST_F(SuppressableWarningDialog, IsSwitchedOffInTheProjectsOwnFiles)
{
	Dialogs().AnswerSuppressable(true, true);
	Ask();
	const FString Project(UTF8_TO_TCHAR(this->Project().GetPath().c_str()));
	Host::SetConfigDirs(FString(), Project / TEXT("Config"), Project / TEXT("Saved/Config"));
	EXPECT_TRUE(IsKept());
}

TEST_F(SuppressableWarningDialog, PassesWhenThereIsNobodyToAsk)
{
	Host::IDialogService* const Script = Host::SetDialogService(nullptr);
	EXPECT_EQ(Ask(), FSuppressableWarningDialog::Suppressed);
	Host::SetDialogService(Script);
}
