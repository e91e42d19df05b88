#include "SlateTestSupport.h"
#include "Widgets/SBoxPanel.h"

TEST(VerticalBoxTest, AutoSlotsStackTheirDesiredHeightsWithPaddingAndFillAcross)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[Fixed(40.0, 20.0)]
		+ SVerticalBox::Slot().AutoHeight().Padding(FMargin(5.0f, 3.0f, 7.0f, 2.0f))[Fixed(30.0, 10.0)]
		+ SVerticalBox::Slot().AutoHeight()[Fixed(10.0, 15.0)];

	const TArray<FSlateRect> Rects = RectsOf(ArrangeIn(Box, 100.0, 200.0));
	ASSERT_EQ(Rects.Num(), 3);
	EXPECT_EQ(Rects[0], FSlateRect(0.0f, 0.0f, 100.0f, 20.0f));
	EXPECT_EQ(Rects[1], FSlateRect(5.0f, 23.0f, 93.0f, 33.0f));
	EXPECT_EQ(Rects[2], FSlateRect(0.0f, 35.0f, 100.0f, 50.0f));
	// Heights and padding add up; the width is the widest child with its padding.
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(42.0, 50.0));
}

TEST(VerticalBoxTest, FillSlotsShareWhatTheAutoSlotsLeaveByTheirCoefficients)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().FillHeight(1.0f)[Fixed(10.0, 500.0)]
		+ SVerticalBox::Slot().AutoHeight().Padding(0.0f, 5.0f)[Fixed(10.0, 30.0)]
		+ SVerticalBox::Slot().FillHeight(3.0f)[Fixed(10.0, 1.0)];

	const TArray<FSlateRect> Rects = RectsOf(ArrangeIn(Box, 100.0, 200.0));
	ASSERT_EQ(Rects.Num(), 3);
	// 200 less 40 for the auto slot and its padding leaves 160: a quarter and three quarters.
	EXPECT_EQ(Rects[0], FSlateRect(0.0f, 0.0f, 100.0f, 40.0f));
	EXPECT_EQ(Rects[1], FSlateRect(0.0f, 45.0f, 100.0f, 75.0f));
	EXPECT_EQ(Rects[2], FSlateRect(0.0f, 80.0f, 100.0f, 200.0f));
	// Fill slots still ask for their content's height.
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(10.0, 541.0));
}

TEST(VerticalBoxTest, ANewSlotFillsWithACoefficientOfOne)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[Fixed(10.0, 10.0)] + SVerticalBox::Slot()[Fixed(10.0, 10.0)];
	EXPECT_EQ(RectsOf(ArrangeIn(Box, 100.0, 200.0)), TArray<FSlateRect>({FSlateRect(0.0f, 0.0f, 100.0f, 100.0f), FSlateRect(0.0f, 100.0f, 100.0f, 200.0f)}));
	EXPECT_EQ(Box->GetSlot(0).GetSizeRule(), SBoxPanel::SizeRule_Stretch);
	EXPECT_EQ(Box->GetSlot(0).GetSizeValue(), 1.0f);
}

TEST(VerticalBoxTest, AutoSlotsThatOverflowLeaveFillSlotsNothing)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[Fixed(10.0, 150.0)]
		+ SVerticalBox::Slot().FillHeight(1.0f)[Fixed(10.0, 10.0)]
		+ SVerticalBox::Slot().AutoHeight()[Fixed(10.0, 100.0)];

	const TArray<FSlateRect> Rects = RectsOf(ArrangeIn(Box, 100.0, 200.0));
	ASSERT_EQ(Rects.Num(), 3);
	EXPECT_EQ(Rects[0], FSlateRect(0.0f, 0.0f, 100.0f, 150.0f));
	EXPECT_EQ(Rects[1], FSlateRect(0.0f, 150.0f, 100.0f, 150.0f));
	EXPECT_EQ(Rects[2], FSlateRect(0.0f, 150.0f, 100.0f, 250.0f));
}

TEST(VerticalBoxTest, HorizontalAlignmentPlacesEachChildAcrossInsideItsPadding)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left).Padding(FMargin(4.0f, 0.0f, 8.0f, 0.0f))[Fixed(20.0, 10.0)]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center)[Fixed(20.0, 10.0)]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Right).Padding(FMargin(4.0f, 0.0f, 8.0f, 0.0f))[Fixed(20.0, 10.0)]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center)[Fixed(500.0, 10.0)];

	const TArray<FSlateRect> Rects = RectsOf(ArrangeIn(Box, 100.0, 200.0));
	ASSERT_EQ(Rects.Num(), 4);
	EXPECT_EQ(Rects[0], FSlateRect(4.0f, 0.0f, 24.0f, 10.0f));
	EXPECT_EQ(Rects[1], FSlateRect(40.0f, 10.0f, 60.0f, 20.0f));
	EXPECT_EQ(Rects[2], FSlateRect(72.0f, 20.0f, 92.0f, 30.0f));
	// Wider than the box: clamped to its width.
	EXPECT_EQ(Rects[3], FSlateRect(0.0f, 30.0f, 100.0f, 40.0f));
}

TEST(VerticalBoxTest, AFillSlotPlacesItsChildInItsShareByVerticalAlignment)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().FillHeight(1.0f).VAlign(VAlign_Top)[Fixed(10.0, 20.0)]
		+ SVerticalBox::Slot().FillHeight(1.0f).VAlign(VAlign_Center)[Fixed(10.0, 20.0)]
		+ SVerticalBox::Slot().FillHeight(1.0f).VAlign(VAlign_Bottom).Padding(FMargin(0.0f, 0.0f, 0.0f, 5.0f))[Fixed(10.0, 20.0)]
		+ SVerticalBox::Slot().FillHeight(1.0f).VAlign(VAlign_Fill)[Fixed(10.0, 20.0)];

	// 405 less the one padding leaves 100 for each slot.
	const TArray<FSlateRect> Rects = RectsOf(ArrangeIn(Box, 100.0, 405.0));
	ASSERT_EQ(Rects.Num(), 4);
	EXPECT_EQ(Rects[0], FSlateRect(0.0f, 0.0f, 100.0f, 20.0f));
	EXPECT_EQ(Rects[1], FSlateRect(0.0f, 140.0f, 100.0f, 160.0f));
	EXPECT_EQ(Rects[2], FSlateRect(0.0f, 280.0f, 100.0f, 300.0f));
	EXPECT_EQ(Rects[3], FSlateRect(0.0f, 305.0f, 100.0f, 405.0f));
}

TEST(VerticalBoxTest, MaxHeightCapsBothAutoAndFillSlots)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().MaxHeight(25.0f)[Fixed(10.0, 60.0)]
		+ SVerticalBox::Slot().FillHeight(1.0f).MaxHeight(50.0f)[Fixed(10.0, 10.0)]
		+ SVerticalBox::Slot().AutoHeight()[Fixed(10.0, 10.0)];

	const TArray<FSlateRect> Rects = RectsOf(ArrangeIn(Box, 100.0, 200.0));
	ASSERT_EQ(Rects.Num(), 3);
	EXPECT_EQ(Rects[0], FSlateRect(0.0f, 0.0f, 100.0f, 25.0f));
	EXPECT_EQ(Rects[1], FSlateRect(0.0f, 25.0f, 100.0f, 75.0f));
	EXPECT_EQ(Rects[2], FSlateRect(0.0f, 75.0f, 100.0f, 85.0f));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(10.0, 45.0));
}

TEST(VerticalBoxTest, ACollapsedChildTakesNoSpaceWhileAHiddenOneKeepsItsPlace)
{
	const TSharedRef<SFixedSize> First = Fixed(10.0, 20.0);
	const TSharedRef<SFixedSize> Middle = Fixed(30.0, 30.0);
	const TSharedRef<SFixedSize> Last = Fixed(10.0, 20.0);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[First]
		+ SVerticalBox::Slot().AutoHeight().Padding(5.0f)[Middle]
		+ SVerticalBox::Slot().AutoHeight()[Last];

	Middle->SetVisibility(EVisibility::Hidden);
	FArrangedChildren Visible = ArrangeIn(Box, 100.0, 200.0);
	ASSERT_EQ(Visible.Num(), 2);
	EXPECT_EQ(RectOf(Visible[1]), FSlateRect(0.0f, 60.0f, 100.0f, 80.0f));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(40.0, 80.0));
	// Arranged without a filter, the hidden child is where it would be drawn.
	FArrangedChildren All = ArrangeIn(Box, 100.0, 200.0, EVisibility::All);
	ASSERT_EQ(All.Num(), 3);
	EXPECT_EQ(RectOf(All[1]), FSlateRect(5.0f, 25.0f, 95.0f, 55.0f));

	Middle->SetVisibility(EVisibility::Collapsed);
	Visible = ArrangeIn(Box, 100.0, 200.0);
	ASSERT_EQ(Visible.Num(), 2);
	EXPECT_EQ(RectOf(Visible[1]), FSlateRect(0.0f, 20.0f, 100.0f, 40.0f));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(10.0, 40.0));
	EXPECT_EQ(ArrangeIn(Box, 100.0, 200.0, EVisibility::All).Num(), 2);
}

TEST(VerticalBoxTest, ACollapsedFillSlotGivesItsShareToTheOthers)
{
	const TSharedRef<SFixedSize> Gone = Fixed(10.0, 10.0);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().FillHeight(1.0f)[Fixed(10.0, 10.0)]
		+ SVerticalBox::Slot().FillHeight(1.0f).Padding(10.0f)[Gone];
	Gone->SetVisibility(EVisibility::Collapsed);
	EXPECT_EQ(RectsOf(ArrangeIn(Box, 100.0, 200.0)), TArray<FSlateRect>({FSlateRect(0.0f, 0.0f, 100.0f, 200.0f)}));
}

TEST(VerticalBoxTest, SlotsAddedInsertedAndRemovedKeepTheirOrder)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	const TSharedRef<SFixedSize> A = Fixed(10.0, 10.0);
	const TSharedRef<SFixedSize> B = Fixed(10.0, 20.0);
	const TSharedRef<SFixedSize> C = Fixed(10.0, 30.0);
	Box->AddSlot().AutoHeight()[A];
	Box->AddSlot().AutoHeight()[C];
	Box->InsertSlot(1).AutoHeight()[B];
	ASSERT_EQ(Box->NumSlots(), 3);

	FArrangedChildren Arranged = ArrangeIn(Box, 100.0, 200.0);
	ASSERT_EQ(Arranged.Num(), 3);
	EXPECT_EQ(Arranged[1].Widget, TSharedRef<SWidget>(B));
	EXPECT_EQ(RectOf(Arranged[2]), FSlateRect(0.0f, 30.0f, 100.0f, 60.0f));

	EXPECT_EQ(Box->RemoveSlot(B), 1);
	EXPECT_EQ(Box->RemoveSlot(B), INDEX_NONE);
	Arranged = ArrangeIn(Box, 100.0, 200.0);
	ASSERT_EQ(Arranged.Num(), 2);
	EXPECT_EQ(RectOf(Arranged[1]), FSlateRect(0.0f, 10.0f, 100.0f, 40.0f));

	Box->ClearChildren();
	EXPECT_EQ(Box->NumSlots(), 0);
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(0.0, 0.0));
}

TEST(VerticalBoxTest, ChildrenAreArrangedInTheBoxsOwnScaledSpace)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Fixed(10.0, 20.0)] + SVerticalBox::Slot().AutoHeight()[Fixed(10.0, 20.0)];
	Box->SlatePrepass(1.0f);
	FArrangedChildren Arranged(EVisibility::Visible);
	Box->ArrangeChildren(FGeometry::MakeRoot(FVector2D(100.0, 200.0), FSlateLayoutTransform(2.0f, FVector2D(50.0, 10.0))), Arranged);
	ASSERT_EQ(Arranged.Num(), 2);
	EXPECT_EQ(RectOf(Arranged[1]), FSlateRect(50.0f, 50.0f, 250.0f, 90.0f));
	EXPECT_EQ(Arranged[1].Geometry.GetLocalSize(), FVector2D(100.0, 20.0));
}
