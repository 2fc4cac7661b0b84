// SPDX-License-Identifier: MIT
#include "Toasts.h"

#include "Text.h"
#include "Theme.h"

#include "Host/Notifications.h"

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace Host
{

namespace
{

constexpr int ToastWidth = 320;
constexpr int Margin = 14;

constexpr const char* ToastSheet =
	"QFrame#Toast { background: #383838; border: 1px solid #5a5a5a; border-radius: 6px; }"
	"QFrame#Toast QLabel { background: transparent; color: #ffffff; }";

} // namespace

FToasts::FToasts(QWidget* Window)
	: QWidget(Window)
{
	setAttribute(Qt::WA_TransparentForMouseEvents);
	setAttribute(Qt::WA_NoSystemBackground);
	setObjectName("Toasts");
	setAccessibleName("Notifications");
	auto* const Column = new QVBoxLayout(this);
	Column->setContentsMargins(0, 0, 0, 0);
	Column->setSpacing(8);
	hide();
}

void FToasts::Follow()
{
	std::vector<FShown> Wanted;
	for (const FStandingNotification& Notification : StandingNotifications())
	{
		Wanted.push_back({ToQString(Notification.Text), -1, -1});
	}
	for (const FProgressState& Progress : RunningProgresses())
	{
		Wanted.push_back({ToQString(Progress.Text), Progress.WorkDone, Progress.TotalWork});
	}
	if (Wanted != Shown)
	{
		Rebuild(Wanted);
		Shown = Wanted;
		Settle(LastBottomMargin);
	}
}

void FToasts::Rebuild(const std::vector<FShown>& Wanted)
{
	QLayout* const Column = layout();
	while (QLayoutItem* const Item = Column->takeAt(0))
	{
		delete Item->widget();
		delete Item;
	}
	for (const FShown& Toast : Wanted)
	{
		auto* const Frame = new QFrame;
		Frame->setObjectName("Toast");
		Frame->setStyleSheet(QLatin1String(ToastSheet));
		Frame->setFixedWidth(ToastWidth);
		Frame->setAccessibleName(Toast.Text);
		auto* const Inside = new QVBoxLayout(Frame);
		Inside->setContentsMargins(Margin, 10, Margin, 10);
		auto* const Label = new QLabel(Toast.Text);
		Label->setTextFormat(Qt::PlainText);
		Label->setWordWrap(true);
		Inside->addWidget(Label);
		if (Toast.Total >= 0)
		{
			auto* const Bar = new QProgressBar;
			Bar->setRange(0, Toast.Total);
			Bar->setValue(Toast.Done);
			Bar->setTextVisible(false);
			Bar->setAccessibleName(Toast.Text);
			Inside->addWidget(Bar);
		}
		Column->addWidget(Frame);
	}
	setVisible(!Wanted.empty());
}

void FToasts::Settle(int BottomMargin)
{
	LastBottomMargin = BottomMargin;
	adjustSize();
	const QWidget* const Window = parentWidget();
	move(Window->width() - width() - Margin, Window->height() - height() - Margin - BottomMargin);
	raise();
}

} // namespace Host
