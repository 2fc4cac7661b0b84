// SPDX-License-Identifier: MIT
#include "Outbox.h"

#include <algorithm>

namespace Zef
{

void FOutbox::Open(std::uint64_t InWindowBytes, std::uint32_t InMaxPieceBytes)
{
	WindowBytes = InWindowBytes;
	MaxPieceBytes = static_cast<std::uint32_t>(std::min<std::uint64_t>(InMaxPieceBytes, InWindowBytes));
}

void FOutbox::Add(FEncodedItem&& Item)
{
	Queued += Item.PayloadBytes;
	Entries.push_back({std::move(Item), {}, 0});
}

void FOutbox::Add(FItemSource&& Source)
{
	Entries.push_back({std::nullopt, std::move(Source), 0});
}

/** Makes sure that the entry in front has an item, asking its source or going on to the next entry. */
bool FOutbox::LoadItem()
{
	while (!Entries.empty())
	{
		FEntry& Entry = Entries.front();
		if (!Entry.Item && Entry.Source)
		{
			Entry.Item = Entry.Source();
			Queued += Entry.Item ? Entry.Item->PayloadBytes : 0;
		}
		if (Entry.Item)
		{
			return true;
		}
		Entries.pop_front();
	}
	return false;
}

void FOutbox::DropItem()
{
	FEntry& Entry = Entries.front();
	Queued -= Entry.Item ? Entry.Item->PayloadBytes - Offset : 0;
	Entry.Item.reset();
	bHeaderSent = false;
	Chunk = 0;
	ChunkOffset = 0;
	Offset = 0;
}

std::optional<FOutMessage> FOutbox::Next()
{
	if (MaxPieceBytes == 0 || !LoadItem())
	{
		return std::nullopt;
	}
	FEntry& Entry = Entries.front();
	FEncodedItem& Item = *Entry.Item;
	const bool bHeader = !bHeaderSent;
	const std::size_t Size =
		bHeader ? Item.Header.size() : std::min<std::size_t>(Item.Chunks[Chunk].Size - ChunkOffset, MaxPieceBytes);
	if (Sent != Credited && Sent - Credited + Size > WindowBytes)
	{
		return std::nullopt;
	}
	Sent += Size;

	FOutMessage Message;
	if (bHeader)
	{
		++Number;
		Entry.FirstNumber = Entry.FirstNumber == 0 ? Number : Entry.FirstNumber;
		const auto Header = std::make_shared<const FBytes>(std::move(Item.Header));
		Message = {{EFrame::Item, Number, 0}, {Header->data(), Header->size(), Header}};
		bHeaderSent = true;
	}
	else
	{
		const FChunk& From = Item.Chunks[Chunk];
		Message = {{EFrame::Piece, Number, Offset}, {From.Data + ChunkOffset, Size, From.Owner}};
		ChunkOffset += Size;
		Offset += Size;
		Queued -= Size;
		if (ChunkOffset == From.Size)
		{
			// The message keeps the memory alive from here on.
			Item.Chunks[Chunk] = {};
			++Chunk;
			ChunkOffset = 0;
		}
	}
	if (Chunk == Item.Chunks.size())
	{
		DropItem();
		if (!Entry.Source)
		{
			Entries.pop_front();
		}
	}
	return Message;
}

bool FOutbox::Credit(std::uint64_t TotalBytes)
{
	if (TotalBytes > Sent || TotalBytes < Credited)
	{
		return false;
	}
	Credited = TotalBytes;
	return true;
}

void FOutbox::Cancel(std::uint64_t ItemNumber)
{
	if (ItemNumber == 0 || Entries.empty())
	{
		return;
	}
	const FEntry& Entry = Entries.front();
	if (Entry.FirstNumber != 0 && ItemNumber >= Entry.FirstNumber && ItemNumber <= Number)
	{
		DropItem();
		Entries.pop_front();
	}
}

} // namespace Zef
