// SPDX-License-Identifier: MIT
#pragma once

// Where a section or an entry goes among those that are there.

#include "CoreMinimal.h"

enum class EToolMenuInsertType : uint8
{
	/** Behind those that are there. */
	Default,
	Before,
	After,
	First,
	Last,
};

struct FToolMenuInsert
{
	FToolMenuInsert() = default;
	/** @param InName  the section or entry to stand before or after; when it is missing, as Default */
	FToolMenuInsert(FName InName, EToolMenuInsertType InPosition)
		: Name(InName)
		, Position(InPosition)
	{
	}

	bool IsDefault() const { return Position == EToolMenuInsertType::Default; }
	bool IsBeforeOrAfter() const
	{
		return Position == EToolMenuInsertType::Before || Position == EToolMenuInsertType::After;
	}
	bool operator==(const FToolMenuInsert& Other) const { return Name == Other.Name && Position == Other.Position; }
	bool operator!=(const FToolMenuInsert& Other) const { return !(*this == Other); }

	FName Name;
	EToolMenuInsertType Position = EToolMenuInsertType::Default;
};
