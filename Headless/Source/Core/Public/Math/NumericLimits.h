// Numeric limits under the engine's names. As in the engine, Min() of a floating-point type is the
// smallest positive normal value; Lowest() is the most negative.
#pragma once

#include "HAL/Platform.h"

#include <limits>

template <typename NumericType>
struct TNumericLimits
{
	static_assert(std::numeric_limits<NumericType>::is_specialized, "TNumericLimits needs an arithmetic type");

	static constexpr NumericType Min()
	{
		return std::numeric_limits<NumericType>::min();
	}

	static constexpr NumericType Max()
	{
		return std::numeric_limits<NumericType>::max();
	}

	static constexpr NumericType Lowest()
	{
		return std::numeric_limits<NumericType>::lowest();
	}
};

template <typename NumericType>
struct TNumericLimits<const NumericType> : TNumericLimits<NumericType>
{
};

#define MIN_uint8 ((uint8)0x00)
#define MIN_uint16 ((uint16)0x0000)
#define MIN_uint32 ((uint32)0x00000000)
#define MIN_int8 ((int8)-128)
#define MIN_int16 ((int16)-32768)
#define MIN_int32 ((int32)0x80000000)
#define MIN_int64 ((int64)0x8000000000000000)
#define MAX_uint8 ((uint8)0xff)
#define MAX_uint16 ((uint16)0xffff)
#define MAX_uint32 ((uint32)0xffffffff)
#define MAX_int8 ((int8)0x7f)
#define MAX_int16 ((int16)0x7fff)
#define MAX_int32 ((int32)0x7fffffff)
#define MAX_int64 ((int64)0x7fffffffffffffff)
#define MAX_flt (3.402823466e+38F)
#define MAX_dbl (1.7976931348623158e+308)
