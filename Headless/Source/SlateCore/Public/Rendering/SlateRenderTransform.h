// General 2D affine transforms (2x2 matrix plus translation) and the render transform Slate
// applies on top of layout. Points are row vectors: P' = P * M + T, so "A then B" is A * B.
#pragma once

#include "Math/Vector2D.h"
#include "Rendering/SlateLayoutTransform.h"

namespace UE::Math
{
	template <typename T>
	class TScale2
	{
	public:
		explicit TScale2(T InScale = T(1))
			: Scale(InScale, InScale)
		{
		}

		TScale2(T InScaleX, T InScaleY)
			: Scale(InScaleX, InScaleY)
		{
		}

		explicit TScale2(const TVector2<T>& InScale)
			: Scale(InScale)
		{
		}

		const TVector2<T>& GetVector() const
		{
			return Scale;
		}

		TVector2<T> TransformPoint(const TVector2<T>& Point) const
		{
			return Scale * Point;
		}

		TVector2<T> TransformVector(const TVector2<T>& Vector) const
		{
			return TransformPoint(Vector);
		}

	private:
		TVector2<T> Scale;
	};

	template <typename T>
	class TMatrix2x2
	{
	public:
		TMatrix2x2()
			: M{{T(1), T(0)}, {T(0), T(1)}}
		{
		}

		TMatrix2x2(T m00, T m01, T m10, T m11)
			: M{{m00, m01}, {m10, m11}}
		{
		}

		explicit TMatrix2x2(T UniformScale)
			: M{{UniformScale, T(0)}, {T(0), UniformScale}}
		{
		}

		explicit TMatrix2x2(const TScale2<T>& Scale)
			: M{{Scale.GetVector().X, T(0)}, {T(0), Scale.GetVector().Y}}
		{
		}

		TVector2<T> TransformPoint(const TVector2<T>& Point) const
		{
			return TVector2<T>(Point.X * M[0][0] + Point.Y * M[1][0], Point.X * M[0][1] + Point.Y * M[1][1]);
		}

		TVector2<T> TransformVector(const TVector2<T>& Vector) const
		{
			return TransformPoint(Vector);
		}

		// This matrix first, then RHS.
		TMatrix2x2 Concatenate(const TMatrix2x2& RHS) const
		{
			return TMatrix2x2(
				M[0][0] * RHS.M[0][0] + M[0][1] * RHS.M[1][0], M[0][0] * RHS.M[0][1] + M[0][1] * RHS.M[1][1],
				M[1][0] * RHS.M[0][0] + M[1][1] * RHS.M[1][0], M[1][0] * RHS.M[0][1] + M[1][1] * RHS.M[1][1]);
		}

		T Determinant() const
		{
			return M[0][0] * M[1][1] - M[0][1] * M[1][0];
		}

		TMatrix2x2 Inverse() const
		{
			// A degenerate matrix (a zero scale) yields non-finite entries rather than stopping
			// the program, as in a shipping engine; callers that can meet one test the result.
			const T InvDet = T(1) / Determinant();
			return TMatrix2x2(M[1][1] * InvDet, -M[0][1] * InvDet, -M[1][0] * InvDet, M[0][0] * InvDet);
		}

		void GetMatrix(T& A, T& B, T& C, T& D) const
		{
			A = M[0][0];
			B = M[0][1];
			C = M[1][0];
			D = M[1][1];
		}

		bool IsIdentity() const
		{
			return M[0][0] == T(1) && M[0][1] == T(0) && M[1][0] == T(0) && M[1][1] == T(1);
		}

		bool operator==(const TMatrix2x2& Other) const
		{
			return M[0][0] == Other.M[0][0] && M[0][1] == Other.M[0][1] && M[1][0] == Other.M[1][0] && M[1][1] == Other.M[1][1];
		}

		bool operator!=(const TMatrix2x2& Other) const
		{
			return !(*this == Other);
		}

	private:
		T M[2][2];
	};

	template <typename T>
	class TTransform2
	{
	public:
		using Vector2Type = TVector2<T>;
		using MatrixType = TMatrix2x2<T>;

		explicit TTransform2(const Vector2Type& InTranslation = Vector2Type(T(0), T(0)))
			: Trans(InTranslation)
		{
		}

		explicit TTransform2(T UniformScale, const Vector2Type& InTranslation = Vector2Type(T(0), T(0)))
			: M(UniformScale)
			, Trans(InTranslation)
		{
		}

		explicit TTransform2(const TScale2<T>& Scale, const Vector2Type& InTranslation = Vector2Type(T(0), T(0)))
			: M(Scale)
			, Trans(InTranslation)
		{
		}

		explicit TTransform2(const MatrixType& InMatrix, const Vector2Type& InTranslation = Vector2Type(T(0), T(0)))
			: M(InMatrix)
			, Trans(InTranslation)
		{
		}

		// A layout transform is a render transform without rotation or shear.
		TTransform2(const FSlateLayoutTransform& Layout)
			: M(T(Layout.GetScale()))
			, Trans(Vector2Type(Layout.GetTranslation()))
		{
		}

		Vector2Type TransformPoint(const Vector2Type& Point) const
		{
			return M.TransformPoint(Point) + Trans;
		}

		Vector2Type TransformVector(const Vector2Type& Vector) const
		{
			return M.TransformVector(Vector);
		}

		// This transform first, then RHS.
		TTransform2 Concatenate(const TTransform2& RHS) const
		{
			return TTransform2(M.Concatenate(RHS.M), RHS.TransformPoint(Trans));
		}

		TTransform2 Inverse() const
		{
			const MatrixType InvM = M.Inverse();
			return TTransform2(InvM, InvM.TransformPoint(-Trans));
		}

		const MatrixType& GetMatrix() const
		{
			return M;
		}

		const Vector2Type& GetTranslation() const
		{
			return Trans;
		}

		void SetTranslation(const Vector2Type& InTrans)
		{
			Trans = InTrans;
		}

		bool IsIdentity() const
		{
			return M.IsIdentity() && Trans == Vector2Type(T(0), T(0));
		}

		bool operator==(const TTransform2& Other) const
		{
			return M == Other.M && Trans == Other.Trans;
		}

		bool operator!=(const TTransform2& Other) const
		{
			return !(*this == Other);
		}

	private:
		MatrixType M;
		Vector2Type Trans;
	};
}

using FScale2f = UE::Math::TScale2<float>;
using FScale2d = UE::Math::TScale2<double>;
using FScale2D = FScale2f;
using FMatrix2x2f = UE::Math::TMatrix2x2<float>;
using FMatrix2x2 = FMatrix2x2f;
using FTransform2f = UE::Math::TTransform2<float>;
using FTransform2d = UE::Math::TTransform2<double>;
using FTransform2D = FTransform2f;

// Slate draws in single precision.
using FSlateRenderTransform = FTransform2f;

template <typename T>
UE::Math::TTransform2<T> Concatenate(const UE::Math::TTransform2<T>& LHS, const UE::Math::TTransform2<T>& RHS)
{
	return LHS.Concatenate(RHS);
}

inline FSlateRenderTransform Concatenate(const FSlateLayoutTransform& LHS, const FSlateRenderTransform& RHS)
{
	return FSlateRenderTransform(LHS).Concatenate(RHS);
}

inline FSlateRenderTransform Concatenate(const FSlateRenderTransform& LHS, const FSlateLayoutTransform& RHS)
{
	return LHS.Concatenate(FSlateRenderTransform(RHS));
}

// Left to right: each transform applies after the ones before it.
template <typename A, typename B, typename C, typename... Rest>
auto Concatenate(const A& First, const B& Second, const C& Third, const Rest&... Others)
{
	return Concatenate(Concatenate(First, Second), Third, Others...);
}

template <typename T>
UE::Math::TTransform2<T> Inverse(const UE::Math::TTransform2<T>& Transform)
{
	return Transform.Inverse();
}

template <typename T>
UE::Math::TVector2<T> TransformPoint(const UE::Math::TTransform2<T>& Transform, const UE::Math::TVector2<T>& Point)
{
	return Transform.TransformPoint(Point);
}

template <typename T>
UE::Math::TVector2<T> TransformVector(const UE::Math::TTransform2<T>& Transform, const UE::Math::TVector2<T>& Vector)
{
	return Transform.TransformVector(Vector);
}

template <typename T>
UE::Math::TVector2<T> TransformPoint(const UE::Math::TScale2<T>& Scale, const UE::Math::TVector2<T>& Point)
{
	return Scale.TransformPoint(Point);
}

template <typename ToType, typename FromType>
ToType TransformCast(const FromType& From)
{
	return ToType(From);
}
