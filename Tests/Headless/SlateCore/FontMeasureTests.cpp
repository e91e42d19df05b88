#include "Fonts/FontCache.h"
#include "Fonts/FontMeasure.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
	class FontMeasureTest : public ::testing::Test
	{
	protected:
		TSharedRef<FSlateFontCache> Cache = MakeShared<FSlateFontCache>();
		TSharedRef<FSlateFontMeasure> Measure = FSlateFontMeasure::Create(Cache);
		FSlateFontInfo Font = FSlateFontInfo(nullptr, 12.0f, TEXT("Regular"));

		double LineHeight() const
		{
			return double(Measure->GetMaxCharacterHeight(Font));
		}
	};
}

TEST_F(FontMeasureTest, AnEmptyStringIsOneEmptyLine)
{
	EXPECT_GT(LineHeight(), 16.0);
	EXPECT_EQ(Measure->Measure(FString(), Font), FVector2D(0.0, LineHeight()));
}

TEST_F(FontMeasureTest, EachNewlineAddsALineIncludingATrailingOne)
{
	const double Width = Measure->Measure(TEXT("abcd"), Font).X;
	EXPECT_EQ(Measure->Measure(TEXT("ab\nabcd"), Font), FVector2D(Width, 2.0 * LineHeight()));
	EXPECT_EQ(Measure->Measure(TEXT("abcd\n"), Font), FVector2D(Width, 2.0 * LineHeight()));
	EXPECT_EQ(Measure->Measure(TEXT("\n\n"), Font), FVector2D(0.0, 3.0 * LineHeight()));
}

TEST_F(FontMeasureTest, ARangeMeasuresLikeTheSameTextOnItsOwnAndStopsAtTheEnd)
{
	const FString Text = TEXT("xxabcdyy");
	EXPECT_EQ(Measure->Measure(Text, 2, 6, Font), Measure->Measure(TEXT("abcd"), Font));
	EXPECT_EQ(Measure->Measure(Text, 2, 1000, Font), Measure->Measure(TEXT("abcdyy"), Font));
	EXPECT_EQ(Measure->Measure(Text, 3, 3, Font), FVector2D(0.0, LineHeight()));
}

TEST_F(FontMeasureTest, AFontScaleOfTwoRoughlyDoublesWidthAndHeight)
{
	const FVector2D AtOne = Measure->Measure(TEXT("Quorvel"), Font, 1.0f);
	const FVector2D AtTwo = Measure->Measure(TEXT("Quorvel"), Font, 2.0f);
	EXPECT_NEAR(AtTwo.X, 2.0 * AtOne.X, 8.0);
	EXPECT_NEAR(AtTwo.Y, 2.0 * AtOne.Y, 2.0);
	EXPECT_LT(Measure->GetBaseline(Font), 0);
	EXPECT_LT(Measure->GetBaseline(Font, 2.0f), Measure->GetBaseline(Font));
}

TEST_F(FontMeasureTest, ASurrogatePairIsOneGlyphAndALoneSurrogateIsReadSafely)
{
	FString Text = TEXT("a");
	Text.AppendChar(TCHAR(0xD83D));
	Text.AppendChar(TCHAR(0xDE00));
	Text.AppendChar(TEXT('b'));
	EXPECT_EQ(Cache->ShapeLine(Text, 0, Text.Len(), Font, 1.0f).Num(), 3);
	// Cut between the halves of the pair: the high half stands alone as the last glyph.
	EXPECT_EQ(Cache->ShapeLine(Text, 0, 2, Font, 1.0f).Num(), 2);
	EXPECT_EQ(Cache->ShapeLine(Text, 2, 4, Font, 1.0f).Num(), 2);
}

TEST_F(FontMeasureTest, GlyphsFollowOneAnotherWithoutGaps)
{
	const TArray<FShapedGlyphEntry> Glyphs = Cache->ShapeLine(TEXT("lll"), 0, 3, Font, 1.0f);
	ASSERT_EQ(Glyphs.Num(), 3);
	EXPECT_EQ(Glyphs[0].XOffset, 0.0f);
	EXPECT_GT(Glyphs[0].XAdvance, 0.0f);
	EXPECT_EQ(Glyphs[1].XOffset, Glyphs[0].XAdvance);
	EXPECT_EQ(Glyphs[2].XOffset, Glyphs[1].XOffset + Glyphs[1].XAdvance);
	EXPECT_EQ(Measure->Measure(TEXT("lll"), Font).X, double(Glyphs[2].XOffset + Glyphs[2].XAdvance));
}

TEST_F(FontMeasureTest, TypefaceNamesPickTheMatchingFaceAndBoldIsWider)
{
	EXPECT_STRNE(FSlateFontCache::GetFontFilePath(TEXT("Bold")), FSlateFontCache::GetFontFilePath(TEXT("Regular")));
	EXPECT_STRNE(FSlateFontCache::GetFontFilePath(TEXT("BoldItalic")), FSlateFontCache::GetFontFilePath(TEXT("Bold")));
	EXPECT_STRNE(FSlateFontCache::GetFontFilePath(TEXT("Italic")), FSlateFontCache::GetFontFilePath(TEXT("Regular")));
	EXPECT_STREQ(FSlateFontCache::GetFontFilePath(NAME_None), FSlateFontCache::GetFontFilePath(TEXT("Regular")));

	FSlateFontInfo Bold = Font;
	Bold.TypefaceFontName = TEXT("Bold");
	EXPECT_GT(Measure->Measure(TEXT("MMMM"), Bold).X, Measure->Measure(TEXT("MMMM"), Font).X);
}
