// SPDX-License-Identifier: MIT
#include "render/SceneShapes.h"

#include <cmath>
#include <cstring>

using namespace Host;

namespace SceneShapes
{

std::shared_ptr<FMeshSnapshot> Ball(float Radius, int Rings)
{
	auto Mesh = std::make_shared<FMeshSnapshot>();
	const int Columns = Rings * 2;
	constexpr float Pi = 3.14159265f;
	for (int Row = 0; Row <= Rings; ++Row)
	{
		for (int Column = 0; Column <= Columns; ++Column)
		{
			const float U = float(Column) / float(Columns), V = float(Row) / float(Rings);
			const float Turn = U * 2.0f * Pi, Down = V * Pi;
			const FFloat3 N{std::sin(Down) * std::cos(Turn), std::sin(Down) * std::sin(Turn), std::cos(Down)};
			Mesh->Normals.push_back(N);
			Mesh->Positions.push_back({N.X * Radius, N.Y * Radius, N.Z * Radius});
			Mesh->Tangents.push_back({-std::sin(Turn), std::cos(Turn), 0.0f, -1.0f});
			Mesh->UVs.push_back({U, V});
		}
	}
	FMeshSection Section;
	for (int Row = 0; Row < Rings; ++Row)
	{
		for (int Column = 0; Column < Columns; ++Column)
		{
			const uint32_t A = uint32_t(Row * (Columns + 1) + Column), B = A + 1, C = A + uint32_t(Columns) + 1,
						   D = C + 1;
			for (uint32_t Index : {A, B, C, B, D, C})
			{
				Section.Indices.push_back(Index);
			}
		}
	}
	Mesh->Sections.push_back(Section);
	return Mesh;
}

std::shared_ptr<FMeshSnapshot> Square(float HalfSize, int Cells)
{
	auto Mesh = std::make_shared<FMeshSnapshot>();
	for (int Row = 0; Row <= Cells; ++Row)
	{
		for (int Column = 0; Column <= Cells; ++Column)
		{
			const float U = float(Column) / float(Cells), V = float(Row) / float(Cells);
			Mesh->Positions.push_back({0.0f, (U * 2.0f - 1.0f) * HalfSize, (1.0f - V * 2.0f) * HalfSize});
			Mesh->Normals.push_back({-1.0f, 0.0f, 0.0f});
			Mesh->Tangents.push_back({0.0f, 1.0f, 0.0f, 1.0f}); // -X x Y is -Z, and V runs down
			Mesh->UVs.push_back({U, V});
		}
	}
	FMeshSection Section;
	for (int Row = 0; Row < Cells; ++Row)
	{
		for (int Column = 0; Column < Cells; ++Column)
		{
			const uint32_t A = uint32_t(Row * (Cells + 1) + Column), B = A + 1, C = A + uint32_t(Cells) + 1, D = C + 1;
			for (uint32_t Index : {A, B, C, B, D, C})
			{
				Section.Indices.push_back(Index);
			}
		}
	}
	Mesh->Sections.push_back(Section);
	return Mesh;
}

std::shared_ptr<FTextureSnapshot> Texture8(int Width, int Height, const std::function<FFloat4(int X, int Y)>& Color)
{
	const size_t Count = size_t(Width) * size_t(Height);
	std::shared_ptr<uint8_t> Pixels(new uint8_t[Count * 4], std::default_delete<uint8_t[]>());
	for (int Y = 0; Y < Height; ++Y)
	{
		for (int X = 0; X < Width; ++X)
		{
			const FFloat4 C = Color(X, Y);
			uint8_t* Out = Pixels.get() + (size_t(Y) * size_t(Width) + size_t(X)) * 4;
			const float Channels[4] = {C.Z, C.Y, C.X, C.W};
			for (int Channel = 0; Channel < 4; ++Channel)
			{
				Out[Channel] = uint8_t(std::lround(std::fmin(std::fmax(Channels[Channel], 0.0f), 1.0f) * 255.0f));
			}
		}
	}
	auto Texture = std::make_shared<FTextureSnapshot>();
	Texture->Width = Width;
	Texture->Height = Height;
	Texture->Layout = ETextureLayout::Bgra8;
	Texture->Pixels = Pixels;
	return Texture;
}

std::shared_ptr<FTextureSnapshot> Flat16(uint16_t Red, uint16_t Green, uint16_t Blue, uint16_t Alpha)
{
	constexpr int Size = 4;
	std::shared_ptr<uint8_t> Pixels(new uint8_t[Size * Size * 8], std::default_delete<uint8_t[]>());
	const uint16_t Pixel[4] = {Red, Green, Blue, Alpha};
	for (int Index = 0; Index < Size * Size; ++Index)
	{
		std::memcpy(Pixels.get() + Index * 8, Pixel, 8);
	}
	auto Texture = std::make_shared<FTextureSnapshot>();
	Texture->Width = Size;
	Texture->Height = Size;
	Texture->Layout = ETextureLayout::Rgba16;
	Texture->Pixels = Pixels;
	return Texture;
}

FObjectSnapshot Placed(std::shared_ptr<FMeshSnapshot> Mesh, const FMaterialSnapshot& Material, const FFloat3& Origin)
{
	FObjectSnapshot Object;
	Object.Mesh = std::move(Mesh);
	Object.Placement.Origin = Origin;
	Object.Materials.push_back(std::make_shared<FMaterialSnapshot>(Material));
	return Object;
}

FSceneSnapshot SceneOf(std::vector<FObjectSnapshot> Objects)
{
	FSceneSnapshot Scene;
	Scene.Objects = std::move(Objects);
	Scene.Camera = FrameBounds(BoundsOf(Scene.Objects), 0.0f, 0.0f, 30.0f, 1.0f);
	Scene.Lights = StudioLights(Scene.Camera);
	Scene.Surroundings.bFloor = false;
	return Scene;
}

FFloat3 MeanColor(const FImage& Image, float Left, float Top, float Right, float Bottom)
{
	double Sum[3] = {0.0, 0.0, 0.0};
	double Count = 0.0;
	for (int Y = int(Top * float(Image.Height)); Y < int(Bottom * float(Image.Height)); ++Y)
	{
		for (int X = int(Left * float(Image.Width)); X < int(Right * float(Image.Width)); ++X)
		{
			for (int Channel = 0; Channel < 3; ++Channel)
			{
				Sum[Channel] += Image.At(X, Y)[Channel];
			}
			Count += 1.0;
		}
	}
	return {float(Sum[0] / Count), float(Sum[1] / Count), float(Sum[2] / Count)};
}

} // namespace SceneShapes
