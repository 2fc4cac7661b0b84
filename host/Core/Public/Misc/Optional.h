// SPDX-License-Identifier: MIT
/** A value or none. */
#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"
#include <new>

struct FNullOpt
{
	explicit constexpr FNullOpt(int) {}
};
inline constexpr FNullOpt NullOpt{0};

/** Holds a value or none; reading none is a failed check. */
template <typename OptionalType>
class TOptional
{
public:
	using ElementType = OptionalType;

	TOptional()
		: bIsSet(false)
	{
	}
	TOptional(FNullOpt)
		: bIsSet(false)
	{
	}
	TOptional(const OptionalType& InValue)
		: bIsSet(false)
	{
		Emplace(InValue);
	}
	TOptional(OptionalType&& InValue)
		: bIsSet(false)
	{
		Emplace(MoveTempIfPossible(InValue));
	}
	template <typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
		: bIsSet(false)
	{
		Emplace(Forward<ArgTypes>(Args)...);
	}
	TOptional(const TOptional& Other)
		: bIsSet(false)
	{
		if (Other.bIsSet)
		{
			Emplace(Other.Value);
		}
	}
	TOptional(TOptional&& Other)
		: bIsSet(false)
	{
		if (Other.bIsSet)
		{
			Emplace(MoveTempIfPossible(Other.Value));
		}
	}
	~TOptional() { Reset(); }
	TOptional& operator=(const TOptional& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(Other.Value);
			}
		}
		return *this;
	}
	TOptional& operator=(TOptional&& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(MoveTempIfPossible(Other.Value));
			}
		}
		return *this;
	}
	TOptional& operator=(const OptionalType& InValue)
	{
		if (&InValue != &Value)
		{
			Emplace(InValue);
		}
		return *this;
	}
	TOptional& operator=(OptionalType&& InValue)
	{
		if (&InValue != &Value)
		{
			Emplace(MoveTempIfPossible(InValue));
		}
		return *this;
	}

	template <typename... ArgTypes>
	OptionalType& Emplace(ArgTypes&&... Args)
	{
		Reset();
		::new (static_cast<void*>(const_cast<std::remove_const_t<OptionalType>*>(&Value)))
			OptionalType(Forward<ArgTypes>(Args)...);
		bIsSet = true;
		return Value;
	}
	void Reset()
	{
		if (bIsSet)
		{
			bIsSet = false;
			Value.~OptionalType();
		}
	}

	bool IsSet() const { return bIsSet; }
	explicit operator bool() const { return bIsSet; }
	OptionalType& GetValue()
	{
		checkf(bIsSet, TEXT("An optional that holds no value is read"));
		return Value;
	}
	const OptionalType& GetValue() const { return const_cast<TOptional*>(this)->GetValue(); }
	/** The value, or the given one when there is none. */
	const OptionalType& Get(const OptionalType& DefaultValue) const { return bIsSet ? Value : DefaultValue; }
	OptionalType* GetPtrOrNull() { return bIsSet ? &Value : nullptr; }
	const OptionalType* GetPtrOrNull() const { return bIsSet ? &Value : nullptr; }
	OptionalType& operator*() { return GetValue(); }
	const OptionalType& operator*() const { return GetValue(); }
	OptionalType* operator->() { return &GetValue(); }
	const OptionalType* operator->() const { return &GetValue(); }

	friend bool operator==(const TOptional& A, const TOptional& B)
	{
		return A.bIsSet == B.bIsSet && (!A.bIsSet || A.Value == B.Value);
	}
	friend uint32 GetTypeHash(const TOptional& Optional)
	{
		return Optional.bIsSet ? GetTypeHashHelper(Optional.Value) : 0;
	}

private:
	union
	{
		OptionalType Value;
	};
	bool bIsSet;
};
