// Bridges between the engine's types and ICU's. TCHAR and UChar are both UTF-16, so strings copy as is.
#pragma once

#include "Containers/UnrealString.h"
#include "Internationalization/Culture.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace UE::ICUUtilities
{
	inline icu::UnicodeString ConvertString(const FString& Source)
	{
		return icu::UnicodeString(reinterpret_cast<const UChar*>(*Source), Source.Len());
	}

	inline FString ConvertString(const icu::UnicodeString& Source)
	{
		return FString(Source.length(), reinterpret_cast<const TCHAR*>(Source.getBuffer()));
	}

	inline icu::Locale GetLocale(const FCulture& Culture)
	{
		return icu::Locale(Culture.GetICULocaleName().c_str());
	}
}
