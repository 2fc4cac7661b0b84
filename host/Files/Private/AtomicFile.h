// SPDX-License-Identifier: MIT
// A file that appears under its name whole or not at all.
#pragma once

#include "CoreMinimal.h"

#include <cstdio>
#include <string>

namespace Host
{
/** Writes beside the target and renames over it on Commit; without Commit nothing is left behind. */
class FAtomicFile
{
public:
	/** Opens the file beside `Path`; its folder must exist. */
	explicit FAtomicFile(const FString& Path);
	~FAtomicFile();
	UE_NONCOPYABLE(FAtomicFile)

	bool IsOpen() const { return Stream != nullptr; }
	std::FILE* GetStream() const { return Stream; }

	/** Closes the file and puts it in place of the target; false, with the target as it was, when that fails. */
	bool Commit();

	/** What failed last. */
	const FString& GetError() const { return Error; }

private:
	void NoteError(int Code);

	std::string Target;
	std::string Beside;
	std::FILE* Stream = nullptr;
	FString Error;
};
} // namespace Host
