// Output without any whitespace between tokens.
#pragma once

#include "Policies/JsonPrintPolicy.h"

template <class CharType>
struct TCondensedJsonPrintPolicy : public TJsonPrintPolicy<CharType>
{
	static inline void WriteLineTerminator(FArchive* Stream)
	{
	}

	static inline void WriteTabs(FArchive* Stream, int32 Count)
	{
	}

	static inline void WriteSpace(FArchive* Stream)
	{
	}
};
