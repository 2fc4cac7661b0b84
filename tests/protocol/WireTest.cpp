// SPDX-License-Identifier: MIT
#include "Zef/Limits.h"
#include "Zef/Wire.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
using Zef::EFault;
using Zef::EFrame;
using Zef::FPrefix;

TEST(Prefix, HasTheLayoutOfTheProtocol)
{
	const std::array<std::uint8_t, 24> Expected{
		'Z', 'T', 'L', '1', 5, 0, 0, 0, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0x10, 0, 0, 0, 0, 0x80};
	EXPECT_EQ(Zef::EncodePrefix({EFrame::Piece, 0x102, 0x8000000000100000}), Expected);
}

TEST(Prefix, ComesBackAsItWas)
{
	for (const EFrame Frame :
		{EFrame::Hello, EFrame::Welcome, EFrame::Refused, EFrame::Item, EFrame::Piece, EFrame::Credit})
	{
		Zef::FLinkFault Fault;
		const auto Prefix = Zef::DecodePrefix(Zef::EncodePrefix({Frame, 7, 9}), Fault);
		ASSERT_TRUE(Prefix);
		EXPECT_EQ(Prefix->Frame, Frame);
		EXPECT_EQ(Prefix->Item, 7u);
		EXPECT_EQ(Prefix->Offset, 9u);
	}
}

TEST(Prefix, OfAnyOtherLengthIsRefused)
{
	const auto Bytes = Zef::EncodePrefix({EFrame::Item, 1, 0});
	for (std::size_t Length = 0; Length < Bytes.size(); ++Length)
	{
		const Zef::FBytes Exact(Bytes.begin(), Bytes.begin() + static_cast<std::ptrdiff_t>(Length));
		Zef::FLinkFault Fault;
		EXPECT_FALSE(Zef::DecodePrefix(Exact, Fault)) << Length;
		EXPECT_EQ(Fault.Code, EFault::BadPrefix);
	}
}

TEST(Prefix, WithAnyOtherByteInItsFixedPartIsRefused)
{
	const auto Good = Zef::EncodePrefix({EFrame::Item, 1, 0});
	for (const std::size_t Place : {0, 1, 2, 3, 5, 6, 7})
	{
		auto Bytes = Good;
		Bytes[Place] ^= 1;
		Zef::FLinkFault Fault;
		EXPECT_FALSE(Zef::DecodePrefix(Bytes, Fault)) << Place;
		EXPECT_EQ(Fault.Code, EFault::BadPrefix) << Place;
	}
	for (const int Frame : {0, 7, 255})
	{
		auto Bytes = Good;
		Bytes[4] = static_cast<std::uint8_t>(Frame);
		Zef::FLinkFault Fault;
		EXPECT_FALSE(Zef::DecodePrefix(Bytes, Fault)) << Frame;
		EXPECT_EQ(Fault.Code, EFault::UnknownFrame) << Frame;
	}
}

TEST(Greeting, ComesBackAsItWas)
{
	const auto Hello = Zef::DecodeHello(Zef::EncodeHello({1, 3, "editor", 16, 4}));
	ASSERT_TRUE(Hello);
	EXPECT_EQ(Hello->MinVersion, 1);
	EXPECT_EQ(Hello->MaxVersion, 3);
	EXPECT_EQ(Hello->Program, "editor");
	EXPECT_EQ(Hello->WindowBytes, 16u);
	EXPECT_EQ(Hello->MaxPieceBytes, 4u);

	const auto Welcome = Zef::DecodeWelcome(Zef::EncodeWelcome({2, "application", 32, 8}));
	ASSERT_TRUE(Welcome);
	EXPECT_EQ(Welcome->Version, 2);
	EXPECT_EQ(Welcome->Program, "application");
	EXPECT_EQ(Welcome->WindowBytes, 32u);
	EXPECT_EQ(Welcome->MaxPieceBytes, 8u);

	const auto Refused = Zef::DecodeRefused(Zef::EncodeRefused({EFault::VersionUnknown, "Too old.", 1, 2}));
	ASSERT_TRUE(Refused);
	EXPECT_EQ(Refused->Code, EFault::VersionUnknown);
	EXPECT_EQ(Refused->Sentence, "Too old.");
	EXPECT_EQ(Refused->MinVersion, 1);
	EXPECT_EQ(Refused->MaxVersion, 2);
}

TEST(Greeting, CutOffAnywhereIsRefused)
{
	const Zef::FBytes Hello = Zef::EncodeHello({1, 1, "editor", 16, 4});
	const Zef::FBytes Welcome = Zef::EncodeWelcome({1, "application", 16, 4});
	for (std::size_t Length = 0; Length < Hello.size(); ++Length)
	{
		EXPECT_FALSE(Zef::DecodeHello(Zef::FBytes(Hello.begin(), Hello.begin() + static_cast<std::ptrdiff_t>(Length))));
	}
	for (std::size_t Length = 0; Length < Welcome.size(); ++Length)
	{
		EXPECT_FALSE(
			Zef::DecodeWelcome(Zef::FBytes(Welcome.begin(), Welcome.begin() + static_cast<std::ptrdiff_t>(Length))));
	}
}

TEST(Greeting, ThatCannotBeMeantIsRefused)
{
	EXPECT_FALSE(Zef::DecodeHello(Zef::EncodeHello({2, 1, "", 16, 4})));
	EXPECT_FALSE(Zef::DecodeHello(Zef::EncodeHello({0, 1, "", 16, 4})));
	EXPECT_FALSE(Zef::DecodeHello(Zef::EncodeHello({1, 1, "", 0, 4})));
	EXPECT_FALSE(Zef::DecodeHello(Zef::EncodeHello({1, 1, "", 16, 0})));
	EXPECT_FALSE(Zef::DecodeWelcome(Zef::EncodeWelcome({0, "", 16, 4})));
}

TEST(Versions, TheHighestCommonOneIsChosen)
{
	EXPECT_EQ(Zef::CommonVersion(1, 3, 2, 5), 3);
	EXPECT_EQ(Zef::CommonVersion(1, 1, 1, 1), 1);
	EXPECT_EQ(Zef::CommonVersion(1, 9, 4, 4), 4);
	EXPECT_EQ(Zef::CommonVersion(1, 2, 3, 4), 0);
	EXPECT_EQ(Zef::CommonVersion(5, 6, 3, 4), 0);
}

TEST(FaultTable, IsInOrderAndNamesEachCodeOnce)
{
	const std::span<const Zef::FFaultInfo> Table = Zef::FaultTable();
	EXPECT_EQ(std::ranges::adjacent_find(Table, std::ranges::greater_equal(), &Zef::FFaultInfo::Code), Table.end());
	std::vector<std::string> Names;
	for (const Zef::FFaultInfo& Info : Table)
	{
		EXPECT_EQ(&Zef::FaultInfo(Info.Code), &Info);
		Names.push_back(Info.Name);
	}
	std::ranges::sort(Names);
	EXPECT_EQ(std::ranges::adjacent_find(Names), Names.end());
	EXPECT_EQ(Zef::FaultInfo(static_cast<EFault>(999)).Code, EFault::None);
}

TEST(FaultTable, ReportsReadAsOneLine)
{
	EXPECT_EQ(Zef::ToString(Zef::MakeFault(EFault::IndexRange, "/Surfaces/0/Sections/2/Indices/17", "Too large.")),
		"IndexRange (405) at /Surfaces/0/Sections/2/Indices/17: Too large.");
	EXPECT_EQ(Zef::ToString(Zef::MakeFault(EFault::PeerLost, "", "")), "PeerLost (601): The connection is gone.");
}
} // namespace
