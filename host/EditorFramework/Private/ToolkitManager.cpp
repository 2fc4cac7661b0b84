// SPDX-License-Identifier: MIT
#include "Toolkits/ToolkitManager.h"

#include "Toolkits/IToolkitHost.h"

FToolkitManager& FToolkitManager::Get()
{
	static FToolkitManager Instance;
	return Instance;
}

void FToolkitManager::RegisterNewToolkit(const TSharedRef<IToolkit> NewToolkit)
{
	check(!Toolkits.Contains(NewToolkit));
	Toolkits.Add(NewToolkit);
	NewToolkit->GetToolkitHost()->OnToolkitHostingStarted(NewToolkit);
}

void FToolkitManager::CloseToolkit(const TSharedRef<IToolkit> ClosingToolkit)
{
	if (Toolkits.Remove(ClosingToolkit) > 0 && ClosingToolkit->IsHosted())
	{
		ClosingToolkit->GetToolkitHost()->OnToolkitHostingFinished(ClosingToolkit);
	}
}

void FToolkitManager::OnToolkitHostDestroyed(IToolkitHost* HostBeingDestroyed)
{
	const TArray<TSharedPtr<IToolkit>> Open = Toolkits;
	for (const TSharedPtr<IToolkit>& Toolkit : Open)
	{
		if (Toolkit->IsHosted() && &Toolkit->GetToolkitHost().Get() == HostBeingDestroyed)
		{
			CloseToolkit(Toolkit.ToSharedRef());
		}
	}
}

TSharedPtr<IToolkit> FToolkitManager::FindEditorForAsset(const UObject* Asset)
{
	for (const TSharedPtr<IToolkit>& Toolkit : Toolkits)
	{
		const TArray<UObject*>* const Edited = Toolkit->GetObjectsCurrentlyBeingEdited();
		if (Edited && Edited->Contains(const_cast<UObject*>(Asset)))
		{
			return Toolkit;
		}
	}
	return nullptr;
}
