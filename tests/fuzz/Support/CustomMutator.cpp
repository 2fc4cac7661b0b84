// SPDX-License-Identifier: MIT
// Hooks of libFuzzer: mutates the records of an input where it can, and bytes for the rest.
#include "Support/RecordMutator.h"

#include <algorithm>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* Data, std::size_t Size, std::size_t MaxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(
	std::uint8_t* Data, std::size_t Size, std::size_t MaxSize, unsigned int Seed);
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* First, std::size_t FirstSize,
	const std::uint8_t* Second, std::size_t SecondSize, std::uint8_t* Out, std::size_t MaxOutSize, unsigned int Seed);

namespace
{
using namespace Fuzz;

/** Chances out of ten. */
constexpr unsigned RecordChance = 7;
constexpr unsigned RepairChance = 8;

bool Chance(FRandom& Random, unsigned OutOfTen)
{
	return std::uniform_int_distribution<unsigned>(0, 9)(Random) < OutOfTen;
}

void MutateBytes(Zef::FBytes& Bytes)
{
	constexpr std::size_t Growth = 64;
	const std::size_t Size = Bytes.size();
	Bytes.resize(Size + Growth);
	Bytes.resize(LLVMFuzzerMutate(Bytes.data(), Size, Bytes.size()));
}

void MutateRecord(FArrival& Arrival, FRandom& Random)
{
	std::optional<FUncheckedRecord> Record = ReadUnchecked(Arrival);
	if (!Record)
	{
		MutateBytes(Arrival.Header);
		return;
	}
	do
	{
		Mutate(*Record, Random);
	} while (Chance(Random, 4));
	if (Chance(Random, RepairChance))
	{
		Repair(*Record, Random);
	}
	Arrival = WriteUnchecked(*Record);
}

std::size_t Store(const FArrivals& Arrivals, std::uint8_t* Data, std::size_t MaxSize)
{
	const Zef::FBytes Output = WriteArrivals(Arrivals);
	const std::size_t Size = std::min(Output.size(), MaxSize);
	std::memcpy(Data, Output.data(), Size);
	return Size;
}
} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(
	std::uint8_t* Data, std::size_t Size, std::size_t MaxSize, unsigned int Seed)
{
	FRandom Random(Seed);
	FArrivals Arrivals = ReadArrivals({Data, Size});
	if (Arrivals.Items.empty())
	{
		return LLVMFuzzerMutate(Data, Size, MaxSize);
	}
	FArrival& Arrival = Arrivals.Items[Random() % Arrivals.Items.size()];
	if (Chance(Random, RecordChance))
	{
		MutateRecord(Arrival, Random);
	}
	else
	{
		MutateBytes(Chance(Random, 5) ? Arrival.Header : Arrival.Payload);
	}
	return Store(Arrivals, Data, MaxSize);
}

/** Items of both, in an order of chance. */
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* First, std::size_t FirstSize,
	const std::uint8_t* Second, std::size_t SecondSize, std::uint8_t* Out, std::size_t MaxOutSize, unsigned int Seed)
{
	FRandom Random(Seed);
	FArrivals Arrivals = ReadArrivals({First, FirstSize});
	const FArrivals Others = ReadArrivals({Second, SecondSize});
	for (const FArrival& Other : Others.Items)
	{
		if (Arrivals.Items.size() < MaxItems && Chance(Random, 5))
		{
			const auto Place = static_cast<std::ptrdiff_t>(Random() % (Arrivals.Items.size() + 1));
			Arrivals.Items.insert(Arrivals.Items.begin() + Place, Other);
		}
	}
	return Store(Arrivals, Out, MaxOutSize);
}
