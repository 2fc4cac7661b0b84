// SPDX-License-Identifier: MIT
/** Sphere. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/Vector.h"

namespace UE::Math
{

/** A sphere around Center with the radius W. */
template <typename T>
struct TSphere
{
	using FReal = T;

	TVector<T> Center;
	T W;

	/** Leaves the fields uninitialised. */
	TSphere() = default;
	/** At the origin, with no size. */
	explicit constexpr TSphere(EForceInit)
		: Center(T(0))
		, W(0)
	{
	}
	explicit constexpr TSphere(T InRadius)
		: Center(T(0))
		, W(InRadius)
	{
	}
	constexpr TSphere(const TVector<T>& InCenter, T InRadius)
		: Center(InCenter)
		, W(InRadius)
	{
	}
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TSphere(const TSphere<FArg>& From)
		: Center(From.Center)
		, W(static_cast<T>(From.W))
	{
	}

	constexpr bool operator==(const TSphere& Other) const { return Center == Other.Center && W == Other.W; }

	/** Whether the point lies in the sphere or on its surface, which is Tolerance thick. */
	bool IsInside(const TVector<T>& In, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return TVector<T>::DistSquared(Center, In) <= FMath::Square(W + Tolerance);
	}
};

} // namespace UE::Math
