#include "SlateTestSupport.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"

TEST(BorderTest, ContentFillsInsideTheDefaultPaddingOfTwo)
{
	const TSharedRef<SBorder> Border = SNew(SBorder)[Fixed(40.0, 30.0)];
	const FArrangedChildren Arranged = ArrangeIn(Border, 200.0, 100.0);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_EQ(RectOf(Arranged[0]), FSlateRect(2.0f, 2.0f, 198.0f, 98.0f));
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(44.0, 34.0));
}

TEST(BorderTest, AlignmentPlacesTheContentAgainstThePaddedEdges)
{
	const TSharedRef<SFixedSize> Content = Fixed(40.0, 30.0);
	const TSharedRef<SBorder> Border =
		SNew(SBorder).Padding(FMargin(10.0f, 5.0f, 20.0f, 15.0f)).HAlign(HAlign_Right).VAlign(VAlign_Bottom)[Content];
	EXPECT_EQ(RectOf(ArrangeIn(Border, 200.0, 100.0)[0]), FSlateRect(140.0f, 55.0f, 180.0f, 85.0f));
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(70.0, 50.0));

	Border->SetHAlign(HAlign_Left);
	Border->SetVAlign(VAlign_Top);
	EXPECT_EQ(RectOf(ArrangeIn(Border, 200.0, 100.0)[0]), FSlateRect(10.0f, 5.0f, 50.0f, 35.0f));

	// Centring shifts by the difference of opposite paddings, as the engine does.
	Border->SetHAlign(HAlign_Center);
	Border->SetVAlign(VAlign_Center);
	EXPECT_EQ(RectOf(ArrangeIn(Border, 200.0, 100.0)[0]), FSlateRect(70.0f, 25.0f, 110.0f, 55.0f));
}

TEST(BorderTest, ContentLargerThanTheBorderIsClampedInsideThePadding)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).Padding(10.0f).HAlign(HAlign_Center).VAlign(VAlign_Top)[Fixed(300.0, 200.0)];
	EXPECT_EQ(RectOf(ArrangeIn(Border, 200.0, 100.0)[0]), FSlateRect(10.0f, 10.0f, 190.0f, 90.0f));
}

TEST(BorderTest, DesiredSizeScaleStretchesWhatTheContentAsksFor)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).Padding(0.0f).DesiredSizeScale(FVector2D(2.0, 0.5))[Fixed(40.0, 30.0)];
	Border->SlatePrepass(1.0f);
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(80.0, 15.0));
}

TEST(BorderTest, PaddingBoundToAnAttributeIsReadAtEachLayout)
{
	float Inset = 4.0f;
	const TSharedRef<SBorder> Border = SNew(SBorder).Padding(TAttribute<FMargin>::CreateLambda([&Inset] { return FMargin(Inset); }))[Fixed(10.0, 10.0)];
	EXPECT_EQ(RectOf(ArrangeIn(Border, 100.0, 100.0)[0]), FSlateRect(4.0f, 4.0f, 96.0f, 96.0f));
	Inset = 20.0f;
	EXPECT_EQ(RectOf(ArrangeIn(Border, 100.0, 100.0)[0]), FSlateRect(20.0f, 20.0f, 80.0f, 80.0f));
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(50.0, 50.0));
}

TEST(BorderTest, AnEmptyBorderHoldsTheNullWidgetAndAsksOnlyForItsPadding)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).Padding(FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	Border->SlatePrepass(1.0f);
	EXPECT_EQ(Border->GetContent(), SNullWidget::NullWidget);
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(4.0, 6.0));

	Border->SetContent(Fixed(10.0, 10.0));
	Border->SlatePrepass(1.0f);
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(14.0, 16.0));
	Border->ClearContent();
	EXPECT_EQ(Border->GetContent(), SNullWidget::NullWidget);
}

TEST(BoxTest, OverridesReplaceTheContentsSizeIncludingItsPadding)
{
	const TSharedRef<SBox> Box = SNew(SBox).WidthOverride(120.0f).HeightOverride(60.0f).Padding(5.0f)[Fixed(300.0, 10.0)];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(120.0, 60.0));

	// One override leaves the other axis to the content.
	Box->SetHeightOverride(FOptionalSize());
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(120.0, 20.0));
}

TEST(BoxTest, MinimumAndMaximumClampTheContentsSizeButNotAnOverride)
{
	const TSharedRef<SFixedSize> Content = Fixed(50.0, 50.0);
	const TSharedRef<SBox> Box = SNew(SBox).MinDesiredWidth(80.0f).MaxDesiredHeight(30.0f)[Content];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(80.0, 30.0));

	Content->SetSize(FVector2D(100.0, 20.0));
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(100.0, 20.0));

	Box->SetMaxDesiredWidth(90.0f);
	Box->SetMinDesiredHeight(25.0f);
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(90.0, 25.0));

	Box->SetWidthOverride(200.0f);
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(200.0, 25.0));
}

TEST(BoxTest, AnEmptyBoxWithOverridesIsASpacerOfThatSize)
{
	const TSharedRef<SBox> Spacer = SNew(SBox).WidthOverride(16.0f).HeightOverride(8.0f);
	Spacer->SlatePrepass(1.0f);
	EXPECT_EQ(Spacer->GetDesiredSize(), FVector2D(16.0, 8.0));
}

TEST(BoxTest, ACollapsedChildMakesTheBoxAskForNothingEvenWithOverrides)
{
	const TSharedRef<SFixedSize> Content = Fixed(50.0, 50.0);
	const TSharedRef<SBox> Box = SNew(SBox).WidthOverride(100.0f).HeightOverride(100.0f)[Content];
	Content->SetVisibility(EVisibility::Collapsed);
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(0.0, 0.0));
	EXPECT_EQ(ArrangeIn(Box, 100.0, 100.0, EVisibility::All).Num(), 1);
	EXPECT_EQ(ArrangeIn(Box, 100.0, 100.0).Num(), 0);
}

TEST(BoxTest, ContentIsAlignedInTheSpaceTheBoxIsGivenNotTheSizeItAskedFor)
{
	const TSharedRef<SBox> Box = SNew(SBox).WidthOverride(50.0f).HeightOverride(50.0f).HAlign(HAlign_Center).VAlign(VAlign_Center)[Fixed(40.0, 30.0)];
	EXPECT_EQ(RectOf(ArrangeIn(Box, 200.0, 100.0)[0]), FSlateRect(80.0f, 35.0f, 120.0f, 65.0f));

	Box->SetHAlign(HAlign_Fill);
	Box->SetVAlign(VAlign_Bottom);
	Box->SetPadding(FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	EXPECT_EQ(RectOf(ArrangeIn(Box, 200.0, 100.0)[0]), FSlateRect(1.0f, 66.0f, 197.0f, 96.0f));
}

TEST(BoxTest, AnOverrideBoundToAnAttributeIsReadAtEachPrepass)
{
	float Width = 10.0f;
	const TSharedRef<SBox> Box = SNew(SBox).WidthOverride(TAttribute<FOptionalSize>::CreateLambda([&Width] { return FOptionalSize(Width); }));
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize().X, 10.0);
	Width = 64.0f;
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize().X, 64.0);
}

TEST(BorderTest, AHiddenChildStillTakesItsSpaceWhileACollapsedOneTakesNone)
{
	const TSharedRef<SFixedSize> Content = Fixed(40.0, 30.0);
	const TSharedRef<SBorder> Border = SNew(SBorder).Padding(5.0f)[Content];
	Content->SetVisibility(EVisibility::Hidden);
	Border->SlatePrepass(1.0f);
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(50.0, 40.0));
	EXPECT_EQ(ArrangeIn(Border, 100.0, 100.0).Num(), 0);

	Content->SetVisibility(EVisibility::Collapsed);
	Border->SlatePrepass(1.0f);
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(0.0, 0.0));
	// A collapsed child is skipped by the prepass and keeps no layout scale from it.
	EXPECT_FALSE(Content->GetPrepassLayoutScaleMultiplier().IsSet());

	Content->SetVisibility(EVisibility::Visible);
	Border->SlatePrepass(1.5f);
	EXPECT_EQ(Content->GetPrepassLayoutScaleMultiplier().Get(0.0f), 1.5f);
}
