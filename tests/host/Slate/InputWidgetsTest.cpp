// SPDX-License-Identifier: MIT
// Buttons, text boxes and combo buttons, operated as a user does.
#include "EngineFixture.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/Menus.h"
#include "Host/WidgetDriver.h"
#include "Host/WidgetTree.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBorder.h"
#include "Widgets/Layout/SUniformGridPanel.h"
#include "Widgets/Text/STextBlock.h"

using Host::FWidgetQuery;

namespace
{
class InputWidgets : public FEngineFixture
{
protected:
	void Show(const TSharedRef<SWidget>& Content)
	{
		Window = FSlateApplication::Get().AddWindow(SNew(SWindow)[Content]);
	}
	void TearDown() override
	{
		Window.Reset();
		FEngineFixture::TearDown();
	}

	static FText Text(const char* Ascii) { return FText::FromString(FString(Ascii)); }
	static std::string WhyNot(const Host::FDriveResult& Result) { return TCHAR_TO_UTF8(*Result.WhyNot); }

	TSharedPtr<SWindow> Window;
	std::vector<std::string> Events;
};

class SScrolled : public SBox, public IScrollableWidget
{
public:
	TSharedRef<SWidget> GetScrollWidget() override { return SharedThis(this); }
};
} // namespace

TEST_F(InputWidgets, AButtonIsClickedByPressEnterAndSpace)
{
	int Clicks = 0;
	TSharedPtr<SButton> Button;
	Show(SAssignNew(Button, SButton)
			 .Text(Text("Go"))
			 .OnClicked_Lambda(
				 [&]
				 {
					 ++Clicks;
					 return FReply::Handled();
				 }));
	EXPECT_TRUE(Host::Press(Window.ToSharedRef(), FWidgetQuery::ByText(TEXT("Go"))));
	EXPECT_EQ(Clicks, 1);
	EXPECT_TRUE(Button->HasKeyboardFocus());
	Host::PressKey(EKeys::Enter);
	Host::PressKey(EKeys::SpaceBar);
	EXPECT_EQ(Clicks, 3);
	EXPECT_FALSE(Host::PressKey(EKeys::A));
}

TEST_F(InputWidgets, AHeldKeyIsForgottenWhenTheFocusLeavesTheButton)
{
	int Clicks = 0;
	const auto Click = [&]
	{
		++Clicks;
		return FReply::Handled();
	};
	const TSharedRef<SButton> First = SNew(SButton).OnClicked_Lambda(Click);
	const TSharedRef<SButton> Second = SNew(SButton).OnClicked_Lambda(Click);
	FSlateApplication& App = FSlateApplication::Get();
	const FKeyEvent Space(EKeys::SpaceBar, FModifierKeysState(), 0, false, ' ', 0);
	App.SetKeyboardFocus(First);
	App.ProcessKeyDownEvent(Space);
	EXPECT_TRUE(First->IsPressed());
	App.SetKeyboardFocus(Second);
	EXPECT_FALSE(First->IsPressed());
	App.ProcessKeyUpEvent(Space);
	EXPECT_EQ(Clicks, 0);
}

TEST_F(InputWidgets, ADisabledHiddenOrMissingWidgetIsNotPressedAndTheAnswerSaysWhy)
{
	bool bEnabled = false;
	EVisibility Visibility = EVisibility::Visible;
	int Clicks = 0;
	Show(SNew(SBox).Visibility_Lambda([&] { return Visibility; })[SNew(SButton)
																	  .Tag("Go")
																	  .Text(Text("Go"))
																	  .IsEnabled_Lambda([&] { return bEnabled; })
																	  .OnClicked_Lambda(
																		  [&]
																		  {
																			  ++Clicks;
																			  return FReply::Handled();
																		  })]);
	const TSharedRef<SWidget> Button = Host::FindWidget(Window.ToSharedRef(), FWidgetQuery::ByTag("Go")).ToSharedRef();
	EXPECT_EQ(WhyNot(Host::Press(Button)), "SButton 'Go' is disabled");
	bEnabled = true;
	Visibility = EVisibility::Hidden;
	EXPECT_EQ(WhyNot(Host::Press(Button)), "SButton 'Go' is not visible");
	EXPECT_EQ(
		WhyNot(Host::Press(Window.ToSharedRef(), FWidgetQuery::ByTag("Go"))), "There is no visible widget tagged 'Go'");
	Visibility = EVisibility::HitTestInvisible;
	EXPECT_TRUE(Host::Press(Button));
	EXPECT_EQ(Clicks, 1);
	EXPECT_EQ(WhyNot(Host::Press(Window.ToSharedRef())), "SWindow is nothing to press");
}

TEST_F(InputWidgets, AClickMayDestroyTheWindowOfItsButton)
{
	Show(SNew(SButton)
			 .Text(Text("Close"))
			 .OnClicked_Lambda(
				 [&]
				 {
					 Window->RequestDestroyWindow();
					 Window.Reset();
					 return FReply::Handled();
				 }));
	EXPECT_TRUE(Host::Press(Window.ToSharedRef(), FWidgetQuery::ByText(TEXT("Close"))));
	EXPECT_FALSE(FSlateApplication::Get().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(InputWidgets, ATextBoxIsTypedIntoAndTellsEachChange)
{
	TSharedPtr<SEditableTextBox> Box;
	Show(SAssignNew(Box, SEditableTextBox)
			 .HintText(Text("Name"))
			 .OnTextChanged_Lambda(
				 [&](const FText& New) { Events.push_back(std::string("changed ") + TCHAR_TO_UTF8(*New.ToString())); })
			 .OnTextCommitted_Lambda(
				 [&](const FText& New, ETextCommit::Type Type) {
					 Events.push_back(
						 std::string("committed ") + TCHAR_TO_UTF8(*New.ToString()) + std::to_string(Type));
				 }));
	EXPECT_TEXT_EQ(Box->GetHintText().ToString(), TEXT("Name"));
	EXPECT_TRUE(Host::TypeInto(Box.ToSharedRef(), TEXT("ab")));
	Host::PressKey(EKeys::BackSpace);
	Host::PressKey(EKeys::Enter, FModifierKeysState(), '\r');
	EXPECT_EQ(Events, (std::vector<std::string>{"changed a", "changed ab", "changed a", "committed a1"}));
	Events.clear();
	Host::TypeInto(Box.ToSharedRef(), TEXT("x"));
	Host::PressKey(EKeys::Escape);
	EXPECT_EQ(Events, (std::vector<std::string>{"changed ax", "changed a", "committed a3"}));
	Events.clear();
	Host::TypeInto(Box.ToSharedRef(), TEXT("y"));
	FSlateApplication::Get().ClearKeyboardFocus();
	EXPECT_EQ(Events, (std::vector<std::string>{"changed ay", "committed ay2"}));
	EXPECT_TEXT_EQ(Box->GetText().ToString(), TEXT("ay"));
}

TEST_F(InputWidgets, ABoundTextShowsItsSourceAgainWhenItWasHandedOver)
{
	FText Source = Text("one");
	TSharedPtr<SEditableTextBox> Box;
	Show(SAssignNew(Box, SEditableTextBox).Text_Lambda([&] { return Source; }).SelectAllTextWhenFocused(true));
	EXPECT_TRUE(Host::TypeInto(Box.ToSharedRef(), TEXT("two")));
	EXPECT_TEXT_EQ(Box->GetText().ToString(), TEXT("two"));
	Host::PressKey(EKeys::Enter);
	EXPECT_TEXT_EQ(Box->GetText().ToString(), TEXT("one"));
}

TEST_F(InputWidgets, AReadOnlyBoxTakesNothing)
{
	const TSharedRef<SEditableTextBox> Box = SNew(SEditableTextBox).Text(Text("fixed")).IsReadOnly(true);
	Show(Box);
	EXPECT_EQ(WhyNot(Host::TypeInto(Box, TEXT("x"))), "SEditableTextBox 'fixed' is read-only");
	Host::EditTextByUser(*Box, Text("x"));
	EXPECT_TEXT_EQ(Box->GetText().ToString(), TEXT("fixed"));
	const TSharedRef<SBox> NoText = SNew(SBox);
	EXPECT_EQ(WhyNot(Host::TypeInto(NoText, TEXT("x"))), "SBox takes no text");
}

TEST_F(InputWidgets, KeysThatTypeRunNoCommandOfAWidgetAround)
{
	const TSharedRef<SEditableTextBox> Box = SNew(SEditableTextBox);
	Show(Box);
	FSlateApplication::Get().SetKeyboardFocus(Box);
	EXPECT_TRUE(Host::PressKey(EKeys::F, FModifierKeysState(), 'f'));
	EXPECT_TEXT_EQ(Box->GetText().ToString(), TEXT("f"));
	EXPECT_TRUE(Host::PressKey(EKeys::Delete));
	const FModifierKeysState Control(false, false, true, false, false, false, false, false, false);
	EXPECT_FALSE(FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(EKeys::S, Control, 0, false, 0, 0)));
}

TEST_F(InputWidgets, ASearchBoxTellsAtOnceOrAfterAPause)
{
	for (const bool bDelay : {false, true})
	{
		Events.clear();
		const TSharedRef<SSearchBox> Box =
			SNew(SSearchBox)
				.DelayChangeNotificationsWhileTyping(bDelay)
				.OnTextChanged_Lambda([&](const FText& New) { Events.push_back(TCHAR_TO_UTF8(*New.ToString())); });
		Show(Box);
		EXPECT_TEXT_EQ(Box->GetHintText().ToString(), TEXT("Search"));
		Host::TypeInto(Box, TEXT("ab"));
		EXPECT_EQ(Events, bDelay ? std::vector<std::string>() : (std::vector<std::string>{"a", "ab"}));
		Tick(0.2);
		Host::TypeInto(Box, TEXT("c"));
		Tick(0.2);
		EXPECT_EQ(Events, bDelay ? std::vector<std::string>() : (std::vector<std::string>{"a", "ab", "abc"}));
		Tick(0.2);
		EXPECT_EQ(Events.back(), "abc");
		Host::TypeInto(Box, TEXT("d"));
		Host::PressKey(EKeys::Enter);
		EXPECT_EQ(Events.back(), "abcd");
		// Emptied by Escape: that is told without a pause.
		Host::PressKey(EKeys::Escape);
		EXPECT_EQ(Events.back(), "");
		EXPECT_EQ(Events.size(), bDelay ? 3u : 5u);
		Tick(1.0);
		EXPECT_EQ(Events.size(), bDelay ? 3u : 5u);
		Window->RequestDestroyWindow();
	}
}

TEST_F(InputWidgets, ATextThatIsSetIsToldWhenItDiffers)
{
	const TSharedRef<SSearchBox> Box =
		SNew(SSearchBox)
			.InitialText(Text("start"))
			.OnTextChanged_Lambda([&](const FText& New) { Events.push_back(TCHAR_TO_UTF8(*New.ToString())); });
	EXPECT_TEXT_EQ(Box->GetText().ToString(), TEXT("start"));
	Box->SetText(Text("start"));
	Box->SetText(Text("end"));
	EXPECT_EQ(Events, (std::vector<std::string>{"end"}));
}

TEST_F(InputWidgets, ASearchBoxSelectsAllWhenItGetsTheFocus)
{
	const TSharedRef<SSearchBox> Box = SNew(SSearchBox).InitialText(Text("old"));
	Show(Box);
	Host::TypeInto(Box, TEXT("new"));
	EXPECT_TEXT_EQ(Box->GetText().ToString(), TEXT("new"));
}

TEST_F(InputWidgets, AComboButtonMakesItsMenuAtEachOpening)
{
	int Made = 0;
	TSharedPtr<SComboButton> Combo;
	Show(SAssignNew(Combo, SComboButton)
			 .HasDownArrow(false)
			 .OnGetMenuContent_Lambda(
				 [&]() -> TSharedRef<SWidget>
				 {
					 ++Made;
					 return SNew(SButton).Text(Text("Inside"));
				 })
			 .OnMenuOpenChanged_Lambda([&](bool bOpen) { Events.push_back(bOpen ? "open" : "shut"); })
			 .ButtonContent()[SNew(SImage)]);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_FALSE(Combo->HasDownArrow());
	EXPECT_TRUE(Host::Press(Window.ToSharedRef(), FWidgetQuery::ByType("SImage")));
	EXPECT_TRUE(Combo->IsOpen());
	EXPECT_TRUE(Host::FindWidgetAnywhere(FWidgetQuery::ByText(TEXT("Inside")))->HasKeyboardFocus());
	EXPECT_TRUE(Host::Press(Combo.ToSharedRef()));
	EXPECT_FALSE(Combo->IsOpen());
	FSlateApplication::Get().SetKeyboardFocus(Combo);
	Host::PressKey(EKeys::Down);
	EXPECT_TRUE(Combo->IsOpen());
	Host::PressKey(EKeys::Escape);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_TRUE(Combo->HasKeyboardFocus());
	EXPECT_EQ(Made, 2);
	EXPECT_EQ(Events, (std::vector<std::string>{"open", "shut", "open", "shut"}));
}

TEST_F(InputWidgets, AComboButtonShowsItsOwnMenuContentAndTakesTheMenuAlong)
{
	TSharedPtr<SComboButton> Combo;
	Show(SAssignNew(Combo, SComboButton).MenuContent()[SNew(STextBlock).Text(Text("Fixed"))]);
	Combo->SetIsOpen(true);
	Combo->SetIsOpen(true);
	EXPECT_EQ(Host::OpenMenus().Num(), 1);
	Window->SetContent(SNew(SBox));
	Combo.Reset();
	EXPECT_EQ(Host::OpenMenus().Num(), 0);
}

TEST_F(InputWidgets, EntriesAreChosenByTheirLabels)
{
	const auto Entry = [&](FMenuBuilder& Builder, const char* Label)
	{
		Builder.AddMenuEntry(Text(Label), FText(), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda([this, Label]
				{ Events.push_back(std::string(Label) + (Host::OpenMenus().Num() ? " in a menu" : "")); })));
	};
	TSharedPtr<SComboButton> Combo;
	Show(SAssignNew(Combo, SComboButton)
			 .ButtonContent()[SNew(STextBlock).Text(Text("Save"))]
			 .OnGetMenuContent_Lambda(
				 [&]() -> TSharedRef<SWidget>
				 {
					 FMenuBuilder Builder(true, nullptr);
					 Entry(Builder, "One");
					 Builder.AddSubMenu(Text("More"), FText(),
						 FNewMenuDelegate::CreateLambda([&](FMenuBuilder& Sub) { Entry(Sub, "Two"); }));
					 return Builder.MakeWidget();
				 }));
	EXPECT_TRUE(Host::ChooseFromMenu(Combo.ToSharedRef(), {TEXT("One")}));
	EXPECT_TRUE(Host::ChooseFromMenu(Combo.ToSharedRef(), {TEXT("More"), TEXT("Two")}));
	// The menus close before the action runs.
	EXPECT_EQ(Events, (std::vector<std::string>{"One", "Two"}));
	EXPECT_EQ(WhyNot(Host::ChooseFromMenu(Combo.ToSharedRef(), {TEXT("Three")})),
		"The menu of SComboButton 'Save' has no entry 'Three'; it has: One, More >");
	EXPECT_EQ(WhyNot(Host::ChooseFromMenu(Combo.ToSharedRef(), {TEXT("One"), TEXT("Two")})),
		"SMultiBoxItem 'One' opens no menu");
	EXPECT_EQ(Host::OpenMenus().Num(), 0);
}

TEST_F(InputWidgets, AGridKnowsTheCellsOfItsChildren)
{
	const TSharedRef<SUniformGridPanel> Grid = SNew(SUniformGridPanel)
												   .SlotPadding(FMargin(1.0f, 2.0f))
												   .MinDesiredSlotWidth(80.0f)
												   .MinDesiredSlotHeight(20.0f) +
											   SUniformGridPanel::Slot(0, 0)[SNew(SBox)] +
											   SUniformGridPanel::Slot(1, 2).HAlign(HAlign_Right)[SNew(SBox)];
	EXPECT_EQ(Grid->GetChildren()->Num(), 2);
	EXPECT_EQ(Grid->GetSlot(1).GetColumn(), 1);
	EXPECT_EQ(Grid->GetSlot(1).GetRow(), 2);
	EXPECT_EQ(Grid->GetSlot(1).GetHorizontalAlignment(), HAlign_Right);
	EXPECT_EQ(Grid->GetSlotPadding(), FMargin(1.0f, 2.0f));
	EXPECT_EQ(Grid->GetMinDesiredSlotWidth(), 80.0f);
	EXPECT_EQ(Grid->GetMinDesiredSlotHeight(), 20.0f);
}

TEST_F(InputWidgets, AnImageFollowsItsBrushAndColour)
{
	FSlateNoResource Brush;
	const FSlateBrush* Current = nullptr;
	const TSharedRef<SImage> Image =
		SNew(SImage).Image_Lambda([&] { return Current; }).ColorAndOpacity(FSlateColor::UseForeground());
	EXPECT_EQ(Image->GetImage(), nullptr);
	Current = &Brush;
	EXPECT_EQ(Image->GetImage(), &Brush);
	EXPECT_FALSE(Image->GetColorAndOpacity().IsColorSpecified());
}

TEST_F(InputWidgets, AScrollBorderHoldsItsContentAndKnowsWhatScrolls)
{
	TSharedPtr<SScrolled> Scrolled = SNew(SScrolled);
	const TSharedRef<SScrollBorder> Border = SNew(SScrollBorder, Scrolled.ToSharedRef())[Scrolled.ToSharedRef()];
	EXPECT_EQ(Border->GetScrollableWidget()->GetScrollWidget(), Border->GetChildren()->GetChildAt(0));
}
