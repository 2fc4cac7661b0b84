// SPDX-License-Identifier: MIT
#include "DetailsValue.h"

#include "Internationalization/Internationalization.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace Host
{
namespace
{
bool IsNumeric(const FProperty& Property)
{
	return Property.IsA<FNumericProperty>();
}

/** Two to four numbers of one kind and nothing else. */
bool IsVector(const UScriptStruct& Struct)
{
	int32 Count = 0;
	for (TFieldIterator<FProperty> It(&Struct); It; ++It)
	{
		if (!IsNumeric(**It) || It->ArrayDim != 1)
		{
			return false;
		}
		++Count;
	}
	return Count >= 2 && Count <= 4 && Struct.GetFName() != FName(TEXT("Guid"));
}

FText TextOfNumber(const FNumericProperty& Property, const void* Value)
{
	// The shortest text that reads back as the same number, so that no digits are made up.
	return FText::FromString(Property.IsFloatingPoint()
								 ? FString::SanitizeFloat(Property.GetFloatingPointPropertyValue(Value))
								 : Property.GetNumericPropertyValueToString(Value));
}

FText TextOfVector(const UScriptStruct& Struct, const void* Value)
{
	FString Text;
	for (TFieldIterator<FProperty> It(&Struct); It; ++It)
	{
		Text += Text.IsEmpty() ? FString() : FString(TEXT(", "));
		Text += TextOf(**It, It->ContainerPtrToValuePtr<void>(Value)).ToString();
	}
	return FText::FromString(Text);
}

bool Refuse(FText& OutReason, const FText& Pattern, const FString& Text)
{
	OutReason = FText::Format(Pattern, FText::FromString(Text));
	return false;
}

bool ReadNumber(const FNumericProperty& Property, const FString& Text, void* Value, FText& OutReason)
{
	const FString Number = Text.TrimStartAndEnd();
	if (!Number.IsNumeric())
	{
		return Refuse(OutReason, LOCTEXT("NoNumber", "\"{0}\" is no number; write one such as 12 or -0.5"), Text);
	}
	const TOptional<double> Least = LimitOf(Property, TEXT("ClampMin"));
	const TOptional<double> Most = LimitOf(Property, TEXT("ClampMax"));
	if (Property.IsFloatingPoint())
	{
		double Result = FCString::Atod(*Number);
		Result = Least.IsSet() ? FMath::Max(Result, *Least) : Result;
		Result = Most.IsSet() ? FMath::Min(Result, *Most) : Result;
		Property.SetFloatingPointPropertyValue(Value, Result);
		return true;
	}
	if (Number.Contains(TEXT(".")))
	{
		return Refuse(OutReason, LOCTEXT("NoInteger", "\"{0}\" is no whole number; write one such as 12 or -3"), Text);
	}
	int64 Result = FCString::Atoi64(*Number);
	Result = Least.IsSet() ? FMath::Max(Result, int64(*Least)) : Result;
	Result = Most.IsSet() ? FMath::Min(Result, int64(*Most)) : Result;
	// What does not fit would come back as another number.
	const int64 Former = Property.GetSignedIntPropertyValue(Value);
	Property.SetIntPropertyValue(Value, Result);
	if (Property.GetSignedIntPropertyValue(Value) != Result)
	{
		Property.SetIntPropertyValue(Value, Former);
		return Refuse(OutReason, LOCTEXT("TooLarge", "{0} is outside of what this property holds"), Text);
	}
	return true;
}

bool ReadChoice(const FProperty& Property, const UEnum& Enum, const FString& Text, void* Value, FText& OutReason)
{
	for (const int32 Index : ChoicesOf(Enum))
	{
		if (Enum.GetDisplayNameTextByIndex(Index).ToString() == Text || Enum.GetNameStringByIndex(Index) == Text)
		{
			const int64 Chosen = Enum.GetValueByIndex(Index);
			if (const auto* const Enumeration = CastField<const FEnumProperty>(&Property))
			{
				Enumeration->SetValue(Value, Chosen);
			}
			else
			{
				CastField<const FByteProperty>(&Property)->SetIntPropertyValue(Value, Chosen);
			}
			return true;
		}
	}
	return Refuse(OutReason, LOCTEXT("NoChoice", "\"{0}\" is none of the values to choose from"), Text);
}
/** Numbers with commas between, as TextOfVector writes them. */
bool ReadVector(const UScriptStruct& Struct, const FString& Text, void* Value, FText& OutReason)
{
	TArray<FString> Parts;
	Text.ParseIntoArray(Parts, TEXT(","));
	int32 Index = 0;
	for (TFieldIterator<FProperty> It(&Struct); It; ++It, ++Index)
	{
		if (!Parts.IsValidIndex(Index))
		{
			return Refuse(OutReason, LOCTEXT("TooFewNumbers", "\"{0}\" has too few numbers"), Text);
		}
		if (!ReadNumber(*CastField<const FNumericProperty>(*It), Parts[Index], It->ContainerPtrToValuePtr<void>(Value),
				OutReason))
		{
			return false;
		}
	}
	return Index == Parts.Num() || Refuse(OutReason, LOCTEXT("TooManyNumbers", "\"{0}\" has too many numbers"), Text);
}
} // namespace

const UEnum* EnumOf(const FProperty& Property)
{
	if (const auto* const Enumeration = CastField<const FEnumProperty>(&Property))
	{
		return Enumeration->GetEnum();
	}
	const auto* const Byte = CastField<const FByteProperty>(&Property);
	return Byte ? Byte->Enum : nullptr;
}

int64 ChoiceOf(const FProperty& Property, const void* Value)
{
	const auto* const Enumeration = CastField<const FEnumProperty>(&Property);
	return Enumeration ? Enumeration->GetValue(Value)
					   : CastField<const FByteProperty>(&Property)->GetSignedIntPropertyValue(Value);
}

TArray<int32> ChoicesOf(const UEnum& Enum)
{
	TArray<int32> Choices;
	for (int32 Index = 0; Index < Enum.NumEnums(); ++Index)
	{
		if (!Enum.HasMetaData(TEXT("Hidden"), Index) && !Enum.GetNameStringByIndex(Index).EndsWith(TEXT("_MAX")))
		{
			Choices.Add(Index);
		}
	}
	return Choices;
}

EDetailsValue KindOf(const FProperty& Property)
{
	if (EnumOf(Property))
	{
		return EDetailsValue::Choice;
	}
	if (Property.IsA<FBoolProperty>())
	{
		return EDetailsValue::Bool;
	}
	if (const auto* const Number = CastField<const FNumericProperty>(&Property))
	{
		return Number->IsFloatingPoint() ? EDetailsValue::Number : EDetailsValue::Integer;
	}
	if (Property.IsA<FObjectPropertyBase>())
	{
		return EDetailsValue::Object;
	}
	if (Property.IsA<FArrayProperty>())
	{
		return EDetailsValue::Array;
	}
	if (Property.IsA<FMapPropertyBase>())
	{
		return EDetailsValue::Map;
	}
	if (const auto* const Struct = CastField<const FStructProperty>(&Property))
	{
		const FName Name = Struct->Struct ? Struct->Struct->GetFName() : FName();
		if (Name == FName(TEXT("Color")) || Name == FName(TEXT("LinearColor")))
		{
			return EDetailsValue::Color;
		}
		return Struct->Struct && IsVector(*Struct->Struct) ? EDetailsValue::Vector : EDetailsValue::Struct;
	}
	return EDetailsValue::String;
}

FText TextOf(const FProperty& Property, const void* Value)
{
	switch (KindOf(Property))
	{
		case EDetailsValue::Choice:
		{
			const UEnum& Enum = *EnumOf(Property);
			const int64 Number = ChoiceOf(Property, Value);
			return Enum.IsValidEnumValue(Number) ? Enum.GetDisplayNameTextByValue(Number)
												 : FText::FromString(FString::Printf(TEXT("%lld"), Number));
		}
		case EDetailsValue::Integer:
		case EDetailsValue::Number:
			return TextOfNumber(*CastField<const FNumericProperty>(&Property), Value);
		case EDetailsValue::Object:
		{
			const UObject* const Object =
				CastField<const FObjectPropertyBase>(&Property)->GetObjectPropertyValue(Value);
			return Object ? FText::FromString(Object->GetName()) : LOCTEXT("None", "None");
		}
		case EDetailsValue::Color:
		case EDetailsValue::Vector:
			return TextOfVector(*CastField<const FStructProperty>(&Property)->Struct, Value);
		case EDetailsValue::Struct:
			return FText::GetEmpty();
		case EDetailsValue::Array:
		{
			FScriptArrayHelper Array(CastField<const FArrayProperty>(&Property), const_cast<void*>(Value));
			return FText::Format(LOCTEXT("ArrayElements", "{0} Array elements"), FText::AsNumber(Array.Num()));
		}
		case EDetailsValue::Map:
			return FText::Format(LOCTEXT("MapElements", "{0} Map elements"),
				FText::AsNumber(CastField<const FMapPropertyBase>(&Property)->Num(Value)));
		case EDetailsValue::Bool:
		case EDetailsValue::String:
		case EDetailsValue::Group:
			break;
	}
	if (const auto* const Text = CastField<const FTextProperty>(&Property))
	{
		return Text->GetPropertyValue(Value);
	}
	FString Exported;
	Property.ExportTextItem_Direct(Exported, Value, nullptr, nullptr, PPF_None);
	return FText::FromString(Exported);
}

bool ReadValue(const FProperty& Property, const FString& Text, void* Value, UObject& Owner, FText& OutReason)
{
	if (const UEnum* const Enum = EnumOf(Property))
	{
		return ReadChoice(Property, *Enum, Text, Value, OutReason);
	}
	if (const auto* const Number = CastField<const FNumericProperty>(&Property))
	{
		return ReadNumber(*Number, Text, Value, OutReason);
	}
	// Taken as they are typed: quotes and commas are part of them.
	if (const auto* const String = CastField<const FStrProperty>(&Property))
	{
		String->SetPropertyValue(Value, Text);
		return true;
	}
	if (const auto* const Name = CastField<const FNameProperty>(&Property))
	{
		Name->SetPropertyValue(Value, FName(*Text));
		return true;
	}
	if (const auto* const Localised = CastField<const FTextProperty>(&Property))
	{
		Localised->SetPropertyValue(Value, FText::FromString(Text));
		return true;
	}
	const EDetailsValue Kind = KindOf(Property);
	if ((Kind == EDetailsValue::Vector || Kind == EDetailsValue::Color) &&
		!Text.TrimStartAndEnd().StartsWith(TEXT("(")))
	{
		return ReadVector(*CastField<const FStructProperty>(&Property)->Struct, Text, Value, OutReason);
	}
	const TCHAR* const End = Property.ImportText_Direct(*Text, Value, &Owner, PPF_None);
	if (!End || !FString(End).TrimStartAndEnd().IsEmpty())
	{
		return Property.IsA<FObjectPropertyBase>()
				   ? Refuse(OutReason,
						 LOCTEXT("NoObject", "There is no object \"{0}\" that fits here; write its path, or None"),
						 Text)
				   : Refuse(OutReason, LOCTEXT("NoValue", "\"{0}\" is no value of this property"), Text);
	}
	return true;
}

TOptional<double> LimitOf(const FProperty& Property, const TCHAR* Key)
{
	const FString* const Text = Property.FindMetaData(FName(Key));
	return Text && Text->IsNumeric() ? TOptional<double>(FCString::Atod(**Text)) : TOptional<double>();
}
} // namespace Host

#undef LOCTEXT_NAMESPACE
