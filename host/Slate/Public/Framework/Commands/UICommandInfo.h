// SPDX-License-Identifier: MIT
#pragma once

// A command by itself: its name, texts, icon and keys, but not what it does.

#include "CoreMinimal.h"
#include "Framework/Commands/InputChord.h"
#include "Textures/SlateIcon.h"
#include "Types/SlateEnums.h"

/** A named set of commands, and the style set that their icons come from. */
class FBindingContext : public TSharedFromThis<FBindingContext>
{
public:
	/** @param InContextParent  name of the context whose keys count too, none for no parent */
	FBindingContext(
		const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: ContextName(InContextName)
		, ContextParent(InContextParent)
		, ContextDesc(InContextDesc)
		, StyleSetName(InStyleSetName)
	{
	}
	virtual ~FBindingContext() = default;

	FName GetContextName() const { return ContextName; }
	FName GetContextParent() const { return ContextParent; }
	FName GetStyleSetName() const { return StyleSetName; }
	const FText& GetContextDesc() const { return ContextDesc; }

	/** Broadcast when commands of any context came. */
	static FSimpleMulticastDelegate CommandsChanged;

private:
	FName ContextName;
	FName ContextParent;
	FText ContextDesc;
	FName StyleSetName;
};

class FUICommandInfo : public TSharedFromThis<FUICommandInfo>
{
public:
	explicit FUICommandInfo(const FName InBindingContext)
		: BindingContext(InBindingContext)
	{
	}

	/** Makes a command and registers it with the binding manager under its context. */
	static void MakeCommandInfo(const TSharedRef<FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand,
		const FName InCommandName, const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon,
		const EUserInterfaceActionType InUserInterfaceType, const FInputChord& InDefaultChord,
		const FInputChord& InAlternateDefaultChord = FInputChord());

	FName GetCommandName() const { return CommandName; }
	const FText& GetLabel() const { return Label; }
	const FText& GetDescription() const { return Description; }
	const FSlateIcon& GetIcon() const { return Icon; }
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }
	FName GetBindingContext() const { return BindingContext; }
	const FInputChord& GetDefaultChord(const EMultipleKeyBindingIndex InChordIndex) const;
	/** True when one of the two default chords is that one. */
	bool HasDefaultChord(const FInputChord& InChord) const;

	/**
	 * The keys that run the command now: the default ones until others are set, and none where another command of the
	 * same keys was there first.
	 */
	const TSharedRef<const FInputChord> GetActiveChord(const EMultipleKeyBindingIndex InChordIndex) const;
	/** The first active chord with a key; one without a key when there is none. */
	const TSharedRef<const FInputChord> GetFirstValidChord() const;
	bool HasActiveChord(const FInputChord& InChord) const;
	/** Takes the keys away from whatever command of the context, its parents and children they ran before. */
	void SetActiveChord(const FInputChord NewChord, const EMultipleKeyBindingIndex InChordIndex);
	void RemoveActiveChord(const EMultipleKeyBindingIndex InChordIndex);
	/** The active keys as a menu writes them; empty when there are none. */
	FText GetInputText() const;

private:
	friend class FInputBindingManager;

	static constexpr int32 NumChords = static_cast<int32>(EMultipleKeyBindingIndex::NumChords);

	FName BindingContext;
	FName CommandName;
	FText Label;
	FText Description;
	FSlateIcon Icon;
	EUserInterfaceActionType UserInterfaceType = EUserInterfaceActionType::Button;
	FInputChord DefaultChords[NumChords];
	FInputChord ActiveChords[NumChords];
};

/** What UI_COMMAND expands to; not called by hand. */
void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand,
	const TCHAR* InSubNamespace, const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip,
	const ANSICHAR* DotCommandName, const TCHAR* FriendlyName, const TCHAR* InDescription,
	const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
	const FInputChord& InAlternateDefaultChord = FInputChord());
