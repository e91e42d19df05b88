#include "Misc/CString.h"

#include <cstdlib>
#include <string>

namespace UE::Core::Private
{
	// Numbers are ASCII, so the copy stops at the first unit outside it; the C parser stops there anyway.
	template <typename CharType>
	static std::string AsciiPrefix(const CharType* Start)
	{
		std::string Result;
		for (const CharType* Cursor = Start; *Cursor != 0; ++Cursor)
		{
			const uint32 Code = uint32(std::make_unsigned_t<CharType>(*Cursor));
			if (Code >= 128)
			{
				break;
			}
			Result.push_back(char(Code));
		}
		return Result;
	}

	template <typename CharType, typename ParseFunc>
	static auto ParseWith(const CharType* Start, CharType** End, ParseFunc Parse)
	{
		const std::string Ascii = AsciiPrefix(Start);
		char* AsciiEnd = nullptr;
		const auto Value = Parse(Ascii.c_str(), &AsciiEnd);
		if (End)
		{
			*End = const_cast<CharType*>(Start) + (AsciiEnd - Ascii.c_str());
		}
		return Value;
	}

	int64 ParseSigned(const WIDECHAR* Start, WIDECHAR** End, int32 Base)
	{
		return ParseWith(Start, End, [Base](const char* S, char** E) { return int64(std::strtoll(S, E, Base)); });
	}

	uint64 ParseUnsigned(const WIDECHAR* Start, WIDECHAR** End, int32 Base)
	{
		return ParseWith(Start, End, [Base](const char* S, char** E) { return uint64(std::strtoull(S, E, Base)); });
	}

	double ParseDouble(const WIDECHAR* Start, WIDECHAR** End)
	{
		return ParseWith(Start, End, [](const char* S, char** E) { return std::strtod(S, E); });
	}

	int64 ParseSigned(const ANSICHAR* Start, ANSICHAR** End, int32 Base)
	{
		return int64(std::strtoll(Start, End, Base));
	}

	uint64 ParseUnsigned(const ANSICHAR* Start, ANSICHAR** End, int32 Base)
	{
		return uint64(std::strtoull(Start, End, Base));
	}

	double ParseDouble(const ANSICHAR* Start, ANSICHAR** End)
	{
		return std::strtod(Start, End);
	}
}
