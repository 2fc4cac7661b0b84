// SPDX-License-Identifier: MIT
/** Readable forms of the math types. */

#include "Containers/UnrealString.h"
#include "Math/UnrealMath.h"

namespace UE::Math
{

template <typename T>
FString TVector2<T>::ToString() const
{
	return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), double(X), double(Y));
}

template <typename T>
FString TVector<T>::ToString() const
{
	return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), double(X), double(Y), double(Z));
}

template <typename T>
FString TVector4<T>::ToString() const
{
	return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f W=%3.3f"), double(X), double(Y), double(Z), double(W));
}

template <typename T>
FString TQuat<T>::ToString() const
{
	return FString::Printf(TEXT("X=%.9f Y=%.9f Z=%.9f W=%.9f"), double(X), double(Y), double(Z), double(W));
}

template <typename T>
FString TRotator<T>::ToString() const
{
	return FString::Printf(TEXT("P=%f Y=%f R=%f"), double(Pitch), double(Yaw), double(Roll));
}

template <typename T>
FString TMatrix<T>::ToString() const
{
	FString Result;
	for (const auto& Row : M)
	{
		Result +=
			FString::Printf(TEXT("[%g %g %g %g] "), double(Row[0]), double(Row[1]), double(Row[2]), double(Row[3]));
	}
	return Result;
}

template <typename T>
FString TTransform<T>::ToString() const
{
	const TRotator<T> Angles = Rotator();
	return FString::Printf(TEXT("%f,%f,%f|%f,%f,%f|%f,%f,%f"), double(Translation.X), double(Translation.Y),
		double(Translation.Z), double(Angles.Pitch), double(Angles.Yaw), double(Angles.Roll), double(Scale3D.X),
		double(Scale3D.Y), double(Scale3D.Z));
}

template <typename T>
FString TBox<T>::ToString() const
{
	return FString::Printf(TEXT("IsValid=%s, Min=(%s), Max=(%s)"), IsValid ? TEXT("true") : TEXT("false"),
		*Min.ToString(), *Max.ToString());
}

template <typename T, typename TExtent>
FString TBoxSphereBounds<T, TExtent>::ToString() const
{
	return FString::Printf(TEXT("Origin=%s, BoxExtent=(%s), SphereRadius=(%f)"), *Origin.ToString(),
		*BoxExtent.ToString(), double(SphereRadius));
}

template <typename IntType>
FString TIntPoint<IntType>::ToString() const
{
	return FString::Printf(TEXT("X=%d Y=%d"), X, Y);
}

template <typename IntType>
FString TIntVector3<IntType>::ToString() const
{
	return FString::Printf(TEXT("X=%d Y=%d Z=%d"), X, Y, Z);
}

#define INSTANTIATE_TO_STRING(T)                                                                                       \
	template FString TVector2<T>::ToString() const;                                                                    \
	template FString TVector<T>::ToString() const;                                                                     \
	template FString TVector4<T>::ToString() const;                                                                    \
	template FString TQuat<T>::ToString() const;                                                                       \
	template FString TRotator<T>::ToString() const;                                                                    \
	template FString TMatrix<T>::ToString() const;                                                                     \
	template FString TTransform<T>::ToString() const;                                                                  \
	template FString TBox<T>::ToString() const;                                                                        \
	template FString TBoxSphereBounds<T, T>::ToString() const;

INSTANTIATE_TO_STRING(float)
INSTANTIATE_TO_STRING(double)
template FString TIntPoint<int32>::ToString() const;
template FString TIntVector3<int32>::ToString() const;

} // namespace UE::Math

FString FLinearColor::ToString() const
{
	return FString::Printf(TEXT("(R=%f,G=%f,B=%f,A=%f)"), double(R), double(G), double(B), double(A));
}

FString FColor::ToString() const
{
	return FString::Printf(TEXT("(R=%d,G=%d,B=%d,A=%d)"), int32(R), int32(G), int32(B), int32(A));
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), int32(R), int32(G), int32(B), int32(A));
}
