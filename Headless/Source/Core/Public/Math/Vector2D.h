// 2D vector, templated on the component type: FVector2D is double precision, FVector2f single.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Math/IntPoint.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

namespace UE::Math
{
	template <typename T>
	struct TVector2
	{
		static_assert(std::is_floating_point_v<T>, "TVector2 only supports float and double types.");

		using FReal = T;

		T X = 0;
		T Y = 0;

		static const TVector2 ZeroVector;
		static const TVector2 UnitVector;
		static const TVector2 Unit45Deg;

		static TVector2 Zero()
		{
			return TVector2(0, 0);
		}

		static TVector2 One()
		{
			return TVector2(1, 1);
		}

		static TVector2 UnitX()
		{
			return TVector2(1, 0);
		}

		static TVector2 UnitY()
		{
			return TVector2(0, 1);
		}

		constexpr TVector2() = default;

		constexpr TVector2(T InX, T InY)
			: X(InX)
			, Y(InY)
		{
		}

		explicit constexpr TVector2(T InF)
			: X(InF)
			, Y(InF)
		{
		}

		explicit constexpr TVector2(EForceInit)
		{
		}

		template <typename IntType>
		constexpr TVector2(TIntPoint<IntType> InPos)
			: X(T(InPos.X))
			, Y(T(InPos.Y))
		{
		}

		// Precision changes are spelled out at the call site.
		template <typename FArg>
			requires (!std::is_same_v<T, FArg>)
		explicit constexpr TVector2(const TVector2<FArg>& From)
			: X(T(From.X))
			, Y(T(From.Y))
		{
		}

		// Arithmetic

		constexpr TVector2 operator+(const TVector2& V) const
		{
			return TVector2(X + V.X, Y + V.Y);
		}

		constexpr TVector2 operator-(const TVector2& V) const
		{
			return TVector2(X - V.X, Y - V.Y);
		}

		constexpr TVector2 operator*(const TVector2& V) const
		{
			return TVector2(X * V.X, Y * V.Y);
		}

		constexpr TVector2 operator/(const TVector2& V) const
		{
			return TVector2(X / V.X, Y / V.Y);
		}

		template <typename FArg>
			requires std::is_arithmetic_v<FArg>
		constexpr TVector2 operator+(FArg A) const
		{
			return TVector2(X + T(A), Y + T(A));
		}

		template <typename FArg>
			requires std::is_arithmetic_v<FArg>
		constexpr TVector2 operator-(FArg A) const
		{
			return TVector2(X - T(A), Y - T(A));
		}

		template <typename FArg>
			requires std::is_arithmetic_v<FArg>
		constexpr TVector2 operator*(FArg Scale) const
		{
			return TVector2(X * T(Scale), Y * T(Scale));
		}

		template <typename FArg>
			requires std::is_arithmetic_v<FArg>
		constexpr TVector2 operator/(FArg Scale) const
		{
			const T RScale = T(1) / T(Scale);
			return TVector2(X * RScale, Y * RScale);
		}

		constexpr TVector2 operator-() const
		{
			return TVector2(-X, -Y);
		}

		TVector2& operator+=(const TVector2& V)
		{
			X += V.X;
			Y += V.Y;
			return *this;
		}

		TVector2& operator-=(const TVector2& V)
		{
			X -= V.X;
			Y -= V.Y;
			return *this;
		}

		TVector2& operator*=(const TVector2& V)
		{
			X *= V.X;
			Y *= V.Y;
			return *this;
		}

		TVector2& operator/=(const TVector2& V)
		{
			X /= V.X;
			Y /= V.Y;
			return *this;
		}

		template <typename FArg>
			requires std::is_arithmetic_v<FArg>
		TVector2& operator*=(FArg Scale)
		{
			X *= T(Scale);
			Y *= T(Scale);
			return *this;
		}

		template <typename FArg>
			requires std::is_arithmetic_v<FArg>
		TVector2& operator/=(FArg V)
		{
			const T RV = T(1) / T(V);
			X *= RV;
			Y *= RV;
			return *this;
		}

		// Dot product.
		constexpr T operator|(const TVector2& V) const
		{
			return X * V.X + Y * V.Y;
		}

		// Z component of the 3D cross product.
		constexpr T operator^(const TVector2& V) const
		{
			return X * V.Y - Y * V.X;
		}

		// Comparison: exact, and all-components ordering

		constexpr bool operator==(const TVector2& V) const
		{
			return X == V.X && Y == V.Y;
		}

		constexpr bool operator!=(const TVector2& V) const
		{
			return X != V.X || Y != V.Y;
		}

		constexpr bool operator<(const TVector2& Other) const
		{
			return X < Other.X && Y < Other.Y;
		}

		constexpr bool operator>(const TVector2& Other) const
		{
			return X > Other.X && Y > Other.Y;
		}

		constexpr bool operator<=(const TVector2& Other) const
		{
			return X <= Other.X && Y <= Other.Y;
		}

		constexpr bool operator>=(const TVector2& Other) const
		{
			return X >= Other.X && Y >= Other.Y;
		}

		bool Equals(const TVector2& V, T Tolerance = UE_KINDA_SMALL_NUMBER) const
		{
			return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance;
		}

		T& operator[](int32 Index)
		{
			check(Index >= 0 && Index < 2);
			return Index == 0 ? X : Y;
		}

		T operator[](int32 Index) const
		{
			check(Index >= 0 && Index < 2);
			return Index == 0 ? X : Y;
		}

		void Set(T InX, T InY)
		{
			X = InX;
			Y = InY;
		}

		// Measures

		T GetMax() const
		{
			return FMath::Max(X, Y);
		}

		T GetAbsMax() const
		{
			return FMath::Max(FMath::Abs(X), FMath::Abs(Y));
		}

		T GetMin() const
		{
			return FMath::Min(X, Y);
		}

		T Size() const
		{
			return FMath::Sqrt(X * X + Y * Y);
		}

		T Length() const
		{
			return Size();
		}

		T SizeSquared() const
		{
			return X * X + Y * Y;
		}

		T SquaredLength() const
		{
			return SizeSquared();
		}

		bool IsNearlyZero(T Tolerance = UE_KINDA_SMALL_NUMBER) const
		{
			return FMath::Abs(X) <= Tolerance && FMath::Abs(Y) <= Tolerance;
		}

		bool IsZero() const
		{
			return X == 0 && Y == 0;
		}

		// Derived vectors

		TVector2 GetSafeNormal(T Tolerance = UE_SMALL_NUMBER) const
		{
			const T SquareSum = X * X + Y * Y;
			if (SquareSum > Tolerance)
			{
				const T Scale = FMath::InvSqrt(SquareSum);
				return TVector2(X * Scale, Y * Scale);
			}
			return TVector2(0, 0);
		}

		bool Normalize(T Tolerance = UE_SMALL_NUMBER)
		{
			const T SquareSum = X * X + Y * Y;
			if (SquareSum > Tolerance)
			{
				const T Scale = FMath::InvSqrt(SquareSum);
				X *= Scale;
				Y *= Scale;
				return true;
			}
			X = 0;
			Y = 0;
			return false;
		}

		TVector2 GetAbs() const
		{
			return TVector2(FMath::Abs(X), FMath::Abs(Y));
		}

		TVector2 GetSignVector() const
		{
			return TVector2(X >= 0 ? T(1) : T(-1), Y >= 0 ? T(1) : T(-1));
		}

		TVector2 GetRotated(T AngleDeg) const
		{
			const T AngleRad = T(FMath::DegreesToRadians(AngleDeg));
			const T S = FMath::Sin(AngleRad);
			const T C = FMath::Cos(AngleRad);
			return TVector2(C * X - S * Y, S * X + C * Y);
		}

		TVector2 ClampAxes(T MinAxisVal, T MaxAxisVal) const
		{
			return TVector2(FMath::Clamp(X, MinAxisVal, MaxAxisVal), FMath::Clamp(Y, MinAxisVal, MaxAxisVal));
		}

		TVector2 RoundToVector() const
		{
			return TVector2(T(FMath::RoundToInt(X)), T(FMath::RoundToInt(Y)));
		}

		TIntPoint<int32> IntPoint() const
		{
			return TIntPoint<int32>(FMath::RoundToInt32(X), FMath::RoundToInt32(Y));
		}

		TVector2 ComponentMax(const TVector2& Other) const
		{
			return TVector2(FMath::Max(X, Other.X), FMath::Max(Y, Other.Y));
		}

		TVector2 ComponentMin(const TVector2& Other) const
		{
			return TVector2(FMath::Min(X, Other.X), FMath::Min(Y, Other.Y));
		}

		// Two-vector helpers

		static T DotProduct(const TVector2& A, const TVector2& B)
		{
			return A | B;
		}

		static T CrossProduct(const TVector2& A, const TVector2& B)
		{
			return A ^ B;
		}

		static T DistSquared(const TVector2& V1, const TVector2& V2)
		{
			return FMath::Square(V2.X - V1.X) + FMath::Square(V2.Y - V1.Y);
		}

		static T Distance(const TVector2& V1, const TVector2& V2)
		{
			return FMath::Sqrt(DistSquared(V1, V2));
		}

		static TVector2 Max(const TVector2& A, const TVector2& B)
		{
			return A.ComponentMax(B);
		}

		static TVector2 Min(const TVector2& A, const TVector2& B)
		{
			return A.ComponentMin(B);
		}

		static TVector2 Clamp(const TVector2& V, const TVector2& MinValue, const TVector2& MaxValue)
		{
			return TVector2(FMath::Clamp(V.X, MinValue.X, MaxValue.X), FMath::Clamp(V.Y, MinValue.Y, MaxValue.Y));
		}

		FString ToString() const
		{
			return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), double(X), double(Y));
		}

		friend uint32 GetTypeHash(const TVector2& Vector)
		{
			return HashCombine(GetTypeHash(Vector.X), GetTypeHash(Vector.Y));
		}
	};

	template <typename T, typename FArg>
		requires std::is_arithmetic_v<FArg>
	constexpr TVector2<T> operator*(FArg Scale, const TVector2<T>& V)
	{
		return V * Scale;
	}

	template <typename T>
	const TVector2<T> TVector2<T>::ZeroVector(0, 0);

	template <typename T>
	const TVector2<T> TVector2<T>::UnitVector(1, 1);

	template <typename T>
	const TVector2<T> TVector2<T>::Unit45Deg(T(UE_INV_SQRT_2), T(UE_INV_SQRT_2));
}
