// SPDX-License-Identifier: MIT
/** A lock between threads. */
#pragma once

#include <mutex>

/** The same thread may lock it again. */
class FCriticalSection
{
public:
	void Lock() { Mutex.lock(); }
	bool TryLock() { return Mutex.try_lock(); }
	void Unlock() { Mutex.unlock(); }

private:
	std::recursive_mutex Mutex;
};
