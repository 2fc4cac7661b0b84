// SPDX-License-Identifier: MIT
#include "CorePrinting.h"
#include "EditorModeManager.h"
#include "EngineFixture.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "Toolkits/BaseToolkit.h"
#include "Toolkits/IToolkitHost.h"
#include "Toolkits/ToolkitManager.h"
#include "UObject/Package.h"
#include "Widgets/SNullWidget.h"

namespace
{
class FTestHost : public IToolkitHost
{
public:
	TSharedRef<SWidget> GetParentWidget() override { return SNullWidget::NullWidget; }
	void BringToFront() override { Calls += "front "; }
	TSharedPtr<FTabManager> GetTabManager() const override { return nullptr; }
	void OnToolkitHostingStarted(const TSharedRef<IToolkit>&) override { Calls += "started "; }
	void OnToolkitHostingFinished(const TSharedRef<IToolkit>&) override { Calls += "finished "; }
	UWorld* GetWorld() const override { return nullptr; }
	FEditorModeTools& GetEditorModeManager() const override { return Modes; }
	FName GetStatusBarName() const override { return NAME_None; }

	std::string Calls;
	mutable FEditorModeTools Modes;
};

class FTestToolkit : public FBaseToolkit
{
public:
	void SetHost(const TSharedPtr<IToolkitHost>& InHost) { ToolkitHost = InHost; }
	FString Prefix() const { return GetTabPrefix(); }
	void SetMode(EToolkitMode::Type InMode) { ToolkitMode = InMode; }

	FName GetToolkitFName() const override { return FName(TEXT("TestToolkit")); }
	FText GetBaseToolkitName() const override { return FText::FromString(TEXT("Test")); }
	FText GetToolkitName() const override { return GetBaseToolkitName(); }
	FText GetToolkitToolTipText() const override { return GetBaseToolkitName(); }
	FString GetWorldCentricTabPrefix() const override { return TEXT("Prefix"); }
	bool IsAssetEditor() const override { return false; }
	const TArray<UObject*>* GetObjectsCurrentlyBeingEdited() const override { return &Edited; }
	FLinearColor GetWorldCentricTabColorScale() const override { return FLinearColor::White; }
	FEditorModeTools& GetEditorModeManager() const override { return Modes; }

	TArray<UObject*> Edited;
	mutable FEditorModeTools Modes;
};

class Toolkits : public FEngineFixture
{
protected:
	TSharedRef<FTestHost> Host = MakeShared<FTestHost>();
};
} // namespace

TEST_F(Toolkits, LiveWhileTheyAreOpen)
{
	TSharedPtr<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
	Toolkit->SetHost(Host);
	const TWeakPtr<FTestToolkit> Weak = Toolkit;
	FToolkitManager::Get().RegisterNewToolkit(Toolkit.ToSharedRef());
	Toolkit.Reset();
	ASSERT_TRUE(Weak.IsValid());
	EXPECT_TRUE(Weak.Pin()->IsHosted());

	FToolkitManager::Get().CloseToolkit(Weak.Pin().ToSharedRef());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Host->Calls, "started finished ");
}

TEST_F(Toolkits, ClosingOneThatIsNotOpenDoesNothing)
{
	const TSharedRef<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
	FToolkitManager::Get().CloseToolkit(Toolkit);
	Toolkit->BringToolkitToFront();
	EXPECT_FALSE(Toolkit->IsHosted());
	EXPECT_NE(CatchAssertion([&] { Toolkit->GetToolkitHost(); }), "");
}

TEST_F(Toolkits, GoWithTheirHost)
{
	const TSharedRef<FTestToolkit> Here = MakeShared<FTestToolkit>();
	const TSharedRef<FTestToolkit> Elsewhere = MakeShared<FTestToolkit>();
	const TSharedRef<FTestHost> OtherHost = MakeShared<FTestHost>();
	Here->SetHost(Host);
	Elsewhere->SetHost(OtherHost);
	FToolkitManager& Manager = FToolkitManager::Get();
	Manager.RegisterNewToolkit(Here);
	Manager.RegisterNewToolkit(Elsewhere);
	Manager.OnToolkitHostDestroyed(&Host.Get());
	EXPECT_EQ(Host->Calls, "started finished ");
	EXPECT_EQ(OtherHost->Calls, "started ");
	Manager.CloseToolkit(Elsewhere);
}

TEST_F(Toolkits, AreFoundByWhatTheyEdit)
{
	const TSharedRef<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
	Toolkit->SetHost(Host);
	Toolkit->Edited.Add(GetTransientPackage());
	FToolkitManager::Get().RegisterNewToolkit(Toolkit);
	EXPECT_EQ(FToolkitManager::Get().FindEditorForAsset(GetTransientPackage()), Toolkit);
	FToolkitManager::Get().CloseToolkit(Toolkit);
	EXPECT_FALSE(FToolkitManager::Get().FindEditorForAsset(GetTransientPackage()).IsValid());
}

TEST_F(Toolkits, PutTheirPrefixOnTabsOfTheLevelEditorOnly)
{
	FTestToolkit Toolkit;
	EXPECT_EQ(Toolkit.Prefix(), FString());
	Toolkit.SetMode(EToolkitMode::WorldCentric);
	EXPECT_EQ(Toolkit.Prefix(), FString(TEXT("Prefix")));
	EXPECT_EQ(Toolkit.GetToolkitContextFName(), FName(TEXT("TestToolkit")));
}

TEST_F(Toolkits, TheirModesTakeOneHost)
{
	FEditorModeTools Modes;
	Modes.SetToolkitHost(Host);
	EXPECT_EQ(Modes.GetToolkitHost(), Host);
	EXPECT_NE(CatchAssertion([&] { Modes.SetToolkitHost(Host); }), "");
}

TEST(WorkspaceItems, FormATree)
{
	const TSharedRef<FWorkspaceItem> Root = FWorkspaceItem::NewGroup(FText::FromString(TEXT("Root")));
	const TSharedRef<FWorkspaceItem> Child = Root->AddGroup(FText::FromString(TEXT("Child")));
	EXPECT_EQ(Child->GetParent(), Root);
	ASSERT_EQ(Root->GetChildItems().Num(), 1);
	EXPECT_EQ(Root->GetChildItems()[0]->GetDisplayName().ToString(), FString(TEXT("Child")));
	Root->RemoveItem(Child);
	EXPECT_FALSE(Child->GetParent().IsValid());
	Root->AddItem(Child);
	Root->ClearItems();
	EXPECT_EQ(Root->GetChildItems().Num(), 0);
	EXPECT_FALSE(Child->GetParent().IsValid());
}
