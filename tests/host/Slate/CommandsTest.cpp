// SPDX-License-Identifier: MIT
#include "AssertionsThrow.h"
#include "CorePrinting.h"
#include "Framework/Commands/Commands.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Host/TextInspection.h"
#include "Input/Events.h"
#include "TestLog.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "KitchenCommands"

namespace
{
class FKitchenCommands : public TCommands<FKitchenCommands>
{
public:
	FKitchenCommands()
		: TCommands<FKitchenCommands>(TEXT("Kitchen"), FText::FromString(TEXT("Kitchen")), NAME_None, TEXT("House"))
	{
	}

	void RegisterCommands() override
	{
		UI_COMMAND(Boil, "Boil Water", "Boils the water.", EUserInterfaceActionType::Button,
			FInputChord(EModifierKey::Control, EKeys::B));
		UI_COMMAND(Light, "Light", "Switches the light.", EUserInterfaceActionType::ToggleButton, FInputChord());
	}

	TSharedPtr<FUICommandInfo> Boil;
	TSharedPtr<FUICommandInfo> Light;
};

/** A context below the kitchen's that wants one of its keys. */
class FPantryCommands : public TCommands<FPantryCommands>
{
public:
	FPantryCommands()
		: TCommands<FPantryCommands>(TEXT("Pantry"), FText::FromString(TEXT("Pantry")), TEXT("Kitchen"), TEXT("House"))
	{
	}

	void RegisterCommands() override
	{
		UI_COMMAND(Bake, "Bake", "Bakes bread.", EUserInterfaceActionType::Button,
			FInputChord(EModifierKey::Control, EKeys::B));
	}

	TSharedPtr<FUICommandInfo> Bake;
};

/** Another table of the kitchen's name. */
class FSecondKitchenCommands : public TCommands<FSecondKitchenCommands>
{
public:
	FSecondKitchenCommands()
		: TCommands<FSecondKitchenCommands>(
			  TEXT("Kitchen"), FText::FromString(TEXT("Kitchen")), NAME_None, TEXT("House"))
	{
	}

	void RegisterCommands() override
	{
		UI_COMMAND(Light, "Light", "Switches the light.", EUserInterfaceActionType::ToggleButton, FInputChord());
	}

	TSharedPtr<FUICommandInfo> Light;
};

class Commands : public ::testing::Test
{
protected:
	void SetUp() override { FKitchenCommands::Register(); }
	void TearDown() override { FKitchenCommands::Unregister(); }

	const FKitchenCommands& Kitchen() { return FKitchenCommands::Get(); }
	TSharedRef<FUICommandInfo> Boil() { return Kitchen().Boil.ToSharedRef(); }
	TSharedRef<FUICommandInfo> Light() { return Kitchen().Light.ToSharedRef(); }

	FUICommandList List;
	const FModifierKeysState Control{false, false, true, false, false, false, false, false, false};
};
} // namespace

TEST_F(Commands, CarryNameTextsKeyAndIcon)
{
	EXPECT_EQ(Boil()->GetCommandName(), FName(TEXT("Boil")));
	EXPECT_EQ(Boil()->GetBindingContext(), FName(TEXT("Kitchen")));
	EXPECT_EQ(Boil()->GetUserInterfaceType(), EUserInterfaceActionType::Button);
	EXPECT_TEXT_EQ(Boil()->GetLabel().ToString(), TEXT("Boil Water"));
	EXPECT_TEXT_EQ(Boil()->GetDescription().ToString(), TEXT("Boils the water."));
	EXPECT_TEXT_EQ(Host::TextNamespace(Boil()->GetLabel()), TEXT("UICommands.KitchenCommands"));
	EXPECT_TEXT_EQ(Host::TextKey(Boil()->GetLabel()), TEXT("Boil"));
	EXPECT_TEXT_EQ(Host::TextKey(Boil()->GetDescription()), TEXT("Boil_ToolTip"));
	EXPECT_EQ(Boil()->GetIcon(), FSlateIcon(TEXT("House"), TEXT("Kitchen.Boil")));
}

TEST_F(Commands, RegisterMakesOneTableWhileItIsAlive)
{
	const FKitchenCommands* const First = &Kitchen();
	FKitchenCommands::Register();
	EXPECT_EQ(&Kitchen(), First);
	EXPECT_TRUE(FKitchenCommands::IsRegistered());
	FKitchenCommands::Unregister();
	EXPECT_FALSE(FKitchenCommands::IsRegistered());
	EXPECT_FALSE(FInputBindingManager::Get().GetContextByName(TEXT("Kitchen")).IsValid());
}

TEST_F(Commands, AreFoundByContextNameAndChord)
{
	FInputBindingManager& Manager = FInputBindingManager::Get();
	EXPECT_EQ(Manager.FindCommandInContext(TEXT("Kitchen"), TEXT("Light")), Kitchen().Light);
	EXPECT_EQ(Manager.FindCommandInContext(TEXT("Kitchen"), FInputChord(EModifierKey::Control, EKeys::B), false),
		Kitchen().Boil);
	EXPECT_FALSE(Manager.FindCommandInContext(TEXT("Kitchen"), FInputChord(EKeys::B), false).IsValid());
	EXPECT_FALSE(Manager.FindCommandInContext(TEXT("Garage"), TEXT("Light")).IsValid());
	TArray<TSharedPtr<FUICommandInfo>> All;
	Manager.GetCommandInfosFromContext(TEXT("Kitchen"), All);
	EXPECT_EQ(All.Num(), 2);
}

TEST_F(Commands, RunWhatTheyAreMappedTo)
{
	int Boiled = 0;
	List.MapAction(Boil(), FExecuteAction::CreateLambda([&] { ++Boiled; }));
	EXPECT_TRUE(List.ExecuteAction(Boil()));
	EXPECT_TRUE(List.TryExecuteAction(Boil()));
	EXPECT_EQ(Boiled, 2);
	EXPECT_EQ(List.GetCheckState(Boil()), ECheckBoxState::Unchecked);

	List.UnmapAction(Boil());
	EXPECT_FALSE(List.ExecuteAction(Boil()));
	EXPECT_EQ(Boiled, 2);
}

TEST_F(Commands, CannotRunWhenUnmappedOrForbidden)
{
	EXPECT_FALSE(List.IsActionMapped(Boil()));
	EXPECT_FALSE(List.CanExecuteAction(Boil()));

	bool bMay = false;
	int Boiled = 0;
	List.MapAction(
		Boil(), FExecuteAction::CreateLambda([&] { ++Boiled; }), FCanExecuteAction::CreateLambda([&] { return bMay; }));
	EXPECT_TRUE(List.IsActionMapped(Boil()));
	EXPECT_FALSE(List.CanExecuteAction(Boil()));
	EXPECT_FALSE(List.TryExecuteAction(Boil()));
	bMay = true;
	EXPECT_TRUE(List.TryExecuteAction(Boil()));
	EXPECT_EQ(Boiled, 1);
}

TEST_F(Commands, ShowTheStateThatTheyAreAskedFor)
{
	bool bOn = false;
	List.MapAction(Light(), FExecuteAction::CreateLambda([&] { bOn = !bOn; }), FCanExecuteAction(),
		FIsActionChecked::CreateLambda([&] { return bOn; }));
	EXPECT_EQ(List.GetCheckState(Light()), ECheckBoxState::Unchecked);
	List.ExecuteAction(Light());
	EXPECT_EQ(List.GetCheckState(Light()), ECheckBoxState::Checked);
}

TEST_F(Commands, AreLookedForInAppendedLists)
{
	int Boiled = 0;
	const TSharedRef<FUICommandList> Other = MakeShared<FUICommandList>();
	Other->MapAction(Boil(), FExecuteAction::CreateLambda([&] { ++Boiled; }));
	List.Append(Other);
	EXPECT_TRUE(List.ExecuteAction(Boil()));
	EXPECT_EQ(Boiled, 1);
}

TEST_F(Commands, FollowTheirKeysButNotWhenAKeyRepeats)
{
	int Boiled = 0;
	List.MapAction(Boil(), FExecuteAction::CreateLambda([&] { ++Boiled; }));
	EXPECT_TRUE(List.ProcessCommandBindings(FKeyEvent(EKeys::B, Control, 0, false, 0, 0)));
	EXPECT_FALSE(List.ProcessCommandBindings(FKeyEvent(EKeys::B, FModifierKeysState(), 0, false, 0, 0)));
	EXPECT_FALSE(List.ProcessCommandBindings(FKeyEvent(EKeys::B, Control, 0, true, 0, 0)));
	EXPECT_FALSE(List.ProcessCommandBindings(FKeyEvent(EKeys::C, Control, 0, false, 0, 0)));
	EXPECT_EQ(Boiled, 1);
}

TEST_F(Commands, ThatMayNotRunLeaveTheirKeysToTheNextList)
{
	int Boiled = 0;
	const TSharedRef<FUICommandList> Other = MakeShared<FUICommandList>();
	Other->MapAction(Boil(), FExecuteAction::CreateLambda([&] { ++Boiled; }));
	List.MapAction(Boil(), FExecuteAction(), FCanExecuteAction::CreateLambda([] { return false; }));
	List.Append(Other);
	EXPECT_FALSE(List.TryExecuteAction(Boil()));
	EXPECT_TRUE(Other->ProcessCommandBindings(FKeyEvent(EKeys::B, Control, 0, false, 0, 0)));
	EXPECT_EQ(Boiled, 1);
}

TEST_F(Commands, RepeatWithAHeldKeyWhenTheirActionSaysSo)
{
	int Boiled = 0;
	List.MapAction(Boil(), FExecuteAction::CreateLambda([&] { ++Boiled; }), EUIActionRepeatMode::RepeatEnabled);
	EXPECT_TRUE(List.ProcessCommandBindings(FKeyEvent(EKeys::B, Control, 0, true, 0, 0)));
	EXPECT_EQ(Boiled, 1);
}

TEST_F(Commands, HideWithTheirAction)
{
	bool bShown = false;
	List.MapAction(Boil(), FExecuteAction(), FCanExecuteAction(), FIsActionChecked(),
		FIsActionButtonVisible::CreateLambda([&] { return bShown; }));
	EXPECT_EQ(List.GetVisibility(Boil()), EVisibility::Collapsed);
	bShown = true;
	EXPECT_EQ(List.GetVisibility(Boil()), EVisibility::Visible);
	EXPECT_EQ(List.GetVisibility(Light()), EVisibility::Visible);
}

TEST_F(Commands, AListIsNotAppendedToOneThatItContains)
{
	const TSharedRef<FUICommandList> Outer = MakeShared<FUICommandList>();
	const TSharedRef<FUICommandList> Inner = MakeShared<FUICommandList>();
	Outer->Append(Inner);
	const FAssertionsThrow Throw;
	EXPECT_THROW(Inner->Append(Outer), FAssertionFailure);
	EXPECT_THROW(Inner->Append(Inner), FAssertionFailure);
}

TEST_F(Commands, GetOtherKeysWhichThenRunNothingElse)
{
	int Boiled = 0;
	int Lit = 0;
	List.MapAction(Boil(), FExecuteAction::CreateLambda([&] { ++Boiled; }));
	List.MapAction(Light(), FExecuteAction::CreateLambda([&] { ++Lit; }));
	const FKeyEvent ControlB(EKeys::B, Control, 0, false, 0, 0);

	Light()->SetActiveChord(FInputChord(EModifierKey::Control, EKeys::B), EMultipleKeyBindingIndex::Primary);
	EXPECT_TRUE(List.ProcessCommandBindings(ControlB));
	EXPECT_EQ(Lit, 1);
	EXPECT_EQ(Boiled, 0);
	EXPECT_TEXT_EQ(Light()->GetInputText().ToString(), TEXT("Ctrl+B"));
	EXPECT_TRUE(Boil()->GetInputText().IsEmpty());
	EXPECT_TRUE(Boil()->HasDefaultChord(FInputChord(EModifierKey::Control, EKeys::B)));

	Boil()->SetActiveChord(FInputChord(EKeys::F9), EMultipleKeyBindingIndex::Secondary);
	EXPECT_TRUE(List.ProcessCommandBindings(FKeyEvent(EKeys::F9, FModifierKeysState(), 0, false, 0, 0)));
	EXPECT_EQ(Boiled, 1);
	EXPECT_EQ(*Boil()->GetFirstValidChord(), FInputChord(EKeys::F9));
	Boil()->RemoveActiveChord(EMultipleKeyBindingIndex::Secondary);
	EXPECT_FALSE(Boil()->GetFirstValidChord()->IsValidChord());
}

TEST_F(Commands, OfRelatedContextsDoNotShareTheirKeys)
{
	const FLogCapture Log;
	FPantryCommands::Register();
	const FPantryCommands& Pantry = FPantryCommands::Get();
	EXPECT_FALSE(Pantry.Bake->GetFirstValidChord()->IsValidChord());
	EXPECT_EQ(Log.CountContaining("The keys Ctrl+B of the command 'Pantry.Bake' run 'Kitchen.Boil' already"), 1);
	FInputBindingManager& Manager = FInputBindingManager::Get();
	const FInputChord ControlB(EModifierKey::Control, EKeys::B);
	EXPECT_FALSE(Manager.FindCommandInContext(TEXT("Pantry"), ControlB, false).IsValid());
	EXPECT_EQ(Manager.FindCommandInContext(TEXT("Pantry"), ControlB, true), Pantry.Bake);
	EXPECT_EQ(Manager.GetCommandInfoFromInputChord(TEXT("Pantry"), ControlB, false), Kitchen().Boil);
	FPantryCommands::Unregister();
}

TEST_F(Commands, ATableTakesOverAContextThatIsKnownByItsName)
{
	const TSharedPtr<FUICommandInfo> Former = Kitchen().Light;
	FSecondKitchenCommands::Register();
	FInputBindingManager& Manager = FInputBindingManager::Get();
	EXPECT_EQ(Manager.GetContextByName(TEXT("Kitchen")).Get(), &FSecondKitchenCommands::GetContext());
	EXPECT_EQ(Manager.FindCommandInContext(TEXT("Kitchen"), TEXT("Light")), FSecondKitchenCommands::Get().Light);
	EXPECT_NE(Former, FSecondKitchenCommands::Get().Light);
	TArray<TSharedPtr<FBindingContext>> Contexts;
	Manager.GetKnownInputContexts(Contexts);
	EXPECT_TRUE(Contexts.Contains(Manager.GetContextByName(TEXT("Kitchen"))));
	FSecondKitchenCommands::Unregister();
}

TEST_F(Commands, AreAnnouncedWhenTheirTableIsRegistered)
{
	int Announced = 0;
	const FDelegateHandle Handle = FBindingContext::CommandsChanged.AddLambda([&] { ++Announced; });
	FPantryCommands::Register();
	FPantryCommands::Register();
	EXPECT_EQ(Announced, 1);
	FPantryCommands::Unregister();
	FBindingContext::CommandsChanged.Remove(Handle);
}

TEST(InputChord, IsWrittenAsMenusWriteIt)
{
	EXPECT_TEXT_EQ(FInputChord(EModifierKey::Control | EModifierKey::Shift, EKeys::S).GetInputText(false).ToString(),
		TEXT("Ctrl+Shift+S"));
	EXPECT_TEXT_EQ(FInputChord(EModifierKey::Alt, EKeys::F4).GetInputText().ToString(), TEXT("Alt+F4"));
	EXPECT_TRUE(FInputChord().GetInputText().IsEmpty());
}

TEST(GenericCommands, HaveTheUsualKeys)
{
	FGenericCommands::Register();
	const FGenericCommands& Generic = FGenericCommands::Get();
	EXPECT_TEXT_EQ(Generic.Undo->GetInputText().ToString(), TEXT("Ctrl+Z"));
	EXPECT_TEXT_EQ(Generic.Redo->GetInputText().ToString(), TEXT("Ctrl+Y"));
	EXPECT_TEXT_EQ(Generic.Delete->GetInputText().ToString(), TEXT("Delete"));
	EXPECT_TEXT_EQ(Generic.Rename->GetInputText().ToString(), TEXT("F2"));
	EXPECT_EQ(Generic.Undo->GetIcon(), FSlateIcon(FName(TEXT("EditorStyle")), FName(TEXT("GenericCommands.Undo"))));
}

TEST_F(Commands, MayChangeTheListThatRunsThem)
{
	List.MapAction(Boil(), FExecuteAction::CreateLambda([&] { List.UnmapAction(Kitchen().Boil); }));
	EXPECT_TRUE(List.ExecuteAction(Boil()));
	EXPECT_FALSE(List.IsActionMapped(Boil()));
}

#undef LOCTEXT_NAMESPACE
