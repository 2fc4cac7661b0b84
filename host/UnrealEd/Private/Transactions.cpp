// SPDX-License-Identifier: MIT
#include "Transactions.h"

#include "UObject/Object.h"

namespace Host
{
namespace
{
constexpr int32 LongestHistory = 256; // transactions: more than anybody goes back
}

int32 FTransactions::Begin(const FText& Title)
{
	if (OpenCount++ == 0)
	{
		Open.Title = Title;
		Open.Records.Empty();
	}
	return Position;
}

int32 FTransactions::End()
{
	if (OpenCount == 0)
	{
		return INDEX_NONE;
	}
	if (--OpenCount > 0)
	{
		return Position;
	}
	for (int32 Index = Open.Records.Num() - 1; Index >= 0; --Index)
	{
		FRecord& Record = Open.Records[Index];
		const UObject* const Object = Record.Object.Get();
		if (!Object || Record.Before->IsEqualTo(*Object))
		{
			Open.Records.RemoveAt(Index);
			continue;
		}
		Record.After = MakeUnique<FObjectValues>(*Object);
	}
	History.SetNum(Position);
	History.Add(MoveTemp(Open));
	Open = FTransaction();
	if (History.Num() > LongestHistory)
	{
		History.RemoveAt(0);
	}
	Position = History.Num();
	return Position - 1;
}

void FTransactions::Cancel(int32 Index)
{
	if (OpenCount == 0 || Index != Position)
	{
		return;
	}
	// The inner ones are parts of the outermost: they go with it.
	OpenCount = 0;
	FTransaction Cancelled = MoveTemp(Open);
	Open = FTransaction();
	Apply(Cancelled, true);
}

bool FTransactions::Record(UObject& Object)
{
	if (OpenCount == 0)
	{
		return false;
	}
	const bool bKnown =
		Open.Records.ContainsByPredicate([&](const FRecord& Record) { return Record.Object.Get() == &Object; });
	if (!bKnown)
	{
		FRecord Record;
		Record.Object = &Object;
		Record.Before = MakeUnique<FObjectValues>(Object);
		Open.Records.Add(MoveTemp(Record));
	}
	return true;
}

void FTransactions::Apply(FTransaction& Transaction, bool bBefore)
{
	// Announced for all objects before any changes, so that none sees another half changed.
	for (const FRecord& Record : Transaction.Records)
	{
		if (UObject* const Object = Record.Object.Get())
		{
			Object->PreEditUndo();
		}
	}
	for (int32 Index = 0; Index < Transaction.Records.Num(); ++Index)
	{
		const FRecord& Record = Transaction.Records[bBefore ? Transaction.Records.Num() - 1 - Index : Index];
		UObject* const Object = Record.Object.Get();
		const TUniquePtr<FObjectValues>& Values = bBefore ? Record.Before : Record.After;
		if (Object && Values.IsValid())
		{
			Values->Restore(*Object);
		}
	}
	for (const FRecord& Record : Transaction.Records)
	{
		if (UObject* const Object = Record.Object.Get())
		{
			Object->PostEditUndo();
		}
	}
}

void FTransactions::Undo(bool bCanRedo)
{
	--Position;
	Apply(History[Position], true);
	if (!bCanRedo)
	{
		History.SetNum(Position);
	}
}

void FTransactions::Redo()
{
	Apply(History[Position], false);
	++Position;
}

void FTransactions::Reset()
{
	History.Empty();
	Position = 0;
}

TArray<FText> FTransactions::GetTitles() const
{
	TArray<FText> Titles;
	for (const FTransaction& Transaction : History)
	{
		Titles.Add(Transaction.Title);
	}
	return Titles;
}

void FTransactions::AddReferencedObjects(FReferenceCollector& Collector)
{
	const auto AddOf = [&Collector](FTransaction& Transaction)
	{
		for (FRecord& Record : Transaction.Records)
		{
			// The values of an object that is gone are of no use, and would keep others alive.
			if (!Record.Object.IsValid())
			{
				Record.Before.Reset();
				Record.After.Reset();
				continue;
			}
			for (const TUniquePtr<FObjectValues>* const Values : {&Record.Before, &Record.After})
			{
				if (Values->IsValid())
				{
					(*Values)->AddReferences(Collector);
				}
			}
		}
	};
	for (FTransaction& Transaction : History)
	{
		AddOf(Transaction);
	}
	AddOf(Open);
}
} // namespace Host
