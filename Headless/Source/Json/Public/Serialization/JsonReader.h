// The source of a JSON document for FJsonSerializer::Deserialize. The engine's reader also hands out
// tokens one at a time (ReadNext); the headless reader only feeds the serializer, which reads the
// whole document at once.
#pragma once

#include "CoreMinimal.h"
#include "Serialization/JsonTypes.h"

class FJsonValue;
class FJsonSerializer;

namespace UE::Json::Private
{
	/**
	 * Parses one complete document of UTF-8 text. RootType EJson::None accepts any value; Object or
	 * Array reject any other root. Never throws; on failure OutRoot is reset and OutErrorMessage says why.
	 */
	JSON_API bool ReadDocument(const UTF8CHAR* Text, int32 Len, EJson RootType, TSharedPtr<FJsonValue>& OutRoot, FString& OutErrorMessage);

	/** UTF-16 to UTF-8. An unpaired surrogate fails, naming its position in OutErrorMessage. */
	JSON_API bool ConvertToUtf8(FStringView Text, TArray<UTF8CHAR>& OutUtf8, FString& OutErrorMessage);
}

template <class CharType = TCHAR>
class TJsonReaderFactory;

template <class CharType = TCHAR>
class TJsonReader
{
public:
	virtual ~TJsonReader() = default;

	/** Why the last read failed; empty after a successful one. */
	const FString& GetErrorMessage() const
	{
		return ErrorMessage;
	}

private:
	friend class TJsonReaderFactory<CharType>;
	friend class FJsonSerializer;

	TJsonReader() = default;

	bool ReadRoot(EJson RootType, TSharedPtr<FJsonValue>& OutRoot)
	{
		if (!InputError.IsEmpty())
		{
			ErrorMessage = InputError;
			OutRoot.Reset();
			return false;
		}
		return UE::Json::Private::ReadDocument(Utf8Text.GetData(), Utf8Text.Num(), RootType, OutRoot, ErrorMessage);
	}

	TArray<UTF8CHAR> Utf8Text;
	FString InputError;
	FString ErrorMessage;
};

template <>
class TJsonReaderFactory<TCHAR>
{
public:
	static TSharedRef<TJsonReader<TCHAR>> Create(const FString& JsonString)
	{
		return CreateFromView(FStringView(*JsonString, JsonString.Len()));
	}

	static TSharedRef<TJsonReader<TCHAR>> CreateFromView(FStringView JsonString)
	{
		TSharedRef<TJsonReader<TCHAR>> Reader(new TJsonReader<TCHAR>());
		UE::Json::Private::ConvertToUtf8(JsonString, Reader->Utf8Text, Reader->InputError);
		return Reader;
	}
};

template <>
class TJsonReaderFactory<UTF8CHAR>
{
public:
	/** Bytes that are not valid UTF-8 make the read fail. */
	static TSharedRef<TJsonReader<UTF8CHAR>> CreateFromView(FUtf8StringView JsonString)
	{
		TSharedRef<TJsonReader<UTF8CHAR>> Reader(new TJsonReader<UTF8CHAR>());
		Reader->Utf8Text = TArray<UTF8CHAR>(JsonString.GetData(), JsonString.Len());
		return Reader;
	}
};
