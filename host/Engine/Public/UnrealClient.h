// SPDX-License-Identifier: MIT
// A part of a window that a viewport client fills.
#pragma once

#include "CoreMinimal.h"
#include "HitProxies.h"
#include "InputCoreTypes.h"
#include "Templates/UniquePtr.h"
#include "ViewportClient.h"

namespace Host
{
struct FViewportAccess;
}

/** A picture on the screen, and the keys that go to it. */
class FViewport
{
public:
	explicit FViewport(FViewportClient* InViewportClient);
	virtual ~FViewport();

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

	/** Whether the pointer is shown over the viewport. */
	virtual void ShowCursor(bool bVisible) { (void)bVisible; }
	virtual bool IsCursorVisible() const { return true; }
	/** Mouse moves come to this viewport, wherever the pointer is. */
	virtual void CaptureMouse(bool bCapture) { (void)bCapture; }
	virtual bool HasMouseCapture() const { return false; }
	virtual bool HasFocus() const { return false; }

	/**
	 * What the client shows at a point.
	 *
	 * @param X, Y  pixels from the top left corner
	 * @return the viewport's own, valid until the next call or invalidation; null over nothing and outside
	 */
	HHitProxy* GetHitProxy(int32 X, int32 Y);

	/** The picture and what lies under its points are out of date. */
	void Invalidate()
	{
		InvalidateHitProxy();
		InvalidateDisplay();
	}
	virtual void InvalidateDisplay() { bDisplayDirty = true; }
	virtual void InvalidateHitProxy();

	/** Asks the client to fill the viewport; the picture is up to date then. */
	void Draw(bool bShouldPresent = true);

protected:
	friend struct Host::FViewportAccess;

	FViewportClient* ViewportClient;
	FIntPoint Size = FIntPoint(0, 0);
	bool bDisplayDirty = true;
	bool bHitProxiesDirty = true;
	/** Whether the picture being drawn was asked for by an invalidation. */
	bool bDrawingInvalidated = false;

private:
	TUniquePtr<HHitProxy> HitProxy;
	FIntPoint HitProxyPoint = FIntPoint(INDEX_NONE, INDEX_NONE);
};
