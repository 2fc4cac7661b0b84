// SPDX-License-Identifier: MIT
#include "Host/NativeCopy.h"

#include "UObject/Class.h"

#include <vector>

namespace Host
{
namespace
{

const FNativeCopy* First = nullptr;

} // namespace

FNativeCopy::FNativeCopy(
	UClass* (*InGetClass)(), void (*InFunction)(), void (*InCall)(void (*)(), const UObject&, UObject&))
	: GetClass(InGetClass)
	, Function(InFunction)
	, Call(InCall)
	, Next(First)
{
	First = this;
}

void CopyNativeData(const UObject& Source, UObject& Target)
{
	std::vector<const UClass*> Chain;
	for (const UClass* Class = Source.GetClass(); Class; Class = Class->GetSuperClass())
	{
		Chain.push_back(Class);
	}
	for (size_t At = Chain.size(); At-- > 0;)
	{
		for (const FNativeCopy* Copy = First; Copy; Copy = Copy->Next)
		{
			if (Copy->GetClass() == Chain[At])
			{
				Copy->Call(Copy->Function, Source, Target);
			}
		}
	}
}

} // namespace Host
