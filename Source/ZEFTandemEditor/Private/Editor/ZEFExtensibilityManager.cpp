// SPDX-License-Identifier: MIT
#include "Editor/ZEFExtensibilityManager.h"

#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"

FZEFExtensibilityManager::~FZEFExtensibilityManager() = default;

void FZEFExtensibilityManager::AddExtender(TSharedPtr<FExtender> Extender)
{
	Extenders.Add(Extender);
}

void FZEFExtensibilityManager::RemoveExtender(TSharedPtr<FExtender> Extender)
{
	Extenders.Remove(Extender);
}

TArray<FZEFEditorExtender>& FZEFExtensibilityManager::GetExtenderDelegates()
{
	return ExtenderDelegates;
}

TSharedPtr<FExtender> FZEFExtensibilityManager::GetAllExtenders(
	const TSharedRef<FUICommandList>& Commands, const TArray<UObject*>& Objects)
{
	TArray<TSharedPtr<FExtender>> All = Extenders;
	for (const FZEFEditorExtender& MakeExtender : ExtenderDelegates)
	{
		if (MakeExtender.IsBound())
		{
			All.Add(MakeExtender.Execute(Commands, Objects));
		}
	}
	return FExtender::Combine(All);
}

TSharedPtr<FExtender> FZEFExtensibilityManager::GetAllExtenders()
{
	return FExtender::Combine(Extenders);
}
