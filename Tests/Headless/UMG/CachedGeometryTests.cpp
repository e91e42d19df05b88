#include "Components/Border.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Image.h"
#include "Rendering/DrawElements.h"
#include "ViewportTestFixture.h"
#include "Widgets/SWidget.h"

using CachedGeometryTest = ViewportTest;

namespace
{
	// A border without padding holding a canvas, so the canvas fills the window.
	UCanvasPanel* FillWithCanvas(UBorder* Root, UCanvasPanel* Canvas)
	{
		Root->SetPadding(FMargin(0.0f));
		Root->SetContent(Canvas);
		return Canvas;
	}
}

TEST_F(CachedGeometryTest, TheWindowsDpiScaleAndDesktopPositionAreInTheAbsoluteTransform)
{
	Viewport.Reset();
	Viewport = MakeUnique<FHeadlessViewport>(FVector2D(800.0, 600.0), FVector2D(100.0, 50.0), 2.0f);
	UCanvasPanel* Canvas = FillWithCanvas(Make<UBorder>(), Make<UCanvasPanel>());
	UImage* Image = Make<UImage>();
	UCanvasPanelSlot* Slot = Canvas->AddChildToCanvas(Image);
	Slot->SetPosition(FVector2D(10.0, 20.0));
	Slot->SetSize(FVector2D(30.0, 40.0));
	Show(Canvas->GetParent());

	EXPECT_EQ(Canvas->GetCachedGeometry().GetLocalSize(), FVector2D(400.0, 300.0));
	const FGeometry& Geometry = Image->GetCachedGeometry();
	EXPECT_EQ(Geometry.GetLocalSize(), FVector2D(30.0, 40.0));
	EXPECT_EQ(Geometry.GetAbsolutePosition(), FVector2D(120.0, 90.0));
	EXPECT_EQ(Geometry.GetAbsoluteSize(), FVector2D(60.0, 80.0));
	EXPECT_EQ(Geometry.GetAccumulatedLayoutTransform().GetScale(), 2.0f);
	EXPECT_EQ(FVector2f(Geometry.AbsoluteToLocal(FVector2f(130.0f, 100.0f))), FVector2f(5.0f, 5.0f));
	EXPECT_EQ(FVector2D(Geometry.LocalToAbsolute(FVector2D(5.0, 5.0))), FVector2D(130.0, 100.0));
}

TEST_F(CachedGeometryTest, AParentsRenderScaleShrinksWhereChildrenAreDrawnButNotTheirLocalUnits)
{
	UBorder* Root = Make<UBorder>();
	UCanvasPanel* Canvas = FillWithCanvas(Root, Make<UCanvasPanel>());
	Root->SetRenderScale(FVector2D(0.5, 0.5));
	Show(Root);

	// Scaled about the border's centre, the canvas's corner lands a quarter of the way in.
	const FGeometry& Geometry = Canvas->GetCachedGeometry();
	const FVector2f Origin = Geometry.LocalToAbsolute(FVector2f(0.0f, 0.0f));
	EXPECT_EQ(Origin, FVector2f(200.0f, 150.0f));
	EXPECT_EQ(Geometry.GetLocalSize(), FVector2D(800.0, 600.0));
	EXPECT_TRUE(Geometry.HasRenderTransform());
	EXPECT_EQ(FVector2f(Geometry.AbsoluteToLocal(Origin + FVector2f(16.0f, 16.0f))), FVector2f(32.0f, 32.0f));
	EXPECT_EQ(FVector2f(Geometry.AbsoluteToLocal(Origin + FVector2f(48.0f, 0.0f))), FVector2f(96.0f, 0.0f));
}

TEST_F(CachedGeometryTest, RenderScaleAndDpiScaleCompose)
{
	Viewport.Reset();
	Viewport = MakeUnique<FHeadlessViewport>(FVector2D(800.0, 600.0), FVector2D(0.0, 0.0), 2.0f);
	UBorder* Root = Make<UBorder>();
	UCanvasPanel* Canvas = FillWithCanvas(Root, Make<UCanvasPanel>());
	Root->SetRenderTransformPivot(FVector2D(0.0, 0.0));
	Root->SetRenderScale(FVector2D(0.5, 0.5));
	Show(Root);

	const FGeometry& Geometry = Canvas->GetCachedGeometry();
	EXPECT_EQ(FVector2f(Geometry.LocalToAbsolute(FVector2f(0.0f, 0.0f))), FVector2f(0.0f, 0.0f));
	EXPECT_EQ(FVector2f(Geometry.AbsoluteToLocal(FVector2f(16.0f, 16.0f))), FVector2f(16.0f, 16.0f));
}

TEST_F(CachedGeometryTest, TheViewportBuildsSlateWidgetsAtOnceAndATickLaysThemOut)
{
	UCanvasPanel* Canvas = FillWithCanvas(Make<UBorder>(), Make<UCanvasPanel>());
	Screen->WidgetTree->RootWidget = Canvas->GetParent();
	EXPECT_FALSE(Canvas->GetCachedWidget().IsValid());

	Screen->AddToViewport();
	EXPECT_TRUE(Screen->IsInViewport());
	ASSERT_TRUE(Canvas->GetCachedWidget().IsValid());
	EXPECT_EQ(Canvas->GetCachedGeometry().GetLocalSize(), FVector2D(0.0, 0.0));

	Viewport->Tick();
	EXPECT_TRUE(Canvas->GetCachedWidget().IsValid());
	EXPECT_TRUE(Screen->GetCachedWidget().IsValid());
	EXPECT_EQ(Canvas->GetCachedGeometry().GetLocalSize(), FVector2D(800.0, 600.0));
}

TEST_F(CachedGeometryTest, LeavingTheScreenReleasesTheSlateWidgetsOfTheWholeTree)
{
	UCanvasPanel* Canvas = FillWithCanvas(Make<UBorder>(), Make<UCanvasPanel>());
	Show(Canvas->GetParent());
	ASSERT_TRUE(Canvas->GetCachedWidget().IsValid());

	Screen->RemoveFromParent();
	EXPECT_FALSE(Screen->IsInViewport());
	EXPECT_FALSE(Screen->GetCachedWidget().IsValid());
	EXPECT_FALSE(Canvas->GetCachedWidget().IsValid());
	EXPECT_EQ(Canvas->GetCachedGeometry().GetLocalSize(), FVector2D(0.0, 0.0));
}

TEST_F(CachedGeometryTest, AChildTakenOffTheCanvasLosesItsSlateWidgetWhileTheCanvasKeepsItsOwn)
{
	UCanvasPanel* Canvas = FillWithCanvas(Make<UBorder>(), Make<UCanvasPanel>());
	UImage* Image = Make<UImage>();
	Canvas->AddChildToCanvas(Image);
	Show(Canvas->GetParent());
	ASSERT_TRUE(Image->GetCachedWidget().IsValid());

	Image->RemoveFromParent();
	EXPECT_FALSE(Image->GetCachedWidget().IsValid());
	EXPECT_TRUE(Canvas->GetCachedWidget().IsValid());
	EXPECT_EQ(Canvas->GetCachedWidget()->GetChildren()->Num(), 0);
}

TEST_F(CachedGeometryTest, AChildAddedToACanvasOnScreenIsArrangedAtTheNextFrame)
{
	UCanvasPanel* Canvas = FillWithCanvas(Make<UBorder>(), Make<UCanvasPanel>());
	Show(Canvas->GetParent());

	UImage* Late = Make<UImage>();
	UCanvasPanelSlot* Slot = Canvas->AddChildToCanvas(Late);
	Slot->SetPosition(FVector2D(7.0, 9.0));
	Viewport->Tick();
	EXPECT_EQ(ScreenRect(Late), FSlateRect(7.0f, 9.0f, 107.0f, 39.0f));

	// A slot change after arrangement shows at the following frame.
	Slot->SetPosition(FVector2D(1.0, 1.0));
	Viewport->Tick();
	EXPECT_EQ(ScreenRect(Late), FSlateRect(1.0f, 1.0f, 101.0f, 31.0f));
}

TEST_F(CachedGeometryTest, AWidgetBuiltOffScreenHasNoCachedWidget)
{
	UCanvasPanel* Canvas = FillWithCanvas(Make<UBorder>(), Make<UCanvasPanel>());
	Screen->WidgetTree->RootWidget = Canvas->GetParent();
	Screen->TakeWidget();
	EXPECT_FALSE(Canvas->GetCachedWidget().IsValid());
}

TEST_F(CachedGeometryTest, AChildAddedAndRemovedBetweenFramesLeavesNothingOnTheCanvas)
{
	UCanvasPanel* Canvas = FillWithCanvas(Make<UBorder>(), Make<UCanvasPanel>());
	Show(Canvas->GetParent());
	UImage* Brief = Make<UImage>();
	Canvas->AddChildToCanvas(Brief);
	Brief->RemoveFromParent();
	Viewport->Tick();

	FSlateWindowElementList Elements;
	Viewport->Paint(Elements);
	for (const FSlateDrawElement& Element : Elements.GetDrawElements())
	{
		EXPECT_NE(Element.GetLocalSize(), FVector2f(100.0f, 30.0f));
	}
	EXPECT_EQ(Canvas->GetCachedWidget()->GetChildren()->Num(), 0);
}
