// SPDX-License-Identifier: MIT
/** Runs a reader process and waits for its answer. */
#pragma once

#include <filesystem>

#include "Files/Process/Answer.h"
#include "Zef/Peer/FilesReader.h"

namespace Zef::Peer
{

/**
 * First argument of a reader; after it object type, file, bytes of memory, seconds of CPU, centimetres per unit of a
 * file that states none, and a fault or nothing.
 */
inline constexpr char ReaderSwitch[] = "--zef-read-model";

/** The descriptor on which a reader answers; its standard output belongs to the libraries. */
inline constexpr int ReaderPipe = 3;

/** The answer of the process; its Error also tells how the process ended when that was no answer. */
FReaderAnswer RunReader(EObjectType Type, const std::filesystem::path& File, const FModelReaderOptions& Options);

} // namespace Zef::Peer
