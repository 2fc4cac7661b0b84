// SPDX-License-Identifier: MIT
#include <filesystem>
#include <functional>
#include <thread>

#include <gtest/gtest.h>
#include <gmock/gmock.h>

#include "Squares.h"
#include "Zef/ClientEndpoint.h"
#include "Zef/Peer/Server.h"
#include "Zef/RecordPool.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;
using testing::Contains;
using testing::HasSubstr;

namespace
{

/** Waits longer than this are failures. */
constexpr std::chrono::seconds Patience(30);
constexpr std::chrono::milliseconds Turn(10);

/** Keeps what was stored, or refuses. */
class FStore : public IJointAnimationStore
{
public:
	explicit FStore(std::vector<FJointAnimation>& Stored, std::string Refusal)
		: Stored(Stored)
		, Refusal(std::move(Refusal))
	{
	}
	FStoreResult Store(const FObjectTypeInfo&, const FJointAnimation& Animation) override
	{
		if (!Refusal.empty())
		{
			return {{}, Refusal};
		}
		Stored.push_back(Animation);
		return {"walk.glb", ""};
	}

private:
	std::vector<FJointAnimation>& Stored;
	std::string Refusal;
};

/** An editor that remembers what it got. */
class FEditor : public IRecordHandler
{
public:
	explicit FEditor(const std::string& Endpoint)
		: Link(std::move(*FClientEndpoint::OpenEndpoint(Endpoint, std::make_shared<FRecordFactory>())))
	{
	}

	void OnSurfaceMesh(EObjectType Type, FSurfaceMesh&& Mesh) override { Meshes.emplace_back(Type, std::move(Mesh)); }
	void OnJointAnimation(EObjectType Type, FJointAnimation&& Animation) override
	{
		Animations.emplace_back(Type, std::move(Animation));
	}
	void OnMeshSequence(EObjectType Type, FSurfaceMesh&& Mesh, std::vector<FMeshSequenceFrame>&& Frames) override
	{
		Sequences.emplace_back(Type, std::move(Mesh));
		SequenceFrames.push_back(std::move(Frames));
	}
	void OnAvailability(const FAvailability& Flags) override { Availabilities.push_back(Flags); }
	void OnConnectionChanged(bool bNow, const std::string&) override { bConnected = bNow; }
	void OnFault(const FLinkFault& Fault, bool) override { Faults.push_back(Fault); }

	std::unique_ptr<FClientEndpoint> Link;
	bool bConnected = false;
	std::vector<std::pair<EObjectType, FSurfaceMesh>> Meshes, Sequences;
	std::vector<std::pair<EObjectType, FJointAnimation>> Animations;
	std::vector<std::vector<FMeshSequenceFrame>> SequenceFrames;
	std::vector<FAvailability> Availabilities;
	std::vector<FLinkFault> Faults;
};

FProjectObject SkinnedSquare(EObjectType Type)
{
	FProjectObject Object;
	Object.Type = Type;
	Object.Source = "test";
	Object.Mesh.Surfaces = {SplitSquare("a", 1, 1)};
	Object.Mesh.Materials = {NamedMaterial(1, "cloth"), NamedMaterial(2, "other")};
	HangOnRoot(Object.Mesh, 6);
	FJointSequenceFrame Frame;
	Frame.Joints = Object.Mesh.Joints;
	Frame.Joints[0].Transform.Translation = {0, 0, 7};
	Object.JointSequence.Frames = {{Object.Mesh.Joints, 0}, Frame};
	Object.JointSequence.Frames[1].Time = 0.5;
	return Object;
}

/** A garment without joints that can count how often its cloth was simulated. */
FProjectObject PlainGarment(int* Simulations)
{
	FProjectObject Object;
	Object.Type = EObjectType::Garment;
	Object.Source = "test";
	Object.Mesh.Surfaces = {SplitSquare("a", 1, 1)};
	Object.Mesh.Materials = {NamedMaterial(1, "cloth"), NamedMaterial(2, "other")};
	Object.MakeMeshSequence = [Simulations, Surface = Object.Mesh.Surfaces[0]]
	{
		++*Simulations;
		return std::vector<FMeshSequenceFrame>{{Surface.Positions, Surface.Normals, Surface.Tangents, 0}};
	};
	return Object;
}

class ServerTest : public testing::Test
{
protected:
	void Serve(FProject Project, const std::string& Refusal = "")
	{
		FServerSettings Settings;
		Settings.Endpoint = "ipc://*";
		Settings.Store = std::make_unique<FStore>(Stored, Refusal);
		Settings.Log = [this](const std::string& Line) { Lines.push_back(Line); };
		auto Opened = FServer::Open(std::move(Project), std::move(Settings));
		ASSERT_TRUE(Opened) << ToString(Opened.Fault());
		Server = std::move(*Opened);
		Editor = std::make_unique<FEditor>(Server->Endpoint());
		ASSERT_TRUE(Until([this] { return Editor->bConnected; }));
	}

	bool Until(const std::function<bool()>& bReached)
	{
		const auto End = std::chrono::steady_clock::now() + Patience;
		while (!bReached())
		{
			if (std::chrono::steady_clock::now() > End)
			{
				return false;
			}
			Server->Serve(Turn);
			if (Editor)
			{
				Editor->Link->Poll(*Editor, Turn);
			}
		}
		return true;
	}

	std::vector<EObjectType> Received() const
	{
		std::vector<EObjectType> Types;
		for (const auto& [Type, Mesh] : Editor->Meshes)
		{
			Types.push_back(Type);
		}
		return Types;
	}

	std::vector<std::string> Lines;
	std::vector<FJointAnimation> Stored;
	std::unique_ptr<FServer> Server;
	std::unique_ptr<FEditor> Editor;
	int Simulations = 0;
};

} // namespace

TEST_F(ServerTest, AnswersAnUpdateWithEachObjectAsItIs)
{
	FProject Project;
	Project.Objects = {PlainGarment(&Simulations), SkinnedSquare(EObjectType::Avatar)};
	const FSurfaceMesh Garment = Project.Objects[0].Mesh, Avatar = Project.Objects[1].Mesh;
	Serve(std::move(Project));

	Editor->Link->SendUpdate({});
	ASSERT_TRUE(Until([this] { return Editor->Meshes.size() == 2; }));

	EXPECT_EQ(Received(), (std::vector<EObjectType>{EObjectType::Garment, EObjectType::Avatar}));
	EXPECT_TRUE(Editor->Meshes[0].second == Garment);
	EXPECT_TRUE(Editor->Meshes[1].second == Avatar);
	EXPECT_EQ(Simulations, 0);
	EXPECT_THAT(Lines, Contains(HasSubstr("asks for an update (as it is)")));
}

TEST_F(ServerTest, SendsGarmentAndAvatarEvenWhenItHasOnlyAProp)
{
	FProject Project;
	Project.Objects = {SkinnedSquare(EObjectType::Prop)};
	Serve(std::move(Project));

	Editor->Link->SendUpdate({});
	ASSERT_TRUE(Until([this] { return Editor->Meshes.size() == 3; }));

	EXPECT_EQ(Received(), (std::vector<EObjectType>{EObjectType::Prop, EObjectType::Garment, EObjectType::Avatar}));
	EXPECT_FALSE(Editor->Meshes[0].second.Surfaces.empty());
	EXPECT_TRUE(Editor->Meshes[1].second.Surfaces.empty());
	EXPECT_TRUE(Editor->Meshes[2].second.Surfaces.empty());
}

TEST_F(ServerTest, HonoursBothPackingOptions)
{
	FProject Project;
	Project.Objects = {PlainGarment(&Simulations), SkinnedSquare(EObjectType::Avatar)};
	Serve(std::move(Project));

	Editor->Link->SendUpdate({true, true});
	ASSERT_TRUE(Until([this] { return Editor->Meshes.size() == 2; }));

	EXPECT_EQ(Editor->Meshes[0].second.Surfaces[0].Positions.size(), 4u);
	EXPECT_EQ(Editor->Meshes[0].second.Materials.size(), 1u);
	EXPECT_EQ(Editor->Meshes[1].second.Surfaces[0].Positions.size(), 4u);
	EXPECT_EQ(Editor->Meshes[1].second.Materials.size(), 2u);
	EXPECT_THAT(Lines, Contains(HasSubstr("(welded, unified material)")));
}

TEST_F(ServerTest, AnswersWithTheJointAnimation)
{
	FProject Project;
	Project.Objects = {SkinnedSquare(EObjectType::Avatar)};
	const FProjectObject Avatar = Project.Objects[0];
	Serve(std::move(Project));

	Editor->Link->SendAnimation({EObjectType::Avatar, EAnimationKind::JointAnimation}, {});
	ASSERT_TRUE(Until([this] { return Editor->Animations.size() == 1; }));

	EXPECT_TRUE(Editor->Animations[0].second.Mesh == Avatar.Mesh);
	EXPECT_EQ(Editor->Animations[0].second.Sequence, Avatar.JointSequence);
}

TEST_F(ServerTest, AnswersWithNoFramesWhereThereIsNoAnimation)
{
	FProject Project;
	Project.Objects = {PlainGarment(&Simulations)};
	Serve(std::move(Project));

	Editor->Link->SendAnimation({EObjectType::Garment, EAnimationKind::JointAnimation}, {});
	Editor->Link->SendAnimation({EObjectType::Avatar, EAnimationKind::JointAnimation}, {});
	Editor->Link->SendAnimation({EObjectType::Prop, EAnimationKind::MeshSequence}, {});
	ASSERT_TRUE(Until([this] { return Editor->Animations.size() == 2 && Editor->Sequences.size() == 1; }));

	EXPECT_TRUE(Editor->Animations[0].second.Sequence.Frames.empty());
	EXPECT_EQ(Editor->Animations[0].second.Mesh.Surfaces.size(), 1u);
	EXPECT_TRUE(Editor->Animations[1].second.Sequence.Frames.empty());
	EXPECT_TRUE(Editor->SequenceFrames[0].empty());
}

TEST_F(ServerTest, SimulatesTheClothOnceAndSendsItPackedLikeItsMesh)
{
	FProject Project;
	Project.Objects = {PlainGarment(&Simulations)};
	Serve(std::move(Project));

	Editor->Link->SendAnimation({EObjectType::Garment, EAnimationKind::MeshSequence}, {});
	Editor->Link->SendAnimation({EObjectType::Garment, EAnimationKind::MeshSequence}, {true, false});
	ASSERT_TRUE(Until([this] { return Editor->Sequences.size() == 2; }));

	EXPECT_EQ(Simulations, 1);
	EXPECT_EQ(Editor->SequenceFrames[0][0].Positions.size(), 6u);
	EXPECT_EQ(Editor->SequenceFrames[1][0].Positions, Editor->Sequences[1].second.Surfaces[0].Positions);
	EXPECT_EQ(Editor->SequenceFrames[1][0].Positions.size(), 4u);
}

TEST_F(ServerTest, AnimatesASkinnedObjectThroughItsInfluences)
{
	FProject Project;
	Project.Objects = {SkinnedSquare(EObjectType::Avatar)};
	Serve(std::move(Project));

	Editor->Link->SendAnimation({EObjectType::Avatar, EAnimationKind::MeshSequence}, {});
	ASSERT_TRUE(Until([this] { return Editor->Sequences.size() == 1; }));

	ASSERT_EQ(Editor->SequenceFrames[0].size(), 2u);
	EXPECT_EQ(Editor->SequenceFrames[0][1].Positions[0], (FVec3{0, 0, 7}));
	EXPECT_DOUBLE_EQ(Editor->SequenceFrames[0][1].Time, 0.5);
}

TEST_F(ServerTest, TellsWhatIsAvailable)
{
	FProject Project;
	Project.Objects = {PlainGarment(&Simulations), SkinnedSquare(EObjectType::Avatar)};
	Project.Objects[1].JointSequence = {};
	Serve(std::move(Project));

	Editor->Link->SendAvailability();
	ASSERT_TRUE(Until([this] { return !Editor->Availabilities.empty(); }));

	EXPECT_EQ(Editor->Availabilities[0], (FAvailability{true, true, true, false, true}));
}

TEST_F(ServerTest, RemembersWhetherTheLinkIsOn)
{
	Serve({});
	EXPECT_FALSE(Server->Counts().bEnabled);

	Editor->Link->SendEnable(true);
	ASSERT_TRUE(Until([this] { return Server->Counts().bEnabled; }));
	Editor->Link->SendEnable(false);
	ASSERT_TRUE(Until([this] { return !Server->Counts().bEnabled; }));

	EXPECT_THAT(Lines, Contains(HasSubstr("switched the link on")));
	EXPECT_THAT(Lines, Contains(HasSubstr("switched the link off")));
}

TEST_F(ServerTest, StoresTheAnimationThatAnEditorSends)
{
	Serve({});
	const FProjectObject Avatar = SkinnedSquare(EObjectType::Avatar);
	auto Animation = std::make_shared<FJointAnimation>(FJointAnimation{Avatar.Mesh, Avatar.JointSequence});

	Editor->Link->SendJointAnimation({EObjectType::Avatar, EAnimationKind::JointAnimation}, Animation);
	ASSERT_TRUE(Until([this] { return Stored.size() == 1; }));

	EXPECT_EQ(Stored[0].Sequence, Avatar.JointSequence);
	EXPECT_THAT(Lines, Contains(HasSubstr("stored as walk.glb")));
}

TEST_F(ServerTest, TellsTheEditorWhyAnAnimationCouldNotBeStored)
{
	Serve({}, "the disk is full");
	const FProjectObject Avatar = SkinnedSquare(EObjectType::Avatar);
	auto Animation = std::make_shared<FJointAnimation>(FJointAnimation{Avatar.Mesh, Avatar.JointSequence});

	Editor->Link->SendJointAnimation({EObjectType::Avatar, EAnimationKind::JointAnimation}, Animation);
	ASSERT_TRUE(Until([this] { return !Editor->Faults.empty(); }));

	EXPECT_EQ(Editor->Faults[0].Code, EFault::PeerFailed);
	EXPECT_EQ(Editor->Faults[0].Message, "the disk is full");
}

TEST_F(ServerTest, RunsUntilAsManyEditorsHaveComeAndGone)
{
	Serve({});
	Editor.reset();

	Server->Run(1);

	EXPECT_EQ(Server->Counts().ClientsGone, 1u);
}

TEST_F(ServerTest, StopsFromAnotherThread)
{
	Serve({});
	std::thread Other([this] { Server->Stop(); });

	Server->Run();

	Other.join();
	EXPECT_EQ(Server->Counts().ClientsGone, 0u);
}

TEST_F(ServerTest, SaysWhyItCannotBind)
{
	Serve({});
	FServerSettings Settings;
	Settings.Endpoint = Server->Endpoint();

	const auto Second = FServer::Open({}, std::move(Settings));

	ASSERT_FALSE(Second);
	EXPECT_EQ(Second.Fault().Code, EFault::AddressTaken);
}
