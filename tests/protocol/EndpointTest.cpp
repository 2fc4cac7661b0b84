// SPDX-License-Identifier: MIT
#include "LinkFixture.h"

#include <thread>

namespace
{
using namespace LinkTest;
using Zef::EAnimationKind;
using Zef::EObjectType;

const Zef::FObjectTypeInfo AvatarJoints{EObjectType::Avatar, EAnimationKind::JointAnimation};
const Zef::FObjectTypeInfo GarmentSequence{EObjectType::Garment, EAnimationKind::MeshSequence};

/** An application and an editor that have greeted each other. */
class Link : public testing::Test
{
protected:
	void Connect()
	{
		ASSERT_TRUE(Application.Server) << ToString(Application.OpenFault);
		ASSERT_TRUE(
			Until(&Editor, &Application, [&] { return Editor.Connections.size() == 1 && Application.Connected == 1; }));
		ASSERT_TRUE(Editor.Connections[0]);
	}

	FTestFolder Folder;
	FApplication Application{Folder.Socket()};
	FEditor Editor{Folder.Socket(), QuickClient()};
};

TEST_F(Link, TellsBothEndsOfEachOther)
{
	Connect();
	EXPECT_TRUE(Editor.Client->IsConnected());
	EXPECT_EQ(Editor.Reasons[0], "garment application");
	EXPECT_EQ(Application.Programs[0], "test editor 1");
}

TEST_F(Link, CarriesAllFiveRequests)
{
	Connect();
	const auto Animation = SampleAnimation();
	Animation->Mesh.Surfaces[1].Sections[0].Indices = {3, 4, 5};

	EXPECT_TRUE(Editor.Client->SendEnable(true));
	EXPECT_TRUE(Editor.Client->SendUpdate({true, false}));
	EXPECT_TRUE(Editor.Client->SendAnimation(AvatarJoints, {false, true}));
	EXPECT_TRUE(Editor.Client->SendAvailability());
	Zef::FLinkFault Fault;
	EXPECT_TRUE(Editor.Client->SendJointAnimation(AvatarJoints, Animation, &Fault)) << ToString(Fault);
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Application.SentAnimations.empty(); }));

	EXPECT_EQ(Application.Enables, std::vector<bool>{true});
	ASSERT_EQ(Application.Updates.size(), 1u);
	EXPECT_TRUE((Application.Updates[0] == Zef::FPackingOptions{true, false}));
	ASSERT_EQ(Application.AnimationInfos.size(), 1u);
	EXPECT_TRUE(Application.AnimationInfos[0] == AvatarJoints);
	EXPECT_TRUE((Application.AnimationOptions[0] == Zef::FPackingOptions{false, true}));
	EXPECT_EQ(Application.Availabilities, 1);
	EXPECT_TRUE(Application.SentInfos[0] == AvatarJoints);
	EXPECT_TRUE(*Application.SentAnimations[0] == *Animation);
}

TEST_F(Link, AnswersAnUpdateWithOneMeshForEachObjectType)
{
	Application.OnUpdate = [this](Zef::FClientId Client)
	{
		EXPECT_TRUE(Application.Server->SendSurfaceMesh(Client, EObjectType::Garment, StripMesh(1000)));
		EXPECT_TRUE(Application.Server->SendSurfaceMesh(Client, EObjectType::Avatar, SampleMesh()));
		EXPECT_TRUE(
			Application.Server->SendSurfaceMesh(Client, EObjectType::Prop, std::make_shared<Zef::FSurfaceMesh>()));
	};
	Connect();
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 3; }));

	EXPECT_EQ(Editor.MeshTypes, (std::vector{EObjectType::Garment, EObjectType::Avatar, EObjectType::Prop}));
	EXPECT_TRUE(Editor.Meshes[0] == *StripMesh(1000));
	EXPECT_TRUE(Editor.Meshes[1] == *SampleMesh());
}

TEST_F(Link, CarriesMeshesOfManyWindows)
{
	const auto Mesh = StripMesh(1'500'000);
	Application.OnUpdate = [&](Zef::FClientId Client)
	{ EXPECT_TRUE(Application.Server->SendSurfaceMesh(Client, EObjectType::Garment, Mesh)); };
	Connect();
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 1; }));

	EXPECT_TRUE(Editor.Meshes[0] == *Mesh);
	EXPECT_EQ(Application.Server->QueuedBytes(Application.LastClient), 0u);
}

TEST_F(Link, CarriesTheAvailability)
{
	Connect();
	Editor.Client->SendAvailability();
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Availabilities.empty(); }));
	EXPECT_TRUE((Editor.Availabilities[0] == Zef::FAvailability{false, true, false, true, true}));
}

TEST_F(Link, CarriesAJointAnimation)
{
	Application.OnAnimation = [this](Zef::FClientId Client, const Zef::FObjectTypeInfo&)
	{ EXPECT_TRUE(Application.Server->SendJointAnimation(Client, EObjectType::Avatar, SampleAnimation())); };
	Connect();
	Editor.Client->SendAnimation(AvatarJoints, {});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Animations.empty(); }));
	EXPECT_TRUE(Editor.Animations[0] == *SampleAnimation());
}

TEST_F(Link, StreamsAMeshSequenceWithoutHoldingAllOfItsFrames)
{
	constexpr std::uint32_t FrameCount = 200;
	const auto Mesh = StripMesh(20'000); // 720 kB a frame, 144 MB in all
	std::vector<std::weak_ptr<const Zef::FMeshSequenceFrame>> Alive;
	std::size_t MostAlive = 0;
	Application.OnAnimation = [&](Zef::FClientId Client, const Zef::FObjectTypeInfo&)
	{
		const auto MakeFrame = [&](std::uint32_t Index) -> std::shared_ptr<const Zef::FMeshSequenceFrame>
		{
			std::erase_if(Alive, [](const auto& Frame) { return Frame.expired(); });
			MostAlive = std::max(MostAlive, Alive.size());
			if (Index == FrameCount)
			{
				return nullptr;
			}
			auto Frame = std::make_shared<Zef::FMeshSequenceFrame>();
			Frame->Positions.assign(20'000, {static_cast<float>(Index), 0, 0});
			Frame->Normals.assign(20'000, {0, 0, 1});
			Frame->Tangents.assign(20'000, {1, 0, 0});
			Frame->Time = Index / 30.0;
			Alive.push_back(Frame);
			return Frame;
		};
		EXPECT_TRUE(Application.Server->SendMeshSequence(Client, EObjectType::Garment, Mesh, MakeFrame));
	};
	Connect();
	Editor.Client->SendAnimation(GarmentSequence, {});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Frames.empty(); }));

	EXPECT_TRUE(Editor.SequenceMeshes[0] == *Mesh);
	ASSERT_EQ(Editor.Frames[0].size(), FrameCount);
	EXPECT_EQ(Editor.Frames[0][199].Positions[19'999].X, 199);
	EXPECT_EQ(Editor.Frames[0][199].Time, 199 / 30.0);
	EXPECT_LT(MostAlive, 40u); // the window holds 16 MiB, about 22 frames
}

TEST_F(Link, SaysWithAnEmptySequenceThatThereIsNone)
{
	Application.OnAnimation = [this](Zef::FClientId Client, const Zef::FObjectTypeInfo&)
	{ Application.Server->SendMeshSequence(Client, EObjectType::Garment, SampleMesh(), nullptr); };
	Connect();
	Editor.Client->SendAnimation(GarmentSequence, {});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Frames.empty(); }));
	EXPECT_TRUE(Editor.Frames[0].empty());
}

TEST_F(Link, RefusesToSendWhatNoEditorWouldTake)
{
	Connect();
	auto Mesh = std::make_shared<Zef::FSurfaceMesh>(*SampleMesh());
	Mesh->Surfaces[1].VertexOffset = 4;
	Zef::FLinkFault Fault;
	EXPECT_FALSE(Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Garment, Mesh, &Fault));
	EXPECT_EQ(Fault.Code, Zef::EFault::VertexOffset);
	EXPECT_EQ(Fault.Path, "/Surfaces/1/VertexOffset");
	EXPECT_FALSE(
		Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Invalid, SampleMesh(), &Fault));
	EXPECT_EQ(Fault.Code, Zef::EFault::ObjectType);
	EXPECT_FALSE(Editor.Client->SendAnimation({EObjectType::Avatar, EAnimationKind::None}, {}));
	EXPECT_FALSE(Editor.Client->SendAnimation({}, {}));
}

TEST_F(Link, DropsABadMeshWholeTellsBothEndsOnceAndGoesOn)
{
	auto Bad = std::make_shared<Zef::FSurfaceMesh>(*StripMesh(400'000));
	Bad->Surfaces[0].Normals[300'000].Y = std::numeric_limits<float>::infinity();
	Application.OnUpdate = [&](Zef::FClientId Client)
	{
		Application.Server->SendSurfaceMesh(Client, EObjectType::Garment, Bad);
		Application.Server->SendSurfaceMesh(Client, EObjectType::Avatar, SampleMesh());
	};
	Connect();
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(
		Until(&Editor, &Application, [&] { return !Editor.Meshes.empty() && !Application.FaultsOfClient.empty(); }));

	EXPECT_EQ(Editor.MeshTypes, std::vector{EObjectType::Avatar});
	ASSERT_EQ(Editor.Faults.size(), 1u);
	EXPECT_EQ(Editor.Faults[0].Code, Zef::EFault::NotFinite);
	EXPECT_EQ(Editor.Faults[0].Path, "/Surfaces/0/Normals/300000/Y");
	ASSERT_EQ(Application.FaultsOfClient.size(), 1u);
	EXPECT_EQ(Application.FaultsOfClient[0].Path, "/Surfaces/0/Normals/300000/Y");
	EXPECT_EQ(Editor.Connections, std::vector<bool>{true});
}

TEST_F(Link, DropsASequenceWithABadFrameWhole)
{
	Application.OnAnimation = [&](Zef::FClientId Client, const Zef::FObjectTypeInfo&)
	{
		const auto Frames = [](std::uint32_t Index) -> std::shared_ptr<const Zef::FMeshSequenceFrame>
		{ return Index == 5 ? nullptr : SampleFrame(static_cast<float>(Index), Index == 2 ? -1.0 : Index); };
		Application.Server->SendMeshSequence(Client, EObjectType::Garment, SampleMesh(), Frames);
		Application.Server->SendAvailability(Client, {});
	};
	Connect();
	Editor.Client->SendAnimation(GarmentSequence, {});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Availabilities.empty(); }));

	EXPECT_TRUE(Editor.Frames.empty());
	ASSERT_EQ(Editor.Faults.size(), 1u);
	EXPECT_EQ(Editor.Faults[0].Code, Zef::EFault::TimeOrder);
}

TEST_F(Link, TellsTheEditorWhenTheApplicationFailed)
{
	Application.OnUpdate = [&](Zef::FClientId Client)
	{ Application.Server->SendFault(Client, MakeFault(Zef::EFault::PeerFailed, "", "The simulation is running.")); };
	Connect();
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.FaultsOfPeer.empty(); }));
	EXPECT_EQ(Editor.FaultsOfPeer[0].Code, Zef::EFault::PeerFailed);
	EXPECT_EQ(Editor.FaultsOfPeer[0].Message, "The simulation is running.");
}

TEST_F(Link, NotesWhatWasReceivedUnderTheChannel)
{
	Application.OnUpdate = [&](Zef::FClientId Client)
	{ Application.Server->SendSurfaceMesh(Client, EObjectType::Avatar, SampleMesh()); };
	Connect();
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Meshes.empty(); }));

	const std::vector<Zef::FReceiveReport> Reports = Zef::ReceiveReports(Folder.Socket());
	ASSERT_EQ(Reports.size(), 1u);
	EXPECT_EQ(Reports[0].Item, Zef::EItem::SurfaceMesh);
	EXPECT_EQ(Reports[0].ObjectType, EObjectType::Avatar);
	EXPECT_EQ(Reports[0].Bytes, Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()).Header.size() +
									Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()).PayloadBytes);
	EXPECT_GE(Reports[0].Milliseconds, 0);
	Zef::ClearReceiveReports(Folder.Socket());
	EXPECT_TRUE(Zef::ReceiveReports(Folder.Socket()).empty());
}

TEST_F(Link, ServesSeveralEditorsAtOnce)
{
	Application.OnUpdate = [&](Zef::FClientId Client)
	{ Application.Server->SendSurfaceMesh(Client, EObjectType::Avatar, StripMesh(100'000)); };
	Connect();
	FEditor Second(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Second, &Application, [&] { return Second.Client->IsConnected(); }));
	// Nothing is taken from the first editor's queue meanwhile.
	Editor.Client->SendUpdate({});
	Second.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Second, &Application, [&] { return !Second.Meshes.empty(); }));
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Meshes.empty(); }));
	EXPECT_TRUE(Second.Meshes[0] == Editor.Meshes[0]);
}

TEST_F(Link, TellsTheApplicationWhenAnEditorIsGoneAndDropsItsReplies)
{
	const auto Mesh = StripMesh(1'500'000);
	const std::weak_ptr<Zef::FSurfaceMesh> Watched = Mesh;
	Connect();
	EXPECT_TRUE(Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Garment, Mesh));
	Editor.Client.reset();
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return Application.Gone == 1; }));

	EXPECT_FALSE(Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Garment, Mesh));
	EXPECT_EQ(Application.Server->QueuedBytes(Application.LastClient), 0u);
}

TEST_F(Link, DeliversNothingAfterStopNotEvenFromInsideAHandler)
{
	class FStopping : public FEditor
	{
	public:
		using FEditor::FEditor;
		void OnAvailability(const Zef::FAvailability& Availability) override
		{
			FEditor::OnAvailability(Availability);
			Client->Stop();
		}
	};
	FStopping Stopping(Folder.Socket(), QuickClient());
	ASSERT_TRUE(
		Until(&Stopping, &Application, [&] { return Stopping.Client->IsConnected() && Application.Connected >= 1; }));
	Application.Availabilities = 0;
	Stopping.Client->SendAvailability();
	Stopping.Client->SendAvailability();
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return Application.Availabilities == 2; }));
	ASSERT_TRUE(Until(&Stopping, &Application, [&] { return !Stopping.Availabilities.empty(); }));
	Application.Server.reset();
	Stopping.Poll(std::chrono::milliseconds(1));

	EXPECT_EQ(Stopping.Availabilities.size(), 1u);
	EXPECT_EQ(Stopping.Connections, std::vector<bool>{true});
}

TEST_F(Link, TakesRequestsFromSeveralThreads)
{
	Connect();
	std::vector<std::thread> Threads;
	for (int Index = 0; Index < 4; ++Index)
	{
		Threads.emplace_back(
			[&]
			{
				for (int Count = 0; Count < 100; ++Count)
				{
					EXPECT_TRUE(Editor.Client->SendEnable(true));
				}
			});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	EXPECT_TRUE(Until(&Editor, &Application, [&] { return Application.Enables.size() == 400; }));
}

TEST_F(Link, WakesAWaitingPoll)
{
	Connect();
	std::thread Waker([this] { Application.Server->Wake(); });
	Application.Server->Poll(Application, std::chrono::duration_cast<std::chrono::milliseconds>(Patience));
	Waker.join();
	EXPECT_TRUE(Application.Server);
}
} // namespace
