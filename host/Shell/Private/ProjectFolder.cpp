// SPDX-License-Identifier: MIT
#include "ProjectFolder.h"

#include <fstream>
#include <system_error>

namespace Host
{

namespace
{

// Sorted translucent pixels let sheer fabrics blend; without them the plug-in cuts them out.
constexpr const char* DefaultEngineIni = "[/Script/Engine.RendererSettings]\n"
										 "r.OIT.SortedPixels=True\n";

} // namespace

std::string PrepareProject(const std::filesystem::path& Project)
{
	std::error_code Error;
	for (const char* const Folder : {"Config", "Content", "Saved"})
	{
		std::filesystem::create_directories(Project / Folder, Error);
		if (Error)
		{
			return "the project folder \"" + (Project / Folder).string() + "\" cannot be made: " + Error.message();
		}
	}
	const std::filesystem::path Ini = Project / "Config" / "DefaultEngine.ini";
	if (!std::filesystem::exists(Ini, Error))
	{
		std::ofstream File(Ini);
		File << DefaultEngineIni;
		if (!File.flush())
		{
			return "\"" + Ini.string() + "\" cannot be written";
		}
	}
	return {};
}

} // namespace Host
