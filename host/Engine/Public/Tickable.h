// SPDX-License-Identifier: MIT
// Objects that tick without a world.
#pragma once

#include "CoreMinimal.h"
#include "Stats/Stats.h"

enum class ETickableTickType : uint8
{
	/** Asks IsTickable before each tick. */
	Conditional,
	Always,
	Never,
};

class FTickableObjectBase
{
public:
	virtual ~FTickableObjectBase() = default;

	/** @param DeltaTime  seconds */
	virtual void Tick(float DeltaTime) = 0;
	virtual TStatId GetStatId() const = 0;
	virtual bool IsTickable() const { return true; }
	virtual ETickableTickType GetTickableTickType() const { return ETickableTickType::Conditional; }
};
