// SPDX-License-Identifier: MIT
#pragma once

// JSON as layouts need it.

#include "CoreMinimal.h"

namespace Host
{
/** One value. What does not belong to its kind is empty. */
struct FJsonValue
{
	enum class EKind : uint8
	{
		Null,
		Bool,
		Number,
		String,
		Array,
		Object,
	};

	EKind Kind = EKind::Null;
	bool bBool = false;
	double Number = 0.0;
	FString String;
	/** Elements of an array, or the values of an object in the order of Keys. */
	TArray<FJsonValue> Items;
	TArray<FString> Keys;

	// Defined where the class is complete: an array of it asks whether it can be copied.
	FJsonValue();
	FJsonValue(const FJsonValue& Other);
	FJsonValue(FJsonValue&& Other) noexcept;
	FJsonValue& operator=(const FJsonValue& Other);
	FJsonValue& operator=(FJsonValue&& Other) noexcept;
	~FJsonValue();

	/** Null when this is no object or lacks the key; of a repeated key the last counts. */
	const FJsonValue* Find(const TCHAR* Key) const;
};

/**
 * Reads one value that takes the whole text. Values are nested 64 deep at most.
 *
 * @param OutError  what is wrong and at which character
 */
bool ReadJson(const FString& Text, FJsonValue& OutValue, FString& OutError);

/** The text in quotation marks, with what JSON wants escaped. */
FString QuoteJson(const FString& Text);
} // namespace Host
