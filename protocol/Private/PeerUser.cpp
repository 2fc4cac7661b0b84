// SPDX-License-Identifier: MIT
#include "PeerUser.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#ifndef _WIN32
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zef
{

#ifdef _WIN32

std::optional<std::uint32_t> UserOfPeer(int)
{
	return std::nullopt;
}

FLinkFault CheckPeerUser(int)
{
	return {};
}

std::uint64_t ConnectionMark(int)
{
	return 0;
}

void CutConnection(int, std::uint64_t) {}

#else

namespace
{
#ifdef __linux__
/** An address as /proc/net/tcp writes it: the words of the number in memory order, then the port. */
std::string TableText(const sockaddr_storage& Address)
{
	const std::uint8_t* Bytes = nullptr;
	std::size_t Count = 0;
	unsigned Port = 0;
	if (Address.ss_family == AF_INET)
	{
		const auto& Four = reinterpret_cast<const sockaddr_in&>(Address);
		Bytes = reinterpret_cast<const std::uint8_t*>(&Four.sin_addr);
		Count = sizeof(Four.sin_addr);
		Port = ntohs(Four.sin_port);
	}
	else if (Address.ss_family == AF_INET6)
	{
		const auto& Six = reinterpret_cast<const sockaddr_in6&>(Address);
		Bytes = reinterpret_cast<const std::uint8_t*>(&Six.sin6_addr);
		Count = sizeof(Six.sin6_addr);
		Port = ntohs(Six.sin6_port);
	}
	std::string Text;
	for (std::size_t Word = 0; Word < Count; Word += sizeof(std::uint32_t))
	{
		std::uint32_t Value = 0;
		std::memcpy(&Value, Bytes + Word, sizeof(Value));
		std::array<char, 16> Digits{};
		std::snprintf(Digits.data(), Digits.size(), "%08X", Value);
		Text += Digits.data();
	}
	std::array<char, 16> Digits{};
	std::snprintf(Digits.data(), Digits.size(), ":%04X", Port);
	return Text + Digits.data();
}

bool IsLoopback(const sockaddr_storage& Address)
{
	if (Address.ss_family == AF_INET)
	{
		return (ntohl(reinterpret_cast<const sockaddr_in&>(Address).sin_addr.s_addr) >> 24) == 127;
	}
	return Address.ss_family == AF_INET6 &&
		   IN6_IS_ADDR_LOOPBACK(&reinterpret_cast<const sockaddr_in6&>(Address).sin6_addr);
}

/** Owner of the other end of a connection within this machine. */
std::optional<std::uint32_t> UserOfLoopbackPeer(int Descriptor)
{
	sockaddr_storage Own{};
	sockaddr_storage Other{};
	socklen_t OwnSize = sizeof(Own);
	socklen_t OtherSize = sizeof(Other);
	if (getsockname(Descriptor, reinterpret_cast<sockaddr*>(&Own), &OwnSize) != 0 ||
		getpeername(Descriptor, reinterpret_cast<sockaddr*>(&Other), &OtherSize) != 0 || !IsLoopback(Other))
	{
		return std::nullopt;
	}
	// The other end's own row: what is remote here is local there.
	const std::string Local = TableText(Other);
	const std::string Remote = TableText(Own);
	std::ifstream Table(Own.ss_family == AF_INET ? "/proc/net/tcp" : "/proc/net/tcp6");
	std::string Line;
	std::getline(Table, Line);
	while (std::getline(Table, Line))
	{
		std::istringstream Words(Line);
		std::string Number;
		std::string First;
		std::string Second;
		std::string Skipped;
		Words >> Number >> First >> Second;
		if (First != Local || Second != Remote)
		{
			continue;
		}
		std::uint32_t User = 0;
		// State, queues, timer, retransmissions.
		if (Words >> Skipped >> Skipped >> Skipped >> Skipped >> User)
		{
			return User;
		}
	}
	return std::nullopt;
}
#endif
} // namespace

std::optional<std::uint32_t> UserOfPeer(int Descriptor)
{
	sockaddr_storage Own{};
	socklen_t Size = sizeof(Own);
	if (Descriptor < 0 || getsockname(Descriptor, reinterpret_cast<sockaddr*>(&Own), &Size) != 0)
	{
		return std::nullopt;
	}
	if (Own.ss_family == AF_UNIX)
	{
#ifdef __linux__
		ucred Credentials{};
		socklen_t Length = sizeof(Credentials);
		if (getsockopt(Descriptor, SOL_SOCKET, SO_PEERCRED, &Credentials, &Length) == 0)
		{
			return Credentials.uid;
		}
#else
		uid_t User = 0;
		gid_t Group = 0;
		if (getpeereid(Descriptor, &User, &Group) == 0)
		{
			return User;
		}
#endif
		return std::nullopt;
	}
#ifdef __linux__
	return UserOfLoopbackPeer(Descriptor);
#else
	return std::nullopt;
#endif
}

FLinkFault CheckPeerUser(int Descriptor)
{
	const std::optional<std::uint32_t> User = UserOfPeer(Descriptor);
	if (!User || *User == geteuid())
	{
		return {};
	}
	return MakeFault(EFault::UserRefused, "",
		"The other end belongs to user " + std::to_string(*User) + ", not to user " + std::to_string(geteuid()) + ".");
}

std::uint64_t ConnectionMark(int Descriptor)
{
	struct stat Status
	{
	};
	return Descriptor >= 0 && fstat(Descriptor, &Status) == 0 && S_ISSOCK(Status.st_mode) ? Status.st_ino : 0;
}

void CutConnection(int Descriptor, std::uint64_t Mark)
{
	// Closing it would take the number away from ZeroMQ; so it sees the end of the connection and closes it itself.
	if (Mark != 0 && ConnectionMark(Descriptor) == Mark)
	{
		shutdown(Descriptor, SHUT_RDWR);
	}
}

#endif

} // namespace Zef
