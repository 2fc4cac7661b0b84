// SPDX-License-Identifier: MIT
#include "ToolMenus.h"

#include "Logging/LogMacros.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogToolMenus, Log, All);

void UToolMenus::CollectHierarchy(const FName Name, TArray<FName>& OutNames) const
{
	TArray<FName> Chain;
	FName Next = Name;
	// A parent that is its own descendant ends the chain.
	while (!Next.IsNone() && !Chain.Contains(Next))
	{
		const TObjectPtr<UToolMenu>* const Menu = Menus.Find(Next);
		Chain.Insert(Next, 0);
		Next = Menu ? (*Menu)->MenuParent : NAME_None;
	}
	for (const FName Link : Chain)
	{
		OutNames.AddUnique(Link);
	}
}

UToolMenu* UToolMenus::GenerateMenu(const FName Name, const FToolMenuContext& InMenuContext)
{
	UToolMenu* const Generated = NewObject<UToolMenu>(GetTransientPackage(), NAME_None, RF_Transient);
	Generated->MenuName = Name;
	Generated->bGenerated = true;
	CollectHierarchy(Name, Generated->SourceNames);
	Generated->SetContext(InMenuContext);
	if (!FindMenu(Name))
	{
		UE_LOG(
			LogToolMenus, Warning, TEXT("Nobody registered or extended the menu '%s'; it is empty"), *Name.ToString());
	}
	AssembleMenu(*Generated);
	return Generated;
}

void UToolMenus::AssembleMenu(UToolMenu& Generated) const
{
	for (const FName Source : Generated.SourceNames)
	{
		const TObjectPtr<UToolMenu>* const Found = Menus.Find(Source);
		if (!Found)
		{
			continue;
		}
		const UToolMenu& Menu = **Found;
		if (Menu.bRegistered)
		{
			Generated.MenuType = Menu.MenuType;
			Generated.bShouldCloseWindowAfterMenuSelection = Menu.bShouldCloseWindowAfterMenuSelection;
			Generated.bCloseSelfOnly = Menu.bCloseSelfOnly;
			Generated.bSearchable = Menu.bSearchable;
			Generated.bToolBarIsFocusable |= Menu.bToolBarIsFocusable;
			Generated.bToolBarForceSmallIcons |= Menu.bToolBarForceSmallIcons;
		}
		if (!Menu.StyleName.IsNone())
		{
			Generated.StyleName = Menu.StyleName;
		}
		if (Menu.StyleSet)
		{
			Generated.StyleSet = Menu.StyleSet;
		}
		for (const FToolMenuSection& Section : Menu.Sections)
		{
			AssembleSection(Generated, Section);
		}
	}
	for (FToolMenuSection& Section : Generated.Sections)
	{
		Section.Context = Generated.Context;
	}
}

void UToolMenus::AssembleSection(UToolMenu& Generated, const FToolMenuSection& Source) const
{
	FToolMenuSection& Target = Generated.AddSection(Source.Name, Source.Label, Source.InsertPosition);
	Target.Owner = Source.Owner;
	// An entry may name a neighbour that comes behind it: those wait until the rest stands.
	TArray<FToolMenuEntry> Waiting;
	for (const FToolMenuEntry& Entry : Source.Blocks)
	{
		const bool bWaits =
			Entry.InsertPosition.IsBeforeOrAfter() && Target.IndexOfBlock(Entry.InsertPosition.Name) == INDEX_NONE;
		if (bWaits)
		{
			Waiting.Add(Entry);
		}
		else
		{
			Target.AddEntry(Entry);
		}
	}
	for (const FToolMenuEntry& Entry : Waiting)
	{
		Target.AddEntry(Entry);
	}
}

UToolMenu* UToolMenus::GenerateSubMenu(UToolMenu& Parent, const FToolMenuEntry& Entry)
{
	UToolMenu* const Generated = NewObject<UToolMenu>(GetTransientPackage(), NAME_None, RF_Transient);
	Generated->MenuName = JoinMenuPaths(Parent.MenuName, Entry.Name);
	Generated->bGenerated = true;
	Generated->bShouldCloseWindowAfterMenuSelection = Entry.bShouldCloseWindowAfterMenuSelection;
	// "Child.Window" also takes what "Parent.Window" has.
	for (const FName Source : Parent.SourceNames)
	{
		CollectHierarchy(JoinMenuPaths(Source, Entry.Name), Generated->SourceNames);
	}
	Generated->SetContext(Parent.Context);
	Parent.OpenedSubMenus.Add(Entry.Name, Generated);
	Entry.MakeMenu.NewToolMenu.ExecuteIfBound(Generated);
	AssembleMenu(*Generated);
	Generated->MenuType = EMultiBoxType::Menu;
	return Generated;
}
