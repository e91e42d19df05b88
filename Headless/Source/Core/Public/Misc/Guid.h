// A 128-bit globally unique identifier, as four 32-bit words.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"

enum class EGuidFormats
{
	/** 00000000000000000000000000000000 */
	Digits,
	/** 0000000000000000000000000000000a */
	DigitsLower,
	/** 00000000-0000-0000-0000-000000000000 */
	DigitsWithHyphens,
	/** 00000000-0000-0000-0000-00000000000a */
	DigitsWithHyphensLower,
	/** {00000000-0000-0000-0000-000000000000} */
	DigitsWithHyphensInBraces,
	/** (00000000-0000-0000-0000-000000000000) */
	DigitsWithHyphensInParentheses,
	/** {0x00000000,0x0000,0x0000,{0x00,0x00,0x00,0x00,0x00,0x00,0x00,0x00}} */
	HexValuesInBraces,
	/** 00000000-00000000-00000000-00000000 */
	UniqueObjectGuid,
};

struct FGuid
{
public:
	constexpr FGuid()
		: A(0)
		, B(0)
		, C(0)
		, D(0)
	{
	}

	explicit constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{
	}

	/** Parses any of the formats; an unparsable string gives the invalid (zero) guid. */
	CORE_API explicit FGuid(const FString& InGuidString);

	/** A new random guid (version 4 layout). */
	static CORE_API FGuid NewGuid();

	/** Recognises the format from the string's shape. */
	static CORE_API bool Parse(const FString& GuidString, FGuid& OutGuid);
	static CORE_API bool ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid);

	constexpr bool IsValid() const
	{
		return (A | B | C | D) != 0;
	}

	constexpr void Invalidate()
	{
		A = B = C = D = 0;
	}

	CORE_API FString ToString(EGuidFormats Format = EGuidFormats::Digits) const;

	uint32& operator[](int32 Index)
	{
		checkf(Index >= 0 && Index < 4, "Guid component out of range");
		return Index == 0 ? A : (Index == 1 ? B : (Index == 2 ? C : D));
	}

	const uint32& operator[](int32 Index) const
	{
		checkf(Index >= 0 && Index < 4, "Guid component out of range");
		return Index == 0 ? A : (Index == 1 ? B : (Index == 2 ? C : D));
	}

	friend constexpr bool operator==(const FGuid& X, const FGuid& Y)
	{
		return ((X.A ^ Y.A) | (X.B ^ Y.B) | (X.C ^ Y.C) | (X.D ^ Y.D)) == 0;
	}

	friend constexpr bool operator<(const FGuid& X, const FGuid& Y)
	{
		return ((X.A < Y.A) ? true : ((X.A > Y.A) ? false :
			((X.B < Y.B) ? true : ((X.B > Y.B) ? false :
			((X.C < Y.C) ? true : ((X.C > Y.C) ? false :
			((X.D < Y.D) ? true : false)))))));
	}

	friend uint32 GetTypeHash(const FGuid& Guid)
	{
		return HashCombine(HashCombine(Guid.A, Guid.B), HashCombine(Guid.C, Guid.D));
	}

	friend FString LexToString(const FGuid& Value)
	{
		return Value.ToString();
	}

	friend void LexFromString(FGuid& Result, const TCHAR* String)
	{
		FGuid::Parse(String, Result);
	}

	uint32 A;
	uint32 B;
	uint32 C;
	uint32 D;
};
