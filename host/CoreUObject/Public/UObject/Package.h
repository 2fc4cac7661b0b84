// SPDX-License-Identifier: MIT
/** Packages: the outermost objects, one for each asset file. */
#pragma once

#include "UObject/Object.h"

/** Has no outer; its name is the long package name, such as "/Game/Shirts/Blue". */
class COREUOBJECT_API UPackage : public UObject
{
public:
	using Super = UObject;
	using ThisClass = UPackage;
	static UClass* StaticClass();

	UPackage() = default;

	/** Notes or forgets that the package has unsaved changes. */
	void SetDirtyFlag(bool bIsDirty) { bDirty = bIsDirty; }
	bool IsDirty() const { return bDirty; }
	/** Packages are loaded as a whole, so this only notes it. */
	void FullyLoad() { bFullyLoaded = true; }
	bool IsFullyLoaded() const { return bFullyLoaded; }
	void MarkAsFullyLoaded() { bFullyLoaded = true; }

private:
	bool bDirty = false;
	bool bFullyLoaded = false;
};
