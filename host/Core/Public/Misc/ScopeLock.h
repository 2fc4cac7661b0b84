// SPDX-License-Identifier: MIT
/** A lock held for a scope. */
#pragma once

#include "HAL/CriticalSection.h"

class FScopeLock
{
public:
	explicit FScopeLock(FCriticalSection* InSynchObject)
		: SynchObject(InSynchObject)
	{
		SynchObject->Lock();
	}
	~FScopeLock() { Unlock(); }
	FScopeLock(const FScopeLock&) = delete;
	FScopeLock& operator=(const FScopeLock&) = delete;

	/** Unlocks before the scope ends. */
	void Unlock()
	{
		if (SynchObject != nullptr)
		{
			SynchObject->Unlock();
			SynchObject = nullptr;
		}
	}

private:
	FCriticalSection* SynchObject;
};
