// SPDX-License-Identifier: MIT
// A world of its own for an editor window, with light.
#pragma once

#include "CoreMinimal.h"
#include "UObject/GCObject.h"

class FSceneInterface;
class UActorComponent;
class UDirectionalLightComponent;
class USkyLightComponent;
class UWorld;

/** Keeps its world and every component that was added alive. The world ticks only when somebody ticks it. */
class FPreviewScene : public FGCObject
{
public:
	struct ConstructionValues
	{
		/** Degrees. */
		FRotator LightRotation;
		float LightBrightness;
		float SkyBrightness;
		bool bDefaultLighting;
		bool bCreatePhysicsScene;
		bool bShouldSimulatePhysics;
		bool bTransactional;
		bool bEditor;

		/** Light from above and all around, in an editor, with transactions and a physics scene. */
		ConstructionValues();

		ConstructionValues& SetLightRotation(const FRotator& Rotation);
		ConstructionValues& SetLightBrightness(const float Brightness);
		ConstructionValues& SetSkyBrightness(const float Brightness);
		ConstructionValues& SetCreateDefaultLighting(const bool bDefault);
		ConstructionValues& SetCreatePhysicsScene(const bool bCreate);
		ConstructionValues& ShouldSimulatePhysics(const bool bSimulate);
		ConstructionValues& SetTransactional(const bool bInTransactional);
		ConstructionValues& SetEditor(const bool bInEditor);
	};

	FPreviewScene(ConstructionValues CVS = ConstructionValues());
	virtual ~FPreviewScene();

	FPreviewScene(const FPreviewScene&) = delete;
	FPreviewScene& operator=(const FPreviewScene&) = delete;

	/**
	 * Lists the component, places it if it has a place, and registers it with the world unless it is registered.
	 * Adding the same component twice makes two entries.
	 *
	 * @param bAttachToRoot  attaches a scene component to the root of the world settings
	 */
	virtual void AddComponent(UActorComponent* Component, const FTransform& LocalToWorld, bool bAttachToRoot = false);
	/** Unregisters the component and drops one entry of it; the component lives on. */
	virtual void RemoveComponent(UActorComponent* Component);

	virtual UWorld* GetWorld() const;
	FSceneInterface* GetScene() const;

	void SetLightDirection(const FRotator& InLightDir);
	FRotator GetLightDirection() const;
	void SetLightBrightness(float LightBrightness);
	void SetSkyBrightness(float SkyBrightness);

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override;

	/** Both null without default lighting. */
	TObjectPtr<UDirectionalLightComponent> DirectionalLight;
	TObjectPtr<USkyLightComponent> SkyLight;

private:
	TArray<TObjectPtr<UActorComponent>> Components;

protected:
	TObjectPtr<UWorld> PreviewWorld;
};
