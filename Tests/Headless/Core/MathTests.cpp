#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/NumericLimits.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"

#include <gtest/gtest.h>

#include <type_traits>

TEST(MathTest, FloorRoundsTowardNegativeInfinityAndKeepsExactIntegers)
{
	EXPECT_EQ(FMath::FloorToInt(-0.5f), -1);
	EXPECT_EQ(FMath::FloorToInt(-1.0f), -1);
	EXPECT_EQ(FMath::FloorToInt(-1.0001f), -2);
	EXPECT_EQ(FMath::FloorToInt(2.0f), 2);
	EXPECT_EQ(FMath::FloorToInt(2.999f), 2);
	EXPECT_EQ(FMath::FloorToInt32(-3.0), -3);
	EXPECT_EQ(FMath::FloorToInt32(-2.5), -3);
	EXPECT_EQ(FMath::FloorToInt(-1e10), -10000000000LL);
	EXPECT_EQ(FMath::FloorToDouble(-0.25), -1.0);
	EXPECT_EQ(FMath::FloorToFloat(7.75f), 7.0f);

	static_assert(std::is_same_v<decltype(FMath::FloorToInt(1.0f)), int32>);
	static_assert(std::is_same_v<decltype(FMath::FloorToInt(1.0)), int64>);
	static_assert(std::is_same_v<decltype(FMath::FloorToInt32(1.0)), int32>);
}

TEST(MathTest, CeilTruncAndRoundFollowTheirTieRules)
{
	EXPECT_EQ(FMath::CeilToInt(-0.5f), 0);
	EXPECT_EQ(FMath::CeilToInt(1.0f), 1);
	EXPECT_EQ(FMath::CeilToInt(1.01f), 2);
	EXPECT_EQ(FMath::TruncToInt(-1.9f), -1);

	// Halves round up, toward positive infinity.
	EXPECT_EQ(FMath::RoundToInt(0.5f), 1);
	EXPECT_EQ(FMath::RoundToInt(-0.5f), 0);
	EXPECT_EQ(FMath::RoundToInt(-1.5f), -1);
	EXPECT_EQ(FMath::RoundToInt(2.4), 2);

	EXPECT_EQ(FMath::RoundHalfFromZero(-1.5f), -2.0f);
	EXPECT_EQ(FMath::RoundHalfFromZero(1.5f), 2.0f);
	EXPECT_EQ(FMath::RoundHalfFromZero(-1.4f), -1.0f);
	EXPECT_EQ(FMath::RoundHalfToZero(-1.5f), -1.0f);
	EXPECT_EQ(FMath::RoundHalfToZero(2.5), 2.0);
}

TEST(MathTest, ScalarHelpersClampCompareAndInterpolate)
{
	EXPECT_EQ(FMath::Clamp(5, 0, 3), 3);
	EXPECT_EQ(FMath::Clamp(-1.0f, 0.0f, 1.0f), 0.0f);
	EXPECT_EQ(FMath::Clamp(0.5, 0.0f, 1), 0.5);
	EXPECT_EQ(FMath::Max(2, 7), 7);
	EXPECT_EQ(FMath::Min(2.0f, 1.5), 1.5);
	EXPECT_EQ(FMath::Abs(-3), 3);
	EXPECT_EQ(FMath::Sign(-0.1f), -1.0f);
	EXPECT_EQ(FMath::Sign(0), 0);
	EXPECT_EQ(FMath::Square(-4), 16);
	EXPECT_FLOAT_EQ(FMath::Lerp(10.0f, 20.0f, 0.25f), 12.5f);
	EXPECT_TRUE(FMath::IsNearlyEqual(0.1f + 0.2f, 0.3f, UE_KINDA_SMALL_NUMBER));
	EXPECT_FALSE(FMath::IsNearlyEqual(1.0, 1.001));
	EXPECT_TRUE(FMath::IsNearlyZero(1e-9f));
	EXPECT_TRUE(FMath::IsNaN(FMath::Sqrt(-1.0)));
	EXPECT_FALSE(FMath::IsFinite(1.0 / 0.0 * 0.0 + 1.0 / (FMath::Sqrt(0.0))));
	EXPECT_EQ(FMath::Fmod(-7.0f, 3.0f), -1.0f);
	EXPECT_EQ(FMath::Fmod(5.0, 0.0), 0.0);
	EXPECT_FLOAT_EQ(FMath::GetMappedRangeValueClamped(0.0f, 10.0f, 100.0f, 200.0f, 15.0f), 200.0f);
	EXPECT_DOUBLE_EQ(FMath::FInterpTo(0.0, 10.0, 0.1, 5.0), 5.0);
	EXPECT_DOUBLE_EQ(FMath::FInterpTo(0.0, 10.0, 0.1, 0.0), 10.0);
}

TEST(MathTest, RandomRangesStayWithinTheirInclusiveBounds)
{
	FMath::RandInit(1234);
	bool bSawMin = false;
	bool bSawMax = false;
	for (int32 Iteration = 0; Iteration < 2000; ++Iteration)
	{
		const int32 Value = FMath::RandRange(-2, 2);
		ASSERT_GE(Value, -2);
		ASSERT_LE(Value, 2);
		bSawMin |= Value == -2;
		bSawMax |= Value == 2;
		const float Fraction = FMath::FRand();
		ASSERT_GE(Fraction, 0.0f);
		ASSERT_LT(Fraction, 1.0f);
	}
	EXPECT_TRUE(bSawMin);
	EXPECT_TRUE(bSawMax);
	EXPECT_EQ(FMath::RandRange(5, 5), 5);
}

TEST(MathTest, NumericLimitsMatchTheEngineMeaningOfMin)
{
	EXPECT_EQ(TNumericLimits<int32>::Min(), MIN_int32);
	EXPECT_EQ(TNumericLimits<uint8>::Max(), 255);
	EXPECT_GT(TNumericLimits<float>::Min(), 0.0f);
	EXPECT_EQ(TNumericLimits<float>::Lowest(), -TNumericLimits<float>::Max());
}

TEST(VectorTest, ArithmeticIsComponentWiseAndScalarsApplyToBoth)
{
	const FVector2D A(1.0, 2.0);
	const FVector2D B(3.0, -4.0);
	EXPECT_EQ(A + B, FVector2D(4.0, -2.0));
	EXPECT_EQ(A - B, FVector2D(-2.0, 6.0));
	EXPECT_EQ(A * B, FVector2D(3.0, -8.0));
	EXPECT_EQ(B / FVector2D(3.0, 2.0), FVector2D(1.0, -2.0));
	EXPECT_EQ(A * 2, FVector2D(2.0, 4.0));
	EXPECT_EQ(2.0f * A, FVector2D(2.0, 4.0));
	EXPECT_EQ(B / 2.0, FVector2D(1.5, -2.0));
	EXPECT_EQ(-A, FVector2D(-1.0, -2.0));
	EXPECT_EQ(A | B, -5.0);
	EXPECT_EQ(A ^ B, -10.0);
	EXPECT_EQ(B.Size(), 5.0);
	EXPECT_EQ(B.SizeSquared(), 25.0);
	EXPECT_EQ(FVector2D::Distance(A, A + FVector2D(3.0, 4.0)), 5.0);
	EXPECT_TRUE(B.GetSafeNormal().Equals(FVector2D(0.6, -0.8)));
	EXPECT_EQ(FVector2D::ZeroVector.GetSafeNormal(), FVector2D::ZeroVector);
	EXPECT_EQ(FVector2D::UnitVector, FVector2D(1.0, 1.0));
	EXPECT_TRUE(A.Equals(FVector2D(1.00001, 2.0)));
	EXPECT_FALSE(A.Equals(FVector2D(1.001, 2.0)));
	EXPECT_NE(A, FVector2D(1.00001, 2.0));

	FVector2D Accumulated = A;
	Accumulated += B;
	Accumulated *= 0.5;
	EXPECT_EQ(Accumulated, FVector2D(2.0, -1.0));
}

TEST(VectorTest, PrecisionAndIntegerConversionsAreExplicit)
{
	static_assert(!std::is_convertible_v<FVector2f, FVector2D>);
	static_assert(std::is_constructible_v<FVector2D, FVector2f>);
	const FVector2f Single(0.5f, -1.25f);
	const FVector2D Double(Single);
	EXPECT_EQ(Double, FVector2D(0.5, -1.25));
	EXPECT_EQ(FVector2f(FVector2D(2.0, 3.0)), FVector2f(2.0f, 3.0f));
	EXPECT_EQ(FVector2D(FIntPoint(3, -4)), FVector2D(3.0, -4.0));
	EXPECT_EQ(FVector2D(1.5, -1.5).IntPoint(), FIntPoint(2, -1));
}

TEST(IntPointTest, ArithmeticAndDivisionRounding)
{
	const FIntPoint Point(7, -3);
	EXPECT_EQ(Point + FIntPoint(1, 1), FIntPoint(8, -2));
	EXPECT_EQ(Point * 2, FIntPoint(14, -6));
	EXPECT_EQ(Point / 2, FIntPoint(3, -1));
	EXPECT_EQ(FIntPoint::DivideAndRoundUp(FIntPoint(7, 8), 4), FIntPoint(2, 2));
	EXPECT_EQ(Point.GetMax(), 7);
	EXPECT_EQ(FIntPoint(3, 4).Size(), 5);
	EXPECT_EQ(FIntPoint::ZeroValue, FIntPoint());
	EXPECT_EQ(FIntPoint::NoneValue, FIntPoint(INDEX_NONE, INDEX_NONE));
	EXPECT_NE(GetTypeHash(FIntPoint(1, 2)), GetTypeHash(FIntPoint(2, 1)));
}

TEST(ColorTest, SRGBRoundTripIsExactForEveryChannelValue)
{
	for (int32 Value = 0; Value < 256; ++Value)
	{
		const FColor Original(uint8(Value), uint8(255 - Value), uint8(Value / 2), uint8(Value));
		const FLinearColor Linear(Original);
		EXPECT_EQ(Linear.ToFColor(true), Original) << Value;
		EXPECT_EQ(Original.ReinterpretAsLinear().ToFColor(false), Original) << Value;
	}
}

TEST(ColorTest, ConversionsDecodeColourButNotAlpha)
{
	const FLinearColor Decoded(FColor(128, 0, 255, 128));
	EXPECT_NEAR(Decoded.R, 0.2158605f, 1e-6f);
	EXPECT_EQ(Decoded.G, 0.0f);
	EXPECT_EQ(Decoded.B, 1.0f);
	EXPECT_NEAR(Decoded.A, 128.0f / 255.0f, 1e-6f);

	const FLinearColor Half(0.5f, 0.5f, 0.5f, 0.5f);
	EXPECT_EQ(Half.ToFColor(true), FColor(188, 188, 188, 128));
	EXPECT_EQ(Half.ToFColor(false), FColor(128, 128, 128, 128));
	EXPECT_EQ(FLinearColor(2.0f, -1.0f, 0.0f, 1.0f).ToFColor(true), FColor(255, 0, 0, 255));
	EXPECT_EQ(FLinearColor::White.ToFColor(true), FColor::White);
	EXPECT_EQ(FLinearColor::Transparent.ToFColor(true), FColor::Transparent);
}

TEST(ColorTest, FColorStoresChannelsInBGRAOrder)
{
	const FColor Color(0x11, 0x22, 0x33, 0x44);
	const uint8* Bytes = reinterpret_cast<const uint8*>(&Color);
	EXPECT_EQ(Bytes[0], 0x33);
	EXPECT_EQ(Bytes[1], 0x22);
	EXPECT_EQ(Bytes[2], 0x11);
	EXPECT_EQ(Bytes[3], 0x44);
	EXPECT_EQ(Color.DWColor(), 0x44112233u);
	EXPECT_EQ(FColor(0x44112233u), Color);
	EXPECT_EQ(Color.ToPackedARGB(), 0x44112233u);
}

TEST(ColorTest, LinearArithmeticAndHSVRoundTrip)
{
	EXPECT_EQ(FLinearColor::Red * 0.5f, FLinearColor(0.5f, 0.0f, 0.0f, 0.5f));
	EXPECT_EQ(FLinearColor::Red + FLinearColor::Green, FLinearColor(1.0f, 1.0f, 0.0f, 2.0f));
	EXPECT_EQ(FLinearColor::Blue.CopyWithNewOpacity(0.25f), FLinearColor(0.0f, 0.0f, 1.0f, 0.25f));
	EXPECT_TRUE(FLinearColor(0.5f, 0.5f, 0.5f).Equals(FLinearColor(0.50001f, 0.5f, 0.5f)));
	EXPECT_NE(FLinearColor(0.5f, 0.5f, 0.5f), FLinearColor(0.50001f, 0.5f, 0.5f));

	const FLinearColor Orange(1.0f, 0.5f, 0.0f, 0.75f);
	const FLinearColor HSV = Orange.LinearRGBToHSV();
	EXPECT_NEAR(HSV.R, 30.0f, 1e-4f);
	EXPECT_NEAR(HSV.G, 1.0f, 1e-6f);
	EXPECT_NEAR(HSV.B, 1.0f, 1e-6f);
	EXPECT_TRUE(HSV.HSVToLinearRGB().Equals(Orange));
}

TEST(MathTest, ToStringUsesTheEngineFormats)
{
	EXPECT_EQ(FVector2D(1.0, -2.5).ToString(), TEXT("X=1.000 Y=-2.500"));
	EXPECT_EQ(FIntPoint(3, -4).ToString(), TEXT("X=3 Y=-4"));
	EXPECT_EQ(FColor(1, 2, 255, 16).ToString(), TEXT("(R=1,G=2,B=255,A=16)"));
	EXPECT_EQ(FColor(1, 2, 255, 16).ToHex(), TEXT("0102FF10"));
	EXPECT_EQ(FLinearColor(0.5f, 0.0f, 1.0f).ToString(), TEXT("(R=0.500000,G=0.000000,B=1.000000,A=1.000000)"));
}
