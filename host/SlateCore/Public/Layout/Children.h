// SPDX-License-Identifier: MIT
#pragma once

// The children of a widget, in order.

#include "CoreMinimal.h"
#include "SlotBase.h"

class SWidget;

class FChildren
{
public:
	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	/** @param Index  0..Num() - 1 */
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const = 0;
	/** The slot of that child. */
	virtual const FSlotBase& GetSlotAt(int32 Index) const = 0;
};

/** The children of a leaf. */
class FNoChildren : public FChildren
{
public:
	static FNoChildren& Get();

	int32 Num() const override { return 0; }
	TSharedRef<SWidget> GetChildAt(int32 Index) const override;
	const FSlotBase& GetSlotAt(int32 Index) const override;
};

/** A list of slots of one type; the panel that holds the list owns the slots. */
template <typename SlotType>
class TPanelChildren : public FChildren
{
public:
	explicit TPanelChildren(SWidget* InOwner)
		: Owner(InOwner)
	{
	}

	int32 Num() const override { return Slots.Num(); }
	TSharedRef<SWidget> GetChildAt(int32 Index) const override { return Slots[Index]->GetWidget(); }
	const FSlotBase& GetSlotAt(int32 Index) const override { return *Slots[Index]; }

	const SlotType& operator[](int32 Index) const { return *Slots[Index]; }
	SlotType& operator[](int32 Index) { return *Slots[Index]; }

	/** Makes a slot of the arguments, at the end or before `Index`. */
	SlotType& AddSlot(const typename SlotType::FSlotArguments& Arguments, int32 Index = INDEX_NONE)
	{
		TSharedRef<SlotType> Slot = MakeShared<SlotType>();
		Slot->SetOwner(*Owner);
		Slot->Construct(Arguments);
		if (Index == INDEX_NONE || Index >= Slots.Num())
		{
			Slots.Add(Slot);
		}
		else
		{
			Slots.Insert(Slot, Index);
		}
		Changed();
		return *Slot;
	}

	void RemoveAt(int32 Index)
	{
		Slots.RemoveAt(Index);
		Changed();
	}
	/** Gives the slot another place. @param ToIndex  its index afterwards */
	void Move(int32 FromIndex, int32 ToIndex)
	{
		const TSharedRef<SlotType> Slot = Slots[FromIndex];
		Slots.RemoveAt(FromIndex);
		Slots.Insert(Slot, ToIndex);
		Changed();
	}

	/** Index of the slot that held the widget, or INDEX_NONE. */
	int32 Remove(const TSharedRef<SWidget>& Widget)
	{
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			if (Slots[Index]->GetWidget() == Widget)
			{
				RemoveAt(Index);
				return Index;
			}
		}
		return INDEX_NONE;
	}

	void Empty()
	{
		Slots.Empty();
		Changed();
	}

private:
	void Changed() { FSlotBase::TellOwner(*Owner); }

	SWidget* Owner;
	TArray<TSharedRef<SlotType>> Slots;
};

/** Exactly one slot, which is always there. */
template <typename SlotType>
class TSingleSlotChildren : public FChildren, public SlotType
{
public:
	int32 Num() const override { return 1; }
	TSharedRef<SWidget> GetChildAt(int32) const override { return SlotType::GetWidget(); }
	const FSlotBase& GetSlotAt(int32) const override { return *this; }
};
