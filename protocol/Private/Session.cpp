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
{
}

void FSession::Open(std::uint64_t PeerWindowBytes, std::uint32_t PeerMaxPieceBytes)
{
	Out.Open(PeerWindowBytes, PeerMaxPieceBytes);
}

void FSession::ReportFault(const FLinkFault& Fault, std::uint64_t ItemNumber)
{
	Out.Add(EncodeFault(Fault, ItemNumber));
	Events.OnDropped(Fault);
}

FLinkFault FSession::Receive(const FPrefix& Prefix, std::vector<zmq::message_t>& Parts, std::size_t FirstPart)
{
	const std::size_t Expected = Prefix.Frame == EFrame::Credit ? 0 : 1;
	if (Parts.size() - FirstPart != Expected)
	{
		ReportFault(MakeFault(EFault::PartCount, "",
						std::to_string(Expected + 1) + " parts were expected; " +
							std::to_string(Parts.size() - FirstPart + 1) + " came."),
			Prefix.Item);
		return {};
	}
	if (Prefix.Frame == EFrame::Credit)
	{
		if (!Out.Credit(Prefix.Offset))
		{
			ReportFault(MakeFault(EFault::BadPrefix, "",
				"A credit for what was sent was expected; one of " + std::to_string(Prefix.Offset) + " bytes came."));
		}
		return {};
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
		ItemStart = LastArrival;
		const EDecode Result = Decoder.Header(Prefix.Item, Body);
		std::uint64_t CutOffItem = 0;
		if (const FLinkFault CutOff = Decoder.TakeTruncation(CutOffItem))
		{
			ReportFault(CutOff, CutOffItem);
		}
		HandleResult(Result);
	}
	else if (Prefix.Frame == EFrame::Piece)
	{
		HandleResult(Decoder.Piece(Prefix.Item, Prefix.Offset, Body));
	}
	else
	{
		ReportFault(
			MakeFault(EFault::UnknownFrame, "", "An item, a piece or credit was expected; a greeting came again."));
	}
	return {};
}

void FSession::HandleResult(EDecode Result)
{
	if (Result == EDecode::Refused)
	{
		ReportFault(Decoder.Fault(), Decoder.FaultItem());
		return;
	}
	if (Result != EDecode::Complete)
	{
		SequenceStart = Decoder.CurrentItem() == EItem::SequenceBegin ? ItemStart : SequenceStart;
		return;
	}
	FDecodedItem Item = Decoder.Take();
	if (Item.Item == EItem::Fault)
	{
		Out.Cancel(Item.FaultItem);
	}
	const FClock::time_point Start = Item.Item == EItem::SequenceBegin ? SequenceStart : ItemStart;
	const std::chrono::duration<double, std::milli> Elapsed = FClock::now() - Start;
	Events.OnDecoded(std::move(Item), Elapsed.count());
}

bool FSession::Pump()
{
	while (std::optional<FOutMessage> Message = Out.Next())
	{
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
	ReportFault(Fault, Decoder.FaultItem());
}

FSession::FClock::time_point FSession::StallDeadline(std::chrono::milliseconds StallTime) const
{
	return Decoder.IsItemOpen() ? LastArrival + StallTime : FClock::time_point::max();
}

} // namespace Zef
