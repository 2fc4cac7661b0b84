// SPDX-License-Identifier: MIT
/** Feeds encoded items to a decoder and keeps what comes out. */
#pragma once

#include "Zef/Decode.h"
#include "Zef/Encode.h"
#include "Zef/RecordPool.h"

#include <memory>
#include <vector>

namespace LinkTest
{

/** A decoder with plain records behind it. */
class FDecoding
{
public:
	explicit FDecoding(Zef::EReceiver Receiver, const Zef::FLimits& Limits = {})
		: Factory(std::make_shared<Zef::FRecordFactory>())
		, Decoder(*Factory, Receiver, Limits)
	{
	}

	/** The whole item in pieces of so many bytes. */
	Zef::EDecode Feed(const Zef::FEncodedItem& Item, std::size_t PieceBytes = 1 << 20)
	{
		Zef::FBytes Payload;
		for (const Zef::FChunk& Chunk : Item.Chunks)
		{
			Payload.insert(Payload.end(), Chunk.Data, Chunk.Data + Chunk.Size);
		}
		return Feed(Item.Header, Payload, PieceBytes);
	}

	/** A header and arrays; stops at the first refusal. Each stretch lies in a block of exactly its size. */
	Zef::EDecode Feed(const Zef::FBytes& Header, const Zef::FBytes& Payload, std::size_t PieceBytes = 1 << 20)
	{
		const Zef::FBytes Exact(Header.begin(), Header.end());
		Zef::EDecode Result = Decoder.Header(++Number, Exact);
		for (std::size_t Offset = 0; Offset < Payload.size() && Result == Zef::EDecode::More; Offset += PieceBytes)
		{
			const std::size_t Size = std::min(PieceBytes, Payload.size() - Offset);
			const Zef::FBytes Piece(Payload.begin() + Offset, Payload.begin() + Offset + Size);
			Result = Decoder.Piece(Number, Offset, Piece);
		}
		return Result;
	}

	std::shared_ptr<Zef::FRecordFactory> Factory;
	Zef::FItemDecoder Decoder;
	std::uint64_t Number = 0;
};

/** The plain record of a complete item. */
inline Zef::FReceivedRecord& RecordOf(Zef::FDecodedItem& Item)
{
	return static_cast<Zef::FReceivedRecord&>(*Item.Record);
}

} // namespace LinkTest
