// SPDX-License-Identifier: MIT
/** Lets other code add to the menus and tool bars of the editor instance. */
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"
#include "Templates/SharedPointer.h"

class FExtender;
class FUICommandList;
class UObject;

/** Makes an extender for a command list and the objects being edited. */
DECLARE_DELEGATE_RetVal_TwoParams(
	TSharedRef<FExtender>, FZEFEditorExtender, const TSharedRef<FUICommandList>, const TArray<UObject*>&);

/** Collects extenders, and delegates that make one when they are needed. */
class FZEFExtensibilityManager
{
public:
	virtual ~FZEFExtensibilityManager();

	virtual void AddExtender(TSharedPtr<FExtender> Extender);

	/** Removes every entry that equals the argument. */
	virtual void RemoveExtender(TSharedPtr<FExtender> Extender);

	virtual TArray<FZEFEditorExtender>& GetExtenderDelegates();

	/** Everything added, then what each bound delegate makes, in order; a valid, empty extender when there is nothing.
	 */
	virtual TSharedPtr<FExtender> GetAllExtenders(
		const TSharedRef<FUICommandList>& Commands, const TArray<UObject*>& Objects);

	/** Everything added, without the delegates; a valid, empty extender when there is nothing. */
	virtual TSharedPtr<FExtender> GetAllExtenders();

private:
	TArray<TSharedPtr<FExtender>> Extenders;
	TArray<FZEFEditorExtender> ExtenderDelegates;
};

/** Whoever has a menu that others may extend. */
class IHasZEFMenuExtensibility
{
public:
	virtual ~IHasZEFMenuExtensibility() = default;
	virtual TSharedPtr<FZEFExtensibilityManager> GetMenuExtensibilityManager() = 0;
};

/** Whoever has a tool bar that others may extend. */
class IHasZEFToolBarExtensibility
{
public:
	virtual ~IHasZEFToolBarExtensibility() = default;
	virtual TSharedPtr<FZEFExtensibilityManager> GetToolBarExtensibilityManager() = 0;
};

/** Whoever has a second tool bar that others may extend. */
class IHasZEFSecondaryToolBarExtensibility
{
public:
	virtual ~IHasZEFSecondaryToolBarExtensibility() = default;
	virtual TSharedPtr<FZEFExtensibilityManager> GetSecondaryToolBarExtensibilityManager() = 0;
};
