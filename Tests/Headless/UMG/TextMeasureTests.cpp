#include "Components/Border.h"
#include "Components/SizeBox.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Rendering/DrawElements.h"
#include "ViewportTestFixture.h"
#include "Widgets/SWidget.h"
#include "Widgets/Text/STextBlock.h"

using TextMeasureTest = ViewportTest;

namespace
{
	FVector2D DesiredSize(const UWidget* Widget)
	{
		return Widget->GetCachedWidget()->GetDesiredSize();
	}

	FSlateFontInfo Sized(FSlateFontInfo Font, float Size, int32 LetterSpacing = 0)
	{
		Font.Size = Size;
		Font.LetterSpacing = LetterSpacing;
		return Font;
	}
}

TEST_F(TextMeasureTest, TextAsksForTheSpaceItsGlyphsTakeAtTheirPointSize)
{
	UTextBlock* Large = Make<UTextBlock>();
	UTextBlock* Small = Make<UTextBlock>();
	UTextBlock* Wide = Make<UTextBlock>();
	Large->SetText(FText::FromString(TEXT("iiii")));
	Small->SetText(FText::FromString(TEXT("iiii")));
	Small->SetFont(Sized(Small->GetFont(), 12.0f));
	Wide->SetText(FText::FromString(TEXT("MMMM")));
	UVerticalBox* Column = Make<UVerticalBox>();
	Column->AddChildToVerticalBox(Large);
	Column->AddChildToVerticalBox(Small);
	Column->AddChildToVerticalBox(Wide);
	Show(Column);

	// 24 points at 96 DPI is a 32-pixel em; a line is taller than the em and less than twice it.
	const FVector2D LargeSize = DesiredSize(Large);
	EXPECT_GT(LargeSize.Y, 32.0);
	EXPECT_LT(LargeSize.Y, 64.0);
	EXPECT_GT(LargeSize.X, 0.0);
	EXPECT_GT(DesiredSize(Wide).X, 2.0 * LargeSize.X);

	const double Ratio = DesiredSize(Small).X / LargeSize.X;
	EXPECT_GT(Ratio, 0.4);
	EXPECT_LT(Ratio, 0.6);
	EXPECT_NEAR(DesiredSize(Small).Y / LargeSize.Y, 0.5, 0.1);
}

TEST_F(TextMeasureTest, LetterSpacingWidensEachGapByItsShareOfTheEm)
{
	UTextBlock* Plain = Make<UTextBlock>();
	UTextBlock* Spaced = Make<UTextBlock>();
	Plain->SetText(FText::FromString(TEXT("ABCD")));
	Spaced->SetText(FText::FromString(TEXT("ABCD")));
	Plain->SetFont(Sized(Plain->GetFont(), 15.0f));
	Spaced->SetFont(Sized(Spaced->GetFont(), 15.0f, 220));
	UVerticalBox* Column = Make<UVerticalBox>();
	Column->AddChildToVerticalBox(Plain);
	Column->AddChildToVerticalBox(Spaced);
	Show(Column);

	// Three gaps of 0.22 of a 20-pixel em.
	EXPECT_NEAR(DesiredSize(Spaced).X - DesiredSize(Plain).X, 13.2, 1.0);
	EXPECT_EQ(DesiredSize(Spaced).Y, DesiredSize(Plain).Y);
}

TEST_F(TextMeasureTest, TextKeepsItsSizeInSlateUnitsUnderADpiScale)
{
	UTextBlock* Text = Make<UTextBlock>();
	Text->SetText(FText::FromString(TEXT("Loading stash")));
	UVerticalBox* Column = Make<UVerticalBox>();
	Column->AddChildToVerticalBox(Text)->SetHorizontalAlignment(HAlign_Left);
	Show(Column);
	const FVector2D AtOne = DesiredSize(Text);

	Viewport->SetDPIScale(2.0f);
	Viewport->Tick();
	const FVector2D AtTwo = DesiredSize(Text);
	EXPECT_NEAR(AtTwo.X, AtOne.X, 2.0);
	EXPECT_NEAR(AtTwo.Y, AtOne.Y, 1.0);
	EXPECT_NEAR(Text->GetCachedGeometry().GetAbsoluteSize().X, 2.0 * AtTwo.X, 0.01);
}

TEST_F(TextMeasureTest, AutoWrappedTextBreaksBetweenWordsToFitTheWidthItWasGiven)
{
	USizeBox* Box = Make<USizeBox>();
	Box->SetWidthOverride(70.0f);
	UTextBlock* Text = Make<UTextBlock>();
	Text->SetFont(Sized(Text->GetFont(), 10.0f));
	Text->SetText(FText::FromString(TEXT("alpha beta gamma delta")));
	Text->SetAutoWrapText(true);
	Box->AddChild(Text);
	UTextBlock* OneLine = Make<UTextBlock>();
	OneLine->SetFont(Sized(OneLine->GetFont(), 10.0f));
	OneLine->SetText(FText::FromString(TEXT("alpha")));
	UVerticalBox* Column = Make<UVerticalBox>();
	Column->AddChildToVerticalBox(Box)->SetHorizontalAlignment(HAlign_Left);
	Column->AddChildToVerticalBox(OneLine)->SetHorizontalAlignment(HAlign_Left);
	Show(Column);
	// Wrapping follows the width of the previous arrangement.
	Viewport->Tick();

	const TSharedPtr<STextBlock> Slate = StaticCastSharedPtr<STextBlock>(Text->GetCachedWidget());
	ASSERT_TRUE(Slate.IsValid());
	const TArray<STextBlock::FLine>& Lines = Slate->GetLines();
	ASSERT_GE(Lines.Num(), 2);
	for (const STextBlock::FLine& Line : Lines)
	{
		EXPECT_LE(Line.Width, 70.0f);
		EXPECT_NE(TEXT(' '), FString(TEXT("alpha beta gamma delta"))[Line.Start]);
	}
	EXPECT_FLOAT_EQ(float(DesiredSize(Text).Y), float(Lines.Num() * DesiredSize(OneLine).Y));
}

TEST_F(TextMeasureTest, CentredTextIsDrawnInTheMiddleOfItsBox)
{
	USizeBox* Box = Make<USizeBox>();
	Box->SetWidthOverride(400.0f);
	UTextBlock* Text = Make<UTextBlock>();
	Text->SetText(FText::FromString(TEXT("x")));
	Text->SetJustification(ETextJustify::Center);
	Box->AddChild(Text);
	UVerticalBox* Column = Make<UVerticalBox>();
	Column->AddChildToVerticalBox(Box)->SetHorizontalAlignment(HAlign_Left);
	Show(Column);

	FSlateWindowElementList Elements;
	Viewport->Paint(Elements);
	ASSERT_EQ(Elements.GetDrawElements().Num(), 1);
	const FSlateDrawElement& Element = Elements.GetDrawElements()[0];
	EXPECT_EQ(Element.GetElementType(), FSlateDrawElement::EElementType::ET_Text);
	EXPECT_NEAR(Element.GetPosition().X + Element.GetLocalSize().X / 2.0f, 200.0f, 0.01f);
}
