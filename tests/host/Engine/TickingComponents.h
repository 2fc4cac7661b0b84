// SPDX-License-Identifier: MIT
// Components that count what happens to them.
#pragma once

#include "Components/ActorComponent.h"

#include <functional>

#include "TickingComponents.generated.h"

UCLASS()
class UCountingComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UCountingComponent() { PrimaryComponentTick.bCanEverTick = true; }

	int32 Ticks = 0;
	float LastDelta = 0.0f;
	ELevelTick LastTickType = LEVELTICK_TimeOnly;
	int32 Registrations = 0;
	int32 Unregistrations = 0;
	std::function<void()> OnTick;

	void TickComponent(float DeltaTime, ELevelTick TickType, FActorComponentTickFunction*) override
	{
		++Ticks;
		LastDelta = DeltaTime;
		LastTickType = TickType;
		if (OnTick)
		{
			OnTick();
		}
	}

protected:
	void OnRegister() override
	{
		Super::OnRegister();
		++Registrations;
	}
	void OnUnregister() override
	{
		++Unregistrations;
		Super::OnUnregister();
	}
};
