// SPDX-License-Identifier: MIT
#include "Decoder.h"
#include "SequenceCheck.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace Zef
{

namespace
{
/** Tables in a header; every joint, section, material and so on is one. Bounds what verification costs. */
constexpr flatbuffers::uoffset_t MaxTables = 8u << 20;
constexpr flatbuffers::uoffset_t MaxDepth = 16;

bool IsRequest(EItem Item)
{
	return Item <= EItem::SendJointAnimation;
}

} // namespace

EDecode FItemDecoder::FImpl::Refuse(FLinkFault&& InFault)
{
	Fault = std::move(InFault);
	DropItem();
	return EDecode::Refused;
}

/** Allocates nothing that it needs: there may be no memory for a sentence either, and the code tells enough. */
EDecode FItemDecoder::FImpl::RefuseForMemory(const char* What)
{
	Fault.Code = EFault::OutOfMemory;
	Fault.Severity = FaultInfo(EFault::OutOfMemory).Severity;
	Fault.Path.clear();
	Fault.Message.clear();
	DropItem();
	try
	{
		Fault.Message = What;
	}
	catch (const std::bad_alloc&)
	{
		Fault.Message.clear();
	}
	return EDecode::Refused;
}

/** The item is over: its memory is released, and its further pieces are ignored. */
void FItemDecoder::FImpl::DropItem()
{
	FaultNumber = Number;
	bOpen = false;
	bIgnored = true;
	Payload.Reset();
	Sink.reset();
	Joints = {};
	// What cannot be read inside a sequence may have been a frame of it.
	if (Kind == EItem::SequenceBegin || Kind == EItem::SequenceFrame || (Kind == EItem::None && Sequence.bOpen))
	{
		DropSequence();
	}
}

EDecode FItemDecoder::FImpl::Refuse(EFault Code, std::string Path, std::string Message)
{
	return Refuse(MakeFault(Code, std::move(Path), std::move(Message)));
}

EDecode FItemDecoder::FImpl::Ignore()
{
	bOpen = false;
	bIgnored = true;
	return EDecode::Ignored;
}

void FItemDecoder::FImpl::DropSequence()
{
	Sequence = {};
	Sequence.bDropped = true;
}

/** An item begins while another one waits for bytes: that one is lost. */
void FItemDecoder::FImpl::CutOff()
{
	if (!bOpen)
	{
		return;
	}
	Refuse(EFault::Truncated, "",
		std::to_string(Payload.TotalBytes()) + " bytes of this " + ToString(Kind) +
			" were expected; the next item came after " + std::to_string(Payload.ReceivedBytes()) + ".");
	Truncation = Fault;
	TruncationNumber = FaultNumber;
}

FLinkFault FItemDecoder::FImpl::Abandon(EFault Code, const std::string& Message)
{
	if (!bOpen)
	{
		return {};
	}
	Refuse(Code, "", Message);
	return Fault;
}

EDecode FItemDecoder::FImpl::Header(std::uint64_t InNumber, FByteView Bytes)
{
	try
	{
		CutOff();
	}
	catch (const std::bad_alloc&)
	{
		RefuseForMemory("Memory for the report was expected; there is none.");
		Truncation = std::exchange(Fault, {});
		TruncationNumber = Number;
	}
	Number = InNumber;
	Kind = EItem::None;
	bOpen = false;
	bIgnored = false;
	bJointAnimation = false;
	Structure = FMemoryBudget(Limits.MaxStructureBytes);
	Payload.Reset();
	Sink.reset();
	Joints = {};
	Done = {};
	try
	{
		return ReadHeader(Bytes);
	}
	catch (const std::bad_alloc&)
	{
		return RefuseForMemory("Memory for the header was expected; there is none.");
	}
	catch (const std::length_error&)
	{
		return RefuseForMemory("Memory for the header was expected; there is none.");
	}
}

EDecode FItemDecoder::FImpl::ReadHeader(FByteView Bytes)
{
	if (Bytes.size() > Limits.MaxHeaderBytes)
	{
		return Refuse(EFault::HeaderTooLarge, "",
			"At most " + std::to_string(Limits.MaxHeaderBytes) + " bytes were expected; " +
				std::to_string(Bytes.size()) + " came.");
	}
	HeaderBytes.assign(Bytes.begin(), Bytes.end());
	flatbuffers::Verifier Verifier(HeaderBytes.data(), HeaderBytes.size(), MaxDepth, MaxTables);
	if (!Wire::VerifySizePrefixedItemBuffer(Verifier))
	{
		return Refuse(EFault::BadTable, "",
			"A valid Item was expected; the " + std::to_string(Bytes.size()) + " bytes are none.");
	}
	const Wire::Item& Item = *Wire::GetSizePrefixedItem(HeaderBytes.data());
	Kind = ItemOf(Item.body_type());
	if (Kind == EItem::None || (Kind != EItem::Fault && IsRequest(Kind) != (Receiver == EReceiver::GarmentApplication)))
	{
		const std::string Name =
			Kind == EItem::None ? "body " + std::to_string(unsigned(Item.body_type())) : ToString(Kind);
		const char* Expected = Receiver == EReceiver::Editor ? "A reply" : "A request";
		return Refuse(EFault::UnknownItem, "", std::string(Expected) + " was expected; " + Name + " came.");
	}
	if (Item.body() == nullptr)
	{
		return Refuse(EFault::MissingField, "/body", "The table of the item was expected; it is absent.");
	}
	PayloadBytes = Item.payload_bytes();
	Done.Item = Kind;
	Done.Bytes = Bytes.size() + PayloadBytes;
	return ReadBody(Item);
}

EDecode FItemDecoder::FImpl::BeginPayload(std::vector<FArrayRule>&& Rules, FPackedJointSequence* JointArrays)
{
	Payload.Begin(std::move(Rules), Kind == EItem::SequenceFrame ? Sequence.Sink.get() : Sink.get(), JointArrays);
	if (Payload.TotalBytes() != PayloadBytes)
	{
		return Refuse(EFault::PayloadSize, "/payload_bytes",
			std::to_string(Payload.TotalBytes()) + " was expected by the counts; " + std::to_string(PayloadBytes) +
				" came.");
	}
	if (PayloadBytes > Limits.MaxItemBytes)
	{
		return Refuse(EFault::OverBudget, "",
			"At most " + std::to_string(Limits.MaxItemBytes) + " bytes were expected; the arrays have " +
				std::to_string(PayloadBytes) + ".");
	}
	if (PayloadBytes == 0)
	{
		return FinishItem();
	}
	bOpen = true;
	return EDecode::More;
}

EDecode FItemDecoder::FImpl::Piece(std::uint64_t InNumber, std::uint64_t Offset, FByteView Bytes)
{
	if (InNumber == Number && bIgnored)
	{
		return EDecode::Ignored;
	}
	try
	{
		if (InNumber != Number || !bOpen)
		{
			// One report is enough for all the pieces of an item that is not there.
			if (InNumber == LastUnexpected)
			{
				return EDecode::Ignored;
			}
			LastUnexpected = InNumber;
			Fault = MakeFault(EFault::PieceUnexpected, "",
				(bOpen ? "A piece of item " + std::to_string(Number) : std::string("No piece")) +
					" was expected; one of item " + std::to_string(InNumber) + " came.");
			FaultNumber = InNumber;
			return EDecode::Refused;
		}
		return TakePiece(Offset, Bytes);
	}
	catch (const std::bad_alloc&)
	{
		return RefuseForMemory("Memory for the arrays was expected; there is none.");
	}
	catch (const std::length_error&)
	{
		return RefuseForMemory("Memory for the arrays was expected; there is none.");
	}
}

EDecode FItemDecoder::FImpl::TakePiece(std::uint64_t Offset, FByteView Bytes)
{
	if (Bytes.size() > Limits.MaxPieceBytes)
	{
		return Refuse(EFault::PieceTooLarge, "",
			"At most " + std::to_string(Limits.MaxPieceBytes) + " bytes were expected; " +
				std::to_string(Bytes.size()) + " came.");
	}
	if (Offset != Payload.ReceivedBytes())
	{
		return Refuse(EFault::PieceOffset, "",
			"The piece at " + std::to_string(Payload.ReceivedBytes()) + " was expected; that at " +
				std::to_string(Offset) + " came.");
	}
	if (Bytes.size() > Payload.TotalBytes() - Payload.ReceivedBytes())
	{
		return Refuse(EFault::PieceOverrun, "",
			"At most " + std::to_string(Payload.TotalBytes() - Payload.ReceivedBytes()) +
				" more bytes were expected; " + std::to_string(Bytes.size()) + " came.");
	}
	if (FLinkFault Found = Payload.Take(Bytes))
	{
		return Refuse(std::move(Found));
	}
	return Payload.IsComplete() ? FinishItem() : EDecode::More;
}

EDecode FItemDecoder::FImpl::FinishItem()
{
	bOpen = false;
	if (bJointAnimation)
	{
		if (FLinkFault Found = CheckPoses(
				Joints.Tables, Joints.TableOfFrame.data(), Joints.TableOfFrame.size(), TransformCount, Limits))
		{
			return Refuse(std::move(Found));
		}
		Sink->JointSequence(std::move(Joints));
		Joints = {};
	}
	if (Kind == EItem::SequenceFrame)
	{
		++Sequence.Frames;
		Sequence.Bytes += Done.Bytes;
		Sequence.ArrayBytes += PayloadBytes;
		return EDecode::More;
	}
	if (Kind == EItem::SequenceBegin)
	{
		Sequence.bOpen = true;
		Sequence.Sink = std::move(Sink);
		return EDecode::More;
	}
	Sink->Finish();
	Done.Record = std::move(Sink);
	return EDecode::Complete;
}

FItemDecoder::FItemDecoder(IRecordFactory& Factory, EReceiver Receiver, const FLimits& Limits)
	: Impl(std::make_unique<FImpl>(Factory, Receiver, Limits))
{
}

FItemDecoder::~FItemDecoder() = default;

EDecode FItemDecoder::Header(std::uint64_t ItemNumber, FByteView Bytes)
{
	return Impl->Header(ItemNumber, Bytes);
}

EDecode FItemDecoder::Piece(std::uint64_t ItemNumber, std::uint64_t Offset, FByteView Bytes)
{
	return Impl->Piece(ItemNumber, Offset, Bytes);
}

FLinkFault FItemDecoder::Abandon(EFault Code, const std::string& Message)
{
	return Impl->Abandon(Code, Message);
}

bool FItemDecoder::IsItemOpen() const
{
	return Impl->IsItemOpen();
}

EItem FItemDecoder::CurrentItem() const
{
	return Impl->CurrentItem();
}

std::uint64_t FItemDecoder::FaultItem() const
{
	return Impl->FaultNumber;
}

const FLinkFault& FItemDecoder::Fault() const
{
	return Impl->Fault;
}

FLinkFault FItemDecoder::TakeTruncation(std::uint64_t& OutItem)
{
	OutItem = Impl->TruncationNumber;
	return std::exchange(Impl->Truncation, {});
}

FDecodedItem FItemDecoder::Take()
{
	return std::exchange(Impl->Done, {});
}

} // namespace Zef
