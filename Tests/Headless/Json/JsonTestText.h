// Shared helpers: JSON text as UTF-8 std::string, so that comparisons are exact (FString's == ignores
// case) and failures print readably.
#pragma once

#include "CoreMinimal.h"
#include "Containers/StringConv.h"
#include "Json.h"

#include <string>

inline std::string ToUtf8(const FString& String)
{
	FTCHARToUTF8 Converter(*String, String.Len());
	return std::string(reinterpret_cast<const char*>(Converter.Get()), Converter.Length());
}

inline std::string PrettyText(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	const bool bClosed = FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR, TPrettyJsonPrintPolicy<TCHAR>>::Create(&Text));
	return bClosed ? ToUtf8(Text) : std::string("<writer did not close>");
}

inline std::string CondensedText(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	const bool bClosed = FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
	return bClosed ? ToUtf8(Text) : std::string("<writer did not close>");
}

inline TSharedPtr<FJsonObject> ParseObject(const FString& Text)
{
	TSharedPtr<FJsonObject> Object;
	FJsonSerializer::Deserialize(TJsonReaderFactory<TCHAR>::Create(Text), Object);
	return Object;
}
