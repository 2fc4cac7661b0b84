// SPDX-License-Identifier: MIT
#include "Session.h"

namespace Zef
{

FSession::FSession(zmq::socket_t& InSocket, std::string InIdentity, IRecordFactory& Factory, EReceiver Receiver,
	const FLimits& Limits, ISessionEvents& InEvents)
	: Socket(InSocket)
	, Identity(std::move(InIdentity))
	, WindowBytes(Limits.WindowBytes)
	, Events(InEvents)
	, Decoder(Factory, Receiver, Limits)
	, bTakesRequests(Receiver == EReceiver::GarmentApplication)
	, Requests(Limits.MaxRequestsPerSecond)
	, Faults(Limits.MaxFaultsPerSecond)
{
}

void FSession::Open(std::uint64_t PeerWindowBytes, std::uint32_t PeerMaxPieceBytes, std::uint16_t InVersion)
{
	Version = InVersion;
	Out.Open(PeerWindowBytes, PeerMaxPieceBytes);
}

FLinkFault FSession::CountFault(FClock::time_point Now)
{
	return Faults.Take(Now) ? FLinkFault{}
							: MakeFault(EFault::RateExceeded, "",
								  "More messages had to be refused than this end takes; the connection was closed.");
}

FLinkFault FSession::ReportFault(const FLinkFault& Fault, std::uint64_t ItemNumber)
{
	if (FLinkFault Fatal = CountFault(FClock::now()))
	{
		return Fatal;
	}
	Out.Add(EncodeFault(Fault, ItemNumber));
	Events.OnDropped(Fault);
	return {};
}

FLinkFault FSession::TakeCredit(std::uint64_t TotalBytes)
{
	if (!Out.Credit(TotalBytes))
	{
		return ReportFault(MakeFault(EFault::BadPrefix, "",
			"A credit for what was sent was expected; one of " + std::to_string(TotalBytes) + " bytes came."));
	}
	// One that says what was known is harmless, many are a flood.
	const bool bNew = TotalBytes != LastCredit;
	LastCredit = TotalBytes;
	return bNew ? FLinkFault{} : CountFault(FClock::now());
}

FLinkFault FSession::Receive(const FPrefix& Prefix, std::vector<zmq::message_t>& Parts, std::size_t FirstPart)
{
	const std::size_t Expected = Prefix.Frame == EFrame::Credit ? 0 : 1;
	if (Parts.size() - FirstPart != Expected)
	{
		return ReportFault(MakeFault(EFault::PartCount, "",
							   std::to_string(Expected + 1) + " parts were expected; " +
								   std::to_string(Parts.size() - FirstPart + 1) + " came."),
			Prefix.Item);
	}
	if (Prefix.Frame == EFrame::Credit)
	{
		return TakeCredit(Prefix.Offset);
	}
	const FByteView Body = ViewOf(Parts[FirstPart]);
	const std::uint64_t UnderWay = Taken - Credited;
	if (UnderWay != 0 && UnderWay + Body.size() > WindowBytes)
	{
		return MakeFault(EFault::WindowOverrun, "",
			"At most " + std::to_string(WindowBytes) + " bytes were expected under way; " +
				std::to_string(UnderWay + Body.size()) + " were.");
	}
	Taken += Body.size();
	LastArrival = FClock::now();
	if (Prefix.Frame == EFrame::Item)
	{
		if (bTakesRequests && !Requests.Take(LastArrival))
		{
			return MakeFault(
				EFault::RateExceeded, "", "Requests came faster than this end takes them; the connection was closed.");
		}
		ItemStart = LastArrival;
		const EDecode Result = Decoder.Header(Prefix.Item, Body);
		std::uint64_t CutOffItem = 0;
		if (const FLinkFault CutOff = Decoder.TakeTruncation(CutOffItem))
		{
			if (FLinkFault Fatal = ReportFault(CutOff, CutOffItem))
			{
				return Fatal;
			}
		}
		Events.OnTaken(Decoder.CurrentItem(), Body.size(), true, Result != EDecode::More);
		return HandleResult(Result, Prefix);
	}
	if (Prefix.Frame == EFrame::Piece)
	{
		const EDecode Result = Decoder.Piece(Prefix.Item, Prefix.Offset, Body);
		if (Result != EDecode::Ignored)
		{
			Events.OnTaken(Decoder.CurrentItem(), Body.size(), false, Result != EDecode::More);
		}
		return HandleResult(Result, Prefix);
	}
	return ReportFault(
		MakeFault(EFault::UnknownFrame, "", "An item, a piece or credit was expected; a greeting came again."));
}

FLinkFault FSession::HandleResult(EDecode Result, const FPrefix& Prefix)
{
	if (Result == EDecode::Refused)
	{
		return ReportFault(Decoder.Fault(), Decoder.FaultItem());
	}
	if (Result != EDecode::Complete)
	{
		SequenceStart = Decoder.CurrentItem() == EItem::SequenceBegin ? ItemStart : SequenceStart;
		return {};
	}
	FDecodedItem Item = Decoder.Take();
	if (Item.Item == EItem::UpdateAnnouncement && Version < AnnouncingVersion)
	{
		return ReportFault(MakeFault(EFault::UnknownItem, "",
							   std::string("An item of protocol version ") + std::to_string(Version) +
								   " was expected; UpdateAnnouncement came, which begins with version " +
								   std::to_string(AnnouncingVersion) + "."),
			Prefix.Item);
	}
	if (Item.Item == EItem::Fault)
	{
		Out.Cancel(Item.FaultItem);
	}
	const FClock::time_point Start = Item.Item == EItem::SequenceBegin ? SequenceStart : ItemStart;
	const std::chrono::duration<double, std::milli> Elapsed = FClock::now() - Start;
	Events.OnDecoded(std::move(Item), Elapsed.count());
	return {};
}

bool FSession::Pump()
{
	while (std::optional<FOutMessage> Message = Out.Next())
	{
		if (!Message->Parts.empty())
		{
			if (!SendParts(Socket, Identity, Message->Parts))
			{
				return false;
			}
			continue;
		}
		zmq::message_t Body = MakePart(Message->Body);
		if (!SendFrame(Socket, Identity, Message->Prefix, &Body))
		{
			return false;
		}
	}
	return true;
}

bool FSession::SendCredit(bool bHold)
{
	if (bHold || Taken == Credited)
	{
		return true;
	}
	Credited = Taken;
	return SendFrame(Socket, Identity, {EFrame::Credit, 0, Taken}, nullptr);
}

void FSession::DropStalled(FClock::time_point Now, std::chrono::milliseconds StallTime)
{
	if (!Decoder.IsItemOpen() || Now < LastArrival + StallTime)
	{
		return;
	}
	const FLinkFault Fault = Decoder.Abandon(
		EFault::Stalled, "A piece was expected; none came for " + std::to_string(StallTime.count()) + " milliseconds.");
	Events.OnTaken(Decoder.CurrentItem(), 0, false, true);
	// Stalls are too slow for a flood.
	ReportFault(Fault, Decoder.FaultItem());
}

FSession::FClock::time_point FSession::StallDeadline(std::chrono::milliseconds StallTime) const
{
	return Decoder.IsItemOpen() ? LastArrival + StallTime : FClock::time_point::max();
}

} // namespace Zef
