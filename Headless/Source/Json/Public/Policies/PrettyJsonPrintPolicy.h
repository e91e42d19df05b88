// Human-readable output: the platform's line terminator and one tab per nesting level.
#pragma once

#include "Policies/JsonPrintPolicy.h"

template <class CharType>
struct TPrettyJsonPrintPolicy : public TJsonPrintPolicy<CharType>
{
	static inline void WriteLineTerminator(FArchive* Stream)
	{
		TJsonPrintPolicy<CharType>::WriteString(Stream, LINE_TERMINATOR);
	}

	static inline void WriteTabs(FArchive* Stream, int32 Count)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			TJsonPrintPolicy<CharType>::WriteChar(Stream, CharType('\t'));
		}
	}

	static inline void WriteSpace(FArchive* Stream)
	{
		TJsonPrintPolicy<CharType>::WriteChar(Stream, CharType(' '));
	}
};
