// Integer 2D point, used for pixel sizes and grid coordinates.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

namespace UE::Math
{
	template <typename InIntType>
	struct TIntPoint
	{
		using IntType = InIntType;

		IntType X = 0;
		IntType Y = 0;

		static const TIntPoint ZeroValue;
		static const TIntPoint NoneValue;

		constexpr TIntPoint() = default;

		constexpr TIntPoint(IntType InX, IntType InY)
			: X(InX)
			, Y(InY)
		{
		}

		explicit constexpr TIntPoint(IntType InXY)
			: X(InXY)
			, Y(InXY)
		{
		}

		explicit constexpr TIntPoint(EForceInit)
		{
		}

		template <typename OtherIntType>
		explicit constexpr TIntPoint(TIntPoint<OtherIntType> Other)
			: X(IntType(Other.X))
			, Y(IntType(Other.Y))
		{
		}

		IntType& operator[](int32 Index)
		{
			check(Index >= 0 && Index < 2);
			return Index == 0 ? X : Y;
		}

		IntType operator[](int32 Index) const
		{
			check(Index >= 0 && Index < 2);
			return Index == 0 ? X : Y;
		}

		constexpr bool operator==(const TIntPoint& Other) const
		{
			return X == Other.X && Y == Other.Y;
		}

		constexpr bool operator!=(const TIntPoint& Other) const
		{
			return !(*this == Other);
		}

		TIntPoint& operator*=(IntType Scale)
		{
			X *= Scale;
			Y *= Scale;
			return *this;
		}

		TIntPoint& operator/=(IntType Divisor)
		{
			X /= Divisor;
			Y /= Divisor;
			return *this;
		}

		TIntPoint& operator+=(const TIntPoint& Other)
		{
			X += Other.X;
			Y += Other.Y;
			return *this;
		}

		TIntPoint& operator-=(const TIntPoint& Other)
		{
			X -= Other.X;
			Y -= Other.Y;
			return *this;
		}

		TIntPoint& operator*=(const TIntPoint& Other)
		{
			X *= Other.X;
			Y *= Other.Y;
			return *this;
		}

		TIntPoint& operator/=(const TIntPoint& Other)
		{
			X /= Other.X;
			Y /= Other.Y;
			return *this;
		}

		constexpr TIntPoint operator+(const TIntPoint& Other) const
		{
			return TIntPoint(X + Other.X, Y + Other.Y);
		}

		constexpr TIntPoint operator-(const TIntPoint& Other) const
		{
			return TIntPoint(X - Other.X, Y - Other.Y);
		}

		constexpr TIntPoint operator*(const TIntPoint& Other) const
		{
			return TIntPoint(X * Other.X, Y * Other.Y);
		}

		constexpr TIntPoint operator/(const TIntPoint& Other) const
		{
			return TIntPoint(X / Other.X, Y / Other.Y);
		}

		constexpr TIntPoint operator*(IntType Scale) const
		{
			return TIntPoint(X * Scale, Y * Scale);
		}

		constexpr TIntPoint operator/(IntType Divisor) const
		{
			return TIntPoint(X / Divisor, Y / Divisor);
		}

		constexpr TIntPoint operator-() const
		{
			return TIntPoint(-X, -Y);
		}

		constexpr TIntPoint ComponentMin(const TIntPoint& Other) const
		{
			return TIntPoint(FMath::Min(X, Other.X), FMath::Min(Y, Other.Y));
		}

		constexpr TIntPoint ComponentMax(const TIntPoint& Other) const
		{
			return TIntPoint(FMath::Max(X, Other.X), FMath::Max(Y, Other.Y));
		}

		constexpr IntType GetMax() const
		{
			return FMath::Max(X, Y);
		}

		constexpr IntType GetMin() const
		{
			return FMath::Min(X, Y);
		}

		IntType Size() const
		{
			const int64 LocalX64 = int64(X);
			const int64 LocalY64 = int64(Y);
			return IntType(FMath::Sqrt(double(LocalX64 * LocalX64 + LocalY64 * LocalY64)));
		}

		constexpr IntType SizeSquared() const
		{
			return X * X + Y * Y;
		}

		static constexpr TIntPoint DivideAndRoundUp(TIntPoint Lhs, IntType Divisor)
		{
			return TIntPoint(FMath::DivideAndRoundUp(Lhs.X, Divisor), FMath::DivideAndRoundUp(Lhs.Y, Divisor));
		}

		static constexpr TIntPoint DivideAndRoundUp(TIntPoint Lhs, TIntPoint Divisor)
		{
			return TIntPoint(FMath::DivideAndRoundUp(Lhs.X, Divisor.X), FMath::DivideAndRoundUp(Lhs.Y, Divisor.Y));
		}

		static constexpr TIntPoint DivideAndRoundDown(TIntPoint Lhs, IntType Divisor)
		{
			return TIntPoint(FMath::DivideAndRoundDown(Lhs.X, Divisor), FMath::DivideAndRoundDown(Lhs.Y, Divisor));
		}

		FString ToString() const
		{
			return FString::Printf(TEXT("X=%lld Y=%lld"), (long long)X, (long long)Y);
		}

		friend uint32 GetTypeHash(const TIntPoint& Point)
		{
			return HashCombine(GetTypeHash(Point.X), GetTypeHash(Point.Y));
		}
	};

	template <typename IntType>
	const TIntPoint<IntType> TIntPoint<IntType>::ZeroValue(0, 0);

	template <typename IntType>
	const TIntPoint<IntType> TIntPoint<IntType>::NoneValue{IntType(INDEX_NONE), IntType(INDEX_NONE)};
}
