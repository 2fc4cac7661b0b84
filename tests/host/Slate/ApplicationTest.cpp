// SPDX-License-Identifier: MIT
// Windows, modal windows, the keyboard focus and the way of keys.
#include "EngineFixture.h"

#include "Application/SlateApplicationBase.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Application.h"
#include "Host/Menus.h"
#include "Host/Rendering.h"
#include "Host/WidgetDriver.h"
#include "Host/WidgetTimers.h"
#include "Host/Windows.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"

namespace
{
/** Takes the focus and notes what it is told. */
class SKeySink : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SKeySink)
		: _Takes(EKeys::Invalid)
		, _Focusable(true)
	{
	}
	SLATE_ARGUMENT(FKey, Takes)
	SLATE_ARGUMENT(bool, Focusable)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, std::string InName, std::vector<std::string>* InEvents)
	{
		Takes = InArgs._Takes;
		bFocusable = InArgs._Focusable;
		Name = InName;
		Events = InEvents;
		ChildSlot[InArgs._Content.Widget];
	}

	bool SupportsKeyboardFocus() const override { return bFocusable; }
	FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override { return Note("down", Event.GetKey()); }
	FReply OnKeyUp(const FGeometry&, const FKeyEvent& Event) override { return Note("up", Event.GetKey()); }
	FReply OnFocusReceived(const FGeometry&, const FFocusEvent&) override
	{
		Events->push_back(Name + " gets focus");
		return FReply::Handled();
	}
	void OnFocusLost(const FFocusEvent&) override { Events->push_back(Name + " loses focus"); }

	TSharedPtr<SWidget> FocusNext;

private:
	FReply Note(const char* What, const FKey& Key)
	{
		Events->push_back(Name + " " + What + " " + TCHAR_TO_UTF8(*Key.ToString()));
		if (!(Key == Takes))
		{
			return FReply::Unhandled();
		}
		return FocusNext.IsValid() ? FReply::Handled().SetUserFocus(FocusNext.ToSharedRef()) : FReply::Handled();
	}

	FKey Takes;
	bool bFocusable = true;
	std::string Name;
	std::vector<std::string>* Events = nullptr;
};

/** Notes what a desktop is asked for; a modal window is closed at once. */
class FNotingWindows : public Host::IWindowSystem
{
public:
	FNotingWindows()
		: Former(Host::SetWindowSystem(this))
	{
	}
	~FNotingWindows() override { Host::SetWindowSystem(Former); }

	void Show(const TSharedRef<SWindow>& Window) override { Note("show", *Window); }
	void Hide(const TSharedRef<SWindow>& Window) override { Note("hide", *Window); }
	void RunModal(const TSharedRef<SWindow>& Window) override
	{
		Note("modal", *Window);
		Window->RequestDestroyWindow();
	}
	void Destroy(const TSharedRef<SWindow>& Window) override { Note("destroy", *Window); }
	void BringToFront(const TSharedRef<SWindow>& Window) override { Note("front", *Window); }
	void OpenMenu(const TSharedRef<IMenu>&, const TOptional<FVector2D>& Position) override
	{
		Calls.push_back(Position.IsSet() ? "menu at a point" : "menu");
	}
	void CloseMenu(const TSharedRef<IMenu>&) override { Calls.push_back("close menu"); }

	std::vector<std::string> Calls;

private:
	void Note(const char* What, const SWindow& Window)
	{
		Calls.push_back(std::string(What) + " " + TCHAR_TO_UTF8(*Window.GetTitle().ToString()));
	}

	Host::IWindowSystem* Former;
};

class Application : public FEngineFixture
{
protected:
	static FSlateApplication& App() { return FSlateApplication::Get(); }
	static TSharedRef<SWindow> MakeWindow(const TCHAR* Title, const TSharedRef<SWidget>& Content = SNew(SBox))
	{
		return SNew(SWindow).Title(FText::FromString(Title))[Content];
	}
	TSharedRef<SKeySink> Sink(const char* Name, FKey Takes = EKeys::Invalid,
		const TSharedRef<SWidget>& Content = SNullWidget::NullWidget, bool bFocusable = true)
	{
		return SNew(SKeySink, std::string(Name), &Events).Takes(Takes).Focusable(bFocusable)[Content];
	}
	std::vector<std::string> TakeEvents() { return std::exchange(Events, {}); }

	std::vector<std::string> Events;
};
} // namespace

TEST_F(Application, AWindowIsShownWhenItIsAddedAndGoesOnce)
{
	FNotingWindows Desktop;
	const TSharedRef<SWindow> Window = MakeWindow(TEXT("A"));
	EXPECT_FALSE(Window->IsVisible());
	App().AddWindow(Window);
	EXPECT_TRUE(Window->IsVisible());
	EXPECT_TRUE(Window->IsActive());
	Window->HideWindow();
	Window->HideWindow();
	EXPECT_FALSE(Window->IsVisible());
	Window->ShowWindow();
	Window->RequestDestroyWindow();
	Window->RequestDestroyWindow();
	Window->ShowWindow();
	EXPECT_EQ(Desktop.Calls, (std::vector<std::string>{"show A", "hide A", "show A", "destroy A"}));
	EXPECT_EQ(App().GetTopLevelWindows().Num(), 0);
	EXPECT_FALSE(App().GetActiveTopLevelWindow().IsValid());
}

TEST_F(Application, AWindowCanBeAddedBeforeItIsShown)
{
	FNotingWindows Desktop;
	const TSharedRef<SWindow> Window = App().AddWindow(MakeWindow(TEXT("A")), false);
	EXPECT_FALSE(Window->IsVisible());
	EXPECT_TRUE(Desktop.Calls.empty());
	Window->ShowWindow();
	EXPECT_TRUE(Window->IsVisible());
}

TEST_F(Application, AWindowTakesThoseThatItOwnsAlong)
{
	FNotingWindows Desktop;
	const TSharedRef<SWindow> Parent = App().AddWindow(MakeWindow(TEXT("Parent")));
	const TSharedRef<SWindow> Child = App().AddWindowAsNativeChild(MakeWindow(TEXT("Child")), Parent);
	EXPECT_EQ(Child->GetParentWindow(), Parent);
	EXPECT_EQ(App().GetTopLevelWindows().Num(), 1);
	Parent->RequestDestroyWindow();
	EXPECT_EQ(
		Desktop.Calls, (std::vector<std::string>{"show Parent", "show Child", "destroy Child", "destroy Parent"}));
}

TEST_F(Application, AnOverrideStandsInForClosing)
{
	const TSharedRef<SWindow> Window = App().AddWindow(MakeWindow(TEXT("A")));
	int Asked = 0;
	Window->SetRequestDestroyWindowOverride(
		FRequestDestroyWindowOverride::CreateLambda([&](const TSharedRef<SWindow>&) { ++Asked; }));
	Window->RequestDestroyWindow();
	EXPECT_TRUE(Window->IsVisible());
	Window->SetRequestDestroyWindowOverride(FRequestDestroyWindowOverride());
	Host::CloseWindowByUser(Window);
	EXPECT_FALSE(Window->IsVisible());
	EXPECT_EQ(Asked, 1);
}

TEST_F(Application, TheUserCannotCloseAWindowWithoutACloseButton)
{
	const TSharedRef<SWindow> Window = App().AddWindow(SNew(SWindow).HasCloseButton(false));
	Host::CloseWindowByUser(Window);
	EXPECT_TRUE(Window->IsVisible());
}

TEST_F(Application, TheDesktopTellsWhereAWindowStands)
{
	const TSharedRef<SWindow> Window = App().AddWindow(SNew(SWindow).ClientSize(FVector2D(300.0, 200.0)));
	EXPECT_EQ(Host::FWindowAccess::GetAutoCenter(*Window), EAutoCenter::PreferredWorkArea);
	Host::WindowWasMoved(*Window, FVector2D(1.0, 2.0), FVector2D(3.0, 4.0), true);
	EXPECT_EQ(Window->GetPositionInScreen(), FVector2D(1.0, 2.0));
	EXPECT_EQ(Window->GetClientSizeInScreen(), FVector2D(3.0, 4.0));
	EXPECT_TRUE(Window->IsWindowMaximized());
	EXPECT_EQ(Host::FWindowAccess::GetAutoCenter(*Window), EAutoCenter::None);
}

TEST_F(Application, AModalWindowBelongsToItsParentAndReturnsWhenItIsClosed)
{
	FNotingWindows Desktop;
	const TSharedRef<SBox> Inside = SNew(SBox);
	const TSharedRef<SWindow> Parent = App().AddWindow(MakeWindow(TEXT("Parent"), Inside));
	const TSharedRef<SWindow> Dialog = MakeWindow(TEXT("Dialog"));
	App().AddModalWindow(Dialog, Inside);
	EXPECT_EQ(
		Desktop.Calls, (std::vector<std::string>{"show Parent", "show Dialog", "modal Dialog", "destroy Dialog"}));
	EXPECT_FALSE(App().GetActiveModalWindow().IsValid());
	EXPECT_TRUE(Parent->IsActive());
}

TEST_F(Application, WithoutAScreenAModalWindowIsAnsweredByTheNextAnswer)
{
	std::string Seen;
	Host::AnswerNextModalWindow(
		[&](const TSharedRef<SWindow>& Window)
		{
			Seen = TCHAR_TO_UTF8(*Window->GetTitle().ToString());
			EXPECT_EQ(App().GetActiveModalWindow(), Window);
			Window->RequestDestroyWindow();
		});
	App().AddModalWindow(MakeWindow(TEXT("First")), nullptr);
	EXPECT_EQ(Seen, "First");
	EXPECT_EQ(Log().CountContaining("was closed"), 0);
	const TSharedRef<SWindow> Second = MakeWindow(TEXT("Second"));
	App().AddModalWindow(Second, nullptr);
	EXPECT_FALSE(Second->IsVisible());
	EXPECT_EQ(Log().CountContaining("The window 'Second' was closed: there is nobody to answer it"), 1);
	Host::AnswerNextModalWindow([](const TSharedRef<SWindow>&) {});
	App().AddModalWindow(MakeWindow(TEXT("Third")), nullptr);
	EXPECT_EQ(Log().CountContaining("The window 'Third' was closed: its answer left it open"), 1);
	EXPECT_EQ(Host::NumModalAnswersLeft(), 0);
}

TEST_F(Application, TheParentOfAModalWindowMayGoWhileItIsOpen)
{
	const TSharedRef<SWindow> Parent = App().AddWindow(MakeWindow(TEXT("Parent")));
	Host::AnswerNextModalWindow([&](const TSharedRef<SWindow>&) { Parent->RequestDestroyWindow(); });
	const TSharedRef<SWindow> Dialog = MakeWindow(TEXT("Dialog"));
	App().AddModalWindow(Dialog, Parent);
	EXPECT_FALSE(Dialog->IsVisible());
	EXPECT_FALSE(App().GetActiveModalWindow().IsValid());
	EXPECT_FALSE(App().GetActiveTopLevelWindow().IsValid());
}

TEST_F(Application, KeysGoFromTheFocusUpwardsUntilOneHandlesThem)
{
	const TSharedRef<SKeySink> Inner = Sink("inner", EKeys::A);
	const TSharedRef<SKeySink> Outer = Sink("outer", EKeys::B, SNew(SBox)[Inner], false);
	App().AddWindow(MakeWindow(TEXT("W"), Outer));
	ASSERT_TRUE(App().SetKeyboardFocus(Inner));
	EXPECT_TRUE(Inner->HasKeyboardFocus());
	EXPECT_TRUE(Outer->HasFocusedDescendants());
	EXPECT_FALSE(Outer->HasKeyboardFocus());
	TakeEvents();

	EXPECT_TRUE(Host::PressKey(EKeys::A));
	EXPECT_EQ(TakeEvents(), (std::vector<std::string>{"inner down A", "inner up A"}));
	EXPECT_TRUE(Host::PressKey(EKeys::B));
	EXPECT_EQ(TakeEvents(), (std::vector<std::string>{"inner down B", "outer down B", "inner up B", "outer up B"}));
	EXPECT_FALSE(Host::PressKey(EKeys::C));
}

TEST_F(Application, TheFocusGoesToTheNearestWidgetThatTakesIt)
{
	const TSharedRef<SBox> Deep = SNew(SBox);
	const TSharedRef<SKeySink> Middle = Sink("middle", EKeys::Invalid, Deep);
	const TSharedRef<SKeySink> Top = Sink("top", EKeys::Invalid, Middle);
	EXPECT_TRUE(App().SetKeyboardFocus(Deep));
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), Middle);
	EXPECT_TRUE(App().SetKeyboardFocus(Top));
	EXPECT_FALSE(App().SetKeyboardFocus(SNew(SBox)));
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), Top);
	EXPECT_EQ(TakeEvents(), (std::vector<std::string>{"middle gets focus", "middle loses focus", "top gets focus"}));
	Middle->SetEnabled(false);
	EXPECT_FALSE(App().SetKeyboardFocus(Deep));
	App().ClearKeyboardFocus();
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(Application, DisabledWidgetsAndThoseBelowThemAreLeftOut)
{
	const TSharedRef<SKeySink> Inner = Sink("inner");
	const TSharedRef<SKeySink> Middle = Sink("middle", EKeys::Invalid, Inner);
	const TSharedRef<SKeySink> Outer = Sink("outer", EKeys::A, Middle);
	App().SetKeyboardFocus(Inner);
	Middle->SetEnabled(false);
	TakeEvents();
	EXPECT_TRUE(Host::PressKey(EKeys::A));
	EXPECT_EQ(TakeEvents(), (std::vector<std::string>{"outer down A", "outer up A"}));
}

TEST_F(Application, AnAnswerMayMoveTheFocus)
{
	const TSharedRef<SKeySink> First = Sink("first", EKeys::A);
	const TSharedRef<SKeySink> Second = Sink("second");
	First->FocusNext = Second;
	App().SetKeyboardFocus(First);
	Host::PressKey(EKeys::A);
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), Second);
}

TEST_F(Application, WithoutAFocusKeysGoToTheActiveWindow)
{
	class SSinkWindow : public SWindow
	{
	public:
		FReply OnKeyDown(const FGeometry&, const FKeyEvent&) override { return FReply::Handled(); }
	};
	const TSharedRef<SSinkWindow> Window = SNew(SSinkWindow);
	EXPECT_FALSE(Host::PressKey(EKeys::A));
	App().AddWindow(Window);
	EXPECT_TRUE(Host::PressKey(EKeys::A));
}

TEST_F(Application, AWidgetThatLeftItsWindowGetsNoKeys)
{
	const TSharedRef<SKeySink> Lost = Sink("lost", EKeys::A);
	const TSharedRef<SWindow> Window = App().AddWindow(MakeWindow(TEXT("W"), Lost));
	App().SetKeyboardFocus(Lost);
	Window->SetContent(SNew(SBox));
	TakeEvents();
	EXPECT_FALSE(Host::PressKey(EKeys::A));
	EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(Application, AModalWindowKeepsTheKeysFromOthers)
{
	const TSharedRef<SKeySink> Behind = Sink("behind", EKeys::A);
	App().AddWindow(MakeWindow(TEXT("W"), Behind));
	App().SetKeyboardFocus(Behind);
	TakeEvents();
	Host::AnswerNextModalWindow(
		[&](const TSharedRef<SWindow>& Window)
		{
			EXPECT_FALSE(Host::PressKey(EKeys::A));
			App().SetKeyboardFocus(Behind);
			EXPECT_FALSE(Host::PressKey(EKeys::A));
			Window->RequestDestroyWindow();
		});
	App().AddModalWindow(MakeWindow(TEXT("Dialog")), nullptr);
	TakeEvents();
	EXPECT_TRUE(Host::PressKey(EKeys::A));
}

TEST_F(Application, AWindowRemembersItsFocus)
{
	const TSharedRef<SKeySink> First = Sink("first");
	const TSharedRef<SKeySink> Second = Sink("second");
	const TSharedRef<SWindow> A = App().AddWindow(MakeWindow(TEXT("A"), First));
	App().SetKeyboardFocus(First);
	const TSharedRef<SWindow> B = App().AddWindow(MakeWindow(TEXT("B"), Second));
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
	App().SetKeyboardFocus(Second);
	Host::WindowWasActivated(A);
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), First);
	Host::WindowWasActivated(B);
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), Second);
	B->RequestDestroyWindow();
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
	EXPECT_EQ(TakeEvents().back(), "second loses focus");
}

TEST_F(Application, TheFocusGoesRoundInTheOrderOfTheTree)
{
	const TSharedRef<SKeySink> A = Sink("a");
	const TSharedRef<SKeySink> B = Sink("b");
	const TSharedRef<SKeySink> C = Sink("c");
	B->SetEnabled(false);
	App().AddWindow(MakeWindow(
		TEXT("W"), SNew(SVerticalBox) + SVerticalBox::Slot()[A] + SVerticalBox::Slot()[B] + SVerticalBox::Slot()[C]));
	EXPECT_TRUE(Host::FocusNext());
	EXPECT_TRUE(A->HasKeyboardFocus());
	EXPECT_TRUE(Host::FocusNext());
	EXPECT_TRUE(C->HasKeyboardFocus());
	EXPECT_TRUE(Host::FocusNext());
	EXPECT_TRUE(A->HasKeyboardFocus());
	EXPECT_TRUE(Host::FocusNext(true));
	EXPECT_TRUE(C->HasKeyboardFocus());
}

TEST_F(Application, ModifierKeysAreThoseOfTheLastInput)
{
	const FModifierKeysState Shift(true, false, false, false, false, false, false, false, false);
	App().ProcessKeyDownEvent(FKeyEvent(EKeys::A, Shift, 0, false, 0, 0));
	EXPECT_TRUE(App().GetModifierKeys().IsShiftDown());
	Host::SetModifierKeys(FModifierKeysState());
	EXPECT_FALSE(App().GetModifierKeys().IsShiftDown());
}

TEST_F(Application, AMenuClosesWithTheNextOneUnlessThatHangsOnIt)
{
	FNotingWindows Desktop;
	const TSharedRef<SBox> Opener = SNew(SBox);
	const TSharedRef<SBox> Entry = SNew(SBox);
	const TSharedRef<SWindow> Window = App().AddWindow(MakeWindow(TEXT("W"), Opener));
	const TSharedRef<IMenu> First = Host::OpenMenu(Opener, SNew(SBox)[Entry]);
	const TSharedRef<IMenu> Sub = Host::OpenMenu(Entry, SNew(SBox), FVector2D(1.0, 2.0));
	EXPECT_EQ(First->GetParentWindow(), Window);
	EXPECT_EQ(Sub->GetParentWindow(), Window);
	EXPECT_EQ(App().FindWidgetWindow(Entry), Window);
	EXPECT_EQ(Host::OpenMenus().Num(), 2);
	const TSharedRef<IMenu> Other = Host::OpenMenu(Opener, SNew(SBox));
	EXPECT_FALSE(First->GetContent().IsValid());
	EXPECT_FALSE(Sub->GetContent().IsValid());
	EXPECT_EQ(Host::OpenMenus().Num(), 1);
	Window->RequestDestroyWindow();
	EXPECT_FALSE(App().AnyMenusVisible());
	EXPECT_EQ(Desktop.Calls, (std::vector<std::string>{"show W", "menu", "menu at a point", "close menu", "close menu",
								 "menu", "close menu", "destroy W"}));
}

TEST_F(Application, EscapeClosesTheMenuOnTopAndTheFocusGoesBack)
{
	const TSharedRef<SKeySink> Opener = Sink("opener");
	App().AddWindow(MakeWindow(TEXT("W"), Opener));
	App().SetKeyboardFocus(Opener);
	const TSharedRef<SKeySink> Entry = Sink("entry");
	const TSharedRef<IMenu> Menu = Host::OpenMenu(Opener, Entry);
	int Dismissed = 0;
	Menu->GetOnMenuDismissed().AddLambda([&](TSharedRef<IMenu>) { ++Dismissed; });
	App().SetKeyboardFocus(Entry);
	TakeEvents();
	// Keys do not leave the menu.
	EXPECT_FALSE(Host::PressKey(EKeys::A));
	EXPECT_EQ(TakeEvents(), (std::vector<std::string>{"entry down A", "entry up A"}));
	EXPECT_TRUE(Host::PressKey(EKeys::Escape));
	EXPECT_EQ(Dismissed, 1);
	EXPECT_TRUE(Opener->HasKeyboardFocus());
	Menu->Dismiss();
	EXPECT_EQ(Dismissed, 1);
}

TEST_F(Application, LaterCallsAreMadeByTheTickWhileTheWidgetLives)
{
	TSharedPtr<SBox> Box = SNew(SBox);
	std::vector<std::string> Calls;
	Host::CallLater(Box.ToSharedRef(), 0.0,
		[&]
		{
			Calls.push_back("now");
			Host::CallLater(Box.ToSharedRef(), 0.0, [&] { Calls.push_back("next"); });
		});
	Host::CallLater(Box.ToSharedRef(), 0.5, [&] { Calls.push_back("late"); });
	Host::CancelCall(Host::CallLater(Box.ToSharedRef(), 0.0, [&] { Calls.push_back("cancelled"); }));
	Tick(0.1);
	EXPECT_EQ(Calls, (std::vector<std::string>{"now"}));
	Tick(0.1);
	EXPECT_EQ(Calls, (std::vector<std::string>{"now", "next"}));
	Host::CallLater(Box.ToSharedRef(), 0.0, [&] { Calls.push_back("gone"); });
	Box.Reset();
	Tick(1.0);
	EXPECT_EQ(Calls, (std::vector<std::string>{"now", "next"}));
}

TEST_F(Application, TheRendererIsToldToReadPicturesAnew)
{
	const uint64 Before = Host::TextureReloadCount();
	App().GetRenderer()->ReloadTextureResources();
	EXPECT_EQ(Host::TextureReloadCount(), Before + 1);
}
