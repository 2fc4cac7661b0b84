// SPDX-License-Identifier: MIT
#include "JsonReader.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace Host
{
namespace
{
const FJson& EmptyObject()
{
	static const FJson Empty = FJson::object();
	return Empty;
}

std::string NumberText(float Value)
{
	const std::string Text = FJson(Value).dump();
	return Text.ends_with(".0") ? Text.substr(0, Text.size() - 2) : Text;
}
} // namespace

FJsonReader::FJsonReader(const FJson& InNode, std::string InPath, FJsonFault& InFault)
	: Node(InNode.is_object() ? InNode : EmptyObject())
	, Path(std::move(InPath))
	, Fault(InFault)
{
	if (!InNode.is_object())
	{
		Fault.Report(Path, "an object is needed");
	}
}

void FJsonReader::AllowOnly(std::initializer_list<const char*> Keys) const
{
	for (const auto& Member : Node.items())
	{
		const bool bKnown = std::any_of(
			Keys.begin(), Keys.end(), [&Member](const char* Key) { return std::string_view(Key) == Member.key(); });
		if (!bKnown)
		{
			Fault.Report(PathOf(Member.key()), "this key is not known");
		}
	}
}

void FJsonReader::Require(const char* Key) const
{
	if (!Find(Key))
	{
		Fault.Report(PathOf(Key), "this key is missing");
	}
}

const FJson* FJsonReader::Find(const char* Key) const
{
	const auto Found = Node.find(Key);
	return Found == Node.end() ? nullptr : &*Found;
}

void FJsonReader::Read(const char* Key, bool& Value) const
{
	if (const FJson* Found = Find(Key))
	{
		if (!Found->is_boolean())
		{
			Fault.Report(PathOf(Key), "true or false is needed");
			return;
		}
		Value = Found->get<bool>();
	}
}

void FJsonReader::Read(const char* Key, float& Value, float Min, float Max) const
{
	if (const FJson* Found = Find(Key))
	{
		const double Number = Found->is_number() ? Found->get<double>() : NAN;
		if (!(Number >= Min && Number <= Max))
		{
			Fault.Report(PathOf(Key), "a number from " + NumberText(Min) + " to " + NumberText(Max) + " is needed");
			return;
		}
		Value = float(Number);
	}
}

void FJsonReader::Read(const char* Key, FLinearColor& Value) const
{
	const FJson* Found = Find(Key);
	if (!Found)
	{
		return;
	}
	float Channels[4] = {0.0f, 0.0f, 0.0f, 1.0f};
	bool bValid = Found->is_array() && (Found->size() == 3 || Found->size() == 4);
	for (size_t Channel = 0; bValid && Channel < Found->size(); ++Channel)
	{
		const FJson& Number = (*Found)[Channel];
		bValid = Number.is_number() && Number.get<double>() >= 0.0 && std::isfinite(Number.get<float>());
		Channels[Channel] = bValid ? Number.get<float>() : 0.0f;
	}
	if (!bValid)
	{
		Fault.Report(PathOf(Key), "a colour is needed: three or four numbers of at least 0");
		return;
	}
	Value = FLinearColor(Channels[0], Channels[1], Channels[2], Channels[3]);
}

void FJsonReader::Read(const char* Key, std::string& Value) const
{
	if (const FJson* Found = Find(Key))
	{
		if (!Found->is_string())
		{
			Fault.Report(PathOf(Key), "a text is needed");
			return;
		}
		Value = Found->get<std::string>();
	}
}

FJsonReader FJsonReader::Child(const char* Key) const
{
	const FJson* Found = Find(Key);
	return FJsonReader(Found ? *Found : EmptyObject(), PathOf(Key), Fault);
}
} // namespace Host
