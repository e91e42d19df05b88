// A widget with any number of children, laid out by the panel's own rules.
#pragma once

#include "Layout/Children.h"
#include "Widgets/SWidget.h"

class SPanel : public SWidget
{
protected:
	// Arranges the visible children and paints them all on the same layer, in arrange order.
	SLATECORE_API int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	SLATECORE_API int32 PaintArrangedChildren(const FPaintArgs& Args, const FArrangedChildren& ArrangedChildren, const FGeometry& AllottedGeometry,
		const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const;
};
