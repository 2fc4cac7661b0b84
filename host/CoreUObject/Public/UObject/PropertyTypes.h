// SPDX-License-Identifier: MIT
/** Properties that hold one value: numbers, texts, enumerations, structs and references to objects. */
#pragma once

#include "UObject/PropertyBase.h"

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

/** An enumeration of 1, 2, 4 or 8 bytes. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty)

	/** @param InEnum  null when the enumeration is not reflected; values are then written as numbers */
	FEnumProperty(UEnum* InEnum, int32 Size)
		: Enum(InEnum)
	{
		ElementSize = Size;
	}

	UEnum* GetEnum() const { return Enum; }
	int64 GetValue(const void* Data) const;
	void SetValue(void* Data, int64 Value) const;

	virtual FString GetCPPType() const override;
	virtual void InitializeValue(void* Dest) const override { SetValue(Dest, 0); }
	virtual void DestroyValue(void*) const override {}
	virtual void CopySingleValue(void* Dest, const void* Src) const override { SetValue(Dest, GetValue(Src)); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;

private:
	UEnum* Enum;
};

namespace Host
{
/** What C++ can do with a value of a struct type. */
struct FStructOps
{
	int32 Size;
	int32 Alignment;
	const char* CppName;
	void (*Construct)(void* Dest);
	void (*Destroy)(void* Dest);
	void (*Copy)(void* Dest, const void* Src);
	/** Null when the type has no operator==. */
	bool (*Equals)(const void* A, const void* B);
};
} // namespace Host

/** A struct. */
class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty)

	FStructProperty(UScriptStruct* InStruct, const Host::FStructOps& InOps)
		: Struct(InStruct)
		, Ops(InOps)
	{
		ElementSize = InOps.Size;
	}

	/** Null when the type is not reflected; its values are then copied but not written as text. */
	UScriptStruct* Struct;

	virtual FString GetCPPType() const override;
	virtual void InitializeValue(void* Dest) const override { Ops.Construct(Dest); }
	virtual void DestroyValue(void* Dest) const override { Ops.Destroy(Dest); }
	virtual void CopySingleValue(void* Dest, const void* Src) const override { Ops.Copy(Dest, Src); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
	virtual bool ContainsObjectReference() const override;
	virtual void AddReferences(
		void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const override;

private:
	const Host::FStructOps& Ops;
};
