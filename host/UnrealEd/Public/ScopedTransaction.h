// SPDX-License-Identifier: MIT
// A transaction that lasts as long as a scope.
#pragma once

#include "CoreMinimal.h"

class FScopedTransaction
{
public:
	/**
	 * @param SessionName              what Undo is offered as
	 * @param bShouldActuallyTransact  false opens nothing
	 */
	FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact = true);
	/** Ends the transaction, unless it was cancelled. */
	~FScopedTransaction();

	FScopedTransaction(const FScopedTransaction&) = delete;
	FScopedTransaction& operator=(const FScopedTransaction&) = delete;

	/** Brings back what was changed since the beginning; the transaction never was. */
	void Cancel();
	/** Whether the end of the scope will end a transaction. */
	bool IsOutstanding() const { return Index != INDEX_NONE; }

private:
	int32 Index = INDEX_NONE;
};
