#include "Layout/ArrangedChildren.h"
#include "Layout/Visibility.h"
#include "Rendering/DrawElements.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/WidgetStyle.h"

#include <gtest/gtest.h>

TEST(SlateColorTest, ASpecifiedColourIgnoresTheStyleWhileForegroundColoursFollowIt)
{
	FWidgetStyle Style;
	Style.SetForegroundColor(FLinearColor(0.2f, 0.4f, 0.6f, 1.0f));

	const FSlateColor Red(FLinearColor::Red);
	EXPECT_TRUE(Red.IsColorSpecified());
	EXPECT_EQ(Red.GetColor(Style), FLinearColor::Red);

	EXPECT_FALSE(FSlateColor::UseForeground().IsColorSpecified());
	EXPECT_EQ(FSlateColor::UseForeground().GetColor(Style), FLinearColor(0.2f, 0.4f, 0.6f, 1.0f));
	EXPECT_EQ(FSlateColor::UseSubduedForeground().GetColor(Style), FLinearColor(0.2f, 0.4f, 0.6f, FWidgetStyle::SubdueAmount));
}

TEST(SlateColorTest, AnUnsetColourFollowsTheForegroundAndRemembersMagenta)
{
	const FSlateColor Unset;
	EXPECT_EQ(Unset.GetColorUseRule(), ESlateColorStylingMode::UseColor_Foreground);
	EXPECT_EQ(Unset.GetSpecifiedColor(), FLinearColor(1.0f, 0.0f, 1.0f));
	EXPECT_EQ(Unset, FSlateColor::UseForeground());
	EXPECT_NE(Unset, FSlateColor(FLinearColor(1.0f, 0.0f, 1.0f)));
	EXPECT_EQ(Unset.GetColor(FWidgetStyle()), FLinearColor::White);
}

TEST(WidgetStyleTest, UseForegroundKeepsTheInheritedForegroundWhileASpecifiedOneReplacesIt)
{
	FWidgetStyle Style;
	Style.SetForegroundColor(FLinearColor::Green);

	Style.SetForegroundColor(TAttribute<FSlateColor>(FSlateColor::UseForeground()));
	EXPECT_EQ(Style.GetForegroundColor(), FLinearColor::Green);

	Style.SetForegroundColor(TAttribute<FSlateColor>(FSlateColor(FLinearColor::Blue)));
	EXPECT_EQ(Style.GetForegroundColor(), FLinearColor::Blue);
	EXPECT_EQ(Style.GetSubduedForegroundColor(), FLinearColor(0.0f, 0.0f, 1.0f, FWidgetStyle::SubdueAmount));

	// A subdued foreground resolves against the style before it changes.
	Style.SetForegroundColor(TAttribute<FSlateColor>(FSlateColor::UseSubduedForeground()));
	EXPECT_EQ(Style.GetForegroundColor(), FLinearColor(0.0f, 0.0f, 1.0f, FWidgetStyle::SubdueAmount));

	// An unset attribute changes nothing.
	const FLinearColor Before = Style.GetForegroundColor();
	Style.SetForegroundColor(TAttribute<FSlateColor>());
	EXPECT_EQ(Style.GetForegroundColor(), Before);
}

TEST(WidgetStyleTest, TintsMultiplyAndOpacityOnlyTouchesAlpha)
{
	FWidgetStyle Style;
	EXPECT_EQ(Style.GetColorAndOpacityTint(), FLinearColor::White);
	Style.BlendColorAndOpacityTint(FLinearColor(0.5f, 1.0f, 0.25f, 0.5f)).BlendOpacity(0.5f);
	EXPECT_EQ(Style.GetColorAndOpacityTint(), FLinearColor(0.5f, 1.0f, 0.25f, 0.25f));
	Style.BlendColorAndOpacityTint(FLinearColor(0.5f, 0.5f, 0.5f, 1.0f));
	EXPECT_EQ(Style.GetColorAndOpacityTint(), FLinearColor(0.25f, 0.5f, 0.125f, 0.25f));
}

TEST(SlateBrushTest, ADefaultBrushIsAWhiteThirtyTwoUnitUntiledImageWithoutAResource)
{
	const FSlateBrush Brush;
	EXPECT_EQ(Brush.GetImageSize(), FVector2D(32.0, 32.0));
	EXPECT_EQ(Brush.GetMargin(), FMargin(0.0f));
	EXPECT_EQ(Brush.TintColor, FSlateColor(FLinearColor::White));
	EXPECT_EQ(Brush.GetDrawType(), ESlateBrushDrawType::Image);
	EXPECT_EQ(Brush.Tiling, ESlateBrushTileType::NoTile);
	EXPECT_EQ(Brush.GetResourceObject(), nullptr);
	EXPECT_FALSE(Brush.HasUObject());
	EXPECT_EQ(Brush.GetResourceName(), NAME_None);
	EXPECT_EQ(Brush.GetTint(FWidgetStyle()), FLinearColor::White);
}

TEST(DrawElementTest, BoxesAndTextThatWouldDrawNothingAreNotAdded)
{
	FSlateWindowElementList Elements;
	const FSlateBrush Plain;
	FSlateBrush Nothing;
	Nothing.DrawAs = ESlateBrushDrawType::NoDrawType;
	const FLinearColor Clear(1.0f, 1.0f, 1.0f, 0.0f);

	FSlateDrawElement::MakeBox(Elements, 0, FPaintGeometry(), nullptr);
	FSlateDrawElement::MakeBox(Elements, 0, FPaintGeometry(), &Nothing);
	FSlateDrawElement::MakeBox(Elements, 0, FPaintGeometry(), &Plain, ESlateDrawEffect::None, Clear);
	FSlateDrawElement::MakeText(Elements, 0, FPaintGeometry(), FString(), FSlateFontInfo());
	FSlateDrawElement::MakeText(Elements, 0, FPaintGeometry(), TEXT("x"), FSlateFontInfo(), ESlateDrawEffect::None, Clear);
	EXPECT_EQ(Elements.GetDrawElements().Num(), 0);
}

TEST(DrawElementTest, ElementsKeepTheirLayerGeometryTintAndTheTypeTheBrushAsksFor)
{
	FSlateWindowElementList Elements;
	const FPaintGeometry Geometry(FSlateLayoutTransform(2.0f, FVector2D(10.0, 20.0)), FSlateRenderTransform(2.0f, FVector2f(10.0f, 20.0f)),
		FVector2f(30.0f, 40.0f), false);
	FSlateBrush Border;
	Border.DrawAs = ESlateBrushDrawType::Border;
	Border.Margin = FMargin(0.25f);
	FSlateBrush Rounded;
	Rounded.DrawAs = ESlateBrushDrawType::RoundedBox;
	const FSlateBrush Image;
	const FLinearColor Tint(0.5f, 0.25f, 1.0f, 0.75f);

	FSlateDrawElement::MakeBox(Elements, 3, Geometry, &Border, ESlateDrawEffect::None, Tint);
	FSlateDrawElement::MakeBox(Elements, 1, Geometry, &Rounded);
	FSlateDrawElement::MakeBox(Elements, 2, Geometry, &Image, ESlateDrawEffect::DisabledEffect);
	FSlateDrawElement::MakeText(Elements, 7, Geometry, TEXT("Hi"), FSlateFontInfo(nullptr, 12.0f));

	const TArray<FSlateDrawElement>& Drawn = Elements.GetDrawElements();
	ASSERT_EQ(Drawn.Num(), 4);
	EXPECT_EQ(Drawn[0].GetElementType(), FSlateDrawElement::EElementType::ET_Border);
	EXPECT_EQ(Drawn[0].GetLayer(), 3);
	EXPECT_EQ(Drawn[0].GetTint(), Tint);
	EXPECT_EQ(Drawn[0].GetBrush().Margin, FMargin(0.25f));
	EXPECT_EQ(Drawn[0].GetPosition(), FVector2f(10.0f, 20.0f));
	EXPECT_EQ(Drawn[0].GetLocalSize(), FVector2f(30.0f, 40.0f));
	EXPECT_EQ(Drawn[0].GetScale(), 2.0f);
	EXPECT_EQ(Drawn[1].GetElementType(), FSlateDrawElement::EElementType::ET_RoundedBox);
	EXPECT_EQ(Drawn[2].GetElementType(), FSlateDrawElement::EElementType::ET_Box);
	EXPECT_EQ(Drawn[2].GetDrawEffects(), ESlateDrawEffect::DisabledEffect);
	EXPECT_EQ(Drawn[3].GetElementType(), FSlateDrawElement::EElementType::ET_Text);
	EXPECT_EQ(Drawn[3].GetText(), TEXT("Hi"));
	EXPECT_EQ(Drawn[3].GetFontInfo().Size, 12.0f);
	EXPECT_EQ(Drawn[3].GetLayer(), 7);

	Elements.ResetElementList();
	EXPECT_EQ(Elements.GetDrawElements().Num(), 0);
}

TEST(VisibilityTest, TheVisibleFilterTakesEverythingDrawnAndNothingHiddenOrCollapsed)
{
	const FArrangedChildren Drawn(EVisibility::Visible);
	EXPECT_TRUE(Drawn.Accepts(EVisibility::Visible));
	EXPECT_TRUE(Drawn.Accepts(EVisibility::HitTestInvisible));
	EXPECT_TRUE(Drawn.Accepts(EVisibility::SelfHitTestInvisible));
	EXPECT_FALSE(Drawn.Accepts(EVisibility::Hidden));
	EXPECT_FALSE(Drawn.Accepts(EVisibility::Collapsed));

	const FArrangedChildren Everything(EVisibility::All);
	EXPECT_TRUE(Everything.Accepts(EVisibility::Hidden));
	EXPECT_TRUE(Everything.Accepts(EVisibility::Collapsed));
}
