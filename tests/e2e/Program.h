// SPDX-License-Identifier: MIT
/** Real programs as child processes. */
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

/** A child with its output in a file. Killed at its end when it still runs. */
class FProgram
{
public:
	/** @param Arguments  the program's path first */
	FProgram(const std::vector<std::string>& Arguments, const std::filesystem::path& OutputFile);
	~FProgram();
	FProgram(const FProgram&) = delete;
	FProgram& operator=(const FProgram&) = delete;

	/** Waits for the child's own end. @return its exit status, 128 + signal, or -1 when it did not end in time */
	int Wait(std::chrono::seconds Limit);

	/** Sends a signal and waits for the end. @return as Wait */
	int End(int Signal);

	bool IsRunning();

	/** What it has printed so far. */
	std::string Output() const;

private:
	std::filesystem::path OutputFile;
	pid_t Process = -1;
	int Status = -1;
};
