#include "Widgets/Images/SImage.h"

#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

SImage::SImage()
	: Image(static_cast<const FSlateBrush*>(nullptr))
	, ImageColorAndOpacity(FLinearColor::White)
{
}

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
	ImageColorAndOpacity = InArgs._ColorAndOpacity;
	DesiredSizeOverride = InArgs._DesiredSizeOverride;
}

void SImage::SetImage(TAttribute<const FSlateBrush*> InImage)
{
	Image = MoveTemp(InImage);
}

void SImage::SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity)
{
	ImageColorAndOpacity = InColorAndOpacity;
}

void SImage::SetDesiredSizeOverride(TAttribute<TOptional<FVector2D>> InDesiredSizeOverride)
{
	DesiredSizeOverride = MoveTemp(InDesiredSizeOverride);
}

FVector2D SImage::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const FSlateBrush* Brush = Image.Get();
	if (!Brush)
	{
		return FVector2D(0.0, 0.0);
	}
	const TOptional<FVector2D> Override = DesiredSizeOverride.Get(TOptional<FVector2D>());
	return Override.IsSet() ? Override.GetValue() : Brush->GetImageSize();
}

int32 SImage::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* Brush = Image.Get();
	if (Brush && Brush->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint() * ImageColorAndOpacity.Get().GetColor(InWidgetStyle) * Brush->GetTint(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, uint32(LayerId), AllottedGeometry.ToPaintGeometry(), Brush, ESlateDrawEffect::None, Tint);
	}
	return LayerId;
}
