#include "SlateTestSupport.h"
#include "Widgets/Images/SImage.h"

namespace
{
	FSlateBrush BrushOfSize(double Width, double Height)
	{
		FSlateBrush Brush;
		Brush.SetImageSize(FVector2D(Width, Height));
		return Brush;
	}
}

TEST(ImageTest, AnImageAsksForItsBrushsImageSize)
{
	const FSlateBrush Brush = BrushOfSize(48.0, 12.0);
	const TSharedRef<SImage> Image = SNew(SImage).Image(&Brush);
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(48.0, 12.0));

	const FSlateBrush Default;
	Image->SetImage(&Default);
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(32.0, 32.0));
}

TEST(ImageTest, WithoutABrushAnImageAsksForNothingAndDrawsNothing)
{
	const TSharedRef<SImage> Image = SNew(SImage);
	FSlateWindowElementList Elements;
	PaintIn(Image, Elements, 10.0, 10.0);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(0.0, 0.0));
	EXPECT_EQ(Elements.GetDrawElements().Num(), 0);
}

TEST(ImageTest, ADesiredSizeOverrideWinsOverTheBrush)
{
	const FSlateBrush Brush = BrushOfSize(48.0, 12.0);
	const TSharedRef<SImage> Image = SNew(SImage).Image(&Brush).DesiredSizeOverride(TOptional<FVector2D>(FVector2D(5.0, 6.0)));
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(5.0, 6.0));

	Image->SetDesiredSizeOverride(TOptional<FVector2D>());
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(48.0, 12.0));
}

TEST(ImageTest, AnImageDrawsOneBoxOverItsWholeGeometryTintedByBrushAndColour)
{
	FSlateBrush Brush = BrushOfSize(4.0, 4.0);
	Brush.TintColor = FLinearColor(0.5f, 1.0f, 1.0f, 1.0f);
	const TSharedRef<SImage> Image = SNew(SImage).Image(&Brush).ColorAndOpacity(FLinearColor(1.0f, 0.5f, 1.0f, 0.5f));
	FSlateWindowElementList Elements;
	PaintIn(Image, Elements, 30.0, 20.0);

	ASSERT_EQ(Elements.GetDrawElements().Num(), 1);
	const FSlateDrawElement& Box = Elements.GetDrawElements()[0];
	EXPECT_EQ(ElementRect(Box), FSlateRect(0.0f, 0.0f, 30.0f, 20.0f));
	EXPECT_EQ(Box.GetTint(), FLinearColor(0.5f, 0.5f, 1.0f, 0.5f));
	EXPECT_EQ(Box.GetBrush().ImageSize, FVector2f(4.0f, 4.0f));
	EXPECT_EQ(Box.GetLayer(), 0);
}

TEST(ImageTest, ABrushThatDrawsNothingAddsNoElementButStillTakesItsSize)
{
	FSlateBrush Brush = BrushOfSize(8.0, 8.0);
	Brush.DrawAs = ESlateBrushDrawType::NoDrawType;
	const TSharedRef<SImage> Image = SNew(SImage).Image(&Brush);
	FSlateWindowElementList Elements;
	PaintIn(Image, Elements, 8.0, 8.0);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(8.0, 8.0));
	EXPECT_EQ(Elements.GetDrawElements().Num(), 0);
}
