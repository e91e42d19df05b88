// Streams JSON text token by token. The print policy decides the whitespace; the writer decides
// where whitespace may go, which is what makes the pretty text match the engine's byte for byte.
#pragma once

#include "CoreMinimal.h"
#include "Serialization/Archive.h"
#include "Serialization/JsonTypes.h"
#include "Policies/PrettyJsonPrintPolicy.h"

template <class CharType, class PrintPolicy>
class TJsonWriterFactory;

template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriter
{
public:
	virtual ~TJsonWriter() = default;

	int32 GetIndentLevel() const
	{
		return IndentLevel;
	}

	bool CanWriteValueWithoutIdentifier() const
	{
		return Stack.Num() == 0 || Stack.Top() == EJson::Array || PreviousTokenWritten == EJsonToken::Identifier;
	}

	bool CanWriteObjectWithoutIdentifier() const
	{
		return CanWriteValueWithoutIdentifier();
	}

	void WriteObjectStart()
	{
		check(CanWriteObjectWithoutIdentifier());
		if (PreviousTokenWritten != EJsonToken::None)
		{
			WriteCommaIfNeeded();
			PrintPolicy::WriteLineTerminator(Stream);
			PrintPolicy::WriteTabs(Stream, IndentLevel);
		}
		OpenScope(EJson::Object, CharType('{'), EJsonToken::CurlyOpen);
	}

	void WriteObjectStart(const FString& Identifier)
	{
		check(IsInObject());
		WriteIdentifier(Identifier);
		PrintPolicy::WriteLineTerminator(Stream);
		PrintPolicy::WriteTabs(Stream, IndentLevel);
		OpenScope(EJson::Object, CharType('{'), EJsonToken::CurlyOpen);
	}

	void WriteObjectEnd()
	{
		check(IsInObject());
		PrintPolicy::WriteLineTerminator(Stream);
		--IndentLevel;
		PrintPolicy::WriteTabs(Stream, IndentLevel);
		PrintPolicy::WriteChar(Stream, CharType('}'));
		Stack.Pop();
		PreviousTokenWritten = EJsonToken::CurlyClose;
	}

	void WriteArrayStart()
	{
		check(CanWriteValueWithoutIdentifier());
		if (PreviousTokenWritten != EJsonToken::None)
		{
			WriteCommaIfNeeded();
			PrintPolicy::WriteLineTerminator(Stream);
			PrintPolicy::WriteTabs(Stream, IndentLevel);
		}
		OpenScope(EJson::Array, CharType('['), EJsonToken::SquareOpen);
	}

	void WriteArrayStart(const FString& Identifier)
	{
		check(IsInObject());
		WriteIdentifier(Identifier);
		PrintPolicy::WriteSpace(Stream);
		OpenScope(EJson::Array, CharType('['), EJsonToken::SquareOpen);
	}

	void WriteArrayEnd()
	{
		check(Stack.Num() > 0 && Stack.Top() == EJson::Array);
		--IndentLevel;
		// Strings and containers sit on lines of their own; a run of short values stays on the bracket's line.
		if (PreviousTokenWritten == EJsonToken::SquareClose || PreviousTokenWritten == EJsonToken::CurlyClose || PreviousTokenWritten == EJsonToken::String)
		{
			PrintPolicy::WriteLineTerminator(Stream);
			PrintPolicy::WriteTabs(Stream, IndentLevel);
		}
		else if (PreviousTokenWritten != EJsonToken::SquareOpen)
		{
			PrintPolicy::WriteSpace(Stream);
		}
		PrintPolicy::WriteChar(Stream, CharType(']'));
		Stack.Pop();
		PreviousTokenWritten = EJsonToken::SquareClose;
	}

	void WriteValue(bool Value)
	{
		WriteShortValue(Value);
	}

	void WriteValue(float Value)
	{
		WriteShortValue(Value);
	}

	void WriteValue(double Value)
	{
		WriteShortValue(Value);
	}

	void WriteValue(int32 Value)
	{
		WriteShortValue(Value);
	}

	void WriteValue(uint32 Value)
	{
		WriteShortValue(Value);
	}

	void WriteValue(int64 Value)
	{
		WriteShortValue(Value);
	}

	void WriteValue(uint64 Value)
	{
		WriteShortValue(Value);
	}

	void WriteValue(const FString& Value)
	{
		check(CanWriteValueWithoutIdentifier());
		if (PreviousTokenWritten != EJsonToken::None)
		{
			WriteCommaIfNeeded();
			PrintPolicy::WriteLineTerminator(Stream);
			PrintPolicy::WriteTabs(Stream, IndentLevel);
		}
		PreviousTokenWritten = WriteValueOnly(Value);
	}

	void WriteValue(const TCHAR* Value)
	{
		WriteValue(FString(Value));
	}

	void WriteNull()
	{
		WriteShortValue(nullptr);
	}

	void WriteValue(const FString& Identifier, bool Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, float Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, double Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, int32 Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, uint32 Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, int64 Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, uint64 Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, const FString& Value)
	{
		WriteMember(Identifier, Value);
	}

	void WriteValue(const FString& Identifier, const TCHAR* Value)
	{
		WriteMember(Identifier, FString(Value));
	}

	void WriteNull(const FString& Identifier)
	{
		WriteMember(Identifier, nullptr);
	}

	/** True when the text written so far is one complete JSON value (or nothing). */
	virtual bool Close()
	{
		return Stack.Num() == 0 && PreviousTokenWritten != EJsonToken::Identifier;
	}

protected:
	friend class TJsonWriterFactory<CharType, PrintPolicy>;

	TJsonWriter(FArchive* const InStream, int32 InitialIndentLevel)
		: Stream(InStream)
		, IndentLevel(InitialIndentLevel)
	{
		check(Stream != nullptr);
	}

	bool IsInObject() const
	{
		return Stack.Num() > 0 && Stack.Top() == EJson::Object;
	}

	void OpenScope(EJson Scope, CharType Bracket, EJsonToken Token)
	{
		PrintPolicy::WriteChar(Stream, Bracket);
		++IndentLevel;
		Stack.Push(Scope);
		PreviousTokenWritten = Token;
	}

	void WriteCommaIfNeeded()
	{
		if (PreviousTokenWritten != EJsonToken::None && PreviousTokenWritten != EJsonToken::CurlyOpen
			&& PreviousTokenWritten != EJsonToken::SquareOpen && PreviousTokenWritten != EJsonToken::Identifier)
		{
			PrintPolicy::WriteChar(Stream, CharType(','));
		}
	}

	void WriteIdentifier(const FString& Identifier)
	{
		WriteCommaIfNeeded();
		PrintPolicy::WriteLineTerminator(Stream);
		PrintPolicy::WriteTabs(Stream, IndentLevel);
		WriteStringValue(Identifier);
		PrintPolicy::WriteChar(Stream, CharType(':'));
	}

	template <class FValue>
	void WriteShortValue(FValue Value)
	{
		check(CanWriteValueWithoutIdentifier());
		if (PreviousTokenWritten != EJsonToken::None)
		{
			WriteCommaIfNeeded();
			if (PreviousTokenWritten == EJsonToken::SquareOpen || EJsonToken_IsShortValue(PreviousTokenWritten))
			{
				PrintPolicy::WriteSpace(Stream);
			}
			else
			{
				PrintPolicy::WriteLineTerminator(Stream);
				PrintPolicy::WriteTabs(Stream, IndentLevel);
			}
		}
		PreviousTokenWritten = WriteValueOnly(Value);
	}

	template <class FValue>
	void WriteMember(const FString& Identifier, const FValue& Value)
	{
		check(IsInObject());
		WriteIdentifier(Identifier);
		PrintPolicy::WriteSpace(Stream);
		PreviousTokenWritten = WriteValueOnly(Value);
	}

	EJsonToken WriteValueOnly(bool Value)
	{
		PrintPolicy::WriteString(Stream, Value ? FString(TEXT("true")) : FString(TEXT("false")));
		return Value ? EJsonToken::True : EJsonToken::False;
	}

	EJsonToken WriteValueOnly(float Value)
	{
		PrintPolicy::WriteFloat(Stream, Value);
		return EJsonToken::Number;
	}

	EJsonToken WriteValueOnly(double Value)
	{
		PrintPolicy::WriteDouble(Stream, Value);
		return EJsonToken::Number;
	}

	EJsonToken WriteValueOnly(int32 Value)
	{
		return WriteValueOnly(int64(Value));
	}

	EJsonToken WriteValueOnly(uint32 Value)
	{
		return WriteValueOnly(uint64(Value));
	}

	EJsonToken WriteValueOnly(int64 Value)
	{
		PrintPolicy::WriteString(Stream, FString::Printf(TEXT("%lld"), static_cast<long long>(Value)));
		return EJsonToken::Number;
	}

	EJsonToken WriteValueOnly(uint64 Value)
	{
		PrintPolicy::WriteString(Stream, FString::Printf(TEXT("%llu"), static_cast<unsigned long long>(Value)));
		return EJsonToken::Number;
	}

	EJsonToken WriteValueOnly(std::nullptr_t)
	{
		PrintPolicy::WriteString(Stream, FString(TEXT("null")));
		return EJsonToken::Null;
	}

	EJsonToken WriteValueOnly(const FString& Value)
	{
		WriteStringValue(Value);
		return EJsonToken::String;
	}

	/**
	 * Escapes only what JSON requires: the quote, the backslash and control characters. The slash and
	 * everything from U+0020 up, non-ASCII included, pass through unchanged. Unlike the engine, an
	 * embedded NUL is escaped rather than ending the string. The escaped text goes out in one piece.
	 */
	void WriteStringValue(const FString& String)
	{
		static constexpr TCHAR HexDigits[] = TEXT("0123456789abcdef");
		const TCHAR* Chars = *String;
		const int32 Len = String.Len();
		FString Escaped;
		Escaped.Reserve(Len + 2);
		Escaped.AppendChar(TEXT('"'));
		for (int32 Index = 0; Index < Len; ++Index)
		{
			const TCHAR Char = Chars[Index];
			switch (Char)
			{
			case TCHAR('\\'): AppendEscape(Escaped, TEXT('\\')); break;
			case TCHAR('"'): AppendEscape(Escaped, TEXT('"')); break;
			case TCHAR('\n'): AppendEscape(Escaped, TEXT('n')); break;
			case TCHAR('\r'): AppendEscape(Escaped, TEXT('r')); break;
			case TCHAR('\t'): AppendEscape(Escaped, TEXT('t')); break;
			case TCHAR('\b'): AppendEscape(Escaped, TEXT('b')); break;
			case TCHAR('\f'): AppendEscape(Escaped, TEXT('f')); break;
			default:
				if (Char >= TCHAR(0x20))
				{
					Escaped.AppendChar(Char);
				}
				else
				{
					AppendEscape(Escaped, TEXT('u'));
					for (int32 Shift = 12; Shift >= 0; Shift -= 4)
					{
						Escaped.AppendChar(HexDigits[(Char >> Shift) & 0xF]);
					}
				}
				break;
			}
		}
		Escaped.AppendChar(TEXT('"'));
		PrintPolicy::WriteString(Stream, Escaped);
	}

	static void AppendEscape(FString& Escaped, TCHAR Letter)
	{
		Escaped.AppendChar(TEXT('\\'));
		Escaped.AppendChar(Letter);
	}

	FArchive* const Stream;
	TArray<EJson> Stack;
	EJsonToken PreviousTokenWritten = EJsonToken::None;
	int32 IndentLevel;
};

namespace UE::Json::Private
{
	/** The archive of a string writer: TCHARs appended to a string as they come. */
	class FStringWriterArchive final : public FArchive
	{
	public:
		FStringWriterArchive()
		{
			SetIsSaving(true);
		}

		virtual void Serialize(void* Data, int64 Num) override
		{
			Text.Append(static_cast<const TCHAR*>(Data), static_cast<int32>(Num / int64(sizeof(TCHAR))));
		}

		FString Text;
	};
}

/** A writer whose output is a string: the text is handed to the string when the writer is closed. */
template <class PrintPolicy = TPrettyJsonPrintPolicy<TCHAR>>
class TJsonStringWriter : public TJsonWriter<TCHAR, PrintPolicy>
{
public:
	static TSharedRef<TJsonStringWriter> Create(FString* const InStream, int32 InitialIndent = 0)
	{
		return TSharedRef<TJsonStringWriter>(new TJsonStringWriter(InStream, InitialIndent));
	}

	virtual ~TJsonStringWriter() override
	{
		delete this->Stream;
	}

	virtual bool Close() override
	{
		*OutString = static_cast<UE::Json::Private::FStringWriterArchive*>(this->Stream)->Text;
		return TJsonWriter<TCHAR, PrintPolicy>::Close();
	}

protected:
	TJsonStringWriter(FString* const InOutString, int32 InitialIndent)
		: TJsonWriter<TCHAR, PrintPolicy>(new UE::Json::Private::FStringWriterArchive(), InitialIndent)
		, OutString(InOutString)
	{
		check(OutString != nullptr);
	}

private:
	FString* OutString;
};

template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriterFactory
{
public:
	/** Writes into the archive as it goes; the archive must outlive the writer. */
	static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FArchive* const Stream, int32 InitialIndentLevel = 0)
	{
		return TSharedRef<TJsonWriter<CharType, PrintPolicy>>(new TJsonWriter<CharType, PrintPolicy>(Stream, InitialIndentLevel));
	}

	/** Writes into *Stream, which receives the whole text when the writer is closed. */
	static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FString* const Stream, int32 InitialIndentLevel = 0)
	{
		return TJsonStringWriter<PrintPolicy>::Create(Stream, InitialIndentLevel);
	}
};
