// SPDX-License-Identifier: MIT
#pragma once

// Additions to menus and tool bars that are built elsewhere.

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"

class FMenuBarBuilder;
class FMenuBuilder;
class FToolBarBuilder;
class FUICommandList;

namespace EExtensionHook
{
/** Where an addition goes, seen from the section or the entry that has the hook's name. */
enum Position : int
{
	Before,
	After,
	/** Inside the section, ahead of its entries. */
	First,
};
} // namespace EExtensionHook

DECLARE_DELEGATE_OneParam(FMenuExtensionDelegate, FMenuBuilder&);
DECLARE_DELEGATE_OneParam(FMenuBarExtensionDelegate, FMenuBarBuilder&);
DECLARE_DELEGATE_OneParam(FToolBarExtensionDelegate, FToolBarBuilder&);

/** One addition; handed back to whoever made it, for removing it. */
class FExtensionBase
{
public:
	virtual ~FExtensionBase() = default;

protected:
	FExtensionBase() = default;
};

/** A set of additions. A builder that was given the set asks it at each of its sections and entries. */
class FExtender
{
public:
	/**
	 * Each of the three adds one addition for one kind of builder. Additions of the same hook and position follow each
	 * other in the order of adding.
	 *
	 * @param CommandList  where the commands that the delegate adds are looked for; empty for the builder's own
	 */
	TSharedRef<const FExtensionBase> AddToolBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
		const TSharedPtr<FUICommandList>& CommandList, const FToolBarExtensionDelegate& ToolBarExtensionDelegate);
	TSharedRef<const FExtensionBase> AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
		const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate);
	TSharedRef<const FExtensionBase> AddMenuBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
		const TSharedPtr<FUICommandList>& CommandList, const FMenuBarExtensionDelegate& MenuBarExtensionDelegate);

	/** Nothing happens when the set does not have it. */
	void RemoveExtension(const TSharedRef<const FExtensionBase>& Extension);

	/** Runs the additions of that hook and position. An addition that is running is not run inside itself. */
	void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const;
	void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBarBuilder& MenuBarBuilder) const;
	void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FToolBarBuilder& ToolBarBuilder) const;

	/**
	 * One set with the additions of all, in their order. Empty pointers are passed over; no extenders give an empty
	 * set. What is added to one of them later does not reach the combination.
	 */
	static TSharedRef<FExtender> Combine(const TArray<TSharedPtr<FExtender>>& Extenders);

private:
	TArray<TSharedPtr<const FExtensionBase>> Extensions;
};
