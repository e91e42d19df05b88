#include "Containers/Set.h"
#include "Misc/Guid.h"

#include <gtest/gtest.h>

namespace
{
	const FGuid Sample(0x01234567u, 0x89ABCDEFu, 0xFEDCBA98u, 0x76543210u);
}

TEST(GuidTest, PrintsEveryFormatFromTheFourWords)
{
	EXPECT_TRUE(Sample.ToString().Equals(TEXT("0123456789ABCDEFFEDCBA9876543210"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Sample.ToString(EGuidFormats::DigitsLower).Equals(TEXT("0123456789abcdeffedcba9876543210"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Sample.ToString(EGuidFormats::DigitsWithHyphens).Equals(TEXT("01234567-89AB-CDEF-FEDC-BA9876543210"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Sample.ToString(EGuidFormats::DigitsWithHyphensLower).Equals(TEXT("01234567-89ab-cdef-fedc-ba9876543210"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Sample.ToString(EGuidFormats::DigitsWithHyphensInBraces).Equals(TEXT("{01234567-89AB-CDEF-FEDC-BA9876543210}"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Sample.ToString(EGuidFormats::UniqueObjectGuid).Equals(TEXT("01234567-89ABCDEF-FEDCBA98-76543210"), ESearchCase::CaseSensitive));
}

TEST(GuidTest, ParsesEachFormatBack)
{
	const EGuidFormats Formats[] = { EGuidFormats::Digits, EGuidFormats::DigitsLower, EGuidFormats::DigitsWithHyphens,
		EGuidFormats::DigitsWithHyphensLower, EGuidFormats::DigitsWithHyphensInBraces, EGuidFormats::DigitsWithHyphensInParentheses,
		EGuidFormats::HexValuesInBraces, EGuidFormats::UniqueObjectGuid };
	for (const EGuidFormats Format : Formats)
	{
		FGuid Parsed;
		ASSERT_TRUE(FGuid::Parse(Sample.ToString(Format), Parsed)) << int32(Format);
		EXPECT_EQ(Parsed, Sample) << int32(Format);
		FGuid Exact;
		EXPECT_TRUE(FGuid::ParseExact(Sample.ToString(Format), Format, Exact)) << int32(Format);
		EXPECT_EQ(Exact, Sample);
	}
}

TEST(GuidTest, RejectsMalformedStringsWithoutTouchingTheOutput)
{
	FGuid Out = Sample;
	EXPECT_FALSE(FGuid::Parse(TEXT("0123456789ABCDEFFEDCBA987654321"), Out));
	EXPECT_FALSE(FGuid::Parse(TEXT("0123456789ABCDEFFEDCBA987654321G"), Out));
	EXPECT_FALSE(FGuid::Parse(TEXT("01234567-89AB-CDEF-FEDC_BA9876543210"), Out));
	EXPECT_FALSE(FGuid::ParseExact(Sample.ToString(EGuidFormats::Digits), EGuidFormats::DigitsWithHyphens, Out));
	EXPECT_EQ(Out, Sample);
	EXPECT_FALSE(FGuid(FString(TEXT("nonsense"))).IsValid());
}

TEST(GuidTest, NewGuidsAreValidDistinctAndVersionFour)
{
	TSet<FGuid> Seen;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		const FGuid Guid = FGuid::NewGuid();
		ASSERT_TRUE(Guid.IsValid());
		EXPECT_EQ((Guid.B >> 12) & 0xF, 4u);
		Seen.Add(Guid);
	}
	EXPECT_EQ(Seen.Num(), 1000);
}

TEST(GuidTest, OrdersWordByWordAndInvalidates)
{
	EXPECT_TRUE(FGuid(1, 0, 0, 0) < FGuid(1, 0, 0, 1));
	EXPECT_FALSE(FGuid(2, 0, 0, 0) < FGuid(1, 9, 9, 9));
	EXPECT_NE(GetTypeHash(FGuid(1, 2, 3, 4)), GetTypeHash(FGuid(4, 3, 2, 1)));
	FGuid Guid = Sample;
	EXPECT_EQ(Guid[3], 0x76543210u);
	Guid.Invalidate();
	EXPECT_FALSE(Guid.IsValid());
	EXPECT_EQ(Guid, FGuid());
}

TEST(GuidTest, HexValuesFormatSplitsTheLastTwoWordsIntoBytes)
{
	EXPECT_TRUE(Sample.ToString(EGuidFormats::HexValuesInBraces).Equals(
		TEXT("{0x01234567,0x89AB,0xCDEF,{0xFE,0xDC,0xBA,0x98,0x76,0x54,0x32,0x10}}"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(LexToString(Sample).Equals(Sample.ToString()));
	FGuid FromLex;
	LexFromString(FromLex, *Sample.ToString(EGuidFormats::DigitsWithHyphensInBraces));
	EXPECT_EQ(FromLex, Sample);
}
