// SPDX-License-Identifier: MIT
#include "StatusBarSubsystem.h"

#include "Editor.h"
#include "EngineFixture.h"
#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
class StatusBar : public FEngineFixture
{
protected:
	UStatusBarSubsystem& Bars() { return *GEditor->GetEditorSubsystem<UStatusBarSubsystem>(); }

	FWidgetDrawerConfig Drawer(const TCHAR* Name)
	{
		FWidgetDrawerConfig Config{FName(Name)};
		Config.ButtonText = FText::FromString(Name);
		Config.GetDrawerContentDelegate = FOnGetContent::CreateLambda(
			[Name]() -> TSharedRef<SWidget> { return SNew(STextBlock).Text(FText::FromString(Name)); });
		return Config;
	}

	TArray<FString> Buttons(const TSharedRef<SWidget>& Bar)
	{
		TArray<FString> Labels;
		for (const TSharedRef<Host::SMultiBoxItem>& Item : Host::GetMultiBoxItems(Bar))
		{
			Labels.Add(Item->GetLabel().ToString());
		}
		return Labels;
	}

	/** Texts in open drawers. */
	int NumOpen(const TSharedRef<SWidget>& Bar) { return Host::FindWidgetsOfType(Bar, "STextBlock").Num(); }

	TSharedRef<SWidget> Make() { return Bars().MakeStatusBarWidget("Bar", SNew(SDockTab)); }
};
} // namespace

TEST_F(StatusBar, ShowsItsDrawersInTheirPlaces)
{
	Bars().RegisterDrawer("Bar", Drawer(TEXT("First")));
	const TSharedRef<SWidget> Bar = Make();
	Bars().RegisterDrawer("Bar", Drawer(TEXT("Last")));
	Bars().RegisterDrawer("Bar", Drawer(TEXT("Middle")), 1);
	Bars().RegisterDrawer("Another", Drawer(TEXT("Elsewhere")));

	EXPECT_EQ(Buttons(Bar), TArray<FString>({TEXT("First"), TEXT("Middle"), TEXT("Last")}));
	Bars().RegisterDrawer("Bar", Drawer(TEXT("Last")), 0);
	EXPECT_EQ(Buttons(Bar), TArray<FString>({TEXT("Last"), TEXT("First"), TEXT("Middle")}));
	Bars().UnregisterDrawer("Bar", "First");
	EXPECT_EQ(Buttons(Bar), TArray<FString>({TEXT("Last"), TEXT("Middle")}));
}

TEST_F(StatusBar, OpensOneDrawerAtATime)
{
	Bars().RegisterDrawer("Bar", Drawer(TEXT("A")));
	Bars().RegisterDrawer("Bar", Drawer(TEXT("B")));
	const TSharedRef<SWidget> Bar = Make();
	EXPECT_EQ(NumOpen(Bar), 0);

	ASSERT_TRUE(Host::FindMultiBoxItemByName(Bar, "A")->Press());
	EXPECT_EQ(NumOpen(Bar), 1);
	EXPECT_EQ(Host::FindMultiBoxItemByName(Bar, "A")->GetCheckState(), ECheckBoxState::Checked);
	EXPECT_TRUE(Bars().TryToggleDrawer("B"));
	EXPECT_EQ(NumOpen(Bar), 1);
	EXPECT_EQ(Host::FindMultiBoxItemByName(Bar, "A")->GetCheckState(), ECheckBoxState::Unchecked);
	EXPECT_TRUE(Bars().TryToggleDrawer("B"));
	EXPECT_EQ(NumOpen(Bar), 0);
	EXPECT_FALSE(Bars().TryToggleDrawer("C"));
}

TEST_F(StatusBar, ClosesADrawerThatGoes)
{
	Bars().RegisterDrawer("Bar", Drawer(TEXT("A")));
	const TSharedRef<SWidget> Bar = Make();
	Bars().TryToggleDrawer("A");
	Bars().UnregisterDrawer("Bar", "A");

	EXPECT_EQ(NumOpen(Bar), 0);
	EXPECT_FALSE(Bars().TryToggleDrawer("A"));
}
