// Character classification. ASCII is answered inline; the rest of Unicode goes to ICU, so a TCHAR
// (one UTF-16 code unit) is classified as the code point it is when it is not a surrogate.
#pragma once

#include "HAL/Platform.h"

namespace UE::Core::Private
{
	CORE_API uint32 UnicodeToLower(uint32 Char);
	CORE_API uint32 UnicodeToUpper(uint32 Char);
	CORE_API bool UnicodeIsAlpha(uint32 Char);
	CORE_API bool UnicodeIsUpper(uint32 Char);
	CORE_API bool UnicodeIsLower(uint32 Char);
}

template <typename CharType>
struct TChar
{
	static constexpr bool IsWide = sizeof(CharType) > 1;

	static CharType ToUpper(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		if (Code < 128 || !IsWide)
		{
			return (Code >= 'a' && Code <= 'z') ? CharType(Code - ('a' - 'A')) : Char;
		}
		return CharType(UE::Core::Private::UnicodeToUpper(Code));
	}

	static CharType ToLower(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		if (Code < 128 || !IsWide)
		{
			return (Code >= 'A' && Code <= 'Z') ? CharType(Code + ('a' - 'A')) : Char;
		}
		return CharType(UE::Core::Private::UnicodeToLower(Code));
	}

	static bool IsUpper(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		if (Code < 128 || !IsWide)
		{
			return Code >= 'A' && Code <= 'Z';
		}
		return UE::Core::Private::UnicodeIsUpper(Code);
	}

	static bool IsLower(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		if (Code < 128 || !IsWide)
		{
			return Code >= 'a' && Code <= 'z';
		}
		return UE::Core::Private::UnicodeIsLower(Code);
	}

	static bool IsAlpha(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		if (Code < 128 || !IsWide)
		{
			return (Code >= 'A' && Code <= 'Z') || (Code >= 'a' && Code <= 'z');
		}
		return UE::Core::Private::UnicodeIsAlpha(Code);
	}

	// Digits are ASCII only: parsing code relies on '0'..'9' being the only digits it sees.
	static constexpr bool IsDigit(CharType Char)
	{
		return Char >= '0' && Char <= '9';
	}

	static bool IsAlnum(CharType Char)
	{
		return IsDigit(Char) || IsAlpha(Char);
	}

	static constexpr bool IsHexDigit(CharType Char)
	{
		return IsDigit(Char) || (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F');
	}

	static constexpr bool IsOctDigit(CharType Char)
	{
		return Char >= '0' && Char <= '7';
	}

	static constexpr bool IsUnderscore(CharType Char)
	{
		return Char == '_';
	}

	static constexpr bool IsLinebreak(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		return (Code >= 0x0a && Code <= 0x0d) || (IsWide && (Code == 0x85 || Code == 0x2028 || Code == 0x2029));
	}

	static constexpr bool IsWhitespace(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		if (Code == ' ' || (Code >= 0x09 && Code <= 0x0d))
		{
			return true;
		}
		if (!IsWide)
		{
			return false;
		}
		return Code == 0x85 || Code == 0xa0 || Code == 0x1680 || (Code >= 0x2000 && Code <= 0x200a)
			|| Code == 0x2028 || Code == 0x2029 || Code == 0x202f || Code == 0x205f || Code == 0x3000;
	}

	static constexpr bool IsPunct(CharType Char)
	{
		const uint32 Code = Unsigned(Char);
		return (Code >= 0x21 && Code <= 0x2f) || (Code >= 0x3a && Code <= 0x40) || (Code >= 0x5b && Code <= 0x60)
			|| (Code >= 0x7b && Code <= 0x7e);
	}

	static constexpr int32 ConvertCharDigitToInt(CharType Char)
	{
		return int32(Char) - '0';
	}

private:
	static constexpr uint32 Unsigned(CharType Char)
	{
		if constexpr (sizeof(CharType) == 1)
		{
			return uint8(Char);
		}
		else if constexpr (sizeof(CharType) == 2)
		{
			return uint16(Char);
		}
		else
		{
			return uint32(Char);
		}
	}
};

typedef TChar<TCHAR> FChar;
typedef TChar<WIDECHAR> FCharWide;
typedef TChar<ANSICHAR> FCharAnsi;
