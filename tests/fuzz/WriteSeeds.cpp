// SPDX-License-Identifier: MIT
// fuzz_seeds SET FOLDER: writes the conversations of the conformance set as inputs of the fuzzers.
#include "Support/Arrivals.h"
#include "Zef/Peer/ConformanceCase.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace
{
/** The items of a case; messages that are none are left out. */
Fuzz::FArrivals ArrivalsOf(const Zef::Peer::FConformanceCase& Case)
{
	Fuzz::FArrivals Arrivals;
	Arrivals.Receiver = Case.To;
	for (const Zef::Peer::FMessageParts& Message : Case.Messages)
	{
		Zef::FLinkFault Fault;
		const std::optional<Zef::FPrefix> Prefix =
			Message.size() == 2 ? Zef::DecodePrefix(Message[0], Fault) : std::nullopt;
		if (Prefix && Prefix->Frame == Zef::EFrame::Piece && !Arrivals.Items.empty())
		{
			Zef::FBytes& Payload = Arrivals.Items.back().Payload;
			Payload.insert(Payload.end(), Message[1].begin(), Message[1].end());
		}
		else if (Message.size() == 2)
		{
			Arrivals.Items.push_back({Message[1], {}});
		}
	}
	return Arrivals;
}
} // namespace

int main(int Count, char** Arguments)
{
	if (Count != 3)
	{
		std::fprintf(stderr, "usage: fuzz_seeds SET FOLDER\n");
		return 2;
	}
	const auto Set = Zef::Peer::ReadConformanceSet(Arguments[1]);
	if (!Set)
	{
		std::fprintf(stderr, "%s\n", Set.Fault().Message.c_str());
		return 1;
	}
	const std::filesystem::path Folder = Arguments[2];
	std::filesystem::create_directories(Folder);
	for (const Zef::Peer::FConformanceCase& Case : *Set)
	{
		std::string Name = Case.Name;
		std::replace(Name.begin(), Name.end(), '/', '-');
		const Zef::FBytes Bytes = Fuzz::WriteArrivals(ArrivalsOf(Case));
		std::ofstream Stream(Folder / Name, std::ios::binary);
		Stream.write(reinterpret_cast<const char*>(Bytes.data()), static_cast<std::streamsize>(Bytes.size()));
		if (!Stream)
		{
			std::fprintf(stderr, "%s cannot be written\n", Name.c_str());
			return 1;
		}
	}
	std::printf("%zu inputs\n", Set->size());
	return 0;
}
