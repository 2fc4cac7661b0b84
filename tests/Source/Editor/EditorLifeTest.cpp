// SPDX-License-Identifier: MIT
// How the editor instance opens and closes.
#include "AdvancedPreviewScene.h"
#include "Editor.h"
#include "Editor/ZEFPreviewScene.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "EditorReimportHandler.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Docking/TabManager.h"
#include "Host/DialogService.h"
#include "Host/EditorState.h"
#include "Host/ObjectCensus.h"
#include "Source/Editor/ModuleFixture.h"
#include "Source/SampleMeshes.h"
#include "Stats/Stats.h"
#include "Toolkits/IToolkitHost.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"
#include "ZEFTandemClientComponent.h"

#include <functional>
#include <gtest/gtest.h>

using ZefTandemCore::TandemObjectType;

namespace
{

class EditorLife : public FModuleFixture
{
protected:
	void TearDown() override
	{
		if (Module().IsEditorOpen())
		{
			Module().GetEditor()->CloseWindow();
		}
		FModuleFixture::TearDown();
	}

	TSharedPtr<SDockTab> MajorTab() { return OpenEditor()->GetAssociatedTabManager()->GetOwnerTab(); }
};

/** Runs a function while a dialog stands. */
class FDialogHook : public Host::IDialogService
{
public:
	explicit FDialogHook(std::function<void()> InDuring)
		: During(std::move(InDuring))
		, Former(Host::SetDialogService(this))
	{
	}
	~FDialogHook() override { Host::SetDialogService(Former); }

	EAppReturnType::Type OpenMessage(
		EAppMsgCategory, EAppMsgType::Type, EAppReturnType::Type Default, const FText&, const FText&) override
	{
		++NumOpened;
		During();
		return Default;
	}
	Host::FSuppressableAnswer OpenSuppressable(const Host::FSuppressableRequest&) override
	{
		++NumOpened;
		During();
		return {true, false};
	}

	int NumOpened = 0;

private:
	std::function<void()> During;
	Host::IDialogService* Former;
};

} // namespace

TEST_F(EditorLife, KnowsItself)
{
	ASSERT_TRUE(PressEntry());
	const TSharedPtr<FZEFTandemEditor> Editor = OpenEditor();
	EXPECT_EQ(Editor->GetToolkitFName(), FName("ZEFTandemEditor"));
	EXPECT_EQ(Editor->GetEditorName(), FName("ZEFTandemEditor"));
	EXPECT_EQ(Editor->GetBaseToolkitName().ToString(), FString(TEXT("ZEFTandem Editor")));
	EXPECT_EQ(Editor->GetToolkitName().ToString(), FString(TEXT("ZEF/KR Tandem Editor")));
	EXPECT_EQ(Editor->GetToolkitToolTipText().ToString(), FString(TEXT("ZEF/KR Tandem Editor")));
	EXPECT_TRUE(Editor->GetTabSuffix().IsEmpty());
	EXPECT_EQ(Editor->GetWorldCentricTabPrefix(), FString(TEXT("ZEFTandem")));
	EXPECT_EQ(Editor->GetWorldCentricTabColorScale(), FLinearColor(0.3f, 0.2f, 0.5f, 0.5f));
	EXPECT_TRUE(Editor->IsAssetEditor());
	EXPECT_TRUE(Editor->IsPrimaryEditor());
	EXPECT_FALSE(Editor->IsWorldCentricAssetEditor());
	EXPECT_EQ(MajorTab()->GetTabLabel().ToString(), FString(TEXT("ZEF/KR Tandem Editor")));
}

TEST_F(EditorLife, StandsInAWindowThatNotificationsBelongTo)
{
	ASSERT_TRUE(PressEntry());
	const TSharedPtr<SWindow> Window =
		FSlateApplication::Get().FindWidgetWindow(OpenEditor()->GetToolkitHost()->GetParentWidget());
	ASSERT_TRUE(Window.IsValid());
	EXPECT_EQ(GetZEFTandemParentFrame().Pin(), Window);
}

TEST_F(EditorLife, PutsItsClientIntoThePreview)
{
	ASSERT_TRUE(PressEntry());
	UZEFTandemClientComponent* const Client = OpenEditor()->GetClient();
	ASSERT_NE(Client, nullptr);
	EXPECT_EQ(Client->GetName(), FString(TEXT("ZEFTandemClientComponent")));
	EXPECT_TRUE(Client->HasAnyFlags(RF_Transient));
	EXPECT_TRUE(Client->IsRegistered());
	EXPECT_EQ(Client->GetWorld(), OpenEditor()->GetPreviewScene()->GetWorld());
	EXPECT_FLOAT_EQ(OpenEditor()->GetPreviewScene()->GetFloorOffset(), 0.0f);
}

TEST_F(EditorLife, HearsOfUndoAndRedo)
{
	ASSERT_TRUE(PressEntry());
	EXPECT_EQ(Host::UndoClientCount(), 1);
	int Undone = 0;
	const TSharedRef<int> Owner = MakeShared<int>(0);
	const FSimpleDelegate Delegate = FSimpleDelegate::CreateLambda([&Undone] { ++Undone; });
	OpenEditor()->RegisterOnPostUndo(Delegate);
	OpenEditor()->PostUndo(true);
	EXPECT_EQ(Undone, 1);

	Module().GetEditor()->CloseWindow();
	EXPECT_EQ(Host::UndoClientCount(), 0);
}

TEST_F(EditorLife, TicksUnderTheTaskGraphsGroup)
{
	ASSERT_TRUE(PressEntry());
	EXPECT_TRUE(OpenEditor()->GetStatId().IsValidStat());
}

TEST_F(EditorLife, ClosesItsTabsWithoutAsking)
{
	ASSERT_TRUE(PressEntry());
	const TWeakPtr<SDockTab> Tab = MajorTab();
	OpenEditor()->GetClient()->OnSurfaceMeshReceived.Broadcast(TandemObjectType::Garment, SampleMeshes::MakeRigid());
	ASSERT_EQ(OpenEditor()->GetObjectComponents(2).Num(), 1);
	ASSERT_TRUE(Tab.Pin()->RequestCloseTab());

	EXPECT_FALSE(Module().IsEditorOpen());
	EXPECT_FALSE(Tab.IsValid());
	EXPECT_EQ(Dialogs().Messages().size(), 0u);
}

TEST_F(EditorLife, DestroysItsClientBeforeItSaysThatItIsClosed)
{
	ASSERT_TRUE(PressEntry());
	const TWeakObjectPtr<UZEFTandemClientComponent> Client = OpenEditor()->GetClient();
	bool bWasRegistered = true;
	bool bWasConnected = true;
	OpenEditor()->OnEditorClosed().AddLambda(
		[&]
		{
			bWasRegistered = Client->IsRegistered();
			bWasConnected = Client->SendData(ZefTandemCore::TandemMessage::Enable, true);
		});
	Module().GetEditor()->CloseWindow();

	EXPECT_FALSE(bWasRegistered);
	EXPECT_FALSE(bWasConnected);
}

TEST_F(EditorLife, ClosesWithItsWindow)
{
	ASSERT_TRUE(PressEntry());
	const TSharedPtr<SWindow> Window = MajorTab()->GetParentWindow();
	ASSERT_TRUE(Window.IsValid());
	Window->RequestDestroyWindow();

	EXPECT_FALSE(Module().IsEditorOpen());
}

TEST_F(EditorLife, MayCloseDuringAnUpdate)
{
	ASSERT_TRUE(PressEntry());
	OpenEditor()->RequestUpdate();
	OpenEditor()->GetClient()->OnSurfaceMeshReceived.Broadcast(TandemObjectType::Garment, SampleMeshes::MakeRigid());
	Module().GetEditor()->CloseWindow();

	EXPECT_EQ(GetCurrentProgress(), 2);
	TickFor(2.0);
	ASSERT_TRUE(PressEntry());
	OpenEditor()->RequestUpdate();
	EXPECT_EQ(GetCurrentProgress(), 1);
}

TEST_F(EditorLife, MayCloseWhileTheWarningStandsAndThenAsksForNothing)
{
	ASSERT_TRUE(PressEntry());
	FDialogHook Dialog([this] { Module().GetEditor()->CloseWindow(); });
	OpenEditor()->GetToolkitCommands()->ExecuteAction(FZEFTandemEditorCommands::Get().Update.ToSharedRef());

	EXPECT_EQ(Dialog.NumOpened, 1);
	EXPECT_FALSE(Module().IsEditorOpen());
	EXPECT_EQ(GetCurrentProgress(), -1);
}

TEST_F(EditorLife, MayCloseWhileTheMessageOfALostLinkStands)
{
	ASSERT_TRUE(PressEntry());
	FDialogHook Dialog([this] { Module().GetEditor()->CloseWindow(); });
	UZEFTandemClientComponent* const Client = OpenEditor()->GetClient();
	Client->OnConnectionChanged.Broadcast(false);

	EXPECT_EQ(Dialog.NumOpened, 1);
	EXPECT_FALSE(Module().IsEditorOpen());
}

TEST_F(EditorLife, LeavesNothingOfTwoHundredInstances)
{
	const auto OpenAndClose = [this]
	{
		ASSERT_TRUE(PressEntry());
		OpenEditor()->GetClient()->OnSurfaceMeshReceived.Broadcast(
			TandemObjectType::Garment, SampleMeshes::MakeRigid());
		OpenEditor()->GetClient()->OnSurfaceMeshReceived.Broadcast(
			TandemObjectType::Avatar, SampleMeshes::MakeSkinned());
		Tick(0.02);
		Module().GetEditor()->CloseWindow();
		Tick(0.02);
		CollectAll();
	};
	OpenAndClose();
	const int64 Objects = Host::TakeObjectCensus().Total;
	const int32 Windows = FSlateApplication::Get().GetTopLevelWindows().Num();
	for (int Round = 0; Round < 200; ++Round)
	{
		OpenAndClose();
	}
	EXPECT_EQ(Host::TakeObjectCensus().Total, Objects);
	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), Windows);
	EXPECT_EQ(Host::UndoClientCount(), 0);
	EXPECT_EQ(GEditor->GetAllViewportClients().Num(), 0);
}
