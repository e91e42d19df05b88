// C string helpers over any character type, and the search options the string classes share.
#pragma once

#include "HAL/Platform.h"
#include "GenericPlatform/GenericPlatformStricmp.h"
#include "Misc/Char.h"

#include <type_traits>

namespace ESearchCase
{
	enum Type
	{
		CaseSensitive,
		IgnoreCase,
	};
}

namespace ESearchDir
{
	enum Type
	{
		FromStart,
		FromEnd,
	};
}

namespace UE::Core::Private
{
	// Number parsing goes through the C library on an ASCII copy, so results match strtol/strtod.
	CORE_API int64 ParseSigned(const WIDECHAR* Start, WIDECHAR** End, int32 Base);
	CORE_API uint64 ParseUnsigned(const WIDECHAR* Start, WIDECHAR** End, int32 Base);
	CORE_API double ParseDouble(const WIDECHAR* Start, WIDECHAR** End);
	CORE_API int64 ParseSigned(const ANSICHAR* Start, ANSICHAR** End, int32 Base);
	CORE_API uint64 ParseUnsigned(const ANSICHAR* Start, ANSICHAR** End, int32 Base);
	CORE_API double ParseDouble(const ANSICHAR* Start, ANSICHAR** End);
}

template <typename T>
struct TCString
{
	typedef T CharType;

	static constexpr int32 Strlen(const CharType* String)
	{
		int32 Length = 0;
		while (String[Length] != 0)
		{
			++Length;
		}
		return Length;
	}

	static int32 Strcmp(const CharType* String1, const CharType* String2)
	{
		for (;; ++String1, ++String2)
		{
			if (*String1 != *String2)
			{
				return Unsigned(*String1) < Unsigned(*String2) ? -1 : 1;
			}
			if (*String1 == 0)
			{
				return 0;
			}
		}
	}

	static int32 Strncmp(const CharType* String1, const CharType* String2, SIZE_T Count)
	{
		for (; Count > 0; --Count, ++String1, ++String2)
		{
			if (*String1 != *String2)
			{
				return Unsigned(*String1) < Unsigned(*String2) ? -1 : 1;
			}
			if (*String1 == 0)
			{
				return 0;
			}
		}
		return 0;
	}

	static int32 Stricmp(const CharType* String1, const CharType* String2)
	{
		return FGenericPlatformStricmp::Stricmp(String1, String2);
	}

	static int32 Strnicmp(const CharType* String1, const CharType* String2, SIZE_T Count)
	{
		return FGenericPlatformStricmp::Strnicmp(String1, String2, Count);
	}

	static const CharType* Strstr(const CharType* String, const CharType* Find)
	{
		return FindImpl(String, Find, ESearchCase::CaseSensitive);
	}

	static CharType* Strstr(CharType* String, const CharType* Find)
	{
		return const_cast<CharType*>(FindImpl(String, Find, ESearchCase::CaseSensitive));
	}

	static const CharType* Stristr(const CharType* String, const CharType* Find)
	{
		return FindImpl(String, Find, ESearchCase::IgnoreCase);
	}

	static const CharType* Strchr(const CharType* String, CharType Char)
	{
		for (;; ++String)
		{
			if (*String == Char)
			{
				return String;
			}
			if (*String == 0)
			{
				return nullptr;
			}
		}
	}

	static const CharType* Strrchr(const CharType* String, CharType Char)
	{
		const CharType* Last = nullptr;
		for (;; ++String)
		{
			if (*String == Char)
			{
				Last = String;
			}
			if (*String == 0)
			{
				return Last;
			}
		}
	}

	static int32 Atoi(const CharType* String)
	{
		return int32(UE::Core::Private::ParseSigned(String, nullptr, 10));
	}

	static int64 Atoi64(const CharType* String)
	{
		return UE::Core::Private::ParseSigned(String, nullptr, 10);
	}

	static float Atof(const CharType* String)
	{
		return float(UE::Core::Private::ParseDouble(String, nullptr));
	}

	static double Atod(const CharType* String)
	{
		return UE::Core::Private::ParseDouble(String, nullptr);
	}

	static int32 Strtoi(const CharType* Start, CharType** End, int32 Base)
	{
		return int32(UE::Core::Private::ParseSigned(Start, End, Base));
	}

	static int64 Strtoi64(const CharType* Start, CharType** End, int32 Base)
	{
		return UE::Core::Private::ParseSigned(Start, End, Base);
	}

	static uint64 Strtoui64(const CharType* Start, CharType** End, int32 Base)
	{
		return UE::Core::Private::ParseUnsigned(Start, End, Base);
	}

	static double Strtod(const CharType* Start, CharType** End)
	{
		return UE::Core::Private::ParseDouble(Start, End);
	}

	// "True", "Yes" and "On" in any case are true, their opposites false, anything else a number.
	static bool ToBool(const CharType* String)
	{
		static constexpr CharType TrueWords[3][5] = { { 't', 'r', 'u', 'e', 0 }, { 'y', 'e', 's', 0 }, { 'o', 'n', 0 } };
		static constexpr CharType FalseWords[3][6] = { { 'f', 'a', 'l', 's', 'e', 0 }, { 'n', 'o', 0 }, { 'o', 'f', 'f', 0 } };
		for (const CharType* Word : TrueWords)
		{
			if (Stricmp(String, Word) == 0)
			{
				return true;
			}
		}
		for (const CharType* Word : FalseWords)
		{
			if (Stricmp(String, Word) == 0)
			{
				return false;
			}
		}
		return Atoi(String) != 0;
	}

	// An optional sign, digits and at most one '.'; the empty string counts, as in the engine.
	static bool IsNumeric(const CharType* String)
	{
		if (*String == '-' || *String == '+')
		{
			++String;
		}
		bool bHasDot = false;
		for (; *String != 0; ++String)
		{
			if (*String == '.')
			{
				if (bHasDot)
				{
					return false;
				}
				bHasDot = true;
			}
			else if (!TChar<CharType>::IsDigit(*String))
			{
				return false;
			}
		}
		return true;
	}

private:
	static uint32 Unsigned(CharType Char)
	{
		return uint32(std::make_unsigned_t<CharType>(Char));
	}

	static const CharType* FindImpl(const CharType* String, const CharType* Find, ESearchCase::Type SearchCase)
	{
		if (String == nullptr || Find == nullptr)
		{
			return nullptr;
		}
		const int32 FindLength = Strlen(Find);
		if (FindLength == 0)
		{
			return String;
		}
		for (; *String != 0; ++String)
		{
			const int32 Diff = SearchCase == ESearchCase::CaseSensitive
				? Strncmp(String, Find, FindLength)
				: Strnicmp(String, Find, FindLength);
			if (Diff == 0)
			{
				return String;
			}
		}
		return nullptr;
	}
};

typedef TCString<TCHAR> FCString;
typedef TCString<ANSICHAR> FCStringAnsi;
typedef TCString<WIDECHAR> FCStringWide;
