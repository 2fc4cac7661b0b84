// SPDX-License-Identifier: MIT
#include "Dialogs.h"
#include "Text.h"

#include "Internationalization/Text.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTest>

#include <functional>

namespace
{
using namespace Host;

/** Does something to the next dialog as soon as it stands. */
void WithNextDialog(std::function<void(QDialog&)> Act)
{
	QTimer::singleShot(0, qApp,
		[Act = std::move(Act)]
		{
			auto* const Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
			ASSERT_NE(Dialog, nullptr);
			Act(*Dialog);
		});
}

QPushButton* ButtonOf(QDialog& Dialog, const QString& Label)
{
	for (QPushButton* const Button : Dialog.findChildren<QPushButton*>())
	{
		if (Button->text() == Label)
		{
			return Button;
		}
	}
	return nullptr;
}

FSuppressableRequest Warning()
{
	FSuppressableRequest Request;
	Request.Title = INVTEXT("Warning");
	Request.Message = INVTEXT("Two\nlines");
	Request.ConfirmText = INVTEXT("Ok");
	Request.CancelText = INVTEXT("Cancel");
	Request.CheckBoxText = INVTEXT("Don't ask me again");
	return Request;
}

TEST(Dialogs, ShowTheMessageAndGiveTheAnswerOfTheButton)
{
	FDialogWindows Dialogs;
	QString Shown;
	WithNextDialog(
		[&Shown](QDialog& Dialog)
		{
			Shown = Dialog.windowTitle() + "|" + Dialog.findChild<QLabel*>("Message")->text();
			QTest::mouseClick(ButtonOf(Dialog, "No"), Qt::LeftButton);
		});
	EXPECT_EQ(GetDialogService()->OpenMessage(EAppMsgCategory::Warning, EAppMsgType::YesNoCancel, EAppReturnType::Yes,
				  INVTEXT("Go on?"), INVTEXT("Question")),
		EAppReturnType::No);
	EXPECT_EQ(Shown, "Question|Go on?");
	EXPECT_FALSE(Dialogs.IsOpen());
}

TEST(Dialogs, TakeEscapeForTheButtonThatChangesNothing)
{
	FDialogWindows Dialogs;
	WithNextDialog([](QDialog& Dialog) { QTest::keyClick(&Dialog, Qt::Key_Escape); });
	EXPECT_EQ(Dialogs.OpenMessage(EAppMsgCategory::Info, EAppMsgType::YesNo, EAppReturnType::Yes,
				  INVTEXT("Delete all?"), FText::GetEmpty()),
		EAppReturnType::No);
}

TEST(Dialogs, TakeReturnForTheDefaultButton)
{
	FDialogWindows Dialogs;
	WithNextDialog([](QDialog& Dialog) { QTest::keyClick(&Dialog, Qt::Key_Return); });
	EXPECT_EQ(Dialogs.OpenMessage(
				  EAppMsgCategory::Info, EAppMsgType::OkCancel, EAppReturnType::Ok, INVTEXT("Go?"), FText::GetEmpty()),
		EAppReturnType::Ok);
}

TEST(Dialogs, TellWhetherTheWarningIsNotToComeAgain)
{
	FDialogWindows Dialogs;
	WithNextDialog(
		[](QDialog& Dialog)
		{
			QCheckBox* const Check = Dialog.findChild<QCheckBox*>();
			EXPECT_EQ(Check->text(), "Don't ask me again");
			Check->click();
			QTest::mouseClick(ButtonOf(Dialog, "Ok"), Qt::LeftButton);
		});
	const FSuppressableAnswer Answer = Dialogs.OpenSuppressable(Warning());
	EXPECT_TRUE(Answer.bConfirmed);
	EXPECT_TRUE(Answer.bSuppress);
}

TEST(Dialogs, DoNotSuppressAWarningThatWasCancelled)
{
	FDialogWindows Dialogs;
	WithNextDialog(
		[](QDialog& Dialog)
		{
			Dialog.findChild<QCheckBox*>()->click();
			QTest::mouseClick(ButtonOf(Dialog, "Cancel"), Qt::LeftButton);
		});
	const FSuppressableAnswer Answer = Dialogs.OpenSuppressable(Warning());
	EXPECT_FALSE(Answer.bConfirmed);
	EXPECT_FALSE(Answer.bSuppress);
}

TEST(Dialogs, AreAllDismissedTogether)
{
	FDialogWindows Dialogs;
	EAppReturnType::Type Inner = EAppReturnType::Yes;
	WithNextDialog(
		[&](QDialog&)
		{
			WithNextDialog([&](QDialog&) { Dialogs.DismissAll(); });
			Inner = Dialogs.OpenMessage(
				EAppMsgCategory::Info, EAppMsgType::YesNo, EAppReturnType::Yes, INVTEXT("Inner"), FText::GetEmpty());
		});
	EXPECT_FALSE(Dialogs.OpenSuppressable(Warning()).bConfirmed);
	EXPECT_EQ(Inner, EAppReturnType::No);
}
} // namespace
