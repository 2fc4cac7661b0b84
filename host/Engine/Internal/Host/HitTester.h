// SPDX-License-Identifier: MIT
// Finding what a picture shows at a point.
#pragma once

#include "CoreMinimal.h"
#include "HitProxies.h"
#include "Templates/UniquePtr.h"

class FSceneView;
class UPrimitiveComponent;

namespace Host
{
/** What a view shows at a point. */
struct FPrimitiveHit
{
	/** Not owned; null when nothing is there. */
	UPrimitiveComponent* Component = nullptr;
	/** Section of the mesh, and the material slot that it shows. */
	int32 SectionIndex = INDEX_NONE;
	int32 MaterialIndex = INDEX_NONE;
	/** In the world. */
	FVector Location = FVector(0.0, 0.0, 0.0);
	/** cm from where the ray begins. */
	double Distance = 0.0;

	bool IsHit() const { return Component != nullptr; }
};

/** Asked on the game thread, for each click. */
class IHitTester
{
public:
	virtual ~IHitTester() = default;

	/** @param Pixel  of the view, from its top left corner */
	virtual FPrimitiveHit HitTest(const FSceneView& View, const FIntPoint& Pixel) = 0;
};

/** Not owned; null brings back the host's own, which needs no graphics device. Gives back the former one, null for the
 * host's own. */
IHitTester* SetHitTester(IHitTester* NewHitTester);

/** The host's own hit tester, made when the editor is: not owned, null for none. */
void SetDefaultHitTester(IHitTester* HitTester);

/** Draws a view for one of its points. */
class FHitQuery final : public FHitProxyConsumer
{
public:
	explicit FHitQuery(const FIntPoint& InPoint)
		: Point(InPoint)
	{
	}

	/** Asks the hit tester; keeps an HActor of what it finds. */
	void Look(const FSceneView& View);

	void AddHitProxy(HHitProxy* NewHitProxy) override { HitProxy.Reset(NewHitProxy); }
	TUniquePtr<HHitProxy> Take() { return MoveTemp(HitProxy); }

private:
	FIntPoint Point;
	TUniquePtr<HHitProxy> HitProxy;
};
} // namespace Host
