// SPDX-License-Identifier: MIT
#include "ToolMenu.h"

#include "ToolMenuInsertion.h"
#include "ToolMenus.h"

UToolMenu::UToolMenu(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

FToolMenuSection& UToolMenu::AddSection(
	const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	FToolMenuSection New;
	New.InitSection(SectionName, InLabel, InPosition);
	if (FToolMenuSection* const Existing = FindSection(SectionName))
	{
		if (InLabel.IsSet())
		{
			Existing->Label = InLabel;
		}
		if (InPosition.IsDefault())
		{
			return *Existing;
		}
		New = *Existing;
		New.InsertPosition = InPosition;
		RemoveSection(SectionName);
	}
	const int32 Index = FindInsertIndex(Sections, InPosition);
	Sections.Insert(New, Index);
	return Sections[Index];
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName)
{
	FToolMenuSection* const Existing = FindSection(SectionName);
	return Existing ? *Existing : AddSection(SectionName);
}

FToolMenuSection* UToolMenu::FindSection(const FName SectionName)
{
	return Sections.FindByPredicate([&](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

const FToolMenuSection* UToolMenu::FindSection(const FName SectionName) const
{
	return Sections.FindByPredicate([&](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

void UToolMenu::RemoveSection(const FName SectionName)
{
	Sections.RemoveAll([&](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

void UToolMenu::AddMenuEntry(const FName SectionName, const FToolMenuEntry& Args)
{
	FindOrAddSection(SectionName).AddEntry(Args);
}

UToolMenu* UToolMenu::AddSubMenu(const FToolMenuOwner Owner, const FName SectionName, const FName InName,
	const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip)
{
	FToolMenuEntry Entry = FToolMenuEntry::InitSubMenu(InName, InLabel, InToolTip, FNewToolMenuChoice());
	Entry.Owner = Owner;
	AddMenuEntry(SectionName, Entry);
	return UToolMenus::Get()->ExtendMenu(UToolMenus::JoinMenuPaths(MenuName, InName));
}

void UToolMenu::SetContext(const FToolMenuContext& InContext)
{
	Context = InContext;
	ContextObjects.Reset();
	for (const TWeakObjectPtr<UObject>& Weak : Context.ContextObjects)
	{
		if (UObject* const Object = Weak.Get())
		{
			ContextObjects.Add(Object);
		}
	}
	for (FToolMenuSection& Section : Sections)
	{
		Section.Context = InContext;
	}
}
