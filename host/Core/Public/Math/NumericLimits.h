// SPDX-License-Identifier: MIT
/** Smallest and largest values of the number types. */
#pragma once

#include "CoreTypes.h"
#include <limits>

#define MIN_uint8 (std::numeric_limits<uint8>::min())
#define MIN_uint16 (std::numeric_limits<uint16>::min())
#define MIN_uint32 (std::numeric_limits<uint32>::min())
#define MIN_uint64 (std::numeric_limits<uint64>::min())
#define MIN_int8 (std::numeric_limits<int8>::min())
#define MIN_int16 (std::numeric_limits<int16>::min())
#define MIN_int32 (std::numeric_limits<int32>::min())
#define MIN_int64 (std::numeric_limits<int64>::min())

#define MAX_uint8 (std::numeric_limits<uint8>::max())
#define MAX_uint16 (std::numeric_limits<uint16>::max())
#define MAX_uint32 (std::numeric_limits<uint32>::max())
#define MAX_uint64 (std::numeric_limits<uint64>::max())
#define MAX_int8 (std::numeric_limits<int8>::max())
#define MAX_int16 (std::numeric_limits<int16>::max())
#define MAX_int32 (std::numeric_limits<int32>::max())
#define MAX_int64 (std::numeric_limits<int64>::max())

#define MIN_flt (std::numeric_limits<float>::min())
#define MAX_flt (std::numeric_limits<float>::max())
#define MIN_dbl (std::numeric_limits<double>::min())
#define MAX_dbl (std::numeric_limits<double>::max())

/** Limits of a number type. Min() of a floating-point type is its smallest positive normal value, Lowest() its most
 * negative one. */
template <typename NumericType>
struct TNumericLimits
{
	static constexpr NumericType Min() { return std::numeric_limits<NumericType>::min(); }
	static constexpr NumericType Max() { return std::numeric_limits<NumericType>::max(); }
	static constexpr NumericType Lowest() { return std::numeric_limits<NumericType>::lowest(); }
};
