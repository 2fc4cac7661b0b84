// SPDX-License-Identifier: MIT
#pragma once

// Extra data that hangs on a widget, found again by its type.

#include "CoreMinimal.h"

class ISlateMetaData
{
public:
	virtual ~ISlateMetaData() = default;

	/** True when the data is of the named type or of one derived from it. */
	virtual bool IsOfTypeName(const FName& Type) const = 0;

	template <typename MetaDataType>
	bool IsOfType() const
	{
		return IsOfTypeName(MetaDataType::GetTypeId());
	}
};

/** A name by which a widget is found in a tree of widgets; several widgets may carry the same. */
class FTagMetaData : public ISlateMetaData
{
public:
	explicit FTagMetaData(FName InTag)
		: Tag(InTag)
	{
	}
	explicit FTagMetaData(const TCHAR* InTag)
		: Tag(InTag)
	{
	}

	static const FName& GetTypeId();

	bool IsOfTypeName(const FName& Type) const override { return Type == GetTypeId(); }

	FName Tag;
};
