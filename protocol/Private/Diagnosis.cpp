// SPDX-License-Identifier: MIT
#include "Zef/Diagnosis.h"

#include "OpenAddress.h"
#include "Reach.h"
#include "Zef/ClientEndpoint.h"
#include "Zef/RecordPool.h"
#include "Zef/Wire.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zef
{

namespace
{
/** Nothing is asked for, so nothing is answered. */
class FSilentHandler final : public IClientHandler
{
public:
	void OnItem(FReceivedItem&) override {}
	void OnAvailability(const FAvailability&) override {}
	void OnConnectionChanged(bool, const std::string&) override {}
};

/** " (mode 0600)"; empty where files have none. */
std::string ModeOf(const std::string& Path)
{
#ifdef _WIN32
	(void)Path;
	return {};
#else
	struct stat Status
	{
	};
	if (lstat(Path.c_str(), &Status) != 0)
	{
		return {};
	}
	std::array<char, 32> Text{};
	std::snprintf(Text.data(), Text.size(), " (mode %04o)", static_cast<unsigned>(Status.st_mode & 07777));
	return Text.data();
#endif
}

class FDoctor
{
public:
	explicit FDoctor(const FDiagnosisOptions& InOptions)
		: Options(InOptions)
		, Endpoint(InOptions.Endpoint.empty() ? EndpointOfEnvironment() : InOptions.Endpoint)
		, KeyFile(KeyFileOr(InOptions.KeyFile))
	{
	}

	FDiagnosis Look()
	{
		LookAtEndpoint();
		LookAtKeys();
		LookAtFolder();
		LookAtFile();
		LookAtPort();
		LookAtPeer();
		return std::move(Diagnosis);
	}

private:
	void Right(const char* Subject, const std::string& Text)
	{
		Diagnosis.Findings.push_back({Subject, EFindingState::Right, Text, {}});
	}

	void Wrong(const char* Subject, const FLinkReason& Reason)
	{
		bWell = false;
		Diagnosis.Findings.push_back({Subject, EFindingState::Wrong, "", Reason});
	}

	void Skip(const char* Subject) { Diagnosis.Findings.push_back({Subject, EFindingState::Skipped, "", {}}); }

	void LookAtEndpoint()
	{
		// Keys have their own line.
		const TResult<FAddress> Found = Endpoint.empty() ? AddressOfChannel(Options.Channel, ERemote::WithKeys)
														 : AddressOfEndpoint(Endpoint, ERemote::WithKeys);
		if (!Found)
		{
			Wrong("endpoint", ReasonOf(Found.Fault()));
			return;
		}
		Address = *Found;
		const std::string Where = Address.PortFile.empty() ? Address.Endpoint : "portfile:" + Address.PortFile;
		const char* const Source = !Options.Endpoint.empty() ? "as asked for"
								   : !Endpoint.empty()		 ? "named by ZEF_TANDEM_ENDPOINT"
															 : nullptr;
		Right("endpoint",
			Where + " (" + (Source != nullptr ? Source : "channel \"" + Options.Channel + "\", on this machine") + ")");
	}

	void LookAtKeys()
	{
		if (!bWell)
		{
			Skip("keys");
			return;
		}
		if (!Address.SocketFile.empty() || (KeyFile.empty() && !Address.bRemote))
		{
			Right("keys", "none needed on this machine");
			return;
		}
		if (KeyFile.empty())
		{
			Wrong("keys", {ELinkReason::KeysNeeded, "The address is on another machine, and no keys are named."});
			return;
		}
		const TResult<FLinkKeys> Keys = LoadKeys(KeyFile, ELinkEnd::Editor);
		if (!Keys)
		{
			Wrong("keys", ReasonOf(Keys.Fault()));
			return;
		}
		Right("keys", "\"" + KeyFile + "\" holds an editor's keys" + ModeOf(KeyFile));
	}

	void LookAtFolder()
	{
		if (Address.Folder.empty())
		{
			return;
		}
		std::error_code Ignored;
		if (const FLinkFault Fault = CheckFolder(Address))
		{
			Wrong("folder", {ELinkReason::FolderUnsafe, Fault.Message});
		}
		else if (!std::filesystem::exists(Address.Folder, Ignored))
		{
			Wrong("folder",
				{ELinkReason::NobodyServes,
					"\"" + Address.Folder + "\" is not there: no garment application has served this user yet."});
		}
		else
		{
			Right("folder", "\"" + Address.Folder + "\" is yours alone" + ModeOf(Address.Folder));
		}
	}

	void LookAtFile()
	{
		const std::string& File = Address.PortFile.empty() ? Address.SocketFile : Address.PortFile;
		if (File.empty())
		{
			return;
		}
		std::error_code Ignored;
		if (!bWell)
		{
			Skip("socket");
		}
		else if (const FLinkReason Reason = CheckBeforeConnecting(Address))
		{
			Wrong("socket", Reason);
		}
		else if (!std::filesystem::exists(File, Ignored))
		{
			Wrong("socket", {ELinkReason::NobodyServes,
								"\"" + File + "\" is not there: no garment application serves at the moment."});
		}
		else if (!Address.PortFile.empty() && ResolveEndpoint(Address).empty())
		{
			Wrong("socket", {ELinkReason::SocketUnsafe, "\"" + File + "\" names no port of this machine."});
		}
		else
		{
			Right("socket", "\"" + File + "\" is yours" + ModeOf(File));
		}
	}

	void LookAtPort()
	{
		if (!Address.bRemote)
		{
			return;
		}
		const FHostAndPort Place = HostAndPortOf(Address.Endpoint);
		if (const FLinkReason Reason =
				TryToReach(Place.Host, Place.Port, std::min(Options.Timeout, std::chrono::milliseconds(3000))))
		{
			Wrong("port", Reason);
			return;
		}
		Right("port", "port " + Place.Port + " of \"" + Place.Host + "\" answers; no firewall is in the way");
	}

	void LookAtPeer()
	{
		if (!bWell)
		{
			Skip("peer");
			Skip("version");
			return;
		}
		Connect();
		if (Diagnosis.Link.State == ELinkState::Up)
		{
			Right("peer", "\"" + Diagnosis.Link.Detail + "\" answers");
			Right("version", "both speak protocol version " + std::to_string(Diagnosis.Link.Version) +
								 "; this editor speaks " + ToString(FVersionRange()));
			return;
		}
		const FLinkReason Reason =
			Diagnosis.Link.Reason
				? Diagnosis.Link.Reason
				: FLinkReason{ELinkReason::NoAnswer,
					  "Nothing answered for " + std::to_string(Options.Timeout.count()) + " milliseconds."};
		if (Reason.Kind == ELinkReason::VersionUnknown)
		{
			Right("peer", "a garment application answers");
			Wrong("version", Reason);
			return;
		}
		Wrong("peer", Reason);
		Skip("version");
	}

	/** As an editor does, until it is clear how the link stands. */
	void Connect()
	{
		FClientOptions Client;
		Client.Program = "zef-tandem doctor";
		Client.KeyFile = Options.KeyFile;
		const auto Factory = std::make_shared<FRecordFactory>();
		const auto Opened = Endpoint.empty() ? FClientEndpoint::Open(Options.Channel, Factory, Client)
											 : FClientEndpoint::OpenEndpoint(Endpoint, Factory, Client);
		if (!Opened)
		{
			Diagnosis.Link.Reason = ReasonOf(Opened.Fault());
			return;
		}
		FSilentHandler Handler;
		const auto Deadline = std::chrono::steady_clock::now() + Options.Timeout;
		do
		{
			(*Opened)->Poll(Handler, std::chrono::milliseconds(5));
			Diagnosis.Link = (*Opened)->Status();
		} while (Diagnosis.Link.State != ELinkState::Up && !Diagnosis.Link.Reason &&
				 std::chrono::steady_clock::now() < Deadline);
	}

	const FDiagnosisOptions& Options;
	const std::string Endpoint; // empty: the channel's own
	const std::string KeyFile;
	FAddress Address;
	FDiagnosis Diagnosis;
	bool bWell = true;
};
} // namespace

std::string ToString(const FFinding& Finding)
{
	static constexpr std::array<const char*, 3> States{"ok   ", "WRONG", "--   "};
	std::string Subject = Finding.Subject;
	Subject.resize(std::max<std::size_t>(Subject.size(), 8), ' ');
	const std::string Text = Finding.State == EFindingState::Right	 ? Finding.Text
							 : Finding.State == EFindingState::Wrong ? ToString(Finding.Reason)
																	 : "not looked at, because of the above";
	return std::string(States[static_cast<std::size_t>(Finding.State)]) + "  " + Subject + "  " + Text;
}

FLinkReason FDiagnosis::Reason() const
{
	for (const FFinding& Finding : Findings)
	{
		if (Finding.State == EFindingState::Wrong)
		{
			return Finding.Reason;
		}
	}
	return {};
}

FDiagnosis Diagnose(const FDiagnosisOptions& Options)
{
	return FDoctor(Options).Look();
}

} // namespace Zef
