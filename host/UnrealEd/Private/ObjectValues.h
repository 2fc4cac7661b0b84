// SPDX-License-Identifier: MIT
// The values of an object's properties at one moment.
#pragma once

#include "CoreMinimal.h"

class FProperty;
class FReferenceCollector;
class UObject;

namespace Host
{
/** Copies of all properties of an object that are not transient. */
class FObjectValues
{
public:
	explicit FObjectValues(const UObject& Object);
	~FObjectValues();
	FObjectValues(const FObjectValues&) = delete;
	FObjectValues& operator=(const FObjectValues&) = delete;

	/** Whether the object has these values now. */
	bool IsEqualTo(const UObject& Object) const;
	/** Gives the object these values again. */
	void Restore(UObject& Object) const;
	void AddReferences(FReferenceCollector& Collector);

private:
	struct FValue
	{
		FProperty* Property;
		/** Owned; of a single bit, the bit alone. */
		void* Data;
		bool bBit;
	};
	TArray<FValue> Values;
};
} // namespace Host
