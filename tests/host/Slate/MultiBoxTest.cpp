// SPDX-License-Identifier: MIT
#include "AssertionsThrow.h"
#include "CorePrinting.h"
#include "Framework/Commands/Commands.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/MultiBoxes.h"
#include "Input/Events.h"
#include "Layout/Geometry.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "WorkshopCommands"

namespace
{
class FWorkshopCommands : public TCommands<FWorkshopCommands>
{
public:
	FWorkshopCommands()
		: TCommands<FWorkshopCommands>(TEXT("Workshop"), FText::FromString(TEXT("Workshop")), NAME_None, TEXT("House"))
	{
	}

	void RegisterCommands() override
	{
		UI_COMMAND(Saw, "Saw", "Cuts a board.", EUserInterfaceActionType::Button,
			FInputChord(EModifierKey::Control | EModifierKey::Shift, EKeys::S));
		UI_COMMAND(Lamp, "Lamp", "Switches the lamp.", EUserInterfaceActionType::ToggleButton, FInputChord());
	}

	TSharedPtr<FUICommandInfo> Saw;
	TSharedPtr<FUICommandInfo> Lamp;
};

FText Text(const TCHAR* Source)
{
	return FText::FromString(Source);
}

class MultiBox : public ::testing::Test
{
protected:
	void SetUp() override
	{
		FWorkshopCommands::Register();
		Commands = MakeShared<FUICommandList>();
		Commands->MapAction(Saw(), FExecuteAction::CreateLambda([this] { ++Sawn; }),
			FCanExecuteAction::CreateLambda([this] { return bMaySaw; }));
		Commands->MapAction(FWorkshopCommands::Get().Lamp, FExecuteAction::CreateLambda([this] { bLamp = !bLamp; }),
			FCanExecuteAction(), FIsActionChecked::CreateLambda([this] { return bLamp; }));
	}
	void TearDown() override { FWorkshopCommands::Unregister(); }

	TSharedPtr<FUICommandInfo> Saw() { return FWorkshopCommands::Get().Saw; }
	TSharedPtr<FUICommandInfo> Lamp() { return FWorkshopCommands::Get().Lamp; }
	TSharedRef<Host::SMultiBoxItem> Item(const TSharedRef<SWidget>& Root, const TCHAR* Label)
	{
		return Host::FindMultiBoxItem(Root, Text(Label)).ToSharedRef();
	}

	TSharedPtr<FUICommandList> Commands;
	int Sawn = 0;
	bool bMaySaw = true;
	bool bLamp = false;
};

using FLines = TArray<FString>;
} // namespace

TEST_F(MultiBox, EntriesShowAndRunTheirCommands)
{
	FMenuBuilder Builder(true, Commands);
	Builder.AddMenuEntry(Saw());
	Builder.AddMenuEntry(Lamp());
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();

	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("Saw"), TEXT("[ ] Lamp")}));
	EXPECT_TRUE(Item(Menu, TEXT("Saw"))->Press());
	EXPECT_TRUE(Item(Menu, TEXT("Lamp"))->Press());
	EXPECT_EQ(Sawn, 1);
	EXPECT_EQ(Item(Menu, TEXT("Lamp"))->GetCheckState(), ECheckBoxState::Checked);

	bMaySaw = false;
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("(Saw)"), TEXT("[x] Lamp")}));
	EXPECT_FALSE(Item(Menu, TEXT("Saw"))->IsEnabled());
	EXPECT_FALSE(Item(Menu, TEXT("Saw"))->Press());
	EXPECT_EQ(Sawn, 1);
}

TEST_F(MultiBox, AnEntryForAnUnmappedCommandIsShownDisabled)
{
	FMenuBuilder Builder(true, MakeShared<FUICommandList>());
	Builder.AddMenuEntry(Saw());
	EXPECT_EQ(Host::DescribeMultiBox(Builder.MakeWidget()), FLines({TEXT("(Saw)")}));

	FMenuBuilder WithoutList(true, nullptr);
	WithoutList.AddMenuEntry(Saw());
	EXPECT_EQ(Host::DescribeMultiBox(WithoutList.MakeWidget()), FLines({TEXT("(Saw)")}));
}

TEST_F(MultiBox, TextsAreTheCommandsOwnUnlessOthersAreGivenAndTheToolTipNamesTheKeys)
{
	FMenuBuilder Builder(true, Commands);
	Builder.AddMenuEntry(Saw());
	Builder.AddMenuEntry(Saw(), TEXT("Own"), Text(TEXT("Cut")), Text(TEXT("Through and through.")),
		FSlateIcon(TEXT("House"), TEXT("Blade")));
	Builder.AddMenuEntry(Lamp());
	const TArray<TSharedRef<Host::SMultiBoxItem>> Items = Host::GetMultiBoxItems(Builder.MakeWidget());
	ASSERT_EQ(Items.Num(), 3);
	EXPECT_TEXT_EQ(Items[0]->GetToolTipText().ToString(), TEXT("Cuts a board. (Ctrl+Shift+S)"));
	EXPECT_TEXT_EQ(Items[0]->GetChordText().ToString(), TEXT("Ctrl+Shift+S"));
	EXPECT_EQ(Items[0]->GetItemName(), FName(TEXT("Saw")));
	EXPECT_TEXT_EQ(Items[1]->GetLabel().ToString(), TEXT("Cut"));
	EXPECT_TEXT_EQ(Items[1]->GetToolTip().ToString(), TEXT("Through and through. (Ctrl+Shift+S)"));
	EXPECT_EQ(Items[1]->GetItemName(), FName(TEXT("Own")));
	EXPECT_TEXT_EQ(Items[2]->GetToolTip().ToString(), TEXT("Switches the lamp."));
}

TEST_F(MultiBox, SectionsAreParted_EmptyOnesLeaveNoTrace)
{
	FMenuBuilder Builder(true, Commands);
	Builder.BeginSection(TEXT("First"), Text(TEXT("Tools")));
	Builder.AddMenuEntry(Saw());
	Builder.EndSection();
	Builder.BeginSection(TEXT("Empty"), Text(TEXT("Nothing")));
	Builder.EndSection();
	Builder.BeginSection(TEXT("Second"));
	Builder.AddMenuEntry(Lamp());
	Builder.EndSection();
	EXPECT_EQ(Host::DescribeMultiBox(Builder.MakeWidget()),
		FLines({TEXT("# Tools"), TEXT("Saw"), TEXT("---"), TEXT("[ ] Lamp")}));
}

TEST_F(MultiBox, SeparatorsAndHeadingsHideWithWhatTheyStandFor)
{
	bool bVisible = true;
	FUIAction Action(FExecuteAction::CreateLambda([] {}));
	Action.IsActionVisibleDelegate = FIsActionButtonVisible::CreateLambda([&] { return bVisible; });
	FMenuBuilder Builder(true, Commands);
	Builder.AddMenuEntry(Saw());
	Builder.BeginSection(TEXT("Rare"), Text(TEXT("Rare")));
	Builder.AddMenuEntry(Text(TEXT("Sharpen")), FText(), FSlateIcon(), Action);
	Builder.EndSection();
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("Saw"), TEXT("---"), TEXT("# Rare"), TEXT("Sharpen")}));
	bVisible = false;
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("Saw")}));
	EXPECT_FALSE(Host::FindMultiBoxItem(Menu, Text(TEXT("Sharpen"))).IsValid());
}

TEST_F(MultiBox, ASectionMayNotBeginInsideAnother)
{
	FMenuBuilder Builder(true, Commands);
	Builder.BeginSection(TEXT("Outer"));
	const FAssertionsThrow Throw;
	EXPECT_THROW(Builder.BeginSection(TEXT("Inner")), FAssertionFailure);
}

TEST_F(MultiBox, SubMenusAreFilledEachTimeTheyOpen)
{
	int Openings = 0;
	FMenuBuilder Builder(true, Commands);
	Builder.AddSubMenu(Text(TEXT("More")), FText(),
		FNewMenuDelegate::CreateLambda(
			[&](FMenuBuilder& Sub)
			{
				++Openings;
				Sub.AddMenuEntry(Saw());
			}));
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("More >")}));
	EXPECT_EQ(Openings, 0);
	const TSharedRef<SWidget> Opened = Item(Menu, TEXT("More"))->OpenMenu();
	EXPECT_EQ(Host::DescribeMultiBox(Opened), FLines({TEXT("Saw")}));
	EXPECT_TRUE(Item(Opened, TEXT("Saw"))->Press());
	EXPECT_EQ(Sawn, 1);
	Item(Menu, TEXT("More"))->OpenMenu();
	EXPECT_EQ(Openings, 2);
}

TEST_F(MultiBox, SearchingFindsEntriesOfSubMenusWithTheWayToThem)
{
	FMenuBuilder Builder(true, Commands);
	Builder.BeginSection(TEXT("Tools"), Text(TEXT("Tools")));
	Builder.AddMenuEntry(Saw());
	Builder.AddMenuEntry(Lamp());
	Builder.AddSubMenu(Text(TEXT("More")), FText(),
		FNewMenuDelegate::CreateLambda(
			[&](FMenuBuilder& Sub) { Sub.AddMenuEntry(Saw(), TEXT("Fine"), Text(TEXT("Fine Saw"))); }));
	Builder.EndSection();
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	SMultiBoxWidget& Box = static_cast<SMultiBoxWidget&>(*Menu);
	Box.FilterMultiBoxEntries(Text(TEXT("saw")));
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("Saw"), TEXT("More > Fine Saw")}));
	EXPECT_TRUE(Item(Menu, TEXT("More > Fine Saw"))->Press());
	EXPECT_EQ(Sawn, 1);
	Box.FilterMultiBoxEntries(Text(TEXT("zebra")));
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines());
	Box.FilterMultiBoxEntries(FText());
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("# Tools"), TEXT("Saw"), TEXT("[ ] Lamp"), TEXT("More >")}));
}

TEST_F(MultiBox, TypingInAMenuSearches)
{
	FMenuBuilder Builder(true, Commands);
	Builder.AddMenuEntry(Saw());
	Builder.AddMenuEntry(Lamp());
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	EXPECT_TRUE(Menu->SupportsKeyboardFocus());
	const auto Type = [&](TCHAR Character) {
		return Menu->OnKeyChar(FGeometry(), FCharacterEvent(Character, FModifierKeysState(), 0, false))
			.IsEventHandled();
	};
	EXPECT_TRUE(Type('l'));
	EXPECT_TRUE(Type('a'));
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("[ ] Lamp")}));
	EXPECT_TRUE(Type('x'));
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines());
	EXPECT_TRUE(Type(8));
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("[ ] Lamp")}));
	EXPECT_TRUE(Type(27));
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("Saw"), TEXT("[ ] Lamp")}));
	// With nothing to take away the key is for somebody else, who may close the menu.
	EXPECT_FALSE(Type(27));
	EXPECT_FALSE(Type(8));
}

TEST_F(MultiBox, AMenuThatIsNotSearchableStaysAsItIs)
{
	FMenuBuilder Builder(true, Commands, nullptr, false, &FCoreStyle::Get(), false);
	Builder.AddMenuEntry(Saw());
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	static_cast<SMultiBoxWidget&>(*Menu).FilterMultiBoxEntries(Text(TEXT("zebra")));
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("Saw")}));
}

TEST_F(MultiBox, ToolBarsCarryButtonsCombosWidgetsAndStyles)
{
	FToolBarBuilder Builder(Commands, FMultiBoxCustomization::None);
	Builder.SetIsFocusable(true);
	Builder.BeginSection(TEXT("Command"));
	Builder.BeginStyleOverride(TEXT("Toolbar.BackplateLeft"));
	Builder.AddToolBarButton(Saw());
	Builder.EndStyleOverride();
	Builder.AddComboButton(FUIAction(),
		FOnGetContent::CreateLambda(
			[this]() -> TSharedRef<SWidget>
			{
				FMenuBuilder Menu(true, Commands);
				Menu.AddMenuEntry(Lamp());
				return Menu.MakeWidget();
			}),
		TAttribute<FText>(), Text(TEXT("Options")));
	Builder.EndSection();
	Builder.BeginSection(TEXT("Extra"));
	Builder.SetLabelVisibility(EVisibility::Collapsed);
	Builder.AddToolBarButton(Lamp());
	Builder.AddWidget(SNew(STextBlock).Text(Text(TEXT("Hello"))));
	Builder.EndSection();
	const TSharedRef<SWidget> Bar = Builder.MakeWidget();

	EXPECT_EQ(Host::DescribeMultiBox(Bar),
		FLines({TEXT("Saw"), TEXT(" v"), TEXT("---"), TEXT("[ ] Lamp"), TEXT("<STextBlock>")}));
	EXPECT_TRUE(Bar->SupportsKeyboardFocus());
	const TArray<TSharedRef<Host::SMultiBoxItem>> Items = Host::GetMultiBoxItems(Bar);
	EXPECT_EQ(Items[0]->GetStyleName(), FName(TEXT("Toolbar.BackplateLeft")));
	EXPECT_EQ(Items[1]->GetStyleName(), FName(TEXT("ToolBar")));
	EXPECT_TRUE(Items[0]->IsLabelShown());
	EXPECT_FALSE(Items[1]->IsLabelShown());
	EXPECT_FALSE(Items[3]->IsLabelShown());
	EXPECT_EQ(Items[0]->GetSection(), FName(TEXT("Command")));
	EXPECT_EQ(Items[3]->GetSection(), FName(TEXT("Extra")));
	const TSharedRef<SWidget> Opened = Items[1]->OpenMenu();
	EXPECT_TRUE(Item(Opened, TEXT("Lamp"))->Press());
	EXPECT_TRUE(bLamp);
	EXPECT_EQ(Items[3]->GetCheckState(), ECheckBoxState::Checked);
}

TEST_F(MultiBox, AComboButtonOfAnEmptyActionIsEnabledAndDoesNothingWhenPressed)
{
	FToolBarBuilder Builder(Commands, FMultiBoxCustomization::None);
	Builder.AddComboButton(FUIAction(), FOnGetContent(), Text(TEXT("Menu")));
	const TSharedRef<SWidget> Bar = Builder.MakeWidget();
	EXPECT_TRUE(Item(Bar, TEXT("Menu"))->IsItemEnabled());
	EXPECT_FALSE(Item(Bar, TEXT("Menu"))->Press());
	EXPECT_EQ(Item(Bar, TEXT("Menu"))->OpenMenu(), SNullWidget::NullWidget);
}

TEST_F(MultiBox, ExtendersAddBeforeAfterAndFirstInASection)
{
	const auto Adds = [](const TCHAR* Label)
	{
		return FMenuExtensionDelegate::CreateLambda(
			[Label](FMenuBuilder& Builder) { Builder.AddMenuEntry(Text(Label), FText(), FSlateIcon(), FUIAction()); });
	};
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddMenuExtension(TEXT("Tools"), EExtensionHook::After, nullptr, Adds(TEXT("after")));
	Extender->AddMenuExtension(TEXT("Tools"), EExtensionHook::Before, nullptr, Adds(TEXT("before")));
	Extender->AddMenuExtension(TEXT("Tools"), EExtensionHook::First, nullptr, Adds(TEXT("first")));
	Extender->AddMenuExtension(TEXT("Saw"), EExtensionHook::After, nullptr, Adds(TEXT("behind the saw")));
	Extender->AddMenuExtension(TEXT("Elsewhere"), EExtensionHook::After, nullptr, Adds(TEXT("never")));
	FMenuBuilder Builder(true, Commands, Extender);
	Builder.BeginSection(TEXT("Tools"), Text(TEXT("Tools")));
	Builder.AddMenuEntry(Saw(), TEXT("Saw"));
	Builder.AddMenuEntry(Lamp(), TEXT("Lamp"));
	Builder.EndSection();
	EXPECT_EQ(Host::DescribeMultiBox(Builder.MakeWidget()),
		FLines({TEXT("before"), TEXT("---"), TEXT("# Tools"), TEXT("first"), TEXT("Saw"), TEXT("behind the saw"),
			TEXT("[ ] Lamp"), TEXT("after")}));
}

TEST_F(MultiBox, AnExtensionBringsItsOwnCommandListAndCanBeRemoved)
{
	const TSharedRef<FUICommandList> Own = MakeShared<FUICommandList>();
	int OwnSawn = 0;
	Own->MapAction(Saw(), FExecuteAction::CreateLambda([&] { ++OwnSawn; }));
	FExtender Extender;
	const TSharedRef<const FExtensionBase> Extension =
		Extender.AddToolBarExtension(TEXT("ZEFEditor"), EExtensionHook::After, Own,
			FToolBarExtensionDelegate::CreateLambda([this](FToolBarBuilder& Bar) { Bar.AddToolBarButton(Saw()); }));
	const auto Build = [&]
	{
		FToolBarBuilder Builder(
			nullptr, FMultiBoxCustomization::None, FExtender::Combine({MakeShared<FExtender>(Extender)}));
		Builder.BeginSection(TEXT("ZEFEditor"));
		Builder.EndSection();
		return Builder.MakeWidget();
	};
	EXPECT_TRUE(Item(Build(), TEXT("Saw"))->Press());
	EXPECT_EQ(OwnSawn, 1);
	EXPECT_EQ(Sawn, 0);
	Extender.RemoveExtension(Extension);
	EXPECT_EQ(Host::DescribeMultiBox(Build()), FLines());
}

TEST_F(MultiBox, AnExtensionThatOpensASectionOfItsOwnHookEnds)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddToolBarExtension(TEXT("Loop"), EExtensionHook::After, nullptr,
		FToolBarExtensionDelegate::CreateLambda(
			[this](FToolBarBuilder& Bar)
			{
				Bar.BeginSection(TEXT("Loop"));
				Bar.AddToolBarButton(Saw());
				Bar.EndSection();
			}));
	FToolBarBuilder Builder(Commands, FMultiBoxCustomization::None, Extender);
	Builder.BeginSection(TEXT("Loop"));
	Builder.AddToolBarButton(Lamp());
	Builder.EndSection();
	EXPECT_EQ(Host::DescribeMultiBox(Builder.MakeWidget()), FLines({TEXT("[ ] Lamp"), TEXT("---"), TEXT("Saw")}));
}

TEST_F(MultiBox, CombiningKeepsTheOrderAndNoExtendersGiveAnEmptyOne)
{
	const auto Adds = [](const TCHAR* Label)
	{
		return FMenuBarExtensionDelegate::CreateLambda(
			[Label](FMenuBarBuilder& Builder) { Builder.AddPullDownMenu(Text(Label), FText(), FNewMenuDelegate()); });
	};
	const TSharedRef<FExtender> One = MakeShared<FExtender>();
	One->AddMenuBarExtension(TEXT("File"), EExtensionHook::After, nullptr, Adds(TEXT("One")));
	const TSharedRef<FExtender> Two = MakeShared<FExtender>();
	Two->AddMenuBarExtension(TEXT("File"), EExtensionHook::After, nullptr, Adds(TEXT("Two")));
	const auto Build = [](const TSharedRef<FExtender>& Extender)
	{
		FMenuBarBuilder Builder(nullptr, Extender);
		Builder.AddPullDownMenu(Text(TEXT("File")), FText(), FNewMenuDelegate(), TEXT("File"));
		return Host::DescribeMultiBox(Builder.MakeWidget());
	};
	EXPECT_EQ(Build(FExtender::Combine({One, nullptr, Two})), FLines({TEXT("File >"), TEXT("One >"), TEXT("Two >")}));
	EXPECT_EQ(Build(FExtender::Combine({})), FLines({TEXT("File >")}));
}

TEST_F(MultiBox, PressingAnEntryMayRebuildItsMenu)
{
	TSharedPtr<SMultiBoxWidget> Widget;
	FMenuBuilder Builder(true, Commands);
	Builder.AddMenuEntry(Text(TEXT("Rebuild")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction::CreateLambda([&] { Widget->BuildMultiBoxWidget(); })));
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	Widget = StaticCastSharedRef<SMultiBoxWidget>(Menu);
	EXPECT_TRUE(Host::FindMultiBoxItem(Menu, Text(TEXT("Rebuild")))->Press());
	EXPECT_EQ(Host::DescribeMultiBox(Menu), FLines({TEXT("Rebuild")}));
}

#undef LOCTEXT_NAMESPACE
