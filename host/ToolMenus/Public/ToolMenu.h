// SPDX-License-Identifier: MIT
#pragma once

// A menu, a menu bar or a tool bar: its sections, its parent, and for a generated one its context.

#include "Framework/MultiBox/MultiBoxDefs.h"
#include "ToolMenuContext.h"
#include "ToolMenuSection.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "ToolMenu.generated.h"

class ISlateStyle;

UCLASS()
class TOOLMENUS_API UToolMenuBase : public UObject
{
	GENERATED_BODY()
};

/**
 * Either registered under a name, with what was added by code, or generated: put together of a registered menu, its
 * parents and its context, for one widget.
 */
UCLASS()
class TOOLMENUS_API UToolMenu : public UToolMenuBase
{
	GENERATED_BODY()

public:
	UToolMenu(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The section of that name; made when there is none. A label or a position that is given is taken over. */
	FToolMenuSection& AddSection(const FName SectionName, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const FToolMenuInsert InPosition = FToolMenuInsert());
	FToolMenuSection& FindOrAddSection(const FName SectionName);
	/** Null when there is none. */
	FToolMenuSection* FindSection(const FName SectionName);
	const FToolMenuSection* FindSection(const FName SectionName) const;
	void RemoveSection(const FName SectionName);

	/** Adds the section when it is missing. */
	void AddMenuEntry(const FName SectionName, const FToolMenuEntry& Args);
	/** Adds an entry for a sub menu and gives the menu that it opens, for filling. */
	UToolMenu* AddSubMenu(const FToolMenuOwner Owner, const FName SectionName, const FName InName,
		const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip = TAttribute<FText>());

	FName GetMenuName() const { return MenuName; }
	bool IsRegistered() const { return bRegistered; }
	bool IsRegistering() const { return !bRegistered && !bGenerated; }
	const ISlateStyle* GetStyleSet() const { return StyleSet; }
	/** @param InStyleSet  not owned; null for that of the application */
	void SetStyleSet(const ISlateStyle* InStyleSet) { StyleSet = InStyleSet; }

	template <typename TObjectType>
	TObjectType* FindContext() const
	{
		return Context.FindContext<TObjectType>();
	}

	FName MenuName;
	/** None for no parent. */
	FName MenuParent;
	FName StyleName;
	EMultiBoxType MenuType = EMultiBoxType::Menu;
	bool bShouldCloseWindowAfterMenuSelection = true;
	bool bCloseSelfOnly = false;
	bool bSearchable = true;
	bool bToolBarIsFocusable = false;
	bool bToolBarForceSmallIcons = false;
	FToolMenuOwner MenuOwner;
	/** Of a generated menu. */
	FToolMenuContext Context;
	TArray<FToolMenuSection> Sections;

private:
	friend class UToolMenus;

	void SetContext(const FToolMenuContext& InContext);

	const ISlateStyle* StyleSet = nullptr;
	bool bRegistered = false;
	bool bGenerated = false;
	/** Of a generated menu: the names whose entries it took, the own name last. */
	TArray<FName> SourceNames;

	/** Keeps the context's objects as long as the generated menu. */
	UPROPERTY(Transient)
	TArray<TObjectPtr<UObject>> ContextObjects;

	/** Of a generated menu: the sub menus that were opened last, by the name of their entry. */
	UPROPERTY(Transient)
	TMap<FName, TObjectPtr<UToolMenu>> OpenedSubMenus;
};
