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
	Entries.push_back({std::move(Item), {}, {}, 0});
}

void FOutbox::Add(FItemSource&& Source)
{
	Entries.push_back({std::nullopt, std::move(Source), {}, 0});
}

void FOutbox::Add(FRecordedRun&& Run)
{
	if (!Run.Messages.empty())
	{
		Entries.push_back({std::nullopt, {}, std::move(Run), 0});
	}
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
		if (Entry.Item || !Entry.Run.Messages.empty())
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
	if (!Entry.Item)
	{
		return NextRecorded();
	}
	FEncodedItem& Item = *Entry.Item;
	const bool bHeader = !bHeaderSent;
	const std::size_t Size =
		bHeader ? Item.Header.size() : std::min<std::size_t>(Item.Chunks[Chunk].Size - ChunkOffset, MaxPieceBytes);
	if (!HasRoom(Size))
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
		Message = {{EFrame::Item, Number, 0}, {Header->data(), Header->size(), Header}, {}};
		bHeaderSent = true;
	}
	else
	{
		const FChunk& From = Item.Chunks[Chunk];
		Message = {{EFrame::Piece, Number, Offset}, {From.Data + ChunkOffset, Size, From.Owner}, {}};
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

bool FOutbox::HasRoom(std::size_t Size) const
{
	return Sent == Credited || Sent - Credited + Size <= WindowBytes;
}

std::optional<FOutMessage> FOutbox::NextRecorded()
{
	FEntry& Entry = Entries.front();
	const FRecordedMessage& Recorded = Entry.Run.Messages[RunPlace];
	FLinkFault Fault;
	const std::optional<FPrefix> Prefix =
		Recorded.Parts.empty() ? std::nullopt : DecodePrefix(Recorded.Parts[0], Fault);
	const bool bCounts = Prefix && (Prefix->Frame == EFrame::Item || Prefix->Frame == EFrame::Piece);
	const std::size_t Size = bCounts && Recorded.Parts.size() == 2 ? Recorded.Parts[1].size() : 0;
	if (!HasRoom(Size))
	{
		return std::nullopt;
	}
	Sent += Size;

	FOutMessage Message;
	const auto ChunkOf = [&](FByteView Part) { return FChunk{Part.data(), Part.size(), Entry.Run.Owner}; };
	if (bCounts && Recorded.Parts.size() == 2)
	{
		if (!bRunNumbered)
		{
			bRunNumbered = true;
			RunShift = Number + 1 - Prefix->Item;
		}
		Message.Prefix = {Prefix->Frame, Prefix->Item + RunShift, Prefix->Offset};
		Message.Body = ChunkOf(Recorded.Parts[1]);
		Number = std::max(Number, Message.Prefix.Item);
		Entry.FirstNumber = Entry.FirstNumber == 0 ? Message.Prefix.Item : Entry.FirstNumber;
	}
	else
	{
		for (const FByteView Part : Recorded.Parts)
		{
			Message.Parts.push_back(ChunkOf(Part));
		}
	}
	if (++RunPlace == Entry.Run.Messages.size())
	{
		RunPlace = 0;
		bRunNumbered = false;
		Entries.pop_front();
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
	// A recording goes on as it did when it was made.
	if (Entry.Run.Messages.empty() && Entry.FirstNumber != 0 && ItemNumber >= Entry.FirstNumber && ItemNumber <= Number)
	{
		DropItem();
		Entries.pop_front();
	}
}

} // namespace Zef
