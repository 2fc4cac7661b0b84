// SPDX-License-Identifier: MIT
#include "Support/Samples.h"

#include "Zef/Encode.h"
#include "Zef/Peer/ProjectSource.h"
#include "Zef/Decode.h"
#include "ZEFReceivedRecord.h"

#include <cmath>
#include <filesystem>
#include <random>

namespace Bench
{

namespace
{

constexpr char ScanFile[] = ZEF_SHARED_DATA "/props/flight-helmet/FlightHelmet.gltf";

Zef::FVec3 Normalized(float X, float Y, float Z)
{
	const float Length = std::sqrt(X * X + Y * Y + Z * Z);
	return {X / Length, Y / Length, Z / Length};
}

} // namespace

Zef::FSurfaceMesh MakeCloth(int Columns, int Rows)
{
	Zef::FSurfaceMesh Mesh;
	Zef::FSurface& Surface = Mesh.Surfaces.emplace_back();
	Surface.Name = "Cloth";
	const auto Vertices = static_cast<std::size_t>(Columns + 1) * static_cast<std::size_t>(Rows + 1);
	for (auto* Array : {&Surface.Positions, &Surface.Normals, &Surface.Tangents})
	{
		Array->reserve(Vertices);
	}
	Surface.UVs.reserve(Vertices);
	for (int Row = 0; Row <= Rows; ++Row)
	{
		for (int Column = 0; Column <= Columns; ++Column)
		{
			const float X = static_cast<float>(Column) * 0.1f;
			const float Y = static_cast<float>(Row) * 0.1f;
			Surface.Positions.push_back({X, Y, std::sin(X) * std::cos(Y)});
			const float SlopeX = std::cos(X) * std::cos(Y);
			const float SlopeY = -std::sin(X) * std::sin(Y);
			Surface.Normals.push_back(Normalized(-SlopeX, -SlopeY, 1.0f));
			Surface.Tangents.push_back(Normalized(1.0f, 0.0f, SlopeX));
			Surface.UVs.push_back({static_cast<float>(Column) / static_cast<float>(Columns),
				static_cast<float>(Row) / static_cast<float>(Rows)});
		}
	}
	Zef::FSection& Section = Surface.Sections.emplace_back();
	Section.MaterialIndex = 1;
	Section.Indices.reserve(static_cast<std::size_t>(Columns) * static_cast<std::size_t>(Rows) * 6);
	for (int Row = 0; Row < Rows; ++Row)
	{
		for (int Column = 0; Column < Columns; ++Column)
		{
			const int First = Row * (Columns + 1) + Column;
			const int Above = First + Columns + 1;
			for (const int Corner : {First, First + 1, Above, First + 1, Above + 1, Above})
			{
				Section.Indices.push_back(Corner);
			}
		}
	}
	Zef::FMaterial Material;
	Material.Id = 1;
	Material.Name = "Cotton";
	Mesh.Materials.emplace_back(1, Material);
	return Mesh;
}

Zef::FTexture MakeWeave(int Side, unsigned Seed)
{
	Zef::FTexture Texture;
	Texture.Format = 0;
	Texture.Width = Side;
	Texture.Height = Side;
	Texture.Pixels.resize(static_cast<std::size_t>(Side) * static_cast<std::size_t>(Side) * 4);
	std::minstd_rand Random(Seed);
	std::size_t Byte = 0;
	for (int Row = 0; Row < Side; ++Row)
	{
		for (int Column = 0; Column < Side; ++Column)
		{
			const unsigned Thread = ((Row >> 2) + (Column >> 2)) % 2 == 0 ? 150u : 110u;
			const unsigned Grain = Random() % 16u;
			Texture.Pixels[Byte++] = static_cast<std::uint8_t>(Thread + Grain);
			Texture.Pixels[Byte++] = static_cast<std::uint8_t>(Thread / 2 + Grain);
			Texture.Pixels[Byte++] = static_cast<std::uint8_t>(Thread / 3 + Grain);
			Texture.Pixels[Byte++] = 255;
		}
	}
	return Texture;
}

void AddSkin(Zef::FSurfaceMesh& Mesh, int Joints, int Influences)
{
	for (int Index = 0; Index < Joints; ++Index)
	{
		Zef::FJoint& Joint = Mesh.Joints.emplace_back();
		Joint.Name = "joint_" + std::to_string(Index);
		Joint.ParentIndex = Index - 1;
		Joint.Transform.Translation = {0, 0, 2};
	}
	std::minstd_rand Random(7);
	std::uint32_t Written = 0;
	for (const Zef::FSurface& Surface : Mesh.Surfaces)
	{
		for (std::size_t Vertex = 0; Vertex < Surface.Positions.size(); ++Vertex)
		{
			Mesh.VertexInfluences.FirstWeight.push_back(Written);
			const int First = static_cast<int>(Random() % static_cast<unsigned>(Joints));
			float Sum = 0.0f;
			for (int Index = 0; Index < Influences; ++Index)
			{
				const float Weight = static_cast<float>(1 + Random() % 1000);
				Mesh.VertexInfluences.Weights.push_back({(First + 3 * Index) % Joints, Weight});
				Sum += Weight;
			}
			for (int Index = 0; Index < Influences; ++Index)
			{
				Mesh.VertexInfluences.Weights[Written + static_cast<std::uint32_t>(Index)].Weight /= Sum;
			}
			Written += static_cast<std::uint32_t>(Influences);
		}
	}
	Mesh.VertexInfluences.FirstWeight.push_back(Written);
}

FZEFSurfaceMesh ToPlugin(const Zef::FSurfaceMesh& Mesh)
{
	// By the link's own road, so that the record is what the editor would have received.
	FZEFRecordFactory Factory;
	Zef::FItemDecoder Decoder(Factory, Zef::EReceiver::Editor, Zef::FLimits());
	const Zef::FEncodedItem Item =
		Zef::EncodeSurfaceMesh(Zef::EObjectType::Prop, std::shared_ptr<const Zef::FSurfaceMesh>(&Mesh, [](auto*) {}));
	Zef::EDecode Result = Decoder.Header(1, Item.Header);
	std::uint64_t Offset = 0;
	for (const Zef::FChunk& Chunk : Item.Chunks)
	{
		Result = Decoder.Piece(1, Offset, {Chunk.Data, Chunk.Size});
		Offset += Chunk.Size;
	}
	if (Result != Zef::EDecode::Complete)
	{
		return {};
	}
	return MoveTemp(static_cast<FZEFReceivedRecord&>(*Decoder.Take().Record).Animation.Mesh);
}

std::optional<Zef::FSurfaceMesh> LoadScan(std::string& OutReason)
{
	if (!std::filesystem::exists(ScanFile))
	{
		OutReason = std::string("there is no ") + ScanFile;
		return std::nullopt;
	}
	Zef::Peer::FLoadResult Loaded = Zef::Peer::LoadObject(Zef::EObjectType::Prop, {ScanFile});
	if (!Loaded.Object)
	{
		OutReason = Loaded.Errors.empty() ? "the scan cannot be read" : Loaded.Errors.front();
		return std::nullopt;
	}
	return std::move(Loaded.Object->Mesh);
}

} // namespace Bench
