// SPDX-License-Identifier: MIT
/** Pointers with one owner. */
#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"
#include "Templates/UnrealTypeTraits.h"

template <typename T>
struct TDefaultDelete
{
	TDefaultDelete() = default;
	template <typename U>
	requires(std::is_convertible_v<U*, T*>) TDefaultDelete(const TDefaultDelete<U>&) {}
	void operator()(T* Ptr) const
	{
		static_assert(sizeof(T) > 0, "the type must be complete where its pointer is deleted");
		delete Ptr;
	}
};
template <typename T>
struct TDefaultDelete<T[]>
{
	void operator()(T* Ptr) const { delete[] Ptr; }
};

/** Owns an object, or an array for T[], and ends it with itself. */
template <typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr : private Deleter
{
	template <typename OtherT, typename OtherDeleter>
	friend class TUniquePtr;

public:
	using ElementType = std::remove_extent_t<T>;

	TUniquePtr() = default;
	TUniquePtr(decltype(nullptr)) {}
	explicit TUniquePtr(ElementType* InPtr)
		: Ptr(InPtr)
	{
	}
	TUniquePtr(ElementType* InPtr, Deleter InDeleter)
		: Deleter(MoveTemp(InDeleter))
		, Ptr(InPtr)
	{
	}
	TUniquePtr(TUniquePtr&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{
	}
	template <typename OtherT, typename OtherDeleter>
	requires(std::is_convertible_v<OtherT*, ElementType*> && !std::is_array_v<T>)
		TUniquePtr(TUniquePtr<OtherT, OtherDeleter>&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{
	}
	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Release());
			GetDeleter() = MoveTemp(Other.GetDeleter());
		}
		return *this;
	}
	TUniquePtr& operator=(decltype(nullptr))
	{
		Reset();
		return *this;
	}
	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;
	~TUniquePtr() { Reset(); }

	ElementType* Get() const { return Ptr; }
	bool IsValid() const { return Ptr != nullptr; }
	explicit operator bool() const { return Ptr != nullptr; }
	ElementType* operator->() const { return Ptr; }
	std::add_lvalue_reference_t<ElementType> operator*() const { return *Ptr; }
	ElementType& operator[](SIZE_T Index) const requires(std::is_array_v<T>) { return Ptr[Index]; }
	/** Gives the object to the caller. */
	ElementType* Release()
	{
		ElementType* Result = Ptr;
		Ptr = nullptr;
		return Result;
	}
	void Reset(ElementType* InPtr = nullptr)
	{
		ElementType* Former = Ptr;
		Ptr = InPtr;
		if (Former)
		{
			GetDeleter()(Former);
		}
	}
	Deleter& GetDeleter() { return *this; }

	friend bool operator==(const TUniquePtr& A, const TUniquePtr& B) { return A.Ptr == B.Ptr; }
	friend bool operator==(const TUniquePtr& A, decltype(nullptr)) { return A.Ptr == nullptr; }
	friend uint32 GetTypeHash(const TUniquePtr& Pointer) { return PointerHash(Pointer.Ptr); }

private:
	ElementType* Ptr = nullptr;
};

template <typename T, typename... ArgTypes>
requires(!std::is_array_v<T>) TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(Forward<ArgTypes>(Args)...));
}
template <typename T>
requires(std::is_unbounded_array_v<T>) TUniquePtr<T> MakeUnique(SIZE_T Size)
{
	return TUniquePtr<T>(new std::remove_extent_t<T>[Size]());
}

template <typename T>
struct UE::Core::Private::TCanBitwiseRelocate<TUniquePtr<T>>
{
	static constexpr bool Value = true;
};
