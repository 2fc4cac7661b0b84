// SPDX-License-Identifier: MIT
/** Shared pointers, shared references and weak pointers. */
#pragma once

#include "Templates/SharedPointerInternals.h"
#include "Templates/TypeHash.h"

/**
 * Counted pointer that is never null.
 *
 * Reference counts of the default mode may be shared between threads; the pointers themselves may not.
 */
template <class ObjectType, ESPMode InMode>
class TSharedRef
{
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedRef;
	template <class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	/** Takes ownership of an object made with new. */
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) explicit TSharedRef(OtherType* InObject)
		: TSharedRef(SharedPointerInternals::TRawPtrProxy<OtherType>{InObject})
	{
	}
	template <class OtherType, class DeleterType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TSharedRef(OtherType* InObject, DeleterType&& InDeleter)
		: TSharedRef(SharedPointerInternals::TRawPtrProxyWithDeleter<OtherType, std::decay_t<DeleterType>>{
			  InObject, Forward<DeleterType>(InDeleter)})
	{
	}
	template <class ProxyType>
	requires(SharedPointerInternals::IsRawPtrProxyFor<ProxyType, ObjectType>) TSharedRef(const ProxyType& Proxy)
		: Object(Proxy.Object)
		, Counter(SharedPointerInternals::MakeController<InMode>(Proxy))
	{
		check(Object != nullptr);
		SharedPointerInternals::EnableSharedFromThis(this, Proxy.Object, Proxy.Object);
	}
	/** Shares the ownership of another reference and points to a part of its object. */
	template <class OtherType>
	TSharedRef(const TSharedRef<OtherType, InMode>& Other, ObjectType* InObject)
		: Object(InObject)
		, Counter(Other.Counter)
	{
		check(InObject != nullptr);
	}
	TSharedRef(const TSharedRef&) = default;
	TSharedRef(TSharedRef&& Other)
		: Object(Other.Object)
		, Counter(Other.Counter)
	{
	}
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TSharedRef(const TSharedRef<OtherType, InMode>& Other)
		: Object(Other.Object)
		, Counter(Other.Counter)
	{
	}
	TSharedRef& operator=(const TSharedRef&) = default;
	TSharedRef& operator=(TSharedRef&& Other)
	{
		// Swapping keeps the other one from becoming empty.
		::Swap(Object, Other.Object);
		Counter.Swap(Other.Counter);
		return *this;
	}

	ObjectType& Get() const { return *Object; }
	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object; }
	TSharedPtr<ObjectType, InMode> ToSharedPtr() const { return TSharedPtr<ObjectType, InMode>(*this); }
	TWeakPtr<ObjectType, InMode> ToWeakPtr() const { return TWeakPtr<ObjectType, InMode>(*this); }
	int32 GetSharedReferenceCount() const { return Counter.GetSharedCount(); }
	bool IsUnique() const { return Counter.GetSharedCount() == 1; }

	friend uint32 GetTypeHash(const TSharedRef& Ref) { return PointerHash(Ref.Object); }

private:
	/** From a pointer that is known to hold an object. */
	template <class OtherType>
	explicit TSharedRef(const TSharedPtr<OtherType, InMode>& Pointer)
		: Object(Pointer.Object)
		, Counter(Pointer.Counter)
	{
		checkf(Object != nullptr, TEXT("A shared reference is made of an empty shared pointer"));
	}
	TSharedRef(ObjectType* InObject, SharedPointerInternals::TSharedCounter<InMode>&& InCounter)
		: Object(InObject)
		, Counter(MoveTemp(InCounter))
	{
	}
	template <class OtherType, ESPMode OtherMode, typename... ArgTypes>
	friend TSharedRef<OtherType, OtherMode> MakeShared(ArgTypes&&... Args);

	ObjectType* Object;
	SharedPointerInternals::TSharedCounter<InMode> Counter;
};

/** Counted pointer that may be empty; following an empty one is a failed check. */
template <class ObjectType, ESPMode InMode>
class TSharedPtr
{
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedRef;
	template <class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	TSharedPtr() = default;
	TSharedPtr(decltype(nullptr)) {}
	/** Takes ownership of an object made with new. */
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) explicit TSharedPtr(OtherType* InObject)
		: TSharedPtr(SharedPointerInternals::TRawPtrProxy<OtherType>{InObject})
	{
	}
	template <class OtherType, class DeleterType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TSharedPtr(OtherType* InObject, DeleterType&& InDeleter)
		: TSharedPtr(SharedPointerInternals::TRawPtrProxyWithDeleter<OtherType, std::decay_t<DeleterType>>{
			  InObject, Forward<DeleterType>(InDeleter)})
	{
	}
	template <class ProxyType>
	requires(SharedPointerInternals::IsRawPtrProxyFor<ProxyType, ObjectType>) TSharedPtr(const ProxyType& Proxy)
		: Object(Proxy.Object)
	{
		if (Object)
		{
			Counter.Adopt(SharedPointerInternals::MakeController<InMode>(Proxy));
			SharedPointerInternals::EnableSharedFromThis(this, Proxy.Object, Proxy.Object);
		}
	}
	/** Shares the ownership of another pointer and points to a part of its object. */
	template <class OtherType>
	TSharedPtr(const TSharedPtr<OtherType, InMode>& Other, ObjectType* InObject)
		: Object(InObject)
		, Counter(Other.Counter)
	{
	}
	TSharedPtr(const TSharedPtr&) = default;
	TSharedPtr(TSharedPtr&& Other)
		: Object(Other.Object)
		, Counter(MoveTemp(Other.Counter))
	{
		Other.Object = nullptr;
	}
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TSharedPtr(const TSharedPtr<OtherType, InMode>& Other)
		: Object(Other.Object)
		, Counter(Other.Counter)
	{
	}
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TSharedPtr(const TSharedRef<OtherType, InMode>& Other)
		: Object(Other.Object)
		, Counter(Other.Counter)
	{
	}
	TSharedPtr& operator=(const TSharedPtr&) = default;
	TSharedPtr& operator=(TSharedPtr&& Other)
	{
		if (this != &Other)
		{
			// The former object ends last, because its end may read this pointer.
			TSharedPtr Former(MoveTemp(*this));
			Object = Other.Object;
			Other.Object = nullptr;
			Counter.Swap(Other.Counter);
		}
		return *this;
	}
	TSharedPtr& operator=(decltype(nullptr))
	{
		Reset();
		return *this;
	}

	ObjectType* Get() const { return Object; }
	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return Object != nullptr; }
	std::add_lvalue_reference_t<ObjectType> operator*() const
	{
		check(IsValid());
		return *Object;
	}
	ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}
	void Reset() { TSharedPtr Former(MoveTemp(*this)); }
	TSharedRef<ObjectType, InMode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType, InMode>(*this);
	}
	TWeakPtr<ObjectType, InMode> ToWeakPtr() const { return TWeakPtr<ObjectType, InMode>(*this); }
	int32 GetSharedReferenceCount() const { return Counter.GetSharedCount(); }
	bool IsUnique() const { return Counter.GetSharedCount() == 1; }

	friend uint32 GetTypeHash(const TSharedPtr& Pointer) { return PointerHash(Pointer.Object); }

private:
	TSharedPtr(ObjectType* InObject, SharedPointerInternals::TSharedCounter<InMode>&& InCounter)
		: Object(InCounter.IsValid() ? InObject : nullptr)
		, Counter(MoveTemp(InCounter))
	{
	}

	ObjectType* Object = nullptr;
	SharedPointerInternals::TSharedCounter<InMode> Counter;
};

/** Observes an object of shared pointers without keeping it alive. */
template <class ObjectType, ESPMode InMode>
class TWeakPtr
{
	template <class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	TWeakPtr() = default;
	TWeakPtr(decltype(nullptr)) {}
	TWeakPtr(const TWeakPtr&) = default;
	TWeakPtr(TWeakPtr&& Other)
		: Object(Other.Object)
		, Counter(MoveTemp(Other.Counter))
	{
		Other.Object = nullptr;
	}
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TWeakPtr(const TSharedRef<OtherType, InMode>& Ref)
		: Object(Ref.Object)
		, Counter(Ref.Counter)
	{
	}
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TWeakPtr(const TSharedPtr<OtherType, InMode>& Pointer)
		: Object(Pointer.Object)
		, Counter(Pointer.Counter)
	{
	}
	template <class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) TWeakPtr(const TWeakPtr<OtherType, InMode>& Other)
		: Object(Other.Object)
		, Counter(Other.Counter)
	{
	}
	TWeakPtr& operator=(const TWeakPtr&) = default;
	TWeakPtr& operator=(TWeakPtr&& Other)
	{
		::Swap(Object, Other.Object);
		Counter.Swap(Other.Counter);
		return *this;
	}
	TWeakPtr& operator=(decltype(nullptr))
	{
		Reset();
		return *this;
	}

	/** A shared pointer to the object; empty when the object is gone. */
	TSharedPtr<ObjectType, InMode> Pin() const
	{
		return TSharedPtr<ObjectType, InMode>(Object, SharedPointerInternals::TSharedCounter<InMode>(Counter));
	}
	bool IsValid() const { return Object != nullptr && Counter.IsAlive(); }
	void Reset() { *this = TWeakPtr(); }
	bool HasSameObject(const void* InOther) const { return Pin().Get() == InOther; }

	friend uint32 GetTypeHash(const TWeakPtr& Pointer) { return PointerHash(Pointer.Object); }

private:
	ObjectType* Object = nullptr;
	SharedPointerInternals::TWeakCounter<InMode> Counter;
};

/** Makes an object that is owned by shared pointers able to give shared pointers to itself. */
template <class ObjectType, ESPMode InMode>
class TSharedFromThis
{
public:
	/** A failed check when no shared pointer owns the object, as in its constructor. */
	TSharedRef<ObjectType, InMode> AsShared()
	{
		TSharedPtr<ObjectType, InMode> Self = WeakThis.Pin();
		checkf(Self.Get() == this, TEXT("AsShared is called on an object that no shared pointer owns"));
		return Self.ToSharedRef();
	}
	TSharedRef<const ObjectType, InMode> AsShared() const { return const_cast<TSharedFromThis*>(this)->AsShared(); }
	TWeakPtr<ObjectType, InMode> AsWeak() { return WeakThis; }
	TWeakPtr<const ObjectType, InMode> AsWeak() const { return WeakThis; }
	bool DoesSharedInstanceExist() const { return WeakThis.IsValid(); }

	/** Called by the shared pointers when they take an object over; keeps a first owner that is still there. */
	template <class SharedType, class OtherType>
	void UpdateWeakReferenceInternal(const SharedType* SharedPointer, OtherType* Object) const
	{
		if (!WeakThis.IsValid())
		{
			if constexpr (SharedPointerInternals::IsSharedRef<SharedType>)
			{
				WeakThis = TSharedRef<ObjectType, InMode>(*SharedPointer, Object);
			}
			else
			{
				WeakThis = TSharedPtr<ObjectType, InMode>(*SharedPointer, Object);
			}
		}
	}

protected:
	/** Shared reference of a derived class's own type. */
	template <class OtherType>
	static TSharedRef<OtherType, InMode> SharedThis(OtherType* ThisPtr)
	{
		return StaticCastSharedRef<OtherType>(ThisPtr->AsShared());
	}
	template <class OtherType>
	static TSharedRef<const OtherType, InMode> SharedThis(const OtherType* ThisPtr)
	{
		return StaticCastSharedRef<const OtherType>(ThisPtr->AsShared());
	}

	TSharedFromThis() = default;
	// Each object has its own owners, so copies do not take the reference over.
	TSharedFromThis(const TSharedFromThis&) {}
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }
	~TSharedFromThis() = default;

private:
	mutable TWeakPtr<ObjectType, InMode> WeakThis;
};

#include "Templates/SharedPointerOperators.h"
