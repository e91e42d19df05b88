// printf over TCHAR. Each conversion is parsed here; numbers are handed to the C library with an
// equivalent narrow specification, so their text is exactly what C prints.
#include "Containers/UnrealString.h"

#include <cstdio>
#include <string>

namespace UE::Core::Private
{
	namespace
	{
		using FArg = FPrintfArg;

		struct FSpec
		{
			std::string Flags;
			int32 Width = -1;
			int32 Precision = -1;
			std::string Length;
			TCHAR Conversion = 0;

			bool HasFlag(char Flag) const
			{
				return Flags.find(Flag) != std::string::npos;
			}
		};

		class FArgCursor
		{
		public:
			FArgCursor(const FArg* InArgs, int32 InNum)
				: Args(InArgs)
				, Num(InNum)
			{
			}

			const FArg* Next()
			{
				if (Index >= Num)
				{
					ensureMsgf(false, "Printf format wants more arguments than were given");
					return nullptr;
				}
				return &Args[Index++];
			}

		private:
			const FArg* Args;
			int32 Num;
			int32 Index = 0;
		};

		int64 AsSigned(const FArg& Arg)
		{
			switch (Arg.Kind)
			{
			case FArg::EKind::Float:
				return int64(Arg.Float);
			case FArg::EKind::Signed:
				return Arg.Signed;
			case FArg::EKind::Unsigned:
				return int64(Arg.Unsigned);
			default:
				return int64(reinterpret_cast<UPTRINT>(Arg.Pointer));
			}
		}

		double AsDouble(const FArg& Arg)
		{
			switch (Arg.Kind)
			{
			case FArg::EKind::Float:
				return Arg.Float;
			case FArg::EKind::Signed:
				return double(Arg.Signed);
			case FArg::EKind::Unsigned:
				return double(Arg.Unsigned);
			default:
				return 0.0;
			}
		}

		// The value as C would read it through the given length modifier.
		int64 NarrowSigned(int64 Value, const std::string& Length)
		{
			if (Length == "hh")
			{
				return int64(int8(Value));
			}
			if (Length == "h")
			{
				return int64(int16(Value));
			}
			if (Length.empty())
			{
				return int64(int32(Value));
			}
			return Value;
		}

		uint64 NarrowUnsigned(int64 Value, const std::string& Length)
		{
			if (Length == "hh")
			{
				return uint64(uint8(Value));
			}
			if (Length == "h")
			{
				return uint64(uint16(Value));
			}
			if (Length.empty())
			{
				return uint64(uint32(Value));
			}
			return uint64(Value);
		}

		std::string NarrowSpec(const FSpec& Directive, const char* Length, char Conversion)
		{
			std::string Result = "%" + Directive.Flags;
			if (Directive.Width >= 0)
			{
				Result += std::to_string(Directive.Width);
			}
			if (Directive.Precision >= 0)
			{
				Result += "." + std::to_string(Directive.Precision);
			}
			Result += Length;
			Result += Conversion;
			return Result;
		}

		template <typename ValueType>
		void AppendC(FString& Out, const std::string& Format, ValueType Value)
		{
			char Stack[128];
			const int Needed = std::snprintf(Stack, sizeof(Stack), Format.c_str(), Value);
			if (Needed < 0)
			{
				return;
			}
			std::string Heap;
			const char* Text = Stack;
			if (Needed >= int(sizeof(Stack)))
			{
				Heap.resize(size_t(Needed) + 1);
				std::snprintf(Heap.data(), Heap.size(), Format.c_str(), Value);
				Text = Heap.c_str();
			}
			Out.Reserve(Out.Len() + Needed);
			for (int Index = 0; Index < Needed; ++Index)
			{
				Out.AppendChar(TCHAR(uint8(Text[Index])));
			}
		}

		void AppendPadded(FString& Out, const FSpec& Directive, const TCHAR* Text, int32 TextLen)
		{
			const int32 Padding = Directive.Width > TextLen ? Directive.Width - TextLen : 0;
			const bool bLeftAlign = Directive.HasFlag('-');
			if (!bLeftAlign)
			{
				for (int32 Index = 0; Index < Padding; ++Index)
				{
					Out.AppendChar(TEXT(' '));
				}
			}
			Out.AppendChars(Text, TextLen);
			if (bLeftAlign)
			{
				for (int32 Index = 0; Index < Padding; ++Index)
				{
					Out.AppendChar(TEXT(' '));
				}
			}
		}

		void AppendString(FString& Out, const FSpec& Directive, const FArg& Arg)
		{
			FString Converted;
			const TCHAR* Text = nullptr;
			if (Arg.Kind == FArg::EKind::String && Arg.String)
			{
				Text = Arg.String;
			}
			else if (Arg.Kind == FArg::EKind::AnsiString && Arg.AnsiString)
			{
				Converted = FString(Arg.AnsiString);
				Text = *Converted;
			}
			else if (Arg.Kind == FArg::EKind::String || Arg.Kind == FArg::EKind::AnsiString || Arg.Kind == FArg::EKind::Pointer)
			{
				Text = TEXT("(null)");
			}
			else
			{
				ensureMsgf(false, "Printf %s given a value that is not a string");
				return;
			}
			int32 TextLen = FCString::Strlen(Text);
			if (Directive.Precision >= 0 && Directive.Precision < TextLen)
			{
				TextLen = Directive.Precision;
			}
			AppendPadded(Out, Directive, Text, TextLen);
		}

		const TCHAR* ParseNumber(const TCHAR* Cursor, int32& OutValue)
		{
			int64 Value = 0;
			while (FChar::IsDigit(*Cursor))
			{
				Value = Value * 10 + (*Cursor - TEXT('0'));
				Value = Value > 0x7fffffff ? 0x7fffffff : Value;
				++Cursor;
			}
			OutValue = int32(Value);
			return Cursor;
		}

		// Reads flags, width, precision and length after a '%'; returns the conversion character's position.
		const TCHAR* ParseSpec(const TCHAR* Cursor, FSpec& Directive, FArgCursor& ArgCursor)
		{
			for (; *Cursor == TEXT('-') || *Cursor == TEXT('+') || *Cursor == TEXT(' ') || *Cursor == TEXT('#') || *Cursor == TEXT('0'); ++Cursor)
			{
				if (!Directive.HasFlag(char(*Cursor)))
				{
					Directive.Flags += char(*Cursor);
				}
			}
			if (*Cursor == TEXT('*'))
			{
				const FArg* Arg = ArgCursor.Next();
				const int64 Width = Arg ? AsSigned(*Arg) : 0;
				if (Width < 0)
				{
					// A negative '*' width means left alignment, as in C.
					if (!Directive.HasFlag('-'))
					{
						Directive.Flags += '-';
					}
					Directive.Width = int32(-Width);
				}
				else
				{
					Directive.Width = int32(Width);
				}
				++Cursor;
			}
			else if (FChar::IsDigit(*Cursor))
			{
				Cursor = ParseNumber(Cursor, Directive.Width);
			}
			if (*Cursor == TEXT('.'))
			{
				++Cursor;
				if (*Cursor == TEXT('*'))
				{
					const FArg* Arg = ArgCursor.Next();
					const int64 Precision = Arg ? AsSigned(*Arg) : 0;
					Directive.Precision = Precision < 0 ? -1 : int32(Precision);
					++Cursor;
				}
				else
				{
					Cursor = ParseNumber(Cursor, Directive.Precision);
				}
			}
			for (; *Cursor == TEXT('h') || *Cursor == TEXT('l') || *Cursor == TEXT('z') || *Cursor == TEXT('j') || *Cursor == TEXT('t') || *Cursor == TEXT('L'); ++Cursor)
			{
				Directive.Length += char(*Cursor);
			}
			Directive.Conversion = *Cursor;
			return Cursor;
		}

		void AppendConversion(FString& Out, const FSpec& Directive, FArgCursor& ArgCursor)
		{
			const TCHAR Conversion = Directive.Conversion;
			switch (Conversion)
			{
			case TEXT('d'):
			case TEXT('i'):
				if (const FArg* Arg = ArgCursor.Next())
				{
					AppendC(Out, NarrowSpec(Directive, "ll", 'd'), (long long)NarrowSigned(AsSigned(*Arg), Directive.Length));
				}
				break;
			case TEXT('u'):
			case TEXT('x'):
			case TEXT('X'):
			case TEXT('o'):
				if (const FArg* Arg = ArgCursor.Next())
				{
					AppendC(Out, NarrowSpec(Directive, "ll", char(Conversion)), (unsigned long long)NarrowUnsigned(AsSigned(*Arg), Directive.Length));
				}
				break;
			case TEXT('f'):
			case TEXT('F'):
			case TEXT('e'):
			case TEXT('E'):
			case TEXT('g'):
			case TEXT('G'):
			case TEXT('a'):
			case TEXT('A'):
				if (const FArg* Arg = ArgCursor.Next())
				{
					AppendC(Out, NarrowSpec(Directive, "", char(Conversion)), AsDouble(*Arg));
				}
				break;
			case TEXT('p'):
				if (const FArg* Arg = ArgCursor.Next())
				{
					AppendC(Out, NarrowSpec(Directive, "", 'p'), Arg->Pointer);
				}
				break;
			case TEXT('c'):
				if (const FArg* Arg = ArgCursor.Next())
				{
					const TCHAR Char = TCHAR(AsSigned(*Arg));
					AppendPadded(Out, Directive, &Char, Char ? 1 : 0);
				}
				break;
			case TEXT('s'):
			case TEXT('S'):
				if (const FArg* Arg = ArgCursor.Next())
				{
					AppendString(Out, Directive, *Arg);
				}
				break;
			default:
				break;
			}
		}
	}

	void AppendPrintf(FString& Out, const TCHAR* Format, const FPrintfArg* Args, int32 NumArgs)
	{
		check(Format != nullptr);
		FArgCursor ArgCursor(Args, NumArgs);
		const TCHAR* Cursor = Format;
		while (*Cursor != 0)
		{
			const TCHAR* Literal = Cursor;
			while (*Cursor != 0 && *Cursor != TEXT('%'))
			{
				++Cursor;
			}
			Out.AppendChars(Literal, int32(Cursor - Literal));
			if (*Cursor == 0)
			{
				break;
			}
			const TCHAR* SpecStart = Cursor;
			++Cursor;
			if (*Cursor == TEXT('%'))
			{
				Out.AppendChar(TEXT('%'));
				++Cursor;
				continue;
			}
			FSpec Directive;
			Cursor = ParseSpec(Cursor, Directive, ArgCursor);
			if (*Cursor == 0)
			{
				// A dangling '%' at the end is printed as written.
				Out.AppendChars(SpecStart, int32(Cursor - SpecStart));
				break;
			}
			if (FCString::Strchr(TEXT("diuxXofFeEgGaApcsS"), Directive.Conversion) == nullptr)
			{
				Out.AppendChars(SpecStart, int32(Cursor + 1 - SpecStart));
			}
			else
			{
				AppendConversion(Out, Directive, ArgCursor);
			}
			++Cursor;
		}
	}
}
