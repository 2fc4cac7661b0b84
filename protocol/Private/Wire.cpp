// SPDX-License-Identifier: MIT
#include "Zef/Wire.h"

#include "Text.h"
#include "tandem_generated.h"

#include <algorithm>
#include <cstring>

namespace Zef
{

namespace
{
constexpr std::uint8_t Magic[4] = {'Z', 'T', 'L', '1'};

void PutU64(std::uint8_t* Out, std::uint64_t Value)
{
	for (int Byte = 0; Byte < 8; ++Byte)
	{
		Out[Byte] = static_cast<std::uint8_t>(Value >> (8 * Byte));
	}
}

std::uint64_t GetU64(const std::uint8_t* In)
{
	std::uint64_t Value = 0;
	for (int Byte = 0; Byte < 8; ++Byte)
	{
		Value |= std::uint64_t(In[Byte]) << (8 * Byte);
	}
	return Value;
}

FBytes Finish(flatbuffers::FlatBufferBuilder& Builder)
{
	const auto View = Builder.GetBufferSpan();
	return {View.begin(), View.end()};
}

/** The root table when the bytes hold a valid one. Verification wants the alignment that a vector's memory has. */
template <class TTable>
const TTable* Root(FByteView Bytes, FBytes& Aligned)
{
	Aligned.assign(Bytes.begin(), Bytes.end());
	flatbuffers::Verifier Verifier(Aligned.data(), Aligned.size());
	return Verifier.VerifySizePrefixedBuffer<TTable>(nullptr) ? flatbuffers::GetSizePrefixedRoot<TTable>(Aligned.data())
															  : nullptr;
}

/** What the other end says about itself, fit for one line of a log. */
std::string Text(const flatbuffers::String* String)
{
	constexpr std::size_t MaxTextBytes = 4096;
	return String != nullptr ? OneLine(String->string_view(), MaxTextBytes) : std::string();
}
} // namespace

std::array<std::uint8_t, FPrefix::Bytes> EncodePrefix(const FPrefix& Prefix)
{
	std::array<std::uint8_t, FPrefix::Bytes> Bytes{};
	std::copy(std::begin(Magic), std::end(Magic), Bytes.begin());
	Bytes[4] = static_cast<std::uint8_t>(Prefix.Frame);
	PutU64(&Bytes[8], Prefix.Item);
	PutU64(&Bytes[16], Prefix.Offset);
	return Bytes;
}

std::optional<FPrefix> DecodePrefix(FByteView Bytes, FLinkFault& OutFault)
{
	if (Bytes.size() != FPrefix::Bytes)
	{
		OutFault = MakeFault(EFault::BadPrefix, "",
			"A prefix of " + std::to_string(FPrefix::Bytes) + " bytes was expected; " + std::to_string(Bytes.size()) +
				" came.");
		return std::nullopt;
	}
	if (!std::equal(std::begin(Magic), std::end(Magic), Bytes.begin()))
	{
		OutFault =
			MakeFault(EFault::BadPrefix, "", "A prefix that begins with \"ZTL1\" was expected; another message came.");
		return std::nullopt;
	}
	if (Bytes[5] != 0 || Bytes[6] != 0 || Bytes[7] != 0)
	{
		OutFault =
			MakeFault(EFault::BadPrefix, "", "Zeros were expected as bytes 5 to 7 of a prefix; something else came.");
		return std::nullopt;
	}
	if (Bytes[4] < static_cast<std::uint8_t>(EFrame::Hello) || Bytes[4] > static_cast<std::uint8_t>(EFrame::Credit))
	{
		OutFault = MakeFault(
			EFault::UnknownFrame, "", "A frame of kind 1 to 6 was expected; " + std::to_string(Bytes[4]) + " came.");
		return std::nullopt;
	}
	return FPrefix{static_cast<EFrame>(Bytes[4]), GetU64(&Bytes[8]), GetU64(&Bytes[16])};
}

FBytes EncodeHello(const FHello& Hello)
{
	flatbuffers::FlatBufferBuilder Builder;
	const auto Program = Builder.CreateString(Hello.Program);
	Builder.FinishSizePrefixed(Wire::CreateHello(
		Builder, Hello.MinVersion, Hello.MaxVersion, Program, Hello.WindowBytes, Hello.MaxPieceBytes));
	return Finish(Builder);
}

FBytes EncodeWelcome(const FWelcome& Welcome)
{
	flatbuffers::FlatBufferBuilder Builder;
	const auto Program = Builder.CreateString(Welcome.Program);
	Builder.FinishSizePrefixed(
		Wire::CreateWelcome(Builder, Welcome.Version, Program, Welcome.WindowBytes, Welcome.MaxPieceBytes));
	return Finish(Builder);
}

FBytes EncodeRefused(const FRefused& Refused)
{
	flatbuffers::FlatBufferBuilder Builder;
	const auto Sentence = Builder.CreateString(Refused.Sentence);
	Builder.FinishSizePrefixed(Wire::CreateRefused(
		Builder, static_cast<std::uint16_t>(Refused.Code), Sentence, Refused.MinVersion, Refused.MaxVersion));
	return Finish(Builder);
}

std::optional<FHello> DecodeHello(FByteView Bytes)
{
	FBytes Aligned;
	const auto* Table = Root<Wire::Hello>(Bytes, Aligned);
	if (Table == nullptr || Table->min_version() == 0 || Table->min_version() > Table->max_version() ||
		Table->window_bytes() == 0 || Table->max_piece_bytes() == 0)
	{
		return std::nullopt;
	}
	return FHello{Table->min_version(), Table->max_version(), Text(Table->program()), Table->window_bytes(),
		Table->max_piece_bytes()};
}

std::optional<FWelcome> DecodeWelcome(FByteView Bytes)
{
	FBytes Aligned;
	const auto* Table = Root<Wire::Welcome>(Bytes, Aligned);
	if (Table == nullptr || Table->version() == 0 || Table->window_bytes() == 0 || Table->max_piece_bytes() == 0)
	{
		return std::nullopt;
	}
	return FWelcome{Table->version(), Text(Table->program()), Table->window_bytes(), Table->max_piece_bytes()};
}

std::optional<FRefused> DecodeRefused(FByteView Bytes)
{
	FBytes Aligned;
	const auto* Table = Root<Wire::Refused>(Bytes, Aligned);
	if (Table == nullptr)
	{
		return std::nullopt;
	}
	return FRefused{
		static_cast<EFault>(Table->code()), Text(Table->sentence()), Table->min_version(), Table->max_version()};
}

std::string ToString(const FVersionRange& Range)
{
	return Range.Min == Range.Max ? std::to_string(Range.Min)
								  : std::to_string(Range.Min) + " to " + std::to_string(Range.Max);
}

std::uint16_t CommonVersion(std::uint16_t MinA, std::uint16_t MaxA, std::uint16_t MinB, std::uint16_t MaxB)
{
	const std::uint16_t Highest = std::min(MaxA, MaxB);
	return Highest >= std::max(MinA, MinB) ? Highest : 0;
}

} // namespace Zef
