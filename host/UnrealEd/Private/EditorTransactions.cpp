// SPDX-License-Identifier: MIT
// Undo and redo of the editor.
#include "Editor.h"

#include "EditorUndoClient.h"
#include "Logging/LogMacros.h"
#include "Transactions.h"

DEFINE_LOG_CATEGORY_STATIC(LogEditorTransaction, Log, All);

namespace
{
/** Clients may come and go while they are told. */
template <typename FunctionType>
void TellAll(const TArray<FEditorUndoClient*>& UndoClients, FunctionType&& Tell)
{
	const TArray<FEditorUndoClient*> Clients = UndoClients;
	for (FEditorUndoClient* const Client : Clients)
	{
		if (UndoClients.Contains(Client))
		{
			Tell(*Client);
		}
	}
}
} // namespace

int32 UEditorEngine::BeginTransaction(const FText& Description)
{
	return Transactions->Begin(Description);
}

int32 UEditorEngine::EndTransaction()
{
	return Transactions->End();
}

void UEditorEngine::CancelTransaction(int32 Index)
{
	Transactions->Cancel(Index);
}

bool UEditorEngine::IsTransactionActive() const
{
	return Transactions.IsValid() && Transactions->IsActive();
}

void UEditorEngine::ResetTransaction(const FText& Reason)
{
	UE_LOG(LogEditorTransaction, Log, TEXT("The undo history is emptied: %s"), *Reason.ToString());
	Transactions->Reset();
}

bool UEditorEngine::UndoTransaction(bool bCanRedo)
{
	if (!Transactions->CanUndo())
	{
		return false;
	}
	Transactions->Undo(bCanRedo);
	TellAll(UndoClients, [](FEditorUndoClient& Client) { Client.PostUndo(true); });
	return true;
}

bool UEditorEngine::RedoTransaction()
{
	if (!Transactions->CanRedo())
	{
		return false;
	}
	Transactions->Redo();
	TellAll(UndoClients, [](FEditorUndoClient& Client) { Client.PostRedo(true); });
	return true;
}
