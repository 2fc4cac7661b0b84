// SPDX-License-Identifier: MIT
/** The project that the editor works on. */
#pragma once

#include <filesystem>
#include <string>

namespace Host
{

/**
 * Makes a project folder ready for use: Config/ with the settings that the plug-in asks of a project where there are
 * none, Content/ and Saved/. What is there already stays as it is.
 *
 * @return an error of one line, empty on success
 */
std::string PrepareProject(const std::filesystem::path& Project);

} // namespace Host
