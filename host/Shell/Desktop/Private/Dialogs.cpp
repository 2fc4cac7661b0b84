// SPDX-License-Identifier: MIT
#include "Dialogs.h"

#include "Text.h"
#include "Theme.h"

#include "Internationalization/Text.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

#define LOCTEXT_NAMESPACE "Desktop"

namespace Host
{

namespace
{

constexpr int Margin = 16;
constexpr int TextWidth = 420;

FText LabelOf(EAppReturnType::Type Answer)
{
	switch (Answer)
	{
		case EAppReturnType::No:
			return LOCTEXT("No", "No");
		case EAppReturnType::Yes:
			return LOCTEXT("Yes", "Yes");
		case EAppReturnType::YesAll:
			return LOCTEXT("YesAll", "Yes All");
		case EAppReturnType::NoAll:
			return LOCTEXT("NoAll", "No All");
		case EAppReturnType::Cancel:
			return LOCTEXT("Cancel", "Cancel");
		case EAppReturnType::Ok:
			return LOCTEXT("Ok", "OK");
		case EAppReturnType::Retry:
			return LOCTEXT("Retry", "Retry");
		case EAppReturnType::Continue:
			return LOCTEXT("Continue", "Continue");
	}
	return FText::GetEmpty();
}

/** The buttons of a message box, and last the one that closing the box stands for. */
std::vector<EAppReturnType::Type> AnswersOf(EAppMsgType::Type Type)
{
	using namespace EAppReturnType;
	switch (Type)
	{
		case EAppMsgType::Ok:
			return {Ok};
		case EAppMsgType::YesNo:
			return {Yes, No};
		case EAppMsgType::OkCancel:
			return {Ok, Cancel};
		case EAppMsgType::YesNoCancel:
			return {Yes, No, Cancel};
		case EAppMsgType::CancelRetryContinue:
			return {Continue, Retry, Cancel};
		case EAppMsgType::YesNoYesAllNoAll:
			return {Yes, YesAll, NoAll, No};
		case EAppMsgType::YesNoYesAllNoAllCancel:
			return {Yes, No, YesAll, NoAll, Cancel};
		case EAppMsgType::YesNoYesAll:
			return {Yes, YesAll, No};
	}
	return {Ok};
}

QStyle::StandardPixmap IconOf(EAppMsgCategory Category)
{
	switch (Category)
	{
		case EAppMsgCategory::Error:
			return QStyle::SP_MessageBoxCritical;
		case EAppMsgCategory::Warning:
			return QStyle::SP_MessageBoxWarning;
		default:
			return QStyle::SP_MessageBoxInformation;
	}
}

/** A dialog of an icon, a text that can be copied, and a row of buttons to which the caller adds. */
struct FBox
{
	FBox(QStyle::StandardPixmap Icon, const QString& Title, const QString& Message)
		: Dialog(QApplication::activeWindow(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
	{
		Dialog.setWindowTitle(Title.isEmpty() ? QGuiApplication::applicationDisplayName() : Title);
		Dialog.setAccessibleDescription(Message);
		auto* const Column = new QVBoxLayout(&Dialog);
		Column->setContentsMargins(Margin, Margin, Margin, Margin);
		Column->setSpacing(Margin);
		Column->setSizeConstraint(QLayout::SetFixedSize);
		auto* const Row = new QHBoxLayout;
		Row->setSpacing(Margin);
		Column->addLayout(Row);
		auto* const Picture = new QLabel;
		const int Size = Dialog.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
		Picture->setPixmap(Dialog.style()->standardIcon(Icon).pixmap(Size));
		Row->addWidget(Picture, 0, Qt::AlignTop);
		Text = new QLabel(Message);
		Text->setTextFormat(Qt::PlainText);
		Text->setWordWrap(true);
		Text->setMinimumWidth(TextWidth);
		Text->setTextInteractionFlags(Qt::TextSelectableByMouse);
		Text->setFocusPolicy(Qt::NoFocus);
		Text->setObjectName("Message");
		Row->addWidget(Text, 1);
		Below = new QVBoxLayout;
		Column->addLayout(Below);
		Buttons = new QHBoxLayout;
		Buttons->addStretch(1);
		Column->addLayout(Buttons);
	}

	QPushButton* AddButton(const QString& Label, int Result)
	{
		auto* const Button = new QPushButton(Label);
		Button->setAutoDefault(true);
		Buttons->addWidget(Button);
		QObject::connect(Button, &QPushButton::clicked, &Dialog, [this, Result] { Dialog.done(Result); });
		return Button;
	}

	QDialog Dialog;
	QLabel* Text;
	QVBoxLayout* Below;
	QHBoxLayout* Buttons;
};

} // namespace

FDialogWindows::FDialogWindows()
	: Former(SetDialogService(this))
{
}

FDialogWindows::~FDialogWindows()
{
	SetDialogService(Former);
}

int FDialogWindows::Run(QDialog& Dialog)
{
	Dialog.setModal(true);
	Open.push_back(&Dialog);
	++Depth;
	const int Result = Dialog.exec();
	--Depth;
	std::erase_if(Open, [&Dialog](const QPointer<QDialog>& Entry) { return !Entry || Entry == &Dialog; });
	return Result;
}

void FDialogWindows::DismissAll()
{
	const std::vector<QPointer<QDialog>> Dialogs = Open;
	for (auto It = Dialogs.rbegin(); It != Dialogs.rend(); ++It)
	{
		if (*It)
		{
			(*It)->reject();
		}
	}
}

EAppReturnType::Type FDialogWindows::OpenMessage(EAppMsgCategory Category, EAppMsgType::Type Type,
	EAppReturnType::Type Default, const FText& Message, const FText& Title)
{
	// Results from 1: closing the dialog gives 0.
	const std::vector<EAppReturnType::Type> Answers = AnswersOf(Type);
	FBox Box(IconOf(Category), ToQString(Title), ToQString(Message));
	for (std::size_t Index = 0; Index < Answers.size(); ++Index)
	{
		QPushButton* const Button = Box.AddButton(ToQString(LabelOf(Answers[Index])), static_cast<int>(Index) + 1);
		if (Answers[Index] == Default || Index == 0)
		{
			Button->setDefault(true);
			Button->setFocus();
		}
	}
	const int Result = Run(Box.Dialog);
	return Result == 0 ? Answers.back() : Answers[static_cast<std::size_t>(Result) - 1];
}

FSuppressableAnswer FDialogWindows::OpenSuppressable(const FSuppressableRequest& Request)
{
	FBox Box(QStyle::SP_MessageBoxWarning, ToQString(Request.Title), ToQString(Request.Message));
	auto* const Check = new QCheckBox(ToQString(Request.CheckBoxText));
	Check->setChecked(Request.bDefaultToSuppress);
	Check->setVisible(!Request.CheckBoxText.IsEmpty());
	Box.Below->addWidget(Check);
	QPushButton* const Confirm = Box.AddButton(ToQString(Request.ConfirmText), QDialog::Accepted);
	Confirm->setDefault(true);
	Confirm->setFocus();
	if (!Request.CancelText.IsEmpty())
	{
		Box.AddButton(ToQString(Request.CancelText), QDialog::Rejected);
	}
	FSuppressableAnswer Answer;
	// Without a way to cancel, closing the dialog confirms that it was read.
	Answer.bConfirmed = Run(Box.Dialog) == QDialog::Accepted || Request.CancelText.IsEmpty();
	Answer.bSuppress = Answer.bConfirmed && Check->isChecked();
	return Answer;
}

} // namespace Host

#undef LOCTEXT_NAMESPACE
