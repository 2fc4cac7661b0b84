// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Menus.h"
#include "Host/MultiBoxes.h"
#include "Host/ToolMenusRuntime.h"
#include "ToolMenus.h"
#include "UObject/Package.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
using FLines = TArray<FString>;

FText Text(const TCHAR* Source)
{
	return FText::FromString(Source);
}

class ToolMenus : public FEngineFixture
{
protected:
	static UToolMenus& Menus() { return *UToolMenus::Get(); }

	static void AddEntry(const TCHAR* Menu, const TCHAR* Section, const TCHAR* Name, FExecuteAction Action = {})
	{
		Menus().ExtendMenu(Menu)->AddMenuEntry(Section,
			FToolMenuEntry::InitMenuEntry(Name, Text(Name), FText(), TAttribute<FSlateIcon>(), FUIAction(Action)));
	}

	static FLines Lines(const TCHAR* Menu, const FToolMenuContext& Context = FToolMenuContext())
	{
		return Host::DescribeMultiBox(Menus().GenerateWidget(Menu, Context));
	}

	static TSharedRef<SWidget> Open(const TSharedRef<SWidget>& Menu, const TCHAR* Label)
	{
		return Host::FindMultiBoxItem(Menu, Text(Label))->OpenMenu();
	}
};
} // namespace

TEST_F(ToolMenus, AMenuShowsItsSectionsInOrder)
{
	UToolMenu* const Menu = Menus().RegisterMenu(TEXT("Test.File"));
	Menu->AddSection(TEXT("Open"), Text(TEXT("Open")));
	Menu->AddSection(TEXT("Exit"));
	AddEntry(TEXT("Test.File"), TEXT("Exit"), TEXT("Quit"));
	AddEntry(TEXT("Test.File"), TEXT("Open"), TEXT("Open File"));
	EXPECT_EQ(Lines(TEXT("Test.File")), FLines({TEXT("# Open"), TEXT("Open File"), TEXT("---"), TEXT("Quit")}));
	EXPECT_TRUE(Menus().IsMenuRegistered(TEXT("Test.File")));
}

TEST_F(ToolMenus, AMenuMayBeExtendedBeforeAnybodyRegistersItOrWithoutThat)
{
	AddEntry(TEXT("Test.Late"), TEXT("Tools"), TEXT("Early Bird"));
	EXPECT_FALSE(Menus().IsMenuRegistered(TEXT("Test.Late")));
	EXPECT_EQ(Lines(TEXT("Test.Late")), FLines({TEXT("Early Bird")}));
	UToolMenu* const Registered = Menus().RegisterMenu(TEXT("Test.Late"), NAME_None, EMultiBoxType::ToolBar);
	EXPECT_EQ(Registered, Menus().FindMenu(TEXT("Test.Late")));
	EXPECT_EQ(Registered->MenuType, EMultiBoxType::ToolBar);
	EXPECT_EQ(Lines(TEXT("Test.Late")), FLines({TEXT("Early Bird")}));
}

TEST_F(ToolMenus, AnUnknownMenuIsEmptyAndLogged)
{
	EXPECT_EQ(Lines(TEXT("Test.Nobody")), FLines());
	EXPECT_EQ(Log().CountContaining("Nobody registered or extended the menu 'Test.Nobody'"), 1);
}

TEST_F(ToolMenus, ASecondRegistrationWarnsAndGivesTheFirst)
{
	UToolMenu* const First = Menus().RegisterMenu(TEXT("Test.Twice"));
	EXPECT_EQ(Menus().RegisterMenu(TEXT("Test.Twice"), TEXT("Other"), EMultiBoxType::Menu, false), First);
	EXPECT_EQ(Log().CountContaining("registered already"), 0);
	EXPECT_EQ(Menus().RegisterMenu(TEXT("Test.Twice"), TEXT("Other")), First);
	EXPECT_EQ(Log().CountContaining("The menu 'Test.Twice' is registered already"), 1);
	EXPECT_TRUE(First->MenuParent.IsNone());
}

TEST_F(ToolMenus, AChildHasWhatItsParentsHaveAndReplacesEntriesByName)
{
	Menus().RegisterMenu(TEXT("Test.Base"));
	Menus().RegisterMenu(TEXT("Test.Child"), TEXT("Test.Base"));
	int Ran = 0;
	AddEntry(TEXT("Test.Base"), TEXT("File"), TEXT("New"));
	AddEntry(TEXT("Test.Base"), TEXT("File"), TEXT("Open"), FExecuteAction::CreateLambda([&] { Ran += 1; }));
	AddEntry(TEXT("Test.Child"), TEXT("File"), TEXT("Open"), FExecuteAction::CreateLambda([&] { Ran += 10; }));
	AddEntry(TEXT("Test.Child"), TEXT("Help"), TEXT("About"));
	const TSharedRef<SWidget> Child = Menus().GenerateWidget(TEXT("Test.Child"), FToolMenuContext());
	EXPECT_EQ(Host::DescribeMultiBox(Child), FLines({TEXT("New"), TEXT("Open"), TEXT("---"), TEXT("About")}));
	Host::FindMultiBoxItem(Child, Text(TEXT("Open")))->Press();
	EXPECT_EQ(Ran, 10);
	EXPECT_EQ(Lines(TEXT("Test.Base")), FLines({TEXT("New"), TEXT("Open")}));
}

TEST_F(ToolMenus, MenusThatAreEachOthersParentEnd)
{
	Menus().RegisterMenu(TEXT("Test.Egg"), TEXT("Test.Hen"));
	Menus().RegisterMenu(TEXT("Test.Hen"), TEXT("Test.Egg"));
	AddEntry(TEXT("Test.Egg"), TEXT("S"), TEXT("Egg"));
	AddEntry(TEXT("Test.Hen"), TEXT("S"), TEXT("Hen"));
	EXPECT_EQ(Lines(TEXT("Test.Egg")), FLines({TEXT("Hen"), TEXT("Egg")}));
}

TEST_F(ToolMenus, ASubMenuTakesTheEntriesOfTheSameSubMenuOfTheParents)
{
	Menus().RegisterMenu(TEXT("Frame.MainMenu"), NAME_None, EMultiBoxType::MenuBar);
	Menus().RegisterMenu(TEXT("Editor.MainMenu"), TEXT("Frame.MainMenu"), EMultiBoxType::MenuBar);
	Menus()
		.FindMenu(TEXT("Frame.MainMenu"))
		->AddSubMenu(FToolMenuOwner(), NAME_None, TEXT("Window"), Text(TEXT("Window")));
	AddEntry(TEXT("Frame.MainMenu.Window"), TEXT("WindowLayout"), TEXT("Load Layout"));
	AddEntry(TEXT("Editor.MainMenu.Window"), TEXT("WindowLayout"), TEXT("Tandem Editor"));
	const TSharedRef<SWidget> Bar = Menus().GenerateWidget(TEXT("Editor.MainMenu"), FToolMenuContext());
	EXPECT_EQ(Host::DescribeMultiBox(Bar), FLines({TEXT("Window >")}));
	EXPECT_EQ(Host::DescribeMultiBox(Open(Bar, TEXT("Window"))), FLines({TEXT("Load Layout"), TEXT("Tandem Editor")}));
	// Sub menus follow what is added later without a refresh.
	AddEntry(TEXT("Editor.MainMenu.Window"), TEXT("WindowLayout"), TEXT("Later"));
	EXPECT_EQ(Host::DescribeMultiBox(Open(Bar, TEXT("Window"))),
		FLines({TEXT("Load Layout"), TEXT("Tandem Editor"), TEXT("Later")}));
}

TEST_F(ToolMenus, EntriesAndSectionsGoWhereTheyAreTold)
{
	UToolMenu* const Menu = Menus().RegisterMenu(TEXT("Test.Order"));
	Menu->AddSection(TEXT("B"));
	Menu->AddSection(TEXT("A"), FText(), FToolMenuInsert(TEXT("B"), EToolMenuInsertType::Before));
	Menu->AddSection(TEXT("C"), FText(), FToolMenuInsert(TEXT("Missing"), EToolMenuInsertType::After));
	for (const TCHAR* Name : {TEXT("A"), TEXT("B"), TEXT("C")})
	{
		AddEntry(TEXT("Test.Order"), Name, Name);
	}
	const auto Insert = [&](const TCHAR* Name, FToolMenuInsert Position)
	{
		FToolMenuEntry Entry =
			FToolMenuEntry::InitMenuEntry(Name, Text(Name), FText(), TAttribute<FSlateIcon>(), FToolUIActionChoice());
		Entry.InsertPosition = Position;
		Menu->AddMenuEntry(TEXT("B"), Entry);
	};
	Insert(TEXT("last"), FToolMenuInsert(NAME_None, EToolMenuInsertType::Last));
	Insert(TEXT("before x"), FToolMenuInsert(TEXT("x"), EToolMenuInsertType::Before));
	Insert(TEXT("x"), FToolMenuInsert());
	Insert(TEXT("first"), FToolMenuInsert(NAME_None, EToolMenuInsertType::First));
	EXPECT_EQ(Lines(TEXT("Test.Order")), FLines({TEXT("A"), TEXT("---"), TEXT("first"), TEXT("B"), TEXT("before x"),
											 TEXT("x"), TEXT("last"), TEXT("---"), TEXT("C")}));
}

TEST_F(ToolMenus, CommandsAreLookedForInTheContextUnlessTheEntryHasAListOfItsOwn)
{
	int FromContext = 0;
	int FromEntry = 0;
	const TSharedRef<FUICommandList> ContextList = MakeShared<FUICommandList>();
	ContextList->MapAction(FGenericCommands::Get().Undo, FExecuteAction::CreateLambda([&] { ++FromContext; }));
	const TSharedRef<FUICommandList> EntryList = MakeShared<FUICommandList>();
	EntryList->MapAction(FGenericCommands::Get().Redo, FExecuteAction::CreateLambda([&] { ++FromEntry; }));
	FToolMenuSection& Section =
		Menus().RegisterMenu(TEXT("Test.Bar"), NAME_None, EMultiBoxType::SlimHorizontalToolBar)->AddSection(TEXT("S"));
	Section.AddEntry(FToolMenuEntry::InitToolBarButton(FGenericCommands::Get().Undo));
	FToolMenuEntry& Redo = Section.AddEntry(FToolMenuEntry::InitToolBarButton(FGenericCommands::Get().Redo));
	Redo.SetCommandList(EntryList);
	Section.AddEntry(FToolMenuEntry::InitToolBarButton(FGenericCommands::Get().Copy));

	const TSharedRef<SWidget> Bar = Menus().GenerateWidget(TEXT("Test.Bar"), FToolMenuContext(ContextList));
	EXPECT_EQ(Host::DescribeMultiBox(Bar), FLines({TEXT("Undo"), TEXT("Redo"), TEXT("(Copy)")}));
	EXPECT_EQ(static_cast<SMultiBoxWidget&>(*Bar).GetMultiBox()->GetType(), EMultiBoxType::SlimHorizontalToolBar);
	EXPECT_TRUE(Host::FindMultiBoxItemByName(Bar, TEXT("Undo"))->Press());
	EXPECT_TRUE(Host::FindMultiBoxItemByName(Bar, TEXT("Redo"))->Press());
	EXPECT_EQ(FromContext, 1);
	EXPECT_EQ(FromEntry, 1);
}

TEST_F(ToolMenus, SectionsApplyTheHooksOfTheContextsExtenders)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddToolBarExtension(TEXT("ZEFEditor"), EExtensionHook::After, nullptr,
		FToolBarExtensionDelegate::CreateLambda(
			[](FToolBarBuilder& Bar)
			{
				Bar.BeginSection(TEXT("Command"));
				Bar.AddToolBarButton(FUIAction(), NAME_None, Text(TEXT("Update")));
				Bar.EndSection();
			}));
	Menus().RegisterMenu(TEXT("Test.Default"), NAME_None, EMultiBoxType::ToolBar)->AddSection(TEXT("ZEFEditor"));
	Menus().RegisterMenu(TEXT("Test.Own"), TEXT("Test.Default"), EMultiBoxType::ToolBar);
	EXPECT_EQ(Lines(TEXT("Test.Own"), FToolMenuContext(nullptr, Extender)), FLines({TEXT("Update")}));
	EXPECT_EQ(Lines(TEXT("Test.Own")), FLines());
}

TEST_F(ToolMenus, DynamicEntriesAreAskedEachTimeAndFindTheContext)
{
	UToolMenu* const Found = NewObject<UToolMenu>(GetTransientPackage(), NAME_None, RF_Transient);
	int Asked = 0;
	Menus()
		.RegisterMenu(TEXT("Test.Dynamic"))
		->AddSection(TEXT("S"))
		.AddDynamicEntry(TEXT("D"), FNewToolMenuSectionDelegate::CreateLambda(
										[&](FToolMenuSection& Section)
										{
											++Asked;
											EXPECT_EQ(Section.FindContext<UToolMenu>(), Found);
											Section.AddMenuEntry(TEXT("Made"), Text(TEXT("Made")), FText(),
												FSlateIcon(), FExecuteAction());
										}));
	FToolMenuContext Context;
	Context.AddObject(Found);
	EXPECT_EQ(Lines(TEXT("Test.Dynamic"), Context), FLines({TEXT("Made")}));
	EXPECT_EQ(Lines(TEXT("Test.Dynamic"), Context), FLines({TEXT("Made")}));
	EXPECT_EQ(Asked, 2);
}

TEST_F(ToolMenus, TheContextsObjectsLiveAsLongAsTheWidget)
{
	TWeakObjectPtr<UToolMenu> Weak = NewObject<UToolMenu>(GetTransientPackage(), NAME_None, RF_Transient);
	AddEntry(TEXT("Test.Keep"), TEXT("S"), TEXT("Entry"));
	TSharedPtr<SWidget> Widget = Menus().GenerateWidget(TEXT("Test.Keep"), FToolMenuContext(Weak.Get()));
	CollectAll();
	EXPECT_TRUE(Weak.IsValid());
	Widget.Reset();
	Lines(TEXT("Test.Keep"));
	CollectAll();
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(ToolMenus, WidgetsFollowAtTheFrameAfterARefresh)
{
	AddEntry(TEXT("Test.Live"), TEXT("S"), TEXT("One"));
	const TSharedRef<SWidget> Widget = Menus().GenerateWidget(TEXT("Test.Live"), FToolMenuContext());
	AddEntry(TEXT("Test.Live"), TEXT("S"), TEXT("Two"));
	Tick(0.1);
	EXPECT_EQ(Host::DescribeMultiBox(Widget), FLines({TEXT("One")}));
	Menus().RefreshAllWidgets();
	EXPECT_EQ(Host::DescribeMultiBox(Widget), FLines({TEXT("One")}));
	Tick(0.1);
	EXPECT_EQ(Host::DescribeMultiBox(Widget), FLines({TEXT("One"), TEXT("Two")}));

	AddEntry(TEXT("Test.Live"), TEXT("S"), TEXT("Three"));
	EXPECT_TRUE(Menus().RefreshMenuWidget(TEXT("Test.Live")));
	EXPECT_EQ(Host::DescribeMultiBox(Widget), FLines({TEXT("One"), TEXT("Two"), TEXT("Three")}));
	EXPECT_FALSE(Menus().RefreshMenuWidget(TEXT("Test.Else")));
}

TEST_F(ToolMenus, AnOwnersEntriesGoTogether)
{
	int Module = 0;
	AddEntry(TEXT("Test.Owned"), TEXT("S"), TEXT("Ours"));
	{
		const FToolMenuOwnerScoped Scope(&Module);
		AddEntry(TEXT("Test.Owned"), TEXT("S"), TEXT("Theirs"));
		AddEntry(TEXT("Test.Owned"), TEXT("T"), TEXT("Theirs too"));
	}
	EXPECT_EQ(Lines(TEXT("Test.Owned")).Num(), 4);
	UToolMenus::UnregisterOwner(&Module);
	EXPECT_EQ(Lines(TEXT("Test.Owned")), FLines({TEXT("Ours")}));
	UToolMenus::UnregisterOwner(FToolMenuOwner());
	EXPECT_EQ(Lines(TEXT("Test.Owned")), FLines({TEXT("Ours")}));
}

TEST_F(ToolMenus, EntriesSectionsAndMenusCanBeTakenAway)
{
	for (const TCHAR* Name : {TEXT("One"), TEXT("Two")})
	{
		AddEntry(TEXT("Test.Gone"), TEXT("S"), Name);
	}
	Menus().AddSection(TEXT("Test.Gone"), TEXT("T"), Text(TEXT("Rest")), FToolMenuInsert());
	AddEntry(TEXT("Test.Gone"), TEXT("T"), TEXT("Three"));
	EXPECT_EQ(Lines(TEXT("Test.Gone")), FLines({TEXT("One"), TEXT("Two"), TEXT("---"), TEXT("# Rest"), TEXT("Three")}));
	Menus().RemoveEntry(TEXT("Test.Gone"), TEXT("S"), TEXT("One"));
	Menus().RemoveSection(TEXT("Test.Gone"), TEXT("T"));
	EXPECT_EQ(Lines(TEXT("Test.Gone")), FLines({TEXT("Two")}));
	Menus().RemoveMenu(TEXT("Test.Gone"));
	EXPECT_EQ(Menus().FindMenu(TEXT("Test.Gone")), nullptr);
	// Taking away what is not there does nothing.
	Menus().RemoveEntry(TEXT("Test.Gone"), TEXT("S"), TEXT("One"));
	Menus().RemoveSection(TEXT("Test.Gone"), TEXT("T"));
	Menus().RemoveMenu(TEXT("Test.Gone"));
	EXPECT_EQ(Menus().FindMenu(TEXT("Test.Gone")), nullptr);
}

TEST_F(ToolMenus, AnOpenMenuClosesBeforeItsEntryRuns)
{
	bool bMenuOpen = true;
	AddEntry(TEXT("Test.Popup"), TEXT("S"), TEXT("Go"),
		FExecuteAction::CreateLambda([&] { bMenuOpen = FSlateApplication::Get().AnyMenusVisible(); }));
	const TSharedRef<STextBlock> Parent = SNew(STextBlock);
	const TSharedRef<SWindow> Window = SNew(SWindow)[Parent];
	FSlateApplication::Get().AddWindow(Window);
	const TSharedRef<SWidget> Menu = Menus().GenerateWidget(TEXT("Test.Popup"), FToolMenuContext());
	Host::OpenMenu(Parent, Menu);
	ASSERT_TRUE(FSlateApplication::Get().AnyMenusVisible());
	EXPECT_TRUE(Host::FindMultiBoxItem(Menu, Text(TEXT("Go")))->Press());
	EXPECT_FALSE(bMenuOpen);
}

TEST_F(ToolMenus, StartUpCallbacksRunAtOnceWhenTheMenusAreUp)
{
	int Ran = 0;
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&] { ++Ran; }));
	EXPECT_EQ(Ran, 1);
}

TEST_F(ToolMenus, StartUpCallbacksWaitForTheMenusAndMayBeTakenBack)
{
	Host::ResetToolMenus();
	std::string Order;
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&] { Order += "a"; }));
	const FDelegateHandle Handle =
		UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&] { Order += "b"; }));
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&] { Order += "c"; }));
	UToolMenus::UnRegisterStartupCallback(Handle);
	EXPECT_EQ(Order, "");
	Host::StartToolMenus();
	Host::StartToolMenus();
	EXPECT_EQ(Order, "ac");
}

TEST_F(ToolMenus, CombosAndWidgetsStandInToolBars)
{
	FToolMenuSection& Section =
		Menus().RegisterMenu(TEXT("Test.Tools"), NAME_None, EMultiBoxType::ToolBar)->AddSection(TEXT("S"));
	Section.AddEntry(FToolMenuEntry::InitComboButton(TEXT("Pick"), FUIAction(),
		FNewToolMenuDelegate::CreateLambda(
			[](UToolMenu* Menu)
			{
				Menu->AddSection(TEXT("P")).AddMenuEntry(
					TEXT("Apple"), Text(TEXT("Apple")), FText(), FSlateIcon(), FExecuteAction());
			}),
		Text(TEXT("Pick"))));
	Section.AddSeparator(NAME_None);
	Section.AddEntry(FToolMenuEntry::InitWidget(TEXT("W"), SNew(STextBlock), FText()));
	const TSharedRef<SWidget> Bar = Menus().GenerateWidget(TEXT("Test.Tools"), FToolMenuContext());
	EXPECT_EQ(Host::DescribeMultiBox(Bar), FLines({TEXT("Pick v"), TEXT("---"), TEXT("<STextBlock>")}));
	EXPECT_EQ(Host::DescribeMultiBox(Open(Bar, TEXT("Pick"))), FLines({TEXT("Apple")}));
	AddEntry(TEXT("Test.Tools.Pick"), TEXT("P"), TEXT("Pear"));
	EXPECT_EQ(Host::DescribeMultiBox(Open(Bar, TEXT("Pick"))), FLines({TEXT("Apple"), TEXT("Pear")}));
}
