// SPDX-License-Identifier: MIT
/** The two ends of the link played with raw messages, for what a well-behaved end would never send. */
#pragma once

#include "LinkFixture.h"
#include "Zef/Wire.h"

#include <zmq.hpp>

#include <initializer_list>

namespace LinkTest
{

inline Zef::FBytes Prefix(Zef::EFrame Frame, std::uint64_t Item = 0, std::uint64_t Offset = 0)
{
	const auto Bytes = Zef::EncodePrefix({Frame, Item, Offset});
	return {Bytes.begin(), Bytes.end()};
}

/** What both raw ends can do. */
class FRawEnd
{
public:
	explicit FRawEnd(zmq::socket_type Type)
		: Socket(Context, Type)
	{
		Socket.set(zmq::sockopt::linger, 0);
		Socket.set(zmq::sockopt::rcvtimeo,
			static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(Patience).count()));
	}

	/** How long Receive waits. */
	void SetPatience(std::chrono::milliseconds Time)
	{
		Socket.set(zmq::sockopt::rcvtimeo, static_cast<int>(Time.count()));
	}

	/** One message of these parts. */
	void Send(std::initializer_list<Zef::FBytes> Parts)
	{
		if (!Identity.empty())
		{
			Socket.send(zmq::buffer(Identity), zmq::send_flags::sndmore);
		}
		std::size_t Left = Parts.size();
		for (const Zef::FBytes& Part : Parts)
		{
			Socket.send(zmq::buffer(Part), --Left > 0 ? zmq::send_flags::sndmore : zmq::send_flags::none);
		}
	}

	/** Messages of two parts each, prefix and body, one after the other. */
	void SendAll(const std::vector<Zef::FBytes>& Parts)
	{
		for (std::size_t Index = 0; Index + 1 < Parts.size(); Index += 2)
		{
			Send({Parts[Index], Parts[Index + 1]});
		}
	}

	/** The whole item in pieces of so many bytes. */
	void SendItem(const Zef::FEncodedItem& Item, std::uint64_t Number, std::size_t PieceBytes = 1 << 20)
	{
		Send({Prefix(Zef::EFrame::Item, Number), Item.Header});
		const Zef::FBytes Payload = PayloadOf(Item);
		for (std::size_t Offset = 0; Offset < Payload.size(); Offset += PieceBytes)
		{
			const auto First = Payload.begin() + static_cast<std::ptrdiff_t>(Offset);
			const auto Last =
				Payload.begin() + static_cast<std::ptrdiff_t>(std::min(Offset + PieceBytes, Payload.size()));
			Send({Prefix(Zef::EFrame::Piece, Number, Offset), Zef::FBytes(First, Last)});
		}
	}

	/** The parts of the next message, without an identity; empty after a long time without any. */
	std::vector<Zef::FBytes> Receive()
	{
		std::vector<Zef::FBytes> Parts;
		zmq::message_t Part;
		do
		{
			if (!Socket.recv(Part))
			{
				return {};
			}
			const auto* Data = static_cast<const std::uint8_t*>(Part.data());
			Parts.emplace_back(Data, Data + Part.size());
		} while (Part.more());
		if (bRouter)
		{
			Identity.assign(Parts[0].begin(), Parts[0].end());
			Parts.erase(Parts.begin());
		}
		return Parts;
	}

	/** Reads until a message of that frame, and gives its parts. */
	std::vector<Zef::FBytes> ReceiveFrame(Zef::EFrame Frame)
	{
		while (true)
		{
			std::vector<Zef::FBytes> Parts = Receive();
			Zef::FLinkFault Fault;
			if (Parts.empty() || Zef::DecodePrefix(Parts[0], Fault)->Frame == Frame)
			{
				return Parts;
			}
		}
	}

protected:
	zmq::context_t Context;
	zmq::socket_t Socket;
	std::string Identity;
	bool bRouter = false;
};

/** An editor. */
class FRawEditor : public FRawEnd
{
public:
	explicit FRawEditor(const std::string& Endpoint)
		: FRawEnd(zmq::socket_type::dealer)
	{
		Socket.connect(Endpoint);
	}

	/** Says Hello and waits for the answer. */
	void Greet(const Zef::FHello& Hello = {1, 1, "raw editor", 16 << 20, 4 << 20})
	{
		Send({Prefix(Zef::EFrame::Hello), Zef::EncodeHello(Hello)});
		Answer = Receive();
	}

	std::vector<Zef::FBytes> Answer;
};

/** A garment application that serves one editor. */
class FRawApplication : public FRawEnd
{
public:
	explicit FRawApplication(const std::string& Endpoint)
		: FRawEnd(zmq::socket_type::router)
	{
		bRouter = true;
		Socket.bind(Endpoint);
	}

	/** Waits for Hello and answers it. */
	void Welcome(const Zef::FWelcome& Welcome = {1, "raw application", 16 << 20, 4 << 20})
	{
		Hello = ReceiveFrame(Zef::EFrame::Hello);
		Send({Prefix(Zef::EFrame::Welcome), Zef::EncodeWelcome(Welcome)});
	}

	std::vector<Zef::FBytes> Hello;
};

} // namespace LinkTest
