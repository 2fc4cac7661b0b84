// SPDX-License-Identifier: MIT
#include "PayloadReader.h"

#include <algorithm>
#include <cstring>

namespace Zef
{

namespace
{
/** Copied and then checked at a time, so that the check finds the bytes in the second-level cache. */
constexpr std::size_t StepBytes = 256u << 10;
} // namespace

void FPayloadReader::Begin(std::vector<FArrayRule>&& InRules, IRecordSink* InSink, FPackedJointSequence* InSequence)
{
	Reset();
	Rules = std::move(InRules);
	Sink = InSink;
	Sequence = InSequence;
	for (const FArrayRule& Rule : Rules)
	{
		Total += Rule.Slot.Count * ElementBytes(Rule.Slot.Array);
	}
}

void FPayloadReader::Reset()
{
	*this = FPayloadReader();
}

bool FPayloadReader::OpenArray()
{
	FArrayRule& Rule = Rules[Current];
	const FArraySlot& Slot = Rule.Slot;
	void* Storage = nullptr;
	switch (Slot.Array)
	{
		case EArray::SequenceTimes:
			Sequence->Times.resize(Slot.Count);
			Storage = Sequence->Times.data();
			break;
		case EArray::SequenceTables:
			Sequence->TableOfFrame.resize(Slot.Count);
			Storage = Sequence->TableOfFrame.data();
			break;
		case EArray::SequenceTransforms:
			Sequence->Transforms.resize(Slot.Count);
			Storage = Sequence->Transforms.data();
			break;
		default:
			Storage = Sink->Allocate(Slot);
			break;
	}
	Data = static_cast<std::uint8_t*>(Storage);
	Filled = 0;
	Checked = 0;
	if (Slot.Array == EArray::FirstWeight)
	{
		FirstWeight = static_cast<const std::uint32_t*>(Storage);
	}
	else if (Slot.Array == EArray::Weights)
	{
		Rule.FirstWeight = FirstWeight;
	}
	return Data != nullptr;
}

FLinkFault FPayloadReader::Take(FByteView Bytes)
{
	while (!Bytes.empty())
	{
		if (Data == nullptr && !OpenArray())
		{
			return MakeFault(EFault::OutOfMemory, PathOf(Rules[Current]),
				"Memory for " + std::to_string(Rules[Current].Slot.Count) + " elements was expected; there is none.");
		}
		const FArrayRule& Rule = Rules[Current];
		const std::uint64_t Whole = Rule.Slot.Count * ElementBytes(Rule.Slot.Array);
		const auto Size =
			static_cast<std::size_t>(std::min<std::uint64_t>({Bytes.size(), Whole - Filled, std::uint64_t(StepBytes)}));
		std::memcpy(Data + Filled, Bytes.data(), Size);
		Bytes = Bytes.subspan(Size);
		Filled += Size;
		Received += Size;
		const std::uint64_t Ready = Filled / ElementBytes(Rule.Slot.Array);
		if (FLinkFault Fault = CheckElements(Rule, Data, Checked, Ready))
		{
			return Fault;
		}
		Checked = Ready;
		if (Filled == Whole)
		{
			++Current;
			Data = nullptr;
		}
	}
	return {};
}

} // namespace Zef
