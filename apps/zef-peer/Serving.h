// SPDX-License-Identifier: MIT
/** What every command does that serves editors until it is interrupted. */
#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>

/** One line with the time in front, on the standard output. */
void SayLine(const std::string& Line);

/** Beside its place and renamed over it, so that nobody reads half of it. */
bool WriteReadyFile(const std::filesystem::path& Path, const std::string& Endpoint);

/** Calls a function at an interrupt or a request to terminate; a thread of its own waits for the signal. */
class FSignalWatch
{
public:
	/** Before any other thread is made: they inherit that these signals are not for them. */
	static void BlockSignals();

	/** @param InStop  called from the thread, at most once */
	explicit FSignalWatch(std::function<void()> InStop);
	~FSignalWatch();

	FSignalWatch(const FSignalWatch&) = delete;
	FSignalWatch& operator=(const FSignalWatch&) = delete;

private:
	const std::function<void()> Stop;
	std::atomic<bool> bOver{false};
	std::thread Thread;
};
