// Case-blind comparison that folds ASCII letters only, as the engine's string and name comparisons
// do: the result never depends on the process locale, and hashing can fold the same way.
#pragma once

#include "HAL/Platform.h"

#include <type_traits>

struct FGenericPlatformStricmp
{
	template <typename CharType>
	static constexpr CharType ToLowerAscii(CharType Char)
	{
		return (Char >= 'A' && Char <= 'Z') ? CharType(Char + ('a' - 'A')) : Char;
	}

	static int32 Stricmp(const ANSICHAR* String1, const ANSICHAR* String2)
	{
		return StricmpImpl(String1, String2);
	}

	static int32 Stricmp(const WIDECHAR* String1, const WIDECHAR* String2)
	{
		return StricmpImpl(String1, String2);
	}

	static int32 Stricmp(const UTF8CHAR* String1, const UTF8CHAR* String2)
	{
		return StricmpImpl(String1, String2);
	}

	static int32 Strnicmp(const ANSICHAR* String1, const ANSICHAR* String2, SIZE_T Count)
	{
		return StrnicmpImpl(String1, String2, Count);
	}

	static int32 Strnicmp(const WIDECHAR* String1, const WIDECHAR* String2, SIZE_T Count)
	{
		return StrnicmpImpl(String1, String2, Count);
	}

	static int32 Strnicmp(const UTF8CHAR* String1, const UTF8CHAR* String2, SIZE_T Count)
	{
		return StrnicmpImpl(String1, String2, Count);
	}

private:
	// Compares code units as unsigned so that the order of non-ASCII text is stable across char types.
	template <typename CharType>
	static int32 CompareFolded(CharType A, CharType B)
	{
		using UnsignedType = std::make_unsigned_t<CharType>;
		return int32(UnsignedType(ToLowerAscii(A))) - int32(UnsignedType(ToLowerAscii(B)));
	}

	template <typename CharType>
	static int32 StricmpImpl(const CharType* String1, const CharType* String2)
	{
		for (;; ++String1, ++String2)
		{
			if (const int32 Diff = CompareFolded(*String1, *String2))
			{
				return Diff;
			}
			if (*String1 == 0)
			{
				return 0;
			}
		}
	}

	template <typename CharType>
	static int32 StrnicmpImpl(const CharType* String1, const CharType* String2, SIZE_T Count)
	{
		for (; Count > 0; --Count, ++String1, ++String2)
		{
			if (const int32 Diff = CompareFolded(*String1, *String2))
			{
				return Diff;
			}
			if (*String1 == 0)
			{
				return 0;
			}
		}
		return 0;
	}
};
