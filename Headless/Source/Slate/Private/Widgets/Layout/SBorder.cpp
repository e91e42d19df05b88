#include "Widgets/Layout/SBorder.h"

#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

SBorder::SBorder()
	: BorderImage(GetDefaultBrush())
	, BorderBackgroundColor(FLinearColor::White)
	, DesiredSizeScale(FVector2D(1.0, 1.0))
{
}

const FSlateBrush* SBorder::GetDefaultBrush()
{
	static const FSlateBrush DefaultBrush;
	return &DefaultBrush;
}

void SBorder::Construct(const FArguments& InArgs)
{
	ColorAndOpacity = InArgs._ColorAndOpacity;
	ForegroundColor = InArgs._ForegroundColor;
	BorderImage = InArgs._BorderImage;
	BorderBackgroundColor = InArgs._BorderBackgroundColor;
	DesiredSizeScale = InArgs._DesiredSizeScale;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SBorder::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

const TSharedRef<SWidget>& SBorder::GetContent() const
{
	return ChildSlot.GetWidget();
}

void SBorder::ClearContent()
{
	ChildSlot.DetachWidget();
}

void SBorder::SetBorderBackgroundColor(TAttribute<FSlateColor> InColorAndOpacity)
{
	BorderBackgroundColor = MoveTemp(InColorAndOpacity);
}

void SBorder::SetDesiredSizeScale(TAttribute<FVector2D> InDesiredSizeScale)
{
	DesiredSizeScale = MoveTemp(InDesiredSizeScale);
}

void SBorder::SetHAlign(EHorizontalAlignment HAlign)
{
	ChildSlot.SetHorizontalAlignment(HAlign);
}

void SBorder::SetVAlign(EVerticalAlignment VAlign)
{
	ChildSlot.SetVerticalAlignment(VAlign);
}

void SBorder::SetPadding(TAttribute<FMargin> InPadding)
{
	ChildSlot.SetPadding(MoveTemp(InPadding));
}

void SBorder::SetBorderImage(TAttribute<const FSlateBrush*> InBorderImage)
{
	BorderImage = MoveTemp(InBorderImage);
}

FVector2D SBorder::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return DesiredSizeScale.Get() * SCompoundWidget::ComputeDesiredSize(LayoutScaleMultiplier);
}

int32 SBorder::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	if (const FSlateBrush* Brush = BorderImage.Get())
	{
		const FLinearColor Tint = Brush->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint() * BorderBackgroundColor.Get().GetColor(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, uint32(LayerId), AllottedGeometry.ToPaintGeometry(), Brush, ESlateDrawEffect::None, Tint);
	}
	// The content goes one layer up, above the brush.
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
}
