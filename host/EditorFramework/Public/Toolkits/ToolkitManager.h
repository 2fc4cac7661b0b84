// SPDX-License-Identifier: MIT
// The editor windows that are open.
#pragma once

#include "CoreMinimal.h"
#include "Toolkits/IToolkit.h"

namespace Host
{
struct FToolkitManagerAccess;
}

/** Keeps every registered toolkit alive until it is closed. */
class FToolkitManager
{
public:
	static FToolkitManager& Get();

	/** Keeps the toolkit and tells its host that it has come. */
	void RegisterNewToolkit(const TSharedRef<IToolkit> NewToolkit);
	/** Tells the host that the toolkit goes, and lets go of it. Nothing happens for one that is not registered. */
	void CloseToolkit(const TSharedRef<IToolkit> ClosingToolkit);
	/** Lets go of every toolkit that the host holds; a host that can still be told of it is told. */
	void OnToolkitHostDestroyed(IToolkitHost* HostBeingDestroyed);
	/** The toolkit that edits the asset; empty when there is none. */
	TSharedPtr<IToolkit> FindEditorForAsset(const UObject* Asset);

private:
	friend struct Host::FToolkitManagerAccess;

	struct FHostedToolkit
	{
		TSharedPtr<IToolkit> Toolkit;
		/** Told apart by its address alone: it may be in its destructor. */
		const IToolkitHost* Host;
	};

	FToolkitManager() = default;

	TArray<FHostedToolkit> Toolkits;
};
