// SPDX-License-Identifier: MIT
#include "ObjectFixture.h"

#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{

class Reflection : public FObjectTest
{
protected:
	virtual void SetUp() override { Values = NewObject<UTestValues>(); }

	static FProperty* PropertyOf(const TCHAR* Name)
	{
		return UTestValues::StaticClass()->FindPropertyByName(FName(Name));
	}

	FString TextOf(const TCHAR* Name, int32 PortFlags = PPF_None) const
	{
		FString Text;
		PropertyOf(Name)->ExportTextItem_InContainer(Text, Values, nullptr, Values, PortFlags);
		return Text;
	}

	/** Whether the text was read to its end. */
	bool Import(const TCHAR* Name, const TCHAR* Text) const
	{
		const TCHAR* const End = PropertyOf(Name)->ImportText_InContainer(Text, Values, Values, PPF_None);
		return End && *End == 0;
	}

	UTestValues* Values = nullptr;
};

TEST_F(Reflection, ClassesKnowTheirNameFlagsAndSuper)
{
	const UClass* const Class = UTestBigPart::StaticClass();

	EXPECT_EQ(Class->GetName(), TEXT("TestBigPart"));
	EXPECT_EQ(Class->GetSuperClass(), UTestPart::StaticClass());
	EXPECT_EQ(Class->GetClass(), UClass::StaticClass());
	EXPECT_TRUE(Class->IsChildOf(UObject::StaticClass()));
	EXPECT_TRUE(Class->IsChildOf<UTestPart>());
	EXPECT_FALSE(UTestPart::StaticClass()->IsChildOf(Class));
	EXPECT_EQ(Class->GetPropertiesSize(), static_cast<int32>(sizeof(UTestBigPart)));
	EXPECT_TRUE(UTestNode::StaticClass()->HasAnyClassFlags(CLASS_Transient));
	EXPECT_TRUE(UTestShape::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
}

TEST_F(Reflection, SomeClassFlagsAreInherited)
{
	EXPECT_TRUE(UTestBigPart::StaticClass()->HasAllClassFlags(CLASS_DefaultToInstanced | CLASS_EditInlineNew));
	EXPECT_FALSE(UTestSquare::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
}

TEST_F(Reflection, DerivedClassesAreListed)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UTestNode::StaticClass(), Classes);

	EXPECT_EQ(Classes, TArray<UClass*>({UTestWitness::StaticClass()}));
}

TEST_F(Reflection, PropertiesComeInTheOrderOfTheHeaderAndThoseOfTheSuperLast)
{
	TArray<FName> Names;
	for (TFieldIterator<FProperty> It(UTestOwner::StaticClass()); It; ++It)
	{
		Names.Add(It->GetFName());
	}
	EXPECT_EQ(Names, TArray<FName>({TEXT("Part"), TEXT("Spares")}));

	Names.Empty();
	for (TFieldIterator<FProperty> It(FTestNamedSlot::StaticStruct()); It; ++It)
	{
		Names.Add(It->GetFName());
	}
	EXPECT_EQ(Names, TArray<FName>({TEXT("Label"), TEXT("Name"), TEXT("Held"), TEXT("Weights"), TEXT("Nested")}));

	int32 Own = 0;
	for (TFieldIterator<FProperty> It(FTestNamedSlot::StaticStruct(), EFieldIterationFlags::None); It; ++It)
	{
		++Own;
	}
	EXPECT_EQ(Own, 1);
}

TEST_F(Reflection, PropertiesKnowTheirKind)
{
	struct FCase
	{
		const TCHAR* Name;
		const FFieldClass* Kind;
		const TCHAR* CppType;
	};
	const FCase Cases[] = {
		{TEXT("Warmth"), FFloatProperty::StaticClass(), TEXT("float")},
		{TEXT("Area"), FDoubleProperty::StaticClass(), TEXT("double")},
		{TEXT("Threads"), FIntProperty::StaticClass(), TEXT("int32")},
		{TEXT("Level"), FByteProperty::StaticClass(), TEXT("uint8")},
		{TEXT("bUseMikkTSpace"), FBoolProperty::StaticClass(), TEXT("bool")},
		{TEXT("bFirst"), FBoolProperty::StaticClass(), TEXT("bool")},
		{TEXT("Text"), FStrProperty::StaticClass(), TEXT("FString")},
		{TEXT("Tag"), FNameProperty::StaticClass(), TEXT("FName")},
		{TEXT("Caption"), FTextProperty::StaticClass(), TEXT("FText")},
		{TEXT("Kind"), FEnumProperty::StaticClass(), TEXT("ETestKind")},
		{TEXT("Plain"), FByteProperty::StaticClass(), TEXT("TEnumAsByte<ETestPlain>")},
		{TEXT("Slot"), FStructProperty::StaticClass(), TEXT("FTestNamedSlot")},
		{TEXT("Numbers"), FArrayProperty::StaticClass(), TEXT("TArray<int32>")},
		{TEXT("Factors"), FMapProperty::StaticClass(), TEXT("TMap<FName,float>")},
		{TEXT("Tags"), FSetProperty::StaticClass(), TEXT("TSet<FName>")},
		{TEXT("Extent"), FStructProperty::StaticClass(), TEXT("FVector")},
		{TEXT("Seen"), FObjectProperty::StaticClass(), TEXT("UObject*")},
		{TEXT("PartClass"), FClassProperty::StaticClass(), TEXT("UClass*")},
		{TEXT("Hidden"), FIntProperty::StaticClass(), TEXT("int32")},
	};
	for (const FCase& Case : Cases)
	{
		const FProperty* const Property = PropertyOf(Case.Name);
		ASSERT_NE(Property, nullptr) << ToUtf8(Case.Name);
		EXPECT_EQ(Property->GetClass(), Case.Kind) << ToUtf8(Case.Name);
		EXPECT_EQ(Property->GetCPPType(), Case.CppType);
		EXPECT_EQ(Property->GetOwnerClass(), UTestValues::StaticClass());
	}
	EXPECT_EQ(PropertyOf(TEXT("NativeNumbers")), nullptr);
}

TEST_F(Reflection, CastFieldLooksAtTheKind)
{
	FProperty* const Property = PropertyOf(TEXT("Threads"));

	EXPECT_EQ(CastField<FNumericProperty>(Property), Property);
	EXPECT_EQ(CastField<FFloatProperty>(Property), nullptr);
	EXPECT_EQ(Property->GetClass()->GetName(), TEXT("IntProperty"));
}

TEST_F(Reflection, PropertiesCarryFlagsAndMetadata)
{
	const FProperty* const Warmth = PropertyOf(TEXT("Warmth"));

	EXPECT_TRUE(Warmth->HasAnyPropertyFlags(CPF_Edit));
	EXPECT_FALSE(Warmth->HasAnyPropertyFlags(CPF_EditConst));
	EXPECT_EQ(Warmth->GetMetaData(TEXT("Category")), TEXT("Cloth|Heat"));
	EXPECT_EQ(Warmth->GetFloatMetaData(TEXT("ClampMax")), 10.f);
	EXPECT_FALSE(Warmth->HasMetaData(TEXT("UIMax")));
	EXPECT_EQ(Warmth->GetToolTipText().ToString(), TEXT("How warm it keeps."));
	EXPECT_TRUE(PropertyOf(TEXT("Seen"))->HasAllPropertyFlags(CPF_Edit | CPF_EditConst));
	EXPECT_TRUE(PropertyOf(TEXT("Scratch"))->HasAnyPropertyFlags(CPF_Transient));
	EXPECT_FALSE(PropertyOf(TEXT("Hidden"))->HasAnyPropertyFlags(CPF_Edit));
	EXPECT_EQ(UTestValues::StaticClass()->GetMetaData(TEXT("HideCategories")), TEXT("Internal"));
	EXPECT_EQ(UTestValues::StaticClass()->GetToolTipText().ToString(), TEXT("A property of every kind."));
}

TEST_F(Reflection, DisplayNamesAreGivenOrTheNameInWords)
{
	EXPECT_EQ(PropertyOf(TEXT("Threads"))->GetDisplayNameText().ToString(), TEXT("Number of Threads"));
	EXPECT_EQ(PropertyOf(TEXT("bUseMikkTSpace"))->GetDisplayNameText().ToString(), TEXT("Use Mikk TSpace"));
	EXPECT_EQ(PropertyOf(TEXT("PartClass"))->GetDisplayNameText().ToString(), TEXT("Part Class"));
}

TEST_F(Reflection, ReferencesToInstancedClassesAreEditedInLine)
{
	const FProperty* const Part = UTestOwner::StaticClass()->FindPropertyByName(TEXT("Part"));
	const FProperty* const Spares = UTestOwner::StaticClass()->FindPropertyByName(TEXT("Spares"));

	EXPECT_TRUE(Part->HasAnyPropertyFlags(CPF_InstancedReference));
	EXPECT_EQ(Part->GetMetaData(TEXT("EditInline")), TEXT("true"));
	EXPECT_TRUE(Spares->HasAnyPropertyFlags(CPF_InstancedReference));
	EXPECT_EQ(Spares->GetMetaData(TEXT("EditInline")), TEXT("true"));
	EXPECT_EQ(CastField<FObjectProperty>(Part)->PropertyClass, UTestPart::StaticClass());
	EXPECT_FALSE(PropertyOf(TEXT("Seen"))->HasAnyPropertyFlags(CPF_InstancedReference));
	EXPECT_FALSE(PropertyOf(TEXT("Seen"))->HasMetaData(TEXT("EditInline")));
}

TEST_F(Reflection, ValuesAreWrittenAsText)
{
	Values->Text = TEXT("a \"b\"");
	Values->Tag = TEXT("Tag");
	Values->Caption = FText::FromString(TEXT("Caption"));
	Values->Numbers = {1, -2};
	Values->Factors.Add(TEXT("A"), 0.1f);
	Values->Tags.Add(TEXT("Soft"));
	Values->Slot.Name = TEXT("Left");
	Values->Slot.Label = TEXT("x,y");
	Values->Seen = Values->GetPackage();

	EXPECT_EQ(TextOf(TEXT("Warmth")), TEXT("0.5"));
	EXPECT_EQ(TextOf(TEXT("Area")), TEXT("2.0"));
	EXPECT_EQ(TextOf(TEXT("Threads")), TEXT("12"));
	EXPECT_EQ(TextOf(TEXT("bUseMikkTSpace")), TEXT("True"));
	EXPECT_EQ(TextOf(TEXT("bFirst")), TEXT("False"));
	EXPECT_EQ(TextOf(TEXT("bSecond")), TEXT("True"));
	EXPECT_EQ(TextOf(TEXT("Text")), TEXT("a \"b\""));
	EXPECT_EQ(TextOf(TEXT("Text"), PPF_Delimited), TEXT("\"a \\\"b\\\"\""));
	EXPECT_EQ(TextOf(TEXT("Caption")), TEXT("Caption"));
	EXPECT_EQ(TextOf(TEXT("Kind")), TEXT("Woven"));
	EXPECT_EQ(TextOf(TEXT("Plain")), TEXT("Second"));
	EXPECT_EQ(TextOf(TEXT("Numbers")), TEXT("(1,-2)"));
	EXPECT_EQ(TextOf(TEXT("Factors")), TEXT("((\"A\", 0.1))"));
	EXPECT_EQ(TextOf(TEXT("Tags")), TEXT("(\"Soft\")"));
	EXPECT_EQ(
		TextOf(TEXT("Slot")), TEXT("(Label=\"x,y\",Name=\"Left\",Held=None,Weights[0]=0.0,Weights[1]=0.0,Nested=())"));
	EXPECT_EQ(TextOf(TEXT("Extent")), TEXT("(X=1.0,Y=2.0,Z=3.0)"));
	EXPECT_EQ(TextOf(TEXT("Seen")), TEXT("/Engine/Transient"));
	EXPECT_EQ(TextOf(TEXT("PartClass")), TEXT("None"));
}

TEST_F(Reflection, ValuesAreReadFromText)
{
	EXPECT_TRUE(Import(TEXT("Warmth"), TEXT(" 1.25")));
	EXPECT_TRUE(Import(TEXT("Area"), TEXT("1e-3")));
	EXPECT_TRUE(Import(TEXT("Threads"), TEXT("-7")));
	EXPECT_TRUE(Import(TEXT("Level"), TEXT("200")));
	EXPECT_TRUE(Import(TEXT("bUseMikkTSpace"), TEXT("False")));
	EXPECT_TRUE(Import(TEXT("bFirst"), TEXT("true")));
	EXPECT_TRUE(Import(TEXT("Text"), TEXT("plain, text")));
	EXPECT_TRUE(Import(TEXT("Tag"), TEXT("Tag_3")));
	EXPECT_TRUE(Import(TEXT("Caption"), TEXT("A caption")));
	EXPECT_TRUE(Import(TEXT("Kind"), TEXT("ETestKind::Knitted")));
	EXPECT_TRUE(Import(TEXT("Plain"), TEXT("First")));
	EXPECT_TRUE(Import(TEXT("Numbers"), TEXT("(4, 5,6)")));
	EXPECT_TRUE(Import(TEXT("Factors"), TEXT("((\"A\", 2.5),(B, 1))")));
	EXPECT_TRUE(Import(TEXT("Tags"), TEXT("(\"One\",\"Two\")")));
	EXPECT_TRUE(Import(TEXT("Slot"), TEXT("(Name=\"L)\",Weights[1]=2,Nested=((Name=In)),Label=\"q\")")));
	EXPECT_TRUE(Import(TEXT("Extent"), TEXT("(Y=-4)")));
	EXPECT_TRUE(Import(TEXT("Seen"), TEXT("/Engine/Transient")));
	EXPECT_TRUE(Import(TEXT("PartClass"), *UTestBigPart::StaticClass()->GetPathName()));

	EXPECT_EQ(Values->Warmth, 1.25f);
	EXPECT_EQ(Values->Area, 1e-3);
	EXPECT_EQ(Values->Threads, -7);
	EXPECT_EQ(Values->Level, 200);
	EXPECT_FALSE(Values->bUseMikkTSpace);
	EXPECT_EQ(Values->bFirst, 1);
	EXPECT_EQ(Values->bSecond, 1);
	EXPECT_EQ(Values->Text, TEXT("plain, text"));
	EXPECT_EQ(Values->Tag, FName(TEXT("Tag"), 4));
	EXPECT_EQ(Values->Caption.ToString(), TEXT("A caption"));
	EXPECT_EQ(Values->Kind, ETestKind::Knitted);
	EXPECT_EQ(Values->Plain, ETestPlain::First);
	EXPECT_EQ(Values->Numbers, TArray<int32>({4, 5, 6}));
	EXPECT_EQ(Values->Factors.FindRef(TEXT("A")), 2.5f);
	EXPECT_EQ(Values->Factors.FindRef(TEXT("B")), 1.f);
	EXPECT_TRUE(Values->Tags.Contains(FName(TEXT("Two"))));
	EXPECT_EQ(Values->Slot.Name, FName(TEXT("L)")));
	EXPECT_EQ(Values->Slot.Weights[1], 2.f);
	EXPECT_EQ(Values->Slot.Nested[0].Name, FName(TEXT("In")));
	EXPECT_EQ(Values->Slot.Label, TEXT("q"));
	EXPECT_EQ(Values->Extent, FVector(1, -4, 3));
	EXPECT_EQ(Values->Seen, GetTransientPackage());
	EXPECT_EQ(Values->PartClass.Get(), UTestBigPart::StaticClass());
}

TEST_F(Reflection, ATextThatIsNoValueChangesNothing)
{
	Values->Numbers = {1};

	EXPECT_FALSE(Import(TEXT("Warmth"), TEXT("warm")));
	EXPECT_FALSE(Import(TEXT("Threads"), TEXT("99999999999999999999")));
	EXPECT_FALSE(Import(TEXT("bFirst"), TEXT("maybe")));
	EXPECT_FALSE(Import(TEXT("Kind"), TEXT("Sewn")));
	EXPECT_FALSE(Import(TEXT("Numbers"), TEXT("(2,x)")));
	EXPECT_FALSE(Import(TEXT("Numbers"), TEXT("(2")));
	EXPECT_FALSE(Import(TEXT("Factors"), TEXT("((A, 1)")));
	EXPECT_FALSE(Import(TEXT("Slot"), TEXT("(Label=\"q\",Unknown=1)")));
	EXPECT_FALSE(Import(TEXT("Slot"), TEXT("(Weights[2]=1)")));
	EXPECT_FALSE(Import(TEXT("Extent"), TEXT("(X=5,Y=)")));
	EXPECT_FALSE(Import(TEXT("Seen"), TEXT("/Game/Missing.Missing")));

	EXPECT_EQ(Values->Warmth, 0.5f);
	EXPECT_EQ(Values->Threads, 12);
	EXPECT_EQ(Values->bFirst, 0);
	EXPECT_EQ(Values->Kind, ETestKind::Woven);
	EXPECT_EQ(Values->Numbers, TArray<int32>({1}));
	EXPECT_EQ(Values->Factors.Num(), 0);
	EXPECT_EQ(Values->Slot.Label, TEXT(""));
	EXPECT_EQ(Values->Extent, FVector(1, 2, 3));
	EXPECT_EQ(Values->Seen, nullptr);
}

TEST_F(Reflection, ValuesAreCompared)
{
	const UTestValues* const Other = NewObject<UTestValues>();
	for (TFieldIterator<FProperty> It(UTestValues::StaticClass()); It; ++It)
	{
		EXPECT_TRUE(It->Identical_InContainer(Values, Other)) << ToUtf8(It->GetName());
	}
	Values->Text = TEXT("x");
	Values->Numbers.Add(1);
	Values->Factors.Add(TEXT("A"), 1.f);
	Values->Slot.Weights[1] = 1.f;
	Values->bSecond = 0;
	for (const TCHAR* Name : {TEXT("Text"), TEXT("Numbers"), TEXT("Factors"), TEXT("Slot"), TEXT("bSecond")})
	{
		EXPECT_FALSE(PropertyOf(Name)->Identical_InContainer(Values, Other)) << ToUtf8(Name);
	}
}

TEST_F(Reflection, ArraysAreChangedThroughTheirProperty)
{
	Values->Numbers = {1, 2, 3};
	const FArrayProperty* const Property = CastField<FArrayProperty>(PropertyOf(TEXT("Numbers")));
	FScriptArrayHelper Helper(Property, &Values->Numbers);

	const int32 Added = Helper.AddValue();
	CastField<FIntProperty>(Property->Inner)->SetPropertyValue(Helper.GetRawPtr(Added), 9);
	Helper.InsertValues(0);
	Helper.RemoveValues(2);

	EXPECT_EQ(Values->Numbers, TArray<int32>({0, 1, 3, 9}));
	EXPECT_EQ(Helper.GetRawPtr(4), nullptr);
	Helper.EmptyValues();
	EXPECT_EQ(Values->Numbers.Num(), 0);
}

TEST_F(Reflection, NumbersAreReadAndWrittenWithoutNamingTheirType)
{
	const FNumericProperty* const Threads = CastField<FNumericProperty>(PropertyOf(TEXT("Threads")));
	const FNumericProperty* const Warmth = CastField<FNumericProperty>(PropertyOf(TEXT("Warmth")));

	Threads->SetIntPropertyValue(&Values->Threads, 77);
	Warmth->SetNumericPropertyValueFromString(&Values->Warmth, TEXT("0.75"));

	EXPECT_TRUE(Threads->IsInteger());
	EXPECT_TRUE(Warmth->IsFloatingPoint());
	EXPECT_EQ(Values->Threads, 77);
	EXPECT_EQ(Threads->GetSignedIntPropertyValue(&Values->Threads), 77);
	EXPECT_EQ(Warmth->GetFloatingPointPropertyValue(&Values->Warmth), 0.75);
	EXPECT_EQ(Warmth->GetNumericPropertyValueToString(&Values->Warmth), TEXT("0.75"));
}

TEST_F(Reflection, EnumerationsKnowTheirValues)
{
	const UEnum* const Enum = StaticEnum<ETestKind>();

	ASSERT_NE(Enum, nullptr);
	EXPECT_EQ(Enum->GetName(), TEXT("ETestKind"));
	EXPECT_EQ(Enum->NumEnums(), 3);
	EXPECT_EQ(Enum->GetNameStringByValue(5), TEXT("Knitted"));
	EXPECT_EQ(Enum->GetNameByValue(5), FName(TEXT("ETestKind::Knitted")));
	EXPECT_EQ(Enum->GetDisplayNameTextByValue(1).ToString(), TEXT("Woven Cloth"));
	EXPECT_EQ(Enum->GetValueByNameString(TEXT("Woven")), 1);
	EXPECT_EQ(Enum->GetValueByNameString(TEXT("Sewn")), INDEX_NONE);
	EXPECT_FALSE(Enum->IsValidEnumValue(2));
	EXPECT_EQ(StaticEnum<ETestPlain::Type>()->GetName(), TEXT("ETestPlain"));
	EXPECT_EQ(StaticEnum<ETestPlain::Type>()->GetNameStringByIndex(1), TEXT("Second"));
}

TEST_F(Reflection, StructsKnowTheirNameAndSuper)
{
	EXPECT_EQ(FTestNamedSlot::StaticStruct()->GetName(), TEXT("TestNamedSlot"));
	EXPECT_EQ(FTestNamedSlot::StaticStruct()->GetSuperStruct(), FTestSlot::StaticStruct());
	EXPECT_EQ(FTestSlot::StaticStruct()->GetStructureSize(), static_cast<int32>(sizeof(FTestSlot)));
	EXPECT_EQ(TBaseStructure<FVector>::Get()->GetName(), TEXT("Vector"));
	EXPECT_EQ(TBaseStructure<FLinearColor>::Get()->FindPropertyByName(TEXT("A"))->GetCPPType(), TEXT("float"));
}

TEST_F(Reflection, AnEditIsBroadcast)
{
	struct FEvent
	{
		const UObject* Object;
		FName Property;
		uint32 Type;
	};
	TArray<FEvent> Events;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&Events](UObject* Object, FPropertyChangedEvent& Event) {
			Events.Add({Object, Event.GetPropertyName(), Event.ChangeType});
		});
	int32 Announced = 0;
	const FDelegateHandle PreHandle = FCoreUObjectDelegates::OnPreObjectPropertyChanged.AddLambda(
		[&Announced](UObject*, const FEditPropertyChain& Chain) { Announced = Announced * 10 + Chain.Num() + 1; });

	FPropertyChangedEvent Event(PropertyOf(TEXT("Threads")), EPropertyChangeType::ValueSet);
	Values->PreEditChange(PropertyOf(TEXT("Threads")));
	Values->PostEditChangeProperty(Event);
	Values->PreEditChange(nullptr);
	Values->PostEditChange();

	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
	FCoreUObjectDelegates::OnPreObjectPropertyChanged.Remove(PreHandle);
	ASSERT_EQ(Events.Num(), 2);
	EXPECT_EQ(Events[0].Object, Values);
	EXPECT_EQ(Events[0].Property, FName(TEXT("Threads")));
	EXPECT_EQ(Events[0].Type, EPropertyChangeType::ValueSet);
	EXPECT_EQ(Events[1].Property, FName());
	EXPECT_EQ(Announced, 21);
}

TEST_F(Reflection, ShownPropertiesAndUnmetConditionsForbidEditing)
{
	EXPECT_TRUE(Values->CanEditChange(PropertyOf(TEXT("Warmth"))));
	EXPECT_FALSE(Values->CanEditChange(PropertyOf(TEXT("Seen"))));
	EXPECT_TRUE(Values->CanEditChange(PropertyOf(TEXT("bSecond"))));
	Values->bFirst = 1;
	EXPECT_FALSE(Values->CanEditChange(PropertyOf(TEXT("bSecond"))));
}

} // namespace
