// How a JSON writer puts characters into its output archive: each character as the code unit of
// CharType, in the archive's byte order.
#pragma once

#include "CoreMinimal.h"
#include "Containers/StringView.h"
#include "Serialization/Archive.h"

#include <type_traits>

template <class CharType>
struct TJsonPrintPolicy
{
	static_assert(std::is_same_v<CharType, TCHAR>, "The headless JSON writers produce TCHAR text only.");

	static inline void WriteChar(FArchive* Stream, CharType Char)
	{
		Stream->Serialize(&Char, sizeof(CharType));
	}

	static inline void WriteString(FArchive* Stream, FStringView String)
	{
		Stream->Serialize(const_cast<TCHAR*>(String.GetData()), String.Len() * sizeof(CharType));
	}

	static inline void WriteFloat(FArchive* Stream, float Value)
	{
		WriteString(Stream, FString::Printf(TEXT("%g"), Value));
	}

	/** 17 significant digits: enough to read back the same double and to keep large integers exact. */
	static inline void WriteDouble(FArchive* Stream, double Value)
	{
		WriteString(Stream, FString::Printf(TEXT("%.17g"), Value));
	}
};
