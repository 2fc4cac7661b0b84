// SPDX-License-Identifier: MIT
#include "Host/Details.h"

#include "DetailsPath.h"
#include "DetailsValue.h"
#include "Internationalization/Internationalization.h"
#include "Misc/NotifyHook.h"
#include "ScopedTransaction.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace Host
{
namespace
{
/** One value outside of any object. */
class FScratchValue
{
public:
	FScratchValue(const FProperty& InProperty, const void* Source)
		: Property(InProperty)
		, bBit(IsBit(InProperty))
		, Data(bBit ? nullptr : FMemory::Malloc(static_cast<SIZE_T>(InProperty.ElementSize), 16))
	{
		if (!bBit)
		{
			Property.InitializeValue(Data);
			Property.CopySingleValue(Data, Source);
		}
	}
	~FScratchValue()
	{
		if (!bBit)
		{
			Property.DestroyValue(Data);
			FMemory::Free(Data);
		}
	}
	FScratchValue(const FScratchValue&) = delete;
	FScratchValue& operator=(const FScratchValue&) = delete;

	/** A bit has no memory of its own. */
	static bool IsBit(const FProperty& Property)
	{
		const auto* const Bool = CastField<const FBoolProperty>(&Property);
		return Bool && !Bool->IsNativeBool();
	}

	bool Read(const FString& Text, UObject& Owner, FText& OutReason)
	{
		if (!bBit)
		{
			return ReadValue(Property, Text, Data, Owner, OutReason);
		}
		static const FBoolProperty Plain;
		return ReadValue(Plain, Text, &bBitValue, Owner, OutReason);
	}
	void WriteTo(void* Dest) const
	{
		if (bBit)
		{
			CastField<const FBoolProperty>(&Property)->SetPropertyValue(Dest, bBitValue);
		}
		else
		{
			Property.CopySingleValue(Dest, Data);
		}
	}

private:
	const FProperty& Property;
	bool bBit;
	bool bBitValue = false;
	void* Data;
};

FColor ColorOf(const FProperty& Property, const void* Value)
{
	return CastField<const FStructProperty>(&Property)->Struct->GetFName() == FName(TEXT("Color"))
			   ? *static_cast<const FColor*>(Value)
			   : static_cast<const FLinearColor*>(Value)->ToFColor(true);
}
} // namespace

FDetailsRow::FDetailsRow(const TSharedRef<FDetailsContext>& InContext, const FDetailsPath& InPath)
	: Context(InContext)
	, Path(MakeUnique<FDetailsPath>(InPath))
	, PathText(InPath.ToString())
	, Kind(KindOf(*InPath.Last()))
{
}

FDetailsRow::FDetailsRow(const TSharedRef<FDetailsContext>& InContext, const FText& InName, const FString& InGroupPath)
	: Context(InContext)
	, GroupName(InName)
	, PathText(InGroupPath)
	, Kind(EDetailsValue::Group)
{
}

FDetailsRow::~FDetailsRow() = default;

FProperty* FDetailsRow::GetProperty() const
{
	return Path.IsValid() ? Path->Last() : nullptr;
}

FText FDetailsRow::GetName() const
{
	if (!Path.IsValid())
	{
		return GroupName;
	}
	const bool bIndexed = Path->IsElement() || Path->Last()->ArrayDim > 1;
	const FText Name = Path->IsElement() ? FText::GetEmpty() : Path->Last()->GetDisplayNameText();
	return bIndexed ? FText::Format(LOCTEXT("IndexName", "{0} [{1}]"), Name, FText::AsNumber(Path->Index())) : Name;
}

FText FDetailsRow::GetToolTip() const
{
	return Path.IsValid() ? Path->Last()->GetToolTipText() : GroupName;
}

bool FDetailsRow::IsReadOnly() const
{
	if (!Path.IsValid() || Kind == EDetailsValue::Map || Kind == EDetailsValue::Group)
	{
		return true;
	}
	const TArray<UObject*> Objects = Context->GetLiving();
	for (const UObject* const Object : Objects)
	{
		if (!Object->CanEditChange(Path->First()))
		{
			return true;
		}
	}
	return Objects.IsEmpty() || Path->Last()->HasAnyPropertyFlags(CPF_EditConst) ||
		   Path->First()->HasAnyPropertyFlags(CPF_EditConst);
}

bool FDetailsRow::IsAdvanced() const
{
	return Path.IsValid() && Path->Last()->HasAnyPropertyFlags(CPF_AdvancedDisplay);
}

bool FDetailsRow::HasMultipleValues() const
{
	const void* First = nullptr;
	for (UObject* const Object : Path.IsValid() ? Context->GetLiving() : TArray<UObject*>())
	{
		const void* const Value = Path->Resolve(*Object);
		if (First && (!Value || !Path->Last()->Identical(First, Value, PPF_None)))
		{
			return true;
		}
		First = First ? First : Value;
	}
	return false;
}

FText FDetailsRow::GetValueText() const
{
	const TArray<UObject*> Objects = Context->GetLiving();
	const void* const Value = Path.IsValid() && !Objects.IsEmpty() ? Path->Resolve(*Objects[0]) : nullptr;
	if (!Value)
	{
		return FText::GetEmpty();
	}
	return HasMultipleValues() ? LOCTEXT("MultipleValues", "Multiple Values") : TextOf(*Path->Last(), Value);
}

bool FDetailsRow::IsChecked() const
{
	const TArray<UObject*> Objects = Context->GetLiving();
	if (Kind != EDetailsValue::Bool || Objects.IsEmpty())
	{
		return false;
	}
	for (UObject* const Object : Objects)
	{
		const void* const Value = Path->Resolve(*Object);
		if (!Value || !CastField<const FBoolProperty>(Path->Last())->GetPropertyValue(Value))
		{
			return false;
		}
	}
	return true;
}

FColor FDetailsRow::GetColor() const
{
	const TArray<UObject*> Objects = Context->GetLiving();
	const void* const Value = Kind == EDetailsValue::Color && !Objects.IsEmpty() ? Path->Resolve(*Objects[0]) : nullptr;
	return Value ? ColorOf(*Path->Last(), Value) : FColor(0, 0, 0, 0);
}

TArray<FText> FDetailsRow::GetChoices() const
{
	TArray<FText> Choices;
	if (Kind == EDetailsValue::Choice)
	{
		const UEnum& Enum = *EnumOf(*Path->Last());
		for (const int32 Index : ChoicesOf(Enum))
		{
			Choices.Add(Enum.GetDisplayNameTextByIndex(Index));
		}
	}
	return Choices;
}

TOptional<double> FDetailsRow::GetMinimum() const
{
	return Path.IsValid() ? LimitOf(*Path->Last(), TEXT("ClampMin")) : TOptional<double>();
}

TOptional<double> FDetailsRow::GetMaximum() const
{
	return Path.IsValid() ? LimitOf(*Path->Last(), TEXT("ClampMax")) : TOptional<double>();
}

template <typename FunctionType>
void FDetailsRow::Edit(const FText& Title, uint32 ChangeType, FunctionType&& Change)
{
	const FScopedTransaction Transaction(Title);
	const TArray<UObject*> Objects = Context->GetLiving();
	FEditPropertyChain Chain = Path->Chain();
	FProperty* const Property = Path->Last();
	if (Context->NotifyHook)
	{
		Context->NotifyHook->NotifyPreChange(Property);
		Context->NotifyHook->NotifyPreChange(&Chain);
	}
	for (UObject* const Object : Objects)
	{
		// What the user edits he can undo, wherever the object came from.
		Object->SetFlags(RF_Transactional);
		Object->PreEditChange(Chain);
		if (void* const Value = Path->Resolve(*Object))
		{
			Change(Value, *Object);
		}
	}
	FPropertyChangedEvent Event(Property, ChangeType);
	Event.MemberProperty = Path->First();
	for (UObject* const Object : Objects)
	{
		FPropertyChangedChainEvent ChainEvent(Chain, Event);
		Object->PostEditChangeChainProperty(ChainEvent);
	}
	if (Context->NotifyHook)
	{
		Context->NotifyHook->NotifyPostChange(Event, Property);
		Context->NotifyHook->NotifyPostChange(Event, &Chain);
	}
}

bool FDetailsRow::SetValue(const FString& Text, FText& OutReason)
{
	const TArray<UObject*> Objects = Context->GetLiving();
	void* const First = Path.IsValid() && !Objects.IsEmpty() ? Path->Resolve(*Objects[0]) : nullptr;
	if (!First || IsReadOnly())
	{
		OutReason = FText::Format(LOCTEXT("ReadOnly", "{0} cannot be edited here"), GetName());
		return false;
	}
	FScratchValue Wanted(*Path->Last(), First);
	if (!Wanted.Read(Text, *Objects[0], OutReason))
	{
		return false;
	}
	Edit(FText::Format(LOCTEXT("EditProperty", "Edit {0}"), Path->First()->GetDisplayNameText()),
		EPropertyChangeType::ValueSet, [&](void* Value, UObject&) { Wanted.WriteTo(Value); });
	return true;
}

bool FDetailsRow::DiffersFromDefault() const
{
	// An element has no counterpart of its own: it comes and goes with its array.
	if (!Path.IsValid() || PathText.Contains(TEXT("[")))
	{
		return false;
	}
	for (UObject* const Object : Context->GetLiving())
	{
		UObject* const Default = Object->GetArchetype();
		const void* const Value = Path->Resolve(*Object);
		const void* const DefaultValue = Default ? Path->Resolve(*Default) : nullptr;
		if (Value && DefaultValue && !Path->Last()->Identical(Value, DefaultValue, PPF_None))
		{
			return true;
		}
	}
	return false;
}

void FDetailsRow::ResetToDefault()
{
	if (IsReadOnly() || !DiffersFromDefault())
	{
		return;
	}
	Edit(FText::Format(LOCTEXT("ResetProperty", "Reset {0}"), Path->First()->GetDisplayNameText()),
		EPropertyChangeType::ValueSet,
		[this](void* Value, UObject& Object)
		{ Path->Last()->CopySingleValue(Value, Path->Resolve(*Object.GetArchetype())); });
}

bool FDetailsRow::CanEditElements() const
{
	if (Kind != EDetailsValue::Array || IsReadOnly() || Path->Last()->HasAnyPropertyFlags(CPF_EditFixedSize))
	{
		return false;
	}
	int32 Count = INDEX_NONE;
	for (UObject* const Object : Context->GetLiving())
	{
		const void* const Value = Path->Resolve(*Object);
		const int32 Here = Value ? FScriptArrayHelper(CastField<const FArrayProperty>(Path->Last()), Value).Num() : -2;
		if (Here < 0 || (Count != INDEX_NONE && Here != Count))
		{
			return false;
		}
		Count = Here;
	}
	return true;
}

void FDetailsRow::AddElement()
{
	if (CanEditElements())
	{
		Edit(LOCTEXT("AddElement", "Add Element"), EPropertyChangeType::ArrayAdd,
			[this](void* Value, UObject&)
			{ FScriptArrayHelper(CastField<const FArrayProperty>(Path->Last()), Value).AddValue(); });
	}
}

void FDetailsRow::RemoveElement(int32 Index)
{
	if (CanEditElements() && GetChildren().IsValidIndex(Index))
	{
		Edit(LOCTEXT("RemoveElement", "Remove Element"), EPropertyChangeType::ArrayRemove,
			[this, Index](void* Value, UObject&)
			{ FScriptArrayHelper(CastField<const FArrayProperty>(Path->Last()), Value).RemoveValues(Index); });
	}
}

void FDetailsRow::RemoveAllElements()
{
	if (CanEditElements())
	{
		Edit(LOCTEXT("RemoveAllElements", "Remove All Elements"), EPropertyChangeType::ArrayClear,
			[this](void* Value, UObject&)
			{ FScriptArrayHelper(CastField<const FArrayProperty>(Path->Last()), Value).EmptyValues(); });
	}
}

const TArray<TSharedRef<FDetailsRow>>& FDetailsRow::GetChildren()
{
	if (Kind == EDetailsValue::Group)
	{
		return Children;
	}
	int32 Count = 0;
	if (Kind == EDetailsValue::Array)
	{
		// Elements that not all objects have cannot be shown as one.
		Count = TNumericLimits<int32>::Max();
		for (UObject* const Object : Context->GetLiving())
		{
			const void* const Value = Path->Resolve(*Object);
			Count = FMath::Min(
				Count, Value ? FScriptArrayHelper(CastField<const FArrayProperty>(Path->Last()), Value).Num() : 0);
		}
		Count = Context->GetLiving().IsEmpty() ? 0 : Count;
	}
	if (ChildCount != Count)
	{
		// The first time is no change: nobody has seen the children yet.
		Context->Revision += ChildCount == INDEX_NONE ? 0 : 1;
		ChildCount = Count;
		MakeChildren();
	}
	return Children;
}

void FDetailsRow::Update()
{
	if (Kind == EDetailsValue::Group || ChildCount != INDEX_NONE)
	{
		for (const TSharedRef<FDetailsRow>& Child : GetChildren())
		{
			Child->Update();
		}
	}
}

void FDetailsRow::MakeChildren()
{
	Children.Empty();
	if (Kind == EDetailsValue::Array)
	{
		FProperty* const Inner = CastField<const FArrayProperty>(Path->Last())->Inner;
		for (int32 Index = 0; Index < ChildCount; ++Index)
		{
			Children.Add(MakeShared<FDetailsRow>(Context, Path->Element(Inner, Index)));
		}
		return;
	}
	const auto* const Property = CastField<const FStructProperty>(Path->Last());
	for (TFieldIterator<FProperty> It(Property ? Property->Struct : nullptr); It; ++It)
	{
		for (int32 Index = 0; It->HasAnyPropertyFlags(CPF_Edit) && Index < It->ArrayDim; ++Index)
		{
			Children.Add(MakeShared<FDetailsRow>(Context, Path->Member(*It, Index)));
		}
	}
}

bool FDetailsRow::IsExpanded() const
{
	return Kind == EDetailsValue::Group ? !Context->ExpandedPaths.Contains(TEXT("-") + PathText)
										: Context->ExpandedPaths.Contains(PathText);
}

void FDetailsRow::SetExpanded(bool bExpanded)
{
	// Headings are open from the beginning, values are closed: only the other state is kept.
	const bool bGroup = Kind == EDetailsValue::Group;
	const FString Key = bGroup ? TEXT("-") + PathText : PathText;
	if (bExpanded != bGroup)
	{
		Context->ExpandedPaths.Add(Key);
	}
	else
	{
		Context->ExpandedPaths.Remove(Key);
	}
}

bool FDetailsRow::ApplyFilter(const TArray<FString>& Words, bool bParentMatches)
{
	const FString Name = GetName().ToString();
	bool bMatches = bParentMatches;
	if (!bMatches)
	{
		bMatches = true;
		for (const FString& Word : Words)
		{
			bMatches = bMatches && Name.Contains(Word);
		}
	}
	bVisible = bMatches;
	for (const TSharedRef<FDetailsRow>& Child : GetChildren())
	{
		bVisible |= Child->ApplyFilter(Words, bMatches);
	}
	return bVisible;
}
} // namespace Host

#undef LOCTEXT_NAMESPACE
