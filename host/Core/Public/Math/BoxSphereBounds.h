// SPDX-License-Identifier: MIT
/** Box and sphere around one origin. */
#pragma once

#include "Math/Box.h"
#include "Math/MathFwd.h"
#include "Math/Sphere.h"
#include "Math/Vector.h"

namespace UE::Math
{

/** Bounds of a shape: a box along the axes and a sphere, both around Origin. Lengths in centimetres. */
template <typename T, typename TExtent>
struct TBoxSphereBounds
{
	using FReal = T;

	TVector<T> Origin;
	/** Half the size of the box. */
	TVector<TExtent> BoxExtent;
	TExtent SphereRadius;

	/** Leaves the fields uninitialised. */
	TBoxSphereBounds() = default;
	/** Zero. */
	explicit constexpr TBoxSphereBounds(EForceInit)
		: Origin(T(0))
		, BoxExtent(TExtent(0))
		, SphereRadius(0)
	{
	}
	constexpr TBoxSphereBounds(const TVector<T>& InOrigin, const TVector<TExtent>& InBoxExtent, TExtent InSphereRadius)
		: Origin(InOrigin)
		, BoxExtent(InBoxExtent)
		, SphereRadius(InSphereRadius)
	{
	}
	/** Of a box; the sphere runs through its corners. */
	TBoxSphereBounds(const TBox<T>& Box)
	{
		TVector<T> Extent;
		Box.GetCenterAndExtents(Origin, Extent);
		BoxExtent = TVector<TExtent>(Extent);
		SphereRadius = BoxExtent.Size();
	}
	/** Of a sphere; the box holds it. */
	TBoxSphereBounds(const TSphere<T>& Sphere)
		: Origin(Sphere.Center)
		, BoxExtent(static_cast<TExtent>(Sphere.W))
		, SphereRadius(static_cast<TExtent>(Sphere.W))
	{
	}
	/** Of a box and a sphere around the same shape; the result's sphere is the smaller that holds the shape. */
	TBoxSphereBounds(const TBox<T>& Box, const TSphere<T>& Sphere)
		: TBoxSphereBounds(Box)
	{
		const TExtent Reach = static_cast<TExtent>(TVector<T>::Dist(Sphere.Center, Origin) + Sphere.W);
		SphereRadius = FMath::Min(SphereRadius, Reach);
	}
	/** Around Points[0..NumPoints): the centre of their box and the farthest point from it. */
	TBoxSphereBounds(const TVector<T>* Points, uint32 NumPoints)
		: TBoxSphereBounds(TBox<T>(Points, static_cast<int32>(NumPoints)))
	{
		T FarthestSquared = T(0);
		for (uint32 Index = 0; Index < NumPoints; ++Index)
		{
			FarthestSquared = FMath::Max(FarthestSquared, TVector<T>::DistSquared(Points[Index], Origin));
		}
		SphereRadius = static_cast<TExtent>(FMath::Sqrt(FarthestSquared));
	}
	template <typename FArg, typename FArgExtent>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TBoxSphereBounds(
		const TBoxSphereBounds<FArg, FArgExtent>& From)
		: Origin(From.Origin)
		, BoxExtent(From.BoxExtent)
		, SphereRadius(static_cast<TExtent>(From.SphereRadius))
	{
	}

	constexpr bool operator==(const TBoxSphereBounds& Other) const
	{
		return Origin == Other.Origin && BoxExtent == Other.BoxExtent && SphereRadius == Other.SphereRadius;
	}

	/** Bounds around both. */
	TBoxSphereBounds operator+(const TBoxSphereBounds& Other) const
	{
		TBoxSphereBounds Result(GetBox() + Other.GetBox());
		const TExtent Reach = static_cast<TExtent>(FMath::Max(TVector<T>::Dist(Result.Origin, Origin) + SphereRadius,
			TVector<T>::Dist(Result.Origin, Other.Origin) + Other.SphereRadius));
		Result.SphereRadius = FMath::Min(Result.SphereRadius, Reach);
		return Result;
	}

	TBox<T> GetBox() const { return TBox<T>(Origin - TVector<T>(BoxExtent), Origin + TVector<T>(BoxExtent)); }
	TSphere<T> GetSphere() const { return TSphere<T>(Origin, static_cast<T>(SphereRadius)); }
	/** Box and sphere enlarged by ExpandAmount to all sides. */
	TBoxSphereBounds ExpandBy(TExtent ExpandAmount) const
	{
		return TBoxSphereBounds(Origin, BoxExtent + TVector<TExtent>(ExpandAmount), SphereRadius + ExpandAmount);
	}
	/** Bounds of the mapped shape: the sphere grows with the largest axis scale. */
	TBoxSphereBounds TransformBy(const TMatrix<T>& M) const;
	TBoxSphereBounds TransformBy(const TTransform<T>& M) const;
	bool ContainsNaN() const
	{
		return Origin.ContainsNaN() || BoxExtent.ContainsNaN() || !FMath::IsFinite(SphereRadius);
	}

	/** "Origin=X=... Y=... Z=..., BoxExtent=(X=...), SphereRadius=(1.000000)" */
	FString ToString() const;
};

} // namespace UE::Math
