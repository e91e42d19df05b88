#include "SlateTestSupport.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SConstraintCanvas.h"

namespace
{
	TSharedRef<SConstraintCanvas> CanvasWith(SConstraintCanvas::FSlot::FSlotArguments& Slot)
	{
		return SNew(SConstraintCanvas) + Slot;
	}

	FSlateRect OnlyChildRect(const TSharedRef<SConstraintCanvas>& Canvas)
	{
		const FArrangedChildren Arranged = ArrangeIn(Canvas, 400.0, 300.0);
		return Arranged.Num() == 1 ? RectOf(Arranged[0]) : FSlateRect();
	}
}

TEST(ConstraintCanvasTest, ADefaultSlotIsOneUnitSquareCentredOnTheTopLeftCorner)
{
	EXPECT_EQ(OnlyChildRect(CanvasWith(SConstraintCanvas::Slot()[Fixed(50.0, 50.0)])), FSlateRect(-0.5f, -0.5f, 0.5f, 0.5f));
}

TEST(ConstraintCanvasTest, APointAnchorPlacesTheAlignmentPointAtTheAnchorPlusTheOffset)
{
	// The middle of the canvas, then 10 right and 20 down, is the child's centre.
	EXPECT_EQ(OnlyChildRect(CanvasWith(SConstraintCanvas::Slot()
				.Anchors(FAnchors(0.5f, 0.5f))
				.Offset(FMargin(10.0f, 20.0f, 100.0f, 50.0f))[Fixed(1.0, 1.0)])),
		FSlateRect(160.0f, 145.0f, 260.0f, 195.0f));

	EXPECT_EQ(OnlyChildRect(CanvasWith(SConstraintCanvas::Slot()
				.Anchors(FAnchors(0.0f, 0.0f))
				.Alignment(FVector2D(0.0, 0.0))
				.Offset(FMargin(10.0f, 20.0f, 100.0f, 50.0f))[Fixed(1.0, 1.0)])),
		FSlateRect(10.0f, 20.0f, 110.0f, 70.0f));
}

TEST(ConstraintCanvasTest, DesiredSizeCoversEachVisibleChildBySizeAndByItsOffsetFromADockedEdge)
{
	const TSharedRef<SFixedSize> Hidden = Fixed(1.0, 1.0);
	Hidden->SetVisibility(EVisibility::Collapsed);
	const TSharedRef<SConstraintCanvas> Canvas = SNew(SConstraintCanvas)
		// Docked to the top-left corner: its offset from the corner counts, 30 + 100 by 20 + 50.
		+ SConstraintCanvas::Slot().Offset(FMargin(30.0f, 20.0f, 100.0f, 50.0f))[Fixed(1.0, 1.0)]
		// Centred: the offset only moves it about the middle, so its size alone counts, here its own.
		+ SConstraintCanvas::Slot().Anchors(FAnchors(0.5f, 0.5f)).Offset(FMargin(500.0f, 500.0f, 1.0f, 1.0f)).AutoSize(true)[Fixed(120.0, 40.0)]
		// Docked to the right and bottom edges: the offsets count by their size, 10 + 90 high.
		+ SConstraintCanvas::Slot().Anchors(FAnchors(1.0f, 1.0f)).Offset(FMargin(-10.0f, -90.0f, 20.0f, 10.0f))[Fixed(1.0, 1.0)]
		// Stretched across: the offsets are insets, and only the right one is taken as a width.
		+ SConstraintCanvas::Slot().Anchors(FAnchors(0.0f, 0.0f, 1.0f, 0.0f)).Offset(FMargin(200.0f, 0.0f, 5.0f, 5.0f))[Fixed(1.0, 1.0)]
		+ SConstraintCanvas::Slot().Offset(FMargin(0.0f, 0.0f, 900.0f, 900.0f))[Hidden];
	Canvas->SlatePrepass(1.0f);

	EXPECT_EQ(Canvas->GetDesiredSize(), FVector2D(130.0, 100.0));
}

TEST(ConstraintCanvasTest, AutoSizeUsesTheChildsDesiredSizeInsteadOfTheOffsetSize)
{
	// Pinned to the bottom-right corner, 10 in from each edge.
	EXPECT_EQ(OnlyChildRect(CanvasWith(SConstraintCanvas::Slot()
				.Anchors(FAnchors(1.0f, 1.0f))
				.Alignment(FVector2D(1.0, 1.0))
				.AutoSize(true)
				.Offset(FMargin(-10.0f, -10.0f, 999.0f, 999.0f))[Fixed(40.0, 30.0)])),
		FSlateRect(350.0f, 260.0f, 390.0f, 290.0f));
}

TEST(ConstraintCanvasTest, AHorizontallyStretchedAnchorInsetsBothSidesAndKeepsTheHeight)
{
	EXPECT_EQ(OnlyChildRect(CanvasWith(SConstraintCanvas::Slot()
				.Anchors(FAnchors(0.0f, 0.0f, 1.0f, 0.0f))
				.Alignment(FVector2D(0.0, 0.0))
				.Offset(FMargin(10.0f, 20.0f, 30.0f, 40.0f))[Fixed(1.0, 1.0)])),
		FSlateRect(10.0f, 20.0f, 370.0f, 60.0f));
}

TEST(ConstraintCanvasTest, AnchorsStretchedOnBothAxesSpanTheLinesLessTheInsetsWhateverTheAlignment)
{
	EXPECT_EQ(OnlyChildRect(CanvasWith(SConstraintCanvas::Slot()
				.Anchors(FAnchors(0.25f, 0.5f, 0.75f, 1.0f))
				.Alignment(FVector2D(1.0, 1.0))
				.AutoSize(true)
				.Offset(FMargin(5.0f))[Fixed(1000.0, 1000.0)])),
		FSlateRect(105.0f, 155.0f, 295.0f, 295.0f));
}

TEST(ConstraintCanvasTest, ChildrenAreArrangedInZOrderAndEqualZOrdersKeepTheOrderTheyWereAdded)
{
	const TSharedRef<SFixedSize> A = Fixed(1.0, 1.0);
	const TSharedRef<SFixedSize> B = Fixed(1.0, 1.0);
	const TSharedRef<SFixedSize> C = Fixed(1.0, 1.0);
	const TSharedRef<SFixedSize> D = Fixed(1.0, 1.0);
	const TSharedRef<SFixedSize> E = Fixed(1.0, 1.0);
	const TSharedRef<SConstraintCanvas> Canvas = SNew(SConstraintCanvas)
		+ SConstraintCanvas::Slot().ZOrder(2.0f)[A]
		+ SConstraintCanvas::Slot()[B]
		+ SConstraintCanvas::Slot().ZOrder(1.0f)[C]
		+ SConstraintCanvas::Slot()[D]
		+ SConstraintCanvas::Slot().ZOrder(-1.0f)[E];

	const FArrangedChildren Arranged = ArrangeIn(Canvas, 400.0, 300.0);
	ASSERT_EQ(Arranged.Num(), 5);
	const TSharedRef<SWidget> Expected[] = {E, B, D, C, A};
	for (int32 Index = 0; Index < 5; ++Index)
	{
		EXPECT_EQ(Arranged[Index].Widget, Expected[Index]) << "at " << Index;
	}
}

TEST(ConstraintCanvasTest, EachChildPaintsAboveTheWholeSubtreeOfTheChildBeforeIt)
{
	FSlateBrush Brush;
	const TSharedRef<SConstraintCanvas> Canvas = SNew(SConstraintCanvas)
		+ SConstraintCanvas::Slot().ZOrder(1.0f).Offset(FMargin(0.0f, 0.0f, 50.0f, 50.0f)).Alignment(FVector2D(0.0, 0.0))
		[
			SNew(SBorder).BorderImage(&Brush).BorderBackgroundColor(FLinearColor::Red)
			[
				SNew(SBorder).BorderImage(&Brush).BorderBackgroundColor(FLinearColor::Green)
			]
		]
		+ SConstraintCanvas::Slot().ZOrder(0.0f).Offset(FMargin(10.0f, 10.0f, 50.0f, 50.0f)).Alignment(FVector2D(0.0, 0.0))
		[
			SNew(SBorder).BorderImage(&Brush).BorderBackgroundColor(FLinearColor::Blue)
			[
				SNew(SBorder).BorderImage(&Brush).BorderBackgroundColor(FLinearColor::Black)
			]
		];

	FSlateWindowElementList Elements;
	const int32 MaxLayer = PaintIn(Canvas, Elements, 400.0, 300.0);
	const TArray<FSlateDrawElement>& Drawn = Elements.GetDrawElements();
	ASSERT_EQ(Drawn.Num(), 4);
	// The lower z-order goes first; the higher one starts above all of it.
	EXPECT_EQ(Drawn[0].GetTint(), FLinearColor::Blue);
	EXPECT_EQ(Drawn[0].GetLayer(), 1);
	EXPECT_EQ(ElementRect(Drawn[0]), FSlateRect(10.0f, 10.0f, 60.0f, 60.0f));
	EXPECT_EQ(Drawn[1].GetTint(), FLinearColor::Black);
	EXPECT_EQ(Drawn[1].GetLayer(), 2);
	EXPECT_EQ(ElementRect(Drawn[1]), FSlateRect(12.0f, 12.0f, 58.0f, 58.0f));
	// The inner border's empty content still took layer 3.
	EXPECT_EQ(Drawn[2].GetTint(), FLinearColor::Red);
	EXPECT_EQ(Drawn[2].GetLayer(), 4);
	EXPECT_EQ(ElementRect(Drawn[2]), FSlateRect(0.0f, 0.0f, 50.0f, 50.0f));
	EXPECT_EQ(Drawn[3].GetTint(), FLinearColor::Green);
	EXPECT_EQ(Drawn[3].GetLayer(), 5);
	EXPECT_EQ(MaxLayer, 6);
}

TEST(ConstraintCanvasTest, HiddenAndCollapsedChildrenAreNeitherArrangedForPaintNorDrawn)
{
	FSlateBrush Brush;
	const TSharedRef<SBorder> Shown = SNew(SBorder).BorderImage(&Brush);
	const TSharedRef<SBorder> Hidden = SNew(SBorder).BorderImage(&Brush).Visibility(EVisibility::Hidden);
	const TSharedRef<SBorder> Collapsed = SNew(SBorder).BorderImage(&Brush).Visibility(EVisibility::Collapsed);
	const TSharedRef<SConstraintCanvas> Canvas =
		SNew(SConstraintCanvas) + SConstraintCanvas::Slot()[Hidden] + SConstraintCanvas::Slot()[Shown] + SConstraintCanvas::Slot()[Collapsed];

	EXPECT_EQ(ArrangeIn(Canvas, 400.0, 300.0).Num(), 1);
	EXPECT_EQ(ArrangeIn(Canvas, 400.0, 300.0, EVisibility::All).Num(), 3);
	FSlateWindowElementList Elements;
	PaintIn(Canvas, Elements, 400.0, 300.0);
	EXPECT_EQ(Elements.GetDrawElements().Num(), 1);
}

TEST(ConstraintCanvasTest, SlotsChangedAfterConstructionTakeEffectAtTheNextArrange)
{
	const TSharedRef<SFixedSize> Child = Fixed(1.0, 1.0);
	const TSharedRef<SConstraintCanvas> Canvas = SNew(SConstraintCanvas);
	Canvas->AddSlot().Alignment(FVector2D(0.0, 0.0)).Offset(FMargin(1.0f, 2.0f, 3.0f, 4.0f))[Child];
	ASSERT_EQ(Canvas->NumSlots(), 1);
	EXPECT_EQ(OnlyChildRect(Canvas), FSlateRect(1.0f, 2.0f, 4.0f, 6.0f));

	EXPECT_EQ(Canvas->RemoveSlot(Child), 0);
	EXPECT_EQ(Canvas->RemoveSlot(Child), INDEX_NONE);
	EXPECT_EQ(ArrangeIn(Canvas, 400.0, 300.0).Num(), 0);
}
