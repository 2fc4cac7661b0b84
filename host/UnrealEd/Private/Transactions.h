// SPDX-License-Identifier: MIT
// The editor's history of transactions.
#pragma once

#include "ObjectValues.h"
#include "Templates/UniquePtr.h"
#include "UObject/GCObject.h"
#include "UObject/WeakObjectPtrTemplates.h"

namespace Host
{
/**
 * Transactions in the order in which they ended, each with the objects that it changed and their values before and
 * after. Objects are known weakly: what was destroyed meanwhile is not brought back.
 */
class FTransactions final : public FGCObject
{
public:
	/** Those within the outermost one are parts of it. @return index of the outermost in the history */
	int32 Begin(const FText& Title);
	/** @return index of the outermost in the history; INDEX_NONE when none is open */
	int32 End();
	/** Brings back what the open transactions from that one on have changed, and forgets them. */
	void Cancel(int32 Index);
	bool IsActive() const { return OpenCount > 0; }

	/** Keeps the object's values, once for each transaction. @return false when no transaction is open */
	bool Record(UObject& Object);

	bool CanUndo() const { return Position > 0 && !IsActive(); }
	bool CanRedo() const { return Position < History.Num() && !IsActive(); }
	/** @param bCanRedo  false forgets what was undone */
	void Undo(bool bCanRedo);
	void Redo();
	void Reset();

	/** Titles from the oldest on; those from Position on were undone. */
	TArray<FText> GetTitles() const;
	int32 GetPosition() const { return Position; }

	void AddReferencedObjects(FReferenceCollector& Collector) override;
	FString GetReferencerName() const override { return TEXT("Host::FTransactions"); }

private:
	struct FRecord
	{
		TWeakObjectPtr<UObject> Object;
		TUniquePtr<FObjectValues> Before;
		TUniquePtr<FObjectValues> After;
	};
	struct FTransaction
	{
		FText Title;
		TArray<FRecord> Records;
	};

	static void Apply(FTransaction& Transaction, bool bBefore);

	TArray<FTransaction> History;
	int32 Position = 0; // transactions before it can be undone, those from it on redone
	FTransaction Open;
	int32 OpenCount = 0;
};
} // namespace Host
