// SPDX-License-Identifier: MIT
#include "Zef/Address.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#ifdef _WIN32
#include <process.h>
#else
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

namespace Zef
{

namespace
{
std::string Variable(const char* Name)
{
	const char* Value = std::getenv(Name);
	return Value != nullptr ? Value : "";
}

/** A channel name as part of a file name. */
std::string Escaped(const std::string& ChannelName)
{
	static constexpr char Digits[] = "0123456789ABCDEF";
	std::string Name;
	for (const char Letter : ChannelName)
	{
		const bool bPlain = (Letter >= 'a' && Letter <= 'z') || (Letter >= 'A' && Letter <= 'Z') ||
							(Letter >= '0' && Letter <= '9') || Letter == '-' || Letter == '_';
		if (bPlain)
		{
			Name += Letter;
		}
		else
		{
			const auto Byte = static_cast<unsigned char>(Letter);
			Name += {'%', Digits[Byte >> 4], Digits[Byte & 15]};
		}
	}
	return Name;
}

bool IsLoopback(const std::string& Endpoint)
{
	return Endpoint.starts_with("tcp://127.0.0.1:") || Endpoint.starts_with("tcp://[::1]:");
}

FLinkFault Refused(std::string Message)
{
	return MakeFault(EFault::AddressRefused, "", std::move(Message));
}

TResult<FAddress> AddressOfSocket(const std::string& Path, const std::string& Folder)
{
	FAddress Address;
	Address.Endpoint = "ipc://" + Path;
	Address.SocketFile = Path;
	Address.Folder = Folder;
#ifndef _WIN32
	if (Path.size() >= sizeof(sockaddr_un::sun_path))
	{
		return Refused("The socket's path \"" + Path + "\" is longer than " +
					   std::to_string(sizeof(sockaddr_un::sun_path) - 1) +
					   " bytes; choose a shorter channel name or set XDG_RUNTIME_DIR.");
	}
#endif
	return Address;
}
} // namespace

std::string LinkFolder()
{
#ifdef _WIN32
	return Variable("LOCALAPPDATA") + "/zef-tandem";
#else
	const std::string Runtime = Variable("XDG_RUNTIME_DIR");
	return Runtime.starts_with('/') ? Runtime + "/zef-tandem" : "/tmp/zef-tandem-" + std::to_string(geteuid());
#endif
}

std::string EndpointOfEnvironment()
{
	return Variable(EndpointVariable);
}

FHostAndPort HostAndPortOf(const std::string& Endpoint)
{
	static constexpr std::string_view Tcp = "tcp://";
	const std::size_t Colon = Endpoint.rfind(':');
	if (!Endpoint.starts_with(Tcp) || Colon <= Tcp.size())
	{
		return {};
	}
	std::string Host = Endpoint.substr(Tcp.size(), Colon - Tcp.size());
	const std::string Port = Endpoint.substr(Colon + 1);
	if (Host.starts_with('[') && Host.ends_with(']'))
	{
		Host = Host.substr(1, Host.size() - 2);
	}
	const bool bNumber = !Port.empty() && Port.size() <= 5 &&
						 Port.find_first_not_of("0123456789") == std::string::npos && std::stoi(Port) >= 1 &&
						 std::stoi(Port) <= 65535;
	// Nothing that ZeroMQ reads as more than a host: the source address that it takes in front of ';', a path.
	const bool bHost = !Host.empty() && Host.find_first_of("/;, ") == std::string::npos;
	return bHost && (bNumber || Port == "*") ? FHostAndPort{Host, Port} : FHostAndPort{};
}

TResult<FAddress> AddressOfEndpoint(const std::string& Endpoint, ERemote Remote)
{
	static constexpr const char* PortFile = "portfile:";
	FAddress Address;
	if (Endpoint.starts_with(PortFile) && Endpoint.size() > std::string(PortFile).size())
	{
		Address.PortFile = Endpoint.substr(std::string(PortFile).size());
		return Address;
	}
	if (Endpoint == "ipc://*" || IsLoopback(Endpoint))
	{
		Address.Endpoint = Endpoint;
		return Address;
	}
	if (Endpoint.starts_with("ipc://") && Endpoint.size() > 6)
	{
		return AddressOfSocket(Endpoint.substr(6), "");
	}
	if (!HostAndPortOf(Endpoint).Host.empty())
	{
		if (Remote == ERemote::WithKeys)
		{
			Address.Endpoint = Endpoint;
			Address.bRemote = true;
			return Address;
		}
		return Refused("\"" + Endpoint + "\" is not local, so it needs keys, and none are named.");
	}
	return Refused("\"" + Endpoint +
				   "\" is no endpoint; ipc://PATH, tcp://127.0.0.1:PORT, tcp://[::1]:PORT and portfile:PATH are, and "
				   "with keys tcp://HOST:PORT.");
}

TResult<FAddress> AddressOfChannel(const std::string& ChannelName, ERemote Remote)
{
	if (const std::string Override = EndpointOfEnvironment(); !Override.empty())
	{
		return AddressOfEndpoint(Override, Remote);
	}
	if (ChannelName.empty())
	{
		return Refused("A channel needs a name.");
	}
#ifdef _WIN32
	const std::string Base = Variable("LOCALAPPDATA");
	if (Base.empty())
	{
		return Refused("LOCALAPPDATA is not set, so there is no folder for the channel's port file.");
	}
	FAddress Address;
	Address.Folder = Base + "/zef-tandem";
	Address.PortFile = Address.Folder + "/" + Escaped(ChannelName) + ".port";
	return Address;
#else
	const std::string Folder = LinkFolder();
	return AddressOfSocket(Folder + "/" + Escaped(ChannelName) + ".sock", Folder);
#endif
}

std::string ResolveEndpoint(const FAddress& Address)
{
	if (Address.PortFile.empty())
	{
		return Address.Endpoint;
	}
	std::ifstream File(Address.PortFile);
	std::string Endpoint;
	std::getline(File, Endpoint);
	return IsLoopback(Endpoint) ? Endpoint : "";
}

FLinkFault PrepareFolder(const FAddress& Address)
{
	if (Address.Folder.empty())
	{
		return {};
	}
#ifdef _WIN32
	// The folder of a user's local data is closed to others by the system.
	std::error_code Error;
	std::filesystem::create_directories(Address.Folder, Error);
	return Error ? Refused("The folder \"" + Address.Folder + "\" cannot be made: " + Error.message() + ".")
				 : FLinkFault{};
#else
	if (mkdir(Address.Folder.c_str(), 0700) != 0 && errno != EEXIST)
	{
		return Refused("The folder \"" + Address.Folder +
					   "\" cannot be made: " + std::error_code(errno, std::generic_category()).message() + ".");
	}
	return CheckFolder(Address);
#endif
}

FLinkFault CheckFolder(const FAddress& Address)
{
#ifndef _WIN32
	struct stat Status
	{
	};
	if (Address.Folder.empty() || (lstat(Address.Folder.c_str(), &Status) != 0 && errno == ENOENT))
	{
		return {};
	}
	if (!S_ISDIR(Status.st_mode))
	{
		return Refused("\"" + Address.Folder + "\" is not a folder; remove it.");
	}
	if (Status.st_uid != geteuid())
	{
		return Refused("The folder \"" + Address.Folder + "\" belongs to user " + std::to_string(Status.st_uid) +
					   ", not to user " + std::to_string(geteuid()) + ".");
	}
	if ((Status.st_mode & 077) != 0)
	{
		return Refused("The folder \"" + Address.Folder + "\" is open to others; run chmod 700 on it.");
	}
#else
	(void)Address;
#endif
	return {};
}

FLinkReason CheckBeforeConnecting(const FAddress& Address)
{
	if (const FLinkFault Fault = CheckFolder(Address))
	{
		return {ELinkReason::FolderUnsafe, Fault.Message};
	}
#ifndef _WIN32
	struct stat Status
	{
	};
	const std::string& File = Address.PortFile.empty() ? Address.SocketFile : Address.PortFile;
	if (File.empty() || lstat(File.c_str(), &Status) != 0)
	{
		return {};
	}
	if (Address.PortFile.empty() ? !S_ISSOCK(Status.st_mode) : !S_ISREG(Status.st_mode))
	{
		return {ELinkReason::SocketUnsafe,
			"\"" + File + "\" is no " + (Address.PortFile.empty() ? "socket" : "plain file") + "."};
	}
	if (Status.st_uid != geteuid())
	{
		return {ELinkReason::ForeignUser, "\"" + File + "\" belongs to user " + std::to_string(Status.st_uid) +
											  ", not to user " + std::to_string(geteuid()) + "."};
	}
	if (!Address.PortFile.empty() && (Status.st_mode & 022) != 0)
	{
		return {ELinkReason::SocketUnsafe, "\"" + File + "\" can be written by others."};
	}
#endif
	return {};
}

} // namespace Zef
