// SPDX-License-Identifier: MIT
// One editor that lives long, over the real link within one process.
#include "Host/HeadlessEditor.h"
#include "TemporaryFolder.h"
#include "Zef/Peer/Server.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <optional>
#include <thread>

namespace
{

constexpr int WarmUpdates = 50;
constexpr int CollectEvery = 50; // replaced objects wait for a collection, which the engine runs once a minute
constexpr int ManyUpdates = 1000;
// What the allocator may keep back between two equal states; a leak of one small mesh an update would be ten times
// more.
constexpr long SlackKilobytes = 4096;

/** A square of two triangles, with an image, skinned to one joint where it is an avatar. */
Zef::Peer::FProjectObject MakeObject(Zef::EObjectType Type, int Id)
{
	Zef::Peer::FProjectObject Object;
	Object.Type = Type;
	Object.Source = "test";
	Zef::FSurface& Surface = Object.Mesh.Surfaces.emplace_back();
	Surface.Name = "Square";
	Surface.Positions = {{0, 0, 0}, {0, 10, 0}, {0, 10, 10}, {0, 0, 10}};
	Surface.Normals.assign(4, {1, 0, 0});
	Surface.Tangents.assign(4, {0, 1, 0});
	Surface.UVs = {{0, 1}, {1, 1}, {1, 0}, {0, 0}};
	Zef::FSection& Section = Surface.Sections.emplace_back();
	Section.MaterialIndex = Id;
	Section.Indices = {0, 2, 1, 0, 3, 2};

	Zef::FMaterial Material;
	Material.Id = Id;
	Material.Name = "Cotton";
	Zef::FMaterialExpression Colour;
	Colour.TextureId = Id;
	Material.Expressions.emplace_back(Zef::MaterialChannel::BaseColor, Colour);
	Object.Mesh.Materials.emplace_back(Id, Material);
	Zef::FTexture Texture;
	Texture.Format = 0;
	Texture.Width = 64;
	Texture.Height = 64;
	Texture.Pixels.assign(64 * 64 * 4, 200);
	Object.Mesh.Textures.emplace_back(Id, Texture);
	if (Type == Zef::EObjectType::Avatar)
	{
		Zef::FJoint Root;
		Root.Name = "root";
		Object.Mesh.Joints.push_back(Root);
		Object.Mesh.VertexInfluences.FirstWeight = {0, 1, 2, 3, 4};
		Object.Mesh.VertexInfluences.Weights.assign(4, {0, 1.0f});
	}
	return Object;
}

Zef::Peer::FProject MakeProject()
{
	Zef::Peer::FProject Project;
	Project.Name = "Squares";
	Project.Objects.push_back(MakeObject(Zef::EObjectType::Garment, 1));
	Project.Objects.push_back(MakeObject(Zef::EObjectType::Avatar, 2));
	Project.Objects.push_back(MakeObject(Zef::EObjectType::Prop, 3));
	return Project;
}

/** A garment application on a thread of its own. */
class FPeerThread
{
public:
	explicit FPeerThread(const std::string& Endpoint)
	{
		Zef::Peer::FServerSettings Settings;
		Settings.Endpoint = Endpoint;
		Zef::TResult<std::unique_ptr<Zef::Peer::FServer>> Opened =
			Zef::Peer::FServer::Open(MakeProject(), std::move(Settings));
		Server = std::move(*Opened);
		Thread = std::thread([this] { Server->Run(); });
	}
	~FPeerThread()
	{
		Server->Stop();
		Thread.join();
	}

private:
	std::unique_ptr<Zef::Peer::FServer> Server;
	std::thread Thread;
};

/** Memory of this process that is in use, in kilobytes. */
long ResidentKilobytes()
{
	std::ifstream Status("/proc/self/status");
	std::string Line;
	while (std::getline(Status, Line))
	{
		if (Line.rfind("VmRSS:", 0) == 0)
		{
			return std::stol(Line.substr(6));
		}
	}
	return 0;
}

class LongLivedEditor : public ::testing::Test
{
protected:
	void SetUp() override
	{
		Options.Endpoint = "ipc://" + (Folder / "t.sock");
		Options.Project = Folder / "Project";
		Options.Plugin = ZEF_SOURCE_DIR;
	}

	FTemporaryFolder Folder;
	Host::FHeadlessOptions Options;
};

} // namespace

TEST_F(LongLivedEditor, AThousandInOneEditorLeaveNothingOver)
{
	const FPeerThread Peer(Options.Endpoint);
	std::string Error;
	const std::unique_ptr<Host::FHeadlessEditor> Editor = Host::FHeadlessEditor::Open(Options, Error);
	ASSERT_NE(Editor, nullptr) << Error;

	for (int Round = 0; Round < WarmUpdates; ++Round)
	{
		const Host::FUpdateOutcome Outcome = Editor->Update();
		ASSERT_TRUE(Outcome.IsOk()) << Outcome.Error;
	}
	Editor->CollectGarbage();
	const std::int64_t Objects = Editor->CountObjects();
	const long Memory = ResidentKilobytes();
	for (int Round = WarmUpdates; Round < ManyUpdates; ++Round)
	{
		const Host::FUpdateOutcome Outcome = Editor->Update();
		ASSERT_TRUE(Outcome.IsOk()) << Round << ": " << Outcome.Error;
		ASSERT_EQ(Outcome.Rows.size(), 3u);
		if ((Round + 1) % CollectEvery == 0)
		{
			Editor->CollectGarbage();
		}
	}

	EXPECT_EQ(Editor->CountObjects(), Objects);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
	EXPECT_LT(ResidentKilobytes(), Memory + SlackKilobytes);
#else
	(void)Memory; // a sanitizer keeps freed memory back
#endif
}

TEST_F(LongLivedEditor, TheEditorStaysOpenOverARestartOfTheGarmentApplication)
{
	std::optional<FPeerThread> Peer(std::in_place, Options.Endpoint);
	std::string Error;
	const std::unique_ptr<Host::FHeadlessEditor> Editor = Host::FHeadlessEditor::Open(Options, Error);
	ASSERT_NE(Editor, nullptr) << Error;
	ASSERT_TRUE(Editor->Update().IsOk());

	Peer.reset();
	Peer.emplace(Options.Endpoint);
	// The editor finds out about the loss while it waits: that one request may fail, the next must not.
	Host::FUpdateOutcome Outcome = Editor->Update();
	if (!Outcome.IsOk())
	{
		EXPECT_EQ(Outcome.Error, "There is no Tandem connection. Please restart ZEF or KR.");
		Outcome = Editor->Update();
	}
	EXPECT_TRUE(Outcome.IsOk()) << Outcome.Error;
	EXPECT_EQ(Outcome.Rows.size(), 3u);
}
