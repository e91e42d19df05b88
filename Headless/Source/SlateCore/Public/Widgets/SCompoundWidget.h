// A widget made of one child, which it lays out through its ChildSlot.
#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Styling/SlateColor.h"
#include "Widgets/SWidget.h"

using FCompoundWidgetOneChildSlot = FSingleWidgetChildrenWithBasicLayoutSlot;

class SCompoundWidget : public SWidget
{
public:
	FChildren* GetChildren() override
	{
		return &ChildSlot;
	}

	FLinearColor GetColorAndOpacity() const
	{
		return ColorAndOpacity.Get();
	}

	void SetColorAndOpacity(const TAttribute<FLinearColor>& InColorAndOpacity)
	{
		ColorAndOpacity = InColorAndOpacity;
	}

	void SetForegroundColor(TAttribute<FSlateColor> InForegroundColor)
	{
		ForegroundColor = MoveTemp(InForegroundColor);
	}

	FSlateColor GetForegroundColor() const
	{
		return ForegroundColor.Get();
	}

protected:
	SLATECORE_API SCompoundWidget();

	// Content plus slot padding; a collapsed child takes no space.
	SLATECORE_API FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	SLATECORE_API void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	// Paints the child one layer up, tinted by this widget's colour and with its foreground.
	SLATECORE_API int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	FCompoundWidgetOneChildSlot ChildSlot;
	TAttribute<FLinearColor> ColorAndOpacity;
	TAttribute<FSlateColor> ForegroundColor;
};
