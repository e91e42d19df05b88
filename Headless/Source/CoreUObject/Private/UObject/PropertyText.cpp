#include "PropertyText.h"

#include "UObject/UnrealType.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace UE::CoreUObject::Private
{
	const TCHAR* SkipWhitespace(const TCHAR* Buffer)
	{
		while (*Buffer == u' ' || *Buffer == u'\t' || *Buffer == u'\n' || *Buffer == u'\r')
		{
			++Buffer;
		}
		return Buffer;
	}

	const TCHAR* ReadToken(const TCHAR* Buffer, FString& OutToken, bool bStopAtDelimiters)
	{
		std::u16string Token;
		if (*Buffer == u'"')
		{
			++Buffer;
			while (*Buffer && *Buffer != u'"')
			{
				if (*Buffer == u'\\' && Buffer[1])
				{
					++Buffer;
					Token.push_back(*Buffer == u'n' ? u'\n' : (*Buffer == u't' ? u'\t' : *Buffer));
				}
				else
				{
					Token.push_back(*Buffer);
				}
				++Buffer;
			}
			if (*Buffer != u'"')
			{
				return nullptr;
			}
			++Buffer;
		}
		else
		{
			int32 Depth = 0;
			while (*Buffer)
			{
				if (bStopAtDelimiters && Depth == 0 && (*Buffer == u',' || *Buffer == u')'))
				{
					break;
				}
				if (*Buffer == u'(')
				{
					++Depth;
				}
				else if (*Buffer == u')')
				{
					--Depth;
				}
				Token.push_back(*Buffer);
				++Buffer;
			}
			while (!Token.empty() && (Token.back() == u' ' || Token.back() == u'\t'))
			{
				Token.pop_back();
			}
		}
		OutToken = FString(int32(Token.size()), Token.data());
		return Buffer;
	}

	FString QuoteString(const FString& Value)
	{
		std::u16string Result(u"\"");
		for (int32 Index = 0; Index < Value.Len(); ++Index)
		{
			const TCHAR Char = (*Value)[Index];
			if (Char == u'"' || Char == u'\\')
			{
				Result.push_back(u'\\');
				Result.push_back(Char);
			}
			else if (Char == u'\n')
			{
				Result += u"\\n";
			}
			else
			{
				Result.push_back(Char);
			}
		}
		Result.push_back(u'"');
		return FString(int32(Result.size()), Result.data());
	}
}

namespace
{
	FString AsciiToFString(const char* Text)
	{
		return FString(Text);
	}
}

FString NumericValueToText(int64 Value)
{
	char Buffer[32];
	std::snprintf(Buffer, sizeof(Buffer), "%lld", (long long)Value);
	return AsciiToFString(Buffer);
}

FString NumericValueToText(uint64 Value)
{
	char Buffer[32];
	std::snprintf(Buffer, sizeof(Buffer), "%llu", (unsigned long long)Value);
	return AsciiToFString(Buffer);
}

FString NumericValueToText(double Value, bool bDouble)
{
	// The engine writes floats with six decimals ("1.500000").
	char Buffer[64];
	std::snprintf(Buffer, sizeof(Buffer), "%f", Value);
	return AsciiToFString(Buffer);
}

const TCHAR* ParseNumericText(const TCHAR* Buffer, bool bFloatingPoint, bool bSigned, int64& OutSigned, uint64& OutUnsigned, double& OutDouble)
{
	Buffer = UE::CoreUObject::Private::SkipWhitespace(Buffer);
	std::string Ascii;
	const TCHAR* Char = Buffer;
	while ((*Char >= u'0' && *Char <= u'9') || *Char == u'-' || *Char == u'+' || *Char == u'.' || *Char == u'e' || *Char == u'E' || *Char == u'x' || *Char == u'X'
		|| (*Char >= u'a' && *Char <= u'f') || (*Char >= u'A' && *Char <= u'F'))
	{
		Ascii.push_back(char(*Char));
		++Char;
	}
	if (Ascii.empty())
	{
		return nullptr;
	}
	char* End = nullptr;
	if (bFloatingPoint)
	{
		OutDouble = std::strtod(Ascii.c_str(), &End);
	}
	else if (bSigned)
	{
		OutSigned = std::strtoll(Ascii.c_str(), &End, 0);
	}
	else
	{
		OutUnsigned = std::strtoull(Ascii.c_str(), &End, 0);
	}
	if (End == Ascii.c_str())
	{
		return nullptr;
	}
	// A float written as "1.0f" still reads.
	const TCHAR* Rest = Buffer + (End - Ascii.c_str());
	if (bFloatingPoint && (*Rest == u'f' || *Rest == u'F'))
	{
		++Rest;
	}
	return Rest;
}

void FNumericProperty::SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const
{
	int64 Signed = 0;
	uint64 Unsigned = 0;
	double Floating = 0.0;
	// Only a negative number reads as signed; the rest read unsigned so uint64 keeps its top half.
	const bool bNegative = *UE::CoreUObject::Private::SkipWhitespace(Value) == u'-';
	if (ParseNumericText(Value, IsFloatingPoint(), bNegative, Signed, Unsigned, Floating))
	{
		if (IsFloatingPoint())
		{
			SetFloatingPointPropertyValue(Data, Floating);
		}
		else if (bNegative)
		{
			SetIntPropertyValue(Data, Signed);
		}
		else
		{
			SetIntPropertyValue(Data, Unsigned);
		}
	}
}
