// Drives Slate widgets directly: a prepass, one arrange or paint in a root geometry, and the
// rectangles that come out.
#pragma once

#include "Layout/ArrangedChildren.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

#include <gtest/gtest.h>

// A leaf that wants a fixed size and draws nothing.
class SFixedSize : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SFixedSize)
		: _Size(FVector2D(0.0, 0.0))
		{}
		SLATE_ARGUMENT(FVector2D, Size)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		Size = InArgs._Size;
	}

	void SetSize(const FVector2D& InSize)
	{
		Size = InSize;
	}

protected:
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override
	{
		return Size;
	}

	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override
	{
		return LayerId;
	}

private:
	FVector2D Size;
};

inline TSharedRef<SFixedSize> Fixed(double Width, double Height)
{
	return SNew(SFixedSize).Size(FVector2D(Width, Height));
}

inline FGeometry RootGeometry(double Width, double Height)
{
	return FGeometry::MakeRoot(FVector2D(Width, Height), FSlateLayoutTransform());
}

// The widget's children after a prepass and one arrange in a root of the given size.
inline FArrangedChildren ArrangeIn(const TSharedRef<SWidget>& Widget, double Width, double Height, EVisibility Filter = EVisibility::Visible)
{
	Widget->SlatePrepass(1.0f);
	FArrangedChildren Arranged(Filter);
	Widget->ArrangeChildren(RootGeometry(Width, Height), Arranged);
	return Arranged;
}

inline FSlateRect RectOf(const FArrangedWidget& Arranged)
{
	return Arranged.Geometry.GetLayoutBoundingRect();
}

// Every arranged child's rectangle, in arrange order.
inline TArray<FSlateRect> RectsOf(const FArrangedChildren& Arranged)
{
	TArray<FSlateRect> Rects;
	for (int32 Index = 0; Index < Arranged.Num(); ++Index)
	{
		Rects.Add(RectOf(Arranged[Index]));
	}
	return Rects;
}

inline FSlateRect ElementRect(const FSlateDrawElement& Element)
{
	return FSlateRect::FromPointAndExtent(FVector2D(Element.GetPosition()), FVector2D(Element.GetLocalSize() * Element.GetScale()));
}

// Prepasses and paints the widget as a window's root, from layer zero.
inline int32 PaintIn(const TSharedRef<SWidget>& Widget, FSlateWindowElementList& Elements, double Width, double Height,
	const FVector2D& WindowOffset = FVector2D(0.0, 0.0), const FWidgetStyle& Style = FWidgetStyle())
{
	Widget->SlatePrepass(1.0f);
	const FGeometry Root = RootGeometry(Width, Height);
	const FPaintArgs Args(nullptr, WindowOffset, 0.0, 0.0f);
	return Widget->Paint(Args, Root, Root.GetLayoutBoundingRect(), Elements, 0, Style, true);
}

inline void PrintTo(const FSlateRect& Rect, std::ostream* Out)
{
	*Out << "(" << Rect.Left << ", " << Rect.Top << ", " << Rect.Right << ", " << Rect.Bottom << ")";
}
