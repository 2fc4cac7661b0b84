// SPDX-License-Identifier: MIT
// The garment application's end and the editor as two real processes over the real link.
#include "TemporaryFolder.h"
#include "e2e/Program.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <memory>
#include <sstream>
#include <thread>

namespace
{

constexpr std::chrono::seconds Patience{120};

class TwoPrograms : public ::testing::Test
{
protected:
	std::filesystem::path Path(const std::string& Name) const { return Folder / Name; }
	std::string Endpoint() const { return "ipc://" + Path("t.sock").string(); }

	std::unique_ptr<FProgram> StartPeer(std::vector<std::string> More = {})
	{
		std::filesystem::remove(Path("ready"));
		std::vector<std::string> Arguments = {
			ZEF_PEER_PROGRAM, "serve", "--endpoint", Endpoint(), "--ready-file", Path("ready").string()};
		Arguments.insert(Arguments.end(), More.begin(), More.end());
		return std::make_unique<FProgram>(Arguments, Path("peer.log"));
	}

	std::unique_ptr<FProgram> StartReadyPeer(std::vector<std::string> More = {})
	{
		std::unique_ptr<FProgram> Peer = StartPeer(More);
		const auto Deadline = std::chrono::steady_clock::now() + Patience;
		while (
			!std::filesystem::exists(Path("ready")) && Peer->IsRunning() && std::chrono::steady_clock::now() < Deadline)
		{
			std::this_thread::sleep_for(std::chrono::milliseconds(5));
		}
		EXPECT_TRUE(std::filesystem::exists(Path("ready"))) << Peer->Output();
		return Peer;
	}

	std::unique_ptr<FProgram> StartEditor(std::vector<std::string> More = {})
	{
		std::vector<std::string> Arguments = {ZEF_TANDEM_PROGRAM, "--headless", "update", "--endpoint", Endpoint(),
			"--project", Path("Project").string()};
		Arguments.insert(Arguments.end(), More.begin(), More.end());
		return std::make_unique<FProgram>(Arguments, Path("editor.log"));
	}

	FTemporaryFolder Folder;
};

void ExpectWholeProject(const std::string& Table)
{
	for (const char* const Row : {"DynamicMesh   Garment", "SkeletalMesh  Avatar", "DynamicMesh   Outfit",
			 "DynamicMesh   Prop", "DynamicMeshComponent", "SkeletalMeshComponent"})
	{
		EXPECT_NE(Table.find(Row), std::string::npos) << "no \"" << Row << "\" in\n" << Table;
	}
}

} // namespace

TEST_F(TwoPrograms, AnUpdateShowsTheSampleProjectAndItsPicture)
{
	const std::unique_ptr<FProgram> Peer = StartReadyPeer();
	const std::unique_ptr<FProgram> Editor =
		StartEditor({"--screenshot", Path("out.png").string(), "--width", "160", "--height", "120"});

	ASSERT_EQ(Editor->Wait(Patience), 0) << Editor->Output() << Peer->Output();
	ExpectWholeProject(Editor->Output());
	EXPECT_NE(Editor->Output().find(Path("out.png").string()), std::string::npos);

	std::ifstream Picture(Path("out.png"), std::ios::binary);
	char Head[24] = {};
	Picture.read(Head, sizeof(Head));
	EXPECT_EQ(std::string(Head + 1, 3), "PNG");
	EXPECT_EQ(static_cast<unsigned char>(Head[19]), 160); // width, last byte
	EXPECT_EQ(static_cast<unsigned char>(Head[23]), 120);
}

TEST_F(TwoPrograms, TheEditorMayStartFirst)
{
	const std::unique_ptr<FProgram> Editor = StartEditor();
	const std::unique_ptr<FProgram> Peer = StartPeer();

	ASSERT_EQ(Editor->Wait(Patience), 0) << Editor->Output() << Peer->Output();
	ExpectWholeProject(Editor->Output());
}

TEST_F(TwoPrograms, BothMayBeRestartedInAnyOrder)
{
	std::unique_ptr<FProgram> Peer = StartReadyPeer();
	std::unique_ptr<FProgram> Editor = StartEditor();
	ASSERT_EQ(Editor->Wait(Patience), 0) << Editor->Output();

	Editor = StartEditor();
	ASSERT_EQ(Editor->Wait(Patience), 0) << "with the same peer: " << Editor->Output();

	EXPECT_EQ(Peer->End(SIGTERM), 0) << Peer->Output();
	Peer = StartReadyPeer();
	Editor = StartEditor();
	ASSERT_EQ(Editor->Wait(Patience), 0) << "with a new peer: " << Editor->Output();

	Peer->End(SIGKILL); // leaves its socket file behind
	Peer = StartReadyPeer();
	Editor = StartEditor();
	ASSERT_EQ(Editor->Wait(Patience), 0) << "after a killed peer: " << Editor->Output();
	ExpectWholeProject(Editor->Output());
}

TEST_F(TwoPrograms, WithoutAGarmentApplicationTheEditorSaysWhatToDo)
{
	const std::unique_ptr<FProgram> Editor = StartEditor({"--timeout", "0.5"});

	EXPECT_EQ(Editor->Wait(Patience), 1);
	EXPECT_NE(Editor->Output().find("zef-peer serve"), std::string::npos) << Editor->Output();
}

TEST_F(TwoPrograms, UnifiedMaterialMakesTheGarmentOneSlot)
{
	const std::unique_ptr<FProgram> Peer = StartReadyPeer();
	const std::unique_ptr<FProgram> Editor = StartEditor({"--unified-material"});

	ASSERT_EQ(Editor->Wait(Patience), 0) << Editor->Output();
	const std::string Table = Editor->Output();
	const std::size_t Garment = Table.find("Garment");
	ASSERT_NE(Garment, std::string::npos);
	std::istringstream Row(Table.substr(Garment));
	std::string Kind;
	std::string Class;
	long Triangles = 0;
	long Vertices = 0;
	long Slots = 0;
	Row >> Kind >> Class >> Triangles >> Vertices >> Slots;
	EXPECT_EQ(Slots, 1) << Table;
}

TEST_F(TwoPrograms, AFileThatIsNoModelEndsThePeerWithAClearError)
{
	std::ofstream(Path("shirt.glb")) << "this is no model";
	const std::unique_ptr<FProgram> Peer = StartPeer({"--garment", Path("shirt.glb").string()});

	EXPECT_NE(Peer->Wait(Patience), 0);
	EXPECT_NE(Peer->Output().find("shirt.glb"), std::string::npos) << Peer->Output();
}

TEST_F(TwoPrograms, TheDoctorSaysWhatIsRightAndWhatToDo)
{
	const auto Look = [&]
	{
		FProgram Doctor({ZEF_TANDEM_PROGRAM, "doctor", "--endpoint", Endpoint()}, Path("doctor.log"));
		const int Status = Doctor.Wait(Patience);
		return std::pair(Status, Doctor.Output());
	};
	const auto [Before, Nobody] = Look();
	EXPECT_EQ(Before, 1);
	EXPECT_NE(Nobody.find("WRONG  socket"), std::string::npos) << Nobody;
	EXPECT_NE(Nobody.find("zef-peer serve"), std::string::npos) << Nobody;

	const std::unique_ptr<FProgram> Peer = StartReadyPeer();
	const auto [Status, Lines] = Look();
	EXPECT_EQ(Status, 0) << Lines;
	EXPECT_EQ(Lines.find("WRONG"), std::string::npos) << Lines;
	EXPECT_NE(Lines.find("ok     version   both speak protocol version 2"), std::string::npos) << Lines;
}

TEST_F(TwoPrograms, ARecordingIsServedAgain)
{
	{
		const std::unique_ptr<FProgram> Peer = StartReadyPeer();
		FProgram Recorder(
			{ZEF_TANDEM_PROGRAM, "record", Path("case.ztlr").string(), "--endpoint", Endpoint()}, Path("record.log"));
		ASSERT_EQ(Recorder.Wait(Patience), 0) << Recorder.Output();
		EXPECT_NE(Recorder.Output().find("4 objects"), std::string::npos) << Recorder.Output();
	}
	const FProgram Replay(
		{ZEF_PEER_PROGRAM, "replay", Path("case.ztlr").string(), "--endpoint", Endpoint()}, Path("replay.log"));
	const std::unique_ptr<FProgram> Editor = StartEditor();
	ASSERT_EQ(Editor->Wait(Patience), 0) << Editor->Output() << Replay.Output();
	ExpectWholeProject(Editor->Output());
}
