// How a JSON writer puts characters into its output. The engine's policies write to an FArchive;
// the headless writers only ever write to a string, so the stream is the string itself.
#pragma once

#include "CoreMinimal.h"

#include <type_traits>

template <class CharType>
struct TJsonPrintPolicy
{
	static_assert(std::is_same_v<CharType, TCHAR>, "The headless JSON writers produce TCHAR text only.");

	static inline void WriteChar(FString* Stream, CharType Char)
	{
		Stream->AppendChar(Char);
	}

	static inline void WriteString(FString* Stream, const FString& String)
	{
		Stream->Append(String);
	}

	static inline void WriteFloat(FString* Stream, float Value)
	{
		WriteString(Stream, FString::Printf(TEXT("%g"), Value));
	}

	/** 17 significant digits: enough to read back the same double and to keep large integers exact. */
	static inline void WriteDouble(FString* Stream, double Value)
	{
		WriteString(Stream, FString::Printf(TEXT("%.17g"), Value));
	}
};
