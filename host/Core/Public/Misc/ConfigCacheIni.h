// SPDX-License-Identifier: MIT
/** Settings in ini files. */
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreGlobals.h"

/**
 * The ini files of the program, read when they are first asked for and kept in memory.
 *
 * A file of the project's saved configuration stands on two others: Base<Name>.ini of the engine and Default<Name>.ini
 * of the project. Reading sees all three, the saved one on top; writing changes the saved one only, and no other file
 * is touched. Any other file stands alone. Sections and keys ignore case. Game thread only.
 */
class CORE_API FConfigCacheIni
{
public:
	FConfigCacheIni();
	~FConfigCacheIni();
	UE_NONCOPYABLE(FConfigCacheIni);

	// A getter answers false, and leaves Value as it was, when the section or the key is missing. Of several values of
	// one key the last counts, but for GetArray(). A number is read as far as it goes, 0 when it is none.

	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);
	/** "True", "Yes", "On" and numbers other than 0 are true, in any case; everything else is false. */
	bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename);
	bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename);
	bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename);
	bool GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename);
	/** All values of a key, in order; empties the array first. @return their number */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& out_Arr, const FString& Filename);
	/** Whether the section stands in the file or in one below it. */
	bool DoesSectionExist(const TCHAR* Section, const FString& Filename);

	// A setter makes its value the only one. The file is written by Flush().

	void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename);
	/** "True" or "False". */
	void SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename);
	void SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename);
	void SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename);
	void SetDouble(const TCHAR* Section, const TCHAR* Key, double Value, const FString& Filename);
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename);
	/** Takes a key out of the file; a value below shows again. @return whether the file had the key */
	bool RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename);
	/** Takes a section out of the file. @return whether the file had it */
	bool EmptySection(const TCHAR* Section, const FString& Filename);

	/**
	 * Writes files that were changed: beside the old file first, which is then replaced, so that a failure leaves the
	 * old file whole. Folders are made as needed. What cannot be written is logged and stays changed.
	 *
	 * @param bRemoveFromCache  whether written and unchanged files are read anew when they are next asked for
	 * @param Filename          one file; all of them when empty
	 */
	void Flush(bool bRemoveFromCache, const FString& Filename = TEXT(""));

private:
	struct FFiles;
	/** Owned. */
	FFiles* Files;
};
