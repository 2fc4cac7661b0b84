// SPDX-License-Identifier: MIT
#include "Host/Details.h"

#include "DetailsPath.h"
#include "UObject/UnrealType.h"

namespace Host
{
namespace
{
/** The class that all the objects are of. */
UClass* CommonClass(const TArray<UObject*>& Objects)
{
	UClass* Common = Objects.IsEmpty() ? nullptr : Objects[0]->GetClass();
	for (const UObject* const Object : Objects)
	{
		while (!Object->GetClass()->IsChildOf(Common))
		{
			Common = Common->GetSuperClass();
		}
	}
	return Common;
}

/** The words of the class's metadata of that name, and of the classes that it derives from. */
TArray<FString> WordsOf(const UClass* Class, const TCHAR* Key)
{
	TArray<FString> Words;
	for (; Class; Class = Class->GetSuperClass())
	{
		TArray<FString> Some;
		Class->GetMetaData(FName(Key)).Replace(TEXT(","), TEXT(" ")).ParseIntoArray(Some, TEXT(" "));
		Words.Append(Some);
	}
	return Words;
}

bool IsShown(const FProperty& Property, const TArray<UObject*>& Objects)
{
	if (!Property.HasAnyPropertyFlags(CPF_Edit))
	{
		return false;
	}
	for (const UObject* const Object : Objects)
	{
		const bool bTemplate = Object->HasAnyFlags(RF_ClassDefaultObject | RF_ArchetypeObject);
		if (Property.HasAnyPropertyFlags(bTemplate ? CPF_DisableEditOnTemplate : CPF_DisableEditOnInstance))
		{
			return false;
		}
	}
	return true;
}

/** "Lighting|Shadows" is a heading "Shadows" in "Lighting"; without a category the class's name serves. */
TArray<FString> CategoryOf(const FProperty& Property)
{
	TArray<FString> Parts;
	Property.GetMetaData(TEXT("Category")).ParseIntoArray(Parts, TEXT("|"));
	for (FString& Part : Parts)
	{
		Part = Part.TrimStartAndEnd();
	}
	if (Parts.IsEmpty())
	{
		Parts.Add(Property.GetOwnerStruct()->GetDisplayNameText().ToString());
	}
	return Parts;
}
} // namespace

FDetailsModel::FDetailsModel(FNotifyHook* NotifyHook)
	: Context(MakeShared<FDetailsContext>())
{
	Context->NotifyHook = NotifyHook;
}

FDetailsModel::~FDetailsModel() = default;

void FDetailsModel::SetObjects(const TArray<TWeakObjectPtr<UObject>>& Objects)
{
	Context->Objects = Objects;
	Refresh();
}

void FDetailsModel::Refresh()
{
	MakeCategories();
	ApplyFilter();
	++Context->Revision;
}

const TArray<FDetailsCategory>& FDetailsModel::GetCategories()
{
	const int32 Before = Context->Objects.Num();
	Context->Objects.RemoveAll([](const TWeakObjectPtr<UObject>& Object) { return !Object.IsValid(); });
	if (Context->Objects.Num() != Before)
	{
		Refresh();
	}
	return Categories;
}

uint64 FDetailsModel::GetRevision()
{
	for (const FDetailsCategory& Category : GetCategories())
	{
		for (const TSharedRef<FDetailsRow>& Row : Category.Rows)
		{
			Row->Update();
		}
	}
	return Context->Revision;
}

void FDetailsModel::MakeCategories()
{
	Categories.Empty();
	const TArray<UObject*> Objects = Context->GetLiving();
	const UClass* const Class = CommonClass(Objects);
	const TArray<FString> Hidden = WordsOf(Class, TEXT("HideCategories"));
	for (TFieldIterator<FProperty> It(Class); It; ++It)
	{
		const TArray<FString> Parts = CategoryOf(**It);
		if (!IsShown(**It, Objects) || Hidden.Contains(Parts[0]))
		{
			continue;
		}
		FDetailsCategory* Category = Categories.FindByPredicate(
			[&](const FDetailsCategory& Known) { return Known.Name.ToString() == Parts[0]; });
		if (!Category)
		{
			Category = &Categories.AddDefaulted_GetRef();
			Category->Name = FText::FromString(Parts[0]);
		}
		TArray<TSharedRef<FDetailsRow>>* Rows = &Category->Rows;
		FString GroupPath = Parts[0];
		for (int32 Depth = 1; Depth < Parts.Num(); ++Depth)
		{
			GroupPath += TEXT("|") + Parts[Depth];
			const TSharedRef<FDetailsRow>* Group =
				Rows->FindByPredicate([&](const TSharedRef<FDetailsRow>& Row) { return Row->GetPath() == GroupPath; });
			if (!Group)
			{
				Rows->Add(MakeShared<FDetailsRow>(Context, FText::FromString(Parts[Depth]), GroupPath));
				Group = &Rows->Last();
			}
			Rows = &(*Group)->Children;
		}
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			Rows->Add(MakeShared<FDetailsRow>(Context, FDetailsPath(*It, Index)));
		}
	}
	// Where it is comes first, whatever it is.
	const int32 Transform = Categories.IndexOfByPredicate(
		[](const FDetailsCategory& Category) { return Category.Name.ToString() == TEXT("Transform"); });
	if (Transform > 0)
	{
		FDetailsCategory First = MoveTemp(Categories[Transform]);
		Categories.RemoveAt(Transform);
		Categories.Insert(MoveTemp(First), 0);
	}
}

void FDetailsModel::SetFilter(const FText& NewFilter)
{
	Filter = NewFilter;
	ApplyFilter();
	++Context->Revision;
}

void FDetailsModel::ApplyFilter()
{
	TArray<FString> Words;
	Filter.ToString().ParseIntoArray(Words, TEXT(" "));
	for (FDetailsCategory& Category : Categories)
	{
		bool bNamed = true;
		for (const FString& Word : Words)
		{
			bNamed = bNamed && Category.Name.ToString().Contains(Word);
		}
		Category.bVisible = false;
		for (const TSharedRef<FDetailsRow>& Row : Category.Rows)
		{
			Category.bVisible |= Row->ApplyFilter(Words, bNamed);
		}
	}
}

TSharedPtr<FDetailsRow> FDetailsModel::FindRow(const FString& Path)
{
	TArray<TSharedRef<FDetailsRow>> Open;
	for (const FDetailsCategory& Category : GetCategories())
	{
		Open.Append(Category.Rows);
	}
	while (!Open.IsEmpty())
	{
		const TSharedRef<FDetailsRow> Row = Open.Pop();
		if (Row->GetPath() == Path)
		{
			return Row;
		}
		Open.Append(Row->GetChildren());
	}
	return nullptr;
}
} // namespace Host
