// SPDX-License-Identifier: MIT
#include "FilesFixture.h"

using namespace Zef;
using namespace Zef::Peer;

using ModelTextures = FModelFiles;

namespace
{

/** A triangle whose colour and ORM map is one picture of 2 x 1 pixels with 16 bits: 0102 0304 0506 0708, 01ff 03fe 05fd
 * ffff. */
constexpr char File[] = R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[{"mesh":0}],
	"meshes":[{"primitives":[{"attributes":{"POSITION":0},"material":0}]}],
	"materials":[{"name":"Red leather","alphaMode":"BLEND","pbrMetallicRoughness":{"roughnessFactor":0.5,
		"baseColorFactor":[1,0.5,0.25,0.75],"metallicRoughnessTexture":{"index":0},"baseColorTexture":{"index":0,
		"extensions":{"KHR_texture_transform":{"offset":[0.25,0.5],"scale":[2,3],"rotation":1.57079632679}}}}}],
	"textures":[{"source":0}],"images":[{"uri":"data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAIAAAABEAYAAACksqPJAAAAGUlEQVR4nGNgZGJmYWVj52D8z/yP9e///wATugUmk7OKjQAAAABJRU5ErkJggg=="}],
	"accessors":[{"bufferView":0,"componentType":5126,"count":3,"type":"VEC3"}],
	"bufferViews":[{"buffer":0,"byteLength":36}],
	"buffers":[{"byteLength":36,"uri":"data:application/octet-stream;base64,AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA"}]})";

std::string FromBase64(const std::string& Text)
{
	const std::string Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
	std::string Bytes;
	unsigned Bits = 0;
	int Count = 0;
	for (const char C : Text)
	{
		const std::size_t Digit = Digits.find(C);
		if (Digit == std::string::npos)
		{
			break;
		}
		Bits = (Bits << 6) | static_cast<unsigned>(Digit);
		Count += 6;
		if (Count >= 8)
		{
			Count -= 8;
			Bytes.push_back(static_cast<char>((Bits >> Count) & 0xff));
		}
	}
	return Bytes;
}

const FMaterialExpression& Channel(const FMaterial& Material, std::int32_t Key)
{
	static const FMaterialExpression None;
	for (const auto& [Existing, Expression] : Material.Expressions)
	{
		if (Existing == Key)
		{
			return Expression;
		}
	}
	return None;
}

} // namespace

TEST_F(ModelTextures, KeepBothBytesOfSixteenBitsTheLowOneFirst)
{
	const FLoadResult Result = LoadObject(EObjectType::Prop, {Write("textured.gltf", File)});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	const FTexture& Color = Result.Object->Mesh.Textures.at(0).second;
	EXPECT_EQ(Color.Format, 1);
	EXPECT_EQ(Color.Width, 2);
	EXPECT_EQ(Color.Height, 1);
	EXPECT_EQ(Color.Pixels, (std::vector<std::uint8_t>{0x02, 0x01, 0x04, 0x03, 0x06, 0x05, 0x08, 0x07, 0xff, 0x01, 0xfe,
								0x03, 0xfd, 0x05, 0xff, 0xff}));
}

TEST_F(ModelTextures, AreSplitIntoGreyMapsForRoughnessAndMetallic)
{
	const FLoadResult Result = LoadObject(EObjectType::Garment, {Write("textured.gltf", File)});

	ASSERT_TRUE(Result.Object);
	const auto& Textures = Result.Object->Mesh.Textures;
	ASSERT_EQ(Textures.size(), 3u);
	const FMaterial& Material = Result.Object->Mesh.Materials.at(0).second;
	EXPECT_EQ(Channel(Material, MaterialChannel::Roughness).TextureId, 100001);
	EXPECT_EQ(Textures[1].first, 100001);
	EXPECT_EQ(Textures[1].second.Pixels, (std::vector<std::uint8_t>{0x04, 0x03, 0x04, 0x03, 0x04, 0x03, 0xff, 0xff,
											 0xfe, 0x03, 0xfe, 0x03, 0xfe, 0x03, 0xff, 0xff}));
	EXPECT_EQ(Channel(Material, MaterialChannel::Metallic).TextureId, 100002);
	EXPECT_EQ(Textures[2].second.Pixels[0], 0x06);
}

TEST_F(ModelTextures, StandInChannelsWithAllScalarsThatTheEditorReads)
{
	const FLoadResult Result = LoadObject(EObjectType::Garment, {Write("textured.gltf", File)});

	ASSERT_TRUE(Result.Object);
	const FMaterial& Material = Result.Object->Mesh.Materials.at(0).second;
	using FScalars = std::vector<std::pair<std::int32_t, float>>;
	EXPECT_EQ(Material.MaterialKind, 4); // leather, by its name
	EXPECT_TRUE(Material.bUseTransparency);
	EXPECT_EQ(Channel(Material, MaterialChannel::BaseColor).Vectors.at(0).second, (FVec4{1, 0.5f, 0.25f, 0.75f}));
	EXPECT_EQ(Channel(Material, MaterialChannel::Roughness).Scalars, (FScalars{{0, 0.5f}, {1, 0.5f}, {3, 1.0f}}));
	EXPECT_EQ(Channel(Material, MaterialChannel::Metallic).Scalars, (FScalars{{0, 1.0f}, {1, 1.0f}}));
	EXPECT_EQ(Channel(Material, MaterialChannel::Specular).Scalars, (FScalars{{0, 0.0f}, {1, 0.5f}}));
	EXPECT_EQ(Channel(Material, MaterialChannel::Opacity).Scalars, (FScalars{{0, 1.0f}, {1, 0.75f}}));
}

TEST_F(ModelTextures, ArePlacedAsTheTextureTransformSays)
{
	const FLoadResult Result = LoadObject(EObjectType::Garment, {Write("textured.gltf", File)});

	ASSERT_TRUE(Result.Object);
	const FTransform Placement =
		Channel(Result.Object->Mesh.Materials.at(0).second, MaterialChannel::BaseColor).UVTransform;
	EXPECT_EQ(Placement.Translation, (FVec3{0.25f, 0.5f, 0}));
	EXPECT_EQ(Placement.Scale, (FVec3{2, 3, 1}));
	EXPECT_NEAR(Placement.Rotation.Z, -0.70710678f, 1e-6f);
	EXPECT_NEAR(Placement.Rotation.W, 0.70710678f, 1e-6f);
}

TEST_F(ModelTextures, OfJpegFilesBesideAnObjFileAreRead)
{
	// 8 x 8 pixels of about (200, 100, 50).
	Write("flat.jpg",
		FromBase64("/9j/4AAQSkZJRgABAQAAAQABAAD/2wBDAAMCAgMCAgMDAwMEAwMEBQgFBQQEBQoHBwYIDAoMDAsKCwsNDhIQDQ4RDg"
				   "sLEBYQERMUFRUVDA8XGBYUGBIUFRT/2wBDAQMEBAUEBQkFBQkUDQsNFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQU"
				   "FBQUFBQUFBQUFBQUFBQUFBQUFBQUFBT/wAARCAAIAAgDAREAAhEBAxEB/8QAFAABAAAAAAAAAAAAAAAAAAAABP/EAB"
				   "QQAQAAAAAAAAAAAAAAAAAAAAD/xAAVAQEBAAAAAAAAAAAAAAAAAAAHCP/EABQRAQAAAAAAAAAAAAAAAAAAAAD/2gAM"
				   "AwEAAhEDEQA/ACA9SD//2Q=="));
	Write("m.mtl", "newmtl cloth\nKd 1 1 1\nmap_Kd flat.jpg\n");
	const FLoadResult Result = LoadObject(EObjectType::Prop,
		{Write("t.obj",
			"mtllib m.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0 0\nvt 1 0\nvt 0 1\nusemtl cloth\nf 1/1 2/2 3/3\n")});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	ASSERT_EQ(Result.Object->Mesh.Textures.size(), 1u);
	const FTexture& Texture = Result.Object->Mesh.Textures[0].second;
	EXPECT_EQ(Texture.Format, 0);
	ASSERT_EQ(Texture.Pixels.size(), 8u * 8 * 4);
	EXPECT_NEAR(Texture.Pixels[0], 200, 3);
	EXPECT_NEAR(Texture.Pixels[1], 100, 3);
	EXPECT_NEAR(Texture.Pixels[2], 50, 3);
	EXPECT_EQ(Texture.Pixels[3], 255);
}
