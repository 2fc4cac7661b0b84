// SPDX-License-Identifier: MIT
#include "Zef/ServerEndpoint.h"

#include "ServerLoop.h"
#include "Zef/Check.h"

#include <algorithm>

namespace Zef
{

namespace
{
/** Refuses what no receiver would take, so far as that can be told without reading the arrays. */
FLinkFault CheckReply(EObjectType ObjectType, const FSurfaceMesh* Mesh, const FLimits& Limits)
{
	if (!IsObjectType(ObjectType))
	{
		return MakeFault(EFault::ObjectType, "/ObjectType",
			"2, 4, 8 or 16 was expected; " + std::to_string(static_cast<std::int32_t>(ObjectType)) + " came.");
	}
	if (Mesh == nullptr)
	{
		return MakeFault(EFault::MissingField, "/Mesh", "There is no mesh.");
	}
	return CheckStructure(*Mesh, CountsOf(*Mesh), EIndexBase::Surface, Limits);
}

bool Passes(FLinkFault&& Fault, FLinkFault* OutFault)
{
	const bool bPasses = !Fault;
	if (OutFault != nullptr)
	{
		*OutFault = std::move(Fault);
	}
	return bPasses;
}

bool GoneFault(bool bSent, FLinkFault* OutFault)
{
	return bSent || Passes(MakeFault(EFault::PeerLost, "", "The editor is not connected any more."), OutFault);
}
} // namespace

FServerEndpoint::FServerEndpoint(std::unique_ptr<FImpl> InImpl)
	: Impl(std::move(InImpl))
{
}

FServerEndpoint::~FServerEndpoint() = default;

namespace
{
template <class TImpl>
TResult<std::unique_ptr<TImpl>> Start(TResult<FOpenAddress>&& Address, const FServerOptions& Options)
{
	if (!Address)
	{
		return Address.Fault();
	}
	auto Impl = std::make_unique<TImpl>(std::move(*Address), Options);
	if (FLinkFault Fault = Impl->Start())
	{
		return Fault;
	}
	return Impl;
}
} // namespace

TResult<std::unique_ptr<FServerEndpoint>> FServerEndpoint::Open(
	const std::string& ChannelName, const FServerOptions& Options)
{
	auto Started =
		Start<FImpl>(OpenAddress(ChannelName, std::nullopt, Options.KeyFile, ELinkEnd::Application), Options);
	if (!Started)
	{
		return Started.Fault();
	}
	return std::unique_ptr<FServerEndpoint>(new FServerEndpoint(std::move(*Started)));
}

TResult<std::unique_ptr<FServerEndpoint>> FServerEndpoint::OpenEndpoint(
	const std::string& Endpoint, const FServerOptions& Options)
{
	auto Started = Start<FImpl>(OpenAddress("", Endpoint, Options.KeyFile, ELinkEnd::Application), Options);
	if (!Started)
	{
		return Started.Fault();
	}
	return std::unique_ptr<FServerEndpoint>(new FServerEndpoint(std::move(*Started)));
}

const std::string& FServerEndpoint::Endpoint() const
{
	return Impl->Endpoint();
}

std::size_t FServerEndpoint::Poll(IServerHandler& Handler, std::chrono::milliseconds MaxWait)
{
	return Impl->Poll(Handler, MaxWait);
}

void FServerEndpoint::Wake()
{
	Impl->WakePoll();
}

bool FServerEndpoint::SendUpdate(
	FClientId Client, const std::vector<FUpdateObject>& Objects, std::vector<FLinkFault>* OutFaults)
{
	const FServerOptions& Options = Impl->ServerOptions();
	std::vector<FLinkFault> Faults;
	std::vector<FEncodedItem> Items;
	FUpdateAnnouncement Announcement;
	for (const FUpdateObject& Object : Objects)
	{
		Faults.push_back(CheckReply(Object.ObjectType, Object.Mesh.get(), Options.Limits));
		if (!Faults.back() &&
			std::ranges::count(Announcement.Objects, Object.ObjectType, &FAnnouncedObject::ObjectType) > 0)
		{
			Faults.back() =
				MakeFault(EFault::KeyTwice, "/ObjectType", "Each object type was expected once in an update.");
		}
		if (!Faults.back())
		{
			FEncodedItem& Item =
				Items.emplace_back(EncodeSurfaceMesh(Object.ObjectType, Object.Mesh, Options.PieceBytes));
			Announcement.Objects.push_back({Object.ObjectType, Item.Header.size() + Item.PayloadBytes});
		}
	}
	bool bSent =
		Impl->VersionOf(Client) < AnnouncingVersion || Impl->Send(Client, EncodeUpdateAnnouncement(Announcement));
	for (FEncodedItem& Item : Items)
	{
		bSent = bSent && Impl->Send(Client, std::move(Item));
	}
	for (FLinkFault& Fault : Faults)
	{
		if (!bSent && !Fault)
		{
			GoneFault(false, &Fault);
		}
	}
	const bool bAll = bSent && Items.size() == Objects.size();
	if (OutFaults != nullptr)
	{
		*OutFaults = std::move(Faults);
	}
	return bAll;
}

bool FServerEndpoint::SendSurfaceMesh(
	FClientId Client, EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh, FLinkFault* OutFault)
{
	const FServerOptions& Options = Impl->ServerOptions();
	return Passes(CheckReply(ObjectType, Mesh.get(), Options.Limits), OutFault) &&
		   GoneFault(Impl->Send(Client, EncodeSurfaceMesh(ObjectType, std::move(Mesh), Options.PieceBytes)), OutFault);
}

bool FServerEndpoint::SendJointAnimation(
	FClientId Client, EObjectType ObjectType, std::shared_ptr<const FJointAnimation> Animation, FLinkFault* OutFault)
{
	const FServerOptions& Options = Impl->ServerOptions();
	const FSurfaceMesh* Mesh = Animation ? &Animation->Mesh : nullptr;
	return Passes(CheckReply(ObjectType, Mesh, Options.Limits), OutFault) &&
		   Passes(CheckJointSequence(Pack(Animation->Sequence), Mesh->Joints.size(), Options.Limits), OutFault) &&
		   GoneFault(Impl->Send(Client, EncodeJointAnimation(ObjectType, std::move(Animation), Options.PieceBytes)),
			   OutFault);
}

bool FServerEndpoint::SendMeshSequence(FClientId Client, EObjectType ObjectType,
	std::shared_ptr<const FSurfaceMesh> Mesh, FFrameSource Frames, FLinkFault* OutFault)
{
	const FServerOptions& Options = Impl->ServerOptions();
	if (!Passes(CheckReply(ObjectType, Mesh.get(), Options.Limits), OutFault))
	{
		return false;
	}
	enum class EStage
	{
		Begin,
		Frames,
		Done
	};
	// Asked for one item after the other, so that no more than the window's share of frames is in memory.
	auto Source = [Stage = EStage::Begin, Next = std::uint32_t(0), ObjectType, Mesh = std::move(Mesh),
					  Frames = std::move(Frames),
					  PieceBytes = Options.PieceBytes]() mutable -> std::optional<FEncodedItem>
	{
		if (Stage == EStage::Done)
		{
			return std::nullopt;
		}
		if (Stage == EStage::Begin)
		{
			Stage = EStage::Frames;
			return EncodeSequenceBegin(ObjectType, std::move(Mesh), PieceBytes);
		}
		if (std::shared_ptr<const FMeshSequenceFrame> Frame = Frames ? Frames(Next) : nullptr)
		{
			return EncodeSequenceFrame(Next++, std::move(Frame), PieceBytes);
		}
		Stage = EStage::Done;
		return EncodeSequenceEnd(Next);
	};
	return GoneFault(Impl->Send(Client, FItemSource(std::move(Source))), OutFault);
}

bool FServerEndpoint::SendAvailability(FClientId Client, const FAvailability& Availability)
{
	return Impl->Send(Client, EncodeAvailability(Availability));
}

bool FServerEndpoint::SendRecorded(
	FClientId Client, const std::vector<FRecordedMessage>& Messages, std::shared_ptr<const void> Owner)
{
	return Impl->Send(Client, FRecordedRun{Messages, std::move(Owner)});
}

bool FServerEndpoint::SendFault(FClientId Client, const FLinkFault& Fault)
{
	return Impl->Send(Client, EncodeFault(Fault));
}

std::uint64_t FServerEndpoint::QueuedBytes(FClientId Client) const
{
	return Impl->QueuedBytes(Client);
}

} // namespace Zef
