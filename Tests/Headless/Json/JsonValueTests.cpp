#include "JsonTestText.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace
{
	TSharedRef<FJsonValue> Number(double Value)
	{
		return MakeShared<FJsonValueNumber>(Value);
	}

	TSharedRef<FJsonValue> String(const TCHAR* Value)
	{
		return MakeShared<FJsonValueString>(Value);
	}

	const std::optional<int64> Fails;

	/** The integer a value converts to; a failed conversion must also leave the output alone. */
	template <typename IntType>
	std::optional<int64> ToInteger(const FJsonValue& Value)
	{
		IntType Result = IntType(99);
		if (!Value.TryGetNumber(Result))
		{
			EXPECT_EQ(Result, IntType(99));
			return Fails;
		}
		return int64(Result);
	}
}

TEST(JsonValue, StringReadsAsANumberOnlyWhenItsTextIsPlainDecimal)
{
	double Result = 0.0;
	EXPECT_TRUE(String(TEXT("42"))->TryGetNumber(Result));
	EXPECT_EQ(Result, 42.0);
	EXPECT_TRUE(String(TEXT("-3.5"))->TryGetNumber(Result));
	EXPECT_EQ(Result, -3.5);
	EXPECT_TRUE(String(TEXT("+7"))->TryGetNumber(Result));
	EXPECT_EQ(Result, 7.0);

	for (const TCHAR* Text : { TEXT(""), TEXT("abc"), TEXT("1e3"), TEXT(" 5"), TEXT("5 "), TEXT("1.2.3"), TEXT("0x10"), TEXT("12abc") })
	{
		Result = 123.0;
		EXPECT_FALSE(String(Text)->TryGetNumber(Result)) << ToUtf8(Text);
		EXPECT_EQ(Result, 123.0) << ToUtf8(Text);
	}

	int32 Integer = 0;
	EXPECT_TRUE(String(TEXT("2.5"))->TryGetNumber(Integer));
	EXPECT_EQ(Integer, 3);
}

TEST(JsonValue, NumberConvertsToIntegersRoundingHalfAwayFromZero)
{
	EXPECT_EQ(ToInteger<int32>(*Number(2.5)), 3);
	EXPECT_EQ(ToInteger<int32>(*Number(-2.5)), -3);
	EXPECT_EQ(ToInteger<int32>(*Number(2.4)), 2);
	EXPECT_EQ(ToInteger<int32>(*Number(-2.6)), -3);
	EXPECT_EQ(ToInteger<uint8>(*Number(254.5)), 255);
	EXPECT_EQ(ToInteger<int64>(*Number(9007199254740992.0)), 9007199254740992);
}

TEST(JsonValue, NumberFailsToConvertOutsideTheIntegerTypesRange)
{
	EXPECT_EQ(ToInteger<int8>(*Number(127)), 127);
	EXPECT_EQ(ToInteger<int8>(*Number(-128)), -128);
	EXPECT_EQ(ToInteger<int8>(*Number(128)), Fails);
	EXPECT_EQ(ToInteger<int8>(*Number(127.4)), Fails);
	EXPECT_EQ(ToInteger<int8>(*Number(-128.5)), Fails);
	EXPECT_EQ(ToInteger<uint8>(*Number(256)), Fails);
	EXPECT_EQ(ToInteger<uint8>(*Number(-1)), Fails);
	EXPECT_EQ(ToInteger<uint16>(*Number(65535)), 65535);
	EXPECT_EQ(ToInteger<int16>(*Number(-32769)), Fails);
	EXPECT_EQ(ToInteger<int32>(*Number(2147483647)), 2147483647);
	EXPECT_EQ(ToInteger<int32>(*Number(2147483648.0)), Fails);
	EXPECT_EQ(ToInteger<uint32>(*Number(4294967296.0)), Fails);
	EXPECT_EQ(ToInteger<int64>(*Number(-9223372036854775808.0)), std::numeric_limits<int64>::min());
	EXPECT_EQ(ToInteger<int64>(*Number(9223372036854775808.0)), Fails);
	EXPECT_EQ(ToInteger<int32>(*Number(std::numeric_limits<double>::quiet_NaN())), Fails);

	uint64 Unsigned = 7;
	EXPECT_TRUE(Number(18446744073709549568.0)->TryGetNumber(Unsigned));
	EXPECT_EQ(Unsigned, 18446744073709549568ull);
	EXPECT_FALSE(Number(18446744073709551616.0)->TryGetNumber(Unsigned));
	EXPECT_EQ(Unsigned, 18446744073709549568ull);
}

TEST(JsonValue, NumberReadsAsTextWithoutTrailingZerosAndAsABooleanWhenNonZero)
{
	FString Text;
	EXPECT_TRUE(Number(3)->TryGetString(Text));
	EXPECT_EQ(ToUtf8(Text), "3");
	EXPECT_EQ(ToUtf8(Number(-2.5)->AsString()), "-2.5");
	EXPECT_EQ(ToUtf8(Number(0.1)->AsString()), "0.1");
	EXPECT_EQ(ToUtf8(Number(0)->AsString()), "0");

	EXPECT_TRUE(Number(2)->AsBool());
	EXPECT_FALSE(Number(0)->AsBool());

	float Single = 0.0f;
	EXPECT_TRUE(Number(0.5)->TryGetNumber(Single));
	EXPECT_EQ(Single, 0.5f);
}

TEST(JsonValue, BooleanReadsAsOneOrZeroAndAsTrueOrFalseText)
{
	const TSharedRef<FJsonValue> True = MakeShared<FJsonValueBoolean>(true);
	const TSharedRef<FJsonValue> False = MakeShared<FJsonValueBoolean>(false);
	EXPECT_EQ(True->AsNumber(), 1.0);
	EXPECT_EQ(False->AsNumber(), 0.0);
	EXPECT_EQ(ToInteger<int32>(*True), 1);
	EXPECT_EQ(ToUtf8(True->AsString()), "true");
	EXPECT_EQ(ToUtf8(False->AsString()), "false");
}

TEST(JsonValue, StringReadsAsABooleanByWordOrLeadingInteger)
{
	for (const TCHAR* Text : { TEXT("true"), TEXT("Yes"), TEXT("ON"), TEXT("1"), TEXT("2abc") })
	{
		bool bResult = false;
		EXPECT_TRUE(String(Text)->TryGetBool(bResult));
		EXPECT_TRUE(bResult) << ToUtf8(Text);
	}
	for (const TCHAR* Text : { TEXT("false"), TEXT("no"), TEXT("Off"), TEXT("0"), TEXT("abc"), TEXT("") })
	{
		bool bResult = true;
		EXPECT_TRUE(String(Text)->TryGetBool(bResult));
		EXPECT_FALSE(bResult) << ToUtf8(Text);
	}
}

TEST(JsonValue, NullArrayAndObjectDoNotReadAsScalarsAndLeaveOutputsAlone)
{
	const TSharedRef<FJsonValue> Values[] = {
		MakeShared<FJsonValueNull>(),
		MakeShared<FJsonValueArray>(TArray<TSharedPtr<FJsonValue>>()),
		MakeShared<FJsonValueObject>(MakeShared<FJsonObject>())
	};
	for (const TSharedRef<FJsonValue>& Value : Values)
	{
		FString Text = TEXT("kept");
		double Double = 5.0;
		int32 Integer = 5;
		bool bBool = true;
		EXPECT_FALSE(Value->TryGetString(Text));
		EXPECT_FALSE(Value->TryGetNumber(Double));
		EXPECT_FALSE(Value->TryGetNumber(Integer));
		EXPECT_FALSE(Value->TryGetBool(bBool));
		EXPECT_EQ(ToUtf8(Text), "kept");
		EXPECT_EQ(Double, 5.0);
		EXPECT_EQ(Integer, 5);
		EXPECT_TRUE(bBool);

		EXPECT_EQ(ToUtf8(Value->AsString()), "");
		EXPECT_EQ(Value->AsNumber(), 0.0);
		EXPECT_FALSE(Value->AsBool());
	}
	EXPECT_TRUE(Values[0]->IsNull());
	EXPECT_FALSE(Values[1]->IsNull());
}

TEST(JsonValue, ContainersAnswerOnlyTheirOwnKindAndFallBackToEmptyOnes)
{
	const TSharedRef<FJsonValue> Array = MakeShared<FJsonValueArray>(TArray<TSharedPtr<FJsonValue>>({ Number(1) }));
	const TSharedRef<FJsonValue> Object = MakeShared<FJsonValueObject>(MakeShared<FJsonObject>());

	const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
	EXPECT_TRUE(Array->TryGetArray(Elements));
	ASSERT_NE(Elements, nullptr);
	EXPECT_EQ(Elements->Num(), 1);
	const TSharedPtr<FJsonObject>* Members = nullptr;
	EXPECT_FALSE(Array->TryGetObject(Members));
	EXPECT_EQ(Members, nullptr);

	EXPECT_TRUE(Object->TryGetObject(Members));
	Elements = nullptr;
	EXPECT_FALSE(Object->TryGetArray(Elements));
	EXPECT_EQ(Elements, nullptr);

	EXPECT_EQ(Object->AsArray().Num(), 0);
	ASSERT_TRUE(Array->AsObject().IsValid());
	EXPECT_EQ(Array->AsObject()->Values.Num(), 0);
	EXPECT_EQ(String(TEXT("x"))->AsArray().Num(), 0);
}
