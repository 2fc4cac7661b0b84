// SPDX-License-Identifier: MIT
#include <fstream>
#include <iterator>

#include "Files/Gltf/GltfLibrary.h"

#include "Files/Gltf/GltfParts.h"
#include "Files/Model/Readers.h"

namespace Zef::Peer
{

namespace
{

/** A picture that cannot be read costs its map, not the model. */
bool LoadImageOrWarn(tinygltf::Image* Image, const int Index, std::string*, std::string* Warning, int, int,
	const unsigned char* Bytes, int Size, void*)
{
	FTexture Texture;
	const std::string Reason = DecodeImage(Bytes, static_cast<std::size_t>(std::max(Size, 0)), Texture);
	if (!Reason.empty())
	{
		*Warning += "image " + std::to_string(Index) + " is left out: " + Reason + "\n";
		Image->image.clear();
		return true;
	}
	Image->width = Texture.Width;
	Image->height = Texture.Height;
	Image->component = 4;
	Image->bits = Texture.Format == 0 ? 8 : 16;
	Image->image = std::move(Texture.Pixels);
	return true;
}

bool IsFile(const std::string& Path, void*)
{
	std::error_code Ignored;
	return std::filesystem::is_regular_file(Path, Ignored);
}

/** Paths are taken as they stand: nothing in a file of somebody else is expanded. */
std::string SamePath(const std::string& Path, void*)
{
	return Path;
}

bool ReadWhole(std::vector<unsigned char>* Out, std::string* Error, const std::string& Path, void*)
{
	std::ifstream Stream(Path, std::ios::binary);
	Out->assign(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
	if (Out->empty() && Error)
	{
		*Error += Path + " is empty or cannot be read.\n";
	}
	return !Out->empty();
}

bool WriteNothing(std::string*, const std::string&, const std::vector<unsigned char>&, void*)
{
	return false;
}

std::string OneLine(std::string Text)
{
	while (!Text.empty() && (Text.back() == '\n' || Text.back() == ' '))
	{
		Text.pop_back();
	}
	for (char& C : Text)
	{
		C = C == '\n' ? ' ' : C;
	}
	return Text;
}

void TakeImages(tinygltf::Model& File, FModel& Model)
{
	for (tinygltf::Image& Image : File.images)
	{
		FTexture& Texture = Model.Images.emplace_back();
		if (Image.width > 0 && Image.height > 0 && !Image.image.empty())
		{
			Texture.Format = Image.bits == 16 ? 1 : 0;
			Texture.Width = Image.width;
			Texture.Height = Image.height;
			Texture.Pixels = std::move(Image.image);
		}
	}
}

} // namespace

std::string ReadGltf(const std::filesystem::path& Path, FModel& Model)
{
	tinygltf::TinyGLTF Library;
	Library.SetImageLoader(&LoadImageOrWarn, nullptr);
	Library.SetFsCallbacks({&IsFile, &SamePath, &ReadWhole, &WriteNothing, nullptr});
	tinygltf::Model File;
	std::string Error, Warning;
	std::ifstream Stream(Path, std::ios::binary);
	char Magic[4] = {};
	Stream.read(Magic, 4);
	const bool bBinary = std::string(Magic, 4) == "glTF";
	const bool bGood = bBinary ? Library.LoadBinaryFromFile(&File, &Error, &Warning, Path.string())
							   : Library.LoadASCIIFromFile(&File, &Error, &Warning, Path.string());
	if (!bGood)
	{
		Error = OneLine(Error);
		return Error.empty() ? "it is no glTF file." : Error;
	}
	if (!OneLine(Warning).empty())
	{
		Model.Warnings.push_back(OneLine(Warning));
	}
	for (const std::string& Extension : File.extensionsRequired)
	{
		if (Extension != "KHR_texture_transform" && Extension != "KHR_mesh_quantization" &&
			Extension.find("KHR_materials_") != 0 && Extension.find("KHR_lights") != 0)
		{
			return "it needs the extension " + Extension + ", which is not read here.";
		}
	}
	Model.Axes = AxesYUp();
	Model.UnitCentimetres = 100;
	std::string Reason = ReadGltfNodes(File, Model);
	if (Reason.empty())
	{
		Reason = ReadGltfPieces(File, Model);
	}
	if (Reason.empty())
	{
		ReadGltfClips(File, Model);
		ReadGltfMaterials(File, Model);
		TakeImages(File, Model);
	}
	return Reason;
}

} // namespace Zef::Peer
