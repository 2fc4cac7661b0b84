// SPDX-License-Identifier: MIT
/** Reference counts behind the shared pointers. */
#pragma once

#include "Templates/SharedPointerFwd.h"
#include "Templates/UnrealTemplate.h"
#include "Templates/UnrealTypeTraits.h"
#include <atomic>
#include <new>

namespace SharedPointerInternals
{

/**
 * Counts of one object. All shared owners together hold one weak reference, so that the controller outlives the
 * object for as long as anyone observes it.
 */
template <ESPMode Mode>
class TReferenceController
{
public:
	TReferenceController() = default;
	TReferenceController(const TReferenceController&) = delete;
	TReferenceController& operator=(const TReferenceController&) = delete;
	virtual ~TReferenceController() = default;

	int32 GetSharedCount() const
	{
		if constexpr (Mode == ESPMode::ThreadSafe)
		{
			return SharedCount.load(std::memory_order_relaxed);
		}
		else
		{
			return SharedCount;
		}
	}
	void AddShared()
	{
		if constexpr (Mode == ESPMode::ThreadSafe)
		{
			SharedCount.fetch_add(1, std::memory_order_relaxed);
		}
		else
		{
			++SharedCount;
		}
	}
	/** Becomes one more owner unless the last one is gone. */
	bool TryAddShared()
	{
		if constexpr (Mode == ESPMode::ThreadSafe)
		{
			int32 Count = SharedCount.load(std::memory_order_relaxed);
			while (Count > 0)
			{
				if (SharedCount.compare_exchange_weak(Count, Count + 1, std::memory_order_relaxed))
				{
					return true;
				}
			}
			return false;
		}
		else
		{
			return SharedCount > 0 ? (++SharedCount, true) : false;
		}
	}
	void ReleaseShared()
	{
		if (Decrement(SharedCount))
		{
			DestroyObject();
			ReleaseWeak();
		}
	}
	void AddWeak()
	{
		if constexpr (Mode == ESPMode::ThreadSafe)
		{
			WeakCount.fetch_add(1, std::memory_order_relaxed);
		}
		else
		{
			++WeakCount;
		}
	}
	void ReleaseWeak()
	{
		if (Decrement(WeakCount))
		{
			delete this;
		}
	}

private:
	using FCount = std::conditional_t<Mode == ESPMode::ThreadSafe, std::atomic<int32>, int32>;

	virtual void DestroyObject() = 0;

	/** @return whether the count reached zero */
	static bool Decrement(FCount& Count)
	{
		if constexpr (Mode == ESPMode::ThreadSafe)
		{
			return Count.fetch_sub(1, std::memory_order_acq_rel) == 1;
		}
		else
		{
			return --Count == 0;
		}
	}

	FCount SharedCount = 1;
	FCount WeakCount = 1;
};

/** Controller of an object that was allocated on its own. */
template <class ObjectType, class DeleterType, ESPMode Mode>
class TExternalController final : public TReferenceController<Mode>
{
public:
	TExternalController(ObjectType* InObject, const DeleterType& InDeleter)
		: Object(InObject)
		, Deleter(InDeleter)
	{
	}

private:
	void DestroyObject() override { Deleter(Object); }

	ObjectType* Object;
	DeleterType Deleter;
};

/** Controller and object in one allocation. */
template <class ObjectType, ESPMode Mode>
class TIntrusiveController final : public TReferenceController<Mode>
{
public:
	template <typename... ArgTypes>
	explicit TIntrusiveController(ArgTypes&&... Args)
	{
		::new (static_cast<void*>(Storage)) ObjectType(Forward<ArgTypes>(Args)...);
	}
	ObjectType* GetObjectPtr() { return std::launder(reinterpret_cast<ObjectType*>(Storage)); }

private:
	void DestroyObject() override { GetObjectPtr()->~ObjectType(); }

	alignas(ObjectType) uint8 Storage[sizeof(ObjectType)];
};

template <ESPMode Mode>
class TWeakCounter;

/** One shared ownership, or none. */
template <ESPMode Mode>
class TSharedCounter
{
	friend class TWeakCounter<Mode>;

public:
	TSharedCounter() = default;
	/** Takes over the ownership that a new controller starts with. */
	explicit TSharedCounter(TReferenceController<Mode>* InController)
		: Controller(InController)
	{
	}
	TSharedCounter(const TSharedCounter& Other)
		: Controller(Other.Controller)
	{
		if (Controller)
		{
			Controller->AddShared();
		}
	}
	TSharedCounter(TSharedCounter&& Other)
		: Controller(Other.Controller)
	{
		Other.Controller = nullptr;
	}
	/** Empty when the object is gone. */
	explicit TSharedCounter(const TWeakCounter<Mode>& Weak);
	TSharedCounter& operator=(const TSharedCounter& Other)
	{
		TSharedCounter Copy(Other);
		Swap(Copy);
		return *this;
	}
	~TSharedCounter()
	{
		if (Controller)
		{
			Controller->ReleaseShared();
		}
	}

	void Adopt(TReferenceController<Mode>* InController) { Controller = InController; }
	void Swap(TSharedCounter& Other) { ::Swap(Controller, Other.Controller); }
	bool IsValid() const { return Controller != nullptr; }
	int32 GetSharedCount() const { return Controller ? Controller->GetSharedCount() : 0; }

private:
	TReferenceController<Mode>* Controller = nullptr;
};

/** One observation, or none. */
template <ESPMode Mode>
class TWeakCounter
{
	friend class TSharedCounter<Mode>;

public:
	TWeakCounter() = default;
	TWeakCounter(const TWeakCounter& Other)
		: TWeakCounter(Other.Controller)
	{
	}
	TWeakCounter(TWeakCounter&& Other)
		: Controller(Other.Controller)
	{
		Other.Controller = nullptr;
	}
	TWeakCounter(const TSharedCounter<Mode>& Shared)
		: TWeakCounter(Shared.Controller)
	{
	}
	TWeakCounter& operator=(const TWeakCounter& Other)
	{
		TWeakCounter Copy(Other);
		Swap(Copy);
		return *this;
	}
	~TWeakCounter()
	{
		if (Controller)
		{
			Controller->ReleaseWeak();
		}
	}

	void Swap(TWeakCounter& Other) { ::Swap(Controller, Other.Controller); }
	bool IsAlive() const { return Controller && Controller->GetSharedCount() > 0; }

private:
	explicit TWeakCounter(TReferenceController<Mode>* InController)
		: Controller(InController)
	{
		if (Controller)
		{
			Controller->AddWeak();
		}
	}

	TReferenceController<Mode>* Controller = nullptr;
};

template <ESPMode Mode>
TSharedCounter<Mode>::TSharedCounter(const TWeakCounter<Mode>& Weak)
	: Controller(Weak.Controller && Weak.Controller->TryAddShared() ? Weak.Controller : nullptr)
{
}

/** What MakeShareable gives: an object on its way into a shared pointer. */
template <class ObjectType>
struct TRawPtrProxy
{
	using FObject = ObjectType;
	ObjectType* Object;
};

template <class ObjectType, class DeleterType>
struct TRawPtrProxyWithDeleter
{
	using FObject = ObjectType;
	ObjectType* Object;
	DeleterType Deleter;
};

template <class T>
inline constexpr bool IsRawPtrProxy = false;
template <class ObjectType>
inline constexpr bool IsRawPtrProxy<TRawPtrProxy<ObjectType>> = true;
template <class ObjectType, class DeleterType>
inline constexpr bool IsRawPtrProxy<TRawPtrProxyWithDeleter<ObjectType, DeleterType>> = true;

template <class ProxyType, class ObjectType>
concept IsRawPtrProxyFor = IsRawPtrProxy<ProxyType> && std::is_convertible_v<typename ProxyType::FObject*, ObjectType*>;

template <class T>
inline constexpr bool IsSharedRef = false;
template <class ObjectType, ESPMode Mode>
inline constexpr bool IsSharedRef<TSharedRef<ObjectType, Mode>> = true;

template <ESPMode Mode, class ObjectType>
TReferenceController<Mode>* MakeController(const TRawPtrProxy<ObjectType>& Proxy)
{
	const auto Delete = [](ObjectType* Object) { delete Object; };
	return new TExternalController<ObjectType, decltype(Delete), Mode>(Proxy.Object, Delete);
}

template <ESPMode Mode, class ObjectType, class DeleterType>
TReferenceController<Mode>* MakeController(const TRawPtrProxyWithDeleter<ObjectType, DeleterType>& Proxy)
{
	return new TExternalController<ObjectType, DeleterType, Mode>(Proxy.Object, Proxy.Deleter);
}

/** Tells an object with TSharedFromThis who owns it; chosen when there is exactly one such base. */
template <class SharedType, class ObjectType, class BaseType, ESPMode Mode>
void EnableSharedFromThis(
	const SharedType* SharedPointer, ObjectType* Object, const TSharedFromThis<BaseType, Mode>* Base)
{
	if (Base)
	{
		Base->UpdateWeakReferenceInternal(SharedPointer, const_cast<std::remove_const_t<ObjectType>*>(Object));
	}
}

/** Other objects need not know. */
inline void EnableSharedFromThis(...) {}

} // namespace SharedPointerInternals
