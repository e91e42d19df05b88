#include "Internationalization/Culture.h"
#include "Internationalization/Internationalization.h"
#include "Internationalization/Text.h"
#include "Internationalization/TextLocalizationManager.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "QuorvelTextTests"

namespace
{
	// Every test starts and ends in English with no translations, whatever the test changed.
	class TextTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			Reset();
		}

		void TearDown() override
		{
			Reset();
		}

		static void Reset()
		{
			FInternationalization::Get().SetCurrentCulture(TEXT("en"));
			FTextLocalizationManager::Get().ClearHeadlessTranslations();
		}

		static bool Shows(const FText& Text, const TCHAR* Expected)
		{
			return Text.ToString().Equals(Expected, ESearchCase::CaseSensitive);
		}
	};
}

TEST_F(TextTest, StartsInEnglishAndRefusesUnknownCultures)
{
	EXPECT_TRUE(FInternationalization::Get().GetCurrentCulture()->GetName().Equals(TEXT("en")));
	EXPECT_FALSE(FInternationalization::Get().SetCurrentCulture(TEXT("xx-Nowhere")));
	EXPECT_TRUE(FInternationalization::Get().GetCurrentCulture()->GetName().Equals(TEXT("en")));
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("de-DE")));
	const FCultureRef German = FInternationalization::Get().GetCurrentCulture();
	EXPECT_TRUE(German->GetName().Equals(TEXT("de-DE"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(German->GetTwoLetterISOLanguageName().Equals(TEXT("de")));
	EXPECT_TRUE(German->GetEnglishName().StartsWith(TEXT("German")));
}

TEST_F(TextTest, FromStringIsCultureInvariantAndNotGathered)
{
	const FText Text = FText::FromString(TEXT("Plain"));
	EXPECT_TRUE(Shows(Text, TEXT("Plain")));
	EXPECT_TRUE(Text.IsCultureInvariant());
	EXPECT_FALSE(Text.ShouldGatherForLocalization());
	EXPECT_FALSE(FTextInspector::GetNamespace(Text).IsSet());
	EXPECT_TRUE(FText::FromName(NAME_None).ToString().Equals(TEXT("None")));
	EXPECT_TRUE(INVTEXT("Inv").IsCultureInvariant());
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::GetEmpty().IdenticalTo(FText()));
	EXPECT_TRUE(FText::FromString(TEXT(" \t")).IsEmptyOrWhitespace());
}

TEST_F(TextTest, LocalizedTextKeepsItsNamespaceKeyAndSource)
{
	const FText Text = LOCTEXT("Title", "Stash");
	EXPECT_EQ(FTextInspector::GetNamespace(Text).GetValue(), FString(TEXT("QuorvelTextTests")));
	EXPECT_EQ(FTextInspector::GetKey(Text).GetValue(), FString(TEXT("Title")));
	EXPECT_TRUE(FTextInspector::GetSourceString(Text)->Equals(TEXT("Stash")));
	EXPECT_FALSE(Text.IsCultureInvariant());
	EXPECT_TRUE(Text.ShouldGatherForLocalization());
	EXPECT_TRUE(Text.IdenticalTo(NSLOCTEXT("QuorvelTextTests", "Title", "Stash")));
	EXPECT_FALSE(Text.IdenticalTo(FText::FromString(TEXT("Stash"))));
	EXPECT_TRUE(Text.EqualTo(FText::FromString(TEXT("Stash"))));
}

TEST_F(TextTest, ShowsTheCurrentCulturesTranslationAndFallsBackToTheSource)
{
	FTextLocalizationManager::Get().AddHeadlessTranslation(TEXT("de"), TEXT("QuorvelTextTests"), TEXT("Title"), TEXT("Stash"), TEXT("Lager"));
	const FText Title = LOCTEXT("Title", "Stash");
	const FText Untranslated = LOCTEXT("Other", "Other");
	const FText Edited = LOCTEXT("Title", "Stash (edited)");
	EXPECT_TRUE(Shows(Title, TEXT("Stash")));

	// The same FText follows the culture: it is not frozen at creation.
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("de-AT")));
	EXPECT_TRUE(Shows(Title, TEXT("Lager")));
	EXPECT_TRUE(Shows(Untranslated, TEXT("Other")));
	EXPECT_TRUE(Shows(Edited, TEXT("Stash (edited)")));
	EXPECT_TRUE(FTextInspector::GetSourceString(Title)->Equals(TEXT("Stash")));

	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("fr")));
	EXPECT_TRUE(Shows(Title, TEXT("Stash")));
	FTextLocalizationManager::Get().AddOrUpdateDisplayStringInLiveTable(TEXT("QuorvelTextTests"), TEXT("Title"), TEXT("R\u00e9serve"));
	EXPECT_TRUE(Shows(Title, TEXT("R\u00e9serve")));
}

TEST_F(TextTest, AsNumberGroupsDigitsTheWayTheCultureDoes)
{
	EXPECT_TRUE(Shows(FText::AsNumber(1234), TEXT("1,234")));
	EXPECT_TRUE(Shows(FText::AsNumber(-1234567.891), TEXT("-1,234,567.891")));
	EXPECT_TRUE(Shows(FText::AsNumber(0.5f), TEXT("0.5")));
	EXPECT_TRUE(Shows(FText::AsNumber(uint64(18446744073709551615ull)), TEXT("18,446,744,073,709,551,615")));

	const FText Number = FText::AsNumber(1234.5);
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("de")));
	EXPECT_TRUE(Shows(Number, TEXT("1.234,5")));
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("fr")));
	EXPECT_TRUE(Shows(Number, TEXT("1\u202f234,5")));

	const FCulturePtr English = FInternationalization::Get().GetCulture(TEXT("en"));
	EXPECT_TRUE(Shows(FText::AsNumber(1234.5, nullptr, English), TEXT("1,234.5")));
}

TEST_F(TextTest, NumberFormattingOptionsControlGroupingAndDecimals)
{
	FNumberFormattingOptions Options;
	Options.SetUseGrouping(false).SetMinimumFractionalDigits(2).SetMaximumFractionalDigits(2);
	EXPECT_TRUE(Shows(FText::AsNumber(1234.5, &Options), TEXT("1234.50")));
	EXPECT_TRUE(Shows(FText::AsNumber(2.125, &Options), TEXT("2.12")));
	Options.SetRoundingMode(HalfFromZero);
	EXPECT_TRUE(Shows(FText::AsNumber(2.125, &Options), TEXT("2.13")));
	EXPECT_TRUE(Shows(FText::AsNumber(1.23456789), TEXT("1.235")));
	EXPECT_TRUE(Shows(FText::AsNumber(7, &FNumberFormattingOptions::DefaultNoGrouping()), TEXT("7")));
	FNumberFormattingOptions Padded;
	Padded.SetMinimumIntegralDigits(3).SetAlwaysSign(true);
	EXPECT_TRUE(Shows(FText::AsNumber(5, &Padded), TEXT("+005")));
}

TEST_F(TextTest, FormatFillsRepeatedAndOutOfOrderArguments)
{
	const FText Result = FText::Format(INVTEXT("{1} of {0}, {1} again"), 3, FText::FromString(TEXT("slot")));
	EXPECT_TRUE(Shows(Result, TEXT("slot of 3, slot again")));
	EXPECT_TRUE(Shows(FText::Format(INVTEXT("{0} items"), 12345), TEXT("12,345 items")));
	EXPECT_TRUE(Shows(FText::Format(INVTEXT("{0} and {5}"), 1), TEXT("1 and {5}")));
	EXPECT_TRUE(Shows(FText::Format(INVTEXT("`{0`} is {0}"), 2.5), TEXT("{0} is 2.5")));
	EXPECT_TRUE(Shows(FText::Format(INVTEXT("{0 unclosed"), 1), TEXT("{0 unclosed")));

	FFormatOrderedArguments Ordered;
	Ordered.Add(FText::FromString(TEXT("A")));
	Ordered.Add(int64(-5));
	EXPECT_TRUE(Shows(FText::Format(INVTEXT("{1}{0}"), Ordered), TEXT("-5A")));

	FFormatNamedArguments Named;
	Named.Add(TEXT("Count"), 2);
	Named.Add(TEXT("Item"), LOCTEXT("Ammo", "ammo"));
	EXPECT_TRUE(Shows(FText::Format(INVTEXT("{Count} {Item}, {Missing}"), Named), TEXT("2 ammo, {Missing}")));
	EXPECT_TRUE(Shows(FText::FormatNamed(INVTEXT("{A}-{B}"), TEXT("A"), 1, TEXT("B"), 2u), TEXT("1-2")));

	TArray<FString> Names;
	FTextFormat(INVTEXT("{b} {a} {b}")).GetFormatArgumentNames(Names);
	ASSERT_EQ(Names.Num(), 2);
	EXPECT_TRUE(Names[0].Equals(TEXT("b")));
}

TEST_F(TextTest, FormattedTextRebuildsForTheCurrentCulture)
{
	FTextLocalizationManager::Get().AddHeadlessTranslation(TEXT("de"), TEXT("QuorvelTextTests"), TEXT("Count"), TEXT("{0} items"), TEXT("{0} Gegenst\u00e4nde"));
	const FText Result = FText::Format(LOCTEXT("Count", "{0} items"), 1500);
	EXPECT_TRUE(Shows(Result, TEXT("1,500 items")));
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("de")));
	EXPECT_TRUE(Shows(Result, TEXT("1.500 Gegenst\u00e4nde")));
	EXPECT_TRUE(Result.BuildSourceString().Equals(TEXT("1,500 items")));
}

TEST_F(TextTest, ComparisonUsesCollationNotCodeUnits)
{
	const FText Lower = FText::FromString(TEXT("stash"));
	const FText Upper = FText::FromString(TEXT("STASH"));
	EXPECT_FALSE(Lower.EqualTo(Upper));
	EXPECT_TRUE(Lower.EqualToCaseIgnored(Upper));
	EXPECT_LT(FText::FromString(TEXT("apple")).CompareTo(FText::FromString(TEXT("Banana"))), 0);
	// Precomposed and combining forms of the same letter are the same text.
	EXPECT_TRUE(FText::FromString(TEXT("\u00e9")).EqualTo(FText::FromString(TEXT("e\u0301"))));
	EXPECT_TRUE(Shows(FText::FromString(TEXT("stra\u00dfe")).ToUpper(), TEXT("STRASSE")));
}

TEST_F(TextTest, CulturesKnowTheirParentsForTranslationFallback)
{
	const FCulturePtr Austrian = FInternationalization::Get().GetCulture(TEXT("de-AT"));
	ASSERT_TRUE(Austrian.IsValid());
	const TArray<FString> Parents = Austrian->GetPrioritizedParentCultureNames();
	ASSERT_EQ(Parents.Num(), 2);
	EXPECT_TRUE(Parents[0].Equals(TEXT("de-AT")));
	EXPECT_TRUE(Parents[1].Equals(TEXT("de")));
	EXPECT_EQ(FInternationalization::Get().GetCulture(TEXT("de-at")), Austrian);
	EXPECT_FALSE(FInternationalization::Get().GetCulture(TEXT("zz")).IsValid());

	// A region-specific translation wins over the language's.
	FTextLocalizationManager::Get().AddHeadlessTranslation(TEXT("de"), TEXT("QuorvelTextTests"), TEXT("Bag"), TEXT("Bag"), TEXT("Tasche"));
	FTextLocalizationManager::Get().AddHeadlessTranslation(TEXT("de-AT"), TEXT("QuorvelTextTests"), TEXT("Bag"), TEXT("Bag"), TEXT("Sackerl"));
	const FText Bag = LOCTEXT("Bag", "Bag");
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("de-AT")));
	EXPECT_TRUE(Shows(Bag, TEXT("Sackerl")));
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("de-CH")));
	EXPECT_TRUE(Shows(Bag, TEXT("Tasche")));
}

TEST_F(TextTest, NumbersAndTranslationsCanFollowDifferentCultures)
{
	FTextLocalizationManager::Get().AddHeadlessTranslation(TEXT("de"), TEXT("QuorvelTextTests"), TEXT("Cap"), TEXT("{0} max"), TEXT("{0} h\u00f6chstens"));
	const FText Capacity = FText::Format(LOCTEXT("Cap", "{0} max"), 2048);
	ASSERT_TRUE(FInternationalization::Get().SetCurrentLanguage(TEXT("de")));
	EXPECT_TRUE(FInternationalization::Get().GetCurrentLocale()->GetName().Equals(TEXT("en")));
	EXPECT_TRUE(Shows(Capacity, TEXT("2,048 h\u00f6chstens")));
	ASSERT_TRUE(FInternationalization::Get().SetCurrentLocale(TEXT("fr")));
	EXPECT_TRUE(Shows(Capacity, TEXT("2\u202f048 h\u00f6chstens")));
}

TEST_F(TextTest, IdenticalMeansTheSameTextNotEqualStrings)
{
	const FText Original = FText::FromString(TEXT("Same"));
	const FText Copy = Original;
	EXPECT_TRUE(Original.IdenticalTo(Copy));
	EXPECT_FALSE(Original.IdenticalTo(FText::FromString(TEXT("Same"))));
	EXPECT_TRUE(Original.IdenticalTo(FText::FromString(TEXT("Same")), ETextIdenticalModeFlags::LexicalCompareInvariants));
	EXPECT_FALSE(LOCTEXT("One", "Same").IdenticalTo(LOCTEXT("Two", "Same")));
	EXPECT_TRUE(FText::AsCultureInvariant(LOCTEXT("Three", "x")).IsCultureInvariant());
	EXPECT_TRUE(Shows(FText::FromString(TEXT("ABC \u00c9")).ToLower(), TEXT("abc \u00e9")));
}

#undef LOCTEXT_NAMESPACE
