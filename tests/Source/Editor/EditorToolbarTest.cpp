// SPDX-License-Identifier: MIT
// What stands in the tool bars of the editor instance.
#include "Editor/ZEFEditorToolkitMenuContext.h"
#include "Editor/ZEFTandemEditorButtonStyle.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"
#include "Source/Editor/OpenEditorFixture.h"
#include "Source/SampleMeshes.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Toolkits/IToolkitHost.h"
#include "ToolMenus.h"
#include "UObject/Class.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SNullWidget.h"

#include <gtest/gtest.h>

using ZefTandemCore::TandemObjectType;

namespace
{

class EditorToolbar : public FOpenEditorFixture
{
protected:
	TSharedRef<SWidget> Window() { return Editor->GetToolkitHost()->GetParentWidget(); }

	/** Buttons and combo buttons of the main tool bar, in order. */
	TArray<TSharedRef<Host::SMultiBoxItem>> Buttons()
	{
		TArray<TSharedRef<Host::SMultiBoxItem>> Result;
		for (const TSharedRef<Host::SMultiBoxItem>& Item : Host::GetMultiBoxItems(Window()))
		{
			if (Item->GetSection() == FName("Command") || Item->GetSection() == FName("Save"))
			{
				if (Item->GetKind() != Host::EMultiBoxItem::Separator)
				{
					Result.Add(Item);
				}
			}
		}
		return Result;
	}

	/** The menu of the combo button with that tool tip. */
	TSharedRef<SWidget> OpenCombo(const TCHAR* ToolTip)
	{
		for (const TSharedRef<Host::SMultiBoxItem>& Item : Buttons())
		{
			if (Item->GetToolTip().ToString() == ToolTip)
			{
				return Item->OpenMenu();
			}
		}
		ADD_FAILURE() << "no combo button " << ToStdString(FString(ToolTip));
		return SNullWidget::NullWidget;
	}
};

} // namespace

TEST_F(EditorToolbar, HoldsUpdateItsOptionsAndSave)
{
	const TArray<TSharedRef<Host::SMultiBoxItem>> Items = Buttons();
	ASSERT_EQ(Items.Num(), 3);

	EXPECT_EQ(Items[0]->GetSection(), FName("Command"));
	EXPECT_EQ(Items[0]->GetKind(), Host::EMultiBoxItem::Button);
	EXPECT_EQ(Items[0]->GetLabel().ToString(), FString(TEXT("Update")));
	EXPECT_EQ(Items[0]->GetToolTip().ToString(), FString(TEXT("Bring avatars and garments from ZEF or Kestrel Rig")));
	EXPECT_EQ(
		Items[0]->GetIcon(), FZEFTandemEditorButtonStyle::Get().GetBrush("ZEFTandemEditorButton.OpenPluginWindow"));
	EXPECT_EQ(Items[0]->GetStyleName(), FName("Toolbar.BackplateLeft"));

	EXPECT_EQ(Items[1]->GetSection(), FName("Command"));
	EXPECT_EQ(Items[1]->GetKind(), Host::EMultiBoxItem::ComboButton);
	EXPECT_TRUE(Items[1]->GetLabel().IsEmpty());
	EXPECT_EQ(Items[1]->GetToolTip().ToString(), FString(TEXT("Update Options")));
	EXPECT_EQ(Items[1]->GetIcon(), nullptr);
	EXPECT_EQ(Items[1]->GetStyleName(), FName("Toolbar.BackplateRightCombo"));

	EXPECT_EQ(Items[2]->GetSection(), FName("Save"));
	EXPECT_EQ(Items[2]->GetKind(), Host::EMultiBoxItem::ComboButton);
	EXPECT_TRUE(Items[2]->GetLabel().IsEmpty());
	EXPECT_EQ(Items[2]->GetToolTip().ToString(), FString(TEXT("Save Selected Object")));
	EXPECT_EQ(Items[2]->GetInfo().Icon.Get().GetStyleName(), FName("LevelEditor.Save"));
	EXPECT_EQ(Items[2]->GetInfo().Icon.Get().GetStyleSetName(), FAppStyle::GetAppStyleSetName());
	EXPECT_EQ(Items[2]->GetStyleName(), FName("CalloutToolbar"));
}

TEST_F(EditorToolbar, UpdatesAtAPress)
{
	ASSERT_TRUE(Buttons()[0]->Press());

	EXPECT_EQ(GetCurrentProgress(), 1);
	EXPECT_EQ(Dialogs().Suppressables().size(), 1u);
}

TEST_F(EditorToolbar, OffersTheUnifiedMaterialWithItsCheckMark)
{
	const TArray<TSharedRef<Host::SMultiBoxItem>> Items = Host::GetMultiBoxItems(OpenCombo(TEXT("Update Options")));
	ASSERT_EQ(Items.Num(), 1);
	EXPECT_EQ(Items[0]->GetLabel().ToString(), FString(TEXT("Unified Material")));
	EXPECT_EQ(Items[0]->GetActionType(), EUserInterfaceActionType::ToggleButton);
	EXPECT_EQ(Items[0]->GetCheckState(), ECheckBoxState::Unchecked);

	ASSERT_TRUE(Items[0]->Press());
	EXPECT_EQ(Items[0]->GetCheckState(), ECheckBoxState::Checked);
	EXPECT_TRUE(Editor->IsUnifiedMaterial());
	ASSERT_TRUE(Items[0]->Press());
	EXPECT_FALSE(Editor->IsUnifiedMaterial());
}

TEST_F(EditorToolbar, OffersToSaveWhatTheSelectionAndTheFlagsAllow)
{
	const TCHAR* const Labels[] = {
		TEXT("as StaticMesh"), TEXT("as SkeletalMesh"), TEXT("as GeometryCache"), TEXT("as AnimSequence")};
	const auto Enabled = [&]
	{
		const TArray<TSharedRef<Host::SMultiBoxItem>> Items =
			Host::GetMultiBoxItems(OpenCombo(TEXT("Save Selected Object")));
		std::string Result;
		EXPECT_EQ(Items.Num(), 4);
		for (int32 Index = 0; Index < Items.Num(); ++Index)
		{
			EXPECT_EQ(Items[Index]->GetLabel().ToString(), FString(Labels[Index]));
			Result += Items[Index]->IsItemEnabled() ? '1' : '0';
		}
		return Result;
	};
	EXPECT_EQ(Enabled(), "0000");

	Arrive(TandemObjectType::Avatar, SampleMeshes::MakeSkinned());
	Select({Editor->GetObjectComponents(4)[0]});
	EXPECT_EQ(Enabled(), "1000");

	ZefTandemCore::TandemAvailability Flags;
	Flags.bAvatarHasSkeleton = true;
	Client->OnAvailabilityReceived.Broadcast(Flags);
	EXPECT_EQ(Enabled(), "1100");
	Flags.bAvatarHasAnimation = true;
	Client->OnAvailabilityReceived.Broadcast(Flags);
	EXPECT_EQ(Enabled(), "1111");
}

TEST_F(EditorToolbar, CanTakeTheKeyboard)
{
	UToolMenu* const Menu = UToolMenus::Get()->FindMenu("AssetEditor.ZEFTandemEditor.ToolBar");
	ASSERT_NE(Menu, nullptr);
	EXPECT_EQ(Menu->MenuParent, FName("ZEFEditor.DefaultToolBar"));
	EXPECT_EQ(Menu->MenuType, EMultiBoxType::SlimHorizontalToolBar);
	bool bFocusable = false;
	for (const TSharedRef<SWidget>& Widget : Host::FindWidgetsOfType(Window(), "SMultiBoxWidget"))
	{
		bFocusable = bFocusable || Widget->SupportsKeyboardFocus();
	}
	EXPECT_TRUE(bFocusable);
}

TEST_F(EditorToolbar, TakesExtendersOfTheModuleForNewInstances)
{
	Close();
	FZEFTandemEditorModule& Module = FModuleManager::GetModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	TArray<UObject*> Asked;
	Module.GetToolBarExtensibilityManager()->GetExtenderDelegates().Add(FZEFEditorExtender::CreateLambda(
		[&Asked](const TSharedRef<FUICommandList> Commands, const TArray<UObject*>& Objects)
		{
			Asked = Objects;
			const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
			Extender->AddToolBarExtension("Save", EExtensionHook::After, Commands,
				FToolBarExtensionDelegate::CreateLambda([](FToolBarBuilder& Builder)
					{ Builder.AddToolBarButton(FZEFTandemEditorCommands::Get().FocusCamera, "Extra"); }));
			return Extender;
		}));
	Module.GetSecondaryToolBarExtensibilityManager()->GetExtenderDelegates().Add(FZEFEditorExtender::CreateLambda(
		[](const TSharedRef<FUICommandList> Commands, const TArray<UObject*>&)
		{
			const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
			Extender->AddToolBarExtension("Extensions", EExtensionHook::After, Commands,
				FToolBarExtensionDelegate::CreateLambda([](FToolBarBuilder& Builder)
					{ Builder.AddToolBarButton(FZEFTandemEditorCommands::Get().Tandem, "Second"); }));
			return Extender;
		}));
	Editor = StaticCastSharedPtr<FZEFTandemEditor>(Module.CreateEditor());
	Client = Editor->GetClient();

	ASSERT_EQ(Asked.Num(), 1);
	EXPECT_EQ(Asked[0]->GetName(), FString(TEXT("Dummy")));
	EXPECT_EQ(Asked[0]->GetClass()->GetName(), FString(TEXT("StaticMesh")));
	EXPECT_TRUE(Host::FindMultiBoxItemByName(Window(), "Extra").IsValid());

	const TSharedPtr<SDockTab> Secondary =
		Editor->GetAssociatedTabManager()->TryInvokeTab(FName("ZEFTandemEditor_SecondaryToolbar"));
	ASSERT_TRUE(Secondary.IsValid());
	EXPECT_TRUE(Host::FindMultiBoxItemByName(Secondary.ToSharedRef(), "Second").IsValid());
}

TEST_F(EditorToolbar, LeadsItsEntriesBackToTheToolkit)
{
	FToolMenuContext Context = Editor->MakeToolMenuContext({});
	const UZEFEditorToolkitMenuContext* const Found = Context.FindContext<UZEFEditorToolkitMenuContext>();
	ASSERT_NE(Found, nullptr);
	EXPECT_EQ(Found->Toolkit.Pin(), StaticCastSharedPtr<FZEFEditorToolkit>(Editor));
	EXPECT_EQ(Found->GetClass()->GetPathName(), FString(TEXT("/Script/ZEFTandemEditor.ZEFEditorToolkitMenuContext")));
	EXPECT_EQ(Found->GetClass()->GetSuperClass(), UObject::StaticClass());
}

TEST_F(EditorToolbar, LeavesWeldAndTheConnectionStateUnbound)
{
	const FZEFTandemEditorCommands& Commands = FZEFTandemEditorCommands::Get();
	EXPECT_FALSE(Editor->GetToolkitCommands()->IsActionMapped(Commands.SetWeld));
	EXPECT_FALSE(Editor->GetToolkitCommands()->IsActionMapped(Commands.ToggleTandemConnectionState));
	EXPECT_TRUE(Editor->GetToolkitCommands()->IsActionMapped(FGenericCommands::Get().Undo));
	EXPECT_TRUE(Editor->GetToolkitCommands()->IsActionMapped(FGenericCommands::Get().Redo));
	EXPECT_TRUE(Editor->GetToolkitCommands()->IsActionMapped(Commands.FocusCamera));
	EXPECT_FALSE(Editor->IsWeld());
}

TEST_F(EditorToolbar, ShowsTheStateOfTheTandemToggle)
{
	const TSharedRef<FUICommandInfo> Tandem = FZEFTandemEditorCommands::Get().Tandem.ToSharedRef();
	EXPECT_EQ(Editor->GetToolkitCommands()->GetCheckState(Tandem), ECheckBoxState::Unchecked);
	ASSERT_TRUE(Editor->GetToolkitCommands()->ExecuteAction(Tandem));
	EXPECT_EQ(Editor->GetToolkitCommands()->GetCheckState(Tandem), ECheckBoxState::Checked);
}
