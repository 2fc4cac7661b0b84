// SPDX-License-Identifier: MIT
#include "Zef/RecordSession.h"

#include "Zef/RecordPool.h"

namespace Zef
{

namespace
{
using FClock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds Turn(20);

class FRecordingLink final : public IClientHandler
{
public:
	FRecordingLink(
		const FRecordSessionOptions& InOptions, const std::function<void(const FUpdateProgress&)>& InOnProgress)
		: Options(InOptions)
		, OnProgress(InOnProgress)
	{
	}

	TResult<FRecordSummary> Run()
	{
		FClientOptions Client;
		Client.Program = "zef-tandem record";
		Client.KeyFile = Options.KeyFile;
		Client.RecordFile = Options.File;
		const auto Factory = std::make_shared<FRecordFactory>();
		auto Opened = Options.Endpoint.empty() ? FClientEndpoint::Open(Options.Channel, Factory, Client)
											   : FClientEndpoint::OpenEndpoint(Options.Endpoint, Factory, Client);
		if (!Opened)
		{
			return Opened.Fault();
		}
		Link = std::move(*Opened);
		if (!Until([this] { return bUp || bStopped; }) || !bUp)
		{
			const FLinkReason Reason = Link->Status().Reason;
			return Recording ? Recording : MakeFault(EFault::PeerLost, "", Reason ? ToString(Reason) : Silence().What);
		}
		Summary.ProtocolVersion = Link->Status().Version;
		Ask();
		if (const FLinkFault Fault = Link->FinishRecording())
		{
			return Fault;
		}
		return std::move(Summary);
	}

	void OnItem(FReceivedItem& Item) override
	{
		Summary.Objects += Item.Item == EItem::SurfaceMesh ? 1 : 0;
		Summary.Animations += Item.Item == EItem::SurfaceMesh ? 0 : 1;
		Summary.Bytes += Item.Report.Bytes;
		LastSign = FClock::now();
	}

	void OnAvailability(const FAvailability& Availability) override
	{
		Flags = Availability;
		++Answers;
		LastSign = FClock::now();
	}

	void OnConnectionChanged(bool bConnected, const std::string& Reason) override
	{
		bStopped = bStopped || (!bConnected && bUp);
		if (bConnected && !bUp)
		{
			bUp = true;
			Summary.Program = Reason;
		}
		else if (!bConnected && !Summary.CutShort)
		{
			Summary.CutShort = {ELinkReason::PeerLost, Reason};
		}
		LastSign = FClock::now();
	}

	void OnFault(const FLinkFault& Fault, bool) override
	{
		if (Fault.Code == EFault::RecordingStopped)
		{
			Recording = Fault;
			bStopped = true;
			return;
		}
		Summary.Faults.push_back(Fault);
		LastSign = FClock::now();
	}

private:
	void Ask()
	{
		// The flags come first: they tell what may be asked for.
		if (!Answered())
		{
			return;
		}
		const FAvailability Has = Flags;
		Link->SendUpdate(Options.Packing);
		if (!Answered() || !Options.bAnimations)
		{
			return;
		}
		std::vector<FObjectTypeInfo> Wanted;
		if (Has.bGarmentHasAnimation)
		{
			Wanted.push_back({EObjectType::Garment, EAnimationKind::MeshSequence});
		}
		if (Has.bAvatarHasAnimation)
		{
			Wanted.push_back({EObjectType::Avatar, EAnimationKind::MeshSequence});
			if (Has.bAvatarHasSkeleton)
			{
				Wanted.push_back({EObjectType::Avatar, EAnimationKind::JointAnimation});
			}
		}
		for (const FObjectTypeInfo& Info : Wanted)
		{
			Link->SendAnimation(Info, Options.Packing);
			if (!Answered())
			{
				return;
			}
		}
	}

	/** Requests are answered in their order: the flags that are asked for now come after everything before. */
	bool Answered()
	{
		const std::uint32_t Before = Answers;
		Link->SendAvailability();
		return Until([&] { return bStopped || (Answers > Before && !Link->Progress().IsUnderWay()); }) && !bStopped;
	}

	FLinkReason Silence() const
	{
		return {
			ELinkReason::NoAnswer, "Nothing came for " + std::to_string(Options.Timeout.count()) + " milliseconds."};
	}

	template <class TDone>
	bool Until(const TDone& Done)
	{
		LastSign = FClock::now();
		std::uint64_t LastBytes = 0;
		while (!Done())
		{
			Link->Poll(*this, Turn);
			const FUpdateProgress Progress = Link->Progress();
			if (Progress.ReceivedBytes != LastBytes)
			{
				LastBytes = Progress.ReceivedBytes;
				LastSign = FClock::now();
				if (OnProgress)
				{
					OnProgress(Progress);
				}
			}
			if (FClock::now() > LastSign + Options.Timeout)
			{
				Summary.CutShort = Silence();
				return false;
			}
		}
		return true;
	}

	const FRecordSessionOptions& Options;
	const std::function<void(const FUpdateProgress&)>& OnProgress;
	std::unique_ptr<FClientEndpoint> Link;
	FRecordSummary Summary;
	FLinkFault Recording;
	FAvailability Flags;
	std::uint32_t Answers = 0;
	bool bUp = false;
	bool bStopped = false;
	FClock::time_point LastSign;
};
} // namespace

TResult<FRecordSummary> RecordSession(
	const FRecordSessionOptions& Options, const std::function<void(const FUpdateProgress&)>& OnProgress)
{
	return FRecordingLink(Options, OnProgress).Run();
}

} // namespace Zef
