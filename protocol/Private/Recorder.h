// SPDX-License-Identifier: MIT
/** Writes a recording while a link runs. */
#pragma once

#include "RecordingFile.h"
#include "Zef/Result.h"

#include <chrono>
#include <cstdio>
#include <memory>
#include <mutex>
#include <span>
#include <string>

namespace Zef
{

/**
 * Writes beside its target and puts the file in place at the end; without a good end there is no file. Every call may
 * come from any thread. After the first failure nothing more is written, and what was written is removed.
 */
class FRecorder
{
public:
	/** @return RecordingStopped when no file can be made there */
	static TResult<std::unique_ptr<FRecorder>> Open(const std::string& Path);

	/** Removes what was written, unless Finish has put it in place. */
	~FRecorder();

	FRecorder(const FRecorder&) = delete;
	FRecorder& operator=(const FRecorder&) = delete;

	void Connected(std::uint16_t ProtocolVersion, const std::string& Program);
	void Request(FByteView Header);
	void Message(std::span<const FByteView> Parts);
	void Lost(const std::string& Reason);

	/** The failure, once; code None otherwise. */
	FLinkFault TakeFailure();

	/**
	 * Writes the end, makes sure that everything is on the disk, and renames the file to its target.
	 * @return RecordingStopped when that fails, or when writing failed before; code None also when called again
	 */
	FLinkFault Finish();

private:
	FRecorder(std::string InTarget, std::string InAside, std::FILE* InFile);

	void Write(ERecord Kind, std::uint16_t Version, std::span<const FByteView> Parts);
	void Put(FByteView Bytes);
	void Fail(const std::string& What);

	std::mutex Mutex;
	const std::string Target;
	const std::string Aside;
	std::FILE* File; // null after the end
	FLinkFault Failure;
	bool bFailureTaken = false;
	bool bFinished = false;
	std::uint64_t Count = 0;
	const std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
};

} // namespace Zef
