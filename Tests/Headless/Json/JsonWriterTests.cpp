#include "JsonTestText.h"

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

TEST(JsonPrettyWriter, WritesMembersOnTabbedCrLfLinesAfterOneSpaceWithNothingAfterTheClosingBrace)
{
	TSharedRef<FJsonObject> SignIn = MakeShared<FJsonObject>();
	SignIn->SetStringField(TEXT("provider"), TEXT("anonymous"));
	SignIn->SetStringField(TEXT("ticket"), TEXT("demo_account"));

	EXPECT_EQ(PrettyText(SignIn), "{\r\n\t\"provider\": \"anonymous\",\r\n\t\"ticket\": \"demo_account\"\r\n}");
}

TEST(JsonPrettyWriter, OpensANestedObjectOnItsOwnLineAtTheKeysIndent)
{
	TSharedRef<FJsonObject> Move = MakeShared<FJsonObject>();
	Move->SetStringField(TEXT("item"), TEXT("sword"));
	Move->SetObjectField(TEXT("to"), MakePoint(2, 0));

	EXPECT_EQ(PrettyText(Move),
		"{\r\n\t\"item\": \"sword\",\r\n\t\"to\":\r\n\t{\r\n\t\t\"x\": 2,\r\n\t\t\"y\": 0\r\n\t}\r\n}");

	TSharedRef<FJsonObject> Outer = MakeShared<FJsonObject>();
	Outer->SetObjectField(TEXT("move"), Move);
	EXPECT_EQ(PrettyText(Outer),
		"{\r\n\t\"move\":\r\n\t{\r\n\t\t\"item\": \"sword\",\r\n\t\t\"to\":\r\n\t\t{\r\n\t\t\t\"x\": 2,\r\n\t\t\t\"y\": 0\r\n\t\t}\r\n\t}\r\n}");
}

TEST(JsonPrettyWriter, EscapesQuotesBackslashesAndControlCharactersAndPassesEverythingElseThrough)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("text"), TEXT("say \"hi\"\\ now\nthen\r\t\b\f\x0001\x001F caf\x00E9 \x4E2D/</"));

	EXPECT_EQ(PrettyText(Object),
		"{\r\n\t\"text\": \"say \\\"hi\\\"\\\\ now\\nthen\\r\\t\\b\\f\\u0001\\u001f caf\xC3\xA9 \xE4\xB8\xAD/</\"\r\n}");
}

TEST(JsonPrettyWriter, EscapesKeysLikeValuesAndKeepsSurrogatePairsIntact)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("a\"b"), TEXT("\xD83D\xDE00"));

	EXPECT_EQ(PrettyText(Object), "{\r\n\t\"a\\\"b\": \"\xF0\x9F\x98\x80\"\r\n}");
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
		"{\r\n\t\"count\": 24,\r\n\t\"delta\": -1,\r\n\t\"zero\": 0,\r\n\t\"tenth\": 0.10000000000000001,"
		"\r\n\t\"half\": -2.5,\r\n\t\"big\": 9007199254740992,\r\n\t\"huge\": 1e+21\r\n}");
}

TEST(JsonPrettyWriter, WritesBooleansAndNullsAfterOneSpace)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetBoolField(TEXT("yes"), true);
	Object->SetBoolField(TEXT("no"), false);
	Object->SetField(TEXT("none"), MakeShared<FJsonValueNull>());
	Object->SetObjectField(TEXT("missing"), nullptr);

	EXPECT_EQ(PrettyText(Object), "{\r\n\t\"yes\": true,\r\n\t\"no\": false,\r\n\t\"none\": null,\r\n\t\"missing\": null\r\n}");
}

TEST(JsonPrettyWriter, WritesEmptyObjectsWithALineBreakBetweenTheBraces)
{
	EXPECT_EQ(PrettyText(MakeShared<FJsonObject>()), "{\r\n}");

	TSharedRef<FJsonObject> Outer = MakeShared<FJsonObject>();
	Outer->SetObjectField(TEXT("empty"), MakeShared<FJsonObject>());
	EXPECT_EQ(PrettyText(Outer), "{\r\n\t\"empty\":\r\n\t{\r\n\t}\r\n}");
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
		"\r\n\t\"names\": [\r\n\t\t\"a\",\r\n\t\t\"b\"\r\n\t],"
		"\r\n\t\"counts\": [ 1, -2 ],"
		"\r\n\t\"flags\": [ true, null ],"
		"\r\n\t\"empty\": [],"
		"\r\n\t\"points\": [\r\n\t\t{\r\n\t\t\t\"x\": 1,\r\n\t\t\t\"y\": 2\r\n\t\t},\r\n\t\t{\r\n\t\t\t\"x\": 3,\r\n\t\t\t\"y\": 4\r\n\t\t}\r\n\t],"
		"\r\n\t\"grid\": [\r\n\t\t[ 1, 2 ],\r\n\t\t[\r\n\t\t\t\"c\"\r\n\t\t]\r\n\t]"
		"\r\n}");
}

TEST(JsonPrettyWriter, WritesARootArrayAndABareRootValueWithoutLeadingWhitespace)
{
	FString Text;
	EXPECT_TRUE(FJsonSerializer::Serialize(MakeStrings({ TEXT("a"), TEXT("b") }), TJsonWriterFactory<>::Create(&Text)));
	EXPECT_EQ(ToUtf8(Text), "[\r\n\t\"a\",\r\n\t\"b\"\r\n]");

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

	EXPECT_EQ(ToUtf8(Text), "{\r\n\t\t\"a\": 1\r\n\t}");
}
