// SPDX-License-Identifier: MIT
// The editor windows that are open.
#pragma once

#include "CoreMinimal.h"
#include "Toolkits/IToolkit.h"

/** Keeps every registered toolkit alive until it is closed. */
class FToolkitManager
{
public:
	static FToolkitManager& Get();

	/** Keeps the toolkit and tells its host that it has come. */
	void RegisterNewToolkit(const TSharedRef<IToolkit> NewToolkit);
	/** Tells the host that the toolkit goes, and lets go of it. Nothing happens for one that is not registered. */
	void CloseToolkit(const TSharedRef<IToolkit> ClosingToolkit);
	/** Closes every toolkit that the host holds. */
	void OnToolkitHostDestroyed(IToolkitHost* HostBeingDestroyed);
	/** The toolkit that edits the asset; empty when there is none. */
	TSharedPtr<IToolkit> FindEditorForAsset(const UObject* Asset);

private:
	FToolkitManager() = default;

	TArray<TSharedPtr<IToolkit>> Toolkits;
};
