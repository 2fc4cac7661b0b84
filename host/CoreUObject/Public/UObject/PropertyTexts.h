// SPDX-License-Identifier: MIT
/** Properties that hold strings, names and texts. */
#pragma once

#include "UObject/PropertyValue.h"

class COREUOBJECT_API FStrProperty : public TValueProperty<FString, FProperty>
{
	DECLARE_FIELD(FStrProperty, FProperty)

	virtual FString GetCPPType() const override { return FString(TEXT("FString")); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
};

class COREUOBJECT_API FNameProperty : public TValueProperty<FName, FProperty>
{
	DECLARE_FIELD(FNameProperty, FProperty)

	virtual FString GetCPPType() const override { return FString(TEXT("FName")); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
};

class COREUOBJECT_API FTextProperty : public TValueProperty<FText, FProperty>
{
	DECLARE_FIELD(FTextProperty, FProperty)

	virtual FString GetCPPType() const override { return FString(TEXT("FText")); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
};
