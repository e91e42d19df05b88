#include "JsonUtf8.h"
#include "Serialization/JsonReader.h"

namespace UE::Json::Private
{
	namespace
	{
		bool IsHighSurrogate(uint32 Unit)
		{
			return Unit >= 0xD800 && Unit <= 0xDBFF;
		}

		bool IsLowSurrogate(uint32 Unit)
		{
			return Unit >= 0xDC00 && Unit <= 0xDFFF;
		}

		/** Writes CodePoint at Out and returns the position after it. */
		UTF8CHAR* WriteUtf8(UTF8CHAR* Out, uint32 CodePoint)
		{
			if (CodePoint < 0x80)
			{
				*Out++ = UTF8CHAR(CodePoint);
			}
			else if (CodePoint < 0x800)
			{
				*Out++ = UTF8CHAR(0xC0 | (CodePoint >> 6));
				*Out++ = UTF8CHAR(0x80 | (CodePoint & 0x3F));
			}
			else if (CodePoint < 0x10000)
			{
				*Out++ = UTF8CHAR(0xE0 | (CodePoint >> 12));
				*Out++ = UTF8CHAR(0x80 | ((CodePoint >> 6) & 0x3F));
				*Out++ = UTF8CHAR(0x80 | (CodePoint & 0x3F));
			}
			else
			{
				*Out++ = UTF8CHAR(0xF0 | (CodePoint >> 18));
				*Out++ = UTF8CHAR(0x80 | ((CodePoint >> 12) & 0x3F));
				*Out++ = UTF8CHAR(0x80 | ((CodePoint >> 6) & 0x3F));
				*Out++ = UTF8CHAR(0x80 | (CodePoint & 0x3F));
			}
			return Out;
		}
	}

	bool ConvertToUtf8(FStringView Text, TArray<UTF8CHAR>& OutUtf8, FString& OutErrorMessage)
	{
		// Measured first, so a multi-megabyte reply takes exactly the memory it needs; writing through
		// a pointer keeps it cheap in unoptimised builds.
		const TCHAR* Units = Text.GetData();
		const int32 Len = Text.Len();
		OutUtf8.Empty();
		int64 Size = 0;
		for (int32 Index = 0; Index < Len; ++Index)
		{
			const uint32 Unit = uint32(Units[Index]);
			if (Unit < 0x80)
			{
				Size += 1;
			}
			else if (Unit < 0x800)
			{
				Size += 2;
			}
			else if (IsHighSurrogate(Unit) && Index + 1 < Len && IsLowSurrogate(uint32(Units[Index + 1])))
			{
				Size += 4;
				++Index;
			}
			else if (IsHighSurrogate(Unit) || IsLowSurrogate(Unit))
			{
				// Substituting U+FFFD would hand the caller text it never sent; refusing is the honest answer.
				OutErrorMessage = FString::Printf(TEXT("Unpaired surrogate U+%04X at character %d."), Unit, Index);
				return false;
			}
			else
			{
				Size += 3;
			}
		}
		if (Size > MAX_int32)
		{
			OutErrorMessage = TEXT("The text is too long to read as JSON.");
			return false;
		}

		OutUtf8.AddUninitialized(int32(Size));
		UTF8CHAR* Out = OutUtf8.GetData();
		for (int32 Index = 0; Index < Len; ++Index)
		{
			uint32 CodePoint = uint32(Units[Index]);
			if (IsHighSurrogate(CodePoint))
			{
				// Paired: the measuring pass refused any other case.
				CodePoint = 0x10000 + ((CodePoint - 0xD800) << 10) + (uint32(Units[Index + 1]) - 0xDC00);
				++Index;
			}
			Out = WriteUtf8(Out, CodePoint);
		}
		check(Out == OutUtf8.GetData() + Size);
		return true;
	}

	FString Utf8ToString(const std::string& Utf8)
	{
		if (Utf8.empty())
		{
			// An empty FString holds no buffer; neither should an empty string read from a document.
			return FString();
		}
		TArray<TCHAR> Chars;
		Chars.Reserve(int32(Utf8.size()) + 1);
		const uint8* Bytes = reinterpret_cast<const uint8*>(Utf8.data());
		const size_t Size = Utf8.size();
		for (size_t Index = 0; Index < Size;)
		{
			const uint8 Lead = Bytes[Index];
			const int32 Length = Lead < 0x80 ? 1 : Lead < 0xE0 ? 2 : Lead < 0xF0 ? 3 : 4;
			check(Index + Length <= Size);
			uint32 CodePoint = Length == 1 ? Lead : Length == 2 ? (Lead & 0x1F) : Length == 3 ? (Lead & 0x0F) : (Lead & 0x07);
			for (int32 Offset = 1; Offset < Length; ++Offset)
			{
				CodePoint = (CodePoint << 6) | (Bytes[Index + Offset] & 0x3F);
			}
			Index += Length;
			if (CodePoint >= 0x10000)
			{
				CodePoint -= 0x10000;
				Chars.Add(TCHAR(0xD800 + (CodePoint >> 10)));
				Chars.Add(TCHAR(0xDC00 + (CodePoint & 0x3FF)));
			}
			else
			{
				Chars.Add(TCHAR(CodePoint));
			}
		}
		return FString(Chars.Num(), Chars.GetData());
	}
}
