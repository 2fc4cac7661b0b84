// SPDX-License-Identifier: MIT

#include "Framework/Commands/Commands.h"

#include "Framework/Commands/GenericCommands.h"
#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"

namespace
{
/** LOCTEXT for texts that are not literals here. */
FText MakeText(const TCHAR* Source, const TCHAR* Namespace, const TCHAR* Key)
{
	return FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(Source, Namespace, Key);
}
} // namespace

FSimpleMulticastDelegate FBindingContext::CommandsChanged;

void FUICommandInfo::MakeCommandInfo(const TSharedRef<FBindingContext>& InContext,
	TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName, const FText& InCommandLabel,
	const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType,
	const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord)
{
	const TSharedRef<FUICommandInfo> Command = MakeShared<FUICommandInfo>(InContext->GetContextName());
	Command->CommandName = InCommandName;
	Command->Label = InCommandLabel;
	Command->Description = InCommandDesc;
	Command->Icon = InIcon;
	Command->UserInterfaceType = InUserInterfaceType;
	Command->DefaultChords[static_cast<int>(EMultipleKeyBindingIndex::Primary)] = InDefaultChord;
	Command->DefaultChords[static_cast<int>(EMultipleKeyBindingIndex::Secondary)] = InAlternateDefaultChord;
	FInputBindingManager::Get().CreateInputCommand(InContext, Command);
	OutCommand = Command;
}

const FInputChord& FUICommandInfo::GetDefaultChord(const EMultipleKeyBindingIndex InChordIndex) const
{
	return DefaultChords[static_cast<int>(InChordIndex)];
}

FText FUICommandInfo::GetInputText() const
{
	for (const FInputChord& Chord : DefaultChords)
	{
		if (Chord.IsValidChord())
		{
			return Chord.GetInputText(false);
		}
	}
	return FText::GetEmpty();
}

bool FUICommandInfo::HasDefaultChord(const FInputChord& InChord) const
{
	for (const FInputChord& Chord : DefaultChords)
	{
		if (Chord.IsValidChord() && Chord == InChord)
		{
			return true;
		}
	}
	return false;
}

void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand,
	const TCHAR* InSubNamespace, const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip,
	const ANSICHAR* DotCommandName, const TCHAR* FriendlyName, const TCHAR* InDescription,
	const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
	const FInputChord& InAlternateDefaultChord)
{
	const FString Namespace =
		InSubNamespace && *InSubNamespace ? FString(TEXT("UICommands.")) + InSubNamespace : FString(TEXT("UICommands"));
	const FName IconKey(*(This->GetContextName().ToString() + FString(DotCommandName)));
	FUICommandInfo::MakeCommandInfo(This->AsShared(), OutCommand, FName(InCommandName),
		MakeText(FriendlyName, *Namespace, InCommandName),
		MakeText(InDescription, *Namespace, InCommandNameUnderscoreTooltip),
		FSlateIcon(This->GetStyleSetName(), IconKey), CommandType, InDefaultChord, InAlternateDefaultChord);
}

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
	const FName InBindingContext, const FInputChord& InChord, bool bCheckParents) const
{
	const FContextEntry* Found = Contexts.Find(InBindingContext);
	while (Found)
	{
		for (const TSharedPtr<FUICommandInfo>& Command : Found->Commands)
		{
			if (Command->HasDefaultChord(InChord))
			{
				return Command;
			}
		}
		const FName Parent = Found->Context->GetContextParent();
		Found = bCheckParents && !Parent.IsNone() ? Contexts.Find(Parent) : nullptr;
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
	Entry.Commands.Add(InCommandInfo);
}

void FInputBindingManager::RemoveContextByName(const FName& InContextName)
{
	Contexts.Remove(InContextName);
}

#define LOCTEXT_NAMESPACE "GenericCommands"

FGenericCommands::FGenericCommands()
	: TCommands<FGenericCommands>(TEXT("GenericCommands"),
		  NSLOCTEXT("GenericCommands", "Generic Commands", "Common Commands"), NAME_None,
		  FAppStyle::GetAppStyleSetName())
{
}

void FGenericCommands::RegisterCommands()
{
	UI_COMMAND(
		Cut, "Cut", "Cut selection", EUserInterfaceActionType::Button, FInputChord(EModifierKey::Control, EKeys::X));
	UI_COMMAND(
		Copy, "Copy", "Copy selection", EUserInterfaceActionType::Button, FInputChord(EModifierKey::Control, EKeys::C));
	UI_COMMAND(Paste, "Paste", "Paste clipboard contents", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::V));
	UI_COMMAND(Duplicate, "Duplicate", "Duplicate selection", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::D));
	UI_COMMAND(Undo, "Undo", "Undo the last action", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::Z));
	UI_COMMAND(Redo, "Redo", "Redo the last undone action", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::Y));
	UI_COMMAND(Delete, "Delete", "Delete current selection", EUserInterfaceActionType::Button,
		FInputChord(EKeys::Platform_Delete));
	UI_COMMAND(Rename, "Rename", "Rename current selection", EUserInterfaceActionType::Button, FInputChord(EKeys::F2));
	UI_COMMAND(SelectAll, "Select All", "Select everything", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::A));
}

#undef LOCTEXT_NAMESPACE
