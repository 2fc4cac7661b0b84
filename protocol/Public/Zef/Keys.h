// SPDX-License-Identifier: MIT
/** Keys of a remote link: two files that are made together, one for each end, readable by their user alone. */
#pragma once

#include "Zef/Result.h"

#include <cstdint>
#include <string>

namespace Zef
{

/** Environment variable that names the key file of this end; a path given to the program or library goes before it. */
inline constexpr const char* KeysVariable = "ZEF_TANDEM_KEYS";

/** Which end of the link a key file is for. */
enum class ELinkEnd : std::uint8_t
{
	Application,
	Editor
};

/** CURVE keys of one end, in ZeroMQ's text form of 40 characters. */
struct FLinkKeys
{
	std::string PublicKey;
	std::string SecretKey;
	/** Public key of the one end that is admitted at the other side. */
	std::string OtherPublicKey;
};

/** The two files of a pair. */
struct FKeyFiles
{
	std::string Application;
	std::string Editor;
};

/** Names of the files of a pair: "<Name>.application.keys" and "<Name>.editor.keys". */
FKeyFiles KeyFilesOf(const std::string& Name);

/**
 * Makes a pair and writes its two files with mode 0600; a file that is there is never overwritten.
 * @return KeysRefused with the file and the reason; then neither file is left behind
 */
TResult<FKeyFiles> MakeKeyFiles(const std::string& Name);

/**
 * Reads the file of one end.
 * @return KeysRefused when it cannot be read, belongs to another user, is open to group or others, is no key file, or
 * is the file of the other end
 */
TResult<FLinkKeys> LoadKeys(const std::string& Path, ELinkEnd End);

/** Path of the key file: Path itself when it is not empty, otherwise what $ZEF_TANDEM_KEYS says; empty for none. */
std::string KeyFileOr(const std::string& Path);

} // namespace Zef
