// SPDX-License-Identifier: MIT
#include "RawPeer.h"

namespace
{
using namespace LinkTest;
using Zef::EFrame;
using Zef::EObjectType;

/** An application with one item to send, and a raw editor with a window of its choice. */
class Window : public testing::Test
{
protected:
	/** Greets and asks for the item. */
	void Ask(std::uint64_t WindowBytes, std::uint32_t MaxPieceBytes, std::shared_ptr<const Zef::FSurfaceMesh> Mesh)
	{
		Editor.Greet({1, 1, "raw editor", WindowBytes, MaxPieceBytes});
		ASSERT_TRUE(Until(nullptr, &Application, [&] { return Application.Connected == 1; }));
		ASSERT_TRUE(Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Garment, std::move(Mesh)));
	}

	/** Takes messages until the item is whole, crediting now and then; checks that no more is ever under way. */
	Zef::FBytes Take(std::uint64_t WindowBytes, std::uint64_t CreditAfter, std::size_t PayloadBytes)
	{
		std::uint64_t Taken = 0;
		std::uint64_t Credited = 0;
		Zef::FBytes Payload;
		bool bHeader = false;
		while (!bHeader || Payload.size() < PayloadBytes)
		{
			const std::vector<Zef::FBytes> Parts = Editor.Receive();
			if (Parts.size() != 2)
			{
				ADD_FAILURE() << Parts.size() << " parts after " << Payload.size() << " bytes";
				break;
			}
			EXPECT_TRUE(Taken == Credited || Taken - Credited + Parts[1].size() <= WindowBytes);
			Taken += Parts[1].size();
			Longest = bHeader ? std::max(Longest, Parts[1].size()) : Longest;
			if (bHeader)
			{
				Payload.insert(Payload.end(), Parts[1].begin(), Parts[1].end());
			}
			bHeader = true;
			if (Taken - Credited >= CreditAfter)
			{
				Credited = Taken;
				Editor.Send({Prefix(EFrame::Credit, 0, Credited)});
			}
		}
		return Payload;
	}

	FTestFolder Folder;
	FApplication Application{Folder.Socket()};
	FRawEditor Editor{Folder.Socket()};
	std::size_t Longest = 0;
};

TEST_F(Window, IsNeverExceededAndPiecesAreAsShortAsAsked)
{
	const auto Mesh = StripMesh(20'000);
	const Zef::FBytes Expected = PayloadOf(Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh));
	Ask(10'000, 1'000, Mesh);
	EXPECT_TRUE(Take(10'000, 5'000, Expected.size()) == Expected);
	EXPECT_EQ(Longest, 1'000u);
}

TEST_F(Window, SmallerThanAPieceShortensThePieces)
{
	const auto Mesh = StripMesh(2'000);
	const Zef::FBytes Expected = PayloadOf(Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh));
	Ask(500, 1 << 20, Mesh);
	EXPECT_TRUE(Take(500, 1, Expected.size()) == Expected);
	EXPECT_EQ(Longest, 500u);
}

TEST_F(Window, LetsALongerHeaderThroughWhenNothingIsUnderWay)
{
	Ask(100, 100, SampleMesh());
	const std::vector<Zef::FBytes> Header = Editor.Receive();
	ASSERT_EQ(Header.size(), 2u);
	EXPECT_GT(Header[1].size(), 100u);
	Editor.Send({Prefix(EFrame::Credit, 0, Header[1].size())});
	const std::vector<Zef::FBytes> Piece = Editor.Receive();
	ASSERT_EQ(Piece.size(), 2u);
	EXPECT_EQ(Piece[1].size(), 100u);
}

TEST_F(Window, OfOneEditorHoldsNobodyElseUp)
{
	Ask(1'000, 1'000, StripMesh(100'000)); // and never credits
	FEditor Other(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Other, &Application, [&] { return Application.Connected == 2; }));
	Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Avatar, SampleMesh());
	EXPECT_TRUE(Until(&Other, &Application, [&] { return !Other.Meshes.empty(); }));
}

TEST_F(Window, ARefusedItemIsNotSentToItsEnd)
{
	const auto Mesh = StripMesh(100'000);
	Ask(1'000, 1'000, Mesh);
	const std::vector<Zef::FBytes> Header = Editor.Receive();
	// A fault of item 1, and credit for what came so far.
	Editor.SendItem(Zef::EncodeFault(Zef::MakeFault(Zef::EFault::OverBudget, "", "Too large."), 1), 1);
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return !Application.FaultsOfClient.empty(); }));
	Application.Server->SendAvailability(Application.LastClient, {});
	std::uint64_t Taken = Header[1].size();
	std::size_t PieceBytes = 0;
	while (true)
	{
		Editor.Send({Prefix(EFrame::Credit, 0, Taken)});
		const std::vector<Zef::FBytes> Parts = Editor.Receive();
		ASSERT_FALSE(Parts.empty());
		Zef::FLinkFault Fault;
		const Zef::FPrefix Head = *Zef::DecodePrefix(Parts[0], Fault);
		if (Head.Frame == EFrame::Item)
		{
			EXPECT_EQ(Head.Item, 2u);
			break;
		}
		if (Head.Frame == EFrame::Piece)
		{
			PieceBytes += Parts[1].size();
			Taken += Parts[1].size();
		}
	}
	EXPECT_LE(PieceBytes, 10'000u);
	EXPECT_EQ(Application.Server->QueuedBytes(Application.LastClient), 0u);
}

TEST(Credit, IsHeldBackWhileTheProgramIsBehind)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	Zef::FClientOptions Options = QuickClient();
	Options.Limits.WindowBytes = 1 << 20;
	Options.Limits.MaxItemBytes = 8 << 20;
	FEditor Editor(Folder.Socket(), Options);
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Application.Connected == 1; }));
	const auto Mesh = StripMesh(100'000); // 5.6 MB
	for (int Count = 0; Count < 10; ++Count)
	{
		ASSERT_TRUE(Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Garment, Mesh));
	}
	const std::uint64_t One = Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh).PayloadBytes;
	// Two meshes wait at the editor, and the window's share of the third is under way; the rest stays where it is.
	ASSERT_TRUE(Until(
		nullptr, &Application, [&] { return Application.Server->QueuedBytes(Application.LastClient) <= 8 * One; }));
	EXPECT_GE(Application.Server->QueuedBytes(Application.LastClient), 7 * One - (1 << 20));

	EXPECT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 10; }));
}
} // namespace
