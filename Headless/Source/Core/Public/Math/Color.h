// Colours: FLinearColor holds linear floating-point RGBA; FColor holds 8-bit sRGB-encoded BGRA, the
// layout of the engine's textures. Converting between them encodes or decodes sRGB.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <cstring>

struct alignas(4) FColor
{
	uint8 B = 0;
	uint8 G = 0;
	uint8 R = 0;
	uint8 A = 0;

	static const FColor White;
	static const FColor Black;
	static const FColor Transparent;
	static const FColor Red;
	static const FColor Green;
	static const FColor Blue;
	static const FColor Yellow;
	static const FColor Cyan;
	static const FColor Magenta;
	static const FColor Orange;
	static const FColor Purple;
	static const FColor Turquoise;
	static const FColor Silver;
	static const FColor Emerald;

	constexpr FColor() = default;

	explicit constexpr FColor(EForceInit)
	{
	}

	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}

	// Packed as the memory reads on a little-endian machine: 0xAARRGGBB.
	explicit FColor(uint32 InColor)
	{
		std::memcpy(this, &InColor, sizeof(InColor));
	}

	uint32 ToPackedARGB() const
	{
		return (uint32(A) << 24) | (uint32(R) << 16) | (uint32(G) << 8) | uint32(B);
	}

	uint32 ToPackedRGBA() const
	{
		return (uint32(R) << 24) | (uint32(G) << 16) | (uint32(B) << 8) | uint32(A);
	}

	uint32 DWColor() const
	{
		uint32 Packed;
		std::memcpy(&Packed, this, sizeof(Packed));
		return Packed;
	}

	constexpr bool operator==(const FColor& C) const
	{
		return R == C.R && G == C.G && B == C.B && A == C.A;
	}

	constexpr bool operator!=(const FColor& C) const
	{
		return !(*this == C);
	}

	// Saturating per channel.
	void operator+=(const FColor& C)
	{
		R = uint8(FMath::Min(int32(R) + int32(C.R), 255));
		G = uint8(FMath::Min(int32(G) + int32(C.G), 255));
		B = uint8(FMath::Min(int32(B) + int32(C.B), 255));
		A = uint8(FMath::Min(int32(A) + int32(C.A), 255));
	}

	constexpr FColor WithAlpha(uint8 Alpha) const
	{
		return FColor(R, G, B, Alpha);
	}

	FString ToString() const
	{
		return FString::Printf(TEXT("(R=%i,G=%i,B=%i,A=%i)"), R, G, B, A);
	}

	// RRGGBBAA, upper case.
	FString ToHex() const
	{
		return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
	}

	// Divides by 255 without decoding sRGB.
	FLinearColor ReinterpretAsLinear() const;

	friend uint32 GetTypeHash(const FColor& Color)
	{
		return Color.DWColor();
	}
};

struct FLinearColor
{
	float R = 0.0f;
	float G = 0.0f;
	float B = 0.0f;
	float A = 0.0f;

	static const FLinearColor White;
	static const FLinearColor Gray;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;
	static const FLinearColor Yellow;

	constexpr FLinearColor() = default;

	explicit constexpr FLinearColor(EForceInit)
	{
	}

	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}

	// Decodes sRGB; alpha is linear.
	FLinearColor(const FColor& Color)
		: R(SRGBToLinear(Color.R))
		, G(SRGBToLinear(Color.G))
		, B(SRGBToLinear(Color.B))
		, A(float(Color.A) / 255.0f)
	{
	}

	static FLinearColor FromSRGBColor(const FColor& Color)
	{
		return FLinearColor(Color);
	}

	// Exact sRGB decoding of one 8-bit channel.
	static float SRGBToLinear(uint8 Channel)
	{
		const double Encoded = double(Channel) / 255.0;
		return float(Encoded <= 0.04045 ? Encoded / 12.92 : FMath::Pow((Encoded + 0.055) / 1.055, 2.4));
	}

	// Quantises with sRGB encoding when bSRGB, else by rounding the linear values; alpha is never encoded.
	FColor ToFColor(const bool bSRGB) const
	{
		return bSRGB ? ToFColorSRGB() : QuantizeRound();
	}

	FColor ToFColorSRGB() const
	{
		const auto Encode = [](float Linear)
		{
			const float Clamped = FMath::Clamp(Linear, 0.0f, 1.0f);
			const float Encoded = Clamped <= 0.0031308f ? Clamped * 12.92f : FMath::Pow(Clamped, 1.0f / 2.4f) * 1.055f - 0.055f;
			return uint8(FMath::RoundToInt(Encoded * 255.0f));
		};
		return FColor(Encode(R), Encode(G), Encode(B), uint8(FMath::RoundToInt(FMath::Clamp(A, 0.0f, 1.0f) * 255.0f)));
	}

	FColor QuantizeRound() const
	{
		const auto Quantize = [](float Value)
		{
			return uint8(FMath::RoundToInt(FMath::Clamp(Value, 0.0f, 1.0f) * 255.0f));
		};
		return FColor(Quantize(R), Quantize(G), Quantize(B), Quantize(A));
	}

	FColor QuantizeFloor() const
	{
		const auto Quantize = [](float Value)
		{
			return uint8(FMath::FloorToInt(FMath::Clamp(Value, 0.0f, 1.0f) * 255.999f));
		};
		return FColor(Quantize(R), Quantize(G), Quantize(B), Quantize(A));
	}

	// Arithmetic, per channel including alpha

	constexpr FLinearColor operator+(const FLinearColor& Other) const
	{
		return FLinearColor(R + Other.R, G + Other.G, B + Other.B, A + Other.A);
	}

	constexpr FLinearColor operator-(const FLinearColor& Other) const
	{
		return FLinearColor(R - Other.R, G - Other.G, B - Other.B, A - Other.A);
	}

	constexpr FLinearColor operator*(const FLinearColor& Other) const
	{
		return FLinearColor(R * Other.R, G * Other.G, B * Other.B, A * Other.A);
	}

	constexpr FLinearColor operator/(const FLinearColor& Other) const
	{
		return FLinearColor(R / Other.R, G / Other.G, B / Other.B, A / Other.A);
	}

	constexpr FLinearColor operator*(float Scalar) const
	{
		return FLinearColor(R * Scalar, G * Scalar, B * Scalar, A * Scalar);
	}

	constexpr FLinearColor operator/(float Scalar) const
	{
		return FLinearColor(R / Scalar, G / Scalar, B / Scalar, A / Scalar);
	}

	FLinearColor& operator+=(const FLinearColor& Other)
	{
		return *this = *this + Other;
	}

	FLinearColor& operator-=(const FLinearColor& Other)
	{
		return *this = *this - Other;
	}

	FLinearColor& operator*=(const FLinearColor& Other)
	{
		return *this = *this * Other;
	}

	FLinearColor& operator*=(float Scalar)
	{
		return *this = *this * Scalar;
	}

	FLinearColor& operator/=(float Scalar)
	{
		return *this = *this / Scalar;
	}

	float& Component(int32 Index)
	{
		return (&R)[Index];
	}

	const float& Component(int32 Index) const
	{
		return (&R)[Index];
	}

	constexpr bool operator==(const FLinearColor& Other) const
	{
		return R == Other.R && G == Other.G && B == Other.B && A == Other.A;
	}

	constexpr bool operator!=(const FLinearColor& Other) const
	{
		return !(*this == Other);
	}

	bool Equals(const FLinearColor& ColorB, float Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(R - ColorB.R) < Tolerance && FMath::Abs(G - ColorB.G) < Tolerance
			&& FMath::Abs(B - ColorB.B) < Tolerance && FMath::Abs(A - ColorB.A) < Tolerance;
	}

	// Derived colours

	FLinearColor GetClamped(float InMin = 0.0f, float InMax = 1.0f) const
	{
		return FLinearColor(FMath::Clamp(R, InMin, InMax), FMath::Clamp(G, InMin, InMax),
			FMath::Clamp(B, InMin, InMax), FMath::Clamp(A, InMin, InMax));
	}

	constexpr FLinearColor CopyWithNewOpacity(float NewOpacity) const
	{
		return FLinearColor(R, G, B, NewOpacity);
	}

	float ComputeLuminance() const
	{
		return R * 0.3f + G * 0.59f + B * 0.11f;
	}

	float GetLuminance() const
	{
		return R * 0.3f + G * 0.59f + B * 0.11f;
	}

	float GetMax() const
	{
		return FMath::Max(FMath::Max(FMath::Max(R, G), B), A);
	}

	float GetMin() const
	{
		return FMath::Min(FMath::Min(FMath::Min(R, G), B), A);
	}

	bool IsAlmostBlack() const
	{
		return FMath::Square(R) < UE_DELTA && FMath::Square(G) < UE_DELTA && FMath::Square(B) < UE_DELTA;
	}

	// HSV with hue in degrees in R, saturation in G, value in B; alpha carried through.
	FLinearColor LinearRGBToHSV() const
	{
		const float RGBMin = FMath::Min3(R, G, B);
		const float RGBMax = FMath::Max3(R, G, B);
		const float RGBRange = RGBMax - RGBMin;

		const float Hue = (RGBMax == RGBMin ? 0.0f
			: RGBMax == R ? FMath::Fmod((((G - B) / RGBRange) * 60.0f) + 360.0f, 360.0f)
			: RGBMax == G ? (((B - R) / RGBRange) * 60.0f) + 120.0f
			: (((R - G) / RGBRange) * 60.0f) + 240.0f);
		const float Saturation = (RGBMax == 0.0f ? 0.0f : RGBRange / RGBMax);
		return FLinearColor(Hue, Saturation, RGBMax, A);
	}

	FLinearColor HSVToLinearRGB() const
	{
		const float Hue = R;
		const float Saturation = G;
		const float Value = B;

		const float HDiv60 = Hue / 60.0f;
		const float HDiv60Floor = FMath::FloorToFloat(HDiv60);
		const float HDiv60Fraction = HDiv60 - HDiv60Floor;

		const float RGBValues[4] = {
			Value,
			Value * (1.0f - Saturation),
			Value * (1.0f - (HDiv60Fraction * Saturation)),
			Value * (1.0f - ((1.0f - HDiv60Fraction) * Saturation)),
		};
		static const uint32 RGBSwizzle[6][3] = {
			{0, 3, 1},
			{2, 0, 1},
			{1, 0, 3},
			{1, 2, 0},
			{3, 1, 0},
			{0, 1, 2},
		};
		const uint32 SwizzleIndex = uint32(HDiv60Floor) % 6;
		return FLinearColor(RGBValues[RGBSwizzle[SwizzleIndex][0]], RGBValues[RGBSwizzle[SwizzleIndex][1]],
			RGBValues[RGBSwizzle[SwizzleIndex][2]], A);
	}

	static FLinearColor LerpUsingHSV(const FLinearColor& From, const FLinearColor& To, const float Progress)
	{
		const FLinearColor FromHSV = From.LinearRGBToHSV();
		const FLinearColor ToHSV = To.LinearRGBToHSV();

		float FromHue = FromHSV.R;
		float ToHue = ToHSV.R;
		// Go the short way round the hue circle.
		if (FMath::Abs(FromHue - ToHue) > 180.0f)
		{
			if (ToHue > FromHue)
			{
				FromHue += 360.0f;
			}
			else
			{
				ToHue += 360.0f;
			}
		}
		float NewHue = FMath::Lerp(FromHue, ToHue, Progress);
		NewHue = FMath::Fmod(NewHue, 360.0f);
		if (NewHue < 0.0f)
		{
			NewHue += 360.0f;
		}
		const float NewSaturation = FMath::Lerp(FromHSV.G, ToHSV.G, Progress);
		const float NewValue = FMath::Lerp(FromHSV.B, ToHSV.B, Progress);
		const float NewAlpha = FMath::Lerp(From.A, To.A, Progress);
		return FLinearColor(NewHue, NewSaturation, NewValue, NewAlpha).HSVToLinearRGB();
	}

	FString ToString() const
	{
		return FString::Printf(TEXT("(R=%f,G=%f,B=%f,A=%f)"), R, G, B, A);
	}

	friend uint32 GetTypeHash(const FLinearColor& Color)
	{
		return HashCombine(HashCombine(GetTypeHash(Color.R), GetTypeHash(Color.G)), HashCombine(GetTypeHash(Color.B), GetTypeHash(Color.A)));
	}
};

inline constexpr FLinearColor operator*(float Scalar, const FLinearColor& Color)
{
	return Color * Scalar;
}

inline FLinearColor FColor::ReinterpretAsLinear() const
{
	return FLinearColor(R / 255.0f, G / 255.0f, B / 255.0f, A / 255.0f);
}

inline const FLinearColor FLinearColor::White(1.0f, 1.0f, 1.0f);
inline const FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
inline const FLinearColor FLinearColor::Black(0.0f, 0.0f, 0.0f);
inline const FLinearColor FLinearColor::Transparent(0.0f, 0.0f, 0.0f, 0.0f);
inline const FLinearColor FLinearColor::Red(1.0f, 0.0f, 0.0f);
inline const FLinearColor FLinearColor::Green(0.0f, 1.0f, 0.0f);
inline const FLinearColor FLinearColor::Blue(0.0f, 0.0f, 1.0f);
inline const FLinearColor FLinearColor::Yellow(1.0f, 1.0f, 0.0f);

inline const FColor FColor::White(255, 255, 255);
inline const FColor FColor::Black(0, 0, 0);
inline const FColor FColor::Transparent(0, 0, 0, 0);
inline const FColor FColor::Red(255, 0, 0);
inline const FColor FColor::Green(0, 255, 0);
inline const FColor FColor::Blue(0, 0, 255);
inline const FColor FColor::Yellow(255, 255, 0);
inline const FColor FColor::Cyan(0, 255, 255);
inline const FColor FColor::Magenta(255, 0, 255);
inline const FColor FColor::Orange(243, 156, 18);
inline const FColor FColor::Purple(169, 7, 228);
inline const FColor FColor::Turquoise(26, 188, 156);
inline const FColor FColor::Silver(189, 195, 199);
inline const FColor FColor::Emerald(46, 204, 113);
