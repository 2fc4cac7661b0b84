// SPDX-License-Identifier: MIT
#include "EditorReimportHandler.h"
#include "TickableEditorObject.h"

namespace
{
/** Null where an object left during the ticks. */
TArray<FTickableEditorObject*>& TickableObjects()
{
	static TArray<FTickableEditorObject*> Objects;
	return Objects;
}

int32 TickDepth = 0;
} // namespace

FReimportManager* FReimportManager::Instance()
{
	static FReimportManager Manager;
	return &Manager;
}

FTickableEditorObject::FTickableEditorObject()
{
	TickableObjects().Add(this);
}

FTickableEditorObject::~FTickableEditorObject()
{
	TArray<FTickableEditorObject*>& Objects = TickableObjects();
	const int32 Index = Objects.Find(this);
	if (TickDepth > 0)
	{
		Objects[Index] = nullptr;
	}
	else
	{
		Objects.RemoveAt(Index);
	}
}

void FTickableEditorObject::TickObjects(const float DeltaSeconds)
{
	const int32 Count = TickableObjects().Num();
	++TickDepth;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		FTickableEditorObject* const Object = TickableObjects()[Index];
		if (!Object || Object->GetTickableTickType() == ETickableTickType::Never)
		{
			continue;
		}
		if (Object->GetTickableTickType() == ETickableTickType::Always || Object->IsTickable())
		{
			Object->Tick(DeltaSeconds);
		}
	}
	if (--TickDepth == 0)
	{
		TickableObjects().RemoveAll([](const FTickableEditorObject* Object) { return Object == nullptr; });
	}
}
