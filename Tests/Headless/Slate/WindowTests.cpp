#include "SlateTestSupport.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	struct FScaledWindow
	{
		FSlateBrush Frame;
		TSharedPtr<SFixedSize> Content;
		TSharedPtr<SBorder> Border;
		TSharedRef<SWindow> Window = SNew(SWindow).ClientSize(FVector2D(800.0, 600.0)).ScreenPosition(FVector2D(100.0, 50.0)).DPIScale(2.0f);

		FScaledWindow()
		{
			Window->SetContent(SAssignNew(Border, SBorder)
					.BorderImage(&Frame)
					.Padding(10.0f)
					.HAlign(HAlign_Left)
					.VAlign(VAlign_Top)[SAssignNew(Content, SFixedSize).Size(FVector2D(50.0, 20.0))]);
		}
	};
}

TEST(WindowTest, AWindowsContentIsLaidOutInSlateUnitsAndDrawnInPixels)
{
	FScaledWindow Scaled;
	FSlateWindowElementList Elements;
	const int32 MaxLayer = Scaled.Window->PaintWindow(0.0, 0.0f, Elements, FWidgetStyle(), true);

	EXPECT_EQ(Scaled.Border->GetPaintSpaceGeometry().GetLocalSize(), FVector2D(400.0, 300.0));
	EXPECT_EQ(Scaled.Content->GetPaintSpaceGeometry().GetLocalSize(), FVector2D(50.0, 20.0));
	EXPECT_EQ(Scaled.Content->GetPaintSpaceGeometry().GetLayoutBoundingRect(), FSlateRect(20.0f, 20.0f, 120.0f, 60.0f));

	ASSERT_EQ(Elements.GetDrawElements().Num(), 1);
	const FSlateDrawElement& Frame = Elements.GetDrawElements()[0];
	EXPECT_EQ(ElementRect(Frame), FSlateRect(0.0f, 0.0f, 800.0f, 600.0f));
	EXPECT_EQ(Frame.GetScale(), 2.0f);
	// The window's content goes a layer up, and the border's content another.
	EXPECT_EQ(Frame.GetLayer(), 1);
	EXPECT_EQ(MaxLayer, 2);
}

TEST(WindowTest, CachedGeometryIsOnTheDesktopWhereTheWindowsPixelsAre)
{
	FScaledWindow Scaled;
	FSlateWindowElementList Elements;
	Scaled.Window->PaintWindow(0.0, 0.0f, Elements, FWidgetStyle(), true);

	const FGeometry& Cached = Scaled.Content->GetCachedGeometry();
	EXPECT_EQ(Cached.GetLayoutBoundingRect(), FSlateRect(120.0f, 70.0f, 220.0f, 110.0f));
	EXPECT_EQ(FVector2D(Cached.AbsoluteToLocal(FVector2D(170.0, 90.0))), FVector2D(25.0, 10.0));
	EXPECT_TRUE(Cached.IsUnderLocation(FVector2D(219.0, 109.0)));
	EXPECT_FALSE(Cached.IsUnderLocation(FVector2D(119.0, 70.0)));

	EXPECT_EQ(Scaled.Window->GetWindowGeometryInScreen().GetLayoutBoundingRect(), FSlateRect(100.0f, 50.0f, 900.0f, 650.0f));
	EXPECT_EQ(Scaled.Window->GetWindowGeometryInScreen().GetLocalSize(), FVector2D(400.0, 300.0));
	EXPECT_EQ(Scaled.Window->GetWindowGeometryInWindow().GetLayoutBoundingRect(), FSlateRect(0.0f, 0.0f, 800.0f, 600.0f));
}

TEST(WindowTest, ThePrepassRunsAtTheWindowsDpiScale)
{
	FScaledWindow Scaled;
	FSlateWindowElementList Elements;
	Scaled.Window->PaintWindow(0.0, 0.0f, Elements, FWidgetStyle(), true);
	EXPECT_EQ(Scaled.Content->GetPrepassLayoutScaleMultiplier().Get(0.0f), 2.0f);
	EXPECT_EQ(Scaled.Window->GetDesiredSize(), FVector2D(70.0, 40.0));
}

TEST(WindowTest, MovingResizingAndRescalingTakeEffectAtTheNextPaint)
{
	FScaledWindow Scaled;
	Scaled.Window->MoveWindowTo(FVector2D(0.0, 0.0));
	Scaled.Window->Resize(FVector2D(300.0, 200.0));
	Scaled.Window->SetDPIScaleFactor(1.0f);
	FSlateWindowElementList Elements;
	Scaled.Window->PaintWindow(0.0, 0.0f, Elements, FWidgetStyle(), true);

	EXPECT_EQ(Scaled.Border->GetCachedGeometry().GetLayoutBoundingRect(), FSlateRect(0.0f, 0.0f, 300.0f, 200.0f));
	EXPECT_EQ(Scaled.Content->GetCachedGeometry().GetLayoutBoundingRect(), FSlateRect(10.0f, 10.0f, 60.0f, 30.0f));
	EXPECT_EQ(Scaled.Window->GetPositionInScreen(), FVector2D(0.0, 0.0));
	EXPECT_EQ(Scaled.Window->GetClientSizeInScreen(), FVector2D(300.0, 200.0));
}

TEST(WindowTest, TextInAScaledWindowIsDrawnAtTheScaledPosition)
{
	TSharedPtr<STextBlock> Label;
	const TSharedRef<SWindow> Window = SNew(SWindow).ClientSize(FVector2D(400.0, 200.0)).DPIScale(2.0f)
		[
			SNew(SBorder).BorderImage(nullptr).Padding(FMargin(7.0f, 3.0f, 0.0f, 0.0f))
			[
				SAssignNew(Label, STextBlock).Text(FText::FromString(TEXT("x")))
			]
		];
	FSlateWindowElementList Elements;
	Window->PaintWindow(0.0, 0.0f, Elements, FWidgetStyle(), true);
	ASSERT_EQ(Elements.GetDrawElements().Num(), 1);
	EXPECT_EQ(Elements.GetDrawElements()[0].GetPosition(), FVector2f(14.0f, 6.0f));
	EXPECT_EQ(Elements.GetDrawElements()[0].GetScale(), 2.0f);
	EXPECT_EQ(Label->GetPrepassLayoutScaleMultiplier().Get(0.0f), 2.0f);
}
