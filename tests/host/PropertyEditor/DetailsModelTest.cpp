// SPDX-License-Identifier: MIT
#include "Components/SceneComponent.h"
#include "DetailsObjects.h"
#include "DetailsViewArgs.h"
#include "Editor.h"
#include "EngineFixture.h"
#include "Host/Details.h"
#include "Host/EditorState.h"
#include "IDetailsView.h"
#include "Misc/NotifyHook.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "Widgets/SNullWidget.h"

using Host::EDetailsValue;
using Host::FDetailsCategory;
using Host::FDetailsRow;

namespace
{
class FHookRecorder : public FNotifyHook
{
public:
	void NotifyPreChange(FProperty* Property) override { Note("pre ", Property); }
	void NotifyPostChange(const FPropertyChangedEvent& Event, FProperty* Property) override
	{
		Note(Event.ChangeType == EPropertyChangeType::ValueSet ? "set " : "post ", Property);
	}
	void NotifyPostChange(const FPropertyChangedEvent&, FEditPropertyChain* Chain) override
	{
		Calls += "chain" + std::to_string(Chain->Num()) + " ";
	}

	std::string Calls;

private:
	void Note(const char* What, const FProperty* Property)
	{
		Calls += std::string(What) + TCHAR_TO_UTF8(*Property->GetName()) + " ";
	}
};

class DetailsModel : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		View = MakeView(FDetailsViewArgs());
		A = MakeObject();
		B = MakeObject();
		View->SetObject(A);
	}
	void TearDown() override
	{
		A->RemoveFromRoot();
		B->RemoveFromRoot();
		View.Reset();
		FEngineFixture::TearDown();
	}

	static TSharedRef<IDetailsView> MakeView(const FDetailsViewArgs& Args)
	{
		return FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor")).CreateDetailView(Args);
	}
	static UDetailsObject* MakeObject()
	{
		UDetailsObject* const Object = NewObject<UDetailsObject>();
		Object->AddToRoot();
		return Object;
	}
	Host::FDetailsModel& Model() { return *Host::DetailsModelOf(View.ToSharedRef()); }
	FDetailsRow& Row(const TCHAR* Path)
	{
		const TSharedPtr<FDetailsRow> Found = Model().FindRow(Path);
		check(Found.IsValid());
		return *Found;
	}
	std::string Value(const TCHAR* Path) { return TCHAR_TO_UTF8(*Row(Path).GetValueText().ToString()); }
	/** Empty on success. */
	std::string Set(const TCHAR* Path, const TCHAR* Text)
	{
		FText Reason;
		return Row(Path).SetValue(Text, Reason) ? std::string() : std::string(TCHAR_TO_UTF8(*Reason.ToString()));
	}
	std::string Outline()
	{
		std::string Text;
		for (const FDetailsCategory& Category : Model().GetCategories())
		{
			if (Category.bVisible)
			{
				Text += std::string(TCHAR_TO_UTF8(*Category.Name.ToString())) + ":";
				for (const TSharedRef<FDetailsRow>& Item : Category.Rows)
				{
					Text += Item->IsVisible() ? " " + std::string(TCHAR_TO_UTF8(*Item->GetPath())) : "";
				}
				Text += "; ";
			}
		}
		return Text;
	}

	TSharedPtr<IDetailsView> View;
	UDetailsObject* A = nullptr;
	UDetailsObject* B = nullptr;
};
} // namespace

TEST_F(DetailsModel, GroupsWhatIsEditableByCategoryWithThePlaceFirst)
{
	EXPECT_EQ(Outline(), "Transform: Location Corners[0] Corners[1]; Look: bShiny bBit Kind Tint Gloss; "
						 "Names: Title Parts Numbers Ranks Other; Size: Width Count Size|Fine Print; ");
	FDetailsRow& Group = Row(TEXT("Size|Fine Print"));
	EXPECT_EQ(Group.GetKind(), EDetailsValue::Group);
	EXPECT_EQ(Group.GetName().ToString(), FString(TEXT("Fine Print")));
	ASSERT_EQ(Group.GetChildren().Num(), 1);
	EXPECT_EQ(Group.GetChildren()[0]->GetPath(), FString(TEXT("Byte")));
	EXPECT_TRUE(Group.GetChildren()[0]->IsAdvanced());
}

TEST_F(DetailsModel, ShowsForAClassDefaultWhatOnlyATemplateHas)
{
	View->SetObject(GetMutableDefault<UDetailsBase>());
	EXPECT_EQ(Outline(), "Size: Width Count Size|Fine Print ForTemplates; ");
}

TEST_F(DetailsModel, NamesAndTipsComeFromTheHeader)
{
	EXPECT_EQ(Row(TEXT("Width")).GetName().ToString(), FString(TEXT("Width")));
	EXPECT_EQ(Row(TEXT("Width")).GetToolTip().ToString(), FString(TEXT("How wide it is.")));
	EXPECT_EQ(Row(TEXT("bShiny")).GetName().ToString(), FString(TEXT("Shiny")));
	EXPECT_EQ(Row(TEXT("Corners[1]")).GetName().ToString(), FString(TEXT("Corners [1]")));
	EXPECT_EQ(Row(TEXT("Width")).GetMinimum().Get(-1.0), 0.0);
	EXPECT_EQ(Row(TEXT("Width")).GetMaximum().Get(-1.0), 10.0);
	EXPECT_FALSE(Row(TEXT("Gloss")).GetMinimum().IsSet());
}

TEST_F(DetailsModel, ValuesReadAsAPersonWritesThem)
{
	A->Parts.AddDefaulted(2);
	A->Ranks.Add(TEXT("One"), 1);
	EXPECT_EQ(Value(TEXT("Width")), "1.5");
	EXPECT_EQ(Value(TEXT("Count")), "7");
	EXPECT_EQ(Value(TEXT("bShiny")), "False");
	EXPECT_EQ(Value(TEXT("Kind")), "Plain");
	EXPECT_EQ(Value(TEXT("Location")), "1.0, 2.0, 3.5");
	EXPECT_EQ(Value(TEXT("Location.Z")), "3.5");
	EXPECT_EQ(Value(TEXT("Parts")), "2 Array elements");
	EXPECT_EQ(Value(TEXT("Ranks")), "1 Map elements");
	EXPECT_EQ(Value(TEXT("Other")), "None");
	EXPECT_EQ(Row(TEXT("Tint")).GetColor(), FColor(1, 2, 3, 4));
	EXPECT_EQ(Row(TEXT("Location")).GetKind(), EDetailsValue::Vector);
	EXPECT_EQ(Row(TEXT("Tint")).GetKind(), EDetailsValue::Color);
	EXPECT_EQ(Row(TEXT("Parts[0]")).GetKind(), EDetailsValue::Struct);
	ASSERT_EQ(Row(TEXT("Kind")).GetChoices().Num(), 2);
	EXPECT_EQ(Row(TEXT("Kind")).GetChoices()[1].ToString(), FString(TEXT("Woven Cloth")));
}

TEST_F(DetailsModel, SetsAValueOfEachKind)
{
	UDetailsBase* const Other = NewObject<UDetailsBase>(GetTransientPackage(), TEXT("SomeOther"));
	EXPECT_EQ(Set(TEXT("Width"), TEXT("2.25")), "");
	EXPECT_EQ(Set(TEXT("bShiny"), TEXT("True")), "");
	EXPECT_EQ(Set(TEXT("bBit"), TEXT("True")), "");
	EXPECT_EQ(Set(TEXT("Kind"), TEXT("Woven Cloth")), "");
	EXPECT_EQ(Set(TEXT("Tint"), TEXT("(R=9,G=8,B=7,A=6)")), "");
	EXPECT_EQ(Set(TEXT("Title"), TEXT("a \"b\", c")), "");
	EXPECT_EQ(Set(TEXT("Location.Y"), TEXT("-4")), "");
	EXPECT_EQ(Set(TEXT("Corners[1]"), TEXT("5")), "");
	EXPECT_EQ(Set(TEXT("Byte"), TEXT("200")), "");
	EXPECT_EQ(Set(TEXT("Other"), *Other->GetPathName()), "");
	EXPECT_EQ(A->Width, 2.25f);
	EXPECT_TRUE(A->bShiny);
	EXPECT_TRUE(A->bBit);
	EXPECT_EQ(A->Kind, EDetailsKind::Woven);
	EXPECT_EQ(A->Tint, FColor(9, 8, 7, 6));
	EXPECT_EQ(A->Title, FString(TEXT("a \"b\", c")));
	EXPECT_EQ(A->Location, FVector(1.0, -4.0, 3.5));
	EXPECT_EQ(A->Corners[1], 5.0f);
	EXPECT_EQ(A->Byte, 200);
	EXPECT_EQ(A->Other, Other);
	EXPECT_EQ(Set(TEXT("Location"), TEXT("7, 8, 9.5")), "");
	EXPECT_EQ(A->Location, FVector(7.0, 8.0, 9.5));
	EXPECT_TRUE(Row(TEXT("bBit")).IsChecked());
	EXPECT_EQ(Set(TEXT("Other"), TEXT("None")), "");
	EXPECT_EQ(A->Other, nullptr);
}

TEST_F(DetailsModel, RefusesWhatIsNoValueAndSaysWhy)
{
	const std::tuple<const TCHAR*, const TCHAR*, const char*> Cases[] = {
		{TEXT("Width"), TEXT("wide"), "\"wide\" is no number; write one such as 12 or -0.5"},
		{TEXT("Byte"), TEXT("1.5"), "\"1.5\" is no whole number; write one such as 12 or -3"},
		{TEXT("Byte"), TEXT("300"), "300 is outside of what this property holds"},
		{TEXT("Kind"), TEXT("Secret"), "\"Secret\" is none of the values to choose from"},
		{TEXT("bShiny"), TEXT("perhaps"), "\"perhaps\" is no value of this property"},
		{TEXT("Location"), TEXT("1, 2"), "\"1, 2\" has too few numbers"},
		{TEXT("Location"), TEXT("1, 2, 3, 4"), "\"1, 2, 3, 4\" has too many numbers"},
		{TEXT("Other"), TEXT("/Game/Nothing.Nothing"),
			"There is no object \"/Game/Nothing.Nothing\" that fits here; write its path, or None"},
		{TEXT("Count"), TEXT("8"), "Count cannot be edited here"},
	};
	for (const auto& [Path, Text, Reason] : Cases)
	{
		EXPECT_EQ(Set(Path, Text), Reason);
	}
	EXPECT_EQ(A->Width, 1.5f);
	EXPECT_EQ(A->Byte, 1);
	EXPECT_EQ(A->Location, FVector(1.0, 2.0, 3.5));
	EXPECT_FALSE(Host::CanUndo());
}

TEST_F(DetailsModel, KeepsNumbersWithinTheirLimits)
{
	EXPECT_EQ(Set(TEXT("Width"), TEXT("11")), "");
	EXPECT_EQ(A->Width, 10.0f);
	EXPECT_EQ(Set(TEXT("Width"), TEXT("-1")), "");
	EXPECT_EQ(A->Width, 0.0f);
}

TEST_F(DetailsModel, WhatIsOnlyVisibleOrOutOfConditionIsReadOnly)
{
	EXPECT_TRUE(Row(TEXT("Count")).IsReadOnly());
	EXPECT_FALSE(Row(TEXT("Width")).IsReadOnly());
	EXPECT_TRUE(Row(TEXT("Gloss")).IsReadOnly());
	EXPECT_TRUE(Row(TEXT("Ranks")).IsReadOnly());
	Set(TEXT("bShiny"), TEXT("True"));
	EXPECT_FALSE(Row(TEXT("Gloss")).IsReadOnly());
}

TEST_F(DetailsModel, SeveralObjectsShowWhatTheyShare)
{
	B->Width = 3.0f;
	View->SetObjects(TArray<UObject*>({A, B}));
	EXPECT_TRUE(Row(TEXT("Width")).HasMultipleValues());
	EXPECT_EQ(Value(TEXT("Width")), "Multiple Values");
	EXPECT_EQ(Value(TEXT("Location")), "1.0, 2.0, 3.5");
	EXPECT_EQ(Set(TEXT("Width"), TEXT("4")), "");
	EXPECT_EQ(A->Width, 4.0f);
	EXPECT_EQ(B->Width, 4.0f);
	EXPECT_EQ(Value(TEXT("Width")), "4.0");
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(A->Width, 1.5f);
	EXPECT_EQ(B->Width, 3.0f);

	UDetailsCousin* const Cousin = NewObject<UDetailsCousin>();
	View->SetObjects(TArray<UObject*>({A, Cousin}));
	EXPECT_EQ(Outline(), "Size: Width Count Size|Fine Print; ");
}

TEST_F(DetailsModel, AnEditIsOneStepOfUndoAndTellsTheHookAndTheObject)
{
	FHookRecorder Hook;
	FDetailsViewArgs Args;
	Args.NotifyHook = &Hook;
	View = MakeView(Args);
	View->SetObject(A);
	std::string Edited;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&](UObject* Object, FPropertyChangedEvent& Event)
		{
			Edited += Object == A ? "A." : "?.";
			Edited += TCHAR_TO_UTF8(
				*(Event.GetMemberPropertyName().ToString() + TEXT(".") + Event.GetPropertyName().ToString()));
		});
	EXPECT_EQ(Set(TEXT("Location.X"), TEXT("9")), "");
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
	EXPECT_EQ(Hook.Calls, "pre X set X chain2 ");
	EXPECT_EQ(Edited, "A.Location.X");
	EXPECT_EQ(Host::UndoText().ToString(), FString(TEXT("Undo Edit Location")));
	GEditor->UndoTransaction();
	EXPECT_EQ(A->Location.X, 1.0);
	EXPECT_EQ(Value(TEXT("Location.X")), "1.0");
	GEditor->RedoTransaction();
	EXPECT_EQ(Value(TEXT("Location.X")), "9.0");
	View.Reset();
	View = MakeView(FDetailsViewArgs());
}

TEST_F(DetailsModel, ElementsComeAndGo)
{
	FDetailsRow& Parts = Row(TEXT("Parts"));
	EXPECT_TRUE(Parts.CanEditElements());
	EXPECT_FALSE(Row(TEXT("Numbers")).CanEditElements());
	EXPECT_FALSE(Row(TEXT("Title")).CanEditElements());
	Parts.AddElement();
	Parts.AddElement();
	ASSERT_EQ(Parts.GetChildren().Num(), 2);
	EXPECT_EQ(Parts.GetChildren()[1]->GetName().ToString().TrimStartAndEnd(), FString(TEXT("[1]")));
	EXPECT_EQ(Parts.GetChildren()[1]->GetChildren().Num(), 2);
	EXPECT_EQ(Set(TEXT("Parts[1].Label"), TEXT("Sleeve")), "");
	EXPECT_EQ(A->Parts[1].Label, FName(TEXT("Sleeve")));
	Parts.RemoveElement(0);
	ASSERT_EQ(Parts.GetChildren().Num(), 1);
	EXPECT_EQ(Value(TEXT("Parts[0].Label")), "Sleeve");
	EXPECT_FALSE(Model().FindRow(TEXT("Parts[1].Label")).IsValid());
	const uint64 Before = Model().GetRevision();
	EXPECT_EQ(Model().GetRevision(), Before);
	GEditor->UndoTransaction();
	EXPECT_GT(Model().GetRevision(), Before);
	EXPECT_EQ(A->Parts.Num(), 2);
	Row(TEXT("Parts")).RemoveAllElements();
	EXPECT_EQ(A->Parts.Num(), 0);
	Row(TEXT("Parts")).RemoveElement(5);
	EXPECT_EQ(A->Parts.Num(), 0);
}

TEST_F(DetailsModel, ArraysOfDifferentSizeShowTheirCommonElementsAndStayAsTheyAre)
{
	A->Parts.AddDefaulted(3);
	B->Parts.AddDefaulted(1);
	View->SetObjects(TArray<UObject*>({A, B}));
	EXPECT_EQ(Row(TEXT("Parts")).GetChildren().Num(), 1);
	EXPECT_FALSE(Row(TEXT("Parts")).CanEditElements());
	Row(TEXT("Parts")).AddElement();
	EXPECT_EQ(A->Parts.Num(), 3);
}

TEST_F(DetailsModel, ResetsToTheDefault)
{
	EXPECT_FALSE(Row(TEXT("Width")).DiffersFromDefault());
	Set(TEXT("Width"), TEXT("5"));
	Set(TEXT("Location.X"), TEXT("5"));
	EXPECT_TRUE(Row(TEXT("Width")).DiffersFromDefault());
	EXPECT_TRUE(Row(TEXT("Location")).DiffersFromDefault());
	EXPECT_FALSE(Row(TEXT("Location.Y")).DiffersFromDefault());
	Row(TEXT("Width")).ResetToDefault();
	Row(TEXT("Location")).ResetToDefault();
	EXPECT_EQ(A->Width, 1.5f);
	EXPECT_EQ(A->Location, FVector(1.0, 2.0, 3.5));
	EXPECT_EQ(Host::UndoText().ToString(), FString(TEXT("Undo Reset Location")));
}

TEST_F(DetailsModel, FiltersByTheWordsOfNamesAndCategories)
{
	Model().SetFilter(FText::FromString(TEXT("shin")));
	EXPECT_EQ(Outline(), "Look: bShiny; ");
	Model().SetFilter(FText::FromString(TEXT("SIZE")));
	EXPECT_EQ(Outline(), "Size: Width Count Size|Fine Print; ");
	Model().SetFilter(FText::FromString(TEXT("byte")));
	EXPECT_EQ(Outline(), "Size: Size|Fine Print; ");
	Model().SetFilter(FText::FromString(TEXT("nothing of this")));
	EXPECT_EQ(Outline(), "");
	Model().SetFilter(FText::GetEmpty());
	EXPECT_EQ(Model().GetCategories().Num(), 4);
	EXPECT_TRUE(Model().GetCategories()[3].bVisible);
}

TEST_F(DetailsModel, KeepsWhatIsExpandedOverARefresh)
{
	EXPECT_FALSE(Row(TEXT("Location")).IsExpanded());
	EXPECT_TRUE(Row(TEXT("Size|Fine Print")).IsExpanded());
	Row(TEXT("Location")).SetExpanded(true);
	Row(TEXT("Size|Fine Print")).SetExpanded(false);
	const uint64 Before = Model().GetRevision();
	View->ForceRefresh();
	EXPECT_GT(Model().GetRevision(), Before);
	EXPECT_TRUE(Row(TEXT("Location")).IsExpanded());
	EXPECT_FALSE(Row(TEXT("Size|Fine Print")).IsExpanded());
}

TEST_F(DetailsModel, ObjectsThatDieTakeTheirRowsAlong)
{
	View->SetObject(NewObject<UDetailsCousin>());
	EXPECT_EQ(Outline(), "Cousin: Own; Size: Width Count Size|Fine Print; ");
	const TSharedPtr<FDetailsRow> Kept = Model().FindRow(TEXT("Own"));
	CollectAll();
	EXPECT_EQ(Outline(), "");
	EXPECT_TRUE(Kept->GetValueText().IsEmpty());
	FText Reason;
	EXPECT_FALSE(Kept->SetValue(TEXT("1"), Reason));
}

TEST_F(DetailsModel, TheTitleFollowsTheSettingsOfTheNameArea)
{
	EXPECT_TRUE(Host::DetailsTitleOf(View.ToSharedRef()).IsEmpty());
	FDetailsViewArgs Args;
	Args.NameAreaSettings = static_cast<FDetailsViewArgs::ENameAreaSettings>(
		FDetailsViewArgs::ObjectsUseNameArea | FDetailsViewArgs::ActorsUseNameArea);
	Args.ColumnWidth = 0.6f;
	const TSharedRef<IDetailsView> Named = MakeView(Args);
	EXPECT_TRUE(Host::DetailsTitleOf(Named).IsEmpty());
	Named->SetObject(A);
	EXPECT_EQ(Host::DetailsTitleOf(Named).ToString(), A->GetName());
	Named->SetObjects(TArray<UObject*>({A, B}));
	EXPECT_EQ(Host::DetailsTitleOf(Named).ToString(), FString(TEXT("2 objects")));
	EXPECT_EQ(Host::DetailsValueWidthOf(Named), 0.6f);
	EXPECT_TRUE(Host::DetailsViewHasSearch(Named));
	EXPECT_FALSE(Host::DetailsViewHasLock(Named));
	EXPECT_EQ(Host::DetailsModelOf(SNullWidget::NullWidget), nullptr);
}

TEST_F(DetailsModel, ALockedViewKeepsItsObjects)
{
	FDetailsViewArgs Args;
	Args.bLockable = true;
	const TSharedRef<IDetailsView> Lockable = MakeView(Args);
	Lockable->SetObject(A);
	Host::SetDetailsViewLocked(Lockable, true);
	EXPECT_TRUE(Lockable->IsLocked());
	Lockable->SetObject(B);
	EXPECT_EQ(Lockable->GetSelectedObjects()[0].Get(), A);
	Lockable->SetObjects(TArray<UObject*>({B}), false, true);
	EXPECT_EQ(Lockable->GetSelectedObjects()[0].Get(), B);
	Host::SetDetailsViewLocked(View.ToSharedRef(), true);
	EXPECT_FALSE(View->IsLocked());
}

TEST_F(DetailsModel, MovingAComponentMovesItInItsWorldAndUndoBringsItBack)
{
	USceneComponent* const Component = NewObject<USceneComponent>();
	View->SetObject(Component);
	EXPECT_EQ(Set(TEXT("RelativeLocation.Z"), TEXT("50")), "");
	EXPECT_EQ(Component->GetComponentLocation().Z, 50.0);
	GEditor->UndoTransaction();
	EXPECT_EQ(Component->GetComponentLocation().Z, 0.0);
}
