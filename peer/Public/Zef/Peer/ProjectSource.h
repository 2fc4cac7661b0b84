// SPDX-License-Identifier: MIT
/** Reads model files into objects of a project. */
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

/** An object, perhaps with warnings; or no object and at least one error. Never both, never neither. */
struct FLoadResult
{
	std::optional<FProjectObject> Object;
	std::vector<std::string> Warnings;
	std::vector<std::string> Errors;
};

/**
 * Reads files into one object of the given type, in the engine's units and axes.
 *
 * Several files become one object, their surfaces in the order of the files. A file that cannot be read, or that
 * breaks the library which reads it, is an error that names the file and the reason; then there is no object.
 */
FLoadResult LoadObject(EObjectType Type, const std::vector<std::filesystem::path>& Files);

} // namespace Zef::Peer
