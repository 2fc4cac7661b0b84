// SPDX-License-Identifier: MIT
/** What stands between the client component and the link's library. */
#pragma once

#include "ZEFTandemClientComponent.h"

#include "Zef/ClientEndpoint.h"

#include <memory>

/** The endpoint of one component, and the hand-over of what it received to the component's delegates. Game thread only.
 */
class FZEFTandemLink final : private Zef::IClientHandler
{
public:
	/** Null, with a line in the log, when the channel has no address that may be used. */
	static TSharedPtr<FZEFTandemLink> Open(const FString& ChannelName);

	/** Fires the delegates of Component for what has arrived. Nothing happens when called from inside itself. */
	void Deliver(UZEFTandemClientComponent& Component);

	/** No delegate fires from now on. */
	void Stop();

	/** False, with a line in the log, for a record that the protocol does not admit. */
	bool SendJointAnimation(const Zef::FObjectTypeInfo& Info, const ZefTandemCore::JointAnimation& Animation);

	Zef::FClientEndpoint& GetEndpoint() { return *Endpoint; }

private:
	virtual void OnItem(Zef::FReceivedItem& Item) override;
	virtual void OnAvailability(const Zef::FAvailability& Availability) override;
	virtual void OnConnectionChanged(bool bConnected, const std::string& Reason) override;
	virtual void OnFault(const Zef::FLinkFault& Fault, bool bFromPeer) override;

	std::unique_ptr<Zef::FClientEndpoint> Endpoint;
	UZEFTandemClientComponent* Target = nullptr; // not owned; set while delivering
};
