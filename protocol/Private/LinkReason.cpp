// SPDX-License-Identifier: MIT
#include "Zef/LinkReason.h"

#include <iterator>

namespace Zef
{

namespace
{
constexpr const char* KeyAdvice =
	"Make a pair of key files with \"zef-peer keys NAME\", keep one at each end, and name "
	"it with --keys or ZEF_TANDEM_KEYS.";

constexpr FLinkReasonInfo Table[] = {
	{ELinkReason::Well, "Well", ""},
	{ELinkReason::NobodyServes, "NobodyServes",
		"Start the garment application and switch its link on, or run \"zef-peer serve\"."},
	{ELinkReason::StaleSocket, "StaleSocket", "Start the garment application again; it replaces the file."},
	{ELinkReason::NameUnknown, "NameUnknown", "Check the name of the machine, or write its number."},
	{ELinkReason::Unreachable, "Unreachable",
		"Switch the machine on, connect both to one network, and let its firewall admit the port."},
	{ELinkReason::PortClosed, "PortClosed",
		"Start the garment application on that machine, check the port, and let its firewall admit it."},
	{ELinkReason::AddressRefused, "AddressRefused", "Name another address."},
	{ELinkReason::FolderUnsafe, "FolderUnsafe",
		"Give the folder to yourself alone with chmod 700, or remove it; the garment application makes it anew."},
	{ELinkReason::SocketUnsafe, "SocketUnsafe", "Remove the file and start the garment application again."},
	{ELinkReason::ForeignUser, "ForeignUser",
		"Have both programs run by the same user; for two users, use a tcp address with keys."},
	{ELinkReason::KeysNeeded, "KeysNeeded", KeyAdvice},
	{ELinkReason::KeysUnusable, "KeysUnusable", KeyAdvice},
	{ELinkReason::KeysRejected, "KeysRejected",
		"Give both ends the two files of the same run of \"zef-peer keys NAME\"."},
	{ELinkReason::NotAPeer, "NotAPeer", "Another program uses the address; end it, or name another address."},
	{ELinkReason::NoAnswer, "NoAnswer", "The garment application hangs or is busy; wait, or start it again."},
	{ELinkReason::VersionUnknown, "VersionUnknown", "Update the older of the two programs."},
	{ELinkReason::TurnedAway, "TurnedAway", "Do what the garment application says."},
	{ELinkReason::PeerClosed, "PeerClosed", "Start it again when you need it; the link comes back by itself."},
	{ELinkReason::PeerLost, "PeerLost",
		"If it crashed, start it again; the link comes back by itself, and what was under way must be asked for "
		"again."},
	{ELinkReason::PeerMisbehaved, "PeerMisbehaved",
		"Update the garment application; \"zef-tandem record FILE\" keeps what it sends for its developers."},
	{ELinkReason::OutOfMemory, "OutOfMemory", "Close other programs, or open a smaller project."},
};
} // namespace

std::span<const FLinkReasonInfo> LinkReasonTable()
{
	return Table;
}

const FLinkReasonInfo& LinkReasonInfo(ELinkReason Kind)
{
	const auto Index = static_cast<std::size_t>(Kind);
	return Table[Index < std::size(Table) ? Index : 0];
}

FLinkReason ReasonOf(const FLinkFault& Fault)
{
	ELinkReason Kind = ELinkReason::PeerMisbehaved;
	switch (Fault.Code)
	{
		case EFault::None:
			return {};
		case EFault::VersionUnknown:
			Kind = ELinkReason::VersionUnknown;
			break;
		case EFault::TooManyClients:
		case EFault::NotGreeted:
			Kind = ELinkReason::TurnedAway;
			break;
		case EFault::BadHello:
			Kind = ELinkReason::NotAPeer;
			break;
		case EFault::Closing:
			Kind = ELinkReason::PeerClosed;
			break;
		case EFault::OutOfMemory:
			Kind = ELinkReason::OutOfMemory;
			break;
		case EFault::PeerLost:
			Kind = ELinkReason::PeerLost;
			break;
		case EFault::AddressRefused:
		case EFault::AddressTaken:
			Kind = ELinkReason::AddressRefused;
			break;
		case EFault::KeysRefused:
			Kind = ELinkReason::KeysUnusable;
			break;
		case EFault::UserRefused:
			Kind = ELinkReason::ForeignUser;
			break;
		default:
			break;
	}
	return {Kind, Fault.Message.empty() ? FaultInfo(Fault.Code).Text : Fault.Message};
}

FLinkFault FaultOf(const FLinkReason& Reason)
{
	EFault Code = EFault::PeerLost;
	switch (Reason.Kind)
	{
		case ELinkReason::Well:
			return {};
		case ELinkReason::AddressRefused:
		case ELinkReason::FolderUnsafe:
		case ELinkReason::SocketUnsafe:
			Code = EFault::AddressRefused;
			break;
		case ELinkReason::ForeignUser:
			Code = EFault::UserRefused;
			break;
		case ELinkReason::KeysNeeded:
		case ELinkReason::KeysUnusable:
		case ELinkReason::KeysRejected:
			Code = EFault::KeysRefused;
			break;
		default:
			break;
	}
	return MakeFault(Code, "", Reason.What);
}

std::string ToString(const FLinkReason& Reason)
{
	const std::string Advice = Reason.Advice();
	return Advice.empty() || Reason.What.empty() ? Reason.What + Advice : Reason.What + " " + Advice;
}

} // namespace Zef
