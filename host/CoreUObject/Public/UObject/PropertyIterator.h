// SPDX-License-Identifier: MIT
/** Walking over the properties of a type. */
#pragma once

#include "UObject/PropertyBase.h"

enum class EFieldIterationFlags : uint8
{
	None = 0,
	IncludeSuper = 1,
	Default = IncludeSuper
};

/** Visits the properties of kind T: those of the type itself in the order of the header, then those of its super. */
template <class T>
class TFieldIterator
{
public:
	explicit TFieldIterator(const UStruct* InStruct, EFieldIterationFlags Flags = EFieldIterationFlags::Default)
		: Struct(InStruct)
		, Field(InStruct ? InStruct->GetChildProperties() : nullptr)
		, bIncludeSuper(Flags == EFieldIterationFlags::IncludeSuper)
	{
		Settle();
	}

	T* operator*() const { return static_cast<T*>(Field); }
	T* operator->() const { return static_cast<T*>(Field); }
	explicit operator bool() const { return Field != nullptr; }
	TFieldIterator& operator++()
	{
		Field = Field->Next;
		Settle();
		return *this;
	}
	/** Type that declares the current property. */
	const UStruct* GetStruct() const { return Struct; }

private:
	void Settle()
	{
		while (Struct)
		{
			for (; Field; Field = Field->Next)
			{
				if (Field->IsA<T>())
				{
					return;
				}
			}
			Struct = bIncludeSuper ? Struct->GetSuperStruct() : nullptr;
			Field = Struct ? Struct->GetChildProperties() : nullptr;
		}
	}

	const UStruct* Struct;
	FField* Field;
	bool bIncludeSuper;
};
