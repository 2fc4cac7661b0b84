// SPDX-License-Identifier: MIT
/** Properties that hold numbers and booleans. */
#pragma once

#include "UObject/PropertyValue.h"

/** A number. */
class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty)

	virtual bool IsFloatingPoint() const { return false; }
	bool IsInteger() const { return !IsFloatingPoint(); }
	/** A byte whose values are those of an enumeration. */
	virtual bool IsEnum() const { return false; }
	virtual UEnum* GetIntPropertyEnum() const { return nullptr; }
	virtual int64 GetSignedIntPropertyValue(const void* Data) const = 0;
	virtual double GetFloatingPointPropertyValue(const void* Data) const = 0;
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	FString GetNumericPropertyValueToString(const void* Data) const;
	/** Reads a number; leaves the value alone when the text is none. */
	void SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const;

	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
};

template <typename NumberType>
class TNumericProperty : public TValueProperty<NumberType, FNumericProperty>
{
public:
	virtual bool IsFloatingPoint() const override { return static_cast<NumberType>(0.5) != 0; }
	virtual int64 GetSignedIntPropertyValue(const void* Data) const override
	{
		return static_cast<int64>(this->GetPropertyValue(Data));
	}
	virtual double GetFloatingPointPropertyValue(const void* Data) const override
	{
		return static_cast<double>(this->GetPropertyValue(Data));
	}
	virtual void SetIntPropertyValue(void* Data, int64 Value) const override
	{
		this->SetPropertyValue(Data, static_cast<NumberType>(Value));
	}
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const override
	{
		this->SetPropertyValue(Data, static_cast<NumberType>(Value));
	}
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override
	{
		(void)PortFlags;
		return this->GetPropertyValue(A) == this->GetPropertyValue(B);
	}
};

#define HOST_NUMERIC_PROPERTY(PropertyClass, NumberType)                                                               \
	class COREUOBJECT_API PropertyClass : public TNumericProperty<NumberType>                                          \
	{                                                                                                                  \
		DECLARE_FIELD(PropertyClass, FNumericProperty)                                                                 \
		virtual FString GetCPPType() const override { return FString(TEXT(#NumberType)); }                             \
	};
HOST_NUMERIC_PROPERTY(FInt8Property, int8)
HOST_NUMERIC_PROPERTY(FInt16Property, int16)
HOST_NUMERIC_PROPERTY(FIntProperty, int32)
HOST_NUMERIC_PROPERTY(FInt64Property, int64)
HOST_NUMERIC_PROPERTY(FUInt16Property, uint16)
HOST_NUMERIC_PROPERTY(FUInt32Property, uint32)
HOST_NUMERIC_PROPERTY(FUInt64Property, uint64)
HOST_NUMERIC_PROPERTY(FFloatProperty, float)
HOST_NUMERIC_PROPERTY(FDoubleProperty, double)
#undef HOST_NUMERIC_PROPERTY

/** uint8, or a TEnumAsByte of the enumeration `Enum`. */
class COREUOBJECT_API FByteProperty : public TNumericProperty<uint8>
{
	DECLARE_FIELD(FByteProperty, FNumericProperty)

	/** Null for a plain byte, and for an enumeration that is not reflected. */
	UEnum* Enum = nullptr;

	virtual bool IsEnum() const override { return Enum != nullptr; }
	virtual UEnum* GetIntPropertyEnum() const override { return Enum; }
	virtual FString GetCPPType() const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
};

/** bool, or one bit of an integer; of a bit the address of the value is that of its container. */
class COREUOBJECT_API FBoolProperty : public FProperty
{
	DECLARE_FIELD(FBoolProperty, FProperty)

	using FBitGetter = bool (*)(const void* Container);
	using FBitSetter = void (*)(void* Container, bool bValue);

	FBoolProperty() { ElementSize = sizeof(bool); }
	/** Reads and writes one bit by functions, because a bit has no address. */
	FBoolProperty(FBitGetter InGetter, FBitSetter InSetter)
		: Getter(InGetter)
		, Setter(InSetter)
	{
	}

	bool IsNativeBool() const { return Getter == nullptr; }
	bool GetPropertyValue(const void* A) const { return Getter ? Getter(A) : *static_cast<const bool*>(A); }
	void SetPropertyValue(void* A, bool Value) const;
	bool GetPropertyValue_InContainer(const void* Container, int32 ArrayIndex = 0) const
	{
		return GetPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex));
	}
	void SetPropertyValue_InContainer(void* Container, bool Value, int32 ArrayIndex = 0) const
	{
		SetPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex), Value);
	}

	virtual FString GetCPPType() const override { return FString(TEXT("bool")); }
	virtual void InitializeValue(void* Dest) const override { SetPropertyValue(Dest, false); }
	virtual void DestroyValue(void*) const override {}
	virtual void CopySingleValue(void* Dest, const void* Src) const override
	{
		SetPropertyValue(Dest, GetPropertyValue(Src));
	}
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;

private:
	FBitGetter Getter = nullptr;
	FBitSetter Setter = nullptr;
};
