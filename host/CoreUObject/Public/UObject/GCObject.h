// SPDX-License-Identifier: MIT
/** Reporting references to the garbage collection. */
#pragma once

#include "Containers/Map.h"
#include "Containers/Set.h"
#include "UObject/Object.h"

#include <type_traits>

/**
 * Receives the references that something holds. A reference to garbage is set to null by a collection, which is why
 * all arguments are taken by reference.
 */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	template <class T>
	void AddReferencedObject(
		T*& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*(UObject**)&Object, ReferencingObject, ReferencingProperty);
	}
	template <class T>
	void AddReferencedObject(TObjectPtr<T>& Object, const UObject* ReferencingObject = nullptr,
		const FProperty* ReferencingProperty = nullptr)
	{
		static_assert(sizeof(TObjectPtr<T>) == sizeof(UObject*));
		HandleObjectReference(*(UObject**)&Object, ReferencingObject, ReferencingProperty);
	}

	template <class T>
	void AddReferencedObjects(
		TArray<T>& Objects, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (T& Object : Objects)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}
	/** Elements that are garbage leave the set. */
	template <class T>
	void AddReferencedObjects(
		TSet<T>& Objects, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (auto It = Objects.CreateIterator(); It; ++It)
		{
			T Object = *It;
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
			if (!Object && *It)
			{
				It.RemoveCurrent();
			}
		}
	}
	/** Objects may be the keys, the values or both. Pairs whose key is garbage leave the map. */
	template <class K, class V>
	void AddReferencedObjects(
		TMap<K, V>& Objects, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (auto It = Objects.CreateIterator(); It; ++It)
		{
			if constexpr (IsReference<V>)
			{
				AddReferencedObject(It.Value(), ReferencingObject, ReferencingProperty);
			}
			if constexpr (IsReference<K>)
			{
				K Key = It.Key();
				AddReferencedObject(Key, ReferencingObject, ReferencingProperty);
				if (!Key && It.Key())
				{
					It.RemoveCurrent();
				}
			}
		}
	}

protected:
	/** Called for each reference, null ones included. */
	virtual void HandleObjectReference(
		UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) = 0;

private:
	template <class T>
	struct TIsObjectPtr : std::false_type
	{
	};
	template <class T>
	struct TIsObjectPtr<TObjectPtr<T>> : std::true_type
	{
	};
	template <class T>
	static constexpr bool IsReference = std::is_pointer_v<T> || TIsObjectPtr<T>::value;
};

/** Base of plain classes that keep objects alive. Lives in a list that collections ask; may be copied. */
class COREUOBJECT_API FGCObject
{
public:
	FGCObject();
	FGCObject(const FGCObject& Other);
	FGCObject& operator=(const FGCObject&) { return *this; }
	virtual ~FGCObject();

	/** Reports every object that this one keeps alive. */
	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;
	/** Name for reports about who keeps an object alive. */
	virtual FString GetReferencerName() const = 0;

private:
	friend struct Host::FObjectAccess;

	FGCObject* Previous = nullptr;
	FGCObject* Next = nullptr;
};
