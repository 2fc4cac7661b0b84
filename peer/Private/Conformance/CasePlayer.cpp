// SPDX-License-Identifier: MIT
#include "Conformance/RawLink.h"
#include "Zef/Limits.h"
#include "Zef/RecordPool.h"

#include <optional>

namespace Zef::Peer
{

namespace
{
using EArrival = FRawLink::EArrival;

/** A piece of this item belongs to none, so it is answered with a fault: by then all before it has been looked at. */
constexpr std::uint64_t BarrierItem = std::uint64_t(1) << 40;

/** An application that is asked to wait is played with connections of its own beside the one of the case. */
constexpr const char* MaxClients = "MaxClients";

FBytes PrefixBytes(const FPrefix& Prefix)
{
	const auto Bytes = EncodePrefix(Prefix);
	return {Bytes.begin(), Bytes.end()};
}

FCaseOutcome Failed(const std::string& Detail)
{
	return {EOutcome::Failed, Detail};
}

/** What the end under test reported about one item. */
struct FReport
{
	FLinkFault Fault;
	std::uint64_t Item = 0;
};

std::string Describe(const FReport& Report)
{
	return ToString(Report.Fault) + " (item " + std::to_string(Report.Item) + ")";
}

/** The conversation of one case. */
class FConversation
{
public:
	FConversation(const FConformanceCase& InCase, const FPlayOptions& InOptions)
		: Case(InCase)
		, Options(InOptions)
		, Link(InOptions.Under, InOptions.Endpoint)
		, Decoder(Factory, Mine(), {})
	{
	}

	FCaseOutcome Play()
	{
		if (std::optional<FCaseOutcome> Outcome = Greet(Case.bRawGreeting))
		{
			return *Outcome;
		}
		for (std::uint32_t Time = 0; Time < Case.Repeat; ++Time)
		{
			for (const FMessageParts& Message : Case.Messages)
			{
				if (!Link.Send(Message))
				{
					break;
				}
			}
		}
		if (Case.bClose)
		{
			return {};
		}
		return Case.Expected == EExpected::Refused ? AwaitRefusal() : AwaitReports();
	}

	/** Greets, or tells why the case cannot be played. @param bRaw  the messages of the case do this end's part */
	std::optional<FCaseOutcome> Greet(bool bRaw)
	{
		FMessageParts Parts;
		if (Options.Under == EReceiver::Editor)
		{
			if (Receive(Parts) != EArrival::Message || Parts.size() != 2)
			{
				return Failed("no editor came, or it did not say Hello");
			}
			const std::optional<FHello> Hello = DecodeHello(Parts[1]);
			if (!Hello)
			{
				return Failed("the editor's Hello cannot be read");
			}
			if (Case.Version < Hello->MinVersion || Case.Version > Hello->MaxVersion)
			{
				return NotSpoken();
			}
			if (!bRaw)
			{
				Link.Send({PrefixBytes({EFrame::Welcome, 0, 0}),
					EncodeWelcome({Case.Version, "zef-peer conformance", Window, PieceBytes})});
			}
			return std::nullopt;
		}
		if (bRaw)
		{
			return std::nullopt;
		}
		Link.Send({PrefixBytes({EFrame::Hello, 0, 0}),
			EncodeHello({Case.Version, Case.Version, "zef-peer conformance", Window, PieceBytes})});
		FLinkFault Fault;
		if (Receive(Parts) != EArrival::Message || Parts.size() != 2)
		{
			return Failed("the application did not answer the greeting");
		}
		const std::optional<FPrefix> Prefix = DecodePrefix(Parts[0], Fault);
		if (Prefix && Prefix->Frame == EFrame::Refused)
		{
			const std::optional<FRefused> Refused = DecodeRefused(Parts[1]);
			return Refused && Refused->Code == EFault::VersionUnknown
					   ? NotSpoken()
					   : Failed(
							 "the application refused the greeting: " + (Refused ? Refused->Sentence : "unreadable"));
		}
		const std::optional<FWelcome> Welcome =
			Prefix && Prefix->Frame == EFrame::Welcome ? DecodeWelcome(Parts[1]) : std::nullopt;
		return Welcome && Welcome->Version == Case.Version
				   ? std::nullopt
				   : std::optional(Failed("the application did not welcome version " + std::to_string(Case.Version)));
	}

private:
	static constexpr std::uint64_t Window = std::uint64_t(16) << 20;
	static constexpr std::uint32_t PieceBytes = 4u << 20;

	/** This end takes what the end under test sends. */
	EReceiver Mine() const
	{
		return Options.Under == EReceiver::Editor ? EReceiver::GarmentApplication : EReceiver::Editor;
	}

	EArrival Receive(FMessageParts& OutParts)
	{
		return Link.Receive(OutParts, FRawLink::FClock::now() + Options.Patience);
	}

	FCaseOutcome NotSpoken() const
	{
		return {EOutcome::Skipped, "version " + std::to_string(Case.Version) + " is not spoken"};
	}

	/** An application says Refused with the code, an editor closes. */
	FCaseOutcome AwaitRefusal()
	{
		while (true)
		{
			FMessageParts Parts;
			switch (Receive(Parts))
			{
				case EArrival::Closed:
					return Options.Under == EReceiver::Editor ? FCaseOutcome{}
															  : Failed("the connection ended without Refused");
				case EArrival::Nothing:
					return Failed("the connection went on");
				case EArrival::Message:
					break;
			}
			FLinkFault Fault;
			const std::optional<FPrefix> Prefix = DecodePrefix(Parts[0], Fault);
			if (!Prefix || Prefix->Frame != EFrame::Refused || Parts.size() != 2)
			{
				continue;
			}
			const std::optional<FRefused> Refused = DecodeRefused(Parts[1]);
			if (!Refused || Refused->Code != Case.Fault.Code)
			{
				return Failed("Refused came with code " +
							  (Refused ? std::to_string(static_cast<unsigned>(Refused->Code)) : "unreadable"));
			}
			return Refused->Sentence.empty() ? Failed("Refused came without a sentence for the user") : FCaseOutcome{};
		}
	}

	/** The report that is expected and no other, and the connection goes on. */
	FCaseOutcome AwaitReports()
	{
		const bool bFault = Case.Expected == EExpected::Fault;
		// A receiver that takes more than ours tells nothing; one that has to wait for the fault must not be disturbed.
		if (!bFault || Case.bOwnBound)
		{
			SendBarrier();
		}
		std::optional<FReport> Seen;
		while (true)
		{
			FReport Report;
			if (const std::string Wrong = NextReport(Report); !Wrong.empty())
			{
				return Failed(Seen ? "after the report " + Wrong : Wrong);
			}
			if (Report.Item == BarrierItem && Report.Fault.Code == EFault::PieceUnexpected)
			{
				return Seen || !bFault || Case.bOwnBound ? FCaseOutcome{} : Failed("nothing was reported");
			}
			if (!bFault || Seen)
			{
				return Failed("it reported " + Describe(Report));
			}
			if (Report.Fault.Code != Case.Fault.Code || Report.Item != Case.Item ||
				Report.Fault.Path != Case.Fault.Path)
			{
				return Failed("it reported " + Describe(Report));
			}
			if (!Case.Fault.Message.empty() && Options.bExactWords && Report.Fault.Message != Case.Fault.Message)
			{
				return Failed("it reported with other words: " + Describe(Report));
			}
			if (Report.Fault.Message.empty())
			{
				return Failed("it reported without a sentence");
			}
			Seen = Report;
			if (!Case.bOwnBound)
			{
				SendBarrier();
			}
		}
	}

	void SendBarrier() { Link.Send({PrefixBytes({EFrame::Piece, BarrierItem, 0}), FBytes(1)}); }

	/** Reads on until the end under test reports a fault; a text when that does not happen. */
	std::string NextReport(FReport& OutReport)
	{
		while (true)
		{
			FMessageParts Parts;
			const EArrival Arrival = Receive(Parts);
			if (Arrival != EArrival::Message)
			{
				return Arrival == EArrival::Closed ? "the connection ended" : "nothing came for a long time";
			}
			FLinkFault Fault;
			const std::optional<FPrefix> Prefix = DecodePrefix(Parts[0], Fault);
			if (!Prefix || Parts.size() != (Prefix->Frame == EFrame::Credit ? 1u : 2u))
			{
				return "it sent a message that is none of this protocol: " + ToString(Fault);
			}
			if (Prefix->Frame == EFrame::Refused)
			{
				const std::optional<FRefused> Refused = DecodeRefused(Parts[1]);
				return "it refused the connection: " + (Refused ? Refused->Sentence : "unreadable");
			}
			if (Prefix->Frame != EFrame::Item && Prefix->Frame != EFrame::Piece)
			{
				continue;
			}
			Taken += Parts[1].size();
			Link.Send({PrefixBytes({EFrame::Credit, 0, Taken})});
			const EDecode Result = Prefix->Frame == EFrame::Item
									   ? Decoder.Header(Prefix->Item, Parts[1])
									   : Decoder.Piece(Prefix->Item, Prefix->Offset, Parts[1]);
			if (Result == EDecode::Refused)
			{
				return "it sent an item that is refused: " + ToString(Decoder.Fault());
			}
			if (Result != EDecode::Complete)
			{
				continue;
			}
			FDecodedItem Item = Decoder.Take();
			if (Item.Item == EItem::Fault)
			{
				OutReport = {std::move(Item.Fault), Item.FaultItem};
				return "";
			}
		}
	}

	const FConformanceCase& Case;
	const FPlayOptions& Options;
	FRawLink Link;
	FRecordFactory Factory;
	FItemDecoder Decoder;
	std::uint64_t Taken = 0;
};
} // namespace

FCaseOutcome PlayCase(const FConformanceCase& Case, const FPlayOptions& Options)
{
	if (Case.Expected == EExpected::Opening || Case.Expected == EExpected::Program)
	{
		return {EOutcome::Skipped, "not provoked by what another end sends"};
	}
	for (const auto& [Name, Value] : Case.Needs)
	{
		if (!Options.HasOption || !Options.HasOption(Name, Value))
		{
			return {EOutcome::Skipped, "needs an end with " + Name + " = " + std::to_string(Value)};
		}
	}
	try
	{
		// As many editors as the application serves are there already.
		std::vector<std::unique_ptr<FConversation>> Others;
		for (const auto& [Name, Value] : Case.Needs)
		{
			for (std::uint64_t Other = 0; Name == MaxClients && Other < Value; ++Other)
			{
				if (std::optional<FCaseOutcome> Outcome =
						Others.emplace_back(std::make_unique<FConversation>(Case, Options))->Greet(false))
				{
					return *Outcome;
				}
			}
		}
		return FConversation(Case, Options).Play();
	}
	catch (const zmq::error_t& Error)
	{
		return Failed("\"" + Options.Endpoint + "\" cannot be used: " + Error.what());
	}
}

} // namespace Zef::Peer
