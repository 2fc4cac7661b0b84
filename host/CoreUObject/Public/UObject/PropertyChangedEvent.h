// SPDX-License-Identifier: MIT
/** What changed when a property was edited. */
#pragma once

#include "Containers/Array.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class FProperty;

namespace EPropertyChangeType
{
typedef uint32 Type;
/** Unknown or of no particular kind. */
const Type Unspecified = 1 << 0;
const Type ArrayAdd = 1 << 1;
const Type ArrayRemove = 1 << 2;
const Type ArrayClear = 1 << 3;
const Type ValueSet = 1 << 4;
const Type Duplicate = 1 << 5;
/** The user is still dragging; a final ValueSet follows. */
const Type Interactive = 1 << 6;
const Type Redirected = 1 << 7;
const Type ArrayMove = 1 << 8;
} // namespace EPropertyChangeType

/** An edit of one property. */
struct COREUOBJECT_API FPropertyChangedEvent
{
	/** @param InProperty  null for a change of no particular property */
	FPropertyChangedEvent(
		FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty)
		, MemberProperty(InProperty)
		, ChangeType(InChangeType)
	{
	}

	/** None for a change of no particular property. */
	FName GetPropertyName() const;
	FName GetMemberPropertyName() const;

	/** Property that changed; of a struct's member it is that member. */
	FProperty* Property;
	/** Member of the object that holds `Property`, or is it. */
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
};

/** The properties that lead from an object to the one that is edited, the object's own member first. */
class COREUOBJECT_API FEditPropertyChain
{
public:
	/** One place in the chain. */
	class TDoubleLinkedListNode
	{
	public:
		explicit TDoubleLinkedListNode(FProperty* InValue)
			: Value(InValue)
		{
		}
		FProperty* GetValue() const { return Value; }

	private:
		FProperty* Value;
	};

	void AddTail(FProperty* Property) { Nodes.Add(TDoubleLinkedListNode(Property)); }
	int32 Num() const { return Nodes.Num(); }
	TDoubleLinkedListNode* GetHead() { return Nodes.Num() ? &Nodes[0] : nullptr; }
	/** Place of the property that changes; null for an empty chain. */
	TDoubleLinkedListNode* GetActiveNode() const;
	/** Place of the object's own member. */
	TDoubleLinkedListNode* GetActiveMemberNode() const;
	/** @return false when the property is not in the chain */
	bool SetActivePropertyNode(FProperty* NewActiveProperty);

private:
	TArray<TDoubleLinkedListNode> Nodes;
	int32 ActiveIndex = INDEX_NONE;
};

/** An edit with its whole chain. */
struct FPropertyChangedChainEvent : FPropertyChangedEvent
{
	FPropertyChangedChainEvent(FEditPropertyChain& InPropertyChain, const FPropertyChangedEvent& SrcChangeEvent)
		: FPropertyChangedEvent(SrcChangeEvent)
		, PropertyChain(InPropertyChain)
	{
	}

	FEditPropertyChain& PropertyChain;
};
