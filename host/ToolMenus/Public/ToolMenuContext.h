// SPDX-License-Identifier: MIT
#pragma once

// What a menu is made for: command lists, extenders and the objects that its entries ask for.

#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtrTemplates.h"

/** Copied into the generated menu, which keeps the objects alive as long as its widget is there. */
struct TOOLMENUS_API FToolMenuContext
{
	FToolMenuContext() = default;
	/** @param InContext  null is passed over */
	FToolMenuContext(UObject* InContext) { AddObject(InContext); }
	FToolMenuContext(TSharedPtr<FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender = nullptr,
		UObject* InContext = nullptr);

	void AddObject(UObject* InObject);
	/** Commands that the lists so far lack are looked for in this one. */
	void AppendCommandList(const TSharedRef<FUICommandList>& InCommandList);
	void AppendCommandList(const TSharedPtr<FUICommandList>& InCommandList);
	void AddExtender(const TSharedPtr<FExtender>& InExtender);

	/** The first live object of that class; null when there is none. */
	template <typename TObjectType>
	TObjectType* FindContext() const
	{
		return static_cast<TObjectType*>(FindByClass(TObjectType::StaticClass()));
	}
	UObject* FindByClass(UClass* InClass) const;

	/** All lists as one; empty when there are none. */
	TSharedPtr<FUICommandList> GetCommandList() const { return CommandList; }
	/** All extenders as one; empty when there are none. */
	TSharedPtr<FExtender> GetAllExtenders() const;

private:
	friend class UToolMenu;

	TArray<TWeakObjectPtr<UObject>> ContextObjects;
	TArray<TSharedPtr<FUICommandList>> CommandLists;
	/** Asks all of CommandLists. */
	TSharedPtr<FUICommandList> CommandList;
	TArray<TSharedPtr<FExtender>> Extenders;
};
