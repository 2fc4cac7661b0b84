// SPDX-License-Identifier: MIT
/** Constants and scalar functions of the math library. */
#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include <cmath>
#include <type_traits>

#define UE_PI (3.1415926535897932f)
#define UE_SMALL_NUMBER (1.e-8f)
#define UE_KINDA_SMALL_NUMBER (1.e-4f)
#define UE_BIG_NUMBER (3.4e+38f)
#define UE_DELTA (0.00001f)
#define UE_EULERS_NUMBER (2.71828182845904523536f)
#define UE_INV_PI (0.31830988618f)
#define UE_HALF_PI (1.57079632679f)
#define UE_TWO_PI (6.28318530717f)
#define UE_THRESH_VECTOR_NORMALIZED (0.01f)
#define UE_THRESH_QUAT_NORMALIZED (0.01f)

#define UE_DOUBLE_PI (3.141592653589793238462643383279502884197169399)
#define UE_DOUBLE_SMALL_NUMBER (1.e-8)
#define UE_DOUBLE_KINDA_SMALL_NUMBER (1.e-4)
#define UE_DOUBLE_HALF_PI (1.57079632679489661923132169163975144)
#define UE_DOUBLE_TWO_PI (6.28318530717958647692528676655900577)

#define PI UE_PI
#define SMALL_NUMBER UE_SMALL_NUMBER
#define KINDA_SMALL_NUMBER UE_KINDA_SMALL_NUMBER
#define BIG_NUMBER UE_BIG_NUMBER

/** Scalar functions. Angles are radians unless the name says degrees. */
struct FMath
{
	/** pi in the precision of T. */
	template <typename T>
	static constexpr T Pi()
	{
		return static_cast<T>(3.14159265358979323846264338327950288L);
	}

	// Selection and sign. Arguments of different arithmetic types meet in their common type.

	template <typename A, typename B>
	static constexpr std::common_type_t<A, B> Max(const A ValueA, const B ValueB)
	{
		using C = std::common_type_t<A, B>;
		return static_cast<C>(ValueB) <= static_cast<C>(ValueA) ? static_cast<C>(ValueA) : static_cast<C>(ValueB);
	}
	template <typename A, typename B>
	static constexpr std::common_type_t<A, B> Min(const A ValueA, const B ValueB)
	{
		using C = std::common_type_t<A, B>;
		return static_cast<C>(ValueA) <= static_cast<C>(ValueB) ? static_cast<C>(ValueA) : static_cast<C>(ValueB);
	}
	template <typename T>
	static constexpr T Max3(const T A, const T B, const T C)
	{
		return Max(Max(A, B), C);
	}
	template <typename T>
	static constexpr T Min3(const T A, const T B, const T C)
	{
		return Min(Min(A, B), C);
	}

	/** X limited to MinValue..MaxValue; MinValue when the range is empty. */
	template <typename T, typename L, typename H>
	static constexpr std::common_type_t<T, L, H> Clamp(const T X, const L MinValue, const H MaxValue)
	{
		return Max(Min(X, MaxValue), MinValue);
	}

	template <typename T>
	static constexpr T Abs(const T A)
	{
		return A < T(0) ? -A : A;
	}
	static float Abs(const float A) { return std::fabs(A); }
	static double Abs(const double A) { return std::fabs(A); }

	/** -1, 0 or 1. */
	template <typename T>
	static constexpr T Sign(const T A)
	{
		return A > T(0) ? T(1) : (A < T(0) ? T(-1) : T(0));
	}
	template <typename T>
	static constexpr T Square(const T A)
	{
		return A * A;
	}
	template <typename T>
	static constexpr T Cube(const T A)
	{
		return A * A * A;
	}

	/** Whether MinValue <= TestValue < MaxValue. */
	template <typename T>
	static constexpr bool IsWithin(const T& TestValue, const T& MinValue, const T& MaxValue)
	{
		return TestValue >= MinValue && TestValue < MaxValue;
	}
	/** Whether MinValue <= TestValue <= MaxValue. */
	template <typename T>
	static constexpr bool IsWithinInclusive(const T& TestValue, const T& MinValue, const T& MaxValue)
	{
		return TestValue >= MinValue && TestValue <= MaxValue;
	}

	// Roots, powers and logarithms.

	static float Sqrt(float Value) { return std::sqrt(Value); }
	static double Sqrt(double Value) { return std::sqrt(Value); }
	static float InvSqrt(float Value) { return 1.0f / std::sqrt(Value); }
	static double InvSqrt(double Value) { return 1.0 / std::sqrt(Value); }
	static float Pow(float A, float B) { return std::pow(A, B); }
	static double Pow(double A, double B) { return std::pow(A, B); }
	static float Exp(float Value) { return std::exp(Value); }
	static double Exp(double Value) { return std::exp(Value); }
	static float Loge(float Value) { return std::log(Value); }
	static double Loge(double Value) { return std::log(Value); }
	static float Log2(float Value) { return std::log2(Value); }
	static double Log2(double Value) { return std::log2(Value); }

	// Trigonometry.

	static float Sin(float Value) { return std::sin(Value); }
	static double Sin(double Value) { return std::sin(Value); }
	static float Cos(float Value) { return std::cos(Value); }
	static double Cos(double Value) { return std::cos(Value); }
	static float Tan(float Value) { return std::tan(Value); }
	static double Tan(double Value) { return std::tan(Value); }
	/** Arguments past -1..1 count as the nearer end. */
	static float Asin(float Value) { return std::asin(Clamp(Value, -1.0f, 1.0f)); }
	static double Asin(double Value) { return std::asin(Clamp(Value, -1.0, 1.0)); }
	static float Acos(float Value) { return std::acos(Clamp(Value, -1.0f, 1.0f)); }
	static double Acos(double Value) { return std::acos(Clamp(Value, -1.0, 1.0)); }
	static float Atan(float Value) { return std::atan(Value); }
	static double Atan(double Value) { return std::atan(Value); }
	static float Atan2(float Y, float X) { return std::atan2(Y, X); }
	static double Atan2(double Y, double X) { return std::atan2(Y, X); }
	template <typename T>
	static void SinCos(T* ScalarSin, T* ScalarCos, T Value)
	{
		*ScalarSin = Sin(Value);
		*ScalarCos = Cos(Value);
	}

	template <typename T>
	static constexpr T DegreesToRadians(const T DegVal)
	{
		return DegVal * (Pi<T>() / T(180));
	}
	template <typename T>
	static constexpr T RadiansToDegrees(const T RadVal)
	{
		return RadVal * (T(180) / Pi<T>());
	}

	/** The same angle in degrees between -180 and 180. */
	template <typename T>
	static T UnwindDegrees(T A)
	{
		const T Turned = std::fmod(A, T(360));
		return Turned > T(180) ? Turned - T(360) : (Turned < T(-180) ? Turned + T(360) : Turned);
	}

	// Rounding. The forms for float answer int32, the plain forms for double int64. Halves round towards plus infinity.

	static float FloorToFloat(float F) { return std::floor(F); }
	static double FloorToDouble(double F) { return std::floor(F); }
	static float Floor(float F) { return std::floor(F); }
	static double Floor(double F) { return std::floor(F); }
	static int32 FloorToInt32(float F) { return static_cast<int32>(std::floor(F)); }
	static int32 FloorToInt32(double F) { return static_cast<int32>(std::floor(F)); }
	static int64 FloorToInt64(double F) { return static_cast<int64>(std::floor(F)); }
	static int32 FloorToInt(float F) { return FloorToInt32(F); }
	static int64 FloorToInt(double F) { return FloorToInt64(F); }

	static float CeilToFloat(float F) { return std::ceil(F); }
	static double CeilToDouble(double F) { return std::ceil(F); }
	static int32 CeilToInt32(float F) { return static_cast<int32>(std::ceil(F)); }
	static int32 CeilToInt32(double F) { return static_cast<int32>(std::ceil(F)); }
	static int64 CeilToInt64(double F) { return static_cast<int64>(std::ceil(F)); }
	static int32 CeilToInt(float F) { return CeilToInt32(F); }
	static int64 CeilToInt(double F) { return CeilToInt64(F); }

	/** Towards zero. */
	static float TruncToFloat(float F) { return std::trunc(F); }
	static double TruncToDouble(double F) { return std::trunc(F); }
	static int32 TruncToInt32(float F) { return static_cast<int32>(F); }
	static int32 TruncToInt32(double F) { return static_cast<int32>(F); }
	static int32 TruncToInt(float F) { return TruncToInt32(F); }
	static int64 TruncToInt(double F) { return static_cast<int64>(F); }

	/** Nearest integer of a 32-bit float: half of the nearest even-tied integer to F + F + 0.5, rounded down. */
	static int32 RoundToInt32(float F) { return static_cast<int32>(std::lrint(F + F + 0.5f) >> 1); }
	static int32 RoundToInt32(double F) { return static_cast<int32>(std::floor(F + 0.5)); }
	static int64 RoundToInt64(double F) { return static_cast<int64>(std::floor(F + 0.5)); }
	static int32 RoundToInt(float F) { return RoundToInt32(F); }
	static int64 RoundToInt(double F) { return RoundToInt64(F); }
	static float RoundToFloat(float F) { return std::floor(F + 0.5f); }
	static double RoundToDouble(double F) { return std::floor(F + 0.5); }

	static float Fmod(float X, float Y) { return std::fmod(X, Y); }
	static double Fmod(double X, double Y) { return std::fmod(X, Y); }
	/** Distance from the next lower integer, 0..1. */
	static float Frac(float Value) { return Value - std::floor(Value); }
	static double Frac(double Value) { return Value - std::floor(Value); }

	// Tests.

	static bool IsNaN(float A) { return std::isnan(A); }
	static bool IsNaN(double A) { return std::isnan(A); }
	static bool IsFinite(float A) { return std::isfinite(A); }
	static bool IsFinite(double A) { return std::isfinite(A); }

	static bool IsNearlyEqual(float A, float B, float ErrorTolerance = UE_SMALL_NUMBER)
	{
		return Abs(A - B) <= ErrorTolerance;
	}
	static bool IsNearlyEqual(double A, double B, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER)
	{
		return Abs(A - B) <= ErrorTolerance;
	}
	static bool IsNearlyZero(float Value, float ErrorTolerance = UE_SMALL_NUMBER)
	{
		return Abs(Value) <= ErrorTolerance;
	}
	static bool IsNearlyZero(double Value, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER)
	{
		return Abs(Value) <= ErrorTolerance;
	}

	// Integers.

	/** Whether Value is a power of two. Zero counts as one. */
	template <typename T>
	static constexpr bool IsPowerOfTwo(T Value)
	{
		return (Value & (Value - 1)) == T(0);
	}

	/** Smallest power of two that is not below Arg; 1 for 0. */
	static constexpr uint32 RoundUpToPowerOfTwo(uint32 Arg) { return 1u << CeilLogTwo(Arg); }

	/** Position of the highest set bit, 0 for 0. */
	static constexpr uint32 FloorLog2(uint32 Value)
	{
		return Value == 0 ? 0u : 31u - static_cast<uint32>(__builtin_clz(Value));
	}
	/** Smallest exponent whose power of two is not below Arg, 0 for 0. */
	static constexpr uint32 CeilLogTwo(uint32 Arg) { return Arg <= 1 ? 0u : FloorLog2(Arg - 1) + 1u; }

	template <typename T>
	static constexpr T DivideAndRoundUp(T Dividend, T Divisor)
	{
		return (Dividend + Divisor - 1) / Divisor;
	}
	template <typename T>
	static constexpr T DivideAndRoundDown(T Dividend, T Divisor)
	{
		return Dividend / Divisor;
	}

	// Interpolation.

	/** A at Alpha 0, B at Alpha 1, on a straight line. Alpha is not limited. */
	template <typename T, typename U>
	static constexpr T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return static_cast<T>(A + Alpha * (B - A));
	}

	/** 0 below A, 1 from B on, and between them a curve that is level at both ends. */
	template <typename T>
	static constexpr T SmoothStep(T A, T B, T X)
	{
		if (X < A)
		{
			return T(0);
		}
		if (X >= B)
		{
			return T(1);
		}
		const T Fraction = (X - A) / (B - A);
		return Fraction * Fraction * (T(3) - T(2) * Fraction);
	}

	/** Nearest multiple of Grid; Location itself when Grid is 0. */
	template <typename T>
	static T GridSnap(T Location, T Grid)
	{
		return Grid == T(0) ? Location : std::floor((Location + Grid / T(2)) / Grid) * Grid;
	}
};
