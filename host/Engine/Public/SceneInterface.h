// SPDX-License-Identifier: MIT
// What a world shows.
#pragma once

#include "RHIFeatureLevel.h"

class ULightComponentBase;
class UPrimitiveComponent;
class UWorld;

/** The list of what stands in a world to be seen. Components put themselves in and take themselves out. */
class FSceneInterface
{
public:
	virtual ~FSceneInterface() = default;

	virtual void AddPrimitive(UPrimitiveComponent* Primitive) = 0;
	virtual void RemovePrimitive(UPrimitiveComponent* Primitive) = 0;
	virtual void UpdatePrimitiveTransform(UPrimitiveComponent* Primitive) = 0;
	virtual UWorld* GetWorld() const = 0;
	virtual ERHIFeatureLevel::Type GetFeatureLevel() const = 0;
};
