// SPDX-License-Identifier: MIT
#include "UObject/ObjectNames.h"

#include "Templates/TypeHash.h"

#include <unordered_map>

namespace Host
{
namespace
{

struct FKey
{
	const UObject* Outer;
	FName Name;

	bool operator==(const FKey& Other) const { return Outer == Other.Outer && Name == Other.Name; }
};

struct FKeyHash
{
	std::size_t operator()(const FKey& Key) const { return HashCombine(PointerHash(Key.Outer), GetTypeHash(Key.Name)); }
};

/** Never destroyed: objects may outlive the static objects of the program. */
std::unordered_map<FKey, UObject*, FKeyHash>& Table()
{
	static auto* const Map = new std::unordered_map<FKey, UObject*, FKeyHash>();
	return *Map;
}

} // namespace

UObject* FObjectNames::Find(const UObject* Outer, FName Name)
{
	const auto Found = Table().find({Outer, Name});
	return Found == Table().end() ? nullptr : Found->second;
}

void FObjectNames::Add(UObject* Object, const UObject* Outer, FName Name)
{
	Table()[{Outer, Name}] = Object;
}

void FObjectNames::Remove(const UObject* Object, const UObject* Outer, FName Name)
{
	const auto Found = Table().find({Outer, Name});
	if (Found != Table().end() && Found->second == Object)
	{
		Table().erase(Found);
	}
}

} // namespace Host
