// SPDX-License-Identifier: MIT
#include "CorePrinting.h"
#include "Framework/Commands/Commands.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Host/TextInspection.h"
#include "Input/Events.h"

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

class Commands : public ::testing::Test
{
protected:
	void SetUp() override { FKitchenCommands::Register(); }
	void TearDown() override { FKitchenCommands::Unregister(); }

	const FKitchenCommands& Kitchen() { return FKitchenCommands::Get(); }
	TSharedRef<FUICommandInfo> Boil() { return Kitchen().Boil.ToSharedRef(); }
	TSharedRef<FUICommandInfo> Light() { return Kitchen().Light.ToSharedRef(); }

	FUICommandList List;
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
	EXPECT_EQ(
		Manager.FindCommandInContext(TEXT("Kitchen"), FInputChord(EModifierKey::Control, EKeys::B)), Kitchen().Boil);
	EXPECT_FALSE(Manager.FindCommandInContext(TEXT("Kitchen"), FInputChord(EKeys::B)).IsValid());
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
	const FModifierKeysState Control(false, false, true, false, false, false, false, false, false);

	EXPECT_TRUE(List.ProcessCommandBindings(FKeyEvent(EKeys::B, Control, 0, false, 0, 0)));
	EXPECT_FALSE(List.ProcessCommandBindings(FKeyEvent(EKeys::B, FModifierKeysState(), 0, false, 0, 0)));
	EXPECT_FALSE(List.ProcessCommandBindings(FKeyEvent(EKeys::B, Control, 0, true, 0, 0)));
	EXPECT_FALSE(List.ProcessCommandBindings(FKeyEvent(EKeys::C, Control, 0, false, 0, 0)));
	EXPECT_EQ(Boiled, 1);
}

TEST_F(Commands, MayChangeTheListThatRunsThem)
{
	List.MapAction(Boil(), FExecuteAction::CreateLambda([&] { List.UnmapAction(Kitchen().Boil); }));
	EXPECT_TRUE(List.ExecuteAction(Boil()));
	EXPECT_FALSE(List.IsActionMapped(Boil()));
}

#undef LOCTEXT_NAMESPACE
