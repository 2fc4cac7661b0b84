// SPDX-License-Identifier: MIT
#include "Subjects/Subjects.h"

#include "Components/DynamicMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemProgress.h"
#include "Rivals/Rivals.h"
#include "Support/Comparison.h"
#include "Support/EngineSession.h"
#include "Support/Glb.h"
#include "Support/MeshServer.h"
#include "Support/Processes.h"
#include "Support/Samples.h"
#include "ZEFReceivedRecord.h"
#include "ZEFTandemClientComponent.h"
#include "Zef/Decode.h"
#include "Zef/Encode.h"

#include <thread>
#include <unistd.h>

namespace Bench
{

namespace
{

constexpr double RequiredOfImport = 1.0;
constexpr double RequiredOfJoinedImport = 5.0;
constexpr double MemoryLimit = 3.0;
constexpr int ClothSide = 500;
constexpr int TextureSide = 2048;
constexpr int NumTextures = 4;
constexpr int Triangles = NumTextures * 2 * ClothSide * ClothSide;
constexpr int Vertices = NumTextures * (ClothSide + 1) * (ClothSide + 1);
constexpr auto Type = Zef::EObjectType::Garment;

/** A cloth for each texture, together of all the triangles. */
std::shared_ptr<const Zef::FSurfaceMesh> MakeContent()
{
	const auto Mesh = std::make_shared<Zef::FSurfaceMesh>();
	std::int32_t Vertices = 0;
	for (int Index = 1; Index <= NumTextures; ++Index)
	{
		Zef::FSurface Surface = std::move(MakeCloth(ClothSide, ClothSide).Surfaces[0]);
		Surface.VertexOffset = Vertices;
		Surface.Sections[0].MaterialIndex = Index;
		Vertices += static_cast<std::int32_t>(Surface.Positions.size());
		Mesh->Surfaces.push_back(std::move(Surface));
		Mesh->Textures.emplace_back(Index, MakeWeave(TextureSide, static_cast<unsigned>(Index)));
		Zef::FMaterial Material;
		Material.Id = Index;
		Material.Name = "Fabric" + std::to_string(Index);
		Zef::FMaterialExpression BaseColor;
		BaseColor.TextureId = Index;
		BaseColor.Vectors.emplace_back(0, Zef::FVec4{1, 1, 1, 1});
		Material.Expressions.emplace_back(Zef::MaterialChannel::BaseColor, BaseColor);
		Mesh->Materials.emplace_back(Index, Material);
	}
	return Mesh;
}

/** What the conversion has put into the scene. */
FImported DescribeScene(const FZEFTandemEditor& Editor)
{
	FImported Scene;
	for (UPrimitiveComponent* const Component : Editor.GetObjectComponents(static_cast<int32>(Type)))
	{
		auto* const Shown = static_cast<UDynamicMeshComponent*>(Component);
		Scene.Vertices += static_cast<std::size_t>(Shown->GetMesh()->VertexCount());
		Scene.Triangles += static_cast<std::size_t>(Shown->GetMesh()->TriangleCount());
		Scene.Textures += static_cast<std::size_t>(Shown->GetNumMaterials());
	}
	return Scene;
}

struct FCase
{
	std::shared_ptr<const Zef::FSurfaceMesh> Content;
	Zef::FEncodedItem Item;
	std::vector<std::uint8_t> Glb;
	FZEFRecordFactory Factory;
	TSharedPtr<FZEFTandemEditor> Editor;
	std::unique_ptr<IRivalScene> Theirs;
	std::uint64_t Number = 0;

	~FCase()
	{
		DestroyProgress();
		Editor.Reset();
	}

	/** What the client component's tick does with a complete item, from its bytes on. */
	bool Update()
	{
		Zef::FItemDecoder Decoder(Factory, Zef::EReceiver::Editor, Zef::FLimits());
		Zef::EDecode Result = Decoder.Header(++Number, Item.Header);
		std::uint64_t Offset = 0;
		for (const Zef::FChunk& Chunk : Item.Chunks)
		{
			Result = Decoder.Piece(Number, Offset, {Chunk.Data, Chunk.Size});
			Offset += Chunk.Size;
		}
		if (Result != Zef::EDecode::Complete)
		{
			return false;
		}
		const Zef::FDecodedItem Decoded = Decoder.Take();
		Editor->GetClient()->OnSurfaceMeshReceived.Broadcast(static_cast<ZefTandemCore::TandemObjectType>(Type),
			static_cast<const FZEFReceivedRecord&>(*Decoded.Record).Animation.Mesh);
		return true;
	}
};

std::string ToText(const FImported& Scene)
{
	return std::to_string(Scene.Vertices) + " vertices, " + std::to_string(Scene.Triangles) + " triangles, " +
		   std::to_string(Scene.Textures) + " textures" + (Scene.Error.empty() ? "" : " (" + Scene.Error + ")");
}

/** What the editor's process needs for one update over the link. */
struct FMemory
{
	double Before = 0;
	double Peak = 0;
};

/** Starts an editor, has it updated once, and writes what memory that took to the socket. */
void MeasureMemory(const std::string& Endpoint, int Socket)
{
	FMemory Memory;
	if (StartEngine().empty())
	{
		TSharedPtr<FZEFTandemEditor> Editor = OpenEditor(Endpoint);
		bool bConnected = false;
		bool bArrived = false;
		Editor->GetClient()->OnConnectionChanged.AddLambda([&](bool bNow) { bConnected = bNow; });
		Editor->GetClient()->OnSurfaceMeshReceived.AddLambda(
			[&](const ZefTandemCore::TandemObjectType&, const FZEFSurfaceMesh&) { bArrived = true; });
		const auto TickUntil = [](const bool& bDone)
		{
			for (int Frame = 0; Frame < 20000 && !bDone; ++Frame)
			{
				TickEngine(0.001);
				std::this_thread::sleep_for(std::chrono::milliseconds(1));
			}
		};
		TickUntil(bConnected);
		Memory.Before = PresentMemory();
		Editor->GetClient()->SendData(
			ZefTandemCore::TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions{false, false});
		TickUntil(bArrived);
		Memory.Peak = DescribeScene(*Editor).Triangles == Triangles ? PeakMemory() : 0.0;
		DestroyProgress();
		Editor.Reset();
	}
	[[maybe_unused]] const ssize_t Written = write(Socket, &Memory, sizeof(Memory));
}

/** In processes of their own, before this one starts a thread. */
FMemory MeasureMemoryApart()
{
	const std::string Endpoint = FreshEndpoint("road.sock");
	const FChildProcess Server([&](int Socket) { ServeMesh(Endpoint, MakeContent(), Type, Socket); });
	FMemory Memory;
	if (Server.WaitForByte())
	{
		const FChildProcess Client([&](int Socket) { MeasureMemory(Endpoint, Socket); });
		if (read(Client.Socket(), &Memory, sizeof(Memory)) != sizeof(Memory))
		{
			return {};
		}
	}
	return Memory;
}

} // namespace

void MeasureRoad(FSuite& Suite)
{
	const FMemory Memory = MeasureMemoryApart();
	if (const std::string Error = StartEngine(); !Error.empty())
	{
		Suite.Fail(Error);
		return;
	}
	const auto Case = std::make_shared<FCase>();
	Case->Content = MakeContent();
	Case->Item = Zef::EncodeSurfaceMesh(Type, Case->Content);
	Case->Glb = MakeGlb(*Case->Content);
	Case->Editor = OpenEditor(FreshEndpoint("nobody.sock"));
	const FImported Expected{Vertices, Triangles, NumTextures, {}};
	const auto Compare = [&](const char* Name, const FImported& Scene)
	{
		if (ToText(Scene) != ToText(Expected))
		{
			Suite.Fail(std::string(Name) + ": " + ToText(Scene) + "; expected " + ToText(Expected));
		}
	};
	if (!Case->Update())
	{
		Suite.Fail("the decoder refuses the item");
		return;
	}
	Compare("the editor", DescribeScene(*Case->Editor));

	FComparison Comparison;
	Comparison.Title = "From bytes to components in the scene: 2,000,000 triangles, four textures of 2048 x 2048";
	Comparison.Items = Triangles;
	Comparison.Unit = "triangles";
	Comparison.Contenders.push_back(
		{"decode, check, convert, show", [Case] { Case->Update(); }, [] { CollectObjects(); }});
#ifdef ZEF_BENCH_HAS_Assimp
	const auto Release = [Case] { Case->Theirs.reset(); };
	for (const bool bJoin : {false, true})
	{
		const auto Import = [Case, bJoin] { Case->Theirs = ImportAssimp(Case->Glb, "glb", bJoin); };
		Import();
		Compare(bJoin ? "Assimp, joined" : "Assimp", Case->Theirs->Describe());
		Release();
		Comparison.Contenders.push_back(
			{bJoin ? "Assimp, import of the .glb with identical vertices joined" : "Assimp, import of the .glb", Import,
				Release, bJoin ? RequiredOfJoinedImport : RequiredOfImport});
	}
#else
	Comparison.Skipped.push_back("Assimp is not installed.");
#endif
	Suite.Add(std::move(Comparison));

	const auto Payload = static_cast<double>(Case->Item.PayloadBytes);
	if (Memory.Peak == 0)
	{
		Suite.Fail("no update arrived in the process whose memory is measured");
	}
	Suite.Add(FFigure{"payload of the update", Payload * 1e-6, "MB"});
	Suite.Add(FFigure{"resident before the update, the program with its libraries", Memory.Before * 1e-6, "MB"});
	Suite.Add(FFigure{"peak resident memory of the editor's process", Memory.Peak * 1e-6, "MB"});
	Suite.Add(FFigure{"peak of all memory", Memory.Peak / Payload, "times the payload", MemoryLimit});
	Suite.Add(
		FFigure{"peak without what was there before", (Memory.Peak - Memory.Before) / Payload, "times the payload"});
}

} // namespace Bench
