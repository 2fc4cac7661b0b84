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
	/** The command that a chord means in the context or, with `bCheckDefault`, in one of its parents. */
	TSharedPtr<FUICommandInfo> FindCommandInContext(
		const FName InBindingContext, const FInputChord& InChord, bool bCheckParents = true) const;
	/** The context's commands in the order of registering. */
	void GetCommandInfosFromContext(
		const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const;

	/** Registers a command under its context. A second one of the same name is a failed check. */
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

	FInputBindingManager() = default;

	/** Registers a context by its name, in place of one of the same name; its commands stay. */
	void AddContext(const TSharedRef<FBindingContext>& InContext);

	TMap<FName, FContextEntry> Contexts;
};
