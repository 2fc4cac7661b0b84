// SPDX-License-Identifier: MIT
#include "Support/Arrivals.h"

#include <algorithm>

namespace Fuzz
{

namespace
{
constexpr std::size_t LengthBytes = 4;

std::size_t TakeLength(Zef::FByteView& Input)
{
	std::size_t Length = 0;
	for (std::size_t Byte = 0; Byte < LengthBytes; ++Byte)
	{
		Length |= std::size_t(Input[Byte]) << (8 * Byte);
	}
	Input = Input.subspan(LengthBytes);
	return Length;
}

Zef::FBytes TakeBytes(Zef::FByteView& Input, std::size_t Length)
{
	const Zef::FByteView Taken = Input.first(std::min(Length, Input.size()));
	Input = Input.subspan(Taken.size());
	return {Taken.begin(), Taken.end()};
}

void PutLength(Zef::FBytes& Output, std::size_t Length)
{
	for (std::size_t Byte = 0; Byte < LengthBytes; ++Byte)
	{
		Output.push_back(static_cast<std::uint8_t>(Length >> (8 * Byte)));
	}
}
} // namespace

FArrivals ReadArrivals(Zef::FByteView Input)
{
	FArrivals Arrivals;
	if (Input.empty())
	{
		return Arrivals;
	}
	Arrivals.Receiver = Input[0] % 2 == 0 ? Zef::EReceiver::Editor : Zef::EReceiver::GarmentApplication;
	Input = Input.subspan(1);
	while (Input.size() >= 2 * LengthBytes && Arrivals.Items.size() < MaxItems)
	{
		const std::size_t HeaderBytes = TakeLength(Input);
		const std::size_t PayloadBytes = TakeLength(Input);
		FArrival& Item = Arrivals.Items.emplace_back();
		Item.Header = TakeBytes(Input, HeaderBytes);
		Item.Payload = TakeBytes(Input, PayloadBytes);
	}
	return Arrivals;
}

Zef::FBytes WriteArrivals(const FArrivals& Arrivals)
{
	Zef::FBytes Output{static_cast<std::uint8_t>(Arrivals.Receiver == Zef::EReceiver::Editor ? 0 : 1)};
	for (const FArrival& Item : Arrivals.Items)
	{
		PutLength(Output, Item.Header.size());
		PutLength(Output, Item.Payload.size());
		Output.insert(Output.end(), Item.Header.begin(), Item.Header.end());
		Output.insert(Output.end(), Item.Payload.begin(), Item.Payload.end());
	}
	return Output;
}

Zef::EDecode Receive(Zef::FItemDecoder& Decoder, const FArrivals& Arrivals, std::size_t PieceBytes, bool* OutOverrun)
{
	Zef::EDecode Result = Zef::EDecode::More;
	std::uint64_t Number = 0;
	for (const FArrival& Item : Arrivals.Items)
	{
		Result = Decoder.Header(++Number, Item.Header);
		for (std::size_t Offset = 0; Offset < Item.Payload.size() && Result == Zef::EDecode::More; Offset += PieceBytes)
		{
			// A block of exactly the piece's size, so that a read past its end is seen.
			const auto First = Item.Payload.begin() + static_cast<std::ptrdiff_t>(Offset);
			const std::size_t Size = std::min(PieceBytes, Item.Payload.size() - Offset);
			const Zef::FBytes Piece(First, First + static_cast<std::ptrdiff_t>(Size));
			Result = Decoder.Piece(Number, Offset, Piece);
		}
		if (OutOverrun != nullptr && Result == Zef::EDecode::Refused)
		{
			*OutOverrun = *OutOverrun || Decoder.Fault().Code == Zef::EFault::PieceOverrun;
		}
	}
	return Result;
}

} // namespace Fuzz
