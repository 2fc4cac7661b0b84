// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "Engine/World.h"
#include "PreviewScene.h"
#include "UObject/Package.h"
#include "ZEFRuntimeUtils.h"
#include "ZEFTandemClientComponent.h"
#include "protocol/LinkFixture.h"
#include "protocol/RawPeer.h"

#include <cstdlib>

namespace
{
using LinkTest::FApplication;
using ZefTandemCore::TandemMessage;
using ZefTandemCore::TandemObjectType;

/** A client in a preview scene, as the editor keeps it, on an endpoint of its own. */
class ClientComponent : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Endpoint = "ipc://" + (Project() / "link.sock");
		setenv(Zef::EndpointVariable, Endpoint.c_str(), 1);
		Scene = std::make_unique<FPreviewScene>();
		Client = NewObject<UZEFTandemClientComponent>(GetTransientPackage(), TEXT("ZEFTandemClientComponent"));
		ASSERT_TRUE(Client->Create(TEXT("Tandem")));
		Client->OnSurfaceMeshReceived.AddLambda(
			[this](const TandemObjectType& Type, const FZEFSurfaceMesh& Mesh)
			{
				Types.push_back(Type);
				Meshes.Add(Mesh);
			});
		Client->OnJointAnimationReceived.AddLambda(
			[this](const TandemObjectType& Type, const FZEFJointAnimation& Animation)
			{
				Types.push_back(Type);
				Animations.Add(Animation);
			});
		Client->OnMeshSequenceReceived.AddLambda(
			[this](const TandemObjectType& Type, const FZEFSurfaceMesh& Mesh,
				const TArray<FZEFMeshSequenceFrame>& InFrames)
			{
				Types.push_back(Type);
				Meshes.Add(Mesh);
				Frames.Add(InFrames);
			});
		Client->OnAvailabilityReceived.AddLambda(
			[this](const ZefTandemCore::TandemAvailability& Availability) { Availabilities.push_back(Availability); });
		Client->OnLinkFaultReported.AddLambda([this](const FString& Text) { Faults.Add(Text); });
		Client->OnConnectionChanged.AddLambda([this](bool bConnected) { Connections.push_back(bConnected); });
		Scene->AddComponent(Client, FTransform::Identity);
	}

	void TearDown() override
	{
		if (Client)
		{
			Scene->RemoveComponent(Client);
			Client->Destroy();
			Client = nullptr;
		}
		Scene.reset();
		Application.reset();
		unsetenv(Zef::EndpointVariable);
		CollectAll();
		FEngineFixture::TearDown();
	}

	void TickWorld() { Scene->GetWorld()->Tick(LEVELTICK_All, 1.0f / 60.0f); }

	/** Ticks the scene and serves the application until Done is true; false when that takes too long. */
	bool Until(const std::function<bool()>& Done)
	{
		const auto Deadline = std::chrono::steady_clock::now() + LinkTest::Patience;
		while (!Done())
		{
			if (std::chrono::steady_clock::now() > Deadline)
			{
				return false;
			}
			if (Application)
			{
				Application->Poll(std::chrono::milliseconds(1));
			}
			TickWorld();
		}
		return true;
	}

	void Serve()
	{
		Application = std::make_unique<FApplication>(Endpoint);
		ASSERT_TRUE(Application->Server) << ToString(Application->OpenFault);
		ASSERT_TRUE(Until([&] { return !Connections.empty() && Connections.back() && Application->Connected > 0; }));
	}

	std::string Endpoint;
	std::unique_ptr<FPreviewScene> Scene;
	UZEFTandemClientComponent* Client = nullptr;
	std::unique_ptr<FApplication> Application;
	std::vector<TandemObjectType> Types;
	TArray<FZEFSurfaceMesh> Meshes;
	TArray<FZEFJointAnimation> Animations;
	TArray<TArray<FZEFMeshSequenceFrame>> Frames;
	std::vector<ZefTandemCore::TandemAvailability> Availabilities;
	TArray<FString> Faults;
	std::vector<bool> Connections;
};

TEST_F(ClientComponent, HandsOverAMeshWithEveryField)
{
	Serve();
	Application->OnUpdate = [this](Zef::FClientId Id)
	{ Application->Server->SendSurfaceMesh(Id, Zef::EObjectType::Avatar, LinkTest::SampleMesh()); };
	EXPECT_TRUE(Client->SendData(TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions{true, false}));
	ASSERT_TRUE(Until([&] { return Meshes.Num() == 1; }));

	EXPECT_EQ(Types, std::vector{TandemObjectType::Avatar});
	EXPECT_TRUE((Application->Updates[0] == Zef::FPackingOptions{true, false}));
	// The conversion back is tested on its own; through it every field of the mesh is compared.
	FZEFJointAnimation Whole;
	Whole.Mesh = Meshes[0];
	ZefTandemCore::JointAnimation Converted;
	ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(Whole, Converted);
	EXPECT_TRUE(Converted.Record->Mesh == *LinkTest::SampleMesh());
}

TEST_F(ClientComponent, HandsOverTheFieldsWhereTheEditorReadsThem)
{
	Serve();
	Application->OnUpdate = [this](Zef::FClientId Id)
	{ Application->Server->SendSurfaceMesh(Id, Zef::EObjectType::Garment, LinkTest::SampleMesh()); };
	Client->SendData(TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions());
	ASSERT_TRUE(Until([&] { return Meshes.Num() == 1; }));

	const FZEFSurfaceMesh& Mesh = Meshes[0];
	EXPECT_EQ(Mesh.Surfaces[1].Name, FString(TEXT("R\u00fccken")));
	EXPECT_EQ(Mesh.Surfaces[1].VertexOffset, 3);
	EXPECT_EQ(Mesh.Surfaces[0].SurfaceMode, 1);
	EXPECT_EQ(Mesh.Surfaces[0].Sections[0].MaterialIndex, 7);
	EXPECT_EQ(Mesh.Surfaces[1].Sections[0].Indices, (TArray<int32>{0, 2, 1, 1, 2, 3, 0}));
	EXPECT_EQ(Mesh.Joints[2].Name, FString(TEXT("Head")));
	EXPECT_EQ(Mesh.Joints[2].ParentIndex, 1);
	EXPECT_EQ(Mesh.Joints[2].Transform.GetTranslation(), FVector3f(1, 2, 3));
	ASSERT_EQ(Mesh.VertexInfluences.Num(), 7);
	EXPECT_EQ(Mesh.VertexInfluences[1].Influences.Num(), 2);
	EXPECT_EQ(Mesh.VertexInfluences[1].Influences[1].BoneIndex, 2);
	EXPECT_EQ(Mesh.VertexInfluences[1].Influences[1].Weight, 0.25f);
	EXPECT_EQ(Mesh.VertexInfluences[2].Influences.Num(), 0);
	TArray<int32> Keys;
	Mesh.Materials.GetKeys(Keys);
	EXPECT_EQ(Keys, (TArray<int32>{9, 7}));
	const FZEFMaterial& Cloth = Mesh.Materials.FindChecked(7);
	EXPECT_EQ(Cloth.Id, 12);
	EXPECT_TRUE(Cloth.bUseTransparency);
	EXPECT_EQ(Cloth.Expressions.FindChecked(0).TextureId, 100);
	EXPECT_EQ(Cloth.Expressions.FindChecked(3).Scalars.FindChecked(1), 0.25f);
	EXPECT_EQ(Mesh.Materials.FindChecked(9).SubstanceAssetPath, FString(TEXT("/Game/S/Leather.Leather")));
	EXPECT_EQ(Mesh.Textures.FindChecked(50).Format, 1);
	EXPECT_EQ(Mesh.Textures.FindChecked(100).Pixels, (TArray<uint8>{1, 2, 3, 4, 5, 6, 7, 8}));
	EXPECT_EQ(Mesh.Textures.FindChecked(51).Format, -1);
}

TEST_F(ClientComponent, HandsOverAJointAnimation)
{
	Serve();
	Application->OnAnimation = [this](Zef::FClientId Id, const Zef::FObjectTypeInfo&)
	{ Application->Server->SendJointAnimation(Id, Zef::EObjectType::Avatar, LinkTest::SampleAnimation()); };
	EXPECT_TRUE(Client->SendData(TandemMessage::RequestAnimation, ZefTandemCore::ObjectTypeInfo{4, 1},
		ZefTandemCore::PackingOptions{false, true}));
	ASSERT_TRUE(Until([&] { return Animations.Num() == 1; }));

	EXPECT_EQ(Application->AnimationInfos[0].ObjectType, Zef::EObjectType::Avatar);
	EXPECT_EQ(Application->AnimationInfos[0].AnimationKind, Zef::EAnimationKind::JointAnimation);
	EXPECT_EQ(Types, std::vector{TandemObjectType::Avatar});
	ZefTandemCore::JointAnimation Converted;
	ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(Animations[0], Converted);
	EXPECT_TRUE(*Converted.Record == *LinkTest::SampleAnimation());
}

TEST_F(ClientComponent, HandsOverAMeshSequence)
{
	Serve();
	Application->OnAnimation = [this](Zef::FClientId Id, const Zef::FObjectTypeInfo&)
	{
		const auto Source = [](std::uint32_t Index) -> std::shared_ptr<const Zef::FMeshSequenceFrame>
		{ return Index == 3 ? nullptr : LinkTest::SampleFrame(static_cast<float>(Index), Index * 0.5); };
		Application->Server->SendMeshSequence(Id, Zef::EObjectType::Garment, LinkTest::SampleMesh(), Source);
	};
	Client->SendData(
		TandemMessage::RequestAnimation, ZefTandemCore::ObjectTypeInfo{2, 0}, ZefTandemCore::PackingOptions());
	ASSERT_TRUE(Until([&] { return Frames.Num() == 1; }));

	EXPECT_EQ(Types, std::vector{TandemObjectType::Garment});
	EXPECT_EQ(Meshes[0].Surfaces.Num(), 2);
	ASSERT_EQ(Frames[0].Num(), 3);
	EXPECT_EQ(Frames[0][2].Time, 1.0);
	EXPECT_EQ(Frames[0][2].Positions[6], FVector3f(6, 0, 2));
	EXPECT_EQ(Frames[0][2].Normals.Num(), 7);
	EXPECT_EQ(Frames[0][2].Tangents.Num(), 7);
}

TEST_F(ClientComponent, HandsOverTheAvailability)
{
	Serve();
	EXPECT_TRUE(Client->SendData(TandemMessage::RequestAvailability));
	ASSERT_TRUE(Until([&] { return !Availabilities.empty(); }));
	EXPECT_FALSE(Availabilities[0].bFlag0);
	EXPECT_TRUE(Availabilities[0].bGarmentHasAnimation);
	EXPECT_FALSE(Availabilities[0].bFlag2);
	EXPECT_TRUE(Availabilities[0].bAvatarHasAnimation);
	EXPECT_TRUE(Availabilities[0].bAvatarHasSkeleton);
}

TEST_F(ClientComponent, SendsTheSwitchAndAnAnimation)
{
	Serve();
	FZEFJointAnimation Animation;
	Animation.Mesh.Joints.AddDefaulted_GetRef().ParentIndex = -1;
	Animation.Mesh.Joints[0].Name = TEXT("Root");
	FZEFJointSequenceFrame& Frame = Animation.Sequence.Frames.AddDefaulted_GetRef();
	Frame.Joints = Animation.Mesh.Joints;
	ZefTandemCore::JointAnimation Converted;
	ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(Animation, Converted);

	EXPECT_TRUE(Client->SendData(TandemMessage::Enable, true));
	EXPECT_TRUE(Client->SendData(TandemMessage::SendJointAnimation, ZefTandemCore::ObjectTypeInfo{4, 1}, Converted));
	ASSERT_TRUE(Until([&] { return Application->SentAnimations.size() == 1; }));

	EXPECT_EQ(Application->Enables, std::vector<bool>{true});
	EXPECT_TRUE(*Application->SentAnimations[0] == *Converted.Record);
}

TEST_F(ClientComponent, RefusesArgumentsThatAreNotTheMessages)
{
	Serve();
	EXPECT_FALSE(Client->SendData(TandemMessage::RequestUpdate));
	EXPECT_FALSE(Client->SendData(TandemMessage::RequestAvailability, true));
	EXPECT_FALSE(Client->SendData(TandemMessage::Enable, ZefTandemCore::PackingOptions()));
	EXPECT_FALSE(Client->SendData(
		TandemMessage::RequestUpdate, ZefTandemCore::ObjectTypeInfo{4, 1}, ZefTandemCore::PackingOptions()));
	EXPECT_FALSE(Client->SendData(
		TandemMessage::RequestAnimation, ZefTandemCore::ObjectTypeInfo(), ZefTandemCore::PackingOptions()));
	Log().ExpectError("There is no animation");
	EXPECT_FALSE(Client->SendData(
		TandemMessage::SendJointAnimation, ZefTandemCore::ObjectTypeInfo{4, 1}, ZefTandemCore::JointAnimation()));
}

TEST_F(ClientComponent, TellsAtALaterTickThatNobodyIsThere)
{
	Client->SendData(TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions());
	EXPECT_TRUE(Connections.empty());
	ASSERT_TRUE(Until([&] { return !Connections.empty(); }));
	EXPECT_EQ(Connections, std::vector<bool>{false});
	EXPECT_GE(Log().CountContaining("No garment application serves"), 1);
}

TEST_F(ClientComponent, TellsTheLossOnceAndFindsTheNextApplication)
{
	Serve();
	Application.reset();
	ASSERT_TRUE(Until([&] { return Connections.size() == 2; }));
	Serve();
	EXPECT_EQ(Connections, (std::vector<bool>{true, false, true}));
}

TEST_F(ClientComponent, FiresNothingWithoutTicks)
{
	Serve();
	Client->SendData(TandemMessage::RequestAvailability);
	ASSERT_TRUE(LinkTest::Until(nullptr, Application.get(), [&] { return Application->Availabilities == 1; }));
	EXPECT_TRUE(Availabilities.empty());
	Scene->RemoveComponent(Client);
	TickWorld();
	EXPECT_TRUE(Availabilities.empty());
	Scene->AddComponent(Client, FTransform::Identity);
	EXPECT_TRUE(Until([&] { return Availabilities.size() == 1; }));
}

TEST_F(ClientComponent, FiresNothingAfterDestroyAlsoFromInsideADelegate)
{
	Serve();
	Client->OnAvailabilityReceived.AddLambda([this](const ZefTandemCore::TandemAvailability&) { Client->Destroy(); });
	Client->SendData(TandemMessage::RequestAvailability);
	Client->SendData(TandemMessage::RequestAvailability);
	ASSERT_TRUE(LinkTest::Until(nullptr, Application.get(), [&] { return Application->Availabilities == 2; }));
	ASSERT_TRUE(Until([&] { return !Availabilities.empty(); }));
	Application.reset();
	TickWorld();

	EXPECT_EQ(Availabilities.size(), 1u);
	EXPECT_EQ(Connections, std::vector<bool>{true});
	EXPECT_FALSE(Client->SendData(TandemMessage::RequestAvailability));
}

TEST_F(ClientComponent, DeliversNothingInsideADelegateThatTicksTheWorld)
{
	Serve();
	int Depth = 0;
	int Deepest = 0;
	Client->OnAvailabilityReceived.AddLambda(
		[&](const ZefTandemCore::TandemAvailability&)
		{
			Deepest = std::max(Deepest, ++Depth);
			TickWorld();
			--Depth;
		});
	Client->SendData(TandemMessage::RequestAvailability);
	Client->SendData(TandemMessage::RequestAvailability);
	ASSERT_TRUE(Until([&] { return Availabilities.size() == 2; }));
	EXPECT_EQ(Deepest, 1);
}

TEST_F(ClientComponent, DropsABadMeshLogsOneErrorAndTellsIt)
{
	Serve();
	Application->OnUpdate = [this](Zef::FClientId Id)
	{
		auto Bad = LinkTest::SampleMesh();
		Bad->Surfaces[0].Positions[1].X = std::numeric_limits<float>::infinity();
		Application->Server->SendSurfaceMesh(Id, Zef::EObjectType::Avatar, Bad);
		Application->Server->SendSurfaceMesh(Id, Zef::EObjectType::Garment, LinkTest::SampleMesh());
	};
	Log().ExpectError("NotFinite (415) at /Surfaces/0/Positions/1/X");
	Client->SendData(TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions());
	ASSERT_TRUE(Until([&] { return Meshes.Num() == 1; }));

	EXPECT_EQ(Types, std::vector{TandemObjectType::Garment});
	ASSERT_EQ(Faults.Num(), 1);
	EXPECT_TRUE(Faults[0].Contains(TEXT("/Surfaces/0/Positions/1/X")));
	EXPECT_EQ(Connections, std::vector<bool>{true});
}

TEST_F(ClientComponent, LogsWhyTheLinkIsLostAndWhatToDo)
{
	Serve();
	Application.reset();
	ASSERT_TRUE(Until([&] { return Connections.size() == 2; }));
	EXPECT_EQ(Log().CountContaining("The garment application was closed. Start it again when you need it"), 1);
}

TEST_F(ClientComponent, TellsTheLossInTheMiddleOfAnUpdateOnceAndTakesTheNext)
{
	using namespace LinkTest;
	auto Raw = std::make_unique<FRawApplication>(Endpoint);
	Raw->Welcome({2, "raw application", 16 << 20, 4 << 20});
	ASSERT_TRUE(Until([&] { return Connections.size() == 1; }));
	Client->SendData(TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions());
	const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(Zef::EObjectType::Avatar, SampleMesh());
	Raw->Send({Prefix(Zef::EFrame::Item, 1), Item.Header});
	const Zef::FBytes Payload = PayloadOf(Item);
	Raw->Send({Prefix(Zef::EFrame::Piece, 1, 0), Zef::FBytes(Payload.begin(), Payload.begin() + 100)});
	Raw->ReceiveFrame(Zef::EFrame::Credit);
	Raw.reset();
	ASSERT_TRUE(Until([&] { return Connections.size() == 2; }));
	EXPECT_EQ(Meshes.Num(), 0);

	Serve();
	Application->OnUpdate = [this](Zef::FClientId Id) {
		Application->Server->SendUpdate(Id, {{Zef::EObjectType::Avatar, SampleMesh()}});
	};
	Client->SendData(TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions());
	ASSERT_TRUE(Until([&] { return Meshes.Num() == 1; }));
	EXPECT_EQ(Connections, (std::vector<bool>{true, false, true}));
}

TEST_F(ClientComponent, ReusesTheMemoryOfAnUpdateForTheNext)
{
	Serve();
	const auto Mesh = LinkTest::StripMesh(50'000);
	std::vector<const void*> Places;
	Client->OnSurfaceMeshReceived.AddLambda([&](const TandemObjectType&, const FZEFSurfaceMesh& Received)
		{ Places.push_back(Received.Surfaces[0].Sections[0].Indices.GetData()); });
	Application->OnUpdate = [&](Zef::FClientId Id)
	{ Application->Server->SendSurfaceMesh(Id, Zef::EObjectType::Garment, Mesh); };
	for (std::size_t Update = 1; Update <= 5; ++Update)
	{
		Client->SendData(TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions());
		ASSERT_TRUE(Until([&] { return Places.size() == Update; }));
	}
	EXPECT_EQ(Places, std::vector<const void*>(5, Places[0]));
}
} // namespace
