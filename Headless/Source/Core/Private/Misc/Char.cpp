#include "Misc/Char.h"

#include <unicode/uchar.h>

namespace UE::Core::Private
{
	// A single UTF-16 unit cannot hold a mapping that leaves the basic plane; keep the original then.
	static uint32 KeepInPlane(uint32 Original, uint32 Mapped)
	{
		return Mapped > 0xffff ? Original : Mapped;
	}

	uint32 UnicodeToLower(uint32 Char)
	{
		return KeepInPlane(Char, uint32(u_tolower(UChar32(Char))));
	}

	uint32 UnicodeToUpper(uint32 Char)
	{
		return KeepInPlane(Char, uint32(u_toupper(UChar32(Char))));
	}

	bool UnicodeIsAlpha(uint32 Char)
	{
		return u_isalpha(UChar32(Char));
	}

	bool UnicodeIsUpper(uint32 Char)
	{
		return u_isupper(UChar32(Char));
	}

	bool UnicodeIsLower(uint32 Char)
	{
		return u_islower(UChar32(Char));
	}
}
