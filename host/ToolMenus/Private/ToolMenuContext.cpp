// SPDX-License-Identifier: MIT
#include "ToolMenuContext.h"

#include "UObject/Class.h"

FToolMenuContext::FToolMenuContext(
	TSharedPtr<FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, UObject* InContext)
{
	AppendCommandList(InCommandList);
	AddExtender(InExtender);
	AddObject(InContext);
}

void FToolMenuContext::AddObject(UObject* InObject)
{
	if (InObject)
	{
		ContextObjects.AddUnique(TWeakObjectPtr<UObject>(InObject));
	}
}

void FToolMenuContext::AppendCommandList(const TSharedRef<FUICommandList>& InCommandList)
{
	if (CommandLists.Contains(InCommandList))
	{
		return;
	}
	CommandLists.Add(InCommandList);
	// A list refers to appended ones weakly, and contexts are copied: each state gets a list of its own.
	CommandList = MakeShared<FUICommandList>();
	for (const TSharedPtr<FUICommandList>& List : CommandLists)
	{
		CommandList->Append(List.ToSharedRef());
	}
}

void FToolMenuContext::AppendCommandList(const TSharedPtr<FUICommandList>& InCommandList)
{
	if (InCommandList.IsValid())
	{
		AppendCommandList(InCommandList.ToSharedRef());
	}
}

void FToolMenuContext::AddExtender(const TSharedPtr<FExtender>& InExtender)
{
	if (InExtender.IsValid())
	{
		Extenders.AddUnique(InExtender);
	}
}

UObject* FToolMenuContext::FindByClass(UClass* InClass) const
{
	for (const TWeakObjectPtr<UObject>& Weak : ContextObjects)
	{
		UObject* const Object = Weak.Get();
		if (Object && Object->IsA(InClass))
		{
			return Object;
		}
	}
	return nullptr;
}

TSharedPtr<FExtender> FToolMenuContext::GetAllExtenders() const
{
	return Extenders.Num() == 0 ? nullptr : TSharedPtr<FExtender>(FExtender::Combine(Extenders));
}
