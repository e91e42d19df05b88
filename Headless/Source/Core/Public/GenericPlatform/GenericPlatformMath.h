// Scalar math every platform provides. Conversions to integers follow the engine: the float
// overloads return int32, the double overloads int64, and the *Int32 forms always int32.
#pragma once

#include "HAL/Platform.h"

#include <cmath>
#include <cstdlib>
#include <type_traits>

struct FGenericPlatformMath
{
	// Truncation

	static constexpr FORCEINLINE int32 TruncToInt32(float F)
	{
		return (int32)F;
	}

	static constexpr FORCEINLINE int32 TruncToInt32(double F)
	{
		return (int32)F;
	}

	static constexpr FORCEINLINE int64 TruncToInt64(double F)
	{
		return (int64)F;
	}

	static constexpr FORCEINLINE int32 TruncToInt(float F)
	{
		return TruncToInt32(F);
	}

	static constexpr FORCEINLINE int64 TruncToInt(double F)
	{
		return TruncToInt64(F);
	}

	static FORCEINLINE float TruncToFloat(float F)
	{
		return std::trunc(F);
	}

	static FORCEINLINE double TruncToDouble(double F)
	{
		return std::trunc(F);
	}

	// Floor: toward negative infinity

	static constexpr FORCEINLINE int32 FloorToInt32(float F)
	{
		int32 I = TruncToInt32(F);
		I -= ((float)I > F);
		return I;
	}

	static constexpr FORCEINLINE int32 FloorToInt32(double F)
	{
		int32 I = TruncToInt32(F);
		I -= ((double)I > F);
		return I;
	}

	static constexpr FORCEINLINE int64 FloorToInt64(double F)
	{
		int64 I = TruncToInt64(F);
		I -= ((double)I > F);
		return I;
	}

	static constexpr FORCEINLINE int32 FloorToInt(float F)
	{
		return FloorToInt32(F);
	}

	static constexpr FORCEINLINE int64 FloorToInt(double F)
	{
		return FloorToInt64(F);
	}

	static FORCEINLINE float FloorToFloat(float F)
	{
		return std::floor(F);
	}

	static FORCEINLINE double FloorToDouble(double F)
	{
		return std::floor(F);
	}

	// Ceil: toward positive infinity

	static constexpr FORCEINLINE int32 CeilToInt32(float F)
	{
		int32 I = TruncToInt32(F);
		I += ((float)I < F);
		return I;
	}

	static constexpr FORCEINLINE int32 CeilToInt32(double F)
	{
		int32 I = TruncToInt32(F);
		I += ((double)I < F);
		return I;
	}

	static constexpr FORCEINLINE int64 CeilToInt64(double F)
	{
		int64 I = TruncToInt64(F);
		I += ((double)I < F);
		return I;
	}

	static constexpr FORCEINLINE int32 CeilToInt(float F)
	{
		return CeilToInt32(F);
	}

	static constexpr FORCEINLINE int64 CeilToInt(double F)
	{
		return CeilToInt64(F);
	}

	static FORCEINLINE float CeilToFloat(float F)
	{
		return std::ceil(F);
	}

	static FORCEINLINE double CeilToDouble(double F)
	{
		return std::ceil(F);
	}

	// Round: halves go up, toward positive infinity

	static constexpr FORCEINLINE int32 RoundToInt32(float F)
	{
		return FloorToInt32(F + 0.5f);
	}

	static constexpr FORCEINLINE int32 RoundToInt32(double F)
	{
		return FloorToInt32(F + 0.5);
	}

	static constexpr FORCEINLINE int64 RoundToInt64(double F)
	{
		return FloorToInt64(F + 0.5);
	}

	static constexpr FORCEINLINE int32 RoundToInt(float F)
	{
		return RoundToInt32(F);
	}

	static constexpr FORCEINLINE int64 RoundToInt(double F)
	{
		return RoundToInt64(F);
	}

	static FORCEINLINE float RoundToFloat(float F)
	{
		return FloorToFloat(F + 0.5f);
	}

	static FORCEINLINE double RoundToDouble(double F)
	{
		return FloorToDouble(F + 0.5);
	}

	// Fractions and remainders

	static FORCEINLINE float Fractional(float Value)
	{
		return Value - TruncToFloat(Value);
	}

	static FORCEINLINE double Fractional(double Value)
	{
		return Value - TruncToDouble(Value);
	}

	static FORCEINLINE float Frac(float Value)
	{
		return Value - FloorToFloat(Value);
	}

	static FORCEINLINE double Frac(double Value)
	{
		return Value - FloorToDouble(Value);
	}

	static FORCEINLINE float Modf(const float InValue, float* OutIntPart)
	{
		return std::modf(InValue, OutIntPart);
	}

	static FORCEINLINE double Modf(const double InValue, double* OutIntPart)
	{
		return std::modf(InValue, OutIntPart);
	}

	// Result has the sign of X; a divisor too close to zero yields zero instead of NaN.
	static FORCEINLINE float Fmod(float X, float Y)
	{
		const float AbsY = std::fabs(Y);
		if (AbsY <= 1.e-8f)
		{
			return 0.0f;
		}
		return std::fmod(X, Y);
	}

	static FORCEINLINE double Fmod(double X, double Y)
	{
		const double AbsY = std::fabs(Y);
		if (AbsY <= 1.e-8)
		{
			return 0.0;
		}
		return std::fmod(X, Y);
	}

	// Transcendentals

	static FORCEINLINE float Exp(float Value) { return std::exp(Value); }
	static FORCEINLINE double Exp(double Value) { return std::exp(Value); }
	static FORCEINLINE float Exp2(float Value) { return std::exp2(Value); }
	static FORCEINLINE double Exp2(double Value) { return std::exp2(Value); }
	static FORCEINLINE float Loge(float Value) { return std::log(Value); }
	static FORCEINLINE double Loge(double Value) { return std::log(Value); }
	static FORCEINLINE float LogX(float Base, float Value) { return Loge(Value) / Loge(Base); }
	static FORCEINLINE double LogX(double Base, double Value) { return Loge(Value) / Loge(Base); }
	static FORCEINLINE float Log2(float Value) { return std::log2(Value); }
	static FORCEINLINE double Log2(double Value) { return std::log2(Value); }
	static FORCEINLINE float Sin(float Value) { return std::sin(Value); }
	static FORCEINLINE double Sin(double Value) { return std::sin(Value); }
	static FORCEINLINE float Cos(float Value) { return std::cos(Value); }
	static FORCEINLINE double Cos(double Value) { return std::cos(Value); }
	static FORCEINLINE float Tan(float Value) { return std::tan(Value); }
	static FORCEINLINE double Tan(double Value) { return std::tan(Value); }
	static FORCEINLINE float Asin(float Value) { return std::asin(Value < -1.f ? -1.f : (Value < 1.f ? Value : 1.f)); }
	static FORCEINLINE double Asin(double Value) { return std::asin(Value < -1.0 ? -1.0 : (Value < 1.0 ? Value : 1.0)); }
	static FORCEINLINE float Acos(float Value) { return std::acos(Value < -1.f ? -1.f : (Value < 1.f ? Value : 1.f)); }
	static FORCEINLINE double Acos(double Value) { return std::acos(Value < -1.0 ? -1.0 : (Value < 1.0 ? Value : 1.0)); }
	static FORCEINLINE float Atan(float Value) { return std::atan(Value); }
	static FORCEINLINE double Atan(double Value) { return std::atan(Value); }
	static FORCEINLINE float Atan2(float Y, float X) { return std::atan2(Y, X); }
	static FORCEINLINE double Atan2(double Y, double X) { return std::atan2(Y, X); }
	static FORCEINLINE float Sqrt(float Value) { return std::sqrt(Value); }
	static FORCEINLINE double Sqrt(double Value) { return std::sqrt(Value); }
	static FORCEINLINE float Pow(float A, float B) { return std::pow(A, B); }
	static FORCEINLINE double Pow(double A, double B) { return std::pow(A, B); }
	static FORCEINLINE float InvSqrt(float Value) { return 1.0f / std::sqrt(Value); }
	static FORCEINLINE double InvSqrt(double Value) { return 1.0 / std::sqrt(Value); }

	// Classification

	static FORCEINLINE bool IsNaN(float A) { return std::isnan(A); }
	static FORCEINLINE bool IsNaN(double A) { return std::isnan(A); }
	static FORCEINLINE bool IsFinite(float A) { return std::isfinite(A); }
	static FORCEINLINE bool IsFinite(double A) { return std::isfinite(A); }
	static FORCEINLINE bool IsNegativeOrNegativeZero(float A) { return std::signbit(A); }
	static FORCEINLINE bool IsNegativeOrNegativeZero(double A) { return std::signbit(A); }

	// Random numbers from the C library generator, seeded with RandInit.

	static FORCEINLINE int32 Rand()
	{
		return std::rand();
	}

	static FORCEINLINE void RandInit(int32 Seed)
	{
		std::srand(static_cast<unsigned>(Seed));
	}

	// Uniform in [0, 1).
	static FORCEINLINE float FRand()
	{
		constexpr double RandMaxPlusOne = double(RAND_MAX) + 1.0;
		const float Result = static_cast<float>(Rand() / RandMaxPlusOne);
		return Result < 1.0f ? Result : 0.99999994f;
	}

	// Generic helpers

	template <typename T>
	static constexpr FORCEINLINE T Abs(const T A)
	{
		return (A < (T)0) ? -A : A;
	}

	template <typename T>
	static constexpr FORCEINLINE T Sign(const T A)
	{
		return (A > (T)0) ? (T)1 : ((A < (T)0) ? (T)-1 : (T)0);
	}

	template <typename T>
	static constexpr FORCEINLINE T Max(const T A, const T B)
	{
		return (B < A) ? A : B;
	}

	template <typename T>
	static constexpr FORCEINLINE T Min(const T A, const T B)
	{
		return (A < B) ? A : B;
	}

	// Mixed arithmetic types meet in their common type, as in the engine's float/double mixes.
	template <typename T1, typename T2>
		requires (std::is_arithmetic_v<T1> && std::is_arithmetic_v<T2> && !std::is_same_v<T1, T2>)
	static constexpr FORCEINLINE std::common_type_t<T1, T2> Max(const T1 A, const T2 B)
	{
		using T = std::common_type_t<T1, T2>;
		return Max<T>(T(A), T(B));
	}

	template <typename T1, typename T2>
		requires (std::is_arithmetic_v<T1> && std::is_arithmetic_v<T2> && !std::is_same_v<T1, T2>)
	static constexpr FORCEINLINE std::common_type_t<T1, T2> Min(const T1 A, const T2 B)
	{
		using T = std::common_type_t<T1, T2>;
		return Min<T>(T(A), T(B));
	}
};
