// SPDX-License-Identifier: MIT
// Reading JSON objects whose every key must be known, with the first fault kept.
#pragma once

#include "CoreMinimal.h"
#include "Math/Color.h"

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>

namespace Host
{
/** Keeps members in the order of the file. */
using FJson = nlohmann::ordered_json;

/** The first fault of a file: where it is, as a path of keys, and what is wrong. */
class FJsonFault
{
public:
	/** Notes a fault unless there is one already. */
	void Report(const std::string& Path, const std::string& What)
	{
		if (!bFault)
		{
			bFault = true;
			Text = (Path.empty() ? std::string("/") : Path) + ": " + What;
		}
	}

	explicit operator bool() const { return bFault; }
	const std::string& GetText() const { return Text; }

private:
	bool bFault = false;
	std::string Text;
};

/**
 * One JSON object. Each Read leaves the value as it was when the key is absent and reports a value of the wrong type
 * or range.
 */
class FJsonReader
{
public:
	/** @param Path where the object stands in the file, empty for the whole */
	FJsonReader(const FJson& InNode, std::string InPath, FJsonFault& InFault);

	/** Reports every key that is not in the list. */
	void AllowOnly(std::initializer_list<const char*> Keys) const;

	/** Reports the key when it is absent. */
	void Require(const char* Key) const;

	void Read(const char* Key, bool& Value) const;
	void Read(const char* Key, float& Value, float Min, float Max) const;

	/** Three or four numbers of at least 0, linear; without the fourth, alpha is 1. */
	void Read(const char* Key, FLinearColor& Value) const;
	void Read(const char* Key, std::string& Value) const;

	/** The member as an object; an empty one when the key is absent. */
	FJsonReader Child(const char* Key) const;

	const FJson& GetNode() const { return Node; }
	std::string PathOf(const std::string& Key) const { return Path + "/" + Key; }
	FJsonFault& GetFault() const { return Fault; }

private:
	const FJson* Find(const char* Key) const;

	const FJson& Node;
	std::string Path;
	FJsonFault& Fault;
};
} // namespace Host
