// SPDX-License-Identifier: MIT

#include "Framework/Commands/Commands.h"

#include "Internationalization/Internationalization.h"

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
	Command->DefaultChords[static_cast<int32>(EMultipleKeyBindingIndex::Primary)] = InDefaultChord;
	Command->DefaultChords[static_cast<int32>(EMultipleKeyBindingIndex::Secondary)] = InAlternateDefaultChord;
	FInputBindingManager::Get().CreateInputCommand(InContext, Command);
	OutCommand = Command;
}

const FInputChord& FUICommandInfo::GetDefaultChord(const EMultipleKeyBindingIndex InChordIndex) const
{
	return DefaultChords[static_cast<int32>(InChordIndex)];
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

const TSharedRef<const FInputChord> FUICommandInfo::GetActiveChord(const EMultipleKeyBindingIndex InChordIndex) const
{
	return MakeShared<const FInputChord>(ActiveChords[static_cast<int32>(InChordIndex)]);
}

const TSharedRef<const FInputChord> FUICommandInfo::GetFirstValidChord() const
{
	for (const FInputChord& Chord : ActiveChords)
	{
		if (Chord.IsValidChord())
		{
			return MakeShared<const FInputChord>(Chord);
		}
	}
	return MakeShared<const FInputChord>();
}

bool FUICommandInfo::HasActiveChord(const FInputChord& InChord) const
{
	for (const FInputChord& Chord : ActiveChords)
	{
		if (Chord.IsValidChord() && Chord == InChord)
		{
			return true;
		}
	}
	return false;
}

void FUICommandInfo::SetActiveChord(const FInputChord NewChord, const EMultipleKeyBindingIndex InChordIndex)
{
	while (const TSharedPtr<FUICommandInfo> Former = FInputBindingManager::Get().FindConflict(*this, NewChord))
	{
		for (FInputChord& Chord : Former->ActiveChords)
		{
			if (Chord == NewChord)
			{
				Chord = FInputChord();
			}
		}
	}
	ActiveChords[static_cast<int32>(InChordIndex)] = NewChord;
}

void FUICommandInfo::RemoveActiveChord(const EMultipleKeyBindingIndex InChordIndex)
{
	ActiveChords[static_cast<int32>(InChordIndex)] = FInputChord();
}

FText FUICommandInfo::GetInputText() const
{
	return GetFirstValidChord()->GetInputText(false);
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
