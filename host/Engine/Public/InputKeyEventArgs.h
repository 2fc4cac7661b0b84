// SPDX-License-Identifier: MIT
// A key event as a viewport gets it.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"
#include "InputCoreTypes.h"

class FViewport;

struct FInputKeyEventArgs
{
	FViewport* Viewport;
	FInputDeviceId InputDevice;
	int32 ControllerId;
	FKey Key;
	EInputEvent Event;
	/** 0..1 for keys that are pressed by degrees, else 1. */
	float AmountDepressed = 1.0f;
	bool bIsTouchEvent = false;

	FInputKeyEventArgs(FViewport* InViewport, int32 InControllerId, FKey InKey, EInputEvent InEvent)
		: Viewport(InViewport)
		, InputDevice(FInputDeviceId::CreateFromInternalId(InControllerId))
		, ControllerId(InControllerId)
		, Key(InKey)
		, Event(InEvent)
	{
	}
	FInputKeyEventArgs(FViewport* InViewport, FInputDeviceId InInputDevice, FKey InKey, EInputEvent InEvent,
		float InAmountDepressed, bool bInIsTouchEvent)
		: Viewport(InViewport)
		, InputDevice(InInputDevice)
		, ControllerId(InInputDevice.GetId())
		, Key(InKey)
		, Event(InEvent)
		, AmountDepressed(InAmountDepressed)
		, bIsTouchEvent(bInIsTouchEvent)
	{
	}
};
