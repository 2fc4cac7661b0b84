// SPDX-License-Identifier: MIT
/** The cache of ini files and their layers. */

#include "Misc/ConfigCacheIni.h"
#include "CoreGlobals.h"
#include "Host/ConfigDirs.h"
#include "IniFile.h"
#include "Logging/LogMacros.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace fs = std::filesystem;

using Host::FIniFile;

namespace
{

/** Folders of the layers below and of the saved files. */
struct FConfigDirs
{
	std::string Engine;
	std::string Project;
	std::string Saved;
};

FConfigDirs& Dirs()
{
	static FConfigDirs Instance;
	return Instance;
}

std::string ToUtf8(const TCHAR* Text)
{
	return TCHAR_TO_UTF8(Text);
}

FString ToFString(const std::string& Text)
{
	return FString(UTF8_TO_TCHAR(Text.c_str()));
}

std::string FullPath(const std::string& Path)
{
	if (Path.empty())
	{
		return Path;
	}
	std::error_code Error;
	return fs::absolute(fs::path(Path), Error).lexically_normal().string();
}

std::string FullFolder(const FString& Path)
{
	std::string Result = FullPath(ToUtf8(*Path));
	while (Result.size() > 1 && Result.back() == '/')
	{
		Result.pop_back();
	}
	return Result;
}

FIniFile ReadIni(const fs::path& Path)
{
	FIniFile Ini;
	std::ifstream Stream(Path, std::ios::binary);
	if (Stream)
	{
		Ini.Parse(std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>()));
	}
	return Ini;
}

/** Writes beside the target and renames over it. @return an empty text, or what went wrong */
std::string WriteIni(const fs::path& Path, const std::string& Text)
{
	std::error_code Error;
	if (Path.has_parent_path())
	{
		fs::create_directories(Path.parent_path(), Error);
		if (Error)
		{
			return Error.message();
		}
	}
	fs::path Beside = Path;
	Beside += ".tmp";
	{
		std::ofstream Stream(Beside, std::ios::binary | std::ios::trunc);
		Stream << Text;
		Stream.flush();
		if (!Stream)
		{
			const std::string Reason = std::strerror(errno);
			fs::remove(Beside, Error);
			return Reason;
		}
	}
	fs::rename(Beside, Path, Error);
	if (!Error)
	{
		return std::string();
	}
	const std::string Reason = Error.message();
	fs::remove(Beside, Error);
	return Reason;
}

/** One cached file with the files below it. */
class FCachedFile
{
public:
	/** An empty path makes a file that lives in memory. */
	explicit FCachedFile(const std::string& InPath)
		: Path(InPath)
	{
		if (Path.empty())
		{
			return;
		}
		const fs::path Full(Path);
		if (!Dirs().Saved.empty() && Full.parent_path() == fs::path(Dirs().Saved))
		{
			const std::string Name = Full.filename().string();
			AddLower(Dirs().Engine, "Base" + Name);
			AddLower(Dirs().Project, "Default" + Name);
		}
		Top = ReadIni(Full);
	}

	/** All values of a key over all layers; empty when the key is missing or cleared. */
	std::vector<std::string> Values(const std::string& Section, const std::string& Key) const
	{
		std::vector<std::string> Result;
		for (const FIniFile& Ini : Lower)
		{
			Apply(Ini, Section, Key, Result);
		}
		Apply(Top, Section, Key, Result);
		return Result;
	}

	bool HasSection(const std::string& Section) const
	{
		return Top.HasSection(Section) ||
			   std::any_of(Lower.begin(), Lower.end(), [&](const FIniFile& Ini) { return Ini.HasSection(Section); });
	}

	void SetValues(const std::string& Section, const std::string& Key, const std::vector<std::string>& NewValues)
	{
		if (Values(Section, Key) == NewValues)
		{
			return;
		}
		bChanged = true;
		if (!NewValues.empty())
		{
			Top.SetValues(Section, Key, NewValues);
			return;
		}
		Top.RemoveKey(Section, Key);
		if (!Values(Section, Key).empty())
		{
			Top.ClearValues(Section, Key);
		}
	}

	bool RemoveKey(const std::string& Section, const std::string& Key)
	{
		const bool bRemoved = Top.RemoveKey(Section, Key);
		bChanged |= bRemoved;
		return bRemoved;
	}

	bool RemoveSection(const std::string& Section)
	{
		const bool bRemoved = Top.RemoveSection(Section);
		bChanged |= bRemoved;
		return bRemoved;
	}

	/** Writes the file when it was changed. @return whether nothing is left to be written */
	bool Flush()
	{
		if (!bChanged)
		{
			return true;
		}
		if (Path.empty())
		{
			return false;
		}
		const std::string Reason = WriteIni(fs::path(Path), Top.Write());
		if (!Reason.empty())
		{
			UE_LOG(LogTemp, Warning, TEXT("The settings could not be written to '%s': %s"), *ToFString(Path),
				*ToFString(Reason));
			return false;
		}
		bChanged = false;
		return true;
	}

private:
	void AddLower(const std::string& Folder, const std::string& Name)
	{
		if (!Folder.empty())
		{
			Lower.push_back(ReadIni(fs::path(Folder) / Name));
		}
	}

	/** What the entries of one file make of the values that the files below it gave. */
	static void Apply(
		const FIniFile& Ini, const std::string& Section, const std::string& Key, std::vector<std::string>& Values)
	{
		bool bReplaced = false;
		for (FIniFile::FEntry& Entry : Ini.Entries(Section))
		{
			if (!Host::EqualsIgnoringCase(Entry.Key, Key))
			{
				continue;
			}
			switch (Entry.Prefix)
			{
				case '!':
					Values.clear();
					break;
				case '-':
					std::erase(Values, Entry.Value);
					break;
				case '+':
					if (std::find(Values.begin(), Values.end(), Entry.Value) == Values.end())
					{
						Values.push_back(std::move(Entry.Value));
					}
					break;
				case '.':
					Values.push_back(std::move(Entry.Value));
					break;
				default:
					if (!bReplaced)
					{
						Values.clear();
						bReplaced = true;
					}
					Values.push_back(std::move(Entry.Value));
			}
		}
	}

	std::string Path;
	std::vector<FIniFile> Lower;
	FIniFile Top;
	bool bChanged = false;
};

} // namespace

struct FConfigCacheIni::FFiles
{
	std::map<std::string, FCachedFile> ByPath;

	FCachedFile& Get(const FString& Filename)
	{
		const std::string Path = FullPath(ToUtf8(*Filename));
		return ByPath.try_emplace(Path, Path).first->second;
	}
};

FConfigCacheIni::FConfigCacheIni()
	: Files(new FFiles())
{
}

FConfigCacheIni::~FConfigCacheIni()
{
	delete Files;
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	const std::vector<std::string> Values = Files->Get(Filename).Values(ToUtf8(Section), ToUtf8(Key));
	if (Values.empty())
	{
		return false;
	}
	Value = ToFString(Values.back());
	return true;
}

bool FConfigCacheIni::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = Text == TEXT("True") || Text == TEXT("Yes") || Text == TEXT("On") || FCString::Atod(*Text) != 0.0;
	return true;
}

bool FConfigCacheIni::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atoi(*Text);
	return true;
}

bool FConfigCacheIni::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atof(*Text);
	return true;
}

bool FConfigCacheIni::GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atod(*Text);
	return true;
}

int32 FConfigCacheIni::GetArray(
	const TCHAR* Section, const TCHAR* Key, TArray<FString>& out_Arr, const FString& Filename)
{
	out_Arr.Empty();
	for (const std::string& Value : Files->Get(Filename).Values(ToUtf8(Section), ToUtf8(Key)))
	{
		out_Arr.Add(ToFString(Value));
	}
	return out_Arr.Num();
}

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	return Files->Get(Filename).HasSection(ToUtf8(Section));
}

void FConfigCacheIni::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename)
{
	Files->Get(Filename).SetValues(ToUtf8(Section), ToUtf8(Key), {ToUtf8(Value)});
}

void FConfigCacheIni::SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename)
{
	SetString(Section, Key, Value ? TEXT("True") : TEXT("False"), Filename);
}

void FConfigCacheIni::SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%d"), Value), Filename);
}

void FConfigCacheIni::SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), double(Value)), Filename);
}

void FConfigCacheIni::SetDouble(const TCHAR* Section, const TCHAR* Key, double Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), Value), Filename);
}

void FConfigCacheIni::SetArray(
	const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	std::vector<std::string> Values;
	for (const FString& Element : Value)
	{
		Values.push_back(ToUtf8(*Element));
	}
	Files->Get(Filename).SetValues(ToUtf8(Section), ToUtf8(Key), Values);
}

bool FConfigCacheIni::RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename)
{
	return Files->Get(Filename).RemoveKey(ToUtf8(Section), ToUtf8(Key));
}

bool FConfigCacheIni::EmptySection(const TCHAR* Section, const FString& Filename)
{
	return Files->Get(Filename).RemoveSection(ToUtf8(Section));
}

void FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	const std::string Only = FullPath(ToUtf8(*Filename));
	for (auto It = Files->ByPath.begin(); It != Files->ByPath.end();)
	{
		const bool bMeant = Only.empty() || It->first == Only;
		if (bMeant && It->second.Flush() && bRemoveFromCache)
		{
			It = Files->ByPath.erase(It);
		}
		else
		{
			++It;
		}
	}
}

FConfigCacheIni* GConfig = new FConfigCacheIni();

FString GEngineIni;
FString GEditorIni;
FString GEditorPerProjectIni;
FString GEditorLayoutIni;
FString GEditorSettingsIni;
FString GGameIni;

namespace Host
{

void SetConfigDirs(
	const FString& EngineConfigDir, const FString& ProjectConfigDir, const FString& ProjectSavedConfigDir)
{
	Dirs() = FConfigDirs{FullFolder(EngineConfigDir), FullFolder(ProjectConfigDir), FullFolder(ProjectSavedConfigDir)};
	const auto Named = [](const char* Name)
	{ return Dirs().Saved.empty() ? FString() : ToFString(Dirs().Saved + "/" + Name + ".ini"); };
	GEngineIni = Named("Engine");
	GEditorIni = Named("Editor");
	GEditorPerProjectIni = Named("EditorPerProjectUserSettings");
	GEditorLayoutIni = Named("EditorLayout");
	GEditorSettingsIni = Named("EditorSettings");
	GGameIni = Named("Game");
	delete GConfig;
	GConfig = new FConfigCacheIni();
}

} // namespace Host
