// SPDX-License-Identifier: MIT
#include "Host/HitTester.h"

#include "Components/PrimitiveComponent.h"
#include "EngineUtils.h"
#include "GameFramework/Actor.h"

namespace Host
{
namespace
{
IHitTester* ChosenTester = nullptr;
IHitTester* DefaultTester = nullptr;
} // namespace

IHitTester* SetHitTester(IHitTester* NewHitTester)
{
	IHitTester* const Former = ChosenTester;
	ChosenTester = NewHitTester;
	return Former;
}

void SetDefaultHitTester(IHitTester* HitTester)
{
	DefaultTester = HitTester;
}

void FHitQuery::Look(const FSceneView& View)
{
	IHitTester* const Tester = ChosenTester ? ChosenTester : DefaultTester;
	const FPrimitiveHit Hit = Tester ? Tester->HitTest(View, Point) : FPrimitiveHit();
	if (Hit.IsHit())
	{
		AddHitProxy(new HActor(Hit.Component->GetOwner(), Hit.Component, Hit.SectionIndex, Hit.MaterialIndex));
	}
}
} // namespace Host
