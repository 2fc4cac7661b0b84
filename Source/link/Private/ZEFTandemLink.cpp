// SPDX-License-Identifier: MIT
#include "ZEFTandemLink.h"

#include "CoreGlobals.h"
#include "Logging/LogMacros.h"
#include "ZEFReceivedRecord.h"
#include "ZEFRecordConversion.h"

#include <utility>

TSharedPtr<FZEFTandemLink> FZEFTandemLink::Open(const FString& ChannelName)
{
	Zef::FClientOptions Options;
	Options.Program = "ZEFTandem editor";
	auto Opened = Zef::FClientEndpoint::Open(
		ZEFRecordConversion::FromString(ChannelName), std::make_shared<FZEFRecordFactory>(), Options);
	if (!Opened)
	{
		UE_LOG(LogTemp, Error, TEXT("Tandem link: %s"), *ZEFRecordConversion::ToString(Opened.Fault().Message));
		return nullptr;
	}
	TSharedPtr<FZEFTandemLink> Link = MakeShared<FZEFTandemLink>();
	Link->Endpoint = std::move(*Opened);
	return Link;
}

void FZEFTandemLink::Deliver(UZEFTandemClientComponent& Component)
{
	// A delegate may open a modal dialog, and that may tick the world.
	if (Target == nullptr)
	{
		Target = &Component;
		Endpoint->Poll(*this);
		Target = nullptr;
	}
}

void FZEFTandemLink::Stop()
{
	Endpoint->Stop();
}

bool FZEFTandemLink::SendJointAnimation(
	const Zef::FObjectTypeInfo& Info, const ZefTandemCore::JointAnimation& Animation)
{
	Zef::FLinkFault Fault;
	const bool bSent = Endpoint->SendJointAnimation(Info, Animation.Record, &Fault);
	if (Fault)
	{
		UE_LOG(LogTemp, Error, TEXT("Tandem link: the animation cannot be sent: %s"),
			*ZEFRecordConversion::ToString(Zef::ToString(Fault)));
	}
	return bSent;
}

void FZEFTandemLink::OnItem(Zef::FReceivedItem& Item)
{
	const auto ObjectType = static_cast<ZefTandemCore::TandemObjectType>(Item.ObjectType);
	const auto& Record = static_cast<const FZEFReceivedRecord&>(*Item.Record);
	switch (Item.Item)
	{
		case Zef::EItem::SurfaceMesh:
			Target->OnSurfaceMeshReceived.Broadcast(ObjectType, Record.Animation.Mesh);
			break;
		case Zef::EItem::JointAnimation:
			Target->OnJointAnimationReceived.Broadcast(ObjectType, Record.Animation);
			break;
		case Zef::EItem::SequenceBegin:
			Target->OnMeshSequenceReceived.Broadcast(ObjectType, Record.Animation.Mesh, Record.Frames);
			break;
		default:
			break;
	}
}

void FZEFTandemLink::OnAvailability(const Zef::FAvailability& From)
{
	ZefTandemCore::TandemAvailability Availability;
	Availability.bFlag0 = From.bFlag0;
	Availability.bGarmentHasAnimation = From.bGarmentHasAnimation;
	Availability.bFlag2 = From.bFlag2;
	Availability.bAvatarHasAnimation = From.bAvatarHasAnimation;
	Availability.bAvatarHasSkeleton = From.bAvatarHasSkeleton;
	Target->OnAvailabilityReceived.Broadcast(Availability);
}

void FZEFTandemLink::OnConnectionChanged(bool bConnected, const std::string& Reason)
{
	const FString Text = ZEFRecordConversion::ToString(Reason);
	if (bConnected)
	{
		UE_LOG(LogTemp, Log, TEXT("Tandem link: connected to %s"), *Text);
	}
	else
	{
		UE_LOG(LogTemp, Warning, TEXT("Tandem link: %s"), *Text);
	}
	Target->OnConnectionChanged.Broadcast(bConnected);
}

void FZEFTandemLink::OnFault(const Zef::FLinkFault& Fault, bool bFromPeer)
{
	const FString Text = ZEFRecordConversion::ToString(Zef::ToString(Fault));
	if (bFromPeer)
	{
		UE_LOG(LogTemp, Error, TEXT("Tandem link: the garment application reports %s"), *Text);
	}
	else
	{
		UE_LOG(LogTemp, Error, TEXT("Tandem link: %s"), *Text);
	}
	Target->OnLinkFaultReported.Broadcast(Text);
}
