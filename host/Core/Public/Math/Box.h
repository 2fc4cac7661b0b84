// SPDX-License-Identifier: MIT
/** Box along the axes. */
#pragma once

#include "Containers/ContainersFwd.h"
#include "Math/MathFwd.h"
#include "Math/Vector.h"

namespace UE::Math
{

/**
 * A box along the axes, or none at all: a box that is not valid holds no point, and the first thing added to it
 * becomes the box.
 */
template <typename T>
struct TBox
{
	using FReal = T;

	TVector<T> Min;
	TVector<T> Max;
	/** Whether there is a box. */
	uint8 IsValid;

	/** Invalid; the corners are not to be read. */
	constexpr TBox()
		: TBox(ForceInit)
	{
	}
	/** Leaves everything uninitialised. */
	explicit TBox(ENoInit) {}
	/** Invalid, with both corners zero. */
	explicit constexpr TBox(EForceInit)
		: Min(T(0))
		, Max(T(0))
		, IsValid(0)
	{
	}
	/** Valid, whatever the corners are. */
	constexpr TBox(const TVector<T>& InMin, const TVector<T>& InMax)
		: Min(InMin)
		, Max(InMax)
		, IsValid(1)
	{
	}
	/** Around Points[0..Count). Invalid with zero corners when Count is 0. */
	TBox(const TVector<T>* Points, int32 Count)
		: TBox(ForceInit)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			*this += Points[Index];
		}
	}
	/** Around all points. Invalid with zero corners when there are none. */
	template <typename AllocatorType>
	explicit TBox(const TArray<TVector<T>, AllocatorType>& Points)
		: TBox(Points.GetData(), Points.Num())
	{
	}
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TBox(const TBox<FArg>& From)
		: Min(From.Min)
		, Max(From.Max)
		, IsValid(From.IsValid)
	{
	}

	/** Two invalid boxes are equal, whatever their corners. */
	constexpr bool operator==(const TBox& Other) const
	{
		return (!IsValid && !Other.IsValid) || (IsValid && Other.IsValid && Min == Other.Min && Max == Other.Max);
	}
	bool Equals(const TBox& Other, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return Min.Equals(Other.Min, Tolerance) && Max.Equals(Other.Max, Tolerance);
	}

	/** Grows to hold the point; an invalid box becomes the point. */
	TBox& operator+=(const TVector<T>& Other)
	{
		if (IsValid)
		{
			Min = Min.ComponentMin(Other);
			Max = Max.ComponentMax(Other);
		}
		else
		{
			Min = Max = Other;
			IsValid = 1;
		}
		return *this;
	}
	/** Grows to hold the other box; an invalid one becomes the other, and an invalid other changes nothing. */
	TBox& operator+=(const TBox& Other)
	{
		if (IsValid && Other.IsValid)
		{
			Min = Min.ComponentMin(Other.Min);
			Max = Max.ComponentMax(Other.Max);
		}
		else if (Other.IsValid)
		{
			*this = Other;
		}
		return *this;
	}
	TBox operator+(const TVector<T>& Other) const { return TBox(*this) += Other; }
	TBox operator+(const TBox& Other) const { return TBox(*this) += Other; }

	/** Zero and invalid. */
	void Init() { *this = TBox(ForceInit); }

	/** Box from Min - W to Max + W, valid even when this is not. */
	TBox ExpandBy(T W) const { return ExpandBy(TVector<T>(W)); }
	TBox ExpandBy(const TVector<T>& V) const { return TBox(Min - V, Max + V); }
	TBox ShiftBy(const TVector<T>& Offset) const { return TBox(Min + Offset, Max + Offset); }
	/** Box of the same size around Destination. */
	TBox MoveTo(const TVector<T>& Destination) const { return ShiftBy(Destination - GetCenter()); }

	TVector<T> GetCenter() const { return (Min + Max) * T(0.5); }
	/** Half the size. */
	TVector<T> GetExtent() const { return (Max - Min) * T(0.5); }
	TVector<T> GetSize() const { return Max - Min; }
	/** Extents is half the size, Center the minimum plus that. */
	void GetCenterAndExtents(TVector<T>& Center, TVector<T>& Extents) const
	{
		Extents = GetExtent();
		Center = Min + Extents;
	}
	T GetVolume() const { return GetSize().X * GetSize().Y * GetSize().Z; }

	/** Whether the point lies in the box and not on its surface. */
	bool IsInside(const TVector<T>& In) const
	{
		return In.X > Min.X && In.X < Max.X && In.Y > Min.Y && In.Y < Max.Y && In.Z > Min.Z && In.Z < Max.Z;
	}
	/** Whether the point lies in the box or on its surface. */
	bool IsInsideOrOn(const TVector<T>& In) const
	{
		return In.X >= Min.X && In.X <= Max.X && In.Y >= Min.Y && In.Y <= Max.Y && In.Z >= Min.Z && In.Z <= Max.Z;
	}
	/** Whether the other box lies in this one and does not touch its surface. */
	bool IsInside(const TBox& Other) const { return IsInside(Other.Min) && IsInside(Other.Max); }
	/** Whether the boxes have a point in common. */
	bool Intersect(const TBox& Other) const
	{
		return Min.X <= Other.Max.X && Other.Min.X <= Max.X && Min.Y <= Other.Max.Y && Other.Min.Y <= Max.Y &&
			   Min.Z <= Other.Max.Z && Other.Min.Z <= Max.Z;
	}

	/** Box around the eight mapped corners; invalid when this is. */
	TBox TransformBy(const TMatrix<T>& M) const;
	TBox TransformBy(const TTransform<T>& M) const;

	static TBox BuildAABB(const TVector<T>& Origin, const TVector<T>& Extent)
	{
		return TBox(Origin - Extent, Origin + Extent);
	}

	/** "IsValid=true, Min=(X=...), Max=(X=...)" */
	FString ToString() const;
};

} // namespace UE::Math
