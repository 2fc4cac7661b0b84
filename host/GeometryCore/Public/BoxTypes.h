// SPDX-License-Identifier: MIT
/** Axis-aligned box of the geometry library. */
#pragma once

#include "Math/Box.h"
#include "Math/NumericLimits.h"
#include "Math/Vector.h"

namespace UE::Geometry
{

/** A box along the axes. The empty box has its minimum above its maximum and holds nothing. */
template <typename RealType>
struct TAxisAlignedBox3
{
	UE::Math::TVector<RealType> Min;
	UE::Math::TVector<RealType> Max;

	/** Empty. */
	constexpr TAxisAlignedBox3()
		: Min(TNumericLimits<RealType>::Max())
		, Max(TNumericLimits<RealType>::Lowest())
	{
	}
	constexpr TAxisAlignedBox3(const UE::Math::TVector<RealType>& InMin, const UE::Math::TVector<RealType>& InMax)
		: Min(InMin)
		, Max(InMax)
	{
	}
	/** Empty when the box is not valid. */
	explicit TAxisAlignedBox3(const UE::Math::TBox<RealType>& Box)
		: TAxisAlignedBox3()
	{
		if (Box.IsValid)
		{
			Min = Box.Min;
			Max = Box.Max;
		}
	}

	static constexpr TAxisAlignedBox3 Empty() { return TAxisAlignedBox3(); }

	/** Invalid with zero corners when this is empty. */
	explicit operator UE::Math::TBox<RealType>() const
	{
		return IsEmpty() ? UE::Math::TBox<RealType>(ForceInit) : UE::Math::TBox<RealType>(Min, Max);
	}

	constexpr bool operator==(const TAxisAlignedBox3& Other) const { return Min == Other.Min && Max == Other.Max; }
	constexpr bool IsEmpty() const { return Max.X < Min.X || Max.Y < Min.Y || Max.Z < Min.Z; }

	/** Grows to hold the point. */
	void Contain(const UE::Math::TVector<RealType>& V)
	{
		Min = Min.ComponentMin(V);
		Max = Max.ComponentMax(V);
	}
	/** Grows to hold the other box. */
	void Contain(const TAxisAlignedBox3& Other)
	{
		Min = Min.ComponentMin(Other.Min);
		Max = Max.ComponentMax(Other.Max);
	}
	/** Whether the point lies in the box or on its surface. */
	constexpr bool Contains(const UE::Math::TVector<RealType>& V) const
	{
		return Min.X <= V.X && Min.Y <= V.Y && Min.Z <= V.Z && Max.X >= V.X && Max.Y >= V.Y && Max.Z >= V.Z;
	}

	UE::Math::TVector<RealType> Center() const { return (Min + Max) * RealType(0.5); }
	/** Half the size. */
	UE::Math::TVector<RealType> Extents() const { return (Max - Min) * RealType(0.5); }
	UE::Math::TVector<RealType> Diagonal() const { return Max - Min; }
	/** Sizes along X, Y and Z, 0 when empty. */
	RealType Width() const { return FMath::Max(Max.X - Min.X, RealType(0)); }
	RealType Height() const { return FMath::Max(Max.Y - Min.Y, RealType(0)); }
	RealType Depth() const { return FMath::Max(Max.Z - Min.Z, RealType(0)); }
	RealType MaxDim() const { return FMath::Max3(Width(), Height(), Depth()); }
};

using FAxisAlignedBox3f = TAxisAlignedBox3<float>;
using FAxisAlignedBox3d = TAxisAlignedBox3<double>;

} // namespace UE::Geometry
