// SPDX-License-Identifier: MIT
// The way from an object to a value in it.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FEditPropertyChain;
class FNotifyHook;
class FProperty;
class UObject;

namespace Host
{
/** What all rows of a view share. */
struct FDetailsContext
{
	TArray<TWeakObjectPtr<UObject>> Objects;
	/** Not owned; null for nobody. */
	FNotifyHook* NotifyHook = nullptr;
	TSet<FString> ExpandedPaths;
	/** Rises when rows come or go. */
	uint64 Revision = 0;

	/** Those that are alive. */
	TArray<UObject*> GetLiving() const;
};

/** A chain of members and elements. It is walked for each use, since arrays move their elements. */
class FDetailsPath
{
public:
	/** A member of the object itself; an index for one of a C array. */
	explicit FDetailsPath(FProperty* Member, int32 ArrayIndex = 0);

	FDetailsPath Member(FProperty* Property, int32 ArrayIndex = 0) const;
	FDetailsPath Element(FProperty* Inner, int32 Index) const;

	/** The property of the value. */
	FProperty* Last() const { return Steps.Last().Property; }
	/** The object's own member. */
	FProperty* First() const { return Steps[0].Property; }
	bool IsElement() const { return Steps.Last().bElement; }
	int32 Index() const { return Steps.Last().Index; }
	bool IsMemberOfObject() const { return Steps.Num() == 1; }

	/** Address of the value; null when an element on the way is not there. Of a single bit, its container. */
	void* Resolve(UObject& Object) const;
	FEditPropertyChain Chain() const;
	FString ToString() const;

private:
	struct FStep
	{
		FProperty* Property;
		int32 Index;
		bool bElement;
	};
	TArray<FStep> Steps;
};
} // namespace Host
