// Human-readable output: CR LF line breaks and one tab per nesting level, on every platform.
#pragma once

#include "Policies/JsonPrintPolicy.h"

template <class CharType>
struct TPrettyJsonPrintPolicy : public TJsonPrintPolicy<CharType>
{
	static inline void WriteLineTerminator(FString* Stream)
	{
		TJsonPrintPolicy<CharType>::WriteChar(Stream, CharType('\r'));
		TJsonPrintPolicy<CharType>::WriteChar(Stream, CharType('\n'));
	}

	static inline void WriteTabs(FString* Stream, int32 Count)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			TJsonPrintPolicy<CharType>::WriteChar(Stream, CharType('\t'));
		}
	}

	static inline void WriteSpace(FString* Stream)
	{
		TJsonPrintPolicy<CharType>::WriteChar(Stream, CharType(' '));
	}
};
