// SPDX-License-Identifier: MIT
#include "Toasts.h"

#include "Pictures.h"
#include "ViewWorld.h"

#include "Host/Clock.h"
#include "Host/Notifications.h"
#include "Styling/AppStyle.h"

#include <gtest/gtest.h>

#include <QGraphicsEffect>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace
{
using namespace Host;

class Toasts : public ::testing::Test
{
protected:
	Toasts()
	{
		Window.resize(800, 600);
		Window.show();
	}
	~Toasts() override
	{
		ResetNotifications();
		Shown.Follow(*Model);
		World.ClearGraveyard();
	}

	static TSharedRef<SNotificationItem> Add(const FNotificationInfo& Info)
	{
		return FSlateNotificationManager::Get().AddNotification(Info).ToSharedRef();
	}

	static FNotificationInfo Named(const TCHAR* Text) { return FNotificationInfo(FText::FromString(Text)); }

	QWidget* Toast() const { return Shown.findChild<QWidget*>("Toast"); }
	double Opacity() const
	{
		const QGraphicsEffect* const Effect = Toast()->graphicsEffect();
		return Effect && Effect->isEnabled() ? Effect->property("opacity").toDouble() : 1.0;
	}

	FViewWorld World{[] {}};
	const TSharedRef<SWindow> Model = SNew(SWindow);
	QWidget Window;
	FToasts Shown{World, &Window};
};

TEST_F(Toasts, ButtonRunsWhatItStandsForBetweenTwoFrames)
{
	int Pressed = 0;
	FNotificationInfo Info = Named(TEXT("Saved"));
	Info.bFireAndForget = false;
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Show && tell")),
		FText::FromString(TEXT("Opens the folder")), FSimpleDelegate::CreateLambda([&Pressed] { ++Pressed; })));
	Add(Info);
	Shown.Follow(*Model);
	Shown.Settle(20);
	auto* const Button = Shown.findChild<QPushButton*>();
	ASSERT_NE(Button, nullptr);
	EXPECT_EQ(Button->toolTip(), "Opens the folder");
	const QPoint At = Button->mapTo(&Window, Button->rect().center());
	EXPECT_EQ(Window.childAt(At), Button);
	QTest::mouseClick(Button, Qt::LeftButton);
	EXPECT_EQ(Pressed, 0);
	for (const std::function<void()>& Asked : World.TakeAsked())
	{
		Asked();
	}
	EXPECT_EQ(Pressed, 1);
	Shown.Follow(*Model);
	EXPECT_EQ(Shown.findChild<QPushButton*>(), Button); // stands as it was
}

TEST_F(Toasts, WithoutAButtonLeavesWhatLiesBelowInReach)
{
	QWidget Below(&Window);
	Below.setGeometry(Window.rect());
	Below.show();
	Add(Named(TEXT("Hello")));
	Shown.Follow(*Model);
	Shown.Settle(20);
	EXPECT_EQ(Window.childAt(Shown.geometry().center()), &Below);
}

TEST_F(Toasts, FadesInStandsAndFadesOut)
{
	FNotificationInfo Info = Named(TEXT("Hello"));
	Info.FadeInDuration = 0.5f;
	Info.ExpireDuration = 3.0f;
	Info.FadeOutDuration = 2.0f;
	Add(Info);
	AdvanceTime(0.25);
	Shown.Follow(*Model);
	EXPECT_NEAR(Opacity(), 0.5, 0.01);
	EXPECT_TRUE(Shown.IsFading());
	AdvanceTime(1.0);
	Shown.Follow(*Model);
	EXPECT_EQ(Opacity(), 1.0);
	EXPECT_FALSE(Shown.IsFading());
	AdvanceTime(2.75);
	Shown.Follow(*Model);
	EXPECT_NEAR(Opacity(), 0.5, 0.01);
	AdvanceTime(1.5);
	Shown.Follow(*Model);
	EXPECT_TRUE(Shown.isHidden());
}

TEST_F(Toasts, ShowsThePictureOfHowItEnded)
{
	FNotificationInfo Info = Named(TEXT("Saving"));
	Info.bFireAndForget = false;
	const TSharedRef<SNotificationItem> Item = Add(Info);
	Shown.Follow(*Model);
	EXPECT_EQ(Shown.findChild<QLabel*>("ToastPicture"), nullptr);
	Item->SetCompletionState(SNotificationItem::CS_Fail);
	Item->SetText(FText::FromString(TEXT("Not saved")));
	Shown.Follow(*Model);
	const auto* const Picture = Shown.findChild<QLabel*>("ToastPicture");
	ASSERT_NE(Picture, nullptr);
	EXPECT_EQ(Picture->pixmap().toImage(),
		World.Brushes.Icon(FAppStyle::GetBrush(TEXT("NotificationList.FailImage"))).pixmap(QSize(20, 20)).toImage());
	EXPECT_EQ(Toast()->accessibleName(), "Not saved");
}

TEST_F(Toasts, LeavesOutWhatBelongsToAnotherWindow)
{
	FNotificationInfo Info = Named(TEXT("Elsewhere"));
	Info.ForWindow = SNew(SWindow);
	Add(Info);
	Shown.Follow(*Model);
	EXPECT_EQ(Toast(), nullptr);
	Shown.Follow(*Info.ForWindow);
	EXPECT_NE(Toast(), nullptr);
}
} // namespace
