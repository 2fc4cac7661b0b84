// SPDX-License-Identifier: MIT
// What a details view shows: categories of rows, for whoever draws them.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FNotifyHook;
class FProperty;
class SWidget;
class UObject;

namespace Host
{
class FDetailsPath;
class FDetailsRow;
struct FDetailsContext;

/** How a value is edited. */
enum class EDetailsValue : uint8
{
	/** A check mark. */
	Bool,
	Integer,
	Number,
	String,
	/** One of GetChoices. */
	Choice,
	/** A reference: "None" or the path of an object. */
	Object,
	/** A colour with or without alpha; its parts are the children. */
	Color,
	/** Two to four numbers, which are the children. */
	Vector,
	Struct,
	Array,
	/** Sets and maps; shown, not edited. */
	Map,
	/** A heading for the rows below it. */
	Group,
};

/**
 * One property of all shown objects, or a part of one. Values are read when they are asked for: a row shows what the
 * objects hold at that moment.
 */
class FDetailsRow
{
public:
	FDetailsRow(const TSharedRef<FDetailsContext>& InContext, const FDetailsPath& InPath);
	/** A heading. */
	FDetailsRow(const TSharedRef<FDetailsContext>& InContext, const FText& InName, const FString& InGroupPath);
	~FDetailsRow();

	/** "Relative Location", "X", or the index of an array's element. */
	FText GetName() const;
	FText GetToolTip() const;
	/** Unique within the view and the same after a refresh, for instance "RelativeLocation.X" or "Slots[2].Name". */
	const FString& GetPath() const { return PathText; }
	EDetailsValue GetKind() const { return Kind; }
	/** Null for a heading. */
	FProperty* GetProperty() const;

	/** Whether the value cannot be changed: it is shown only, or its edit condition does not hold. */
	bool IsReadOnly() const;
	bool IsAdvanced() const;
	/** Whether the objects hold different values. */
	bool HasMultipleValues() const;
	/** The value as a person reads it; "Multiple Values" when the objects differ. */
	FText GetValueText() const;
	/** The value of a Bool; true for different values only when all are true. */
	bool IsChecked() const;
	/** A Color in sRGB; the first object's when they differ. */
	FColor GetColor() const;
	/** Names of the values of a Choice, in the order of the enumeration; hidden ones are left out. */
	TArray<FText> GetChoices() const;
	/** Limits of a number, when the property has any. */
	TOptional<double> GetMinimum() const;
	TOptional<double> GetMaximum() const;

	/**
	 * Sets the value of all objects, as one step of undo.
	 *
	 * @param Text       as GetValueText gives it, or as the engine writes the value
	 * @param OutReason  why the text is no such value; nothing is changed then
	 */
	bool SetValue(const FString& Text, FText& OutReason);

	/** Whether the value is another than that of the object's archetype; always false for elements and headings. */
	bool DiffersFromDefault() const;
	void ResetToDefault();

	/** Elements of an array can be added and removed; its size is the same in all objects then. */
	bool CanEditElements() const;
	/** Appends an element with its default value. */
	void AddElement();
	void RemoveElement(int32 Index);
	void RemoveAllElements();

	/** Parts of a struct, elements of an array, rows of a heading; the same objects while their number is the same. */
	const TArray<TSharedRef<FDetailsRow>>& GetChildren();
	bool IsExpanded() const;
	void SetExpanded(bool bExpanded);
	/** False when the filter leaves the row out. */
	bool IsVisible() const { return bVisible; }

private:
	friend class FDetailsModel;

	void MakeChildren();
	/** Looks at the arrays among the rows that exist. */
	void Update();
	bool ApplyFilter(const TArray<FString>& Words, bool bParentMatches);
	template <typename FunctionType>
	void Edit(const FText& Title, uint32 ChangeType, FunctionType&& Change);

	TSharedRef<FDetailsContext> Context;
	TUniquePtr<FDetailsPath> Path; // null for a heading
	FText GroupName;
	FString PathText;
	EDetailsValue Kind;
	TArray<TSharedRef<FDetailsRow>> Children;
	int32 ChildCount = INDEX_NONE; // of the value that the children were made for
	bool bVisible = true;
};

struct FDetailsCategory
{
	FText Name;
	TArray<TSharedRef<FDetailsRow>> Rows;
	bool bVisible = true;
};

/** The rows of one details view. */
class FDetailsModel
{
public:
	explicit FDetailsModel(FNotifyHook* NotifyHook);
	~FDetailsModel();

	void SetObjects(const TArray<TWeakObjectPtr<UObject>>& Objects);
	/** Makes all rows anew; what is expanded stays so. */
	void Refresh();
	/** In the order in which they are shown. Rows of objects that died are gone. */
	const TArray<FDetailsCategory>& GetCategories();
	/** Rises when rows come or go, also by undo or by other code, so that whoever draws them knows. */
	uint64 GetRevision();

	/** Rows whose name, or whose category's name, has all the words; empty shows all. */
	void SetFilter(const FText& Filter);
	FText GetFilter() const { return Filter; }

	/** The row of that path, whether it is visible or not; empty when there is none. */
	TSharedPtr<FDetailsRow> FindRow(const FString& Path);

private:
	void MakeCategories();
	void ApplyFilter();

	TSharedRef<FDetailsContext> Context;
	TArray<FDetailsCategory> Categories;
	FText Filter;
};

/** What the view shows; null when the widget is no details view. */
FDetailsModel* DetailsModelOf(const TSharedRef<SWidget>& Widget);

/** What stands above the rows: the name of the object, or how many there are; empty when the view hides it. */
FText DetailsTitleOf(const TSharedRef<SWidget>& Widget);

/** Whether the view has a field for the filter, and a lock. */
bool DetailsViewHasSearch(const TSharedRef<SWidget>& Widget);
bool DetailsViewHasLock(const TSharedRef<SWidget>& Widget);
/** A locked view keeps its objects. */
void SetDetailsViewLocked(const TSharedRef<SWidget>& Widget, bool bLocked);
/** Share of the width that the values get, 0..1. */
float DetailsValueWidthOf(const TSharedRef<SWidget>& Widget);
} // namespace Host
