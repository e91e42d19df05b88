#include "Internationalization/Regex.h"

#include <gtest/gtest.h>

TEST(RegexTest, FindsEveryMatchWithItsPositionsAndGroups)
{
	const FRegexPattern Pattern(TEXT("(\\w+)=(\\d+)"));
	FRegexMatcher Matcher(Pattern, TEXT("gold=12, ammo=300"));
	ASSERT_TRUE(Matcher.FindNext());
	EXPECT_EQ(Matcher.GetMatchBeginning(), 0);
	EXPECT_EQ(Matcher.GetMatchEnding(), 7);
	EXPECT_TRUE(Matcher.GetCaptureGroup(1).Equals(TEXT("gold")));
	EXPECT_TRUE(Matcher.GetCaptureGroup(2).Equals(TEXT("12")));
	ASSERT_TRUE(Matcher.FindNext());
	EXPECT_EQ(Matcher.GetCaptureGroupBeginning(2), 14);
	EXPECT_EQ(Matcher.GetCaptureGroupEnding(2), 17);
	EXPECT_TRUE(Matcher.GetCaptureGroup(0).Equals(TEXT("ammo=300")));
	EXPECT_FALSE(Matcher.FindNext());
}

TEST(RegexTest, AnchorsAndClassesFollowIcuSyntax)
{
	const FRegexPattern Hex32(TEXT("^[0-9A-Fa-f]{32}$"));
	EXPECT_TRUE(FRegexMatcher(Hex32, TEXT("0123456789abcdefABCDEF0123456789")).FindNext());
	EXPECT_FALSE(FRegexMatcher(Hex32, TEXT("0123456789abcdefABCDEF01234567890")).FindNext());
	EXPECT_FALSE(FRegexMatcher(Hex32, TEXT("0123456789abcdefABCDEF012345678g")).FindNext());

	const FRegexPattern Digits(TEXT("\\d+$"));
	FRegexMatcher Matcher(Digits, TEXT("12 slots 34"));
	ASSERT_TRUE(Matcher.FindNext());
	EXPECT_EQ(Matcher.GetMatchBeginning(), 9);

	// Positions count UTF-16 units: the emoji before the match takes two.
	FRegexMatcher AfterEmoji(FRegexPattern(TEXT("x")), TEXT("\U0001F600x"));
	ASSERT_TRUE(AfterEmoji.FindNext());
	EXPECT_EQ(AfterEmoji.GetMatchBeginning(), 2);
}

TEST(RegexTest, CaseInsensitiveFlagAndUnmatchedGroups)
{
	const FRegexPattern Pattern(TEXT("stash(-(\\d))?"), ERegexPatternFlags::CaseInsensitive);
	FRegexMatcher Matcher(Pattern, TEXT("STASH"));
	ASSERT_TRUE(Matcher.FindNext());
	EXPECT_EQ(Matcher.GetCaptureGroupBeginning(2), INDEX_NONE);
	EXPECT_TRUE(Matcher.GetCaptureGroup(2).IsEmpty());
	EXPECT_TRUE(Matcher.GetCaptureGroup(7).IsEmpty());
}

TEST(RegexTest, LimitsRestrictTheSearchAndAnchorAtTheirBounds)
{
	FRegexMatcher Matcher(FRegexPattern(TEXT("^\\d+")), TEXT("ab123cd456"));
	Matcher.SetLimits(2, 4);
	ASSERT_TRUE(Matcher.FindNext());
	EXPECT_TRUE(Matcher.GetCaptureGroup(0).Equals(TEXT("12")));
	EXPECT_EQ(Matcher.GetBeginLimit(), 2);
	EXPECT_EQ(Matcher.GetEndLimit(), 4);
	EXPECT_FALSE(Matcher.FindNext());
}

TEST(RegexTest, PatternsThatDoNotCompileMatchNothing)
{
	FRegexMatcher Matcher(FRegexPattern(TEXT("([unclosed")), TEXT("[unclosed"));
	EXPECT_FALSE(Matcher.FindNext());
	EXPECT_EQ(Matcher.GetMatchBeginning(), INDEX_NONE);
	EXPECT_TRUE(Matcher.GetCaptureGroup(0).IsEmpty());
}

TEST(RegexTest, MatchersOwnTheirInputAndPatternsCanBeShared)
{
	const FRegexPattern Shared(TEXT("[A-Z]\\w*"));
	TArray<FString> Found;
	{
		FString Temporary(TEXT("Iron Sword and Oak Shield"));
		FRegexMatcher Matcher(Shared, Temporary);
		Temporary = TEXT("changed after matching started");
		while (Matcher.FindNext())
		{
			Found.Add(Matcher.GetCaptureGroup(0));
		}
	}
	ASSERT_EQ(Found.Num(), 4);
	EXPECT_TRUE(Found[3].Equals(TEXT("Shield")));
	FRegexMatcher Again(Shared, TEXT("lowercase"));
	EXPECT_FALSE(Again.FindNext());
	EXPECT_FALSE(Again.FindNext());
}
