// SPDX-License-Identifier: MIT
// A part of a window that a viewport client fills.
#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"
#include "ViewportClient.h"

class HHitProxy;

namespace Host
{
struct FViewportAccess;
}

/** A picture on the screen, and the keys that go to it. */
class FViewport
{
public:
	explicit FViewport(FViewportClient* InViewportClient)
		: ViewportClient(InViewportClient)
	{
	}
	virtual ~FViewport() = default;

	FViewport(const FViewport&) = delete;
	FViewport& operator=(const FViewport&) = delete;

	/** Not owned. */
	FViewportClient* GetClient() const { return ViewportClient; }
	/** Pixels. */
	FIntPoint GetSizeXY() const { return Size; }

	/** True while the key or button is held. */
	virtual bool KeyState(FKey Key) const = 0;
	/** Pixels from the top left corner. */
	virtual int32 GetMouseX() const = 0;
	virtual int32 GetMouseY() const = 0;

	/** The picture and what lies under its points are out of date. */
	void Invalidate()
	{
		InvalidateHitProxy();
		InvalidateDisplay();
	}
	virtual void InvalidateDisplay() { bDisplayDirty = true; }
	virtual void InvalidateHitProxy() { bHitProxiesDirty = true; }

	/** Asks the client to fill the viewport; the picture is up to date then. */
	void Draw(bool bShouldPresent = true);

protected:
	friend struct Host::FViewportAccess;

	FViewportClient* ViewportClient;
	FIntPoint Size = FIntPoint(0, 0);
	bool bDisplayDirty = true;
	bool bHitProxiesDirty = true;
};
