// SPDX-License-Identifier: MIT
// The editing modes of one editor window.
#pragma once

#include "CoreMinimal.h"

class IToolkitHost;

/** Only the link to the host is modelled: no editor here has a mode beside its own. */
class FEditorModeTools
{
public:
	virtual ~FEditorModeTools();

	/** Once only. */
	void SetToolkitHost(TSharedRef<IToolkitHost> Host);
	bool HasToolkitHost() const { return ToolkitHost.IsValid(); }
	TSharedPtr<IToolkitHost> GetToolkitHost() const { return ToolkitHost.Pin(); }

private:
	TWeakPtr<IToolkitHost> ToolkitHost;
};
