// SPDX-License-Identifier: MIT
// The scene of a world, for whoever draws it.
#pragma once

#include "CoreMinimal.h"
#include "SceneInterface.h"

class UActorComponent;

namespace Host
{
/** What a preview shows around its objects. */
struct FSceneSurroundings
{
	bool bFloor = true;
	/** cm below what stands in the scene. */
	float FloorOffset = 0.0f;
	bool bBackdrop = true;
	/** Yaw of the light from all sides, degrees. */
	float SkyRotation = 0.0f;

	bool operator==(const FSceneSurroundings&) const = default;
};

/**
 * Primitives and lights in the order in which they came. Each change of what is to be seen raises a revision, so that a
 * renderer copies only what is new. Game thread.
 */
class FScene : public FSceneInterface
{
public:
	struct FPrimitive
	{
		UPrimitiveComponent* Component; // not owned
		/** Differs from every other value that this scene has given, and changes with the component's mesh or material.
		 */
		uint64 Revision;
		/** As Revision, for the place. */
		uint64 TransformRevision;
	};

	explicit FScene(UWorld* InWorld)
		: World(InWorld)
	{
	}

	/** The scene of a world; null after the world's end. */
	static FScene* Of(const UWorld* World);

	void AddPrimitive(UPrimitiveComponent* Primitive) override;
	void RemovePrimitive(UPrimitiveComponent* Primitive) override;
	void UpdatePrimitiveTransform(UPrimitiveComponent* Primitive) override;
	UWorld* GetWorld() const override { return World; }
	ERHIFeatureLevel::Type GetFeatureLevel() const override;

	/** A primitive or a light looks different. */
	void Refresh(UActorComponent* Component);
	void AddLight(ULightComponentBase* Light);
	void RemoveLight(ULightComponentBase* Light);
	/** Everything looks different. */
	void RefreshAll();
	/** Something was selected, or is no longer; the meshes are as they were. */
	void UpdateSelection() { ++Revision; }
	void SetSurroundings(const FSceneSurroundings& NewSurroundings);
	const FSceneSurroundings& GetSurroundings() const { return Surroundings; }

	const TArray<FPrimitive>& GetPrimitives() const { return Primitives; }
	const TArray<ULightComponentBase*>& GetLights() const { return Lights; }
	/** Rises with every change of any kind. */
	uint64 GetRevision() const { return Revision; }

private:
	FPrimitive* Find(const UActorComponent* Component);

	UWorld* World; // owns this
	TArray<FPrimitive> Primitives;
	TArray<ULightComponentBase*> Lights;
	FSceneSurroundings Surroundings;
	uint64 Revision = 0;
};
} // namespace Host
