// SPDX-License-Identifier: MIT
/** Pointer by which a plain class keeps an object alive. */
#pragma once

#include "UObject/GCObject.h"

/** Keeps the object that it points to; equal when the objects are. */
template <typename ObjectType>
class TStrongObjectPtr
{
public:
	TStrongObjectPtr() = default;
	TStrongObjectPtr(decltype(nullptr)) {}
	explicit TStrongObjectPtr(ObjectType* InObject) { Holder.Object = InObject; }
	template <typename OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TStrongObjectPtr(const TStrongObjectPtr<OtherType>& Other)
	{
		Holder.Object = Other.Get();
	}

	TStrongObjectPtr& operator=(const TStrongObjectPtr& Other) = default;
	TStrongObjectPtr(const TStrongObjectPtr& Other) = default;

	ObjectType* Get() const { return Holder.Object; }
	ObjectType& operator*() const
	{
		check(IsValid());
		return *Holder.Object;
	}
	ObjectType* operator->() const
	{
		check(IsValid());
		return Holder.Object;
	}
	bool IsValid() const { return Holder.Object != nullptr; }
	explicit operator bool() const { return IsValid(); }
	void Reset(ObjectType* InNewObject = nullptr) { Holder.Object = InNewObject; }

	template <typename OtherType>
	bool operator==(const TStrongObjectPtr<OtherType>& Other) const
	{
		return Get() == Other.Get();
	}
	bool operator==(const ObjectType* Object) const { return Get() == Object; }

	friend uint32 GetTypeHash(const TStrongObjectPtr& Pointer) { return PointerHash(Pointer.Get()); }

private:
	struct FHolder : FGCObject
	{
		FHolder() = default;
		FHolder(const FHolder& Other)
			: FGCObject(Other)
			, Object(Other.Object)
		{
		}
		FHolder& operator=(const FHolder& Other)
		{
			Object = Other.Object;
			return *this;
		}

		virtual void AddReferencedObjects(FReferenceCollector& Collector) override
		{
			Collector.AddReferencedObject(Object);
		}
		virtual FString GetReferencerName() const override { return FString(TEXT("TStrongObjectPtr")); }

		ObjectType* Object = nullptr;
	};

	FHolder Holder;
};
