// SPDX-License-Identifier: MIT
/** The editor's client of the link to a garment application. */
#pragma once

#include "Components/ActorComponent.h"
#include "Delegates/DelegateCombinations.h"
#include "Templates/SharedPointer.h"
#include "ZEFTandemRecords.h"
#include "ZefTandemCore.h"
#include "ZEFTandemClientComponent.generated.h"

class FZEFTandemLink;

DECLARE_MULTICAST_DELEGATE_TwoParams(
	FOnZEFSurfaceMeshReceived, const ZefTandemCore::TandemObjectType&, const FZEFSurfaceMesh&);
DECLARE_MULTICAST_DELEGATE_TwoParams(
	FOnZEFJointAnimationReceived, const ZefTandemCore::TandemObjectType&, const FZEFJointAnimation&);
DECLARE_MULTICAST_DELEGATE_ThreeParams(FOnZEFMeshSequenceReceived, const ZefTandemCore::TandemObjectType&,
	const FZEFSurfaceMesh&, const TArray<FZEFMeshSequenceFrame>&);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnZEFAvailabilityReceived, const ZefTandemCore::TandemAvailability&);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnZEFLinkFaultReported, const FString&);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnZEFConnectionChanged, bool);

/**
 * Talks to the garment application that serves a channel.
 *
 * All delegates fire on the game thread, from the component's tick, so only while it is registered in a ticking world.
 * A record handed to a delegate is valid during that call only. Request and reply are paired by their kind alone. After
 * Destroy, also one that is called from inside a delegate, no delegate fires.
 */
UCLASS()
class ZEFTANDEMRUNTIME_API UZEFTandemClientComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UZEFTandemClientComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual ~UZEFTandemClientComponent() override;

	/**
	 * Starts looking for the garment application that serves ChannelName, and goes on looking until Destroy. Does not
	 * wait: the state of the link is told by OnConnectionChanged.
	 * @return false when the name gives no address that may be used; the log says why
	 */
	bool Create(const FString& ChannelName);

	/** Ends the link; calling it again does nothing. */
	void Destroy();

	/**
	 * Sends one message; never blocks. The overload must be the one of the message's arguments.
	 * @return false when it was not sent: wrong arguments, or nobody there, which OnConnectionChanged(false) then tells
	 */
	bool SendData(ZefTandemCore::TandemMessage Message);
	bool SendData(ZefTandemCore::TandemMessage Message, bool bValue);
	bool SendData(ZefTandemCore::TandemMessage Message, const ZefTandemCore::PackingOptions& Options);
	bool SendData(ZefTandemCore::TandemMessage Message, const ZefTandemCore::ObjectTypeInfo& Info,
		const ZefTandemCore::PackingOptions& Options);
	bool SendData(ZefTandemCore::TandemMessage Message, const ZefTandemCore::ObjectTypeInfo& Info,
		const ZefTandemCore::JointAnimation& Animation);

	virtual void TickComponent(
		float DeltaTime, ELevelTick TickType, FActorComponentTickFunction* ThisTickFunction) override;

	/** One object has arrived, after an update was requested; once for each object type of the garment application. */
	FOnZEFSurfaceMeshReceived OnSurfaceMeshReceived;
	/** The joint animation that was requested; without frames when the source has none. */
	FOnZEFJointAnimationReceived OnJointAnimationReceived;
	/** The mesh sequence that was requested; without frames when the source has none. */
	FOnZEFMeshSequenceReceived OnMeshSequenceReceived;
	/** The flags that were requested. */
	FOnZEFAvailabilityReceived OnAvailabilityReceived;
	/** A message was dropped, by either end; the text names code, place and reason, as the log does. */
	FOnZEFLinkFaultReported OnLinkFaultReported;
	/** The link came up or went down, or a message found nobody there. */
	FOnZEFConnectionChanged OnConnectionChanged;

private:
	TSharedPtr<FZEFTandemLink> Link;
};
