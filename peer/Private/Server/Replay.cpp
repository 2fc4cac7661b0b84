// SPDX-License-Identifier: MIT
#include "Zef/Peer/Replay.h"

#include <atomic>
#include <map>

#include <fmt/format.h>

#include "Zef/ServerEndpoint.h"

namespace Zef::Peer
{

class FReplay::FImpl : public IServerHandler
{
public:
	FImpl(FRecording InRecording, FLogLine InLog)
		: Recording(std::move(InRecording))
		, Log(std::move(InLog))
	{
	}

	void OnClientConnected(FClientId Client, const std::string& Program) override
	{
		Say("editor {} connected: {}", Client, Program);
		if (!Recording.Requests.empty() && Recording.Requests[0].Header.empty())
		{
			Play(Client, Recording.Requests[0], "before any request");
		}
	}

	void OnClientGone(FClientId Client, const std::string& Reason) override
	{
		++Gone;
		Say("editor {} gone: {}", Client, Reason);
	}

	void OnEnable(FClientId Client, bool bEnabled) override
	{
		Say("editor {} switched the link {}", Client, bEnabled ? "on" : "off");
	}

	void OnUpdateRequested(FClientId Client, const FPackingOptions& Options) override
	{
		Answer(Client, EItem::RequestUpdate, {}, Options, "an update");
	}

	void OnAnimationRequested(FClientId Client, const FObjectTypeInfo& Info, const FPackingOptions& Options) override
	{
		Answer(Client, EItem::RequestAnimation, Info, Options,
			fmt::format("the {} of the {}",
				Info.AnimationKind == EAnimationKind::JointAnimation ? "joint animation" : "vertex animation",
				ObjectTypeName(Info.ObjectType)));
	}

	void OnAvailabilityRequested(FClientId Client) override
	{
		Answer(Client, EItem::RequestAvailability, {}, {}, "what there is");
	}

	void OnJointAnimation(FClientId Client, const FObjectTypeInfo&, std::shared_ptr<const FJointAnimation>) override
	{
		Say("editor {} sends a joint animation; a recording has no use for it", Client);
	}

	void OnFault(FClientId Client, const FLinkFault& Fault, bool bFromClient) override
	{
		Say("{} editor {}: {}", bFromClient ? "fault told by" : "refused a message of", Client, ToString(Fault));
	}

	FRecording Recording;
	FLogLine Log;
	std::unique_ptr<FServerEndpoint> Endpoint;
	std::atomic<bool> bStop{false};
	std::size_t Gone = 0;

private:
	/** How well a recorded request stands for one that is made; 0: not at all. */
	static int Likeness(
		const FRecordedRequest& Recorded, EItem Item, const FObjectTypeInfo& Info, const FPackingOptions& Options)
	{
		if (Recorded.Item != Item ||
			(Item == EItem::RequestAnimation && Recorded.Info.AnimationKind != Info.AnimationKind))
		{
			return 0;
		}
		return 1 + (Recorded.Info.ObjectType == Info.ObjectType ? 2 : 0) + (Recorded.Options == Options ? 1 : 0);
	}

	void Answer(FClientId Client, EItem Item, const FObjectTypeInfo& Info, const FPackingOptions& Options,
		const std::string& What)
	{
		int Best = 0;
		std::vector<const FRecordedRequest*> Found;
		for (const FRecordedRequest& Recorded : Recording.Requests)
		{
			const int Here = Recorded.Messages.empty() ? 0 : Likeness(Recorded, Item, Info, Options);
			if (Here > Best)
			{
				Best = Here;
				Found.clear();
			}
			if (Here > 0 && Here == Best)
			{
				Found.push_back(&Recorded);
			}
		}
		if (Found.empty())
		{
			Say("editor {} asks for {}: not recorded", Client, What);
			Endpoint->SendFault(Client,
				MakeFault(EFault::PeerFailed, "", "The recording holds no answer to a request for " + What + "."));
			return;
		}
		const std::size_t Turn = Turns[{Client, Found.front()}]++;
		Play(Client, *Found[Turn % Found.size()], "asks for " + What);
	}

	void Play(FClientId Client, const FRecordedRequest& Recorded, const std::string& Why)
	{
		Endpoint->SendRecorded(Client, Recorded.Messages, Recording.Bytes);
		Say("editor {} {}: {} messages as they were recorded{}", Client, Why, Recorded.Messages.size(),
			Recorded.bLost ? "; there the recorded application was lost: " + Recorded.LostReason : "");
	}

	template <typename... TArguments>
	void Say(fmt::format_string<TArguments...> Format, TArguments&&... Arguments)
	{
		if (Log)
		{
			Log(fmt::format(Format, std::forward<TArguments>(Arguments)...));
		}
	}

	/** How often each editor has asked for what those requests stand for. */
	std::map<std::pair<FClientId, const FRecordedRequest*>, std::size_t> Turns;
};

FReplay::FReplay(std::unique_ptr<FImpl> InImpl)
	: Impl(std::move(InImpl))
{
}

FReplay::~FReplay() = default;

TResult<std::unique_ptr<FReplay>> FReplay::Open(FRecording Recording, FReplaySettings Settings)
{
	if (Recording.ProtocolVersion < MinProtocolVersion || Recording.ProtocolVersion > MaxProtocolVersion)
	{
		return MakeFault(EFault::BadRecording, "",
			fmt::format("The recording is of protocol version {}; this program speaks {} to {}.",
				Recording.ProtocolVersion, MinProtocolVersion, MaxProtocolVersion));
	}
	FServerOptions Options;
	Options.Program = Recording.Program + " (recorded)";
	Options.Versions = {Recording.ProtocolVersion, Recording.ProtocolVersion};
	Options.KeyFile = Settings.KeyFile;
	auto Endpoint = Settings.Endpoint.empty() ? FServerEndpoint::Open(Settings.Channel, Options)
											  : FServerEndpoint::OpenEndpoint(Settings.Endpoint, Options);
	if (!Endpoint)
	{
		return Endpoint.Fault();
	}
	auto Impl = std::make_unique<FImpl>(std::move(Recording), std::move(Settings.Log));
	Impl->Endpoint = std::move(*Endpoint);
	return std::unique_ptr<FReplay>(new FReplay(std::move(Impl)));
}

const std::string& FReplay::Endpoint() const
{
	return Impl->Endpoint->Endpoint();
}

std::size_t FReplay::Serve(std::chrono::milliseconds MaxWait)
{
	return Impl->Endpoint->Poll(*Impl, MaxWait);
}

void FReplay::Run(std::size_t Clients)
{
	while (!Impl->bStop && (Clients == 0 || Impl->Gone < Clients))
	{
		Serve(std::chrono::milliseconds(1000));
	}
}

void FReplay::Stop()
{
	Impl->bStop = true;
	Impl->Endpoint->Wake();
}

} // namespace Zef::Peer
