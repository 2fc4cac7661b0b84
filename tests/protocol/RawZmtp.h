// SPDX-License-Identifier: MIT
/** The ends of the link played byte by byte on plain local sockets: what ZeroMQ itself would never let out. */
#pragma once

#include "Zef/Wire.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace LinkTest
{

/** Path of an "ipc://" endpoint as the system takes it. */
inline sockaddr_un SocketName(const std::string& Endpoint)
{
	sockaddr_un Name{};
	Name.sun_family = AF_UNIX;
	const std::string Path = Endpoint.substr(6);
	std::copy_n(Path.c_str(), std::min(Path.size() + 1, sizeof(Name.sun_path)), Name.sun_path);
	return Name;
}

/** One connection that speaks ZMTP 3.1 with the NULL mechanism. */
class FZmtpEnd
{
public:
	static constexpr int PatienceMilliseconds = 30000;

	FZmtpEnd() = default;
	explicit FZmtpEnd(int InSocket)
		: Socket(InSocket)
	{
	}
	~FZmtpEnd() { Close(); }
	FZmtpEnd(FZmtpEnd&& Other) noexcept
		: Socket(std::exchange(Other.Socket, -1))
	{
	}
	FZmtpEnd& operator=(FZmtpEnd&& Other) noexcept
	{
		std::swap(Socket, Other.Socket);
		return *this;
	}

	void Close()
	{
		if (Socket >= 0)
		{
			close(std::exchange(Socket, -1));
		}
	}

	/** Bytes as they are, so many at a time. False when the other end is gone. */
	bool Write(const Zef::FBytes& Bytes, std::size_t AtOnce = SIZE_MAX)
	{
		for (std::size_t Place = 0; Place < Bytes.size();)
		{
			const std::size_t Count = std::min(AtOnce, Bytes.size() - Place);
			const ssize_t Written = send(Socket, Bytes.data() + Place, Count, MSG_NOSIGNAL);
			if (Written <= 0)
			{
				return false;
			}
			Place += static_cast<std::size_t>(Written);
		}
		return true;
	}

	/** So many bytes; fewer when the connection ends, or nothing comes for long. */
	Zef::FBytes Read(std::size_t Count)
	{
		Zef::FBytes Bytes;
		while (Bytes.size() < Count)
		{
			pollfd Item{Socket, POLLIN, 0};
			if (poll(&Item, 1, PatienceMilliseconds) <= 0)
			{
				break;
			}
			Zef::FBytes Piece(Count - Bytes.size());
			const ssize_t Length = recv(Socket, Piece.data(), Piece.size(), 0);
			if (Length <= 0)
			{
				bEnded = true;
				break;
			}
			Bytes.insert(Bytes.end(), Piece.begin(), Piece.begin() + Length);
		}
		return Bytes;
	}

	/** Greeting and handshake of this end, as bytes. */
	static Zef::FBytes Opening(const std::string& SocketType)
	{
		Zef::FBytes Bytes(64, 0);
		Bytes[0] = 0xff;
		Bytes[9] = 0x7f;
		Bytes[10] = 3;
		Bytes[11] = 1;
		std::copy_n("NULL", 4, Bytes.begin() + 12);
		std::string Ready = std::string("\x05") + "READY" + "\x0b" + "Socket-Type";
		Ready += {0, 0, 0, static_cast<char>(SocketType.size())};
		Ready += SocketType;
		Bytes.push_back(4);
		Bytes.push_back(static_cast<std::uint8_t>(Ready.size()));
		Bytes.insert(Bytes.end(), Ready.begin(), Ready.end());
		return Bytes;
	}

	/** Both sides of greeting and handshake. */
	bool Open(const std::string& SocketType)
	{
		return Write(Opening(SocketType)) && Read(64).size() == 64 && !ReadFrame().second.empty();
	}

	/** A message of these parts, as bytes. */
	static Zef::FBytes Message(std::initializer_list<Zef::FBytes> Parts)
	{
		Zef::FBytes Bytes;
		std::size_t Left = Parts.size();
		for (const Zef::FBytes& Part : Parts)
		{
			const bool bLong = Part.size() > 255;
			Bytes.push_back(static_cast<std::uint8_t>((--Left > 0 ? 1 : 0) | (bLong ? 2 : 0)));
			for (int Byte = bLong ? 7 : 0; Byte >= 0; --Byte)
			{
				Bytes.push_back(static_cast<std::uint8_t>(std::uint64_t(Part.size()) >> (8 * Byte)));
			}
			Bytes.insert(Bytes.end(), Part.begin(), Part.end());
		}
		return Bytes;
	}

	/** Parts of the next message; empty at the end of the connection. Commands such as heartbeats get no answer. */
	std::vector<Zef::FBytes> Receive()
	{
		std::vector<Zef::FBytes> Parts;
		while (true)
		{
			auto [Flags, Body] = ReadFrame();
			if (bEnded || Flags < 0)
			{
				return {};
			}
			if ((Flags & 4) == 0)
			{
				Parts.push_back(std::move(Body));
				if ((Flags & 1) == 0)
				{
					return Parts;
				}
			}
		}
	}

	/** True when the other end has closed the connection; reads what comes until then. */
	bool IsEndedByOther()
	{
		while (!Receive().empty())
		{
		}
		return bEnded;
	}

	int Descriptor() const { return Socket; }

private:
	/** Flags and body; -1 when there is none. */
	std::pair<int, Zef::FBytes> ReadFrame()
	{
		const Zef::FBytes Flags = Read(1);
		if (Flags.empty())
		{
			return {-1, {}};
		}
		const Zef::FBytes Length = Read((Flags[0] & 2) != 0 ? 8 : 1);
		std::uint64_t Size = 0;
		for (const std::uint8_t Byte : Length)
		{
			Size = Size << 8 | Byte;
		}
		return {Flags[0], Read(static_cast<std::size_t>(Size))};
	}

	int Socket = -1;
	bool bEnded = false;
};

/** Listens where a garment application would. */
class FZmtpListener
{
public:
	explicit FZmtpListener(const std::string& Endpoint)
		: Name(SocketName(Endpoint))
		, Socket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
	{
		EXPECT_EQ(bind(Socket, reinterpret_cast<const sockaddr*>(&Name), sizeof(Name)), 0);
		EXPECT_EQ(listen(Socket, 8), 0);
	}
	~FZmtpListener()
	{
		close(Socket);
		unlink(Name.sun_path);
	}
	FZmtpListener(const FZmtpListener&) = delete;
	FZmtpListener& operator=(const FZmtpListener&) = delete;

	/** The next connection, nothing said yet. */
	FZmtpEnd Accept() const
	{
		pollfd Item{Socket, POLLIN, 0};
		EXPECT_EQ(poll(&Item, 1, FZmtpEnd::PatienceMilliseconds), 1);
		return FZmtpEnd(accept4(Socket, nullptr, nullptr, SOCK_CLOEXEC));
	}

private:
	sockaddr_un Name;
	int Socket;
};

/** Connects where an editor would; nothing said yet. */
inline FZmtpEnd ConnectTo(const std::string& Endpoint)
{
	const sockaddr_un Name = SocketName(Endpoint);
	const int Socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
	EXPECT_EQ(connect(Socket, reinterpret_cast<const sockaddr*>(&Name), sizeof(Name)), 0);
	return FZmtpEnd(Socket);
}

} // namespace LinkTest
