#include "JsonTestText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
	/** Reads Text into an object that starts out valid, so that a failed read must visibly reset it. */
	struct FObjectRead
	{
		bool bSucceeded = false;
		TSharedPtr<FJsonObject> Object;
		FString ErrorMessage;
	};

	FObjectRead ReadObject(const FString& Text)
	{
		FObjectRead Read;
		Read.Object = MakeShared<FJsonObject>();
		TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Text);
		Read.bSucceeded = FJsonSerializer::Deserialize(Reader, Read.Object);
		Read.ErrorMessage = Reader->GetErrorMessage();
		return Read;
	}

	FString Repeat(const TCHAR* Piece, int32 Count)
	{
		FString Result;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Result += Piece;
		}
		return Result;
	}

	void ExpectRejected(const FString& Text)
	{
		const FObjectRead Read = ReadObject(Text);
		EXPECT_FALSE(Read.bSucceeded) << ToUtf8(Text);
		EXPECT_FALSE(Read.Object.IsValid()) << ToUtf8(Text);
		EXPECT_FALSE(Read.ErrorMessage.IsEmpty()) << ToUtf8(Text);
	}
}

TEST(JsonReader, ReadsEveryKindOfValue)
{
	const FObjectRead Read = ReadObject(TEXT(" {\"s\":\"x\", \"n\":-1.5e2, \"i\":42, \"u\":18446744073709551615, \"b\":true, \"z\":null,")
		TEXT("\r\n\t\"a\":[1,\"two\",[]], \"o\":{\"k\":\"v\"}} \n"));
	ASSERT_TRUE(Read.bSucceeded) << ToUtf8(Read.ErrorMessage);
	const FJsonObject& Object = *Read.Object;

	EXPECT_EQ(ToUtf8(Object.GetStringField(TEXT("s"))), "x");
	EXPECT_EQ(Object.GetNumberField(TEXT("n")), -150.0);
	EXPECT_EQ(Object.GetIntegerField(TEXT("i")), 42);
	EXPECT_EQ(Object.GetNumberField(TEXT("u")), 18446744073709551615.0);
	EXPECT_TRUE(Object.GetBoolField(TEXT("b")));
	EXPECT_TRUE(Object.HasTypedField<EJson::Null>(TEXT("z")));
	const TArray<TSharedPtr<FJsonValue>>& Array = Object.GetArrayField(TEXT("a"));
	ASSERT_EQ(Array.Num(), 3);
	EXPECT_EQ(Array[0]->AsNumber(), 1.0);
	EXPECT_EQ(ToUtf8(Array[1]->AsString()), "two");
	EXPECT_EQ(Array[2]->AsArray().Num(), 0);
	EXPECT_EQ(ToUtf8(Object.GetObjectField(TEXT("o"))->GetStringField(TEXT("k"))), "v");
	EXPECT_TRUE(Read.ErrorMessage.IsEmpty());
}

TEST(JsonReader, DecodesEscapesSurrogatePairsAndRawNonAsciiText)
{
	const FObjectRead Read = ReadObject(TEXT("{\"e\":\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u0041\\u00e9\\u4E2D\\ud83d\\ude00\\u0000!\", \"raw\":\"caf\x00E9 \x4E2D \xD83D\xDE00\"}"));
	ASSERT_TRUE(Read.bSucceeded) << ToUtf8(Read.ErrorMessage);

	const FString Escaped = Read.Object->GetStringField(TEXT("e"));
	const std::u16string Expected = u"\"\\/\b\f\n\r\tA\u00e9\u4e2d\U0001F600";
	ASSERT_EQ(Escaped.Len(), int32(Expected.size()) + 2);
	EXPECT_EQ(std::u16string(*Escaped, Expected.size()), Expected);
	EXPECT_EQ(Escaped[Escaped.Len() - 2], TCHAR(0));
	EXPECT_EQ(Escaped[Escaped.Len() - 1], TCHAR('!'));

	EXPECT_EQ(ToUtf8(Read.Object->GetStringField(TEXT("raw"))), "caf\xC3\xA9 \xE4\xB8\xAD \xF0\x9F\x98\x80");
}

TEST(JsonReader, KeepsTheFirstPositionAndTheLastValueOfARepeatedKey)
{
	const FObjectRead Read = ReadObject(TEXT("{\"a\":1,\"b\":2,\"a\":3}"));
	ASSERT_TRUE(Read.bSucceeded);
	EXPECT_EQ(CondensedText(Read.Object.ToSharedRef()), "{\"a\":3,\"b\":2}");
}

TEST(JsonReader, RoundTripsPrettyAndCondensedTextUnchanged)
{
	const FString Pretty = TEXT("{\n\t\"name\": \"caf\x00E9 \\\"\x4E2D\\\" \\u0001\",\n\t\"to\":\n\t{\n\t\t\"x\": 2,\n\t\t\"y\": -0.10000000000000001\n\t},")
		TEXT("\n\t\"tags\": [\n\t\t\"a\"\n\t],\n\t\"counts\": [ 1, 2 ],\n\t\"empty\":\n\t{\n\t},\n\t\"ok\": false,\n\t\"none\": null\n}");
	const TSharedPtr<FJsonObject> FromPretty = ParseObject(Pretty);
	ASSERT_TRUE(FromPretty.IsValid());
	EXPECT_EQ(PrettyText(FromPretty.ToSharedRef()), ToUtf8(Pretty));

	const FString Condensed = TEXT("{\"a\":[{\"b\":[[],{}]},1e+22,true],\"c\":\"\\\\\\n\"}");
	const TSharedPtr<FJsonObject> FromCondensed = ParseObject(Condensed);
	ASSERT_TRUE(FromCondensed.IsValid());
	EXPECT_EQ(CondensedText(FromCondensed.ToSharedRef()), ToUtf8(Condensed));
}

TEST(JsonReader, ReadsRootArraysAndBareValuesThroughTheMatchingOverloads)
{
	TArray<TSharedPtr<FJsonValue>> Array;
	EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("[1,\"x\"]")), Array));
	EXPECT_EQ(Array.Num(), 2);
	EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("{}")), Array));
	EXPECT_EQ(Array.Num(), 0);

	TSharedPtr<FJsonValue> Value;
	EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT(" \"hi\" ")), Value));
	ASSERT_TRUE(Value.IsValid());
	EXPECT_EQ(ToUtf8(Value->AsString()), "hi");
	EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("\"hi")), Value));
	EXPECT_FALSE(Value.IsValid());
}

TEST(JsonReader, RejectsTruncatedText)
{
	for (const TCHAR* Text : { TEXT(""), TEXT("   "), TEXT("{"), TEXT("{\"a\""), TEXT("{\"a\":"), TEXT("{\"a\":1"), TEXT("{\"a\":1,"), TEXT("{\"a\":\"abc"),
			 TEXT("{\"a\":tru"), TEXT("{\"a\":[1,2"), TEXT("{\"a\":\"\\u00"), TEXT("{\"a\":-") })
	{
		ExpectRejected(Text);
	}
}

TEST(JsonReader, RejectsADocumentThatIsNotAnObject)
{
	for (const TCHAR* Text : { TEXT("[]"), TEXT("[{}]"), TEXT("\"text\""), TEXT("3"), TEXT("true"), TEXT("null") })
	{
		ExpectRejected(Text);
	}
}

TEST(JsonReader, RejectsTrailingGarbage)
{
	for (const TCHAR* Text : { TEXT("{} x"), TEXT("{}{}"), TEXT("{\"a\":1}]"), TEXT("{},") })
	{
		ExpectRejected(Text);
	}
	ExpectRejected(FString(3, TEXT("{}\0")));
	ExpectRejected(FString(5, TEXT("{}\0{}")));
}

TEST(JsonReader, RejectsWhatJsonDoesNotAllow)
{
	for (const TCHAR* Text : { TEXT("{a:1}"), TEXT("{'a':1}"), TEXT("{\"a\":1,}"), TEXT("{\"a\":[1,]}"), TEXT("{\"a\" 1}"), TEXT("{\"a\":1 \"b\":2}"),
			 TEXT("{/*note*/}"), TEXT("{\"a\":01}"), TEXT("{\"a\":1.}"), TEXT("{\"a\":.5}"), TEXT("{\"a\":+1}"), TEXT("{\"a\":NaN}"),
			 TEXT("{\"a\":Infinity}"), TEXT("{\"a\":\"tab\there\"}"), TEXT("{\"a\":\"\x0001\"}"), TEXT("{\"a\":True}") })
	{
		ExpectRejected(Text);
	}
}

TEST(JsonReader, RejectsInvalidEscapes)
{
	for (const TCHAR* Text : { TEXT("{\"a\":\"\\x41\"}"), TEXT("{\"a\":\"\\u12\"}"), TEXT("{\"a\":\"\\u12G4\"}"), TEXT("{\"a\":\"\\\"}"), TEXT("{\"a\":\"\\U0041\"}"),
			 TEXT("{\"a\":\"\\'\"}") })
	{
		ExpectRejected(Text);
	}
}

TEST(JsonReader, RejectsUnpairedSurrogatesWhetherEscapedOrRaw)
{
	for (const TCHAR* Text : { TEXT("{\"a\":\"\\ud800\"}"), TEXT("{\"a\":\"\\udc00\"}"), TEXT("{\"a\":\"\\ud800\\u0041\"}"), TEXT("{\"a\":\"\\ude00\\ud83d\"}"),
			 TEXT("{\"a\":\"\xD800\"}"), TEXT("{\"a\":\"\xDC00\"}"), TEXT("{\"a\":\"\xDE00\xD83D\"}"), TEXT("{\"a\":1}\xD800") })
	{
		ExpectRejected(Text);
	}
}

TEST(JsonReader, RejectsNumbersBeyondTheRangeOfADouble)
{
	for (const TCHAR* Text : { TEXT("{\"a\":1e400}"), TEXT("{\"a\":-1e400}"), TEXT("{\"a\":1.8e308}") })
	{
		ExpectRejected(Text);
	}

	const FObjectRead Tiny = ReadObject(TEXT("{\"a\":1e-400,\"b\":1.7976931348623157e308}"));
	ASSERT_TRUE(Tiny.bSucceeded);
	EXPECT_EQ(Tiny.Object->GetNumberField(TEXT("a")), 0.0);
	EXPECT_EQ(Tiny.Object->GetNumberField(TEXT("b")), 1.7976931348623157e308);
}

TEST(JsonReader, RejectsInvalidUtf8FromAByteReader)
{
	const auto Read = [](const std::string& Bytes)
	{
		TSharedPtr<FJsonObject> Object = MakeShared<FJsonObject>();
		TSharedRef<TJsonReader<UTF8CHAR>> Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(
			FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Bytes.data()), int32(Bytes.size())));
		const bool bSucceeded = FJsonSerializer::Deserialize(Reader, Object);
		EXPECT_EQ(bSucceeded, Object.IsValid());
		EXPECT_EQ(bSucceeded, Reader->GetErrorMessage().IsEmpty());
		return bSucceeded ? ToUtf8(Object->GetStringField(TEXT("a"))) : std::string("<rejected>");
	};

	EXPECT_EQ(Read("{\"a\":\"caf\xC3\xA9 \xF0\x9F\x98\x80\"}"), "caf\xC3\xA9 \xF0\x9F\x98\x80");
	for (const char* Bad : { "\xC3\x28", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xE4\xB8", "\x80", "\xFF", "\xF4\x90\x80\x80" })
	{
		EXPECT_EQ(Read(std::string("{\"a\":\"") + Bad + "\"}"), "<rejected>") << "bytes: " << Bad;
	}
	EXPECT_EQ(Read("{\"a\":1}\xC3"), "<rejected>");
}

TEST(JsonReader, AcceptsNestingUpTo512LevelsAndRejectsDeeperWithoutExhaustingTheStack)
{
	const FObjectRead AtLimit = ReadObject(Repeat(TEXT("{\"a\":"), 511) + TEXT("{}") + Repeat(TEXT("}"), 511));
	EXPECT_TRUE(AtLimit.bSucceeded) << ToUtf8(AtLimit.ErrorMessage);

	const FObjectRead OverLimit = ReadObject(Repeat(TEXT("{\"a\":"), 512) + TEXT("{}") + Repeat(TEXT("}"), 512));
	EXPECT_FALSE(OverLimit.bSucceeded);
	EXPECT_FALSE(OverLimit.Object.IsValid());
	EXPECT_TRUE(OverLimit.ErrorMessage.Contains(TEXT("512")));

	ExpectRejected(Repeat(TEXT("{\"a\":"), 100000));
	ExpectRejected(Repeat(TEXT("["), 100000));

	TSharedPtr<FJsonValue> Value;
	TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(TEXT("{\"a\":") + Repeat(TEXT("["), 100000) + Repeat(TEXT("]"), 100000) + TEXT("}"));
	EXPECT_FALSE(FJsonSerializer::Deserialize(Reader, Value));
	EXPECT_FALSE(Value.IsValid());
	EXPECT_TRUE(Reader->GetErrorMessage().Contains(TEXT("512")));
}

TEST(JsonReader, RejectsATenMegabyteArrayWhereAnObjectIsExpectedAndATruncatedOneAnywhere)
{
	const FString Elements = Repeat(TEXT("1234567,"), 10 * 1024 * 1024 / 8);
	ExpectRejected(TEXT("[") + Elements + TEXT("0]"));

	TArray<TSharedPtr<FJsonValue>> Array;
	Array.Add(MakeShared<FJsonValueNull>());
	EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("[") + Elements), Array));
	EXPECT_EQ(Array.Num(), 0);
}
