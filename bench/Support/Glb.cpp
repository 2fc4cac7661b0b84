// SPDX-License-Identifier: MIT
#include "Support/Glb.h"

#include <algorithm>
#include <cstring>
#include <png.h>
#include <string>

namespace Bench
{

namespace
{

/** Compresses 8 bits a channel. */
std::vector<std::uint8_t> EncodePng(const Zef::FTexture& Texture)
{
	png_image Image = {};
	Image.version = PNG_IMAGE_VERSION;
	Image.width = static_cast<png_uint_32>(Texture.Width);
	Image.height = static_cast<png_uint_32>(Texture.Height);
	Image.format = PNG_FORMAT_RGBA;
	Image.flags = PNG_IMAGE_FLAG_FAST;
	png_alloc_size_t Size = PNG_IMAGE_PNG_SIZE_MAX(Image);
	std::vector<std::uint8_t> Bytes(Size);
	if (!png_image_write_to_memory(&Image, Bytes.data(), &Size, 0, Texture.Pixels.data(), 0, nullptr))
	{
		return {};
	}
	Bytes.resize(Size);
	return Bytes;
}

/** The file's binary chunk with the views into it. */
class FBuffer
{
public:
	std::vector<std::uint8_t> Bytes;
	std::string Views;
	std::string Accessors;

	int AddView(const void* Data, std::size_t Size)
	{
		Views += (NumViews == 0 ? "" : ",") + std::string("{\"buffer\":0,\"byteOffset\":") +
				 std::to_string(Bytes.size()) + ",\"byteLength\":" + std::to_string(Size) + "}";
		const auto* First = static_cast<const std::uint8_t*>(Data);
		Bytes.insert(Bytes.end(), First, First + Size);
		Bytes.resize((Bytes.size() + 3) / 4 * 4);
		return NumViews++;
	}

	template <class TElement>
	void AddAccessor(
		const std::vector<TElement>& Array, int ComponentType, const char* Type, const std::string& Extra = "")
	{
		const int View = AddView(Array.data(), Array.size() * sizeof(TElement));
		Accessors += (NumAccessors++ == 0 ? "" : ",") + std::string("{\"bufferView\":") + std::to_string(View) +
					 ",\"componentType\":" + std::to_string(ComponentType) +
					 ",\"count\":" + std::to_string(Array.size()) + ",\"type\":\"" + Type + "\"" + Extra + "}";
	}

private:
	int NumViews = 0;
	int NumAccessors = 0;
};

void AppendChunk(std::vector<std::uint8_t>& File, const char* Type, const void* Data, std::size_t Size, char Padding)
{
	const auto Padded = static_cast<std::uint32_t>((Size + 3) / 4 * 4);
	const std::size_t First = File.size();
	File.resize(First + 8 + Padded, static_cast<std::uint8_t>(Padding));
	std::memcpy(File.data() + First, &Padded, 4);
	std::memcpy(File.data() + First + 4, Type, 4);
	std::memcpy(File.data() + First + 8, Data, Size);
}

std::string BoundsOf(const std::vector<Zef::FVec3>& Positions)
{
	Zef::FVec3 Min = Positions[0];
	Zef::FVec3 Max = Positions[0];
	for (const Zef::FVec3& Each : Positions)
	{
		Min = {std::min(Min.X, Each.X), std::min(Min.Y, Each.Y), std::min(Min.Z, Each.Z)};
		Max = {std::max(Max.X, Each.X), std::max(Max.Y, Each.Y), std::max(Max.Z, Each.Z)};
	}
	const auto Write = [](const Zef::FVec3& Value)
	{ return std::to_string(Value.X) + "," + std::to_string(Value.Y) + "," + std::to_string(Value.Z); };
	return ",\"min\":[" + Write(Min) + "],\"max\":[" + Write(Max) + "]";
}

} // namespace

std::vector<std::uint8_t> MakeGlb(const Zef::FSurfaceMesh& Mesh)
{
	constexpr int Float = 5126;
	constexpr int UnsignedInt = 5125;
	FBuffer Buffer;
	std::string Primitives;
	for (std::size_t Index = 0; Index < Mesh.Surfaces.size(); ++Index)
	{
		const Zef::FSurface& Surface = Mesh.Surfaces[Index];
		const auto Accessor = [First = Index * 5](std::size_t Number) { return std::to_string(First + Number); };
		Primitives += (Index == 0 ? "" : ",") + std::string("{\"attributes\":{\"POSITION\":") + Accessor(0) +
					  ",\"NORMAL\":" + Accessor(1) + ",\"TANGENT\":" + Accessor(2) + ",\"TEXCOORD_0\":" + Accessor(3) +
					  "},\"indices\":" + Accessor(4) + ",\"material\":" + std::to_string(Index) + "}";
		Buffer.AddAccessor(Surface.Positions, Float, "VEC3", BoundsOf(Surface.Positions));
		Buffer.AddAccessor(Surface.Normals, Float, "VEC3");
		std::vector<Zef::FVec4> Tangents;
		Tangents.reserve(Surface.Tangents.size());
		for (const Zef::FVec3& Tangent : Surface.Tangents)
		{
			Tangents.push_back({Tangent.X, Tangent.Y, Tangent.Z, 1.0f});
		}
		Buffer.AddAccessor(Tangents, Float, "VEC4");
		Buffer.AddAccessor(Surface.UVs, Float, "VEC2");
		Buffer.AddAccessor(Surface.Sections[0].Indices, UnsignedInt, "SCALAR");
	}

	std::string Images;
	std::string Textures;
	std::string Materials;
	for (std::size_t Index = 0; Index < Mesh.Textures.size(); ++Index)
	{
		const std::vector<std::uint8_t> Png = EncodePng(Mesh.Textures[Index].second);
		const int View = Buffer.AddView(Png.data(), Png.size());
		const std::string Comma = Index == 0 ? "" : ",";
		const std::string Number = std::to_string(Index);
		Images += Comma + "{\"mimeType\":\"image/png\",\"bufferView\":" + std::to_string(View) + "}";
		Textures += Comma + "{\"source\":" + Number + "}";
		Materials += Comma + "{\"pbrMetallicRoughness\":{\"baseColorTexture\":{\"index\":" + Number + "}}}";
	}
	const std::string Json =
		"{\"asset\":{\"version\":\"2.0\"},\"scene\":0,\"scenes\":[{\"nodes\":[0]}],\"nodes\":[{\"mesh\":0}],"
		"\"meshes\":[{\"primitives\":[" +
		Primitives + "]}],\"buffers\":[{\"byteLength\":" + std::to_string(Buffer.Bytes.size()) +
		"}],\"bufferViews\":[" + Buffer.Views + "],\"accessors\":[" + Buffer.Accessors + "],\"images\":[" + Images +
		"],\"textures\":[" + Textures + "],\"materials\":[" + Materials + "]}";

	std::vector<std::uint8_t> File = {'g', 'l', 'T', 'F', 2, 0, 0, 0, 0, 0, 0, 0};
	AppendChunk(File, "JSON", Json.data(), Json.size(), ' ');
	AppendChunk(File, "BIN\0", Buffer.Bytes.data(), Buffer.Bytes.size(), '\0');
	const auto Total = static_cast<std::uint32_t>(File.size());
	std::memcpy(File.data() + 8, &Total, 4);
	return File;
}

} // namespace Bench
