// SPDX-License-Identifier: MIT
/** Base of properties whose value is one plain C++ type. */
#pragma once

#include "UObject/PropertyBase.h"

#include <new>

/** Implements for a plain C++ type what FProperty asks about construction and copying. */
template <typename InValueType, typename InSuper>
class TValueProperty : public InSuper
{
public:
	using ValueType = InValueType;

	TValueProperty() { this->ElementSize = sizeof(ValueType); }

	const ValueType& GetPropertyValue(const void* A) const { return *static_cast<const ValueType*>(A); }
	void SetPropertyValue(void* A, const ValueType& Value) const { *static_cast<ValueType*>(A) = Value; }
	const ValueType& GetPropertyValue_InContainer(const void* Container, int32 ArrayIndex = 0) const
	{
		return *this->template ContainerPtrToValuePtr<ValueType>(Container, ArrayIndex);
	}
	void SetPropertyValue_InContainer(void* Container, const ValueType& Value, int32 ArrayIndex = 0) const
	{
		*this->template ContainerPtrToValuePtr<ValueType>(Container, ArrayIndex) = Value;
	}

	virtual void InitializeValue(void* Dest) const override { ::new (Dest) ValueType(); }
	virtual void DestroyValue(void* Dest) const override { static_cast<ValueType*>(Dest)->~ValueType(); }
	virtual void CopySingleValue(void* Dest, const void* Src) const override
	{
		*static_cast<ValueType*>(Dest) = *static_cast<const ValueType*>(Src);
	}
};
