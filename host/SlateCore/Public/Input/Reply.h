// SPDX-License-Identifier: MIT
#pragma once

// A widget's answer to an input event.

#include "CoreMinimal.h"

class FReply
{
public:
	/** The event ends here. */
	static FReply Handled() { return FReply(true); }
	/** The event goes on to the parent. */
	static FReply Unhandled() { return FReply(false); }

	bool IsEventHandled() const { return bIsHandled; }

private:
	explicit FReply(bool bInIsHandled)
		: bIsHandled(bInIsHandled)
	{
	}

	bool bIsHandled;
};
