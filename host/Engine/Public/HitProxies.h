// SPDX-License-Identifier: MIT
// What lies under a point of a picture.
#pragma once

#include "CoreMinimal.h"

/** The class of a hit proxy. */
class HHitProxyType
{
public:
	HHitProxyType(HHitProxyType* InParent, const TCHAR* InName)
		: Parent(InParent)
		, Name(InName)
	{
	}

	HHitProxyType* GetParent() const { return Parent; }
	const TCHAR* GetName() const { return Name; }

private:
	HHitProxyType* Parent; // null for the base
	const TCHAR* Name;
};

/** Base of what a click can hit. Shared by reference count in pictures, made by whoever draws. */
class HHitProxy
{
public:
	virtual ~HHitProxy() = default;

	static HHitProxyType* StaticGetType();
	virtual HHitProxyType* GetType() const { return StaticGetType(); }
	/** True for its own type and those that it derives from. */
	bool IsA(const HHitProxyType* TestType) const;
};

/** Whoever collects the hit proxies of a picture that is drawn for them alone. */
class FHitProxyConsumer
{
public:
	virtual ~FHitProxyConsumer() = default;

	/** Takes the proxy over. */
	virtual void AddHitProxy(HHitProxy* HitProxy) = 0;
};

/** Stands in the class body of a hit proxy that derives from another. */
#define DECLARE_HIT_PROXY()                                                                                            \
public:                                                                                                                \
	static HHitProxyType* StaticGetType();                                                                             \
	virtual HHitProxyType* GetType() const override;

#define IMPLEMENT_HIT_PROXY(TClass, TParentClass)                                                                      \
	HHitProxyType* TClass::StaticGetType()                                                                             \
	{                                                                                                                  \
		static HHitProxyType StaticType(TParentClass::StaticGetType(), TEXT(#TClass));                                 \
		return &StaticType;                                                                                            \
	}                                                                                                                  \
	HHitProxyType* TClass::GetType() const                                                                             \
	{                                                                                                                  \
		return StaticGetType();                                                                                        \
	}

/** The proxy as the derived class; null when it is null or of another class. */
template <typename HitProxyType>
HitProxyType* HitProxyCast(HHitProxy* Src)
{
	return Src && Src->IsA(HitProxyType::StaticGetType()) ? static_cast<HitProxyType*>(Src) : nullptr;
}
