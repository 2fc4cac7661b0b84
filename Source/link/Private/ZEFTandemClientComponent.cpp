// SPDX-License-Identifier: MIT
#include "ZEFTandemClientComponent.h"

#include "ZEFTandemLink.h"

namespace
{
Zef::FPackingOptions FromOptions(const ZefTandemCore::PackingOptions& Options)
{
	return {Options.bWeld, Options.bUnifiedMaterial};
}

Zef::FObjectTypeInfo FromInfo(const ZefTandemCore::ObjectTypeInfo& Info)
{
	return {static_cast<Zef::EObjectType>(Info.ObjectType), static_cast<Zef::EAnimationKind>(Info.AnimationKind)};
}
} // namespace

UZEFTandemClientComponent::UZEFTandemClientComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	PrimaryComponentTick.bCanEverTick = true;
	PrimaryComponentTick.bStartWithTickEnabled = true;
}

UZEFTandemClientComponent::~UZEFTandemClientComponent() = default;

bool UZEFTandemClientComponent::Create(const FString& ChannelName)
{
	Destroy();
	Link = FZEFTandemLink::Open(ChannelName);
	return Link.IsValid();
}

void UZEFTandemClientComponent::Destroy()
{
	if (Link.IsValid())
	{
		Link->Stop();
		Link.Reset();
	}
}

bool UZEFTandemClientComponent::SendData(ZefTandemCore::TandemMessage Message)
{
	return Link.IsValid() && Message == ZefTandemCore::TandemMessage::RequestAvailability &&
		   Link->GetEndpoint().SendAvailability();
}

bool UZEFTandemClientComponent::SendData(ZefTandemCore::TandemMessage Message, bool bValue)
{
	return Link.IsValid() && Message == ZefTandemCore::TandemMessage::Enable && Link->GetEndpoint().SendEnable(bValue);
}

bool UZEFTandemClientComponent::SendData(
	ZefTandemCore::TandemMessage Message, const ZefTandemCore::PackingOptions& Options)
{
	return Link.IsValid() && Message == ZefTandemCore::TandemMessage::RequestUpdate &&
		   Link->GetEndpoint().SendUpdate(FromOptions(Options));
}

bool UZEFTandemClientComponent::SendData(ZefTandemCore::TandemMessage Message,
	const ZefTandemCore::ObjectTypeInfo& Info, const ZefTandemCore::PackingOptions& Options)
{
	return Link.IsValid() && Message == ZefTandemCore::TandemMessage::RequestAnimation &&
		   Link->GetEndpoint().SendAnimation(FromInfo(Info), FromOptions(Options));
}

bool UZEFTandemClientComponent::SendData(ZefTandemCore::TandemMessage Message,
	const ZefTandemCore::ObjectTypeInfo& Info, const ZefTandemCore::JointAnimation& Animation)
{
	return Link.IsValid() && Message == ZefTandemCore::TandemMessage::SendJointAnimation &&
		   Link->SendJointAnimation(FromInfo(Info), Animation);
}

void UZEFTandemClientComponent::TickComponent(
	float DeltaTime, ELevelTick TickType, FActorComponentTickFunction* ThisTickFunction)
{
	Super::TickComponent(DeltaTime, TickType, ThisTickFunction);
	// A delegate may call Destroy; the link then ends when its delivery has returned.
	if (const TSharedPtr<FZEFTandemLink> Held = Link)
	{
		Held->Deliver(*this);
	}
}
