// FMath: the platform scalar math plus the engine's generic helpers (clamping, interpolation,
// tolerances, random ranges).
#pragma once

#include "HAL/Platform.h"
#include "HAL/PlatformMath.h"

#include <type_traits>

#define UE_PI (3.1415926535897932f)
#define UE_SMALL_NUMBER (1.e-8f)
#define UE_KINDA_SMALL_NUMBER (1.e-4f)
#define UE_BIG_NUMBER (3.4e+38f)
#define UE_EULERS_NUMBER (2.71828182845904523536f)
#define UE_GOLDEN_RATIO (1.6180339887498948482045868343656381f)
#define UE_FLOAT_NON_FRACTIONAL (8388608.f)
#define UE_DOUBLE_PI (3.141592653589793238462643383279502884197169399)
#define UE_DOUBLE_SMALL_NUMBER (1.e-8)
#define UE_DOUBLE_KINDA_SMALL_NUMBER (1.e-4)
#define UE_DOUBLE_BIG_NUMBER (3.4e+38)
#define UE_INV_PI (0.31830988618f)
#define UE_HALF_PI (1.57079632679f)
#define UE_TWO_PI (6.28318530717f)
#define UE_INV_SQRT_2 (0.70710678118654752440084436210485f)
#define UE_PI_SQUARED (9.86960440108f)
#define UE_DELTA (0.00001f)
#define UE_DOUBLE_DELTA (0.00001)
#define UE_FLOAT_NORMAL_THRESH (0.0001f)
#define UE_THRESH_VECTOR_NORMALIZED (0.01f)

struct FMath : public FPlatformMath
{
	using FPlatformMath::Max;
	using FPlatformMath::Min;

	template <typename T>
	static constexpr FORCEINLINE T Max3(const T A, const T B, const T C)
	{
		return Max(Max(A, B), C);
	}

	template <typename T>
	static constexpr FORCEINLINE T Min3(const T A, const T B, const T C)
	{
		return Min(Min(A, B), C);
	}

	template <typename T>
	static constexpr FORCEINLINE T Square(const T A)
	{
		return A * A;
	}

	template <typename T>
	static constexpr FORCEINLINE T Cube(const T A)
	{
		return A * A * A;
	}

	template <typename T>
	static constexpr FORCEINLINE T Clamp(const T X, const T MinValue, const T MaxValue)
	{
		return (X < MinValue) ? MinValue : (X < MaxValue) ? X : MaxValue;
	}

	template <typename T1, typename T2, typename T3>
		requires (std::is_arithmetic_v<T1> && std::is_arithmetic_v<T2> && std::is_arithmetic_v<T3>
			&& !(std::is_same_v<T1, T2> && std::is_same_v<T2, T3>))
	static constexpr FORCEINLINE std::common_type_t<T1, T2, T3> Clamp(const T1 X, const T2 MinValue, const T3 MaxValue)
	{
		using T = std::common_type_t<T1, T2, T3>;
		return Clamp<T>(T(X), T(MinValue), T(MaxValue));
	}

	template <typename T>
	static constexpr FORCEINLINE T Wrap(const T X, const T MinValue, const T MaxValue)
	{
		const T Size = MaxValue - MinValue;
		if (Size == 0)
		{
			return MaxValue;
		}
		T EndValue = X;
		while (EndValue < MinValue)
		{
			EndValue += Size;
		}
		while (EndValue > MaxValue)
		{
			EndValue -= Size;
		}
		return EndValue;
	}

	template <typename T>
	static constexpr FORCEINLINE T DivideAndRoundUp(T Dividend, T Divisor)
	{
		return (Dividend + Divisor - 1) / Divisor;
	}

	template <typename T>
	static constexpr FORCEINLINE T DivideAndRoundDown(T Dividend, T Divisor)
	{
		return Dividend / Divisor;
	}

	template <typename T>
	static constexpr FORCEINLINE bool IsPowerOfTwo(T Value)
	{
		return Value > 0 && (Value & (Value - 1)) == 0;
	}

	// Tolerances

	static FORCEINLINE bool IsNearlyEqual(float A, float B, float ErrorTolerance = UE_SMALL_NUMBER)
	{
		return Abs<float>(A - B) <= ErrorTolerance;
	}

	static FORCEINLINE bool IsNearlyEqual(double A, double B, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER)
	{
		return Abs<double>(A - B) <= ErrorTolerance;
	}

	static FORCEINLINE bool IsNearlyZero(float Value, float ErrorTolerance = UE_SMALL_NUMBER)
	{
		return Abs<float>(Value) <= ErrorTolerance;
	}

	static FORCEINLINE bool IsNearlyZero(double Value, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER)
	{
		return Abs<double>(Value) <= ErrorTolerance;
	}

	// Rounding variants that name their tie rule

	static FORCEINLINE float RoundHalfFromZero(float F)
	{
		return F < 0.0f ? -FloorToFloat(-F + 0.5f) : FloorToFloat(F + 0.5f);
	}

	static FORCEINLINE double RoundHalfFromZero(double F)
	{
		return F < 0.0 ? -FloorToDouble(-F + 0.5) : FloorToDouble(F + 0.5);
	}

	static FORCEINLINE float RoundHalfToZero(float F)
	{
		return F < 0.0f ? -CeilToFloat(-F - 0.5f) : CeilToFloat(F - 0.5f);
	}

	static FORCEINLINE double RoundHalfToZero(double F)
	{
		return F < 0.0 ? -CeilToDouble(-F - 0.5) : CeilToDouble(F - 0.5);
	}

	static FORCEINLINE float RoundFromZero(float F)
	{
		return F < 0.0f ? FloorToFloat(F) : CeilToFloat(F);
	}

	static FORCEINLINE double RoundFromZero(double F)
	{
		return F < 0.0 ? FloorToDouble(F) : CeilToDouble(F);
	}

	static FORCEINLINE float RoundToZero(float F)
	{
		return F < 0.0f ? CeilToFloat(F) : FloorToFloat(F);
	}

	static FORCEINLINE double RoundToZero(double F)
	{
		return F < 0.0 ? CeilToDouble(F) : FloorToDouble(F);
	}

	static FORCEINLINE float RoundToNegativeInfinity(float F)
	{
		return FloorToFloat(F);
	}

	static FORCEINLINE double RoundToNegativeInfinity(double F)
	{
		return FloorToDouble(F);
	}

	static FORCEINLINE float RoundToPositiveInfinity(float F)
	{
		return CeilToFloat(F);
	}

	static FORCEINLINE double RoundToPositiveInfinity(double F)
	{
		return CeilToDouble(F);
	}

	template <typename T>
	static FORCEINLINE T GridSnap(T Location, T Grid)
	{
		return (Grid == T(0)) ? Location : (FloorToDouble((Location + Grid / (T)2) / Grid) * Grid);
	}

	// Interpolation

	template <typename T, typename U>
	static constexpr FORCEINLINE T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return (T)(A + Alpha * (B - A));
	}

	template <typename T>
	static FORCEINLINE auto GetRangePct(T MinValue, T MaxValue, T Value)
	{
		const T Divisor = MaxValue - MinValue;
		if (IsNearlyZero(double(Divisor)))
		{
			return (Value >= MaxValue) ? T(1) : T(0);
		}
		return (Value - MinValue) / Divisor;
	}

	template <typename T>
	static FORCEINLINE T GetMappedRangeValueClamped(T InRangeMin, T InRangeMax, T OutRangeMin, T OutRangeMax, T Value)
	{
		const T ClampedPct = Clamp<T>(GetRangePct(InRangeMin, InRangeMax, Value), T(0), T(1));
		return Lerp(OutRangeMin, OutRangeMax, ClampedPct);
	}

	template <typename T>
	static FORCEINLINE T GetMappedRangeValueUnclamped(T InRangeMin, T InRangeMax, T OutRangeMin, T OutRangeMax, T Value)
	{
		return Lerp(OutRangeMin, OutRangeMax, GetRangePct(InRangeMin, InRangeMax, Value));
	}

	// Moves toward Target by a fraction of the distance that grows with DeltaTime * InterpSpeed.
	template <typename T1, typename T2 = T1, typename T3 = T2, typename T4 = T3>
	static auto FInterpTo(T1 Current, T2 Target, T3 DeltaTime, T4 InterpSpeed)
	{
		using RetType = std::common_type_t<T1, T2, T3, T4>;
		if (InterpSpeed <= 0.f)
		{
			return static_cast<RetType>(Target);
		}
		const RetType Dist = Target - Current;
		if (Square(Dist) < UE_SMALL_NUMBER)
		{
			return static_cast<RetType>(Target);
		}
		const RetType DeltaMove = Dist * Clamp<RetType>(DeltaTime * InterpSpeed, 0.f, 1.f);
		return Current + DeltaMove;
	}

	template <typename T1, typename T2 = T1, typename T3 = T2, typename T4 = T3>
	static auto FInterpConstantTo(T1 Current, T2 Target, T3 DeltaTime, T4 InterpSpeed)
	{
		using RetType = std::common_type_t<T1, T2, T3, T4>;
		const RetType Dist = Target - Current;
		if (Square(Dist) < UE_SMALL_NUMBER)
		{
			return static_cast<RetType>(Target);
		}
		const RetType Step = InterpSpeed * DeltaTime;
		return Current + Clamp<RetType>(Dist, -Step, Step);
	}

	// Random ranges

	// Uniform in [0, A) for A > 0, else 0.
	static FORCEINLINE int32 RandHelper(int32 A)
	{
		return A > 0 ? Min(TruncToInt(FRand() * float(A)), A - 1) : 0;
	}

	static FORCEINLINE int64 RandHelper64(int64 A)
	{
		return A > 0 ? Min<int64>(TruncToInt(double(FRand()) * double(A)), A - 1) : 0;
	}

	// Both ends inclusive.
	static FORCEINLINE int32 RandRange(int32 Min, int32 Max)
	{
		const int64 Range = int64(Max) - int64(Min) + 1;
		return Min + static_cast<int32>(RandHelper64(Range));
	}

	static FORCEINLINE int64 RandRange(int64 Min, int64 Max)
	{
		const int64 Range = Max - Min + 1;
		return Min + RandHelper64(Range);
	}

	static FORCEINLINE float RandRange(float InMin, float InMax)
	{
		return InMin + (InMax - InMin) * FRand();
	}

	static FORCEINLINE double RandRange(double InMin, double InMax)
	{
		return InMin + (InMax - InMin) * double(FRand());
	}

	static FORCEINLINE float FRandRange(float InMin, float InMax)
	{
		return RandRange(InMin, InMax);
	}

	static FORCEINLINE bool RandBool()
	{
		return RandRange(0, 1) == 1;
	}

	// Angles

	template <typename T>
	static constexpr FORCEINLINE auto RadiansToDegrees(T const& RadVal)
	{
		return RadVal * (180.f / UE_PI);
	}

	template <typename T>
	static constexpr FORCEINLINE auto DegreesToRadians(T const& DegVal)
	{
		return DegVal * (UE_PI / 180.f);
	}
};
