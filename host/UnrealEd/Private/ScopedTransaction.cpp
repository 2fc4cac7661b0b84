// SPDX-License-Identifier: MIT
#include "ScopedTransaction.h"

#include "Editor.h"

FScopedTransaction::FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact)
{
	if (bShouldActuallyTransact && GEditor)
	{
		Index = GEditor->BeginTransaction(SessionName);
	}
}

FScopedTransaction::~FScopedTransaction()
{
	if (IsOutstanding() && GEditor)
	{
		GEditor->EndTransaction();
	}
}

void FScopedTransaction::Cancel()
{
	if (IsOutstanding())
	{
		GEditor->CancelTransaction(Index);
		Index = INDEX_NONE;
	}
}
