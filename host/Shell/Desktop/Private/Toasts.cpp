// SPDX-License-Identifier: MIT
#include "Toasts.h"

#include "Text.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Host/Notifications.h"

#include <QFrame>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Host
{

namespace
{

constexpr int ToastWidth = 320;
constexpr int Margin = 14;
constexpr int PictureSize = 20;

constexpr const char* ToastSheet =
	"QFrame#Toast { background: #383838; border: 1px solid #5a5a5a; border-radius: 6px; }"
	"QFrame#Toast QLabel { background: transparent; color: #ffffff; }"
	"QFrame#Toast QPushButton { background: #4c4c4c; }"
	"QFrame#Toast QPushButton:hover { background: #0070e0; }";

/** What a toast is built of; the rest changes while it stands. */
struct FToastForm
{
	TSharedPtr<SNotificationItem> Item; // empty for a progress
	const FSlateBrush* Image = nullptr;
	bool bBar = false;
	std::vector<QString> Buttons;

	bool operator==(const FToastForm&) const = default;
};

struct FToastContent
{
	FToastForm Form;
	QString Text;
	int Done = 0;
	int Total = 0; // with Done 0: nobody knows how far it is
	float Opacity = 1;
	TArray<FNotificationButtonInfo> Buttons;
};

} // namespace

/** One notification or progress. */
class FToast : public QFrame
{
public:
	FToast(FViewWorld& World, const FToastContent& Content)
		: Form(Content.Form)
		, Label(new QLabel)
	{
		setObjectName("Toast");
		setStyleSheet(QLatin1String(ToastSheet));
		setFixedWidth(ToastWidth);
		auto* const Inside = new QVBoxLayout(this);
		Inside->setContentsMargins(Margin, 10, Margin, 10);
		auto* const Line = new QHBoxLayout;
		Line->setSpacing(10);
		if (Form.Image)
		{
			auto* const Picture = new QLabel;
			Picture->setObjectName("ToastPicture");
			Picture->setPixmap(
				World.Brushes.Icon(Form.Image).pixmap(QSize(PictureSize, PictureSize), devicePixelRatioF()));
			Picture->setFixedSize(PictureSize, PictureSize);
			Line->addWidget(Picture, 0, Qt::AlignTop);
		}
		Label->setTextFormat(Qt::PlainText);
		Label->setWordWrap(true);
		Line->addWidget(Label, 1);
		Inside->addLayout(Line);
		if (Form.bBar)
		{
			Bar = new QProgressBar;
			Bar->setTextVisible(false);
			Inside->addWidget(Bar);
		}
		AddButtons(World, Content, *Inside);
		Show(Content);
	}

	void Show(const FToastContent& Content)
	{
		if (Label->text() != Content.Text)
		{
			Label->setText(Content.Text);
			setAccessibleName(Content.Text);
		}
		if (Bar)
		{
			Bar->setAccessibleName(Content.Text);
			Bar->setRange(0, Content.Total);
			Bar->setValue(Content.Done);
		}
		if (Content.Opacity < 1 && !graphicsEffect())
		{
			setGraphicsEffect(new QGraphicsOpacityEffect(this));
		}
		if (auto* const Effect = static_cast<QGraphicsOpacityEffect*>(graphicsEffect()))
		{
			Effect->setOpacity(static_cast<double>(Content.Opacity));
			Effect->setEnabled(Content.Opacity < 1);
		}
	}

	const FToastForm Form;

private:
	void AddButtons(FViewWorld& World, const FToastContent& Content, QVBoxLayout& Inside)
	{
		if (Content.Buttons.IsEmpty())
		{
			return;
		}
		auto* const Row = new QHBoxLayout;
		Row->addStretch(1);
		for (const FNotificationButtonInfo& Info : Content.Buttons)
		{
			auto* const Button = new QPushButton(ToQString(Info.Text).replace('&', "&&"));
			Button->setAccessibleName(ToQString(Info.Text));
			Button->setToolTip(ToQString(Info.ToolTip));
			// Later: what it does may open a question, or end this toast.
			connect(Button, &QPushButton::clicked, this,
				[&World, Callback = Info.Callback] { World.AskLater([Callback] { Callback.ExecuteIfBound(); }); });
			Row->addWidget(Button);
		}
		Inside.addLayout(Row);
	}

	QLabel* Label;
	QProgressBar* Bar = nullptr;
};

namespace
{

std::vector<FToastContent> WantedIn(const SWindow& Window)
{
	std::vector<FToastContent> Wanted;
	for (const FStandingNotification& Notification : StandingNotifications())
	{
		if (Notification.ForWindow.IsValid() && Notification.ForWindow.Get() != &Window)
		{
			continue;
		}
		FToastContent& Toast = Wanted.emplace_back();
		Toast.Form.Item = Notification.Item;
		Toast.Form.Image = Notification.Image;
		Toast.Form.bBar = Notification.bThrobber;
		Toast.Text = ToQString(Notification.Text);
		Toast.Opacity = Notification.Opacity;
		Toast.Buttons = Notification.Buttons;
		for (const FNotificationButtonInfo& Info : Notification.Buttons)
		{
			Toast.Form.Buttons.push_back(ToQString(Info.Text));
		}
	}
	for (const FProgressState& Progress : RunningProgresses())
	{
		FToastContent& Toast = Wanted.emplace_back();
		Toast.Form.bBar = true;
		Toast.Text = ToQString(Progress.Text);
		Toast.Done = Progress.WorkDone;
		Toast.Total = Progress.TotalWork;
	}
	return Wanted;
}

} // namespace

FToasts::FToasts(FViewWorld& InWorld, QWidget* Window)
	: QWidget(Window)
	, World(InWorld)
{
	setAttribute(Qt::WA_NoSystemBackground);
	setObjectName("Toasts");
	setAccessibleName("Notifications");
	auto* const Column = new QVBoxLayout(this);
	Column->setContentsMargins(0, 0, 0, 0);
	Column->setSpacing(8);
	hide();
}

void FToasts::Follow(const SWindow& Model)
{
	const std::vector<FToastContent> Wanted = WantedIn(Model);
	std::vector<FToast*> Former = std::exchange(Toasts, {});
	bool bButtons = false;
	bFading = false;
	for (const FToastContent& Content : Wanted)
	{
		const auto Known = std::find_if(
			Former.begin(), Former.end(), [&Content](const FToast* Toast) { return Toast->Form == Content.Form; });
		if (Known != Former.end())
		{
			Toasts.push_back(*Known);
			Former.erase(Known);
			Toasts.back()->Show(Content);
		}
		else
		{
			Toasts.push_back(new FToast(World, Content));
		}
		bButtons = bButtons || !Content.Buttons.IsEmpty();
		bFading = bFading || Content.Opacity < 1;
	}
	auto* const Column = static_cast<QVBoxLayout*>(layout());
	for (FToast* const Gone : Former)
	{
		Column->removeWidget(Gone);
		World.Bury(Gone);
	}
	for (std::size_t Index = 0; Index < Toasts.size(); ++Index)
	{
		if (Column->indexOf(Toasts[Index]) != static_cast<int>(Index))
		{
			Column->removeWidget(Toasts[Index]);
			Column->insertWidget(static_cast<int>(Index), Toasts[Index]);
		}
	}
	// Without a button there is nothing to click, and what lies below is in reach.
	setAttribute(Qt::WA_TransparentForMouseEvents, !bButtons);
	setVisible(!Toasts.empty());
}

void FToasts::Settle(int BottomMargin)
{
	adjustSize();
	const QWidget* const Window = parentWidget();
	move(Window->width() - width() - Margin, Window->height() - height() - Margin - BottomMargin);
	raise();
}

} // namespace Host
