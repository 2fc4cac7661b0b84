// SPDX-License-Identifier: MIT
#include "UObject/PropertyBase.h"

#include "UObject/PropertyChangedEvent.h"

void FProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CopySingleValue(
			static_cast<uint8*>(Dest) + Index * ElementSize, static_cast<const uint8*>(Src) + Index * ElementSize);
	}
}

void FProperty::CopyCompleteValue_InContainer(void* DestContainer, const void* SrcContainer) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(DestContainer), ContainerPtrToValuePtr<void>(SrcContainer));
}

bool FProperty::Identical_InContainer(const void* A, const void* B, int32 ArrayIndex, uint32 PortFlags) const
{
	return Identical(
		ContainerPtrToValuePtr<void>(A, ArrayIndex), ContainerPtrToValuePtr<void>(B, ArrayIndex), PortFlags);
}

void FProperty::ExportTextItem_InContainer(
	FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags) const
{
	ExportTextItem_Direct(ValueStr, ContainerPtrToValuePtr<void>(Container), DefaultValue, Parent, PortFlags);
}

const TCHAR* FProperty::ImportText_InContainer(
	const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags) const
{
	return ImportText_Direct(Buffer, ContainerPtrToValuePtr<void>(Container), OwnerObject, PortFlags);
}

void FProperty::AddReferences(void*, const UObject*, FReferenceCollector&) const {}

FName FPropertyChangedEvent::GetPropertyName() const
{
	return Property ? Property->GetFName() : FName();
}

FName FPropertyChangedEvent::GetMemberPropertyName() const
{
	return MemberProperty ? MemberProperty->GetFName() : FName();
}

FEditPropertyChain::TDoubleLinkedListNode* FEditPropertyChain::GetActiveNode() const
{
	return Nodes.IsValidIndex(ActiveIndex) ? const_cast<TDoubleLinkedListNode*>(&Nodes[ActiveIndex]) : nullptr;
}

FEditPropertyChain::TDoubleLinkedListNode* FEditPropertyChain::GetActiveMemberNode() const
{
	return Nodes.Num() ? const_cast<TDoubleLinkedListNode*>(&Nodes[0]) : nullptr;
}

bool FEditPropertyChain::SetActivePropertyNode(FProperty* NewActiveProperty)
{
	const int32 Found = Nodes.IndexOfByPredicate(
		[NewActiveProperty](const TDoubleLinkedListNode& Node) { return Node.GetValue() == NewActiveProperty; });
	if (Found == INDEX_NONE)
	{
		return false;
	}
	ActiveIndex = Found;
	return true;
}
