#include "Widgets/SCompoundWidget.h"

#include "Layout/LayoutUtils.h"
#include "Styling/WidgetStyle.h"

SCompoundWidget::SCompoundWidget()
	: ChildSlot(this)
	, ColorAndOpacity(FLinearColor::White)
	, ForegroundColor(FSlateColor::UseForeground())
{
}

FVector2D SCompoundWidget::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	if (Child->GetVisibility() != EVisibility::Collapsed)
	{
		return Child->GetDesiredSize() + ChildSlot.GetPadding().GetDesiredSize();
	}
	return FVector2D(0.0, 0.0);
}

void SCompoundWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	const EVisibility ChildVisibility = Child->GetVisibility();
	if (!ArrangedChildren.Accepts(ChildVisibility))
	{
		return;
	}
	const FMargin SlotPadding = ChildSlot.GetPadding();
	const FVector2D LocalSize = AllottedGeometry.GetLocalSize();
	const AlignmentArrangeResult XResult = AlignChild<Orient_Horizontal>(float(LocalSize.X), ChildSlot, SlotPadding);
	const AlignmentArrangeResult YResult = AlignChild<Orient_Vertical>(float(LocalSize.Y), ChildSlot, SlotPadding);
	ArrangedChildren.AddWidget(ChildVisibility,
		AllottedGeometry.MakeChild(Child, FVector2D(XResult.Offset, YResult.Offset), FVector2D(XResult.Size, YResult.Size)));
}

int32 SCompoundWidget::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	if (ArrangedChildren.Num() == 0)
	{
		return LayerId;
	}
	const FArrangedWidget& TheChild = ArrangedChildren[0];
	FWidgetStyle CompoundedWidgetStyle = FWidgetStyle(InWidgetStyle).BlendColorAndOpacityTint(ColorAndOpacity.Get()).SetForegroundColor(ForegroundColor);
	return TheChild.Widget->Paint(Args.WithNewParent(this), TheChild.Geometry, MyCullingRect, OutDrawElements, LayerId + 1, CompoundedWidgetStyle,
		ShouldBeEnabled(bParentEnabled));
}
