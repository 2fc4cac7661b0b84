// SPDX-License-Identifier: MIT
#include "Toolkits/ToolkitManager.h"

#include "Host/Toolkits.h"
#include "Toolkits/IToolkitHost.h"

FToolkitManager& FToolkitManager::Get()
{
	static FToolkitManager Instance;
	return Instance;
}

void FToolkitManager::RegisterNewToolkit(const TSharedRef<IToolkit> NewToolkit)
{
	check(!Toolkits.ContainsByPredicate(
		[&NewToolkit](const FHostedToolkit& Entry) { return Entry.Toolkit == NewToolkit; }));
	const TSharedRef<IToolkitHost> Host = NewToolkit->GetToolkitHost();
	Toolkits.Add({NewToolkit, &Host.Get()});
	Host->OnToolkitHostingStarted(NewToolkit);
}

void FToolkitManager::CloseToolkit(const TSharedRef<IToolkit> ClosingToolkit)
{
	const int32 NumRemoved =
		Toolkits.RemoveAll([&ClosingToolkit](const FHostedToolkit& Entry) { return Entry.Toolkit == ClosingToolkit; });
	if (NumRemoved > 0 && ClosingToolkit->IsHosted())
	{
		ClosingToolkit->GetToolkitHost()->OnToolkitHostingFinished(ClosingToolkit);
	}
}

void FToolkitManager::OnToolkitHostDestroyed(IToolkitHost* HostBeingDestroyed)
{
	const TArray<FHostedToolkit> Open = Toolkits;
	for (const FHostedToolkit& Entry : Open)
	{
		if (Entry.Host == HostBeingDestroyed)
		{
			CloseToolkit(Entry.Toolkit.ToSharedRef());
		}
	}
}

TSharedPtr<IToolkit> FToolkitManager::FindEditorForAsset(const UObject* Asset)
{
	for (const FHostedToolkit& Entry : Toolkits)
	{
		const TArray<UObject*>* const Edited = Entry.Toolkit->GetObjectsCurrentlyBeingEdited();
		if (Edited && Edited->Contains(const_cast<UObject*>(Asset)))
		{
			return Entry.Toolkit;
		}
	}
	return nullptr;
}

namespace Host
{
/** Lets the functions of the host look into the manager without its header saying more than the engine's does. */
struct FToolkitManagerAccess
{
	static TArray<TSharedPtr<IToolkit>> Open()
	{
		TArray<TSharedPtr<IToolkit>> Result;
		for (const FToolkitManager::FHostedToolkit& Entry : FToolkitManager::Get().Toolkits)
		{
			Result.Add(Entry.Toolkit);
		}
		return Result;
	}
};

TArray<TSharedPtr<IToolkit>> OpenToolkits()
{
	return FToolkitManagerAccess::Open();
}

void CloseAllToolkits()
{
	// Closing one may close others or open one more.
	for (TArray<TSharedPtr<IToolkit>> Open = OpenToolkits(); !Open.IsEmpty(); Open = OpenToolkits())
	{
		FToolkitManager::Get().CloseToolkit(Open[0].ToSharedRef());
	}
}
} // namespace Host
