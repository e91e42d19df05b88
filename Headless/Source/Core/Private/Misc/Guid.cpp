#include "Misc/Guid.h"

#include <random>

namespace
{
	bool ParseHex(const FString& String, int32 Start, int32 Count, uint32& OutValue)
	{
		if (Start < 0 || Count <= 0 || Count > 8 || Start + Count > String.Len())
		{
			return false;
		}
		uint32 Value = 0;
		for (int32 Index = Start; Index < Start + Count; ++Index)
		{
			const TCHAR Char = String[Index];
			if (!FChar::IsHexDigit(Char))
			{
				return false;
			}
			const uint32 Digit = FChar::IsDigit(Char) ? uint32(Char - TEXT('0')) : uint32(FChar::ToLower(Char) - TEXT('a') + 10);
			Value = (Value << 4) | Digit;
		}
		OutValue = Value;
		return true;
	}

	bool HasCharsAt(const FString& String, std::initializer_list<std::pair<int32, TCHAR>> Expected)
	{
		for (const auto& [Index, Char] : Expected)
		{
			if (Index >= String.Len() || String[Index] != Char)
			{
				return false;
			}
		}
		return true;
	}

	// "00000000-0000-0000-0000-000000000000" starting at Offset.
	bool ParseHyphenated(const FString& String, int32 Offset, FGuid& OutGuid)
	{
		uint32 A = 0, B1 = 0, B2 = 0, C1 = 0, C2 = 0, D = 0;
		if (!HasCharsAt(String, { { Offset + 8, TEXT('-') }, { Offset + 13, TEXT('-') }, { Offset + 18, TEXT('-') }, { Offset + 23, TEXT('-') } })
			|| !ParseHex(String, Offset, 8, A) || !ParseHex(String, Offset + 9, 4, B1) || !ParseHex(String, Offset + 14, 4, B2)
			|| !ParseHex(String, Offset + 19, 4, C1) || !ParseHex(String, Offset + 24, 4, C2) || !ParseHex(String, Offset + 28, 8, D))
		{
			return false;
		}
		OutGuid = FGuid(A, (B1 << 16) | B2, (C1 << 16) | C2, D);
		return true;
	}

	bool ParseHexValuesInBraces(const FString& String, FGuid& OutGuid)
	{
		// {0xAAAAAAAA,0xBBBB,0xBBBB,{0xCC,0xCC,0xCC,0xCC,0xDD,0xDD,0xDD,0xDD}}
		if (String.Len() != 68 || !HasCharsAt(String, { { 0, TEXT('{') }, { 26, TEXT('{') }, { 66, TEXT('}') }, { 67, TEXT('}') } }))
		{
			return false;
		}
		uint32 Values[11];
		const int32 Starts[11] = { 3, 14, 21, 29, 34, 39, 44, 49, 54, 59, 64 };
		const int32 Counts[11] = { 8, 4, 4, 2, 2, 2, 2, 2, 2, 2, 2 };
		for (int32 Index = 0; Index < 11; ++Index)
		{
			if (!HasCharsAt(String, { { Starts[Index] - 2, TEXT('0') }, { Starts[Index] - 1, TEXT('x') } })
				|| !ParseHex(String, Starts[Index], Counts[Index], Values[Index]))
			{
				return false;
			}
		}
		OutGuid = FGuid(Values[0], (Values[1] << 16) | Values[2],
			(Values[3] << 24) | (Values[4] << 16) | (Values[5] << 8) | Values[6],
			(Values[7] << 24) | (Values[8] << 16) | (Values[9] << 8) | Values[10]);
		return true;
	}
}

FGuid::FGuid(const FString& InGuidString)
	: FGuid()
{
	if (!Parse(InGuidString, *this))
	{
		Invalidate();
	}
}

FGuid FGuid::NewGuid()
{
	// One generator per thread, seeded from the system's entropy source.
	thread_local std::mt19937_64 Generator([]
	{
		std::random_device Device;
		std::seed_seq Seed{ Device(), Device(), Device(), Device(), Device(), Device(), Device(), Device() };
		return std::mt19937_64(Seed);
	}());
	const uint64 High = Generator();
	const uint64 Low = Generator();
	FGuid Guid(uint32(High >> 32), uint32(High), uint32(Low >> 32), uint32(Low));
	// Version 4 and the RFC 4122 variant, where a GUID printed with hyphens shows them.
	Guid.B = (Guid.B & 0xffff0fffu) | 0x00004000u;
	Guid.C = (Guid.C & 0x3fffffffu) | 0x80000000u;
	return Guid;
}

bool FGuid::Parse(const FString& GuidString, FGuid& OutGuid)
{
	switch (GuidString.Len())
	{
	case 32:
		return ParseExact(GuidString, EGuidFormats::Digits, OutGuid);
	case 36:
		return ParseExact(GuidString, EGuidFormats::DigitsWithHyphens, OutGuid);
	case 38:
		return GuidString[0] == TEXT('{')
			? ParseExact(GuidString, EGuidFormats::DigitsWithHyphensInBraces, OutGuid)
			: ParseExact(GuidString, EGuidFormats::DigitsWithHyphensInParentheses, OutGuid);
	case 68:
		return ParseExact(GuidString, EGuidFormats::HexValuesInBraces, OutGuid);
	case 35:
		return ParseExact(GuidString, EGuidFormats::UniqueObjectGuid, OutGuid);
	default:
		return false;
	}
}

bool FGuid::ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid)
{
	FGuid Result;
	bool bParsed = false;
	switch (Format)
	{
	case EGuidFormats::Digits:
	case EGuidFormats::DigitsLower:
		bParsed = GuidString.Len() == 32 && ParseHex(GuidString, 0, 8, Result.A) && ParseHex(GuidString, 8, 8, Result.B)
			&& ParseHex(GuidString, 16, 8, Result.C) && ParseHex(GuidString, 24, 8, Result.D);
		break;
	case EGuidFormats::DigitsWithHyphens:
	case EGuidFormats::DigitsWithHyphensLower:
		bParsed = GuidString.Len() == 36 && ParseHyphenated(GuidString, 0, Result);
		break;
	case EGuidFormats::DigitsWithHyphensInBraces:
		bParsed = GuidString.Len() == 38 && HasCharsAt(GuidString, { { 0, TEXT('{') }, { 37, TEXT('}') } }) && ParseHyphenated(GuidString, 1, Result);
		break;
	case EGuidFormats::DigitsWithHyphensInParentheses:
		bParsed = GuidString.Len() == 38 && HasCharsAt(GuidString, { { 0, TEXT('(') }, { 37, TEXT(')') } }) && ParseHyphenated(GuidString, 1, Result);
		break;
	case EGuidFormats::HexValuesInBraces:
		bParsed = ParseHexValuesInBraces(GuidString, Result);
		break;
	case EGuidFormats::UniqueObjectGuid:
		bParsed = GuidString.Len() == 35 && HasCharsAt(GuidString, { { 8, TEXT('-') }, { 17, TEXT('-') }, { 26, TEXT('-') } })
			&& ParseHex(GuidString, 0, 8, Result.A) && ParseHex(GuidString, 9, 8, Result.B)
			&& ParseHex(GuidString, 18, 8, Result.C) && ParseHex(GuidString, 27, 8, Result.D);
		break;
	}
	if (bParsed)
	{
		OutGuid = Result;
	}
	return bParsed;
}

FString FGuid::ToString(EGuidFormats Format) const
{
	switch (Format)
	{
	case EGuidFormats::DigitsLower:
		return FString::Printf(TEXT("%08x%08x%08x%08x"), A, B, C, D);
	case EGuidFormats::DigitsWithHyphens:
		return FString::Printf(TEXT("%08X-%04X-%04X-%04X-%04X%08X"), A, B >> 16, B & 0xFFFF, C >> 16, C & 0xFFFF, D);
	case EGuidFormats::DigitsWithHyphensLower:
		return FString::Printf(TEXT("%08x-%04x-%04x-%04x-%04x%08x"), A, B >> 16, B & 0xFFFF, C >> 16, C & 0xFFFF, D);
	case EGuidFormats::DigitsWithHyphensInBraces:
		return FString::Printf(TEXT("{%08X-%04X-%04X-%04X-%04X%08X}"), A, B >> 16, B & 0xFFFF, C >> 16, C & 0xFFFF, D);
	case EGuidFormats::DigitsWithHyphensInParentheses:
		return FString::Printf(TEXT("(%08X-%04X-%04X-%04X-%04X%08X)"), A, B >> 16, B & 0xFFFF, C >> 16, C & 0xFFFF, D);
	case EGuidFormats::HexValuesInBraces:
		return FString::Printf(TEXT("{0x%08X,0x%04X,0x%04X,{0x%02X,0x%02X,0x%02X,0x%02X,0x%02X,0x%02X,0x%02X,0x%02X}}"),
			A, B >> 16, B & 0xFFFF, C >> 24, (C >> 16) & 0xFF, (C >> 8) & 0xFF, C & 0xFF, D >> 24, (D >> 16) & 0xFF, (D >> 8) & 0xFF, D & 0xFF);
	case EGuidFormats::UniqueObjectGuid:
		return FString::Printf(TEXT("%08X-%08X-%08X-%08X"), A, B, C, D);
	default:
		return FString::Printf(TEXT("%08X%08X%08X%08X"), A, B, C, D);
	}
}
