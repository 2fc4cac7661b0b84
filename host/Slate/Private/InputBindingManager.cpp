// SPDX-License-Identifier: MIT

#include "Framework/Commands/InputBindingManager.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateCommands, Log, All);

FInputBindingManager& FInputBindingManager::Get()
{
	static FInputBindingManager Instance;
	return Instance;
}

TSharedPtr<FBindingContext> FInputBindingManager::GetContextByName(const FName& InContextName)
{
	const FContextEntry* Found = Contexts.Find(InContextName);
	return Found ? Found->Context : nullptr;
}

TSharedPtr<FUICommandInfo> FInputBindingManager::FindCommandInContext(
	const FName InBindingContext, const FName CommandName) const
{
	if (const FContextEntry* Found = Contexts.Find(InBindingContext))
	{
		for (const TSharedPtr<FUICommandInfo>& Command : Found->Commands)
		{
			if (Command->GetCommandName() == CommandName)
			{
				return Command;
			}
		}
	}
	return nullptr;
}

TSharedPtr<FUICommandInfo> FInputBindingManager::FindCommandInContext(
	const FName InBindingContext, const FInputChord& InChord, bool bCheckDefault) const
{
	if (const FContextEntry* Found = Contexts.Find(InBindingContext))
	{
		for (const TSharedPtr<FUICommandInfo>& Command : Found->Commands)
		{
			if (bCheckDefault ? Command->HasDefaultChord(InChord) : Command->HasActiveChord(InChord))
			{
				return Command;
			}
		}
	}
	return nullptr;
}

TSharedPtr<FUICommandInfo> FInputBindingManager::GetCommandInfoFromInputChord(
	const FName InBindingContext, const FInputChord& InChord, bool bCheckDefault) const
{
	TArray<FName> Asked;
	FName Context = InBindingContext;
	while (!Context.IsNone() && !Asked.Contains(Context))
	{
		if (const TSharedPtr<FUICommandInfo> Found = FindCommandInContext(Context, InChord, bCheckDefault))
		{
			return Found;
		}
		Asked.Add(Context);
		const FContextEntry* const Entry = Contexts.Find(Context);
		Context = Entry ? Entry->Context->GetContextParent() : NAME_None;
	}
	return nullptr;
}

void FInputBindingManager::GetKnownInputContexts(TArray<TSharedPtr<FBindingContext>>& OutInputContexts) const
{
	OutInputContexts.Empty();
	for (const auto& Pair : Contexts)
	{
		OutInputContexts.Add(Pair.Value.Context);
	}
}

bool FInputBindingManager::AreRelated(FName ContextA, FName ContextB) const
{
	const auto IsBelow = [this](FName Child, FName Parent)
	{
		TArray<FName> Asked;
		while (!Child.IsNone() && !Asked.Contains(Child))
		{
			if (Child == Parent)
			{
				return true;
			}
			Asked.Add(Child);
			const FContextEntry* const Entry = Contexts.Find(Child);
			Child = Entry ? Entry->Context->GetContextParent() : NAME_None;
		}
		return false;
	};
	return IsBelow(ContextA, ContextB) || IsBelow(ContextB, ContextA);
}

TSharedPtr<FUICommandInfo> FInputBindingManager::FindConflict(
	const FUICommandInfo& Command, const FInputChord& Chord) const
{
	if (!Chord.IsValidChord())
	{
		return nullptr;
	}
	for (const auto& Pair : Contexts)
	{
		if (!AreRelated(Pair.Key, Command.GetBindingContext()))
		{
			continue;
		}
		for (const TSharedPtr<FUICommandInfo>& Other : Pair.Value.Commands)
		{
			if (Other.Get() != &Command && Other->HasActiveChord(Chord))
			{
				return Other;
			}
		}
	}
	return nullptr;
}

void FInputBindingManager::GetCommandInfosFromContext(
	const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const
{
	const FContextEntry* Found = Contexts.Find(InBindingContext);
	OutCommandInfos = Found ? Found->Commands : TArray<TSharedPtr<FUICommandInfo>>();
}

void FInputBindingManager::AddContext(const TSharedRef<FBindingContext>& InContext)
{
	Contexts.FindOrAdd(InContext->GetContextName()).Context = InContext;
}

void FInputBindingManager::CreateInputCommand(
	const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo)
{
	FContextEntry& Entry = Contexts.FindOrAdd(InBindingContext->GetContextName());
	Entry.Context = InBindingContext;
	checkf(!FindCommandInContext(InBindingContext->GetContextName(), InCommandInfo->GetCommandName()).IsValid(),
		TEXT("The context '%s' has a command '%s' already"), *InBindingContext->GetContextName().ToString(),
		*InCommandInfo->GetCommandName().ToString());
	for (int32 Index = 0; Index < FUICommandInfo::NumChords; ++Index)
	{
		const FInputChord& Chord = InCommandInfo->DefaultChords[Index];
		if (const TSharedPtr<FUICommandInfo> Former = FindConflict(*InCommandInfo, Chord))
		{
			UE_LOG(LogSlateCommands, Warning,
				TEXT("The keys %s of the command '%s.%s' run '%s.%s' already; the new command has none"),
				*Chord.GetInputText(false).ToString(), *InCommandInfo->GetBindingContext().ToString(),
				*InCommandInfo->GetCommandName().ToString(), *Former->GetBindingContext().ToString(),
				*Former->GetCommandName().ToString());
			continue;
		}
		InCommandInfo->ActiveChords[Index] = Chord;
	}
	Entry.Commands.Add(InCommandInfo);
}

void FInputBindingManager::RemoveContextByName(const FName& InContextName)
{
	Contexts.Remove(InContextName);
}
