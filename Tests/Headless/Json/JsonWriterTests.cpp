#include "JsonTestText.h"
#include "Serialization/MemoryWriter.h"

#include <gtest/gtest.h>

namespace
{
	TSharedRef<FJsonObject> MakePoint(double X, double Y)
	{
		TSharedRef<FJsonObject> Point = MakeShared<FJsonObject>();
		Point->SetNumberField(TEXT("x"), X);
		Point->SetNumberField(TEXT("y"), Y);
		return Point;
	}

	TArray<TSharedPtr<FJsonValue>> MakeStrings(std::initializer_list<const TCHAR*> Strings)
	{
		TArray<TSharedPtr<FJsonValue>> Values;
		for (const TCHAR* String : Strings)
		{
			Values.Add(MakeShared<FJsonValueString>(String));
		}
		return Values;
	}

	TArray<TSharedPtr<FJsonValue>> MakeNumbers(std::initializer_list<double> Numbers)
	{
		TArray<TSharedPtr<FJsonValue>> Values;
		for (double Number : Numbers)
		{
			Values.Add(MakeShared<FJsonValueNumber>(Number));
		}
		return Values;
	}
}

TEST(JsonPrettyWriter, WritesMembersOnTabbedLinesEndedAsThePlatformEndsThemWithNothingAfterTheClosingBrace)
{
	TSharedRef<FJsonObject> SignIn = MakeShared<FJsonObject>();
	SignIn->SetStringField(TEXT("provider"), TEXT("anonymous"));
	SignIn->SetStringField(TEXT("ticket"), TEXT("demo_account"));

	EXPECT_EQ(PrettyText(SignIn), "{\n\t\"provider\": \"anonymous\",\n\t\"ticket\": \"demo_account\"\n}");
}

TEST(JsonPrettyWriter, OpensANestedObjectOnItsOwnLineAtTheKeysIndent)
{
	TSharedRef<FJsonObject> Move = MakeShared<FJsonObject>();
	Move->SetStringField(TEXT("item"), TEXT("sword"));
	Move->SetObjectField(TEXT("to"), MakePoint(2, 0));

	EXPECT_EQ(PrettyText(Move),
		"{\n\t\"item\": \"sword\",\n\t\"to\":\n\t{\n\t\t\"x\": 2,\n\t\t\"y\": 0\n\t}\n}");

	TSharedRef<FJsonObject> Outer = MakeShared<FJsonObject>();
	Outer->SetObjectField(TEXT("move"), Move);
	EXPECT_EQ(PrettyText(Outer),
		"{\n\t\"move\":\n\t{\n\t\t\"item\": \"sword\",\n\t\t\"to\":\n\t\t{\n\t\t\t\"x\": 2,\n\t\t\t\"y\": 0\n\t\t}\n\t}\n}");
}

TEST(JsonPrettyWriter, EscapesQuotesBackslashesAndControlCharactersAndPassesEverythingElseThrough)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("text"), TEXT("say \"hi\"\\ now\nthen\r\t\b\f\x0001\x001F caf\x00E9 \x4E2D/</"));

	EXPECT_EQ(PrettyText(Object),
		"{\n\t\"text\": \"say \\\"hi\\\"\\\\ now\\nthen\\r\\t\\b\\f\\u0001\\u001f caf\xC3\xA9 \xE4\xB8\xAD/</\"\n}");
}

TEST(JsonPrettyWriter, EscapesKeysLikeValuesAndKeepsSurrogatePairsIntact)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("a\"b"), TEXT("\xD83D\xDE00"));

	EXPECT_EQ(PrettyText(Object), "{\n\t\"a\\\"b\": \"\xF0\x9F\x98\x80\"\n}");
}

TEST(JsonPrettyWriter, WritesNumbersWithSeventeenSignificantDigits)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetNumberField(TEXT("count"), 24);
	Object->SetNumberField(TEXT("delta"), -1);
	Object->SetNumberField(TEXT("zero"), 0);
	Object->SetNumberField(TEXT("tenth"), 0.1);
	Object->SetNumberField(TEXT("half"), -2.5);
	Object->SetNumberField(TEXT("big"), 9007199254740993.0);
	Object->SetNumberField(TEXT("huge"), 1e21);

	EXPECT_EQ(PrettyText(Object),
		"{\n\t\"count\": 24,\n\t\"delta\": -1,\n\t\"zero\": 0,\n\t\"tenth\": 0.10000000000000001,"
		"\n\t\"half\": -2.5,\n\t\"big\": 9007199254740992,\n\t\"huge\": 1e+21\n}");
}

TEST(JsonPrettyWriter, WritesBooleansAndNullsAfterOneSpace)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetBoolField(TEXT("yes"), true);
	Object->SetBoolField(TEXT("no"), false);
	Object->SetField(TEXT("none"), MakeShared<FJsonValueNull>());
	Object->SetObjectField(TEXT("missing"), nullptr);

	EXPECT_EQ(PrettyText(Object), "{\n\t\"yes\": true,\n\t\"no\": false,\n\t\"none\": null,\n\t\"missing\": null\n}");
}

TEST(JsonPrettyWriter, WritesEmptyObjectsWithALineBreakBetweenTheBraces)
{
	EXPECT_EQ(PrettyText(MakeShared<FJsonObject>()), "{\n}");

	TSharedRef<FJsonObject> Outer = MakeShared<FJsonObject>();
	Outer->SetObjectField(TEXT("empty"), MakeShared<FJsonObject>());
	EXPECT_EQ(PrettyText(Outer), "{\n\t\"empty\":\n\t{\n\t}\n}");
}

TEST(JsonPrettyWriter, PutsStringAndObjectElementsOnLinesOfTheirOwnAndShortValuesOnTheBracketsLine)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetArrayField(TEXT("names"), MakeStrings({ TEXT("a"), TEXT("b") }));
	Object->SetArrayField(TEXT("counts"), MakeNumbers({ 1, -2 }));
	Object->SetArrayField(TEXT("flags"), { MakeShared<FJsonValueBoolean>(true), MakeShared<FJsonValueNull>() });
	Object->SetArrayField(TEXT("empty"), {});
	Object->SetArrayField(TEXT("points"), { MakeShared<FJsonValueObject>(MakePoint(1, 2)), MakeShared<FJsonValueObject>(MakePoint(3, 4)) });
	Object->SetArrayField(TEXT("grid"), { MakeShared<FJsonValueArray>(MakeNumbers({ 1, 2 })), MakeShared<FJsonValueArray>(MakeStrings({ TEXT("c") })) });

	EXPECT_EQ(PrettyText(Object),
		"{"
		"\n\t\"names\": [\n\t\t\"a\",\n\t\t\"b\"\n\t],"
		"\n\t\"counts\": [ 1, -2 ],"
		"\n\t\"flags\": [ true, null ],"
		"\n\t\"empty\": [],"
		"\n\t\"points\": [\n\t\t{\n\t\t\t\"x\": 1,\n\t\t\t\"y\": 2\n\t\t},\n\t\t{\n\t\t\t\"x\": 3,\n\t\t\t\"y\": 4\n\t\t}\n\t],"
		"\n\t\"grid\": [\n\t\t[ 1, 2 ],\n\t\t[\n\t\t\t\"c\"\n\t\t]\n\t]"
		"\n}");
}

TEST(JsonPrettyWriter, WritesARootArrayAndABareRootValueWithoutLeadingWhitespace)
{
	FString Text;
	EXPECT_TRUE(FJsonSerializer::Serialize(MakeStrings({ TEXT("a"), TEXT("b") }), TJsonWriterFactory<>::Create(&Text)));
	EXPECT_EQ(ToUtf8(Text), "[\n\t\"a\",\n\t\"b\"\n]");

	FString Bare;
	EXPECT_TRUE(FJsonSerializer::Serialize(TSharedPtr<FJsonValue>(MakeShared<FJsonValueNumber>(7)), FString(), TJsonWriterFactory<>::Create(&Bare)));
	EXPECT_EQ(ToUtf8(Bare), "7");
}

TEST(JsonCondensedWriter, WritesNoWhitespaceAnywhere)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("provider"), TEXT("anonymous"));
	Object->SetObjectField(TEXT("to"), MakePoint(2, 0));
	Object->SetArrayField(TEXT("list"), { MakeShared<FJsonValueNumber>(1), MakeShared<FJsonValueString>(TEXT("a b")), MakeShared<FJsonValueObject>(MakeShared<FJsonObject>()) });
	Object->SetArrayField(TEXT("empty"), {});
	Object->SetBoolField(TEXT("ok"), true);

	EXPECT_EQ(CondensedText(Object), "{\"provider\":\"anonymous\",\"to\":{\"x\":2,\"y\":0},\"list\":[1,\"a b\",{}],\"empty\":[],\"ok\":true}");
	EXPECT_EQ(CondensedText(MakeShared<FJsonObject>()), "{}");
}

TEST(JsonWriter, WritesTokensDirectlyAndClosesOnlyWhenEveryScopeIsEnded)
{
	FString Text;
	TSharedRef<TJsonWriter<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>> Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
	Writer->WriteObjectStart();
	Writer->WriteValue(TEXT("name"), TEXT("stash"));
	Writer->WriteValue(TEXT("slots"), 24);
	Writer->WriteValue(TEXT("weight"), 1.5);
	Writer->WriteValue(TEXT("id"), int64(9007199254740993));
	Writer->WriteNull(TEXT("owner"));
	Writer->WriteArrayStart(TEXT("tags"));
	Writer->WriteValue(TEXT("rare"));
	Writer->WriteValue(false);
	Writer->WriteArrayEnd();
	Writer->WriteObjectStart(TEXT("size"));
	Writer->WriteValue(TEXT("w"), 2u);
	Writer->WriteObjectEnd();
	EXPECT_FALSE(Writer->Close());
	Writer->WriteObjectEnd();

	EXPECT_TRUE(Writer->Close());
	EXPECT_EQ(ToUtf8(Text), "{\"name\":\"stash\",\"slots\":24,\"weight\":1.5,\"id\":9007199254740993,\"owner\":null,\"tags\":[\"rare\",false],\"size\":{\"w\":2}}");
}

TEST(JsonWriter, IndentsFromTheInitialIndentLevel)
{
	FString Text;
	TSharedRef<TJsonWriter<>> Writer = TJsonWriterFactory<>::Create(&Text, 1);
	Writer->WriteObjectStart();
	Writer->WriteValue(TEXT("a"), 1);
	Writer->WriteObjectEnd();
	EXPECT_TRUE(Writer->Close());

	EXPECT_EQ(ToUtf8(Text), "{\n\t\t\"a\": 1\n\t}");
}

TEST(JsonWriter, AStringReceivesTheTextWhenTheWriterClosesAndAnArchiveAsItIsWritten)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("name"), TEXT("caf\x00E9"));
	Object->SetObjectField(TEXT("to"), MakePoint(2, 0));

	FString Text = TEXT("old");
	TSharedRef<TJsonWriter<>> StringWriter = TJsonWriterFactory<>::Create(&Text);
	StringWriter->WriteObjectStart();
	EXPECT_EQ(ToUtf8(Text), "old");
	StringWriter->WriteObjectEnd();
	EXPECT_TRUE(StringWriter->Close());
	EXPECT_EQ(ToUtf8(Text), "{\n}");

	TArray<uint8> Bytes;
	FMemoryWriter Archive(Bytes);
	EXPECT_TRUE(FJsonSerializer::Serialize(Object, TJsonWriterFactory<>::Create(&Archive)));
	const FString FromArchive(Bytes.Num() / int32(sizeof(TCHAR)), reinterpret_cast<const TCHAR*>(Bytes.GetData()));
	EXPECT_EQ(ToUtf8(FromArchive), PrettyText(Object));
	EXPECT_EQ(ToUtf8(FromArchive), "{\n\t\"name\": \"caf\xC3\xA9\",\n\t\"to\":\n\t{\n\t\t\"x\": 2,\n\t\t\"y\": 0\n\t}\n}");
}
