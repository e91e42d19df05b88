#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "SlateTestSupport.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	FSlateFontInfo FontOf(float Size, int32 LetterSpacing = 0)
	{
		FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), Size);
		Font.LetterSpacing = LetterSpacing;
		return Font;
	}

	TSharedRef<STextBlock> Text(const TCHAR* String, float Size = 9.0f)
	{
		return SNew(STextBlock).Text(FText::FromString(String)).Font(FontOf(Size));
	}

	FVector2D DesiredSizeOf(const TSharedRef<SWidget>& Widget, float Scale = 1.0f)
	{
		Widget->SlatePrepass(Scale);
		return Widget->GetDesiredSize();
	}

	TSharedRef<FSlateFontMeasure> Measure()
	{
		return FSlateApplication::Get().GetRenderer()->GetFontMeasureService();
	}

	double LineHeightOf(float Size)
	{
		return double(Measure()->GetMaxCharacterHeight(FontOf(Size)));
	}
}

TEST(TextBlockTest, EmptyTextIsOneLineTallAndNoWidth)
{
	const TSharedRef<STextBlock> Empty = Text(TEXT(""));
	EXPECT_EQ(DesiredSizeOf(Empty), FVector2D(0.0, LineHeightOf(9.0f)));
	EXPECT_GT(LineHeightOf(9.0f), 0.0);
	EXPECT_EQ(Empty->GetLines().Num(), 1);
}

TEST(TextBlockTest, DesiredSizeIsWhatTheRenderersFontMeasureReports)
{
	const FString String = TEXT("Stash 42");
	EXPECT_EQ(DesiredSizeOf(Text(*String)), Measure()->Measure(String, FontOf(9.0f)));
}

TEST(TextBlockTest, MoreTextIsWiderAndALargerFontIsWiderAndTaller)
{
	const FVector2D Short = DesiredSizeOf(Text(TEXT("abc")));
	const FVector2D Long = DesiredSizeOf(Text(TEXT("abcabc")));
	EXPECT_GT(Long.X, Short.X);
	EXPECT_EQ(Long.Y, Short.Y);

	const FVector2D Large = DesiredSizeOf(Text(TEXT("abc"), 18.0f));
	EXPECT_GT(Large.X, 1.5 * Short.X);
	EXPECT_GT(Large.Y, 1.5 * Short.Y);
}

TEST(TextBlockTest, LetterSpacingWidensTheLineAndLeavesItsHeight)
{
	const TSharedRef<STextBlock> Plain = Text(TEXT("ABCD"), 12.0f);
	const TSharedRef<STextBlock> Spaced = SNew(STextBlock).Text(FText::FromString(TEXT("ABCD"))).Font(FontOf(12.0f, 500));
	const FVector2D PlainSize = DesiredSizeOf(Plain);
	const FVector2D SpacedSize = DesiredSizeOf(Spaced);
	// Half a 16-pixel em per gap: at least three gaps' worth wider.
	EXPECT_GE(SpacedSize.X - PlainSize.X, 3.0 * 8.0 - 1.0);
	EXPECT_EQ(SpacedSize.Y, PlainSize.Y);
}

TEST(TextBlockTest, NewlinesStackWholeLinesAndTheWidestSetsTheWidth)
{
	const TSharedRef<STextBlock> Lines = Text(TEXT("a\nwide line\n\nb"));
	const FVector2D Size = DesiredSizeOf(Lines);
	EXPECT_EQ(Size.Y, 4.0 * LineHeightOf(9.0f));
	EXPECT_EQ(Size.X, DesiredSizeOf(Text(TEXT("wide line"))).X);
	EXPECT_EQ(Lines->GetLines().Num(), 4);
	EXPECT_EQ(Lines->GetLines()[2].Width, 0.0f);
}

TEST(TextBlockTest, WrappingBreaksBetweenWordsToStayWithinTheWrapWidth)
{
	const TSharedRef<STextBlock> Wrapped = SNew(STextBlock).Text(FText::FromString(TEXT("one two three four five"))).Font(FontOf(9.0f));
	const double Unwrapped = DesiredSizeOf(Wrapped).X;
	const float WrapAt = float(DesiredSizeOf(Text(TEXT("one two three"))).X) + 1.0f;

	Wrapped->SetWrapTextAt(WrapAt);
	const FVector2D Size = DesiredSizeOf(Wrapped);
	EXPECT_LE(Size.X, WrapAt);
	EXPECT_LT(Size.X, Unwrapped);
	ASSERT_EQ(Wrapped->GetLines().Num(), 2);
	EXPECT_EQ(Size.Y, 2.0 * LineHeightOf(9.0f));
	// Lines start at words, not at the spaces between them.
	const FString String = Wrapped->GetText().ToString();
	const STextBlock::FLine& Second = Wrapped->GetLines()[1];
	EXPECT_EQ(String.Mid(Second.Start, Second.End - Second.Start), TEXT("four five"));
}

TEST(TextBlockTest, AWordLongerThanTheWrapWidthStaysWholeOnItsOwnLine)
{
	const TSharedRef<STextBlock> Wrapped = Text(TEXT("a extraordinarily b"));
	Wrapped->SetWrapTextAt(20.0f);
	const FVector2D Size = DesiredSizeOf(Wrapped);
	ASSERT_EQ(Wrapped->GetLines().Num(), 3);
	EXPECT_EQ(Size.X, DesiredSizeOf(Text(TEXT("extraordinarily"))).X);
}

TEST(TextBlockTest, MarginAndMinimumWidthAddToTheTextsSize)
{
	const FVector2D Bare = DesiredSizeOf(Text(TEXT("abc")));
	const TSharedRef<STextBlock> Padded =
		SNew(STextBlock).Text(FText::FromString(TEXT("abc"))).Font(FontOf(9.0f)).Margin(FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	EXPECT_EQ(DesiredSizeOf(Padded), Bare + FVector2D(4.0, 6.0));

	Padded->SetMinDesiredWidth(500.0f);
	EXPECT_EQ(DesiredSizeOf(Padded), FVector2D(500.0, Bare.Y + 6.0));
}

TEST(TextBlockTest, LineHeightPercentageScalesEachLine)
{
	const TSharedRef<STextBlock> Tall = Text(TEXT("a\nb"));
	Tall->SetLineHeightPercentage(1.5f);
	EXPECT_EQ(DesiredSizeOf(Tall).Y, 2.0 * float(LineHeightOf(9.0f) * 1.5f));
}

TEST(TextBlockTest, TextMeasuredAtTwiceTheScaleKeepsNearlyTheSameSizeInSlateUnits)
{
	const TSharedRef<STextBlock> Block = Text(TEXT("Quorvel stash"));
	const FVector2D AtOne = DesiredSizeOf(Block, 1.0f);
	const FVector2D AtTwo = DesiredSizeOf(Block, 2.0f);
	EXPECT_EQ(Block->GetPrepassLayoutScaleMultiplier().Get(0.0f), 2.0f);
	EXPECT_NEAR(AtTwo.X, AtOne.X, 2.0);
	EXPECT_NEAR(AtTwo.Y, AtOne.Y, 1.0);
}

TEST(TextBlockTest, EachLineIsDrawnBelowTheLastAndJustifiedInsideTheMargin)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock)
		.Text(FText::FromString(TEXT("ab\nabcd")))
		.Font(FontOf(9.0f))
		.Margin(FMargin(5.0f, 3.0f, 15.0f, 0.0f))
		.Justification(ETextJustify::Right)
		.ColorAndOpacity(FLinearColor::Red);
	FSlateWindowElementList Elements;
	PaintIn(Block, Elements, 200.0, 100.0);

	const float LineHeight = float(LineHeightOf(9.0f));
	const TArray<FSlateDrawElement>& Drawn = Elements.GetDrawElements();
	ASSERT_EQ(Drawn.Num(), 2);
	EXPECT_EQ(Drawn[0].GetText(), TEXT("ab"));
	EXPECT_EQ(Drawn[1].GetText(), TEXT("abcd"));
	EXPECT_EQ(Drawn[0].GetTint(), FLinearColor::Red);
	EXPECT_EQ(Drawn[0].GetElementType(), FSlateDrawElement::EElementType::ET_Text);
	// Right-justified: each line ends at 200 less the right margin.
	for (int32 Index = 0; Index < 2; ++Index)
	{
		const FSlateRect Rect = ElementRect(Drawn[Index]);
		EXPECT_FLOAT_EQ(Rect.Right, 185.0f) << "line " << Index;
		EXPECT_FLOAT_EQ(Rect.Top, 3.0f + LineHeight * float(Index)) << "line " << Index;
		EXPECT_FLOAT_EQ(Rect.Bottom - Rect.Top, LineHeight) << "line " << Index;
	}
	EXPECT_LT(ElementRect(Drawn[1]).Left, ElementRect(Drawn[0]).Left);

	Block->SetJustification(ETextJustify::Center);
	Elements.ResetElementList();
	PaintIn(Block, Elements, 200.0, 100.0);
	ASSERT_EQ(Elements.GetDrawElements().Num(), 2);
	const FSlateRect Centred = ElementRect(Elements.GetDrawElements()[0]);
	EXPECT_FLOAT_EQ((Centred.Left + Centred.Right) / 2.0f, 5.0f + 180.0f / 2.0f);
}

TEST(TextBlockTest, UseForegroundTextTakesTheForegroundOfTheStyleItIsPaintedWith)
{
	const TSharedRef<STextBlock> Block = Text(TEXT("abc"));
	FSlateWindowElementList Elements;
	FWidgetStyle Style;
	Style.SetForegroundColor(FLinearColor::Green);
	PaintIn(Block, Elements, 100.0, 20.0, FVector2D(0.0, 0.0), Style);
	ASSERT_EQ(Elements.GetDrawElements().Num(), 1);
	EXPECT_EQ(Elements.GetDrawElements()[0].GetTint(), FLinearColor::Green);
}

TEST(TextBlockTest, TextShortenedAfterLayoutIsNotDrawnFromStaleLinesBeforeTheNextPrepass)
{
	const TSharedRef<STextBlock> Block = Text(TEXT("a long line of text"));
	Block->SlatePrepass(1.0f);
	Block->SetText(FText::FromString(TEXT("a")));
	FSlateWindowElementList Elements;
	const FGeometry Root = RootGeometry(200.0, 20.0);
	Block->Paint(FPaintArgs(nullptr, FVector2D(0.0, 0.0), 0.0, 0.0f), Root, Root.GetLayoutBoundingRect(), Elements, 0, FWidgetStyle(), true);
	EXPECT_EQ(Elements.GetDrawElements().Num(), 0);
}

TEST(TextBlockTest, AutoWrapFollowsTheWidthOfTheLastPaint)
{
	const TSharedRef<STextBlock> Block = Text(TEXT("one two three four five"));
	Block->SetAutoWrapText(true);
	const FVector2D Unwrapped = DesiredSizeOf(Block);
	EXPECT_EQ(Block->GetLines().Num(), 1);

	const float Narrow = float(DesiredSizeOf(Text(TEXT("one two three"))).X) + 1.0f;
	FSlateWindowElementList Elements;
	PaintIn(Block, Elements, Narrow, 100.0);
	// This prepass is the first to know the width.
	const FVector2D Wrapped = DesiredSizeOf(Block);
	EXPECT_EQ(Block->GetLines().Num(), 2);
	EXPECT_LE(Wrapped.X, Narrow);
	EXPECT_EQ(Wrapped.Y, 2.0 * Unwrapped.Y);
}

TEST(TextBlockTest, AutoWrapUsesTheSmallerOfTheWrapWidthAndTheRoomInsideTheMargin)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock)
		.Text(FText::FromString(TEXT("one two three four five")))
		.Font(FontOf(9.0f))
		.AutoWrapText(true)
		.Margin(FMargin(10.0f, 0.0f, 10.0f, 0.0f));
	const float OneWord = float(DesiredSizeOf(Text(TEXT("three"))).X) + 1.0f;
	const float ThreeWords = float(DesiredSizeOf(Text(TEXT("one two three"))).X) + 1.0f;

	// Painted just wide enough for three words plus the margin: two lines.
	FSlateWindowElementList Elements;
	PaintIn(Block, Elements, ThreeWords + 20.0f, 100.0);
	DesiredSizeOf(Block);
	EXPECT_EQ(Block->GetLines().Num(), 2);

	// A narrower explicit wrap width wins: one word a line.
	Block->SetWrapTextAt(OneWord);
	DesiredSizeOf(Block);
	EXPECT_EQ(Block->GetLines().Num(), 5);

	// A wider one does not.
	Block->SetWrapTextAt(1000.0f);
	DesiredSizeOf(Block);
	EXPECT_EQ(Block->GetLines().Num(), 2);
}
