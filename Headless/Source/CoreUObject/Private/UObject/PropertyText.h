// Small scanners shared by the properties' text import.
#pragma once

#include "CoreMinimal.h"

namespace UE::CoreUObject::Private
{
	const TCHAR* SkipWhitespace(const TCHAR* Buffer);

	/** A quoted string with backslash escapes, or an unquoted token up to ',' or ')' at depth 0. */
	const TCHAR* ReadToken(const TCHAR* Buffer, FString& OutToken, bool bStopAtDelimiters = true);

	FString QuoteString(const FString& Value);
}
