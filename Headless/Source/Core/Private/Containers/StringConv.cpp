#include "Containers/StringConv.h"

namespace UE::Core::Private
{
	namespace
	{
		constexpr uint32 ReplacementCharacter = 0xfffd;

		void AppendCodePointAsUtf16(TArray<TCHAR>& Out, uint32 CodePoint)
		{
			if (CodePoint < 0x10000)
			{
				Out.Add(TCHAR(CodePoint));
				return;
			}
			CodePoint -= 0x10000;
			Out.Add(TCHAR(0xd800 + (CodePoint >> 10)));
			Out.Add(TCHAR(0xdc00 + (CodePoint & 0x3ff)));
		}

		void AppendCodePointAsUtf8(TArray<UTF8CHAR>& Out, uint32 CodePoint)
		{
			if (CodePoint < 0x80)
			{
				Out.Add(UTF8CHAR(CodePoint));
			}
			else if (CodePoint < 0x800)
			{
				Out.Add(UTF8CHAR(0xc0 | (CodePoint >> 6)));
				Out.Add(UTF8CHAR(0x80 | (CodePoint & 0x3f)));
			}
			else if (CodePoint < 0x10000)
			{
				Out.Add(UTF8CHAR(0xe0 | (CodePoint >> 12)));
				Out.Add(UTF8CHAR(0x80 | ((CodePoint >> 6) & 0x3f)));
				Out.Add(UTF8CHAR(0x80 | (CodePoint & 0x3f)));
			}
			else
			{
				Out.Add(UTF8CHAR(0xf0 | (CodePoint >> 18)));
				Out.Add(UTF8CHAR(0x80 | ((CodePoint >> 12) & 0x3f)));
				Out.Add(UTF8CHAR(0x80 | ((CodePoint >> 6) & 0x3f)));
				Out.Add(UTF8CHAR(0x80 | (CodePoint & 0x3f)));
			}
		}

		// The lead byte decides the length and the range of the second byte (which is what rules
		// out overlong forms, surrogates and values above U+10FFFF); later bytes are 80..BF.
		struct FLeadInfo
		{
			int32 Length;
			uint8 SecondMin;
			uint8 SecondMax;
		};

		FLeadInfo ClassifyLead(uint8 Lead)
		{
			if (Lead >= 0xc2 && Lead <= 0xdf)
			{
				return { 2, 0x80, 0xbf };
			}
			if (Lead == 0xe0)
			{
				return { 3, 0xa0, 0xbf };
			}
			if (Lead == 0xed)
			{
				return { 3, 0x80, 0x9f };
			}
			if (Lead >= 0xe1 && Lead <= 0xef)
			{
				return { 3, 0x80, 0xbf };
			}
			if (Lead == 0xf0)
			{
				return { 4, 0x90, 0xbf };
			}
			if (Lead >= 0xf1 && Lead <= 0xf3)
			{
				return { 4, 0x80, 0xbf };
			}
			if (Lead == 0xf4)
			{
				return { 4, 0x80, 0x8f };
			}
			return { 0, 0, 0 };
		}
	}

	void AppendUtf8AsTChar(TArray<TCHAR>& Out, const UTF8CHAR* Source, int32 Count)
	{
		Out.Reserve(Out.Num() + Count);
		int32 Index = 0;
		while (Index < Count)
		{
			const uint8 Lead = uint8(Source[Index]);
			if (Lead < 0x80)
			{
				Out.Add(TCHAR(Lead));
				++Index;
				continue;
			}
			const FLeadInfo Info = ClassifyLead(Lead);
			if (Info.Length == 0)
			{
				Out.Add(TCHAR(ReplacementCharacter));
				++Index;
				continue;
			}

			uint32 CodePoint = Lead & (0xff >> (Info.Length + 1));
			int32 Consumed = 1;
			for (; Consumed < Info.Length && Index + Consumed < Count; ++Consumed)
			{
				const uint8 Byte = uint8(Source[Index + Consumed]);
				const uint8 Min = Consumed == 1 ? Info.SecondMin : 0x80;
				const uint8 Max = Consumed == 1 ? Info.SecondMax : 0xbf;
				if (Byte < Min || Byte > Max)
				{
					break;
				}
				CodePoint = (CodePoint << 6) | (Byte & 0x3f);
			}
			// A truncated or broken sequence is replaced as a whole, up to the byte that broke it.
			AppendCodePointAsUtf16(Out, Consumed == Info.Length ? CodePoint : ReplacementCharacter);
			Index += Consumed;
		}
	}

	void AppendTCharAsUtf8(TArray<UTF8CHAR>& Out, const TCHAR* Source, int32 Count)
	{
		Out.Reserve(Out.Num() + Count);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			const uint32 Unit = uint16(Source[Index]);
			if (Unit >= 0xd800 && Unit <= 0xdbff && Index + 1 < Count)
			{
				const uint32 Next = uint16(Source[Index + 1]);
				if (Next >= 0xdc00 && Next <= 0xdfff)
				{
					AppendCodePointAsUtf8(Out, 0x10000 + ((Unit - 0xd800) << 10) + (Next - 0xdc00));
					++Index;
					continue;
				}
			}
			const bool bLoneSurrogate = Unit >= 0xd800 && Unit <= 0xdfff;
			AppendCodePointAsUtf8(Out, bLoneSurrogate ? ReplacementCharacter : Unit);
		}
	}
}
