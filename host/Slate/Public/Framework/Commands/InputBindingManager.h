// SPDX-License-Identifier: MIT
#pragma once

// All command contexts and their commands, by name.

#include "Framework/Commands/UICommandInfo.h"

/** Keeps every context that was registered alive, and with it the commands. */
class FInputBindingManager
{
public:
	static FInputBindingManager& Get();

	/** Empty when no context has that name. */
	TSharedPtr<FBindingContext> GetContextByName(const FName& InContextName);
	/** Empty when the context or the command is not known. */
	TSharedPtr<FUICommandInfo> FindCommandInContext(const FName InBindingContext, const FName CommandName) const;
	/**
	 * The command of the context, and of no other, that a chord runs.
	 *
	 * @param bCheckDefault  asks the default chords in place of the active ones
	 */
	TSharedPtr<FUICommandInfo> FindCommandInContext(
		const FName InBindingContext, const FInputChord& InChord, bool bCheckDefault) const;
	/** The same, and where the context has none, of its parents, the nearest first. */
	TSharedPtr<FUICommandInfo> GetCommandInfoFromInputChord(
		const FName InBindingContext, const FInputChord& InChord, bool bCheckDefault) const;
	/** The context's commands in the order of registering. */
	void GetCommandInfosFromContext(
		const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const;
	/** In the order of registering. */
	void GetKnownInputContexts(TArray<TSharedPtr<FBindingContext>>& OutInputContexts) const;

	/**
	 * Registers a command under its context. A second one of the same name is a failed check. Where its default keys
	 * run another command of the context, its parents or its children already, it gets none, with a line in the log.
	 */
	void CreateInputCommand(
		const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo);
	/** Drops a context and its commands. */
	void RemoveContextByName(const FName& InContextName);

private:
	struct FContextEntry
	{
		TSharedPtr<FBindingContext> Context;
		TArray<TSharedPtr<FUICommandInfo>> Commands;
	};

	template <typename CommandContextType>
	friend class TCommands;

	friend class FUICommandInfo;

	FInputBindingManager() = default;

	/** Whether both keys may mean different things at the same time, as one context is the other or lies below it. */
	bool AreRelated(FName ContextA, FName ContextB) const;
	/** The other command that has the chord active in a related context; empty when there is none. */
	TSharedPtr<FUICommandInfo> FindConflict(const FUICommandInfo& Command, const FInputChord& Chord) const;

	/** Registers a context by its name, in place of one of the same name; its commands stay. */
	void AddContext(const TSharedRef<FBindingContext>& InContext);

	TMap<FName, FContextEntry> Contexts;
};
