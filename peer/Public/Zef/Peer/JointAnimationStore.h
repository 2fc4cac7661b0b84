// SPDX-License-Identifier: MIT
/** Where a joint animation goes that an editor sends. */
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "Zef/Records.h"

namespace Zef::Peer
{

/** The file that was written, or an error; never both, never neither. */
struct FStoreResult
{
	std::filesystem::path File;
	std::string Error;

	bool Succeeded() const { return Error.empty(); }
};

/** Called on the server's thread; the animation is valid only during the call. */
class IJointAnimationStore
{
public:
	virtual ~IJointAnimationStore() = default;

	virtual FStoreResult Store(const FObjectTypeInfo& Info, const FJointAnimation& Animation) = 0;
};

/**
 * Stores every animation as a binary glTF file of its own below a folder, which is made when it is missing.
 * The names count up and never replace a file that is there.
 */
std::unique_ptr<IJointAnimationStore> MakeGltfJointAnimationStore(const std::filesystem::path& Directory);

} // namespace Zef::Peer
