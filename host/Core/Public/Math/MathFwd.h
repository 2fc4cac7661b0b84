// SPDX-License-Identifier: MIT
/**
 * Forward declarations and short names of the math types. No suffix and `d` mean 64-bit components, `f` means 32-bit.
 */
#pragma once

#include "CoreTypes.h"

namespace UE::Math
{
template <typename T>
struct TVector2;
template <typename T>
struct TVector;
template <typename T>
struct TVector4;
template <typename T>
struct TQuat;
template <typename T>
struct TRotator;
template <typename T>
struct TMatrix;
template <typename T>
struct TTransform;
template <typename T>
struct TBox;
template <typename T>
struct TSphere;
template <typename T, typename TExtent = T>
struct TBoxSphereBounds;
template <typename IntType>
struct TIntPoint;
template <typename IntType>
struct TIntVector3;
} // namespace UE::Math

using FVector = UE::Math::TVector<double>;
using FVector3d = UE::Math::TVector<double>;
using FVector3f = UE::Math::TVector<float>;

using FVector2D = UE::Math::TVector2<double>;
using FVector2d = UE::Math::TVector2<double>;
using FVector2f = UE::Math::TVector2<float>;

using FVector4 = UE::Math::TVector4<double>;
using FVector4d = UE::Math::TVector4<double>;
using FVector4f = UE::Math::TVector4<float>;

using FQuat = UE::Math::TQuat<double>;
using FQuat4d = UE::Math::TQuat<double>;
using FQuat4f = UE::Math::TQuat<float>;

using FRotator = UE::Math::TRotator<double>;
using FRotator3d = UE::Math::TRotator<double>;
using FRotator3f = UE::Math::TRotator<float>;

using FMatrix = UE::Math::TMatrix<double>;
using FMatrix44d = UE::Math::TMatrix<double>;
using FMatrix44f = UE::Math::TMatrix<float>;

using FTransform = UE::Math::TTransform<double>;
using FTransform3d = UE::Math::TTransform<double>;
using FTransform3f = UE::Math::TTransform<float>;

using FBox = UE::Math::TBox<double>;
using FBox3d = UE::Math::TBox<double>;
using FBox3f = UE::Math::TBox<float>;

using FSphere = UE::Math::TSphere<double>;
using FSphere3d = UE::Math::TSphere<double>;
using FSphere3f = UE::Math::TSphere<float>;

using FBoxSphereBounds = UE::Math::TBoxSphereBounds<double, double>;
using FBoxSphereBounds3d = UE::Math::TBoxSphereBounds<double, double>;
using FBoxSphereBounds3f = UE::Math::TBoxSphereBounds<float, float>;

using FIntPoint = UE::Math::TIntPoint<int32>;
using FIntVector = UE::Math::TIntVector3<int32>;
using FIntVector3 = UE::Math::TIntVector3<int32>;

struct FColor;
struct FLinearColor;
