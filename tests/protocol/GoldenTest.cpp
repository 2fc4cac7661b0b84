// SPDX-License-Identifier: MIT
// The bytes of version 1, one file for each message. They never change; a new version adds a folder.
// ZEF_WRITE_GOLDEN=1 writes the files that are missing.
#include "SampleRecords.h"
#include "Zef/Wire.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

namespace
{
using namespace LinkTest;
using Zef::EFrame;
using Zef::EObjectType;

/** Parts of messages as hexadecimal lines of 32 bytes; an empty line stands between parts. */
std::string Hexadecimal(const std::vector<Zef::FBytes>& Parts)
{
	static constexpr char Digits[] = "0123456789abcdef";
	std::string Text;
	for (const Zef::FBytes& Part : Parts)
	{
		Text += Text.empty() ? "" : "\n";
		for (std::size_t Index = 0; Index < Part.size(); ++Index)
		{
			Text += {Digits[Part[Index] >> 4], Digits[Part[Index] & 15]};
			Text += Index % 32 == 31 || Index + 1 == Part.size() ? "\n" : "";
		}
	}
	return Text;
}

Zef::FBytes PrefixBytes(const Zef::FPrefix& Prefix)
{
	const auto Bytes = Zef::EncodePrefix(Prefix);
	return {Bytes.begin(), Bytes.end()};
}

/** The messages of an item: the header's, and those of its pieces. */
std::vector<Zef::FBytes> MessagesOf(const Zef::FEncodedItem& Item)
{
	std::vector<Zef::FBytes> Parts{PrefixBytes({EFrame::Item, 1, 0}), Item.Header};
	std::uint64_t Offset = 0;
	for (const Zef::FChunk& Chunk : Item.Chunks)
	{
		Parts.push_back(PrefixBytes({EFrame::Piece, 1, Offset}));
		Parts.emplace_back(Chunk.Data, Chunk.Data + Chunk.Size);
		Offset += Chunk.Size;
	}
	return Parts;
}

struct FGoldenCase
{
	const char* Name;
	std::function<std::vector<Zef::FBytes>()> Parts;
};

class Golden : public testing::TestWithParam<FGoldenCase>
{
};

TEST_P(Golden, BytesAreThoseOfTheFile)
{
	const std::filesystem::path File =
		std::filesystem::path(ZEF_SOURCE_DIR) / "tests/protocol/golden/v1" / (std::string(GetParam().Name) + ".hex");
	const std::string Actual = Hexadecimal(GetParam().Parts());
	if (!std::filesystem::exists(File) && std::getenv("ZEF_WRITE_GOLDEN") != nullptr)
	{
		std::filesystem::create_directories(File.parent_path());
		std::ofstream(File) << Actual;
	}
	std::ifstream Stream(File);
	ASSERT_TRUE(Stream) << File;
	std::stringstream Expected;
	Expected << Stream.rdbuf();
	EXPECT_EQ(Actual, Expected.str());
}

const Zef::FObjectTypeInfo AvatarJoints{EObjectType::Avatar, Zef::EAnimationKind::JointAnimation};

const FGoldenCase Cases[] = {
	{"Hello",
		[]
		{
			return std::vector<Zef::FBytes>{
				PrefixBytes({EFrame::Hello, 0, 0}), Zef::EncodeHello({1, 1, "editor", 16 << 20, 4 << 20})};
		}},
	{"Welcome",
		[]
		{
			return std::vector<Zef::FBytes>{
				PrefixBytes({EFrame::Welcome, 0, 0}), Zef::EncodeWelcome({1, "application", 16 << 20, 4 << 20})};
		}},
	{"Refused",
		[]
		{
			return std::vector<Zef::FBytes>{PrefixBytes({EFrame::Refused, 0, 0}),
				Zef::EncodeRefused({Zef::EFault::VersionUnknown, "Update the editor.", 1, 1})};
		}},
	{"Credit",
		[] {
			return std::vector<Zef::FBytes>{PrefixBytes({EFrame::Credit, 0, 1234567})};
		}},
	{"Enable", [] { return MessagesOf(Zef::EncodeEnable(true)); }},
	{"RequestUpdate",
		[] {
			return MessagesOf(Zef::EncodeUpdateRequest({true, true}));
		}},
	{"RequestAnimation",
		[] {
			return MessagesOf(Zef::EncodeAnimationRequest(AvatarJoints, {false, true}));
		}},
	{"RequestAvailability", [] { return MessagesOf(Zef::EncodeAvailabilityRequest()); }},
	{"SendJointAnimation",
		[] { return MessagesOf(Zef::EncodeJointAnimationRequest(AvatarJoints, SampleAnimation())); }},
	{"SurfaceMesh", [] { return MessagesOf(Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh())); }},
	{"JointAnimation", [] { return MessagesOf(Zef::EncodeJointAnimation(EObjectType::Avatar, SampleAnimation())); }},
	{"SequenceBegin", [] { return MessagesOf(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh())); }},
	{"SequenceFrame", [] { return MessagesOf(Zef::EncodeSequenceFrame(1, SampleFrame(2, 0.5))); }},
	{"SequenceEnd", [] { return MessagesOf(Zef::EncodeSequenceEnd(2)); }},
	{"Availability",
		[] {
			return MessagesOf(Zef::EncodeAvailability({false, true, false, true, true}));
		}},
	{"Fault",
		[]
		{
			return MessagesOf(Zef::EncodeFault(
				Zef::MakeFault(Zef::EFault::IndexRange, "/Surfaces/0/Sections/0/Indices/2", "Too large."), 3));
		}},
};

INSTANTIATE_TEST_SUITE_P(Version1, Golden, testing::ValuesIn(Cases),
	[](const testing::TestParamInfo<FGoldenCase>& Info) { return std::string(Info.param.Name); });
} // namespace
