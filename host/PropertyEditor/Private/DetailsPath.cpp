// SPDX-License-Identifier: MIT
#include "DetailsPath.h"

#include "UObject/UnrealType.h"

namespace Host
{
TArray<UObject*> FDetailsContext::GetLiving() const
{
	TArray<UObject*> Living;
	for (const TWeakObjectPtr<UObject>& Weak : Objects)
	{
		if (UObject* const Object = Weak.Get())
		{
			Living.Add(Object);
		}
	}
	return Living;
}

FDetailsPath::FDetailsPath(FProperty* Member, int32 ArrayIndex)
{
	Steps.Add({Member, ArrayIndex, false});
}

FDetailsPath FDetailsPath::Member(FProperty* Property, int32 ArrayIndex) const
{
	FDetailsPath Longer = *this;
	Longer.Steps.Add({Property, ArrayIndex, false});
	return Longer;
}

FDetailsPath FDetailsPath::Element(FProperty* Inner, int32 Index) const
{
	FDetailsPath Longer = *this;
	Longer.Steps.Add({Inner, Index, true});
	return Longer;
}

void* FDetailsPath::Resolve(UObject& Object) const
{
	void* Container = &Object;
	const FProperty* Around = nullptr;
	for (const FStep& Step : Steps)
	{
		if (Step.bElement)
		{
			FScriptArrayHelper Array(CastField<const FArrayProperty>(Around), Container);
			Container = Array.GetRawPtr(Step.Index);
		}
		else
		{
			Container = Step.Property->ContainerPtrToValuePtr<void>(Container, Step.Index);
		}
		if (!Container)
		{
			return nullptr;
		}
		Around = Step.Property;
	}
	return Container;
}

FEditPropertyChain FDetailsPath::Chain() const
{
	FEditPropertyChain Chain;
	for (const FStep& Step : Steps)
	{
		Chain.AddTail(Step.Property);
	}
	Chain.SetActivePropertyNode(Last());
	return Chain;
}

FString FDetailsPath::ToString() const
{
	FString Text;
	for (const FStep& Step : Steps)
	{
		if (Step.bElement)
		{
			Text += FString::Printf(TEXT("[%d]"), Step.Index);
			continue;
		}
		Text += Text.IsEmpty() ? FString() : FString(TEXT("."));
		Text += Step.Property->GetName();
		if (Step.Property->ArrayDim > 1)
		{
			Text += FString::Printf(TEXT("[%d]"), Step.Index);
		}
	}
	return Text;
}
} // namespace Host
