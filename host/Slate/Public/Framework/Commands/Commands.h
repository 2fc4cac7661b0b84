// SPDX-License-Identifier: MIT
#pragma once

// Base of the tables of commands, one singleton a context.

#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"

/** Makes a command of the table; used inside RegisterCommands with LOCTEXT_NAMESPACE defined. */
#define UI_COMMAND(CommandId, FriendlyName, InDescription, CommandType, InDefaultChord, ...)                           \
	MakeUICommand_InternalUseOnly(this, CommandId, TEXT(LOCTEXT_NAMESPACE), TEXT(#CommandId),                          \
		TEXT(#CommandId "_ToolTip"), "." #CommandId, TEXT(FriendlyName), TEXT(InDescription), CommandType,             \
		InDefaultChord, ##__VA_ARGS__)

template <typename CommandContextType>
class TCommands : public FBindingContext
{
public:
	/** Makes the table, unless it is alive. A context that is known by its name is taken over. */
	static void Register()
	{
		if (Instance.IsValid())
		{
			return;
		}
		const TSharedRef<CommandContextType> NewInstance = MakeShareable(new CommandContextType());
		FInputBindingManager& Manager = FInputBindingManager::Get();
		const TSharedPtr<FBindingContext> Existing = Manager.GetContextByName(NewInstance->GetContextName());
		if (Existing.IsValid())
		{
			Manager.RemoveContextByName(NewInstance->GetContextName());
		}
		Manager.AddContext(NewInstance);
		Instance = NewInstance;
		NewInstance->RegisterCommands();
		CommandsChanged.Broadcast();
	}

	static bool IsRegistered() { return Instance.IsValid(); }

	/** The table; a failed check before Register. */
	static const CommandContextType& Get()
	{
		const TSharedPtr<CommandContextType> Pinned = Instance.Pin();
		checkf(Pinned.IsValid(), TEXT("A table of commands is used before it is registered"));
		return *Pinned;
	}

	static void Unregister()
	{
		if (const TSharedPtr<CommandContextType> Pinned = Instance.Pin())
		{
			FInputBindingManager::Get().RemoveContextByName(Pinned->GetContextName());
		}
		Instance.Reset();
	}

	static const FBindingContext& GetContext() { return Get(); }

	/** Makes each command of the table with UI_COMMAND. */
	virtual void RegisterCommands() = 0;

protected:
	TCommands(
		const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: FBindingContext(InContextName, InContextDesc, InContextParent, InStyleSetName)
	{
	}

private:
	/** The binding manager holds the strong reference. */
	static inline TWeakPtr<CommandContextType> Instance;
};
