// SPDX-License-Identifier: MIT
/** The process in which model files are read, so that a file can break no more than that. */
#pragma once

#include <cstdint>
#include <string>

namespace Zef::Peer
{

/** How LoadObject starts its reader processes, and what it allows each. */
struct FModelReaderOptions
{
	/** A program that calls MaybeRunModelReader first thing. */
	std::string Program = "/proc/self/exe";
	/** Address space; also the most bytes that a reader may hand back. */
	std::uint64_t MemoryBytes = std::uint64_t(6) << 30;
	std::uint32_t CpuSeconds = 120;
	std::uint32_t WallSeconds = 180;
	/** Centimetres per unit of a file that states none; 0: metres or centimetres, whichever gives a likelier size. */
	float UnstatedUnit = 0;
	/** What the reader does in place of reading, for tests: "abort", "hang", "spin", "eat" or "garbage". */
	std::string Fault;
};

/** For all later calls of LoadObject in this process. Thread-safe. */
void SetModelReaderOptions(const FModelReaderOptions& Options);
FModelReaderOptions ModelReaderOptions();

/**
 * Reads a model file and answers through a pipe, when the command line is that of a reader process.
 * @return the exit status for main, or -1 when the program was started for something else
 */
int MaybeRunModelReader(int ArgumentCount, char** Arguments);

} // namespace Zef::Peer
